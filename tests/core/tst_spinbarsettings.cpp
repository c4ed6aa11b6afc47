#include "core/spinbarsettings.h"

#include "framework/settings/languagecontext.h"
#include "framework/settings/settingswalk.h"
#include "framework/settings/startlanguage.h"

#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray FileAfterOneChange = R"(<?xml version="1.0"?>
<SpinbarSettings>
    <Language>ru_RU</Language>
    <ColorTheme>System</ColorTheme>
    <StartMaximized>true</StartMaximized>
    <ExportBehavior>OnExport_OpenFile</ExportBehavior>
    <RodentMode>Rats</RodentMode>
    <RotationDimension>CentimetersPerSecond</RotationDimension>
    <MinDetectionSeconds>5</MinDetectionSeconds>
    <MaxTrailDetectionSeconds>2</MaxTrailDetectionSeconds>
    <ShowIR>true</ShowIR>
    <CalibrationRats></CalibrationRats>
    <CalibrationMice></CalibrationMice>
    <LastImportFolder></LastImportFolder>
    <LastExportFolder></LastExportFolder>
    <LastExportFilter></LastExportFilter>
    <LastExperimentPath></LastExperimentPath>
    <SortingColumn>0</SortingColumn>
    <SortingOrder>DescendingOrder</SortingOrder>
    <DatabaseSplitterRatio>0.2</DatabaseSplitterRatio>
    <LastSpeedScript></LastSpeedScript>
</SpinbarSettings>
)";

} // namespace

class TestSpinbarSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstChangeWritesThisFile()
    {
        const QTemporaryDir folder;
        SpinbarSettings settings(folder.filePath(u"Settings.xml"_s), nullptr);
        QVERIFY(settings.reload());
        settings.setShowIR(true);
        QCOMPARE(SettingsWalk::contents(settings.getFilepath()), FileAfterOneChange);
        QCOMPARE(languageFromSettingsText(QString::fromUtf8(FileAfterOneChange)), u"ru_RU"_s);
    }

    void everyPropertyKeepsItsDeclaration()
    {
        SpinbarSettings settings({}, nullptr);
        SettingsWalk::checkDefaultsAndLimits(settings);
    }

    void everyPropertySurvivesTheFile()
    {
        const QTemporaryDir folder;
        SpinbarSettings source(folder.filePath(u"Settings.xml"_s), nullptr);
        SpinbarSettings target({}, nullptr);
        SettingsWalk::checkRoundTrip(source, target);
    }

    void formShowsTheseInTheirGroups()
    {
        SpinbarSettings settings({}, nullptr);
        QMap<QString, QStringList> groups;
        QStringList withoutButton;
        const QStringList names = settings.getPropertiesNames();
        for (const QString &name : names) {
            const AbstractMetaDescription &property = *settings.getPropertyByName(name);
            if (property.visible)
                groups[property.category].append(name);
            if (!property.showDefault)
                withoutButton.append(name);
        }
        const QMap<QString, QStringList> expected{
            {u"1.Common"_s, {u"Language"_s, u"ColorTheme"_s, u"StartMaximized"_s, u"ExportBehavior"_s}},
            {u"2.Experiment"_s, {u"RodentMode"_s, u"RotationDimension"_s}},
            {u"3.Detection"_s, {u"MinDetectionSeconds"_s, u"MaxTrailDetectionSeconds"_s, u"ShowIR"_s}}};
        QCOMPARE(groups, expected);
        QCOMPARE(withoutButton, (QStringList{u"Language"_s, u"RodentMode"_s}));
    }

    void detectionTimesAreLimitedFromAFile_data()
    {
        QTest::addColumn<double>("seconds");
        QTest::newRow("1000") << 100.0;
        QTest::newRow("-0.1") << 0.0;
        QTest::newRow("0.30000000000000004") << 0.30000000000000004;
        QTest::newRow("5,5") << 5.0;
        QTest::newRow("nan") << 5.0;
        QTest::newRow("inf") << 100.0;
    }

    void detectionTimesAreLimitedFromAFile()
    {
        SpinbarSettings settings({}, nullptr);
        settings.loadFromXMLString(u"<S><MinDetectionSeconds>%1</MinDetectionSeconds></S>"_s.arg(
            QLatin1StringView(QTest::currentDataTag())));
        QTEST(settings.getMinDetectionSeconds(), "seconds");
        const AbstractMetaDescription &property = *settings.getPropertyByName(u"MinDetectionSeconds"_s);
        QCOMPARE(property.step, 0.1);
        QCOMPARE(property.suffix, u" s"_s);
        QCOMPARE(property.extras.value(u"Precision"_s), u"1"_s);
    }

    // Last, since what is installed stays installed.
    void anotherProcessIsToldTheTranslations()
    {
        QCOMPARE(LanguageContext::setLanguage(u"ru_RU"_s), u"ru_RU"_s);
        SpinbarSettings settings({}, nullptr);
        const QJsonArray shown = settings.getAllCapabilitiesJson(false);
        QCOMPARE(shown.size(), 9);
        QCOMPARE(settings.getAllCapabilitiesJson(true).size(), 19);
        QCOMPARE(shown.at(4).toObject(),
                 (QJsonObject{{u"name"_s, u"RodentMode"_s},
                              {u"nameTranslated"_s, u"Режим"_s},
                              {u"type"_s, u"Enum"_s},
                              {u"value"_s, u"Rats"_s},
                              {u"default"_s, u"Rats"_s},
                              {u"category"_s, u"2.Experiment"_s},
                              {u"categoryTranslated"_s, u"Эксперимент"_s},
                              {u"enum"_s, QJsonArray{u"Rats"_s, u"Mice"_s}},
                              {u"enumTranslations"_s, QJsonArray{u"Крысы"_s, u"Мыши"_s}},
                              {u"hideDefault"_s, true}}));
        QCOMPARE(shown.at(6).toObject(), (QJsonObject{{u"name"_s, u"MinDetectionSeconds"_s},
                                                      {u"nameTranslated"_s, u"Мин. время пребывания"_s},
                                                      {u"type"_s, u"double"_s},
                                                      {u"value"_s, 5},
                                                      {u"default"_s, u"5"_s},
                                                      {u"min"_s, 0},
                                                      {u"max"_s, 100},
                                                      {u"step"_s, 0.1},
                                                      {u"category"_s, u"3.Detection"_s},
                                                      {u"categoryTranslated"_s, u"Детекция"_s},
                                                      {u"Precision"_s, u"1"_s},
                                                      {u"suffix"_s, u" s"_s},
                                                      {u"suffixTranslated"_s, u" с"_s}}));
    }
};

QTEST_GUILESS_MAIN(TestSpinbarSettings)
#include "tst_spinbarsettings.moc"
