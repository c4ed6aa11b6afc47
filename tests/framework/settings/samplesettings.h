#pragma once

#include "framework/settings/ntsettings.h"
#include "framework/settings/valuetext.h"

#include <QPoint>
#include <QSize>

/// A settings class with a property of every kind that a file can hold.
class SampleSettings : public NTSettings
{
    Q_OBJECT

public:
    enum class Mode { Slow, Fast };
    Q_ENUM(Mode)

private:
    NT_PROPERTY(Mode, Drive, SampleSettings::Mode::Fast)
    Q_CLASSINFO("DriveNoDefault", "true")
    Q_CLASSINFO("DriveCategory", "1.Common")

    NT_RANGED_PROPERTY(double, Delay, 5, 0, 100, 0.1)
    Q_CLASSINFO("DelayPrecision", "1")
    Q_CLASSINFO("DelaySuffix", " s")
    Q_CLASSINFO("DelayPriority", "3")

    NT_RANGED_PROPERTY(int, Count, 2, 1, 10, 1)
    Q_CLASSINFO("CountVisibleBound", "!Active;Drive:Slow|Fast;At:12:30")
    Q_CLASSINFO("CountSuffix", "!-pcs")

    NT_PROPERTY(bool, Active, true)
    NT_PROPERTY(QString, Title, "")
    Q_CLASSINFO("TitlePlaceholder", "none")
    Q_CLASSINFO("TitleSpecialType", "PickFile:*.xml:*.json")

    NT_PROPERTY(double, Ratio, 0.2)
    NT_PROPERTY(QByteArray, Blob, QByteArray())
    NT_PROPERTY(QPoint, Place, QPoint(1, 2))
    Q_CLASSINFO("PlaceMinimum", "QPoint(0, 10)")
    NT_PROPERTY(QPointF, Spot, QPointF(0.5, 2))
    NT_PROPERTY(QSize, Extent, QSize(3, 4))
    NT_PROPERTY(uchar, Octet, 7)

    Q_PROPERTY(int Fleeting MEMBER m_fleeting)
    Q_CLASSINFO("FleetingEditable", "yes")
    Q_PROPERTY(int Fixed READ fixed CONSTANT)

public:
    explicit SampleSettings(const QString &path = {}, bool autoSave = true, NTSettingsFormat format = XML)
        : NTSettings(path, autoSave, nullptr, format)
    {}

    using NTSettings::writeComponentsToString;

private:
    int fixed() const { return 1; }

    int m_fleeting = 0;
};

/// Children of an element are written but not read.
class MapSettings : public NTSettings
{
    Q_OBJECT
    NT_PROPERTY(int, Before, 1)
    NT_PROPERTY(StringMap, Entries, StringMap())
    NT_PROPERTY(int, After, 1)

public:
    MapSettings()
        : NTSettings({}, false, nullptr, XML)
    {}
};
