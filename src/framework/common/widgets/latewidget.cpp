#include "framework/common/widgets/latewidget.h"

void LateWidget::setVisible(bool visible)
{
    if (visible && !m_laidOut) {
        m_laidOut = true;
        layOut();
    }
    QWidget::setVisible(visible);
}
