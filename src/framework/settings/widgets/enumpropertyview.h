#pragma once

#include "framework/settings/widgets/basepropertyview.h"

class QComboBox;

/// The enumerators by their captions, in the order of their keys.
class EnumPropertyView : public BasePropertyView
{
    Q_OBJECT

public:
    explicit EnumPropertyView(AbstractMetaDescription *description, QWidget *parent = nullptr);

protected slots:
    void metaValueChanged(const QVariant &value) override;

private:
    QPointer<QComboBox> m_box;
};
