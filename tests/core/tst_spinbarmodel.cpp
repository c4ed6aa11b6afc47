#include "core/spinbarmodel.h"
#include "core/spinbarrecord.h"
#include "core/spinbarsettings.h"
#include "detection/spinbardetection.h"
#include "device/curlyspinbar.h"
#include "device/newspinbar.h"
#include "device/serialportmanager.h"
#include "files.h"
#include "simulator/simulatedinstrument.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// From the status layout: readings of the rats' lanes follow the third field.
constexpr int FirstReadingField = 3;
constexpr int DefaultThreshold = 34;
constexpr int PresenceSamples = 3;

/// The numbers of each line of a log.
QList<QList<qint64>> fieldsOf(const QByteArray &log)
{
    QList<QList<qint64>> lines;
    for (const QByteArray &line : log.trimmed().split('\n')) {
        QList<qint64> fields;
        for (const QByteArray &field : line.trimmed().split(';'))
            fields.append(field.toLongLong(nullptr, 16));
        lines.append(fields);
    }
    return lines;
}

} // namespace

class TestSpinbarModel : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        SerialPortManager::instance().setProvider([] { return QList<PortInfo>(); });
    }

    void cleanup()
    {
        m_model.reset();
        m_instrument.reset();
        SerialPortManager::instance().closeAll();
        SerialPortManager::instance().setProvider({});
    }

    void foldersStandAndDetectionSecondsFollowTheSettings()
    {
        QVERIFY(writeFile(m_folder->filePath(u"Settings.xml"_s),
                          "<SpinbarSettings><MinDetectionSeconds>7.5</MinDetectionSeconds>"
                          "<MaxTrailDetectionSeconds>3.5</MaxTrailDetectionSeconds></SpinbarSettings>"));
        makeModel();
        QCOMPARE(SpinbarModel::instance(), m_model.get());
        QVERIFY(QDir(m_folder->filePath(u"Records"_s)).exists());
        QVERIFY(QDir(m_folder->filePath(u"Scripts"_s)).exists());
        QCOMPARE(SpinbarDetection::minimumSeconds(), 7.5);
        QCOMPARE(SpinbarDetection::trailSeconds(), 3.5);
        m_model->settings()->setMinDetectionSeconds(4);
        m_model->settings()->setMaxTrailDetectionSeconds(2);
        QCOMPARE(SpinbarDetection::minimumSeconds(), 4.0);
        QCOMPARE(SpinbarDetection::trailSeconds(), 2.0);
    }

    void withoutLinkNothingStartsOrStops()
    {
        makeModel();
        m_model->startRecord({});
        m_model->startRecord(m_folder->filePath(u"elsewhere"_s));
        QCOMPARE(m_model->currentRecord(), nullptr);
        m_model->stopRecord();
        m_model->shutdown();
        QCOMPARE(m_events, QStringList());
        QVERIFY(QDir(m_model->recordsFolder()).isEmpty());
        QVERIFY(!QDir(m_folder->filePath(u"elsewhere"_s)).exists());
    }

    void stopTurnsTheAnimalOnTheDrumIntoARow()
    {
        QVERIFY(connectInstrument("0.4 2 on"));
        m_model->device()->setMotorSpeed(2);
        QVERIFY(step(6));
        QVERIFY(m_model->device()->detectors().at(1)->isPresent());

        // The animal that was there before counts from the samples of this recording only.
        const QString path = m_folder->filePath(u"Records/By hand"_s);
        m_model->startRecord(path);
        SpinbarRecord *record = m_model->currentRecord();
        QVERIFY(record && !m_model->device()->detectors().at(1)->isPresent());
        QCOMPARE(record->sn(), u"B42403101"_s);
        QVERIFY(QFile::exists(path + "/status.log"_L1) && QFile::exists(path + "/experiment.json"_L1));
        QVERIFY(step(8));
        m_model->startRecord({});
        QCOMPARE(m_model->currentRecord(), record);
        m_model->stopRecord();
        m_model->stopRecord();
        QCOMPARE(m_events, QStringList({u"started, recording"_s, u"row, recording"_s, u"stopped"_s}));
        QVERIFY(step(1));

        const auto lines = fieldsOf(contents(path + "/status.log"_L1));
        QCOMPARE(lines.size(), 8);
        qsizetype covered = 0;
        qsizetype present = 0;
        while (covered < PresenceSamples)
            covered += lines.at(present++).at(FirstReadingField + 1) < DefaultThreshold ? 1 : 0;
        const QList<qint64> third = lines.at(present - 1);
        const QList<qint64> last = lines.constLast();
        SpinbarRecord stored(path, {});
        QVERIFY(stored.load());
        QCOMPARE(stored.rawItems().size(), 1);
        const ExperimentItem row = stored.rawItems().constFirst();
        // Dated back by three samples, but not to before the first line; the counter is the motor's.
        QCOMPARE(row.start, std::max(third.constLast() - 600, lines.constFirst().constLast()));
        QCOMPARE(row.end, last.constLast());
        QCOMPARE(row.rotations, double(last.at(last.size() - 2) - third.at(third.size() - 2)));
        QCOMPARE(row.index, 1);
        QVERIFY(row.rat);
    }

    void durationTicksAndEveryRecordingHasItsFolder()
    {
        QVERIFY(connectInstrument({}));
        QSignalSpy ticks(m_model.get(), &SpinbarModel::recordDurationChanged);
        QElapsedTimer clock;
        clock.start();
        m_model->startRecord({});
        const QString first = m_model->currentRecord()->folder();
        QTRY_COMPARE(ticks.size(), 2);
        const double seconds = ticks.at(1).at(0).toDouble();
        QVERIFY2(seconds >= 0.9 && seconds <= double(clock.elapsed()) / 1000 + 0.1,
                 qPrintable(QString::number(seconds)));
        m_model->shutdown();
        m_model->shutdown();
        QCOMPARE(m_events, QStringList({u"started, recording"_s, u"stopped"_s}));

        m_model->startRecord({});
        QVERIFY(m_model->currentRecord()->folder() != first);
        m_model->stopRecord();
        const QStringList names = QDir(m_model->recordsFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QCOMPARE(names.size(), 2);
        static const QRegularExpression form(
            u"^\\d{4}\\.\\d\\d\\.\\d\\d-\\d\\d\\.\\d\\d\\.\\d\\d\\.\\d{3}$"_s);
        for (const QString &name : names)
            QVERIFY2(form.match(name).hasMatch(), qPrintable(name));
    }

private:
    void makeModel()
    {
        m_events.clear();
        m_model = std::make_unique<SpinbarModel>(nullptr, m_folder->path());
        const auto note = [this](const QString &event) {
            m_events.append(m_model->currentRecord() ? event + ", recording"_L1 : event);
        };
        connect(m_model.get(), &SpinbarModel::recordStarted, this, [note] { note(u"started"_s); });
        connect(m_model.get(), &SpinbarModel::recordStopped, this, [note] { note(u"stopped"_s); });
        connect(m_model->device(), &CurlySpinbar::detectionFinished, this, [note] { note(u"row"_s); });
    }

    /// With an instrument whose time goes on by step() only.
    bool connectInstrument(QByteArray scenario)
    {
        SimulatedInstrumentOptions options;
        options.rate = SimulatedInstrumentOptions::ByHand;
        QBuffer text(&scenario);
        text.open(QIODevice::ReadOnly);
        options.instrument.scenario = Scenario::read(text, u"test"_s).scenario;
        m_instrument = std::make_unique<SimulatedInstrument>(options);
        if (!m_instrument->start())
            return false;
        const PortInfo port{m_instrument->path(), m_instrument->path(), u"Instrument"_s, {}};
        SerialPortManager::instance().setProvider([port] { return QList<PortInfo>{port}; });
        makeModel();
        return QTest::qWaitFor(
            [this] { return m_model->device()->isConnected() && m_instrument->instrument().isReporting(); },
            20'000);
    }

    bool step(int count)
    {
        QSignalSpy status(m_model->device(), &CurlySpinbar::newStatus);
        for (int i = 0; i < count; ++i) {
            m_instrument->step();
            if (!QTest::qWaitFor([&] { return status.size() > i; }))
                return false;
        }
        return true;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SimulatedInstrument> m_instrument;
    std::unique_ptr<SpinbarModel> m_model;
    QStringList m_events;
};

QTEST_GUILESS_MAIN(TestSpinbarModel)
#include "tst_spinbarmodel.moc"
