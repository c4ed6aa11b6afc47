#include "framework/settings/widgets/datepropertyview.h"

#include "framework/settings/abstractmetadescription.h"

#include <QDateEdit>
#include <QSignalBlocker>

DatePropertyView::DatePropertyView(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyView(description, parent)
    , m_edit(new QDateEdit(this))
{
    m_edit->setCalendarPopup(true);
    setEditor(m_edit);
    connect(m_edit, &QDateTimeEdit::dateChanged, this, [this](QDate date) { write(date); });
    DatePropertyView::metaValueChanged(description->getValue());
}

void DatePropertyView::metaValueChanged(const QVariant &value)
{
    if (m_edit && m_edit->date() != value.toDate()) {
        const QSignalBlocker blocker(m_edit);
        m_edit->setDate(value.toDate());
    }
    // Nothing is compared here, so a click must not leave the button down.
    setDefaultButtonChecked(true);
}
