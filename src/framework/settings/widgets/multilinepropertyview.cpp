#include "framework/settings/widgets/multilinepropertyview.h"

#include "framework/settings/widgets/propertytext.h"

#include "framework/settings/abstractmetadescription.h"

#include <QPlainTextEdit>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr int EditorStretch = 100;
constexpr int PreferredWidthPx = 480;

} // namespace

MultilinePropertyView::MultilinePropertyView(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyView(description, parent)
    , m_edit(new QPlainTextEdit)
{
    m_edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_edit->setTabChangesFocus(true); // the keyboard must find the way out again
    m_edit->setPlaceholderText(PropertyText::translated(description->extras.value(u"Placeholder"_s)));
    // Else the least height of a one-line field holds for it too.
    m_edit->setStyleSheet(u"QPlainTextEdit { min-height: 76px; }"_s);
    setEditor(m_edit, EditorStretch);
    setDefaultButtonStretch(0);
    connect(m_edit, &QPlainTextEdit::textChanged, this, [this] {
        writeQueued([this] { return m_edit ? QVariant(m_edit->toPlainText()) : QVariant(); });
    });
    MultilinePropertyView::metaValueChanged(description->getValue());
}

QSize MultilinePropertyView::sizeHint() const
{
    return BasePropertyView::sizeHint().expandedTo({PreferredWidthPx, 0});
}

void MultilinePropertyView::metaValueChanged(const QVariant &value)
{
    if (m_edit && m_edit->toPlainText() != value.toString()) {
        const QSignalBlocker blocker(m_edit);
        m_edit->setPlainText(value.toString());
    }
    // Nothing is compared here, so a click must not leave the button down.
    setDefaultButtonChecked(true);
}
