#include "record.h"

#include "config/latin1literal.h"
#include "config/tr.h"
#include "state.h"

#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <utility>

namespace TARVOORIXM1
{

GenerationRecord::GenerationRecord(const GenerationInput &input, const GenerationPlan &plan,
                                   Digest digest, Write write, Disk *disk)
    : m_input(input)
    , m_plan(plan)
    , m_digest(digest)
    , m_write(std::move(write))
    , m_disk(disk ? disk : &m_own)
{
}

bool GenerationRecord::write(const GenerationManifest &manifest, QString *error) const
{
    return m_write(m_plan.folder + u'/' + manifestName, manifest.toLines(), error);
}

QByteArray GenerationRecord::digestOf(const QString &path) const
{
    return m_disk->digestOf(path, m_digest);
}

Utils::Result<QByteArray> GenerationRecord::digestToKeep(const QString &path) const
{
    const QByteArray sum = digestOf(path);
    if (!sum.isEmpty() || !m_disk->exists(path))
        return sum;
    QByteArray bytes;
    QString reason;
    if (Reading::readPlainFile(path, Reading::Limits::anyFile, &bytes, &reason))
        return m_digest(bytes);
    return Utils::Failure{Tr::tr("\"%1\" cannot be read, so what stands there would be lost: %2.")
                              .arg(QDir::toNativeSeparators(path), reason)};
}

bool GenerationRecord::keep(const QStringList &paths, const GenerationManifest &before,
                            QString *error)
{
    const int keptBefore = m_kept.size();
    const int editsBefore = m_edits.size();
    for (const QString &path : paths) {
        const QByteArray sum = digestOf(path);
        QString copy = path + ".edited"_l1;
        for (int number = 2; m_disk->exists(copy) && digestOf(copy) != sum; ++number)
            copy = path + ".edited-"_l1 + QString::number(number);
        m_edits.append({path, copy, sum});
        if (!m_disk->exists(copy))
            m_kept.append(m_edits.constLast());
    }
    m_running->copies = digestedCopies();
    const bool isTold = write(*m_running, error);
    int next = keptBefore;
    while (isTold && next < m_kept.size() &&
           m_disk->copy(m_kept[next].path, m_kept[next].copy, error))
        ++next;
    if (isTold && next == m_kept.size())
        return true;
    while (next > keptBefore)
        m_disk->remove(m_kept[--next].copy);
    m_kept.resize(keptBefore);
    m_edits.resize(editsBefore);
    QString ignored;
    if (isTold)
        write(before, &ignored);
    return false;
}

QStringList GenerationRecord::messages() const
{
    QStringList messages = m_messages;
    for (const Kept &edit : m_edits) {
        // One that turned out to be what the run has made is gone.
        if (!m_disk->exists(edit.copy))
            continue;
        const QString text =
            m_before->isFinished
                ? Tr::tr(
                      "\"%1\" was changed since the last run; what stood there is in \"%2\" now.")
                : Tr::tr("The last run did not end, and \"%1\" is not what one before it has "
                         "left; what stood there is in \"%2\" now.");
        messages.append(
            text.arg(QDir::toNativeSeparators(edit.path), QDir::toNativeSeparators(edit.copy)));
    }
    return messages;
}

// Those that runs before have told of. What somebody has changed since is his own.
void GenerationRecord::findCopies(const QStringList &replaced)
{
    static const QRegularExpression nameOfCopy(QStringLiteral("^(.+)\\.edited(-[0-9]+)?$"));
    const QVector<DigestedFile> copies = standing(m_before->copies);
    for (const DigestedFile &file : copies) {
        const QString copy = m_input.createInPath + u'/' + file.name;
        const QString path = nameOfCopy.match(copy).captured(1);
        if (replaced.contains(path))
            m_kept.append({path, copy, file.sha256});
    }
}

QVector<DigestedFile> GenerationRecord::digestedCopies() const
{
    QVector<DigestedFile> files;
    for (const Kept &kept : m_kept)
        files.append({QString(), belowOutput(kept.copy, m_input.createInPath), kept.sha256});
    return files;
}

// What a run that did not end had made already was no edit. Such a run could not tell of what it
// has kept.
void GenerationRecord::dropNeedlessCopies()
{
    for (const Kept &kept : qAsConst(m_kept)) {
        const bool isTold = std::any_of(m_edits.begin(), m_edits.end(), [&kept](const Kept &edit) {
            return edit.copy == kept.copy;
        });
        if (digestOf(kept.copy) == kept.sha256 && digestOf(kept.path) == kept.sha256)
            m_disk->remove(kept.copy);
        else if (!isTold && m_disk->exists(kept.copy))
            m_messages.append(
                Tr::tr("A run that did not end has found something else in \"%1\" than what a run "
                       "has left; it is in \"%2\".")
                    .arg(QDir::toNativeSeparators(kept.path), QDir::toNativeSeparators(kept.copy)));
    }
    m_kept.clear();
}

bool GenerationRecord::begin(QString *error)
{
    m_origin = originOf(m_input, m_plan, m_digest);
    for (const IncludeFile &file : m_plan.includeFiles)
        m_includeFiles.append({QString(), belowOutput(m_plan.pathOf(file), m_input.createInPath),
                               m_digest(bytesOf(file))});
    const auto read = readManifest(m_plan);
    if (!read) {
        m_messages.append(Tr::tr("%1 So nothing is known of earlier runs.").arg(read.reason()));
        return true;
    }
    m_before = *read;
    if (!m_before)
        return true;
    const ResultPaths paths = resultPaths(m_plan.outputs);
    const QStringList replaced = paths.always + paths.sometimes;
    QStringList written = replaced;
    for (const DigestedFile &file : qAsConst(m_includeFiles))
        written.append(m_input.createInPath + u'/' + file.name);
    findCopies(written);
    QHash<QString, QByteArray> sums;
    for (const QString &path : qAsConst(written)) {
        const auto sum = digestToKeep(path);
        if (!sum) {
            *error = sum.reason();
            return false;
        }
        sums.insert(path, *sum);
    }
    QStringList edited;
    for (const DigestedFile &file : qAsConst(m_includeFiles)) {
        const QString path = m_input.createInPath + u'/' + file.name;
        const QByteArray present = sums.value(path);
        if (present.isEmpty() || present == file.sha256 || m_before->knows(file.name, present))
            continue;
        edited.append(path);
    }
    m_left = standing(m_before->pendingFiles);
    QStringList results = replaced;
    if (m_before->synthesis) {
        for (const DigestedFile &file : m_before->synthesis->files) {
            if (const QString path = m_input.createInPath + u'/' + file.name;
                !results.contains(path))
                results.append(path);
        }
    }
    for (const QString &path : qAsConst(results)) {
        const auto sum = sums.constFind(path);
        const QByteArray present = sum == sums.cend() ? digestOf(path) : *sum;
        const QString name = belowOutput(path, m_input.createInPath);
        if (present.isEmpty() || isRecorded(name, present))
            continue;
        const DigestedFile left{QString(), name, present};
        if (!m_before->isFinished && !m_left.contains(left))
            m_left.append(left);
        // The tool replaces its own results, the project tool's too.
        const bool isTools = replaced.contains(path) && path.startsWith(m_plan.folder + u'/');
        if (isTools)
            edited.append(path);
    }
    m_running = m_before;
    m_running->isFinished = false;
    m_running->pendingFiles = m_includeFiles;
    for (const DigestedFile &file : qAsConst(m_left)) {
        if (!m_running->pendingFiles.contains(file))
            m_running->pendingFiles.append(file);
    }
    return keep(edited, *m_before, error);
}

bool GenerationRecord::isRecorded(const QString &name, const QByteArray &sha256) const
{
    const DigestedFile *file = m_before->find(name);
    return file && file->sha256 == sha256;
}

QVector<DigestedFile> GenerationRecord::standing(const QVector<DigestedFile> &files) const
{
    QVector<DigestedFile> those;
    for (const DigestedFile &file : files) {
        if (digestOf(m_input.createInPath + u'/' + file.name) == file.sha256 &&
            !those.contains(file))
            those.append(file);
    }
    return those;
}

bool GenerationRecord::isEditedResult(const QString &path, const QByteArray &next) const
{
    if (!m_before)
        return false;
    const QByteArray present = digestOf(path);
    return !present.isEmpty() && present != next &&
           !isRecorded(belowOutput(path, m_input.createInPath), present);
}

bool GenerationRecord::keepEditedOutputs(QString *error)
{
    if (!m_before)
        return true;
    QStringList edited;
    const auto keepUnless = [&](const QString &path, const QByteArray &next) {
        if (const auto present = digestToKeep(path); !present) {
            *error = present.reason();
            return false;
        }
        if (isEditedResult(path, next))
            edited.append(path);
        return true;
    };
    for (const Output &output : qAsConst(m_plan.outputs.copied)) {
        if (output.isOptional && !m_disk->exists(output.source))
            continue;
        if (!keepUnless(output.file, digestOf(output.source)))
            return false;
    }
    if (!keepUnless(m_plan.outputs.decoded, QByteArray()))
        return false;
    return edited.isEmpty() || keep(edited, GenerationManifest(*m_running), error);
}

bool GenerationRecord::finish(const Run *run, QString *error)
{
    GenerationManifest manifest;
    manifest.origin = m_origin;
    manifest.includeFiles = m_includeFiles;
    if (!run) {
        if (m_before)
            manifest.synthesis = m_before->synthesis;
        // The include files are all replaced.
        const QVector<DigestedFile> left = standing(m_left);
        std::copy_if(left.begin(), left.end(), std::back_inserter(manifest.pendingFiles),
                     [&manifest](const DigestedFile &file) {
                         return !manifest.includeFiles.contains(file);
                     });
        manifest.copies = standing(digestedCopies());
        return write(manifest, error);
    }
    SynthesisRecord record;
    record.origin = m_origin;
    record.tool = run->tool;
    record.toolVersion = run->toolVersion;
    record.report = withoutPaths(run->report, m_input);
    const ResultPaths paths = resultPaths(m_plan.outputs);
    const QStringList all = paths.always + paths.sometimes;
    for (const QString &path : all) {
        const QByteArray sum = digestOf(path);
        if (!sum.isEmpty())
            record.files.append({QString(), belowOutput(path, m_input.createInPath), sum});
    }
    manifest.synthesis = record;
    dropNeedlessCopies();
    return write(manifest, error);
}

} // namespace TARVOORIXM1
