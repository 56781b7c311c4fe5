#pragma once

#include "project/ipstate.h"
#include "widgets/background.h"

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTimer>

namespace Workbench
{

class IpCatalogue;
class Project;

// Whether the IPs of a project have been generated as they are, by what their plug-ins say, and
// where these say nothing by the times of the files. Follows the disk; asks for one IP at a time
// when the program has nothing else to do, and only again when a file that matters has changed.
class GenerationWatch : public QObject
{
    Q_OBJECT

public:
    // The catalogue must outlive it.
    explicit GenerationWatch(const IpCatalogue &catalogue, QObject *parent = nullptr);

    // Not owned; null: none is open.
    void setProject(const Project *project);
    // Looks at all of them again.
    void refresh();
    // Not known for what was not looked at yet.
    IpState stateOf(const QString &ipcFile) const { return m_known.value(ipcFile).state; }
    // The configuration of the project that a file is generated from; empty: none.
    QString originOf(const QString &file);

Q_SIGNALS:
    void changed(const QString &ipcFile);

private:
    struct Known {
        IpState state;
        QByteArray stamp; // of the files that it depends on
    };

    void lookAtNext();
    void lookAt(const QString &ipcFile);
    IpState ask(const QString &ipcFile) const;
    void watch(const QString &ipcFile, const IpState &state);

    const IpCatalogue &m_catalogue;
    QPointer<const Project> m_project;
    QHash<QString, Known> m_known; // by the configuration's path
    QStringList m_queue;
    Background m_listing;
    QTimer m_quiet; // a run changes many files
    QTimer m_next;
    QFileSystemWatcher m_watcher;
};

} // namespace Workbench
