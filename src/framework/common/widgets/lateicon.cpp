#include "framework/common/widgets/lateicon.h"

#include <utility>

LateIcon::LateIcon(const Make &make)
    : m_make(make)
{}

const QIcon &LateIcon::made()
{
    if (m_make)
        m_icon = std::exchange(m_make, nullptr)();
    return m_icon;
}

void LateIcon::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    made().paint(painter, rect, Qt::AlignCenter, mode, state);
}

QSize LateIcon::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return made().actualSize(size, mode, state);
}

QPixmap LateIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    // Of the pixels asked for: what is dense about them is the caller's.
    return made().pixmap(size, 1.0, mode, state);
}

QList<QSize> LateIcon::availableSizes(QIcon::Mode mode, QIcon::State state)
{
    return made().availableSizes(mode, state);
}

QIconEngine *LateIcon::clone() const
{
    return new LateIcon(*this);
}
