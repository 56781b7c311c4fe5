#include "devicedb.h"

#include "tr.h"

#include <reading/jsontext.h>
#include <reading/limits.h>
#include <utils/boundedfile.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

static void initDeviceResources()
{
    Q_INIT_RESOURCE(devices);
}

namespace DEV
{

namespace
{

const QString packagesFile = QStringLiteral("packages.json");

using Reading::JsonPath;
using Utils::Failure;
using Utils::Result;

// A file that was read. Its messages name the place of what they are about.
struct DeviceFile {
    QString path;
    QByteArray text;
    QJsonObject root;

    Failure mistakeAt(int offset, const QString &reason) const
    {
        const Reading::TextPlace place = Reading::placeIn(text, offset);
        return {Tr::tr("Device file \"%1\": line %2, column %3: %4.")
                    .arg(QDir::toNativeSeparators(path), QString::number(place.line),
                         QString::number(place.column), reason)};
    }

    Failure mistakeIn(const JsonPath &value, const QString &reason) const
    {
        return mistakeAt(Reading::findJsonValue(text, value), reason);
    }
};

Result<DeviceFile> readDeviceFile(const QString &path)
{
    const Result<QByteArray> bytes = Utils::readBoundedFile(path, Reading::Limits::deviceFile);
    if (!bytes)
        return Failure{bytes.reason()};
    const Reading::JsonText json = Reading::readJson(*bytes);
    const DeviceFile file{path, *bytes, json.document.object()};
    if (json.mistake.offset >= 0)
        return file.mistakeAt(json.mistake.offset, json.mistake.reason);
    return file;
}

using PackageCodes = QHash<QString, QString>;

Result<PackageCodes> readPackageCodes(const QString &path)
{
    const Result<DeviceFile> file = readDeviceFile(path);
    if (!file)
        return Failure{file.reason()};
    const JsonPath within = {QLatin1String("packageCodes")};
    const QJsonObject entries = file->root.value(within.first().name).toObject();
    if (entries.isEmpty())
        return file->mistakeIn(within, Tr::tr("it lists no package codes"));
    PackageCodes codes;
    for (auto it = entries.begin(); it != entries.end(); ++it) {
        const QString code = it.value().toString();
        if (code.isEmpty())
            return file->mistakeIn(within + JsonPath{it.key()},
                                   Tr::tr("the package \"%1\" has no code").arg(it.key()));
        codes.insert(it.key(), code);
    }
    return codes;
}

// What is wrong with a part of an entry: the way to it from there, and a clause.
struct EntryMistake {
    JsonPath within;
    QString reason;
};

// The counts of an entry's "resources", which may be left out.
std::optional<EntryMistake> readResources(const QJsonObject &device, DeviceResources *resources)
{
    const std::pair<const char *, int *> rows[] = {{"lut4", &resources->lut4},
                                                   {"flipFlops", &resources->flipFlops},
                                                   {"carry", &resources->carry},
                                                   {"blockRam", &resources->blockRam}};
    const JsonPath within = {QLatin1String("resources")};
    const QJsonValue value = device.value(within.first().name);
    const QJsonObject entry = value.toObject();
    if (value.isUndefined())
        return {};
    if (entry.isEmpty())
        return EntryMistake{within, Tr::tr("the resources are no object with counts")};
    for (auto it = entry.begin(); it != entry.end(); ++it) {
        const JsonPath place = within + JsonPath{it.key()};
        const auto row = std::find_if(std::begin(rows), std::end(rows), [&](const auto &candidate) {
            return it.key() == QLatin1String(candidate.first);
        });
        if (row == std::end(rows))
            return EntryMistake{place, Tr::tr("there is no resource \"%1\"").arg(it.key())};
        const double count = it.value().toDouble(-1);
        if (count < 0 || count > 1e9 || count != std::floor(count))
            return EntryMistake{place, Tr::tr("the number of \"%1\" is no count").arg(it.key())};
        *row->second = int(count);
    }
    return {};
}

bool matches(const QString &wanted, const QString &value)
{
    return wanted.isEmpty() || wanted == value;
}

} // namespace

Result<DeviceDb> DeviceDb::fromFolder(const QString &folder)
{
    const QDir dir(folder);
    const QString shown = QDir::toNativeSeparators(folder);
    if (folder.isEmpty() || !dir.exists())
        return Failure{Tr::tr("The device folder \"%1\" does not exist.").arg(shown)};
    // With System a link to nothing is found too, so that it is named and not left out.
    const QStringList names =
        dir.entryList({QStringLiteral("*.json")}, QDir::Files | QDir::System, QDir::Name);
    if (names.isEmpty() || names == QStringList(packagesFile))
        return Failure{Tr::tr("The device folder \"%1\" holds no device file.").arg(shown)};
    const Result<PackageCodes> packageCodes = readPackageCodes(dir.filePath(packagesFile));
    if (!packageCodes)
        return Failure{packageCodes.reason()};

    DeviceDb db;
    for (const QString &name : names) {
        if (name == packagesFile)
            continue;
        if (const Result<void> read = db.readSeries(dir.filePath(name), *packageCodes); !read)
            return Failure{read.reason()};
    }
    return db;
}

DeviceDb &DeviceDb::bundled()
{
    static DeviceDb db = [] {
        initDeviceResources();
        const Result<DeviceDb> built = fromFolder(QStringLiteral(":/tarvo/devices"));
        if (!built)
            qFatal("%s", qPrintable(built.reason()));
        return *built;
    }();
    return db;
}

Result<void> DeviceDb::readSeries(const QString &path, const QHash<QString, QString> &packageCodes)
{
    const Result<DeviceFile> file = readDeviceFile(path);
    if (!file)
        return Failure{file.reason()};
    const QJsonArray devices = file->root.value(QLatin1String("devices")).toArray();
    if (devices.isEmpty())
        return file->mistakeIn({QLatin1String("devices")}, Tr::tr("it lists no devices"));
    for (int i = 0; i < devices.size(); ++i) {
        const auto fail = [&file, i](const JsonPath &within, const QString &reason) {
            return file->mistakeIn(JsonPath{QLatin1String("devices"), i} + within, reason);
        };
        const JsonPath name = {QLatin1String("device")};
        const QJsonObject entry = devices.at(i).toObject();
        const QString device = entry.value(QLatin1String("device")).toString();
        const QString version = entry.value(QLatin1String("version")).toString();
        const QJsonArray packages = entry.value(QLatin1String("packages")).toArray();
        const QJsonArray speeds = entry.value(QLatin1String("speeds")).toArray();
        if (device.isEmpty() || packages.isEmpty() || speeds.isEmpty())
            return fail(device.isEmpty()     ? name
                        : packages.isEmpty() ? JsonPath{QLatin1String("packages")}
                                             : JsonPath{QLatin1String("speeds")},
                        Tr::tr("an entry lacks its device name, packages or speeds"));
        if (!device.endsWith(version))
            return fail(name,
                        Tr::tr("the device name \"%1\" does not fit its version").arg(device));
        DeviceResources resources;
        if (const auto mistake = readResources(entry, &resources))
            return fail(mistake->within, Tr::tr("\"%1\": %2").arg(device, mistake->reason));
        const QString deviceN = device.chopped(version.size());
        const QString series = deviceN.section(u'-', 0, 0);
        const QString size = deviceN.section(u'-', 1);
        if (series.isEmpty() || size.isEmpty())
            return fail(
                name,
                Tr::tr("the device name \"%1\" is not a series, a hyphen and a size").arg(device));
        const qint64 records = qint64(packages.size()) * speeds.size();
        if (m_devices.size() + records > Reading::Limits::devices)
            return fail(name, Tr::tr("with \"%1\" there are more than %2 devices")
                                  .arg(device, QString::number(Reading::Limits::devices)));
        const QString base = series + QLatin1String("-LV") + size;
        for (int p = 0; p < packages.size(); ++p) {
            const QString package = packages.at(p).toString();
            const QString code = packageCodes.value(package);
            if (code.isEmpty())
                return fail({QLatin1String("packages"), p},
                            Tr::tr("the package \"%1\" has no code").arg(package));
            for (int s = 0; s < speeds.size(); ++s) {
                const QString speed = speeds.at(s).toString();
                if (speed.isEmpty())
                    return fail({QLatin1String("speeds"), s},
                                Tr::tr("a speed grade of \"%1\" is no text").arg(device));
                DeviceArg record(device, deviceN, version, package, speed, base + code + speed);
                record.setResources(resources);
                if (m_indexById.contains(record.id()))
                    return fail(name, Tr::tr("the id \"%1\" occurs twice").arg(record.id()));
                m_indexById.insert(record.id(), m_devices.size());
                m_devices.append(record);
            }
        }
    }
    return {};
}

DeviceArg DeviceDb::findDevice(const QString &id) const
{
    const int index = m_indexById.value(id, -1);
    return index < 0 ? DeviceArg() : m_devices.at(index);
}

QList<DeviceArg> DeviceDb::filterDevice(const ChipFilter &filter) const
{
    QList<DeviceArg> found;
    for (const DeviceArg &record : m_devices) {
        if ((filter.id.isEmpty() || filter.id == record.id() || filter.id == record.device()) &&
            matches(filter.series, record.series()) && matches(filter.device, record.device()) &&
            matches(filter.package, record.package()) && matches(filter.speed, record.speed()) &&
            matches(filter.partNumber, record.partNumber()))
            found.append(record);
    }
    return found;
}

} // namespace DEV
