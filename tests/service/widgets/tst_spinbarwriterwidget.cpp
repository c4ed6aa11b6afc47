#include "service/widgets/spinbarwriterwidget.h"

#include "device/testline.h"
#include "framework/common/widgets/globalconsolewidget.h"
#include "simulator/simulatedinstrument.h"

#include <QApplication>
#include <QComboBox>
#include <QDate>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString Com = u"COM7"_s;

QPushButton *button(const QWidget &widget, const QString &name)
{
    for (QPushButton *button : widget.findChildren<QPushButton *>()) {
        if (button->text() == name || button->accessibleName() == name)
            return button;
    }
    return nullptr;
}

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
QString clickAndAnswer(QPushButton *clicked, const QString &answer)
{
    QString said;
    QTimer::singleShot(0, clicked, [&] {
        if (auto *message = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            said = message->text();
            button(*message, answer)->click();
        }
    });
    clicked->click();
    return said;
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
        {
            SpinbarWriterWidget widget;
            const QPushButton *write = button(widget, u"Write MotorCoeff"_s);
            QVERIFY(!box(widget, 0)->isEnabled() && !write->isEnabled());
            QCOMPARE(box(widget, 0)->text(), QString());
            button(widget, u"Read"_s)->click();
            QCOMPARE(text(widget, false), u"?"_s);
            QCOMPARE(text(widget, true), u"?"_s);
            QTRY_VERIFY(box(widget, 3)->isEnabled());
            QCOMPARE(text(widget, false), u"B42403101"_s);
            QCOMPARE(text(widget, true), u"1.0"_s);
            QCOMPARE(box(widget, 0)->value(), 1.0);
            QCOMPARE(box(widget, 3)->value(), 10.0);
            QVERIFY(write->isEnabled());
            QCOMPARE(clickAndAnswer(button(widget, u"Read"_s), u"OK"_s),
                     u"Waiting for previous transaction"_s);
            QVERIFY(widget.findChild<GlobalConsoleWidget *>()->toPlainText().contains(
                "MCC:1,MAC:1,MDC:1,CUR:10"_L1));
        }
        SpinbarWriterWidget widget(nullptr, std::chrono::milliseconds(1000));
        button(widget, u"Read"_s)->click();
        QTRY_VERIFY(box(widget, 3)->isEnabled());
        box(widget, 3)->setValue(12.25);
        commands.clear();
        QPushButton *write = button(widget, u"Write CurrentCoeff"_s);
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
        button(widget, u"Read"_s)->click();
        QTRY_VERIFY(box(widget, 3)->isEnabled());
        QCOMPARE(box(widget, 0)->value(), 2.0);
        // As low as what the box holds unread.
        QCOMPARE(box(widget, 1)->value(), 0.5);
        QVERIFY(!box(widget, 1)->text().isEmpty());
        QVERIFY(!box(widget, 2)->isEnabled());
        QCOMPARE(box(widget, 3)->value(), 1.26);
    }

    void foreignSerialNumberIsAskedFor_data()
    {
        QTest::addColumn<QString>("serialNumber");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("asked");
        QTest::addColumn<bool>("written");
        QTest::newRow("ours") << u"B42611101"_s << QString() << false << true;
        QTest::newRow("agreed") << u"K123"_s << u"Yes"_s << true << true;
        QTest::newRow("refused") << u"?"_s << u"No"_s << true << false;
    }

    void foreignSerialNumberIsAskedFor()
    {
        QFETCH(QString, serialNumber);
        QFETCH(QString, answer);
        QFETCH(bool, asked);
        QFETCH(bool, written);
        TestLine line(Com);
        const TestPorts ports({line.info()});
        SpinbarWriterWidget widget;
        widget.findChildren<QLineEdit *>().constFirst()->setText(serialNumber);
        const QString question = clickAndAnswer(button(widget, u"Flash"_s), answer);
        QCOMPARE(question, asked ? u"Serial number should start with 'B', continue?"_s : QString());
        const GlobalConsoleWidget *console = widget.findChild<GlobalConsoleWidget *>();
        const QByteArray frame = "{writesn=" + serialNumber.toUtf8() + '}';
        QVERIFY(!written || line.waitFor(frame));
        QCOMPARE(console->toPlainText().contains(QString::fromUtf8(frame)), written);
    }

    void serialNumberIsGenerated()
    {
        const TestPorts ports;
        SpinbarWriterWidget widget;
        const QString said = clickAndAnswer(button(widget, u"Gen"_s), u"OK"_s);
        const QString serialNumber = text(widget, false);
        const QString month = QDate::currentDate().toString(u"yyMM"_s);
        QCOMPARE(serialNumber, "B4" + month + "101");
        QCOMPARE(said, u"Serial number is generated as follows:\nB4\t- for Spinbar, version 4\n"
                       "%1\t- for current year\n%2\t- for current month\n1\t- for batch number\n"
                       "01\t- for the number of device in the batch\n\n%3"_s.arg(
                           month.first(2), month.last(2), serialNumber));
    }

    void portsAreThoseOfTheBeginning()
    {
        TestPorts ports({{Com, {}, u"USB"_s, {}}, {u"COM8"_s, {}, u"Bluetooth"_s, {}}});
        SpinbarWriterWidget widget;
        ports.set({{u"COM9"_s, {}, {}, {}}});
        button(widget, u"Refill the list of ports"_s)->click();
        const auto *choice = widget.findChild<QComboBox *>();
        QCOMPARE(choice->count(), 1);
        QCOMPARE(choice->currentText(), u"COM7[USB]"_s);
    }
};

QTEST_MAIN(TestSpinbarWriterWidget)
#include "tst_spinbarwriterwidget.moc"
