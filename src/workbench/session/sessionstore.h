#pragma once

#include "sessionrecord.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>

QT_FORWARD_DECLARE_CLASS(QSettings)

namespace Workbench
{

// What a window comes back to, in the group "session" of the settings. Every change is on the disk
// when its function returns, as a whole; what other processes have written there stays, but for the
// same entry. Values that make no sense count as absent.
class SessionStore
{
public:
    static constexpr int projectLimit = 64;
    static constexpr int attemptLimit = 2;

    // The settings must outlive it.
    explicit SessionStore(QSettings &settings);

    // Whether a start brings back the last project; true at first.
    bool isWanted() const;
    void setWanted(bool wanted);

    // The project file that was open last; empty: none.
    QString last() const;
    void setLast(const QString &projectFile);
    // Clears it if it is still this one.
    void forget(const QString &projectFile);

    // Of a project file; empty: of a window without a project.
    SessionRecord record(const QString &projectFile) const;
    // Only a limited number of projects is kept, those that changed last.
    void keep(const QString &projectFile, const SessionRecord &record);

    // Sizes of the parts of a splitter, by its name.
    QHash<QString, QList<int>> splitters() const;
    void setSplitters(const QHash<QString, QList<int>> &sizes);

    // Starts that began to bring something back and did not get through it, one after the other.
    int attempts() const;
    void setAttempts(int number);

    struct WindowState {
        QByteArray geometry;
        QByteArray panes;
        bool operator==(const WindowState &other) const
        {
            return geometry == other.geometry && panes == other.panes;
        }
    };
    // Empty for what is not as it was written.
    WindowState windowState() const;
    void setWindowState(const WindowState &state);

private:
    void write(const QString &key, const QVariant &value);

    QSettings &m_settings;
};

} // namespace Workbench
