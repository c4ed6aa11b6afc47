#pragma once

#include "framework/common/colortheme.h"
#include "framework/settings/ntsettings.h"

#include <QColor>
#include <QDate>
#include <QPoint>

/// A property for every editor of a form, and the theme of the gallery itself. Nothing is stored.
class GallerySettings : public NTSettings
{
    Q_OBJECT

public:
    enum class Pace { Slow, Fast };
    Q_ENUM(Pace)

private:
    NT_PROPERTY(StyleHelper::ColorThemeEnum, ColorTheme, StyleHelper::ColorThemeEnum::System)
    Q_CLASSINFO("ColorThemeNotVisible", "true")

    NT_PROPERTY(bool, Repeated, true)
    Q_CLASSINFO("RepeatedCategory", "1.Choices")
    NT_RANGED_PROPERTY(int, Repeats, 3, 1, 100, 1)
    Q_CLASSINFO("RepeatsCategory", "1.Choices")
    Q_CLASSINFO("RepeatsVisibleBound", "Repeated")
    Q_CLASSINFO("RepeatsDescription", "Shown while the box above is checked")
    NT_PROPERTY(Pace, Drive, GallerySettings::Pace::Fast)
    Q_CLASSINFO("DriveCategory", "1.Choices")
    NT_PROPERTY(int, Animal, 0)
    Q_CLASSINFO("AnimalCategory", "1.Choices")
    Q_CLASSINFO("AnimalSpecialType", "EnumStringList")

    NT_RANGED_PROPERTY(double, Delay, 5, 0, 100, 0.1)
    Q_CLASSINFO("DelayCategory", "2.Numbers")
    Q_CLASSINFO("DelayPrecision", "1")
    Q_CLASSINFO("DelaySuffix", " s")
    NT_RANGED_PROPERTY(int, Level, 40, 0, 100, 5)
    Q_CLASSINFO("LevelCategory", "2.Numbers")
    Q_CLASSINFO("LevelSpecialType", "Slider")
    NT_PROPERTY(QPointF, Span, QPointF(3, 7))
    Q_CLASSINFO("SpanCategory", "2.Numbers")
    Q_CLASSINFO("SpanSpecialType", "Range")
    NT_PROPERTY(QPoint, Place, QPoint(1, 2))
    Q_CLASSINFO("PlaceCategory", "2.Numbers")
    NT_PROPERTY(double, Charge, 2.5)
    Q_CLASSINFO("ChargeCategory", "2.Numbers")
    Q_CLASSINFO("ChargeSuggestions", "1, 2.5, 5, 10")
    NT_PROPERTY(int, Copies, 17)
    Q_CLASSINFO("CopiesCategory", "2.Numbers")
    Q_CLASSINFO("CopiesReadOnly", "true")

    NT_PROPERTY(QString, Nickname, "")
    Q_CLASSINFO("NicknameCategory", "3.Texts")
    Q_CLASSINFO("NicknamePlaceholder", "none")
    NT_PROPERTY(QString, Picture, "")
    Q_CLASSINFO("PictureCategory", "3.Texts")
    Q_CLASSINFO("PictureSpecialType", "PickFile:Image")
    NT_PROPERTY(QString, Remarks, "")
    Q_CLASSINFO("RemarksCategory", "3.Texts")
    Q_CLASSINFO("RemarksSpecialType", "Multiline")
    NT_PROPERTY(QColor, Paint, QColor("#115599"))
    Q_CLASSINFO("PaintCategory", "3.Texts")
    NT_PROPERTY(QDate, Birthday, QDate(2024, 2, 29))
    Q_CLASSINFO("BirthdayCategory", "3.Texts")

public:
    GallerySettings()
        : NTSettings({}, false, nullptr, XML)
    {
        getPropertyByName(QStringLiteral("Animal"))->enums =
            QStringList{QStringLiteral("Gerbil"), QStringLiteral("Hamster")};
    }
};
