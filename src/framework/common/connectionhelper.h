#pragma once

#include <QList>
#include <QMetaObject>

/// A list of signal connections that end together, at the latest with this object.
class ConnectionHelper
{
public:
    ConnectionHelper() = default;
    ~ConnectionHelper();
    Q_DISABLE_COPY_MOVE(ConnectionHelper)

    ConnectionHelper &operator<<(const QMetaObject::Connection &connection);

    /// Disconnects all and empties the list.
    void clear();
    static void clear(QList<QMetaObject::Connection> &connections);

private:
    QList<QMetaObject::Connection> m_connections;
};
