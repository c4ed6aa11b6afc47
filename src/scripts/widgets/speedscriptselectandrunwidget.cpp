#include "scripts/widgets/speedscriptselectandrunwidget.h"

#include "core/spinbarmodel.h"
#include "framework/common/widgets/stylehelper.h"
#include "scripts/scriptplayer.h"
#include "scripts/speedscript.h"
#include "scripts/widgets/speedscripteditor.h"
#include "scripts/widgets/speedscriptviewer.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int MinGraphHeight = 140;
constexpr int EditButtonSize = 32;
constexpr int EditIconSize = 24;

} // namespace

SpeedScriptSelectAndRunWidget::SpeedScriptSelectAndRunWidget(SpinbarModel &model, QWidget *parent)
    : BaseSpeedScriptSelectWidget(model, false, parent)
    , m_player(std::make_unique<ScriptPlayer>())
{
    buildInterface();
    graph()->setMinimumHeight(MinGraphHeight);
}

SpeedScriptSelectAndRunWidget::~SpeedScriptSelectAndRunWidget()
{
    setRunning(false);
    m_player->disconnect(this);
}

QList<QWidget *> SpeedScriptSelectAndRunWidget::topRowWidgets(QWidget *row)
{
    auto *button = new QPushButton(row);
    button->setFixedSize(EditButtonSize, EditButtonSize);
    button->setIconSize({EditIconSize, EditIconSize});
    StyleHelper::SetButtonIcon(button, u":/icons/edit.svg"_s, u"#FFF"_s);
    button->setCursor(Qt::PointingHandCursor);
    button->setAccessibleName(QCoreApplication::translate("Generic", "Script editor"));
    connect(button, &QPushButton::clicked, this, &SpeedScriptSelectAndRunWidget::editScripts);
    return {button};
}

QList<QWidget *> SpeedScriptSelectAndRunWidget::bottomRowWidgets()
{
    m_runButton = makeToolButton(tr("Run script"), u"play.svg"_s, this);
    m_stopButton = makeToolButton(tr("Stop script"), u"stop.svg"_s, this);
    m_stopButton->setCheckable(true);
    m_cycleLabel = new QLabel(this);
    m_cycleLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    addDependentWidget(m_runButton);
    addDependentWidget(m_stopButton);
    connect(m_runButton, &QPushButton::clicked, this, [this] { setRunning(true); });
    // Not its click, which assistive programs have no way to give to a checkable button.
    connect(m_stopButton, &QPushButton::toggled, this, [this](bool checked) {
        if (!checked && m_player->isRunning())
            setRunning(false);
    });
    connectPlayer();
    setRunning(false);
    return {m_runButton, m_stopButton, nullptr, m_cycleLabel};
}

void SpeedScriptSelectAndRunWidget::connectPlayer()
{
    CurlySpinbar *device = model().device();
    connect(m_player.get(), &ScriptPlayer::runningChanged, this, &SpeedScriptSelectAndRunWidget::showRunning);
    connect(m_player.get(), &ScriptPlayer::cycleChanged, this, &SpeedScriptSelectAndRunWidget::showCycle);
    connect(m_player.get(), &ScriptPlayer::speedDue, device, &CurlySpinbar::setAngularSpeed);
    connect(m_player.get(), &ScriptPlayer::stopDue, device, [device] { device->setMotorSpeed(0.0); });
    connect(m_player.get(), &ScriptPlayer::cursorMoved, graph(), &SpeedScriptViewer::setCursorTime);
}

void SpeedScriptSelectAndRunWidget::scriptChanged()
{
    m_player->setScript(script());
}

void SpeedScriptSelectAndRunWidget::setRunning(bool running)
{
    m_player->setRunning(running);
}

void SpeedScriptSelectAndRunWidget::showRunning(bool running)
{
    // The keyboard stays on what takes the place of the button that goes.
    const bool hadFocus = m_runButton->hasFocus() || m_stopButton->hasFocus();
    m_runButton->setVisible(!running);
    m_stopButton->setVisible(running);
    m_stopButton->setChecked(running);
    if (hadFocus)
        (running ? m_stopButton : m_runButton)->setFocus();
}

void SpeedScriptSelectAndRunWidget::showCycle()
{
    const QString cycle = m_player->cycleText();
    m_cycleLabel->setText(cycle.isEmpty() ? QString() : tr("Cycle") + ' '_L1 + cycle);
}

void SpeedScriptSelectAndRunWidget::editScripts()
{
    setRunning(false);
    QDialog dialog(this);
    dialog.setWindowTitle(QCoreApplication::translate("Generic", "Script editor"));
    dialog.setContentsMargins({});
    auto *layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins({});
    layout->addWidget(new SpeedScriptEditor(model(), &dialog));
    dialog.exec();
    reloadList({});
}
