#include "cli/clitext.h"
#include "cli/command.h"
#include "cli/commandline.h"

#include <QCoreApplication>
#include <QLoggingCategory>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    // The folders on disk carry the name of the application, whichever of its programs runs.
    QCoreApplication::setApplicationName(u"Spinbar"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(SPINBAR_VERSION));
    // Warnings only, unless the environment asks for more.
    QLoggingCategory::setFilterRules(u"spinbar.*.info=false\nspinbar.*.debug=false"_s);
    QTextStream out(stdout);
    QTextStream err(stderr);
    CommandContext context{{}, out, err};
    ExitCode code = runCommandLine(QCoreApplication::arguments(), context);
    out.flush();
    if (code == ExitCode::Done && out.status() != QTextStream::Ok)
        code = failed(context, Cli::tr("standard output: cannot be written"));
    return static_cast<int>(code);
}
