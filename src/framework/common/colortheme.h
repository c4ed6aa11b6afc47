#pragma once

#include <QObject>

/// The choice of the application's colours. It stands below the widgets, since settings keep it; what puts
/// it into force reopens this namespace.
namespace StyleHelper {
Q_NAMESPACE

enum ColorThemeEnum { System = 0, Light = 1, Dark = 2 };
Q_ENUM_NS(ColorThemeEnum)

} // namespace StyleHelper
