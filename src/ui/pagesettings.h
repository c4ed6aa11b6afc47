#pragma once

#include "framework/common/widgets/latewidget.h"

/// The application's settings and the door to the library of scripts.
class PageSettings : public LateWidget
{
    Q_OBJECT

public:
    /// Its widgets are made when it is first shown.
    explicit PageSettings(QWidget *parent);

private:
    void layOut() override;
    void openScriptEditor();
};
