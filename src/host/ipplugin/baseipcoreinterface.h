#pragma once

#include "ipplugin_global.h"

#include <dev/devicearg.h>

#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace TE
{
namespace TE_IPCore_Def
{

// One IP core that a plug-in offers. The order of the virtual operations is part of the binary
// interface.
class TARVO_IPPLUGIN_EXPORT BaseIPCoreInterface
{
public:
    BaseIPCoreInterface();
    BaseIPCoreInterface(const BaseIPCoreInterface &) = delete;
    BaseIPCoreInterface &operator=(const BaseIPCoreInterface &) = delete;
    virtual ~BaseIPCoreInterface();

    // Lets the user configure and generate a new IP below the folder `createInDir`; returns when
    // the dialog has closed.
    virtual void createIP(QString createInDir, DEV::DeviceArg device) = 0;
    // The same for the existing configuration file `ipcFile`, whose outputs stand in `createInDir`.
    virtual void openIP(QString createInDir, QString ipcFile) = 0;

    // Makes the object usable; false: it must be discarded.
    virtual bool initialize() = 0;

    virtual QString version() = 0;
    virtual QString id() = 0;
    virtual QString name() = 0;
    virtual QStringList category() = 0;
    virtual QString summary() = 0;
    virtual bool isSupported(DEV::DeviceArg device) = 0;

    // Scripted operations. The base implementations do nothing: they return false and append one
    // message that names the IP, or return empty maps.
    virtual bool createByTcl(QVariantMap &options, const DEV::DeviceArg &device,
                             QStringList &errors);
    virtual QVariantMap getIpinfoMap();
    virtual QVariantMap getOptionMap();
    virtual bool openByTcl(const QString &createInDir, const QString &ipcFile, QVariantMap &options,
                           QStringList &errors);
};

} // namespace TE_IPCore_Def
} // namespace TE
