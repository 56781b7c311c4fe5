#include "project.h"

#include "filelock.h"

#include <core/idecore.h>
#include <dev/devicedb.h>
#include <utils/fileutils.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <limits>

namespace Workbench
{

namespace
{

const QString dotSuffix = QLatin1String(".") + QLatin1String(ProjectFile::suffix);

// Generated IPs put their configuration into a folder of their own, at most one more level down.
constexpr int ipSearchDepth = 2;

// A change takes a few milliseconds; longer, and somebody holds the lock for good. In milliseconds.
constexpr int lockPatience = 3000;

int indexOf(const QStringList &entries, const QString &entry)
{
    for (int i = 0; i < entries.size(); ++i) {
        if (QDir::cleanPath(entries.at(i)) == entry)
            return i;
    }
    return -1;
}

// Looks once at each folder, and not beyond `limit` files: there may be thousands.
void collectIpFiles(const QString &folder, int depth, int limit, QStringList *found)
{
    QStringList files;
    QStringList folders;
    QDirIterator entries(folder, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QFileInfo info = entries.fileInfo();
        if (!info.isDir()) {
            if (info.fileName().endsWith(QLatin1String(".ipc"), Qt::CaseInsensitive))
                files.append(info.fileName());
        } else if (depth > 0 && !info.isSymLink()) {
            folders.append(info.fileName());
        }
    }
    std::sort(files.begin(), files.end(), [](const QString &left, const QString &right) {
        return QString::localeAwareCompare(left, right) < 0;
    });
    std::sort(folders.begin(), folders.end());
    const QString inside = folder.endsWith(u'/') ? folder : QString(folder + u'/');
    for (const QString &name : qAsConst(files))
        found->append(inside + name);
    for (const QString &name : qAsConst(folders)) {
        if (found->size() < limit)
            collectIpFiles(inside + name, depth - 1, limit, found);
    }
}

} // namespace

Project::Project(const QString &path, const ProjectFile &content)
    : m_path(path)
    , m_stored(content)
    , m_content(content)
{
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &Project::onFileChanged);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
        watch();
        Q_EMIT changed();
    });
    watch();
}

Project::~Project() = default;

QString Project::nameMistake(const QString &name)
{
    if (name.trimmed().isEmpty())
        return tr("The project needs a name.");
    if (name != name.trimmed())
        return tr("The name must not begin or end with a blank.");
    if (name.contains(u'/') || name.contains(u'\\') || name.startsWith(u'.'))
        return tr("The name must not contain \"/\" or \"\\\" nor begin with a dot.");
    const bool control = std::any_of(name.begin(), name.end(),
                                     [](QChar c) { return c.category() == QChar::Other_Control; });
    if (control)
        return tr("The name must not contain control characters.");
    if (QString(name + dotSuffix).toUtf8().size() > 255)
        return tr("The name is too long.");
    return {};
}

QString Project::fileAbove(const QString &folder)
{
    QDir dir(QFileInfo(folder).absoluteFilePath());
    do {
        const QStringList found = dir.entryList({QLatin1String("*") + dotSuffix}, QDir::Files);
        if (!found.isEmpty())
            return found.size() == 1 ? dir.filePath(found.first()) : QString();
    } while (dir.cdUp());
    return {};
}

std::unique_ptr<Project> Project::create(const QString &folder, const QString &name,
                                         const DEV::DeviceArg &device, QString *error)
{
    const QString mistake = nameMistake(name);
    if (!mistake.isEmpty()) {
        *error = mistake;
        return nullptr;
    }
    const QString absolute = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    const QString path = QDir(absolute).filePath(name + dotSuffix);
    if (QFileInfo::exists(path)) {
        *error = tr("The project \"%1\" exists already.").arg(QDir::toNativeSeparators(path));
        return nullptr;
    }
    ProjectFile content;
    content.deviceId = device.id();
    if (!Utils::FileUtils::makePath(absolute, error))
        return nullptr;
    if (const Utils::Result<void> written = content.write(path); !written) {
        *error = written.reason();
        return nullptr;
    }
    return std::unique_ptr<Project>(new Project(path, content));
}

std::unique_ptr<Project> Project::open(const QString &file, QString *error)
{
    const QString path = QDir::cleanPath(QFileInfo(file).absoluteFilePath());
    const Utils::Result<ProjectFile> content = ProjectFile::read(path);
    if (!content) {
        *error = content.reason();
        return nullptr;
    }
    return std::unique_ptr<Project>(new Project(path, *content));
}

QString Project::name() const
{
    return QFileInfo(m_path).completeBaseName();
}

QString Project::path() const
{
    return QFileInfo(m_path).absolutePath();
}

DEV::DeviceArg Project::device() const
{
    return Core::IdeCore::deviceDataBase()->findDevice(m_content.deviceId);
}

void Project::setDevice(const DEV::DeviceArg &device)
{
    change([id = device.id()](ProjectFile *content) { content->deviceId = id; });
}

void Project::setTopModule(const QString &name)
{
    change([name](ProjectFile *content) { content->topModule = name; });
}

QStringList Project::files() const
{
    const QDir folder(path());
    QStringList result;
    result.reserve(m_content.files.size());
    for (const QString &entry : m_content.files)
        result.append(QDir::cleanPath(folder.absoluteFilePath(entry)));
    return result;
}

void Project::addFiles(const QStringList &paths)
{
    QStringList entries;
    for (const QString &path : paths) {
        if (!path.isEmpty())
            entries.append(relative(path));
    }
    change([entries](ProjectFile *content) {
        QSet<QString> listed;
        for (const QString &entry : qAsConst(content->files))
            listed.insert(QDir::cleanPath(entry));
        for (const QString &entry : entries) {
            if (!listed.contains(entry)) {
                listed.insert(entry);
                content->files.append(entry);
            }
        }
    });
}

void Project::removeFiles(const QStringList &paths)
{
    QSet<QString> entries;
    for (const QString &path : paths)
        entries.insert(relative(path));
    change([entries](ProjectFile *content) {
        QStringList rest;
        for (const QString &entry : qAsConst(content->files)) {
            if (!entries.contains(QDir::cleanPath(entry)))
                rest.append(entry);
        }
        content->files = rest;
    });
}

void Project::moveFile(const QString &path, int steps)
{
    change([entry = relative(path), steps](ProjectFile *content) {
        const int from = indexOf(content->files, entry);
        if (from >= 0)
            content->files.move(from, qBound(0, from + steps, content->files.size() - 1));
    });
}

QStringList Project::ipFiles() const
{
    return someIpFiles(std::numeric_limits<int>::max());
}

QStringList Project::someIpFiles(int limit) const
{
    return ipFilesOf(path(), files(), limit);
}

QStringList Project::ipFilesOf(const QString &folder, const QStringList &sources, int limit)
{
    QStringList found;
    collectIpFiles(folder, ipSearchDepth, limit, &found);
    QSet<QString> known(found.begin(), found.end());
    for (const QString &file : sources) {
        if (file.endsWith(QLatin1String(".ipc")) && !known.contains(file)) {
            known.insert(file);
            found.append(file);
        }
    }
    return found;
}

QString Project::freeIpFolder(const QString &target) const
{
    const QDir folder(path());
    if (someIpFiles(1).isEmpty() &&
        (target.isEmpty() || !QFileInfo::exists(folder.filePath(target))))
        return path();
    for (int n = 2;; ++n) {
        const QString candidate = folder.filePath(QStringLiteral("ip%1").arg(n));
        if (!QFileInfo::exists(candidate) && !QFileInfo(candidate).isSymLink())
            return candidate;
    }
}

void Project::change(const Operation &operation)
{
    m_pending.append(operation);
    const Utils::Result<void> written = writePending();
    watch();
    if (!written)
        Q_EMIT failed(written.reason());
}

Utils::Result<void> Project::writePending()
{
    ProjectFile content;
    Utils::Result<void> written;
    {
        const FileLock lock(m_path, lockPatience);
        if (!lock.isHeld()) {
            written = Utils::Failure{lock.error()};
        } else if (QFileInfo::exists(m_path)) {
            const Utils::Result<ProjectFile> present = ProjectFile::read(m_path);
            if (present)
                m_stored = *present;
            else
                written = Utils::Failure{present.reason()};
        }
        content = m_stored;
        for (const Operation &operation : qAsConst(m_pending))
            operation(&content);
        // A file that is missing is written even if nothing has changed.
        if (written && (!(content == m_stored) || !QFileInfo::exists(m_path)))
            written = content.write(m_path);
    }
    if (written) {
        m_stored = content;
        m_pending.clear();
    }
    show(content);
    return written;
}

void Project::show(const ProjectFile &content)
{
    if (content == m_content)
        return;
    m_content = content;
    Q_EMIT changed();
}

// The watcher forgets a file that was replaced, and folders that did not exist.
void Project::watch()
{
    QStringList wanted{path()};
    if (QFileInfo::exists(m_path))
        wanted.append(m_path);
    // Enough for any project; a folder with thousands of others is not watched in full.
    const QStringList folders =
        QDir(path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks).mid(0, 100);
    for (const QString &folder : folders)
        wanted.append(QDir(path()).filePath(folder));
    const QStringList ips = someIpFiles(100).mid(0, 100);
    for (const QString &ip : ips) {
        const QString folder = QFileInfo(ip).path();
        if (!wanted.contains(folder) && QFileInfo::exists(folder))
            wanted.append(folder);
    }
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    QStringList missing;
    for (const QString &entry : wanted) {
        if (!watched.contains(entry))
            missing.append(entry);
    }
    if (!missing.isEmpty())
        m_watcher.addPaths(missing);
}

void Project::onFileChanged()
{
    watch();
    // A file that was deleted or is being replaced: what is in memory stands.
    if (!QFileInfo::exists(m_path)) {
        Q_EMIT failed(tr("The project file \"%1\" was deleted. The next change of the project "
                         "writes it again.")
                          .arg(QDir::toNativeSeparators(m_path)));
        return;
    }
    const Utils::Result<ProjectFile> content = ProjectFile::read(m_path);
    if (!content) {
        Q_EMIT failed(content.reason());
        return;
    }
    m_stored = *content;
    if (m_pending.isEmpty())
        show(*content);
    else if (const Utils::Result<void> written = writePending(); !written)
        Q_EMIT failed(written.reason());
}

QString Project::relative(const QString &path) const
{
    const QString absolutePath =
        QDir::cleanPath(QDir(this->path()).absoluteFilePath(QDir::fromNativeSeparators(path)));
    return QDir(this->path()).relativeFilePath(absolutePath);
}

} // namespace Workbench
