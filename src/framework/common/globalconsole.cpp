#include "framework/common/globalconsole.h"

#include "framework/common/nlogger.h"

#include <QLoggingCategory>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcConsole, "spinbar.console")

GlobalConsole *theConsole = nullptr;

} // namespace

GlobalConsole *GlobalConsole::Instance()
{
    if (!theConsole)
        theConsole = new GlobalConsole;
    return theConsole;
}

void GlobalConsole::freeData()
{
    delete theConsole;
    theConsole = nullptr;
}

void GlobalConsole::writeItem(const QString &message, const QString &type, const QDateTime &date)
{
    Instance()->_writeItem(message, type, date);
}

void GlobalConsole::writeLine(const QString &text, const QDateTime &date)
{
    Instance()->_writeLine(text, date);
}

void GlobalConsole::disableType(const QString &type, bool disabled)
{
    Instance()->_disableType(type, disabled);
}

void GlobalConsole::enableLogging(bool enable, const QString &path)
{
    Instance()->_enableLogging(enable, path);
}

double GlobalConsole::countAverage(const QString &name, double value, int limit)
{
    return Instance()->_countAverage(name, value, limit);
}

double GlobalConsole::getAverage(const QString &name)
{
    return Instance()->_getAverage(name);
}

QStringList GlobalConsole::getAverageNames()
{
    return Instance()->_getAverageNames();
}

void GlobalConsole::setStatus(const QString &name, const QString &value)
{
    Instance()->_setStatus(name, value);
}

QString GlobalConsole::getStatus(const QString &name)
{
    return Instance()->_getStatus(name);
}

QStringList GlobalConsole::getStatusNames()
{
    return Instance()->_getStatusNames();
}

void GlobalConsole::clearStatus(const QString &name)
{
    Instance()->_clearStatus(name);
}

QString GlobalConsole::currentText()
{
    return Instance()->_currentText();
}

void GlobalConsole::_writeItem(const QString &message, const QString &type, const QDateTime &date)
{
    if (!type.isEmpty() && m_disabledTypes.contains(type, Qt::CaseInsensitive))
        return;
    const QDateTime moment = date.isValid() ? date : QDateTime::currentDateTime();
    QString entry = moment.toString(u"hh:mm:ss.zzz"_s) + ' '_L1;
    if (!type.isEmpty())
        entry += type + ' '_L1;
    entry += message;
    m_entries[type].prepend(entry + "\r\n"_L1);
    if (m_logging)
        NLogger::LogToFile(type, entry, m_logPath, true);
    emit newEntry(entry);
    qCDebug(lcConsole).noquote() << entry;
}

void GlobalConsole::_writeLine(const QString &text, const QDateTime &date)
{
    _writeItem(text, {}, date);
}

void GlobalConsole::_disableType(const QString &type, bool disabled)
{
    if (!disabled)
        m_disabledTypes.removeIf(
            [&type](const QString &known) { return known.compare(type, Qt::CaseInsensitive) == 0; });
    else if (!m_disabledTypes.contains(type, Qt::CaseInsensitive))
        m_disabledTypes.append(type);
}

void GlobalConsole::_enableLogging(bool enable, const QString &path)
{
    m_logging = enable;
    m_logPath = path.isEmpty() ? NLogger::standardLogFilePath() : path;
}

double GlobalConsole::_countAverage(const QString &name, double value, int limit)
{
    const bool isNew = !m_averages.contains(name);
    Average &average = m_averages[name];
    average.limit = std::max(limit, 1);
    if (average.count < 1) {
        average.value = value;
        average.count = 1;
    } else {
        average.value = ((average.count - 1) * average.value + value) / average.count;
        average.count = average.count < average.limit ? average.count + 1 : average.limit;
    }
    // A listener may count too, and the record move.
    const double mean = average.value;
    emit updatedAverage(name, mean);
    if (isNew)
        emit newAverageName(name);
    return mean;
}

double GlobalConsole::_getAverage(const QString &name) const
{
    return m_averages.value(name).value;
}

QStringList GlobalConsole::_getAverageNames() const
{
    return m_averages.keys();
}

void GlobalConsole::_setStatus(const QString &name, const QString &value)
{
    const bool isNew = !m_statuses.contains(name);
    m_statuses.insert(name, value);
    emit updatedStatus(name, value);
    if (isNew)
        emit newStatusName(name);
}

QString GlobalConsole::_getStatus(const QString &name) const
{
    return m_statuses.value(name);
}

QStringList GlobalConsole::_getStatusNames() const
{
    return m_statuses.keys();
}

void GlobalConsole::_clearStatus(const QString &name)
{
    if (name.isEmpty())
        m_statuses.clear();
    else
        m_statuses.remove(name);
    emit statusCleared(name);
}

QString GlobalConsole::_currentText() const
{
    QString text;
    for (const QStringList &entries : m_entries)
        text += entries.join('\n'_L1);
    return text;
}
