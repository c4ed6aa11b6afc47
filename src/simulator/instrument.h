#pragma once

#include "simulator/animal.h"
#include "simulator/drum.h"
#include "simulator/scenario.h"

#include <QStringList>

#include <array>
#include <optional>
#include <random>
#include <vector>

/// What one instrument is made as.
struct InstrumentOptions
{
    /// Empty or "000000" for one fresh from the factory.
    QString serialNumber = QStringLiteral("B42403101");
    QString firmware = QStringLiteral("1.0");
    quint32 seed = 1;
    bool powered = true;
    /// With one, animals, power and line do what it says; without, animals come and fall by themselves.
    std::optional<Scenario> scenario;
};

/// The instrument behind its line: takes messages, answers them, and with each step of 200 ms gives a
/// status message. It knows neither bytes nor the host's time; the same options and the same messages
/// between the same steps give the same answers.
class Instrument
{
public:
    static constexpr int StepMs = 200;
    static constexpr int LaneCount = 7;

    enum class Outcome { Obeyed, Swallowed, Ignored };

    struct Reply
    {
        Outcome outcome = Outcome::Ignored;
        /// Empty if there is none.
        QString answer;
    };

    explicit Instrument(const InstrumentOptions &options = {});

    /// One message as it came out of the stream, escapes included.
    Reply handle(const QString &message);

    /// 200 ms later: what the instrument says, in order, the status message last.
    QStringList step();

    /// True between "statusOn" and "stop"; only then the instrument's time goes on.
    bool isReporting() const { return m_reporting; }
    /// False while a scenario holds the line cut.
    bool isLinkUp() const { return m_linkUp; }
    qint64 clockMs() const { return m_clockMs; }
    const Drum &drum() const { return m_drum; }
    int lanesInUse() const { return m_mice ? LaneCount : RatLaneCount; }
    const QString &serialNumber() const { return m_serialNumber; }

    /// Whether a serial number or version fits into an answer as it stands.
    static bool isGoodText(const QString &text);
    /// A command as the sender meant it: escapes undone, and without the lone backslash that the sender's
    /// encoder puts in front of some closing braces.
    static QString unescaped(const QString &message);

private:
    static constexpr int RatLaneCount = 4;

    Reply request(const QString &name);
    bool assign(const QString &name, const QString &value);
    bool assignNumber(const QString &name, double value);
    void setMice(bool mice);
    void stop();
    void playScenario(QStringList *said);
    void play(const ScenarioEvent &event, QStringList *said);
    void stepAnimals();
    QString status();

    QString m_serialNumber;
    QString m_firmware;
    std::optional<Scenario> m_scenario;
    qsizetype m_nextEvent = 0;
    qint64 m_linkBackAtMs = 0;
    bool m_linkUp = true;
    bool m_reporting = false;
    bool m_powered = true;
    bool m_mice = false;
    qint64 m_clockMs;
    Drum m_drum;
    Drum::Trim m_trim;
    double m_fullCurrentMa = 10.0;
    double m_gridMa = 0.0;
    /// By lane.
    std::array<bool, LaneCount> m_covered{};
    std::vector<Animal> m_animals;
    std::mt19937 m_noise;
};
