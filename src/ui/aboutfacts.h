#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class QDate;
class QDateTime;

/// What the about panel tells, without the panel. Texts that are called rich are HTML.
namespace AboutFacts {

/// The folders whose PDFs are manuals: the program's own and the one of its installed documents.
QStringList manualFolders();
/// The first "pdf" file of \a folders whose name holds the first part of \a language ("ru_RU"), else the
/// first of all; empty if there is none.
QString manual(const QStringList &folders, const QString &language);

/// Rich: the program's version and when it was built.
QString version();
/// Rich: the operating system with its word size and kernel.
QString system();
/// The IPv4 addresses of the interfaces that run, but for the loopback, a line each. Read at the first call.
const QString &addresses();

/// Rich: the names in order, with a balloon for whom day and month of \a today are those of their date.
QString developers(const QMap<QString, QDateTime> &developers, const QDate &today);

/// An address of the web as it is read: without its scheme.
QString withoutScheme(const QString &link);

} // namespace AboutFacts
