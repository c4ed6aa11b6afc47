#include "gallery/kitpage.h"

#include "framework/common/ntimer.h"
#include "framework/common/widgets/cursorhelper.h"
#include "framework/common/widgets/iconwidget.h"
#include "framework/common/widgets/nellipse.h"
#include "framework/common/widgets/npushbutton.h"
#include "framework/common/widgets/nscrollviewer.h"
#include "framework/common/widgets/nstackpanel.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/common/widgets/uihelper.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize IconSize(40, 40);
constexpr int TickMs = 1000;
constexpr int ScrollHeight = 150;
constexpr int LargePixels = 22;
const QString Accent = u"#1177BB"_s;

QWidget *row(const QList<QWidget *> &widgets)
{
    auto *box = new QWidget;
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    return box;
}

QWidget *column(const QList<QWidget *> &widgets)
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    return box;
}

QLabel *caption(const QString &text)
{
    auto *label = new QLabel(text);
    label->setStyleSheet(u"font-weight: bold"_s);
    return label;
}

IconWidget *icon(const QString &path, const QString &color, const QString &tip)
{
    auto *made = new IconWidget(path, color, IconSize, u"#000"_s);
    made->setToolTip(tip);
    made->setAccessibleName(tip);
    return made;
}

template <typename Widget>
Widget *disabled(Widget *widget)
{
    widget->setEnabled(false);
    return widget;
}

} // namespace

KitPage::KitPage(QWidget *parent)
    : QWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setHorizontalSpacing(32);
    int cell = 0;
    const auto add = [grid, &cell](const QString &title, QWidget *sample) {
        auto *box = column({caption(title), sample});
        grid->addWidget(box, cell / 2, cell % 2, Qt::AlignTop);
        ++cell;
    };
    add(tr("Stack panel"), createStackPanel());
    add(tr("Scroll viewer with a placeholder"), createScrollViewer());
    add(tr("Icons: plain, coloured, live, disabled, disabled and live, a picture"), createIcons());
    add(tr("Ellipses"), createEllipses());
    add(tr("Push button that tells of the mouse"), createPushButtons());
    add(tr("Generated buttons and labels"), createGenerated());
    add(tr("Timer"), createTimer());
    grid->setRowStretch(grid->rowCount(), 1);
}

QWidget *KitPage::createStackPanel()
{
    auto *panel = new NStackPanel(Qt::Horizontal);
    panel->setSpacing(8);
    for (int i = 1; i <= 3; ++i)
        *panel << new NPushButton(tr("Item %1").arg(i));
    *panel << new QLabel(tr("The last item takes what is left"));
    auto *turn = new QCheckBox(tr("Upright"));
    CursorHelper::setCursor(turn, Qt::PointingHandCursor);
    connect(turn, &QCheckBox::toggled, panel,
            [panel](bool upright) { panel->setOrientation(upright ? Qt::Vertical : Qt::Horizontal); });
    return column({panel, turn});
}

QWidget *KitPage::createScrollViewer()
{
    auto *viewer = new NScrollViewer(Qt::Vertical);
    viewer->setPlaceholderText(tr("Nothing here yet"), Qt::AlignCenter, Qt::AlignCenter, u"subtext"_s, 8);
    viewer->setFixedHeight(ScrollHeight);
    const auto restyle = [viewer] {
        viewer->setBackgroundAndBorder(StyleHelper::ThemeColor(u"--n-idle-bg"_s, Qt::lightGray), 1,
                                       StyleHelper::ThemeColor(u"--n-active-border"_s, Qt::gray), false);
    };
    connect(StyleHelper::Instance(), &StyleHelper::Styler::changed, viewer, restyle);
    restyle();
    auto *add = new NPushButton(tr("Add"));
    connect(add, &QPushButton::clicked, viewer,
            [viewer] { viewer->add(new QLabel(tr("Line %1").arg(viewer->count() + 1))); });
    auto *clear = new NPushButton(tr("Clear"));
    connect(clear, &QPushButton::clicked, viewer, &NScrollViewer::clear);
    return column({viewer, row({add, clear})});
}

QWidget *KitPage::createIcons()
{
    const QString speed = u":/resources/images/speed_on.svg"_s;
    auto *inverted = disabled(icon(speed, Accent, tr("disabled and live")));
    inverted->setInvertedEnabledBehavior(true);
    return row({icon(u":/icons/folder.svg"_s, u"#888"_s, tr("plain")),
                icon(u":/icons/folder.svg"_s, Accent, tr("coloured")), icon(speed, Accent, tr("live")),
                disabled(icon(u":/icons/folder.svg"_s, Accent, tr("disabled"))), inverted,
                icon(u":/resources/images/rat.png"_s, {}, tr("a picture"))});
}

QWidget *KitPage::createEllipses()
{
    QList<QWidget *> ellipses{new NEllipse(QColor(0x33, 0xCC, 0x00), {}, 0, 24, 24),
                              new NEllipse(QColor(0x11, 0x77, 0xBB), Qt::gray, 3, 48, 24),
                              new NEllipse(Qt::NoBrush, QColor(0xCC, 0x33, 0x00), 4, 40, 40)};
    for (QWidget *ellipse : ellipses)
        ellipse->setFixedSize(ellipse->minimumSize());
    return row(ellipses);
}

QWidget *KitPage::createPushButtons()
{
    auto *button = new NPushButton(tr("Touch me"));
    auto *told = UIHelper::GenerateLabelWithName(tr("nothing told yet"), u"subtext"_s);
    const auto tell = [told](const QString &text) { return [told, text] { told->setText(text); }; };
    connect(button, &NPushButton::mouseHover, told, tell(tr("the mouse came")));
    connect(button, &NPushButton::mouseLeft, told, tell(tr("the mouse left")));
    connect(button, &NPushButton::doubleClicked, told, tell(tr("clicked twice")));
    connect(button, &NPushButton::enabled, told, tell(tr("enabled")));
    connect(button, &NPushButton::disabled, told, tell(tr("disabled")));
    auto *enabled = new QCheckBox(tr("Enabled"));
    enabled->setChecked(true);
    CursorHelper::setCursor(enabled, Qt::PointingHandCursor);
    connect(enabled, &QCheckBox::toggled, button, &NPushButton::setEnabledState);
    return row({button, enabled, told});
}

QWidget *KitPage::createGenerated()
{
    auto *smart = UIHelper::GenerateSmartSvgButton(u":/icons/refresh.svg"_s, {32, 32}, {20, 20}, {}, {}, {});
    auto *fixed = UIHelper::FixedSizeSvg(u":/icons/copy.svg"_s, {28, 28}, Accent);
    auto *plain = UIHelper::GenerateSvgButton(u":/icons/plus.svg"_s, {20, 20}, {32, 32}, {});
    for (const auto &[button, name] : {std::pair{static_cast<QPushButton *>(smart), tr("Refresh")},
                                       {fixed, tr("Copy")},
                                       {plain, tr("Add")}}) {
        button->setToolTip(name);
        button->setAccessibleName(name);
        CursorHelper::setCursor(button, Qt::PointingHandCursor);
    }
    StyleHelper::SetButtonIcon(smart, u":/icons/refresh.svg"_s, u"#FFF"_s);
    StyleHelper::SetButtonIcon(plain, u":/icons/plus.svg"_s, u"#FFF"_s);
    auto *link = UIHelper::GenerateLinkButton(u"https://example.org"_s, tr("A link"), {}, u"linkButton"_s);
    return row({smart, fixed, plain, link, UIHelper::GenerateLabelWithName(tr("secondary"), u"subtext"_s),
                UIHelper::GenerateLabelWithName(tr("accent"), u"accent"_s),
                UIHelper::GenerateLabel(tr("large"), LargePixels, Qt::gray, true)});
}

QWidget *KitPage::createTimer()
{
    auto *label = new QLabel(tr("%1 s").arg(0));
    auto *timer = new NTimer(label);
    connect(timer, &NTimer::timeout, label,
            [label, seconds = 0]() mutable { label->setText(tr("%1 s").arg(++seconds)); });
    timer->start(TickMs);
    return label;
}
