#pragma once

#include <QWidget>

class AbstractSettings;

/// The generated form of one settings object, as a list and in tabs: each follows the other.
class FormPage : public QWidget
{
    Q_OBJECT

public:
    explicit FormPage(AbstractSettings *settings, QWidget *parent = nullptr);
};
