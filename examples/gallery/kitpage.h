#pragma once

#include <QWidget>

class QGridLayout;
class QLabel;

/// Panels, icons, shapes and buttons.
class KitPage : public QWidget
{
    Q_OBJECT

public:
    explicit KitPage(QWidget *parent = nullptr);

private:
    QWidget *createStackPanel();
    QWidget *createScrollViewer();
    QWidget *createIcons();
    QWidget *createEllipses();
    QWidget *createPushButtons();
    QWidget *createGenerated();
    QWidget *createTimer();
};
