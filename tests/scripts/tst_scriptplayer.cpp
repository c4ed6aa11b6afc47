#include "scripts/scriptplayer.h"
#include "scripts/speedscript.h"

#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <cstddef>

using namespace Qt::StringLiterals;

// Counts every allocation of the process, those of Qt's containers too, which take no operator new.
static std::atomic<qint64> allocations = 0;

extern "C" {
#ifdef __SANITIZE_ADDRESS__
void __sanitizer_malloc_hook(const volatile void *, std::size_t)
{
    ++allocations;
}
#else
void *__libc_malloc(std::size_t size);

void *malloc(std::size_t size)
{
    ++allocations;
    return __libc_malloc(size);
}
#endif
}

/// What the player orders, one word each: speeds as numbers, "stop", "cycle 1/3", "ended".
class TestScriptPlayer : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_now = 1'700'000'000'000;
        m_log.clear();
        m_player = std::make_unique<ScriptPlayer>(nullptr, [this] { return m_now; });
        connect(m_player.get(), &ScriptPlayer::speedDue, this,
                [this](double v) { m_log += QString::number(v); });
        connect(m_player.get(), &ScriptPlayer::stopDue, this, [this] { m_log += u"stop"_s; });
        connect(m_player.get(), &ScriptPlayer::cycleChanged, this,
                [this] { m_log += u"cycle "_s + m_player->cycleText(); });
        connect(m_player.get(), &ScriptPlayer::ended, this, [this] { m_log += u"ended"_s; });
    }

    void firstCommandIsTheSecondEntryAfterOneStep()
    {
        start(ramp(), true, 1);
        QCOMPARE(m_player->table().size(), 50);
        advance(150);
        QCOMPARE(m_log, QStringList{u"cycle 1"_s});
        advance(50);
        QCOMPARE(m_log.last(), QString::number(m_player->table().at(1)));
        // Each entry once, and a late tick skips instead of catching up.
        advance(150);
        m_now += 600;
        m_player->tick();
        QCOMPARE(m_log, QStringList({u"cycle 1"_s, u"1.2"_s, u"3"_s}));
    }

    void cyclesAreCountedToTheLimit()
    {
        start(ramp(), false, 3);
        advance(9950);
        QCOMPARE(m_log.last(), u"30"_s);
        advance(50);
        QCOMPARE(m_log.last(), u"cycle 2/3"_s);
        advance(200);
        QCOMPARE(m_log.last(), u"1.2"_s); // again the second entry
        QSignalSpy cursor(m_player.get(), &ScriptPlayer::cursorMoved);
        advance(19800);
        QCOMPARE(m_log.mid(m_log.size() - 3), QStringList({u"cycle "_s, u"stop"_s, u"ended"_s}));
        QCOMPARE(cursor.last().at(0).toDouble(), -1.0);
        QVERIFY(!m_player->isRunning());
        const QStringList before = m_log;
        advance(1000);
        QCOMPARE(m_log, before);
    }

    void endlessScriptShowsNoTotalAndEndsWithAnotherChoice()
    {
        start(ramp(), true, 1);
        advance(10000 * 5);
        QCOMPARE(m_player->cycleText(), u"6"_s);
        m_player->setScript(nullptr);
        QCOMPARE(m_log.last(), u"stop"_s);
        QVERIFY(!m_player->isRunning() && m_player->table().isEmpty());
    }

    void emptyTableEndsByItselfAfterOneStep()
    {
        start({{0, 5}}, true, 1);
        QCOMPARE(m_player->cycleLimit(), 0);
        advance(150);
        QVERIFY(m_player->isRunning());
        advance(50);
        QCOMPARE(m_log, QStringList({u"cycle 1"_s, u"cycle "_s, u"stop"_s, u"ended"_s}));
    }

    void clockThatJumpsMovesTheIndex()
    {
        start(ramp(), false, 2);
        advance(1000);
        QSignalSpy cursor(m_player.get(), &ScriptPlayer::cursorMoved);
        const QStringList before = m_log;
        m_now -= 3'600'000;
        advance(500);
        QCOMPARE(m_log, before);
        QCOMPARE(cursor.last().at(0).toDouble(), 0.0);
        m_now += 3'600'000;
        advance(500);
        QCOMPARE(m_log.last(), QString::number(m_player->table().at(10)));
        m_now += 86'400'000;
        m_player->tick();
        QCOMPARE(m_log.last(), u"cycle 2/2"_s);
        QCOMPARE(cursor.last().at(0).toDouble(), 10.0);
    }

    void tickAllocatesNothing()
    {
        start(ramp(), true, 1);
        disconnect(m_player.get(), nullptr, this, nullptr); // the log of this test does allocate
        double sum = 0;
        connect(m_player.get(), &ScriptPlayer::speedDue, this, [&sum](double v) { sum += v; });
        const qint64 before = allocations;
        QVERIFY(before > 0);
        advance(50'000);
        QCOMPARE(allocations - before, 0);
        QVERIFY(sum > 0);
    }

    void timerDrivesARun()
    {
        m_player = std::make_unique<ScriptPlayer>();
        QSignalSpy ended(m_player.get(), &ScriptPlayer::ended);
        start({}, true, 1);
        QVERIFY(ended.wait());
    }

private:
    static ScriptPoints ramp() { return {{0, 0}, {10, 30}}; }

    void start(const ScriptPoints &points, bool infinite, int loops)
    {
        SpeedScript script{QString()};
        script.setPointList(points);
        script.setInfinite(infinite);
        script.setLoops(loops);
        m_player->setScript(&script);
        m_log.clear();
        m_player->setRunning(true);
    }

    void advance(int ms)
    {
        for (int passed = 0; passed < ms; passed += 50) {
            m_now += 50;
            m_player->tick();
        }
    }

    qint64 m_now = 0;
    QStringList m_log;
    std::unique_ptr<ScriptPlayer> m_player;
};

QTEST_GUILESS_MAIN(TestScriptPlayer)
#include "tst_scriptplayer.moc"
