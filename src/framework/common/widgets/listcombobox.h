#pragma once

#include <QComboBox>

/// A combo box whose items the style sheet reaches, as it does not those of the view that Qt gives it. The
/// view is dearer than the box, and most are never opened: it is made when it is first shown.
class ListComboBox : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    void showPopup() override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;

private:
    bool m_hasListView = false;
    mutable bool m_isMeasured = false;
};
