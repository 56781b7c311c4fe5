#include "tarvoorixm1.h"

#include "config/descriptor.h"
#include "config/ipcfile.h"
#include "config/optionkeys.h"
#include "dialogs/messagebox.h"
#include "ui/tarvoorixm1dlg.h"

#include <core/viewmanager.h>
#include <ipcore/ipcore.h>

namespace TARVOORIXM1
{

TarvoOrixM1::TarvoOrixM1(const QString &dataFolder)
    : dataPath(dataFolder)
{
}

TarvoOrixM1::~TarvoOrixM1() = default;

bool TarvoOrixM1::initialize()
{
    ipInfo = IPCore::processIPInfoSpec(descriptorPath(dataPath));
    if (!IPCore::checkCommonInfo(ipInfo))
        return false;
    addDataFolders(ipInfo, dataPath);
    return true;
}

void TarvoOrixM1::createIP(QString createInDir, DEV::DeviceArg device)
{
    TarvoOrixM1Dlg dialog(ipInfo, Core::ViewManager::dialogParent());
    dialog.prepareNew(createInDir, device);
    dialog.exec();
}

void TarvoOrixM1::openIP(QString createInDir, QString ipcFile)
{
    // The dialog reads the file with QSettings as it is.
    if (const QString danger = IpcFile::danger(ipcFile); !danger.isEmpty()) {
        showErrorBox(Core::ViewManager::dialogParent(), danger);
        return;
    }
    TarvoOrixM1Dlg dialog(ipInfo, Core::ViewManager::dialogParent());
    if (dialog.prepareOpen(createInDir, ipcFile))
        dialog.exec();
}

QString TarvoOrixM1::version()
{
    return ipInfo.value(InfoKey::version).toString();
}

QString TarvoOrixM1::id()
{
    return ipInfo.value(InfoKey::id).toString();
}

QString TarvoOrixM1::name()
{
    return ipInfo.value(InfoKey::name).toString();
}

QStringList TarvoOrixM1::category()
{
    return ipInfo.value(InfoKey::category).toStringList();
}

QString TarvoOrixM1::summary()
{
    return ipInfo.value(InfoKey::summary).toString();
}

bool TarvoOrixM1::isSupported(DEV::DeviceArg device)
{
    const QStringList supported = ipInfo.value(InfoKey::supported).toStringList();
    const QStringList unsupported = ipInfo.value(InfoKey::unsupported).toStringList();
    return IPCore::isSupported(device, unsupported, supported);
}

} // namespace TARVOORIXM1
