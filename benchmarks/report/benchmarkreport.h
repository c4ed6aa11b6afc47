#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

class BenchmarkResults;

/// The figures that are to be held, with what was measured of each.
class BenchmarkReport
{
public:
    enum class Verdict { Held, Over, Missing, Unlimited };

    /// \a limits is the list of figures; nothing is held if it can't be read.
    BenchmarkReport(const QByteArray &limits, const BenchmarkResults &results);

    /// Every figure was measured and is within its limits.
    bool isHeld() const;
    /// One line for each figure that is not.
    QStringList complaints() const;

    QByteArray toJson() const;
    QString toMarkdown() const;
    /// Puts the table between the two marks of \a document; empty if it has none.
    QString insertedInto(const QString &document) const;

private:
    struct Row
    {
        QString section;
        QJsonObject figure;
        QString measured;
        QString baseline;
        QString ratioText;
        QString limits;
        Verdict verdict = Verdict::Missing;
    };

    static Row judge(const QString &section, const QJsonObject &figure, const BenchmarkResults &results);

    QList<Row> m_rows;
    QString m_circumstances;
};
