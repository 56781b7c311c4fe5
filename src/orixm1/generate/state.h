#pragma once

#include "manifest.h"

#include <functional>

namespace TARVOORIXM1
{

// A file that a generation makes, as it stands.
struct FileState {
    enum State {
        Fresh,
        Missing,
        Stale,  // as the last run has left it; a run would make it anew
        Edited, // changed since the last run
        Foreign // stands where a result belongs; no run that is known of has made it
    };

    QString path; // full
    State state = Fresh;
    QByteArray recorded; // SHA-256; empty: none
    QByteArray present;  // likewise; empty: there is no file
    QByteArray expected; // bytes; of include files only
    QByteArray contents; // likewise
    bool isInclude = false;
};

// "fresh", "missing", "stale", "edited", "foreign"
QString stateName(FileState::State state);

// The tool that a run would use now.
struct ToolFacts {
    QString name;
    QString version;         // empty: not known
    bool isInstalled = true; // else nothing can be said of it
};

// How a folder stands to what a generation would put there.
struct GenerationState {
    std::optional<GenerationManifest> manifest;
    Origin origin; // as it is now
    QVector<FileState> files;
    QVector<Change> changes; // since the files were made
    QStringList messages; // sentences: a manifest that counts for nothing, a run that did not end

    bool isFresh() const;
    // Of all files together: the first of edited, foreign, missing and stale that there is.
    FileState::State state() const;
};

// Reads only. Without `tool` it is about the include files alone; of the tool it is asked only
// where everything else is fresh, or `asksAlways` is set. A file that cannot be read counts as one
// of other contents.
GenerationState generationState(const GenerationInput &input, const GenerationPlan &plan,
                                const std::function<ToolFacts()> &tool, Digest digest,
                                bool asksAlways);

// Reads the manifest of a plan. Nothing if there is none; a failure is a sentence.
Utils::Result<std::optional<GenerationManifest>> readManifest(const GenerationPlan &plan);

} // namespace TARVOORIXM1
