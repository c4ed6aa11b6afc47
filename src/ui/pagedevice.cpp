#include "ui/pagedevice.h"

#include "ui/spinbarcontroller.h"

#include "core/spinbarmodel.h"

#include <QVBoxLayout>

PageDevice::PageDevice(QWidget *parent)
    : QWidget(parent)
{
    setContentsMargins(0, 0, 0, 0);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new SpinbarController(SpinbarModel::instance()->device(), this));
}
