#pragma once

#include <QHash>
#include <QWidget>

class QGridLayout;
class QLabel;

/// Shows the console's averages or statuses live, a row each.
class GlobalConsoleStatusWidget : public QWidget
{
    Q_OBJECT

public:
    enum ViewType { Averages = 0, Status = 1 };
    Q_ENUM(ViewType)

    GlobalConsoleStatusWidget(ViewType type, QWidget *parent);

    /// Decimals of the averages, from the next value on.
    void setPrecision(uchar precision);

    using QWidget::update;

public slots:
    void refill();
    void updateAll();
    void update(const QString &name, double value);
    void update(const QString &name, const QString &value);

private:
    ViewType m_type;
    uchar m_precision = 2;
    QGridLayout *m_grid = nullptr;
    QHash<QString, QLabel *> m_values;
};
