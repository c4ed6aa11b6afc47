#include "framework/common/widgets/newversionmenuaction.h"

#include "framework/common/widgets/newversionchecker.h"

#include <QWidget>

using namespace Qt::StringLiterals;

NewVersionMenuAction::NewVersionMenuAction(const QString &preliminaryText, QWidget *parent)
    : QAction(parent)
{
    auto *checker = new NewVersionChecker(preliminaryText, this);
    setText(u"hello"_s); // until there is a version to name
    setVisible(false);
    connect(checker, &NewVersionChecker::onSetText, this, &QAction::setText);
    connect(checker, &NewVersionChecker::onSetTooltip, this, &QAction::setToolTip);
    connect(checker, &NewVersionChecker::onSetVisible, this, &QAction::setVisible);
    connect(this, &QAction::triggered, checker, &NewVersionChecker::action);
    checker->update();
}
