#pragma once

#include <QObject>
#include <QString>

#include <algorithm>
#include <cmath>
#include <type_traits>

/// Declares the persisted property \a Name of a settings class in one line: the property with its getter,
/// setter, reset and change signal, the members for value, default and caption, and the class-info entries
/// "Editable" and "Default". Further class-info (category, suffix ...) stands in Q_CLASSINFO lines below it.
#define NT_PROPERTY(Type, Name, Default)                                                                     \
    NT_PROPERTY_FRAME(Type, Name, Default)                                                                   \
public:                                                                                                      \
    Q_INVOKABLE void set##Name(const Type &value)                                                            \
    {                                                                                                        \
        NT_PROPERTY_STORE(Name, value)                                                                       \
    }

/// The same for a number that is brought into \a Minimum to \a Maximum whenever it is set.
#define NT_RANGED_PROPERTY(Type, Name, Default, Minimum, Maximum, Step)                                      \
    Q_CLASSINFO(#Name "Minimum", #Minimum)                                                                   \
    Q_CLASSINFO(#Name "Maximum", #Maximum)                                                                   \
    Q_CLASSINFO(#Name "Step", #Step)                                                                         \
    NT_PROPERTY_FRAME(Type, Name, Default)                                                                   \
private:                                                                                                     \
    Type m_minimum##Name = Minimum;                                                                          \
    Type m_maximum##Name = Maximum;                                                                          \
    [[maybe_unused]] Type m_step##Name = Step;                                                               \
                                                                                                             \
public:                                                                                                      \
    Q_INVOKABLE void set##Name(const Type &value)                                                            \
    {                                                                                                        \
        NT_PROPERTY_STORE(Name, std::clamp(value, m_minimum##Name, m_maximum##Name))                         \
    }

// What both have in common. The change signal comes before the general one, which saves the file.
#define NT_PROPERTY_FRAME(Type, Name, Default)                                                               \
    Q_PROPERTY(Type Name READ get##Name WRITE set##Name RESET reset##Name NOTIFY changed##Name)              \
    Q_CLASSINFO(#Name "Editable", "true")                                                                    \
    Q_CLASSINFO(#Name "Default", #Default)                                                                   \
private:                                                                                                     \
    Type m_##Name = Default;                                                                                 \
    Type m_default##Name = Default;                                                                          \
    [[maybe_unused]] QString m_displayName##Name = SettingsProperty::caption(#Name);                         \
                                                                                                             \
public:                                                                                                      \
    Q_INVOKABLE Type get##Name() const                                                                       \
    {                                                                                                        \
        return m_##Name;                                                                                     \
    }                                                                                                        \
    Q_INVOKABLE void reset##Name()                                                                           \
    {                                                                                                        \
        set##Name(m_default##Name);                                                                          \
    }                                                                                                        \
Q_SIGNALS:                                                                                                   \
    void changed##Name(Type value);

#define NT_PROPERTY_STORE(Name, Value)                                                                       \
    if (SettingsProperty::store(m_##Name, Value)) {                                                          \
        Q_EMIT changed##Name(m_##Name);                                                                      \
        changedProperty(QStringLiteral(#Name));                                                              \
    }

/// What the declarations above call.
namespace SettingsProperty {

/// The name of a property in the running language.
QString caption(const char *name);

/// Stores \a value; false if it is what \a member holds already. Not-a-number is no value: it would
/// pass every limit and differ from itself each time it is set.
template <typename T>
bool store(T &member, const T &value)
{
    if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(value))
            return false;
    }
    if (member == value)
        return false;
    member = value;
    return true;
}

} // namespace SettingsProperty
