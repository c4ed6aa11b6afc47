#include "simulator/pseudoterminal.h"

#include "files.h"

#include "device/serialports.h"

#include <QFile>
#include <QFileInfo>
#include <QSerialPort>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

qsizetype openDescriptors()
{
    return QDir(u"/proc/self/fd"_s).entryList(QDir::System | QDir::Files).size();
}

} // namespace

class TestPseudoTerminal : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_link = m_folder.filePath(u"instrument"_s);

private slots:
    void bothSidesHearEachOtherUnchanged()
    {
        PseudoTerminal terminal;
        QByteArray heard;
        connect(&terminal, &PseudoTerminal::received, this, [&](const QByteArray &bytes) { heard += bytes; });
        QVERIFY2(terminal.open(m_link), qPrintable(terminal.errorString()));
        QByteArray all;
        for (int value = 0; value < 256; ++value)
            all.append(char(value));
        // Spoken before anybody listens: not echoed back, whether Qt drops it when it opens the port or not.
        QVERIFY(terminal.write("early"));

        QSerialPort port(terminal.path());
        QVERIFY(port.open(QIODevice::ReadWrite));
        QVERIFY(terminal.write(all));
        QTRY_VERIFY(port.bytesAvailable() >= all.size());
        QCOMPARE(port.readAll().right(all.size()), all);
        QCOMPARE(heard, QByteArray());
        port.write(all);
        QTRY_COMPARE(heard, all);
    }

    void linkReplacesOnlyWhatADeadTerminalLeft()
    {
        QVERIFY(QFile::link(u"/dev/pts/987654"_s, m_link));
        {
            PseudoTerminal terminal;
            QVERIFY2(terminal.open(m_link), qPrintable(terminal.errorString()));
            QCOMPARE(QFileInfo(m_link).symLinkTarget(), terminal.devicePath());
            QVERIFY(!PseudoTerminal().open(m_link));
        }
        QVERIFY(!QFileInfo(m_link).isSymLink());
        PseudoTerminal refused;
        for (const QString &target : {u"/etc/hostname"_s, u"/nowhere/at/all"_s}) {
            QVERIFY(QFile::link(target, m_link));
            QVERIFY(!refused.open(m_link) && !refused.isOpen() && !refused.errorString().isEmpty());
            QCOMPARE(QFileInfo(m_link).symLinkTarget(), target);
            QVERIFY(QFile::remove(m_link));
        }
        QVERIFY(writeFile(m_link, "kept"));
        QVERIFY(!refused.open(m_link));
        QCOMPARE(contents(m_link), "kept");
        QVERIFY(QFile::remove(m_link));
    }

    void closingHangsUpAndTheSameLinkComesBack()
    {
        PseudoTerminal terminal;
        QVERIFY(terminal.open(m_link));
        const qsizetype descriptors = openDescriptors();
        QSerialPort port(m_link);
        for (int round = 0; round < 3; ++round) {
            QVERIFY(port.open(QIODevice::ReadWrite));
            terminal.close();
            QVERIFY(!QFile::exists(m_link));
            QVERIFY(SerialPorts::hasHungUp(port));
            port.close();
            QVERIFY(terminal.open(m_link));
        }
        QCOMPARE(openDescriptors(), descriptors);
        // A listener may close the terminal.
        connect(&terminal, &PseudoTerminal::received, &terminal, &PseudoTerminal::close);
        QVERIFY(port.open(QIODevice::ReadWrite));
        port.write("{whois}");
        QTRY_VERIFY(!terminal.isOpen());
    }

    void unreadMessagesAreDroppedWhole()
    {
        PseudoTerminal terminal;
        QVERIFY(terminal.open());
        const QByteArray message = '{' + QByteArray(1000, 'x') + '}';
        int taken = 0;
        for (int i = 0; i < 3000; ++i)
            taken += terminal.write(message) ? 1 : 0;
        QVERIFY(terminal.droppedMessages() > 0);
        QCOMPARE(terminal.droppedMessages(), 3000 - taken);
        // Given up on after a while, so that a program that comes later is not fed with old messages.
        QTRY_VERIFY(terminal.droppedMessages() > 2900);

        QSerialPort port(terminal.path());
        QVERIFY(port.open(QIODevice::ReadWrite));
        QByteArray heard;
        connect(&port, &QSerialPort::readyRead, this, [&] { heard += port.readAll(); });
        QVERIFY(terminal.write("{last}"));
        QTRY_VERIFY(heard.endsWith("{last}"));
        heard.chop(6);
        // Newer versions of Qt drop what waits when they open a port.
        const qsizetype whole = heard.size() / message.size();
        QVERIFY(whole <= 3000 - terminal.droppedMessages());
        QCOMPARE(heard.right(whole * message.size()), message.repeated(whole));
    }
};

QTEST_GUILESS_MAIN(TestPseudoTerminal)
#include "tst_pseudoterminal.moc"
