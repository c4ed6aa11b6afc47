#include "ui/controlrow.h"

#include "framework/common/widgets/iconwidget.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowHeight = 30;
constexpr int IconSize = 24;
constexpr int Filling = 100;

QHBoxLayout *emptyRow(int spacing)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    return row;
}

void add(QHBoxLayout *row, QWidget *widget, int stretch)
{
    widget->setMinimumHeight(RowHeight);
    row->addWidget(widget, stretch);
}

} // namespace

QHBoxLayout *ControlRow::create(int spacing, const QList<QWidget *> &widgets)
{
    QHBoxLayout *row = emptyRow(spacing);
    for (QWidget *widget : widgets) {
        if (widget)
            add(row, widget, 0);
        else
            row->addStretch(Filling);
    }
    if (!widgets.contains(nullptr))
        row->addStretch(Filling);
    return row;
}

QHBoxLayout *ControlRow::createFilled(int spacing, const QList<QWidget *> &widgets)
{
    QHBoxLayout *row = emptyRow(spacing);
    for (QWidget *widget : widgets)
        add(row, widget, widget == widgets.constFirst() ? Filling : 0);
    return row;
}

IconWidget *ControlRow::icon(const QString &path, const QString &color, const QString &tooltip,
                             QWidget *parent)
{
    auto *icon = new IconWidget(path, color, {IconSize, IconSize}, {}, parent);
    icon->setToolTip(tooltip);
    icon->setAccessibleName(tooltip);
    return icon;
}

QPushButton *ControlRow::offButton(const QString &color, const QString &tooltip, QWidget *parent)
{
    auto *button = new QPushButton(QCoreApplication::translate("SpinbarController", "Off"), parent);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet("QPushButton { border-radius: 13px; background: "_L1 + color + '}'_L1);
    button->setToolTip(tooltip);
    button->setAccessibleName(tooltip);
    return button;
}
