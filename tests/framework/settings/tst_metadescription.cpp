#include "samplesettings.h"

#include "framework/settings/metadescription.h"
#include "framework/settings/metadescriptor.h"

#include <QColor>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
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
        QVERIFY(!settings.metaDescriptor()->at(12) && !settings.metaDescriptor()->at(-1));
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
        QVERIFY(!settings.getPropertyByName(u"Drive"_s)->showDefault);

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

    void defaultExpressionsAreRead()
    {
        OddObject odd;
        MetaDescriptor descriptor;
        descriptor.set(&odd);
        const QMap<QString, QString> texts{{u"D"_s, u"0.5"_s},           {u"S"_s, u""_s},
                                           {u"Called"_s, u"42"_s},       {u"Unknown"_s, u"missing()"_s},
                                           {u"NoDate"_s, u""_s},         {u"Hex"_s, u"#12aBef"_s},
                                           {u"Global"_s, u"#ff0000"_s},  {u"Named"_s, u"#000080"_s},
                                           {u"Other"_s, u"someColor"_s}, {u"Order"_s, u"DescendingOrder"_s}};
        for (const auto &[name, text] : texts.asKeyValueRange()) {
            const AbstractMetaDescription &property = *descriptor.propertyByName(name);
            QVERIFY2(property.hasDefault && !property.defaultText.isNull(), qPrintable(name));
            QCOMPARE(property.defaultText, text);
        }
    }

    void memberWinsOverTheDeclaredDefault()
    {
        SampleSettings settings;
        AbstractMetaDescription &delay = *settings.getPropertyByName(u"Delay"_s);
        delay.defaultText = u"7"_s;
        settings.setDelay(9);
        delay.setDefault();
        QCOMPARE(settings.getDelay(), 5.0);
        QCOMPARE(delay.defaultText, u"5"_s);
        settings.setPlace({8, 8});
        settings.getPropertyByName(u"Place"_s)->setDefault();
        QCOMPARE(settings.getPlace(), QPoint(1, 2));
        OddObject odd;
        MetaDescriptor descriptor;
        descriptor.set(&odd);
        descriptor.propertyByName(u"Spot"_s)->setDefault();
        QCOMPARE(odd.spot, QPoint(5, 6));

        // Told even if nothing changed, but not of a property without a default.
        for (const auto &[name, signalCount] : {std::pair(u"Delay"_s, 1), {u"Fleeting"_s, 0}}) {
            AbstractMetaDescription &property = *settings.getPropertyByName(name);
            QSignalSpy changed(&property, &AbstractMetaDescription::valueChanged);
            property.setDefault();
            QCOMPARE(changed.size(), signalCount);
        }
    }

    void pointTextsNeedBothNumbers()
    {
        SampleSettings settings;
        QVERIFY(settings.setTextValue(u"Place"_s, u"QPoint(3,4)"_s));
        QVERIFY(!settings.setTextValue(u"Place"_s, u"3"_s));
        QVERIFY(!settings.setTextValue(u"Place"_s, u"1,2,3"_s));
        QCOMPARE(settings.getPlace(), QPoint(3, 4));
        QVERIFY(settings.setTextValue(u"Place"_s, u"1e300, -1e300"_s));
        QCOMPARE(settings.getPlace(), QPoint(INT_MAX, INT_MIN));
        QVERIFY(settings.setTextValue(u"Spot"_s, u"QPointF(1.5f, 2.5f)"_s));
        QCOMPARE(settings.getSpot(), QPointF(1.5, 2.5));
        QVERIFY(settings.setTextValue(u"Extent"_s, u"7.9, 8"_s));
        QCOMPARE(settings.getExtent(), QSize(7, 8));
    }

    void capabilitiesHoldOnlyWhatApplies()
    {
        SampleSettings settings;
        settings.getPropertyByName(u"Active"_s)->visible = false;
        QCOMPARE(settings.getAllCapabilitiesJson(true).size(), 12);
        const QJsonArray shown = settings.getAllCapabilitiesJson(false);
        QCOMPARE(shown.size(), 10);
        QCOMPARE(QJsonDocument(shown.at(2).toObject()).toJson(QJsonDocument::Compact),
                 R"({"default":"2","max":10,"min":1,"name":"Count","step":1,"suffix":"pcs","type":"int",)"
                 R"("value":2,"visibleBound":"Active:false;At:12:30;Drive:Slow|Fast"})");
        QCOMPARE(
            settings.getPropertyCapabilities(u"Delay"_s).join(' '_L1),
            uR"("name"="Delay" "type"="double" "default"="5" "value"="5" "minimum"="0" "maximum"="100" "step"="0.1")"_s);
        QVERIFY(settings.getPropertyCapabilities(u"Nothing"_s).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestMetaDescription)
#include "tst_metadescription.moc"
