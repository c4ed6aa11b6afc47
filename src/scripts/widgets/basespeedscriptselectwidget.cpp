#include "scripts/widgets/basespeedscriptselectwidget.h"

#include "core/spinbarmodel.h"
#include "core/spinbarsettings.h"
#include "framework/common/widgets/listcombobox.h"
#include "framework/common/widgets/stylehelper.h"
#include "scripts/speedscript.h"
#include "scripts/widgets/speedscriptviewer.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 8;
constexpr int Gap = 10;
constexpr int BottomSpacing = 2;
constexpr int Stretch = 100;
constexpr int ToolButtonSize = 32;
constexpr int ToolIconSize = 20;
constexpr int LeastComboWidth = 100; // a long title must not widen the page

} // namespace

BaseSpeedScriptSelectWidget::BaseSpeedScriptSelectWidget(SpinbarModel &model, bool editable, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_library(model.scriptsFolder())
    , m_editable(editable)
{}

void BaseSpeedScriptSelectWidget::buildInterface()
{
    setContentsMargins({});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(createTopRow());
    m_graph = new SpeedScriptViewer(nullptr, m_editable, this);
    layout->addWidget(m_graph, Stretch);
    if (const QList<QWidget *> widgets = bottomRowWidgets(); !widgets.isEmpty()) {
        auto *row = new QHBoxLayout;
        row->setContentsMargins(Margin, 0, Margin, Margin);
        row->setSpacing(BottomSpacing);
        for (QWidget *widget : widgets) {
            if (widget)
                row->addWidget(widget);
        }
        layout->addLayout(row);
    }
    reloadList({});
}

QWidget *BaseSpeedScriptSelectWidget::createTopRow()
{
    auto *row = new QWidget(this);
    if (m_editable)
        StyleHelper::Instance()->setStyledBackground(row, u"--n-idle-bg"_s, QColor(0xF6F6F6));
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    if (m_editable)
        layout->addWidget(new QLabel(QCoreApplication::translate("Generic", "Script") + ':'_L1, row));
    m_combo = createCombo(row);
    layout->addWidget(m_combo, Stretch);
    for (QWidget *widget : topRowWidgets(row)) {
        if (widget)
            layout->addWidget(widget);
        else
            layout->addSpacing(Gap);
    }
    return row;
}

QComboBox *BaseSpeedScriptSelectWidget::createCombo(QWidget *parent)
{
    auto *combo = new ListComboBox(parent);
    combo->setPlaceholderText(tr("Not selected"));
    combo->setAccessibleName(QCoreApplication::translate("Generic", "Script"));
    combo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    combo->setMinimumWidth(LeastComboWidth);
    connect(combo, &QComboBox::currentIndexChanged, this, &BaseSpeedScriptSelectWidget::selectScript);
    return combo;
}

QPushButton *BaseSpeedScriptSelectWidget::makeToolButton(const QString &text, const QString &icon,
                                                         QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setFixedSize(ToolButtonSize, ToolButtonSize);
    button->setIconSize({ToolIconSize, ToolIconSize});
    StyleHelper::SetButtonIcon(button, ":/icons/"_L1 + icon, u"#FFF"_s);
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(u"padding: 0"_s);
    return button;
}

void BaseSpeedScriptSelectWidget::reloadList(const QString &title)
{
    unloadScript();
    SpinbarSettings &settings = *m_model.settings();
    if (!title.isEmpty())
        settings.setLastSpeedScript(title);

    const QStringList titles = m_library.titles();
    {
        const QSignalBlocker blocker(m_combo);
        m_combo->clear();
        m_combo->addItems(titles);
    }
    const int index = ScriptLibrary::indexToSelect(titles, settings.getLastSpeedScript());
    // By way of none, so that the script is read anew even if the index stays.
    m_combo->setCurrentIndex(-1);
    if (index >= 0)
        m_combo->setCurrentIndex(index);
    else
        scriptChanged();
    m_combo->setEnabled(!titles.isEmpty());
}

void BaseSpeedScriptSelectWidget::unloadScript()
{
    if (m_script) {
        m_script->setAutoSave(false);
        m_script->deleteLater();
        m_script = nullptr;
    }
    m_graph->setScript(nullptr);
    updateDependentWidgets();
}

void BaseSpeedScriptSelectWidget::selectScript()
{
    unloadScript();
    if (m_combo->currentIndex() >= 0) {
        m_script = m_library.load(title()).release();
        if (m_script) {
            m_script->setParent(this);
            m_script->setAutoSave(m_editable);
            m_model.settings()->setLastSpeedScript(title());
        }
    }
    m_graph->setScript(m_script);
    updateDependentWidgets();
    scriptChanged();
}

QString BaseSpeedScriptSelectWidget::title() const
{
    return m_combo->currentText();
}

void BaseSpeedScriptSelectWidget::updateDependentWidgets()
{
    for (QWidget *widget : std::as_const(m_dependentWidgets))
        widget->setEnabled(m_script);
}

void BaseSpeedScriptSelectWidget::setDimension(CurlySpinbar::OutputSpeedDimension dimension,
                                               CurlySpinbarDevice::RodentMode rodentMode)
{
    m_graph->setDimension(dimension, rodentMode);
}
