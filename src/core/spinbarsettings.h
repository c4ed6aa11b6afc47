#pragma once

#include "device/curlyspinbar.h"
#include "device/curlyspinbardevice.h"

#include "framework/common/colortheme.h"
#include "framework/settings/ntsettings.h"

/// The application's settings: a declaration and nothing more. The order is that of the elements in the file;
/// program start finds the language there by a text search, so it comes first.
class SpinbarSettings : public NTSettings
{
    Q_OBJECT

public:
    enum SpinbarLanguage { en_US = 0, ru_RU = 1 };
    Q_ENUM(SpinbarLanguage)

    enum ExportBehaviorOption { OnExport_OpenFile = 0, OnExport_OpenFolder = 1, OnExport_DoNothing = 2 };
    Q_ENUM(ExportBehaviorOption)

    NT_PROPERTY(SpinbarLanguage, Language, SpinbarLanguage::ru_RU)
    Q_CLASSINFO("LanguageCategory", "1.Common")
    Q_CLASSINFO("LanguageNoDefault", "true")

    NT_PROPERTY(StyleHelper::ColorThemeEnum, ColorTheme, StyleHelper::ColorThemeEnum::System)
    Q_CLASSINFO("ColorThemeCategory", "1.Common")

    NT_PROPERTY(bool, StartMaximized, true)
    Q_CLASSINFO("StartMaximizedCategory", "1.Common")

    NT_PROPERTY(ExportBehaviorOption, ExportBehavior, ExportBehaviorOption::OnExport_OpenFile)
    Q_CLASSINFO("ExportBehaviorCategory", "1.Common")

    NT_PROPERTY(CurlySpinbarDevice::RodentMode, RodentMode, CurlySpinbarDevice::RodentMode::Rats)
    Q_CLASSINFO("RodentModeCategory", "2.Experiment")
    Q_CLASSINFO("RodentModeNoDefault", "true")

    NT_PROPERTY(CurlySpinbar::OutputSpeedDimension, RotationDimension,
                CurlySpinbar::OutputSpeedDimension::CentimetersPerSecond)
    Q_CLASSINFO("RotationDimensionCategory", "2.Experiment")

    NT_RANGED_PROPERTY(double, MinDetectionSeconds, 5, 0, 100, 0.1)
    Q_CLASSINFO("MinDetectionSecondsCategory", "3.Detection")
    Q_CLASSINFO("MinDetectionSecondsPrecision", "1")
    Q_CLASSINFO("MinDetectionSecondsSuffix", " s")

    NT_RANGED_PROPERTY(double, MaxTrailDetectionSeconds, 2, 0, 100, 0.1)
    Q_CLASSINFO("MaxTrailDetectionSecondsCategory", "3.Detection")
    Q_CLASSINFO("MaxTrailDetectionSecondsPrecision", "1")
    Q_CLASSINFO("MaxTrailDetectionSecondsSuffix", " s")

    NT_PROPERTY(bool, ShowIR, false)
    Q_CLASSINFO("ShowIRCategory", "3.Detection")

    // What the pages remember; no form shows it.
    NT_PROPERTY(QString, CalibrationRats, "")
    Q_CLASSINFO("CalibrationRatsNotVisible", "true")
    NT_PROPERTY(QString, CalibrationMice, "")
    Q_CLASSINFO("CalibrationMiceNotVisible", "true")
    NT_PROPERTY(QString, LastImportFolder, "")
    Q_CLASSINFO("LastImportFolderNotVisible", "true")
    NT_PROPERTY(QString, LastExportFolder, "")
    Q_CLASSINFO("LastExportFolderNotVisible", "true")
    NT_PROPERTY(QString, LastExportFilter, "")
    Q_CLASSINFO("LastExportFilterNotVisible", "true")
    NT_PROPERTY(QString, LastExperimentPath, "")
    Q_CLASSINFO("LastExperimentPathNotVisible", "true")
    NT_PROPERTY(int, SortingColumn, 0)
    Q_CLASSINFO("SortingColumnNotVisible", "true")
    NT_PROPERTY(Qt::SortOrder, SortingOrder, Qt::SortOrder::DescendingOrder)
    Q_CLASSINFO("SortingOrderNotVisible", "true")
    NT_PROPERTY(double, DatabaseSplitterRatio, 0.2)
    Q_CLASSINFO("DatabaseSplitterRatioNotVisible", "true")
    NT_PROPERTY(QString, LastSpeedScript, "")
    Q_CLASSINFO("LastSpeedScriptNotVisible", "true")

public:
    /// Stores every change in \a filepath at once; reads nothing until reload().
    SpinbarSettings(const QString &filepath, QObject *parent);

private:
    QStringList m_categoryCaptions;
    QStringList m_enumeratorCaptions;
};
