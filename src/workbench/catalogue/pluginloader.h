#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace TE
{
namespace TE_IPCore_Def
{
class BaseIPCoreInterface;
}
} // namespace TE

namespace Workbench
{

// One IP that a plug-in offers.
struct IpEntry {
    QString id; // what the "type" of an .ipc file names
    QString name;
    QString version;
    QString summary;
    QStringList category; // from the outermost to the innermost
    QString library;      // full path of the plug-in
    QString help;         // full path of its document; empty without one
};

// A library that was loaded and asked for its IPs.
struct LoadedPlugin {
    struct Ip {
        IpEntry entry;
        std::unique_ptr<TE::TE_IPCore_Def::BaseIPCoreInterface> object;
    };

    LoadedPlugin();
    LoadedPlugin(LoadedPlugin &&) noexcept;
    ~LoadedPlugin();

    QPointer<QObject> root; // owned by the library
    std::vector<Ip> ips;
    // What is wrong with the library or some of its IPs, in sentences.
    QStringList mistakes;
};

namespace PluginLoader
{

// What a plug-in is doing, in the order in which it is asked.
enum Step { Loading, Starting, Listing, Describing, Supporting, Releasing };

// Calls into a plug-in; the text of an exception, or an empty one.
QString thrownBy(const std::function<void()> &call);

// Loads the library for good. `about` (may be null) is called before each step.
LoadedPlugin load(const QString &library, const QString &dataFolder,
                  const std::function<void(Step)> &about = nullptr);

} // namespace PluginLoader

} // namespace Workbench
