#pragma once

#include <QWidget>

/// The experiments on disk.
class PageDatabase : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// The records changed: the page is to be filled anew when it is next shown.
    void setNeedsReload() { m_needsReload = true; }
    bool needsReload() const { return m_needsReload; }

private:
    bool m_needsReload = true;
};
