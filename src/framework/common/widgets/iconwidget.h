#pragma once

#include <QImage>
#include <QSize>
#include <QWidget>

class QSvgRenderer;

/// A picture that fills the widget with its proportions kept. An animated drawing moves while the widget is
/// enabled, or while it is disabled with the inverted behaviour; a disabled widget is half transparent.
class IconWidget : public QWidget
{
    Q_OBJECT

public:
    /// A drawing (".svg") takes \a color unless that is empty, see MediaHelper::recolorSVG. A \a size above 0
    /// is fixed.
    IconWidget(const QString &path, const QString &color, const QSize &size, const QString &colorToReplace,
               QWidget *parent = nullptr);

    void animate(bool on);
    bool isAnimated();
    void setInvertedEnabledBehavior(bool inverted);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void load();
    void loadDrawing();
    bool isLive() const;

    QString m_path; ///< empty once the picture is loaded, which it is when it is needed
    QString m_color;
    QString m_colorToReplace;
    QImage m_picture;
    QSvgRenderer *m_renderer = nullptr;
    bool m_isAnimated = false;
    QSize m_naturalSize{0, 0};
    bool m_animate = true;
    bool m_invertedEnabledBehavior = false;
};
