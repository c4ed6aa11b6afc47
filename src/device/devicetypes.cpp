#include "device/devicetypes.h"

#include "device/curlyshelterdevice.h"
#include "device/oldspinbar.h"
#include "device/shelterbasedevice.h"

void DeviceTypes::registerAll()
{
    qRegisterMetaType<OldSpinbar>();
    qRegisterMetaType<CurlyShelterDevice>();
    qRegisterMetaType<ShelterBaseDevice::ShelterAction>();
    qRegisterMetaType<ShelterBaseDevice::ShelterSide>();
    qRegisterMetaType<ShelterBaseDevice::ShelterSideness>();
}
