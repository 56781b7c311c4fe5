#include "preview.h"

#include "config/latin1literal.h"
#include "config/optiontable.h"
#include "config/tr.h"
#include "export/prefixednetlist.h"
#include "generate/record.h"
#include "meanings.h"
#include "rules/itcmcontents.h"
#include "rules/optionmeaning.h"
#include "system/facts.h"

#include <reading/jsontext.h>
#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <algorithm>
#include <iterator>

namespace TARVOORIXM1
{

namespace
{

// The kind of difference that a group of facts gives.
struct KindRow {
    QLatin1String group;
    QLatin1String kind;
};
constexpr KindRow kindRows[] = {
    {"device"_l1, "device"_l1},        {"regions"_l1, "memory"_l1},
    {"interrupts"_l1, "interrupt"_l1}, {"ports"_l1, "port"_l1},
    {"registers"_l1, "register"_l1},   {"blackBoxes"_l1, "black box"_l1},
    {"resources"_l1, "resource"_l1},
};

// Options as a manifest has them.
OptionMap optionsIn(const QJsonObject &object)
{
    OptionMap options;
    for (auto it = object.begin(); it != object.end(); ++it)
        options.insert(it.key(),
                       it->isDouble() ? QVariant(it->toInt()) : QVariant(it->toVariant()));
    return options;
}

bool isBehindLimit(qint64 size)
{
    return size > longestShown;
}

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

// The sums of a set's files by their names, as the manifest beside them has them; none of one that
// cannot be read.
QMap<QString, QByteArray> recordedSums(const QString &manifest)
{
    QByteArray bytes;
    QString reason;
    if (!Reading::readPlainFile(manifest, Reading::Limits::bundleManifest, &bytes, &reason))
        return {};
    const QJsonObject object = Reading::readJson(bytes).document.object();
    QMap<QString, QByteArray> sums;
    if (object.value("version"_l1).toInt() != 1)
        return sums;
    const QJsonArray files = object.value("files"_l1).toArray();
    for (const QJsonValue &file : files) {
        const QString name = file["path"_l1].toString();
        if (!name.isEmpty() && !name.contains(u'/'))
            sums.insert(name, file["sha256"_l1].toString().toLatin1());
    }
    return sums;
}

// A preview in the making.
class Previewer
{
public:
    explicit Previewer(const PreviewInput &input)
        : m_input(input)
        , m_plan(generationPlan(input.generation))
        , m_disk(input.memory)
        , m_record(
              input.generation, m_plan, input.digest,
              [this](const QString &path, const QStringList &lines, QString *) {
                  QByteArray bytes;
                  for (const QString &line : lines)
                      bytes += line.toUtf8() + '\n';
                  m_disk.write(path, bytes);
                  return true;
              },
              &m_disk)
    {
    }

    Preview run()
    {
        m_preview.notes = m_input.notes;
        readLast();
        if (m_input.configuration)
            m_disk.write(m_input.configuration->path, m_input.configuration->text);
        QString error;
        if (!m_input.isIdle && !takeSteps(&error)) {
            Preview failed;
            failed.error = error;
            return failed;
        }
        placePrefixed();
        listFiles();
        compare();
        return m_preview;
    }

private:
    void readLast()
    {
        const auto read = readManifest(m_plan);
        if (!read)
            m_preview.notes.append(
                Tr::tr("%1 So nothing is known of earlier runs.").arg(read.reason()));
        else
            m_last = *read;
        if (m_last && !m_last->isFinished)
            m_preview.notes.append(
                Tr::tr("The last run did not end, so its files cannot be relied on."));
    }

    bool takeSteps(QString *error)
    {
        if (!m_record.begin(error))
            return false;
        for (const IncludeFile &file : m_plan.includeFiles)
            m_disk.write(m_plan.pathOf(file), bytesOf(file));
        if (m_input.synthesise) {
            const QVector<ItcmMistake> mistakes = itcmMistakes(
                m_input.generation.options, m_input.generation.device.device(), m_plan.folder);
            for (const ItcmMistake &mistake : mistakes)
                m_preview.notes.append(
                    Tr::tr("The tool will not be started: %1").arg(mistake.text()));
            m_runs = mistakes.isEmpty();
        }
        if (!m_runs)
            return m_record.finish(nullptr, error);
        std::optional<KnownResults> results;
        if (m_input.results)
            results = m_input.results(m_record.origin());
        m_isKnown = results.has_value();
        return !m_isKnown || collect(*results, error);
    }

    // As collectOutputs() does.
    bool collect(const KnownResults &results, QString *error)
    {
        for (const auto &file : results.files)
            m_disk.write(m_plan.folder + u'/' + file.first, file.second);
        if (!m_record.keepEditedOutputs(error))
            return false;
        for (const Output &output : m_plan.outputs.copied) {
            if (!output.isOptional || m_disk.exists(output.source))
                m_disk.copy(output.source, output.file, error);
        }
        const auto netlist = m_disk.written(m_plan.outputs.verilogNetlist);
        const Utils::Result<QByteArray> model = results.decode(netlist.value_or(QByteArray()));
        if (!model) {
            *error = model.reason();
            return false;
        }
        m_disk.write(m_plan.outputs.decoded, *model);
        const GenerationRecord::Run run{results.tool, results.toolVersion, results.report};
        return m_record.finish(&run, error);
    }

    bool isOpen() const { return m_runs && !m_isKnown; }

    QString inOutputFolder(const QString &name) const
    {
        return m_input.generation.createInPath + u'/' + name;
    }

    // The second set, once the results are in their places.
    void placePrefixed()
    {
        if (m_input.prefix.isEmpty() || !m_input.synthesise || !m_input.planSet ||
            !(m_input.isIdle || m_isKnown))
            return;
        const auto set = prefixedSet(m_input.generation, m_plan, m_input.prefix, m_disk);
        const auto plan = set ? m_input.planSet(*set)
                              : Utils::Result<Utils::BundlePlan>(Utils::Failure{set.reason()});
        if (!plan) {
            m_preview.notes.append(
                Tr::tr("The files with the prefix \"%1\" will not be written: %2")
                    .arg(m_input.prefix, plan.reason()));
            return;
        }
        m_prefixed = *plan;
        for (const Utils::BundleFile &file : plan->written)
            m_disk.write(inOutputFolder(file.path), file.bytes);
    }

    void listPrefixed()
    {
        if (m_input.prefix.isEmpty())
            return;
        const QString manifest = inOutputFolder(netlistManifestOf(m_input.prefix));
        m_copies.insert(manifest, QString());
        if (m_prefixed) {
            for (const Utils::BundleEntry &entry : m_prefixed->report.entries)
                addPlaced(entry);
            add(manifest, PreviewFile::Equal);
            return;
        }
        const QMap<QString, QByteArray> sums = recordedSums(manifest);
        QStringList made;
        for (const Output &output : m_plan.outputs.copied) {
            const QString path = prefixedPath(output.file);
            if (!output.isOptional || isThere(output.file) || isThere(path))
                made.append(path);
        }
        made.append(prefixedPath(m_plan.outputs.decoded));
        const bool isPlaced = isOpen() || (m_input.isIdle && m_input.synthesise);
        for (const QString &path : qAsConst(made)) {
            if (isPlaced)
                addOpenPrefixed(path, sums);
            else
                add(path, PreviewFile::Stays);
        }
        for (auto it = sums.begin(); it != sums.end(); ++it) {
            const QString path = inOutputFolder(it.key());
            if (isPlaced && isThere(path) && m_disk.digestOf(path, m_input.digest) == it.value())
                addRemoved(path);
            else
                add(path, PreviewFile::Stays);
        }
        if (isPlaced)
            addOpen(manifest, false);
        else
            add(manifest, PreviewFile::Stays);
    }

    QString prefixedPath(const QString &output) const
    {
        return inOutputFolder(m_input.prefix +
                              belowOutput(output, m_input.generation.createInPath));
    }

    // A file of the second set, which is known.
    void addPlaced(const Utils::BundleEntry &entry)
    {
        const QString path = inOutputFolder(entry.path);
        m_copies.insert(path, entry.keptAs);
        if (entry.state == Utils::BundleEntry::LeftOver)
            addRemoved(path);
        else
            add(path, entry.state == Utils::BundleEntry::LeftOverEdited ? PreviewFile::Stays
                                                                        : PreviewFile::Equal);
    }

    // One that only the tool can tell.
    void addOpenPrefixed(const QString &path, const QMap<QString, QByteArray> &sums)
    {
        if (m_listed.contains(path))
            return;
        addOpen(path, false);
        PreviewFile &file = m_preview.files.last();
        const QString name = belowOutput(path, m_input.generation.createInPath);
        if (file.state == PreviewFile::Remade &&
            m_disk.digestOf(path, m_input.digest) != sums.value(name)) {
            file.state = PreviewFile::Edited;
            file.notes.append(keptUnlessEqual());
        }
    }

    void addRemoved(const QString &path)
    {
        if (m_listed.contains(path))
            return;
        PreviewFile file = begun(path);
        file.state = PreviewFile::Removed;
        m_preview.files.append(file);
    }

    static QString keptUnlessEqual()
    {
        return Tr::tr("What stands there will be kept beside it, unless the tool makes the same.");
    }

    void listFiles()
    {
        if (m_input.configuration)
            add(m_input.configuration->path, PreviewFile::Equal);
        for (const IncludeFile &file : m_plan.includeFiles)
            add(m_plan.pathOf(file), PreviewFile::Equal);
        const QString manifest = m_plan.folder + u'/' + manifestName;
        if (isOpen())
            addOpen(manifest, false);
        else
            add(manifest, PreviewFile::Equal);

        const PreviewFile::State untouched =
            m_input.isIdle && m_input.synthesise ? PreviewFile::Equal : PreviewFile::Stays;
        const ResultPaths paths = resultPaths(m_plan.outputs);
        const QStringList all = paths.always + paths.sometimes;
        for (const QString &path : all) {
            if (!isOpen())
                add(path, untouched);
            else if (paths.always.contains(path) || isThere(path))
                addOpen(path, true);
        }
        if (m_last && m_last->synthesis) {
            for (const DigestedFile &file : m_last->synthesis->files)
                add(m_input.generation.createInPath + u'/' + file.name, PreviewFile::Stays);
        }
        listPrefixed();
        for (const QString &path : m_disk.removed())
            addRemoved(path);
        if (isOpen())
            listOpenCopies();
        // What else is written: copies of what was edited where the tool has its say are told at
        // the file, since it may make the same.
        const QStringList written = m_disk.paths();
        for (const QString &path : written) {
            const bool isOpenCopy =
                isOpen() && std::any_of(m_record.edits().begin(), m_record.edits().end(),
                                        [&](const GenerationRecord::Kept &kept) {
                                            return kept.copy == path && all.contains(kept.path);
                                        });
            if (!isOpenCopy)
                add(path, PreviewFile::Equal);
        }
    }

    // Of runs before, which this one may turn out to need no more.
    void listOpenCopies()
    {
        for (const GenerationRecord::Kept &kept : m_record.copies()) {
            if (m_listed.contains(kept.copy) || !isThere(kept.copy))
                continue;
            PreviewFile file = begun(kept.copy);
            file.isTools = true;
            file.state = PreviewFile::Stays;
            file.notes.append(Tr::tr("It will be removed if the run makes the same."));
            m_preview.files.append(file);
        }
    }

    PreviewFile begun(const QString &path)
    {
        m_listed.append(path);
        PreviewFile file;
        file.path = belowOutput(path, m_input.generation.createInPath);
        if (!isThere(path))
            return file;
        const QFileInfo info(path);
        file.sizeBefore = info.size();
        QByteArray bytes;
        QString reason;
        if (!isBehindLimit(info.size())) {
            if (Reading::readPlainFile(path, Reading::Limits::anyFile, &bytes, &reason))
                file.before = bytes;
            else
                file.notes.append(Tr::tr("What stands there cannot be read: %1.").arg(reason));
        }
        return file;
    }

    // `untouched`: the state of one that is there and not written.
    void add(const QString &path, PreviewFile::State untouched)
    {
        if (m_listed.contains(path))
            return;
        const std::optional<QByteArray> next = m_disk.written(path);
        if (!next && !isThere(path))
            return;
        PreviewFile file = begun(path);
        file.after = next ? next : file.before;
        if (!next)
            file.state = untouched;
        else if (file.sizeBefore < 0)
            file.state = PreviewFile::New;
        else if (isEqual(path, file, *next))
            file.state = PreviewFile::Equal;
        else
            file.state = PreviewFile::Changed;
        if (next && file.state == PreviewFile::Changed)
            tellEdit(path, &file);
        m_preview.files.append(file);
    }

    bool isEqual(const QString &path, const PreviewFile &file, const QByteArray &next)
    {
        if (file.before)
            return *file.before == next;
        return file.sizeBefore == next.size() &&
               ImaginedDisk(m_input.memory).digestOf(path, m_input.digest) == m_input.digest(next);
    }

    void addOpen(const QString &path, bool isResult)
    {
        if (m_listed.contains(path))
            return;
        PreviewFile file = begun(path);
        file.isTools = true;
        file.state = file.sizeBefore < 0 ? PreviewFile::New : PreviewFile::Remade;
        if (isResult && file.sizeBefore >= 0)
            tellEdit(path, &file);
        if (isResult && file.state == PreviewFile::Remade &&
            m_record.isEditedResult(path, QByteArray())) {
            file.state = PreviewFile::Edited;
            file.notes.append(keptUnlessEqual());
        }
        m_preview.files.append(file);
    }

    static QString willBeIn(const QString &copy)
    {
        return Tr::tr("What stands there will be in \"%1\".").arg(copy);
    }

    // That somebody has changed it, and what becomes of that.
    void tellEdit(const QString &path, PreviewFile *file)
    {
        if (const auto copy = m_copies.constFind(path); copy != m_copies.constEnd()) {
            if (!copy->isEmpty()) {
                file->state = PreviewFile::Edited;
                file->notes.append(willBeIn(QFileInfo(*copy).fileName()));
            }
            return;
        }
        const bool isConfiguration = m_input.configuration && m_input.configuration->path == path;
        const QVector<GenerationRecord::Kept> &edits = m_record.edits();
        const auto kept =
            std::find_if(edits.begin(), edits.end(),
                         [&path](const GenerationRecord::Kept &one) { return one.path == path; });
        if (kept != edits.end()) {
            file->state = PreviewFile::Edited;
            const QString copy = QFileInfo(kept->copy).fileName();
            file->notes.append(
                file->isTools
                    ? Tr::tr("What stands there will be in \"%1\", unless the tool makes the same.")
                          .arg(copy)
                    : willBeIn(copy));
        } else if (!m_last && !isConfiguration) {
            file->notes.append(
                Tr::tr("No run is known that has made it; what stands there will be lost."));
        }
    }

    // What the new configuration has otherwise.
    void compare()
    {
        const GenerationInput &after = m_input.generation;
        OptionMap old;
        DEV::DeviceArg oldDevice;
        if (m_last) {
            old = optionsIn(m_last->origin.options);
            if (m_input.findDevice)
                oldDevice = m_input.findDevice(m_last->origin.device);
            if (oldDevice.isNull())
                m_preview.notes.append(Tr::tr("The files were made for the device \"%1\", which is "
                                              "not known.")
                                           .arg(m_last->origin.device));
        } else if (m_input.standing) {
            old = optionsIn(effectiveOptions(*m_input.standing));
            oldDevice = m_input.standing->device;
        } else {
            return;
        }
        const OptionMap now = optionsIn(effectiveOptions(after));
        const QVector<OptionDifference> options =
            optionDifferences(old, oldDevice, now, after.device);
        for (const OptionDifference &difference : options)
            m_preview.differences.append(
                {"option"_l1, "Options"_l1, "~ "_l1 + shownDifference(difference)});
        if (!m_input.description || oldDevice.isNull() || after.device.isNull())
            return;
        const QVector<FactChanges> groups =
            factChanges(factsOf(mapOf(old, oldDevice)), factsOf(mapOf(now, after.device)));
        for (const FactChanges &group : groups) {
            const auto row =
                std::find_if(std::begin(kindRows), std::end(kindRows),
                             [&group](const KindRow &one) { return one.group == group.id; });
            for (const FactChange &change : group.changes)
                m_preview.differences.append({row == std::end(kindRows) ? group.id : row->kind,
                                              group.title, shownChange(change)});
        }
    }

    SystemMap mapOf(const OptionMap &options, const DEV::DeviceArg &device) const
    {
        SystemMap map = systemMap(options, device, *m_input.description);
        if (m_input.estimate)
            map.resources = m_input.estimate(options, device);
        return map;
    }

    const PreviewInput &m_input;
    const GenerationPlan m_plan;
    ImaginedDisk m_disk;
    GenerationRecord m_record;
    std::optional<GenerationManifest> m_last;
    bool m_runs = false;    // the tool
    bool m_isKnown = false; // what it leaves
    std::optional<Utils::BundlePlan> m_prefixed;
    QHash<QString, QString> m_copies; // of files of the second set; empty: none
    QStringList m_listed;
    Preview m_preview;
};

} // namespace

bool PreviewFile::isLong() const
{
    return isBehindLimit(sizeBefore) || (after && isBehindLimit(after->size()));
}

bool Preview::changesNothing() const
{
    return std::all_of(files.begin(), files.end(), [](const PreviewFile &file) {
        return file.state == PreviewFile::Equal || file.state == PreviewFile::Stays;
    });
}

Preview previewOf(const PreviewInput &input)
{
    return Previewer(input).run();
}

QString stateName(PreviewFile::State state)
{
    switch (state) {
    case PreviewFile::New:
        return QStringLiteral("new");
    case PreviewFile::Changed:
        return QStringLiteral("changed");
    case PreviewFile::Equal:
        return QStringLiteral("equal");
    case PreviewFile::Edited:
        return QStringLiteral("edited");
    case PreviewFile::Remade:
        return QStringLiteral("remade");
    case PreviewFile::Removed:
        return QStringLiteral("removed");
    case PreviewFile::Stays:
        break;
    }
    return QStringLiteral("stays");
}

} // namespace TARVOORIXM1
