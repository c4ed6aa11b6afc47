#include "ui/experimentexporter.h"
#include "ui/pagedatabase.h"
#include "ui/recordstable.h"

#include "cli/clirun.h"
#include "core/experimentfolder.h"
#include "core/spinbarmodel.h"
#include "core/spinbarrecord.h"
#include "core/spinbarsettings.h"
#include "files.h"
#include "framework/common/hindrance.h"
#include "framework/common/workbookreader.h"
#include "framework/settings/languagecontext.h"
#include "rows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString Csv = u"Данные (*.csv)"_s;
const QString Workbook = u"Данные (*.xlsx)"_s;

/// Answers the dialogs of one export.
class Operator : public QObject
{
public:
    explicit Operator(QWidget *page)
        : m_page(page)
    {
        connect(&m_timer, &QTimer::timeout, this, &Operator::answer);
        m_timer.start(0);
    }

    QString path; ///< Empty to cancel.
    QString filter;
    std::function<void()> whileChoosing = [] {};
    bool cancelsWork = false;

    QString folderSeen;
    QString nameSeen;
    QString filterSeen;
    QStringList messages;

private:
    void answer()
    {
        QWidget *modal = QApplication::activeModalWidget();
        if (auto *box = qobject_cast<QMessageBox *>(modal)) {
            auto *replace = box->button(QMessageBox::Yes);
            if (!replace)
                messages += box->text();
            (replace ? replace : box->button(QMessageBox::Ok))->click();
        } else if (auto *dialog = qobject_cast<QFileDialog *>(modal)) {
            choose(*dialog);
        } else if (auto *progress = m_page->findChild<QProgressDialog *>(); progress && cancelsWork) {
            progress->cancel();
        }
    }

    void choose(QFileDialog &dialog)
    {
        auto *name = dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
        if (name->text() == path)
            return;
        folderSeen = dialog.directory().absolutePath();
        nameSeen = name->text();
        filterSeen = dialog.selectedNameFilter();
        whileChoosing();
        if (path.isEmpty())
            return dialog.reject();
        dialog.selectNameFilter(filter);
        name->setText(path);
        QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    }

    QWidget *m_page;
    QTimer m_timer;
};

} // namespace

class TestExport : public QObject
{
    Q_OBJECT

public slots:
    void catchUrl(const QUrl &url) { m_opened += url.toLocalFile(); }

private slots:
    void initTestCase()
    {
        LanguageContext::setLanguage(u"ru_RU"_s);
        QDesktopServices::setUrlHandler(u"file"_s, this, "catchUrl");
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_target = std::make_unique<QTemporaryDir>();
        m_model = std::make_unique<SpinbarModel>(nullptr, m_folder->path());
        m_model->settings()->setExportBehavior(SpinbarSettings::OnExport_DoNothing);
        m_opened.clear();
        m_records.clear();
        addRecord(u"Крыса 1"_s, u"=1+1;\"quoted\"\nsecond line"_s, 2);
        addRecord(u"Крыса 2"_s, u"@x, +y, -z"_s, 1);
        addRecord(QString(40, u'Я'), u"-1"_s, 0);
    }

    void dialogStartsWhereTheLastOneEnded_data()
    {
        const auto row = columns<int, QString, QString, bool, QString, QString>(
            "count", "lastFolder", "lastFilter", "opensThere", "filter", "name");
        const QString both = u"Крыса 1-Крыса 2"_s;
        row("first time", 2, {}, {}, false, Workbook, both);
        row("gone, in another language", 2, u"/no/such/folder"_s, u"Data (*.csv)"_s, false, Workbook, both);
        row("one, again", 1, {}, Csv, true, Csv, u"Крыса 1"_s);
        // Where its own folder has the name already.
        row("one, first time", 1, {}, {}, false, Workbook, u"Крыса 1.xlsx"_s);
        row("one, first time, CSV", 1, {}, Csv, false, Csv, u"Крыса 1.csv"_s);
    }

    void dialogStartsWhereTheLastOneEnded()
    {
        QFETCH(int, count);
        QFETCH(QString, lastFolder);
        QFETCH(QString, lastFilter);
        QFETCH(bool, opensThere);
        if (opensThere)
            lastFolder = m_target->path();
        m_model->settings()->setLastExportFolder(lastFolder);
        m_model->settings()->setLastExportFilter(lastFilter);
        Operator user(&m_page);
        exportFirst(count);
        QCOMPARE(user.folderSeen, QDir(opensThere ? lastFolder : m_model->recordsFolder()).absolutePath());
        QTEST(user.nameSeen, "name");
        QTEST(user.filterSeen, "filter");
        QCOMPARE(m_model->settings()->getLastExportFolder(), lastFolder);
        QCOMPARE(m_model->settings()->getLastExportFilter(), lastFilter);
        QCOMPARE(user.messages, {});
    }

    void fileIsThatOfTheCommandLine_data()
    {
        const auto row = columns<int, QString>("count", "filter");
        row("one as CSV", 1, Csv);
        row("three as CSV", 3, Csv);
        row("one as workbook", 1, Workbook);
        row("three as workbook", 3, Workbook);
    }

    void fileIsThatOfTheCommandLine()
    {
        using namespace WorkbookReader;
        QFETCH(int, count);
        QFETCH(QString, filter);
        m_model->settings()->setSortingOrder(Qt::AscendingOrder);
        PageDatabase page(nullptr);
        page.show();
        for (int row = 0; row < count; ++row)
            page.findChild<RecordsTable *>()->item(row, 0)->setSelected(true);
        Operator user(&page);
        // The suffix plays no part.
        user.path = m_target->filePath(u"page.xlsx"_s);
        user.filter = filter;
        // Another button of that name stands on the page of one experiment.
        for (auto *button : page.findChildren<QPushButton *>()) {
            if (button->isVisible() && button->text() == u"Экспорт"_s)
                button->click();
        }
        QCOMPARE(m_model->settings()->getLastExportFolder(), m_target->path());
        QCOMPARE(m_model->settings()->getLastExportFilter(), filter);

        const QString other = m_target->filePath(u"command"_s);
        QStringList words{u"--data"_s, m_folder->path(), u"--language"_s,
                          u"ru_RU"_s,  u"export"_s,      u"--output"_s,
                          other,       u"--format"_s,    filter == Csv ? u"csv"_s : u"xlsx"_s};
        for (int i = 0; i < count; ++i)
            words += m_records[std::size_t(i)]->name();
        QCOMPARE(runCli(words).exitCode, 0);
        if (filter == Csv) {
            QVERIFY(contents(other).size() > 300);
            QCOMPARE(contents(user.path), contents(other));
            return;
        }
        const QString names = u"xl/workbook.xml"_s;
        const QStringList sheets = attributes(part(user.path, names), "sheet"_L1, "name"_L1);
        QCOMPARE(sheets.size(), count == 1 ? 1 : 1 + count);
        QCOMPARE(sheets, attributes(part(other, names), "sheet"_L1, "name"_L1));
        for (int sheet = 1; sheet <= sheets.size(); ++sheet) {
            QVERIFY(cells(user.path, sheet).size() > 20);
            QCOMPARE(cells(user.path, sheet), cells(other, sheet));
        }
        if (count > 1)
            QCOMPARE(cells(user.path, 1).filter(QRegularExpression(u"^C[234]"_s)),
                     QStringList({u"C2==1+1;\"quoted\"\nsecond line"_s, u"C3=@x, +y, -z"_s, u"C4=-1"_s}));
    }

    void fileIsShownAsTheSettingsWant()
    {
        Operator user(&m_page);
        user.path = m_target->filePath(u"a b.csv"_s);
        user.filter = Csv;
        QStringList expected;
        for (const auto &[behavior, opened] : {std::pair{SpinbarSettings::OnExport_OpenFile, user.path},
                                               {SpinbarSettings::OnExport_DoNothing, QString()},
                                               {SpinbarSettings::OnExport_OpenFolder, m_target->path()}}) {
            m_model->settings()->setExportBehavior(behavior);
            exportFirst(1);
            if (!opened.isEmpty())
                expected += opened;
            QTRY_COMPARE(m_opened, expected);
        }
    }

    void failureIsTold_data()
    {
        const auto row = columns<qint64, bool, bool>("room", "recordsVanish", "folderVanishes");
        constexpr qint64 Plenty = 100'000'000;
        row("vanished folder", Plenty, false, true);
        row("vanished records", Plenty, true, false);
        row("full disk", 6000, false, false);
    }

    void failureIsTold()
    {
        QFETCH(qint64, room);
        QFETCH(bool, recordsVanish);
        QFETCH(bool, folderVanishes);
        QDir(m_target->path()).mkdir(u"below"_s);
        Operator user(&m_page);
        user.path = m_target->filePath(u"below/x"_s);
        user.filter = Workbook;
        QList<SpinbarRecord *> records;
        for (const auto &record : m_records)
            records += record.get();
        // The dialog refuses a folder that is not there, but it may go at any later moment.
        connect(m_model->settings(), &SpinbarSettings::changedLastExportFolder, this, [&] {
            if (folderVanishes)
                QDir(m_target->filePath(u"below"_s)).removeRecursively();
        });
        user.whileChoosing = [&] {
            if (recordsVanish)
                m_records.clear();
        };
        {
            const FileSizeLimit limit{rlim_t(room)};
            ExperimentExporter(m_model.get(), &m_page).exportRecords(records);
        }
        QCOMPARE(user.messages, {u"Ошибка сохранения \"%1\""_s.arg(user.path)});
        QVERIFY(!QFile::exists(user.path));
        QCOMPARE(m_model->settings()->getLastExportFilter(), Workbook);
    }

    void cancelledWorkLeavesNoFile()
    {
        for (int i = 0; i < 300; ++i)
            addRecord(QString::number(i), {}, 20);
        m_model->settings()->setExportBehavior(SpinbarSettings::OnExport_OpenFile);
        Operator user(&m_page);
        user.path = m_target->filePath(u"x.xlsx"_s);
        user.filter = Workbook;
        user.cancelsWork = true;
        exportFirst(int(m_records.size()));
        QVERIFY(QDir(m_target->path()).isEmpty());
        QCOMPARE(user.messages, {});
        QCOMPARE(m_opened, {});
    }

    void nothingToExportAsksNothing()
    {
        Operator user(&m_page);
        exportFirst(0);
        QVERIFY(user.filterSeen.isEmpty());
    }

private:
    void addRecord(const QString &name, const QString &comment, int rows)
    {
        const QString folder = m_model->recordsFolder() + name;
        auto record = std::make_unique<SpinbarRecord>(folder, QDateTime::fromMSecsSinceEpoch(1710000000000));
        QVERIFY(writeFile(record->folder() + "status.log"_L1, statusLog(20, 5000, 600)));
        for (int row = 0; row < rows; ++row)
            record->addItem(5000 + row * 200, 6000 + row * 200, 1000.0 / 3, row % 4, true, {});
        record->setComment(comment);
        record->save();
        m_records.push_back(std::move(record));
    }

    void exportFirst(int count)
    {
        QList<SpinbarRecord *> records;
        for (int i = 0; i < count; ++i)
            records += m_records[std::size_t(i)].get();
        ExperimentExporter(m_model.get(), &m_page).exportRecords(records);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QTemporaryDir> m_target;
    std::unique_ptr<SpinbarModel> m_model;
    std::vector<std::unique_ptr<SpinbarRecord>> m_records;
    QWidget m_page;
    QStringList m_opened;
};

int main(int argc, char *argv[])
{
    // No file manager answers on a bus that is not there.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    const QApplication application(argc, argv);
    TestExport test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_export.moc"
