#include "description.h"

#include "config/latin1literal.h"

#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

QString peripheralOf(const QString &file, const QVector<Peripheral> &peripherals)
{
    const QString base = QFileInfo(file).completeBaseName();
    const auto served =
        std::find_if(peripherals.begin(), peripherals.end(),
                     [&base](const Peripheral &entry) { return entry.name.toLower() == base; });
    return served == peripherals.end() ? QString() : served->name;
}

} // namespace

Utils::Result<SystemDescription> readSystemDescription(const QString &dataPath)
{
    SystemDescription description;
    const auto peripherals = readRegisterMap(dataPath);
    if (!peripherals)
        return Utils::Failure{peripherals.reason()};
    description.peripherals = *peripherals;
    const auto interrupts = readOtherInterrupts(dataPath);
    if (!interrupts)
        return Utils::Failure{interrupts.reason()};
    description.otherInterrupts = *interrupts;
    const QDir folder(dataPath + "/firmware"_l1);
    // With System what cannot be read is found too, so that it is named and not left out.
    QStringList files = folder.entryList({QStringLiteral("*.c"), QStringLiteral("*.h")},
                                         QDir::Files | QDir::System, QDir::Unsorted);
    std::sort(files.begin(), files.end());
    for (const QString &file : qAsConst(files)) {
        FirmwareFile entry{file, peripheralOf(file, description.peripherals), {}};
        QString reason;
        const QString path = folder.filePath(file);
        if (!Reading::readPlainFile(path, Reading::Limits::firmwareFile, &entry.bytes, &reason))
            return Utils::Failure{u'"' + QDir::toNativeSeparators(path) +
                                  "\": cannot be read: "_l1 + reason};
        description.firmware.append(entry);
    }
    return description;
}

} // namespace TARVOORIXM1
