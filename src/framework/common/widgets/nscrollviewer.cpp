#include "framework/common/widgets/nscrollviewer.h"

#include "framework/common/widgets/nstackpanel.h"
#include "framework/common/widgets/uihelper.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>

using namespace Qt::StringLiterals;

NScrollViewer::NScrollViewer(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , m_area(new QScrollArea)
    , m_panel(new NStackPanel(orientation))
    , m_grid(new QGridLayout(this))
{
    UIHelper::ChangeBackground(this, Qt::transparent);
    setContentsMargins({});
    m_area->setWidgetResizable(true);
    m_area->setWidget(m_panel);
    m_grid->setContentsMargins({});
    m_grid->addWidget(m_area, 0, 0);
}

void NScrollViewer::add(QWidget *item)
{
    m_panel->add(item);
    checkPlaceholder();
}

void NScrollViewer::remove(QWidget *item)
{
    m_panel->remove(item);
    checkPlaceholder();
}

void NScrollViewer::clear()
{
    m_panel->clear();
    checkPlaceholder();
}

int NScrollViewer::count() const
{
    return m_panel->count();
}

QWidget *NScrollViewer::itemAt(int index) const
{
    return m_panel->at(index);
}

void NScrollViewer::setItemVisible(int index, bool isItemVisible)
{
    if (QWidget *item = itemAt(index))
        item->setVisible(isItemVisible);
}

void NScrollViewer::setItemAlignment(QWidget *item, Qt::Alignment alignment)
{
    m_panel->setItemAlignment(item, alignment);
}

void NScrollViewer::setItemAlignmentByIndex(int index, Qt::Alignment alignment)
{
    m_panel->setItemAlignmentByIndex(index, alignment);
}

void NScrollViewer::setItemPadding(int padding)
{
    m_panel->setItemPadding(padding);
}

void NScrollViewer::setItemPadding(int left, int top, int right, int bottom)
{
    m_panel->setItemPadding(left, top, right, bottom);
}

void NScrollViewer::setSpacing(int spacing)
{
    m_panel->setSpacing(spacing);
}

void NScrollViewer::setPlaceholderWidget(QWidget *placeholder, Qt::Alignment alignment)
{
    if (m_placeholder) {
        m_grid->removeWidget(m_placeholder);
        if (m_placeholder != placeholder)
            delete m_placeholder;
    }
    m_placeholder = placeholder;
    if (placeholder)
        m_grid->addWidget(placeholder, 0, 0, 1, 1, alignment);
    checkPlaceholder();
}

QLabel *NScrollViewer::setPlaceholderText(const QString &text, Qt::Alignment alignmentInCell,
                                          Qt::Alignment textAlignment, const QString &objectName, int margin)
{
    auto *label = new QLabel(text);
    label->setObjectName(objectName);
    label->setWordWrap(true);
    label->setContentsMargins(margin, margin, margin, margin);
    label->setAlignment(textAlignment);
    setPlaceholderWidget(label, alignmentInCell);
    return label;
}

void NScrollViewer::checkPlaceholder()
{
    if (m_placeholder)
        m_placeholder->setVisible(count() == 0);
}

QString NScrollViewer::styleText(const QColor &color, uchar borderWidth, const QColor &borderColor,
                                 bool blackInner)
{
    const QString background = color == QColor(Qt::transparent) ? u"transparent"_s : color.name();
    const QString border =
        borderWidth == 0 ? u"0"_s : QString::number(borderWidth) + "px solid "_L1 + borderColor.name();
    QString style = "QScrollArea { background: "_L1 + background + "; border: "_L1 + border
                    + "; } QScrollArea > QWidget > QWidget { background: "_L1 + background + "; } "_L1;
    if (blackInner)
        style += "QScrollArea > QWidget > QWidget { background: #000}"_L1;
    return style;
}

void NScrollViewer::setBackgroundAndBorder(const QColor &color, uchar borderWidth, const QColor &borderColor,
                                           bool blackInner)
{
    UIHelper::ChangeBackground(m_area, color);
    m_area->setStyleSheet(styleText(color, borderWidth, borderColor, blackInner));
}

void NScrollViewer::setBackground(const QColor &color, bool blackInner)
{
    setBackgroundAndBorder(color, 0, {}, blackInner);
}

void NScrollViewer::setTransparentBackground(bool blackInner)
{
    setBackgroundAndBorder(Qt::transparent, 0, {}, blackInner);
}
