#include "ui/aboutappwidget.h"
#include "ui/aboutfacts.h"
#include "ui/pageabout.h"
#include "ui/pagesettings.h"

#include "framework/settings/languagecontext.h"
#include "operatorbench.h"
#include "scripts/widgets/speedscripteditor.h"

#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

const QStringList Schemes{u"https"_s, u"mailto"_s, u"file"_s};

QStringList textsOf(const QWidget &parent, const QString &objectName)
{
    QStringList texts;
    for (const QLabel *label : parent.findChildren<QLabel *>(objectName))
        texts += label->text();
    return texts;
}

/// What \a look finds in the dialog that comes up next, which is then closed.
std::shared_ptr<QStringList> lookAtNextDialog(const std::function<QStringList(const QDialog &)> &look)
{
    auto seen = std::make_shared<QStringList>();
    QTimer::singleShot(0, qApp, [=] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        *seen = QStringList(dialog->windowTitle()) + look(*dialog);
        dialog->reject();
    });
    return seen;
}

} // namespace

class TestQuietPages : public QObject
{
    Q_OBJECT

    QList<QUrl> m_opened;

public slots:
    void open(const QUrl &url) { m_opened += url; }

private slots:
    void initTestCase()
    {
        LanguageContext::setLanguage(u"ru_RU"_s);
        for (const QString &scheme : Schemes)
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }

    void cleanupTestCase()
    {
        for (const QString &scheme : Schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    void settingsStandInTheirGroups()
    {
        OperatorBench bench;
        bench.click(u"Настройки"_s);
        const auto *page = bench.window->findChild<PageSettings *>();
        QCOMPARE(textsOf(*page, u"propertyCategoryLabel"_s),
                 QStringList({u"Общее"_s, u"Эксперимент"_s, u"Детекция"_s}));
        QCOMPARE(textsOf(*page, u"propertyHeaderLabel"_s),
                 QStringList({u"Цветовая тема"_s, u"При экспорте"_s, u"Язык"_s, u"Запуск на полный экран"_s,
                              u"Режим"_s, u"Размерность"_s, u"Макс. ожидание"_s, u"Мин. время пребывания"_s,
                              u"Показать значения ИК"_s}));
    }

    void scriptEditorOpensOverTheSettings()
    {
        OperatorBench bench;
        bench.click(u"Настройки"_s);
        const auto seen = lookAtNextDialog([](const QDialog &dialog) {
            return dialog.findChild<SpeedScriptEditor *>() ? QStringList(u"editor"_s) : QStringList();
        });
        // Another button of that name stands on the page behind.
        for (QPushButton *button : bench.window->findChild<PageSettings *>()->findChildren<QPushButton *>()) {
            if (button->text() == u"Редактор сценариев"_s)
                button->click();
        }
        QCOMPARE(*seen, QStringList({u"Редактор сценариев"_s, u"editor"_s}));
    }

    void manualIsTheOneForTheLanguage_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("russian");
        QTest::newRow("none") << QStringList{u"a/manual_en.txt"_s} << QString() << QString();
        QTest::newRow("both") << QStringList{u"a/manual_en.pdf"_s, u"a/manual_ru.pdf"_s}
                              << u"a/manual_en.pdf"_s << u"a/manual_ru.pdf"_s;
        QTest::newRow("one") << QStringList{u"a/Manual_RU.PDF"_s} << u"a/Manual_RU.PDF"_s
                             << u"a/Manual_RU.PDF"_s;
        QTest::newRow("no language") << QStringList{u"a/1.pdf"_s, u"a/2.pdf"_s} << u"a/1.pdf"_s
                                     << u"a/1.pdf"_s;
        QTest::newRow("two folders") << QStringList{u"a/manual_en.pdf"_s, u"b/manual_ru.pdf"_s}
                                     << u"a/manual_en.pdf"_s << u"b/manual_ru.pdf"_s;
    }

    void manualIsTheOneForTheLanguage()
    {
        QFETCH(QStringList, files);
        const QTemporaryDir root;
        QDir dir(root.path());
        QVERIFY(dir.mkdir(u"a"_s));
        QVERIFY(!files.join(u""_s).contains("b/"_L1) || dir.mkdir(u"b"_s));
        for (const QString &name : files)
            QVERIFY(QFile(dir.filePath(name)).open(QIODevice::WriteOnly));
        const auto manual = [&](const QString &language) {
            const QString path = AboutFacts::manual({dir.filePath(u"a"_s), dir.filePath(u"b"_s)}, language);
            return path.isEmpty() ? path : dir.relativeFilePath(path);
        };
        QTEST(manual(u"en_US"_s), "english");
        QTEST(manual(u"ru_RU"_s), "russian");
    }

    void birthdaysHaveABalloon()
    {
        const QMap<QString, QDateTime> people{{u"Я"_s, QDate(2000, 5, 7).startOfDay()},
                                              {u"A & B"_s, QDate(2000, 7, 5).startOfDay()}};
        const QString plain = u"A &amp; B<br/>Я<br/>"_s;
        QCOMPARE(AboutFacts::developers(people, QDate(2026, 5, 8)), plain);
        const QString text = AboutFacts::developers(people, QDate(2031, 5, 7));
        QVERIFY(text.startsWith("A &amp; B<br/> <img "_L1) && text.endsWith(u">Я<br/>"_s));
        const QString image = text.section('"'_L1, 1, 1);
        QVERIFY(text.contains(image + "\" width=\"10\" height=\"14\" title=\""_L1));
        QVERIFY2(QFile::exists(image), qPrintable(image)); // so must rich text find it
    }

    void panelOpensWhatItNames()
    {
        const QStringList links{u"https://a.example"_s, u"https://b.example/x"_s};
        AboutAppWidget panel(u"<Maker>"_s, links, u"https://a.example/manual"_s, u"https://a.example/api"_s,
                             {}, false, nullptr);
        panel.show();
        QStringList texts;
        for (QPushButton *button : panel.findChildren<QPushButton *>()) {
            if (button->isVisible() && button->text() != u"Список изменений"_s) {
                texts += button->text();
                button->click();
            }
        }
        QCOMPARE(texts.sliced(0, 2), QStringList({u"Руководство"_s, u"API"_s}));
        QCOMPARE(texts.sliced(3), QStringList({u"a.example"_s, u"b.example/x"_s}));
        QCOMPARE(m_opened.size(), 5);
        QCOMPARE(m_opened.at(0), QUrl(u"https://a.example/manual"_s));
        QCOMPARE(m_opened.at(1), QUrl(u"https://a.example/api"_s));
        QCOMPARE(m_opened.at(2), QUrl("mailto:"_L1 + texts.at(2)));
        QCOMPARE(m_opened.at(4), QUrl(links.at(1)));
        QCOMPARE(textsOf(panel, u"graytext"_s),
                 QStringList({u"Версия"_s, u"ОС"_s, u"IP-адрес"_s, u"Обратная связь\n"_s}));
    }

    void changeLogIsShownInTheLanguage()
    {
        PageAbout page(nullptr);
        page.show();
        QCOMPARE(textsOf(page, u"graytext"_s).size(), 5);
        for (QPushButton *button : page.findChildren<QPushButton *>()) {
            if (button->text() != u"Список изменений"_s)
                continue;
            const auto seen = lookAtNextDialog(
                [](const QDialog &dialog) { return QStringList(dialog.findChild<QLabel *>()->text()); });
            button->click();
            QCOMPARE(seen->value(0), u"Список изменений"_s);
            QVERIFY(seen->value(1).startsWith(QStringLiteral(SPINBAR_VERSION) + " ("_L1));
            QVERIFY(seen->value(1).contains(u"\r\n+ Прибор"_s));
            QVERIFY(!seen->value(1).contains('<'_L1));
            return;
        }
        QFAIL("no button");
    }
};

QTEST_MAIN(TestQuietPages)
#include "tst_quietpages.moc"
