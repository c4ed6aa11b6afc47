#include "device/curlycodec.h"

#include <QTest>

using namespace CurlyCodec;

class TestCurlyCodec : public QObject
{
    Q_OBJECT

private slots:
    void encodesFrames_data()
    {
        QTest::addColumn<QByteArray>("payload");
        QTest::addColumn<bool>("framed");
        QTest::addColumn<bool>("withChecksum");
        QTest::addColumn<QByteArray>("frame");
        const auto hex = [](const char *text) { return QByteArray::fromHex(text); };
        QTest::newRow("plain text") << QByteArray("sn") << true << false << QByteArray("{sn}");
        QTest::newRow("keep-alive without braces") << QByteArray("p") << false << false << hex("70");
        QTest::newRow("binary greeting") << hex("F1000F") << true << false << hex("7BF1000F7D");
        QTest::newRow("nothing to say") << QByteArray() << true << false << QByteArray("{}");
        QTest::newRow("all specials are escaped")
            << QByteArray("\\{}") << true << false << hex("7B5C7C5C5B5C5D7D");
        QTest::newRow("sum A4: checksum 5C escapes in vain") << hex("A4") << true << false << hex("7BA45C7D");
        QTest::newRow("sum 85: checksum 7B") << hex("8005") << true << false << hex("7B80055C7D");
        QTest::newRow("sum 83: checksum 7D") << hex("80FF04") << true << false << hex("7B80FF045C7D");
        QTest::newRow("checksum brings the sum to zero") << hex("F100") << true << true << hex("7BF1000F7D");
        QTest::newRow("special checksum is escaped") << hex("85") << true << true << hex("7B855C5B7D");
        QTest::newRow("longest payload") << QByteArray(127, 'a') << false << false << QByteArray(127, 'a');
        QTest::newRow("too long for a frame") << QByteArray(128, 'a') << true << false << QByteArray();
    }

    void encodesFrames()
    {
        QFETCH(QByteArray, payload);
        QFETCH(bool, framed);
        QFETCH(bool, withChecksum);
        QTEST(encodeFrame(payload, framed, withChecksum), "frame");
    }

    void decodesFrames_data()
    {
        QTest::addColumn<QByteArray>("frame");
        QTest::addColumn<QByteArray>("payload");
        QTest::newRow("empty") << QByteArray() << QByteArray();
        QTest::newRow("a lone brace is too short") << QByteArray("{") << QByteArray();
        QTest::newRow("no opening brace") << QByteArray("sn}") << QByteArray();
        QTest::newRow("empty frame") << QByteArray("{}") << QByteArray();
        QTest::newRow("text") << QByteArray("{sn}") << QByteArray("sn");
        QTest::newRow("escape") << QByteArray::fromHex("7B5CD17D") << QByteArray::fromHex("F1");
        QTest::newRow("escape at the very end") << QByteArray("{a\\") << QByteArray("a");
        QTest::newRow("escaped closing brace value") << QByteArray("{\\}b") << QByteArray("]b");
        QTest::newRow("closing braces anywhere") << QByteArray("{}a}b{c") << QByteArray("ab{c");
    }

    void decodesFrames()
    {
        QFETCH(QByteArray, frame);
        QTEST(decodeFrame(frame), "payload");
    }
};

QTEST_GUILESS_MAIN(TestCurlyCodec)
#include "tst_curlycodec.moc"
