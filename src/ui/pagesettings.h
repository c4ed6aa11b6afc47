#pragma once

#include <QWidget>

/// The application's settings and the door to the library of scripts.
class PageSettings : public QWidget
{
    Q_OBJECT

public:
    /// Its widgets are made when it is first shown.
    explicit PageSettings(QWidget *parent);

    void setVisible(bool visible) override;

private:
    void layOut();
    void openScriptEditor();
};
