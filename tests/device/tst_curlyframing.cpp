#include "device/curlycodec.h"
#include "device/curlymessageparser.h"

#include "rows.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace CurlyCodec;

class TestCurlyFraming : public QObject
{
    Q_OBJECT

private slots:
    void encodesFrames_data()
    {
        const auto row =
            columns<QByteArray, bool, bool, QByteArray>("payload", "framed", "withChecksum", "frame");
        const auto hex = [](const char *text) { return QByteArray::fromHex(text); };
        row("plain text", "sn", true, false, "{sn}");
        row("keep-alive without braces", "p", false, false, "p");
        row("binary greeting", hex("F1000F"), true, false, hex("7BF1000F7D"));
        row("nothing to say", "", true, false, "{}");
        row("all specials are escaped", "\\{}", true, false, hex("7B5C7C5C5B5C5D7D"));
        row("sum A4: checksum 5C escapes in vain", hex("A4"), true, false, hex("7BA45C7D"));
        row("sum 85: checksum 7B", hex("8005"), true, false, hex("7B80055C7D"));
        row("sum 83: checksum 7D", hex("80FF04"), true, false, hex("7B80FF045C7D"));
        row("checksum brings the sum to zero", hex("F100"), true, true, hex("7BF1000F7D"));
        row("special checksum is escaped", hex("85"), true, true, hex("7B855C5B7D"));
        row("longest payload", QByteArray(127, 'a'), false, false, QByteArray(127, 'a'));
        row("too long for a frame", QByteArray(128, 'a'), true, false, {});
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
        const auto row = columns<QByteArray, QByteArray>("frame", "payload");
        row("a lone brace is too short", "{", {});
        row("no opening brace", "sn}", {});
        row("empty frame", "{}", {});
        row("text", "{sn}", "sn");
        row("escape", QByteArray::fromHex("7B5CD17D"), QByteArray::fromHex("F1"));
        row("escape at the very end", "{a\\", "a");
        row("escaped closing brace value", "{\\}b", "]b");
        row("closing braces anywhere", "{}a}b{c", "ab{c");
    }

    void decodesFrames()
    {
        QFETCH(QByteArray, frame);
        QTEST(decodeFrame(frame), "payload");
    }

    void cutsText_data()
    {
        const auto row = columns<QString, QStringList>("text", "messages");
        row("two frames in order", u"{sn=123}{version=4}"_s, {u"sn=123"_s, u"version=4"_s});
        row("braces alone", u"}}}{{{"_s, {});
        row("trimmed, on the line feed", u" {  S,1,2 \n"_s, {u"S,1,2"_s});
        row("carriage return goes with the blanks", u"sn=1\r\nsn=2\r\n"_s, {u"sn=1"_s, u"sn=2"_s});
        row("opening brace ends what stood before it", u"noise{sn}"_s, {u"noise"_s, u"sn"_s});
        row("escapes stay", u"{a\\]b}"_s, {u"a\\]b"_s});
        row("unfinished", u"{sn=1"_s, {});
        row("blanks only", u"{ \t }\n"_s, {});
    }

    // Where a message is split between chunks changes nothing.
    void cutsText()
    {
        QFETCH(QString, text);
        for (qsizetype split = 0; split <= text.size(); ++split) {
            CurlyMessageParser parser;
            QSignalSpy emitted(&parser, &CurlyMessageParser::messageReceived);
            QStringList messages = parser.parseText(text.first(split));
            messages += parser.parseText(text.sliced(split));
            QTEST(messages, "messages");
            QCOMPARE(emitted.size(), messages.size());
            for (qsizetype i = 0; i < messages.size(); ++i)
                QCOMPARE(emitted.at(i).first().toString(), messages.at(i));
        }
    }

    void resetForgetsHalfMessages()
    {
        CurlyMessageParser parser;
        parser.parseText(u"{iamsp"_s);
        parser.parseBytes("{\x01\x02}{\x03");
        parser.reset();
        QCOMPARE(parser.parseText(u"inbar}"_s), QStringList{u"inbar"_s});
        QCOMPARE(parser.parseBytes("}"), QByteArrayList());
    }

    void noiseWithoutDelimiterCostsLinearTime()
    {
        constexpr int Chunks = 200'000;
        CurlyMessageParser parser;
        const QString chunk(40, u'x');
        for (int i = 0; i < Chunks; ++i)
            QVERIFY(parser.parseText(chunk).isEmpty());
        const QStringList messages = parser.parseText(u"\n"_s);
        QCOMPARE(messages.size(), 1);
        QCOMPARE(messages.first().size(), qsizetype(40) * Chunks);
    }

    void byteFramesComeEmptyAndAgain()
    {
        CurlyMessageParser parser;
        QSignalSpy emitted(&parser, &CurlyMessageParser::messageBytesReceived);
        QCOMPARE(parser.parseBytes("{}{\x01"), QByteArrayList());
        QCOMPARE(parser.parseBytes("\x02}"), QByteArrayList{QByteArray()});
        QCOMPARE(parser.parseBytes("{\x03}"), QByteArrayList({QByteArray(), QByteArray()}));
        QCOMPARE(emitted.size(), 3);
    }
};

QTEST_GUILESS_MAIN(TestCurlyFraming)
#include "tst_curlyframing.moc"
