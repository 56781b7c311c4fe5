#include "exampleproject.h"

#include "project/ipchead.h"
#include "project/project.h"
#include "tr.h"

#include <utils/fileutils.h>

#include <QDir>
#include <QFileInfo>

namespace Workbench
{

namespace
{

Utils::Result<ExampleProject> fill(const SimulationExample &example, const QString &folder,
                                   const QString &target)
{
    QString error;
    const auto copy = [&error](const QString &file, const QString &into, const QString &name) {
        return Utils::FileUtils::makePath(into, &error) &&
               Utils::FileUtils::copyFile(file, into + u'/' + name, &error);
    };
    ExampleProject made;
    const QString name = target.isEmpty() ? ExampleProject::nameOf(example) : target;
    const QString ipFolder = folder + u'/' + name;
    made.configuration = ipFolder + u'/' + name + QStringLiteral(".ipc");
    if (!copy(example.configuration, ipFolder, QFileInfo(made.configuration).fileName()))
        return Utils::Failure{error};
    const QString programs = folder + QStringLiteral("/firmware");
    made.program = programs + u'/' + QFileInfo(example.program).fileName();
    for (const QString &file : example.files) {
        if (!copy(file, programs, QFileInfo(file).fileName()))
            return Utils::Failure{error};
    }
    const auto project = Project::create(folder, QFileInfo(folder).fileName(),
                                         IpcHead::read(made.configuration).device, &error);
    if (!project)
        return Utils::Failure{error};
    made.projectFile = project->file();
    return made;
}

} // namespace

QString ExampleProject::nameOf(const SimulationExample &example)
{
    return QFileInfo(example.configuration).completeBaseName();
}

QString ExampleProject::freeFolder(const SimulationExample &example, const QString &location)
{
    const QString first = QDir::cleanPath(location + u'/' + nameOf(example));
    QString folder = first;
    for (int n = 2; QFileInfo::exists(folder) || QFileInfo(folder).isSymLink(); ++n)
        folder = first + u'-' + QString::number(n);
    return folder;
}

Utils::Result<ExampleProject> ExampleProject::make(const SimulationExample &example,
                                                   const QString &folder, const QString &target)
{
    const QFileInfo info(folder);
    const QString shown = QDir::toNativeSeparators(folder);
    if (const QString mistake = Project::nameMistake(info.fileName()); !mistake.isEmpty())
        return Utils::Failure{mistake};
    QString error;
    if (!Utils::FileUtils::makePath(info.absolutePath(), &error))
        return Utils::Failure{error};
    if (info.exists() || info.isSymLink())
        return Utils::Failure{
            Tr::tr("\"%1\" exists already, and nothing in it is replaced.").arg(shown)};
    // Fails if another program has made it meanwhile: what is there then is not ours to remove.
    if (!QDir().mkdir(folder))
        return Utils::Failure{Tr::tr("The folder \"%1\" cannot be made.").arg(shown)};
    Utils::Result<ExampleProject> made = fill(example, folder, target);
    if (!made)
        QDir(folder).removeRecursively();
    return made;
}

} // namespace Workbench
