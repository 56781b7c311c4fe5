#include "generationwatch.h"

#include "answers.h"
#include "ipcatalogue.h"
#include "project/ipchead.h"
#include "project/project.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace Workbench
{

namespace
{

constexpr int quietTime = 150; // in milliseconds
constexpr int watchLimit = 500;
constexpr int listedAtOnce = 100; // IPs; each has a folder
constexpr int neighbourLimit = 2000;

QByteArray stampOf(const QStringList &paths)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QString &path : paths) {
        const QFileInfo info(path);
        hash.addData(QStringLiteral("%1\n%2 %3 %4\n")
                         .arg(path)
                         .arg(info.exists() ? info.size() : -1)
                         .arg(info.lastModified().toMSecsSinceEpoch())
                         .arg(info.metadataChangeTime().toMSecsSinceEpoch())
                         .toUtf8());
    }
    return hash.result();
}

// Of a plug-in that says nothing: the files beside the configuration.
IpState stateByTimes(const QString &ipcFile)
{
    const QFileInfo info(ipcFile);
    const QFileInfoList beside = QDir(info.absolutePath()).entryInfoList(QDir::Files);
    IpState state;
    state.watched = QStringList{ipcFile, info.absolutePath()}; // and what comes
    bool isOlder = true;
    for (const QFileInfo &file : beside.mid(0, neighbourLimit)) {
        if (file.suffix() == QLatin1String("ipc") || file.suffix() == QLatin1String("tvproj"))
            continue;
        state.watched.append(file.absoluteFilePath());
        isOlder = isOlder && file.lastModified() < info.lastModified();
    }
    // Alone in its folder: nobody can tell what a generation would make.
    if (state.watched.size() > 2)
        state.name = isOlder ? QStringLiteral("older") : QStringLiteral("fresh");
    return state;
}

} // namespace

GenerationWatch::GenerationWatch(const IpCatalogue &catalogue, QObject *parent)
    : QObject(parent)
    , m_catalogue(catalogue)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(quietTime);
    connect(&m_quiet, &QTimer::timeout, this, &GenerationWatch::refresh);
    m_next.setSingleShot(true);
    m_next.setInterval(0);
    connect(&m_next, &QTimer::timeout, this, &GenerationWatch::lookAtNext);
    const auto look = [this] {
        if (!m_quiet.isActive())
            m_quiet.start();
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, look);
}

void GenerationWatch::setProject(const Project *project)
{
    if (m_project)
        m_project->disconnect(this);
    m_project = project;
    m_known.clear();
    m_listing.drop();
    m_queue.clear();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    if (!project)
        return;
    connect(project, &Project::changed, &m_quiet, [this] { m_quiet.start(); });
    m_quiet.start();
}

void GenerationWatch::refresh()
{
    const auto look = [this](const QStringList &ipFiles) {
        m_queue = ipFiles;
        if (!m_queue.isEmpty())
            m_next.start();
    };
    const QStringList first = m_project ? m_project->someIpFiles(listedAtOnce) : QStringList();
    m_listing.drop();
    if (first.size() < listedAtOnce) {
        look(first);
        return;
    }
    m_listing.start(
        [folder = m_project->path(), sources = m_project->files()] {
            return Project::ipFilesOf(folder, sources, std::numeric_limits<int>::max());
        },
        look);
}

void GenerationWatch::lookAtNext()
{
    if (m_queue.isEmpty())
        return;
    lookAt(m_queue.takeFirst());
    if (!m_queue.isEmpty())
        m_next.start();
}

void GenerationWatch::lookAt(const QString &ipcFile)
{
    const Known before = m_known.value(ipcFile);
    if (!before.stamp.isEmpty() && before.stamp == stampOf(before.state.watched))
        return;
    // Taken before: what changes meanwhile is asked for again.
    const QByteArray early = stampOf(before.state.watched);
    const IpState state = ask(ipcFile);
    const bool isSame = state.watched == before.state.watched;
    m_known.insert(ipcFile, {state, isSame ? early : stampOf(state.watched)});
    watch(ipcFile, state);
    if (!(state == before.state))
        Q_EMIT changed(ipcFile);
}

IpState GenerationWatch::ask(const QString &ipcFile) const
{
    const int ip = m_catalogue.indexOf(IpcHead::read(ipcFile).type);
    IpState unknown;
    unknown.watched = QStringList{ipcFile};
    if (ip < 0)
        return unknown;
    if (!m_catalogue.tellsState(ip))
        return stateByTimes(ipcFile);
    QVariantMap answer;
    QString error;
    if (!m_catalogue.generationState(ip, ipcFile, &answer, &error))
        return unknown;
    // Of a configuration that cannot be read its dialog tells more.
    const Utils::Result<IpState> state = Answers::ipStateOf(answer);
    if (!state)
        return unknown;
    IpState result = *state;
    if (!result.watched.contains(ipcFile))
        result.watched.prepend(ipcFile);
    return result;
}

void GenerationWatch::watch(const QString &ipcFile, const IpState &state)
{
    // A file that is replaced is forgotten, and one that comes is seen by its folder.
    QStringList wanted = state.watched;
    wanted.append(ipcFile);
    for (const QString &path : state.watched)
        wanted.append(QFileInfo(path).path());
    wanted.removeDuplicates();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    QStringList added;
    for (const QString &path : qAsConst(wanted)) {
        if (watched.size() + added.size() < watchLimit && !watched.contains(path) &&
            QFileInfo::exists(path))
            added.append(path);
    }
    if (!added.isEmpty())
        m_watcher.addPaths(added);
}

QString GenerationWatch::originOf(const QString &file)
{
    const QString canonical = QFileInfo(file).canonicalFilePath();
    const QStringList all =
        m_project && !canonical.isEmpty() ? m_project->ipFiles() : QStringList();
    for (const QString &ipcFile : all) {
        const QString folder = QFileInfo(QFileInfo(ipcFile).path()).canonicalFilePath();
        if (!canonical.startsWith(folder + u'/'))
            continue;
        lookAt(ipcFile);
        const QStringList files = stateOf(ipcFile).files;
        if (std::any_of(files.begin(), files.end(), [&canonical](const QString &made) {
                return QFileInfo(made).canonicalFilePath() == canonical;
            }))
            return ipcFile;
    }
    return {};
}

} // namespace Workbench
