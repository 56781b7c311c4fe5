#pragma once

#include "generate/disk.h"
#include "generate/plan.h"
#include "generate/state.h"
#include "system/systemmap.h"

#include <utils/filebundle.h>
#include <utils/result.h>

#include <QByteArray>
#include <QJsonObject>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>

namespace TARVOORIXM1
{

// Bytes. Longer contents are told, and not shown.
inline constexpr qint64 longestShown = qint64(1) << 20;

// What a run of the tool leaves, where that is known before it.
struct KnownResults {
    // By names in the folder of the generated files.
    QVector<QPair<QString, QByteArray>> files;
    // The simulation model that decoding makes of them. A failure is a sentence.
    std::function<Utils::Result<QByteArray>(const QByteArray &verilogNetlist)> decode;
    QString tool;
    QString toolVersion;
    QJsonObject report; // with paths
};

// A configuration file: its path, and what it is to hold.
struct StoredConfiguration {
    QString path;
    QByteArray text;
};

// A generation that is thought through.
struct PreviewInput {
    GenerationInput generation;
    // Written before anything else; nothing: no configuration file is written.
    std::optional<StoredConfiguration> configuration;
    // What the configuration file that stands says: it is what the new one is compared with where
    // no generation has left a manifest.
    std::optional<GenerationInput> standing;
    bool synthesise = true;
    bool isIdle = false; // everything is fresh, so that nothing is done
    // Asked with what the run would be made from; empty, or nothing: only a run can tell.
    std::function<std::optional<KnownResults>(const Origin &)> results;
    // Of the second set of outputs; empty: there is none.
    QString prefix;
    // What writing that set would do (Utils::planBundle(), which not every host has). Empty: that
    // is as little known as what a run leaves.
    std::function<Utils::Result<Utils::BundlePlan>(const Utils::Bundle &)> planSet;

    Digest digest = sha256;
    DigestMemory *memory = nullptr; // not owned; null: none
    // Null: what follows from the options is not compared, for the reason that `notes` may hold.
    const SystemDescription *description = nullptr;
    QStringList notes; // sentences that the preview begins with
    // By its id; a null record for one that is not known.
    std::function<DEV::DeviceArg(const QString &)> findDevice;
    // What a configuration takes of its device; empty: resources are not compared.
    std::function<std::optional<ResourceFigures>(const OptionMap &, const DEV::DeviceArg &)>
        estimate;
};

// A file that a generation is concerned with.
struct PreviewFile {
    enum State {
        New,
        Changed,
        Equal,  // as it stands
        Edited, // by hand, since the last run: it will hold something else
        Remade, // by the tool, which alone can tell whether that changes it
        Stays,  // of an earlier run; this one leaves it as it is
        Removed // of an earlier run: of a set that has no such file any more, or a needless copy
    };

    QString path; // below the output folder
    State state = New;
    bool isTools = false;             // only a run of the tool can tell what it will hold
    std::optional<QByteArray> before; // nothing: no file, one that cannot be read, or a long one
    std::optional<QByteArray> after;  // nothing: not known, or removed; never for the length
    QStringList notes;                // sentences

    // Whether one of the contents is longer than what is shown.
    bool isLong() const;
    qint64 sizeBefore = -1; // bytes; -1: no file
};

// Something that the new configuration has otherwise than the one that the files were made from.
struct PreviewDifference {
    // "option", "device", "memory", "interrupt", "port", "register", "black box" or "resource"
    QLatin1String kind;
    QLatin1String title; // of all of the kind
    QString text;        // with "+", "-" or "~" in front
};

// What a generation would do.
struct Preview {
    QString error; // a sentence: it would do nothing; everything else is empty then
    QVector<PreviewFile> files;
    QVector<PreviewDifference> differences;
    QStringList notes; // sentences

    bool changesNothing() const;
};

// Reads only. It takes the steps of a generation, with what they write in memory.
Preview previewOf(const PreviewInput &input);

// "new", "changed", "equal", "edited", "remade", "stays", "removed"
QString stateName(PreviewFile::State state);

} // namespace TARVOORIXM1
