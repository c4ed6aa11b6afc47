#pragma once

#include "framework/common/widgets/latewidget.h"

/// What the program is and who made it.
class PageAbout : public LateWidget
{
    Q_OBJECT

public:
    /// The computer's addresses are read now; the widgets are made when the page is first shown.
    explicit PageAbout(QWidget *parent);

private:
    void layOut() override;
};
