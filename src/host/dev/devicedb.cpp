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

bool malformed(const QString &path, const QString &reason, QString *error)
{
    if (error)
        *error = Tr::tr("Device file \"%1\": %2.").arg(QDir::toNativeSeparators(path), reason);
    return false;
}

bool readObject(const QString &path, QJsonObject *object, QString *error)
{
    QByteArray bytes;
    if (!Utils::readBoundedFile(path, Reading::Limits::deviceFile, &bytes, error))
        return false;
    const Reading::JsonMistake mistake = Reading::findJsonMistake(bytes);
    if (mistake.offset >= 0)
        return malformed(
            path,
            Tr::tr("line %1: %2")
                .arg(QString::number(1 + bytes.left(mistake.offset).count('\n')), mistake.reason),
            error);
    QJsonParseError parseError;
    *object = QJsonDocument::fromJson(bytes, &parseError).object();
    return parseError.error == QJsonParseError::NoError ||
           malformed(path, parseError.errorString(), error);
}

bool readPackageCodes(const QString &path, QHash<QString, QString> *codes, QString *error)
{
    QJsonObject root;
    if (!readObject(path, &root, error))
        return false;
    const QJsonObject entries = root.value(QLatin1String("packageCodes")).toObject();
    if (entries.isEmpty())
        return malformed(path, Tr::tr("it lists no package codes"), error);
    for (auto it = entries.begin(); it != entries.end(); ++it) {
        const QString code = it.value().toString();
        if (code.isEmpty())
            return malformed(path, Tr::tr("the package \"%1\" has no code").arg(it.key()), error);
        codes->insert(it.key(), code);
    }
    return true;
}

// The counts of an entry's "resources", which may be left out; a sentence on a mistake.
QString readResources(const QJsonValue &value, DeviceResources *resources)
{
    if (value.isUndefined())
        return {};
    const std::pair<const char *, int *> rows[] = {{"lut4", &resources->lut4},
                                                   {"flipFlops", &resources->flipFlops},
                                                   {"carry", &resources->carry},
                                                   {"blockRam", &resources->blockRam}};
    const QJsonObject entry = value.toObject();
    if (entry.isEmpty())
        return Tr::tr("the resources are no object with counts");
    for (auto it = entry.begin(); it != entry.end(); ++it) {
        const auto row = std::find_if(std::begin(rows), std::end(rows), [&](const auto &candidate) {
            return it.key() == QLatin1String(candidate.first);
        });
        if (row == std::end(rows))
            return Tr::tr("there is no resource \"%1\"").arg(it.key());
        const double count = it.value().toDouble(-1);
        if (count < 0 || count > 1e9 || count != std::floor(count))
            return Tr::tr("the number of \"%1\" is no count").arg(it.key());
        *row->second = int(count);
    }
    return {};
}

bool matches(const QString &wanted, const QString &value)
{
    return wanted.isEmpty() || wanted == value;
}

} // namespace

DeviceDb DeviceDb::fromFolder(const QString &folder, QString *error)
{
    const QDir dir(folder);
    if (folder.isEmpty() || !dir.exists()) {
        if (error)
            *error = Tr::tr("The device folder \"%1\" does not exist.")
                         .arg(QDir::toNativeSeparators(folder));
        return {};
    }
    // With System a link to nothing is found too, so that it is named and not left out.
    const QStringList names =
        dir.entryList({QStringLiteral("*.json")}, QDir::Files | QDir::System, QDir::Name);
    if (names.isEmpty() || names == QStringList(packagesFile)) {
        if (error)
            *error = Tr::tr("The device folder \"%1\" holds no device file.")
                         .arg(QDir::toNativeSeparators(folder));
        return {};
    }
    QHash<QString, QString> packageCodes;
    if (!readPackageCodes(dir.filePath(packagesFile), &packageCodes, error))
        return {};

    DeviceDb db;
    for (const QString &name : names) {
        if (name != packagesFile && !db.readSeries(dir.filePath(name), packageCodes, error))
            return {};
    }
    return db;
}

DeviceDb &DeviceDb::bundled()
{
    static DeviceDb db = [] {
        initDeviceResources();
        QString error;
        DeviceDb built = fromFolder(QStringLiteral(":/tarvo/devices"), &error);
        if (built.isEmpty())
            qFatal("%s", qPrintable(error));
        return built;
    }();
    return db;
}

bool DeviceDb::readSeries(const QString &path, const QHash<QString, QString> &packageCodes,
                          QString *error)
{
    const auto fail = [error, &path](const QString &reason) {
        return malformed(path, reason, error);
    };
    QJsonObject root;
    if (!readObject(path, &root, error))
        return false;
    const QJsonArray devices = root.value(QLatin1String("devices")).toArray();
    if (devices.isEmpty())
        return fail(Tr::tr("it lists no devices"));
    for (const QJsonValue &value : devices) {
        const QJsonObject entry = value.toObject();
        const QString device = entry.value(QLatin1String("device")).toString();
        const QString version = entry.value(QLatin1String("version")).toString();
        const QJsonArray packages = entry.value(QLatin1String("packages")).toArray();
        const QJsonArray speeds = entry.value(QLatin1String("speeds")).toArray();
        if (device.isEmpty() || packages.isEmpty() || speeds.isEmpty())
            return fail(Tr::tr("an entry lacks its device name, packages or speeds"));
        if (!device.endsWith(version))
            return fail(Tr::tr("the device name \"%1\" does not fit its version").arg(device));
        DeviceResources resources;
        if (const QString mistake =
                readResources(entry.value(QLatin1String("resources")), &resources);
            !mistake.isEmpty())
            return fail(Tr::tr("\"%1\": %2").arg(device, mistake));
        const QString deviceN = device.chopped(version.size());
        const QString series = deviceN.section(u'-', 0, 0);
        const QString size = deviceN.section(u'-', 1);
        if (series.isEmpty() || size.isEmpty())
            return fail(
                Tr::tr("the device name \"%1\" is not a series, a hyphen and a size").arg(device));
        const qint64 records = qint64(packages.size()) * speeds.size();
        if (m_devices.size() + records > Reading::Limits::devices)
            return fail(Tr::tr("with \"%1\" there are more than %2 devices")
                            .arg(device, QString::number(Reading::Limits::devices)));
        const QString base = series + QLatin1String("-LV") + size;
        for (const QJsonValue &packageValue : packages) {
            const QString package = packageValue.toString();
            const QString code = packageCodes.value(package);
            if (code.isEmpty())
                return fail(Tr::tr("the package \"%1\" has no code").arg(package));
            for (const QJsonValue &speedValue : speeds) {
                const QString speed = speedValue.toString();
                if (speed.isEmpty())
                    return fail(Tr::tr("a speed grade of \"%1\" is no text").arg(device));
                DeviceArg record(device, deviceN, version, package, speed, base + code + speed);
                record.setResources(resources);
                if (m_indexById.contains(record.id()))
                    return fail(Tr::tr("the id \"%1\" occurs twice").arg(record.id()));
                m_indexById.insert(record.id(), m_devices.size());
                m_devices.append(record);
            }
        }
    }
    return true;
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
