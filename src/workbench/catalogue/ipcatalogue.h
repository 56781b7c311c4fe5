#pragma once

#include "pluginloader.h"

#include <dev/devicearg.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <vector>

namespace Workbench
{

// The IPs of all plug-ins found in the plug-in folders. A plug-in that cannot be used is left out
// and reported; whatever a plug-in throws ends here. What it does beyond that is found in a process
// of its own first, see PluginProbe: it is loaded here only if it neither crashed, nor blocked, nor
// ended that process.
class IpCatalogue
{
public:
    // A plug-in that is not used.
    struct Failure {
        QString library;
        QString reason; // a sentence
    };

    IpCatalogue();
    IpCatalogue(const IpCatalogue &) = delete;
    IpCatalogue &operator=(const IpCatalogue &) = delete;
    ~IpCatalogue();

    // Folders that hold plug-ins' data folders, besides the folder of each plug-in itself; see
    // dataFolderOf().
    void setDataFolders(const QStringList &folders) { m_dataFolders = folders; }
    const QStringList &dataFolders() const { return m_dataFolders; }
    // A file that keeps the results of probing for the next start, as long as the libraries do not
    // change. Without one they are kept while this process lives. Of what fails, only blocking is
    // kept, since finding it takes time.
    void setProbeCache(const QString &file) { m_probeCache = file; }
    // How long a plug-in may take for all its answers, in milliseconds.
    void setProbeTimeLimit(int limit) { m_probeTimeLimit = limit; }
    // Probes and loads once more what cannot be used.
    void tryAgain();

    // Loads every shared library of a folder, in the order of their names. A folder that does not
    // exist is reported as a failure if `required`.
    void loadFolder(const QString &folder, bool required);
    bool loadLibrary(const QString &library);

    const QList<IpEntry> &entries() const { return m_entries; }
    const QList<Failure> &failures() const { return m_failures; }
    // -1 if no plug-in offers it. An id, or a name whatever its case.
    int indexOf(const QString &idOrName) const;

    // Whether the IP can be made for a device. Otherwise the reason in `*reason` (may be null).
    bool isSupported(int index, const DEV::DeviceArg &device, QString *reason = nullptr) const;

    // Run the IP's dialog and return when it is closed. False if the plug-in threw, and then a
    // sentence in `*error`.
    bool createIp(int index, const QString &folder, const DEV::DeviceArg &device, QString *error);
    bool openIp(int index, const QString &folder, const QString &ipcFile, QString *error);

    // The name that the IP's files have by its descriptor; empty if that does not say.
    QString targetOf(int index) const;
    // The root object of the IP's plug-in, for what it may offer beside its dialog; null for no IP.
    // Owned by the library.
    QObject *rootOf(int index) const;
    // Whether the plug-in can make the IP's configurations for other devices: its root object has
    // an invokable QVariantMap moveToDevice(const QString &ipcFile, const QString &deviceId, bool
    // write).
    bool canMove(int index) const;
    // Moves a configuration to a device, or only tells what would happen. False and a sentence in
    // `*error` if it cannot be moved.
    struct Move {
        QStringList losses; // in sentences
        bool changed = false;
    };
    bool moveToDevice(int index, const QString &ipcFile, const QString &deviceId, bool write,
                      Move *move, QString *error);

    // Whether the plug-in hands on what it has configured: its root object has the
    // invokables QVariantList softwareFormats() const and QVariantMap exportSoftware(const QString
    // &ipcFile, const QStringList &formats) const.
    bool canExport(int index) const;
    // What they answer, as it is. False and a sentence in `*error` if they are not there or throw.
    bool softwareFormats(int index, QVariantList *answer, QString *error) const;
    bool exportSoftware(int index, const QString &ipcFile, const QStringList &formats,
                        QVariantMap *answer, QString *error) const;

    // Whether the plug-in takes programs for its IP's memory: its root object has the invokables
    // QVariantMap firmwareFiles(const QString &ipcFile, const QByteArray &image) const and
    // QVariantMap startFromFirmware(const QString &ipcFile, const QString &folder, bool write).
    bool canTakePrograms(int index) const;
    // As above.
    bool firmwareFiles(int index, const QString &ipcFile, const QByteArray &image,
                       QVariantMap *answer, QString *error) const;
    bool startFromFirmware(int index, const QString &ipcFile, const QString &folder, bool write,
                           QVariantMap *answer, QString *error) const;

    // Whether the plug-in can have its IP simulated: its root object has the invokable QVariantMap
    // simulationCommand(const QString &ipcFile) const.
    bool canSimulate(int index) const;
    // As above.
    bool simulationCommand(int index, const QString &ipcFile, QVariantMap *answer,
                           QString *error) const;
    // What the invokable QVariantList simulationExamples() const of a plug-in that can answers;
    // empty if it is not there or throws.
    QVariantList simulationExamples(int index) const;

    // Whether the plug-in has pictures of what it configures, with places that lead into the files
    // of exportSoftware(): its root object has the invokable QVariantMap maps(const QString
    // &ipcFile) const.
    bool canDrawMaps(int index) const;
    // As above.
    bool maps(int index, const QString &ipcFile, QVariantMap *answer, QString *error) const;

    // Whether the plug-in tells if what was generated from a configuration is up to date: its root
    // object has the invokable QVariantMap generationState(const QString &ipcFile) const.
    bool tellsState(int index) const;
    // As above.
    bool generationState(int index, const QString &ipcFile, QVariantMap *answer,
                         QString *error) const;

    // The data folder of a plug-in: the first folder beside the library, or in one of `folders`,
    // whose name is the library's ("libMyFineIp.so": "MyFineIp") when upper and lower case,
    // "_" and "-" count for nothing ("my_fine_ip"). Without one it is the library's own folder.
    static QString dataFolderOf(const QString &library, const QStringList &folders);

private:
    struct Core {
        std::unique_ptr<TE::TE_IPCore_Def::BaseIPCoreInterface> object;
        QPointer<QObject> root;
        QString name;
        QString dataFolder;
    };

    // A library's file as it was when it was probed.
    QString stampOf(const QString &library, const QString &dataFolder) const;
    // The reason why a library is not loaded, by what was found earlier; false if it was not
    // probed.
    bool isProbed(const QString &stamp, QString *reason) const;
    void remember(const QString &library, const QString &stamp, const QString &reason);

    bool loadLibraries(const QStringList &paths);
    bool take(LoadedPlugin plugin, const QString &path, const QString &dataFolder);
    bool run(const Core &core, const std::function<void()> &call, QString *error) const;
    // Asks the root object for something optional; `refusal` says that it is not there.
    bool ask(const Core &core, bool isOffered, const std::function<bool(QObject *)> &call,
             const QString &refusal, QString *error) const;
    void fail(const QString &library, const QString &reason);

    QStringList m_dataFolders;
    QString m_probeCache;
    int m_probeTimeLimit = 10000;
    QStringList m_libraries;
    QList<IpEntry> m_entries;
    QList<Failure> m_failures;
    std::vector<Core> m_cores; // as m_entries
};

} // namespace Workbench
