#include "framework/common/connectionhelper.h"

#include <QObject>
#include <QTest>

class TestConnectionHelper : public QObject
{
    Q_OBJECT

private slots:
    void connectionsEndTogether()
    {
        QObject sender;
        int calls = 0;
        const auto count = [&calls] { ++calls; };
        {
            ConnectionHelper helper;
            helper << connect(&sender, &QObject::objectNameChanged, this, count)
                   << connect(&sender, &QObject::objectNameChanged, this, count);
            sender.setObjectName("a");
            QCOMPARE(calls, 2);
            helper.clear();
            sender.setObjectName("b");
            QCOMPARE(calls, 2);
            helper << connect(&sender, &QObject::objectNameChanged, this, count);
        }
        sender.setObjectName("c");
        QCOMPARE(calls, 2);

        QList<QMetaObject::Connection> list{connect(&sender, &QObject::objectNameChanged, this, count)};
        ConnectionHelper::clear(list);
        sender.setObjectName("d");
        QCOMPARE(calls, 2);
        QVERIFY(list.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestConnectionHelper)
#include "tst_connectionhelper.moc"
