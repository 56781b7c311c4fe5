#include "record.h"

#include "config/latin1literal.h"
#include "config/tr.h"
#include "state.h"

#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>
#include <QHash>

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

bool GenerationRecord::keep(const QString &path, QString *error)
{
    const QByteArray sum = digestOf(path);
    QString copy = path + ".edited"_l1;
    for (int number = 2; m_disk->exists(copy) && digestOf(copy) != sum; ++number)
        copy = path + ".edited-"_l1 + QString::number(number);
    if (!m_disk->exists(copy)) {
        if (!m_disk->copy(path, copy, error))
            return false;
        m_kept.append({path, copy});
    }
    m_edits.append({path, copy});
    const QString text =
        m_before->isFinished
            ? Tr::tr("\"%1\" was changed since the last run; what stood there is in \"%2\" now.")
            : Tr::tr(
                  "The last run did not end, and \"%1\" is not what one before it has left; what "
                  "stood there is in \"%2\" now.");
    m_messages.append(text.arg(QDir::toNativeSeparators(path), QDir::toNativeSeparators(copy)));
    return true;
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
    QHash<QString, QByteArray> sums;
    for (const QString &path : qAsConst(written)) {
        const auto sum = digestToKeep(path);
        if (!sum) {
            *error = sum.reason();
            return false;
        }
        sums.insert(path, *sum);
    }
    for (const DigestedFile &file : qAsConst(m_includeFiles)) {
        const QString path = m_input.createInPath + u'/' + file.name;
        const QByteArray present = sums.value(path);
        if (present.isEmpty() || present == file.sha256 || m_before->knows(file.name, present))
            continue;
        if (!keep(path, error))
            return false;
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
        if (isTools && !keep(path, error))
            return false;
    }
    GenerationManifest running = *m_before;
    running.isFinished = false;
    running.pendingFiles = m_includeFiles;
    for (const DigestedFile &file : qAsConst(m_left)) {
        if (!running.pendingFiles.contains(file))
            running.pendingFiles.append(file);
    }
    return write(running, error);
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
    const auto keepUnless = [&](const QString &path, const QByteArray &next) {
        if (const auto present = digestToKeep(path); !present) {
            *error = present.reason();
            return false;
        }
        return !isEditedResult(path, next) || keep(path, error);
    };
    for (const Output &output : qAsConst(m_plan.outputs.copied)) {
        if (output.isOptional && !m_disk->exists(output.source))
            continue;
        if (!keepUnless(output.file, digestOf(output.source)))
            return false;
    }
    return keepUnless(m_plan.outputs.decoded, QByteArray());
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
    // What a run that did not end had made already was no edit.
    for (const Kept &kept : qAsConst(m_kept)) {
        if (digestOf(kept.path) == digestOf(kept.copy)) {
            m_disk->remove(kept.copy);
            m_messages.erase(std::remove_if(m_messages.begin(), m_messages.end(),
                                            [&kept](const QString &text) {
                                                return text.contains(
                                                    QDir::toNativeSeparators(kept.copy));
                                            }),
                             m_messages.end());
        }
    }
    m_kept.clear();
    return write(manifest, error);
}

} // namespace TARVOORIXM1
