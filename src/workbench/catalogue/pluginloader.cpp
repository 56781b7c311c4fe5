#include "pluginloader.h"

#include "sayings.h"

#include <ipcore/ipcore.h>
#include <ipplugin/baseipcoreinterface.h>
#include <ipplugin/ipplugin.h>
#include <reading/filelist.h>

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QPluginLoader>
#include <QSet>

#include <exception>

namespace Workbench
{

using TE::TE_IPCore_Def::BaseIPCoreInterface;
using TE::TE_IPCore_Def::IPPlugin;

namespace
{

// The help document of an IP: as its plug-in says, or else as the descriptor with its id does.
QString helpOf(BaseIPCoreInterface &core, const QString &dataFolder)
{
    const QString key = QStringLiteral("ipcore.doc.help");
    QString help = core.getIpinfoMap().value(key).toString();
    const QStringList names = Reading::filesEndingIn(dataFolder, {QLatin1String(".ipspec")});
    for (const QString &name : names) {
        if (!help.isEmpty())
            break;
        const QVariantMap ipInfo = IPCore::processIPInfoSpec(QDir(dataFolder).filePath(name));
        if (ipInfo.value(QStringLiteral("ipcore.id")).toString() == core.id())
            help = ipInfo.value(key).toString();
    }
    return QFileInfo(help).isFile() ? help : QString();
}

} // namespace

LoadedPlugin::LoadedPlugin() = default;
LoadedPlugin::LoadedPlugin(LoadedPlugin &&) noexcept = default;
LoadedPlugin::~LoadedPlugin() = default;

QString PluginLoader::thrownBy(const std::function<void()> &call)
{
    try {
        call();
    } catch (const std::exception &exception) {
        const QString what = QString::fromUtf8(exception.what());
        return what.isEmpty() ? Sayings::shown(Sayings::told(Sayings::NoTextThrown)) : what;
    } catch (...) {
        return Sayings::shown(Sayings::told(Sayings::UnknownThrown));
    }
    return {};
}

LoadedPlugin PluginLoader::load(const QString &library, const QString &dataFolder,
                                const std::function<void(Step)> &about)
{
    const auto tell = [&about](Step step) {
        if (about)
            about(step);
    };
    LoadedPlugin result;
    QPluginLoader loader(library);
    // A missing symbol is found now, not in the middle of a dialog.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    IPPlugin *plugin = nullptr;
    QList<BaseIPCoreInterface *> cores;
    const QString thrown = thrownBy([&] {
        tell(Loading);
        loader.load();
        tell(Starting);
        plugin = qobject_cast<IPPlugin *>(loader.instance());
        if (!plugin)
            return;
        plugin->setDataPath(dataFolder);
        tell(Listing);
        cores = plugin->ipCoreInterfaces();
    });
    if (!thrown.isEmpty()) {
        result.mistakes.append(Sayings::told(Sayings::FailedAtStart, {thrown}));
        return result;
    }
    if (!plugin) {
        if (loader.isLoaded())
            result.mistakes.append(Sayings::told(Sayings::NotForIps));
        else if (loader.metaData().isEmpty())
            result.mistakes.append(Sayings::told(Sayings::NoPlugin, {loader.errorString()}));
        else
            result.mistakes.append(loader.errorString());
        return result;
    }
    result.root = plugin;
    if (cores.isEmpty()) {
        result.mistakes.append(
            Sayings::told(Sayings::OffersNone, {QDir::toNativeSeparators(plugin->dataPath())}));
        return result;
    }
    tell(Describing);
    QSet<BaseIPCoreInterface *> seen;
    for (BaseIPCoreInterface *object : qAsConst(cores)) {
        if (!object) {
            result.mistakes.append(Sayings::told(Sayings::IpIsNone));
            continue;
        }
        if (seen.contains(object)) {
            result.mistakes.append(Sayings::told(Sayings::IpTwice));
            continue;
        }
        seen.insert(object);
        LoadedPlugin::Ip ip;
        ip.object.reset(object);
        ip.entry.library = library;
        const QString reason = thrownBy([&] {
            ip.entry.id = object->id();
            ip.entry.name = object->name();
            ip.entry.version = object->version();
            ip.entry.summary = object->summary();
            ip.entry.category = object->category();
            ip.entry.help = helpOf(*object, dataFolder);
        });
        if (!reason.isEmpty())
            result.mistakes.append(Sayings::told(Sayings::FailedForIp, {reason}));
        else if (ip.entry.id.isEmpty() || ip.entry.name.isEmpty())
            result.mistakes.append(Sayings::told(Sayings::IpWithoutName));
        else
            result.ips.push_back(std::move(ip));
    }
    return result;
}

} // namespace Workbench
