#include "cli/recordreport.h"
#include "cli/clitext.h"

#include "cli/command.h"
#include "core/boundedmath.h"

#include <QJsonDocument>
#include <QLocale>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double MillisecondsPerSecond = 1000.0;

} // namespace

RecordReport::RecordReport(CommandContext &context, bool json)
    : m_context(context)
    , m_json(json)
{}

void RecordReport::connected(const QString &port)
{
    event(u"connected"_s, {{u"port"_s, port}}, Cli::tr("Connected to %1").arg(port));
}

void RecordReport::serial(const QString &value)
{
    if (std::exchange(m_serial, value) == value)
        return;
    event(u"serial"_s, {{u"value"_s, value}}, Cli::tr("Serial number %1").arg(value));
}

void RecordReport::version(const QString &value)
{
    if (std::exchange(m_version, value) == value)
        return;
    event(u"version"_s, {{u"value"_s, value}}, Cli::tr("Firmware version %1").arg(value));
}

void RecordReport::recording(const QString &path)
{
    event(u"recording"_s, {{u"path"_s, path}}, Cli::tr("Recording to %1").arg(path));
}

void RecordReport::found(int lane)
{
    event(u"found"_s, {{u"lane"_s, lane}}, Cli::tr("Lane %1: on the drum").arg(lane));
}

void RecordReport::fall(qint64 start, qint64 end, double rotations, int index, bool rat)
{
    const QString seconds = QString::number(Bounded::difference(end, start) / MillisecondsPerSecond, 'g',
                                            QLocale::FloatingPointShortest);
    event(u"fall"_s,
          {{u"start"_s, start},
           {u"end"_s, end},
           {u"rotations"_s, rotations},
           {u"index"_s, index},
           {u"rat"_s, rat}},
          Cli::tr("Lane %1: off the drum after %2 s").arg(index + 1).arg(seconds));
}

void RecordReport::disconnected()
{
    event(u"disconnected"_s, {}, Cli::tr("The link to the instrument was lost"));
}

void RecordReport::stopped(const QString &path)
{
    event(u"stopped"_s, {{u"path"_s, path}}, Cli::tr("Stopped"));
    if (!m_json)
        m_context.out << path << Qt::endl;
}

void RecordReport::event(const QString &name, const QJsonObject &fields, const QString &words)
{
    if (!m_json) {
        m_context.err << words << Qt::endl;
        return;
    }
    // Written by hand up to the fields, so that every line begins with what happened.
    QByteArray line = "{\"event\":\"" + name.toUtf8() + '"';
    const QByteArray rest = QJsonDocument(fields).toJson(QJsonDocument::Compact);
    line += fields.isEmpty() ? QByteArray("}") : ',' + rest.sliced(1);
    m_context.out << QString::fromUtf8(line) << Qt::endl;
}
