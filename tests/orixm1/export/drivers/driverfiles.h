#pragma once

#include "testsupport.h"

#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <export/format.h>
#include <system/systemmap.h>

#include <QDir>
#include <QProcess>

// What the drivers' tests share: the exported files of a configuration, and running tools.
namespace DriverFiles
{

// Every block on, or none.
inline TARVOORIXM1::OptionMap options(bool on)
{
    TARVOORIXM1::OptionMap map;
    for (const TARVOORIXM1::Option &option : TARVOORIXM1::optionTable()) {
        if (option.isOption && option.type == TARVOORIXM1::OptionType::Bool)
            map.insert(option.key, on);
    }
    return map;
}

inline TARVOORIXM1::SystemMap systemMap(const TARVOORIXM1::OptionMap &options,
                                        const TARVOORIXM1::SystemDescription &description)
{
    DEV::ChipFilter filter;
    filter.device = QStringLiteral("TV2KR-18C");
    return TARVOORIXM1::systemMap(options, DEV::DeviceDb::bundled().filterDevice(filter).value(0),
                                  description);
}

// Writes what programs are made of into a folder: header, drivers and start-up code.
inline bool write(const TARVOORIXM1::SystemMap &map, const QString &folder)
{
    for (const char *name : {"header", "drivers", "startup"}) {
        const TARVOORIXM1::Format *format = TARVOORIXM1::findFormat(QString::fromLatin1(name));
        if (!format)
            return false;
        for (const TARVOORIXM1::ExportedFile &file : format->files(map)) {
            if (!TestSupport::write(folder + QLatin1Char('/') + file.path, file.bytes))
                return false;
        }
    }
    return true;
}

// Runs a tool in a folder; what it says and its status if that is not 0, nothing otherwise.
inline QString complaints(const QString &folder, const QStringList &command)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(command.first(), command.mid(1));
    if (!process.waitForFinished(120000)) {
        process.kill();
        process.waitForFinished();
        return command.join(QLatin1Char(' ')) + QStringLiteral(": does not run");
    }
    QString said = QString::fromLocal8Bit(process.readAll());
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        said += command.join(QLatin1Char(' ')) + QStringLiteral(": status ") +
                QString::number(process.exitCode());
    return said;
}

} // namespace DriverFiles
