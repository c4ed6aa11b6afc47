#include "framework/settings/widgets/enumstringlistpropertyview.h"

#include "framework/settings/widgets/propertytext.h"

#include "framework/common/widgets/listcombobox.h"
#include "framework/settings/abstractmetadescription.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;

EnumStringListPropertyView::EnumStringListPropertyView(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyView(description, parent)
{
    if (description->enums.isEmpty())
        return;
    m_box = new ListComboBox(this);
    for (qsizetype i = 0; i < description->enums.size(); ++i)
        m_box->addItem(PropertyText::translated(description->enums.at(i)), static_cast<int>(i));
    setEditor(m_box);
    connect(m_box, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (isText())
            write(m_box->currentText());
        else
            write(index);
    });
    EnumStringListPropertyView::metaValueChanged(description->getValue());
}

bool EnumStringListPropertyView::isText() const
{
    return description() && description()->type == "QString"_L1;
}

void EnumStringListPropertyView::metaValueChanged(const QVariant &value)
{
    if (isText()) {
        if (m_box) {
            const QSignalBlocker blocker(m_box);
            m_box->setCurrentIndex(m_box->findText(value.toString()));
        }
        setDefaultButtonChecked(value.toString() == description()->defaultText);
        return;
    }
    bool ok = false;
    int index = value.toInt(&ok);
    if (!ok || index < -1 || index > description()->enums.size())
        index = -1;
    if (m_box) {
        const QSignalBlocker blocker(m_box);
        m_box->setCurrentIndex(index);
    }
    setDefaultButtonChecked(index == description()->defaultText.toInt());
}
