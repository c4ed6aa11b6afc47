#include "cli/scriptfile.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

QString scriptFileFault(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return u"no such file"_s;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    QXmlStreamReader xml(&file);
    while (!xml.atEnd())
        xml.readNext();
    return xml.hasError() ? u"no speed script, line %1: %2"_s.arg(xml.lineNumber()).arg(xml.errorString())
                          : QString();
}
