#include "framework/common/widgets/platformfolders.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

// The bus may have to start the file manager first.
constexpr int AnswerTimeoutMs = 5'000;

} // namespace

void Platform::showInFileManager(const QString &path, const std::function<void()> &onFailure)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        onFailure();
        return;
    }
    const QFileInfo info(path);
    const QUrl address = QUrl::fromLocalFile(info.absoluteFilePath());
    QDBusMessage call = QDBusMessage::createMethodCall(
        u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
        u"org.freedesktop.FileManager1"_s, info.isDir() ? u"ShowFolders"_s : u"ShowItems"_s);
    const QString startupId;
    call << QStringList{QString::fromLatin1(address.toEncoded())} << startupId;
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(call, AnswerTimeoutMs), qApp);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, onFailure] {
        if (answer->isError())
            onFailure();
        answer->deleteLater();
    });
}
