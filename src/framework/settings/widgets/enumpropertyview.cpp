#include "framework/settings/widgets/enumpropertyview.h"

#include "framework/common/widgets/listcombobox.h"
#include "framework/settings/abstractmetadescription.h"

#include <QCoreApplication>
#include <QSignalBlocker>

EnumPropertyView::EnumPropertyView(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyView(description, parent)
    , m_box(new ListComboBox(this))
{
    const QMetaEnum enumeration = description->enumerator();
    for (int i = 0; i < enumeration.keyCount(); ++i)
        m_box->addItem(QCoreApplication::translate(enumeration.name(), enumeration.key(i)),
                       enumeration.value(i));
    setEditor(m_box);
    connect(m_box, &QComboBox::currentIndexChanged, this, [this, enumeration](int index) {
        if (index >= 0 && index < enumeration.keyCount())
            write(enumeration.value(index));
    });
    EnumPropertyView::metaValueChanged(description->getValue());
}

void EnumPropertyView::metaValueChanged(const QVariant &value)
{
    if (m_box) {
        const QSignalBlocker blocker(m_box);
        m_box->setCurrentIndex(m_box->findData(value.toInt()));
    }
    const QByteArray key = description()->defaultText.toUtf8();
    setDefaultButtonChecked(value.toInt() == description()->enumerator().keyToValue(key.constData()));
}
