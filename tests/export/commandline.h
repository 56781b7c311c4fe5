#pragma once

#include <QFileInfo>
#include <QProcess>
#include <QString>

// What a person at a shell sees.
namespace Exported
{

struct Run {
    int status = -1; // -1: it did not end by itself
    QString said;
};

// A line of bash in `folder`, with the program (TARVO_COMMAND) found first, and outside of any
// make.
inline Run run(const QString &folder, const QString &line)
{
    QProcess shell;
    shell.setWorkingDirectory(folder);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"),
                       QFileInfo(QStringLiteral(TARVO_COMMAND)).absolutePath() + u':' +
                           environment.value(QStringLiteral("PATH")));
    for (const char *variable : {"MAKEFLAGS", "MFLAGS", "MAKELEVEL"})
        environment.remove(QString::fromLatin1(variable));
    shell.setProcessEnvironment(environment);
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.setStandardInputFile(QProcess::nullDevice());
    shell.start(QStringLiteral("bash"), {QStringLiteral("-euc"), line});
    const bool hasEnded = shell.waitForFinished(240000);
    const bool isOwnEnd = hasEnded && shell.exitStatus() == QProcess::NormalExit;
    return {isOwnEnd ? shell.exitCode() : -1, QString::fromUtf8(shell.readAll())};
}

} // namespace Exported
