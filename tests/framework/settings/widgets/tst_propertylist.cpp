#include "formsettings.h"

#include "framework/settings/widgets/basepropertyview.h"
#include "framework/settings/widgets/editorchoice.h"
#include "framework/settings/widgets/propertylistcontrol.h"
#include "framework/settings/widgets/propertytabwidget.h"
#include "framework/settings/widgets/propertytext.h"
#include "framework/settings/widgets/suggestions.h"
#include "framework/settings/widgets/visibilityrule.h"

#include <QAccessible>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>
#include <QWheelEvent>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

using Mode = PropertyListControl::ViewMode;
constexpr Mode All = PropertyListControl::ViewMode_All;
constexpr Mode OneCategory = PropertyListControl::ViewMode_Category;
constexpr Mode OneProperty = PropertyListControl::ViewMode_Property;
constexpr Mode AllNoScroll = PropertyListControl::ViewMode_AllNoScroll;

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

/// Puts every text of the shared context into square brackets.
class Brackets : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "Generic") == 0 ? '[' + QString::fromUtf8(text) + ']' : QString();
    }
};

/// A description of which only the fields count.
class BareDescription : public AbstractMetaDescription
{
    Q_OBJECT

public:
    bool isEnum = false;

    QMetaEnum enumerator() override { return {}; }
    bool isEnumType() override { return isEnum; }
    bool setValue(const QVariant &) override { return false; }
    QVariant getValue() override { return {}; }
    void setDefault() override {}
    void valueChangedSlot() override {}
    bool setTextValue(const QString &) override { return false; }
};

} // namespace

class TestPropertyList : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_settings = std::make_unique<FormSettings>(); }

    void rowsOfEachMode()
    {
        const auto check = [](Mode mode, const QString &filter, const QStringList &rows,
                              const QStringList &captions, bool scrolls) {
            FormSettings settings;
            const PropertyListControl form(&settings, filter, mode);
            QCOMPARE(rowNames(form), rows);
            QCOMPARE(categoryCaptions(form), captions);
            QCOMPARE(form.findChild<QScrollArea *>() != nullptr, scrolls);
        };
        const QStringList common{u"Count"_s, u"Active"_s, u"Delay"_s, u"Drive"_s};
        // The last is sorted by the name that it shows.
        const QStringList others{u"File"_s,  u"Title"_s, u"Animal"_s, u"Day"_s,  u"Level"_s, u"Notes"_s,
                                 u"Paint"_s, u"Place"_s, u"Serial"_s, u"Span"_s, u"Speed"_s, u"Choice"_s};
        check(All, {}, common + others, {u"1.Common"_s, u"2.Texts"_s, u"Other"_s}, true);
        check(OneCategory, u"1.Common"_s, common, {}, true);
        check(OneProperty, u"Hidden"_s, {u"Hidden"_s}, {}, false);
        check(OneProperty, u"Nothing"_s, {}, {}, false);
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
        QCOMPARE(walk(form, 14), (QStringList{u"Active"_s, u"Delay"_s, u"Drive"_s, u"Title"_s, u"Animal"_s,
                                              u"Day"_s, u"Level"_s, u"Level"_s, u"Notes"_s, u"Paint"_s,
                                              u"Place, 1"_s, u"Place, 2"_s, u"Span, 1"_s, u"Span, 2"_s}));
        form.setFocusAt(u"Delay"_s);
        QTRY_COMPARE(QApplication::focusWidget()->accessibleName(), u"Delay"_s);
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
        for (const QString &name : rowNames(form))
            QVERIFY2(!button(name) || !button(name)->isChecked() || name == "Span"_L1, qPrintable(name));
        m_settings->setDelay(7);
        QVERIFY(!button(u"Delay"_s)->isChecked());
        // A button that was up comes up again; a screen reader has a toggling, and no press.
        for (const bool reader : {false, true}) {
            m_settings->setDelay(7);
            QTRY_VERIFY(button(u"Delay"_s)->isChecked());
            for (int time = 0; time < 2; ++time) {
                if (reader)
                    QAccessible::queryAccessibleInterface(button(u"Delay"_s))
                        ->actionInterface()
                        ->doAction(QAccessibleActionInterface::toggleAction());
                else
                    QTest::mouseClick(button(u"Delay"_s), Qt::LeftButton);
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
        auto *editor = new QLabel;
        QVERIFY(form.substituteEditor(u"Delay"_s, editor) && !form.substituteEditor(u"X"_s, nullptr));
        QCOMPARE(info.editor->layout()->itemAt(0)->widget(), editor);
        auto *header = new QLabel(u"a header that is wider than all others"_s);
        QVERIFY(form.substituteHeader(u"Delay"_s, header, Qt::AlignRight));
        QCOMPARE(grid->itemAtPosition(info.row, 0)->widget(), header);
        QCOMPARE(form.getHeaderColumnWidth(), header->sizeHint().width());
        QVERIFY(form.substituteHeader(u"Delay"_s, nullptr) && form.showHeader(u"Delay"_s, true));
        m_settings->setDelay(8); // reaches nothing of what is gone
        QCoreApplication::processEvents();
        const int rows = grid->rowCount();
        form.addWidgetToLastRow(new QLabel, 1);
        form.addWidgetToFirstRow(new QLabel, 1);
        QVERIFY(grid->itemAtPosition(0, 1) && grid->itemAtPosition(rows, 1));
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
        const QTabBar *bar = form.getTabWidget()->tabBar();
        QCOMPARE(form.tabCount(), 3);
        QCOMPARE(bar->tabText(2), u"Other"_s);
        form.moveTab(u"2.Texts"_s, 0, true);
        QCOMPARE(bar->tabData(0).toString(), u"2.Texts"_s);
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

    void conditions()
    {
        // Of the values A to D and the empty one, "-", those for which a row is shown.
        const auto shownFor = [](const QString &condition) {
            QString shown;
            for (const QString &value : {u"A"_s, u"B"_s, u"C"_s, u"D"_s, QString()}) {
                if (VisibilityRule::holds(value, condition))
                    shown += value.isEmpty() ? u"-"_s : value;
            }
            return shown;
        };
        QCOMPARE(shownFor(u"A"_s), u"A"_s);
        QCOMPARE(shownFor(u"!A"_s), u"BCD-"_s);
        QCOMPARE(shownFor(u"A|B"_s), u"AB"_s);
        QCOMPARE(shownFor(u"!A&&!B"_s), u"CD-"_s);
        QCOMPARE(shownFor(u"A&&B"_s), u""_s);
        QCOMPARE(shownFor(u"A&&B|C"_s), u"ABC"_s); // mixed counts as or
        QCOMPARE(shownFor(u"|A&&B"_s), u""_s);     // a leading bar is no or
        QCOMPARE(shownFor(u"|A"_s), u"A"_s);
        QCOMPARE(shownFor(u"a"_s), u""_s);
        QCOMPARE(shownFor({}), u"-"_s);
    }

    void suggestions()
    {
        const QList<double> list{1, 2, 5};
        QCOMPARE(Suggestions::stepped(list, 2, 1), 5.0);
        QCOMPARE(Suggestions::stepped(list, 2.4, -1), 1.0); // from the nearest
        QCOMPARE(Suggestions::stepped(list, 5, 1), 5.0);
        QCOMPARE(Suggestions::stepped(list, 1, -10), 1.0);
        QCOMPARE(Suggestions::stepped(list, 20, 1), 2.0); // too far from all counts as the first
        QCOMPARE(Suggestions::stepped({9, 1, 4}, 1, 1), 4.0);
        QCOMPARE(Suggestions::parse(u" 3, x,0.5 ,,1e1"_s), (QList<double>{3, 0.5, 10}));
        QVERIFY(Suggestions::parse({}).isEmpty());
    }

    void editors()
    {
        using Kind = EditorChoice::Kind;
        const auto check = [](const QString &type, const QString &special, Kind kind, int span = 1) {
            BareDescription description;
            description.type = type;
            description.isEnum = type == "Enum"_L1;
            description.hasSpecialType = !special.isEmpty();
            description.specialType = special;
            const EditorChoice choice = EditorChoice::of(description);
            QVERIFY2(choice.kind == kind && choice.columnSpan == span, qPrintable(type + u' ' + special));
        };
        check(u"QString"_s, u"pickfile:*.xml"_s, Kind::Special, 2);
        check(u"QString"_s, u"APickFolderB"_s, Kind::Special, 2);
        check(u"QString"_s, u"multilinetext"_s, Kind::Multiline, 2);
        check(u"int"_s, u"SLIDER"_s, Kind::Slider);
        check(u"int"_s, u"Slider:1"_s, Kind::Int);
        check(u"int"_s, u"enumStringList"_s, Kind::EnumStringList);
        check(u"qstring"_s, u"stringlist"_s, Kind::EnumStringList);
        check(u"int"_s, u"StringList"_s, Kind::Int);
        check(u"QPointF"_s, u"range"_s, Kind::Range);
        check(u"Enum"_s, {}, Kind::Enum);
        check(u"QPoint"_s, {}, Kind::Point);
        check(u"QPointF"_s, {}, Kind::Point);
        check(u"bool"_s, u"Other"_s, Kind::Bool);
        check(u"uint"_s, {}, Kind::Int);
        check(u"QDateTime"_s, {}, Kind::Date);
        check(u"float"_s, {}, Kind::Double);
        check(u"QColor"_s, u"Alpha"_s, Kind::Color);
        check(u"QSize"_s, {}, Kind::String, 2);
    }

    void unitsAreLookedUpWithoutTheirMarks()
    {
        Brackets brackets;
        QCoreApplication::installTranslator(&brackets);
        QCOMPARE(PropertyText::suffixOrPrefix(u"s"_s), u"[s]"_s);
        QCOMPARE(PropertyText::suffixOrPrefix(u" s"_s), u" [s]"_s);
        QCOMPARE(PropertyText::suffixOrPrefix(u"!- s"_s), u" s"_s);
        QCOMPARE(PropertyText::suffixOrPrefix({}), QString());
    }

private:
    std::unique_ptr<FormSettings> m_settings;
};

QTEST_MAIN(TestPropertyList)
#include "tst_propertylist.moc"
