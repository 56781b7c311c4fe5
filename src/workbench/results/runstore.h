#pragma once

#include <synthesis/runreport.h>

#include <QDateTime>
#include <QMap>
#include <QString>
#include <QStringList>

namespace Workbench
{

// A run whose results can be looked at again, and what its files were like.
struct KeptRun {
    Synthesis::RunReport report;
    QStringList delivered;             // by the IP; full paths
    QDateTime when;                    // of the end of the run
    QMap<QString, QByteArray> digests; // of the delivered files and those of the report

    // What its resources were used in the run before of the same IP; empty if there was none.
    QMap<QString, int> before;
    // The same of the last run of each IP, by RunStore::ipOf().
    QMap<QString, QMap<QString, int>> figures;

    // Of its files together, in bytes.
    qint64 size() const;
    static KeptRun of(const Synthesis::RunReport &report, const QStringList &delivered);
    // Those of its files that are gone or hold something else now.
    QStringList changedFiles() const;
};

// The last successful run of every project, a JSON file each in a folder of the user's cache: what
// is lost there can be made again.
class RunStore
{
public:
    explicit RunStore(const QString &folder);
    // Which IP of a project a run was of.
    static QString ipOf(const Synthesis::RunReport &report);
    // In the user's cache.
    static QString defaultFolder();

    // `project` is the path of the project file; of runs without a project nothing is kept. A
    // failure changes nothing about the run and is only told in `*error`.
    bool keep(const QString &project, const KeptRun &run, QString *error) const;
    bool has(const QString &project) const;
    // Whether reading it would keep a window waiting.
    bool isLarge(const QString &project) const;
    // False if there is none, or none that can be read.
    bool load(const QString &project, KeptRun *run, QString *error) const;

private:
    QString pathOf(const QString &project) const;

    QString m_folder;
};

} // namespace Workbench
