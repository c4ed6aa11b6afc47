#include "framework/settings/widgets/basepropertylistwidget.h"

#include "framework/settings/widgets/basepropertyview.h"

#include <QGridLayout>
#include <QTimer>

#include <algorithm>

BasePropertyListWidget::BasePropertyListWidget(QWidget *parent)
    : QWidget(parent)
    , m_rootLayout(new QGridLayout(this))
{
    m_rootLayout->setContentsMargins({});
}

BasePropertyListWidget::PropertyWidgetInfo BasePropertyListWidget::getWidgetInfo(int index) const
{
    return m_infos.value(index);
}

BasePropertyListWidget::PropertyWidgetInfo BasePropertyListWidget::getWidgetInfo(const QString &name) const
{
    const auto found = std::find_if(m_infos.begin(), m_infos.end(),
                                    [&name](const PropertyWidgetInfo &info) { return info.name == name; });
    return found == m_infos.end() ? PropertyWidgetInfo() : *found;
}

BasePropertyListWidget::PropertyWidgetInfo *BasePropertyListWidget::findInfo(const QString &name)
{
    const auto found = std::find_if(m_infos.begin(), m_infos.end(),
                                    [&name](const PropertyWidgetInfo &info) { return info.name == name; });
    return found == m_infos.end() ? nullptr : &*found;
}

void BasePropertyListWidget::addInfo(const PropertyWidgetInfo &info)
{
    m_infos.append(info);
}

void BasePropertyListWidget::buildIndex(const AbstractMetaDescriptor &descriptor)
{
    m_index.build(descriptor);
}

void BasePropertyListWidget::showItems(const QStringList &names, bool show)
{
    for (const QString &name : names) {
        const PropertyWidgetInfo info = getWidgetInfo(name);
        if (info.caption)
            info.caption->setVisible(show);
        if (info.editor)
            info.editor->setVisible(show);
    }
}

void BasePropertyListWidget::hideItems(const QStringList &names)
{
    showItems(names, false);
}

void BasePropertyListWidget::showHeaders(bool show)
{
    for (const PropertyWidgetInfo &info : m_infos) {
        if (info.caption)
            info.caption->setVisible(show);
    }
}

void BasePropertyListWidget::showDefaultButtons(bool show)
{
    for (const PropertyWidgetInfo &info : m_infos)
        info.editor->showDefaultButton(show);
}

void BasePropertyListWidget::setEditorsEnabled(bool enabled)
{
    for (const PropertyWidgetInfo &info : m_infos)
        info.editor->setEnabled(enabled);
}

void BasePropertyListWidget::setAutoFocus(bool autoFocus)
{
    m_autoFocus = autoFocus;
}

void BasePropertyListWidget::setFocusAt(int index)
{
    setFocusAt(getWidgetInfo(index));
}

void BasePropertyListWidget::setFocusAt(const PropertyWidgetInfo &info)
{
    QWidget *editor = info.editor ? info.editor->getEditor() : nullptr;
    if (editor)
        QTimer::singleShot(0, editor, [editor] { editor->setFocus(); });
}

void BasePropertyListWidget::setFocusAt(const QString &name)
{
    setFocusAt(getWidgetInfo(name));
}

void BasePropertyListWidget::setFocusAtFirst()
{
    setFocusAt(0);
}

void BasePropertyListWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    reorderTabOrder();
}

void BasePropertyListWidget::reorderTabOrder()
{
    QWidget *first = nullptr;
    QWidget *previous = nullptr;
    for (const PropertyWidgetInfo &info : std::as_const(m_infos)) {
        QWidget *editor = info.editor->isVisible() ? info.editor->getEditor() : nullptr;
        if (!editor)
            continue;
        if (editor->focusPolicy() == Qt::ClickFocus)
            editor->setFocusPolicy(Qt::StrongFocus);
        if (previous)
            QWidget::setTabOrder(previous, editor);
        else
            first = editor;
        previous = editor;
    }
    if (first && m_autoFocus)
        first->setFocus();
}
