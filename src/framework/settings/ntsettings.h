#pragma once

#include "framework/settings/abstractsettings.h"
#include "framework/settings/settingsproperty.h"

#include <QJsonArray>
#include <QStringList>

#include <memory>

/// A settings object that stores its declared properties by itself. With auto-save every change rewrites
/// the whole file before the setter returns; only reload() holds this back.
class NTSettings : public AbstractSettings
{
    Q_OBJECT

public:
    enum NTSettingsFormat { XML = 0, JSON = 1 };
    Q_ENUM(NTSettingsFormat)

    /// Reads no file: the object holds its defaults until reload().
    NTSettings(const QString &filepath, bool autoSave, QObject *parent, NTSettingsFormat format);
    ~NTSettings() override;

    bool getAutoSave() const { return m_autoSave; }
    void setAutoSave(bool autoSave) { m_autoSave = autoSave; }
    QString getFilepath() const { return m_filepath; }
    /// Makes the parent folder of a path that is not empty.
    void setFilepath(const QString &path);

    /// False only without a file path; a missing file leaves the values as they are.
    bool reload();
    void save();
    /// Writes a copy; the outcome shows only in the log.
    void saveAs(const QString &path);
    void loadDefaults();
    bool loadFromXMLString(const QString &text);
    bool loadFromJson(const QByteArray &bytes);
    bool loadFromJson(const QJsonDocument &document);
    bool loadFromJson(const QJsonObject &object);
    bool loadFromJson(const QString &text);
    bool loadFromQVariantMap(const QVariantMap &map);

    QString saveToString();
    QJsonObject saveToJson();
    QString saveToJsonString(QJsonDocument::JsonFormat format);
    QString saveToJsonByteArray();
    QVariantMap getQVariantMap();
    QString getClassName();
    QStringList getPropertiesNames();
    AbstractMetaDescription *getPropertyByName(const QString &name);
    QString getTextValue(const QString &name);
    bool setTextValue(const QString &name, const QString &text);

    /// The metadata for another process: of all properties, or of those that a form shows.
    QJsonArray getAllCapabilitiesJson(bool all);
    QStringList getAllCapabilities();
    QStringList getPropertyCapabilities(const QString &name);

    AbstractMetaDescriptor *metaDescriptor() override;
    QVariant getValue(const QString &name) override;
    bool setValue(const QString &name, const QVariant &value) override;
    virtual bool containsProperty(const QString &name);

    /// Adds \a item once or removes its first occurrence; true if the list changed.
    static bool toogleItemInStringList(QStringList &list, const QString &item, bool add);

Q_SIGNALS:
    void reloaded();
    void saved();
    void filePathChanged();

protected Q_SLOTS:
    void changedProperty(const QString &name);

protected:
    /// One document that holds the content of each object.
    static QString writeComponentsToString(const QList<NTSettings *> &components);

private:
    bool m_reloading = false;
    bool m_autoSave = false;
    NTSettingsFormat m_format = XML;
    QString m_filepath;
    std::unique_ptr<AbstractMetaDescriptor> m_descriptor;
};
