#include "ui/experimentexporter.h"

#include "core/spinbarmodel.h"
#include "core/spinbarrecord.h"
#include "core/spinbarsettings.h"
#include "framework/common/fileutilities.h"
#include "framework/common/widgets/apphelperdialogs.h"
#include "framework/common/widgets/workprogress.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

ExperimentExporter::ExperimentExporter(SpinbarModel *model, QWidget *page)
    : m_model(model)
    , m_page(page)
{}

void ExperimentExporter::exportRecords(const QList<SpinbarRecord *> &records)
{
    if (records.isEmpty())
        return;
    // A page that comes into view again reloads its records, and a dialog does not prevent that.
    bool vanished = false;
    QObject watch;
    for (const SpinbarRecord *record : records)
        // The connections end with "watch", before the flag.
        QObject::connect(record, &QObject::destroyed, &watch,
                         [&vanished] { vanished = true; }); // clazy:exclude=lambda-in-connect

    const Target target = askForTarget(ExperimentExport::suggestedName(records));
    if (target.path.isEmpty())
        return;
    remember(target);
    switch (vanished ? Outcome::Failed : write(records, target, vanished)) {
    case Outcome::Written:
        showResult(target.path);
        break;
    case Outcome::Failed:
        AppHelper::warningMessage(u"%1 \"%2\""_s.arg(tr("Error saving"), target.path), {});
        break;
    case Outcome::Cancelled:
        break;
    }
}

ExperimentExporter::Target ExperimentExporter::askForTarget(const QString &suggestedName) const
{
    static const QStringList filters{tr("Data") + " (*.xlsx)"_L1, tr("Data") + " (*.csv)"_L1};
    const SpinbarSettings &settings = *m_model->settings();
    const QString lastFolder = settings.getLastExportFolder();
    const QString folder =
        !lastFolder.isEmpty() && QDir(lastFolder).exists() ? lastFolder : m_model->recordsFolder();
    QString filter = settings.getLastExportFilter();
    if (!filters.contains(filter))
        filter = filters.constFirst();
    QString suggestion = FileUtilities::FolderSlash(folder) + suggestedName;
    // The dialog would go into a folder of that name, such as the experiment's own, and suggest nothing.
    if (QFileInfo(suggestion).isDir())
        suggestion += ExperimentExport::suffix(ExperimentExport::formatOfFilter(filter));
    const QString path =
        QFileDialog::getSaveFileName(m_page, tr("Export"), suggestion, filters.join(";;"_L1), &filter);
    return {path, filter};
}

void ExperimentExporter::remember(const Target &target)
{
    m_model->settings()->setLastExportFolder(QFileInfo(target.path).absolutePath());
    m_model->settings()->setLastExportFilter(target.filter);
}

ExperimentExporter::Outcome ExperimentExporter::write(const QList<SpinbarRecord *> &records,
                                                      const Target &target, const bool &vanished)
{
    const auto format = ExperimentExport::formatOfFilter(target.filter);
    const auto steps = int(2 * records.size() + 2);
    WorkProgress progress(tr("Export"), QDir::toNativeSeparators(target.path), steps, m_page);
    bool cancelled = false;
    const auto sheets = ExperimentExport::sheets(records, [&] {
        cancelled = !progress.step();
        return !cancelled && !vanished;
    });
    bool written = false;
    if (!sheets.isEmpty()) {
        progress.runBeside([&](const WorkStep &step) {
            written = ExperimentExport::writeSheets(sheets, target.path, format, [&] {
                cancelled = !step();
                return !cancelled;
            });
        });
    }
    if (written)
        return Outcome::Written;
    return cancelled ? Outcome::Cancelled : Outcome::Failed;
}

void ExperimentExporter::showResult(const QString &path) const
{
    switch (m_model->settings()->getExportBehavior()) {
    case SpinbarSettings::OnExport_OpenFile:
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
        break;
    case SpinbarSettings::OnExport_OpenFolder:
        AppHelper::showInFolder(path);
        break;
    case SpinbarSettings::OnExport_DoNothing:
        break;
    }
}
