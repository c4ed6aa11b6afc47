#include "framework/common/connectionhelper.h"

#include <QObject>

#include <utility>

ConnectionHelper::~ConnectionHelper()
{
    clear();
}

ConnectionHelper &ConnectionHelper::operator<<(const QMetaObject::Connection &connection)
{
    m_connections.append(connection);
    return *this;
}

void ConnectionHelper::clear()
{
    clear(m_connections);
}

void ConnectionHelper::clear(QList<QMetaObject::Connection> &connections)
{
    // Taken first: a functor destroyed by its disconnection may come back here.
    const QList<QMetaObject::Connection> ending = std::exchange(connections, {});
    for (const QMetaObject::Connection &connection : ending)
        QObject::disconnect(connection);
}
