#include "simulator/instrument.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// The clock runs from the instrument's own start, which is over before anybody can ask.
constexpr qint64 StartUpMs = 5000;
constexpr double MaxGridMa = 15.0;
constexpr qsizetype MaxTextLength = 100;

constexpr int EmptyReading = 40;
constexpr int CoveredReading = 20;
/// Far from the 34 that lies between the two.
constexpr int NoiseAmplitude = 3;

/// Of a sensor without a lane: no news.
constexpr int NoReading = 0;

/// What the maker's tool may set; anything beyond is brought to the nearest limit.
constexpr double TrimLowest = 0.5;
constexpr double TrimHighest = 2.0;
constexpr double FullCurrentLowestMa = 1.0;
constexpr double FullCurrentHighestMa = 20.0;

QString hexadecimal(qint64 value)
{
    return QString::number(value, 16).toUpper();
}

} // namespace

Instrument::Instrument(const InstrumentOptions &options)
    : m_serialNumber(options.serialNumber)
    , m_firmware(options.firmware)
    , m_scenario(options.scenario)
    , m_powered(options.powered)
    , m_clockMs(StartUpMs)
{
    std::mt19937 seeds(options.seed);
    for (int lane = 0; lane < LaneCount; ++lane)
        m_animals.emplace_back(quint32(seeds()));
    m_noise.seed(seeds());
}

Instrument::Reply Instrument::handle(const QString &message)
{
    const QString command = unescaped(message);
    // The keep-alive comes without braces, so several run together until the next frame.
    const bool keepAlive = command == "ping"_L1 || command.count(u'p') == command.size();
    if (keepAlive)
        return {Outcome::Swallowed, {}};
    const qsizetype equals = command.indexOf(u'=');
    if (equals < 0)
        return request(command);
    return {assign(command.left(equals), command.mid(equals + 1)) ? Outcome::Obeyed : Outcome::Ignored, {}};
}

Instrument::Reply Instrument::request(const QString &name)
{
    if (name == "whois"_L1)
        return {Outcome::Obeyed, u"iamspinbar"_s};
    if (name == "sn"_L1)
        return {Outcome::Obeyed, u"sn=%1"_s.arg(m_serialNumber)};
    if (name == "version"_L1)
        return {Outcome::Obeyed, u"version=%1"_s.arg(m_firmware)};
    if (name == "getSettings"_L1) {
        return {Outcome::Obeyed, u"MCC:%1,MAC:%2,MDC:%3,CUR:%4"_s.arg(m_trim.speed)
                                     .arg(m_trim.acceleration)
                                     .arg(m_trim.deceleration)
                                     .arg(m_fullCurrentMa)};
    }
    if (name == "statusOn"_L1)
        m_reporting = true;
    else if (name == "off"_L1)
        m_gridMa = 0.0;
    else if (name == "stop"_L1)
        stop();
    else
        return {Outcome::Ignored, {}};
    return {Outcome::Obeyed, {}};
}

bool Instrument::assign(const QString &name, const QString &value)
{
    if (name == "writesn"_L1) {
        if (!isGoodText(value))
            return false;
        m_serialNumber = value;
        return true;
    }
    if (name == "irmode"_L1) {
        if (value != "r"_L1 && value != "m"_L1)
            return false;
        setMice(value == "m"_L1);
        return true;
    }
    bool ok = false;
    const double number = value.toDouble(&ok);
    return ok && std::isfinite(number) && assignNumber(name, number);
}

bool Instrument::assignNumber(const QString &name, double value)
{
    const double trim = std::clamp(value, TrimLowest, TrimHighest);
    if (name == "rotate"_L1)
        m_drum.command(value);
    else if (name == "grid"_L1)
        m_gridMa = std::clamp(value, 0.0, MaxGridMa);
    else if (name == "setMotorCoeff"_L1)
        m_trim.speed = trim;
    else if (name == "setMotorAcc"_L1)
        m_trim.acceleration = trim;
    else if (name == "setMotorDec"_L1)
        m_trim.deceleration = trim;
    else if (name == "setCurrentCoeff"_L1)
        m_fullCurrentMa = std::clamp(value, FullCurrentLowestMa, FullCurrentHighestMa);
    else
        return false;
    m_drum.setTrim(m_trim);
    return true;
}

bool Instrument::isGoodText(const QString &text)
{
    return text.size() <= MaxTextLength && std::none_of(text.begin(), text.end(), [](QChar c) {
               return c.category() == QChar::Other_Control || c == u'{' || c == u'}' || c == u'\\';
           });
}

void Instrument::setMice(bool mice)
{
    if (m_mice == mice)
        return;
    m_mice = mice;
    // Another drum with other animals.
    for (Animal &animal : m_animals)
        animal.leave();
}

void Instrument::stop()
{
    m_reporting = false;
    m_gridMa = 0.0;
    // Its time stands still now, so that there is none left to slow down in.
    m_drum.halt();
}

QStringList Instrument::step()
{
    m_clockMs += StepMs;
    QStringList said;
    if (m_scenario)
        playScenario(&said);
    m_drum.advance(StepMs / 1000.0, m_powered);
    if (!m_scenario)
        stepAnimals();
    said.append(status());
    return said;
}

void Instrument::playScenario(QStringList *said)
{
    const qint64 elapsedMs = m_clockMs - StartUpMs;
    // Ahead of the events, so that even the shortest cut lasts for a step.
    if (m_linkBackAtMs != ScenarioEvent::ForEver && m_linkBackAtMs <= elapsedMs)
        m_linkUp = true;
    const QList<ScenarioEvent> &events = m_scenario->events;
    for (; m_nextEvent < events.size() && events[m_nextEvent].atMs <= elapsedMs; ++m_nextEvent)
        play(events[m_nextEvent], said);
}

void Instrument::play(const ScenarioEvent &event, QStringList *said)
{
    switch (event.kind) {
    case ScenarioEvent::Kind::Lane:
        m_covered[size_t(event.lane)] = event.on;
        break;
    case ScenarioEvent::Kind::Power:
        m_powered = event.on;
        break;
    case ScenarioEvent::Kind::LinkOff:
        // Of cuts that overlap the one that lasts longest counts.
        if (event.durationMs == ScenarioEvent::ForEver)
            m_linkBackAtMs = ScenarioEvent::ForEver;
        else if (m_linkBackAtMs != ScenarioEvent::ForEver)
            m_linkBackAtMs = std::max(m_linkBackAtMs, event.atMs + event.durationMs);
        m_linkUp = false;
        break;
    case ScenarioEvent::Kind::Send:
        said->append(event.text);
        break;
    }
}

void Instrument::stepAnimals()
{
    const double effort = std::min(m_drum.speed() / Drum::MaxSpeed, 1.0);
    for (int lane = 0; lane < lanesInUse(); ++lane) {
        Animal &animal = m_animals[size_t(lane)];
        animal.step(effort);
        m_covered[size_t(lane)] = animal.covers();
    }
}

QString Instrument::status()
{
    // Seven sensors always: a rat drum has its lanes at the last four of them.
    QStringList fields{u"S"_s, m_powered ? u"1"_s : u"0"_s, hexadecimal(std::llround(m_gridMa * 10.0)),
                       hexadecimal(std::llround(m_drum.speed() * 1000.0))};
    const int idle = LaneCount - lanesInUse();
    for (int sensor = 0; sensor < LaneCount; ++sensor) {
        // Drawn for every sensor, so that the noise does not depend on the mode.
        const int noise = int(m_noise() % (2 * NoiseAmplitude + 1)) - NoiseAmplitude;
        const int lane = sensor - idle;
        const bool covered = lane >= 0 && m_covered[size_t(lane)];
        fields.append(hexadecimal(lane < 0 ? NoReading : (covered ? CoveredReading : EmptyReading) + noise));
    }
    fields << hexadecimal(m_drum.counter()) << hexadecimal(m_clockMs);
    return fields.join(u',');
}

QString Instrument::unescaped(const QString &message)
{
    constexpr char16_t EscapeFlip = 0x20;
    QString text;
    text.reserve(message.size());
    for (qsizetype i = 0; i < message.size(); ++i) {
        if (message[i] != u'\\')
            text.append(message[i]);
        else if (++i < message.size())
            text.append(QChar(char16_t(message[i].unicode() ^ EscapeFlip)));
    }
    return text;
}
