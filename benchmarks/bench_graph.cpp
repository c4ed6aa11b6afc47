#include "core/spinbarmodel.h"
#include "scripts/speedscript.h"
#include "scripts/widgets/speedscripteditor.h"
#include "scripts/widgets/speedscriptviewer.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

/// \a hours of a restless drum.
QList<double> trace(qint64 hours)
{
    constexpr qint64 samplesPerHour = 5 * 3600;
    QList<double> speeds;
    for (qint64 i = 0; i < hours * samplesPerHour; ++i)
        speeds.append(15 + 10 * std::sin(i * 0.01) + static_cast<double>(i * 7919 % 500) / 100);
    return speeds;
}

/// Goal: under 25 ms for a day, and the same for any length.
void paintRecord(benchmark::State &state)
{
    constexpr int stays = 500;
    const int lanes = static_cast<int>(state.range(1));
    SpeedScriptViewer viewer(nullptr, false, nullptr);
    viewer.resize(1200, 220);
    QList<ExperimentItem> bars;
    for (int i = 0; i < stays; ++i)
        bars.append({i * 1'900, i * 1'900 + 5'000, i % lanes, 0.0, true, {}});
    viewer.setTimeSpan(static_cast<double>(state.range(0)) * 3600);
    viewer.setSpeedTrace(trace(state.range(0)));
    viewer.setLanes(lanes, bars);
    QImage target(viewer.size(), QImage::Format_RGB32);
    for (auto _ : state)
        viewer.render(&target);
}
BENCHMARK(paintRecord)
    ->Args({1, 7})
    ->Args({6, 7})
    ->Args({24, 7})
    ->Args({24, 4})
    ->Unit(benchmark::kMillisecond);

ScriptPoints waves(int count)
{
    ScriptPoints points;
    for (int i = 0; i < count; ++i)
        points.append({1000.0 * i / count, 15 + 14 * std::sin(i * 0.3)});
    return points;
}

/// Drags the point that a press on the left edge makes, one pixel and one repaint at a time.
void drag(benchmark::State &state, SpeedScriptViewer &viewer)
{
    QApplication::processEvents(); // exposes the window: only then is anything painted
    const auto mouse = [&viewer](QEvent::Type type, QPoint position) {
        QCursor::setPos(viewer.mapToGlobal(position));
        QMouseEvent event(type, position, viewer.mapToGlobal(position), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(&viewer, &event);
    };
    const QRect plot = viewer.plotRectangle();
    mouse(QEvent::MouseButtonPress, {plot.left(), plot.center().y()});
    int y = plot.top();
    for (auto _ : state) {
        y = y < plot.bottom() ? y + 1 : plot.top();
        mouse(QEvent::MouseMove, {plot.center().x(), y});
        QApplication::processEvents();
    }
    mouse(QEvent::MouseButtonRelease, plot.center());
    state.counters["points"] = static_cast<double>(state.range(0));
}

/// One step of the mouse with its repaint. Goal: under 8 ms with 200 points.
void dragStep(benchmark::State &state)
{
    const QTemporaryDir folder;
    SpeedScript script(folder.filePath(QStringLiteral("script.xml")));
    script.setDurationSeconds(1000);
    script.setPointList(waves(static_cast<int>(state.range(0))));
    SpeedScriptViewer viewer(&script, true, nullptr);
    viewer.resize(900, 600);
    viewer.show();
    drag(state, viewer);
}
BENCHMARK(dragStep)->Arg(10)->Arg(200)->Unit(benchmark::kMillisecond);

/// The same in the widget with the list of scripts and the form over the graph.
void dragStepInEditor(benchmark::State &state)
{
    const QTemporaryDir folder;
    SpinbarModel model(nullptr, folder.path());
    {
        SpeedScript script(model.scriptsFolder() + QStringLiteral("script.xml"));
        script.setDurationSeconds(1000);
        script.setPointList(waves(static_cast<int>(state.range(0))));
        script.storePoints();
        script.save();
    }
    SpeedScriptEditor editor(model, nullptr);
    editor.resize(900, 700);
    editor.show();
    drag(state, *editor.findChild<SpeedScriptViewer *>());
}
BENCHMARK(dragStepInEditor)->Arg(200)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
