#include "framework/common/widgets/applicationlook.h"

#include "framework/common/widgets/stylehelper.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

using namespace Qt::StringLiterals;

namespace {

constexpr int FontPixels = 15;

} // namespace

void ApplicationLook::installFonts()
{
    for (const char *face : {"Regular", "Italic", "Bold", "BoldItalic"})
        QFontDatabase::addApplicationFont(
            u":/resources/fonts/OpenSans/OpenSans_SemiCondensed-%1.ttf"_s.arg(QLatin1StringView(face)));
    QFont font = QApplication::font();
    font.setFamily(u"Open Sans SemiCondensed"_s);
    font.setPixelSize(FontPixels);
    QApplication::setFont(font);
}

void ApplicationLook::installThemes()
{
    StyleHelper::Styler *styler = StyleHelper::Instance();
    styler->addStyleFile(u":/themes/nt.theme.css"_s);
    styler->addThemeFile(u":/themes/light.css"_s, u"light"_s);
    styler->addThemeFile(u":/themes/dark.css"_s, u"dark"_s);
}
