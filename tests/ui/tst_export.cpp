#include "ui/experimentexporter.h"
#include "ui/pagedatabase.h"
#include "ui/recordstable.h"

#include "cli/clirun.h"
#include "core/spinbarmodel.h"
#include "core/spinbarrecord.h"
#include "core/spinbarsettings.h"
#include "framework/common/hindrance.h"
#include "framework/common/workbookreader.h"
#include "framework/settings/languagecontext.h"

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
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("lastFolder");
        QTest::addColumn<QString>("lastFilter");
        QTest::addColumn<bool>("opensThere");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("name");
        const QString both = u"Крыса 1-Крыса 2"_s;
        QTest::newRow("first time") << 2 << QString() << QString() << false << Workbook << both;
        QTest::newRow("again") << 2 << QString() << Csv << true << Csv << both;
        QTest::newRow("gone, in another language")
            << 2 << u"/no/such/folder"_s << u"Data (*.csv)"_s << false << Workbook << both;
        QTest::newRow("one, again") << 1 << QString() << Csv << true << Csv << u"Крыса 1"_s;
        // Where its own folder has the name already.
        QTest::newRow("one, first time")
            << 1 << QString() << QString() << false << Workbook << u"Крыса 1.xlsx"_s;
        QTest::newRow("one, first time, CSV") << 1 << QString() << Csv << false << Csv << u"Крыса 1.csv"_s;
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
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("filter");
        QTest::newRow("one as CSV") << 1 << Csv;
        QTest::newRow("three as CSV") << 3 << Csv;
        QTest::newRow("one as workbook") << 1 << Workbook;
        QTest::newRow("three as workbook") << 3 << Workbook;
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
        clickExport(page);
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
            QVERIFY(content(other).size() > 300);
            QCOMPARE(content(user.path), content(other));
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

    void fileIsShownAsTheSettingsWant_data()
    {
        QTest::addColumn<SpinbarSettings::ExportBehaviorOption>("behavior");
        QTest::addColumn<QString>("opened");
        QTest::newRow("file") << SpinbarSettings::OnExport_OpenFile << u"a b.csv"_s;
        QTest::newRow("folder") << SpinbarSettings::OnExport_OpenFolder << u"."_s;
        QTest::newRow("nothing") << SpinbarSettings::OnExport_DoNothing << QString();
    }

    void fileIsShownAsTheSettingsWant()
    {
        QFETCH(QString, opened);
        QFETCH(SpinbarSettings::ExportBehaviorOption, behavior);
        m_model->settings()->setExportBehavior(behavior);
        Operator user(&m_page);
        user.path = m_target->filePath(u"a b.csv"_s);
        user.filter = Csv;
        exportFirst(1);
        QStringList expected;
        if (!opened.isEmpty())
            expected += QDir::cleanPath(m_target->filePath(opened));
        QTRY_COMPARE(m_opened, expected);
    }

    void failureIsTold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("readOnly");
        QTest::addColumn<qint64>("room");
        QTest::addColumn<bool>("recordsVanish");
        QTest::addColumn<bool>("folderVanishes");
        constexpr qint64 Plenty = 100'000'000;
        QTest::newRow("vanished folder") << u"below/x"_s << false << Plenty << false << true;
        QTest::newRow("vanished records") << u"x"_s << false << Plenty << true << false;
#ifdef Q_OS_LINUX
        QTest::newRow("read-only file") << u"x"_s << true << Plenty << false << false;
        QTest::newRow("full disk") << u"x"_s << false << qint64(6000) << false << false;
#endif
    }

    void failureIsTold()
    {
        QFETCH(QString, name);
        QFETCH(bool, readOnly);
        QFETCH(bool, recordsVanish);
        QFETCH(bool, folderVanishes);
        QFETCH(qint64, room);
        QDir(m_target->path()).mkdir(u"below"_s);
        QFile::setPermissions(m_target->path(), QFile::Permissions(0x7777));
        Operator user(&m_page);
        user.path = m_target->filePath(name);
        user.filter = Workbook;
        if (readOnly) {
            QFile old(user.path);
            QVERIFY(old.open(QFile::WriteOnly) && old.write("old") == 3);
            old.setPermissions(QFile::ReadOwner | QFile::ReadOther);
        }
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
#ifdef Q_OS_LINUX
            const FileSizeLimit limit{rlim_t(room)};
            std::unique_ptr<OrdinaryUser> ordinary;
            if (readOnly)
                ordinary = std::make_unique<OrdinaryUser>();
#endif
            ExperimentExporter(m_model.get(), &m_page).exportRecords(records);
        }
        QCOMPARE(user.messages, {u"Ошибка сохранения \"%1\""_s.arg(user.path)});
        QCOMPARE(WorkbookReader::content(user.path), readOnly ? "old" : "");
        QCOMPARE(QFile::exists(user.path), readOnly);
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
        QByteArray log;
        for (int i = 0; i < 20; ++i)
            log += "S;1;0;28;28;28;28;" + QByteArray::number(i * 600, 16) + ';'
                   + QByteArray::number(5000 + i * 200, 16) + "\r\n";
        QFile file(record->folder() + "status.log"_L1);
        if (!file.open(QFile::WriteOnly) || file.write(log) != log.size())
            qFatal("no log");
        for (int row = 0; row < rows; ++row)
            record->addItem(5000 + row * 200, 6000 + row * 200, 1000.0 / 3, row % 4, true, {});
        record->setComment(comment);
        record->save();
        m_records.push_back(std::move(record));
    }

    static void clickExport(const PageDatabase &page)
    {
        for (auto *button : page.findChildren<QPushButton *>()) {
            if (button->isVisible() && button->text() == u"Экспорт"_s)
                return button->click();
        }
        qFatal("no button");
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
