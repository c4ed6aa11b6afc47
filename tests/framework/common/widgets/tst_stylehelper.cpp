#include "framework/common/widgets/stylehelper.h"
#include "framework/common/widgets/themelink.h"
#include "framework/common/widgets/themetext.h"
#include "framework/common/widgets/uihelper.h"

#include "files.h"

#include <QAction>
#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using ThemeText::Variables;

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

    void aLineIsAVariableOnlyWithExactlyOneColonAndBlank()
    {
        QCOMPARE(ThemeText::parse(u":root {\n    --a: #FFF;\r\n  --b: 1px solid;\n}\n"_s),
                 (Variables{{u"--a"_s, u"#FFF"_s}, {u"--b"_s, u"1px solid"_s}}));
        QCOMPARE(ThemeText::parse(u"--i: \":/icons/check.svg\";"_s),
                 (Variables{{u"--i"_s, u"\":/icons/check.svg\""_s}}));
        QCOMPARE(ThemeText::parse(u"--a:#FFF;\n--a: b: c;"_s), Variables());
        QCOMPARE(ThemeText::parse(u"--a: 1;\n--a: b"_s), (Variables{{u"--a"_s, u"b"_s}}));
        QCOMPARE(ThemeText::parse(u"--a: 1;\n"_s + QChar(u'\0') + u"\n--b: 2;"_s),
                 (Variables{{u"--a"_s, u"1"_s}, {u"--b"_s, u"2"_s}}));
    }

    void replacementIsPlainTextInAscendingOrder()
    {
        QCOMPARE(ThemeText::substituted(u"x --a --b --a"_s, {{u"--a"_s, u"1"_s}}), u"x 1 --b 1"_s);
        // A shorter name destroys a longer one; a value may name a later variable, and no earlier one.
        QCOMPARE(ThemeText::substituted(u"--a-b"_s, {{u"--a"_s, u"1"_s}, {u"--a-b"_s, u"2"_s}}), u"1-b"_s);
        QCOMPARE(ThemeText::substituted(u"--a"_s, {{u"--a"_s, u"--b"_s}, {u"--b"_s, u"2"_s}}), u"2"_s);
        QCOMPARE(ThemeText::substituted(u"--b"_s, {{u"--a"_s, u"1"_s}, {u"--b"_s, u"--a"_s}}), u"--a"_s);
        QCOMPARE(ThemeText::substituted(u"--a"_s, {{u"--a"_s, u"(--a)"_s}}), u"(--a)"_s);
        QCOMPARE(ThemeText::substituted(u"--aa"_s, {{u"-a"_s, QString()}}), QString());
        QCOMPARE(ThemeText::substituted(u"x"_s, {{QString(), u"1"_s}}), u"x"_s);
    }

    void multiplyingValuesStayBounded()
    {
        Variables bomb;
        for (int i = 0; i < 60; ++i)
            bomb.insert(u"--v%1;"_s.arg(i, 2, 10, '0'_L1), u"--v%1;"_s.arg(i + 1, 2, 10, '0'_L1).repeated(2));
        QVERIFY(ThemeText::substituted(u"--v00;"_s, bomb).size() <= 8 * 1024 * 1024);
        // The value makes the name anew together with what stands before it.
        const QString row = QString(1000, 'a'_L1) + 'b'_L1;
        QVERIFY(ThemeText::substituted(row, {{u"ab"_s, u"bba"_s}}).size() <= 8 * 1024 * 1024);
    }

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
        const QString sheet = QString::fromUtf8(contents(u":/themes/nt.theme.css"_s));
        QSet<QString> names;
        for (const auto &found : QRegularExpression(u"--n-[a-z-]+"_s).globalMatch(sheet))
            names.insert(found.captured());
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

    void namedWidgetsTakeTheirColour()
    {
        const auto check = [this](const QString &name, QColor light, QColor dark) {
            QPushButton button;
            button.setObjectName(name);
            button.setCheckable(true);
            button.setChecked(name == "checked"_L1);
            button.setFixedSize(40, 40);
            m_styler->selectTheme(u"light"_s);
            QCOMPARE(button.grab().toImage().pixelColor(20, 20), light);
            m_styler->selectTheme(u"dark"_s);
            QCOMPARE(button.grab().toImage().pixelColor(20, 20), dark);
        };
        check(u"accentBackground"_s, 0x44AAEE, 0x115599);
        check(u"menulike"_s, Qt::white, 0x222222); // behind the rule that is dropped
        check(u"positive"_s, 0x33CC00, 0x33CC00);
        check(u"checked"_s, 0x44AAEE, 0x115599);
        check(u"other"_s, 0xE6E6E6, 0x363636);
    }

    void textStandsOutFromItsBackground()
    {
        // Contrast of level AA for text, and for what is no text.
        constexpr double Text = 4.5;
        constexpr double Mark = 3.0;
        const auto check = [](const QString &front, const QStringList &backs, double least) {
            for (const QString &back : backs) {
                const double value = contrast(StyleHelper::ThemeColor("--n-"_L1 + front, {}),
                                              StyleHelper::ThemeColor("--n-"_L1 + back, {}));
                // To the two digits in which such figures are given.
                QVERIFY2(std::round(value * 100) / 100 >= least,
                         qPrintable(u"%1 on %2: %3"_s.arg(front, back).arg(value)));
            }
        };
        for (const QString &theme : m_styler->themes()) {
            m_styler->selectTheme(theme);
            check(u"text"_s,
                  {u"bg"_s, u"sub-bg"_s, u"panel-bg"_s, u"idle-bg"_s, u"field-bg"_s, u"accent"_s, u"btn-bg"_s,
                   u"btn-hover-bg"_s, u"btn-pressed-bg"_s},
                  Text);
            check(u"sub-text"_s, {u"bg"_s}, Text);
            check(u"tooltip-color"_s, {u"tooltip-bg"_s}, Text);
            check(u"grid-time-text"_s, {u"bg"_s}, Text);
            check(u"sub-text"_s, {u"bg"_s, u"sub-bg"_s, u"panel-bg"_s, u"idle-bg"_s, u"btn-bg"_s}, Mark);
        }
    }

    void theLinkFollowsThePropertyAndTheSystem()
    {
        const auto check = [this](int value, bool systemDark, const QString &theme) {
            QApplication::setPalette(systemPalette(!systemDark));
            OwnSignalSettings own;
            OneSignalSettings one;
            StyleHelper::InterlinkTheme(nullptr, u"ColorTheme"_s);
            StyleHelper::InterlinkTheme(&one, QString());
            StyleHelper::InterlinkTheme(&own, u"ColorTheme"_s);
            QVERIFY(own.setProperty("ColorTheme", value));
            QApplication::setPalette(systemPalette(systemDark));
            QCOMPARE(m_styler->currentTheme(), theme);

            QApplication::setPalette(systemPalette(!systemDark));
            StyleHelper::InterlinkTheme(&one, u"ColorTheme"_s);
            one.theme = value;
            emit one.propertyChanged(u"Other"_s);
            emit one.propertyChanged(u"ColorTheme"_s);
            QApplication::setPalette(systemPalette(systemDark));
            QCOMPARE(m_styler->currentTheme(), theme);
        };
        check(StyleHelper::System, false, u"light"_s);
        check(StyleHelper::System, true, u"dark"_s);
        check(StyleHelper::Light, true, u"light"_s);
        check(StyleHelper::Dark, false, u"dark"_s);
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

    void whatAValueAsksFor()
    {
        for (const QVariant &dark : {QVariant::fromValue(StyleHelper::Dark),
                                     QVariant::fromValue(StyleHelper::System), QVariant("VeryDARK")})
            QVERIFY(ThemeLink::wantsDark(dark, true));
        for (const QVariant &light : {QVariant("blue"), QVariant(7), QVariant()})
            QVERIFY(!ThemeLink::wantsDark(light, true));
    }

    void iconsAndBackgroundsFollowTheTheme()
    {
        QWidget panel;
        panel.setFixedSize(20, 20);
        QPushButton button;
        QAction action;
        QLabel label;
        m_styler->setStyledBackground(nullptr, u"--n-bg"_s, Qt::red);
        m_styler->setStyledBackground(&panel, u"--n-idle-bg"_s, Qt::red);
        const QString path = u":/icons/stop.svg"_s;
        StyleHelper::SetButtonIcon(&button, path, u"#0F0"_s);
        StyleHelper::SetLabelIcon(&label, path, u"#0F0"_s);
        m_styler->setMenuActionIcon(&action, path, u"#0F0"_s);
        const auto check = [&](const QString &theme, QColor icon, QColor background) {
            m_styler->selectTheme(theme);
            for (const QPixmap &pixmap :
                 {button.icon().pixmap(24, 24), action.icon().pixmap(24, 24), label.pixmap()})
                QCOMPARE(pixmap.toImage().pixelColor(pixmap.width() / 2, pixmap.height() / 2), icon);
            for (const bool enabled : {true, false}) {
                panel.setEnabled(enabled);
                QCOMPARE(panel.grab().toImage().pixelColor(10, 10), background);
            }
        };
        check(u"dark"_s, Qt::green, 0x333333);
        check(u"light"_s, Qt::black, 0xDDDDDD);
    }

    void bordersKeepTheirColourUnderTheSheet()
    {
        QFrame frame;
        frame.setFixedSize(20, 20);
        UIHelper::ChangeBorders(&frame, 3, Qt::red);
        QCOMPARE(frame.grab().toImage().pixelColor(2, 10), QColor(Qt::red));
    }

private:
    StyleHelper::Styler *m_styler = nullptr;
};

QTEST_MAIN(TestStyleHelper)
#include "tst_stylehelper.moc"
