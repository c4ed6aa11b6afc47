#include "fuzztarget.h"

#include "framework/common/widgets/svgtext.h"
#include "framework/common/widgets/themetext.h"

using namespace Qt::StringLiterals;
using FuzzTarget::require;

namespace {

constexpr QSize IconSize(24, 24);

void drawing(const QString &text)
{
    SvgText::rendered(SvgText::recolored(text, u"#4080ff"_s, u"#000000"_s), IconSize);
    SvgText::rendered(SvgText::withRootFill(text, u"red"_s), IconSize);
}

void theme(const QString &text)
{
    const ThemeText::Variables variables = ThemeText::parse(text);
    const QString sheet = ThemeText::substituted(text, variables);
    require(sheet.size() <= 8 * 1024 * 1024, "no theme grows without end");
}

} // namespace

// Icons and themes, which a user may replace.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QString text = QString::fromUtf8(FuzzTarget::bytes(data + 1, size - 1));
    if (data[0] % 2 == 1)
        drawing(text);
    else
        theme(text);
    return 0;
}
