#include "framework/common/workbookfile.h"

#include "framework/common/tableslog.h"
#include "framework/common/workbooktext.h"

#include <QDir>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include <xlsxwriter.h>
#include <zip.h>

namespace {

// Of the column widths, in characters.
constexpr int WidthMargin = 2;
constexpr int MinWidth = 8;
constexpr int MaxWidth = 60;
constexpr qsizetype PieceBytes = 64 * 1024;

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
            length = std::max(length, WorkbookText::ofCell(cells[column]).size());
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

struct ArchiveCloser
{
    void operator()(zip_t *archive) const { zip_discard(archive); }
    void operator()(zip_file_t *entry) const { zip_fclose(entry); }
};
using Archive = std::unique_ptr<zip_t, ArchiveCloser>;
using Entry = std::unique_ptr<zip_file_t, ArchiveCloser>;

/// Reading to the end also compares the checksum.
bool isWholeXml(zip_file_t *entry)
{
    QXmlStreamReader xml;
    QByteArray piece(PieceBytes, Qt::Uninitialized);
    zip_int64_t bytes = 0;
    while ((bytes = zip_fread(entry, piece.data(), zip_uint64_t(piece.size()))) > 0) {
        xml.addData(piece.first(qsizetype(bytes)));
        while (!xml.atEnd())
            xml.readNext();
        if (xml.hasError() && xml.error() != QXmlStreamReader::PrematureEndOfDocumentError)
            return false;
    }
    return bytes == 0 && !xml.hasError();
}

} // namespace

bool WorkbookFile::write(const QList<XLSXHelper::Sheet> &sheets, const QString &path, const WorkStep &step)
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
        written = worksheet && writeSheet(worksheet, sheets[i].second) && goesOn(step);
    }
    // Frees the workbook whatever its result.
    const lxw_error error = workbook_close(workbook);
    if (error != LXW_NO_ERROR)
        qCWarning(tablesLog) << "Workbook:" << lxw_strerror(error);
    return written && error == LXW_NO_ERROR;
}

bool WorkbookFile::isWhole(const QString &path)
{
    const Archive archive(zip_open(QDir::toNativeSeparators(path).toUtf8().constData(), ZIP_RDONLY, nullptr));
    const zip_int64_t entries = archive ? zip_get_num_entries(archive.get(), 0) : 0;
    for (zip_int64_t i = 0; i < entries; ++i) {
        const Entry entry(zip_fopen_index(archive.get(), zip_uint64_t(i), 0));
        if (!entry || !isWholeXml(entry.get())) {
            qCWarning(tablesLog) << "Workbook: cut off in" << zip_get_name(archive.get(), zip_uint64_t(i), 0);
            return false;
        }
    }
    return entries > 0;
}
