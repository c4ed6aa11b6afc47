#include "framework/settings/widgets/editablelabel.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int RoomBesideTextPx = 10;

} // namespace

EditableLabel::EditableLabel(QWidget *parent)
    : QLineEdit(parent)
{
    setFocusPolicy(Qt::ClickFocus);
    // Frame, padding and the cursor have to fit into the room beside the text.
    setStyleSheet(u"EditableLabel { padding: 4px 1px; } EditableLabel:focus { padding: 3px 0px; }"_s);
    connect(this, &QLineEdit::textEdited, this, &EditableLabel::resizeByContents);
}

QSize EditableLabel::sizeHint() const
{
    const int least = m_leastWidth >= 0 ? m_leastWidth : minimumWidth();
    const QMargins margins = textMargins();
    const int textWidth = fontMetrics().boundingRect(text()).width() + margins.left() + margins.right();
    return {qMax(least, textWidth + RoomBesideTextPx), QLineEdit::sizeHint().height()};
}

QSize EditableLabel::minimumSizeHint() const
{
    return sizeHint();
}

void EditableLabel::resizeByContents()
{
    if (m_leastWidth < 0)
        m_leastWidth = minimumWidth();
    setFixedWidth(sizeHint().width());
    if (parentWidget())
        parentWidget()->adjustSize();
}
