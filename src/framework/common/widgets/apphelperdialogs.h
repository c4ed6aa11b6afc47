#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>

/// What AppHelper shows. The message boxes are modal and stay on top.
namespace AppHelper {

/// Waits for other processes of these names to end, if there are any, and tells the operator if they do not.
/// True means that the caller must end. A start with nothing in the way does not wait.
bool checkAndCloseIfAppsRunning(const QStringList &apps, int attempts);

/// \a details stands below the text.
void warningMessage(const QString &text, const QString &title, QMessageBox::Icon icon = QMessageBox::Warning,
                    const QString &details = {});

/// True if the first button was pressed. \a buttons replaces the captions "Yes" and "No" in this order.
bool confirmDialog(const QString &title, const QString &text, QMessageBox::Icon icon,
                   const QStringList &buttons = {});

/// 1 for the first button ("Ok"), 0 for the second ("No"), -1 for the third ("Cancel") or none.
int confirmDialogWithCancel(const QString &title, const QString &text, QMessageBox::Icon icon,
                            const QStringList &buttons = {});

/// Shows a file selected in its folder, or a folder, in the system's file manager; where that cannot be
/// reached, the folder is opened with the program for folders.
void showInFolder(const QString &path);

} // namespace AppHelper
