#pragma once

#include <QString>

#include <sys/types.h>

namespace Cli
{

// A folder of its own for temporary files, below that of the system. It goes with this object, and
// with this process however that ends, even if it is killed: a child process makes the folder and
// removes it.
class ScratchFolder
{
public:
    // `name`: how the folder is called, before characters that are drawn.
    explicit ScratchFolder(const QString &name);
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder &) = delete;
    ScratchFolder &operator=(const ScratchFolder &) = delete;

    // A full path; empty: the folder could not be made.
    QString path() const { return m_path; }
    QString problem() const { return m_problem; } // a sentence

private:
    int start(QByteArray &path);

    QString m_path;
    QString m_problem;
    int m_channel = -1;
    pid_t m_keeper = -1;
};

} // namespace Cli
