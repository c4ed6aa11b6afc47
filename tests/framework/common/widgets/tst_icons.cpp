#include "framework/common/apphelper.h"
#include "framework/common/widgets/mediahelper.h"
#include "framework/common/widgets/svgtext.h"
#include "framework/common/widgets/uihelper.h"

#include <QFontDatabase>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The share of pixels that show anything, the densest of them, and whether any is near black.
struct Ink
{
    double share = 0;
    int maxAlpha = 0;
    bool hasBlack = false;
};

Ink ink(const QImage &image)
{
    Ink result;
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            drawn += color.alpha() > 0;
            result.maxAlpha = std::max(result.maxAlpha, color.alpha());
            result.hasBlack |= color.alpha() > 200 && color.lightness() < 60;
        }
    }
    result.share = image.isNull() ? 0 : double(drawn) / (double(image.width()) * image.height());
    return result;
}

const QString Root = u"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8\" height=\"4\">"_s;
const QString Square = u"<path d=\"M0 0H8V4H0Z\"/>"_s;

QString nested(int depth)
{
    return Root + u"<g>"_s.repeated(depth) + Square + u"</g>"_s.repeated(depth) + u"</svg>"_s;
}

} // namespace

class TestIcons : public QObject
{
    Q_OBJECT

private slots:
    void recolouringEditsTheOpeningTag()
    {
        const auto red = [](const QString &text, const QString &replace = {}) {
            return SvgText::recolored(text, u"#F00"_s, replace);
        };
        QCOMPARE(red(u"<svg fill=\"none\" w=\"1\"><p/></svg>"_s), u"<svg fill=\"#F00\" w=\"1\"><p/></svg>"_s);
        QCOMPARE(red(u"<svg w=\"1\"><p/></svg>"_s), u"<svg w=\"1\" fill=\"#F00\"><p/></svg>"_s);
        // A later fill is none of the root's; a colour is replaced everywhere, by case.
        QCOMPARE(red(u"<svg><p fill=\"#000\"/></svg>"_s), u"<svg fill=\"#F00\"><p fill=\"#000\"/></svg>"_s);
        QCOMPARE(red(u"<svg><p fill=\"#abc\" stroke=\"#ABC\"/></svg>"_s, u"#abc"_s),
                 u"<svg fill=\"#F00\"><p fill=\"#F00\" stroke=\"#ABC\"/></svg>"_s);
        QCOMPARE(red(u"<svg fill=\"#0><p"_s), u"<svg fill=\"#0 fill=\"#F00\"><p"_s);
        for (const QString &kept : {u"<svg fill=\"#000\""_s, u"text"_s})
            QCOMPARE(red(kept), kept);
    }

    void theOlderRuleNeedsTheExactAttribute()
    {
        const QString plain = u"<svg fill=\"none\"/>"_s;
        QCOMPARE(SvgText::withRootFill(plain, u"red"_s), u"<svg fill=\"red\"/>"_s);
        QCOMPARE(SvgText::withRootFill(plain, {}), plain);
        for (const QString &kept :
             {u"<svg w=\"1\" fill=\"none\"/>"_s, u"svg fill=\"none\"/>"_s, u"<svg fill="_s})
            QCOMPARE(SvgText::withRootFill(kept, u"red"_s), kept);
    }

    void drawingsKeepTheirSizeUnlessOneIsGiven()
    {
        const QString svg = SvgText::recolored(nested(1), u"#00F"_s, {});
        QCOMPARE(SvgText::rendered(svg).size(), QSize(8, 4));
        const QImage large = SvgText::rendered(svg, {16, 16});
        QCOMPARE(large.size(), QSize(16, 16));
        QCOMPARE(large.pixelColor(8, 8), QColor(Qt::blue));
    }

    void hostileDrawingsAreNotDrawn()
    {
        const QString end = u"</svg>"_s;
        const QString circle = u"<g id=\"a\"><use href=\"#a\" xlink:href=\"#a\" "
                               "xmlns:xlink=\"http://www.w3.org/1999/xlink\"/></g>"_s;
        QString bomb = u"<!DOCTYPE svg [<!ENTITY e0 \"lol\">"_s;
        for (int i = 1; i < 20; ++i)
            bomb += u"<!ENTITY e%1 \"%2\">"_s.arg(i).arg(u"&e%1;"_s.arg(i - 1).repeated(10));
        for (const QString &text :
             {u""_s, u"plain"_s, Root + QChar(u'\0') + Square + end, nested(1).chopped(8), nested(100'000),
              Root + Square.repeated(50'000) + end, Root + QString(5 * 1024 * 1024, u' ') + Square + end,
              Root + circle + end, bomb + u"]>"_s + Root + u"<text>&e19;</text></svg>"_s})
            QVERIFY2(SvgText::rendered(text).isNull(), qPrintable(text.right(60)));

        const QImage huge = SvgText::rendered(
            u"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"2000000\" height=\"1000000\"/>"_s);
        QVERIFY(huge.isNull() || (huge.width() <= 4096 && huge.height() <= 4096));
    }

    void filesThatAreNoDrawingsReadAsEmpty()
    {
        const QTemporaryDir folder;
        QFile huge(folder.filePath(u"huge.svg"_s));
        QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(200 * 1024 * 1024));
        for (const QString &path : {huge.fileName(), folder.filePath(u"missing.svg"_s), folder.path()})
            QCOMPARE(SvgText::read(path), QString());
    }

    void iconsAreDrawnInBlackAndTurnWhite()
    {
        const QString names =
            u"check chevron-down chevron-left chevron-right chevron-up copy delete edit "
            "edit_rename excel folder folder_search information play plus refresh reload stop"_s;
        for (const QString &name : names.split(u' ')) {
            const QString path = u":/icons/%1.svg"_s.arg(name);
            QCOMPARE(QSvgRenderer(path).defaultSize(), QSize(24, 24));
            const Ink black = ink(MediaHelper::icon(path).pixmap(24, 24).toImage());
            QVERIFY2(black.share > 0.05 && black.share < 0.6 && black.hasBlack, qPrintable(name));
            const Ink white = ink(MediaHelper::svgColored(path, u"#FFF"_s, u"#000"_s));
            QVERIFY2(white.share > 0.05 && !white.hasBlack, qPrintable(name));
            QVERIFY(!ink(UIHelper::PixmapFromSvg(path, u"#FFF"_s).toImage()).hasBlack);
            QCOMPARE(AppHelper::findInResources(name + u".svg"_s), "qrc"_L1 + path);
        }
        const QIcon stop = MediaHelper::iconColored(u":/icons/stop.svg"_s, u"#FFF"_s, {});
        const auto densest = [&](QIcon::Mode mode) {
            return ink(stop.pixmap(24, 24, mode).toImage()).maxAlpha;
        };
        QVERIFY(densest(QIcon::Disabled) < 0.5 * densest(QIcon::Normal));
    }

    void picturesAreThereInTwiceTheShownSize()
    {
        const auto check = [](const QString &path, QSize size) {
            const QImage image =
                path.endsWith(".svg"_L1) ? UIHelper::PixmapFromSvg(path).toImage() : QImage(path);
            QVERIFY2(image.size() == size && ink(image).share > 0.05, qPrintable(path));
            // None of these is recoloured for the dark theme, so none may be black.
            QVERIFY2(!path.contains("/icons/"_L1) || !ink(image).hasBlack, qPrintable(path));
        };
        for (const QString &name : {u"rat"_s, u"mouse"_s, u"no-rodent"_s})
            check(u":/resources/images/%1.png"_s.arg(name), {240, 240});
        check(u":/resources/images/balloon.png"_s, {20, 28});
        for (const QString &name : u"power_green power_off_red speed_on bolt warning"_s.split(u' '))
            check(u":/resources/images/%1.svg"_s.arg(name), {24, 24});
        check(u":/icons/record.svg"_s, {24, 24});
        for (const QString &name : u"check chevron-up chevron-down chevron-left chevron-right"_s.split(u' '))
            check(u":/icons/%1-dark.svg"_s.arg(name), {24, 24});
        QVERIFY(QSvgRenderer(u":/resources/images/speed_on.svg"_s).animated()); // the drum turns
    }

    void colouredIconsAreKeptByColourAndPath()
    {
        const QIcon first = MediaHelper::iconColored(u":/icons/play.svg"_s, u"#0F0"_s, u"#000"_s);
        QVERIFY(!first.isNull());
        for (const QString &path : {u"qrc:/icons/play.svg"_s, u":/icons/play.svg"_s})
            QCOMPARE(MediaHelper::iconColored(path, u"#0F0"_s, {}).cacheKey(), first.cacheKey());
        QCOMPARE(MediaHelper::iconColored(u":/icons/play.svg"_s, {}, {}).cacheKey(),
                 MediaHelper::icon(u"qrc:/icons/play.svg"_s).cacheKey());
        QVERIFY(MediaHelper::iconColored(u":/icons/none.svg"_s, u"#0F0"_s, u"#000"_s).isNull());
        QCOMPARE(MediaHelper::recolorSVG(u":/icons/none.svg"_s, u"#0F0"_s, {}), QString());
    }

    void aTextIsPaintedOverTheIcon()
    {
        const auto sample = [](const QString &text) {
            return MediaHelper::iconColoredWithText(u":/icons/stop.svg"_s, u"#00F"_s, text, 50, true,
                                                    Qt::AlignTop, 0, 0, {})
                .pixmap(24, 24)
                .toImage();
        };
        QVERIFY(sample(u"W"_s) != sample(QString()));
        QCOMPARE(sample(QString()), MediaHelper::svgColored(u":/icons/stop.svg"_s, u"#00F"_s, {}));
    }

    void theFontComesInFourFaces()
    {
        for (const char *face : {"Regular", "Italic", "Bold", "BoldItalic"}) {
            const int id = QFontDatabase::addApplicationFont(
                u":/resources/fonts/OpenSans/OpenSans_SemiCondensed-%1.ttf"_s.arg(QLatin1StringView(face)));
            QCOMPARE(QFontDatabase::applicationFontFamilies(id), QStringList(u"Open Sans SemiCondensed"_s));
        }
    }
};

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
