#include "framework/settings/widgets/editorchoice.h"

#include "framework/settings/abstractmetadescription.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

using Kind = EditorChoice::Kind;

struct TypeRule
{
    QLatin1StringView part; // of the type's name
    Kind kind;
};

// The first part that the name contains decides, so that "QPoint" takes "QPointF" too, and "QDate"
// "QDateTime".
constexpr std::array TypeRules{
    TypeRule{"QPoint"_L1, Kind::Point},  TypeRule{"QPointF"_L1, Kind::PointF},
    TypeRule{"bool"_L1, Kind::Bool},     TypeRule{"int"_L1, Kind::Int},
    TypeRule{"QDate"_L1, Kind::Date},    TypeRule{"QDateTime"_L1, Kind::Date},
    TypeRule{"double"_L1, Kind::Double}, TypeRule{"float"_L1, Kind::Double},
    TypeRule{"QColor"_L1, Kind::Color},
};

bool chooseBySpecialType(const AbstractMetaDescription &description, EditorChoice &choice)
{
    const auto contains = [&](QLatin1StringView word) {
        return description.specialType.contains(word, Qt::CaseInsensitive);
    };
    const auto equals = [&](QLatin1StringView word) {
        return description.specialType.compare(word, Qt::CaseInsensitive) == 0;
    };
    const bool isString = description.type.compare("QString"_L1, Qt::CaseInsensitive) == 0;
    if (!description.hasSpecialType)
        return false;
    if (contains("PickFile"_L1) || contains("PickFolder"_L1))
        choice = {Kind::Special, 2};
    else if (contains("Multiline"_L1))
        choice = {Kind::Multiline, 2};
    else if (equals("Slider"_L1))
        choice = {Kind::Slider, 1};
    else if (equals("EnumStringList"_L1) || (isString && equals("StringList"_L1)))
        choice = {Kind::EnumStringList, 1};
    else if (equals("Range"_L1))
        choice = {Kind::Range, 1};
    else
        return false;
    return true;
}

} // namespace

EditorChoice EditorChoice::of(AbstractMetaDescription &description)
{
    EditorChoice choice;
    if (chooseBySpecialType(description, choice))
        return choice;
    if (description.isEnumType())
        return {Kind::Enum, 1};
    for (const TypeRule &rule : TypeRules) {
        if (description.type.contains(rule.part))
            return {rule.kind, 1};
    }
    return choice;
}
