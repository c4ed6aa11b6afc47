#include "device/curlyshelterdevice.h"
#include "device/devicetypes.h"
#include "device/oldspinbar.h"
#include "testline.h"

#include <QDate>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

/// The devices that the application knows and does not create.
class TestOtherDevices : public QObject
{
    Q_OBJECT

private slots:
    void typesAreMadeByName_data()
    {
        DeviceTypes::registerAll();
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QString>("deviceType");
        QTest::newRow("legacy") << QByteArray("OldSpinbar") << u"OldSpinbar"_s;
        QTest::newRow("shelter") << QByteArray("CurlyShelterDevice") << u"Shelter"_s;
    }

    void typesAreMadeByName()
    {
        QFETCH(QByteArray, type);
        const QMetaType meta = QMetaType::fromName(type);
        QVERIFY(meta.isValid());
        void *made = meta.create();
        QVERIFY(made);
        const auto *device = static_cast<CurlyDevice *>(made);
        QCOMPARE(device->metaObject()->className(), type.constData());
        QTEST(device->deviceType(), "deviceType");
        meta.destroy(made);
    }

    void shelterWordsAreKnownByName()
    {
        for (const auto &[type, words] :
             {std::pair{"ShelterBaseDevice::ShelterAction", u"Curcuit Light Sound"_s},
              {"ShelterBaseDevice::ShelterSide", u"Both Left Right"_s},
              {"ShelterBaseDevice::ShelterSideness", u"LeftSide RightSide"_s}}) {
            const QMetaType meta = QMetaType::fromName(type);
            QVERIFY2(meta.isValid() && meta.metaObject(), type);
            const QByteArray name = QByteArray(type).mid(QByteArray(type).indexOf("::") + 2);
            const QMetaEnum declared =
                meta.metaObject()->enumerator(meta.metaObject()->indexOfEnumerator(name));
            QStringList keys;
            for (int i = 0; i < declared.keyCount(); ++i)
                keys.append(QString::fromLatin1(declared.key(i)));
            QCOMPARE(keys.join(u' '), words);
        }
    }

    void shelterSaysWhoItIs_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("asks");
        QTest::addColumn<QString>("serialNumber");
        const QString month = QDate::currentDate().toString(u"yyMM"_s);
        const QString number = u"\\{writesn=S4%1[1-9][0-9]{2}\\}"_s.arg(month);
        QTest::newRow("good") << QByteArray("{sn=S42403101}") << u"\\{version\\}"_s << u"S42403101"_s;
        QTest::newRow("blank") << QByteArray("{sn=yy}") << number << QString();
        QTest::newRow("cut and begun anew") << QByteArray("{sn=S4{version={S,1,2}{\xFF}\n{sn=7}")
                                            << u"\\{version\\}\\{version\\}"_s << u"7"_s;
    }

    void shelterSaysWhoItIs()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QString, asks);
        TestLine line(u"COM4"_s);
        line.answers.insert("{whois}", "{iamspinbar}{iamshelter}");
        line.answers.insert("{sn}", answer);
        const TestPorts ports({line.info()});
        CurlyShelterDevice device;
        device.start();
        // The second greeting falls where it likes on a busy machine.
        const QRegularExpression pattern(u"^\\{sn\\}"_s + asks);
        const auto asked = [&line] { return QString::fromLatin1(line.received).remove(u"{whois}"_s); };
        QVERIFY2(QTest::qWaitFor([&] { return pattern.match(asked()).hasMatch(); }),
                 line.received.constData());
        QTEST(device.serialNumber(), "serialNumber");
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

    void legacyAnswers_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("plain") << QByteArray::fromHex("7BF17D") << true;
        QTest::newRow("escaped") << QByteArray::fromHex("7B5CD17D") << true;
        QTest::newRow("with more behind it") << QByteArray::fromHex("7BF1000F7D00") << true;
        QTest::newRow("without the closing brace") << QByteArray::fromHex("7BF1") << true;
        QTest::newRow("empty frame") << QByteArray::fromHex("7B7D") << false;
        QTest::newRow("without the opening brace") << QByteArray::fromHex("F17D") << false;
        QTest::newRow("noise in front") << QByteArray::fromHex("007BF17D") << false;
        QTest::newRow("another first byte") << QByteArray::fromHex("7BF0F17D") << false;
        QTest::newRow("escape at the end") << QByteArray::fromHex("7B5C") << false;
        QTest::newRow("nothing") << QByteArray() << false;
        QTest::newRow("flood") << QByteArray(1'000'000, '{') << false;
    }

    void legacyAnswers()
    {
        QFETCH(QByteArray, bytes);
        QLoggingCategory::setFilterRules(u"spinbar.link=false"_s);
        QTEST(OldSpinbar().checkBinaryGreeting(bytes), "accepted");
        QLoggingCategory::setFilterRules({});
    }

    void legacyIsFoundByItsBytes()
    {
        TestLine line(u"COM1"_s);
        line.answers.insert(QByteArray::fromHex("7BF1000F7D"), QByteArray::fromHex("7BF1017D"));
        // An adapter that the text devices pass by.
        const TestPorts ports({line.info({}, u"FTDI"_s)});
        OldSpinbar device;
        QSignalSpy status(&device, &CurlySpinbarDevice::newStatus);
        device.start();
        QTRY_VERIFY(device.isConnected());
        const QSerialPort *port = SerialPortManager::instance().acquirePort(u"COM1"_s, u"OldSpinbar"_s);
        QCOMPARE(port->baudRate(), 125000);
        QCOMPARE(port->parity(), QSerialPort::EvenParity);
        QCOMPARE(port->dataBits(), QSerialPort::Data8);
        QCOMPARE(port->stopBits(), QSerialPort::OneStop);
        QTest::ignoreMessage(QtInfoMsg, "OLD SPB ");
        line.terminal.write("noise{S,1,0,0,5,A");
        line.terminal.write("}");
        QSignalSpy read(port, &QSerialPort::readyRead);
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

QTEST_GUILESS_MAIN(TestOtherDevices)
#include "tst_otherdevices.moc"
