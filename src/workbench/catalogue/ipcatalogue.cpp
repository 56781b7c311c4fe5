#include "ipcatalogue.h"

#include "answers.h"
#include "pluginprobe.h"
#include "sayings.h"
#include "tr.h"

#include <ipcore/ipcore.h>
#include <ipplugin/baseipcoreinterface.h>
#include <reading/filelist.h>
#include <utils/fileutils.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>
#include <QMetaMethod>
#include <QSet>

#include <algorithm>

namespace Workbench
{

using Answers::offers;
using PluginLoader::thrownBy;

namespace
{

constexpr const char *moveMethod = "moveToDevice(QString,QString,bool)";
constexpr const char *formatsMethod = "softwareFormats()";
constexpr const char *exportMethod = "exportSoftware(QString,QStringList)";
constexpr const char *programMethod = "firmwareFiles(QString,QByteArray)";
constexpr const char *startMethod = "startFromFirmware(QString,QString,bool)";
constexpr const char *simulateMethod = "simulationCommand(QString)";
constexpr const char *examplesMethod = "simulationExamples()";
constexpr const char *mapsMethod = "maps(QString)";
constexpr const char *stateMethod = "generationState(QString)";
constexpr int probesAtOnce = 4;

// By library; {"stamp", "reason"}.
QJsonObject readCache(const QString &file)
{
    QByteArray bytes;
    if (file.isEmpty() || !QFileInfo(file).isFile() ||
        !Utils::FileUtils::readFile(file, &bytes, nullptr))
        return {};
    return QJsonDocument::fromJson(bytes).object();
}

// Of this process: stamps of libraries that may be loaded.
QSet<QString> &goodStamps()
{
    static QSet<QString> stamps;
    return stamps;
}

QString plainName(const QString &name)
{
    QString plain = name.toLower();
    plain.remove(u'_');
    plain.remove(u'-');
    return plain;
}

} // namespace

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
            fail(folder, Tr::tr("The plug-in folder does not exist."));
        return;
    }
    const QStringList names = dir.entryList(QDir::Files, QDir::Name);
    QStringList paths;
    for (const QString &name : names) {
        const QString path = dir.absoluteFilePath(name);
        if (QLibrary::isLibrary(path))
            paths.append(path);
    }
    loadLibraries(paths);
}

bool IpCatalogue::loadLibrary(const QString &library)
{
    return loadLibraries({library});
}

void IpCatalogue::tryAgain()
{
    QStringList paths;
    for (const Failure &failure : qAsConst(m_failures)) {
        if (QFileInfo(failure.library).isFile() && !paths.contains(failure.library))
            paths.append(failure.library);
    }
    for (int i = m_failures.size() - 1; i >= 0; --i) {
        const QString library = m_failures.at(i).library;
        const bool used =
            std::any_of(m_entries.begin(), m_entries.end(),
                        [&](const IpEntry &entry) { return entry.library == library; });
        if (used)
            paths.removeAll(library); // some of its IPs are in use
        else if (paths.contains(library))
            m_failures.removeAt(i);
    }
    for (const QString &path : qAsConst(paths)) {
        m_libraries.removeAll(path);
        remember(path, QString(), QString());
    }
    loadLibraries(paths);
}

QString IpCatalogue::stampOf(const QString &library, const QString &dataFolder) const
{
    const QFileInfo info(library);
    return QStringList{library, QString::number(info.size()),
                       QString::number(info.lastModified().toMSecsSinceEpoch()), dataFolder,
                       QCoreApplication::applicationVersion()}
        .join(u'\n');
}

bool IpCatalogue::isProbed(const QString &stamp, QString *reason) const
{
    if (goodStamps().contains(stamp))
        return true;
    const QJsonObject known = readCache(m_probeCache).value(stamp.section(u'\n', 0, 0)).toObject();
    if (known.value(QLatin1String("stamp")).toString() != stamp)
        return false;
    *reason = known.value(QLatin1String("reason")).toString();
    return true;
}

// An empty stamp forgets.
void IpCatalogue::remember(const QString &library, const QString &stamp, const QString &reason)
{
    if (!stamp.isEmpty() && reason.isEmpty())
        goodStamps().insert(stamp);
    if (m_probeCache.isEmpty())
        return;
    QJsonObject cache = readCache(m_probeCache);
    if (stamp.isEmpty())
        cache.remove(library);
    else
        cache.insert(library, QJsonObject{{QStringLiteral("stamp"), stamp},
                                          {QStringLiteral("reason"), reason}});
    // Without the file the next start takes longer.
    if (Utils::FileUtils::makePath(QFileInfo(m_probeCache).absolutePath(), nullptr))
        Utils::FileUtils::writeFile(m_probeCache, QJsonDocument(cache).toJson(), nullptr);
}

bool IpCatalogue::loadLibraries(const QStringList &paths)
{
    struct Candidate {
        QString path;
        QString dataFolder;
        QString stamp;
        QString reason;
        std::unique_ptr<PluginProbe> probe;
    };
    std::vector<Candidate> candidates;
    for (const QString &library : paths) {
        const QString canonical = QFileInfo(library).canonicalFilePath();
        Candidate candidate;
        candidate.path = canonical.isEmpty() ? library : canonical;
        if (m_libraries.contains(candidate.path))
            continue; // found again through another folder
        m_libraries.append(candidate.path);
        candidate.dataFolder = dataFolderOf(candidate.path, m_dataFolders);
        candidate.stamp = stampOf(candidate.path, candidate.dataFolder);
        candidates.push_back(std::move(candidate));
    }
    bool all = true;
    for (size_t first = 0; first < candidates.size(); first += probesAtOnce) {
        const size_t end = std::min(first + probesAtOnce, candidates.size());
        for (size_t i = first; i < end; ++i) {
            Candidate &candidate = candidates[i];
            if (!isProbed(candidate.stamp, &candidate.reason))
                candidate.probe = std::make_unique<PluginProbe>(
                    candidate.path, candidate.dataFolder, m_probeTimeLimit);
        }
        for (size_t i = first; i < end; ++i) {
            Candidate &candidate = candidates[i];
            if (candidate.probe) {
                const PluginProbe::Result result = candidate.probe->wait();
                candidate.probe.reset();
                candidate.reason = result.reason;
                if (result.reason.isEmpty() || result.blocked)
                    remember(candidate.path, candidate.stamp, result.reason);
            }
            if (!candidate.reason.isEmpty()) {
                fail(candidate.path, candidate.reason);
                all = false;
            } else if (!take(PluginLoader::load(candidate.path, candidate.dataFolder),
                             candidate.path, candidate.dataFolder)) {
                all = false;
            }
        }
    }
    return all;
}

bool IpCatalogue::take(LoadedPlugin plugin, const QString &path, const QString &dataFolder)
{
    bool all = plugin.mistakes.isEmpty();
    for (const QString &mistake : qAsConst(plugin.mistakes))
        fail(path, mistake);
    for (LoadedPlugin::Ip &ip : plugin.ips) {
        const auto twin =
            std::find_if(m_entries.begin(), m_entries.end(),
                         [&ip](const IpEntry &entry) { return entry.id == ip.entry.id; });
        if (twin != m_entries.end()) {
            fail(path, Tr::tr("Its IP \"%1\" is offered by \"%2\" already.")
                           .arg(ip.entry.id, QDir::toNativeSeparators(twin->library)));
            all = false;
            continue;
        }
        m_entries.append(ip.entry);
        m_cores.push_back({std::move(ip.object), plugin.root, ip.entry.name, dataFolder});
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
        why = Tr::tr("There is no device yet: it comes with a project.");
    } else {
        const QString thrown =
            thrownBy([&] { supported = m_cores.at(size_t(index)).object->isSupported(device); });
        if (!thrown.isEmpty()) {
            supported = false;
            why = Tr::tr("The plug-in failed when it was asked about the device: %1.").arg(thrown);
        } else if (!supported) {
            why = Tr::tr("%1 does not support the device %2.")
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
        *error = Tr::tr("The plug-in of %1 failed: %2.").arg(core.name, thrown);
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

QString IpCatalogue::targetOf(int index) const
{
    const QDir folder(m_cores.at(size_t(index)).dataFolder);
    const QStringList names = Reading::filesEndingIn(folder, {QLatin1String(".ipspec")});
    for (const QString &name : names) {
        const QVariantMap descriptor = IPCore::processIPInfoSpec(folder.filePath(name));
        if (descriptor.value(QStringLiteral("ipcore.id")).toString() == m_entries.at(index).id)
            return descriptor.value(QStringLiteral("ipcore.target")).toString();
    }
    return {};
}

QObject *IpCatalogue::rootOf(int index) const
{
    return index >= 0 ? m_cores.at(size_t(index)).root.data() : nullptr;
}

bool IpCatalogue::canMove(int index) const
{
    const QObject *root = m_cores.at(size_t(index)).root;
    return root && root->metaObject()->indexOfMethod(moveMethod) >= 0;
}

bool IpCatalogue::moveToDevice(int index, const QString &ipcFile, const QString &deviceId,
                               bool write, Move *move, QString *error)
{
    const Core &core = m_cores.at(size_t(index));
    QVariantMap result;
    bool called = false;
    if (!run(
            core,
            [&] {
                called = canMove(index) &&
                         QMetaObject::invokeMethod(core.root, "moveToDevice", Qt::DirectConnection,
                                                   Q_RETURN_ARG(QVariantMap, result),
                                                   Q_ARG(QString, ipcFile),
                                                   Q_ARG(QString, deviceId), Q_ARG(bool, write));
            },
            error))
        return false;
    *error = called
                 ? result.value(QStringLiteral("error")).toString()
                 : Tr::tr("The plug-in of %1 cannot move its IPs to other devices.").arg(core.name);
    move->losses = result.value(QStringLiteral("losses")).toStringList();
    move->changed = result.value(QStringLiteral("changed")).toBool();
    return error->isEmpty();
}

bool IpCatalogue::canExport(int index) const
{
    const QObject *root = m_cores.at(size_t(index)).root;
    return offers(root, formatsMethod, QMetaType::QVariantList) &&
           offers(root, exportMethod, QMetaType::QVariantMap);
}

bool IpCatalogue::softwareFormats(int index, QVariantList *answer, QString *error) const
{
    const Core &core = m_cores.at(size_t(index));
    return ask(
        core, canExport(index),
        [&](QObject *root) {
            return QMetaObject::invokeMethod(root, "softwareFormats", Qt::DirectConnection,
                                             Q_RETURN_ARG(QVariantList, *answer));
        },
        Tr::tr("The plug-in of %1 hands on nothing.").arg(core.name), error);
}

bool IpCatalogue::exportSoftware(int index, const QString &ipcFile, const QStringList &formats,
                                 QVariantMap *answer, QString *error) const
{
    const Core &core = m_cores.at(size_t(index));
    return ask(
        core, canExport(index),
        [&](QObject *root) {
            return QMetaObject::invokeMethod(root, "exportSoftware", Qt::DirectConnection,
                                             Q_RETURN_ARG(QVariantMap, *answer),
                                             Q_ARG(QString, ipcFile), Q_ARG(QStringList, formats));
        },
        Tr::tr("The plug-in of %1 hands on nothing.").arg(core.name), error);
}

bool IpCatalogue::canTakePrograms(int index) const
{
    const QObject *root = m_cores.at(size_t(index)).root;
    return offers(root, programMethod, QMetaType::QVariantMap) &&
           offers(root, startMethod, QMetaType::QVariantMap);
}

bool IpCatalogue::firmwareFiles(int index, const QString &ipcFile, const QByteArray &image,
                                QVariantMap *answer, QString *error) const
{
    const Core &core = m_cores.at(size_t(index));
    return ask(
        core, canTakePrograms(index),
        [&](QObject *root) {
            return QMetaObject::invokeMethod(root, "firmwareFiles", Qt::DirectConnection,
                                             Q_RETURN_ARG(QVariantMap, *answer),
                                             Q_ARG(QString, ipcFile), Q_ARG(QByteArray, image));
        },
        Tr::tr("The plug-in of %1 takes no programs.").arg(core.name), error);
}

bool IpCatalogue::startFromFirmware(int index, const QString &ipcFile, const QString &folder,
                                    bool write, QVariantMap *answer, QString *error) const
{
    const Core &core = m_cores.at(size_t(index));
    return ask(
        core, canTakePrograms(index),
        [&](QObject *root) {
            return QMetaObject::invokeMethod(
                root, "startFromFirmware", Qt::DirectConnection, Q_RETURN_ARG(QVariantMap, *answer),
                Q_ARG(QString, ipcFile), Q_ARG(QString, folder), Q_ARG(bool, write));
        },
        Tr::tr("The plug-in of %1 takes no programs.").arg(core.name), error);
}

bool IpCatalogue::canSimulate(int index) const
{
    return offers(m_cores.at(size_t(index)).root, simulateMethod, QMetaType::QVariantMap);
}

bool IpCatalogue::simulationCommand(int index, const QString &ipcFile, QVariantMap *answer,
                                    QString *error) const
{
    const Core &core = m_cores.at(size_t(index));
    return ask(
        core, canSimulate(index),
        [&](QObject *root) {
            return QMetaObject::invokeMethod(root, "simulationCommand", Qt::DirectConnection,
                                             Q_RETURN_ARG(QVariantMap, *answer),
                                             Q_ARG(QString, ipcFile));
        },
        Tr::tr("The plug-in of %1 cannot simulate.").arg(core.name), error);
}

QVariantList IpCatalogue::simulationExamples(int index) const
{
    const Core &core = m_cores.at(size_t(index));
    QVariantList answer;
    QString ignored;
    const bool isOffered =
        canSimulate(index) && offers(core.root, examplesMethod, QMetaType::QVariantList);
    if (!ask(
            core, isOffered,
            [&](QObject *root) {
                return QMetaObject::invokeMethod(root, "simulationExamples", Qt::DirectConnection,
                                                 Q_RETURN_ARG(QVariantList, answer));
            },
            {}, &ignored))
        return {};
    return answer;
}

bool IpCatalogue::canDrawMaps(int index) const
{
    return Answers::offers(m_cores.at(size_t(index)).root, mapsMethod, QMetaType::QVariantMap);
}

bool IpCatalogue::maps(int index, const QString &ipcFile, QVariantMap *answer, QString *error) const
{
    const Core &core = m_cores.at(size_t(index));
    return ask(
        core, canDrawMaps(index),
        [&](QObject *root) {
            return QMetaObject::invokeMethod(root, "maps", Qt::DirectConnection,
                                             Q_RETURN_ARG(QVariantMap, *answer),
                                             Q_ARG(QString, ipcFile));
        },
        Tr::tr("The plug-in of %1 has no maps.").arg(core.name), error);
}

bool IpCatalogue::tellsState(int index) const
{
    return Answers::offers(m_cores.at(size_t(index)).root, stateMethod, QMetaType::QVariantMap);
}

bool IpCatalogue::generationState(int index, const QString &ipcFile, QVariantMap *answer,
                                  QString *error) const
{
    const Core &core = m_cores.at(size_t(index));
    return ask(
        core, tellsState(index),
        [&](QObject *root) {
            return QMetaObject::invokeMethod(root, "generationState", Qt::DirectConnection,
                                             Q_RETURN_ARG(QVariantMap, *answer),
                                             Q_ARG(QString, ipcFile));
        },
        Tr::tr("The plug-in of %1 does not tell what is up to date.").arg(core.name), error);
}

bool IpCatalogue::ask(const Core &core, bool isOffered, const std::function<bool(QObject *)> &call,
                      const QString &refusal, QString *error) const
{
    bool called = false;
    if (!run(
            core, [&] { called = isOffered && call(core.root); }, error))
        return false;
    if (!called)
        *error = refusal;
    return called;
}

void IpCatalogue::fail(const QString &library, const QString &reason)
{
    m_failures.append({library, Sayings::shown(reason)});
}

} // namespace Workbench
