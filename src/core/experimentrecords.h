#pragma once

#include "framework/common/workstep.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>

class SpinbarRecord;

/// The records of a list of experiments, from one reading to the next.
class ExperimentRecords : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// One record for each of \a folders in their order, in the place of those before. What a file does not
    /// tell keeps its default. \a step is called behind each; false, with the records read so far, if it ends
    /// the work.
    bool read(const QStringList &folders, const WorkStep &step = {});

    /// The records live on until control returns to the event loop, as a handler may still work with one.
    void clear();

    const QList<SpinbarRecord *> &all() const { return m_records; }
    /// By its experimentJsonPath(); null if there is none.
    SpinbarRecord *find(const QString &path) const { return m_byPath.value(path); }

private:
    QObject *m_owner = nullptr;
    QList<SpinbarRecord *> m_records;
    QHash<QString, SpinbarRecord *> m_byPath;
};
