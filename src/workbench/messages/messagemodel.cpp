#include "messagemodel.h"

#include "runsummary.h"
#include "widgets/symbolicon.h"

#include <QDir>
#include <QFileInfo>

namespace Workbench
{

MessageModel::MessageModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void MessageModel::add(const Row &row)
{
    m_rows.append(row);
    ++(row.isHeadline ? m_counts[row.severity].headlines : m_counts[row.severity].others);
    m_files += row.file.isEmpty() ? 0 : 1;
    m_places += row.line > 0 ? 1 : 0;
}

void MessageModel::setReport(const Synthesis::RunReport &report)
{
    beginResetModel();
    forget();
    const QString name =
        report.job.targetName.isEmpty() ? report.job.ipName : report.job.targetName;
    Row headline{report.exitCode == 0 || report.cancelled ? Summary : Error,
                 name.isEmpty() ? shownSummary(report)
                                : tr("%1: %2").arg(name, shownSummary(report)),
                 report.logFile, 0, true};
    QList<Row> rows;
    for (const auto severity : {Synthesis::Message::Error, Synthesis::Message::Warning}) {
        for (const Synthesis::Message &message : report.messages) {
            if (message.severity != severity)
                continue;
            // One cause is one message: the headline gets the place.
            if (message.text == report.summary && report.exitCode != 0) {
                if (!message.file.isEmpty() && headline.line == 0) {
                    headline.file = message.file;
                    headline.line = message.line;
                }
                continue;
            }
            const QString text = message.count > 1
                                     ? tr("%1 (%n times)", nullptr, message.count).arg(message.text)
                                     : message.text;
            rows.append({severity == Synthesis::Message::Error ? Error : Warning, text,
                         message.file, message.line, false});
        }
    }
    add(headline);
    for (const Row &row : qAsConst(rows))
        add(row);
    endResetModel();
}

void MessageModel::append(Severity severity, const QString &text, const QString &file, int line)
{
    beginInsertRows({}, m_rows.size(), m_rows.size());
    add({severity, text, file, line, false});
    endInsertRows();
}

void MessageModel::append(Severity severity, const QStringList &texts)
{
    if (texts.isEmpty())
        return;
    beginInsertRows({}, m_rows.size(), m_rows.size() + texts.size() - 1);
    for (const QString &text : texts)
        add({severity, text, {}, 0, false});
    endInsertRows();
}

void MessageModel::clear()
{
    beginResetModel();
    forget();
    endResetModel();
}

void MessageModel::forget()
{
    m_rows.clear();
    m_files = 0;
    m_places = 0;
    for (Count &count : m_counts)
        count = {};
}

int MessageModel::count(Severity severity) const
{
    const Count &counted = m_counts[severity];
    return counted.others > 0 ? counted.others : counted.headlines;
}

bool MessageModel::hasFiles() const
{
    return m_files > 0;
}

bool MessageModel::hasPlaces() const
{
    return m_places > 0;
}

QString MessageModel::nameOf(Severity severity)
{
    switch (severity) {
    case Error:
        return tr("Error");
    case Warning:
        return tr("Warning");
    case Note:
        return tr("Note");
    case Summary:
        break;
    }
    return tr("Summary");
}

QString MessageModel::toText() const
{
    QString text;
    for (const Row &row : m_rows) {
        text += nameOf(row.severity) + QLatin1String(": ");
        if (!row.file.isEmpty() && row.severity != Summary)
            text += row.line > 0
                        ? QStringLiteral("%1:%2: ").arg(row.file, QString::number(row.line))
                        : QString(row.file + QLatin1String(": "));
        text += row.text + u'\n';
    }
    return text;
}

int MessageModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int MessageModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant MessageModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        if (index.column() == Text)
            return row.text;
        if (index.column() == File)
            return QFileInfo(row.file).fileName();
        return row.line > 0 ? QVariant(row.line) : QVariant();
    case Qt::ToolTipRole:
        return index.column() == Text ? row.text : QDir::toNativeSeparators(row.file);
    case Qt::DecorationRole:
        if (index.column() != Text)
            return {};
        return symbolIcon(row.severity == Error     ? QStringLiteral("error")
                          : row.severity == Warning ? QStringLiteral("warning")
                                                    : QStringLiteral("info"));
    case Qt::AccessibleTextRole:
        if (index.column() == Text)
            return QString(nameOf(row.severity) + QLatin1String(": ") + row.text);
        return data(index, Qt::DisplayRole);
    case PathRole:
        return row.file;
    case LineRole:
        return row.line;
    case SeverityRole:
        return row.severity;
    default:
        return {};
    }
}

QVariant MessageModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == Text ? tr("Message") : section == File ? tr("File") : tr("Line");
}

} // namespace Workbench
