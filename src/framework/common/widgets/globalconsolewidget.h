#pragma once

#include <QStringList>
#include <QTextEdit>

/// Shows the console live, the newest entry at the top. Entries are HTML; nothing that they refer to is
/// loaded.
class GlobalConsoleWidget : public QTextEdit
{
    Q_OBJECT

public:
    explicit GlobalConsoleWidget(QWidget *parent = nullptr);

    QVariant loadResource(int type, const QUrl &name) override;

public slots:
    void newEntry(const QString &text);

signals:
    void closing();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    static void fill(QTextDocument *document, QString text);
    void endPass();
    void showPending();

    /// Entries on their way, the oldest first.
    QStringList m_pending;
    int m_entriesOfPass = 0;
    int m_linesShown = 0;
};
