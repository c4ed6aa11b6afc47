#pragma once

#include <QPushButton>

/// A push button that tells of the mouse, its state and its visibility.
class NPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit NPushButton(QWidget *parent = nullptr);
    explicit NPushButton(const QString &text, QWidget *parent = nullptr);
    NPushButton(const QIcon &icon, const QString &text, QWidget *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /// These act, and speak, only on a change.
    void enable();
    void disable();
    void setEnabledState(bool isEnabled);

signals:
    void mouseHover();
    void mouseLeft();
    void mouseHoverChanged(bool hovered);
    void disabled();
    void enabled();
    void enabledStateChanged(bool enabled);
    void doubleClicked();
    void onHidden();
    void onShown();
    void onVisibleChanged(bool visible);

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void setHovered(bool hovered);

    bool m_hovered = false;
};
