#include "framework/common/xlsxhelper.h"

#include "framework/common/workbooktext.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <vector>

#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(tablesLog, "spinbar.tables")

namespace {

constexpr auto ByteOrderMark = "\xEF\xBB\xBF";
constexpr qint64 CopyBytes = 256 * 1024;
// Of the column widths, in characters.
constexpr int WidthMargin = 2;
constexpr int MinWidth = 8;
constexpr int MaxWidth = 60;

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
    bool done = file->open(QIODevice::WriteOnly) && fill(*file) && file->flush();
    if (replacing && replacing->isOpen()) {
        if (!done)
            replacing->cancelWriting();
        done = replacing->commit() && done;
    }
    if (!done)
        qCWarning(tablesLog) << "Cannot write" << path << file->errorString();
    return done;
}

bool isNumber(const QVariant &cell)
{
    switch (cell.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

double finiteNumber(const QVariant &cell)
{
    const double value = cell.toDouble();
    return std::isfinite(value) ? value : 0.0;
}

QString cellText(const QVariant &cell)
{
    const bool floating = cell.typeId() == QMetaType::Double || cell.typeId() == QMetaType::Float;
    return floating && !std::isfinite(cell.toDouble()) ? u"0"_s : cell.toString();
}

bool writeCell(lxw_worksheet *worksheet, lxw_row_t row, lxw_col_t column, const QVariant &cell)
{
    if (isNumber(cell))
        return worksheet_write_number(worksheet, row, column, finiteNumber(cell), nullptr) == LXW_NO_ERROR;
    const QByteArray text = WorkbookText::cell(cell.toString()).toUtf8();
    return text.isEmpty()
           || worksheet_write_string(worksheet, row, column, text.constData(), nullptr) == LXW_NO_ERROR;
}

bool writeSheet(lxw_worksheet *worksheet, const XLSXHelper::Rows &rows)
{
    std::vector<qsizetype> lengths;
    for (qsizetype row = 0; row < rows.size(); ++row) {
        const QList<QVariant> &cells = rows[row];
        if (row >= LXW_ROW_MAX || cells.size() > LXW_COL_MAX)
            return false;
        lengths.resize(std::max(lengths.size(), std::size_t(cells.size())));
        for (qsizetype column = 0; column < cells.size(); ++column) {
            qsizetype &length = lengths[std::size_t(column)];
            length = std::max(length, cellText(cells[column]).size());
            if (!writeCell(worksheet, lxw_row_t(row), lxw_col_t(column), cells[column]))
                return false;
        }
    }
    for (std::size_t column = 0; column < lengths.size(); ++column) {
        const auto width = double(std::clamp<qsizetype>(lengths[column] + WidthMargin, MinWidth, MaxWidth));
        worksheet_set_column(worksheet, lxw_col_t(column), lxw_col_t(column), width, nullptr);
    }
    return true;
}

bool writeWorkbook(const QList<XLSXHelper::Sheet> &sheets, const QString &path)
{
    QStringList names;
    for (const XLSXHelper::Sheet &sheet : sheets)
        names.append(sheet.first);
    names = XLSXHelper::sheetNames(names);
    lxw_workbook *workbook = workbook_new(QDir::toNativeSeparators(path).toUtf8().constData());
    if (!workbook)
        return false;
    bool written = true;
    for (qsizetype i = 0; i < sheets.size() && written; ++i) {
        lxw_worksheet *worksheet = workbook_add_worksheet(workbook, names[i].toUtf8().constData());
        written = worksheet && writeSheet(worksheet, sheets[i].second);
    }
    // Frees the workbook whatever its result.
    const lxw_error error = workbook_close(workbook);
    if (error != LXW_NO_ERROR)
        qCWarning(tablesLog) << "Workbook:" << lxw_strerror(error);
    return written && error == LXW_NO_ERROR;
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

} // namespace

bool XLSXHelper::dataToCSV(const QList<Sheet> &sheets, const QString &path, const QString &separator,
                           const QString &lineEnd)
{
    return writeWhole(path, [&](QFileDevice &file) {
        // For the whole process and for good: other code may rely on it.
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("utf-8"));
        // The stream would write the mark with its first text only, and there may be none.
        file.write(ByteOrderMark);
        QTextStream stream(&file);
        for (const auto &[name, rows] : sheets) {
            stream << name << lineEnd;
            for (const QList<QVariant> &row : rows) {
                for (const QVariant &cell : row)
                    stream << cellText(cell) << separator;
                stream << lineEnd;
            }
            stream << lineEnd << lineEnd;
        }
        stream.flush();
        return stream.status() == QTextStream::Ok && file.error() == QFileDevice::NoError;
    });
}

bool XLSXHelper::dataToCSV(const Rows &rows, const QString &path, const QString &name,
                           const QString &separator, const QString &lineEnd)
{
    return dataToCSV(QList<Sheet>{{name, rows}}, path, separator, lineEnd);
}

bool XLSXHelper::dataToXLSX(const QList<Sheet> &sheets, const QString &path)
{
    if (sheets.isEmpty())
        return false;
    return writeWhole(path, [&](QFileDevice &file) {
        const QTemporaryDir folder;
        const QString workbook = folder.filePath(u"workbook.xlsx"_s);
        return folder.isValid() && writeWorkbook(sheets, workbook) && copyInto(file, workbook);
    });
}

bool XLSXHelper::dataToXLSX(const Rows &rows, const QString &path, const QString &name)
{
    return dataToXLSX(QList<Sheet>{{name, rows}}, path);
}

QStringList XLSXHelper::sheetNames(const QStringList &wanted)
{
    return WorkbookText::sheetNames(wanted);
}
