#pragma once

#include "app/linkpause.h"

#include <QObject>

#include <chrono>
#include <memory>

class MainWindow;
class SpinbarModel;

/// Opens the service tools that the window asks for, one at a time. The instrument's port is theirs
/// meanwhile; the link is taken up again however a tool ends.
class ServiceTools : public QObject
{
    Q_OBJECT

public:
    /// For the instrument, and for adapters that are slow to let go of a port.
    static constexpr std::chrono::milliseconds WriterDelay{2000};

    /// After the window and its pages are made; both outlive it. \a writerDelay passes between giving up the
    /// port and the device writer.
    ServiceTools(SpinbarModel *model, MainWindow *window,
                 std::chrono::milliseconds writerDelay = WriterDelay);

private:
    void updateFirmware();
    void prepareDeviceWriter();
    void runDeviceWriter();

    SpinbarModel *m_model = nullptr;
    MainWindow *m_window = nullptr;
    std::chrono::milliseconds m_writerDelay;
    /// While a tool is open or about to be.
    std::unique_ptr<LinkPause> m_pause;
};
