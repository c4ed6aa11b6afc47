#include "framework/common/widgets/uihelper.h"

#include "framework/common/widgets/cursorhelper.h"
#include "framework/common/widgets/mediahelper.h"
#include "framework/common/widgets/npushbutton.h"
#include "framework/common/widgets/svgtext.h"

#include <QDesktopServices>
#include <QLabel>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

QPushButton *iconButton(const QIcon &icon, const QSize &iconSize, const QSize &fixedSize)
{
    auto *button = new QPushButton(icon, {});
    button->setIconSize(iconSize);
    button->setFixedSize(fixedSize);
    CursorHelper::setCursor(button, Qt::PointingHandCursor);
    return button;
}

} // namespace

QLabel *UIHelper::GenerateLabel(const QString &text, int fontSize, const QColor &color, bool bold,
                                const QString &family)
{
    QString style = u"QLabel { "_s;
    if (fontSize > 0)
        style += u"font-size: %1px; "_s.arg(fontSize);
    style += u"color: %1; "_s.arg(color.name());
    if (bold)
        style += "font-weight: bold"_L1;
    if (!family.isEmpty())
        style += u"font-family: %1; "_s.arg(family);
    auto *label = new QLabel(text);
    label->setStyleSheet(style + '}'_L1);
    return label;
}

QLabel *UIHelper::GenerateBoldLabel(const QString &text, int fontSize, const QColor &color,
                                    const QString &family)
{
    return GenerateLabel(text, fontSize, color, true, family);
}

QLabel *UIHelper::GenerateLabelWithName(const QString &text, const QString &objectName, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(objectName);
    return label;
}

QLabel *UIHelper::GenerateIconWidget(const QIcon &icon, int width, int height)
{
    return GenerateIconWidget(icon, QSize(width, height));
}

QLabel *UIHelper::GenerateIconWidget(const QIcon &icon, const QSize &size)
{
    auto *label = new QLabel;
    label->setFixedSize(size);
    label->setPixmap(icon.pixmap(size));
    return label;
}

QPushButton *UIHelper::GenerateLinkButton(const QString &url, const QString &caption, const QString &tooltip,
                                          const QString &objectName)
{
    auto *button = new QPushButton(caption.isEmpty() ? url : caption);
    button->setFlat(true);
    button->setObjectName(objectName);
    button->setToolTip(tooltip.isEmpty() ? url : tooltip);
    CursorHelper::setCursor(button, Qt::PointingHandCursor);
    QObject::connect(button, &QPushButton::clicked, button, [url] { QDesktopServices::openUrl(QUrl(url)); });
    return button;
}

QPushButton *UIHelper::GenerateSvgButton(const QString &text, const QString &path, const QSize &iconSize,
                                         const QSize &fixedSize, const QString &style)
{
    QPushButton *button = GenerateSvgButton(path, iconSize, fixedSize, style);
    button->setText(text);
    button->setFlat(true);
    return button;
}

QPushButton *UIHelper::GenerateSvgButton(const QString &path, const QSize &iconSize, const QSize &fixedSize,
                                         const QString &style)
{
    QPushButton *button = iconButton(MediaHelper::icon(path), iconSize, fixedSize);
    button->setStyleSheet(style);
    return button;
}

QPushButton *UIHelper::FixedSizeSvg(const QString &path, const QSize &size, const QString &color)
{
    QPushButton *button = iconButton(IconFromSvg(path, color, size), size, size);
    button->setFlat(true);
    return button;
}

NPushButton *UIHelper::GenerateSmartSvgButton(const QString &path, const QSize &fixedSize,
                                              const QSize &iconSize, const QString &, const QString &,
                                              const QString &)
{
    const QIcon normal = MediaHelper::icon(path);
    const QIcon &hovered = normal;
    const QIcon &disabled = normal;
    auto *button = new NPushButton(normal, {}, nullptr);
    button->setFixedSize(fixedSize);
    button->setIconSize(iconSize);
    QObject::connect(
        button, &NPushButton::mouseHoverChanged, button,
        [button, normal, hovered](bool isHovered) { button->setIcon(isHovered ? hovered : normal); });
    QObject::connect(
        button, &NPushButton::enabledStateChanged, button,
        [button, normal, disabled](bool enabled) { button->setIcon(enabled ? normal : disabled); });
    return button;
}

QPixmap UIHelper::PixmapFromSvg(const QString &path, const QString &color, const QSize &size)
{
    const QString text = SvgText::read(MediaHelper::resourcePath(path));
    return QPixmap::fromImage(SvgText::rendered(SvgText::withRootFill(text, color), size));
}

QIcon UIHelper::IconFromSvg(const QString &path, const QString &color, const QSize &size)
{
    const QPixmap pixmap = PixmapFromSvg(path, color, size);
    return pixmap.isNull() ? QIcon() : QIcon(pixmap);
}

QPixmap UIHelper::SvgToPixmap(const QString &path, const QSize &size)
{
    return QIcon(MediaHelper::resourcePath(path)).pixmap(size);
}
