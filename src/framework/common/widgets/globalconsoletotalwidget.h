#pragma once

#include <QWidget>

/// The whole console: its entries, and to their right the averages over the statuses.
class GlobalConsoleTotalWidget : public QWidget
{
    Q_OBJECT

public:
    explicit GlobalConsoleTotalWidget(QWidget *parent = nullptr);

signals:
    void closing();

protected:
    void closeEvent(QCloseEvent *event) override;
};
