#include "app/servicetools.h"

#include "service/widgets/comupdaterwidget.h"
#include "service/widgets/servicedialog.h"
#include "service/widgets/spinbarwriterwidget.h"
#include "ui/mainwindow.h"
#include "ui/spinbarcontroller.h"

#include <QDialog>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ServiceTools::ServiceTools(SpinbarModel *model, MainWindow *window, std::chrono::milliseconds writerDelay)
    : m_model(model)
    , m_window(window)
    , m_writerDelay(writerDelay)
{
    connect(window, &MainWindow::deviceWriterRequested, this, &ServiceTools::prepareDeviceWriter);
    if (const SpinbarController *controller = SpinbarController::instance())
        connect(controller, &SpinbarController::firmwareUpdateRequested, this, &ServiceTools::updateFirmware);
}

void ServiceTools::updateFirmware()
{
    if (m_pause)
        return;
    m_pause = std::make_unique<LinkPause>(*m_model);
    auto *updater =
        new ComUpdaterWidget(FirmwareTarget::Kind::Avr, u"bfw"_s, u"self-avrdude.exe"_s, {}, nullptr);
    ServiceDialog dialog(updater, SpinbarController::instance());
    dialog.exec();
    m_pause.reset();
}

void ServiceTools::prepareDeviceWriter()
{
    if (m_pause)
        return;
    m_pause = std::make_unique<LinkPause>(*m_model);
    QTimer::singleShot(m_writerDelay, this, &ServiceTools::runDeviceWriter);
}

void ServiceTools::runDeviceWriter()
{
    // It may have been closed in the meantime.
    if (m_window->isVisible()) {
        QDialog dialog(m_window);
        dialog.setWindowTitle(SpinbarWriterWidget::tr("Device writer"));
        auto *layout = new QVBoxLayout(&dialog);
        layout->addWidget(new SpinbarWriterWidget(&dialog));
        dialog.exec();
    }
    m_pause.reset();
}
