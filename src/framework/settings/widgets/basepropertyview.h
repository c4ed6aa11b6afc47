#pragma once

#include "framework/common/connectionhelper.h"

#include <QPointer>
#include <QVariant>
#include <QWidget>

#include <functional>

class AbstractMetaDescription;
class QHBoxLayout;
class QPushButton;

/// The editor of one property: a widget that shows and writes the value, and behind it a button that sets
/// the default and is down while the value is not the default.
class BasePropertyView : public QWidget
{
    Q_OBJECT

public:
    explicit BasePropertyView(AbstractMetaDescription *description, QWidget *parent = nullptr);

    /// The editing widget; null without one.
    virtual QWidget *getEditor();
    /// Disconnects and destroys the editing widget.
    virtual void nullifyEditor();
    virtual void up();
    virtual void down();

protected slots:
    /// Shows the value without writing it back.
    virtual void metaValueChanged(const QVariant &value);

public slots:
    static QString translatedSuffixOrPrefix(const QString &value);

public:
    void showDefaultButton(bool isShown);
    /// Puts \a editor in the place of the editing widget; what it does is the caller's business.
    void substituteEditor(QWidget *editor);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    AbstractMetaDescription *description() const;
    /// Makes \a editor the editing widget and adds the default button behind it.
    void setEditor(QWidget *editor, int editorStretch = 0);
    /// Tells what \a control is to those who don't see the caption; \a part names one of several controls.
    void nameControl(QWidget *control, const QString &part = {});
    void setDefaultButtonStretch(int stretch);
    void setDefaultButtonChecked(bool isDefault);
    void showCurrentValue();
    void write(const QVariant &value);
    /// Writes what \a read gives when control has returned to the event loop, and nothing if that is invalid.
    void writeQueued(const std::function<QVariant()> &read);
    ConnectionHelper &connections() { return m_connections; }

private:
    void addDefaultButton();
    void guardFromWheel(QWidget *control);

    QHBoxLayout *m_layout = nullptr;
    QPointer<AbstractMetaDescription> m_description;
    QPointer<QWidget> m_editor;
    QPushButton *m_defaultButton = nullptr;
    ConnectionHelper m_connections;
    bool m_isWritePending = false;
    bool m_isDefaultButtonShown = true;
};
