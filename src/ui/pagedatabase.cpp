#include "ui/pagedatabase.h"

#include "ui/experimentviewer.h"
#include "ui/multiexperimentviewer.h"
#include "ui/pagebar.h"
#include "ui/recordstable.h"

#include "core/recordslog.h"
#include "core/spinbarmodel.h"
#include "core/spinbarrecord.h"
#include "core/spinbarsettings.h"
#include "framework/common/texthelper.h"
#include "framework/common/widgets/apphelperdialogs.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/common/widgets/uihelper.h"
#include "framework/common/widgets/workprogress.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QUrl>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int LeastTableSideWidth = 300;
constexpr int LeastStackWidth = 300;
constexpr int SplitterScale = 1000;
// Far wider than any screen; a settings file may hold anything.
constexpr double MostLeftSize = 1e6;

QString folderOf(const QString &jsonPath)
{
    return jsonPath.first(jsonPath.lastIndexOf('/'_L1) + 1);
}

/// The system refuses to move a folder in which the log is being written, but not on every platform.
bool isBeingRecorded(const QString &folder)
{
    const SpinbarRecord *current = SpinbarModel::instance()->currentRecord();
    return current && QFileInfo(current->folder()) == QFileInfo(folder);
}

} // namespace

PageDatabase::PageDatabase(QWidget *parent)
    : LateWidget(parent)
    , m_library(SpinbarModel::instance()->recordsFolder())
    , m_settings(SpinbarModel::instance()->settings())
    , m_records(new ExperimentRecords(this))
    , m_exporter(SpinbarModel::instance(), this)
{}

PageDatabase::~PageDatabase()
{
    // A page that was never filled has no sort of its own yet.
    if (!m_sortRestored || !m_settings)
        return;
    m_settings->setSortingColumn(m_table->sortColumn());
    m_settings->setSortingOrder(m_table->sortOrder());
    m_settings->save();
}

void PageDatabase::createTable(QWidget *side)
{
    m_table = new RecordsTable(side);
    m_table->setAccessibleName(QCoreApplication::translate("MainWindow", "Записи"));
    auto *remover = new QShortcut(QKeySequence(QKeySequence::Delete), m_table);
    remover->setContext(Qt::WidgetShortcut);
    m_tableConnections << connect(remover, &QShortcut::activated, this,
                                  [this] { removeExperiments(m_table->selectedPaths()); })
                       << connect(m_table, &QTableWidget::itemSelectionChanged, this,
                                  &PageDatabase::manageSelection)
                       << connect(m_table, &QTableWidget::itemChanged, this, &PageDatabase::applyEdit)
                       << connect(m_table, &QWidget::customContextMenuRequested, this,
                                  &PageDatabase::showMenu);
}

void PageDatabase::createStack(QWidget *parent)
{
    m_noDataLabel = new QLabel(tr("No data"));
    m_noDataLabel->setStyleSheet(u"color: #999; font-size: 20px"_s);
    m_noDataLabel->setAlignment(Qt::AlignCenter);
    m_stack = new QStackedWidget(parent);
    m_stack->setMinimumWidth(LeastStackWidth);
    m_singlePage = new QWidget(m_stack);
    m_multiPage = new QWidget(m_stack);
    for (QWidget *page : {static_cast<QWidget *>(m_noDataLabel), m_singlePage, m_multiPage})
        m_stack->addWidget(page);
    fillSinglePage();
    fillMultiPage();
}

void PageDatabase::fillSinglePage()
{
    m_dateLabel = UIHelper::GenerateLabelWithName({}, u"subtext"_s);
    m_dateLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_singleViewer = new ExperimentViewer(m_singlePage);
    auto *exporter = PageBar::exportButton(tr("Export"), tr("Export to spreadsheet"));
    connect(exporter, &QPushButton::clicked, this, [this] { exportExperiments(true); });
    PageBar::fill(m_singlePage, m_singleViewer, {m_dateLabel, nullptr, exporter});
}

void PageDatabase::fillMultiPage()
{
    m_multiViewer = new MultiExperimentViewer(m_multiPage);
    auto *exporter = PageBar::exportButton(tr("Export"), tr("Export to spreadsheet"));
    connect(exporter, &QPushButton::clicked, this, [this] { exportExperiments(false); });
    PageBar::fill(m_multiPage, m_multiViewer, {nullptr, exporter});
}

void PageDatabase::fillTableSide(QWidget *side)
{
    createTable(side);
    auto *open = PageBar::toolButton(u":/icons/folder.svg"_s, tr("Open in explorer"));
    auto *refresh = PageBar::toolButton(u":/icons/refresh.svg"_s, tr("Reload records"));
    connect(open, &QPushButton::clicked, this, &PageDatabase::openRecordsFolder);
    connect(refresh, &QPushButton::clicked, this, &PageDatabase::reload);
    PageBar::fill(side, m_table, {nullptr, open, refresh});
    side->setMinimumWidth(LeastTableSideWidth);
}

// From the page downwards: what is moved with all its children takes on the style sheet anew.
void PageDatabase::layOut()
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *splitter = new QSplitter(this);
    layout->addWidget(splitter);
    auto *side = new QWidget(splitter);
    fillTableSide(side);
    createStack(splitter);
    splitter->setChildrenCollapsible(false);
    const double left = m_settings->getDatabaseSplitterRatio() * SplitterScale;
    splitter->setSizes({int(std::clamp(left, 0.0, MostLeftSize)), SplitterScale});
    connect(splitter, &QSplitter::splitterMoved, this, [this, splitter] {
        const QList<int> sizes = splitter->sizes();
        if (sizes.constLast() > 0)
            m_settings->setDatabaseSplitterRatio(double(sizes.constFirst()) / sizes.constLast());
    });
}

void PageDatabase::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!m_needsReload)
        return;
    m_needsReload = false;
    reload();
}

void PageDatabase::clear()
{
    clearViewers();
    m_records->clear();
}

void PageDatabase::clearViewers()
{
    m_singleViewer->setRecord(nullptr);
    m_multiViewer->setRecords({});
}

void PageDatabase::reload()
{
    // Timers and queued calls go on while the files are read.
    if (m_reading) {
        m_readAgain = true;
        return;
    }
    if (!m_table) {
        setNeedsReload();
        return;
    }
    clear();
    readRecords();
    restoreSort();
    m_table->fill(m_records->all(), m_settings->getLastExperimentPath());
    manageSelection();
    if (std::exchange(m_readAgain, false))
        QMetaObject::invokeMethod(this, &PageDatabase::reload, Qt::QueuedConnection);
}

void PageDatabase::readRecords()
{
    m_reading = true;
    const QStringList folders = m_library.folders();
    WorkProgress progress(tr("Reload records"), {}, int(folders.size()), this);
    // What is missing after a cancelled reading comes with the next showing.
    if (!m_records->read(folders, [&progress] { return progress.step(); }))
        m_needsReload = true;
    m_reading = false;
}

void PageDatabase::restoreSort()
{
    if (m_sortRestored)
        return;
    m_sortRestored = true;
    m_table->setSort(m_settings->getSortingColumn(), m_settings->getSortingOrder());
}

void PageDatabase::manageSelection()
{
    clearViewers();
    const QStringList paths = m_table->selectedPaths();
    m_table->markWholeRows();
    m_dateLabel->clear();
    m_stack->setCurrentWidget(m_noDataLabel);
    QString shown;
    if (paths.size() > 1) {
        showSeveral(paths);
    } else if (SpinbarRecord *record = m_records->find(paths.value(0))) {
        shown = record->experimentJsonPath();
        showSingle(record);
    }
    m_settings->setLastExperimentPath(shown);
}

void PageDatabase::showSingle(SpinbarRecord *record)
{
    m_singleViewer->setRecord(record);
    if (record->timestamp() != 0)
        m_dateLabel->setText(TextHelper::DateTimeFileString(
            QDateTime::fromMSecsSinceEpoch(record->timestamp()).toLocalTime(), true));
    m_stack->setCurrentWidget(m_singlePage);
}

void PageDatabase::showSeveral(const QStringList &paths)
{
    QList<SpinbarRecord *> records;
    for (const QString &path : paths) {
        if (SpinbarRecord *record = m_records->find(path))
            records.append(record);
    }
    m_stack->setCurrentWidget(m_multiPage);
    m_multiViewer->setRecords(records);
}

void PageDatabase::exportExperiments(bool single)
{
    QList<SpinbarRecord *> records = m_multiViewer->records();
    if (single)
        records = m_singleViewer->record() ? QList{m_singleViewer->record()} : QList<SpinbarRecord *>();
    m_exporter.exportRecords(records);
}

void PageDatabase::applyEdit(const QTableWidgetItem *cell)
{
    const QString path = cell->data(RecordsTable::PathRole).toString();
    const QString key = cell->data(RecordsTable::KeyRole).toString();
    const QString text = cell->text();
    SpinbarRecord *record = m_records->find(path);
    if (!record)
        return;
    if (key == "Title"_L1) {
        // Renaming fills the table anew, which still has to sort for this change of a cell.
        QMetaObject::invokeMethod(
            this, [this, path, text] { rename(path, text); }, Qt::QueuedConnection);
        return;
    }
    if (key == "Rodent"_L1)
        record->setTitle(text);
    else if (key == "Comment"_L1)
        record->setComment(text);
    record->save();
}

void PageDatabase::rename(const QString &path, const QString &newName)
{
    using Outcome = ExperimentLibrary::RenameOutcome;
    const SpinbarRecord *record = m_records->find(path);
    if (!record)
        return;
    QString folder;
    const Outcome outcome = isBeingRecorded(record->folder())
                                ? Outcome::Failed
                                : m_library.rename(record->folder(), newName, &folder);
    switch (outcome) {
    case Outcome::Unchanged:
        return;
    case Outcome::EmptyName:
        return refuseName(path, record->name(), tr("Experiment title cannot be empty"));
    case Outcome::NameTaken:
        return refuseName(path, record->name(), tr("This title is already used"));
    case Outcome::Renamed:
        m_settings->setLastExperimentPath(ExperimentFile::pathIn(folder));
        break;
    case Outcome::Failed:
        AppHelper::warningMessage(tr("Cannot rename experiment"), {});
        break;
    }
    reload();
}

void PageDatabase::refuseName(const QString &path, const QString &oldName, const QString &reason)
{
    AppHelper::warningMessage(reason, {});
    m_table->setCellText(path, RecordsTable::NameColumn, oldName);
}

void PageDatabase::showMenu(QPoint position)
{
    const QStringList paths = m_table->selectedPaths();
    if (paths.isEmpty())
        return;
    QMenu menu(this);
    const bool single = paths.size() == 1;
    if (single) {
        QAction *show = menu.addAction(tr("Show in folder"));
        StyleHelper::Instance()->setMenuActionIcon(show, u":/icons/folder.svg"_s, u"#FFF"_s);
        connect(show, &QAction::triggered, this, [paths] { AppHelper::showInFolder(paths.constFirst()); });
        menu.addSeparator();
    }
    QAction *remove = menu.addAction(single ? tr("Remove experiment") : tr("Remove experiments"));
    StyleHelper::Instance()->setMenuActionIcon(remove, u":/icons/delete.svg"_s, u"#FFF"_s);
    connect(remove, &QAction::triggered, this, [this, paths] { removeExperiments(paths); });
    menu.exec(m_table->viewport()->mapToGlobal(position));
}

void PageDatabase::removeExperiments(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    const QString question =
        paths.size() == 1
            ? tr("Remove selected experiment") + '?'_L1
            : u"%1 %2 %3?"_s.arg(tr("Remove")).arg(paths.size()).arg(tr("selected experiments"));
    if (!AppHelper::confirmDialog(tr("Remove"), question, QMessageBox::Question))
        return;
    if (moveToTrash(paths))
        reload();
}

bool PageDatabase::moveToTrash(const QStringList &paths)
{
    bool moved = false;
    WorkProgress progress(tr("Remove"), {}, int(paths.size()), this);
    for (const QString &path : paths) {
        const QString folder = folderOf(path);
        if (isBeingRecorded(folder))
            qCWarning(recordsLog) << "Not moved to the trash while it is recorded:" << folder;
        else
            moved |= m_library.remove(folder);
        if (!progress.step())
            break;
    }
    return moved;
}

void PageDatabase::openRecordsFolder() const
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(m_library.recordsFolder()));
}
