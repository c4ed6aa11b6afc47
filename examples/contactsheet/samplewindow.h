#pragma once

#include <QList>
#include <QWidget>

/// One of every kind of control, in the states that a page shows them in.
class SampleWindow : public QWidget
{
    Q_OBJECT

public:
    explicit SampleWindow(QWidget *parent = nullptr);

    /// Those that are worth a look with the focus.
    QList<QWidget *> focusable() const { return m_focused; }

private:
    QWidget *createButtons();
    QWidget *createFields();
    QWidget *createSliders();
    QWidget *createTabs();
    QWidget *createTable(const QString &objectName);

    QList<QWidget *> m_focused;
};
