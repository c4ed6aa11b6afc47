#pragma once

#include <QWidget>

class NewVersionChecker;
class QPushButton;

/// A button that shows while there is a newer version of the program, names it, and opens its page.
class NewVersionButton : public QWidget
{
    Q_OBJECT

public:
    /// An empty \a style means the usual look.
    NewVersionButton(const QString &preliminaryText, const QString &style, QWidget *parent);

    QPushButton *button() const { return m_button; }
    void setButtonStyle(const QString &style);
    void setPreliminaryText(const QString &text);

signals:
    void onHasNewVersionChanged(bool hasNewVersion);

private:
    void setHasNewVersion(bool hasNewVersion);

    QPushButton *m_button = nullptr;
    NewVersionChecker *m_checker = nullptr;
};
