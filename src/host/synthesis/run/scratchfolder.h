#pragma once

#include <QString>

#include <memory>

namespace Utils
{
class FolderLock;
}

namespace Synthesis
{

// A hidden folder inside an output folder that takes everything a run makes before it is known to
// be good. One run at a time has it; the folder is removed at the end, and what a killed run left
// is removed at the beginning, when its tool is gone.
class ScratchFolder
{
public:
    ScratchFolder() = default;
    ~ScratchFolder();
    Q_DISABLE_COPY(ScratchFolder)

    // Empty on success, otherwise one sentence. `lock` is the right to write there; if it is null
    // or of another folder it is taken here.
    QString create(const QString &outputDir, std::shared_ptr<Utils::FolderLock> lock);

    // To be kept open, by a file descriptor of it, as long as a tool may write into the folder.
    int descriptor() const { return m_fd; }

    // Why the folder takes no more data (a full disk, say), as one sentence; empty while it does,
    // and before it was made.
    QString problem() const;

    // Relative to the output folder.
    static QString name() { return QStringLiteral(".tarvo-run"); }
    static QString relative(const QString &file);
    QString absolute(const QString &file) const;
    const QString &outputDir() const { return m_outputDir; }

private:
    QString m_outputDir;
    QString m_path;
    std::shared_ptr<Utils::FolderLock> m_lock;
    int m_fd = -1;
};

} // namespace Synthesis
