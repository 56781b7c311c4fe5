#include "description.h"

#include "config/descriptor.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "generate/sourcefiles.h"

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

// Appends the files with these names; returns why one cannot be read, empty if all can.
QString readFiles(const QString &folder, const QStringList &names, QVector<DataFile> *files)
{
    for (const QString &name : names) {
        DataFile file{name, {}};
        QString reason;
        const QString path = folder + u'/' + name;
        if (!Reading::readPlainFile(path, Reading::Limits::rtlFile, &file.bytes, &reason))
            return u'"' + QDir::toNativeSeparators(path) + "\": cannot be read: "_l1 + reason;
        files->append(file);
    }
    return {};
}

// What stands in for the processor: the bus-functional model in both languages.
QStringList processorModelNames(const QString &folder)
{
    QStringList names = QDir(folder).entryList(
        {QStringLiteral("cortex_m1_core_bfm.v"), QStringLiteral("cortex_m1_core_bfm.vhd")},
        QDir::Files | QDir::System, QDir::Unsorted);
    std::sort(names.begin(), names.end());
    return names;
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
    QVariantMap folders;
    addDataFolders(folders, dataPath);
    const QString debug = folders.value(InfoKey::debug).toString();
    const QString noDebug = folders.value(InfoKey::noDebug).toString();
    const QString models = dataPath + "/simulation"_l1;
    QString problem = readFiles(debug, rtlNames(debug), &description.debugRtl);
    if (problem.isEmpty())
        problem = readFiles(noDebug, rtlNames(noDebug), &description.noDebugRtl);
    if (problem.isEmpty())
        problem = readFiles(models, processorModelNames(models), &description.processorModels);
    if (!problem.isEmpty())
        return Utils::Failure{problem};
    return description;
}

} // namespace TARVOORIXM1
