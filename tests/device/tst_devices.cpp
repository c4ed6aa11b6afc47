#include "device/curlyshelterdevice.h"
#include "device/devicetypes.h"
#include "device/newspinbar.h"
#include "device/oldspinbar.h"

#include "rows.h"
#include "testline.h"

#include <QDate>
#include <QRegularExpression>
#include <QSignalSpy>

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

class TestDevices : public QObject
{
    Q_OBJECT

private slots:
    void statusTellsInOrder_data()
    {
        const auto row =
            columns<bool, QString, QStringList, QString>("mice", "message", "signalled", "state");
        const QString power = u"power"_s;
        row("zero readings are no news", false, u"S,1,0,0,0,0,0,0,0,0,0,0,5,A"_s,
            {power, u"rats 40 40 40 40"_s}, u"1 5 10"_s);
        row("rats", false, u"S,0,0,1,2,3,14,28,1F,FFFF,10"_s, {u"rats 3 20 40 31"_s}, u"0 65535 16"_s);
        row("mice end at the same place", true, u"S,1,x,1,2,3,4,5,6,7,1F,8,9"_s,
            {power, u"mice 2 3 4 5 6 7 31"_s}, u"1 8 9"_s);
        row("nine fields of mice reach into the head", true, u"S,1,2,3,4,5,6,7,8"_s,
            {power, u"mice 40 1 2 3 4 5 6"_s}, u"1 7 8"_s);
        row("eight fields have no readings", false, u"S,1,9,9,9,9,A,B"_s, {power}, u"1 10 11"_s);
        row("four fields define nothing", false, u"S,1,A,B"_s, {}, u"0 0 0"_s);
        row("power is exactly 1", false, u"S,11,0,A,B"_s, {}, u"0 10 11"_s);
        row("bad fields leave what was", false, u"S,1,,-,g1,,zz,99999999999999999,,8000000000000000"_s,
            {power, u"rats 40 40 40 40"_s}, u"1 0 0"_s);
        row("commas alone", true, u"S,,,,,,,,,,"_s, {u"mice 40 40 40 40 40 40 40"_s}, u"0 0 0"_s);
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
        const auto row =
            columns<bool, QByteArray, QString, QString>("shelter", "answer", "asks", "serialNumber");
        const QString version = u"\\{version\\}"_s;
        const QString month = QDate::currentDate().toString(u"yyMM"_s);
        const QString number = u"\\{writesn=%1%2[1-9][0-9]{2}\\}"_s;
        row("good serial number", false, "{sn=B42403101}", version, u"B42403101"_s);
        row("blank: zeros", false, "{sn=000000}", number.arg(u"B4"_s, month), {});
        row("blank: template", false, "{sn=yy1234}", number.arg(u"B4"_s, month), {});
        row("blank: empty", false, "{sn=}", number.arg(u"B4"_s, month), {});
        row("zeros and more are a number", false, "{sn=0000001}", version, u"0000001"_s);
        row("cut and begun anew", true, "{sn=S4{version={S,1,2}{\xFF}\n{sn=7}", version + version, u"7"_s);
        row("blank shelter", true, "{sn=yy}", number.arg(u"S4"_s, month), {});
    }

    void answersAskForMore()
    {
        QFETCH(bool, shelter);
        QFETCH(QByteArray, answer);
        QFETCH(QString, asks);
        TestLine line(u"COM4"_s);
        line.answers.insert("{whois}", shelter ? "{iamspinbar}{iamshelter}" : "{iamspinbar}");
        line.answers.insert("{sn}", answer);
        const TestPorts ports({line.info()});
        std::unique_ptr<CurlyDevice> device = std::make_unique<NewSpinbar>();
        if (shelter)
            device = std::make_unique<CurlyShelterDevice>();
        device->start();
        // The second greeting falls where it likes on a busy machine.
        const QRegularExpression pattern(u"^\\{sn\\}"_s + asks);
        const auto asked = [&line] { return QString::fromLatin1(line.received).remove(u"{whois}"_s); };
        QVERIFY2(QTest::qWaitFor([&] { return pattern.match(asked()).hasMatch(); }),
                 line.received.constData());
        QTEST(device->serialNumber(), "serialNumber");
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

    void typesAreKnownByName()
    {
        DeviceTypes::registerAll();
        for (const char *type : {"OldSpinbar", "CurlyShelterDevice", "ShelterBaseDevice::ShelterAction",
                                 "ShelterBaseDevice::ShelterSide", "ShelterBaseDevice::ShelterSideness"})
            QVERIFY2(QMetaType::fromName(type).isValid(), type);
        QCOMPARE(CurlyShelterDevice().deviceType(), u"Shelter"_s);
    }

    void shelterIsDeafToAllElse()
    {
        CurlyShelterDevice device;
        device.setObjectName(u"Left box"_s);
        QCOMPARE(device.deviceType(), u"Left box"_s);
        device.onTextMessage(u"v=1.4"_s);
        QTest::ignoreMessage(QtInfoMsg, "Status S,1,zz,99999999999999999999");
        for (const QString &message :
             {u"S,1,zz,99999999999999999999"_s, u"SN=4"_s, u"R,1"_s, QString(100'000, u'=')})
            device.onTextMessage(message);
        QCOMPARE(device.version(), u"1.4"_s);
        QCOMPARE(device.serialNumber(), QString());
    }

    void legacyIsFoundByItsBytes()
    {
        const auto hex = [](const char *text) { return QByteArray::fromHex(text); };
        TestLine line(u"COM1"_s);
        // An adapter that the text devices pass by.
        const TestPorts ports({line.info({}, u"FTDI"_s)});
        OldSpinbar device;
        QSignalSpy status(&device, &CurlySpinbarDevice::newStatus);
        device.start();
        QVERIFY(line.waitFor(hex("7BF1000F7D")));
        const QSerialPort *port = SerialPortManager::instance().acquirePort(u"COM1"_s, u"OldSpinbar"_s);
        QCOMPARE(port->baudRate(), 125000);
        QCOMPARE(port->parity(), QSerialPort::EvenParity);
        QCOMPARE(port->dataBits(), QSerialPort::Data8);
        QCOMPARE(port->stopBits(), QSerialPort::OneStop);
        QVERIFY(device.checkBinaryGreeting(hex("7BF1000F7D00")) && device.checkBinaryGreeting(hex("7BF1")));
        QVERIFY(!device.checkBinaryGreeting({}));
        // Each chunk is tested by itself.
        QSignalSpy read(port, &QSerialPort::readyRead);
        for (const char *refused : {"7B", "F17D", "7B7D", "7BF0F17D", "007BF17D", "7B5C"}) {
            line.terminal.write(hex(refused));
            QVERIFY(read.wait());
            QVERIFY2(!device.isConnected(), refused);
        }
        line.terminal.write(hex("7B5CD17D"));
        QTRY_VERIFY(device.isConnected());
        QTest::ignoreMessage(QtInfoMsg, "OLD SPB ");
        line.terminal.write("noise{S,1,0,0,5,A}");
        QVERIFY(read.wait());
        QTest::ignoreMessage(QtInfoMsg, "CANNOT USE STRING PARSE IN OLD SPINBAR");
        device.onTextMessage(u"S,1,0,0,5,A"_s);
        device.connectionTimerHandler();
        device.exchangeTimerHandler();
        QVERIFY(line.waitFor("{version}"));
        QCOMPARE(status.count(), 0);
        QVERIFY(!device.isPowered() && device.serialNumber().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestDevices)
#include "tst_devices.moc"
