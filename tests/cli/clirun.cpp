#include "cli/clirun.h"

#include "cli/commandline.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

QJsonDocument CliRun::json() const
{
    return QJsonDocument::fromJson(out.toUtf8());
}

QList<QJsonObject> CliRun::events() const
{
    QList<QJsonObject> objects;
    const QStringList lines = out.split('\n'_L1, Qt::SkipEmptyParts);
    for (const QString &line : lines)
        objects.append(QJsonDocument::fromJson(line.toUtf8()).object());
    return objects;
}

QStringList CliRun::eventNames() const
{
    QStringList names;
    for (const QJsonObject &event : events())
        names.append(event.value("event"_L1).toString());
    return names;
}

CliRun runCli(const QStringList &words)
{
    CliRun run;
    QTextStream out(&run.out);
    QTextStream err(&run.err);
    CommandContext context{{}, out, err};
    run.exitCode = static_cast<int>(runCommandLine(QStringList{u"spinbar-cli"_s} + words, context));
    out.flush();
    err.flush();
    return run;
}
