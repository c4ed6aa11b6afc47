#include "app/linkpause.h"

#include "core/spinbarmodel.h"
#include "device/serialportmanager.h"

LinkPause::LinkPause(SpinbarModel &model)
    : m_model(model)
{
    m_model.setDeviceActive(false);
    SerialPortManager::instance().closeAll();
}

LinkPause::~LinkPause()
{
    m_model.setDeviceActive(true);
}
