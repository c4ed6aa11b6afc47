#pragma once

#include "simulator/instrument.h"
#include "simulator/pacer.h"
#include "simulator/pseudoterminal.h"
#include "simulator/statusreplay.h"

#include "device/curlymessageparser.h"

#include <QObject>

struct SimulatedInstrumentOptions
{
    /// Instead of a rate: time goes on by step() only.
    static constexpr double ByHand = 0.0;

    InstrumentOptions instrument;
    /// Times faster than the real one, 1 to 1000, or ByHand.
    double rate = 1.0;
    /// Where the symbolic link to the terminal stands; empty for none.
    QString linkPath;
    /// A recorded "status.log" whose lines take the place of the instrument's own status; empty for none.
    QString replayPath;
};

/// An instrument on a pseudo-terminal, for the simulator program and for tests in need of one.
class SimulatedInstrument : public QObject
{
    Q_OBJECT

public:
    explicit SimulatedInstrument(const SimulatedInstrumentOptions &options = {}, QObject *parent = nullptr);

    /// Opens the replay, if there is one, and the terminal. On failure errorString() tells why.
    bool start();
    QString errorString() const { return m_error; }

    /// What a program opens as the serial port; empty while the line is cut.
    QString path() const { return m_terminal.path(); }
    qint64 clockMs() const;
    const Instrument &instrument() const { return m_instrument; }
    const PseudoTerminal &terminal() const { return m_terminal; }

    /// 200 ms of the instrument's time; sends a status message if the line is up.
    void step();

signals:
    /// Each message that came, escapes undone, with the instrument's clock; keep-alives too.
    void commandReceived(const QString &command, Instrument::Outcome outcome, qint64 clockMs);
    void answered(const QString &answer, qint64 clockMs);
    void linkChanged(bool up, qint64 clockMs);
    /// The line could not come back; it is tried again with each step.
    void linkFailed(const QString &error);
    void replayEnded(qint64 messages, qint64 skippedLines);

private:
    void receive(const QByteArray &bytes);
    void stepReplay();
    void followLink();
    void send(const QString &message);

    SimulatedInstrumentOptions m_options;
    Instrument m_instrument;
    StatusReplay m_replay;
    qint64 m_replayed = 0;
    bool m_replayEnded = false;
    CurlyMessageParser m_parser;
    qsizetype m_unfinishedBytes = 0;
    Pacer m_pacer;
    PseudoTerminal m_terminal;
    QString m_error;
};
