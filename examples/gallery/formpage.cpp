#include "gallery/formpage.h"

#include "framework/settings/widgets/propertylistcontrol.h"
#include "framework/settings/widgets/propertytabwidget.h"

#include <QHBoxLayout>

FormPage::FormPage(AbstractSettings *settings, QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(new PropertyListControl(settings, {}, PropertyListControl::ViewMode_All), 1);
    layout->addWidget(new PropertyTabWidget(settings), 1);
}
