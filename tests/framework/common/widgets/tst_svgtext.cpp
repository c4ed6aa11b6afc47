#include "framework/common/widgets/svgtext.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString Root = u"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8\" height=\"4\">"_s;
const QString Square = u"<path d=\"M0 0H8V4H0Z\"/>"_s;

QString nested(int depth)
{
    return Root + u"<g>"_s.repeated(depth) + Square + u"</g>"_s.repeated(depth) + u"</svg>"_s;
}

} // namespace

class TestSvgText : public QObject
{
    Q_OBJECT

private slots:
    void recolouringEditsTheOpeningTag_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("replace");
        QTest::addColumn<QString>("result");
        QTest::newRow("fill is overwritten") << u"<svg fill=\"none\" w=\"1\"><p/></svg>"_s << QString()
                                             << u"<svg fill=\"#F00\" w=\"1\"><p/></svg>"_s;
        QTest::newRow("fill is inserted")
            << u"<svg w=\"1\"><p/></svg>"_s << QString() << u"<svg w=\"1\" fill=\"#F00\"><p/></svg>"_s;
        QTest::newRow("a later fill is none of the root's")
            << u"<svg><p fill=\"#000\"/></svg>"_s << QString()
            << u"<svg fill=\"#F00\"><p fill=\"#000\"/></svg>"_s;
        QTest::newRow("a colour everywhere, by case")
            << u"<svg><p fill=\"#abc\" stroke=\"#ABC\"/></svg>"_s << u"#abc"_s
            << u"<svg fill=\"#F00\"><p fill=\"#F00\" stroke=\"#ABC\"/></svg>"_s;
        QTest::newRow("fill without an end")
            << u"<svg fill=\"#0><p"_s << QString() << u"<svg fill=\"#0 fill=\"#F00\"><p"_s;
        QTest::newRow("tag without an end")
            << u"<svg fill=\"#000\""_s << QString() << u"<svg fill=\"#000\""_s;
        QTest::newRow("no drawing") << u"text"_s << QString() << u"text"_s;
    }

    void recolouringEditsTheOpeningTag()
    {
        QFETCH(QString, text);
        QFETCH(QString, replace);
        QTEST(SvgText::recolored(text, u"#F00"_s, replace), "result");
    }

    void theOlderRuleNeedsTheExactAttribute_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("color");
        QTest::addColumn<QString>("result");
        QTest::newRow("replaced") << u"<svg fill=\"none\"/>"_s << u"red"_s << u"<svg fill=\"red\"/>"_s;
        QTest::newRow("no colour") << u"<svg fill=\"none\"/>"_s << QString() << u"<svg fill=\"none\"/>"_s;
        QTest::newRow("other order") << u"<svg w=\"1\" fill=\"none\"/>"_s << u"red"_s
                                     << u"<svg w=\"1\" fill=\"none\"/>"_s;
        QTest::newRow("at index 0") << u"svg fill=\"none\"/>"_s << u"red"_s << u"svg fill=\"none\"/>"_s;
        QTest::newRow("cut off") << u"<svg fill="_s << u"red"_s << u"<svg fill="_s;
    }

    void theOlderRuleNeedsTheExactAttribute()
    {
        QFETCH(QString, text);
        QFETCH(QString, color);
        QTEST(SvgText::withRootFill(text, color), "result");
    }

    void drawingsKeepTheirSizeUnlessOneIsGiven()
    {
        const QString svg = SvgText::recolored(nested(1), u"#00F"_s, {});
        QCOMPARE(SvgText::rendered(svg).size(), QSize(8, 4));
        const QImage large = SvgText::rendered(svg, {16, 16});
        QCOMPARE(large.size(), QSize(16, 16));
        QCOMPARE(large.pixelColor(8, 8), QColor(Qt::blue));
    }

    void hostileDrawingsAreNotDrawn_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("no markup") << u"plain"_s;
        QTest::newRow("null byte") << Root + QChar(u'\0') + Square + u"</svg>"_s;
        QTest::newRow("truncated") << nested(1).chopped(8);
        QTest::newRow("too deep") << nested(100'000);
        QTest::newRow("too many") << Root + Square.repeated(50'000) + u"</svg>"_s;
        QTest::newRow("too long") << Root + QString(5 * 1024 * 1024, u' ') + Square + u"</svg>"_s;
        QTest::newRow("refers to itself")
            << Root
                   + u"<g id=\"a\"><use href=\"#a\" xlink:href=\"#a\" xmlns:xlink=\"http://www.w3.org/1999/xlink\"/></g></svg>"_s;
        QString entities = u"<!DOCTYPE svg [<!ENTITY e0 \"lol\">"_s;
        for (int i = 1; i < 20; ++i)
            entities += u"<!ENTITY e%1 \"%2\">"_s.arg(i).arg(u"&e%1;"_s.arg(i - 1).repeated(10));
        QTest::newRow("entity bomb") << entities + u"]>"_s + Root + u"<text>&e19;</text></svg>"_s;
    }

    void hostileDrawingsAreNotDrawn()
    {
        QFETCH(QString, text);
        QVERIFY(SvgText::rendered(text).isNull());
    }

    void hugeSizesAreBroughtDown()
    {
        const QString svg =
            u"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"2000000\" height=\"1000000\"/>"_s;
        const QImage image = SvgText::rendered(svg);
        QVERIFY(image.isNull() || (image.width() <= 4096 && image.height() <= 4096));
    }

    void filesThatAreNoDrawingsReadAsEmpty()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"huge.svg"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(200 * 1024 * 1024));
        QCOMPARE(SvgText::read(file.fileName()), QString());
        QCOMPARE(SvgText::read(folder.filePath(u"missing.svg"_s)), QString());
        QCOMPARE(SvgText::read(folder.path()), QString());
    }
};

QTEST_MAIN(TestSvgText)
#include "tst_svgtext.moc"
