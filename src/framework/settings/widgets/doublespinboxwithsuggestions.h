#pragma once

#include <QDoubleSpinBox>
#include <QList>

/// A number whose steps go through a list of values, if it has one.
class DoubleSpinBoxWithSuggestions : public QDoubleSpinBox
{
    Q_OBJECT

public:
    using QDoubleSpinBox::QDoubleSpinBox;

    void setSuggestions(const QList<double> &suggestions);
    void stepBy(int steps) override;

private:
    QList<double> m_suggestions;
};
