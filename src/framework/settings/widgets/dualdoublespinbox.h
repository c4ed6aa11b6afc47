#pragma once

#include "framework/settings/widgets/basepropertyview.h"

class QDoubleSpinBox;

/// Two numbers: the coordinates of a point, the sides of a size, or the ends of an interval.
class DualDoubleSpinBox : public BasePropertyView
{
    Q_OBJECT

public:
    enum DualMode { DualMode_Size, DualMode_Point, DualMode_PointF, DualMode_Range };
    Q_ENUM(DualMode)

    DualDoubleSpinBox(AbstractMetaDescription *description, DualMode mode, QWidget *parent = nullptr);

protected slots:
    void metaValueChanged(const QVariant &value) override;

private:
    QWidget *createBoxes();
    void onBoxChanged();
    QVariant value() const;

    DualMode m_mode = DualMode_Point;
    QPointer<QDoubleSpinBox> m_first;
    QPointer<QDoubleSpinBox> m_second;
};
