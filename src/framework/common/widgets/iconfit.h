#pragma once

#include <QRectF>
#include <QSize>

/// Where a picture of the size \a natural lies in a widget of the size \a available: as large as fits with
/// its proportions, in the middle of what is left. Left and top are whole pixels. Empty if either size is.
QRectF iconFit(QSize available, QSize natural);
