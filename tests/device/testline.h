#pragma once

#include "device/serialportmanager.h"
#include "simulator/pseudoterminal.h"

#include <QHash>
#include <QTest>

/// The far end of one serial line: writes down what comes and gives the answers it was told to give.
class TestLine : public QObject
{
public:
    explicit TestLine(const QString &portName)
        : name(portName)
    {
        terminal.open();
        connect(&terminal, &PseudoTerminal::received, this, [this](const QByteArray &bytes) {
            received += bytes;
            unanswered += bytes;
            answerFrames();
        });
    }

    PortInfo info(const QString &description = {}, const QString &manufacturer = {}) const
    {
        return {name, terminal.path(), description, manufacturer};
    }

    bool waitFor(const QByteArray &bytes, int count = 1)
    {
        return QTest::qWaitFor([&] { return received.count(bytes) >= count; });
    }

    QByteArray take() { return std::exchange(received, {}); }

    QString name;
    PseudoTerminal terminal;
    QHash<QByteArray, QByteArray> answers;
    QByteArray received;

private:
    void answerFrames()
    {
        for (qsizetype end = unanswered.indexOf('}'); end >= 0; end = unanswered.indexOf('}')) {
            const QByteArray frame = unanswered.first(end + 1);
            unanswered.remove(0, end + 1);
            if (const QByteArray answer = answers.value(frame); !answer.isEmpty())
                terminal.write(answer);
        }
    }

    QByteArray unanswered;
};

/// Makes the lines of a test all the ports there are; afterwards there are none.
class TestPorts
{
public:
    explicit TestPorts(const QList<PortInfo> &ports = {}) { set(ports); }
    ~TestPorts()
    {
        set({});
        SerialPortManager::instance().closeAll();
    }
    Q_DISABLE_COPY_MOVE(TestPorts)

    void set(const QList<PortInfo> &ports)
    {
        SerialPortManager::instance().setProvider([ports] { return ports; });
    }
};
