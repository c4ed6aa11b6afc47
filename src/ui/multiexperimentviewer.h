#pragma once

#include <QList>
#include <QWidget>

class ExperimentTable;
class SpinbarRecord;

/// The summary of several experiments.
class MultiExperimentViewer : public QWidget
{
    Q_OBJECT

public:
    explicit MultiExperimentViewer(QWidget *parent = nullptr);

    /// Shows the summary of two or more records, which are not owned. A dialog can stop a long one; the table
    /// is empty then.
    void setRecords(const QList<SpinbarRecord *> &records);
    QList<SpinbarRecord *> records() const { return m_records; }

private:
    QList<SpinbarRecord *> m_records;
    ExperimentTable *m_table = nullptr;
};
