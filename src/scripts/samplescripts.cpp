#include "scripts/samplescripts.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Sample
{
    const char *file;
    const char *title;
};

constexpr char Context[] = "SampleScripts";

constexpr Sample Samples[] = {
    {"accelerating-slope-4-40",
     QT_TRANSLATE_NOOP("SampleScripts", "Accelerating 4 to 30 rpm, slope of 4 to 40 in 300 s")},
    {"accelerating-4-30", QT_TRANSLATE_NOOP("SampleScripts", "Accelerating 4 to 30 rpm in 300 s")},
    {"accelerating-4-30-waiting",
     QT_TRANSLATE_NOOP("SampleScripts", "Accelerating 4 to 30 rpm in 300 s after 10 s at 4 rpm")},
    {"accelerating-4-30-fast", QT_TRANSLATE_NOOP("SampleScripts", "Accelerating 4 to 30 rpm in 60 s")},
    {"accelerating-5-25", QT_TRANSLATE_NOOP("SampleScripts", "Accelerating 5 to 25 rpm in 180 s")},
    {"constant-4", QT_TRANSLATE_NOOP("SampleScripts", "Constant 4 rpm for 300 s")},
    {"constant-5", QT_TRANSLATE_NOOP("SampleScripts", "Constant 5 rpm for 60 s")},
    {"constant-12", QT_TRANSLATE_NOOP("SampleScripts", "Constant 12 rpm for 60 s")},
    {"constant-16", QT_TRANSLATE_NOOP("SampleScripts", "Constant 16 rpm for 60 s")},
    {"constant-20", QT_TRANSLATE_NOOP("SampleScripts", "Constant 20 rpm for 60 s")},
    {"steps-of-5", QT_TRANSLATE_NOOP("SampleScripts", "Steps of 5 rpm every 30 s")},
    {"rats-steps-of-3", QT_TRANSLATE_NOOP("SampleScripts", "Rats, steps of 3 rpm every 10 s")},
};

} // namespace

QList<SampleScript> sampleScripts()
{
    QList<SampleScript> scripts;
    for (const Sample &sample : Samples)
        scripts.append({QCoreApplication::translate(Context, sample.title),
                        u":/resources/sample-scripts/%1.xml"_s.arg(QLatin1StringView(sample.file))});
    return scripts;
}
