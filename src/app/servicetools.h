#pragma once

#include "app/linkpause.h"

#include <QObject>

#include <chrono>
#include <memory>

class MainWindow;
class SpinbarModel;

/// Opens the service tools that the main window asks for, one at a time, and keeps the link to the instrument
/// off meanwhile.
class ServiceTools : public QObject
{
    Q_OBJECT

public:
    /// For the instrument, and for adapters that are slow to let go of a port.
    static constexpr std::chrono::milliseconds WriterDelay{2000};

    /// Both outlive it. \a writerDelay passes between giving up the port and the device writer.
    ServiceTools(SpinbarModel *model, MainWindow *window,
                 std::chrono::milliseconds writerDelay = WriterDelay);

private:
    void prepareDeviceWriter();
    void runDeviceWriter();

    SpinbarModel *m_model = nullptr;
    MainWindow *m_window = nullptr;
    std::chrono::milliseconds m_writerDelay;
    /// While a tool is open or about to be.
    std::unique_ptr<LinkPause> m_pause;
};
