#include "simulator/simulatedinstrument.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// No command is anywhere near as long; what comes without an end is noise.
constexpr qsizetype MaxUnfinishedBytes = 65'536;
constexpr double StepNs = Instrument::StepMs * 1e6;

/// A scenario may send broken frames: what brings braces of its own goes out as it stands. No byte of any
/// other message is a special one, so that there is nothing to escape.
QByteArray framed(const QString &message)
{
    const QByteArray bytes = message.toUtf8();
    return bytes.contains('{') || bytes.contains('}') ? bytes : '{' + bytes + '}';
}

} // namespace

SimulatedInstrument::SimulatedInstrument(const SimulatedInstrumentOptions &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_instrument(options.instrument)
    , m_pacer(options.rate > 0 ? std::llround(StepNs / options.rate) : 0)
{
    connect(&m_terminal, &PseudoTerminal::received, this, &SimulatedInstrument::receive);
    connect(&m_pacer, &Pacer::tick, this, &SimulatedInstrument::step);
}

bool SimulatedInstrument::start()
{
    if (!m_options.replayPath.isEmpty() && !m_replay.open(m_options.replayPath))
        m_error = u"%1: %2"_s.arg(m_options.replayPath, m_replay.errorString());
    else if (!m_terminal.open(m_options.linkPath))
        m_error = m_terminal.errorString();
    else
        return true;
    return false;
}

qint64 SimulatedInstrument::clockMs() const
{
    return m_options.replayPath.isEmpty() ? m_instrument.clockMs() : m_replay.clockMs();
}

void SimulatedInstrument::receive(const QByteArray &bytes)
{
    const QStringList messages = m_parser.parseText(QString::fromUtf8(bytes));
    m_unfinishedBytes = messages.isEmpty() ? m_unfinishedBytes + bytes.size() : 0;
    if (m_unfinishedBytes > MaxUnfinishedBytes) {
        m_parser.reset();
        m_unfinishedBytes = 0;
    }
    for (const QString &message : messages) {
        const Instrument::Reply reply = m_instrument.handle(message);
        emit commandReceived(Instrument::unescaped(message), reply.outcome, clockMs());
        if (reply.answer.isEmpty())
            continue;
        emit answered(reply.answer, clockMs());
        send(reply.answer);
    }
    if (!m_instrument.isReporting())
        m_pacer.stop();
    else if (m_options.rate > 0 && !m_replayEnded)
        m_pacer.start();
}

void SimulatedInstrument::step()
{
    if (!m_options.replayPath.isEmpty()) {
        stepReplay();
        return;
    }
    const QStringList said = m_instrument.step();
    followLink();
    for (const QString &message : said)
        send(message);
}

void SimulatedInstrument::stepReplay()
{
    if (m_replayEnded)
        return;
    if (const std::optional<QByteArray> message = m_replay.next()) {
        ++m_replayed;
        m_terminal.write('{' + *message + '}');
        return;
    }
    m_replayEnded = true;
    m_pacer.stop();
    emit replayEnded(m_replayed, m_replay.skippedLines());
}

void SimulatedInstrument::followLink()
{
    if (m_instrument.isLinkUp() == m_terminal.isOpen())
        return;
    if (m_terminal.isOpen()) {
        m_terminal.close();
        emit linkChanged(false, clockMs());
    } else if (m_terminal.open(m_options.linkPath)) {
        m_error.clear();
        m_parser.reset();
        emit linkChanged(true, clockMs());
    } else if (m_error != m_terminal.errorString()) {
        m_error = m_terminal.errorString();
        emit linkFailed(m_error);
    }
}

void SimulatedInstrument::send(const QString &message)
{
    if (m_terminal.isOpen())
        m_terminal.write(framed(message));
}
