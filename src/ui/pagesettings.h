#pragma once

#include <QWidget>

/// The application's settings.
class PageSettings : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};
