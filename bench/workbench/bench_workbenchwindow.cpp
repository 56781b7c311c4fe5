// The workbench as the program starts it, up to its usable window.

#include "firstwindow.h"

#include <workbench/catalogue/ipcatalogue.h>
#include <workbench/window/mainwindow.h>

#include <QSettings>

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    FirstWindow watcher;
    application.installEventFilter(&watcher);
    QSettings settings(QStringLiteral("/nonexistent/settings.ini"), QSettings::IniFormat);
    Workbench::IpCatalogue catalogue;
    catalogue.setDataFolders({QStringLiteral(TARVO_SHARE)});
    catalogue.setProbeCache(QCoreApplication::applicationFilePath() + QStringLiteral(".plugins"));
    if (!catalogue.loadLibrary(QStringLiteral(TARVO_PLUGIN)))
        return 1;
    Workbench::MainWindow window(catalogue, settings);
    window.resize(1280, 800);
    window.show();
    return QApplication::exec();
}
