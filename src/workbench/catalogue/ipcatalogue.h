#pragma once

#include <dev/devicearg.h>

#include <QList>
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
};

// The IPs of all plug-ins found in the plug-in folders. A plug-in that cannot be used is left out
// and reported; whatever a plug-in throws ends here.
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

    // The data folder of a plug-in: the first folder beside the library, or in one of `folders`,
    // whose name is the library's ("libMyFineIp.so": "MyFineIp") when upper and lower case,
    // "_" and "-" count for nothing ("my_fine_ip"). Without one it is the library's own folder.
    static QString dataFolderOf(const QString &library, const QStringList &folders);

private:
    struct Core;

    bool run(const Core &core, const std::function<void()> &call, QString *error) const;
    void fail(const QString &library, const QString &reason);

    QStringList m_dataFolders;
    QStringList m_libraries;
    QList<IpEntry> m_entries;
    QList<Failure> m_failures;
    std::vector<Core> m_cores; // as m_entries
};

} // namespace Workbench
