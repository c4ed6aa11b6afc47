#include "soak/simulatorprocess.h"

#include <QFile>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

constexpr int StartTimeoutMs = 10'000;
constexpr int Lanes = 7;
constexpr int MeanSecondsBetweenEvents = 6;

/// Bytes as they come over a bad line, status messages among them that are none.
QString noise(QRandomGenerator &random)
{
    static const QStringList texts = {
        u"hello"_s,    u"S"_s,       u"S,1"_s,        u"S,,,,,,,,,,,,,,"_s, u"}}}{{{"_s,
        u"{S,1,28"_s,  u"R,1,2,3"_s, u"sn="_s,        u"sn=000000"_s,       u"iamspinbar"_s,
        u"version="_s, u"MCC:9,,"_s, u"S,zz,zz,zz"_s, u"{\\}\\\\{"_s,       u"S,1,0,0,0,0,0,0,0,0,0,zz,zz"_s};
    return texts.at(random.bounded(int(texts.size())));
}

QString event(QRandomGenerator &random)
{
    const int kind = random.bounded(20);
    if (kind < 12)
        return u"%1 %2"_s.arg(random.bounded(1, Lanes + 1)).arg(random.bounded(2) == 0 ? u"on"_s : u"off"_s);
    if (kind < 14)
        return random.bounded(2) == 0 ? u"power on"_s : u"power off"_s;
    return u"send "_s + noise(random);
}

} // namespace

SimulatorProcess::SimulatorProcess(const QString &folder)
    : m_folder(folder)
    , m_path(folder + u"/instrument"_s)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

SimulatorProcess::~SimulatorProcess()
{
    kill();
}

bool SimulatorProcess::startWithFaults(double rate, int seconds, QRandomGenerator &random)
{
    QFile scenario(m_folder + u"/scenario.txt"_s);
    if (!scenario.open(QIODevice::WriteOnly))
        return false;
    QTextStream text(&scenario);
    for (int second = 1; second < seconds; second += random.bounded(1, 2 * MeanSecondsBetweenEvents))
        text << second << ' ' << event(random) << '\n';
    text << seconds / 2 << " link off " << random.bounded(1, 60) << '\n';
    text.flush();
    scenario.close();
    return start({u"--rate"_s, QString::number(rate), u"--scenario"_s, scenario.fileName()});
}

bool SimulatorProcess::startReplay(double rate, const QString &log)
{
    return start({u"--rate"_s, QString::number(rate), u"--replay"_s, log});
}

bool SimulatorProcess::start(QStringList arguments)
{
    kill();
    m_process.start(QStringLiteral(SPINBAR_SIMULATOR), QStringList{u"--link"_s, m_path} + arguments);
    return m_process.waitForStarted(StartTimeoutMs) && m_process.waitForReadyRead(StartTimeoutMs);
}

void SimulatorProcess::kill()
{
    if (!isRunning())
        return;
    m_process.kill();
    m_process.waitForFinished(StartTimeoutMs);
    // Its terminal may be another's by now, and then the link counts as in use.
    QFile::remove(m_path);
}
