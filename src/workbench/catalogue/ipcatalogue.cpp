#include "ipcatalogue.h"

#include <ipplugin/baseipcoreinterface.h>
#include <ipplugin/ipplugin.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QPluginLoader>

#include <exception>

namespace Workbench
{

using TE::TE_IPCore_Def::BaseIPCoreInterface;
using TE::TE_IPCore_Def::IPPlugin;

namespace
{

QString tr(const char *text)
{
    return QCoreApplication::translate("Workbench::IpCatalogue", text);
}

// Calls into a plug-in; the text of an exception, or an empty one.
QString thrownBy(const std::function<void()> &call)
{
    try {
        call();
    } catch (const std::exception &exception) {
        const QString what = QString::fromUtf8(exception.what());
        return what.isEmpty() ? tr("an exception without a text") : what;
    } catch (...) {
        return tr("an exception of an unknown type");
    }
    return {};
}

QString plainName(const QString &name)
{
    QString plain = name.toLower();
    plain.remove(u'_');
    plain.remove(u'-');
    return plain;
}

} // namespace

struct IpCatalogue::Core {
    std::unique_ptr<BaseIPCoreInterface> object;
    QString name;
};

IpCatalogue::IpCatalogue() = default;

// The libraries stay loaded: code of theirs may still be registered with Qt.
IpCatalogue::~IpCatalogue() = default;

QString IpCatalogue::dataFolderOf(const QString &library, const QStringList &folders)
{
    QString name = QFileInfo(library).completeBaseName();
    if (name.startsWith(QLatin1String("lib")))
        name.remove(0, 3);
    const QString wanted = plainName(name);
    QString own = QFileInfo(library).absolutePath();
    const QStringList all = QStringList(own) + folders;
    for (const QString &folder : all) {
        const QStringList found = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &candidate : found) {
            if (plainName(candidate) == wanted)
                return QDir::cleanPath(QDir(folder).absoluteFilePath(candidate));
        }
    }
    return own;
}

void IpCatalogue::loadFolder(const QString &folder, bool required)
{
    const QDir dir(folder);
    if (folder.isEmpty() || !dir.exists()) {
        if (required)
            fail(folder, tr("The plug-in folder does not exist."));
        return;
    }
    const QStringList names = dir.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const QString path = dir.absoluteFilePath(name);
        if (QLibrary::isLibrary(path))
            loadLibrary(path);
    }
}

bool IpCatalogue::loadLibrary(const QString &library)
{
    const QString canonical = QFileInfo(library).canonicalFilePath();
    const QString path = canonical.isEmpty() ? library : canonical;
    if (m_libraries.contains(path))
        return true; // found again through another folder
    m_libraries.append(path);

    QPluginLoader loader(path);
    // A missing symbol is found now, not in the middle of a dialog.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    IPPlugin *plugin = nullptr;
    QList<BaseIPCoreInterface *> cores;
    const QString thrown = thrownBy([&] {
        plugin = qobject_cast<IPPlugin *>(loader.instance());
        if (!plugin)
            return;
        plugin->setDataPath(dataFolderOf(path, m_dataFolders));
        cores = plugin->ipCoreInterfaces();
    });
    if (!thrown.isEmpty()) {
        fail(path, tr("It failed while it was started: %1.").arg(thrown));
        return false;
    }
    if (!plugin) {
        if (loader.isLoaded())
            fail(path, tr("It is a Qt plug-in, but not one for IPs."));
        else if (loader.metaData().isEmpty())
            fail(path, tr("It is no plug-in: %1").arg(loader.errorString()));
        else
            fail(path, loader.errorString());
        return false;
    }
    if (cores.isEmpty()) {
        fail(path, tr("It offers no IP: it finds no usable descriptor in its data folder \"%1\".")
                       .arg(QDir::toNativeSeparators(plugin->dataPath())));
        return false;
    }
    bool all = true;
    for (BaseIPCoreInterface *object : qAsConst(cores)) {
        Core core;
        core.object.reset(object);
        IpEntry entry;
        entry.library = path;
        const QString reason = thrownBy([&] {
            entry.id = core.object->id();
            entry.name = core.object->name();
            entry.version = core.object->version();
            entry.summary = core.object->summary();
            entry.category = core.object->category();
        });
        core.name = entry.name;
        const int twin = indexOf(entry.id);
        if (!reason.isEmpty())
            fail(path, tr("It failed when it was asked for an IP: %1.").arg(reason));
        else if (entry.id.isEmpty() || entry.name.isEmpty())
            fail(path, tr("One of its IPs has no id or no name."));
        else if (twin >= 0)
            fail(path, tr("Its IP \"%1\" is offered by \"%2\" already.")
                           .arg(entry.id, QDir::toNativeSeparators(m_entries.at(twin).library)));
        if (!reason.isEmpty() || entry.id.isEmpty() || entry.name.isEmpty() || twin >= 0) {
            all = false;
            continue;
        }
        m_entries.append(entry);
        m_cores.push_back(std::move(core));
    }
    return all;
}

int IpCatalogue::indexOf(const QString &idOrName) const
{
    if (idOrName.isEmpty())
        return -1;
    for (int i = 0; i < m_entries.size(); ++i) {
        if (m_entries.at(i).id == idOrName)
            return i;
    }
    for (int i = 0; i < m_entries.size(); ++i) {
        if (m_entries.at(i).name.compare(idOrName, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

bool IpCatalogue::isSupported(int index, const DEV::DeviceArg &device, QString *reason) const
{
    bool supported = false;
    QString why;
    if (device.isNull()) {
        why = tr("There is no device yet: it comes with a project.");
    } else {
        const QString thrown =
            thrownBy([&] { supported = m_cores.at(size_t(index)).object->isSupported(device); });
        if (!thrown.isEmpty()) {
            supported = false;
            why = tr("The plug-in failed when it was asked about the device: %1.").arg(thrown);
        } else if (!supported) {
            why = tr("%1 does not support the device %2.")
                      .arg(m_entries.at(index).name, device.device());
        }
    }
    if (reason)
        *reason = why;
    return supported;
}

bool IpCatalogue::run(const Core &core, const std::function<void()> &call, QString *error) const
{
    const QString thrown = thrownBy(call);
    if (!thrown.isEmpty() && error)
        *error = tr("The plug-in of %1 failed: %2.").arg(core.name, thrown);
    return thrown.isEmpty();
}

bool IpCatalogue::createIp(int index, const QString &folder, const DEV::DeviceArg &device,
                           QString *error)
{
    const Core &core = m_cores.at(size_t(index));
    return run(
        core, [&] { core.object->createIP(folder, device); }, error);
}

bool IpCatalogue::openIp(int index, const QString &folder, const QString &ipcFile, QString *error)
{
    const Core &core = m_cores.at(size_t(index));
    return run(
        core, [&] { core.object->openIP(folder, ipcFile); }, error);
}

void IpCatalogue::fail(const QString &library, const QString &reason)
{
    m_failures.append({library, reason});
}

} // namespace Workbench
