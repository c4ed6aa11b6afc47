#pragma once

/// The look that the programs with a window share. Both need the application object and the resources.
namespace ApplicationLook {

/// Registers the fonts that the resources carry and makes them the application's.
void installFonts();

/// The style sheet with its light and dark theme; none is selected yet.
void installThemes();

} // namespace ApplicationLook
