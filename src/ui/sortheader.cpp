#include "ui/sortheader.h"

#include <QPainter>

namespace {

// As the theme has it.
constexpr int ArrowWidth = 16;
// Around a caption: the theme's padding and the line between sections.
constexpr int CaptionMargins = 13;

} // namespace

SortHeader::SortHeader(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    // A narrow column shows how its caption begins.
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

bool SortHeader::hasArrow(int section) const
{
    return isSortIndicatorShown() && section == sortIndicatorSection();
}

QSize SortHeader::sectionSizeFromContents(int section) const
{
    const QString caption = model()->headerData(section, orientation()).toString();
    const int arrow = hasArrow(section) ? ArrowWidth : 0;
    return {fontMetrics().horizontalAdvance(caption) + CaptionMargins + arrow,
            QHeaderView::sectionSizeFromContents(section).height()};
}

void SortHeader::paintSection(QPainter *painter, const QRect &rect, int section) const
{
    QHeaderView::paintSection(painter, rect, section);
    if (hasArrow(section))
        return;
    // Once more with the arrow's place behind the end, and all but the line at the end.
    painter->save();
    painter->setClipRect(rect.adjusted(0, 0, -1, 0), Qt::IntersectClip);
    QHeaderView::paintSection(painter, rect.adjusted(0, 0, ArrowWidth, 0), section);
    painter->restore();
}
