#include "framework/settings/widgets/boolpropertyview.h"

#include "framework/settings/abstractmetadescription.h"

#include <QCheckBox>
#include <QSignalBlocker>

BoolPropertyView::BoolPropertyView(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyView(description, parent)
    , m_box(new QCheckBox)
{
    setEditor(m_box);
    connect(m_box, &QCheckBox::toggled, this, [this](bool on) { write(on); });
    BoolPropertyView::metaValueChanged(description->getValue());
}

void BoolPropertyView::metaValueChanged(const QVariant &value)
{
    if (m_box) {
        const QSignalBlocker blocker(m_box);
        m_box->setChecked(value.toBool());
    }
    setDefaultButtonChecked(value.toString() == description()->defaultText);
}
