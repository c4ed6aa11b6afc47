#include "framework/common/widgets/newversionchecker.h"

#include "framework/common/versionchecker.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int CheckSeconds = 600;
constexpr int MaxVersionLength = 40;

/// The service's text as one short line without what buttons and tool tips would take for markup.
QString shown(QString version)
{
    version.removeIf([](QChar c) { return c == '<'_L1 || c == '>'_L1 || c == '&'_L1; });
    return version.simplified().left(MaxVersionLength);
}

} // namespace

NewVersionChecker::NewVersionChecker(const QString &preliminaryText, QObject *parent)
    : QObject(parent)
    , m_preliminaryText(preliminaryText)
{
    m_connections << connect(VersionChecker::Instance(), &VersionChecker::versionFound, this,
                             &NewVersionChecker::update, Qt::QueuedConnection);
    if (VersionChecker::LastVersion().valid)
        update();
    else
        VersionChecker::StartChecking(true, CheckSeconds);
}

void NewVersionChecker::setPreliminaryText(const QString &text)
{
    m_preliminaryText = text;
    update();
}

void NewVersionChecker::update()
{
    const VersionInfo info = VersionChecker::LastVersion();
    if (info.valid) {
        m_link = info.link;
        const QString version = shown(info.version);
        const QString text = m_preliminaryText.isEmpty()
                                 ? QCoreApplication::translate(
                                       "Generic", QCoreApplication::applicationName().toUtf8().constData())
                                       + ' '_L1
                                 : m_preliminaryText;
        emit onSetText(text + version);
        emit onSetTooltip(tr("Click to download new version") + ' '_L1 + version);
        emit newVersion();
    }
    emit onSetVisible(info.valid);
}

void NewVersionChecker::action()
{
    const QUrl url(m_link);
    if (url.isValid() && (url.scheme() == "https"_L1 || url.scheme() == "http"_L1))
        QDesktopServices::openUrl(url);
}
