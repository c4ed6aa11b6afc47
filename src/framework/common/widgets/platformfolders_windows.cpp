#include "framework/common/widgets/platformfolders.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

void Platform::showInFileManager(const QString &path, const std::function<void()> &onFailure)
{
    QStringList arguments{QDir::toNativeSeparators(path)};
    if (!QFileInfo(path).isDir())
        arguments.prepend(u"/select,"_s);
    if (!QProcess::startDetached(u"explorer"_s, arguments))
        onFailure();
}
