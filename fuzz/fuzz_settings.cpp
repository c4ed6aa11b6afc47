#include "fuzztarget.h"

#include "core/spinbarsettings.h"
#include "framework/settings/startlanguage.h"

using namespace Qt::StringLiterals;
using FuzzTarget::require;

// The settings file in both formats: what was taken over is stored so that it reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray content = FuzzTarget::bytes(data + 1, size - 1);
    const QString text = QString::fromUtf8(content);
    // Built once: what a form needs of each property takes far longer than a short text.
    static SpinbarSettings settings(u""_s, nullptr);
    static SpinbarSettings again(u""_s, nullptr);
    settings.loadDefaults();
    again.loadDefaults();
    languageFromSettingsText(text);
    if (data[0] % 2 == 1)
        settings.loadFromJson(content);
    else
        settings.loadFromXMLString(text);

    const QString stored = settings.saveToJsonByteArray();
    again.loadFromJson(stored);
    require(again.saveToJsonByteArray() == stored, "stored JSON reads back the same");
    settings.saveToString();
    return 0;
}
