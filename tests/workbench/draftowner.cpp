// Configures in the dialog of an IP until it is killed: draftowner SETTINGS PROJECT. Switches two
// blocks of a new subsystem on and prints a line when the draft is kept.

#include <dialogdriver.h>

#include <workbench/catalogue/ipcatalogue.h>
#include <workbench/kept/keptconfigurations.h>
#include <workbench/window/mainwindow.h>

#include <QApplication>
#include <QGraphicsView>
#include <QSettings>
#include <QtTest>

#include <cstdio>

using namespace Workbench;

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QSettings settings(QString::fromLocal8Bit(argv[1]), QSettings::IniFormat);
    IpCatalogue catalogue;
    catalogue.setDataFolders({QStringLiteral(TARVO_SHARE_FOLDER)});
    catalogue.loadFolder(QStringLiteral(TARVO_PLUGIN_FOLDER), true);
    MainWindow window(catalogue, settings);
    window.show();
    window.openProject(QString::fromLocal8Bit(argv[2]));
    const TestSupport::ModalWatcher watcher([&window](QWidget *modal) {
        auto *view = modal->findChild<QGraphicsView *>();
        if (!view)
            return;
        view->setFocus(Qt::TabFocusReason);
        QTest::keyClick(view, Qt::Key_Tab);
        QTest::keyClick(view, Qt::Key_Space, Qt::ShiftModifier);
        QTest::keyClick(view, Qt::Key_Space, Qt::ShiftModifier);
        auto *look = new QTimer(modal);
        QObject::connect(look, &QTimer::timeout, [&window, look] {
            const auto items = window.kept()->items();
            if (items.isEmpty() || items.first().steps.size() < 2)
                return;
            look->stop();
            std::printf("%s\n", qPrintable(items.first().stepWords()));
            std::fflush(stdout);
        });
        look->start(5);
    });
    window.createSelectedIp(0);
    return 0;
}
