#include "service/widgets/servicedialog.h"

#include <QVBoxLayout>

ServiceDialog::ServiceDialog(QDialog *content, QWidget *parent)
    : QDialog(parent)
    , m_content(content)
{
    setWindowTitle(content->windowTitle());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    // Escape with the focus in the content ends that one only.
    connect(content, &QDialog::finished, this, &ServiceDialog::done);
}

void ServiceDialog::reject()
{
    // Once it is closed it says that it has finished.
    m_content->close();
}
