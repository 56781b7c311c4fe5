#pragma once

#include "config/optionmap.h"

#include <ipplugin/baseipcoreinterface.h>

namespace TARVOORIXM1
{

// The IP core as the host sees it: identity, supported devices and the two dialog requests.
class TarvoOrixM1 : public TE::TE_IPCore_Def::BaseIPCoreInterface
{
public:
    // `dataFolder` holds the descriptor and the RTL.
    explicit TarvoOrixM1(const QString &dataFolder);
    ~TarvoOrixM1() override;

    void createIP(QString createInDir, DEV::DeviceArg device) override;
    void openIP(QString createInDir, QString ipcFile) override;
    bool initialize() override;
    QString version() override;
    QString id() override;
    QString name() override;
    QStringList category() override;
    QString summary() override;
    bool isSupported(DEV::DeviceArg device) override;

    // What the descriptor says, with the data folders; empty before initialize().
    const QVariantMap &information() const { return ipInfo; }

private:
    OptionMap ipInfo;
    const QString dataPath;
};

} // namespace TARVOORIXM1
