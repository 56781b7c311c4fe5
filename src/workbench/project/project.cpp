#include "project.h"

#include <core/idecore.h>
#include <dev/devicedb.h>
#include <utils/fileutils.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Workbench
{

namespace
{

const QString dotSuffix = QLatin1String(".") + QLatin1String(ProjectFile::suffix);

// Generated IPs put their configuration into a folder of their own, at most one more level down.
constexpr int ipSearchDepth = 2;

void collectIpFiles(const QDir &folder, int depth, QStringList *found)
{
    const QStringList files =
        folder.entryList({QStringLiteral("*.ipc")}, QDir::Files, QDir::Name | QDir::LocaleAware);
    for (const QString &name : files)
        found->append(folder.filePath(name));
    if (depth == 0)
        return;
    const QStringList folders =
        folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
    for (const QString &name : folders)
        collectIpFiles(QDir(folder.filePath(name)), depth - 1, found);
}

} // namespace

Project::Project(const QString &path, const ProjectFile &content)
    : m_path(path)
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
    if (!Utils::FileUtils::makePath(absolute, error) || !content.write(path, error))
        return nullptr;
    return std::unique_ptr<Project>(new Project(path, content));
}

std::unique_ptr<Project> Project::open(const QString &file, QString *error)
{
    const QString path = QDir::cleanPath(QFileInfo(file).absoluteFilePath());
    ProjectFile content;
    if (!ProjectFile::read(path, &content, error))
        return nullptr;
    return std::unique_ptr<Project>(new Project(path, content));
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
    ProjectFile content = m_content;
    content.deviceId = device.id();
    replace(content);
}

void Project::setTopModule(const QString &name)
{
    ProjectFile content = m_content;
    content.topModule = name;
    replace(content);
}

QStringList Project::files() const
{
    QStringList result;
    for (const QString &entry : m_content.files)
        result.append(absolute(entry));
    return result;
}

void Project::addFiles(const QStringList &paths)
{
    ProjectFile content = m_content;
    for (const QString &path : paths) {
        const QString entry = relative(path);
        if (!path.isEmpty() && !content.files.contains(entry))
            content.files.append(entry);
    }
    replace(content);
}

void Project::removeFile(const QString &path)
{
    ProjectFile content = m_content;
    content.files.removeAll(relative(path));
    replace(content);
}

void Project::moveFile(const QString &path, int steps)
{
    ProjectFile content = m_content;
    const int from = content.files.indexOf(relative(path));
    if (from < 0)
        return;
    content.files.move(from, qBound(0, from + steps, content.files.size() - 1));
    replace(content);
}

QStringList Project::ipFiles() const
{
    QStringList found;
    collectIpFiles(QDir(path()), ipSearchDepth, &found);
    const QStringList listed = files();
    for (const QString &file : listed) {
        if (file.endsWith(QLatin1String(".ipc")) && !found.contains(file))
            found.append(file);
    }
    return found;
}

void Project::replace(const ProjectFile &content)
{
    if (content == m_content)
        return;
    m_content = content;
    QString error;
    const bool written = m_content.write(m_path, &error);
    watch();
    Q_EMIT changed();
    if (!written)
        Q_EMIT failed(error);
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
    ProjectFile content;
    QString error;
    if (!ProjectFile::read(m_path, &content, &error)) {
        Q_EMIT failed(error);
    } else if (!(content == m_content)) {
        m_content = content;
        Q_EMIT changed();
    }
}

QString Project::relative(const QString &path) const
{
    const QString absolutePath =
        QDir::cleanPath(QDir(this->path()).absoluteFilePath(QDir::fromNativeSeparators(path)));
    return QDir(this->path()).relativeFilePath(absolutePath);
}

QString Project::absolute(const QString &entry) const
{
    return QDir::cleanPath(QDir(path()).absoluteFilePath(entry));
}

} // namespace Workbench
