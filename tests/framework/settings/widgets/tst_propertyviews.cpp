#include "formsettings.h"

#include "files.h"
#include "framework/settings/widgets/basepropertyview.h"
#include "framework/settings/widgets/propertylistcontrol.h"
#include "framework/settings/widgets/specialpropertyview.h"

#include <QColorDialog>
#include <QComboBox>
#include <QDateEdit>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

class TestPropertyViews : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_settings = std::make_unique<FormSettings>();
        m_form = std::make_unique<PropertyListControl>(m_settings.get(), QString(),
                                                       PropertyListControl::ViewMode_AllNoScroll);
        m_form->show();
        QVERIFY(QTest::qWaitForWindowActive(m_form.get()));
    }

    void numberIsTypedKeyByKey()
    {
        auto *box = editor<QDoubleSpinBox>(u"Delay"_s);
        QVERIFY(box->minimum() == 0 && box->maximum() == 100 && box->singleStep() == 0.1);
        QVERIFY(box->decimals() == 1 && box->suffix() == " s"_L1);
        box->setFocus();
        box->selectAll();
        // Each key is followed by all that it sets off, as with a person at the keyboard.
        for (const char key : {'1', '2', '.', '5'}) {
            QTest::keyClick(box, key);
            QCoreApplication::processEvents();
        }
        QCOMPARE(m_settings->getDelay(), 12.5);
        // Keys that come at once are not set back by the changes that are still on their way.
        box->selectAll();
        QTest::keyClicks(box, u"34.5"_s);
        QCoreApplication::processEvents();
        QCOMPARE(m_settings->getDelay(), 34.5);
        m_settings->setDelay(1);
        QTRY_COMPARE(box->value(), 1.0);
    }

    void numbersStepByDeclaration()
    {
        auto *box = editor<QSpinBox>(u"Count"_s);
        QCOMPARE(box->suffix(), u" pcs"_s);
        view(u"Count"_s)->up();
        QCOMPARE(m_settings->getCount(), 4);
        view(u"Count"_s)->down();
        view(u"Count"_s)->down();
        QCOMPARE(m_settings->getCount(), 1);
        view(u"Serial"_s)->up();
        QCOMPARE(m_settings->getSerial(), 17);
        auto *serial = editor<QSpinBox>(u"Serial"_s);
        QCOMPARE(serial->minimum(), -2147483647 - 1);
        QCOMPARE(serial->maximum(), 2147483647);

        auto *suggesting = editor<QDoubleSpinBox>(u"Speed"_s);
        suggesting->setFocus();
        QTest::keyClick(suggesting, Qt::Key_Up);
        QCOMPARE(m_settings->getSpeed(), 5.0);
        QTest::keyClick(suggesting, Qt::Key_Down);
        QCOMPARE(m_settings->getSpeed(), 2.5);
    }

    void intervalKeepsItsEndsInOrder()
    {
        auto boxes = view(u"Span"_s)->findChildren<QDoubleSpinBox *>();
        QCOMPARE(boxes.size(), 2);
        QCOMPARE(boxes[0]->value(), 7.0);
        QCOMPARE(boxes[1]->value(), 7.0);
        QCOMPARE(m_settings->getSpan(), QPointF(7, 3));
        boxes[0]->setValue(8);
        QCOMPARE(m_settings->getSpan(), QPointF(8, 8));
        m_settings->setSpan({1, 2});
        QTRY_COMPARE(boxes[1]->value(), 2.0);
        QCOMPARE(boxes[0]->value(), 1.0);
        boxes[1]->setValue(0.5);
        QCOMPARE(m_settings->getSpan(), QPointF(1, 1));
    }

    void pointIsCutToWholeNumbers()
    {
        auto boxes = view(u"Place"_s)->findChildren<QDoubleSpinBox *>();
        boxes[1]->setValue(5.75);
        QCOMPARE(m_settings->getPlace(), QPoint(1, 5));
        QTRY_COMPARE(boxes[1]->value(), 5.0);
        boxes[1]->setValue(5.75); // stores what is there already
        QTRY_COMPARE(boxes[1]->value(), 5.0);
    }

    void sliderAndNumberMoveTogether()
    {
        auto *slider = view(u"Level"_s)->findChild<QSlider *>();
        auto *box = view(u"Level"_s)->findChild<QSpinBox *>();
        slider->setFocus();
        QTest::keyClick(slider, Qt::Key_Right);
        QCOMPARE(m_settings->getLevel(), 45);
        QTRY_COMPARE(box->value(), 45);
        box->setValue(70);
        QCOMPARE(m_settings->getLevel(), 70);
        QTRY_COMPARE(slider->value(), 70);
    }

    void choices()
    {
        auto *drive = editor<QComboBox>(u"Drive"_s);
        QCOMPARE(drive->itemData(1).toInt(), 8);
        drive->setFocus();
        QTest::keyClick(drive, Qt::Key_Down);
        QCOMPARE(m_settings->getDrive(), FormSettings::Pace::Fast);
        m_settings->setDrive(FormSettings::Pace::Slow);
        QTRY_COMPARE(drive->currentText(), u"Slow"_s);

        auto *animal = editor<QComboBox>(u"Animal"_s);
        QCOMPARE(animal->currentText(), u"Rat"_s);
        animal->setCurrentIndex(1);
        QCOMPARE(m_settings->getAnimal(), u"Mouse"_s);

        editor<QDateEdit>(u"Day"_s)->setDate(QDate(2025, 1, 2));
        QCOMPARE(m_settings->getDay(), QDate(2025, 1, 2));

        auto *choice = editor<QComboBox>(u"Choice"_s);
        QCOMPARE(choice->currentIndex(), 1);
        choice->setCurrentIndex(2);
        QCOMPARE(m_settings->getChoice(), 2);
        m_settings->setChoice(99);
        QTRY_COMPARE(choice->currentIndex(), -1);
        m_settings->getPropertyByName(u"Choice"_s)->enums.clear();
        PropertyListControl bare(m_settings->getPropertyByName(u"Choice"_s));
        QVERIFY(!bare.getWidgetInfo(0).editor->getEditor());
    }

    void textIsWrittenWithTheNextTurn()
    {
        auto *line = editor<QLineEdit>(u"Title"_s);
        QCOMPARE(line->placeholderText(), u"none"_s);
        line->setFocus();
        QTest::keyClicks(line, u"abd"_s);
        QCOMPARE(m_settings->getTitle(), QString());
        QCoreApplication::processEvents();
        QCOMPARE(m_settings->getTitle(), u"abd"_s);
        QTest::keyClick(line, Qt::Key_Left);
        QTest::keyClick(line, 'c');
        QCoreApplication::processEvents();
        QCOMPARE(line->cursorPosition(), 3);
        QCOMPARE(m_settings->getTitle(), u"abcd"_s);
        QTest::keyClicks(line, u" and a text that is longer"_s);
        QCOMPARE(line->width(), line->fontMetrics().boundingRect(line->text()).width() + 10);
        QCoreApplication::processEvents();
        m_settings->setTitle(u"x"_s);
        QTRY_COMPARE(line->text(), u"x"_s);
        QCOMPARE(line->width(), 50);

        QTest::keyClicks(editor<QPlainTextEdit>(u"Notes"_s), u"one"_s);
        QTRY_COMPARE(m_settings->getNotes(), u"one"_s);
    }

    void colorIsPicked()
    {
        auto *button = view(u"Paint"_s)->getEditor()->findChild<QPushButton *>();
        const auto *label = view(u"Paint"_s)->findChild<QLabel *>();
        QTest::mouseClick(button, Qt::LeftButton);
        auto *dialog = view(u"Paint"_s)->findChild<QColorDialog *>();
        QVERIFY(dialog && !dialog->isModal());
        QCOMPARE(dialog->currentColor(), QColor(Qt::red));
        dialog->setCurrentColor(QColor(1, 2, 3));
        dialog->accept();
        QCOMPARE(m_settings->getPaint(), QColor(1, 2, 3));
        QCOMPARE(label->text(), u"#010203"_s);
        m_settings->setPaint(QColor(0, 0, 255, 0));
        QTRY_COMPARE(label->text(), u"#000000FF"_s);
        // What can be seen through stands on a chequered ground.
        const QImage field = button->parentWidget()->parentWidget()->grab().toImage();
        const QPoint corner = button->mapTo(view(u"Paint"_s), QPoint(2, 2));
        QCOMPARE(field.pixelColor(corner), QColor(0xCC, 0xCC, 0xCC));
        QCOMPARE(field.pixelColor(corner + QPoint(5, 0)), QColor(Qt::white));
    }

    void fileIsPicked()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"a b.xml"_s);
        QVERIFY(writeFile(path));
        m_settings->setFile(path);
        QString startFolder;
        QStringList filters;
        QTimer::singleShot(0, this, [&] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            startFolder = dialog->directory().absolutePath();
            filters = dialog->nameFilters();
            m_settings->setFile({});
            dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(path);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        QTest::mouseClick(view(u"File"_s)->getEditor()->findChild<QPushButton *>(), Qt::LeftButton);
        QCOMPARE(startFolder, folder.path());
        QCOMPARE(filters, QStringList{u"(*.xml)"_s});
        QCOMPARE(m_settings->getFile(), path);
        QTRY_COMPARE(view(u"File"_s)->findChild<QLineEdit *>()->text(), path);
    }

    void filters()
    {
        const auto filter = SpecialPropertyView::filterFor;
        QCOMPARE(filter(u"Image"_s), u"Image (*.jpg *.png *.jpeg *.bmp);"_s);
        QCOMPARE(filter(u"Video"_s), u"Video (*.avi *.mpg *.mpeg *.mp4 *.mkv);"_s);
        QCOMPARE(filter({}), u"Любой файл(*.*)"_s);
        QCOMPARE(filter(u"*.*"_s), u"Любой файл(*.*)"_s);
        QCOMPARE(filter(u"*.xml *.json"_s), u"(*.xml *.json)"_s);
    }

private:
    BasePropertyView *view(const QString &name) const { return m_form->getWidgetInfo(name).editor; }

    template <typename Editor>
    Editor *editor(const QString &name) const
    {
        return qobject_cast<Editor *>(view(name)->getEditor());
    }

    std::unique_ptr<FormSettings> m_settings;
    std::unique_ptr<PropertyListControl> m_form;
};

QTEST_MAIN(TestPropertyViews)
#include "tst_propertyviews.moc"
