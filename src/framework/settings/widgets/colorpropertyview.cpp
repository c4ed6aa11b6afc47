#include "framework/settings/widgets/colorpropertyview.h"

#include "framework/common/widgets/cursorhelper.h"
#include "framework/settings/abstractmetadescription.h"

#include <QColorDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int FieldPx = 20;
constexpr int FocusRingPx = 2;
constexpr int FocusMarginPx = 3;
constexpr int ChequerPx = 5;
constexpr QRgb ChequerColor = 0xFFCCCCCC;

} // namespace

ColorPropertyView::ColorPropertyView(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyView(description, parent)
    , m_button(new QPushButton)
    , m_label(new QLabel)
{
    m_button->setFixedSize(FieldPx, FieldPx);
    CursorHelper::setCursor(m_button, Qt::PointingHandCursor);
    auto *both = new QWidget;
    auto *layout = new QHBoxLayout(both);
    layout->setContentsMargins(FocusMarginPx, FocusMarginPx, 0, FocusMarginPx);
    layout->addWidget(m_button);
    layout->addWidget(m_label);
    both->setFocusProxy(m_button);
    nameControl(m_button);
    m_button->installEventFilter(this);
    setEditor(both);
    connect(m_button, &QPushButton::clicked, this, &ColorPropertyView::pick);
    ColorPropertyView::metaValueChanged(description->getValue());
}

void ColorPropertyView::pick()
{
    if (!description())
        return;
    auto *dialog = new QColorDialog(description()->getValue().value<QColor>(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QColorDialog::ShowAlphaChannel, description()->specialType.contains("Alpha"_L1));
    connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor &color) {
        write(color);
        if (description())
            metaValueChanged(description()->getValue());
    });
    dialog->show();
}

void ColorPropertyView::metaValueChanged(const QVariant &value)
{
    if (m_button && m_label) {
        const QString text = value.toString();
        m_button->setStyleSheet("border: 1px solid #000000; background-color:"_L1 + text + ';'_L1);
        m_button->setAccessibleDescription(text.toUpper());
        m_label->setText(text.toUpper());
    }
    setDefaultButtonChecked(value.value<QColor>() == QColor(description()->defaultText));
}

bool ColorPropertyView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return BasePropertyView::eventFilter(watched, event);
}

void ColorPropertyView::paintEvent(QPaintEvent *event)
{
    BasePropertyView::paintEvent(event);
    if (!m_button)
        return;
    const QRect field(m_button->mapTo(this, QPoint()), m_button->size());
    QPainter painter(this);
    if (m_button->hasFocus()) {
        // The button's own style leaves no room for a sign of the focus.
        const int reach = FocusMarginPx;
        const QRect ring = field.adjusted(-reach, -reach, reach, reach);
        painter.fillRect(ring, m_label->palette().windowText());
        const int inner = FocusMarginPx - FocusRingPx;
        painter.fillRect(field.adjusted(-inner, -inner, inner, inner), palette().window());
    }
    painter.fillRect(field, Qt::white);
    for (int y = 0; y < field.height(); y += ChequerPx) {
        for (int x = y % (2 * ChequerPx); x < field.width(); x += 2 * ChequerPx)
            painter.fillRect(QRect(field.topLeft() + QPoint(x, y), QSize(ChequerPx, ChequerPx)),
                             QColor(ChequerColor));
    }
}
