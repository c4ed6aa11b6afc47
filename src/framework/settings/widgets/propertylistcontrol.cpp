#include "framework/settings/widgets/propertylistcontrol.h"

#include "framework/settings/widgets/basepropertyview.h"
#include "framework/settings/widgets/propertytext.h"
#include "framework/settings/widgets/visibilityrule.h"

#include "framework/common/widgets/uihelper.h"
#include "framework/settings/abstractsettings.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int GridSpacingPx = 4;
constexpr int StretchingColumn = 2;
constexpr int Stretch = 100;
constexpr int CategoryTopMarginPx = 10;
constexpr int NoMaximumWidthPx = 16777200;
constexpr QSize LeastScrollArea(30, 20);

} // namespace

PropertyListControl::PropertyListControl(AbstractSettings *settings, const QString &filter, ViewMode mode,
                                         QWidget *parent)
    : BasePropertyListWidget(parent)
    , m_mode(mode)
{
    createInner();
    AbstractMetaDescriptor *descriptor = settings ? settings->metaDescriptor() : nullptr;
    if (descriptor)
        buildIndex(*descriptor);
    if (mode == ViewMode_Property) {
        addPropertyToLayout(descriptor ? descriptor->propertyByName(filter) : nullptr, m_grid);
        m_grid->setSpacing(0);
    } else if (mode == ViewMode_Category) {
        addCategory(filter);
    } else {
        for (const QString &category : index().categories()) {
            if (index().categories().size() > 1)
                addCategoryCaption(category);
            addCategory(category);
        }
    }
    m_grid->setRowStretch(m_grid->rowCount(), Stretch);
    reorderTabOrder();
}

PropertyListControl::PropertyListControl(AbstractMetaDescription *description, QWidget *parent)
    : BasePropertyListWidget(parent)
    , m_mode(ViewMode_Property)
{
    UIHelper::ChangeBackground(this, Qt::transparent);
    createInner();
    addPropertyToLayout(description, m_grid);
    m_grid->setSpacing(0);
    m_grid->setRowStretch(m_grid->rowCount(), Stretch);
}

void PropertyListControl::createInner()
{
    m_inner = new QWidget(this);
    m_grid = new QGridLayout(m_inner);
    UIHelper::SetGridMargins(m_grid, 0, GridSpacingPx, GridSpacingPx);
    m_grid->setColumnStretch(StretchingColumn, Stretch);
    placeInner();
}

// Before there are rows: what is moved with all its children takes on the style sheet anew.
void PropertyListControl::placeInner()
{
    if (m_mode == ViewMode_All || m_mode == ViewMode_Category) {
        placeInnerInScrollArea();
        return;
    }
    rootLayout()->addWidget(m_inner, 0, 0);
    rootLayout()->setRowStretch(0, Stretch);
    rootLayout()->setColumnStretch(0, Stretch);
}

void PropertyListControl::placeInnerInScrollArea()
{
    auto *area = new QScrollArea;
    area->setMinimumSize(LeastScrollArea);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus); // it follows the focus of its editors
    UIHelper::ChangeBackground(area, Qt::transparent);
    area->setStyleSheet(u"QScrollArea { background: transparent; border: 0; } "
                        "QScrollArea > QWidget > QWidget { background: transparent; }  "
                        "QScrollArea > QWidget > QScrollBar { background: palette(base)}"_s);
    // That colour is the platform's, which no theme changes: it would be a white bar in the dark.
    for (QScrollBar *bar : {area->verticalScrollBar(), area->horizontalScrollBar()})
        bar->setStyleSheet(u"QScrollBar { background: transparent; }"_s);
    area->setWidget(m_inner);
    rootLayout()->addWidget(area, 0, 0);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PropertyListControl::addCategory(const QString &category)
{
    const QList<AbstractMetaDescription *> descriptions = index().descriptions(category);
    for (AbstractMetaDescription *description : descriptions) {
        addPropertyToLayout(description, m_grid);
        if (description->visibleBound.isEmpty())
            ++m_unconditionalRows;
        else
            bindVisibility(description);
    }
}

void PropertyListControl::addCategoryCaption(const QString &category)
{
    auto *caption = new QLabel(PropertyText::translated(category.isEmpty() ? u"Other"_s : category));
    caption->setTextFormat(Qt::PlainText);
    caption->setObjectName(u"propertyCategoryLabel"_s);
    caption->setStyleSheet(u"font-weight: bold"_s);
    caption->setContentsMargins(0, CategoryTopMarginPx, 0, 0);
    const int row = qMax(m_grid->rowCount(), 1);
    m_grid->addWidget(caption, row, 0);
    m_categoryRows.insert(category, row);
}

void PropertyListControl::bindVisibility(AbstractMetaDescription *description)
{
    const auto evaluate = [this, description] { updateVisibility(description); };
    const QStringList names = description->visibleBound.keys();
    for (const QString &name : names) {
        if (const AbstractMetaDescription *bound = index().description(name))
            connections() << connect(bound, &AbstractMetaDescription::valueChanged, this, evaluate);
    }
    if (m_mode == ViewMode_Category) {
        connections() << connect(this, &PropertyListControl::manageCategoryVisibilityChanged, this, evaluate);
    }
    updateVisibility(description);
}

bool PropertyListControl::checkVisibility(const QString &name, const QString &condition) const
{
    AbstractMetaDescription *bound = index().description(name);
    return VisibilityRule::holds(bound ? bound->getValue().toString() : QString(), condition);
}

bool PropertyListControl::isVisibleByConditions(const AbstractMetaDescription &description) const
{
    for (auto it = description.visibleBound.begin(); it != description.visibleBound.end(); ++it) {
        if (!checkVisibility(it.key(), it.value()))
            return false;
    }
    return true;
}

void PropertyListControl::updateVisibility(AbstractMetaDescription *description)
{
    const bool isOneCategory = m_mode == ViewMode_Category;
    if (isOneCategory && !m_manageCategoryVisibility)
        return;
    description->visible = isVisibleByConditions(*description);
    showItems({description->name}, description->visible);
    if (isOneCategory) {
        m_visibleRows = countVisible(description->category);
        updateGeometry();
        emit propertyVisibilityChanged(visibleProperties());
        reorderTabOrder();
    } else if (m_categoryRows.contains(description->category)) {
        const int row = m_categoryRows.value(description->category);
        if (const QLayoutItem *caption = m_grid->itemAtPosition(row, 0))
            caption->widget()->setVisible(countVisible(description->category) > 0);
    }
}

int PropertyListControl::countVisible(const QString &category) const
{
    const QList<AbstractMetaDescription *> descriptions = index().descriptions(category);
    return static_cast<int>(
        std::count_if(descriptions.begin(), descriptions.end(),
                      [](const AbstractMetaDescription *description) { return description->visible; }));
}

void PropertyListControl::setManageCategoryVisibility(bool manage)
{
    if (m_manageCategoryVisibility == manage)
        return;
    m_manageCategoryVisibility = manage;
    emit manageCategoryVisibilityChanged();
}

int PropertyListControl::visibleProperties() const
{
    return m_visibleRows + m_unconditionalRows;
}

void PropertyListControl::addWidgetToFirstRow(QWidget *widget, int column, Qt::Alignment alignment)
{
    m_grid->addWidget(widget, 0, column, alignment);
}

void PropertyListControl::addLayoutToFirstRow(QLayout *layout, int column, Qt::Alignment alignment)
{
    m_grid->addLayout(layout, 0, column, alignment);
}

void PropertyListControl::addWidgetToLastRow(QWidget *widget, int column, Qt::Alignment alignment)
{
    m_grid->addWidget(widget, m_grid->rowCount(), column, alignment);
}

void PropertyListControl::addLayoutToLastRow(QLayout *layout, int column, Qt::Alignment alignment)
{
    m_grid->addLayout(layout, m_grid->rowCount(), column, alignment);
}

void PropertyListControl::addWidgetToLayout(QWidget *widget, int row, int column, int rowSpan, int columnSpan,
                                            Qt::Alignment alignment)
{
    m_grid->addWidget(widget, row < 0 ? m_grid->rowCount() - 1 : row, column, rowSpan, columnSpan, alignment);
}

void PropertyListControl::addLayoutToLayout(QLayout *layout, int row, int column, int rowSpan, int columnSpan,
                                            Qt::Alignment alignment)
{
    m_grid->addLayout(layout, row < 0 ? m_grid->rowCount() - 1 : row, column, rowSpan, columnSpan, alignment);
}

void PropertyListControl::setPadding(int padding)
{
    setPadding(padding, padding, padding, padding);
}

void PropertyListControl::setPadding(int left, int top, int right, int bottom)
{
    m_grid->setContentsMargins(left, top, right, bottom);
}

int PropertyListControl::getHeaderColumnWidth() const
{
    int widest = 0;
    for (int row = 0; row < m_grid->rowCount(); ++row) {
        if (const QLayoutItem *item = m_grid->itemAtPosition(row, 0))
            widest = qMax(widest, item->sizeHint().width());
    }
    return widest;
}

void PropertyListControl::setMaximumHeaderColumnWidth(int width)
{
    for (const PropertyWidgetInfo &info : infos()) {
        if (info.caption)
            info.caption->setMaximumWidth(width < 0 ? NoMaximumWidthPx : width);
    }
}

void PropertyListControl::setMinimumEditorWidth(int width)
{
    for (const PropertyWidgetInfo &info : infos())
        info.editor->setMinimumWidth(width);
}

bool PropertyListControl::showHeader(const QString &name, bool show)
{
    const PropertyWidgetInfo info = getWidgetInfo(name);
    if (info.caption)
        info.caption->setVisible(show);
    return !info.name.isEmpty();
}

bool PropertyListControl::substituteEditor(const QString &name, QWidget *editor)
{
    const PropertyWidgetInfo info = getWidgetInfo(name);
    if (info.name.isEmpty())
        return false;
    info.editor->substituteEditor(editor);
    return true;
}

bool PropertyListControl::substituteHeader(const QString &name, QWidget *header, Qt::Alignment alignment)
{
    PropertyWidgetInfo *info = findInfo(name);
    if (!info)
        return false;
    UIHelper::Delete(info->caption);
    info->caption = header;
    if (header)
        m_grid->addWidget(header, info->row, 0, alignment);
    return true;
}

QSize PropertyListControl::sizeHint() const
{
    const QMargins margins = contentsMargins();
    return m_grid->sizeHint() + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}
