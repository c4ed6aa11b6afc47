#include "cli/scriptfile.h"
#include "cli/clitext.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

QString scriptFileFault(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return Cli::tr("no such file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    QXmlStreamReader xml(&file);
    while (!xml.atEnd())
        xml.readNext();
    return xml.hasError()
               ? Cli::tr("no speed script, line %1: %2").arg(xml.lineNumber()).arg(xml.errorString())
               : QString();
}
