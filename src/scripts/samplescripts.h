#pragma once

#include <QList>
#include <QString>

/// A speed script that comes with the program.
struct SampleScript
{
    QString title; ///< in the running language, fit for a file name
    QString path;  ///< of its file among the resources
};

/// After published protocols, within the speeds of the drum; each ends by itself after one cycle.
QList<SampleScript> sampleScripts();
