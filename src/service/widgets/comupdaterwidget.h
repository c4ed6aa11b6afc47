#pragma once

#include "service/firmwarebundle.h"
#include "service/firmwaretarget.h"
#include "service/toolrun.h"
#include "service/widgets/portrows.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QList>
#include <QTimer>

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

/// Writes new firmware into the instrument: opens a bundle and runs the flashing tool once for each ticked
/// port. It cannot be closed while the tool runs.
class ComUpdaterWidget : public QDialog
{
    Q_OBJECT

public:
    using KnownPorts = PortRows::KnownPorts;

    /// \a suffix is that of bundles, without a point. For \a tool see FirmwareTarget, for \a known PortRows.
    ComUpdaterWidget(FirmwareTarget::Kind kind, const QString &suffix, const QString &tool,
                     const KnownPorts &known, QWidget *parent);
    ~ComUpdaterWidget() override;

    /// How long the tool may be silent.
    void setSilence(std::chrono::milliseconds silence) { m_silence = silence; }

    bool isUpdating() const { return m_updating; }

    /// Removes the unpacked bundle too. Does nothing while the tool runs.
    void done(int result) override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void createWidgets(const KnownPorts &known);
    void createReport();
    QWidget *createPortArea();
    void layOut();
    void openBundle();
    void showBundle();
    void showPath();
    void startUpdate();
    void updateNextPort();
    void handleToolEnd();
    void setUpdating(bool updating);
    void showProgress();
    void showOutput();

    FirmwareTarget m_target;
    FirmwareBundle m_bundle;
    QString m_suffix;
    std::chrono::milliseconds m_silence = ToolRun::DefaultSilence;
    bool m_updating = false;
    QList<PortInfo> m_portsToUpdate;
    PortInfo m_port;
    ToolRun *m_run = nullptr;
    QElapsedTimer m_runTime;
    QTimer m_progressTimer;
    QTimer m_outputTimer;

    QPushButton *m_openButton = nullptr;
    QLabel *m_pathLabel = nullptr;
    QCheckBox *m_validBox = nullptr;
    QLabel *m_problemLabel = nullptr;
    PortRows *m_ports = nullptr;
    QPushButton *m_updateButton = nullptr;
    QLabel *m_stateLabel = nullptr;
    QPlainTextEdit *m_outputView = nullptr;
};
