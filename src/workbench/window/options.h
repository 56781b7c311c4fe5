#pragma once

#include <QString>
#include <QStringList>

#include <string>

namespace Workbench
{

// What the command line asks for. Empty texts were not given.
struct Options {
    QStringList files;
    QString newIp; // id or name
    QString device;
    QString dir;
    QString renderDiagram; // an .ipc file
    QString output;
    QStringList pluginDirs;
    QString settings;
    bool isFresh = false;    // nothing of the last time is opened
    QString language; // a code of Languages
    unsigned timeLimit = 60; // of renderDiagram, in seconds

    enum Next { Run, Leave };

    // Reads the arguments after Qt has taken its own. With Leave everything has been said, on
    // standard output or standard error, and the program ends with `*status`.
    Next parse(int argc, char *argv[], int *status);
    static std::string help();
};

} // namespace Workbench
