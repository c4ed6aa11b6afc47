#pragma once

#include <QPointer>
#include <QWidget>

class ExperimentTable;
class SpeedScriptViewer;
class SpinbarRecord;

/// One experiment as its table and the graph of the run.
class ExperimentViewer : public QWidget
{
    Q_OBJECT

public:
    explicit ExperimentViewer(QWidget *parent = nullptr);

    /// Shows a record as it is now, or nothing for null. It is not owned; its status lines are given back
    /// with the next call.
    void setRecord(SpinbarRecord *record);
    SpinbarRecord *record() const;

private:
    QPointer<SpinbarRecord> m_record;
    ExperimentTable *m_table = nullptr;
    SpeedScriptViewer *m_graph = nullptr;
};
