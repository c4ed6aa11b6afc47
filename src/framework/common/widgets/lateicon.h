#pragma once

#include <QIcon>
#include <QIconEngine>
#include <QString>

#include <functional>

/// An icon that is made when it is first painted or measured: decoding a bitmap is dear, and of a list's
/// icons mostly one is seen. It never says that it is null, which would mean making it.
class LateIcon : public QIconEngine
{
public:
    using Make = std::function<QIcon()>;

    explicit LateIcon(const Make &make);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;

private:
    const QIcon &made();

    Make m_make; ///< null once the icon is made
    QIcon m_icon;
};
