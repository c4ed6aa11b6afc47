#include "framework/common/widgets/apphelperdialogs.h"

#include "framework/common/widgets/platformfolders.h"

#include "framework/common/apphelper.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QPushButton>
#include <QUrl>

namespace {

QString caption(const QStringList &buttons, int index, const char *fallback)
{
    return index < buttons.size() ? buttons.at(index) : QCoreApplication::translate("Generic", fallback);
}

} // namespace

bool AppHelper::checkAndCloseIfAppsRunning(const QStringList &apps, int attempts)
{
    const QStringList running = waitForAppsToEnd(apps, attempts);
    if (running.isEmpty())
        return false;
    warningMessage(runningAppsMessage(running), {}, QMessageBox::Warning);
    return true;
}

void AppHelper::warningMessage(const QString &text, const QString &title, QMessageBox::Icon icon,
                               const QString &details)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok);
    box.setInformativeText(details);
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    box.exec();
}

bool AppHelper::confirmDialog(const QString &title, const QString &text, QMessageBox::Icon icon,
                              const QStringList &buttons)
{
    QMessageBox box(icon, title, text);
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    auto *accepting =
        box.addButton(caption(buttons, 0, QT_TRANSLATE_NOOP("Generic", "Yes")), QMessageBox::AcceptRole);
    box.addButton(caption(buttons, 1, QT_TRANSLATE_NOOP("Generic", "No")), QMessageBox::RejectRole);
    box.setDefaultButton(accepting);
    box.exec();
    return box.clickedButton() == accepting;
}

int AppHelper::confirmDialogWithCancel(const QString &title, const QString &text, QMessageBox::Icon icon,
                                       const QStringList &buttons)
{
    QMessageBox box(icon, title, text);
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    auto *accepting =
        box.addButton(caption(buttons, 0, QT_TRANSLATE_NOOP("Generic", "Ok")), QMessageBox::AcceptRole);
    auto *rejecting =
        box.addButton(caption(buttons, 1, QT_TRANSLATE_NOOP("Generic", "No")), QMessageBox::NoRole);
    auto *cancelling =
        box.addButton(caption(buttons, 2, QT_TRANSLATE_NOOP("Generic", "Cancel")), QMessageBox::RejectRole);
    box.setDefaultButton(accepting);
    box.setEscapeButton(cancelling);
    box.exec();
    if (box.clickedButton() == accepting)
        return 1;
    return box.clickedButton() == rejecting ? 0 : -1;
}

void AppHelper::showInFolder(const QString &path)
{
    const QFileInfo info(path);
    const QString folder = info.isDir() ? path : info.absolutePath();
    Platform::showInFileManager(path, [folder] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); });
}
