#include "device/curlymessageparser.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class TestCurlyMessageParser : public QObject
{
    Q_OBJECT

private slots:
    void cutsText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("messages");
        QTest::newRow("two frames in order")
            << u"{sn=123}{version=4}"_s << QStringList{u"sn=123"_s, u"version=4"_s};
        QTest::newRow("braces alone") << u"}}}{{{"_s << QStringList();
        QTest::newRow("trimmed, on the line feed") << u" {  S,1,2 \n"_s << QStringList{u"S,1,2"_s};
        QTest::newRow("carriage return goes with the blanks")
            << u"sn=1\r\nsn=2\r\n"_s << QStringList{u"sn=1"_s, u"sn=2"_s};
        QTest::newRow("opening brace ends what stood before it")
            << u"noise{sn}"_s << QStringList{u"noise"_s, u"sn"_s};
        QTest::newRow("escapes stay") << u"{a\\]b}"_s << QStringList{u"a\\]b"_s};
        QTest::newRow("unfinished") << u"{sn=1"_s << QStringList();
        QTest::newRow("blanks only") << u"{ \t }\n"_s << QStringList();
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

QTEST_GUILESS_MAIN(TestCurlyMessageParser)
#include "tst_curlymessageparser.moc"
