#pragma once

#include <QObject>

/// The words of the shelter's settings.
namespace ShelterBaseDevice {
Q_NAMESPACE

enum ShelterAction { Curcuit, Light, Sound };
Q_ENUM_NS(ShelterAction)

enum ShelterSide { Both, Left, Right };
Q_ENUM_NS(ShelterSide)

enum ShelterSideness { LeftSide, RightSide };
Q_ENUM_NS(ShelterSideness)

} // namespace ShelterBaseDevice
