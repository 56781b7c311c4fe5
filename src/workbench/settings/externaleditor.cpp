#include "externaleditor.h"

#include "toolpaths.h"
#include "tr.h"

#include <QFileInfo>
#include <QProcess>

namespace Workbench
{

QStringList externalCommand(const QString &command, const QString &file, int line)
{
    QStringList words = QProcess::splitCommand(command);
    bool isNamed = false;
    for (int i = 1; i < words.size(); ++i) {
        QString word;
        for (int at = 0; at < words.at(i).size(); ++at) {
            const QStringRef two = words.at(i).midRef(at, 2);
            if (two == QLatin1String("%f"))
                word += file;
            else if (two == QLatin1String("%l"))
                word += QString::number(line);
            else
                word += words.at(i).at(at);
            if (two == QLatin1String("%f") || two == QLatin1String("%l"))
                ++at;
            isNamed = isNamed || two == QLatin1String("%f");
        }
        words[i] = word;
    }
    if (!words.isEmpty() && !isNamed)
        words.append(file);
    return words;
}

bool openExternally(const QString &command, const QString &file, int line, QString *error)
{
    QString reason = ToolPaths::mistakeOfCommand(command);
    QStringList words = externalCommand(command, file, line);
    if (words.isEmpty())
        reason = Tr::tr("No command is set for it.");
    if (reason.isEmpty()) {
        const QString program = words.takeFirst();
        if (QProcess::startDetached(program, words, QFileInfo(file).path()))
            return true;
        reason = Tr::tr("The program \"%1\" does not start.").arg(program);
    }
    *error = Tr::tr("Cannot open the external editor. %1").arg(reason);
    return false;
}

} // namespace Workbench
