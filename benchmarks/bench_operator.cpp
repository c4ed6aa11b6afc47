#include "core/spinbarmodel.h"
#include "device/curlyspinbar.h"
#include "device/newspinbar.h"
#include "simulator/simulatedinstrument.h"
#include "ui/directjumpslider.h"
#include "ui/mainwindow.h"
#include "ui/speedcontrol.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <malloc.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int ConnectTimeoutMs = 20'000;

/// As the program's own event loop runs: QTest's waiting sleeps in between, which is neither as quick nor as
/// thrifty.
void runFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// The operator's window, recording or ready to.
class Operator
{
public:
    explicit Operator(const QString &port)
    {
        qputenv("SPINBAR_SERIAL_PORTS", port.toUtf8());
        m_model = std::make_unique<SpinbarModel>(nullptr, m_data.path());
        m_window = std::make_unique<MainWindow>(m_model.get(), nullptr);
        m_window->show();
    }

    bool connectInstrument()
    {
        constexpr int SearchMs = 300;
        QTimer search;
        QObject::connect(&search, &QTimer::timeout, &m_model->device()->device(),
                         &CurlyDevice::connectionTimerHandler);
        search.start(SearchMs);
        const CurlySpinbar *device = m_model->device();
        return QTest::qWaitFor([device] { return device->isConnected() && device->isPowered(); },
                               ConnectTimeoutMs);
    }

    SpinbarModel &model() { return *m_model; }
    DirectJumpSlider *speedSlider() const
    {
        return m_window->findChild<SpeedControl *>()->findChild<DirectJumpSlider *>();
    }

private:
    QTemporaryDir m_data;
    std::unique_ptr<SpinbarModel> m_model;
    std::unique_ptr<MainWindow> m_window;
};

/// In a process of its own, so that its work isn't counted.
class InstrumentProcess
{
public:
    explicit InstrumentProcess(int rate)
    {
        m_process.start(QStringLiteral(SPINBAR_SIMULATOR),
                        {u"--link"_s, port(), u"--rate"_s, QString::number(rate)});
        m_process.waitForReadyRead();
    }

    ~InstrumentProcess()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(InstrumentProcess)

    QString port() const { return m_folder.filePath(u"instrument"_s); }

private:
    QTemporaryDir m_folder;
    QProcess m_process;
};

bool startRecording(Operator &work)
{
    constexpr int SomeSpeed = 2000;
    if (!work.connectInstrument())
        return false;
    work.speedSlider()->setValue(SomeSpeed);
    work.model().startRecord({});
    return work.model().currentRecord();
}

/// Goal: under 3 % of one core.
void recordInVisibleWindow(benchmark::State &state)
{
    constexpr int MeasuredMs = 20'000;
    const InstrumentProcess instrument(1);
    Operator work(instrument.port());
    if (!startRecording(work))
        return state.SkipWithError("no instrument");
    for (auto _ : state) {
        const std::clock_t start = std::clock();
        runFor(MeasuredMs);
        const double usedMs = 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
        state.counters["percent"] = 100 * usedMs / MeasuredMs;
    }
}
BENCHMARK(recordInVisibleWindow)->Iterations(1)->Repetitions(1)->Unit(benchmark::kMillisecond)->UseRealTime();

std::size_t heapBytes()
{
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

/// False if none comes for so long that the link must have been found lost and built up again by then. How
/// long all of them take is not asked: a busy machine sends and reads fewer in a second.
bool waitForLines(Operator &work, int count)
{
    constexpr int SilenceMs = 60'000;
    QEventLoop loop;
    QTimer silence;
    QObject::connect(&silence, &QTimer::timeout, &loop, &QEventLoop::quit);
    silence.start(SilenceMs);
    int lines = 0;
    QObject::connect(work.model().device(), &CurlySpinbar::newStatus, &loop, [&] {
        silence.start();
        if (++lines == count)
            loop.quit();
    });
    loop.exec();
    return lines >= count;
}

/// Goal: at most 64 bytes a status line, which is what the record itself holds.
void recordAnHourAtTwentyTimesTheRate(benchmark::State &state)
{
    constexpr int Rate = 20;
    constexpr int WarmUpLines = 1000;
    constexpr int LinesPerHour = 3600 * 5;
    const InstrumentProcess instrument(Rate);
    Operator work(instrument.port());
    if (!startRecording(work))
        return state.SkipWithError("no instrument");
    if (!waitForLines(work, WarmUpLines))
        return state.SkipWithError("no messages");
    for (auto _ : state) {
        const std::size_t before = heapBytes();
        if (!waitForLines(work, LinesPerHour))
            state.SkipWithError("the messages ceased");
        state.counters["bytesPerLine"] = (double(heapBytes()) - double(before)) / LinesPerHour;
    }
}
BENCHMARK(recordAnHourAtTwentyTimesTheRate)
    ->Iterations(1)
    ->Repetitions(1)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

/// Goal: at most 60 ms at the 99th percentile, which is one tick of the exchange and a little.
void speedFromSliderToWire(benchmark::State &state)
{
    constexpr int Commands = 1000;
    constexpr int LongestPauseMs = 50;
    SimulatedInstrument instrument;
    instrument.start();
    Operator work(instrument.path());
    if (!work.connectInstrument())
        return state.SkipWithError("no instrument");
    QString awaited;
    bool arrived = false;
    QObject::connect(&instrument, &SimulatedInstrument::commandReceived, &instrument,
                     [&](const QString &command) { arrived |= command == awaited; });
    QRandomGenerator random(1);
    std::vector<qint64> delaysUs;
    for (auto _ : state) {
        for (int i = 0; i < Commands; ++i) {
            runFor(random.bounded(LongestPauseMs));
            const int speed = 1 + i;
            awaited = u"rotate=%1"_s.arg(speed / 1000.0, 0, 'f', 3);
            arrived = false;
            QElapsedTimer timer;
            timer.start();
            work.speedSlider()->setValue(speed);
            while (!arrived && !timer.hasExpired(ConnectTimeoutMs))
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            delaysUs.push_back(timer.nsecsElapsed() / 1000);
        }
    }
    std::sort(delaysUs.begin(), delaysUs.end());
    const auto percentile = [&](double part) {
        return double(delaysUs[std::size_t(part * double(delaysUs.size() - 1))]) / 1000;
    };
    state.counters["medianMs"] = percentile(0.5);
    state.counters["p99Ms"] = percentile(0.99);
    state.counters["maxMs"] = percentile(1);
}
BENCHMARK(speedFromSliderToWire)->Iterations(1)->Repetitions(1)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
