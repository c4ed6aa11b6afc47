#pragma once

#include "framework/settings/widgets/basepropertyview.h"

class QLineEdit;

/// A path, with a button that asks for a file or folder.
class SpecialPropertyView : public BasePropertyView
{
    Q_OBJECT

public:
    explicit SpecialPropertyView(AbstractMetaDescription *description, QWidget *parent = nullptr);

    /// The filter of the file dialog: \a extensions is "Image", "Video", a pattern such as "*.xml", or empty
    /// for any file.
    static QString filterFor(const QString &extensions);

    QSize sizeHint() const override;

protected slots:
    void metaValueChanged(const QVariant &value) override;

private:
    void pick();

    QPointer<QLineEdit> m_line;
};
