#pragma once

#include <QString>
#include <QStringList>

namespace Cli
{

class Environment;

struct NewArguments {
    QString device;
    QString package;
    QString speed;
    QString language;
    QStringList settings; // "KEY=VALUE"
    QString outDir;
    bool force = false;
};

struct GenerateArguments {
    QString file;
    QString outDir; // empty: the file's folder
    bool synthesise = true;
    bool json = false;
    bool verbose = false;
};

// Each runs one command and returns the exit status; messages have been printed then.
int runNew(Environment &environment, const NewArguments &arguments);
int runGenerate(Environment &environment, const GenerateArguments &arguments);
int runCheck(Environment &environment, const QString &file, bool json);
int runSources(Environment &environment, const QString &file, bool json);
int runPins(Environment &environment, const QString &file, bool json);
enum class RegistersForm { Table, Json, Markdown, CHeader };
// An empty `file` means all peripherals.
int runRegisters(Environment &environment, const QString &file, RegistersForm form);
int runOptions(bool json);
int runDevices(Environment &environment, const QString &series, bool json);

} // namespace Cli
