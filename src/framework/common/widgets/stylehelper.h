#pragma once

#include "framework/common/colortheme.h"
#include "framework/common/connectionhelper.h"
#include "framework/common/widgets/themetext.h"

#include <QColor>
#include <QIcon>
#include <QMap>
#include <QObject>
#include <QString>

#include <functional>

class QAction;
class QLabel;
class QPushButton;
class QWidget;

namespace StyleHelper {

/// The look of the application: one style sheet with placeholders and named themes that fill them. Main
/// thread only.
class Styler : public QObject
{
    Q_OBJECT

public:
    Styler();

    /// Adds a style sheet; the sheets are put together in the order of their paths.
    void addStyleFile(const QString &path);
    void addThemeFile(const QString &path, const QString &name);

    /// Puts a theme into force, and always emits changed(). The application is styled anew only if that makes
    /// a difference, since it costs tens of milliseconds with a window open. An unknown name changes nothing.
    void selectTheme(const QString &name);

    QStringList themes() const { return m_themes.keys(); }
    QString currentTheme() const { return m_currentTheme; }
    bool isDark() const { return m_dark; }

    QColor getThemeColor(const QString &name, const QColor &fallback) const;
    QString getThemeValue(const QString &name, const QString &fallback) const;

    /// Wins over the theme's variable of that name. The style sheet follows with the next selectTheme().
    void setCustomValue(const QString &name, const QString &value);

    /// The black drawing at \a path as the theme in force needs it: with \a darkColor in the place of black
    /// in the dark one. It doesn't follow later changes.
    QIcon icon(const QString &path, const QString &darkColor) const;

    /// These follow the theme for as long as the target lives. A null \a dark means the light icon for good.
    void setButtonIcon(QPushButton *button, const QIcon &light, const QIcon &dark);
    void setLabelIcon(QLabel *label, const QIcon &light, const QIcon &dark);
    void setMenuActionIcon(QAction *action, const QIcon &light, const QIcon &dark);

    /// With icon(\a path, \a darkColor).
    void setButtonIcon(QPushButton *button, const QString &path, const QString &darkColor);
    void setLabelIcon(QLabel *label, const QString &path, const QString &darkColor);
    void setMenuActionIcon(QAction *action, const QString &path, const QString &darkColor);

    void setStyledBackground(QWidget *widget, const QString &name, const QColor &fallback);

signals:
    void changed();

private:
    QString sheet() const;
    void applySheet();
    void follow(QObject *target, const std::function<void()> &apply);

    bool m_dark = false;
    ThemeText::Variables m_variables;
    QMap<QString, ThemeText::Variables> m_themes;
    QMap<QString, QString> m_styleFiles;
    ThemeText::Variables m_customValues;
    QString m_currentTheme;
    QString m_styleName;
    ConnectionHelper m_connections;
};

/// Made at the first call, which has to come after the application's font is set, and never destroyed.
Styler *Instance();

QColor ThemeColor(const QString &name, const QColor &fallback);
QString ThemeValue(const QString &name, const QString &fallback);
/// A colour chosen for a light ground, as light as it has to be in the theme in force.
QColor ReadableColor(const QColor &color);

/// Styler::icon().
QIcon ColoredIcon(const QString &path, const QString &darkColor);

/// Selects the theme "light" or "dark" by \a property of \a settings, at once and on every change of it, and
/// with the value System by the operating system's changes too. Nothing for a null object or an empty name.
void InterlinkTheme(QObject *settings, const QString &property);

void SetButtonIcon(QPushButton *button, const QIcon &light, const QIcon &dark);
void SetButtonIcon(QPushButton *button, const QString &path, const QString &darkColor);
void SetLabelIcon(QLabel *label, const QIcon &light, const QIcon &dark);
void SetLabelIcon(QLabel *label, const QString &path, const QString &darkColor);

} // namespace StyleHelper
