#include "state.h"

#include "config/tr.h"

#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

// Fills in what stands at a path.
void look(FileState *file, const DigestedFile *recorded, Digest digest)
{
    if (recorded)
        file->recorded = recorded->sha256;
    if (!isThere(file->path))
        return;
    QByteArray bytes;
    QString reason;
    const bool isRead =
        Reading::readPlainFile(file->path, Reading::Limits::anyFile, &bytes, &reason);
    file->present = isRead ? digest(bytes) : QByteArray("unreadable");
    if (file->isInclude)
        file->contents = bytes;
}

FileState::State stateOf(const FileState &file, bool isKnown, bool isCurrent)
{
    if (file.present.isEmpty())
        return FileState::Missing;
    if (!file.recorded.isEmpty() && isCurrent)
        return FileState::Fresh;
    if (isKnown)
        return FileState::Stale;
    return file.recorded.isEmpty() ? FileState::Foreign : FileState::Edited;
}

} // namespace

QString stateName(FileState::State state)
{
    switch (state) {
    case FileState::Fresh:
        return QStringLiteral("fresh");
    case FileState::Missing:
        return QStringLiteral("missing");
    case FileState::Stale:
        return QStringLiteral("stale");
    case FileState::Edited:
        return QStringLiteral("edited");
    case FileState::Foreign:
        break;
    }
    return QStringLiteral("foreign");
}

bool GenerationState::isFresh() const
{
    return state() == FileState::Fresh;
}

FileState::State GenerationState::state() const
{
    for (const FileState::State worst :
         {FileState::Edited, FileState::Foreign, FileState::Missing, FileState::Stale}) {
        if (std::any_of(files.begin(), files.end(),
                        [worst](const FileState &file) { return file.state == worst; }))
            return worst;
    }
    const bool isTrue = manifest && manifest->isFinished && changes.isEmpty();
    return isTrue ? FileState::Fresh : FileState::Stale;
}

Utils::Result<std::optional<GenerationManifest>> readManifest(const GenerationPlan &plan)
{
    const QString path = plan.folder + u'/' + manifestName;
    if (!isThere(path))
        return std::optional<GenerationManifest>();
    QByteArray bytes;
    QString reason;
    if (!Reading::readPlainFile(path, Reading::Limits::bundleManifest, &bytes, &reason))
        return Utils::Failure{
            Tr::tr("\"%1\" cannot be read: %2.").arg(QDir::toNativeSeparators(path), reason)};
    const auto read = GenerationManifest::fromText(bytes, path);
    if (!read)
        return Utils::Failure{read.reason()};
    return std::optional<GenerationManifest>(*read);
}

GenerationState generationState(const GenerationInput &input, const GenerationPlan &plan,
                                const std::function<ToolFacts()> &tool, Digest digest,
                                bool asksAlways)
{
    GenerationState state;
    const auto read = readManifest(plan);
    if (!read)
        state.messages.append(Tr::tr("%1 So nothing is known of earlier runs.").arg(read.reason()));
    else
        state.manifest = *read;
    if (state.manifest && !state.manifest->isFinished)
        state.messages.append(
            Tr::tr("The last run did not end, so its files cannot be relied on."));
    const GenerationManifest none;
    const GenerationManifest &manifest = state.manifest ? *state.manifest : none;
    state.origin = originOf(input, plan, digest);
    if (state.manifest)
        state.changes = changesBetween(manifest.origin, state.origin);

    for (const IncludeFile &include : plan.includeFiles) {
        FileState file;
        file.path = plan.pathOf(include);
        file.isInclude = true;
        file.expected = bytesOf(include);
        const QString name = belowOutput(file.path, input.createInPath);
        look(&file, manifest.find(name), digest);
        const bool isRead = file.present != "unreadable";
        file.state = stateOf(file, manifest.knows(name, file.present),
                             isRead && file.contents == file.expected);
        state.files.append(file);
    }
    if (!tool)
        return state;

    const bool isRecorded = manifest.synthesis.has_value();
    bool isCurrent = isRecorded && manifest.synthesis->origin == state.origin;
    if (isRecorded && !isCurrent) {
        const QVector<Change> changes = changesBetween(manifest.synthesis->origin, state.origin);
        for (const Change &change : changes) {
            if (!state.changes.contains(change))
                state.changes.append(change);
        }
    }
    const ResultPaths paths = resultPaths(plan.outputs);
    QSet<QString> seen;
    const auto add = [&](const QString &path, bool isSometimes, bool belongsThere) {
        FileState file;
        file.path = path;
        const QString name = belowOutput(path, input.createInPath);
        seen.insert(name);
        const DigestedFile *recorded = manifest.find(name);
        look(&file, recorded, digest);
        if (file.present.isEmpty() && (!belongsThere || (isSometimes && !recorded)))
            return;
        const bool isLasts = recorded && recorded->sha256 == file.present;
        // A run that did not end may have written it.
        const bool isKnown =
            manifest.knows(name, file.present) || (recorded && !manifest.isFinished);
        file.state = stateOf(file, isKnown, isLasts && isCurrent && belongsThere);
        state.files.append(file);
    };
    for (const QString &path : paths.always)
        add(path, false, true);
    for (const QString &path : paths.sometimes)
        add(path, true, true);
    if (isRecorded) {
        // What a run of another language or tool has left.
        for (const DigestedFile &file : manifest.synthesis->files) {
            if (!seen.contains(file.name))
                add(input.createInPath + u'/' + file.name, true, false);
        }
    }
    if (!isRecorded || (!asksAlways && !state.isFresh()))
        return state;
    const ToolFacts facts = tool();
    if (!facts.isInstalled) {
        state.messages.append(
            Tr::tr("%1 is not installed, so its version is not compared.").arg(facts.name));
        return state;
    }
    if (!facts.version.isEmpty() && facts.name == manifest.synthesis->tool &&
        facts.version == manifest.synthesis->toolVersion)
        return state;
    const auto shown = [](const QString &name, const QString &version) {
        return version.isEmpty() ? QString(name + ", version unknown"_l1) : version;
    };
    state.changes.append({QStringLiteral("tool"), QString(),
                          shown(manifest.synthesis->tool, manifest.synthesis->toolVersion),
                          shown(facts.name, facts.version)});
    for (FileState &file : state.files) {
        if (!file.isInclude && file.state == FileState::Fresh)
            file.state = FileState::Stale;
    }
    return state;
}

} // namespace TARVOORIXM1
