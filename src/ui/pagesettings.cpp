#include "ui/pagesettings.h"

#include "core/spinbarmodel.h"
#include "core/spinbarsettings.h"
#include "framework/common/widgets/cursorhelper.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/settings/widgets/propertylistcontrol.h"
#include "scripts/widgets/speedscripteditor.h"

#include <QCoreApplication>
#include <QDialog>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 16;
constexpr int ButtonHeight = 32;
constexpr QSize IconSize{24, 24};

} // namespace

PageSettings::PageSettings(QWidget *parent)
    : LateWidget(parent)
{
    setContentsMargins({});
}

void PageSettings::layOut()
{
    auto *button = new QPushButton(QCoreApplication::translate("Generic", "Script editor"));
    StyleHelper::SetButtonIcon(button, u":/icons/edit.svg"_s, u"#FFF"_s);
    CursorHelper::setCursor(button, Qt::PointingHandCursor);
    button->setFixedHeight(ButtonHeight);
    button->setIconSize(IconSize);
    connect(button, &QPushButton::clicked, this, &PageSettings::openScriptEditor);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->addWidget(button, 0, Qt::AlignLeft);
    column->addWidget(new PropertyListControl(SpinbarModel::instance()->settings(), {},
                                              PropertyListControl::ViewMode_All, this));
}

void PageSettings::openScriptEditor()
{
    QDialog dialog(this);
    dialog.setWindowTitle(QCoreApplication::translate("Generic", "Script editor"));
    dialog.setContentsMargins({});
    auto *layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins({});
    layout->addWidget(new SpeedScriptEditor(*SpinbarModel::instance(), nullptr));
    dialog.exec();
}
