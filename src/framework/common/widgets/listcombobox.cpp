#include "framework/common/widgets/listcombobox.h"

#include <QEvent>
#include <QListView>

void ListComboBox::showPopup()
{
    if (!m_hasListView) {
        m_hasListView = true;
        setView(new QListView(this));
    }
    QComboBox::showPopup();
}

QSize ListComboBox::sizeHint() const
{
    m_isMeasured = true;
    return QComboBox::sizeHint();
}

QSize ListComboBox::minimumSizeHint() const
{
    m_isMeasured = true;
    return QComboBox::minimumSizeHint();
}

void ListComboBox::changeEvent(QEvent *event)
{
    // QComboBox makes a view to lay it out anew. Before the box is first measured there is nothing to renew.
    const bool changesLook = event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    if (m_isMeasured || !changesLook) {
        QComboBox::changeEvent(event);
        return;
    }
    update();
    updateGeometry();
}
