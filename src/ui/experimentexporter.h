#pragma once

#include "core/experimentexport.h"

#include <QCoreApplication>
#include <QList>
#include <QWidget>

class SpinbarModel;
class SpinbarRecord;

/// Takes experiments to a file of the operator's choice, and does with it what the settings want.
class ExperimentExporter
{
    Q_DECLARE_TR_FUNCTIONS(PageDatabase)

public:
    /// The dialogs belong to \a page.
    ExperimentExporter(SpinbarModel *model, QWidget *page);

    /// Nothing without records. Records that vanish meanwhile end it.
    void exportRecords(const QList<SpinbarRecord *> &records);

private:
    struct Target
    {
        QString path; ///< Empty if the operator wants no export.
        QString filter;
    };
    enum class Outcome { Written, Cancelled, Failed };

    Target askForTarget(const QString &suggestedName) const;
    void remember(const Target &target);
    /// \a vanished tells during the work that the records are gone.
    Outcome write(const QList<SpinbarRecord *> &records, const Target &target, const bool &vanished);
    void showResult(const QString &path) const;

    SpinbarModel *m_model;
    QWidget *m_page;
};
