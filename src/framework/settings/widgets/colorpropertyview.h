#pragma once

#include "framework/settings/widgets/basepropertyview.h"

#include <QColor>

class QLabel;
class QPushButton;

/// A field in the colour, over chequers where it is translucent, and the colour's text.
class ColorPropertyView : public BasePropertyView
{
    Q_OBJECT

public:
    explicit ColorPropertyView(AbstractMetaDescription *description, QWidget *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected slots:
    void metaValueChanged(const QVariant &value) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void pick();

    QPointer<QPushButton> m_button;
    QPointer<QLabel> m_label;
};
