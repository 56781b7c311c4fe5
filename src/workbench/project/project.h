#pragma once

#include "projectfile.h"

#include <core/project.h>
#include <dev/devicearg.h>

#include <QFileSystemWatcher>
#include <QObject>

#include <functional>
#include <memory>

namespace Workbench
{

// The open project. Every change is written at once; there is nothing to save. A change is applied
// to what the file holds at that time, under a lock, so that other programs that change it
// likewise lose nothing.
class Project : public QObject, public Core::Project
{
    Q_OBJECT

public:
    ~Project() override;

    // Makes the folder and a new project file in it; an existing one is not overwritten. Null and a
    // sentence in `*error` on failure.
    static std::unique_ptr<Project> create(const QString &folder, const QString &name,
                                           const DEV::DeviceArg &device, QString *error);
    static std::unique_ptr<Project> open(const QString &file, QString *error);
    // What is wrong with a project name, which is a file name too; empty if nothing is.
    static QString nameMistake(const QString &name);
    // The project file in `folder` or the nearest folder above it; empty if there is none, or two
    // in one folder.
    static QString fileAbove(const QString &folder);

    QString name() const override;
    QString path() const override;
    // The file keeps them relative to the project's folder.
    void addFiles(const QStringList &paths) override;

    QString file() const { return m_path; }
    // Null when the project names none, or one that the device database does not know.
    DEV::DeviceArg device() const;
    QString deviceId() const { return m_content.deviceId; }
    void setDevice(const DEV::DeviceArg &device);
    QString topModule() const { return m_content.topModule; }
    void setTopModule(const QString &name);
    // Absolute paths of the sources, in order.
    QStringList files() const;
    void removeFile(const QString &path) { removeFiles({path}); }
    void removeFiles(const QStringList &paths);
    // Moves a source by `steps` places (negative: towards the top).
    void moveFile(const QString &path, int steps);
    // Absolute paths of the IP configurations (.ipc) in the project's folder, up to two folders
    // deep, and of those among the sources.
    QStringList ipFiles() const;
    // The first ones; more than the limit only if they share a folder.
    QStringList someIpFiles(int limit) const;
    // The same of a project in this folder with these sources, of which nothing else is needed.
    static QStringList ipFilesOf(const QString &folder, const QStringList &sources, int limit);
    // The folder to make another IP in, below which the folder that the IP's dialog makes is new:
    // the project's own for the first IP, then "ip2", "ip3", … in it, which do not exist.
    // `target` is the name that the IP's files have, as far as it is known.
    QString freeIpFolder(const QString &target) const;

Q_SIGNALS:
    void changed();
    // A change could not be written, or the file was changed outside and cannot be read. The
    // content in memory stands; the next change, or the file once it can be read, writes it. A file
    // that cannot be read is not replaced.
    void failed(const QString &message);

private:
    // Applied again where the file has changed meanwhile.
    using Operation = std::function<void(ProjectFile *)>;

    Project(const QString &path, const ProjectFile &content);
    void change(const Operation &operation);
    Utils::Result<void> writePending();
    void show(const ProjectFile &content);
    void watch();
    void onFileChanged();
    QString relative(const QString &path) const;

    QString m_path;
    ProjectFile m_stored;  // what the file held when it was read or written last
    ProjectFile m_content; // the same with what is not written yet
    QList<Operation> m_pending;
    QFileSystemWatcher m_watcher;
};

} // namespace Workbench
