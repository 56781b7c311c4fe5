#pragma once

#include "config/latin1literal.h"
#include "plan.h"

#include <utils/result.h>

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace TARVOORIXM1
{

// The name of the manifest in the folder of the generated files.
inline constexpr QLatin1String manifestName = "manifest.json"_l1;

// SHA-256 of bytes in hexadecimal digits.
using Digest = QByteArray (*)(const QByteArray &bytes);
QByteArray sha256(const QByteArray &bytes);

// Something that a generation has read, or made, by its contents.
struct DigestedFile {
    QString role; // of an input: "configuration", "descriptor", "generated", "source", "included"
                  // or "memory"; empty for what was made
    QString name; // what was made: its path below the output folder
    QByteArray sha256; // empty: there is no such file

    bool operator==(const DigestedFile &other) const
    {
        return role == other.role && name == other.name && sha256 == other.sha256;
    }
};

// All that a generation depends on but the tool. Holds no path of the machine.
struct Origin {
    QString program;     // version of the generator
    QString descriptor;  // the IP's id and version
    QString device;      // id
    QJsonObject options; // every option with the value that counts
    QVector<DigestedFile> inputs;

    bool operator==(const Origin &other) const
    {
        return program == other.program && descriptor == other.descriptor &&
               device == other.device && options == other.options && inputs == other.inputs;
    }
    bool operator!=(const Origin &other) const { return !(*this == other); }
};

// Every option with the value that counts in a generation.
QJsonObject effectiveOptions(const GenerationInput &input);
// Reads the inputs; `plan` is that of `input`.
Origin originOf(const GenerationInput &input, const GenerationPlan &plan, Digest digest);

// A run of the tool whose results were collected.
struct SynthesisRecord {
    Origin origin;
    QString tool;
    QString toolVersion;         // empty: not known, which is like no other
    QVector<DigestedFile> files; // in the folder of the generated files and in the output folder
    // What the run had to say, as the host tells it; paths of the machine have placeholders.
    QJsonObject report;
};

// What the last generation into a folder was made from and has made.
struct GenerationManifest {
    // False from before the first file changes until the last one stands.
    bool isFinished = true;
    Origin origin; // of the include files
    QVector<DigestedFile> includeFiles;
    // The same as a run that has not finished is about to leave them, and what such runs before it
    // have made and no run since has replaced. A file may stand here more than once.
    QVector<DigestedFile> pendingFiles;
    // Copies that runs without results have made, or were about to, of what they found: NAME.edited
    // or NAME.edited-2, …, as long as what is in them may turn out to be what a run makes.
    QVector<DigestedFile> copies;
    std::optional<SynthesisRecord> synthesis;

    // The contents of the file, line by line; the same for equal manifests.
    QStringList toLines() const;
    // A failure is a sentence with path, place and reason. `path` is for the message only.
    static Utils::Result<GenerationManifest> fromText(const QByteArray &text, const QString &path);

    // Whether the path below the output folder is one of those that a run has left, or was about
    // to, with these contents.
    const DigestedFile *find(const QString &path) const;
    bool knows(const QString &path, const QByteArray &sha256) const;
};

// The bytes that an include file is to hold.
QByteArray bytesOf(const IncludeFile &file);
// A path of the plan below its output folder.
QString belowOutput(const QString &path, const QString &createInPath);
// What a run of the tool leaves, by full paths: what every run does, and what only some do. The
// results in the folder of the generated files come first.
struct ResultPaths {
    QStringList always;
    QStringList sometimes;
};
ResultPaths resultPaths(const Outputs &outputs);

// Placeholders for the paths of the machine in the texts of a report, and back.
QJsonObject withoutPaths(const QJsonObject &report, const GenerationInput &input);
QJsonObject withPaths(const QJsonObject &report, const GenerationInput &input);

// Something that is not any more what it was when a generation was made.
struct Change {
    QString kind;   // "program", "descriptor", "device", "option", "tool", or an input's role
    QString name;   // of an option or a file
    QString before; // empty with `after`: no values to tell, its contents are others
    QString after;

    // "option "Enable GPIO": false, now true"
    QString text() const;
    bool operator==(const Change &other) const
    {
        return kind == other.kind && name == other.name && before == other.before &&
               after == other.after;
    }
};

// Empty if the two are equal.
QVector<Change> changesBetween(const Origin &before, const Origin &after);

} // namespace TARVOORIXM1
