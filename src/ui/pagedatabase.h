#pragma once

#include "ui/experimentexporter.h"

#include "core/experimentlibrary.h"
#include "core/experimentrecords.h"
#include "framework/common/connectionhelper.h"
#include "framework/common/widgets/latewidget.h"

#include <QPointer>

class QLabel;
class QStackedWidget;
class QTableWidgetItem;
class ExperimentViewer;
class MultiExperimentViewer;
class RecordsTable;
class SpinbarSettings;

/// The experiments on disk: a table of all, in which they are named, renamed and removed, beside what there
/// is to see of those selected. Nothing watches the disk: the page shows what the last reload found.
class PageDatabase : public LateWidget
{
    Q_OBJECT

public:
    /// For the records folder and the settings of SpinbarModel::instance(). Its widgets are made when it is
    /// first shown, and nothing is read before.
    explicit PageDatabase(QWidget *parent);
    /// Stores how the table is sorted.
    ~PageDatabase() override;

    /// The records changed: the page is to be filled anew when it is next shown.
    void setNeedsReload() { m_needsReload = true; }
    bool needsReload() const { return m_needsReload; }

public slots:
    void reload();
    /// Shows what the selection calls for.
    void manageSelection();
    /// Asks, and moves the folders of these "experiment.json" to the trash.
    void removeExperiments(const QStringList &paths);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void createTable(QWidget *side);
    void createStack(QWidget *parent);
    void fillSinglePage();
    void fillMultiPage();
    void fillTableSide(QWidget *side);
    void layOut() override;
    void clear();
    void clearViewers();
    void readRecords();
    void restoreSort();
    void showSingle(SpinbarRecord *record);
    void showSeveral(const QStringList &paths);
    /// What the single page or the one of several shows.
    void exportExperiments(bool single);
    void applyEdit(const QTableWidgetItem *cell);
    void rename(const QString &path, const QString &newName);
    void refuseName(const QString &path, const QString &oldName, const QString &reason);
    /// True if any could be moved; the operator may stop it halfway.
    bool moveToTrash(const QStringList &paths);
    void showMenu(QPoint position);
    void openRecordsFolder() const;

    ExperimentLibrary m_library;
    QPointer<SpinbarSettings> m_settings;
    ExperimentRecords *m_records = nullptr;
    RecordsTable *m_table = nullptr;
    QStackedWidget *m_stack = nullptr;
    QLabel *m_noDataLabel = nullptr;
    QLabel *m_dateLabel = nullptr;
    ExperimentViewer *m_singleViewer = nullptr;
    MultiExperimentViewer *m_multiViewer = nullptr;
    ExperimentExporter m_exporter;
    QWidget *m_singlePage = nullptr;
    QWidget *m_multiPage = nullptr;
    bool m_needsReload = true;
    bool m_sortRestored = false;
    bool m_reading = false;
    bool m_readAgain = false;
    /// The table still speaks while it is destroyed, after this has ended.
    ConnectionHelper m_tableConnections;
};
