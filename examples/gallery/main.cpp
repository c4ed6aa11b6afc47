// Shows every widget of the kit, in both themes and languages: `spinbar_gallery [--pictures FOLDER]`.

#include "gallery/gallerywindow.h"

#include "framework/common/widgets/stylehelper.h"
#include "framework/settings/languagecontext.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFont>
#include <QFontDatabase>

using namespace Qt::StringLiterals;

namespace {

constexpr int FontPixels = 15;
constexpr QSize WindowSize(1100, 780);

void installLook()
{
    for (const QString &face : {u"Regular"_s, u"Italic"_s, u"Bold"_s, u"BoldItalic"_s})
        QFontDatabase::addApplicationFont(
            u":/resources/fonts/OpenSans/OpenSans_SemiCondensed-%1.ttf"_s.arg(face));
    QFont font(u"Open Sans SemiCondensed"_s);
    font.setPixelSize(FontPixels);
    QApplication::setFont(font);
    StyleHelper::Styler *styler = StyleHelper::Instance();
    styler->addStyleFile(u":/themes/nt.theme.css"_s);
    styler->addThemeFile(u":/themes/light.css"_s, u"light"_s);
    styler->addThemeFile(u":/themes/dark.css"_s, u"dark"_s);
}

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
    installLook();
    LanguageContext::setLanguage(LanguageContext::systemLanguage());
    GalleryWindow window;
    window.resize(WindowSize);
    window.show();
    if (parser.isSet(pictures))
        return window.takePictures(parser.value(pictures)) ? 0 : 1;
    return QApplication::exec();
}
