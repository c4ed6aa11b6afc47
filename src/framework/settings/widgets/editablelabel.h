#pragma once

#include <QLineEdit>

/// A line that is as wide as its text.
class EditableLabel : public QLineEdit
{
    Q_OBJECT

public:
    explicit EditableLabel(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    void resizeByContents();

private:
    int m_leastWidth = -1; // the minimum width before the width was fixed
};
