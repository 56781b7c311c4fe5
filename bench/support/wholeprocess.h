#pragma once

#include <QByteArray>
#include <QVector>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// What one run of a whole process takes.
struct Sample {
    double wall = 0;      // milliseconds
    double processor = 0; // milliseconds, of user and system, its children's too
    double mebibytes = 0; // peak resident memory
};

inline double milliseconds(const timeval &time)
{
    return double(time.tv_sec) * 1000 + double(time.tv_usec) / 1000;
}

// Runs the command, a full path and its arguments, and waits for it. If it fails, this program
// does.
inline Sample runOnce(const QVector<QByteArray> &command)
{
    std::vector<char *> arguments;
    for (const QByteArray &argument : command)
        arguments.push_back(const_cast<char *>(argument.constData()));
    arguments.push_back(nullptr);
    const auto before = std::chrono::steady_clock::now();
    const pid_t child = ::vfork();
    if (child == 0) {
        ::execv(arguments.front(), arguments.data());
        ::_exit(127);
    }
    int status = 0;
    struct rusage usage = {};
    ::wait4(child, &status, 0, &usage);
    const std::chrono::duration<double, std::milli> elapsed =
        std::chrono::steady_clock::now() - before;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s failed\n", arguments.front());
        std::exit(1);
    }
    return {elapsed.count(), milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime),
            double(usage.ru_maxrss) / 1024};
}

// Of a member of the samples; there must be one.
inline double median(QVector<Sample> samples, double Sample::*member)
{
    std::sort(samples.begin(), samples.end(),
              [member](const Sample &a, const Sample &b) { return a.*member < b.*member; });
    return samples.at(samples.size() / 2).*member;
}
