#pragma once

#include "ipstate.h"
#include "widgets/background.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QPointer>
#include <QStringList>

namespace Workbench
{

class Project;

// The open project as a tree: its IPs (.ipc files) and its sources in order. A file that does not
// exist is shown and says so, and so is an IP that is made for another device than the project's.
class ProjectModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Group { Ips, Sources, GroupCount };
    enum Role { PathRole = Qt::UserRole, MissingRole, OtherDeviceRole, TypeRole, BehindRole };

    explicit ProjectModel(QObject *parent = nullptr);

    // Not owned; null shows an empty tree. Of many files the first ones are there at once, and all
    // of them when another thread has looked at them.
    void setProject(Project *project);
    // Reads the project and its folder again; of many files this is only begun.
    void refresh();
    // Waits for what is being read.
    void finishReading() { m_reading.finish(); }
    // Whether an IP of it has been generated as it is.
    void setState(const QString &ipcFile, const IpState &state);

    // Empty without a project.
    QString projectFile() const;
    QStringList ipFiles() const;
    QModelIndex groupIndex(Group group) const;
    // Invalid when the tree does not show the file.
    QModelIndex indexOf(const QString &path) const;
    bool isSource(const QModelIndex &index) const;
    bool isIp(const QModelIndex &index) const;

    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    // What the file of an IP says.
    struct Head {
        QString type;
        QString difference; // of its device
        QString explanation;
    };
    struct Entry {
        QString path;
        QString text; // relative to the project's folder
        bool missing = false;
        QString state;               // of an IP: what its head depends on
        mutable bool isRead = false; // the head: when it is asked for, since there may be many
        mutable Head head;
        bool operator==(const Entry &other) const
        {
            return path == other.path && text == other.text && missing == other.missing &&
                   state == other.state;
        }
    };

    // What stands in a project, and what is to be known of it to read its files.
    struct Place {
        QString folder;
        QString deviceId;
        QStringList sources;
    };
    struct Entries {
        QList<Entry> of[GroupCount];
    };
    static QList<Entry> read(Group group, const Place &place, const QStringList &paths);
    static Entries readAll(const Place &place);
    Place place() const;
    void readElsewhere();
    void show(const Entries &read);
    // What there is to be told of an IP, a line each; empty: nothing.
    QStringList remarks(const Entry &file) const;
    const Entry *entry(const QModelIndex &index) const;
    const Head &headOf(const Entry &entry) const;

    QPointer<Project> m_project;
    QList<Entry> m_entries[GroupCount];
    bool m_isLarge = false;
    Background m_reading;
    QHash<QString, IpState> m_states; // by path
};

} // namespace Workbench
