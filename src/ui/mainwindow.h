#pragma once

#include "framework/common/connectionhelper.h"

#include <QColor>
#include <QList>
#include <QMainWindow>

class NEllipse;
class PageDatabase;
class QHBoxLayout;
class QPushButton;
class QStackedWidget;
class SpinbarModel;

/// The application's one window: a header with a button for each page, and the pages. A dot on the Device
/// button means that a recording runs; one on the Records button that a recording has ended since that page
/// was last opened.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// \a model is the one that SpinbarModel::instance() gives, and outlives the window.
    MainWindow(SpinbarModel *model, QWidget *parent);

signals:
    /// Control+Alt+Shift+F3 was released: the operator wants to write parameters to the instrument.
    void deviceWriterRequested();

protected:
    /// Ends a recording in the ordinary way.
    void closeEvent(QCloseEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    void createPages(QHBoxLayout *header);
    /// The button's dot, or null without a \a dotColor.
    NEllipse *addPage(QHBoxLayout *header, QWidget *page, const QString &title, const QColor &dotColor = {});
    void openPage(QWidget *page, const QPushButton *button);
    void connectModel();
    void askForRestart();
    void revertLanguage();

    SpinbarModel *m_model = nullptr;
    QStackedWidget *m_stack = nullptr;
    PageDatabase *m_database = nullptr;
    QList<QPushButton *> m_pageButtons;
    NEllipse *m_deviceIndicator = nullptr;
    NEllipse *m_recordsIndicator = nullptr;
    bool m_askingForRestart = false;
    ConnectionHelper m_connections;
};
