#include "samplesettings.h"

#include "framework/settings/metadescription.h"
#include "framework/settings/metadescriptor.h"

#include <QColor>
#include <QDateTime>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// Declarations that the macros do not produce.
class OddObject : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int A MEMBER a)
    Q_CLASSINFO("AEditable", "TRUE")
    Q_CLASSINFO("ANotVisible", "")
    Q_CLASSINFO("ADisplayName", "Caption")
    Q_CLASSINFO("APriority", "2147483647")
    Q_CLASSINFO("AReadOnly", "")
    Q_CLASSINFO("AMinimum", "many")
    Q_CLASSINFO("AMaximum", "1.5f")
    Q_CLASSINFO("AStep", "QSize(7, 9)")
    Q_CLASSINFO("AVisibleBinded", "!ShowIR;Mode:A|B;At:12:30;;Plain")
    Q_PROPERTY(double D MEMBER d)
    Q_CLASSINFO("DDefault", "0.5f")
    Q_PROPERTY(QString S MEMBER s)
    Q_CLASSINFO("SDefault", "\"\"")
    Q_PROPERTY(QString Called MEMBER s)
    Q_CLASSINFO("CalledDefault", "answer()")
    Q_PROPERTY(QString Unknown MEMBER s)
    Q_CLASSINFO("UnknownDefault", "missing()")
    Q_PROPERTY(QString NoDate MEMBER s)
    Q_CLASSINFO("NoDateDefault", "QDateTime()")
    Q_PROPERTY(QColor Hex MEMBER c)
    Q_CLASSINFO("HexDefault", "QColor(\"#12aBef\")")
    Q_PROPERTY(QColor Global MEMBER c)
    Q_CLASSINFO("GlobalDefault", "Qt::red")
    Q_PROPERTY(QColor Named MEMBER c)
    Q_CLASSINFO("NamedDefault", "QColor(\"navy\")")
    Q_PROPERTY(QColor Other MEMBER c)
    Q_CLASSINFO("OtherDefault", "someColor")
    Q_PROPERTY(Qt::SortOrder Order MEMBER order)
    Q_CLASSINFO("OrderDefault", "Qt::SortOrder::DescendingOrder")
    Q_PROPERTY(QPoint Spot MEMBER spot RESET resetSpot)
    Q_CLASSINFO("SpotDefault", "QPoint(1, 2)")

public:
    void resetSpot() { spot = {5, 6}; }
    Q_INVOKABLE QString answer() const { return u"42"_s; }

    int a = 0;
    double d = 0;
    QString s;
    QColor c;
    Qt::SortOrder order = Qt::AscendingOrder;
    QPoint spot;
};

class TestMetaDescription : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void propertiesAreListedInDeclarationOrder()
    {
        SampleSettings settings;
        QCOMPARE(settings.getPropertiesNames().join(' '_L1),
                 u"Drive Delay Count Active Title Ratio Blob Place Spot Extent Octet Fleeting"_s);
        QCOMPARE(settings.metaDescriptor()->at(12), nullptr);
        QCOMPARE(settings.metaDescriptor()->at(-1), nullptr);
        const AbstractMetaDescription &fleeting = *settings.getPropertyByName(u"Fleeting"_s);
        QVERIFY(!fleeting.editable && !fleeting.hasDefault && fleeting.visible);
        QCOMPARE(settings.metaDescriptor()->getPropertiesNameAndType().value(u"Drive"_s), u"Enum"_s);
    }

    void wordsFillTheirFields()
    {
        SampleSettings settings;
        const AbstractMetaDescription &delay = *settings.getPropertyByName(u"Delay"_s);
        QVERIFY(delay.editable && delay.visible && delay.showDefault && delay.hasMin && delay.hasMax);
        QCOMPARE(delay.step, 0.1);
        QCOMPARE(delay.suffix, u" s"_s);
        QCOMPARE(delay.priority, 3);
        QCOMPARE(delay.extras, (QMap<QString, QString>{{u"Precision"_s, u"1"_s}}));
        QVERIFY(delay.category.isNull() && !delay.hasSpecialType && !delay.prefix.isNull());
        const AbstractMetaDescription &title = *settings.getPropertyByName(u"Title"_s);
        QCOMPARE(title.pickOption, u"PickFile"_s);
        QCOMPARE(title.pickExtensions, u"*.xml:*.json"_s);
        const AbstractMetaDescription &drive = *settings.getPropertyByName(u"Drive"_s);
        QVERIFY(!drive.showDefault);
        QCOMPARE(drive.typeId, int(QMetaType::Int));

        OddObject odd;
        MetaDescriptor descriptor;
        descriptor.set(&odd);
        const AbstractMetaDescription &a = *descriptor.propertyByName(u"A"_s);
        QVERIFY(!a.editable && !a.visible && a.readOnly && !a.hasMin && a.hasMax && a.hasStep);
        QCOMPARE(a.max, 1.5);
        QCOMPARE(a.step, 7.0);
        QCOMPARE(a.displayName, u"Caption"_s);
        QCOMPARE(a.priority, AbstractMetaDescription::NoPriority);
        QCOMPARE(a.visibleBound, (QMap<QString, QString>{{u"ShowIR"_s, u"false"_s},
                                                         {u"Mode"_s, u"A|B"_s},
                                                         {u"At"_s, u"12:30"_s},
                                                         {u"Plain"_s, u"true"_s}}));
    }

    void defaultExpressionsAreRead_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("D") << u"0.5"_s;
        QTest::newRow("S") << u""_s;
        QTest::newRow("Called") << u"42"_s;
        QTest::newRow("Unknown") << u"missing()"_s;
        QTest::newRow("NoDate") << u""_s;
        QTest::newRow("Hex") << u"#12aBef"_s;
        QTest::newRow("Global") << u"#ff0000"_s;
        QTest::newRow("Named") << u"#000080"_s;
        QTest::newRow("Other") << u"someColor"_s;
        QTest::newRow("Order") << u"DescendingOrder"_s;
    }

    void defaultExpressionsAreRead()
    {
        QFETCH(QString, text);
        OddObject odd;
        MetaDescriptor descriptor;
        descriptor.set(&odd);
        const AbstractMetaDescription &property =
            *descriptor.propertyByName(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(property.hasDefault && !property.defaultText.isNull());
        QCOMPARE(property.defaultText, text);
    }

    void memberWinsOverTheDeclaredDefault()
    {
        SampleSettings settings;
        AbstractMetaDescription &delay = *settings.getPropertyByName(u"Delay"_s);
        delay.defaultText = u"7"_s;
        settings.setDelay(9);
        QSignalSpy changed(&delay, &AbstractMetaDescription::valueChanged);
        delay.setDefault();
        QCOMPARE(settings.getDelay(), 5.0);
        QCOMPARE(delay.defaultText, u"5"_s);
        changed.clear();
        delay.setDefault();
        QCOMPARE(changed.size(), 1);
        AbstractMetaDescription &place = *settings.getPropertyByName(u"Place"_s);
        settings.setPlace({8, 8});
        place.setDefault();
        QCOMPARE(settings.getPlace(), QPoint(1, 2));
        OddObject odd;
        MetaDescriptor descriptor;
        descriptor.set(&odd);
        descriptor.propertyByName(u"Spot"_s)->setDefault();
        QCOMPARE(odd.spot, QPoint(5, 6));

        AbstractMetaDescription &fleeting = *settings.getPropertyByName(u"Fleeting"_s);
        QSignalSpy quiet(&fleeting, &AbstractMetaDescription::valueChanged);
        fleeting.setDefault();
        QCOMPARE(quiet.size(), 0);
    }

    void pointTextsNeedBothNumbers_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("QPoint(3,4)") << u"Place"_s << true << QVariant(QPoint(3, 4));
        QTest::newRow("3") << u"Place"_s << false << QVariant(QPoint(1, 2));
        QTest::newRow("1,2,3") << u"Place"_s << false << QVariant(QPoint(1, 2));
        QTest::newRow("1e300, -1e300") << u"Place"_s << true << QVariant(QPoint(INT_MAX, INT_MIN));
        QTest::newRow("QPointF(1.5f, 2.5f)") << u"Spot"_s << true << QVariant(QPointF(1.5, 2.5));
        QTest::newRow("7.9, 8") << u"Extent"_s << true << QVariant(QSize(7, 8));
    }

    void pointTextsNeedBothNumbers()
    {
        QFETCH(QString, property);
        QFETCH(bool, ok);
        QFETCH(QVariant, value);
        SampleSettings settings;
        QCOMPARE(settings.setTextValue(property, QString::fromLatin1(QTest::currentDataTag())), ok);
        QCOMPARE(settings.getValue(property), value);
    }

    void changesFromElsewhereAreSignalled()
    {
        SampleSettings settings;
        QSignalSpy changed(settings.getPropertyByName(u"Title"_s), &AbstractMetaDescription::valueChanged);
        settings.setTitle(u"x"_s);
        QCOMPARE(changed.value(0).value(0).value<QVariant>(), QVariant(u"x"_s));
    }

    void capabilitiesHoldOnlyWhatApplies()
    {
        SampleSettings settings;
        settings.getPropertyByName(u"Active"_s)->visible = false;
        QCOMPARE(settings.getAllCapabilitiesJson(true).size(), 12);
        const QJsonArray shown = settings.getAllCapabilitiesJson(false);
        QCOMPARE(shown.size(), 10);
        QCOMPARE(shown.at(2).toObject(),
                 (QJsonObject{{u"name"_s, u"Count"_s},
                              {u"type"_s, u"int"_s},
                              {u"value"_s, 2},
                              {u"default"_s, u"2"_s},
                              {u"min"_s, 1},
                              {u"max"_s, 10},
                              {u"step"_s, 1},
                              {u"suffix"_s, u"pcs"_s},
                              {u"visibleBound"_s, u"Active:false;At:12:30;Drive:Slow|Fast"_s}}));
        QCOMPARE(
            settings.getPropertyCapabilities(u"Delay"_s).join(' '_L1),
            uR"("name"="Delay" "type"="double" "default"="5" "value"="5" "minimum"="0" "maximum"="100" "step"="0.1")"_s);
        QVERIFY(settings.getPropertyCapabilities(u"Nothing"_s).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestMetaDescription)
#include "tst_metadescription.moc"
