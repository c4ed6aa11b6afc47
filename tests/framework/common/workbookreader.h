#pragma once

#include "framework/common/zipreader.h"

#include <QFile>
#include <QStringList>
#include <QXmlStreamReader>

/// Workbooks as another program than their writer reads them.
namespace WorkbookReader {

using namespace Qt::StringLiterals;

inline QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// One part of a workbook; empty if it is not well-formed.
inline QByteArray part(const QString &workbook, const QString &name)
{
    const QByteArray xml = zipEntries(content(workbook)).value(name.toUtf8());
    QXmlStreamReader reader(xml);
    while (!reader.atEnd())
        reader.readNext();
    return reader.hasError() ? QByteArray() : xml;
}

inline QStringList attributes(const QByteArray &xml, QLatin1StringView element, QLatin1StringView attribute)
{
    QStringList values;
    for (QXmlStreamReader reader(xml); !reader.atEnd();) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == element)
            values.append(reader.attributes().value(attribute).toString());
    }
    return values;
}

/// "A1=text" or "A1#number" for each cell of a sheet.
inline QStringList cells(const QString &workbook, int sheet)
{
    QStringList shared;
    for (QXmlStreamReader reader(part(workbook, u"xl/sharedStrings.xml"_s)); !reader.atEnd();) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == "t"_L1)
            shared.append(reader.readElementText());
    }
    QStringList result;
    QXmlStreamReader reader(part(workbook, u"xl/worksheets/sheet%1.xml"_s.arg(sheet)));
    QString place;
    bool text = false;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == "c"_L1) {
            place = reader.attributes().value("r"_L1).toString();
            text = reader.attributes().value("t"_L1) == "s"_L1;
        } else if (reader.name() == "v"_L1) {
            const QString value = reader.readElementText();
            result.append(text ? place + '='_L1 + shared.value(value.toInt()) : place + '#'_L1 + value);
        } else if (reader.name() == "f"_L1 || reader.name() == "hyperlink"_L1) {
            result.append(u"formula or link"_s);
        }
    }
    return result;
}

} // namespace WorkbookReader
