// Saves pictures of the windows as the user guide shows them: pictures FOLDER.

#include <config/descriptor.h>
#include <config/optionkeys.h>
#include <dialogs/cortexm1.h>
#include <dialogs/ethernetdlg.h>
#include <ipcore/ipcore.h>
#include <ui/tarvoorixm1dlg.h>

#include <QApplication>
#include <QDir>
#include <QTabWidget>
#include <QTemporaryDir>

#include <cstdio>

using namespace TARVOORIXM1;

namespace
{

// With a size, the window gets it: the headless screen is smaller than a desktop, and windows keep
// to their screen at first.
bool save(QWidget &window, const QString &path, const QSize &size = QSize())
{
    window.show();
    if (size.isValid())
        window.resize(size);
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
    if (window.grab().save(path))
        return true;
    std::fprintf(stderr, "%s cannot be written\n", qPrintable(path));
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    const QDir folder(QApplication::arguments().value(1));
    const QString data = QStringLiteral(TARVO_IP_DATA_DIR);
    QVariantMap ipInfo = IPCore::processIPInfoSpec(descriptorPath(data));
    addDataFolders(ipInfo, data);

    TarvoOrixM1Dlg dialog(ipInfo);
    if (!dialog.prepareOpen(QStringLiteral("/home/me/sensor-node"),
                            QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc")))
        return 1;
    if (!save(dialog, folder.filePath(QStringLiteral("dialog.png"))))
        return 1;

    OptionMap options = dialog.currentOptions();
    CortexM1 core(&options);
    core.tabWidget()->setCurrentIndex(2);
    if (!save(core, folder.filePath(QStringLiteral("core.png")), {960, 790}))
        return 1;

    options.insert(Key::enableEthernet, true);
    EthernetDlg ethernet(&options);
    return save(ethernet, folder.filePath(QStringLiteral("ethernet.png")), {960, 560}) ? 0 : 1;
}
