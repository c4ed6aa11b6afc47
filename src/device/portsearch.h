#pragma once

#include "device/linewriter.h"
#include "framework/common/connectionhelper.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

class CurlyDevice;
class CurlyMessageParser;
struct PortInfo;

/// Finds the port of one device: opens and greets all candidates together and listens for the right answer.
///
/// A port that stays silent is greeted in every other round. It comes out of its first round without an
/// owner, so that the release at the start of the next one passes it by; the next round claims it and lets it
/// be; only the round after that releases it and greets it anew.
class PortSearch : public QObject
{
    Q_OBJECT

public:
    using Answered = std::function<void(const NamedPort &port)>;

    /// \a answered is called, in a later pass of the event loop, for the first port with the right answer; it
    /// must call end().
    PortSearch(CurlyDevice &device, const Answered &answered);
    ~PortSearch() override;

    /// One round. A \a pinnedNumber of 0 or more leaves the port of that number only.
    void round(const QString &owner, int pinnedNumber);

    /// Releases every port under test but \a kept and forgets them all.
    void end(const QString &owner, const QSerialPort *kept);

private:
    struct Probe
    {
        NamedPort candidate;
        std::unique_ptr<CurlyMessageParser> parser;
    };

    bool isTried(const PortInfo &info, int pinnedNumber) const;
    bool openPort(QSerialPort &port) const;
    void test(const NamedPort &candidate);
    void greet(const NamedPort &to);
    void readAnswer(QSerialPort *port);
    bool isAnswer(const QByteArray &bytes, CurlyMessageParser &parser) const;

    CurlyDevice &m_device;
    Answered m_answered;
    ConnectionHelper m_connections;
    std::vector<Probe> m_probes;
};
