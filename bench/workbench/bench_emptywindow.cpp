// The least that a host can be: an empty window and one plug-in. Ends when the window is painted.

#include "firstwindow.h"

#include <ipplugin/ipplugin.h>

#include <QMainWindow>
#include <QPluginLoader>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    FirstWindow watcher;
    application.installEventFilter(&watcher);
    QPluginLoader loader(QStringLiteral(TARVO_PLUGIN));
    auto *plugin = qobject_cast<TE::TE_IPCore_Def::IPPlugin *>(loader.instance());
    if (!plugin) {
        qCritical("%s", qPrintable(loader.errorString()));
        return 1;
    }
    plugin->setDataPath(QStringLiteral(TARVO_DATA));
    if (plugin->ipCoreInterfaces().isEmpty())
        return 1;
    QMainWindow window;
    window.resize(1280, 800);
    window.show();
    return QApplication::exec();
}
