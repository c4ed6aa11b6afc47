#pragma once

#include "framework/settings/widgets/categoryindex.h"

#include "framework/common/connectionhelper.h"

#include <QList>
#include <QStringList>
#include <QWidget>

class BasePropertyView;
class QGridLayout;

/// What forms have in common: the rows that were generated, by name, and the order in which the keyboard goes
/// through them.
class BasePropertyListWidget : public QWidget
{
    Q_OBJECT

public:
    struct PropertyWidgetInfo
    {
        QString name;               ///< empty for a row that was not found
        QWidget *caption = nullptr; ///< null if it was taken away
        BasePropertyView *editor = nullptr;
        int row = -1;
    };

    explicit BasePropertyListWidget(QWidget *parent = nullptr);

    PropertyWidgetInfo getWidgetInfo(int index) const;
    PropertyWidgetInfo getWidgetInfo(const QString &name) const;

    void showItems(const QStringList &names, bool show);
    void hideItems(const QStringList &names);
    void showHeaders(bool show);
    void showDefaultButtons(bool show);
    void setEditorsEnabled(bool enabled);

    /// Whether the first editor takes the focus when the form is shown and when its rows change.
    void setAutoFocus(bool autoFocus);
    /// The focus goes there after the pending events.
    void setFocusAt(int index);
    void setFocusAt(const PropertyWidgetInfo &info);
    void setFocusAt(const QString &name);
    void setFocusAtFirst();

protected:
    void showEvent(QShowEvent *event) override;

    QGridLayout *rootLayout() const { return m_rootLayout; }
    const QList<PropertyWidgetInfo> &infos() const { return m_infos; }
    PropertyWidgetInfo *findInfo(const QString &name);
    void addInfo(const PropertyWidgetInfo &info);
    const CategoryIndex &index() const { return m_index; }
    void buildIndex(const AbstractMetaDescriptor &descriptor);
    ConnectionHelper &connections() { return m_connections; }
    /// Chains the editors that are visible in the order of their rows.
    void reorderTabOrder();

private:
    QGridLayout *m_rootLayout = nullptr;
    QList<PropertyWidgetInfo> m_infos; // in order of creation
    ConnectionHelper m_connections;
    CategoryIndex m_index;
    bool m_autoFocus = true;
};
