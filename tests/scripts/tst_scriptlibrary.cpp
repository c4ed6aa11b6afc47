#include "scripts/scriptlibrary.h"
#include "scripts/speedscript.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using Outcome = ScriptLibrary::Outcome;

class TestScriptLibrary : public QObject
{
    Q_OBJECT

private slots:
    void titlesAreTheBaseNamesOfTheFiles()
    {
        const QTemporaryDir folder;
        const ScriptLibrary library(folder.path());
        QCOMPARE(library.create(u" Slow "_s), Outcome::Done);
        QCOMPARE(library.create(u"v1.2"_s), Outcome::Done);
        QVERIFY(QDir(folder.path()).mkdir(u"folder.xml"_s));
        QFile other(folder.filePath(u"notes.txt"_s));
        QVERIFY(other.open(QIODevice::WriteOnly));
        QCOMPARE(library.titles(), QStringList({u"Slow"_s, u"v1.2"_s}));
        QCOMPARE(library.findFile(u"v1.2"_s), folder.filePath(u"v1.2.xml"_s));
        QVERIFY(library.findFile(u"slow"_s).isEmpty());
        QVERIFY(!library.load(u"slow"_s));
    }

    void titleDecidesTheOutcome_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<Outcome>("created");
        QTest::addColumn<Outcome>("cloned");
        QTest::addColumn<Outcome>("renamed");
        QTest::newRow("free") << u"New"_s << Outcome::Done << Outcome::Done << Outcome::Done;
        QTest::newRow("blank") << u" \t"_s << Outcome::EmptyTitle << Outcome::EmptyTitle
                               << Outcome::EmptyTitle;
        QTest::newRow("its own") << u"One "_s << Outcome::TitleTaken << Outcome::TitleTaken
                                 << Outcome::Unchanged;
        QTest::newRow("another's") << u"Two"_s << Outcome::TitleTaken << Outcome::TitleTaken
                                   << Outcome::CannotRename;
        QTest::newRow("path") << u"../Settings"_s << Outcome::CannotSave << Outcome::CannotCopy
                              << Outcome::CannotRename;
        QTest::newRow("hidden") << u".One"_s << Outcome::CannotSave << Outcome::CannotCopy
                                << Outcome::CannotRename;
        QTest::newRow("too long for a file")
            << QString(400, u'x') << Outcome::CannotSave << Outcome::CannotCopy << Outcome::CannotRename;
    }

    void titleDecidesTheOutcome()
    {
        QFETCH(QString, title);
        const QTemporaryDir folder;
        const ScriptLibrary library(folder.filePath(u"Scripts"_s));
        QCOMPARE(library.create(u"One"_s), Outcome::Done);
        QCOMPARE(library.create(u"Two"_s), Outcome::Done);
        QTEST(library.create(title), "created");
        QFile::remove(library.filePath(u"New"_s));
        QTEST(library.clone(u"One"_s, title), "cloned");
        QFile::remove(library.filePath(u"New"_s));
        QTEST(library.rename(u"One"_s, title), "renamed");
        QCOMPARE(library.titles().size(), 2);
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList{u"Scripts"_s});
    }

    void contentFollowsCloneAndRename()
    {
        const QTemporaryDir folder;
        const ScriptLibrary library(folder.path());
        library.create(u"One"_s);
        const auto script = library.load(u"One"_s);
        QVERIFY(script && !script->getAutoSave());
        script->setLoops(7);
        script->setPointList({{0, 1}, {5, 2}});
        script->storePoints();
        QCOMPARE(library.clone(u"One"_s, u"Two"_s), Outcome::Done);
        QCOMPARE(library.rename(u"One"_s, u"Three"_s), Outcome::Done);
        QCOMPARE(library.clone(u"One"_s, u"Four"_s), Outcome::CannotCopy);
        for (const QString &title : {u"Two"_s, u"Three"_s}) {
            const auto copy = library.load(title);
            QVERIFY(copy);
            QCOMPARE(copy->getLoops(), 7);
            QCOMPARE(copy->pointList(), script->pointList());
        }
    }

    void removedScriptLiesInTheTrash()
    {
        const QTemporaryDir folder;
        const ScriptLibrary library(folder.path());
        library.create(u"Gone"_s);
        QCOMPARE(library.remove(u"Gone"_s), Outcome::Done);
        QVERIFY(library.titles().isEmpty());
        QCOMPARE(library.remove(u"Gone"_s), Outcome::CannotRemove);
        QVERIFY(!QFile::exists(u"files"_s)); // what a missing trash would leave in the current folder
    }

    void rememberedTitleIsSelected_data()
    {
        QTest::addColumn<QStringList>("titles");
        QTest::addColumn<int>("index");
        QTest::newRow("none") << QStringList() << -1;
        QTest::newRow("unknown") << QStringList{u"x"_s, u"y"_s} << 0;
        QTest::newRow("case does not matter") << QStringList{u"x"_s, u"РАЗГОН"_s, u"y"_s} << 1;
        QTest::newRow("last of several") << QStringList{u"Разгон"_s, u"разгон"_s, u"y"_s} << 1;
    }

    void rememberedTitleIsSelected()
    {
        QFETCH(QStringList, titles);
        QTEST(ScriptLibrary::indexToSelect(titles, u"разгон"_s), "index");
    }
};

QTEST_GUILESS_MAIN(TestScriptLibrary)
#include "tst_scriptlibrary.moc"
