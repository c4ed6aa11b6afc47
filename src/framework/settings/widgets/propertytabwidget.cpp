#include "framework/settings/widgets/propertytabwidget.h"

#include "framework/settings/widgets/propertylistcontrol.h"
#include "framework/settings/widgets/propertytext.h"

#include "framework/settings/abstractsettings.h"

#include <QGridLayout>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int PaddingPx = 8;

} // namespace

PropertyTabWidget::PropertyTabWidget(AbstractSettings *settings, QWidget *parent)
    : BasePropertyListWidget(parent)
    , m_tabs(new QTabWidget)
{
    m_tabs->setStyleSheet(
        u"QTabBar::tab:disabled {width: 0px; color: transparent; background: transparent;}"_s);
    rootLayout()->addWidget(m_tabs, 0, 0);
    if (!settings)
        return;
    buildIndex(*settings->metaDescriptor());
    for (const QString &category : index().categories())
        addTab(settings, category);
}

void PropertyTabWidget::addTab(AbstractSettings *settings, const QString &category)
{
    auto *form = new PropertyListControl(settings, category, PropertyListControl::ViewMode_Category);
    form->setManageCategoryVisibility(true);
    form->setPadding(PaddingPx);
    const QString title = PropertyText::translated(category.isEmpty() ? u"Other"_s : category);
    m_tabs->tabBar()->setTabData(m_tabs->addTab(form, title), category);
    const auto showTab = [this, form](int visibleProperties) {
        m_tabs->setTabVisible(m_tabs->indexOf(form), visibleProperties != 0);
    };
    connections() << connect(form, &PropertyListControl::propertyVisibilityChanged, this, showTab);
    showTab(form->visibleProperties());
}

PropertyListControl *PropertyTabWidget::formAt(int tab) const
{
    return qobject_cast<PropertyListControl *>(m_tabs->widget(tab));
}

void PropertyTabWidget::addWidgetToLayout(int tab, QWidget *widget, int row, int column, int rowSpan,
                                          int columnSpan, Qt::Alignment alignment)
{
    if (PropertyListControl *form = formAt(tab))
        form->addWidgetToLayout(widget, row, column, rowSpan, columnSpan, alignment);
}

void PropertyTabWidget::moveTab(const QString &category, int to, bool select)
{
    QTabBar *bar = m_tabs->tabBar();
    for (int i = 0; i < bar->count(); ++i) {
        if (bar->tabData(i).toString() != category)
            continue;
        if (i != to && to >= 0 && to < bar->count())
            bar->moveTab(i, to);
        else
            to = i;
        if (select)
            m_tabs->setCurrentIndex(to);
        return;
    }
}

void PropertyTabWidget::setPadding(int padding)
{
    for (int i = 0; i < tabCount(); ++i)
        formAt(i)->setPadding(padding);
}

int PropertyTabWidget::tabCount() const
{
    return m_tabs->count();
}
