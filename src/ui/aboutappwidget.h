#pragma once

#include <QDateTime>
#include <QMap>
#include <QStringList>
#include <QWidget>

class QGridLayout;
class QPushButton;

/// The panel that tells of a program and its maker: the manual and the list of changes behind buttons, facts
/// about version and computer, how to reach the maker, and who built it.
class AboutAppWidget : public QWidget
{
    Q_OBJECT

public:
    /// The manual is a PDF file near the program, else \a manualLink if that is not empty. A developer's date
    /// is their birthday. The unnamed argument has no effect.
    AboutAppWidget(const QString &company, const QStringList &links, const QString &manualLink,
                   const QString &apiLink, const QMap<QString, QDateTime> &developers, bool, QWidget *parent);

private:
    void addButtons(QGridLayout *grid, const QString &manualLink, const QString &apiLink);
    QPushButton *createManualButton(const QString &manualLink);
    QPushButton *createApiButton(const QString &apiLink);
    QPushButton *createChangeLogButton();
    void showChangeLog();
    static QWidget *createContacts(const QString &company, const QStringList &links);
};
