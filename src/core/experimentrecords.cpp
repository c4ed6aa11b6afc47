#include "core/experimentrecords.h"

#include "core/spinbarrecord.h"

bool ExperimentRecords::read(const QStringList &folders, const WorkStep &step)
{
    clear();
    m_owner = new QObject(this);
    m_records.reserve(folders.size());
    m_byPath.reserve(folders.size());
    for (const QString &folder : folders) {
        auto *record = new SpinbarRecord(folder, QDateTime::currentDateTime(), m_owner);
        record->load();
        m_records.append(record);
        // A folder that is listed twice is one experiment.
        if (SpinbarRecord *&first = m_byPath[record->experimentJsonPath()]; !first)
            first = record;
        if (!goesOn(step))
            return false;
    }
    return true;
}

void ExperimentRecords::clear()
{
    m_byPath.clear();
    m_records.clear();
    if (m_owner)
        m_owner->deleteLater();
    m_owner = nullptr;
}
