#include "framework/common/fileutilities.h"
#include "scripts/samplescripts.h"
#include "scripts/scriptlibrary.h"
#include "scripts/speedscript.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <cmath>

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

class TestSampleScripts : public QObject
{
    Q_OBJECT

private slots:
    void protocolHolds_data()
    {
        QTest::addColumn<double>("startRpm");
        QTest::addColumn<double>("slopeRpmPerSecond"); // between the two times
        QTest::addColumn<int>("slopeFrom");
        QTest::addColumn<int>("slopeTo");
        QTest::addColumn<double>("endRpm");
        QTest::addColumn<int>("seconds");
        QTest::newRow("accelerating-slope-4-40") << 4.0 << 36.0 / 300 << 0 << 217 << 30.0 << 300;
        QTest::newRow("accelerating-4-30") << 4.0 << 26.0 / 300 << 0 << 300 << 30.0 << 300;
        QTest::newRow("accelerating-4-30-waiting") << 4.0 << 26.0 / 300 << 10 << 310 << 30.0 << 310;
        QTest::newRow("accelerating-4-30-fast") << 4.0 << 26.0 / 60 << 0 << 60 << 30.0 << 60;
        QTest::newRow("accelerating-5-25") << 5.0 << 20.0 / 180 << 0 << 180 << 25.0 << 180;
        QTest::newRow("constant-4") << 4.0 << 0.0 << 0 << 300 << 4.0 << 300;
        for (const int rpm : {5, 12, 16, 20})
            QTest::addRow("constant-%d", rpm) << double(rpm) << 0.0 << 0 << 60 << double(rpm) << 60;
        QTest::newRow("steps-of-5") << 5.0 << 5.0 / 30 << 1 << 151 << 30.0 << 180;
        QTest::newRow("rats-steps-of-3") << 3.0 << 3.0 / 10 << 1 << 91 << 30.0 << 100;
    }

    void protocolHolds()
    {
        QFETCH(double, slopeRpmPerSecond);
        QFETCH(int, slopeFrom);
        QFETCH(int, slopeTo);
        QFETCH(int, seconds);
        const QTemporaryDir folder;
        const ScriptLibrary library(folder.path());
        QCOMPARE(library.addSamples(), Outcome::Done);
        const auto script = library.load(titleOf(QString::fromLatin1(QTest::currentDataTag())));
        QVERIFY(script);
        QCOMPARE(script->cycleLimit(), 1);
        QCOMPARE(script->getDurationSeconds(), seconds);
        QTEST(script->pointList().constFirst().speed, "startRpm");
        QTEST(script->pointList().constLast().speed, "endRpm");

        const QList<double> table = script->table();
        QCOMPARE(table.size(), seconds * EntriesPerSecond);
        const auto [lowest, highest] = std::ranges::minmax(table);
        QVERIFY(lowest >= 0 && highest <= TopRpm);
        QVERIFY(std::ranges::is_sorted(table)); // no animal meets a slower drum than before
        const double start = script->pointList().constFirst().speed;
        const auto speedAt = [&](int second) {
            return second == 0 ? start : table[second * EntriesPerSecond - 1];
        };
        const double slope = (speedAt(slopeTo) - speedAt(slopeFrom)) / (slopeTo - slopeFrom);
        QVERIFY2(std::abs(slope - slopeRpmPerSecond) < 0.001, qPrintable(QString::number(slope)));
    }

    void everySampleHasARow() { QCOMPARE(sampleScripts().size(), 12); }

    void titlesMakeFilesOfTheirOwn_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << u"en_US"_s;
        QTest::newRow("Russian") << u"ru_RU"_s;
    }

    void titlesMakeFilesOfTheirOwn()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(translator.load(u":/resources/translations/Spinbar_%1.qm"_s.arg(language)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QSet<QString> titles;
        for (const SampleScript &sample : sampleScripts()) {
            QVERIFY2(FileUtilities::acceptableFileName(sample.title), qPrintable(sample.title));
            titles.insert(sample.title.toCaseFolded());
        }
        QCOMPARE(titles.size(), 12);
    }

    void titlesInUseStayAsTheyAre()
    {
        const QTemporaryDir folder;
        const ScriptLibrary library(folder.path());
        const QString own = titleOf(u"constant-5"_s);
        const QString otherCase = titleOf(u"constant-12"_s).toUpper();
        for (const QString &title : {own, otherCase})
            QCOMPARE(library.create(title), Outcome::Done);
        QCOMPARE(library.addSamples(), Outcome::Done);
        QCOMPARE(library.titles().size(), 12);
        for (const QString &title : {own, otherCase})
            QVERIFY(library.load(title)->pointList().isEmpty());

        // What is added can be edited, though it comes from a place that can only be read.
        const QString added = library.findFile(titleOf(u"constant-4"_s));
        QVERIFY(QFile(added).permissions().testFlag(QFile::WriteOwner));
        QVERIFY(QFile::remove(added));
        QCOMPARE(library.addSamples(), Outcome::Done);
        QCOMPARE(library.titles().size(), 12);
    }

    void whatCannotBeWrittenIsTold()
    {
        const QTemporaryDir folder;
        QFile inTheWay(folder.filePath(u"Scripts"_s));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        QCOMPARE(ScriptLibrary(inTheWay.fileName()).addSamples(), Outcome::CannotAddSamples);
    }
};

QTEST_GUILESS_MAIN(TestSampleScripts)
#include "tst_samplescripts.moc"
