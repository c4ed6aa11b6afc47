#include "framework/settings/metadescription.h"

#include "framework/settings/valuetext.h"

#include "framework/common/texthelper.h"

#include <QDateTime>
#include <QDebug>
#include <QPoint>
#include <QRegularExpression>
#include <QSize>

#include <array>

using namespace Qt::StringLiterals;

namespace {

QString withoutPointSyntax(QString text)
{
    // The longer name first: "QPoint" is the beginning of "QPointF".
    for (const auto &word : {"f"_L1, "QPointF"_L1, "QSize"_L1, "QPoint"_L1, "("_L1, ")"_L1})
        text.remove(word);
    return text.trimmed();
}

// Colours belong to a module that this library does not link: the type system converts them for programs
// that do, and nobody else has properties of that type.
QString hexadecimalColor(const QString &name, const QString &fallback)
{
    QVariant color(name);
    return color.convert(QMetaType(QMetaType::QColor)) ? color.toString() : fallback;
}

QString defaultColor(const QString &text)
{
    static const QRegularExpression hexadecimal(u"(\\#[a-fA-F0-9]+)"_s);
    static const QRegularExpression global(u"Qt::(\\w+)"_s);
    static const QRegularExpression quoted(u"\\(\\\"(\\w+)\\\"\\)"_s);
    if (const auto match = hexadecimal.match(text); match.hasMatch())
        return match.captured(1);
    for (const QRegularExpression &named : {global, quoted}) {
        if (const auto match = named.match(text); match.hasMatch())
            return hexadecimalColor(match.captured(1), text);
    }
    return text;
}

// The conversion takes any number, and any sum of names, for an enumeration.
bool isEnumerator(const QMetaProperty &property, QVariant value)
{
    if (!value.isValid() || property.isFlagType())
        return true;
    return value.convert(property.metaType()) && property.enumerator().valueToKey(value.toInt()) != nullptr;
}

QMap<QString, QString> parseConditions(const QString &text)
{
    QMap<QString, QString> conditions;
    const QStringList parts = text.split(';'_L1);
    for (const QString &part : parts) {
        QStringList pieces = part.split(':'_L1, Qt::SkipEmptyParts);
        if (pieces.isEmpty())
            continue;
        const QString first = pieces.takeFirst();
        if (!pieces.isEmpty())
            conditions.insert(first, pieces.join(':'_L1));
        else if (first.startsWith('!'_L1))
            conditions.insert(first.sliced(1), u"false"_s);
        else
            conditions.insert(first, u"true"_s);
    }
    return conditions;
}

} // namespace

void MetaDescription::set(int index, QObject *object)
{
    m_index = index;
    m_object = object;
    const QMetaProperty property = metaprop();
    hasMin = hasMax = hasStep = false;
    name = QString::fromLatin1(property.name());
    type = QString::fromLatin1(property.typeName());
    typeId = property.typeId();

    editable = stringForAlias(u"Editable"_s) == "true"_L1;
    visible = clindex(u"NotVisible"_s) < 0;
    displayName = clindex(u"DisplayName"_s) < 0 ? name : stringForAlias(u"DisplayName"_s);
    readDefault();
    const QString conditions = stringForAlias(u"VisibleBound"_s);
    visibleBound = parseConditions(conditions.isNull() ? stringForAlias(u"VisibleBinded"_s) : conditions);
    readBounds();
    readExtras();
    readSpecialType();
    category = stringForAlias(u"Category"_s);
    if (clindex(u"Priority"_s) >= 0)
        priority = stringForAlias(u"Priority"_s).toInt();
    showDefault = clindex(u"NoDefault"_s) < 0;
    readOnly = clindex(u"ReadOnly"_s) >= 0;
    if (clindex(u"Icon"_s) >= 0)
        icon = stringForAlias(u"Icon"_s);

    if (property.hasNotifySignal()) {
        const int slot = staticMetaObject.indexOfSlot("valueChangedSlot()");
        connect(m_object, property.notifySignal(), this, staticMetaObject.method(slot));
    }
}

void MetaDescription::readDefault()
{
    const QString raw = stringForAlias(u"Default"_s);
    hasDefault = clindex(u"Default"_s) >= 0;
    if (!hasDefault)
        return;
    defaultText = raw;
    if (isEnumType()) {
        if (const qsizetype scope = raw.lastIndexOf("::"_L1); scope >= 0)
            defaultText = raw.sliced(scope + 2);
        type = u"Enum"_s;
        typeId = QMetaType::Int;
    } else if (type == "int"_L1 || type == "float"_L1 || type == "double"_L1) {
        static const QRegularExpression letter(u"[a-zA-Z]"_s);
        defaultText.remove(letter);
    } else if (type == "QString"_L1) {
        defaultText = u""_s + TextHelper::trim(raw, u'"');
    } else if (type == "QColor"_L1) {
        defaultText = defaultColor(raw);
    }
    if (raw.endsWith("()"_L1))
        callDefaultFunction(raw.chopped(2));
}

void MetaDescription::callDefaultFunction(const QString &function)
{
    if (function == "QDateTime::currentDateTime"_L1) {
        defaultText = QDateTime::currentDateTime().toString(Qt::TextDate);
    } else if (function == "QDateTime"_L1 || function == "QDate"_L1) {
        defaultText = u""_s;
    } else {
        const QByteArray method = function.toLatin1();
        if (m_object->metaObject()->indexOfMethod(method + "()") < 0)
            return;
        QString result;
        if (QMetaObject::invokeMethod(m_object, method.constData(), Qt::DirectConnection,
                                      Q_RETURN_ARG(QString, result)))
            defaultText = result;
    }
}

void MetaDescription::readBounds()
{
    const auto read = [this](const QString &word, double &target) {
        QString text = stringForAlias(word);
        return clindex(word) >= 0 && assignDouble(target, text);
    };
    hasMin = read(u"Minimum"_s, min);
    if (clindex(u"Prefix"_s) >= 0)
        prefix = stringForAlias(u"Prefix"_s);
    if (clindex(u"Suffix"_s) >= 0)
        suffix = stringForAlias(u"Suffix"_s);
    hasMax = read(u"Maximum"_s, max);
    hasStep = read(u"Step"_s, step);
}

void MetaDescription::readExtras()
{
    static const QStringList words{u"Description"_s, u"Placeholder"_s, u"Precision"_s, u"Suggestions"_s};
    for (const QString &word : words) {
        if (const QString text = stringForAlias(word); !text.isEmpty())
            extras.insert(word, text);
    }
}

void MetaDescription::readSpecialType()
{
    hasSpecialType = clindex(u"SpecialType"_s) >= 0;
    if (!hasSpecialType)
        return;
    specialType = stringForAlias(u"SpecialType"_s);
    const qsizetype colon = specialType.indexOf(':'_L1);
    pickOption = colon < 0 ? specialType : specialType.left(colon);
    if (colon >= 0)
        pickExtensions = specialType.sliced(colon + 1);
}

bool MetaDescription::parsePointOrSize(const QString &text, double &a, double &b)
{
    const QStringList parts = withoutPointSyntax(text).split(','_L1, Qt::SkipEmptyParts);
    if (parts.size() != 2)
        return false;
    a = parts.at(0).toDouble();
    b = parts.at(1).toDouble();
    return true;
}

QMetaEnum MetaDescription::enumerator()
{
    return metaprop().enumerator();
}

bool MetaDescription::isEnumType()
{
    return metaprop().isEnumType();
}

bool MetaDescription::setValue(const QVariant &value)
{
    const QMetaProperty property = metaprop();
    if (!property.isWritable() || (isEnumType() && !isEnumerator(property, value)))
        return false;
    return property.write(m_object, value);
}

QVariant MetaDescription::getValue()
{
    try {
        return metaprop().read(m_object);
    } catch (...) {
        qDebug() << "ERROR getValue of" << name;
        return {};
    }
}

void MetaDescription::setDefault()
{
    if (!hasDefault)
        return;
    const bool wasReset = metaprop().reset(m_object);
    const QVariant value = getValue();
    // Points and sizes have no text of their own: the declared one stays, and counts where nothing else does.
    const bool hasText = value.canConvert<QString>();
    if (hasText && value.toString() != defaultText)
        defaultText = value.toString();
    if (hasText || !wasReset)
        setTextValue(defaultText);
    Q_EMIT valueChanged(getValue());
}

void MetaDescription::valueChangedSlot()
{
    Q_EMIT valueChanged(getValue());
}

bool MetaDescription::setTextValue(const QString &value)
{
    if (type != "QPoint"_L1 && type != "QPointF"_L1 && type != "QSize"_L1)
        return setValue(value);
    double a = 0;
    double b = 0;
    if (!parsePointOrSize(value, a, b))
        return false;
    if (type == "QPointF"_L1)
        return setValue(QPointF(a, b));
    return type == "QPoint"_L1 ? setValue(QPoint(ValueText::cutToInt(a), ValueText::cutToInt(b)))
                               : setValue(QSize(ValueText::cutToInt(a), ValueText::cutToInt(b)));
}

int MetaDescription::clindex(const QString &key) const
{
    return m_object->metaObject()->indexOfClassInfo((name + key).toLatin1().constData());
}

QMetaClassInfo MetaDescription::clinfo(const QString &key) const
{
    return m_object->metaObject()->classInfo(clindex(key));
}

QString MetaDescription::stringForAlias(const QString &key) const
{
    return QString::fromUtf8(clinfo(key).value());
}

bool MetaDescription::assignDouble(double &target, QString &text) const
{
    const QStringList parts = withoutPointSyntax(text).split(','_L1, Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return false;
    text = parts.first();
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (ok)
        target = number;
    return ok;
}

QMetaProperty MetaDescription::metaprop() const
{
    return m_object ? m_object->metaObject()->property(m_index) : QMetaProperty();
}
