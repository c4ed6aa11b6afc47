#pragma once

/// Makes the device classes that the application does not create itself, and their enumerations, known by
/// name to the meta-type system, which can then construct them.
namespace DeviceTypes {

void registerAll();

} // namespace DeviceTypes
