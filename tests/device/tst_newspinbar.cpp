#include "device/newspinbar.h"
#include "testline.h"

#include <QDate>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString joined(const QList<int> &values)
{
    QStringList texts;
    for (const int value : values)
        texts.append(QString::number(value));
    return texts.join(u' ');
}

} // namespace

class TestNewSpinbar : public QObject
{
    Q_OBJECT

private slots:
    void statusTellsInOrder_data()
    {
        QTest::addColumn<bool>("mice");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QStringList>("signalled");
        QTest::addColumn<QString>("state");
        const QString power = u"power"_s;
        QTest::newRow("zero readings are no news")
            << false << u"S,1,0,0,0,0,0,0,0,0,0,0,5,A"_s << QStringList{power, u"rats 40 40 40 40"_s}
            << u"1 5 10"_s;
        QTest::newRow("rats") << false << u"S,0,0,1,2,3,14,28,1F,FFFF,10"_s
                              << QStringList{u"rats 3 20 40 31"_s} << u"0 65535 16"_s;
        QTest::newRow("mice end at the same place")
            << true << u"S,1,x,1,2,3,4,5,6,7,1F,8,9"_s << QStringList{power, u"mice 2 3 4 5 6 7 31"_s}
            << u"1 8 9"_s;
        QTest::newRow("nine fields of mice reach into the head")
            << true << u"S,1,2,3,4,5,6,7,8"_s << QStringList{power, u"mice 40 1 2 3 4 5 6"_s} << u"1 7 8"_s;
        QTest::newRow("eight fields have no readings")
            << false << u"S,1,9,9,9,9,A,B"_s << QStringList{power} << u"1 10 11"_s;
        QTest::newRow("four fields define nothing") << false << u"S,1,A,B"_s << QStringList() << u"0 0 0"_s;
        QTest::newRow("power is exactly 1") << false << u"S,11,0,A,B"_s << QStringList() << u"0 10 11"_s;
        QTest::newRow("bad fields leave what was")
            << false << u"S,1,,-,g1,,zz,99999999999999999,,8000000000000000"_s
            << QStringList{power, u"rats 40 40 40 40"_s} << u"1 0 0"_s;
        QTest::newRow("commas alone")
            << true << u"S,,,,,,,,,,"_s << QStringList{u"mice 40 40 40 40 40 40 40"_s} << u"0 0 0"_s;
    }

    void statusTellsInOrder()
    {
        QFETCH(bool, mice);
        QFETCH(QString, message);
        QFETCH(QStringList, signalled);
        NewSpinbar device;
        device.setRodentMode(mice ? NewSpinbar::Mice : NewSpinbar::Rats);
        QStringList log;
        connect(&device, &NewSpinbar::powerChanged, this, [&log] { log.append(u"power"_s); });
        connect(&device, &NewSpinbar::ratsIR, this,
                [&log](const QList<int> &values) { log.append(u"rats "_s + joined(values)); });
        connect(&device, &NewSpinbar::miceIR, this,
                [&log](const QList<int> &values) { log.append(u"mice "_s + joined(values)); });
        connect(&device, &NewSpinbar::newStatus, this, [&log](const QString &line) { log.append(line); });
        device.onTextMessage(message);
        QCOMPARE(log, signalled << message);
        QTEST(u"%1 %2 %3"_s.arg(int(device.isPowered()))
                  .arg(device.rotationCounter())
                  .arg(device.instrumentClock()),
              "state");
    }

    void readingsAreRememberedByLaneAndMode()
    {
        InstrumentStatus status;
        status.apply(u"S,1,0,0,0,0,0,A,B,C,D,1,2"_s, false);
        status.apply(u"S,1,0,1,2,3,4,5,6,7,1,2"_s, true);
        status.apply(u"S,1,0,0,0,0,0,0,FF,0,0,1,2"_s, false);
        QCOMPARE(status.ratReadings, QList<int>({10, 255, 12, 13}));
        QCOMPARE(status.mouseReadings, QList<int>({1, 2, 3, 4, 5, 6, 7}));
        const InstrumentStatus::Update update = status.apply(u"S,"_s + QString(200'000, u','), false);
        QVERIFY(update.hasReadings && update.powerChanged);
    }

    void answersAskForMore_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("asks");
        QTest::addColumn<QString>("serialNumber");
        QTest::newRow("good serial number")
            << QByteArray("{sn=B42403101}") << u"\\{version\\}"_s << u"B42403101"_s;
        const QString number =
            u"\\{writesn=B4%1[1-9][0-9]{2}\\}"_s.arg(QDate::currentDate().toString(u"yyMM"_s));
        QTest::newRow("blank: zeros") << QByteArray("{sn=000000}") << number << QString();
        QTest::newRow("blank: template") << QByteArray("{sn=yy1234}") << number << QString();
        QTest::newRow("blank: empty") << QByteArray("{sn=}") << number << QString();
        QTest::newRow("zeros and more are a number")
            << QByteArray("{sn=0000001}") << u"\\{version\\}"_s << u"0000001"_s;
    }

    void answersAskForMore()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QString, asks);
        TestLine line(u"COM4"_s);
        line.answers.insert("{whois}", "{iamspinbar}");
        line.answers.insert("{sn}", answer);
        const TestPorts ports({line.info()});
        NewSpinbar device;
        device.start();
        const QRegularExpression pattern(u"^\\{whois\\}\\{sn\\}"_s + asks);
        QVERIFY2(
            QTest::qWaitFor([&] { return pattern.match(QString::fromLatin1(line.received)).hasMatch(); }),
            line.received.constData());
        QTEST(device.serialNumber(), "serialNumber");
    }

    void versionComesInTwoForms()
    {
        NewSpinbar device;
        device.onTextMessage(u"version=1.2"_s);
        QCOMPARE(device.version(), u"1.2"_s);
        device.onTextMessage(u"v=1.3 beta"_s);
        QCOMPARE(device.version(), u"1.3 beta"_s);
        QTest::ignoreMessage(QtInfoMsg, "unparsed msg Version=4");
        device.onTextMessage(u"Version=4"_s);
        QCOMPARE(device.version(), u"1.3 beta"_s);
    }
};

QTEST_GUILESS_MAIN(TestNewSpinbar)
#include "tst_newspinbar.moc"
