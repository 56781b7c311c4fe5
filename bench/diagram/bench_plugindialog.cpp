// Loads the plug-in as a host does and opens its dialog for a new IP; ends at the diagram's first
// paint.

#include "firstpaint.h"

#include <dev/devicedb.h>
#include <ipplugin/baseipcoreinterface.h>
#include <ipplugin/ipplugin.h>

#include <QDir>
#include <QPluginLoader>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    FirstPaint watcher;
    application.installEventFilter(&watcher);

    QPluginLoader loader(QStringLiteral(TARVO_PLUGIN));
    auto *plugin = qobject_cast<TE::TE_IPCore_Def::IPPlugin *>(loader.instance());
    if (!plugin) {
        qCritical("%s", qPrintable(loader.errorString()));
        return 1;
    }
    plugin->setDataPath(QStringLiteral(TARVO_DATA));
    const auto cores = plugin->ipCoreInterfaces();
    if (cores.isEmpty()) {
        qCritical("the plug-in offers no IP");
        return 1;
    }
    const DEV::DeviceArg device = DEV::DeviceDb::bundled().devices().constLast();
    cores.first()->createIP(QDir::tempPath(), device);
    return 1; // closed before anything was painted
}
