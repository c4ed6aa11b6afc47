#include "simulator/scenario.h"

#include "simulator/printable.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int LaneCount = 7;
/// With the line's end.
constexpr qint64 MaxLineBytes = 1000;
constexpr int MaxLines = 100'000;
/// Thirty years: far beyond any session, and safe to count in milliseconds.
constexpr double MaxSeconds = 1e9;

std::optional<qint64> milliseconds(QStringView text)
{
    bool ok = false;
    const double seconds = text.toDouble(&ok);
    // The negated form also refuses what is not a number.
    if (!ok || !(seconds >= 0 && seconds <= MaxSeconds))
        return std::nullopt;
    return std::llround(seconds * 1000.0);
}

std::optional<bool> onOff(QStringView text)
{
    if (text == "on"_L1)
        return true;
    if (text == "off"_L1)
        return false;
    return std::nullopt;
}

bool parseSwitch(const QStringList &words, ScenarioEvent *event)
{
    const std::optional<bool> on = words.size() == 3 ? onOff(words[2]) : std::nullopt;
    if (!on)
        return false;
    event->on = *on;
    if (words[1] == "power"_L1) {
        event->kind = ScenarioEvent::Kind::Power;
        return true;
    }
    bool ok = false;
    const int lane = words[1].toInt(&ok);
    event->kind = ScenarioEvent::Kind::Lane;
    event->lane = lane - 1;
    return ok && lane >= 1 && lane <= LaneCount;
}

bool parseLink(const QStringList &words, ScenarioEvent *event)
{
    event->kind = ScenarioEvent::Kind::LinkOff;
    if (words.size() < 3 || words.size() > 4 || words[2] != "off"_L1)
        return false;
    if (words.size() == 3)
        return true;
    const std::optional<qint64> duration = milliseconds(words[3]);
    event->durationMs = duration.value_or(0);
    return duration.has_value();
}

/// \a line has neither comment nor blanks around it and is not empty.
std::optional<ScenarioEvent> parseLine(const QString &line)
{
    static const QRegularExpression blanks(u"[ \\t]+"_s);
    const QStringList words = line.split(blanks);
    const std::optional<qint64> at = milliseconds(words[0]);
    if (!at || words.size() < 3 || line != printable(line, u"\t"_s))
        return std::nullopt;
    ScenarioEvent event;
    event.atMs = *at;
    bool good = true;
    if (words[1] == "send"_L1) {
        event.kind = ScenarioEvent::Kind::Send;
        // As it stands, with the blanks inside it.
        event.text = line.section(blanks, 2);
    } else {
        good = words[1] == "link"_L1 ? parseLink(words, &event) : parseSwitch(words, &event);
    }
    return good ? std::optional(event) : std::nullopt;
}

} // namespace

Scenario::Result Scenario::read(QIODevice &device, const QString &name)
{
    Result result;
    QList<ScenarioEvent> &events = result.scenario.events;
    for (int number = 1;; ++number) {
        // Room for a terminator, which some versions of the library count in.
        const QByteArray raw = device.readLine(MaxLineBytes + 2);
        // A pipe says that it is at its end before it has been read, so only an empty line tells.
        if (raw.isEmpty() && device.atEnd())
            break;
        if (raw.isEmpty())
            return {{}, u"%1: %2"_s.arg(name, device.errorString())};
        const bool tooMuch = raw.size() > MaxLineBytes || number > MaxLines;
        const QString text = QString::fromUtf8(raw).trimmed();
        const QString line = text.section(u'#', 0, 0).trimmed();
        if (line.isEmpty() && !tooMuch)
            continue;
        const std::optional<ScenarioEvent> event = tooMuch ? std::nullopt : parseLine(line);
        if (!event) {
            return {
                {},
                u"%1:%2: not an event: %3"_s.arg(name, QString::number(number), printable(text.left(200)))};
        }
        events.append(*event);
    }
    std::stable_sort(events.begin(), events.end(),
                     [](const ScenarioEvent &a, const ScenarioEvent &b) { return a.atMs < b.atMs; });
    return result;
}

Scenario::Result Scenario::readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, u"%1: %2"_s.arg(path, file.errorString())};
    return read(file, path);
}
