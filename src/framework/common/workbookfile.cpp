#include "framework/common/workbookfile.h"

#include "framework/common/tableslog.h"
#include "framework/common/workbooktext.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <memory>
#include <optional>
#include <vector>

#include <xlsxwriter.h>
#include <zip.h>

namespace {

// Of the column widths, in characters.
constexpr int WidthMargin = 2;
constexpr int MinWidth = 8;
constexpr int MaxWidth = 60;

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

/// Of a number as text.
qsizetype numberLength(double value)
{
    std::array<char, 32> digits;
    return std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr - digits.data();
}

/// Nothing if it can't be written, else the length of its text.
std::optional<qsizetype> writeCell(lxw_worksheet *worksheet, lxw_row_t row, lxw_col_t column,
                                   const QVariant &cell)
{
    lxw_error error = LXW_NO_ERROR;
    qsizetype length = 0;
    if (isNumber(cell)) {
        const double value = finiteNumber(cell);
        length = numberLength(value);
        error = worksheet_write_number(worksheet, row, column, value, nullptr);
    } else if (const QString text = WorkbookText::cell(cell.toString()); !text.isEmpty()) {
        length = text.size();
        error = worksheet_write_string(worksheet, row, column, text.toUtf8().constData(), nullptr);
    }
    return error == LXW_NO_ERROR ? std::optional(length) : std::nullopt;
}

/// Adds the number of cells that are not empty to \a written.
bool writeSheet(lxw_worksheet *worksheet, const XLSXHelper::Rows &rows, qsizetype &written)
{
    std::vector<qsizetype> lengths;
    for (qsizetype row = 0; row < rows.size(); ++row) {
        const QList<QVariant> &cells = rows[row];
        if (row >= LXW_ROW_MAX || cells.size() > LXW_COL_MAX)
            return false;
        lengths.resize(std::max(lengths.size(), std::size_t(cells.size())));
        for (qsizetype column = 0; column < cells.size(); ++column) {
            const auto length = writeCell(worksheet, lxw_row_t(row), lxw_col_t(column), cells[column]);
            if (!length)
                return false;
            qsizetype &longest = lengths[std::size_t(column)];
            longest = std::max(longest, *length);
            written += *length > 0 ? 1 : 0;
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

/// Null if it can't be read or its checksum is wrong.
QByteArray unpacked(zip_t *archive, zip_uint64_t index)
{
    zip_stat_t stat;
    const Entry entry(zip_fopen_index(archive, index, 0));
    if (!entry || zip_stat_index(archive, index, 0, &stat) != 0)
        return {};
    QByteArray bytes(qsizetype(stat.size), Qt::Uninitialized);
    const zip_int64_t read = zip_fread(entry.get(), bytes.data(), stat.size);
    // The checksum is compared at the end of the entry.
    char behind = 0;
    return read == bytes.size() && zip_fread(entry.get(), &behind, 1) == 0 ? bytes : QByteArray();
}

/// Whether the XML ends with the end of the element that it begins with.
bool isClosed(const QByteArray &xml)
{
    const qsizetype declarationEnd = std::max<qsizetype>(xml.indexOf("?>"), 0);
    const qsizetype root = xml.indexOf('<', declarationEnd) + 1;
    qsizetype rootEnd = root;
    while (rootEnd < xml.size() && !std::strchr(" \t\r\n/>", xml.at(rootEnd)))
        ++rootEnd;
    const QByteArray end = "</" + xml.mid(root, rootEnd - root) + '>';
    return root > 0 && xml.last(std::min(xml.size(), end.size() + 2)).trimmed().endsWith(end);
}

/// The library does not notice when the disk gets too full for the temporary files that it packs.
bool isWhole(const QString &path, qsizetype cells)
{
    const Archive archive(zip_open(QDir::toNativeSeparators(path).toUtf8().constData(), ZIP_RDONLY, nullptr));
    const zip_int64_t entries = archive ? zip_get_num_entries(archive.get(), 0) : 0;
    qsizetype found = 0;
    for (zip_int64_t i = 0; i < entries; ++i) {
        const QByteArray xml = unpacked(archive.get(), zip_uint64_t(i));
        if (!isClosed(xml)) {
            qCWarning(tablesLog) << "Workbook: cut off in" << zip_get_name(archive.get(), zip_uint64_t(i), 0);
            return false;
        }
        found += xml.count("<c r=\"");
    }
    if (found != cells)
        qCWarning(tablesLog) << "Workbook:" << found << "of" << cells << "cells are there";
    return found == cells;
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
    qsizetype cells = 0;
    bool written = true;
    for (qsizetype i = 0; i < sheets.size() && written; ++i) {
        lxw_worksheet *worksheet = workbook_add_worksheet(workbook, names[i].toUtf8().constData());
        written = worksheet && writeSheet(worksheet, sheets[i].second, cells) && goesOn(step);
    }
    // Frees the workbook whatever its result.
    const lxw_error error = workbook_close(workbook);
    if (error != LXW_NO_ERROR)
        qCWarning(tablesLog) << "Workbook:" << lxw_strerror(error);
    return written && error == LXW_NO_ERROR && isWhole(path, cells);
}
