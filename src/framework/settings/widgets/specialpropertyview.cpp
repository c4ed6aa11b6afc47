#include "framework/settings/widgets/specialpropertyview.h"

#include "framework/settings/widgets/propertytext.h"

#include "framework/common/apphelper.h"
#include "framework/common/widgets/cursorhelper.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/settings/abstractmetadescription.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr int LargestButtonPx = 30;
constexpr int EditorStretch = 100;
constexpr int PreferredWidthPx = 480; // paths are long

} // namespace

SpecialPropertyView::SpecialPropertyView(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyView(description, parent)
    , m_line(new QLineEdit)
{
    auto *button = new QPushButton;
    button->setMaximumSize(LargestButtonPx, LargestButtonPx);
    CursorHelper::setCursor(button, Qt::PointingHandCursor);
    // White would not be seen on the light theme's button.
    StyleHelper::SetButtonIcon(button, AppHelper::findInResources(u"folder.svg"_s), u"#FFF"_s);

    auto *both = new QWidget;
    auto *layout = new QHBoxLayout(both);
    layout->setContentsMargins({});
    layout->addWidget(button);
    layout->addWidget(m_line);
    both->setFocusProxy(button);
    nameControl(button, tr("Open"));
    nameControl(m_line);
    setEditor(both, EditorStretch);
    setDefaultButtonStretch(0);
    connect(button, &QPushButton::clicked, this, &SpecialPropertyView::pick);
    connect(m_line, &QLineEdit::textChanged, this,
            [this] { writeQueued([this] { return m_line ? QVariant(m_line->text()) : QVariant(); }); });
    SpecialPropertyView::metaValueChanged(description->getValue());
}

QSize SpecialPropertyView::sizeHint() const
{
    return BasePropertyView::sizeHint().expandedTo({PreferredWidthPx, 0});
}

QString SpecialPropertyView::filterFor(const QString &extensions)
{
    if (extensions == "Image"_L1) {
        return AppHelper::getFileFilterString(PropertyText::translated(u"Image"_s),
                                              {u"jpg"_s, u"png"_s, u"jpeg"_s, u"bmp"_s});
    }
    if (extensions == "Video"_L1) {
        return AppHelper::getFileFilterString(PropertyText::translated(u"Video"_s),
                                              {u"avi"_s, u"mpg"_s, u"mpeg"_s, u"mp4"_s, u"mkv"_s});
    }
    if (extensions.isEmpty() || extensions == "*.*"_L1)
        return tr("Любой файл") + "(*.*)"_L1;
    return '('_L1 + extensions + ')'_L1;
}

void SpecialPropertyView::pick()
{
    if (!description())
        return;
    const QString path = description()->getValue().toString();
    // The form may be gone by the time that the dialog is closed.
    const QPointer<SpecialPropertyView> self(this);
    QString picked;
    if (description()->pickOption == "PickFolder"_L1) {
        const QString start = !path.isEmpty() && QDir(path).exists() ? path : QString();
        picked = QFileDialog::getExistingDirectory(this, tr("Open"), start, QFileDialog::ShowDirsOnly);
    } else {
        const QFileInfo file(path);
        const QString start = file.isFile() ? file.absolutePath() : QString();
        picked = QFileDialog::getOpenFileName(nullptr, tr("Open"), start,
                                              filterFor(description()->pickExtensions));
    }
    if (self && !picked.isEmpty())
        write(picked);
}

void SpecialPropertyView::metaValueChanged(const QVariant &value)
{
    if (m_line && m_line->text() != value.toString()) {
        const QSignalBlocker blocker(m_line);
        m_line->setText(value.toString());
    }
    setDefaultButtonChecked(value.toString() == description()->defaultText);
}
