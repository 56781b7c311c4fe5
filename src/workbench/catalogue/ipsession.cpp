#include "ipsession.h"

#include "ipcatalogue.h"

#include <utils/boundedfile.h>
#include <utils/inifile.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSettings>

namespace Workbench
{

namespace
{

using Stamps = QHash<QString, QDateTime>;

// The configurations in a folder and in those directly below it.
Stamps ipcStamps(const QString &folder)
{
    Stamps stamps;
    QStringList folders{folder};
    const QStringList below =
        QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QString &name : below)
        folders.append(QDir(folder).filePath(name));
    for (const QString &dir : qAsConst(folders)) {
        const QFileInfoList files = QDir(dir).entryInfoList({QStringLiteral("*.ipc")}, QDir::Files);
        for (const QFileInfo &file : files)
            stamps.insert(file.absoluteFilePath(), file.lastModified());
    }
    return stamps;
}

QStringList filesOf(const QString &folder)
{
    QStringList paths;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : files)
        paths.append(file.absoluteFilePath());
    return paths;
}

} // namespace

IpSession::IpSession(IpCatalogue &catalogue, QObject *parent)
    : QObject(parent)
    , m_catalogue(catalogue)
{
}

bool IpSession::begin(QString *error)
{
    if (m_active) {
        *error = tr("The dialog of an IP is open. Close it first.");
        return false;
    }
    m_active = true;
    return true;
}

bool IpSession::create(int ip, const QString &folder, const DEV::DeviceArg &device, QString *error)
{
    if (!m_catalogue.isSupported(ip, device, error) || !begin(error))
        return false;
    const Stamps before = ipcStamps(folder);
    const bool done = m_catalogue.createIp(ip, folder, device, error);
    m_active = false;
    QStringList files;
    const Stamps after = ipcStamps(folder);
    for (auto it = after.begin(); it != after.end(); ++it) {
        if (before.value(it.key()) != it.value())
            files = filesOf(QFileInfo(it.key()).absolutePath());
    }
    Q_EMIT finished(files);
    return done;
}

bool IpSession::open(const QString &ipcFile, QString *error)
{
    const QString type = typeOf(ipcFile, error);
    if (type.isEmpty())
        return false;
    const int ip = m_catalogue.indexOf(type);
    if (ip < 0) {
        *error = tr("\"%1\" is a configuration of the IP \"%2\", which no plug-in offers. Tools > "
                    "Plug-ins lists what is loaded.")
                     .arg(QDir::toNativeSeparators(ipcFile), type);
        return false;
    }
    if (!begin(error))
        return false;
    const QFileInfo file(ipcFile);
    const bool done = m_catalogue.openIp(ip, file.absolutePath(), file.absoluteFilePath(), error);
    m_active = false;
    Q_EMIT finished(filesOf(file.absolutePath()));
    return done;
}

QString IpSession::typeOf(const QString &ipcFile, QString *error)
{
    QByteArray bytes;
    if (!Utils::readConfigurationFile(ipcFile, &bytes, error))
        return {};
    QString reason;
    if (!Utils::checkConfigurationText(bytes, &reason)) {
        *error =
            tr("\"%1\" is no IP configuration: %2.").arg(QDir::toNativeSeparators(ipcFile), reason);
        return {};
    }
    const QSettings settings(ipcFile, QSettings::IniFormat);
    QString type = settings.value(QStringLiteral("type")).toString();
    if (type.isEmpty())
        *error = tr("\"%1\" is no IP configuration: it has no entry \"type\".")
                     .arg(QDir::toNativeSeparators(ipcFile));
    return type;
}

} // namespace Workbench
