#include "app/servicetools.h"

#include "ui/mainwindow.h"

#include "core/spinbarmodel.h"
#include "core/spinbarsettings.h"
#include "framework/common/widgets/apphelperdialogs.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/settings/languagecontext.h"
#include "framework/settings/startlanguage.h"
#include "ui/mainwindow.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

using namespace Qt::StringLiterals;

namespace {

constexpr int RunningAppsAttempts = 10;
constexpr int FontPixels = 15;

void installFonts()
{
    for (const char *style : {"Regular", "Italic", "Bold", "BoldItalic"})
        QFontDatabase::addApplicationFont(
            u":/resources/fonts/OpenSans/OpenSans_SemiCondensed-%1.ttf"_s.arg(QLatin1StringView(style)));
    QFont font = QApplication::font();
    font.setFamily(u"Open Sans SemiCondensed"_s);
    font.setPixelSize(FontPixels);
    QApplication::setFont(font);
}

void installThemes()
{
    StyleHelper::Styler *styler = StyleHelper::Instance();
    styler->addStyleFile(u":/themes/nt.theme.css"_s);
    styler->addThemeFile(u":/themes/light.css"_s, u"light"_s);
    styler->addThemeFile(u":/themes/dark.css"_s, u"dark"_s);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Spinbar"_s);
    QApplication::setApplicationVersion(QStringLiteral(SPINBAR_VERSION));
    if (AppHelper::checkAndCloseIfAppsRunning({u"Cagelight"_s, u"Spinbar"_s}, RunningAppsAttempts))
        return 0;
    installFonts();
    installThemes();
    LanguageContext::setSearchesApplicationFolder(false);
    // Before the model: the settings translate their captions when they are built.
    LanguageContext::setLanguage(startLanguage(SpinbarModel::settingsFilePath()));

    SpinbarModel model;
    StyleHelper::InterlinkTheme(model.settings(), u"ColorTheme"_s);
    MainWindow window(&model, nullptr);
    const ServiceTools tools(&model, &window);
    if (model.settings()->getStartMaximized())
        window.showMaximized();
    else
        window.show();
    return QApplication::exec();
}
