#include "framework/common/widgets/newversionbutton.h"

#include "framework/common/widgets/cursorhelper.h"
#include "framework/common/widgets/newversionchecker.h"

#include <QGridLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr auto DefaultStyle =
    "QPushButton { color: #000; background: #0BE; text-decoration: none; border-radius: 4px; "
    "padding: 4px 8px; } QPushButton:hover { background: #09C; }"_L1;

} // namespace

NewVersionButton::NewVersionButton(const QString &preliminaryText, const QString &style, QWidget *parent)
    : QWidget(parent)
    , m_button(new QPushButton(preliminaryText))
    , m_checker(new NewVersionChecker(preliminaryText, this))
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_button, 0, 0);
    m_button->hide();
    CursorHelper::setCursor(m_button, Qt::PointingHandCursor);
    setButtonStyle(style);
    connect(m_checker, &NewVersionChecker::onSetText, m_button, &QPushButton::setText);
    connect(m_checker, &NewVersionChecker::onSetTooltip, m_button, &QPushButton::setToolTip);
    connect(m_checker, &NewVersionChecker::onSetVisible, this, &NewVersionButton::setHasNewVersion);
    connect(m_button, &QPushButton::clicked, m_checker, &NewVersionChecker::action);
    m_checker->update();
}

void NewVersionButton::setButtonStyle(const QString &style)
{
    m_button->setStyleSheet(style.isEmpty() ? DefaultStyle : style);
}

void NewVersionButton::setPreliminaryText(const QString &text)
{
    m_checker->setPreliminaryText(text);
}

void NewVersionButton::setHasNewVersion(bool hasNewVersion)
{
    m_button->setVisible(hasNewVersion);
    emit onHasNewVersionChanged(hasNewVersion);
}
