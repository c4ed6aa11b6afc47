#pragma once

#include <QWidget>

/// The application's settings and the door to the library of scripts.
class PageSettings : public QWidget
{
    Q_OBJECT

public:
    explicit PageSettings(QWidget *parent);

private:
    void openScriptEditor();
};
