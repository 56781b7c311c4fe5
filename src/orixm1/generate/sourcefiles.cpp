#include "sourcefiles.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "defines.h"
#include "rules/devicerules.h"

#include <QDir>

#include <algorithm>
#include <iterator>

namespace TARVOORIXM1
{

namespace
{

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

bool isSupportFile(const QString &name)
{
    return std::any_of(std::begin(supportNames), std::end(supportNames),
                       [&name](QLatin1String support) { return name == support; });
}

QString dataFolder(const OptionMap &options, const QVariantMap &ipInfo)
{
    const bool debug = isOn(options, Key::enableDebug);
    return ipInfo.value(debug ? InfoKey::debug : InfoKey::noDebug).toString();
}

} // namespace

QStringList rtlNames(const QString &folder)
{
    // An empty name would list the current folder.
    return folder.isEmpty() ? QStringList()
                            : QDir(folder).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
}

RtlUse rtlUse(const QString &name, const OptionMap &options, const QString &device)
{
    if (isSupportFile(name))
        return RtlUse::Included;
    return isInDeviceList(name, excludedSources(device, isOn(options, Key::enableDebug)))
               ? RtlUse::Left
               : RtlUse::Compiled;
}

bool isIncludeCompiled(const QString &name)
{
    return std::any_of(std::begin(compiledIncludeFiles), std::end(compiledIncludeFiles),
                       [&name](QLatin1String compiled) { return name == compiled; });
}

QStringList buildSourceFiles(const OptionMap &options, const QVariantMap &ipInfo,
                             const QString &device, const QString &tempDir)
{
    const QString dataDir = dataFolder(options, ipInfo);
    QStringList sourceFiles;
    const QStringList names = rtlNames(dataDir);
    for (const QString &name : names) {
        if (rtlUse(name, options, device) == RtlUse::Compiled)
            sourceFiles.append(dataDir + u'/' + name);
    }
    for (const QLatin1String name : compiledIncludeFiles)
        sourceFiles.append(tempDir + u'/' + name);
    return sourceFiles;
}

QStringList buildSupportFiles(const OptionMap &options, const QVariantMap &ipInfo)
{
    const QString dataDir = dataFolder(options, ipInfo);
    QStringList files;
    const QStringList names = rtlNames(dataDir);
    for (const QString &name : names) {
        if (isSupportFile(name))
            files.append(dataDir + u'/' + name);
    }
    return files;
}

} // namespace TARVOORIXM1
