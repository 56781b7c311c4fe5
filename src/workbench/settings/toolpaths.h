#pragma once

#include <QString>

QT_FORWARD_DECLARE_CLASS(QSettings)

namespace Workbench
{

// The programs that stand in the settings take the place of those on PATH, for this process and
// what it starts: they are links in a folder that comes first there.
class ToolPaths
{
public:
    // `folder`: of this object's own, made when it is needed.
    explicit ToolPaths(const QString &folder);

    // A program that cannot be started is left out, and the one on PATH counts.
    void apply(const QSettings &settings) const;

    // Why a path cannot be used, a sentence; empty if it can be, or is empty itself.
    static QString mistakeOf(const QString &path);
    // The same of a command line with a program on PATH or a whole path.
    static QString mistakeOfCommand(const QString &command);

private:
    const QString m_folder;
};

} // namespace Workbench
