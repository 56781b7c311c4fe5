#include "sourcefiles.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "defines.h"
#include "rules/devicerules.h"

#include <QDir>

#include <algorithm>
#include <iterator>

namespace TARVOORIXM1
{

namespace
{

// Which data files a device leaves out.
struct ExclusionRow {
    DeviceTest devices;
    QLatin1String excluded; // "/"-separated file names
};

// The first matching row wins; the catch-all stands behind each table.
constexpr ExclusionRow withoutDebugRows[] = {
    {{"TV5K"_l1, QLatin1String()}, "itcm.v/dtcm.v/itcm_3k.v/dtcm_3k.v"_l1},
    {{"TV3K"_l1, QLatin1String()}, "itcm.v/dtcm.v/itcm_5k.v/dtcm_5k.v"_l1},
};
constexpr QLatin1String withoutDebugOtherwise = "itcm_3k.v/dtcm_3k.v/itcm_5k.v/dtcm_5k.v"_l1;

constexpr ExclusionRow withDebugRows[] = {
    {{QLatin1String(), "TV2K-55C/TV2K-18C/TV2KL-55C/TV2KR-18C/TV2KLR-18C"_l1}, "itcmdbg.v"_l1},
};
constexpr QLatin1String withDebugOtherwise = "itcmdbg_2kc.v"_l1;

// Included by other sources and never compiled by themselves.
constexpr QLatin1String supportNames[] = {
    "tvmc_local_param.v"_l1,   "tvmc_param.v"_l1,           "ddr3_name.v"_l1,
    "psram_local_define.v"_l1, "psram_local_param.v"_l1,    "define.vh"_l1,
    "psram_param.v"_l1,        "static_macro_define.vh"_l1, "triple_speed_mac_name.v"_l1,
};

// psram_define.v is left out on purpose: the RTL includes it.
constexpr QLatin1String compiledIncludeFiles[] = {
    IncludeFileName::core,     IncludeFileName::bus,       IncludeFileName::param,
    IncludeFileName::macParam, IncludeFileName::macDefine, IncludeFileName::ddr3,
};

template <size_t N>
QLatin1String excludedFor(const QString &device, const ExclusionRow (&rows)[N],
                          QLatin1String otherwise)
{
    for (const ExclusionRow &row : rows) {
        if (row.devices.matches(device))
            return row.excluded;
    }
    return otherwise;
}

bool isSupportFile(const QString &name)
{
    return std::any_of(std::begin(supportNames), std::end(supportNames),
                       [&name](QLatin1String support) { return name == support; });
}

} // namespace

QStringList buildSourceFiles(const OptionMap &options, const QVariantMap &ipInfo,
                             const QString &device, const QString &tempDir)
{
    const bool debug = options.value(Key::enableDebug, true).toBool();
    const QString dataDir = ipInfo.value(debug ? InfoKey::debug : InfoKey::noDebug).toString();
    const QLatin1String excluded =
        debug ? excludedFor(device, withDebugRows, withDebugOtherwise)
              : excludedFor(device, withoutDebugRows, withoutDebugOtherwise);
    QStringList sourceFiles;
    // An empty name would list the current folder.
    const QStringList names =
        dataDir.isEmpty() ? QStringList()
                          : QDir(dataDir).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const QString &name : names) {
        if (!isInDeviceList(name, excluded) && !isSupportFile(name))
            sourceFiles.append(dataDir + u'/' + name);
    }
    for (const QLatin1String name : compiledIncludeFiles)
        sourceFiles.append(tempDir + u'/' + name);
    return sourceFiles;
}

} // namespace TARVOORIXM1
