#pragma once

#include <QWidget>

/// What the program is and who made it.
class PageAbout : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};
