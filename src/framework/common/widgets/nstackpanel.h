#pragma once

#include <QList>
#include <QMargins>
#include <QWidget>

class QBoxLayout;

/// A row or column of widgets that pack to its start; the last one takes up what is left. Items are children
/// of the panel until they are removed.
class NStackPanel : public QWidget
{
    Q_OBJECT

public:
    explicit NStackPanel(Qt::Orientation orientation, QWidget *parent = nullptr);

    /// Adding sets the alignment of all items anew, which undoes setItemAlignment(). Null is ignored.
    void add(QWidget *item);
    NStackPanel &operator<<(QWidget *item);
    /// The item lives on and belongs to the caller.
    void remove(QWidget *item);
    void clear();

    /// Null out of range.
    QWidget *at(int index) const;
    int count() const;

    void setItemAlignment(QWidget *item, Qt::Alignment alignment);
    void setItemAlignmentByIndex(int index, Qt::Alignment alignment);
    /// Of the items now present.
    void setItemPadding(int padding);
    void setItemPadding(int left, int top, int right, int bottom);
    void setPadding(int padding);
    void setPadding(int left, int top, int right, int bottom);
    void setSpacing(int spacing);
    /// The items keep the alignment that they have until the next one is added or removed.
    void setOrientation(Qt::Orientation orientation);

protected:
    void childEvent(QChildEvent *event) override;

private:
    void realign();

    Qt::Orientation m_orientation = Qt::Vertical;
    QBoxLayout *m_layout = nullptr;
    QList<QWidget *> m_items;
    QMargins m_padding;
};
