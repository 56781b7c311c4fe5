#include "tarvoorixm1package.h"

#include "estimateanswer.h"
#include "exportsoftware.h"
#include "firmware.h"
#include "generationanswer.h"
#include "maps.h"
#include "measurecommand.h"
#include "movetodevice.h"
#include "previewgeneration.h"
#include "simulationcommand.h"
#include "tarvoorixm1.h"

#include <core/idecore.h>

#include <memory>

namespace TARVOORIXM1
{

namespace
{

// The id that the descriptor in the folder gives the IP; empty without a usable one.
QString idOf(const QString &dataPath)
{
    TarvoOrixM1 core(dataPath);
    return core.initialize() ? core.id() : QString();
}

} // namespace

QList<TE::TE_IPCore_Def::BaseIPCoreInterface *> TarvoOrixM1Package::ipCoreInterfaces()
{
    auto core = std::make_unique<TarvoOrixM1>(dataPath());
    if (!core->initialize())
        return {};
    return {core.release()};
}

QVariantMap TarvoOrixM1Package::moveToDevice(const QString &ipcFile, const QString &deviceId,
                                             bool write)
{
    return TARVOORIXM1::moveToDevice(ipcFile, deviceId, write, idOf(dataPath()),
                                     *Core::IdeCore::deviceDataBase());
}

QVariantList TarvoOrixM1Package::softwareFormats() const
{
    return TARVOORIXM1::softwareFormats();
}

QVariantMap TarvoOrixM1Package::exportSoftware(const QString &ipcFile,
                                               const QStringList &formats) const
{
    return TARVOORIXM1::exportSoftware(ipcFile, formats, idOf(dataPath()), dataPath(),
                                       *Core::IdeCore::deviceDataBase());
}

QVariantMap TarvoOrixM1Package::firmwareFiles(const QString &ipcFile, const QByteArray &image) const
{
    return TARVOORIXM1::firmwareFiles(ipcFile, image, idOf(dataPath()), dataPath(),
                                      *Core::IdeCore::deviceDataBase());
}

QVariantMap TarvoOrixM1Package::startFromFirmware(const QString &ipcFile, const QString &folder,
                                                  bool write)
{
    return TARVOORIXM1::startFromFirmware(ipcFile, folder, write, idOf(dataPath()),
                                          *Core::IdeCore::deviceDataBase());
}

QVariantMap TarvoOrixM1Package::simulationCommand(const QString &ipcFile) const
{
    return TARVOORIXM1::simulationCommand(ipcFile, idOf(dataPath()), dataPath(),
                                          *Core::IdeCore::deviceDataBase());
}

QVariantList TarvoOrixM1Package::simulationExamples() const
{
    return TARVOORIXM1::simulationExamples(dataPath());
}

QVariantMap TarvoOrixM1Package::maps(const QString &ipcFile) const
{
    return TARVOORIXM1::maps(ipcFile, idOf(dataPath()), dataPath(),
                             *Core::IdeCore::deviceDataBase());
}

QVariantMap TarvoOrixM1Package::measureCommand(const QVariantMap &configuration) const
{
    return TARVOORIXM1::measureCommand(configuration, dataPath(), *Core::IdeCore::deviceDataBase());
}

QVariantMap TarvoOrixM1Package::previewGeneration(const QVariantMap &configuration) const
{
    TarvoOrixM1 core(dataPath());
    core.initialize();
    return TARVOORIXM1::previewGeneration(configuration, core.information(), dataPath(),
                                          *Core::IdeCore::deviceDataBase());
}

QVariantMap TarvoOrixM1Package::generationState(const QString &ipcFile) const
{
    TarvoOrixM1 core(dataPath());
    core.initialize();
    return generationAnswer(ipcFile, core.id(), core.information(),
                            *Core::IdeCore::deviceDataBase());
}

QVariantMap TarvoOrixM1Package::estimate(const QVariantMap &configuration) const
{
    return estimateAnswer(configuration, dataPath(), *Core::IdeCore::deviceDataBase());
}

} // namespace TARVOORIXM1
