#pragma once

#include "framework/settings/abstractmetadescription.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QVariantMap>

class QXmlStreamReader;
class QXmlStreamWriter;

/// The descriptions of an object's properties in declaration order, and the file formats that follow from
/// them. Only editable properties are stored and loaded; what a file does not name keeps its value.
class AbstractMetaDescriptor : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Reads the properties of \a object, which must outlive the descriptor.
    virtual void set(QObject *object) = 0;
    virtual QString getClassName() = 0;

    AbstractMetaDescription *at(int index) const;
    int count() const;
    AbstractMetaDescription *propertyByName(const QString &name) const;
    const QList<AbstractMetaDescription *> &descriptions() const { return m_descriptions; }

    /// Resets every editable property that declares a default.
    void defaults();
    QVariantMap getQVariantMap() const;
    QMap<QString, QString> getPropertiesNameAndType() const;
    bool setValue(const QString &name, const QVariant &value);
    bool setTextValue(const QString &name, const QString &text);

    /// False only if the file cannot be opened. The text reaches the system in one write.
    Q_INVOKABLE bool save(const QString &file);
    Q_INVOKABLE QString saveAsXmlString();
    /// Without header, for several objects in one document; points and sizes take their plain text.
    void saveXmlContent(QXmlStreamWriter &writer);
    bool saveToJsonFile(const QString &file);
    Q_INVOKABLE QJsonObject saveToJson();
    Q_INVOKABLE QString saveToJsonString(QJsonDocument::JsonFormat format = QJsonDocument::Compact);
    Q_INVOKABLE QByteArray saveToJsonByteArray(QJsonDocument::JsonFormat format = QJsonDocument::Compact);

    /// False only if the file cannot be opened; a damaged file is applied as far as it can be read.
    Q_INVOKABLE bool load(const QString &file);
    bool loadFromXmlString(const QString &text);
    /// Reads on until an element named \a endElementName starts, or to the end.
    void loadXmlContent(const QString &endElementName, QXmlStreamReader &reader);
    bool loadFromJsonFile(const QString &file);
    bool loadFromJson(const QString &text);
    bool loadFromJson(const QByteArray &bytes);
    bool loadFromJson(const QJsonDocument &document);
    bool loadFromJson(const QJsonObject &object);
    bool loadFromQVariantMap(const QVariantMap &map);

public Q_SLOTS:
    /// Forgets the descriptions; they live on until the descriptor goes, since a view may still hold one.
    void clear();

protected:
    void append(AbstractMetaDescription *description);

private:
    AbstractMetaDescription *find(QStringView name, bool editableOnly) const;

    QList<AbstractMetaDescription *> m_descriptions;
    QMap<QString, AbstractMetaDescription *> m_byName;
};
