#pragma once

#include "framework/settings/widgets/basepropertyview.h"

class QComboBox;

/// A choice from the texts that code has given to the description, kept as the text or as its index. Shows
/// nothing if there are none.
class EnumStringListPropertyView : public BasePropertyView
{
    Q_OBJECT

public:
    explicit EnumStringListPropertyView(AbstractMetaDescription *description, QWidget *parent = nullptr);

protected slots:
    void metaValueChanged(const QVariant &value) override;

private:
    bool isText() const;

    QPointer<QComboBox> m_box;
};
