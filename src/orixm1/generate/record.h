#pragma once

#include "disk.h"
#include "manifest.h"

#include <functional>

namespace TARVOORIXM1
{

// Keeps the manifest of a folder true while a generation changes its files, and what somebody has
// changed by hand from being lost. Whoever carries out a generation, dialog or command line, calls
// it in the order of its functions; they return false with a sentence in `*error` on failure.
class GenerationRecord
{
public:
    // Writes a text file line by line, whole or not at all.
    using Write =
        std::function<bool(const QString &path, const QStringList &lines, QString *error)>;

    // `disk` must outlive it; null: the disk itself.
    GenerationRecord(const GenerationInput &input, const GenerationPlan &plan, Digest digest,
                     Write write, Disk *disk = nullptr);

    // Before the first include file: from now on an earlier manifest says that a run has not
    // finished. Contents of files that were edited since the last run stand in NAME.edited (or
    // NAME.edited-2, …) beside them afterwards. One that cannot be read, and so not be kept, is a
    // failure before anything is written.
    bool begin(QString *error);
    // After a run of the tool that succeeded, before its results are collected: the same for
    // outputs.
    bool keepEditedOutputs(QString *error);

    // What a run of the tool was.
    struct Run {
        QString tool;
        QString toolVersion;
        QJsonObject report; // with paths
    };
    // The end: everything is in its place. Null: the include files only, since no tool has run to
    // its end; the results are those of before.
    bool finish(const Run *run, QString *error);

    // Something that was edited, and the file that keeps it.
    struct Kept {
        QString path;
        QString copy;
        QByteArray sha256; // of both, when the copy is made
    };
    // So far.
    const QVector<Kept> &edits() const { return m_edits; }
    // Copies that finish() removes after a run that has made what is in them: of this generation,
    // and of those before it that have left no results.
    const QVector<Kept> &copies() const { return m_kept; }
    // Whether begin() or keepEditedOutputs() would keep what stands at the path of a result, unless
    // it is to hold contents with this sum.
    bool isEditedResult(const QString &path, const QByteArray &next) const;

    // As it was at the beginning.
    const Origin &origin() const { return m_origin; }
    // On files that were edited and where their contents are.
    QStringList messages() const;

private:
    Q_DISABLE_COPY(GenerationRecord)

    // Tells of them in the manifest first; when one cannot be kept, all is as before, the manifest
    // as given.
    bool keep(const QStringList &paths, const GenerationManifest &before, QString *error);
    void findCopies(const QStringList &replaced);
    QVector<DigestedFile> digestedCopies() const;
    void dropNeedlessCopies();
    QByteArray digestOf(const QString &path) const; // empty: not there, or cannot be read
    // The same for a file that is about to be replaced: one that is there has to be read.
    Utils::Result<QByteArray> digestToKeep(const QString &path) const;
    bool isRecorded(const QString &name, const QByteArray &sha256) const; // by a run that ended
    // Those that hold what is said of them.
    QVector<DigestedFile> standing(const QVector<DigestedFile> &files) const;
    bool write(const GenerationManifest &manifest, QString *error) const;

    GenerationInput m_input;
    GenerationPlan m_plan;
    Digest m_digest;
    Write m_write;
    Origin m_origin;
    QVector<DigestedFile> m_includeFiles;
    std::optional<GenerationManifest> m_before;
    QVector<DigestedFile> m_left; // what runs that did not end have made, as far as it stands
    std::optional<GenerationManifest> m_running; // what the file says while it runs
    QVector<Kept> m_kept; // copies made by this object, or before it without results
    QVector<Kept> m_edits;
    Disk m_own;
    Disk *m_disk;
    QStringList m_messages;
};

} // namespace TARVOORIXM1
