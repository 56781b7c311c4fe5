#include "toolpaths.h"

#include "settingstable.h"
#include "tr.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace Workbench
{

ToolPaths::ToolPaths(const QString &folder)
    : m_folder(folder)
{
}

QString ToolPaths::mistakeOf(const QString &path)
{
    if (path.isEmpty())
        return {};
    const QFileInfo info(path);
    if (!info.isAbsolute())
        return Tr::tr("This is not the whole path of a program.");
    if (!info.exists())
        return Tr::tr("There is no such file.");
    if (!info.isFile())
        return Tr::tr("This is no file.");
    if (!info.isExecutable())
        return Tr::tr("This file is no program: it may not be executed.");
    return {};
}

QString ToolPaths::mistakeOfCommand(const QString &command)
{
    const QString program = QProcess::splitCommand(command).value(0);
    if (program.isEmpty() || QFileInfo(program).isAbsolute())
        return mistakeOf(program);
    return QStandardPaths::findExecutable(program).isEmpty()
               ? Tr::tr("No program \"%1\" was found on PATH.").arg(program)
               : QString();
}

void ToolPaths::apply(const QSettings &settings) const
{
    bool isUsed = false;
    for (const Settings::Row &row : Settings::rows()) {
        if (row.kind != Settings::Kind::Tool)
            continue;
        const QString program = Settings::valueOf(settings, row).toString();
        const QString link = m_folder + u'/' + QLatin1String(row.tool);
        const bool isWanted = !program.isEmpty() && mistakeOf(program).isEmpty() && program != link;
        if (isWanted && QFileInfo(link).symLinkTarget() == QDir::cleanPath(program)) {
            isUsed = true;
            continue;
        }
        if (QFileInfo(link).isSymLink())
            QFile::remove(link);
        if (isWanted)
            isUsed =
                (QDir().mkpath(m_folder) && QFile::link(QDir::cleanPath(program), link)) || isUsed;
    }
    const QByteArray folder = QFile::encodeName(m_folder);
    QList<QByteArray> path = qgetenv("PATH").split(':');
    const bool wasUsed = path.removeAll(folder) > 0;
    if (isUsed)
        path.prepend(folder);
    if (isUsed || wasUsed)
        qputenv("PATH", path.join(':'));
}

} // namespace Workbench
