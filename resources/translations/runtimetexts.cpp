#include <QtGlobal>

// Texts that no source file hands to tr() or translate() as a literal: they are made of property and
// enumerator names or are asked for in a language that is not installed. Standing here they are found like
// all other texts of the sources.

namespace {

[[maybe_unused]] constexpr const char *PropertyTexts[] = {
    QT_TRANSLATE_NOOP("Generic", "1.Common"),
    QT_TRANSLATE_NOOP("Generic", "2.Experiment"),
    QT_TRANSLATE_NOOP("Generic", "3.Detection"),
    QT_TRANSLATE_NOOP("Generic", "Other"),
    QT_TRANSLATE_NOOP("Generic", "Language"),
    QT_TRANSLATE_NOOP("Generic", "ColorTheme"),
    QT_TRANSLATE_NOOP("Generic", "StartMaximized"),
    QT_TRANSLATE_NOOP("Generic", "ExportBehavior"),
    QT_TRANSLATE_NOOP("Generic", "RodentMode"),
    QT_TRANSLATE_NOOP("Generic", "RotationDimension"),
    QT_TRANSLATE_NOOP("Generic", "MinDetectionSeconds"),
    QT_TRANSLATE_NOOP("Generic", "MaxTrailDetectionSeconds"),
    QT_TRANSLATE_NOOP("Generic", "ShowIR"),
    QT_TRANSLATE_NOOP("Generic", "DurationSeconds"),
    QT_TRANSLATE_NOOP("Generic", "Infinite"),
    QT_TRANSLATE_NOOP("Generic", "Loops"),
    // A suffix with a leading blank is looked up with it in the settings' own captions and without it in
    // forms.
    QT_TRANSLATE_NOOP("Generic", " s"),
    QT_TRANSLATE_NOOP("Generic", "s"),
};

[[maybe_unused]] constexpr const char *EnumeratorTexts[] = {
    QT_TRANSLATE_NOOP("SpinbarLanguage", "en_US"),
    QT_TRANSLATE_NOOP("SpinbarLanguage", "ru_RU"),
    QT_TRANSLATE_NOOP("ColorThemeEnum", "System"),
    QT_TRANSLATE_NOOP("ColorThemeEnum", "Light"),
    QT_TRANSLATE_NOOP("ColorThemeEnum", "Dark"),
    QT_TRANSLATE_NOOP("ExportBehaviorOption", "OnExport_OpenFile"),
    QT_TRANSLATE_NOOP("ExportBehaviorOption", "OnExport_OpenFolder"),
    QT_TRANSLATE_NOOP("ExportBehaviorOption", "OnExport_DoNothing"),
    QT_TRANSLATE_NOOP("RodentMode", "Rats"),
    QT_TRANSLATE_NOOP("RodentMode", "Mice"),
    QT_TRANSLATE_NOOP("OutputSpeedDimension", "RotationsPerSecond"),
    QT_TRANSLATE_NOOP("OutputSpeedDimension", "RotationsPerMinute"),
    QT_TRANSLATE_NOOP("OutputSpeedDimension", "MetersPerSecond"),
    QT_TRANSLATE_NOOP("OutputSpeedDimension", "CentimetersPerSecond"),
    QT_TRANSLATE_NOOP("OutputSpeedDimension", "KilometersPerHour"),
    QT_TRANSLATE_NOOP("ShelterAction", "Curcuit"),
    QT_TRANSLATE_NOOP("ShelterAction", "Light"),
    QT_TRANSLATE_NOOP("ShelterAction", "Sound"),
    QT_TRANSLATE_NOOP("ShelterSide", "Both"),
    QT_TRANSLATE_NOOP("ShelterSide", "Left"),
    QT_TRANSLATE_NOOP("ShelterSide", "Right"),
    QT_TRANSLATE_NOOP("ShelterSideness", "LeftSide"),
    QT_TRANSLATE_NOOP("ShelterSideness", "RightSide"),
};

// Headings, units and statistics of the tables.
[[maybe_unused]] constexpr const char *TableTexts[] = {
    QT_TRANSLATE_NOOP("Generic", "Index"),      QT_TRANSLATE_NOOP("Generic", "Interval"),
    QT_TRANSLATE_NOOP("Generic", "Time"),       QT_TRANSLATE_NOOP("Generic", "Distance"),
    QT_TRANSLATE_NOOP("Generic", "Rotations"),  QT_TRANSLATE_NOOP("Generic", "Avg.speed"),
    QT_TRANSLATE_NOOP("Generic", "Fall speed"), QT_TRANSLATE_NOOP("Generic", "Date"),
    QT_TRANSLATE_NOOP("Generic", "Title"),      QT_TRANSLATE_NOOP("Generic", "Rodent"),
    QT_TRANSLATE_NOOP("Generic", "Comment"),    QT_TRANSLATE_NOOP("Generic", "N"),
    QT_TRANSLATE_NOOP("Generic", "m"),          QT_TRANSLATE_NOOP("Generic", " m"),
    QT_TRANSLATE_NOOP("Generic", "m/s"),        QT_TRANSLATE_NOOP("Generic", "Average value"),
    QT_TRANSLATE_NOOP("Generic", "Dispersion"), QT_TRANSLATE_NOOP("Generic", "Standard deviation"),
};

// Units of the graph.
[[maybe_unused]] constexpr const char *GraphTexts[] = {
    QT_TRANSLATE_NOOP("Generic", "rps"),     QT_TRANSLATE_NOOP("Generic", "rpm"),
    QT_TRANSLATE_NOOP("Generic", "cm/s"),    QT_TRANSLATE_NOOP("Generic", "km/h"),
    QT_TRANSLATE_NOOP("Generic", "seconds"),
};

// The question before a change of language is put in the running and in the chosen language.
[[maybe_unused]] constexpr const char *LanguageChangeTexts[] = {
    QT_TRANSLATE_NOOP("Generic", "Language change"),
    QT_TRANSLATE_NOOP("Generic",
                      "To translate the app to the other language a restart is required. \nRestart now?"),
    QT_TRANSLATE_NOOP("Generic", "OK"),
    QT_TRANSLATE_NOOP("Generic", "Not now"),
    QT_TRANSLATE_NOOP("Generic", "Cancel"),
};

// The application's name, as shown.
[[maybe_unused]] constexpr const char *ApplicationTexts[] = {QT_TRANSLATE_NOOP("Generic", "Spinbar")};

} // namespace
