#pragma once

#include "config/latin1literal.h"
#include "config/optionmap.h"

#include <dev/devicearg.h>

#include <QString>
#include <QStringList>
#include <QVector>

namespace TARVOORIXM1
{

// Names of the generated include files.
namespace IncludeFileName
{
inline constexpr QLatin1String core = "cm1_option_defs.v"_l1;
inline constexpr QLatin1String bus = "ahb_option_defs.v"_l1;
inline constexpr QLatin1String param = "parameter.vh"_l1;
inline constexpr QLatin1String macDefine = "triple_speed_mac_define.v"_l1;
inline constexpr QLatin1String macParam = "triple_speed_mac_param.v"_l1;
inline constexpr QLatin1String ddr3 = "DDR3_define.v"_l1;
inline constexpr QLatin1String psram = "psram_define.v"_l1;
} // namespace IncludeFileName

// The text of one include file: a line per entry, without line ends.
struct IncludeFile {
    QString name;
    QStringList lines;
};

// The core's 4-bit size field for a TCM size index ("0110" for 5, 32 KB). Any index out of 0 to 9
// gives "0110" on purpose: generation rejects nothing.
QLatin1String tcmSizeCode(int index);

// Appends the core's options to `coreLines` and the first lines of the bus file to `busLines`.
void buildCoreDefines(const OptionMap &options, const QString &device, QStringList &coreLines,
                      QStringList &busLines);

// The lines of the six other files. busLines continues what buildCoreDefines() began.
struct PeripheralDefines {
    QStringList busLines;
    QStringList paramLines;
    QStringList macDefineLines;
    QStringList macParamLines;
    QStringList ddr3Lines;
    QStringList psramLines;
};
void buildPeripheralDefines(const OptionMap &options, const DEV::DeviceArg &device,
                            PeripheralDefines &defines);

// All seven files, in the order in which they are written.
QVector<IncludeFile> buildIncludeFiles(const OptionMap &options, const DEV::DeviceArg &device);

} // namespace TARVOORIXM1
