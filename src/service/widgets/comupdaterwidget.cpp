#include "service/widgets/comupdaterwidget.h"

#include "service/servicelog.h"

#include "device/serialportmanager.h"
#include "framework/common/widgets/apphelperdialogs.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/common/widgets/uihelper.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

constexpr int Margin = 16;
constexpr int Spacing = 12;
constexpr int LeastWidth = 560;
constexpr int LeastOutputHeight = 80;
constexpr int StateLines = 3;
constexpr int MostPortsHeight = 200;
constexpr auto ProgressInterval = 1s;
// However fast the tool prints, the window paints a few times a second and has time for the rest.
constexpr auto OutputInterval = 100ms;

} // namespace

ComUpdaterWidget::ComUpdaterWidget(FirmwareTarget::Kind kind, const QString &suffix, const QString &tool,
                                   const KnownPorts &known, QWidget *parent)
    : QDialog(parent)
    , m_target(kind, tool)
    , m_bundle(m_target)
    , m_suffix(suffix)
{
    setWindowTitle(tr("Update firmware"));
    createWidgets(known);
    createReport();
    layOut();
    showBundle();
    connect(m_openButton, &QPushButton::clicked, this, &ComUpdaterWidget::openBundle);
    connect(m_updateButton, &QPushButton::clicked, this, &ComUpdaterWidget::startUpdate);
    connect(&m_progressTimer, &QTimer::timeout, this, &ComUpdaterWidget::showProgress);
    connect(&m_outputTimer, &QTimer::timeout, this, &ComUpdaterWidget::showOutput);
}

ComUpdaterWidget::~ComUpdaterWidget()
{
    // The tool's files go with the bundle.
    delete m_run;
}

void ComUpdaterWidget::createWidgets(const KnownPorts &known)
{
    m_openButton = new QPushButton(tr("Open firmware file"));
    StyleHelper::SetButtonIcon(
        m_openButton, UIHelper::findValidResource({u":/icons/folder_search.svg"_s, u":/icons/folder.svg"_s}),
        u"#FFF"_s);
    m_pathLabel = new QLabel;
    m_pathLabel->setTextFormat(Qt::PlainText);
    m_pathLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_validBox = new QCheckBox(tr("Valid firmware"));
    m_validBox->setEnabled(false);
    m_problemLabel = new QLabel;
    m_problemLabel->setTextFormat(Qt::PlainText);
    m_problemLabel->setWordWrap(true);
    m_ports = new PortRows(SerialPortManager::instance().listedPorts(), known);
    m_updateButton = new QPushButton(tr("Update firmware"));
    for (QPushButton *button : {m_openButton, m_updateButton}) {
        button->setCursor(Qt::PointingHandCursor);
        button->setAutoDefault(false);
    }
}

void ComUpdaterWidget::createReport()
{
    m_stateLabel = new QLabel;
    m_stateLabel->setTextFormat(Qt::PlainText);
    m_stateLabel->setWordWrap(true);
    // A window does not grow by the lines into which a text wraps.
    m_stateLabel->setMinimumHeight(StateLines * m_stateLabel->fontMetrics().lineSpacing());
    m_stateLabel->setAlignment(Qt::AlignTop);
    m_stateLabel->hide();
    m_outputView = new QPlainTextEdit;
    m_outputView->setReadOnly(true);
    // The theme's least height of input fields would win over the widget's own.
    m_outputView->setStyleSheet(u"min-height: %1px"_s.arg(LeastOutputHeight));
    m_outputView->setAccessibleName(tr("Output of the tool"));
    m_outputView->setPlaceholderText(m_outputView->accessibleName());
    m_progressTimer.setInterval(ProgressInterval);
    m_outputTimer.setInterval(OutputInterval);
    m_outputTimer.setSingleShot(true);
}

QWidget *ComUpdaterWidget::createPortArea()
{
    auto *area = new QScrollArea;
    area->setWidget(m_ports);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setMaximumHeight(MostPortsHeight);
    area->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (QWidget *widget : {area->viewport(), area->widget()})
        widget->setAutoFillBackground(false);
    return area;
}

void ComUpdaterWidget::layOut()
{
    setMinimumWidth(LeastWidth);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Spacing);
    layout->addWidget(m_openButton);
    layout->addWidget(m_pathLabel);
    layout->addWidget(m_validBox);
    layout->addWidget(m_problemLabel);
    layout->addWidget(createPortArea());
    layout->addWidget(m_updateButton);
    layout->addWidget(m_stateLabel);
    layout->addWidget(m_outputView, 1);
}

void ComUpdaterWidget::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    showPath();
}

void ComUpdaterWidget::openBundle()
{
    if (m_updating)
        return;
    m_bundle.clear();
    showBundle();
    const QString path = QFileDialog::getOpenFileName(this, tr("Open firmware file"), {},
                                                      u"%1 (*.%2)"_s.arg(tr("Firmware"), m_suffix));
    if (!path.isEmpty() && m_bundle.open(path))
        showBundle();
}

void ComUpdaterWidget::showBundle()
{
    showPath();
    m_validBox->setChecked(m_bundle.isValid());
    m_validBox->setToolTip(QStringList(m_bundle.files().values()).join(u'\n'));
    m_updateButton->setEnabled(m_bundle.isValid());
    m_problemLabel->setText(m_bundle.problem());
    m_problemLabel->setVisible(!m_bundle.problem().isEmpty());
}

void ComUpdaterWidget::showPath()
{
    m_pathLabel->setVisible(!m_bundle.path().isEmpty());
    m_pathLabel->setToolTip(m_bundle.path());
    m_pathLabel->setText(
        m_pathLabel->fontMetrics().elidedText(m_bundle.path(), Qt::ElideMiddle, width() - 2 * Margin));
}

void ComUpdaterWidget::startUpdate()
{
    if (m_updating || !m_bundle.isValid())
        return;
    m_portsToUpdate = m_ports->tickedPorts();
    if (m_portsToUpdate.isEmpty())
        return;
    setUpdating(true);
    updateNextPort();
}

void ComUpdaterWidget::updateNextPort()
{
    if (m_portsToUpdate.isEmpty()) {
        setUpdating(false);
        return;
    }
    m_port = m_portsToUpdate.takeFirst();
    const QString port = SerialPorts::nameForTools(m_port);
    qCDebug(serviceLog) << "ARGS" << m_target.arguments(m_bundle.files(), port);
    delete m_run;
    m_run = new ToolRun(this, m_silence);
    connect(m_run, &ToolRun::outputArrived, &m_outputTimer, [this] {
        if (!m_outputTimer.isActive())
            m_outputTimer.start();
    });
    // The next run takes the place of this one, which may still be at work when it says so.
    connect(m_run, &ToolRun::finished, this, &ComUpdaterWidget::handleToolEnd, Qt::QueuedConnection);
    m_runTime.start();
    m_progressTimer.start();
    showProgress();
    showOutput();
    m_run->start(m_target.commandLine(m_bundle.folder(), m_bundle.files(), port));
}

void ComUpdaterWidget::handleToolEnd()
{
    m_progressTimer.stop();
    m_outputTimer.stop();
    showOutput();
    const bool failed = m_run->output().tellsFailure();
    const QString verdict = failed ? tr("There were errors while uploading firmware") : tr("Done!");
    QString details = m_run->trouble();
    const bool isSound = !failed && details.isEmpty();
    // The verdict goes by what the tool printed, but must not make a success of what is none.
    if (!failed && !isSound)
        details.prepend(tr("Attention: the firmware has most likely NOT been written!") + u'\n');
    const QString state = failed || isSound ? verdict + u'\n' + details : details;
    m_stateLabel->setText(m_port.name + ": "_L1 + state.trimmed());
    const QPointer<ComUpdaterWidget> self(this);
    AppHelper::warningMessage(verdict, {}, isSound ? QMessageBox::Information : QMessageBox::Warning,
                              details);
    if (!self)
        return;
    qCDebug(serviceLog) << "END";
    updateNextPort();
}

void ComUpdaterWidget::setUpdating(bool updating)
{
    m_updating = updating;
    m_openButton->setEnabled(!updating);
    m_ports->setEnabled(!updating);
    m_updateButton->setEnabled(!updating && m_bundle.isValid());
    if (updating)
        m_stateLabel->show();
}

void ComUpdaterWidget::showProgress()
{
    m_stateLabel->setText(tr("Writing through %1: %2 s. This window can be closed when the tool has ended.")
                              .arg(m_port.name)
                              .arg(m_runTime.elapsed() / 1000));
}

void ComUpdaterWidget::showOutput()
{
    m_outputView->setPlainText(m_run->output().shownText());
    m_outputView->verticalScrollBar()->setValue(m_outputView->verticalScrollBar()->maximum());
}

void ComUpdaterWidget::done(int result)
{
    if (m_updating)
        return;
    m_bundle.clear();
    showBundle();
    QDialog::done(result);
}
