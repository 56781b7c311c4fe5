#include "toolversion.h"

#include "flow/tools.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace Synthesis
{

namespace
{

constexpr int longestWait = 5000; // ms
constexpr qint64 longestLine = 1000;

} // namespace

QString toolName(Tool tool)
{
    return QLatin1String(toolRow(tool).name);
}

QString toolProgram(Tool tool)
{
    const QString path = QStandardPaths::findExecutable(QLatin1String(toolRow(tool).program));
    return path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
}

QString toolVersion(Tool tool)
{
    const char *argument = toolRow(tool).versionArgument;
    const QString program = toolProgram(tool);
    if (!argument || program.isEmpty())
        return {};
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, {QLatin1String(argument)}, QIODevice::ReadOnly);
    if (!process.waitForFinished(longestWait)) {
        process.kill();
        process.waitForFinished(longestWait);
        return {};
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return {};
    return QString::fromUtf8(process.readLine(longestLine)).simplified();
}

} // namespace Synthesis
