#pragma once

#include <QObject>

/// Presence and fall of the animal in one lane, from the readings of its infra-red sensor. All times are the
/// instrument's clock in milliseconds, all counters thousandths of a motor rotation.
class SpinbarDetection : public QObject
{
    Q_OBJECT

public:
    SpinbarDetection(int index, bool isRat, QObject *parent = nullptr);

    /// Seconds without cover that end a run, for all lanes; a change reaches the next sample.
    static double trailSeconds();
    static void setTrailSeconds(double seconds);

    /// Kept for all lanes and read by no rule: a short run is reported like a long one.
    static double minimumSeconds();
    static void setMinimumSeconds(double seconds);

    /// One sample; they are taken to be 200 ms apart, whatever the clock says. A listener of lost() must
    /// accept a run that ends before its start.
    void update(int value, qint64 rotationCounter, qint64 clock);

    /// Forgets the animal on the drum without reporting it. How long the lane has been uncovered stays known.
    void reset();

    bool isPresent() const;
    /// Milliseconds on the drum, -1 if absent.
    qint64 elapsed() const;
    /// Thousandths of a motor rotation since the animal came, -1 if there are none or it is absent.
    qint64 rotations() const;

    /// Readings below it count as covered.
    int threshold() const;
    /// Takes what isThreshold() allows, 1 to 49, and ignores all else.
    void setThreshold(int threshold);
    static bool isThreshold(int value);

    bool isRat() const;
    int index() const;
    qint64 startTime() const;
    int lastValue() const;
    qint64 lastClock() const;

signals:
    /// Comes with true only; the end of a run is told by lost().
    void presentChanged(bool present);
    /// \a rotations are thousandths of a drum rotation; negative if the counter did not rise.
    void lost(qint64 start, qint64 end, double rotations, int index);
    void found();
    void calcsChanged();

private:
    void updatePresent(bool covered);
    void updateAbsent(bool covered);

    qint64 m_startCounter = 0;
    qint64 m_lastCounter = 0;
    qint64 m_lastClock = 0;
    qint64 m_startTime = 0;
    int m_lastValue = 0;
    bool m_isRat = false;
    int m_index = -1;
    int m_threshold;
    int m_lowCount = 0;
    int m_highCount = 0;
};
