// The workbench as the program starts it, up to its usable window: that of the project which the
// command line names, if it does.

#include "firstwindow.h"

#include <workbench/catalogue/ipcatalogue.h>
#include <workbench/widgets/fontconfiguration.h>
#include <workbench/widgets/programstyle.h>
#include <workbench/window/mainwindow.h>

#include <QFile>
#include <QSettings>

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    std::future<void> fonts = Workbench::readFontConfiguration();
    QApplication::setStyle(new Workbench::ProgramStyle);
    FirstWindow watcher;
    application.installEventFilter(&watcher);
    QSettings settings(QCoreApplication::applicationFilePath() + QStringLiteral(".ini"),
                       QSettings::IniFormat);
    Workbench::IpCatalogue catalogue;
    catalogue.setDataFolders({QStringLiteral(TARVO_SHARE)});
    catalogue.setProbeCache(QCoreApplication::applicationFilePath() + QStringLiteral(".plugins"));
    if (!catalogue.loadLibrary(QStringLiteral(TARVO_PLUGIN)))
        return 1;
    fonts.wait();
    Workbench::MainWindow window(catalogue, settings);
    window.resize(1280, 800);
    // As the program does with what its command line names.
    if (argc > 1) {
        watcher.setReady(false);
        QTimer::singleShot(0, &window, [&] {
            watcher.setReady(true);
            if (!window.openProject(QFile::decodeName(argv[1])))
                ::_exit(1);
            window.update();
        });
    }
    window.show();
    return QApplication::exec();
}
