// Loads one plug-in, asks it everything that a catalogue shows and prints the result: what the
// plug-in does meanwhile ends with this process. See catalogue/pluginprobe.h.

#include "catalogue/pluginprobe.h"

#include <dev/devicedb.h>
#include <ipplugin/baseipcoreinterface.h>

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextCodec>

#include <cstdio>
#include <unistd.h>

using namespace Workbench;

namespace
{

// On a line of its own, whatever the plug-in has printed.
void print(const QByteArray &text)
{
    std::printf("\n%s%s\n", PluginProbe::linePrefix, text.constData());
    std::fflush(stdout);
}

void tell(PluginLoader::Step step)
{
    print(QByteArray::number(step));
}

} // namespace

int main(int argc, char *argv[])
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: %s LIBRARY DATA-FOLDER\n", PluginProbe::program);
        return 2;
    }
    LoadedPlugin plugin = PluginLoader::load(arguments.at(1), arguments.at(2), tell);
    tell(PluginLoader::Supporting);
    const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
    QJsonArray ips;
    for (const LoadedPlugin::Ip &ip : plugin.ips) {
        QJsonArray supported;
        const QString thrown = PluginLoader::thrownBy([&] {
            for (const DEV::DeviceArg &device : devices) {
                if (ip.object->isSupported(device))
                    supported.append(device.id());
            }
        });
        if (!thrown.isEmpty())
            plugin.mistakes.append(thrown);
        ips.append(
            QJsonObject{{QStringLiteral("id"), ip.entry.id},
                        {QStringLiteral("name"), ip.entry.name},
                        {QStringLiteral("version"), ip.entry.version},
                        {QStringLiteral("summary"), ip.entry.summary},
                        {QStringLiteral("category"), QJsonArray::fromStringList(ip.entry.category)},
                        {QStringLiteral("devices"), supported}});
    }
    tell(PluginLoader::Releasing);
    plugin.ips.clear();
    print(QJsonDocument(QJsonObject{{QStringLiteral("ips"), ips},
                                    {QStringLiteral("mistakes"),
                                     QJsonArray::fromStringList(plugin.mistakes)}})
              .toJson(QJsonDocument::Compact));
    // What else the plug-in would do at the end of the program is of no interest.
    ::_exit(0);
}
