#pragma once

#include <QWidget>

/// What the program is and who made it.
class PageAbout : public QWidget
{
    Q_OBJECT

public:
    explicit PageAbout(QWidget *parent);
};
