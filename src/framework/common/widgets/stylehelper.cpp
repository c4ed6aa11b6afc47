#include "framework/common/widgets/stylehelper.h"

#include "framework/common/widgets/mediahelper.h"
#include "framework/common/widgets/themelink.h"
#include "framework/common/widgets/uihelper.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLoggingCategory>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(logTheme, "spinbar.theme")

namespace {

constexpr int MinButtonSizePixels = 16;
// A line of the application's font; the fields and the captions beside them share it.
constexpr double MinHeightPixels = 20.8;

// The colour in which every icon is drawn.
const QString &drawnColor()
{
    static const QString black = u"#000"_s;
    return black;
}

QString lightStyleName()
{
    const QString platform = u"windowsvista"_s;
    return QStyleFactory::keys().contains(platform, Qt::CaseInsensitive) ? platform : u"Fusion"_s;
}

} // namespace

namespace StyleHelper {

Styler::Styler()
{
    m_customValues.insert(u"--n-font-family"_s, u"'%1'"_s.arg(QApplication::font().family()));
    m_customValues.insert(u"--n-min-btn-size"_s, QString::number(MinButtonSizePixels) + "px"_L1);
    m_customValues.insert(u"--n-min-height"_s, QString::number(MinHeightPixels, 'g') + "px"_L1);
}

void Styler::addStyleFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCDebug(logTheme) << "STYLE FILE NOT ADDED" << path;
        return;
    }
    m_styleFiles.insert(path, QString::fromUtf8(file.readAll()));
}

void Styler::addThemeFile(const QString &path, const QString &name)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        m_themes.insert(name, ThemeText::parse(QString::fromUtf8(file.readAll())));
}

void Styler::selectTheme(const QString &name)
{
    if (const auto theme = m_themes.constFind(name); theme != m_themes.constEnd()) {
        m_currentTheme = name;
        m_dark = name.contains("dark"_L1, Qt::CaseInsensitive);
        m_variables = *theme;
        applySheet();
    }
    emit changed();
}

QString Styler::sheet() const
{
    QString result;
    for (const QString &text : m_styleFiles) {
        result += ThemeText::substituted(ThemeText::substituted(text, m_customValues), m_variables);
        result += "\r\n"_L1;
    }
    return result;
}

void Styler::applySheet()
{
    // The style first: a sheet in force would be worked through again for every widget with the new style.
    if (const QString style = m_dark ? u"Fusion"_s : lightStyleName(); style != m_styleName) {
        m_styleName = style;
        QApplication::setStyle(style);
    }
    if (const QString text = sheet(); text != qApp->styleSheet())
        qApp->setStyleSheet(text);
}

QColor Styler::getThemeColor(const QString &name, const QColor &fallback) const
{
    const QString text = getThemeValue(name, {});
    return text.isNull() ? fallback : QColor(text);
}

QString Styler::getThemeValue(const QString &name, const QString &fallback) const
{
    return m_customValues.value(name, m_variables.value(name, fallback));
}

void Styler::setCustomValue(const QString &name, const QString &value)
{
    m_customValues.insert(name, value);
    emit changed();
}

void Styler::follow(QObject *target, const std::function<void()> &apply)
{
    m_connections << connect(this, &Styler::changed, target, apply);
    apply();
}

QIcon Styler::icon(const QString &path, const QString &darkColor) const
{
    if (m_dark) {
        if (const QIcon dark = MediaHelper::iconColored(path, darkColor, drawnColor()); !dark.isNull())
            return dark;
    }
    return MediaHelper::icon(path);
}

void Styler::setButtonIcon(QPushButton *button, const QIcon &light, const QIcon &dark)
{
    if (dark.isNull())
        button->setIcon(light);
    else
        follow(button, [this, button, light, dark] { button->setIcon(m_dark ? dark : light); });
}

void Styler::setLabelIcon(QLabel *label, const QIcon &light, const QIcon &dark)
{
    if (dark.isNull())
        label->setPixmap(light.pixmap(label->size()));
    else
        follow(label, [this, label, light, dark] {
            label->setPixmap((m_dark ? dark : light).pixmap(label->size()));
        });
}

void Styler::setMenuActionIcon(QAction *action, const QIcon &light, const QIcon &dark)
{
    if (dark.isNull())
        action->setIcon(light);
    else
        follow(action, [this, action, light, dark] { action->setIcon(m_dark ? dark : light); });
}

void Styler::setButtonIcon(QPushButton *button, const QString &path, const QString &darkColor)
{
    follow(button, [this, button, path, darkColor] { button->setIcon(icon(path, darkColor)); });
}

void Styler::setLabelIcon(QLabel *label, const QString &path, const QString &darkColor)
{
    follow(label,
           [this, label, path, darkColor] { label->setPixmap(icon(path, darkColor).pixmap(label->size())); });
}

void Styler::setMenuActionIcon(QAction *action, const QString &path, const QString &darkColor)
{
    follow(action, [this, action, path, darkColor] { action->setIcon(icon(path, darkColor)); });
}

void Styler::setStyledBackground(QWidget *widget, const QString &name, const QColor &fallback)
{
    if (widget)
        follow(widget, [this, widget, name, fallback] {
            UIHelper::ChangeBackground(widget, getThemeColor(name, fallback));
        });
}

Styler *Instance()
{
    static auto *styler = new Styler;
    return styler;
}

QColor ThemeColor(const QString &name, const QColor &fallback)
{
    return Instance()->getThemeColor(name, fallback);
}

QColor ReadableColor(const QColor &color)
{
    if (!Instance()->isDark() || color.lightnessF() >= 0.5)
        return color;
    return QColor::fromHslF(color.hslHueF(), color.hslSaturationF(), 1 - color.lightnessF());
}

QString ThemeValue(const QString &name, const QString &fallback)
{
    return Instance()->getThemeValue(name, fallback);
}

QIcon ColoredIcon(const QString &path, const QString &darkColor)
{
    return Instance()->icon(path, darkColor);
}

void InterlinkTheme(QObject *settings, const QString &property)
{
    // Owned by the settings object.
    if (settings && !property.isEmpty())
        new ThemeLink(settings, property);
}

void SetButtonIcon(QPushButton *button, const QIcon &light, const QIcon &dark)
{
    Instance()->setButtonIcon(button, light, dark);
}

void SetButtonIcon(QPushButton *button, const QString &path, const QString &darkColor)
{
    Instance()->setButtonIcon(button, path, darkColor);
}

void SetLabelIcon(QLabel *label, const QIcon &light, const QIcon &dark)
{
    Instance()->setLabelIcon(label, light, dark);
}

void SetLabelIcon(QLabel *label, const QString &path, const QString &darkColor)
{
    Instance()->setLabelIcon(label, path, darkColor);
}

} // namespace StyleHelper
