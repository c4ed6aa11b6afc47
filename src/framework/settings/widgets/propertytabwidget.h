#pragma once

#include "framework/settings/widgets/basepropertylistwidget.h"

class AbstractSettings;
class PropertyListControl;
class QTabWidget;

/// A form with a tab for each category; a tab whose rows are all hidden is hidden too.
class PropertyTabWidget : public BasePropertyListWidget
{
    Q_OBJECT

public:
    explicit PropertyTabWidget(AbstractSettings *settings, QWidget *parent = nullptr);

    /// Into the form of a tab, see PropertyListControl.
    void addWidgetToLayout(int tab, QWidget *widget, int row, int column, int rowSpan = 1, int columnSpan = 1,
                           Qt::Alignment alignment = {});
    QTabWidget *getTabWidget() const { return m_tabs; }
    void moveTab(const QString &category, int to, bool select);
    /// Of the forms in all tabs.
    void setPadding(int padding);
    int tabCount() const;

private:
    void addTab(AbstractSettings *settings, const QString &category);
    PropertyListControl *formAt(int tab) const;

    QTabWidget *m_tabs = nullptr;
};
