#pragma once

#include "ui/mainwindow.h"
#include "ui/spinbarcontroller.h"

#include "buttons.h"
#include "core/spinbarmodel.h"
#include "core/spinbarsettings.h"
#include "device/curlyspinbar.h"
#include "device/newspinbar.h"
#include "device/serialportmanager.h"
#include "simulator/simulatedinstrument.h"

#include <QBuffer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

/// A window as the operator has it before them, with a simulated instrument that can be plugged in.
class OperatorBench
{
public:
    /// So many times faster than a real instrument.
    static constexpr double Rate = 20.0;

    OperatorBench()
    {
        SerialPortManager::instance().setProvider([this] { return ports(); });
        model = std::make_unique<SpinbarModel>(nullptr, data.path());
        window = std::make_unique<MainWindow>(model.get(), nullptr);
        window->show();
    }

    ~OperatorBench()
    {
        window.reset();
        model.reset();
        SerialPortManager::instance().closeAll();
        SerialPortManager::instance().setProvider({});
    }
    Q_DISABLE_COPY_MOVE(OperatorBench)

    /// True when the instrument has told all that it tells at first, and can be operated.
    bool plugIn(QByteArray scenario = {}, bool powered = true, double rate = Rate)
    {
        SimulatedInstrumentOptions options;
        options.rate = rate;
        options.linkPath = data.filePath(QStringLiteral("port"));
        options.instrument.powered = powered;
        QBuffer buffer(&scenario);
        buffer.open(QIODevice::ReadOnly);
        options.instrument.scenario = Scenario::read(buffer, {}).scenario;
        instrument = std::make_unique<SimulatedInstrument>(options);
        QObject::connect(
            instrument.get(), &SimulatedInstrument::commandReceived, window.get(),
            [this](const QString &command, Instrument::Outcome, qint64) { commands += command; });
        return instrument->start() && waitForConnection(true) && QTest::qWaitFor([&] {
                   return model->device()->isPowered() == powered && !model->device()->version().isEmpty()
                          && SpinbarController::instance()->isEnabled();
               });
    }

    /// True when the instrument is there or is gone.
    bool waitForConnection(bool connected)
    {
        // The search's own rounds are seconds apart.
        constexpr int SearchMs = 300;
        QTimer search;
        QObject::connect(&search, &QTimer::timeout, &model->device()->device(),
                         &CurlyDevice::connectionTimerHandler);
        search.start(SearchMs);
        return QTest::qWaitFor([&] { return model->device()->isConnected() == connected; });
    }

    /// True when the instrument's latest command of this name is \a command.
    bool waitForCommand(const QString &command)
    {
        const QString name = command.first(command.indexOf(u'=') + 1);
        return QTest::qWaitFor([&] {
            const QStringList all = commands.filter(name);
            return !all.isEmpty() && all.constLast() == command;
        });
    }

    QAbstractButton *button(const QString &name) const { return findButton(window.get(), name); }
    void click(const QString &name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
    std::shared_ptr<QStringList> answerNext(const QString &buttonText) const
    {
        return ::answerNext(window.get(), buttonText);
    }

    template <typename Widget>
    Widget *find() const
    {
        return window->findChild<Widget *>();
    }

    QTemporaryDir data;
    std::unique_ptr<SpinbarModel> model;
    std::unique_ptr<MainWindow> window;
    std::unique_ptr<SimulatedInstrument> instrument;
    QStringList commands;

private:
    QList<PortInfo> ports() const
    {
        if (!instrument || instrument->path().isEmpty())
            return {};
        return {{QStringLiteral("COM7"), instrument->path(), {}, {}}};
    }
};
