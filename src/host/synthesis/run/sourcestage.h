#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace Synthesis
{

class ScratchFolder;

// Gives every source a plain name relative to the output folder, by links in the scratch folder, so
// that no tool meets a blank, a quote or a "*" in a name, and no result depends on where the files
// are.
class SourceStage
{
public:
    // Checks and links the files; a file named twice counts once. Empty on success, otherwise one
    // sentence.
    QString prepare(const QStringList &files, const ScratchFolder &scratch);

    // As given, without repetitions.
    const QStringList &originals() const { return m_originals; }
    // Plain names, in the same order.
    const QStringList &staged() const { return m_staged; }
    // The output folder first, then the folder of each source.
    const QStringList &includeDirs() const { return m_includeDirs; }
    // The real folders behind includeDirs().
    const QStringList &originalDirs() const { return m_originalDirs; }

    // A tool's message with the real paths in place of the plain names.
    QString restored(const QString &text) const;

private:
    QStringList m_originals;
    QStringList m_staged;
    QStringList m_includeDirs;
    QStringList m_originalDirs;
    QHash<QString, QString> m_realPaths; // by link, relative to the output folder
};

} // namespace Synthesis
