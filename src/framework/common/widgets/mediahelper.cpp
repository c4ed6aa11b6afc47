#include "framework/common/widgets/mediahelper.h"

#include "framework/common/widgets/lateicon.h"
#include "framework/common/widgets/svgtext.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace {

constexpr double PercentOfWhole = 100;
constexpr double DisabledOpacity = 0.4;

// Never destroyed: pixmaps must not outlive the application object.
QHash<QString, QIcon> &cache()
{
    static auto *icons = new QHash<QString, QIcon>;
    return *icons;
}

template <typename Make>
QIcon cached(const QString &key, Make make)
{
    auto &icons = cache();
    if (const auto it = icons.constFind(key); it != icons.constEnd())
        return *it;
    return *icons.insert(key, make());
}

QPixmap faded(const QPixmap &pixmap)
{
    QPixmap result(pixmap.size());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setOpacity(DisabledOpacity);
    painter.drawPixmap(0, 0, pixmap);
    return result;
}

QIcon drawingIcon(const QString &file)
{
    QIcon icon(file);
    // Otherwise the style tints it in selected rows.
    icon.addFile(file, {}, QIcon::Selected);
    return icon;
}

QIcon bitmapIcon(const QString &file)
{
    const QPixmap bitmap(file);
    QIcon icon(bitmap);
    icon.addPixmap(bitmap, QIcon::Selected);
    return icon;
}

/// In the drawing's own size, and in twice that for dense screens.
QIcon drawnIcon(const QString &svg)
{
    const QImage image = SvgText::rendered(svg);
    if (image.isNull())
        return {};
    const QPixmap natural = QPixmap::fromImage(image);
    const QPixmap dense = QPixmap::fromImage(SvgText::rendered(svg, image.size() * 2));
    QIcon icon(natural);
    icon.addPixmap(dense);
    // Otherwise the style tints it in selected rows.
    icon.addPixmap(natural, QIcon::Selected);
    icon.addPixmap(dense, QIcon::Selected);
    // The style greys for a light background, on which white would do.
    icon.addPixmap(faded(natural), QIcon::Disabled);
    return icon;
}

} // namespace

QString MediaHelper::resourcePath(const QString &path)
{
    return path.startsWith("qrc:/"_L1) ? path.sliced(3) : path;
}

QIcon MediaHelper::icon(const QString &path)
{
    const QString file = resourcePath(path);
    return cached(file, [&file] {
        if (file.endsWith(".svg"_L1) || !QFile::exists(file))
            return drawingIcon(file);
        return QIcon(new LateIcon([file] { return bitmapIcon(file); }));
    });
}

QIcon MediaHelper::iconColored(const QString &path, const QString &color, const QString &colorToReplace)
{
    const QString file = resourcePath(path);
    if (color.isEmpty())
        return icon(file);
    return cached(color + file, [&] { return drawnIcon(recolorSVG(file, color, colorToReplace)); });
}

QIcon MediaHelper::iconColoredWithText(const QString &path, const QString &color, const QString &text,
                                       double fontSizePercent, bool bold, Qt::Alignment alignment,
                                       double horizontalPaddingPercent, double verticalPaddingPercent,
                                       const QString &colorToReplace)
{
    const auto draw = [&]() -> QIcon {
        QImage image = svgColored(path, color, colorToReplace);
        if (image.isNull())
            return {};
        const double width = image.width();
        const double height = image.height();
        QPainter painter(&image);
        QFont font = painter.font();
        font.setPixelSize(qMax(static_cast<int>(height * fontSizePercent / PercentOfWhole), 1));
        font.setWeight(bold ? QFont::Bold : QFont::Normal);
        painter.setFont(font);
        painter.setPen(QColor(color));
        // The height is not brought down to a hundredth as the other three are: it only has to be enough.
        const QRectF place(width * horizontalPaddingPercent / PercentOfWhole,
                           height * verticalPaddingPercent / PercentOfWhole,
                           (PercentOfWhole - 2 * horizontalPaddingPercent) * width / PercentOfWhole,
                           (PercentOfWhole - verticalPaddingPercent * 0.5) * height);
        painter.drawText(place, static_cast<int>(alignment), text);
        painter.end();
        return QIcon(QPixmap::fromImage(image));
    };
    return cached(color + path + text, draw);
}

QImage MediaHelper::svgColored(const QString &path, const QString &color, const QString &colorToReplace)
{
    return SvgText::rendered(recolorSVG(path, color, colorToReplace));
}

QString MediaHelper::recolorSVG(const QString &path, const QString &color, const QString &colorToReplace)
{
    const QString text = SvgText::read(resourcePath(path));
    return text.isEmpty() ? QString() : SvgText::recolored(text, color, colorToReplace);
}
