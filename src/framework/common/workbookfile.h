#pragma once

#include "framework/common/workstep.h"
#include "framework/common/xlsxhelper.h"

/// Workbooks as the library for them makes them.
namespace WorkbookFile {

/// \a step is called behind each sheet. False if that ends it, or if not every cell is found in the file.
bool write(const QList<XLSXHelper::Sheet> &sheets, const QString &path, const WorkStep &step);

} // namespace WorkbookFile
