#include "service/widgets/spinbarwriterwidget.h"

#include "buttons.h"
#include "device/testline.h"
#include "framework/common/widgets/globalconsolewidget.h"
#include "simulator/simulatedinstrument.h"

#include <QComboBox>
#include <QDate>
#include <QDoubleSpinBox>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

const QString Com = u"COM7"_s;

QDoubleSpinBox *box(const QWidget &widget, int row)
{
    return widget.findChildren<QDoubleSpinBox *>().value(row);
}

QString text(const QWidget &widget, bool version)
{
    for (const QLineEdit *edit : widget.findChildren<QLineEdit *>()) {
        if (edit->parent() == &widget && edit->isEnabled() != version)
            return edit->text();
    }
    return {};
}

/// Answers the message box that the click brings up, and gives its text.
QString clickAndAnswer(QAbstractButton *clicked, const QString &answer)
{
    QObject untilClicked;
    const auto said = answerNext(&untilClicked, answer);
    clicked->click();
    return said->value(1);
}

} // namespace

class TestSpinbarWriterWidget : public QObject
{
    Q_OBJECT

private slots:
    void instrumentsValuesAreShownAndWritten()
    {
        SimulatedInstrument instrument;
        QVERIFY(instrument.start());
        const TestPorts ports({{Com, instrument.path(), u"USB"_s, {}}});
        QStringList commands;
        connect(&instrument, &SimulatedInstrument::commandReceived, this,
                [&](const QString &command) { commands += command; });
        SpinbarWriterWidget widget(nullptr, std::chrono::milliseconds(1000));
        QAbstractButton *write = findButton(&widget, u"Write CurrentCoeff"_s);
        QVERIFY(!box(widget, 3)->isEnabled() && !write->isEnabled());
        QCOMPARE(box(widget, 3)->text(), QString());
        findButton(&widget, u"Read"_s)->click();
        QCOMPARE(text(widget, false) + text(widget, true), u"??"_s);
        QTRY_VERIFY(box(widget, 3)->isEnabled());
        QCOMPARE(text(widget, false), u"B42403101"_s);
        QCOMPARE(text(widget, true), u"1.0"_s);
        QCOMPARE(box(widget, 0)->value(), 1.0);
        QCOMPARE(box(widget, 3)->value(), 10.0);
        QVERIFY(
            widget.findChild<GlobalConsoleWidget *>()->toPlainText().contains("MCC:1,MAC:1,MDC:1,CUR:10"_L1));
        box(widget, 3)->setValue(12.25);
        commands.clear();
        QCOMPARE(clickAndAnswer(write, u"OK"_s), u"Waiting for previous transaction"_s);
        // Refused while the reading goes on.
        QVERIFY(QTest::qWaitFor([&] { return clickAndAnswer(write, u"OK"_s).isEmpty(); }));
        QTRY_COMPARE(commands, QStringList(u"setCurrentCoeff=12.25"_s));
    }

    void valuesAreBroughtIntoRange()
    {
        TestLine line(Com);
        line.answers.insert("{getSettings}", "{MCC:99,MAC:-1,CUR:1.256}");
        const TestPorts ports({line.info()});
        SpinbarWriterWidget widget;
        findButton(&widget, u"Read"_s)->click();
        QTRY_VERIFY(box(widget, 3)->isEnabled());
        QCOMPARE(box(widget, 0)->value(), 2.0);
        // As low as what the box holds unread.
        QCOMPARE(box(widget, 1)->value(), 0.5);
        QVERIFY(!box(widget, 1)->text().isEmpty());
        QVERIFY(!box(widget, 2)->isEnabled());
        QCOMPARE(box(widget, 3)->value(), 1.26);
    }

    void foreignSerialNumberIsAskedFor()
    {
        const QString question = u"Serial number should start with 'B', continue?"_s;
        TestLine line(Com);
        const TestPorts ports({line.info()});
        const auto flash = [](const QString &serialNumber, const QString &answer) {
            SpinbarWriterWidget widget;
            widget.findChildren<QLineEdit *>().constFirst()->setText(serialNumber);
            return clickAndAnswer(findButton(&widget, u"Flash"_s), answer);
        };
        QCOMPARE(flash(u"?"_s, u"No"_s), question);
        QCOMPARE(flash(u"K123"_s, u"Yes"_s), question);
        QVERIFY(line.waitFor("{writesn=K123}"));
        QCOMPARE(flash(u"B42611101"_s, {}), QString());
        QVERIFY(line.waitFor("{writesn=B42611101}"));
        QVERIFY(!line.received.contains('?'));
    }

    void serialNumberIsGenerated()
    {
        const TestPorts ports;
        SpinbarWriterWidget widget;
        const QString said = clickAndAnswer(findButton(&widget, u"Gen"_s), u"OK"_s);
        const QString serialNumber = text(widget, false);
        const QString month = QDate::currentDate().toString(u"yyMM"_s);
        QCOMPARE(serialNumber, "B4" + month + "101");
        QVERIFY(said.contains(u'\n' + month.first(2) + u"\t- for current year\n"_s + month.last(2) + u'\t'));
        QVERIFY(said.endsWith(serialNumber));
    }

    void portsAreThoseOfTheBeginning()
    {
        TestPorts ports({{Com, {}, u"USB"_s, {}}, {u"COM8"_s, {}, u"Bluetooth"_s, {}}});
        SpinbarWriterWidget widget;
        ports.set({{u"COM9"_s, {}, {}, {}}});
        findButton(&widget, u"Refill the list of ports"_s)->click();
        const auto *choice = widget.findChild<QComboBox *>();
        QCOMPARE(choice->count(), 1);
        QCOMPARE(choice->currentText(), u"COM7[USB]"_s);
    }
};

QTEST_MAIN(TestSpinbarWriterWidget)
#include "tst_spinbarwriterwidget.moc"
