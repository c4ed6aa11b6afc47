#include "framework/common/apphelper.h"
#include "framework/common/widgets/mediahelper.h"
#include "framework/common/widgets/uihelper.h"

#include <QFontDatabase>
#include <QPixmap>
#include <QSvgRenderer>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The share of pixels that show anything, and whether any of those is near black.
struct Ink
{
    double share = 0;
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
            result.hasBlack |= color.alpha() > 200 && color.lightness() < 60;
        }
    }
    result.share = image.isNull() ? 0 : double(drawn) / (double(image.width()) * image.height());
    return result;
}

int maxAlpha(const QPixmap &pixmap)
{
    const QImage image = pixmap.toImage();
    int greatest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            greatest = std::max(greatest, image.pixelColor(x, y).alpha());
    }
    return greatest;
}

} // namespace

class TestIcons : public QObject
{
    Q_OBJECT

private slots:
    void iconsAreDrawnInBlackAndTurnWhite_data()
    {
        QTest::addColumn<QString>("name");
        const auto names = {"check",   "chevron-down",  "chevron-left", "chevron-right", "chevron-up",
                            "copy",    "delete",        "edit",         "edit_rename",   "excel",
                            "folder",  "folder_search", "information",  "play",          "plus",
                            "refresh", "reload",        "stop"};
        for (const char *name : names)
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void iconsAreDrawnInBlackAndTurnWhite()
    {
        QFETCH(QString, name);
        const QString path = u":/icons/%1.svg"_s.arg(name);
        QSvgRenderer renderer(path);
        QVERIFY(renderer.isValid());
        QCOMPARE(renderer.defaultSize(), QSize(24, 24));
        const Ink black = ink(MediaHelper::icon(path).pixmap(24, 24).toImage());
        QVERIFY2(black.share > 0.05 && black.share < 0.6, qPrintable(QString::number(black.share)));
        QVERIFY(black.hasBlack);
        const Ink white = ink(MediaHelper::svgColored(path, u"#FFF"_s, u"#000"_s));
        QVERIFY(white.share > 0.05 && !white.hasBlack);
        QVERIFY(!ink(UIHelper::PixmapFromSvg(path, u"#FFF"_s).toImage()).hasBlack);
        const QIcon coloured = MediaHelper::iconColored(path, u"#FFF"_s, {});
        QVERIFY(maxAlpha(coloured.pixmap(24, 24, QIcon::Disabled)) < 0.5 * maxAlpha(coloured.pixmap(24, 24)));
        QCOMPARE(AppHelper::findInResources(name + u".svg"_s), "qrc"_L1 + path);
    }

    void picturesAreThereInTwiceTheShownSize_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QSize>("size");
        const QString images = u":/resources/images/"_s;
        QTest::newRow("rat") << images + u"rat.png"_s << QSize(240, 240);
        QTest::newRow("mouse") << images + u"mouse.png"_s << QSize(240, 240);
        QTest::newRow("no rodent") << images + u"no-rodent.png"_s << QSize(240, 240);
        QTest::newRow("balloon") << images + u"balloon.png"_s << QSize(20, 28);
        for (const char *name : {"power_green", "power_off_red", "speed_on", "bolt", "warning"})
            QTest::newRow(name) << images + QLatin1StringView(name) + u".svg"_s << QSize(24, 24);
        for (const char *name : {"record", "check-dark", "chevron-up-dark", "chevron-down-dark",
                                 "chevron-left-dark", "chevron-right-dark"})
            QTest::newRow(name) << u":/icons/%1.svg"_s.arg(QLatin1StringView(name)) << QSize(24, 24);
    }

    void picturesAreThereInTwiceTheShownSize()
    {
        QFETCH(QString, path);
        QFETCH(QSize, size);
        const QImage image =
            path.endsWith(".svg"_L1) ? UIHelper::PixmapFromSvg(path).toImage() : QImage(path);
        QCOMPARE(image.size(), size);
        QVERIFY(ink(image).share > 0.05);
        // None of these is recoloured for the dark theme, so none may be black.
        if (path.contains("/icons/"_L1))
            QVERIFY(!ink(image).hasBlack);
    }

    void theDrumTurns()
    {
        QSvgRenderer drum(u":/resources/images/speed_on.svg"_s);
        QVERIFY(drum.animated());
        QVERIFY(drum.framesPerSecond() > 0);
    }

    void colouredIconsAreKeptByColourAndPath()
    {
        const QIcon first = MediaHelper::iconColored(u":/icons/play.svg"_s, u"#0F0"_s, u"#000"_s);
        QVERIFY(!first.isNull());
        QCOMPARE(MediaHelper::iconColored(u"qrc:/icons/play.svg"_s, u"#0F0"_s, u"#000"_s).cacheKey(),
                 first.cacheKey());
        QCOMPARE(MediaHelper::iconColored(u":/icons/play.svg"_s, u"#0F0"_s, {}).cacheKey(), first.cacheKey());
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
