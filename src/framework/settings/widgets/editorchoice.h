#pragma once

class AbstractMetaDescription;

/// Which editor a property gets in a form.
struct EditorChoice
{
    enum class Kind {
        Special,
        Multiline,
        Slider,
        EnumStringList,
        Range,
        Enum,
        Point,
        PointF,
        Bool,
        Int,
        Date,
        Double,
        Color,
        String
    };

    Kind kind = Kind::String;
    int columnSpan = 2; ///< 1 keeps to the column of editors, 2 reaches over the rest of the row

    /// By the special type if there is one that is known, else by the name of the type.
    static EditorChoice of(AbstractMetaDescription &description);
};
