#pragma once

#include <utils/result.h>

#include <QString>

#include <functional>

namespace Cli
{

// Runs the Ninja file of a sweep's folder.
class SweepJobs
{
public:
    // `done` of `total` jobs have ended, the last one being that of `point`.
    using Progress = std::function<void(int done, int total, const QString &point)>;

    // That the jobs are to use; empty: their own.
    struct Folders {
        QString data;
        QString devices;
    };

    // The program, by its full path, or a sentence that says where it comes from.
    static Utils::Result<QString> findNinja();

    // Until all that can be done is done, or `cancel` is called: it is given a function that ends
    // the jobs. Jobs that fail do not end the others and are no failure here.
    static Utils::Result<void>
    run(const QString &ninja, const Folders &folders, const QString &folder, int jobs,
        const Progress &progress,
        const std::function<void(const std::function<void()> &)> &atCancel);

    // To be called by a job: it ends with the run that has started it. False: that is gone already.
    // A job that nobody or another workflow has started is its own master.
    static bool joinRun();
};

} // namespace Cli
