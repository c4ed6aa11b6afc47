#include "ui/pagebar.h"

#include "framework/common/widgets/cursorhelper.h"
#include "framework/common/widgets/stylehelper.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Filling = 100;
constexpr int BarMargin = 8;
constexpr int BarHeight = 50;
constexpr int BarSpacing = 2;
constexpr QSize IconSize{24, 24};
constexpr QSize ToolButtonSize{32, 32};

void setIcon(QPushButton *button, const QString &path)
{
    StyleHelper::SetButtonIcon(button, path, u"#FFF"_s);
    button->setIconSize(IconSize);
    CursorHelper::setCursor(button, Qt::PointingHandCursor);
}

} // namespace

void PageBar::fill(QWidget *page, QWidget *main, const QList<QWidget *> &widgets)
{
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(main, Filling);
    auto *bar = new QWidget(page);
    layout->addWidget(bar);
    bar->setContentsMargins(BarMargin, BarMargin, BarMargin, BarMargin);
    bar->setMinimumHeight(BarHeight);
    StyleHelper::Instance()->setStyledBackground(bar, u"--n-idle-bg"_s, Qt::transparent);
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(BarSpacing);
    for (QWidget *widget : widgets) {
        if (widget)
            row->addWidget(widget);
        else
            row->addStretch();
    }
}

QPushButton *PageBar::exportButton(const QString &text, const QString &tooltip)
{
    auto *button = new QPushButton(text);
    button->setToolTip(tooltip);
    setIcon(button, u":/icons/excel.svg"_s);
    return button;
}

QPushButton *PageBar::toolButton(const QString &iconPath, const QString &tooltip)
{
    auto *button = new QPushButton;
    button->setFlat(true);
    button->setFixedSize(ToolButtonSize);
    button->setToolTip(tooltip);
    button->setAccessibleName(tooltip);
    setIcon(button, iconPath);
    return button;
}
