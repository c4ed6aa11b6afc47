#include "core/experimentfile.h"

#include "core/boundedmath.h"
#include "core/recordslog.h"

#include "framework/common/fileutilities.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

// Some 200,000 rows, far beyond a day's falls; the parser needs many times the size of its text.
constexpr qint64 MaxFileBytes = 32LL * 1024 * 1024;
constexpr double MissingTime = -1;
constexpr int MissingLane = -1;

QJsonObject objectOf(const ExperimentItem &item)
{
    QJsonObject object{{u"start"_s, item.start},
                       {u"end"_s, item.end},
                       {u"rotations"_s, item.rotations},
                       {u"rat"_s, item.rat},
                       {u"index"_s, item.index}};
    if (!item.title.isEmpty())
        object.insert("title"_L1, item.title);
    return object;
}

ExperimentItem itemOf(const QJsonObject &object)
{
    ExperimentItem item;
    item.start = Bounded::toInteger(object.value("start"_L1).toDouble(MissingTime));
    item.end = Bounded::toInteger(object.value("end"_L1).toDouble(MissingTime));
    item.rotations = object.value("rotations"_L1).toDouble();
    item.rat = object.value("rat"_L1).toBool();
    item.index = object.value("index"_L1).toInt(MissingLane);
    item.title = object.value("title"_L1).toString();
    return item;
}

bool isUsable(const ExperimentItem &item)
{
    return item.start >= 0 && item.end > item.start && item.rotations > 0 && std::isfinite(item.rotations);
}

/// A missing key gives the type's zero, a null leaves \a value alone.
void take(const QJsonObject &object, QLatin1StringView key, QString &value)
{
    if (const QJsonValue stored = object.value(key); !stored.isNull())
        value = stored.toString();
}

void take(const QJsonObject &object, QLatin1StringView key, qint64 &value)
{
    if (const QJsonValue stored = object.value(key); !stored.isNull())
        value = Bounded::toInteger(stored.toDouble());
}

/// Empty, with a line in the log, if the file can't be read or is no experiment.
QJsonObject readExperimentObject(const QString &path)
{
    const QFileInfo info(path);
    QFile file(path);
    // A pipe or a device under this name could keep the reader forever.
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        qCWarning(recordsLog) << "Cannot read" << path;
        return {};
    }
    if (info.size() > MaxFileBytes) {
        qCWarning(recordsLog) << "Too large for an experiment:" << path << info.size() << "bytes";
        return {};
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError)
        qCWarning(recordsLog) << "Cannot parse" << path << error.errorString() << "at" << error.offset;
    return document.object();
}

} // namespace

QString ExperimentFile::pathIn(const QString &folder)
{
    return folder + "experiment.json"_L1;
}

QString ExperimentFile::nameOf(const QString &folder)
{
    // Lists ask for thousands of names, so only the part that counts is copied.
    QStringView name;
    for (const QStringView part : QStringView(folder).tokenize(u'/')) {
        if (const QStringView trimmed = part.trimmed(); !trimmed.isEmpty())
            name = trimmed;
    }
    return name.toString();
}

bool ExperimentFile::read(const QString &path, ExperimentData &data)
{
    const QJsonValue experiment = readExperimentObject(path).value("experiment"_L1);
    if (!experiment.isObject())
        return false;
    const QJsonObject object = experiment.toObject();
    take(object, "sn"_L1, data.sn);
    take(object, "comment"_L1, data.comment);
    take(object, "title"_L1, data.title);
    take(object, "timestamp"_L1, data.timestamp);
    take(object, "ts"_L1, data.firstDeviceTime);
    const QJsonArray items = object.value("items"_L1).toArray();
    for (const auto &value : items) {
        if (!value.isObject())
            continue;
        if (const ExperimentItem item = itemOf(value.toObject()); isUsable(item))
            data.items.append(item);
    }
    return true;
}

QByteArray ExperimentFile::toJson(const ExperimentData &data, const QString &name)
{
    QJsonArray items;
    for (const ExperimentItem &item : data.items)
        items.append(objectOf(item));
    QJsonObject experiment{{u"time"_s, QDateTime::fromMSecsSinceEpoch(data.timestamp).toString(Qt::TextDate)},
                           {u"timestamp"_s, data.timestamp},
                           {u"ts"_s, data.firstDeviceTime},
                           {u"items"_s, items}};
    if (!name.isEmpty())
        experiment.insert("title"_L1, data.title);
    if (!data.comment.isEmpty())
        experiment.insert("comment"_L1, data.comment);
    if (!data.sn.isEmpty())
        experiment.insert("sn"_L1, data.sn);
    return QJsonDocument(QJsonObject{{u"experiment"_s, experiment}}).toJson(QJsonDocument::Indented);
}

bool ExperimentFile::write(const QString &path, const QByteArray &json, QString *error)
{
    QString reason;
    if (FileUtilities::overwrite(path, json, &reason) == FileUtilities::WriteResult::Whole)
        return true;
    qCWarning(recordsLog) << "Cannot write" << path << reason;
    if (error)
        *error = reason;
    return false;
}
