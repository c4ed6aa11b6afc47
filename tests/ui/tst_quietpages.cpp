#include "ui/aboutappwidget.h"
#include "ui/aboutfacts.h"
#include "ui/pageabout.h"
#include "ui/pagesettings.h"

#include "files.h"
#include "framework/settings/languagecontext.h"
#include "operatorbench.h"
#include "scripts/widgets/speedscripteditor.h"

#include <QDesktopServices>
#include <QDialog>
#include <QDir>
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

/// The title of the dialog that comes up next, and the text of what is found in it, which is then closed.
template <typename Widget>
std::shared_ptr<QStringList> lookAtNextDialog(QObject *context)
{
    auto seen = std::make_shared<QStringList>();
    onNext<QDialog>(context, [seen](QDialog &dialog) {
        const auto *widget = dialog.findChild<Widget *>();
        *seen = {dialog.windowTitle(), widget ? widget->property("text").toString() : u"nothing"_s};
        dialog.reject();
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

    void scriptEditorOpensOverTheSettings()
    {
        OperatorBench bench;
        bench.click(u"Настройки"_s);
        const auto seen = lookAtNextDialog<SpeedScriptEditor>(bench.window.get());
        // Another button of that name stands on the page behind.
        findButton(bench.find<PageSettings>(), u"Редактор сценариев"_s)->click();
        QCOMPARE(*seen, QStringList({u"Редактор сценариев"_s, {}}));
    }

    void manualIsTheOneForTheLanguage()
    {
        const QTemporaryDir root;
        QDir dir(root.path());
        const QStringList folders{dir.filePath(u"a"_s), dir.filePath(u"b"_s)};
        QVERIFY(dir.mkdir(u"a"_s) && dir.mkdir(u"b"_s));
        // What is added, and what is then found for English and for Russian.
        const QStringList steps[] = {{u"a/manual_en.txt"_s, {}, {}},
                                     {u"b/1.pdf"_s, u"b/1.pdf"_s, u"b/1.pdf"_s},
                                     {u"a/Manual_RU.PDF"_s, u"a/Manual_RU.PDF"_s, u"a/Manual_RU.PDF"_s},
                                     {u"b/manual_en.pdf"_s, u"b/manual_en.pdf"_s, u"a/Manual_RU.PDF"_s},
                                     {u"a/manual_en.pdf"_s, u"a/manual_en.pdf"_s, u"a/Manual_RU.PDF"_s}};
        for (const QStringList &step : steps) {
            QVERIFY(writeFile(dir.filePath(step[0])));
            for (int i = 1; i <= 2; ++i) {
                const QString path = AboutFacts::manual(folders, i == 1 ? u"en_US"_s : u"ru_RU"_s);
                QCOMPARE(path, step[i].isEmpty() ? step[i] : dir.filePath(step[i]));
            }
        }
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
        QVERIFY2(QFileInfo::exists(image), qPrintable(image)); // so must rich text find it
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
        const auto seen = lookAtNextDialog<QLabel>(&page);
        findButton(&page, u"Список изменений"_s)->click();
        QCOMPARE(seen->value(0), u"Список изменений"_s);
        QVERIFY(seen->value(1).startsWith(QStringLiteral(SPINBAR_VERSION) + " ("_L1));
        QVERIFY(seen->value(1).contains(u"\r\n+ Прибор"_s));
        QVERIFY(!seen->value(1).contains('<'_L1));
    }
};

QTEST_MAIN(TestQuietPages)
#include "tst_quietpages.moc"
