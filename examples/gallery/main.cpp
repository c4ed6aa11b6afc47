// Shows every widget of the kit, in both themes and languages: `spinbar_gallery [--pictures FOLDER]`.

#include "gallery/gallerywindow.h"

#include "framework/common/widgets/applicationlook.h"
#include "framework/settings/languagecontext.h"

#include <QApplication>
#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize WindowSize(1100, 780);

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Gallery"_s);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption pictures(
        u"pictures"_s, u"Saves a picture of each page in both themes and languages, and ends."_s,
        u"FOLDER"_s);
    parser.addOption(pictures);
    parser.process(application);
    ApplicationLook::installFonts();
    ApplicationLook::installThemes();
    LanguageContext::setLanguage(LanguageContext::systemLanguage());
    GalleryWindow window;
    window.resize(WindowSize);
    window.show();
    if (parser.isSet(pictures))
        return window.takePictures(parser.value(pictures)) ? 0 : 1;
    return QApplication::exec();
}
