#include "scripts/widgets/speedscripteditor.h"

#include "core/spinbarmodel.h"
#include "core/spinbarsettings.h"
#include "framework/common/widgets/apphelperdialogs.h"
#include "framework/settings/widgets/propertylistcontrol.h"
#include "scripts/speedscript.h"
#include "scripts/widgets/speedscriptviewer.h"

#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize MinGraphSize(600, 500);
constexpr int OverlayInset = 30; // leaves the corner to the graph's own button
constexpr QSize NewIconSize(24, 24);

using Outcome = ScriptLibrary::Outcome;

} // namespace

SpeedScriptEditor::SpeedScriptEditor(SpinbarModel &model, QWidget *parent)
    : BaseSpeedScriptSelectWidget(model, true, parent)
{
    buildInterface();
    graph()->setMinimumSize(MinGraphSize);
    createOverlay();
    createSamplesOffer();
    followSettings();
    showRodentMode();
    applyDimension();
}

QList<QWidget *> SpeedScriptEditor::topRowWidgets(QWidget *row)
{
    QPushButton *renameButton = makeToolButton(tr("Rename script"), u"edit_rename.svg"_s, row);
    QPushButton *cloneButton = makeToolButton(tr("Clone script"), u"copy.svg"_s, row);
    QPushButton *removeButton = makeToolButton(tr("Remove script"), u"delete.svg"_s, row);
    QPushButton *newButton = makeToolButton(tr("New script"), u"plus.svg"_s, row);
    newButton->setIconSize(NewIconSize);
    for (QPushButton *button : {renameButton, cloneButton, removeButton})
        addDependentWidget(button);

    connect(newButton, &QPushButton::clicked, this, [this] { askScriptTitle(this, {}, true, false); });
    connect(cloneButton, &QPushButton::clicked, this, [this] {
        if (script())
            askScriptTitle(this, title(), false, true);
    });
    connect(renameButton, &QPushButton::clicked, this, [this] {
        if (script())
            askScriptTitle(this, title(), false, false);
    });
    connect(removeButton, &QPushButton::clicked, this, &SpeedScriptEditor::removeScript);
    return {renameButton, cloneButton, removeButton, nullptr, new QLabel(u"|"_s, row), nullptr, newButton};
}

void SpeedScriptEditor::createOverlay()
{
    SpinbarSettings *settings = model().settings();
    m_overlay = new QWidget(graph());
    auto *layout = new QVBoxLayout(m_overlay);
    auto *dimensionForm = new PropertyListControl(settings, u"RotationDimension"_s,
                                                  PropertyListControl::ViewMode_Property, m_overlay);
    m_rodentModeForm =
        new PropertyListControl(settings, u"RodentMode"_s, PropertyListControl::ViewMode_Property, m_overlay);
    dimensionForm->showDefaultButtons(false);
    dimensionForm->setAutoFocus(false);
    m_rodentModeForm->setAutoFocus(false);
    layout->addWidget(dimensionForm, 0, Qt::AlignRight);
    layout->addWidget(m_rodentModeForm, 0, Qt::AlignRight);
    layout->addStretch(1);
    connect(graph(), &SpeedScriptViewer::resized, this, &SpeedScriptEditor::placeOverlay);
}

void SpeedScriptEditor::placeOverlay()
{
    const QSize size = m_overlay->sizeHint();
    m_overlay->setGeometry(graph()->width() - size.width() - OverlayInset, 0, size.width(), size.height());
}

void SpeedScriptEditor::createSamplesOffer()
{
    m_samplesButton = new QPushButton(tr("Add sample scripts"), graph());
    m_samplesButton->setCursor(Qt::PointingHandCursor);
    m_samplesButton->setVisible(library().titles().isEmpty());
    connect(m_samplesButton, &QPushButton::clicked, this, &SpeedScriptEditor::addSampleScripts);
    connect(graph(), &SpeedScriptViewer::resized, this, &SpeedScriptEditor::placeSamplesOffer);
}

void SpeedScriptEditor::placeSamplesOffer()
{
    QRect place({}, m_samplesButton->sizeHint());
    place.moveCenter(graph()->rect().center());
    m_samplesButton->setGeometry(place);
}

void SpeedScriptEditor::followSettings()
{
    SpinbarSettings *settings = model().settings();
    m_connections << connect(settings, &SpinbarSettings::changedRotationDimension, this, [this] {
        showRodentMode();
        placeOverlay();
        applyDimension();
    }) << connect(settings, &SpinbarSettings::changedRodentMode, this, &SpeedScriptEditor::applyDimension);
}

/// The drum matters for linear speeds only.
void SpeedScriptEditor::showRodentMode()
{
    const auto dimension = model().settings()->getRotationDimension();
    m_rodentModeForm->setVisible(dimension != CurlySpinbar::RotationsPerSecond
                                 && dimension != CurlySpinbar::RotationsPerMinute);
}

void SpeedScriptEditor::applyDimension()
{
    setDimension(model().settings()->getRotationDimension(), model().settings()->getRodentMode());
}

void SpeedScriptEditor::askScriptTitle(QWidget *parent, const QString &startTitle, bool isNew, bool isClone)
{
    const QString label = isNew     ? tr("Enter new script title")
                          : isClone ? tr("Enter new cloned script title")
                                    : tr("Change script title");
    bool accepted = false;
    const QString title =
        QInputDialog::getText(parent, tr("Script name"), label, QLineEdit::Normal, startTitle, &accepted)
            .trimmed();
    if (!accepted)
        return;
    // After a refused title a clone goes on as a renaming.
    const Outcome refusal = library().checkTitle(title, isNew || isClone);
    if (refusal == Outcome::EmptyTitle) {
        AppHelper::warningMessage(tr("Script title cannot be empty"), tr("Incorrect script title"));
        askScriptTitle(parent, startTitle, isNew, false);
    } else if (refusal == Outcome::TitleTaken) {
        AppHelper::warningMessage(tr("Script with this title already exists"), tr("Incorrect script title"));
        askScriptTitle(parent, title, isNew, false);
    } else {
        applyTitle(startTitle, title, isNew, isClone);
    }
}

void SpeedScriptEditor::applyTitle(const QString &from, const QString &title, bool isNew, bool isClone)
{
    if (isNew) {
        library().create(title); // a failure is silent: the list tells
        listAnew(title);
        return;
    }
    unloadScript(); // so that the file is free
    const Outcome outcome = isClone ? library().clone(from, title) : library().rename(from, title);
    if (outcome == Outcome::Unchanged)
        return;
    if (outcome != Outcome::Done) {
        AppHelper::warningMessage(isClone ? tr("Unable to clone script") : tr("Unable to rename script"),
                                  tr("Error"));
        return;
    }
    listAnew(title);
}

void SpeedScriptEditor::removeScript()
{
    if (!script())
        return;
    const QString name = title();
    if (!AppHelper::confirmDialog(tr("Script removal"), tr("Remove script") + " '"_L1 + name + "'?"_L1,
                                  QMessageBox::Information))
        return;
    const QString path = script()->getFilepath();
    unloadScript();
    if (library().remove(name) == Outcome::Done)
        listAnew({});
    else
        AppHelper::warningMessage(tr("Unable to remove file") + ":\r\n"_L1 + path, tr("Error"));
}

void SpeedScriptEditor::addSampleScripts()
{
    const Outcome outcome = library().addSamples();
    listAnew({});
    if (outcome != Outcome::Done)
        AppHelper::warningMessage(tr("Unable to add sample scripts"), tr("Error"));
}

void SpeedScriptEditor::listAnew(const QString &title)
{
    reloadList(title);
    m_samplesButton->setVisible(library().titles().isEmpty());
}
