#include "buttons.h"
#include "core/spinbarmodel.h"
#include "core/spinbarsettings.h"
#include "device/testline.h"
#include "scripts/speedscript.h"
#include "scripts/widgets/speedscripteditor.h"
#include "scripts/widgets/speedscriptselectandrunwidget.h"
#include "scripts/widgets/speedscriptviewer.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Lets each step act on the dialog that is open when its turn comes.
void answer(QObject *context, QList<std::function<void(QWidget *)>> steps)
{
    if (steps.isEmpty())
        return;
    QTimer::singleShot(0, context, [context, steps]() mutable {
        const auto step = steps.takeFirst();
        answer(context, steps);
        step(QApplication::activeModalWidget());
    });
}

} // namespace

/// The widgets on a real model, whose instrument is a line of the test.
class TestScriptSelection : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_line = std::make_unique<TestLine>(u"COM4"_s);
        m_line->answers = {{"{whois}", "{iamspinbar}"}, {"{sn}", "{sn=B42403101}"}};
        m_ports = std::make_unique<TestPorts>(QList<PortInfo>{m_line->info()});
        m_model = std::make_unique<SpinbarModel>(nullptr, m_folder->path() + u'/');
    }

    void cleanup()
    {
        m_model.reset();
        m_ports.reset();
    }

    void rememberedTitleIsSelected()
    {
        const SpeedScriptSelectAndRunWidget empty(*m_model, nullptr);
        QVERIFY(!findButton(&empty, u"Run script"_s)->isEnabled());
        addScript(u"alpha"_s);
        addScript(u"beta"_s);
        for (const auto &[remembered, selected] :
             {std::pair(u"BETA"_s, u"beta"_s), {u"delta"_s, u"alpha"_s}}) {
            m_model->settings()->setLastSpeedScript(remembered);
            SpeedScriptSelectAndRunWidget runner(*m_model, nullptr);
            QCOMPARE(runner.findChild<QComboBox *>()->currentText(), selected);
            QCOMPARE(m_model->settings()->getLastSpeedScript(), selected);
            QVERIFY(findButton(&runner, u"Run script"_s)->isEnabled());
        }
        SpeedScriptSelectAndRunWidget runner(*m_model, nullptr);
        QVERIFY(QFile::remove(m_model->scriptsFolder() + u"beta.xml"_s));
        runner.findChild<QComboBox *>()->setCurrentIndex(1);
        QVERIFY(!findButton(&runner, u"Run script"_s)->isEnabled());
        QCOMPARE(m_model->settings()->getLastSpeedScript(), u"alpha"_s);
    }

    void runReachesTheInstrumentAndStops()
    {
        addScript(u"alpha"_s);
        QVERIFY(m_line->waitFor("{irmode=r}"));
        SpeedScriptSelectAndRunWidget runner(*m_model, nullptr);
        runner.show();
        QAbstractButton *run = findButton(&runner, u"Run script"_s);
        QAbstractButton *stop = findButton(&runner, u"Stop script"_s);
        QVERIFY(run->isVisible() && !stop->isVisible());
        for (const auto end :
             {&QAbstractButton::click, &QAbstractButton::toggle}) { // a screen reader toggles
            m_line->take();
            run->click();
            QVERIFY(!run->isVisible() && stop->isVisible() && stop->isChecked());
            QVERIFY(hasLabel(runner, u"Cycle 1/3"_s));
            // 1.2 rad/s, the second entry of the table.
            QVERIFY(m_line->waitFor("{rotate=0.191}"));
            QVERIFY(!m_line->received.contains("{rotate=0.095}"));
            (stop->*end)();
            QVERIFY(m_line->waitFor("{rotate=0.000}"));
            QVERIFY(run->isVisible() && !hasLabel(runner, u"Cycle"_s));
        }
    }

    void selectionReloadAndDestructionStopTheRun()
    {
        addScript(u"alpha"_s);
        addScript(u"beta"_s);
        auto runner = std::make_unique<SpeedScriptSelectAndRunWidget>(*m_model, nullptr);
        runner->show();
        const QAbstractButton *run = findButton(runner.get(), u"Run script"_s);
        runner->setRunning(true);
        runner->findChild<QComboBox *>()->setCurrentIndex(1);
        QVERIFY(run->isVisible());
        runner->setRunning(true);
        for (const auto *title : {"alpha", "beta"})
            QVERIFY(QFile::remove(m_model->scriptsFolder() + QLatin1String(title) + u".xml"_s));
        runner->reloadList({});
        QVERIFY(run->isVisible() && !run->isEnabled());

        QVERIFY(m_line->waitFor("{irmode=r}"));
        m_line->take();
        runner.reset();
        QVERIFY(m_line->waitFor("{rotate=0.000}"));
    }

    void editorChangesWhatTheRunnerThenPlays()
    {
        addScript(u"alpha"_s);
        SpeedScriptSelectAndRunWidget runner(*m_model, nullptr);
        runner.show();
        runner.setRunning(true);
        answer(this, {[&](QWidget *dialog) {
                   QVERIFY(!findButton(&runner, u"Stop script"_s)->isVisible());
                   auto *script = dialog->findChild<SpeedScript *>();
                   script->setLoops(7); // saved by itself
                   qobject_cast<QDialog *>(dialog)->reject();
               }});
        findButton(&runner, u"Script editor"_s)->click();
        runner.setRunning(true);
        QVERIFY(hasLabel(runner, u"Cycle 1/7"_s));
    }

    void refusedCloneGoesOnAsRenaming()
    {
        addScript(u"alpha"_s);
        addScript(u"beta"_s);
        SpeedScriptEditor editor(*m_model, nullptr);
        QStringList seen;
        const auto give = [&seen](const QString &text) {
            return [&seen, text](QWidget *widget) {
                auto *dialog = qobject_cast<QInputDialog *>(widget);
                seen += dialog->labelText();
                dialog->setTextValue(text);
                dialog->accept();
            };
        };
        const auto agree = [&seen](QWidget *widget) {
            seen += qobject_cast<QMessageBox *>(widget)->text();
            widget->findChild<QPushButton *>()->click();
        };
        answer(this, {give(u" beta "_s), agree, give(u"gamma"_s)});
        editor.findChild<QComboBox *>()->setCurrentText(u"alpha"_s);
        findButton(&editor, u"Clone script"_s)->click();
        QCOMPARE(seen, QStringList({u"Enter new cloned script title"_s,
                                    u"Script with this title already exists"_s, u"Change script title"_s}));
        // The answer refused is what was to be renamed, and no file of that name gave way.
        QCOMPARE(ScriptLibrary(m_model->scriptsFolder()).titles(), QStringList({u"alpha"_s, u"gamma"_s}));

        answer(this, {give(u"delta"_s)});
        findButton(&editor, u"New script"_s)->click();
        QCOMPARE(editor.findChild<QComboBox *>()->currentText(), u"delta"_s);
        answer(this, {agree});
        findButton(&editor, u"Remove script"_s)->click();
        QCOMPARE(editor.findChild<QComboBox *>()->count(), 2);
    }

    void emptyLibraryOffersSamples()
    {
        SpeedScriptEditor editor(*m_model, nullptr);
        editor.show();
        auto *offer = findButton(&editor, u"Add sample scripts"_s);
        QVERIFY(offer && offer->isVisible());
        offer->click();
        QVERIFY(!offer->isVisible());
        const auto *combo = editor.findChild<QComboBox *>();
        QVERIFY(combo->isEnabled() && combo->count() > 1);
        QVERIFY(findButton(&editor, u"Rename script"_s)->isEnabled());

        const ScriptLibrary library(m_model->scriptsFolder());
        for (const QString &title : library.titles().mid(1))
            QCOMPARE(library.remove(title), ScriptLibrary::Outcome::Done);
        editor.reloadList({});
        answer(this, {[](QWidget *box) { box->findChild<QPushButton *>()->click(); }});
        findButton(&editor, u"Remove script"_s)->click();
        QVERIFY(!combo->isEnabled() && offer->isVisible());
    }

private:
    void addScript(const QString &title)
    {
        SpeedScript script(ScriptLibrary(m_model->scriptsFolder()).filePath(title));
        script.setInfinite(false);
        script.setLoops(3);
        script.setPointList({{0, 0}, {10, 30}});
        script.storePoints();
    }

    static bool hasLabel(const QWidget &widget, const QString &text)
    {
        return std::ranges::any_of(widget.findChildren<QLabel *>(),
                                   [&](const QLabel *label) { return label->text().startsWith(text); });
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<TestLine> m_line;
    std::unique_ptr<TestPorts> m_ports;
    std::unique_ptr<SpinbarModel> m_model;
};

QTEST_MAIN(TestScriptSelection)
#include "tst_scriptselection.moc"
