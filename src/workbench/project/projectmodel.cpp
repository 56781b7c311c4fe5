#include "projectmodel.h"

#include "ipchead.h"
#include "project.h"
#include "widgets/colours.h"
#include "widgets/symbolicon.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <limits>

namespace Workbench
{

namespace
{

constexpr int reasonsShown = 5;
constexpr int readAtOnce = 200; // files; each is looked at

// Internal id of a group; those of entries are their group's number.
constexpr quintptr groupId = ~quintptr(0);

} // namespace

ProjectModel::ProjectModel(QObject *parent)
    : QAbstractItemModel(parent)
{
}

void ProjectModel::setProject(Project *project)
{
    if (m_project)
        m_project->disconnect(this);
    m_reading.drop();
    beginResetModel();
    m_project = project;
    m_isLarge = false;
    m_states.clear();
    for (QList<Entry> &entries : m_entries)
        entries.clear();
    if (m_project) {
        const Place place = this->place();
        const QStringList ips = m_project->someIpFiles(readAtOnce);
        m_isLarge = ips.size() >= readAtOnce || place.sources.size() >= readAtOnce;
        m_entries[Ips] = read(Ips, place, ips.mid(0, readAtOnce));
        m_entries[Sources] = read(Sources, place, place.sources.mid(0, readAtOnce));
        connect(m_project, &Project::changed, this, &ProjectModel::refresh);
    }
    endResetModel();
    if (m_isLarge)
        readElsewhere();
}

ProjectModel::Place ProjectModel::place() const
{
    return {m_project->path(), m_project->device().id(), m_project->files()};
}

ProjectModel::Entries ProjectModel::readAll(const Place &place)
{
    const QStringList ips =
        Project::ipFilesOf(place.folder, place.sources, std::numeric_limits<int>::max());
    return {{read(Ips, place, ips), read(Sources, place, place.sources)}};
}

void ProjectModel::readElsewhere()
{
    m_reading.start([place = place()] { return readAll(place); },
                    [this](const Entries &read) { show(read); });
}

void ProjectModel::refresh()
{
    if (!m_project)
        return;
    if (m_isLarge)
        readElsewhere();
    else
        show(readAll(place()));
    // The top module and the device are part of the texts.
    Q_EMIT dataChanged(groupIndex(Ips), groupIndex(Sources));
}

void ProjectModel::show(const Entries &read)
{
    if (!m_project)
        return;
    m_isLarge = read.of[Ips].size() >= readAtOnce || read.of[Sources].size() >= readAtOnce;
    for (int group = 0; group < GroupCount; ++group) {
        const QList<Entry> &entries = read.of[group];
        if (entries == m_entries[group])
            continue;
        const QModelIndex parent = groupIndex(Group(group));
        const bool isSameList = std::equal(
            entries.begin(), entries.end(), m_entries[group].begin(), m_entries[group].end(),
            [](const Entry &one, const Entry &other) { return one.path == other.path; });
        // What is selected stays so while files change.
        if (isSameList) {
            for (int row = 0; row < entries.size(); ++row) {
                if (entries.at(row) == m_entries[group].at(row))
                    continue;
                m_entries[group][row] = entries.at(row);
                const QModelIndex changed = index(row, 0, parent);
                Q_EMIT dataChanged(changed, changed);
            }
            continue;
        }
        // Views keep their groups open: only the rows below change.
        const int known = m_entries[group].size();
        const bool isLonger =
            known > 0 && entries.size() > known &&
            std::equal(m_entries[group].begin(), m_entries[group].end(), entries.begin());
        if (isLonger) {
            beginInsertRows(parent, known, entries.size() - 1);
            m_entries[group] += entries.mid(known);
            endInsertRows();
            continue;
        }
        if (known > 0) {
            beginRemoveRows(parent, 0, known - 1);
            m_entries[group].clear();
            endRemoveRows();
        }
        if (!entries.isEmpty()) {
            beginInsertRows(parent, 0, entries.size() - 1);
            m_entries[group] = entries;
            endInsertRows();
        }
    }
}

void ProjectModel::setState(const QString &ipcFile, const IpState &state)
{
    m_states.insert(ipcFile, state);
    const QModelIndex index = indexOf(ipcFile);
    if (index.isValid())
        Q_EMIT dataChanged(index, index);
}

QStringList ProjectModel::remarks(const Entry &file) const
{
    QStringList lines;
    const QString explanation = headOf(file).explanation;
    if (!explanation.isEmpty())
        lines.append(explanation);
    const IpState state = m_states.value(file.path);
    if (file.missing || !state.isBehind())
        return lines;
    lines.append(state.sentence());
    lines += state.reasons.mid(0, reasonsShown);
    if (state.reasons.size() > reasonsShown)
        lines.append(tr("and %n more", nullptr, state.reasons.size() - reasonsShown));
    return lines;
}

QList<ProjectModel::Entry> ProjectModel::read(Group group, const Place &place,
                                              const QStringList &paths)
{
    const QDir folder(place.folder);
    const QString inside = place.folder + u'/';
    QList<Entry> entries;
    entries.reserve(paths.size());
    for (const QString &path : paths) {
        Entry file;
        file.path = path;
        file.text = QDir::toNativeSeparators(
            path.startsWith(inside) ? path.mid(inside.size()) : folder.relativeFilePath(path));
        const QFileInfo info(path);
        file.missing = !info.exists();
        if (group == Ips && !file.missing)
            file.state = QStringLiteral("%1 %2 ").arg(
                             QString::number(info.size()),
                             QString::number(info.lastModified().toMSecsSinceEpoch())) +
                         place.deviceId;
        else
            file.isRead = true;
        entries.append(file);
    }
    return entries;
}

QStringList ProjectModel::ipFiles() const
{
    QStringList paths;
    for (const Entry &file : m_entries[Ips])
        paths.append(file.path);
    return paths;
}

QString ProjectModel::projectFile() const
{
    return m_project ? m_project->file() : QString();
}

const ProjectModel::Head &ProjectModel::headOf(const Entry &entry) const
{
    if (!entry.isRead && m_project) {
        const IpcHead head = IpcHead::read(entry.path);
        const DEV::DeviceArg device = m_project->device();
        entry.head = {head.type, head.difference(device), head.differenceSentence(device)};
        entry.isRead = true;
    }
    return entry.head;
}

QModelIndex ProjectModel::groupIndex(Group group) const
{
    return m_project ? createIndex(group, 0, groupId) : QModelIndex();
}

QModelIndex ProjectModel::indexOf(const QString &path) const
{
    for (int group = 0; group < GroupCount; ++group) {
        for (int row = 0; row < m_entries[group].size(); ++row) {
            if (m_entries[group].at(row).path == path)
                return createIndex(row, 0, quintptr(group));
        }
    }
    return {};
}

bool ProjectModel::isSource(const QModelIndex &index) const
{
    return index.isValid() && index.internalId() == Sources;
}

bool ProjectModel::isIp(const QModelIndex &index) const
{
    return index.isValid() && index.internalId() == Ips;
}

QModelIndex ProjectModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) : groupId);
}

QModelIndex ProjectModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == groupId)
        return {};
    return createIndex(int(index.internalId()), 0, groupId);
}

int ProjectModel::rowCount(const QModelIndex &parent) const
{
    if (!m_project)
        return 0;
    if (!parent.isValid())
        return GroupCount;
    return parent.internalId() == groupId ? m_entries[parent.row()].size() : 0;
}

int ProjectModel::columnCount(const QModelIndex &) const
{
    return 1;
}

const ProjectModel::Entry *ProjectModel::entry(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == groupId)
        return nullptr;
    const QList<Entry> &entries = m_entries[index.internalId()];
    return index.row() < entries.size() ? &entries.at(index.row()) : nullptr;
}

QVariant ProjectModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !m_project)
        return {};
    const Entry *file = entry(index);
    if (!file) {
        const bool sources = index.row() == Sources;
        const bool empty = m_entries[index.row()].isEmpty();
        if (role == Qt::DisplayRole) {
            if (sources && !m_project->topModule().isEmpty())
                return tr("Sources (top module %1)").arg(m_project->topModule());
            if (!sources)
                return empty ? tr("IPs (none yet)") : tr("IPs");
            return empty ? tr("Sources (none yet)") : tr("Sources");
        }
        if (role == Qt::DecorationRole)
            return symbolIcon(sources ? QStringLiteral("sources") : QStringLiteral("ip"));
        if (role == Qt::ToolTipRole)
            return sources
                       ? tr("The design's source files, in the order of compilation")
                       : tr("The IPs of the project. Open one to change and generate it again.");
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        if (file->missing)
            return tr("%1 (missing)").arg(file->text);
        return headOf(*file).difference.isEmpty()
                   ? file->text
                   : tr("%1 (%2)").arg(file->text, headOf(*file).difference);
    case Qt::AccessibleTextRole:
        if (remarks(*file).isEmpty())
            return data(index, Qt::DisplayRole);
        return tr("%1. %2", "a file and what is to be said of it")
            .arg(file->text, remarks(*file).join(u' '));
    case Qt::ToolTipRole: {
        const QString path = QDir::toNativeSeparators(file->path);
        if (file->missing)
            return tr("%1 does not exist").arg(path);
        if (headOf(*file).difference.isEmpty())
            return QStringList(QStringList(path) + remarks(*file)).join(u'\n');
        return tr("%1\n%2\nProject > Move to Device… moves it.")
            .arg(path, remarks(*file).join(u'\n'));
    }
    case Qt::DecorationRole:
        if (!file->missing && headOf(*file).difference.isEmpty() &&
            m_states.value(file->path).isBehind())
            return symbolIcon(QStringLiteral("ip-file-stale"));
        return symbolIcon(file->missing || !headOf(*file).difference.isEmpty()
                              ? QStringLiteral("warning")
                          : index.internalId() == Ips ? QStringLiteral("ip-file")
                                                      : QStringLiteral("file"));
    case Qt::ForegroundRole:
        if (file->missing)
            return Colours::quietOnBase(QGuiApplication::palette());
        return {};
    case PathRole:
        return file->path;
    case MissingRole:
        return file->missing;
    case BehindRole:
        return !file->missing && m_states.value(file->path).isBehind();
    case TypeRole:
        return headOf(*file).type;
    case OtherDeviceRole:
        return !headOf(*file).difference.isEmpty();
    default:
        return {};
    }
}

} // namespace Workbench
