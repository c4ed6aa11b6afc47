#pragma once

#include "framework/common/connectionhelper.h"

#include <QObject>
#include <QString>

/// What a widget shows of a newer version. The first one made starts the periodic check.
class NewVersionChecker : public QObject
{
    Q_OBJECT

public:
    /// An empty \a preliminaryText, which stands in front of the version, means the application's name.
    explicit NewVersionChecker(const QString &preliminaryText, QObject *parent = nullptr);

    void setPreliminaryText(const QString &text);
    /// Tells what is known, also what was known before anybody listened.
    void update();
    /// Opens the download page, if the service gave an address of the web.
    void action();

signals:
    void newVersion();
    void onSetVisible(bool vis);
    void onSetText(const QString &text);
    void onSetTooltip(const QString &tooltip);

private:
    ConnectionHelper m_connections;
    QString m_preliminaryText;
    QString m_link;
};
