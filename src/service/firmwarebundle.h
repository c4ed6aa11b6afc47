#pragma once

#include "service/bundlearchive.h"
#include "service/firmwaretarget.h"

#include <QCoreApplication>
#include <QStringList>

/// An opened firmware bundle: its unpacked files in a work folder below the current one, which goes with the
/// object.
class FirmwareBundle
{
    Q_DECLARE_TR_FUNCTIONS(FirmwareBundle)

public:
    explicit FirmwareBundle(const FirmwareTarget &target);
    ~FirmwareBundle();
    Q_DISABLE_COPY_MOVE(FirmwareBundle)

    /// Forgets the bundle and removes its work folder.
    void clear();
    /// In the place of the earlier one. False if the file could not be read, which forgets the earlier one
    /// too.
    bool open(const QString &path);

    bool isValid() const;
    /// Why it is not valid; empty if it is, or if none was opened.
    QString problem() const;
    QString path() const { return m_path; }
    QString folder() const { return m_folder; }
    const FirmwareTarget::Files &files() const { return m_files; }

private:
    bool createFolder();
    void findFiles();
    QString describe(const BundleProblem &problem) const;
    QString missingFiles() const;

    FirmwareTarget m_target;
    QString m_path;
    QString m_folder;
    FirmwareTarget::Files m_files;
    QString m_problem;
};
