#pragma once

#include <QAction>

/// The menu entry that shows while there is a newer version of the program, see NewVersionButton.
class NewVersionMenuAction : public QAction
{
    Q_OBJECT

public:
    NewVersionMenuAction(const QString &preliminaryText, QWidget *parent);
};
