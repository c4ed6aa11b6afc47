#include "framework/settings/settingscapabilities.h"

#include "framework/settings/abstractmetadescription.h"

#include <QCoreApplication>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

constexpr int LineDigits = 6;
constexpr auto LiteralMark = "!-"_L1;

QString translated(const char *context, const QString &text)
{
    return QCoreApplication::translate(context, text.toUtf8().constData());
}

QString generic(const QString &text)
{
    return text.isEmpty() ? QString() : translated("Generic", text);
}

QString withoutMark(const QString &text)
{
    return text.startsWith(LiteralMark) ? text.sliced(LiteralMark.size()) : text;
}

void insertText(QJsonObject &json, const QString &key, const QString &text)
{
    if (!text.isEmpty())
        json.insert(key, text);
}

void insertTranslation(QJsonObject &json, const QString &key, const QString &translation,
                       const QString &source)
{
    if (translation != source)
        insertText(json, key, translation);
}

void insertAffix(QJsonObject &json, const QString &key, const QString &text)
{
    const QString plain = withoutMark(text);
    insertText(json, key, plain);
    insertTranslation(json, key + "Translated"_L1, SettingsCapabilities::translatedAffix(text), plain);
}

void insertEnumerators(QJsonObject &json, const QMetaEnum &enumeration)
{
    QJsonArray names;
    QJsonArray translations;
    for (int i = 0; i < enumeration.keyCount(); ++i) {
        const QString key = QString::fromLatin1(enumeration.key(i));
        names.append(key);
        translations.append(translated(enumeration.enumName(), key));
    }
    json.insert("enum"_L1, names);
    json.insert("enumTranslations"_L1, translations);
}

void insertChoices(QJsonObject &json, AbstractMetaDescription &description)
{
    if (!description.enums.isEmpty()) {
        QJsonArray translations;
        for (const QString &choice : std::as_const(description.enums))
            translations.append(generic(choice));
        json.insert("enums"_L1, QJsonArray::fromStringList(description.enums));
        json.insert("enumsTranslations"_L1, translations);
    }
    if (description.isEnumType())
        insertEnumerators(json, description.enumerator());
}

void insertLimits(QJsonObject &json, const AbstractMetaDescription &description)
{
    if (description.hasDefault)
        json.insert("default"_L1, description.defaultText);
    if (description.hasMin)
        json.insert("min"_L1, description.min);
    if (description.hasMax)
        json.insert("max"_L1, description.max);
    if (description.hasStep)
        json.insert("step"_L1, description.step);
}

QString conditionsText(const QMap<QString, QString> &conditions)
{
    QStringList entries;
    for (auto entry = conditions.cbegin(); entry != conditions.cend(); ++entry)
        entries.append(entry.key() + ':'_L1 + entry.value());
    return entries.join(';'_L1);
}

QString line(const char *key, const QString &value)
{
    return u"\"%1\"=\"%2\""_s.arg(QLatin1StringView(key), value);
}

QString line(const char *key, double value)
{
    return line(key, QString::number(value, 'g', LineDigits));
}

} // namespace

QJsonObject SettingsCapabilities::toJson(AbstractMetaDescription &description)
{
    QJsonObject json{{"name"_L1, description.name},
                     {"type"_L1, description.type},
                     {"value"_L1, QJsonValue::fromVariant(description.getValue())}};
    insertTranslation(json, u"nameTranslated"_s, generic(description.displayName), description.name);
    insertLimits(json, description);
    if (description.hasSpecialType)
        json.insert("specialType"_L1, description.specialType);
    insertText(json, u"category"_s, description.category);
    insertTranslation(json, u"categoryTranslated"_s, generic(description.category), description.category);
    for (auto extra = description.extras.cbegin(); extra != description.extras.cend(); ++extra)
        json.insert(extra.key(), extra.value());
    insertText(json, u"pickOption"_s, description.pickOption);
    insertText(json, u"pickExtensions"_s, description.pickExtensions);
    insertAffix(json, u"suffix"_s, description.suffix);
    insertAffix(json, u"prefix"_s, description.prefix);
    insertText(json, u"description"_s, generic(description.extras.value(u"Description"_s)));
    insertChoices(json, description);
    if (!description.showDefault)
        json.insert("hideDefault"_L1, true);
    if (description.readOnly)
        json.insert("readOnly"_L1, true);
    if (!description.visible)
        json.insert("hidden"_L1, true);
    insertText(json, u"visibleBound"_s, conditionsText(description.visibleBound));
    return json;
}

QStringList SettingsCapabilities::toLines(AbstractMetaDescription &description)
{
    QStringList lines{line("name", description.name), line("type", description.type)};
    if (description.hasDefault)
        lines.append(line("default", description.defaultText));
    lines.append(line("value", description.getValue().toString()));
    if (description.hasMin)
        lines.append(line("minimum", description.min));
    if (description.hasMax)
        lines.append(line("maximum", description.max));
    if (description.hasStep)
        lines.append(line("step", description.step));
    if (description.isEnumType()) {
        const QMetaEnum enumeration = description.enumerator();
        QStringList names;
        for (int i = 0; i < enumeration.keyCount(); ++i)
            names.append(QString::fromLatin1(enumeration.key(i)));
        lines.append(u"\"enum\"=[%1]"_s.arg(names.join(", "_L1)));
    }
    return lines;
}

QString SettingsCapabilities::translatedAffix(const QString &text)
{
    if (text.startsWith(LiteralMark))
        return withoutMark(text);
    if (text.startsWith(' '_L1))
        return ' '_L1 + generic(text.sliced(1));
    return generic(text);
}
