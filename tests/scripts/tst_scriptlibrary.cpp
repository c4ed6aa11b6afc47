#include "framework/common/fileutilities.h"
#include "scripts/samplescripts.h"
#include "scripts/scriptlibrary.h"
#include "scripts/speedscript.h"

#include "files.h"
#include "rows.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;
using Outcome = ScriptLibrary::Outcome;

namespace {

constexpr double TopRpm = 30;
constexpr int EntriesPerSecond = 5;

QString titleOf(const QString &file)
{
    const QList<SampleScript> scripts = sampleScripts();
    const auto found =
        std::ranges::find(scripts, file, [](const SampleScript &s) { return QFileInfo(s.path).baseName(); });
    return found == scripts.end() ? QString() : found->title;
}

} // namespace

class TestScriptLibrary : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_library = std::make_unique<ScriptLibrary>(m_folder->filePath(u"Scripts"_s));
    }

    void titlesAreTheBaseNamesOfTheFiles()
    {
        QCOMPARE(m_library->create(u" Slow "_s), Outcome::Done);
        QCOMPARE(m_library->create(u"v1.2"_s), Outcome::Done);
        QVERIFY(QDir().mkdir(m_library->filePath(u"folder"_s)));
        QVERIFY(writeFile(m_folder->filePath(u"Scripts/notes.txt"_s)));
        QCOMPARE(m_library->titles(), QStringList({u"Slow"_s, u"v1.2"_s}));
        QCOMPARE(m_library->findFile(u"v1.2"_s), m_folder->filePath(u"Scripts/v1.2.xml"_s));
        QVERIFY(m_library->findFile(u"slow"_s).isEmpty());
        QVERIFY(!m_library->load(u"slow"_s));
    }

    void titleDecidesTheOutcome_data()
    {
        const auto row = columns<QString, Outcome, Outcome, Outcome>("title", "created", "cloned", "renamed");
        row("free", "New", Outcome::Done, Outcome::Done, Outcome::Done);
        row("blank", " \t", Outcome::EmptyTitle, Outcome::EmptyTitle, Outcome::EmptyTitle);
        row("its own", "One ", Outcome::TitleTaken, Outcome::TitleTaken, Outcome::Unchanged);
        row("another's", "Two", Outcome::TitleTaken, Outcome::TitleTaken, Outcome::CannotRename);
        row("path", "../Settings", Outcome::CannotSave, Outcome::CannotCopy, Outcome::CannotRename);
        row("hidden", ".One", Outcome::CannotSave, Outcome::CannotCopy, Outcome::CannotRename);
        row("too long for a file", QString(400, u'x'), Outcome::CannotSave, Outcome::CannotCopy,
            Outcome::CannotRename);
    }

    void titleDecidesTheOutcome()
    {
        QFETCH(QString, title);
        QCOMPARE(m_library->create(u"One"_s), Outcome::Done);
        QCOMPARE(m_library->create(u"Two"_s), Outcome::Done);
        QTEST(m_library->create(title), "created");
        QFile::remove(m_library->filePath(u"New"_s));
        QTEST(m_library->clone(u"One"_s, title), "cloned");
        QFile::remove(m_library->filePath(u"New"_s));
        QTEST(m_library->rename(u"One"_s, title), "renamed");
        QCOMPARE(m_library->titles().size(), 2);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList{u"Scripts"_s});
    }

    void contentFollowsCloneAndRename()
    {
        m_library->create(u"One"_s);
        const auto script = m_library->load(u"One"_s);
        QVERIFY(script && !script->getAutoSave());
        script->setLoops(7);
        script->setPointList({{0, 1}, {5, 2}});
        script->storePoints();
        QCOMPARE(m_library->clone(u"One"_s, u"Two"_s), Outcome::Done);
        QCOMPARE(m_library->rename(u"One"_s, u"Three"_s), Outcome::Done);
        QCOMPARE(m_library->clone(u"One"_s, u"Four"_s), Outcome::CannotCopy);
        for (const QString &title : {u"Two"_s, u"Three"_s}) {
            const auto copy = m_library->load(title);
            QVERIFY(copy);
            QCOMPARE(copy->getLoops(), 7);
            QCOMPARE(copy->pointList(), script->pointList());
        }
    }

    void removedScriptLiesInTheTrash()
    {
        m_library->create(u"Gone"_s);
        QCOMPARE(m_library->remove(u"Gone"_s), Outcome::Done);
        QVERIFY(m_library->titles().isEmpty());
        QCOMPARE(m_library->remove(u"Gone"_s), Outcome::CannotRemove);
        QVERIFY(!QFile::exists(u"files"_s)); // what a missing trash would leave in the current folder
    }

    void rememberedTitleIsSelected()
    {
        QCOMPARE(ScriptLibrary::indexToSelect({}, u"разгон"_s), -1);
        QCOMPARE(ScriptLibrary::indexToSelect({u"x"_s, u"y"_s}, u"разгон"_s), 0);
        QCOMPARE(ScriptLibrary::indexToSelect({u"x"_s, u"РАЗГОН"_s, u"y"_s}, u"разгон"_s), 1);
        QCOMPARE(ScriptLibrary::indexToSelect({u"Разгон"_s, u"разгон"_s, u"y"_s}, u"разгон"_s), 1);
    }

    void protocolsHold()
    {
        QCOMPARE(m_library->addSamples(), Outcome::Done);
        // The slope, in rpm a second, is that between the two times.
        const auto check = [this](const QString &file, double startRpm, double slope, int slopeFrom,
                                  int slopeTo, double endRpm, int seconds) {
            const auto script = m_library->load(titleOf(file));
            QVERIFY2(script, qPrintable(file));
            QCOMPARE(script->cycleLimit(), 1);
            QCOMPARE(script->getDurationSeconds(), seconds);
            QCOMPARE(script->pointList().constFirst().speed, startRpm);
            QCOMPARE(script->pointList().constLast().speed, endRpm);

            const QList<double> table = script->table();
            QCOMPARE(table.size(), seconds * EntriesPerSecond);
            QVERIFY(std::ranges::is_sorted(table)); // no animal meets a slower drum than before
            QVERIFY(table.first() >= 0 && table.last() <= TopRpm);
            const auto speedAt = [&](int second) {
                return second == 0 ? startRpm : table[second * EntriesPerSecond - 1];
            };
            const double actual = (speedAt(slopeTo) - speedAt(slopeFrom)) / (slopeTo - slopeFrom);
            QVERIFY2(std::abs(actual - slope) < 0.001, qPrintable(file));
        };
        check(u"accelerating-slope-4-40"_s, 4, 36.0 / 300, 0, 217, 30, 300);
        check(u"accelerating-4-30"_s, 4, 26.0 / 300, 0, 300, 30, 300);
        check(u"accelerating-4-30-waiting"_s, 4, 26.0 / 300, 10, 310, 30, 310);
        check(u"accelerating-4-30-fast"_s, 4, 26.0 / 60, 0, 60, 30, 60);
        check(u"accelerating-5-25"_s, 5, 20.0 / 180, 0, 180, 25, 180);
        check(u"constant-4"_s, 4, 0, 0, 300, 4, 300);
        for (const int rpm : {5, 12, 16, 20})
            check(u"constant-%1"_s.arg(rpm), rpm, 0, 0, 60, rpm, 60);
        check(u"steps-of-5"_s, 5, 5.0 / 30, 1, 151, 30, 180);
        check(u"rats-steps-of-3"_s, 3, 3.0 / 10, 1, 91, 30, 100);
        QCOMPARE(sampleScripts().size(), 12);
    }

    void titlesMakeFilesOfTheirOwn()
    {
        for (const QString &language : {u"en_US"_s, u"ru_RU"_s}) {
            QTranslator translator;
            QVERIFY(translator.load(u":/resources/translations/Spinbar_%1.qm"_s.arg(language)));
            QVERIFY(QCoreApplication::installTranslator(&translator));
            QSet<QString> titles;
            for (const SampleScript &sample : sampleScripts()) {
                QVERIFY2(FileUtilities::acceptableFileName(sample.title), qPrintable(sample.title));
                titles.insert(sample.title.toCaseFolded());
            }
            QCOMPARE(titles.size(), sampleScripts().size());
        }
    }

    void titlesInUseStayAsTheyAre()
    {
        const QString own = titleOf(u"constant-5"_s);
        const QString otherCase = titleOf(u"constant-12"_s).toUpper();
        for (const QString &title : {own, otherCase})
            QCOMPARE(m_library->create(title), Outcome::Done);
        QCOMPARE(m_library->addSamples(), Outcome::Done);
        QCOMPARE(m_library->titles().size(), 12);
        for (const QString &title : {own, otherCase})
            QVERIFY(m_library->load(title)->pointList().isEmpty());

        // What is added can be edited, though it comes from a place that can only be read.
        const QString added = m_library->findFile(titleOf(u"constant-4"_s));
        QVERIFY(QFile(added).permissions().testFlag(QFile::WriteOwner));
        QVERIFY(QFile::remove(added));
        QCOMPARE(m_library->addSamples(), Outcome::Done);
        QCOMPARE(m_library->titles().size(), 12);
        QCOMPARE(ScriptLibrary(added).addSamples(), Outcome::CannotAddSamples); // a file, no folder
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ScriptLibrary> m_library;
};

QTEST_GUILESS_MAIN(TestScriptLibrary)
#include "tst_scriptlibrary.moc"
