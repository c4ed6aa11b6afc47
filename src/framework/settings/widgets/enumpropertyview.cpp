#include "framework/settings/widgets/enumpropertyview.h"

#include "framework/settings/abstractmetadescription.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QListView>
#include <QSignalBlocker>

EnumPropertyView::EnumPropertyView(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyView(description, parent)
    , m_box(new QComboBox(this))
{
    m_box->setView(new QListView(m_box)); // a style sheet reaches the items of this one only
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
