#include "app/servicetools.h"

#include "service/widgets/spinbarwriterwidget.h"
#include "ui/mainwindow.h"

#include <QDialog>
#include <QTimer>
#include <QVBoxLayout>

ServiceTools::ServiceTools(SpinbarModel *model, MainWindow *window, std::chrono::milliseconds writerDelay)
    : m_model(model)
    , m_window(window)
    , m_writerDelay(writerDelay)
{
    connect(window, &MainWindow::deviceWriterRequested, this, &ServiceTools::prepareDeviceWriter);
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
