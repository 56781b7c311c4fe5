#pragma once

#include "pluginloader.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace Workbench
{

// Has a library loaded and asked in a process of its own, since it may crash, block or end its
// process there. What the process prints to standard output, a line each: marks of the steps, and
// at last the result as JSON, {"ips": [{"id", "name", "version", "summary", "category",
// "devices"}], "mistakes": [sentence]}.
class PluginProbe
{
public:
    // The name of the program, which stands beside the host libraries.
    static constexpr const char *program = "tarvo-plugin-probe";
    static constexpr const char *linePrefix = "tarvo-plugin-probe ";

    struct Result {
        QString reason; // a sentence; empty: the library may be loaded
        bool blocked = false;
    };

    // Starts the process; `timeLimit` in milliseconds.
    PluginProbe(const QString &library, const QString &dataFolder, int timeLimit);
    PluginProbe(const PluginProbe &) = delete;
    PluginProbe &operator=(const PluginProbe &) = delete;
    // Ends the process if it still runs.
    ~PluginProbe();

    // Waits for the end of the process, up to the time limit.
    Result wait();

private:
    class Process;

    static QString stepWords(int step);

    int m_timeLimit;
    std::unique_ptr<Process> m_process;
};

} // namespace Workbench
