#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

class NStackPanel;
class QGridLayout;
class QLabel;
class QScrollArea;

/// A stack panel in a scroll area, with a placeholder that lies over it while it is empty.
class NScrollViewer : public QWidget
{
    Q_OBJECT

public:
    explicit NScrollViewer(Qt::Orientation orientation, QWidget *parent = nullptr);

    /// As the functions of the panel.
    void add(QWidget *item);
    void remove(QWidget *item);
    void clear();
    int count() const;
    QWidget *itemAt(int index) const;
    void setItemVisible(int index, bool isItemVisible);
    void setItemAlignment(QWidget *item, Qt::Alignment alignment);
    void setItemAlignmentByIndex(int index, Qt::Alignment alignment);
    void setItemPadding(int padding);
    void setItemPadding(int left, int top, int right, int bottom);
    void setSpacing(int spacing);

    /// Takes over \a placeholder and deletes the one before it; null just removes that.
    void setPlaceholderWidget(QWidget *placeholder, Qt::Alignment alignment);
    QLabel *setPlaceholderText(const QString &text, Qt::Alignment alignmentInCell,
                               Qt::Alignment textAlignment, const QString &objectName, int margin);

    /// \a borderWidth in pixels; \a blackInner makes the contents black whatever the colour.
    void setBackgroundAndBorder(const QColor &color, uchar borderWidth, const QColor &borderColor,
                                bool blackInner);
    void setBackground(const QColor &color, bool blackInner = false);
    void setTransparentBackground(bool blackInner = false);

    /// The style sheet that setBackgroundAndBorder() gives to the scroll area.
    static QString styleText(const QColor &color, uchar borderWidth, const QColor &borderColor,
                             bool blackInner);

public slots:
    void checkPlaceholder();

private:
    QScrollArea *m_area = nullptr;
    NStackPanel *m_panel = nullptr;
    QPointer<QWidget> m_placeholder;
    QGridLayout *m_grid = nullptr;
};
