#pragma once

#include "framework/settings/widgets/basepropertyview.h"

class QPlainTextEdit;

class MultilinePropertyView : public BasePropertyView
{
    Q_OBJECT

public:
    explicit MultilinePropertyView(AbstractMetaDescription *description, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected slots:
    void metaValueChanged(const QVariant &value) override;

private:
    QPointer<QPlainTextEdit> m_edit;
};
