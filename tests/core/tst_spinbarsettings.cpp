#include "core/spinbarsettings.h"

#include "framework/settings/settingswalk.h"
#include "framework/settings/startlanguage.h"

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

    void detectionTimesAreLimitedFromAFile()
    {
        for (const auto &[text, seconds] : {std::pair{u"1000"_s, 100.0},
                                            {u"-0.1"_s, 0.0},
                                            {u"5,5"_s, 5.0},
                                            {u"nan"_s, 5.0},
                                            {u"inf"_s, 100.0},
                                            {u"0.30000000000000004"_s, 0.30000000000000004}}) {
            SpinbarSettings settings({}, nullptr);
            settings.loadFromXMLString(u"<S><MinDetectionSeconds>%1</MinDetectionSeconds></S>"_s.arg(text));
            QCOMPARE_EQ(settings.getMinDetectionSeconds(), seconds);
        }
        SpinbarSettings settings({}, nullptr);
        const AbstractMetaDescription &property = *settings.getPropertyByName(u"MinDetectionSeconds"_s);
        QCOMPARE(property.suffix, u" s"_s);
        QCOMPARE(property.extras.value(u"Precision"_s), u"1"_s);
    }
};

QTEST_GUILESS_MAIN(TestSpinbarSettings)
#include "tst_spinbarsettings.moc"
