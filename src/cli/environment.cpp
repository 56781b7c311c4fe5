#include "environment.h"

#include "output.h"

#include <config/descriptor.h>
#include <config/nearest.h>
#include <config/optionkeys.h>
#include <utils/descriptor.h>

#include <QCoreApplication>
#include <QDir>
#include <QVector>

#include <algorithm>
#include <initializer_list>

namespace Cli
{

using namespace TARVOORIXM1;

QString Environment::dataFolder() const
{
    // The build tree and an installation are laid out alike.
    return m_dataFolder.isEmpty() ? QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                                    QLatin1String("/../share/tarvo/tarvo_orix_m1"))
                                  : QDir::cleanPath(QDir(m_dataFolder).absolutePath());
}

QVariantMap Environment::ipInfo()
{
    if (!m_ipInfo.isEmpty())
        return m_ipInfo;
    const QString folder = dataFolder();
    const QString path = descriptorPath(folder);
    const Utils::Result<QVariantMap> read = Utils::readDescriptor(path);
    QVariantMap info = read ? *read : QVariantMap();
    QString error = read.reason();
    if (info.isEmpty() && error.isEmpty())
        error = QLatin1String("The descriptor \"") + path + QLatin1String("\" holds nothing.");
    if (!info.isEmpty() && info.value(InfoKey::target).toString().isEmpty())
        error = QLatin1String("The descriptor \"") + path + QLatin1String("\" lacks \"") +
                InfoKey::target + QLatin1String("\".");
    if (!error.isEmpty()) {
        printProblem({error});
        return {};
    }
    addDataFolders(info, folder);
    m_ipInfo = info;
    return m_ipInfo;
}

const DEV::DeviceDb *Environment::devices()
{
    if (m_devices)
        return m_devices;
    if (m_deviceFolder.isEmpty()) {
        m_devices = &DEV::DeviceDb::bundled();
        return m_devices;
    }
    const Utils::Result<DEV::DeviceDb> read = DEV::DeviceDb::fromFolder(m_deviceFolder);
    if (!read) {
        printProblem({read.reason()});
        return nullptr;
    }
    m_ownDevices = *read;
    m_devices = &m_ownDevices;
    return m_devices;
}

namespace
{

using Devices = QList<DEV::DeviceArg>;
using Field = QString (DEV::DeviceArg::*)() const;

// What a device can be named by.
constexpr std::initializer_list<Field> deviceFields = {&DEV::DeviceArg::id, &DEV::DeviceArg::device,
                                                       &DEV::DeviceArg::partNumber};

// Those with this text in one of the fields; without regard to letter case only if none has it
// exactly. An empty text matches all.
Devices matching(const Devices &devices, const QString &text, std::initializer_list<Field> fields)
{
    if (text.isEmpty())
        return devices;
    for (const Qt::CaseSensitivity sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        Devices found;
        for (const DEV::DeviceArg &device : devices) {
            const bool matches = std::any_of(fields.begin(), fields.end(), [&](const Field &field) {
                return (device.*field)().compare(text, sensitivity) == 0;
            });
            if (matches)
                found.append(device);
        }
        if (!found.isEmpty())
            return found;
    }
    return {};
}

QStringList distinct(const Devices &devices, const Field &field)
{
    QStringList values;
    for (const DEV::DeviceArg &device : devices)
        values.append((device.*field)());
    values.removeDuplicates();
    return values;
}

// A table with a line for each.
QString listed(const Devices &devices)
{
    const QStringList head = {QStringLiteral("ID"), QStringLiteral("PACKAGE"),
                              QStringLiteral("SPEED"), QStringLiteral("PART NUMBER")};
    QVector<QStringList> lines = {head};
    for (const DEV::DeviceArg &device : devices)
        lines.append({device.id(), device.package(), device.speed(), device.partNumber()});
    QString text;
    for (const QStringList &line : qAsConst(lines)) {
        text += u'\n';
        for (int column = 0; column < line.size(); ++column) {
            int width = 0;
            for (const QStringList &other : qAsConst(lines))
                width = qMax(width, other.at(column).size());
            text +=
                QLatin1String("  ") +
                (column + 1 < line.size() ? line.at(column).leftJustified(width) : line.at(column));
        }
    }
    return text;
}

} // namespace

Utils::Result<DEV::DeviceArg> Environment::findDevice(const DeviceChoice &choice) const
{
    const QString &device = choice.device;
    const QString &package = choice.package;
    const QString &speed = choice.speed;
    using DEV::DeviceArg;
    const Devices all = m_devices->devices();
    if (device.isEmpty()) {
        return Utils::Failure{
            QLatin1String("The device is empty; it is one of ") +
            distinct(all, &DeviceArg::device).join(QLatin1String(", ")) +
            QLatin1String(", or an id or a part number, as \"orixm1 devices\" lists them.")};
    }
    const Devices named = matching(all, device, deviceFields);
    if (named.isEmpty()) {
        return Utils::Failure{QLatin1String("Unknown device \"") + device +
                              QLatin1String("\"; \"orixm1 devices\" lists the known ones.")};
    }
    const Devices found =
        matching(matching(named, package, {&DeviceArg::package}), speed, {&DeviceArg::speed});
    if (found.isEmpty()) {
        return Utils::Failure{QLatin1String("\"") + device +
                              QLatin1String("\" does not exist with package \"") + package +
                              QLatin1String("\" and speed grade \"") + speed +
                              QLatin1String("\"; there are:") + listed(named)};
    }
    if (distinct(found, &DeviceArg::device).size() > 1) {
        return Utils::Failure{
            QLatin1String("\"") + device +
            QLatin1String("\" is a part number of several devices; name one by its id:") +
            listed(found)};
    }
    if (distinct(found, &DeviceArg::package).size() > 1) {
        return Utils::Failure{
            QLatin1String("\"") + device +
            QLatin1String("\" comes in several packages; choose one with --package, or name "
                          "an id or a part number:") +
            listed(found)};
    }
    return found.first();
}

Problem Environment::problemOf(const QString &reason, const DeviceChoice &choice) const
{
    using DEV::DeviceArg;
    Problem problem{reason, choice.device};
    const Devices all = m_devices->devices();
    if (matching(all, choice.device, deviceFields).isEmpty())
        problem.fix = didYouMean(nearestText(
            choice.device, distinct(all, &DeviceArg::device) + distinct(all, &DeviceArg::id) +
                               distinct(all, &DeviceArg::partNumber)));
    return problem;
}

QString Environment::chosenSpeed(const DEV::DeviceArg &found, const DeviceChoice &choice) const
{
    if (!choice.speed.isEmpty() || choice.device.compare(found.device(), Qt::CaseInsensitive) != 0)
        return {};
    DEV::ChipFilter filter;
    filter.device = found.device();
    filter.package = found.package();
    QStringList others = distinct(m_devices->filterDevice(filter), &DEV::DeviceArg::speed);
    others.removeAll(found.speed());
    if (others.isEmpty())
        return {};
    return QLatin1String("Speed grade ") + found.speed() +
           QLatin1String(" is taken; there is also ") + others.join(QLatin1String(", ")) + u'.';
}

} // namespace Cli
