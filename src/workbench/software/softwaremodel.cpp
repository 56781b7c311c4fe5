#include "softwaremodel.h"

#include "tr.h"
#include "widgets/symbolicon.h"

namespace Workbench
{

namespace
{

using State = Utils::BundleEntry::State;

// The id of an index: of what is at the top, or the row of its parent and one.
constexpr quintptr top = 0;

QString stateName(State state)
{
    switch (state) {
    case State::Fresh:
        return Tr::tr("fresh");
    case State::Missing:
        return Tr::tr("missing");
    case State::Stale:
        return Tr::tr("stale");
    case State::Edited:
        return Tr::tr("edited");
    case State::LeftOver:
        return Tr::tr("left over");
    case State::LeftOverEdited:
        return Tr::tr("left over, edited");
    }
    return {};
}

QString stateSentence(State state)
{
    switch (state) {
    case State::Fresh:
        return Tr::tr("The folder holds it as it is made now.");
    case State::Missing:
        return Tr::tr("It is not in the folder; an export writes it.");
    case State::Stale:
        return Tr::tr(
            "The folder holds what an earlier export has written; an export replaces it.");
    case State::Edited:
        return Tr::tr("Somebody has changed it in the folder; an export writes it anew "
                      "and keeps the changes in a file beside it.");
    case State::LeftOver:
        return Tr::tr("An earlier export has written it; an export removes it.");
    case State::LeftOverEdited:
        return Tr::tr(
            "An earlier export has written it and somebody has changed it; an export leaves it.");
    }
    return {};
}

QString stateIcon(State state)
{
    const bool isQuiet = state == State::Fresh || state == State::Missing;
    return isQuiet ? QString() : QStringLiteral("warning");
}

} // namespace

SoftwareModel::SoftwareModel(QObject *parent)
    : QAbstractItemModel(parent)
{
}

void SoftwareModel::setSet(const QVector<SoftwareFormat> &formats,
                           const QVector<SoftwareFile> &files)
{
    beginResetModel();
    m_formats = formats;
    m_files = files;
    m_rows.clear();
    m_rows.resize(formats.size());
    QHash<QString, int> places;
    for (int i = 0; i < formats.size(); ++i)
        places.insert(formats.at(i).name, i);
    for (int i = 0; i < files.size(); ++i)
        m_rows[places.value(files.at(i).format)].append(i);
    m_states.clear();
    m_leftOver.clear();
    endResetModel();
}

QStringList SoftwareModel::chosen() const
{
    QStringList names;
    for (const SoftwareFormat &format : m_formats) {
        if (!m_left.contains(format.name))
            names.append(format.name);
    }
    return names;
}

void SoftwareModel::choose(const QStringList &formats)
{
    m_left.clear();
    for (const SoftwareFormat &format : qAsConst(m_formats)) {
        if (!formats.contains(format.name))
            m_left.append(format.name);
    }
    if (!m_formats.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(m_formats.size() - 1, 0));
    Q_EMIT choiceChanged();
}

QVector<SoftwareFile> SoftwareModel::chosenFiles() const
{
    QVector<SoftwareFile> files;
    for (const SoftwareFile &file : m_files) {
        if (!m_left.contains(file.format))
            files.append(file);
    }
    return files;
}

void SoftwareModel::setStates(const QVector<Utils::BundleEntry> &entries)
{
    QVector<Utils::BundleEntry> leftOver;
    m_states.clear();
    for (const Utils::BundleEntry &entry : entries) {
        if (SoftwareSet::find(m_files, entry.path))
            m_states.insert(entry.path, entry.state);
        else
            leftOver.append(entry);
    }
    const int group = m_formats.size();
    if (!m_leftOver.isEmpty()) {
        beginRemoveRows({}, group, group);
        m_leftOver.clear();
        endRemoveRows();
    }
    if (!leftOver.isEmpty()) {
        beginInsertRows({}, group, group);
        m_leftOver = leftOver;
        endInsertRows();
    }
    for (int i = 0; i < m_formats.size(); ++i) {
        const QModelIndex format = index(i, 0);
        Q_EMIT dataChanged(format, index(i, ColumnCount - 1));
        if (const int rows = rowCount(format); rows > 0)
            Q_EMIT dataChanged(index(0, 0, format), index(rows - 1, ColumnCount - 1, format));
    }
}

bool SoftwareModel::isLeftOverGroup(const QModelIndex &index) const
{
    return index.isValid() && index.internalId() == top && index.row() == m_formats.size();
}

const SoftwareFormat *SoftwareModel::format(const QModelIndex &index) const
{
    if (!index.isValid())
        return nullptr;
    const int row = index.internalId() == top ? index.row() : int(index.internalId()) - 1;
    return row < m_formats.size() ? &m_formats.at(row) : nullptr;
}

const SoftwareFile *SoftwareModel::file(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == top)
        return nullptr;
    const int format = int(index.internalId()) - 1;
    return format < m_formats.size() ? &m_files.at(m_rows.at(format).at(index.row())) : nullptr;
}

QModelIndex SoftwareModel::indexOf(const QString &path) const
{
    for (int format = 0; format < m_rows.size(); ++format) {
        for (int row = 0; row < m_rows.at(format).size(); ++row) {
            if (m_files.at(m_rows.at(format).at(row)).path == path)
                return createIndex(row, 0, quintptr(format) + 1);
        }
    }
    return {};
}

QModelIndex SoftwareModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) + 1 : top);
}

QModelIndex SoftwareModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == top)
        return {};
    return createIndex(int(index.internalId()) - 1, 0, top);
}

int SoftwareModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return m_formats.size() + (m_leftOver.isEmpty() ? 0 : 1);
    if (parent.internalId() != top || parent.column() != 0)
        return 0;
    return isLeftOverGroup(parent) ? m_leftOver.size() : m_rows.at(parent.row()).size();
}

int SoftwareModel::columnCount(const QModelIndex & /*parent*/) const
{
    return ColumnCount;
}

QString SoftwareModel::stateOf(int format) const
{
    const QVector<int> &rows = m_rows.at(format);
    if (rows.isEmpty())
        return tr("no files");
    int fresh = 0;
    QStringList names;
    for (const int row : rows) {
        const auto state = m_states.constFind(m_files.at(row).path);
        if (state == m_states.constEnd())
            return {};
        fresh += *state == State::Fresh;
        if (const QString name = stateName(*state); !names.contains(name))
            names.append(name);
    }
    return names.size() == 1 ? names.first() : tr("%1 of %2 fresh").arg(fresh).arg(rows.size());
}

QVariant SoftwareModel::formatData(int row, int column, int role) const
{
    const SoftwareFormat &format = m_formats.at(row);
    if (role == Qt::DisplayRole)
        return column == NameColumn ? format.title : stateOf(row);
    if (role == Qt::ToolTipRole)
        return format.purpose.isEmpty() ? format.title : format.purpose;
    if (role == Qt::CheckStateRole && column == NameColumn)
        return m_left.contains(format.name) ? Qt::Unchecked : Qt::Checked;
    return {};
}

QVariant SoftwareModel::fileData(const QModelIndex &index, int role) const
{
    const SoftwareFile &entry = *file(index);
    const auto state = m_states.constFind(entry.path);
    const bool isKnown = state != m_states.constEnd();
    if (index.column() == NameColumn) {
        if (role == Qt::DisplayRole)
            return entry.path;
        if (role == Qt::DecorationRole)
            return symbolIcon(QStringLiteral("file"));
        if (role == Qt::ToolTipRole)
            return isKnown ? QString(entry.path + u'\n' + stateSentence(*state)) : entry.path;
        return {};
    }
    if (!isKnown)
        return {};
    if (role == Qt::DisplayRole)
        return stateName(*state);
    if (role == Qt::DecorationRole && !stateIcon(*state).isEmpty())
        return symbolIcon(stateIcon(*state));
    return role == Qt::ToolTipRole ? stateSentence(*state) : QVariant();
}

QVariant SoftwareModel::leftOverData(const QModelIndex &index, int role) const
{
    if (isLeftOverGroup(index)) {
        if (role == Qt::DisplayRole && index.column() == NameColumn)
            return tr("Of earlier exports");
        return {};
    }
    const Utils::BundleEntry &entry = m_leftOver.at(index.row());
    if (role == Qt::DisplayRole)
        return index.column() == NameColumn ? entry.path : stateName(entry.state);
    if (role == Qt::DecorationRole)
        return symbolIcon(index.column() == NameColumn ? QStringLiteral("file")
                                                       : stateIcon(entry.state));
    return role == Qt::ToolTipRole ? stateSentence(entry.state) : QVariant();
}

QVariant SoftwareModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (!format(index))
        return leftOverData(index, role);
    return index.internalId() == top ? formatData(index.row(), index.column(), role)
                                     : fileData(index, role);
}

bool SoftwareModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || index.internalId() != top || !format(index))
        return false;
    const QString name = format(index)->name;
    m_left.removeAll(name);
    if (value.toInt() == Qt::Unchecked)
        m_left.append(name);
    Q_EMIT dataChanged(index, index);
    Q_EMIT choiceChanged();
    return true;
}

QVariant SoftwareModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == NameColumn ? tr("Format") : tr("In the folder");
}

Qt::ItemFlags SoftwareModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags result = QAbstractItemModel::flags(index);
    if (index.isValid() && index.internalId() == top && index.column() == NameColumn &&
        format(index))
        result |= Qt::ItemIsUserCheckable;
    return result;
}

} // namespace Workbench
