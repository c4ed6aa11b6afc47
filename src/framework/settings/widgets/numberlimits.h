#pragma once

class AbstractMetaDescription;
class QDoubleSpinBox;

/// Gives \a box what \a description says of decimals, limits and step; without limits it takes those of int.
void applyNumberLimits(QDoubleSpinBox &box, const AbstractMetaDescription &description);
