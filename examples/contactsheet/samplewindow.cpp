#include "contactsheet/samplewindow.h"

#include "framework/common/widgets/mediahelper.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/common/widgets/uihelper.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>

using namespace Qt::StringLiterals;

namespace {

QPushButton *button(const QString &text, const QString &icon = {})
{
    auto *made = new QPushButton(text);
    if (!icon.isEmpty())
        StyleHelper::SetButtonIcon(made, u":/icons/%1.svg"_s.arg(icon), u"#FFF"_s);
    return made;
}

QWidget *row(const QList<QWidget *> &widgets)
{
    auto *box = new QWidget;
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    return box;
}

template <typename Widget>
Widget *disabled(Widget *widget)
{
    widget->setEnabled(false);
    return widget;
}

QPushButton *checked(QPushButton *button)
{
    button->setCheckable(true);
    button->setChecked(true);
    return button;
}

} // namespace

SampleWindow::SampleWindow(QWidget *parent)
    : QWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setSpacing(16);
    grid->addWidget(createButtons(), 0, 0);
    grid->addWidget(createFields(), 1, 0);
    grid->addWidget(createSliders(), 2, 0);
    grid->addWidget(createTabs(), 0, 1);
    grid->addWidget(createTable(u"sortableTable"_s), 1, 1);
    grid->addWidget(createTable(u"transparentTable"_s), 2, 1);
}

QWidget *SampleWindow::createButtons()
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *focus = button(u"With focus"_s);
    auto *record = button(u"Record"_s);
    record->setIcon(MediaHelper::icon(u":/icons/record.svg"_s));
    auto *flat = button(u"Flat"_s, u"folder"_s);
    flat->setFlat(true);
    layout->addWidget(row({record, button(u"Export"_s, u"excel"_s), checked(button(u"Checked"_s)),
                           disabled(button(u"Disabled"_s, u"delete"_s)), focus, flat}));
    auto *positive = button(u"Positive"_s);
    positive->setObjectName(u"positive"_s);
    auto *negative = button(u"Negative"_s);
    negative->setObjectName(u"negative"_s);
    auto *off = button(u"Off"_s);
    off->setStyleSheet(u"QPushButton { border-radius: 13px; background: #C30}"_s);
    auto *link = UIHelper::GenerateLinkButton(u"https://example.org"_s, {}, {}, u"linkButton"_s);
    layout->addWidget(
        row({positive, negative, off, link, UIHelper::GenerateLabelWithName(u"subtext"_s, u"subtext"_s),
             UIHelper::GenerateLabelWithName(u"accent"_s, u"accent"_s)}));
    auto *check = new QCheckBox(u"Checked"_s);
    check->setChecked(true);
    auto *radio = new QRadioButton(u"Chosen"_s);
    radio->setChecked(true);
    layout->addWidget(row({check, new QCheckBox(u"Free"_s), disabled(new QCheckBox(u"Disabled"_s)), radio,
                           new QRadioButton(u"Other"_s)}));
    m_focused.append(focus);
    return box;
}

QWidget *SampleWindow::createFields()
{
    auto *box = new QWidget;
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    auto *number = new QDoubleSpinBox;
    number->setSuffix(u" mA"_s);
    number->setValue(1.2);
    auto *combo = new QComboBox;
    combo->addItem(QIcon(u":/resources/images/rat.png"_s), u"Крысы"_s);
    combo->addItem(QIcon(u":/resources/images/mouse.png"_s), u"Мыши"_s);
    auto *text = new QLineEdit(u"Крыса 7"_s);
    auto *hint = new QLineEdit;
    hint->setPlaceholderText(u"Placeholder"_s);
    auto *focus = new QLineEdit(u"With focus"_s);
    m_focused.append(focus);
    const QList<QWidget *> editors{text,
                                   hint,
                                   focus,
                                   number,
                                   disabled(new QDoubleSpinBox),
                                   combo,
                                   new QDateEdit,
                                   disabled(new QLineEdit(u"Disabled"_s))};
    for (int i = 0; i < editors.size(); ++i) {
        grid->addWidget(UIHelper::GenerateLabelWithName(u"Property"_s, u"propertyHeaderLabel"_s), i / 2,
                        i % 2 * 2);
        grid->addWidget(editors.at(i), i / 2, i % 2 * 2 + 1);
    }
    return box;
}

QWidget *SampleWindow::createSliders()
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    for (bool enabled : {true, false}) {
        auto *slider = new QSlider(Qt::Horizontal);
        slider->setValue(40);
        slider->setEnabled(enabled);
        layout->addWidget(slider);
        m_focused.append(slider);
    }
    auto *progress = new QProgressBar;
    progress->setValue(60);
    layout->addWidget(progress);
    for (const QString &name : {QString(), u"scrollWithButtons"_s}) {
        auto *bar = new QScrollBar(Qt::Horizontal);
        bar->setObjectName(name);
        bar->setPageStep(40);
        layout->addWidget(bar);
    }
    auto *tip = new QLabel(u"The look of a tool tip"_s);
    tip->setStyleSheet(u"background: %1; color: %2; padding: 4px"_s.arg(
        StyleHelper::ThemeValue(u"--n-tooltip-bg"_s, u"#FFF"_s),
        StyleHelper::ThemeValue(u"--n-tooltip-color"_s, u"#000"_s)));
    layout->addWidget(tip, 0, Qt::AlignLeft);
    return box;
}

QWidget *SampleWindow::createTabs()
{
    auto *tabs = new QTabWidget;
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(new QLabel(u"Manual control"_s));
    auto *console = new QPlainTextEdit;
    for (int line = 1; line <= 20; ++line)
        console->appendPlainText(u"12:00:%1 message"_s.arg(line, 2, 10, '0'_L1));
    console->setLineWrapMode(QPlainTextEdit::NoWrap);
    layout->addWidget(console);
    tabs->addTab(page, u"Manual control"_s);
    tabs->addTab(new QWidget, u"Script"_s);
    tabs->addTab(new QWidget, u"Other"_s);
    m_focused.append(tabs->tabBar());
    return tabs;
}

QWidget *SampleWindow::createTable(const QString &objectName)
{
    auto *table = new QTableWidget(12, 3);
    table->setObjectName(objectName);
    table->setHorizontalHeaderLabels({u"Date"_s, u"Title"_s, u"N"_s});
    table->verticalHeader()->hide();
    for (int line = 0; line < table->rowCount(); ++line) {
        const QString animal = line % 2 ? u"mouse"_s : u"rat"_s;
        auto *date = new QTableWidgetItem(u"2026.03.%1-10.15.00"_s.arg(line + 1, 2, 10, '0'_L1));
        date->setIcon(QIcon(u":/resources/images/%1.png"_s.arg(animal)));
        table->setItem(line, 0, date);
        table->setItem(line, 1, new QTableWidgetItem(animal));
        table->setItem(line, 2, new QTableWidgetItem(QString::number(line)));
    }
    table->setSortingEnabled(true);
    table->sortItems(0);
    table->resizeColumnsToContents();
    table->selectRow(2);
    return table;
}
