#include "framework/settings/widgets/basepropertyview.h"

#include "framework/settings/widgets/propertytext.h"

#include "framework/common/widgets/cursorhelper.h"
#include "framework/common/widgets/uihelper.h"
#include "framework/settings/abstractmetadescription.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr int SpacingPx = 2;
constexpr int DefaultButtonPx = 10;
constexpr int DefaultButtonStretch = 100;

} // namespace

BasePropertyView::BasePropertyView(AbstractMetaDescription *description, QWidget *parent)
    : QWidget(parent)
    , m_layout(new QHBoxLayout(this))
    , m_description(description)
{
    m_layout->setContentsMargins({});
    m_layout->setSpacing(SpacingPx);
    // Queued, and by then the value may be another again: only the last one must reach the widget, or it
    // would be set back under the fingers of somebody who types.
    m_connections << connect(description, &AbstractMetaDescription::valueChanged, this,
                             &BasePropertyView::showCurrentValue, Qt::QueuedConnection);
}

void BasePropertyView::showCurrentValue()
{
    // What was typed since is not in the value yet, and must not be taken away by an earlier change.
    if (m_description && !m_isWritePending)
        metaValueChanged(m_description->getValue());
}

QWidget *BasePropertyView::getEditor()
{
    return m_editor;
}

void BasePropertyView::nullifyEditor()
{
    if (!m_editor)
        return;
    m_editor->disconnect(this);
    const QList<QWidget *> parts = m_editor->findChildren<QWidget *>();
    for (QWidget *part : parts)
        part->disconnect(this);
    m_layout->removeWidget(m_editor);
    UIHelper::Delete(m_editor);
    m_editor = nullptr;
}

void BasePropertyView::up() {}

void BasePropertyView::down() {}

void BasePropertyView::metaValueChanged(const QVariant &) {}

QString BasePropertyView::translatedSuffixOrPrefix(const QString &value)
{
    return PropertyText::suffixOrPrefix(value);
}

AbstractMetaDescription *BasePropertyView::description() const
{
    return m_description;
}

void BasePropertyView::substituteEditor(QWidget *editor)
{
    nullifyEditor();
    if (editor)
        m_layout->insertWidget(0, editor);
}

void BasePropertyView::setEditor(QWidget *editor, int editorStretch)
{
    m_editor = editor;
    m_layout->insertWidget(0, editor, editorStretch);
    if (!editor->focusProxy())
        nameControl(editor);
    addDefaultButton();
}

void BasePropertyView::nameControl(QWidget *control, const QString &part)
{
    const QString caption = PropertyText::translated(m_description->displayName);
    control->setAccessibleName(part.isEmpty() ? caption : caption + ", "_L1 + part);
    guardFromWheel(control);
}

void BasePropertyView::guardFromWheel(QWidget *control)
{
    // Scrolling through a form must not change the values that pass under the cursor.
    if (!qobject_cast<QAbstractSpinBox *>(control) && !qobject_cast<QComboBox *>(control)
        && !qobject_cast<QAbstractSlider *>(control)) {
        return;
    }
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(this);
}

bool BasePropertyView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel && !static_cast<QWidget *>(watched)->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void BasePropertyView::addDefaultButton()
{
    if (!m_description->hasDefault || !m_description->showDefault || m_description->readOnly)
        return;
    m_defaultButton = new QPushButton;
    m_defaultButton->setFixedSize(DefaultButtonPx, DefaultButtonPx);
    m_defaultButton->setCheckable(true);
    m_defaultButton->setFocusPolicy(Qt::ClickFocus);
    const QString tip = tr("Set default to") + " '"_L1 + translatedSuffixOrPrefix(m_description->prefix)
                        + m_description->defaultText + translatedSuffixOrPrefix(m_description->suffix)
                        + '\''_L1;
    m_defaultButton->setToolTip(tip);
    nameControl(m_defaultButton, tip);
    CursorHelper::setCursor(m_defaultButton, Qt::PointingHandCursor);
    // Not its click, which assistive programs have no way to give to a checkable button.
    connect(m_defaultButton, &QPushButton::toggled, this, [this] {
        if (m_description)
            m_description->setDefault();
    });
    m_layout->addWidget(m_defaultButton, DefaultButtonStretch, Qt::AlignLeft);
    m_defaultButton->setVisible(m_isDefaultButtonShown);
}

void BasePropertyView::showDefaultButton(bool isShown)
{
    m_isDefaultButtonShown = isShown;
    if (m_defaultButton)
        m_defaultButton->setVisible(isShown);
}

void BasePropertyView::setDefaultButtonStretch(int stretch)
{
    if (m_defaultButton)
        m_layout->setStretchFactor(m_defaultButton, stretch);
}

void BasePropertyView::setDefaultButtonChecked(bool isDefault)
{
    if (!m_defaultButton)
        return;
    const QSignalBlocker blocker(m_defaultButton);
    m_defaultButton->setChecked(!isDefault);
}

void BasePropertyView::write(const QVariant &value)
{
    if (m_description)
        m_description->setValue(value);
}

void BasePropertyView::writeQueued(const std::function<QVariant()> &read)
{
    if (m_isWritePending)
        return;
    m_isWritePending = true;
    const auto writeNow = [this, read] {
        m_isWritePending = false;
        if (const QVariant value = read(); value.isValid())
            write(value);
        showCurrentValue();
    };
    QMetaObject::invokeMethod(this, writeNow, Qt::QueuedConnection);
}
