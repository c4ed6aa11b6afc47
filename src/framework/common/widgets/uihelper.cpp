#include "framework/common/widgets/uihelper.h"

#include <QFile>
#include <QFrame>
#include <QGridLayout>
#include <QPalette>

#include <memory>

using namespace Qt::StringLiterals;

void UIHelper::ChangeBackground(QWidget *widget, const QColor &color)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::All, QPalette::Window, color);
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}

void UIHelper::ChangeBorders(QFrame *frame, int width, const QColor &color)
{
    frame->setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
    frame->setLineWidth(width);
    // Not through the palette: the application's style sheet gives everything its text colour, with which a
    // plain box is drawn. The property keeps the colour from the frame's children.
    frame->setProperty("ownBorder", true);
    frame->setStyleSheet(u"*[ownBorder=\"true\"] { color: %1 }"_s.arg(color.name(QColor::HexArgb)));
}

void UIHelper::ClearLayout(QLayout *layout, bool deleteLayout)
{
    if (!layout)
        return;
    while (QLayoutItem *item = layout->takeAt(0))
        Delete(item);
    if (deleteLayout)
        delete layout;
}

void UIHelper::Delete(QWidget *widget)
{
    if (!widget)
        return;
    widget->hide();
    widget->setParent(nullptr);
    widget->deleteLater();
}

void UIHelper::Delete(QLayoutItem *item)
{
    if (!item)
        return;
    if (QLayout *layout = item->layout()) {
        // The layout is the item.
        ClearLayout(layout, true);
        return;
    }
    const std::unique_ptr<QLayoutItem> owned(item);
    Delete(owned->widget());
}

void UIHelper::InsertToWidget(QWidget *host, QWidget *child, int margin, Qt::Alignment alignment)
{
    ClearLayout(host->layout(), true);
    auto *grid = new QGridLayout(host);
    SetGridMargins(grid, margin, 0, 0);
    grid->addWidget(child, 0, 0, alignment);
}

void UIHelper::SetGridMargins(QGridLayout *grid, int margin, int vertical, int horizontal)
{
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setVerticalSpacing(vertical);
    grid->setHorizontalSpacing(horizontal);
}

QString UIHelper::findValidResource(const QStringList &paths)
{
    for (const QString &path : paths) {
        if (QFile::exists(path))
            return path;
    }
    return {};
}
