#include "manifest.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "config/optionvalue.h"
#include "config/tr.h"
#include "rules/dialogdefaults.h"
#include "rules/itcmcontents.h"
#include "sourcefiles.h"

#include <reading/jsontext.h>
#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

constexpr int currentFormat = 1;

namespace Role
{
constexpr QLatin1String configuration = "configuration"_l1;
constexpr QLatin1String descriptor = "descriptor"_l1;
constexpr QLatin1String generated = "generated"_l1;
constexpr QLatin1String source = "source"_l1;
constexpr QLatin1String included = "included"_l1;
constexpr QLatin1String memory = "memory"_l1;
} // namespace Role

namespace Member
{
constexpr QLatin1String format = "format"_l1;
constexpr QLatin1String finished = "finished"_l1;
constexpr QLatin1String program = "program"_l1;
constexpr QLatin1String descriptor = "descriptor"_l1;
constexpr QLatin1String device = "device"_l1;
constexpr QLatin1String options = "options"_l1;
constexpr QLatin1String inputs = "inputs"_l1;
constexpr QLatin1String files = "files"_l1;
constexpr QLatin1String pending = "pending"_l1;
constexpr QLatin1String copies = "copies"_l1;
constexpr QLatin1String synthesis = "synthesis"_l1;
constexpr QLatin1String madeFrom = "madeFrom"_l1;
constexpr QLatin1String tool = "tool"_l1;
constexpr QLatin1String version = "version"_l1;
constexpr QLatin1String outputs = "outputs"_l1;
constexpr QLatin1String report = "report"_l1;
constexpr QLatin1String role = "role"_l1;
constexpr QLatin1String name = "name"_l1;
constexpr QLatin1String file = "file"_l1;
constexpr QLatin1String hash = "sha256"_l1;
} // namespace Member

// An option's value as JSON has it; a folder by its way from the output folder.
QJsonValue shownValue(const Option &option, const GenerationInput &input)
{
    const QVariant value = generatedValue(input.options, option.key, input.device.device());
    const QString text = value.toString();
    switch (option.type) {
    case OptionType::Bool:
        return value.toBool();
    case OptionType::Int: {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        if (isNumber)
            return number;
        break;
    }
    case OptionType::String:
        break;
    }
    const bool isFolder = option.key == Key::itcmInitializationPath ||
                          option.key == Key::itcmInitializationAbsolutePath;
    if (isFolder && QDir::isAbsolutePath(text))
        return QDir(input.createInPath).relativeFilePath(QDir::cleanPath(text));
    return text;
}

// Without the folders, which are others on each machine.
QByteArray descriptorText(const QVariantMap &ipInfo)
{
    QVariantMap entries = ipInfo;
    for (const QLatin1String key : {InfoKey::debug, InfoKey::noDebug, InfoKey::help})
        entries.remove(key);
    return QJsonDocument(QJsonObject::fromVariantMap(entries)).toJson(QJsonDocument::Compact);
}

DigestedFile digested(const QString &role, const QString &path, Digest digest)
{
    QByteArray bytes;
    QString reason;
    const bool isThere = Reading::readPlainFile(path, Reading::Limits::anyFile, &bytes, &reason);
    return {role, QFileInfo(path).fileName(), isThere ? digest(bytes) : QByteArray()};
}

QJsonObject objectOf(const DigestedFile &file)
{
    QJsonObject object{{Member::hash, QLatin1String(file.sha256)}};
    if (file.role.isEmpty()) {
        object.insert(Member::file, file.name);
        return object;
    }
    object.insert(Member::role, file.role);
    if (!file.name.isEmpty())
        object.insert(Member::name, file.name);
    return object;
}

QJsonArray arrayOf(const QVector<DigestedFile> &files)
{
    QJsonArray array;
    for (const DigestedFile &file : files)
        array.append(objectOf(file));
    return array;
}

void insert(QJsonObject *object, const Origin &origin)
{
    object->insert(Member::program, origin.program);
    object->insert(Member::descriptor, origin.descriptor);
    object->insert(Member::device, origin.device);
    object->insert(Member::options, origin.options);
    object->insert(Member::inputs, arrayOf(origin.inputs));
}

bool isHash(const QString &text)
{
    return text.size() == 64 && std::all_of(text.begin(), text.end(), [](QChar digit) {
               return (digit >= u'0' && digit <= u'9') || (digit >= u'a' && digit <= u'f');
           });
}

bool isBelow(const QString &path)
{
    const QStringList names = path.split(u'/');
    return std::none_of(names.begin(), names.end(), [](const QString &name) {
        return name.isEmpty() || name == "."_l1 || name == ".."_l1 || name.contains(QChar());
    });
}

// Reads parts of the file and remembers the first that makes no sense.
class Parts
{
public:
    QVector<DigestedFile> files(const QJsonObject &object, QLatin1String member, bool haveRoles)
    {
        QVector<DigestedFile> files;
        const QJsonValue value = object.value(member);
        const QJsonArray array = value.toArray();
        if (!value.isArray() || array.size() > Reading::Limits::bundleFiles)
            return refused("\""_l1 + member + "\" is no list of files"_l1);
        QSet<QString> paths;
        for (const QJsonValue &entry : array) {
            const QJsonObject file = entry.toObject();
            const QString hash = file.value(Member::hash).toString();
            const QString role = file.value(Member::role).toString();
            const QString name = file.value(haveRoles ? Member::name : Member::file).toString();
            if (!isHash(hash) && !(haveRoles && hash.isEmpty()))
                return refused("an entry of \""_l1 + member + "\" has no SHA-256 sum"_l1);
            if (haveRoles == role.isEmpty() || (!haveRoles && !isBelow(name)))
                return refused("an entry of \""_l1 + member + "\" names no file"_l1);
            // Several runs may have been about to write it.
            const QString key = member == Member::pending ? QString(name + u'/' + hash) : name;
            if (!haveRoles && paths.contains(key))
                return refused("\""_l1 + name + "\" is there twice"_l1);
            paths.insert(key);
            files.append({role, name, hash.toLatin1()});
        }
        return files;
    }

    Origin origin(const QJsonObject &object)
    {
        return {object.value(Member::program).toString(),
                object.value(Member::descriptor).toString(),
                object.value(Member::device).toString(), object.value(Member::options).toObject(),
                files(object, Member::inputs, true)};
    }

    QString mistake; // a clause

private:
    QVector<DigestedFile> refused(const QString &reason)
    {
        if (mistake.isEmpty())
            mistake = reason;
        return {};
    }
};

struct Place {
    QString placeholder;
    QString folder;
};

// The longest first: one may lie in another.
QVector<Place> placesOf(const GenerationInput &input)
{
    const bool debug = isOn(input.options, Key::enableDebug);
    QVector<Place> places = {
        {QStringLiteral("${generated}"), generationPlan(input).folder},
        {QStringLiteral("${output}"), input.createInPath},
        {QStringLiteral("${data}"),
         input.ipInfo.value(debug ? InfoKey::debug : InfoKey::noDebug).toString()}};
    places.erase(std::remove_if(places.begin(), places.end(),
                                [](const Place &place) { return place.folder.isEmpty(); }),
                 places.end());
    std::sort(places.begin(), places.end(), [](const Place &one, const Place &other) {
        return one.folder.size() > other.folder.size();
    });
    return places;
}

template <class Replace>
QJsonValue replacedIn(const QJsonValue &value, const Replace &replace)
{
    if (value.isString())
        return replace(value.toString());
    if (value.isArray()) {
        QJsonArray array;
        const QJsonArray old = value.toArray();
        for (const QJsonValue &entry : old)
            array.append(replacedIn(entry, replace));
        return array;
    }
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        const QStringList keys = object.keys();
        for (const QString &key : keys)
            object.insert(key, replacedIn(object.value(key), replace));
        return object;
    }
    return value;
}

} // namespace

QByteArray sha256(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QJsonObject effectiveOptions(const GenerationInput &input)
{
    QJsonObject shown;
    for (const Option &option : optionTable()) {
        if (option.isOption)
            shown.insert(option.key, shownValue(option, input));
    }
    // What the configuration holds is not always what counts.
    if (input.tool)
        shown.insert(Key::synthesisTool, QString(rowOf(*input.tool).name));
    shown.insert(Key::lang, input.language ? QJsonValue(int(*input.language))
                                           : QJsonValue(textOf(input.options, Key::lang)));
    return shown;
}

Origin originOf(const GenerationInput &input, const GenerationPlan &plan, Digest digest)
{
    Origin origin;
    origin.program = QStringLiteral(ORIXM1_VERSION);
    origin.descriptor = input.ipInfo.value(InfoKey::id).toString() + u' ' +
                        input.ipInfo.value(InfoKey::version).toString();
    origin.device = input.device.id();
    origin.options = effectiveOptions(input);

    const QJsonObject configuration{{Member::device, origin.device},
                                    {Member::options, origin.options}};
    origin.inputs.append({Role::configuration, QString(),
                          digest(QJsonDocument(configuration).toJson(QJsonDocument::Compact))});
    origin.inputs.append({Role::descriptor, QString(), digest(descriptorText(input.ipInfo))});
    for (const IncludeFile &file : plan.includeFiles)
        origin.inputs.append({Role::generated, file.name, digest(bytesOf(file))});
    for (const QString &path : plan.sources) {
        if (!path.startsWith(plan.folder + u'/'))
            origin.inputs.append(digested(Role::source, path, digest));
    }
    const QStringList included = buildSupportFiles(input.options, input.ipInfo);
    for (const QString &path : included)
        origin.inputs.append(digested(Role::included, path, digest));
    const QStringList lanes = itcmFiles(input.options, plan.folder);
    for (const QString &path : lanes)
        origin.inputs.append(digested(Role::memory, path, digest));
    return origin;
}

QByteArray bytesOf(const IncludeFile &file)
{
    QByteArray bytes;
    for (const QString &line : file.lines)
        bytes += line.toUtf8() + '\n';
    return bytes;
}

QString belowOutput(const QString &path, const QString &createInPath)
{
    return path.startsWith(createInPath + u'/') ? path.mid(createInPath.size() + 1)
                                                : QDir(createInPath).relativeFilePath(path);
}

ResultPaths resultPaths(const Outputs &outputs)
{
    ResultPaths paths;
    const auto add = [&paths](const QString &path, bool isOptional) {
        QStringList &list = isOptional ? paths.sometimes : paths.always;
        if (!path.isEmpty() && !list.contains(path))
            list.append(path);
    };
    for (const Output &output : outputs.copied)
        add(output.source, output.isOptional);
    add(outputs.verilogNetlist, false);
    for (const Output &output : outputs.copied)
        add(output.file, output.isOptional);
    add(outputs.decoded, false);
    return paths;
}

QStringList GenerationManifest::toLines() const
{
    QJsonObject object{{Member::format, currentFormat},
                       {Member::finished, isFinished},
                       {Member::files, arrayOf(includeFiles)}};
    insert(&object, origin);
    if (!pendingFiles.isEmpty())
        object.insert(Member::pending, arrayOf(pendingFiles));
    if (!copies.isEmpty())
        object.insert(Member::copies, arrayOf(copies));
    if (synthesis) {
        QJsonObject part{{Member::tool, synthesis->tool},
                         {Member::version, synthesis->toolVersion},
                         {Member::outputs, arrayOf(synthesis->files)},
                         {Member::report, synthesis->report}};
        if (synthesis->origin != origin) {
            QJsonObject madeFrom;
            insert(&madeFrom, synthesis->origin);
            part.insert(Member::madeFrom, madeFrom);
        }
        object.insert(Member::synthesis, part);
    }
    QStringList lines =
        QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Indented)).split(u'\n');
    if (lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
}

Utils::Result<GenerationManifest> GenerationManifest::fromText(const QByteArray &text,
                                                               const QString &path)
{
    const auto failAt = [&](int offset, const QString &reason) {
        const Reading::TextPlace place = Reading::placeIn(text, offset);
        return Utils::Failure{Tr::tr("%1:%2:%3: %4.")
                                  .arg(QDir::toNativeSeparators(path), QString::number(place.line),
                                       QString::number(place.column), reason)};
    };
    if (text.size() > Reading::Limits::bundleManifest)
        return failAt(0, Tr::tr("the file is larger than 4 MiB"));
    const Reading::JsonText json = Reading::readJson(text);
    if (json.mistake.offset >= 0)
        return failAt(json.mistake.offset, json.mistake.reason);
    const QJsonObject object = json.document.object();
    if (object.value(Member::format).toInt() != currentFormat)
        return failAt(json.document.isObject() ? Reading::findJsonValue(text, {Member::format}) : 0,
                      Tr::tr("its format is not 1"));
    Parts parts;
    GenerationManifest manifest;
    manifest.isFinished = object.value(Member::finished).toBool();
    manifest.origin = parts.origin(object);
    manifest.includeFiles = parts.files(object, Member::files, false);
    if (object.contains(Member::pending))
        manifest.pendingFiles = parts.files(object, Member::pending, false);
    if (object.contains(Member::copies))
        manifest.copies = parts.files(object, Member::copies, false);
    if (object.contains(Member::synthesis)) {
        const QJsonObject part = object.value(Member::synthesis).toObject();
        SynthesisRecord record;
        record.origin = part.contains(Member::madeFrom)
                            ? parts.origin(part.value(Member::madeFrom).toObject())
                            : manifest.origin;
        record.tool = part.value(Member::tool).toString();
        record.toolVersion = part.value(Member::version).toString();
        record.files = parts.files(part, Member::outputs, false);
        record.report = part.value(Member::report).toObject();
        manifest.synthesis = record;
    }
    if (!parts.mistake.isEmpty())
        return failAt(0, parts.mistake);
    return manifest;
}

const DigestedFile *GenerationManifest::find(const QString &path) const
{
    const auto findIn = [&path](const QVector<DigestedFile> &files) -> const DigestedFile * {
        const auto found = std::find_if(files.begin(), files.end(),
                                        [&path](const auto &file) { return file.name == path; });
        return found == files.end() ? nullptr : &*found;
    };
    if (const DigestedFile *file = findIn(includeFiles))
        return file;
    return synthesis ? findIn(synthesis->files) : nullptr;
}

bool GenerationManifest::knows(const QString &path, const QByteArray &sha256) const
{
    const DigestedFile *file = find(path);
    if (file && file->sha256 == sha256)
        return true;
    return std::any_of(pendingFiles.begin(), pendingFiles.end(), [&](const DigestedFile &pending) {
        return pending.name == path && pending.sha256 == sha256;
    });
}

QJsonObject withoutPaths(const QJsonObject &report, const GenerationInput &input)
{
    // Neither a time nor what the manifest says already.
    QJsonObject kept;
    for (const char *key : {"summary", "exitCode", "messages", "cells", "resources"}) {
        if (const auto entry = report.find(QLatin1String(key)); entry != report.end())
            kept.insert(entry.key(), *entry);
    }
    const QVector<Place> places = placesOf(input);
    return replacedIn(kept,
                      [&places](QString text) {
                          for (const Place &place : places)
                              text.replace(place.folder, place.placeholder);
                          return QJsonValue(text);
                      })
        .toObject();
}

QJsonObject withPaths(const QJsonObject &report, const GenerationInput &input)
{
    const QVector<Place> places = placesOf(input);
    return replacedIn(report,
                      [&places](QString text) {
                          for (const Place &place : places)
                              text.replace(place.placeholder, place.folder);
                          return QJsonValue(text);
                      })
        .toObject();
}

QString Change::text() const
{
    const QString what = name.isEmpty() ? kind : QString(kind + " \""_l1 + name + u'"');
    if (before == after || isHash(before) || isHash(after)) {
        if (before.isEmpty() && !after.isEmpty())
            return what + " is new"_l1;
        if (after.isEmpty() && !before.isEmpty())
            return what + " is gone"_l1;
        return what + " has other contents"_l1;
    }
    const auto shown = [](const QString &value) {
        return value.isEmpty() ? QStringLiteral("nothing") : value;
    };
    return what + ": "_l1 + shown(before) + ", now "_l1 + shown(after);
}

QVector<Change> changesBetween(const Origin &before, const Origin &after)
{
    QVector<Change> changes;
    const auto compare = [&changes](const QString &kind, const QString &name, const QString &one,
                                    const QString &other) {
        if (one != other)
            changes.append({kind, name, one, other});
    };
    compare(Member::program, QString(), before.program, after.program);
    compare(Member::descriptor, QString(), before.descriptor, after.descriptor);
    compare(Member::device, QString(), before.device, after.device);
    QStringList keys = before.options.keys() + after.options.keys();
    keys.removeDuplicates();
    for (const QString &key : qAsConst(keys)) {
        compare(QStringLiteral("option"), key, before.options[key].toVariant().toString(),
                after.options[key].toVariant().toString());
    }
    // The others follow from something, which is told if it is known.
    QVector<Change> following;
    const auto contents = [](const QVector<DigestedFile> &files) {
        QMap<QPair<QString, QString>, QByteArray> map;
        for (const DigestedFile &file : files)
            map.insert({file.role, file.name}, file.sha256);
        return map;
    };
    const auto old = contents(before.inputs);
    const auto now = contents(after.inputs);
    QList<QPair<QString, QString>> all = old.keys() + now.keys();
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    for (const QPair<QString, QString> &key : qAsConst(all)) {
        const QByteArray one = old.contains(key) ? old[key] : QByteArray();
        const QByteArray other = now.contains(key) ? now[key] : QByteArray();
        const bool isTold = key.first == Role::descriptor && before.descriptor != after.descriptor;
        if (one == other || isTold)
            continue;
        const bool follows = key.first == Role::configuration || key.first == Role::generated;
        (follows ? following : changes)
            .append({key.first, key.second, QString::fromLatin1(one), QString::fromLatin1(other)});
    }
    if (changes.isEmpty())
        changes = following;
    if (changes.isEmpty() && before != after)
        changes.append({Role::configuration, QString(), QString(), QString()});
    std::stable_sort(changes.begin(), changes.end(), [](const Change &one, const Change &other) {
        return std::make_pair(one.kind, one.name) < std::make_pair(other.kind, other.name);
    });
    return changes;
}

} // namespace TARVOORIXM1
