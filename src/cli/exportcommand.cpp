#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "ipcdocument.h"
#include "output.h"
#include "prefixchoice.h"

#include <config/nearest.h>
#include <export/names.h>
#include <export/prefixed.h>
#include <export/rtl.h>
#include <rules/generationfolder.h>
#include <synthesis/resources.h>
#include <system/description.h>
#include <system/systemmap.h>
#include <utils/filebundle.h>

#include <QFileInfo>

#include <algorithm>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

struct ExportArguments {
    QString file;        // needed unless `list`
    QStringList formats; // names; none: all
    QString outDir;      // likewise
    bool list = false;
    bool check = false;
    bool update = false; // the formats of the last export
    bool json = false;
    QString netlist; // of a run, for the figures of resources; empty: none
    PrefixChoice prefix;
};

QStringList formatNames()
{
    QStringList names;
    for (const Format &format : formats())
        names.append(format.name);
    return names;
}

QJsonObject formatList()
{
    QJsonArray list;
    for (const Format &format : formats())
        list.append(QJsonObject{{QStringLiteral("name"), format.name},
                                {QStringLiteral("file"), format.file},
                                {QStringLiteral("title"), format.title},
                                {QStringLiteral("purpose"), format.purpose},
                                {QStringLiteral("standard"), format.standard},
                                {QStringLiteral("checkedBy"), format.checkedBy}});
    return {{QStringLiteral("formats"), list}};
}

void printFormatTable(const QJsonObject &list)
{
    const QStringList keys = {QStringLiteral("name"),      QStringLiteral("title"),
                              QStringLiteral("file"),      QStringLiteral("standard"),
                              QStringLiteral("checkedBy"), QStringLiteral("purpose")};
    QVector<QStringList> rows = {{QStringLiteral("NAME"), QStringLiteral("TITLE"),
                                  QStringLiteral("FILES"), QStringLiteral("STANDARD"),
                                  QStringLiteral("CHECKED BY"), QStringLiteral("PURPOSE")}};
    const QJsonArray all = list.value(QLatin1String("formats")).toArray();
    for (const QJsonValue &format : all) {
        QStringList row;
        for (const QString &key : keys) {
            const QString text = format.toObject().value(key).toString();
            row.append(text.isEmpty() ? QStringLiteral("-") : text);
        }
        rows.append(row);
    }
    QVector<int> widths(keys.size());
    for (const QStringList &row : qAsConst(rows)) {
        for (int column = 0; column + 1 < row.size(); ++column)
            widths[column] = qMax(widths.at(column), row.at(column).size());
    }
    for (const QStringList &row : qAsConst(rows)) {
        QStringList cells;
        for (int column = 0; column < row.size(); ++column)
            cells.append(row.at(column).leftJustified(widths.at(column)));
        printLine(cells.join(QLatin1String("  ")));
    }
}

// Why the arguments cannot be meant; without a text if they can.
Problem usageMistake(const ExportArguments &arguments)
{
    const QStringList known = formatNames();
    for (const QString &name : arguments.formats) {
        if (!known.contains(name))
            return {QLatin1String("Unknown format \"") + name + QLatin1String("\"; there are: ") +
                        known.join(QLatin1String(", ")) + u'.',
                    name,
                    {},
                    0,
                    didYouMean(nearestText(name, known))};
    }
    if (arguments.list)
        return {};
    if (arguments.file.isEmpty())
        return {QStringLiteral("A configuration FILE is required; \"orixm1 export --list\" lists "
                               "the formats without one.")};
    if (arguments.outDir.isEmpty())
        return {QStringLiteral("--out DIR is required: the folder that the files are written to.")};
    if (arguments.update && !arguments.formats.isEmpty())
        return {QStringLiteral("--update writes the formats of the last export; name none with it, "
                               "or leave it out."),
                arguments.formats.first()};
    return {};
}

// The formats that are asked for, in their order. Without a name that is all of them; what looks at
// an earlier export, or repeats it, takes the formats of that.
QStringList chosenFormats(const ExportArguments &arguments, const QString &folder,
                          const QString &manifest)
{
    QStringList asked = arguments.formats;
    if (asked.isEmpty() && (arguments.check || arguments.update))
        asked = Utils::bundleGroups(folder, manifest);
    const QStringList all = formatNames();
    QStringList chosen;
    std::copy_if(all.begin(), all.end(), std::back_inserter(chosen),
                 [&asked](const QString &name) { return asked.contains(name); });
    return chosen.isEmpty() ? all : chosen;
}

Utils::Bundle bundleOf(const SystemMap &map, const QString &folder, const QStringList &names,
                       bool keepsOtherGroups)
{
    Utils::Bundle bundle{folder, exportManifestOf(map), {}, names, keepsOtherGroups};
    for (const QString &name : names) {
        const QVector<ExportedFile> files = findFormat(name)->files(map);
        for (const ExportedFile &file : files)
            bundle.files.append({file.path, file.bytes, name});
    }
    return bundle;
}

// What a write has made of a file.
QString resultOf(const Utils::BundleEntry &entry)
{
    using Utils::BundleEntry;
    switch (entry.state) {
    case BundleEntry::Fresh:
        return QStringLiteral("untouched");
    case BundleEntry::Missing:
    case BundleEntry::Stale:
    case BundleEntry::Edited:
        return QStringLiteral("written");
    case BundleEntry::LeftOver:
        return QStringLiteral("removed");
    case BundleEntry::LeftOverEdited:
        break;
    }
    return QStringLiteral("kept");
}

QJsonObject objectOf(const Utils::Bundle &bundle, const Utils::Result<Utils::BundleReport> &report,
                     QStringList warnings, bool check)
{
    QJsonArray files;
    if (report) {
        for (const Utils::BundleEntry &entry : report->entries) {
            QJsonObject file{{QStringLiteral("path"), entry.path},
                             {QStringLiteral("format"), entry.group},
                             {QStringLiteral("state"), Utils::bundleStateName(entry.state)}};
            if (!check)
                file.insert(QStringLiteral("result"), resultOf(entry));
            if (!entry.keptAs.isEmpty())
                file.insert(QStringLiteral("keptAs"), entry.keptAs);
            files.append(file);
        }
        warnings += report->messages;
    } else {
        printProblem({report.reason()});
    }
    QStringList empty;
    for (const QString &name : bundle.groups) {
        if (std::none_of(bundle.files.begin(), bundle.files.end(),
                         [&name](const Utils::BundleFile &file) { return file.group == name; }))
            empty.append(name);
    }
    return {{QStringLiteral("folder"), bundle.folder},
            {QStringLiteral("formats"), QJsonArray::fromStringList(bundle.groups)},
            {QStringLiteral("emptyFormats"), QJsonArray::fromStringList(empty)},
            {QStringLiteral("files"), files},
            {QStringLiteral("warnings"), QJsonArray::fromStringList(warnings)}};
}

// What the object says beside its files.
void tellObject(const QJsonObject &object)
{
    const auto tellEach = [&object](QLatin1String key, const QString &frame) {
        const QJsonArray list = object.value(key).toArray();
        for (const QJsonValue &text : list)
            printError(frame.arg(text.toString()));
    };
    tellEach(QLatin1String("emptyFormats"),
             QStringLiteral("The format \"%1\" has nothing for this configuration."));
    tellEach(QLatin1String("warnings"), QStringLiteral("%1"));
}

// The files that are there now; of a check, those that should be otherwise.
void printFiles(const QJsonObject &object, bool check)
{
    const QString folder = object.value(QLatin1String("folder")).toString() + u'/';
    const QJsonArray files = object.value(QLatin1String("files")).toArray();
    for (const QJsonValue &value : files) {
        const QJsonObject file = value.toObject();
        const QString path = folder + file.value(QLatin1String("path")).toString();
        const QString state = file.value(QLatin1String("state")).toString();
        const QString result = file.value(QLatin1String("result")).toString();
        if (check) {
            if (state != Utils::bundleStateName(Utils::BundleEntry::Fresh))
                printLine(path + QLatin1String(": ") + state);
        } else if (result == QLatin1String("removed")) {
            printError(QLatin1String("removed, no longer part of the export: ") + path);
        } else if (result != QLatin1String("kept")) {
            printLine(path);
        }
    }
}

// What is to be done after a check.
QString adviceAfter(const Utils::BundleReport &report, const ExportArguments &arguments,
                    bool isUpdatable)
{
    const bool isNeeded = arguments.formats.isEmpty() && !report.isFresh();
    return isNeeded && isUpdatable
               ? QStringLiteral("--update in place of --check writes these formats anew.")
               : QString();
}

// What a write has done beside the files that it tells.
QString summaryOf(const Utils::BundleReport &report)
{
    using Utils::BundleEntry;
    const int fresh = report.count(BundleEntry::Fresh);
    if (fresh == 0)
        return {};
    if (report.isFresh())
        return QStringLiteral("Everything is fresh, so nothing was written.");
    const int written = report.count(BundleEntry::Missing) + report.count(BundleEntry::Stale) +
                        report.count(BundleEntry::Edited);
    return QStringLiteral("%1 of %2 files were written; the others were fresh.")
        .arg(written)
        .arg(written + fresh);
}

// What a netlist of the configuration takes. A failure is a sentence: it cannot be read, or is of
// another configuration, as far as its black boxes tell.
Utils::Result<ResourceFigures> figuresOf(const QString &netlist, const SystemMap &map)
{
    const QString path = QFileInfo(netlist).absoluteFilePath();
    const auto use =
        Synthesis::readNetlistUse(path, topModuleName(map).toUtf8(), map.device.resources());
    if (!use)
        return Utils::Failure{use.reason()};
    QStringList found;
    for (const Synthesis::CellCount &cell : use->cells) {
        if (cell.isBlackBox)
            found.append(cell.cell);
    }
    QStringList expected;
    for (const BlackBox &box : map.blackBoxes)
        expected.append(box.module);
    found.sort();
    expected.sort();
    if (found != expected)
        return Utils::Failure{
            u'"' + path +
            QLatin1String("\" is no netlist of this configuration: its black boxes are ") +
            (found.isEmpty() ? QStringLiteral("none") : found.join(QLatin1String(", "))) +
            QLatin1String(", and not ") + expected.join(QLatin1String(", ")) + u'.'};
    ResourceFigures figures;
    for (const Synthesis::ResourceUse &line : use->resources)
        figures.lines.append({line.resource, line.used, line.available});
    figures.notCounted = Synthesis::notCountedSentence(use->cells);
    return figures;
}

int runExport(Environment &environment, const ExportArguments &arguments)
{
    if (const Problem mistake = usageMistake(arguments); !mistake.text.isEmpty()) {
        printProblem(mistake);
        return WrongUsage;
    }
    if (arguments.list) {
        const QJsonObject list = formatList();
        if (arguments.json)
            printJson(list);
        else
            printFormatTable(list);
        return Done;
    }
    if (environment.ipInfo().isEmpty())
        return BadInput;
    const auto description = readSystemDescription(environment.dataFolder());
    if (!description) {
        printProblem({description.reason()});
        return BadInput;
    }
    IpcDocument document;
    if (!openForDevice(environment, arguments.file, &document))
        return BadInput;

    QString prefix;
    if (const Status status = arguments.prefix.choose(document, &prefix); status != Done)
        return status;
    SystemMap map = systemMap(document.options, document.device, *description);
    if (!arguments.netlist.isEmpty()) {
        // One without the prefix has the same cells.
        Utils::Result<ResourceFigures> figures = figuresOf(arguments.netlist, map);
        if (!figures && !prefix.isEmpty()) {
            if (const auto own = figuresOf(arguments.netlist, prefixed(map, prefix)))
                figures = own;
        }
        if (!figures) {
            printProblem({figures.reason(), {}, arguments.netlist});
            return BadInput;
        }
        map.resources = *figures;
    }
    const QString folder = outputFolder(document, arguments.outDir);
    const bool isUpdatable = !Utils::bundleGroups(folder, exportManifest).isEmpty();
    if (arguments.update && !isUpdatable) {
        printProblem({QLatin1String("Nothing is known of an export into \"") + folder +
                          QLatin1String("\": it has no sound ") + exportManifest +
                          QLatin1String(". Name the formats in place of --update."),
                      {},
                      folder});
        return BadInput;
    }
    const QStringList chosen =
        chosenFormats(arguments, folder, exportManifestOf(prefixed(SystemMap(), prefix)));
    QStringList warnings;
    if (const auto contents =
            readInitialContents(document.options, generationFolder(document.folder())))
        map.initialContents = *contents;
    else if (chosen.contains(QLatin1String("rtl")))
        warnings.append(contents.reason() +
                        QLatin1String("; the RTL waits for its memory's contents in ") +
                        RtlPath::contentsFolder(prefixed(map, prefix)) + u'.');
    map = prefixed(map, prefix);
    const Utils::Bundle bundle = bundleOf(map, folder, chosen, !arguments.formats.isEmpty());
    const Utils::Result<Utils::BundleReport> report =
        arguments.check ? Utils::checkBundle(bundle) : Utils::writeBundle(bundle);
    const QJsonObject object = objectOf(bundle, report, warnings, arguments.check);
    if (arguments.json)
        printJson(object);
    tellObject(object);
    if (!arguments.json)
        printFiles(object, arguments.check);
    if (report && !arguments.json) {
        const QString last =
            arguments.check ? adviceAfter(*report, arguments, isUpdatable) : summaryOf(*report);
        if (!last.isEmpty())
            printError(last);
    }
    const bool isDone = report && (!arguments.check || report->isFresh());
    return isDone ? Done : Failed;
}

} // namespace

void declareExport(CommandLine &line)
{
    auto arguments = std::make_shared<ExportArguments>();
    CLI::App *command = line.command(
        "export",
        "Write what others need of a configuration: a set of files, whole or not at all; a file "
        "that somebody has edited is kept",
        "orixm1 export tarvo_orix_m1.ipc svd header linker --out firmware",
        [arguments](Environment &environment) { return runExport(environment, *arguments); });
    line.path(command, "FILE", arguments->file, "Configuration file (.ipc)", "");
    line.offer(CommandLine::texts(command, "FORMAT", arguments->formats,
                                  "What to write, as \"orixm1 export --list\" names it (default: "
                                  "everything; with --check, what was written last)",
                                  ""),
               formatNames);
    line.path(command, "--out", arguments->outDir, "Folder that the files are written to", "DIR");
    line.path(command, "--netlist", arguments->netlist,
              "Netlist or simulation model in Verilog that a run of this configuration has left: "
              "the datasheet tells what it uses of the device",
              "FILE");
    arguments->prefix.declare(command);
    CLI::Option *list =
        CommandLine::flag(command, "--list", arguments->list, "List the formats; needs no FILE");
    CLI::Option *check = CommandLine::flag(
        command, "--check", arguments->check,
        "Only tell which files are missing, stale, edited or left over, with exit "
        "status 1 if any is; writes nothing");
    CommandLine::exclude(check, list);
    CLI::Option *update = CommandLine::flag(
        command, "--update", arguments->update,
        "Write what was written last: the formats that the folder's manifest names");
    CommandLine::exclude(update, list);
    CommandLine::exclude(update, check);
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
