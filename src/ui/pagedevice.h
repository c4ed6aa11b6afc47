#pragma once

#include <QWidget>

/// Where an experiment is driven: the frame around the SpinbarController of the model's instrument.
class PageDevice : public QWidget
{
    Q_OBJECT

public:
    explicit PageDevice(QWidget *parent);
};
