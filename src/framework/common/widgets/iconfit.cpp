#include "framework/common/widgets/iconfit.h"

QRectF iconFit(QSize available, QSize natural)
{
    if (available.isEmpty() || natural.isEmpty())
        return {};
    const double width = available.width();
    const double height = available.height();
    const double aspect = static_cast<double>(natural.width()) / natural.height();
    if (width / height >= aspect) {
        const int x = static_cast<int>((width - height * aspect) * 0.5);
        const double scale = height / natural.height();
        return QRectF(x, 0, natural.width() * scale, natural.height() * scale);
    }
    const int y = static_cast<int>((height - width / aspect) * 0.5);
    const double scale = width / natural.width();
    return QRectF(0, y, natural.width() * scale, natural.height() * scale);
}
