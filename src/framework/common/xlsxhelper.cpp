#include "framework/common/xlsxhelper.h"

#include "framework/common/tableslog.h"
#include "framework/common/workbookfile.h"
#include "framework/common/workbooktext.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QTextStream>

#include <cmath>
#include <functional>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr auto ByteOrderMark = "\xEF\xBB\xBF";
constexpr qint64 CopyBytes = 256LL * 1024;

/// Gives \a fill a device whose content takes the place of the file at once, if it returns true.
bool writeWhole(const QString &path, const std::function<bool(QFileDevice &)> &fill)
{
    std::unique_ptr<QFileDevice> file;
    // A device or a pipe must be written to and not be replaced.
    if (const QFileInfo info(path); info.exists() && !info.isFile())
        file = std::make_unique<QFile>(path);
    else
        file = std::make_unique<QSaveFile>(path);
    auto *replacing = qobject_cast<QSaveFile *>(file.get());
    if (replacing)
        replacing->setDirectWriteFallback(true);
    // What is not committed is thrown away.
    const bool done = file->open(QIODevice::WriteOnly) && fill(*file) && file->flush()
                      && (!replacing || replacing->commit());
    if (!done)
        qCWarning(tablesLog) << "Cannot write" << path << file->errorString();
    return done;
}

bool copyInto(QFileDevice &target, const QString &sourcePath)
{
    QFile source(sourcePath);
    if (!source.open(QIODevice::ReadOnly))
        return false;
    while (!source.atEnd()) {
        const QByteArray piece = source.read(CopyBytes);
        if (piece.isEmpty() || target.write(piece) != piece.size())
            return false;
    }
    return true;
}

QString cellText(const QVariant &cell)
{
    const bool floating = cell.typeId() == QMetaType::Double || cell.typeId() == QMetaType::Float;
    return floating && !std::isfinite(cell.toDouble()) ? u"0"_s : cell.toString();
}

/// Nothing if \a step ends it.
std::optional<QByteArray> csvText(const QList<XLSXHelper::Sheet> &sheets, const QString &separator,
                                  const QString &lineEnd, const WorkStep &step)
{
    // The stream would write the mark with its first text only, and there may be none.
    QByteArray text(ByteOrderMark);
    QTextStream stream(&text, QIODevice::Append);
    for (const auto &[name, rows] : sheets) {
        stream << name << lineEnd;
        for (const QList<QVariant> &row : rows) {
            for (const QVariant &cell : row)
                stream << cellText(cell) << separator;
            stream << lineEnd;
        }
        stream << lineEnd << lineEnd;
        if (!goesOn(step))
            return {};
    }
    stream.flush();
    return text;
}

} // namespace

bool XLSXHelper::dataToCSV(const QList<Sheet> &sheets, const QString &path, const QString &separator,
                           const QString &lineEnd, const WorkStep &step)
{
    // For the whole process and for good: other code may rely on it.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("utf-8"));
    // Whole before the file is touched, since not every folder lets a file be replaced at once.
    const std::optional<QByteArray> text = csvText(sheets, separator, lineEnd, step);
    return text && writeWhole(path, [&text](QFileDevice &file) { return file.write(*text) == text->size(); });
}

bool XLSXHelper::dataToCSV(const Rows &rows, const QString &path, const QString &name,
                           const QString &separator, const QString &lineEnd)
{
    return dataToCSV(QList<Sheet>{{name, rows}}, path, separator, lineEnd);
}

bool XLSXHelper::dataToXLSX(const QList<Sheet> &sheets, const QString &path, const WorkStep &step)
{
    if (sheets.isEmpty())
        return false;
    const QTemporaryDir folder;
    const QString workbook = folder.filePath(u"workbook.xlsx"_s);
    return folder.isValid() && WorkbookFile::write(sheets, workbook, step) && goesOn(step)
           && writeWhole(path, [&workbook](QFileDevice &file) { return copyInto(file, workbook); });
}

bool XLSXHelper::dataToXLSX(const Rows &rows, const QString &path, const QString &name)
{
    return dataToXLSX(QList<Sheet>{{name, rows}}, path);
}

QStringList XLSXHelper::sheetNames(const QStringList &wanted)
{
    return WorkbookText::sheetNames(wanted);
}
