#include "framework/common/widgets/nstackpanel.h"

#include <QBoxLayout>
#include <QChildEvent>

#include <utility>

namespace {

constexpr int LastItemStretch = 100;

QBoxLayout::Direction directionOf(Qt::Orientation orientation)
{
    return orientation == Qt::Vertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
}

} // namespace

NStackPanel::NStackPanel(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , m_orientation(orientation)
    , m_layout(new QBoxLayout(directionOf(orientation), this))
{
    m_layout->setContentsMargins({});
    setContentsMargins({});
}

void NStackPanel::add(QWidget *item)
{
    if (!item)
        return;
    m_items.removeOne(item);
    m_items.append(item);
    m_layout->addWidget(item, 0);
    realign();
}

NStackPanel &NStackPanel::operator<<(QWidget *item)
{
    add(item);
    return *this;
}

void NStackPanel::remove(QWidget *item)
{
    if (!m_items.removeOne(item))
        return;
    item->setParent(nullptr);
    realign();
}

void NStackPanel::clear()
{
    const QList<QWidget *> leaving = std::exchange(m_items, {});
    for (QWidget *item : leaving) {
        item->hide();
        item->setParent(nullptr);
        item->deleteLater();
    }
    realign();
}

QWidget *NStackPanel::at(int index) const
{
    return m_items.value(index, nullptr);
}

int NStackPanel::count() const
{
    return static_cast<int>(m_items.size());
}

void NStackPanel::setItemAlignment(QWidget *item, Qt::Alignment alignment)
{
    if (item)
        m_layout->setAlignment(item, alignment);
}

void NStackPanel::setItemAlignmentByIndex(int index, Qt::Alignment alignment)
{
    setItemAlignment(at(index), alignment);
}

void NStackPanel::setItemPadding(int padding)
{
    setItemPadding(padding, padding, padding, padding);
}

void NStackPanel::setItemPadding(int left, int top, int right, int bottom)
{
    for (QWidget *item : std::as_const(m_items))
        item->setContentsMargins(left, top, right, bottom);
}

void NStackPanel::setPadding(int padding)
{
    setPadding(padding, padding, padding, padding);
}

void NStackPanel::setPadding(int left, int top, int right, int bottom)
{
    m_padding = QMargins(left, top, right, bottom);
    m_layout->setContentsMargins(m_padding);
}

void NStackPanel::setSpacing(int spacing)
{
    m_layout->setSpacing(spacing);
}

void NStackPanel::setOrientation(Qt::Orientation orientation)
{
    m_orientation = orientation;
    m_layout->setDirection(directionOf(orientation));
}

void NStackPanel::childEvent(QChildEvent *event)
{
    // An item that was destroyed or taken elsewhere without being removed here. It may be no widget any more,
    // so only its address counts.
    if (event->removed()) {
        m_items.removeIf(
            [child = event->child()](QWidget *item) { return static_cast<QObject *>(item) == child; });
    }
    QWidget::childEvent(event);
}

void NStackPanel::realign()
{
    const Qt::Alignment start = m_orientation == Qt::Vertical ? Qt::AlignTop : Qt::AlignLeft;
    for (int i = 0; i < count(); ++i) {
        const bool isLast = i == count() - 1;
        m_layout->setStretchFactor(m_items.at(i), isLast ? LastItemStretch : 0);
        m_layout->setAlignment(m_items.at(i), start);
    }
}
