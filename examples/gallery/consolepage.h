#pragma once

#include <QWidget>

/// The process's console, and a button that gives it something to show.
class ConsolePage : public QWidget
{
    Q_OBJECT

public:
    explicit ConsolePage(QWidget *parent = nullptr);

private:
    void writeSample();

    int m_samples = 0;
};
