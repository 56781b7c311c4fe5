#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

namespace Synthesis
{

// A hidden folder inside an output folder that takes everything a run makes before it is known to
// be good. One run at a time has it; the folder is removed at the end, and what a killed run left
// is removed at the beginning.
class ScratchFolder
{
public:
    ScratchFolder() = default;
    ~ScratchFolder();
    Q_DISABLE_COPY(ScratchFolder)

    // Empty on success, otherwise one sentence.
    QString create(const QString &outputDir);

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
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace Synthesis
