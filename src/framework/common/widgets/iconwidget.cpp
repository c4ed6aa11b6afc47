#include "framework/common/widgets/iconwidget.h"

#include "framework/common/widgets/iconfit.h"
#include "framework/common/widgets/mediahelper.h"
#include "framework/common/widgets/svgtext.h"

#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace {

constexpr double DisabledOpacity = 0.5;

/// What is built into the program is decoded once, however many widgets show it.
QImage bitmap(const QString &path)
{
    static QHash<QString, QImage> builtIn;
    if (!path.startsWith(u':'))
        return QImage(path);
    if (!builtIn.contains(path))
        builtIn.insert(path, QImage(path));
    return builtIn.value(path);
}

} // namespace

IconWidget::IconWidget(const QString &path, const QString &color, const QSize &size,
                       const QString &colorToReplace, QWidget *parent)
    : QWidget(parent)
    , m_path(MediaHelper::resourcePath(path))
    , m_color(color)
    , m_colorToReplace(colorToReplace)
{
    if (size.width() > 0 && size.height() > 0)
        setFixedSize(size);
}

bool IconWidget::isAnimated()
{
    load();
    return m_isAnimated;
}

void IconWidget::load()
{
    if (m_path.endsWith(".svg"_L1)) {
        loadDrawing();
    } else if (!m_path.isEmpty()) {
        m_picture = bitmap(m_path);
        m_naturalSize = m_picture.size();
    }
    m_path.clear();
}

void IconWidget::loadDrawing()
{
    const QString text = m_color.isEmpty() ? SvgText::read(m_path)
                                           : MediaHelper::recolorSVG(m_path, m_color, m_colorToReplace);
    m_picture = SvgText::rendered(text).convertToFormat(QImage::Format_RGBA8888);
    if (m_picture.isNull())
        return; // unreadable, or nothing that a renderer should be trusted with
    m_renderer = new QSvgRenderer(text.toUtf8(), this);
    m_isAnimated = m_renderer->animated();
    m_naturalSize = m_renderer->defaultSize();
    if (m_isAnimated) {
        connect(m_renderer, &QSvgRenderer::repaintNeeded, this, [this] {
            if (isLive())
                update();
        });
    }
}

void IconWidget::animate(bool on)
{
    m_animate = on;
}

void IconWidget::setInvertedEnabledBehavior(bool inverted)
{
    m_invertedEnabledBehavior = inverted;
    update();
}

bool IconWidget::isLive() const
{
    return m_animate && isEnabled() != m_invertedEnabledBehavior;
}

void IconWidget::paintEvent(QPaintEvent *)
{
    load();
    QPainter painter(this);
    painter.fillRect(rect(), Qt::transparent);
    if (m_naturalSize.isEmpty())
        return;
    if (!isEnabled())
        painter.setOpacity(DisabledOpacity);
    const QRectF target = iconFit(size(), m_naturalSize);
    if (m_renderer && isLive()) {
        m_renderer->render(&painter, target);
    } else if (!m_picture.isNull()) {
        const QSize whole(static_cast<int>(target.width()), static_cast<int>(target.height()));
        painter.drawImage(target.topLeft(),
                          m_picture.scaled(whole, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }
}
