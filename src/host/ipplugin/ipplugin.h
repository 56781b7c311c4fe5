#pragma once

#include "ipplugin_global.h"

#include <QList>
#include <QObject>
#include <QString>

namespace TE
{
namespace TE_IPCore_Def
{

class BaseIPCoreInterface;

// The root object of an IP plug-in library. The host loads it, sets the data folder and then asks
// for the IP cores.
class TARVO_IPPLUGIN_EXPORT IPPlugin : public QObject
{
    Q_OBJECT

public:
    explicit IPPlugin(QObject *parent = nullptr);
    ~IPPlugin() override;

    // New objects on every call; the caller owns them. Empty when the plug-in cannot work.
    virtual QList<BaseIPCoreInterface *> ipCoreInterfaces() = 0;

    // The folder that holds the plug-in's descriptor and data.
    QString dataPath() const { return m_dataPath; }
    void setDataPath(const QString &path) { m_dataPath = path; }

private:
    QString m_dataPath;
};

} // namespace TE_IPCore_Def
} // namespace TE

Q_DECLARE_INTERFACE(TE::TE_IPCore_Def::IPPlugin, "tarvo.plugins.IPPlugin/1.0")
