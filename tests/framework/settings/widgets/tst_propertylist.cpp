#include "formsettings.h"

#include "framework/settings/widgets/basepropertyview.h"
#include "framework/settings/widgets/propertylistcontrol.h"
#include "framework/settings/widgets/propertytabwidget.h"

#include <QAccessible>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWheelEvent>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

using Mode = PropertyListControl::ViewMode;
constexpr auto All = PropertyListControl::ViewMode_All;
constexpr auto OneCategory = PropertyListControl::ViewMode_Category;
constexpr auto OneProperty = PropertyListControl::ViewMode_Property;
constexpr auto AllNoScroll = PropertyListControl::ViewMode_AllNoScroll;

QStringList rowNames(const BasePropertyListWidget &form)
{
    QStringList names;
    for (int i = 0; !form.getWidgetInfo(i).name.isEmpty(); ++i)
        names << form.getWidgetInfo(i).name;
    return names;
}

bool isRowShown(const BasePropertyListWidget &form, const QString &name)
{
    const auto info = form.getWidgetInfo(name);
    return info.caption->isVisible() && info.editor->isVisible();
}

QStringList categoryCaptions(const QWidget &form)
{
    QStringList captions;
    for (const QLabel *label : form.findChildren<QLabel *>(u"propertyCategoryLabel"_s)) {
        if (!label->isHidden())
            captions << label->text();
    }
    return captions;
}

/// The captions of the editors through which the Tab key goes.
QStringList walk(QWidget &window, int steps)
{
    QStringList names;
    for (int i = 0; i < steps; ++i) {
        names << QApplication::focusWidget()->accessibleName();
        QTest::keyClick(&window, Qt::Key_Tab);
    }
    return names;
}

void turnWheel(QWidget &widget, int angle)
{
    const QPointF middle = QRectF(widget.rect()).center();
    QWheelEvent wheel(middle, widget.mapToGlobal(middle), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel); // only such an event goes on to the parents
    qApp->notify(&widget, &wheel);
}

} // namespace

class TestPropertyList : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_settings = std::make_unique<FormSettings>(); }

    void rowsOfEachMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QStringList>("captions");
        QTest::addColumn<bool>("scrolls");
        const QStringList common{u"Count"_s, u"Active"_s, u"Delay"_s, u"Drive"_s};
        const QStringList all =
            common + QStringList{u"Animal"_s, u"File"_s, u"Notes"_s, u"Title"_s,  u"Level"_s, u"Place"_s,
                                 u"Serial"_s, u"Span"_s, u"Speed"_s, u"Choice"_s, u"Day"_s,   u"Paint"_s};
        const QStringList captions{u"1.Common"_s, u"2.Texts"_s, u"3.Numbers"_s, u"Other"_s};
        QTest::newRow("all") << int(All) << u""_s << all << captions << true;
        QTest::newRow("all without scrolling") << int(AllNoScroll) << u""_s << all << captions << false;
        QTest::newRow("category") << int(OneCategory) << u"1.Common"_s << common << QStringList() << true;
        QTest::newRow("unknown category")
            << int(OneCategory) << u"9"_s << QStringList() << QStringList() << true;
        QTest::newRow("hidden property")
            << int(OneProperty) << u"Hidden"_s << QStringList{u"Hidden"_s} << QStringList() << false;
        QTest::newRow("unknown property")
            << int(OneProperty) << u"Nothing"_s << QStringList() << QStringList() << false;
    }

    void rowsOfEachMode()
    {
        QFETCH(int, mode);
        QFETCH(QString, filter);
        PropertyListControl form(m_settings.get(), filter, Mode(mode));
        QTEST(rowNames(form), "rows");
        QTEST(categoryCaptions(form), "captions");
        QTEST(form.findChild<QScrollArea *>() != nullptr, "scrolls");
    }

    void rowsFollowTheirConditions()
    {
        PropertyListControl form(m_settings.get(), {}, All);
        form.show();
        QVERIFY(!isRowShown(form, u"Count"_s) && isRowShown(form, u"Delay"_s));
        m_settings->setActive(false);
        QVERIFY(isRowShown(form, u"Count"_s));
        m_settings->setDrive(FormSettings::Pace::Fast);
        QVERIFY(!isRowShown(form, u"Count"_s));
        QVERIFY(!m_settings->getPropertyByName(u"Count"_s)->visible);
        QCOMPARE(categoryCaptions(form).size(), 4);
    }

    void categoryFormFollowsOnlyWhenAsked()
    {
        PropertyListControl form(m_settings.get(), u"1.Common"_s, OneCategory);
        QSignalSpy changed(&form, &PropertyListControl::propertyVisibilityChanged);
        QSignalSpy managed(&form, &PropertyListControl::manageCategoryVisibilityChanged);
        form.show();
        QVERIFY(isRowShown(form, u"Count"_s));
        QCOMPARE(form.visibleProperties(), 3);
        form.setManageCategoryVisibility(true);
        form.setManageCategoryVisibility(true);
        QCOMPARE(managed.size(), 1);
        QVERIFY(!isRowShown(form, u"Count"_s));
        m_settings->setActive(false);
        QVERIFY(isRowShown(form, u"Count"_s));
        // Three rows without condition count twice once an evaluation has run.
        QCOMPARE(changed.last().at(0).toInt(), 4 + 3);
    }

    void tabGoesThroughVisibleEditorsInOrder()
    {
        PropertyListControl form(m_settings.get(), {}, AllNoScroll);
        form.hideItems({u"File"_s});
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QCOMPARE(walk(form, 14),
                 (QStringList{u"Active"_s, u"Delay"_s, u"Drive"_s, u"Animal"_s, u"Notes"_s, u"Title"_s,
                              u"Level"_s, u"Level"_s, u"Place, 1"_s, u"Place, 2"_s, u"Span, 1"_s,
                              u"Span, 2"_s, u"Speed"_s, u"Choice"_s}));
        form.setFocusAt(u"Delay"_s);
        QVERIFY(QApplication::focusWidget()->accessibleName() != "Delay"_L1);
        QTRY_COMPARE(QApplication::focusWidget()->accessibleName(), u"Delay"_s);
        form.setAutoFocus(false);
        form.hide();
        form.show();
        QCOMPARE(QApplication::focusWidget() ? QApplication::focusWidget()->accessibleName() : u"Delay"_s,
                 u"Delay"_s);
    }

    void everyControlHasAName()
    {
        PropertyListControl form(m_settings.get(), {}, All);
        form.show();
        for (const QWidget *control : form.findChildren<QWidget *>()) {
            const QWidget *owner = control->parentWidget();
            const bool isPart = control->focusProxy() || qobject_cast<const QComboBox *>(owner)
                                || control->isWindow() || !control->isVisible();
            if (control->focusPolicy() != Qt::NoFocus && !isPart)
                QVERIFY2(!control->accessibleName().isEmpty(), control->metaObject()->className());
        }
    }

    void defaultButtons()
    {
        PropertyListControl form(m_settings.get(), {}, AllNoScroll);
        form.show();
        const auto button = [&form](const QString &name) -> QPushButton * {
            for (auto *candidate : form.getWidgetInfo(name).editor->findChildren<QPushButton *>()) {
                if (candidate->isCheckable())
                    return candidate;
            }
            return nullptr;
        };
        QVERIFY(!button(u"Serial"_s) && !button(u"Day"_s));
        QVERIFY(!form.getWidgetInfo(u"Serial"_s).editor->isEnabled());
        QCOMPARE(button(u"Delay"_s)->toolTip(), u"Set default to '5 s'"_s);
        QCOMPARE(button(u"Delay"_s)->size(), QSize(10, 10));
        for (const QString &name : rowNames(form))
            QVERIFY2(!button(name) || !button(name)->isChecked() || name == "Span"_L1, qPrintable(name));
        m_settings->setDelay(7);
        QVERIFY(!button(u"Delay"_s)->isChecked());
        // A button that was up comes up again; a screen reader has a toggling, and no press.
        const auto reader = [&button] {
            QAccessible::queryAccessibleInterface(button(u"Delay"_s))
                ->actionInterface()
                ->doAction(QAccessibleActionInterface::toggleAction());
        };
        const auto mouse = [&button] { QTest::mouseClick(button(u"Delay"_s), Qt::LeftButton); };
        for (const std::function<void()> &press :
             {std::function<void()>(mouse), std::function<void()>(reader)}) {
            m_settings->setDelay(7);
            QTRY_VERIFY(button(u"Delay"_s)->isChecked());
            for (int time = 0; time < 2; ++time) {
                press();
                QCOMPARE(m_settings->getDelay(), 5.0);
                QTRY_VERIFY(!button(u"Delay"_s)->isChecked());
            }
        }
        form.showDefaultButtons(false);
        QVERIFY(!button(u"Delay"_s)->isVisible());
    }

    void rowsCanBeRearranged()
    {
        PropertyListControl form(m_settings.get(), u"1.Common"_s, OneCategory);
        auto *grid = qobject_cast<QGridLayout *>(form.getWidgetInfo(0).caption->parentWidget()->layout());
        const auto info = form.getWidgetInfo(u"Delay"_s);
        QCOMPARE(grid->itemAtPosition(info.row, 0)->widget(), info.caption);
        QCOMPARE(grid->itemAtPosition(info.row, 1)->alignment(), Qt::AlignLeft);
        auto *editor = new QLabel;
        QVERIFY(form.substituteEditor(u"Delay"_s, editor) && !form.substituteEditor(u"X"_s, nullptr));
        QCOMPARE(info.editor->layout()->itemAt(0)->widget(), editor);
        QCOMPARE(info.editor->getEditor(), nullptr);
        auto *header = new QLabel(u"a header that is wider than all others"_s);
        QVERIFY(form.substituteHeader(u"Delay"_s, header, Qt::AlignRight));
        QCOMPARE(grid->itemAtPosition(info.row, 0)->widget(), header);
        QCOMPARE(form.getHeaderColumnWidth(), header->sizeHint().width());
        QVERIFY(form.substituteHeader(u"Delay"_s, nullptr) && form.showHeader(u"Delay"_s, true));
        QVERIFY(!form.showHeader(u"X"_s, true));
        m_settings->setDelay(8);
        QCoreApplication::processEvents();
        auto *last = new QLabel;
        const int rows = grid->rowCount();
        form.addWidgetToLastRow(last, 1);
        QCOMPARE(grid->itemAtPosition(rows, 1)->widget(), last);
        form.addWidgetToFirstRow(new QLabel, 1);
        QVERIFY(grid->itemAtPosition(0, 1));
        form.setContentsMargins(1, 2, 3, 4);
        QCOMPARE(form.sizeHint(), grid->sizeHint() + QSize(4, 6));
    }

    void wheelScrollsTheFormAndChangesNothing()
    {
        PropertyListControl form(m_settings.get(), {}, All);
        form.resize(300, 200);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        auto *box = form.getWidgetInfo(u"Delay"_s).editor->getEditor();
        turnWheel(*box, -120);
        QCOMPARE(m_settings->getDelay(), 5.0);
        QVERIFY(form.findChild<QScrollArea *>()->verticalScrollBar()->value() > 0);
        box->setFocus();
        turnWheel(*box, 120);
        QCOMPARE(m_settings->getDelay(), 5.1);
    }

    void tabsShowCategories()
    {
        PropertyTabWidget form(m_settings.get());
        QTabBar *bar = form.getTabWidget()->tabBar();
        QCOMPARE(form.tabCount(), 4);
        QCOMPARE(bar->tabText(3), u"Other"_s);
        form.moveTab(u"3.Numbers"_s, 0, true);
        QCOMPARE(bar->tabData(0).toString(), u"3.Numbers"_s);
        QCOMPARE(form.getTabWidget()->currentIndex(), 0);
        form.moveTab(u"9.Nothing"_s, 0, true);
        QCOMPARE(bar->tabText(1), u"1.Common"_s);
    }

    void formOutlivesItsSettings()
    {
        PropertyListControl form(m_settings.get(), {}, All);
        form.show();
        auto *delay = qobject_cast<QDoubleSpinBox *>(form.getWidgetInfo(u"Delay"_s).editor->getEditor());
        m_settings->setDelay(9);
        m_settings.reset();
        delay->setValue(3);
        QCoreApplication::processEvents();
        QCOMPARE(delay->value(), 3.0);
        PropertyListControl empty(nullptr, {}, All);
        QVERIFY(rowNames(empty).isEmpty());
    }

private:
    std::unique_ptr<FormSettings> m_settings;
};

QTEST_MAIN(TestPropertyList)
#include "tst_propertylist.moc"
