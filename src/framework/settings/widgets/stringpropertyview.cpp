#include "framework/settings/widgets/stringpropertyview.h"

#include "framework/settings/widgets/editablelabel.h"
#include "framework/settings/widgets/propertytext.h"

#include "framework/settings/abstractmetadescription.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr int LeastWidthPx = 50;
constexpr int EditorStretch = 100;

} // namespace

StringPropertyView::StringPropertyView(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyView(description, parent)
    , m_line(new EditableLabel)
{
    m_line->setPlaceholderText(PropertyText::translated(description->extras.value(u"Placeholder"_s)));
    m_line->setMinimumWidth(LeastWidthPx);
    setEditor(m_line, EditorStretch);
    setDefaultButtonStretch(0);
    connect(m_line, &QLineEdit::textChanged, this,
            [this] { writeQueued([this] { return m_line ? QVariant(m_line->text()) : QVariant(); }); });
    StringPropertyView::metaValueChanged(description->getValue());
}

void StringPropertyView::metaValueChanged(const QVariant &value)
{
    if (m_line && m_line->text() != value.toString()) {
        const QSignalBlocker blocker(m_line);
        m_line->setText(value.toString());
        m_line->resizeByContents();
    }
    setDefaultButtonChecked(value.toString() == description()->defaultText);
}
