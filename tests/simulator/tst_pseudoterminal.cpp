#include "simulator/pseudoterminal.h"

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
        // Spoken before anybody listens: neither lost nor echoed back.
        QVERIFY(terminal.write(all));

        QSerialPort port(terminal.path());
        QVERIFY(port.open(QIODevice::ReadWrite));
        QTRY_COMPARE(port.bytesAvailable(), 256);
        QCOMPARE(port.readAll(), all);
        QCOMPARE(heard, QByteArray());
        port.write(all);
        QTRY_COMPARE(heard, all);
    }

    void linkReplacesOnlyWhatADeadTerminalLeft_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("opens");
        QTest::newRow("nothing there") << QString() << true;
        QTest::newRow("terminal is gone") << u"/dev/pts/987654"_s << true;
        QTest::newRow("link to a file") << u"/etc/hostname"_s << false;
        QTest::newRow("dangling link of somebody else") << u"/nowhere/at/all"_s << false;
        QTest::newRow("file") << u"-"_s << false;
    }

    void linkReplacesOnlyWhatADeadTerminalLeft()
    {
        QFETCH(QString, target);
        QFETCH(bool, opens);
        QFile file(m_link);
        file.remove();
        if (target == u"-"_s)
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("kept") == 4);
        else if (!target.isEmpty())
            QVERIFY(QFile::link(target, m_link));
        file.close();

        PseudoTerminal terminal;
        QCOMPARE(terminal.open(m_link), opens);
        QCOMPARE(terminal.isOpen(), opens);
        QCOMPARE(terminal.errorString().isEmpty(), opens);
        if (opens) {
            QCOMPARE(QFileInfo(m_link).symLinkTarget(), terminal.devicePath());
            PseudoTerminal second;
            QVERIFY(!second.open(m_link));
            terminal.close();
            QVERIFY(!QFileInfo(m_link).isSymLink());
        } else if (target == u"-"_s) {
            QCOMPARE(file.size(), 4);
        } else {
            QCOMPARE(QFileInfo(m_link).symLinkTarget(), target);
        }
        QFile::remove(m_link);
    }

    void closingHangsUpAndTheSameLinkComesBack()
    {
        PseudoTerminal terminal;
        QSignalSpy heard(&terminal, &PseudoTerminal::received);
        QVERIFY(terminal.open(m_link));
        QSerialPort port(m_link);
        for (int round = 0; round < 3; ++round) {
            QVERIFY(port.open(QIODevice::ReadWrite));
            QSignalSpy errors(&port, &QSerialPort::errorOccurred);
            terminal.close();
            QVERIFY(!QFile::exists(m_link));
            QTRY_VERIFY(!errors.isEmpty());
            port.close();
            QVERIFY(terminal.open(m_link));
        }
        QVERIFY(port.open(QIODevice::ReadWrite));
        port.write("{whois}");
        QTRY_COMPARE(heard.size(), 1);
    }

    void aListenerMayCloseTheTerminal()
    {
        PseudoTerminal terminal;
        connect(&terminal, &PseudoTerminal::received, &terminal, &PseudoTerminal::close);
        QVERIFY(terminal.open());
        QSerialPort port(terminal.path());
        QVERIFY(port.open(QIODevice::ReadWrite));
        port.write("x");
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
        QCOMPARE(heard, message.repeated(3000 - int(terminal.droppedMessages())));
    }

    void descriptorsAreGivenBack()
    {
        PseudoTerminal terminal;
        QVERIFY(terminal.open(m_link));
        const qsizetype before = openDescriptors();
        for (int round = 0; round < 1000; ++round) {
            terminal.close();
            QVERIFY(terminal.open(m_link));
        }
        QCOMPARE(openDescriptors(), before);
    }
};

QTEST_GUILESS_MAIN(TestPseudoTerminal)
#include "tst_pseudoterminal.moc"
