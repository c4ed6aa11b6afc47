#include "ui/mainwindow.h"

#include "ui/languagequestion.h"
#include "ui/pageabout.h"
#include "ui/pagedatabase.h"
#include "ui/pagedevice.h"
#include "ui/pagesettings.h"
#include "ui/spinbarcontroller.h"

#include "core/spinbarmodel.h"
#include "core/spinbarsettings.h"
#include "framework/common/apphelper.h"
#include "framework/common/widgets/apphelperdialogs.h"
#include "framework/common/widgets/nellipse.h"
#include "framework/common/widgets/newversionbutton.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/settings/languagecontext.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMetaEnum>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize MinimumSize{900, 600};
constexpr int HeaderMargin = 16;
constexpr QMargins PageButtonMargins{12, 4, 2, 6};
constexpr QSize PageButtonExcess{24, 8};
constexpr int DotSize = 8;
constexpr int Filling = 100;
constexpr QRgb RecordingColor = 0xFFCC3300;
constexpr QRgb RecordedColor = 0xFF33CC00;

} // namespace

MainWindow::MainWindow(SpinbarModel *model, QWidget *parent)
    : QMainWindow(parent)
    , m_model(model)
{
    setWindowTitle(QCoreApplication::translate("Generic", "Spinbar") + ' '_L1 + AppHelper::appVersion(true));
    // From the window downwards: what is moved with all its children takes on the style sheet anew.
    auto *central = new QWidget(this);
    setCentralWidget(central);
    auto *header = new QWidget(central);
    StyleHelper::Instance()->setStyledBackground(header, u"--n-sub-bg"_s, Qt::transparent);
    header->setContentsMargins(0, 0, 0, 0);
    auto *headerLayout = new QHBoxLayout(header);
    headerLayout->setContentsMargins(HeaderMargin, HeaderMargin, HeaderMargin, HeaderMargin);

    central->setContentsMargins(0, 0, 0, 0);
    auto *layout = new QVBoxLayout(central);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    m_stack = new QStackedWidget(central);
    layout->addWidget(header, 0);
    layout->addWidget(m_stack, Filling);
    createPages(headerLayout);
    headerLayout->addStretch(Filling);
    headerLayout->addWidget(
        new NewVersionButton(QCoreApplication::translate("Generic", "New version") + ' '_L1, {}, nullptr), 0,
        Qt::AlignRight);
    connectModel();
    setMinimumSize(MinimumSize);
}

void MainWindow::createPages(QHBoxLayout *header)
{
    auto *device = new PageDevice(m_stack);
    auto *settings = new PageSettings(m_stack);
    m_database = new PageDatabase(m_stack);
    auto *about = new PageAbout(m_stack);
    m_deviceIndicator = addPage(header, device, tr("Устройство"), QColor::fromRgb(RecordingColor));
    m_recordsIndicator = addPage(header, m_database, tr("Записи"), QColor::fromRgb(RecordedColor));
    addPage(header, settings, tr("Настройки"));
    addPage(header, about, tr("О программе"));
    openPage(device, m_pageButtons.constFirst());
}

NEllipse *MainWindow::addPage(QHBoxLayout *header, QWidget *page, const QString &title,
                              const QColor &dotColor)
{
    auto *button = new QPushButton(header->parentWidget());
    auto *layout = new QHBoxLayout(button);
    layout->setSpacing(0);
    layout->setContentsMargins(PageButtonMargins);
    auto *label = new QLabel(title, button);
    layout->addWidget(label);
    button->setAccessibleName(title);
    button->setCursor(Qt::PointingHandCursor);
    button->setFlat(true);
    button->setCheckable(true);
    button->setStyleSheet(u"padding: 0"_s);
    header->addWidget(button);
    button->setFixedSize(label->sizeHint() + PageButtonExcess);
    m_stack->addWidget(page);
    NEllipse *dot = nullptr;
    if (dotColor.isValid()) {
        dot = new NEllipse(dotColor, Qt::transparent, 0, DotSize, DotSize);
        dot->setFixedSize(DotSize, DotSize);
        layout->addWidget(dot, 0, Qt::AlignTop);
        dot->hide();
    }
    connect(button, &QPushButton::clicked, this, [this, page, button] { openPage(page, button); });
    // Assistive programs toggle a checkable button; they have no click for it.
    connect(button, &QPushButton::toggled, this, [this, page, button](bool checked) {
        if (checked != (m_stack->currentWidget() == page))
            openPage(page, button);
    });
    m_pageButtons += button;
    return dot;
}

void MainWindow::openPage(QWidget *page, const QPushButton *button)
{
    m_stack->setCurrentWidget(page);
    for (QPushButton *pageButton : m_pageButtons)
        pageButton->setChecked(pageButton == button);
    if (page == m_database && m_recordsIndicator)
        m_recordsIndicator->hide();
}

void MainWindow::connectModel()
{
    connect(m_model->settings(), &SpinbarSettings::changedLanguage, this, &MainWindow::askForRestart);
    m_connections << connect(m_model, &SpinbarModel::recordStarted, this,
                             [this] { m_deviceIndicator->show(); });
    m_connections << connect(m_model, &SpinbarModel::recordStopped, this, [this] {
        m_deviceIndicator->hide();
        m_recordsIndicator->show();
        m_database->setNeedsReload();
    });
}

void MainWindow::askForRestart()
{
    if (m_askingForRestart)
        return;
    m_askingForRestart = true;
    SpinbarSettings *settings = m_model->settings();
    const auto languages = QMetaEnum::fromType<SpinbarSettings::SpinbarLanguage>();
    const QString language = QString::fromLatin1(languages.valueToKey(settings->getLanguage()));
    const auto question = LanguageQuestion::forLanguage(language);
    const int answer = AppHelper::confirmDialogWithCancel(question.title, question.text,
                                                          QMessageBox::Question, question.buttons);
    if (answer < 0) {
        revertLanguage();
    } else {
        settings->save();
        LanguageContext::setLanguage(language);
        if (answer > 0)
            AppHelper::restart({});
    }
    m_askingForRestart = false;
}

void MainWindow::revertLanguage()
{
    const bool english = LanguageContext::currentLanguage().contains("en"_L1, Qt::CaseInsensitive);
    m_model->settings()->setLanguage(english ? SpinbarSettings::en_US : SpinbarSettings::ru_RU);
}

void MainWindow::closeEvent(QCloseEvent *)
{
    m_model->shutdown();
}

void MainWindow::keyReleaseEvent(QKeyEvent *event)
{
    constexpr Qt::KeyboardModifiers ControlAlt = Qt::ControlModifier | Qt::AltModifier;
    constexpr Qt::KeyboardModifiers ControlAltShift = ControlAlt | Qt::ShiftModifier;
    if (event->key() == Qt::Key_F2 && event->modifiers().testFlags(ControlAlt)) {
        if (SpinbarController *controller = SpinbarController::instance())
            controller->updateFirmware();
    } else if (event->key() == Qt::Key_F3 && event->modifiers().testFlags(ControlAltShift)) {
        emit deviceWriterRequested();
    }
}
