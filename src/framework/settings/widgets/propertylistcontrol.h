#pragma once

#include "framework/settings/widgets/basepropertylistwidget.h"

#include <QHash>

class AbstractMetaDescription;
class AbstractSettings;
class QLayout;
class QLabel;

/// The form that is generated for a settings object: a caption and an editor for each property. Rows are made
/// by the constructor and later only shown and hidden. The settings object is not owned.
class PropertyListControl : public BasePropertyListWidget
{
    Q_OBJECT

public:
    enum ViewMode {
        ViewMode_All = 0,
        ViewMode_Category = 1, ///< the category that the filter names
        ViewMode_Property = 2, ///< the property that the filter names, visible or not; without a scroll area
        ViewMode_AllNoScroll = 3
    };
    Q_ENUM(ViewMode)

    PropertyListControl(AbstractSettings *settings, const QString &filter, ViewMode mode,
                        QWidget *parent = nullptr);
    explicit PropertyListControl(AbstractMetaDescription *description, QWidget *parent = nullptr);

    void addWidgetToFirstRow(QWidget *widget, int column, Qt::Alignment alignment = {});
    void addLayoutToFirstRow(QLayout *layout, int column, Qt::Alignment alignment = {});
    /// In a new row.
    void addWidgetToLastRow(QWidget *widget, int column, Qt::Alignment alignment = {});
    void addLayoutToLastRow(QLayout *layout, int column, Qt::Alignment alignment = {});
    /// A negative row is the last one.
    void addWidgetToLayout(QWidget *widget, int row, int column, int rowSpan = 1, int columnSpan = 1,
                           Qt::Alignment alignment = {});
    void addLayoutToLayout(QLayout *layout, int row, int column, int rowSpan = 1, int columnSpan = 1,
                           Qt::Alignment alignment = {});

    void setPadding(int padding);
    void setPadding(int left, int top, int right, int bottom);
    int getHeaderColumnWidth() const;
    /// No limit if negative.
    void setMaximumHeaderColumnWidth(int width);
    void setMinimumEditorWidth(int width);

    /// These are false if there is no such row. A header may be null, which leaves the cell empty.
    bool showHeader(const QString &name, bool show);
    bool substituteEditor(const QString &name, QWidget *editor);
    bool substituteHeader(const QString &name, QWidget *header, Qt::Alignment alignment = {});

    /// Whether the form of one category follows the visibility conditions of its rows.
    void setManageCategoryVisibility(bool manage);
    /// To be compared with zero: a row without condition may count twice.
    int visibleProperties() const;

    QSize sizeHint() const override;

signals:
    void propertyVisibilityChanged(int visibleProperties);
    void manageCategoryVisibilityChanged();

private:
    void createInner();
    void placeInner();
    void placeInnerInScrollArea();
    void addCategory(const QString &category);
    void addCategoryCaption(const QString &category);
    int addPropertyToLayout(AbstractMetaDescription *description, QGridLayout *grid);
    static QWidget *createCaption(const AbstractMetaDescription &description);
    static BasePropertyView *getPropertyView(AbstractMetaDescription *description, int &columnSpan,
                                             QWidget *parent);

    void bindVisibility(AbstractMetaDescription *description);
    bool checkVisibility(const QString &name, const QString &condition) const;
    bool isVisibleByConditions(const AbstractMetaDescription &description) const;
    void updateVisibility(AbstractMetaDescription *description);
    int countVisible(const QString &category) const;

    ViewMode m_mode = ViewMode_All;
    QWidget *m_inner = nullptr;
    QGridLayout *m_grid = nullptr;
    QHash<QString, int> m_categoryRows;
    bool m_manageCategoryVisibility = false;
    int m_visibleRows = 0; // at the last evaluation
    int m_unconditionalRows = 0;
};
