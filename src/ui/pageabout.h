#pragma once

#include <QWidget>

/// What the program is and who made it.
class PageAbout : public QWidget
{
    Q_OBJECT

public:
    /// The computer's addresses are read now; the widgets are made when the page is first shown.
    explicit PageAbout(QWidget *parent);

    void setVisible(bool visible) override;

private:
    void layOut();
};
