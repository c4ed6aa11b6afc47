#include "framework/common/widgets/stylehelper.h"
#include "framework/common/widgets/themelink.h"
#include "framework/common/widgets/uihelper.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

/// Names its changes by the property's own signal.
class OwnSignalSettings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(StyleHelper::ColorThemeEnum ColorTheme MEMBER m_theme NOTIFY changedColorTheme)

signals:
    void changedColorTheme();

private:
    StyleHelper::ColorThemeEnum m_theme = StyleHelper::Light;
};

/// Names its changes by one signal for all properties.
class OneSignalSettings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int ColorTheme MEMBER theme)

public:
    int theme = StyleHelper::Light;

signals:
    void propertyChanged(const QString &name);
};

namespace {

/// Counts how often a widget is styled anew.
class StyleCounter : public QObject
{
public:
    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::StyleChange;
        return false;
    }
};

// The contrast of two colours as the Web Content Accessibility Guidelines define it.
double luminance(const QColor &color)
{
    const auto linear = [](double v) {
        return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

QPalette systemPalette(bool dark)
{
    return dark ? QPalette(QColor(40, 40, 40)) : QPalette(QColor(240, 240, 240));
}

} // namespace

class TestStyleHelper : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QTest::failOnWarning(QRegularExpression(u"stylesheet|pixmap|Unknown property"_s));
        QCOMPARE(StyleHelper::ThemeColor(u"--n-bg"_s, Qt::red), QColor(Qt::red));
        m_styler = StyleHelper::Instance();
        QSignalSpy changed(m_styler, &StyleHelper::Styler::changed);
        m_styler->addStyleFile(u":/themes/missing.css"_s);
        m_styler->addStyleFile(u":/themes/nt.theme.css"_s);
        m_styler->addThemeFile(u":/themes/light.css"_s, u"light"_s);
        m_styler->addThemeFile(u":/themes/dark.css"_s, u"dark"_s);
        m_styler->addThemeFile(u":/themes/missing.css"_s, u"missing"_s);
        QCOMPARE(m_styler->themes(), QStringList({u"dark"_s, u"light"_s}));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(m_styler->currentTheme(), QString());
    }

    void init() { m_styler->selectTheme(u"light"_s); }

    void aThemeIsAppliedOnceForEachRealChange()
    {
        // A child would be told once more for each widget above it.
        QWidget window;
        window.show();
        StyleCounter counter;
        window.installEventFilter(&counter);
        QSignalSpy changed(m_styler, &StyleHelper::Styler::changed);
        m_styler->selectTheme(u"dark"_s);
        QVERIFY(m_styler->isDark());
        QCOMPARE(counter.count, 1);
        m_styler->selectTheme(u"dark"_s);
        m_styler->selectTheme(u"no such theme"_s);
        QCOMPARE(m_styler->currentTheme(), u"dark"_s);
        QCOMPARE(counter.count, 1);
        m_styler->selectTheme(u"light"_s);
        QCOMPARE(counter.count, 2);
        QCOMPARE(changed.count(), 4);
    }

    void theSheetIsWhollyResolved()
    {
        for (const QString &theme : m_styler->themes()) {
            m_styler->selectTheme(theme);
            QString sheet = qApp->styleSheet();
            QVERIFY(sheet.contains(u"'%1'"_s.arg(QApplication::font().family())));
            QVERIFY(sheet.contains("20.8px"_L1) && sheet.contains("16px"_L1));
            QVERIFY(sheet.contains(theme == "dark"_L1 ? u"url(\":/icons/check-dark.svg\")"_s
                                                      : u"url(\":/icons/check.svg\")"_s));
            // The calendar's rule names two variables that no theme has.
            sheet.remove(u"--n-sub-background"_s).remove(u"--n-btn-background"_s);
            QVERIFY2(!sheet.contains("--"_L1), qPrintable(sheet.mid(sheet.indexOf("--"_L1), 60)));
        }
    }

    void noNameInTheSheetBeginsWithAnother()
    {
        QFile file(u":/themes/nt.theme.css"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QStringList names;
        auto found = QRegularExpression(u"--n-[a-z-]+"_s).globalMatch(QString::fromUtf8(file.readAll()));
        while (found.hasNext())
            names.append(found.next().captured());
        names.removeDuplicates();
        QVERIFY(names.size() > 20);
        for (const QString &name : std::as_const(names)) {
            for (const QString &other : std::as_const(names))
                QVERIFY2(name == other || !name.startsWith(other), qPrintable(name));
        }
    }

    void customValuesWinAtTheNextSelection()
    {
        QSignalSpy changed(m_styler, &StyleHelper::Styler::changed);
        m_styler->setCustomValue(u"--n-btn-disabled-border"_s, u"#123456"_s);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(StyleHelper::ThemeColor(u"--n-btn-disabled-border"_s, {}), QColor(0x12, 0x34, 0x56));
        QVERIFY(!qApp->styleSheet().contains("#123456"_L1));
        m_styler->selectTheme(u"light"_s);
        QVERIFY(qApp->styleSheet().contains("#123456"_L1));
    }

    void namedWidgetsTakeTheirColour_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QColor>("light");
        QTest::addColumn<QColor>("dark");
        QTest::newRow("accent") << u"accentBackground"_s << QColor(0x44, 0xAA, 0xEE)
                                << QColor(0x11, 0x55, 0x99);
        QTest::newRow("menu, behind the rule that is dropped")
            << u"menulike"_s << QColor(Qt::white) << QColor(0x22, 0x22, 0x22);
        QTest::newRow("positive") << u"positive"_s << QColor(0x33, 0xCC, 0x00) << QColor(0x33, 0xCC, 0x00);
        QTest::newRow("negative") << u"negative"_s << QColor(0xCC, 0x33, 0x00) << QColor(0xCC, 0x33, 0x00);
        QTest::newRow("checked") << u"checked"_s << QColor(0x44, 0xAA, 0xEE) << QColor(0x11, 0x55, 0x99);
        QTest::newRow("other") << u"other"_s << QColor(0xE6, 0xE6, 0xE6) << QColor(0x36, 0x36, 0x36);
    }

    void namedWidgetsTakeTheirColour()
    {
        QFETCH(QString, name);
        QPushButton button;
        button.setObjectName(name);
        button.setCheckable(true);
        button.setChecked(name == "checked"_L1);
        button.setFixedSize(40, 40);
        const auto middle = [&button] { return button.grab().toImage().pixelColor(20, 20); };
        QTEST(middle(), "light");
        m_styler->selectTheme(u"dark"_s);
        QTEST(middle(), "dark");
    }

    void textStandsOutFromItsBackground_data()
    {
        QTest::addColumn<QString>("front");
        QTest::addColumn<QString>("back");
        QTest::addColumn<double>("least");
        // Contrast of level AA for text, and for what is no text.
        constexpr double text = 4.5;
        constexpr double mark = 3.0;
        for (const char *back : {"bg", "sub-bg", "panel-bg", "idle-bg", "field-bg", "accent", "btn-bg",
                                 "btn-hover-bg", "btn-pressed-bg"})
            QTest::addRow("text on %s", back) << u"text"_s << QString::fromLatin1(back) << text;
        QTest::newRow("secondary text") << u"sub-text"_s << u"bg"_s << text;
        QTest::newRow("tool tip") << u"tooltip-color"_s << u"tooltip-bg"_s << text;
        QTest::newRow("time axis") << u"grid-time-text"_s << u"bg"_s << text;
        for (const char *back : {"bg", "sub-bg", "panel-bg", "idle-bg", "btn-bg"})
            QTest::addRow("focus ring on %s", back) << u"sub-text"_s << QString::fromLatin1(back) << mark;
    }

    void textStandsOutFromItsBackground()
    {
        QFETCH(QString, front);
        QFETCH(QString, back);
        QFETCH(double, least);
        for (const QString &theme : m_styler->themes()) {
            m_styler->selectTheme(theme);
            const double value = contrast(StyleHelper::ThemeColor("--n-"_L1 + front, {}),
                                          StyleHelper::ThemeColor("--n-"_L1 + back, {}));
            // To the two digits in which such figures are given.
            QVERIFY2(std::round(value * 100) / 100 >= least, qPrintable(u"%1: %2"_s.arg(theme).arg(value)));
        }
    }

    void theLinkFollowsThePropertyAndTheSystem_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("systemDark");
        QTest::addColumn<QString>("theme");
        QTest::newRow("system light") << int(StyleHelper::System) << false << u"light"_s;
        QTest::newRow("system dark") << int(StyleHelper::System) << true << u"dark"_s;
        QTest::newRow("light under a dark system") << int(StyleHelper::Light) << true << u"light"_s;
        QTest::newRow("dark under a light system") << int(StyleHelper::Dark) << false << u"dark"_s;
    }

    void theLinkFollowsThePropertyAndTheSystem()
    {
        QFETCH(int, value);
        QFETCH(bool, systemDark);
        QApplication::setPalette(systemPalette(!systemDark));
        OwnSignalSettings own;
        OneSignalSettings one;
        StyleHelper::InterlinkTheme(nullptr, u"ColorTheme"_s);
        StyleHelper::InterlinkTheme(&one, QString());
        StyleHelper::InterlinkTheme(&own, u"ColorTheme"_s);
        QVERIFY(own.setProperty("ColorTheme", value));
        QApplication::setPalette(systemPalette(systemDark));
        QTEST(m_styler->currentTheme(), "theme");

        QApplication::setPalette(systemPalette(!systemDark));
        StyleHelper::InterlinkTheme(&one, u"ColorTheme"_s);
        one.theme = value;
        emit one.propertyChanged(u"Other"_s);
        emit one.propertyChanged(u"ColorTheme"_s);
        QApplication::setPalette(systemPalette(systemDark));
        QTEST(m_styler->currentTheme(), "theme");
    }

    void aPaletteThatStaysAsDarkChangesNothing()
    {
        QApplication::setPalette(systemPalette(false));
        OneSignalSettings settings;
        settings.theme = StyleHelper::System;
        StyleHelper::InterlinkTheme(&settings, u"ColorTheme"_s);
        QSignalSpy changed(m_styler, &StyleHelper::Styler::changed);
        QApplication::setPalette(QPalette(QColor(230, 230, 230)));
        QCOMPARE(changed.count(), 0);
        emit settings.propertyChanged(u"ColorTheme"_s);
        QCOMPARE(changed.count(), 1);
    }

    void whatAValueAsksFor_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("dark");
        QTest::newRow("enumerator") << QVariant::fromValue(StyleHelper::Dark) << true;
        QTest::newRow("system") << QVariant::fromValue(StyleHelper::System) << true;
        QTest::newRow("text") << QVariant(u"VeryDARK"_s) << true;
        QTest::newRow("other text") << QVariant(u"blue"_s) << false;
        QTest::newRow("other number") << QVariant(7) << false;
        QTest::newRow("no such property") << QVariant() << false;
    }

    void whatAValueAsksFor()
    {
        QFETCH(QVariant, value);
        QTEST(ThemeLink::wantsDark(value, true), "dark");
    }

    void iconsAndBackgroundsFollowTheTheme()
    {
        QWidget panel;
        panel.setFixedSize(20, 20);
        QPushButton button;
        QAction action;
        QLabel label;
        label.setFixedSize(24, 24);
        m_styler->setStyledBackground(nullptr, u"--n-bg"_s, Qt::red);
        m_styler->setStyledBackground(&panel, u"--n-idle-bg"_s, Qt::red);
        const QString path = u":/icons/stop.svg"_s;
        StyleHelper::SetButtonIcon(&button, path, u"#0F0"_s);
        StyleHelper::SetLabelIcon(&label, path, u"#0F0"_s);
        m_styler->setMenuActionIcon(&action, path, u"#0F0"_s);
        const auto middles = [&] {
            const QList<QPixmap> pixmaps{button.icon().pixmap(24, 24), label.pixmap(),
                                         action.icon().pixmap(24, 24)};
            QList<QColor> colors;
            for (const QPixmap &pixmap : pixmaps)
                colors.append(pixmap.toImage().pixelColor(12, 12));
            return colors;
        };
        QCOMPARE(middles(), QList<QColor>(3, Qt::black));
        m_styler->selectTheme(u"dark"_s);
        QCOMPARE(middles(), QList<QColor>(3, Qt::green));
        for (bool enabled : {true, false}) {
            panel.setEnabled(enabled);
            QCOMPARE(panel.grab().toImage().pixelColor(10, 10), QColor(0x33, 0x33, 0x33));
        }
        m_styler->selectTheme(u"light"_s);
        QCOMPARE(middles(), QList<QColor>(3, Qt::black));
        QCOMPARE(panel.grab().toImage().pixelColor(10, 10), QColor(0xDD, 0xDD, 0xDD));
    }

    void bordersKeepTheirColourUnderTheSheet()
    {
        QFrame frame;
        frame.setFixedSize(20, 20);
        UIHelper::ChangeBorders(&frame, 3, Qt::red);
        QCOMPARE(frame.grab().toImage().pixelColor(1, 1), QColor(Qt::red));
        QCOMPARE(frame.grab().toImage().pixelColor(2, 10), QColor(Qt::red));
    }

private:
    StyleHelper::Styler *m_styler = nullptr;
};

QTEST_MAIN(TestStyleHelper)
#include "tst_stylehelper.moc"
