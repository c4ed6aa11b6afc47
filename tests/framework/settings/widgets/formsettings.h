#pragma once

#include "framework/settings/ntsettings.h"

#include <QColor>
#include <QDate>
#include <QPoint>

/// A settings class with a property for every editor of a form.
class FormSettings : public NTSettings
{
    Q_OBJECT

public:
    enum class Pace { Slow = 3, Fast = 8 };
    Q_ENUM(Pace)

private:
    NT_PROPERTY(Pace, Drive, FormSettings::Pace::Slow)
    Q_CLASSINFO("DriveCategory", "1.Common")
    Q_CLASSINFO("DriveDescription", "How fast it goes")
    NT_RANGED_PROPERTY(double, Delay, 5, 0, 100, 0.1)
    Q_CLASSINFO("DelayCategory", "1.Common")
    Q_CLASSINFO("DelayPrecision", "1")
    Q_CLASSINFO("DelaySuffix", " s")
    NT_PROPERTY(bool, Active, true)
    Q_CLASSINFO("ActiveCategory", "1.Common")
    NT_RANGED_PROPERTY(int, Count, 2, 1, 10, 2)
    Q_CLASSINFO("CountCategory", "1.Common")
    Q_CLASSINFO("CountPriority", "1")
    Q_CLASSINFO("CountSuffix", "!- pcs")
    Q_CLASSINFO("CountVisibleBound", "Drive:Slow|Medium;!Active")

    NT_PROPERTY(QString, Title, "")
    Q_CLASSINFO("TitleCategory", "2.Texts")
    Q_CLASSINFO("TitlePlaceholder", "none")
    NT_PROPERTY(QString, File, "")
    Q_CLASSINFO("FileCategory", "2.Texts")
    Q_CLASSINFO("FileSpecialType", "PickFile:*.xml")
    Q_CLASSINFO("FileIcon", "folder.svg")
    NT_PROPERTY(QString, Notes, "")
    Q_CLASSINFO("NotesSpecialType", "Multiline")
    NT_PROPERTY(QString, Animal, "Rat")
    Q_CLASSINFO("AnimalSpecialType", "StringList")

    NT_PROPERTY(QPoint, Place, QPoint(1, 2))
    NT_PROPERTY(QPointF, Span, QPointF(7, 3))
    Q_CLASSINFO("SpanSpecialType", "range")
    Q_CLASSINFO("SpanPrefix", "from")
    NT_RANGED_PROPERTY(int, Level, 40, 0, 100, 5)
    Q_CLASSINFO("LevelSpecialType", "Slider")
    NT_PROPERTY(double, Speed, 2)
    Q_CLASSINFO("SpeedSuggestions", "1, 2.5, x, 5")
    NT_PROPERTY(int, Serial, 17)
    Q_CLASSINFO("SerialReadOnly", "true")

    NT_PROPERTY(QColor, Paint, QColor("red"))
    NT_PROPERTY(QDate, Day, QDate(2024, 2, 29))
    Q_CLASSINFO("DayNoDefault", "true")
    NT_PROPERTY(int, Choice, 1)
    Q_CLASSINFO("ChoiceSpecialType", "EnumStringList")
    Q_CLASSINFO("ChoiceDisplayName", "Variant")
    NT_PROPERTY(int, Hidden, 0)
    Q_CLASSINFO("HiddenNotVisible", "true")

public:
    explicit FormSettings(const QString &path = {})
        : NTSettings(path, true, nullptr, XML)
    {
        getPropertyByName(QStringLiteral("Animal"))->enums = QStringList{"Rat", "Mouse"};
        getPropertyByName(QStringLiteral("Choice"))->enums = QStringList{"First", "Second", "Third"};
    }
};
