#pragma once

#include "framework/common/workstep.h"
#include "framework/common/xlsxhelper.h"

/// Workbooks as the library for them makes them.
namespace WorkbookFile {

/// \a step is called behind each sheet. False if that ends it, or if the file is not whole.
bool write(const QList<XLSXHelper::Sheet> &sheets, const QString &path, const WorkStep &step);

/// Whether the parts of the archive can be unpacked and end where they must.
bool isWhole(const QString &path);

} // namespace WorkbookFile
