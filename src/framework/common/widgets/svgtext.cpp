#include "framework/common/widgets/svgtext.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 MaxFileBytes = 4LL * 1024 * 1024;
constexpr int MaxElements = 20'000;
// The renderer walks the tree by recursion.
constexpr int MaxDepth = 100;
constexpr int MaxSidePixels = 4096;

bool isTame(const QByteArray &bytes)
{
    if (bytes.size() > MaxFileBytes)
        return false;
    QXmlStreamReader reader(bytes);
    int depth = 0;
    int elements = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            return false;
        case QXmlStreamReader::StartElement:
            // A reference to an element can hold itself.
            if (++depth > MaxDepth || ++elements > MaxElements || reader.name() == "use"_L1)
                return false;
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
    return !reader.hasError();
}

QSize bounded(QSize size)
{
    if (size.width() > MaxSidePixels || size.height() > MaxSidePixels)
        size.scale(MaxSidePixels, MaxSidePixels, Qt::KeepAspectRatio);
    return size;
}

} // namespace

QString SvgText::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // One byte more than allowed, so that a device without an end is not read to it.
    const QByteArray bytes = file.read(MaxFileBytes + 1);
    return bytes.size() > MaxFileBytes ? QString() : QString::fromUtf8(bytes);
}

QString SvgText::recolored(QString text, const QString &color, const QString &colorToReplace)
{
    const QString fill = u"fill=\"%1\""_s.arg(color);
    const qsizetype start = text.indexOf("<svg"_L1);
    const qsizetype end = start < 0 ? -1 : text.indexOf('>'_L1, start);
    if (end > 0) {
        constexpr auto attribute = "fill=\""_L1;
        const qsizetype at = text.indexOf(attribute, start);
        const qsizetype close = at < 1 ? -1 : text.indexOf('"'_L1, at + attribute.size());
        if (at >= 1 && at < end && close >= 0)
            text.replace(at, close - at + 1, fill);
        else
            text.insert(end, ' '_L1 + fill);
    }
    if (!colorToReplace.isEmpty())
        text.replace(colorToReplace, color);
    return text;
}

QString SvgText::withRootFill(QString text, const QString &color)
{
    constexpr auto root = "svg fill="_L1;
    const qsizetype at = text.indexOf(root);
    if (color.isEmpty() || at <= 0)
        return text;
    const qsizetype value = at + root.size() + 1;
    const qsizetype close = text.indexOf('"'_L1, value);
    if (close >= 0)
        text.replace(value, close - value, color);
    return text;
}

QImage SvgText::rendered(const QString &text, QSize size)
{
    const QByteArray bytes = text.toUtf8();
    if (!isTame(bytes))
        return {};
    QSvgRenderer renderer(bytes);
    if (!renderer.isValid())
        return {};
    const QSize target = bounded(size.isValid() ? size : renderer.defaultSize());
    if (target.isEmpty())
        return {};
    QImage image(target, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}
