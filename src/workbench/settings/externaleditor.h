#pragma once

#include <QString>
#include <QStringList>

namespace Workbench
{

// The words of a command line with a file and a line (from 1) in the place of "%f" and "%l"; the
// file comes last if the command has no "%f".
QStringList externalCommand(const QString &command, const QString &file, int line);

// Starts it and does not wait. False, and a sentence in `*error`, if it cannot be started.
bool openExternally(const QString &command, const QString &file, int line, QString *error);

} // namespace Workbench
