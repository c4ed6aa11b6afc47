#include "framework/settings/widgets/propertylistcontrol.h"

#include "framework/settings/widgets/boolpropertyview.h"
#include "framework/settings/widgets/colorpropertyview.h"
#include "framework/settings/widgets/datepropertyview.h"
#include "framework/settings/widgets/doublepropertyview.h"
#include "framework/settings/widgets/dualdoublespinbox.h"
#include "framework/settings/widgets/editorchoice.h"
#include "framework/settings/widgets/enumpropertyview.h"
#include "framework/settings/widgets/enumstringlistpropertyview.h"
#include "framework/settings/widgets/intpropertyview.h"
#include "framework/settings/widgets/multilinepropertyview.h"
#include "framework/settings/widgets/propertytext.h"
#include "framework/settings/widgets/sliderpropertyview.h"
#include "framework/settings/widgets/specialpropertyview.h"
#include "framework/settings/widgets/stringpropertyview.h"

#include "framework/common/apphelper.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/settings/abstractmetadescription.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int CaptionIconPx = 16;
constexpr int CaptionStretch = 100;
constexpr int EditorRightMarginPx = 5;

QString toolTipOf(const AbstractMetaDescription &description)
{
    return PropertyText::translated(description.extras.value(u"Description"_s));
}

} // namespace

int PropertyListControl::addPropertyToLayout(AbstractMetaDescription *description, QGridLayout *grid)
{
    if (!description)
        return -1;
    int columnSpan = 1;
    QWidget *caption = createCaption(*description);
    BasePropertyView *editor = getPropertyView(description, columnSpan, grid->parentWidget());
    editor->setContentsMargins(0, 0, EditorRightMarginPx, 0);
    if (const QString tip = toolTipOf(*description); !tip.isEmpty())
        editor->setToolTip(tip);
    if (description->readOnly)
        editor->setEnabled(false);
    const int row = grid->rowCount();
    grid->addWidget(caption, row, 0);
    grid->addWidget(editor, row, 1, 1, columnSpan, Qt::AlignLeft);
    addInfo({description->name, caption, editor, row});
    return row;
}

QWidget *PropertyListControl::createCaption(const AbstractMetaDescription &description)
{
    auto *label = new QLabel(PropertyText::translated(description.displayName));
    label->setTextFormat(Qt::PlainText);
    label->setObjectName(u"propertyHeaderLabel"_s);
    label->setMargin(0);
    label->setContentsMargins({});
    if (const QString tip = toolTipOf(description); !tip.isEmpty())
        label->setToolTip(tip);
    if (description.icon.isEmpty())
        return label;

    auto *icon = new QLabel;
    icon->setFixedSize(CaptionIconPx, CaptionIconPx);
    StyleHelper::SetLabelIcon(icon, AppHelper::findInResources(description.icon), u"#FFF"_s);
    auto *caption = new QWidget;
    auto *layout = new QHBoxLayout(caption);
    layout->setContentsMargins({});
    layout->addWidget(icon);
    layout->addWidget(label, CaptionStretch, Qt::AlignLeft);
    return caption;
}

BasePropertyView *PropertyListControl::getPropertyView(AbstractMetaDescription *description, int &columnSpan,
                                                       QWidget *parent)
{
    using Kind = EditorChoice::Kind;
    const EditorChoice choice = EditorChoice::of(*description);
    columnSpan = choice.columnSpan;
    switch (choice.kind) {
    case Kind::Special:
        return new SpecialPropertyView(description, parent);
    case Kind::Multiline:
        return new MultilinePropertyView(description, parent);
    case Kind::Slider:
        return new SliderPropertyView(description, parent);
    case Kind::EnumStringList:
        return new EnumStringListPropertyView(description, parent);
    case Kind::Range:
        return new DualDoubleSpinBox(description, DualDoubleSpinBox::DualMode_Range, parent);
    case Kind::Enum:
        return new EnumPropertyView(description, parent);
    case Kind::Point:
        return new DualDoubleSpinBox(description, DualDoubleSpinBox::DualMode_Point, parent);
    case Kind::PointF:
        return new DualDoubleSpinBox(description, DualDoubleSpinBox::DualMode_PointF, parent);
    case Kind::Bool:
        return new BoolPropertyView(description, parent);
    case Kind::Int:
        return new IntPropertyView(description, parent);
    case Kind::Date:
        return new DatePropertyView(description, parent);
    case Kind::Double:
        return new DoublePropertyView(description, parent);
    case Kind::Color:
        return new ColorPropertyView(description, parent);
    case Kind::String:
        break;
    }
    return new StringPropertyView(description, parent);
}
