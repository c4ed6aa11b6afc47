#include "app/servicetools.h"

#include "core/spinbarmodel.h"
#include "core/spinbarsettings.h"
#include "device/serialportmanager.h"
#include "framework/common/widgets/apphelperdialogs.h"
#include "framework/common/widgets/applicationlook.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/settings/languagecontext.h"
#include "framework/settings/startlanguage.h"
#include "ui/mainwindow.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr int RunningAppsAttempts = 10;

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Spinbar"_s);
    QApplication::setApplicationVersion(QStringLiteral(SPINBAR_VERSION));
    if (AppHelper::checkAndCloseIfAppsRunning({u"Cagelight"_s, u"Spinbar"_s}, RunningAppsAttempts))
        return 0;
    // The model asks for the ports at once, and the system takes as long to list them as the fonts to load.
    SerialPortManager::instance().listAhead();
    ApplicationLook::installFonts();
    ApplicationLook::installThemes();
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
