#include "ipsession.h"

#include "ipcatalogue.h"
#include "kept/keptconfigurations.h"

#include <utils/boundedfile.h>
#include <utils/fileutils.h>
#include <utils/inifile.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDialog>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QMetaMethod>
#include <QSettings>
#include <QTemporaryDir>

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

constexpr const char *configurationMethod = "configuration()";

// What the dialog would store; empty if it does not tell.
QVariantMap configurationOf(QObject *dialog)
{
    QVariantMap configuration;
    const QString thrown = PluginLoader::thrownBy([&] {
        QMetaObject::invokeMethod(dialog, "configuration", Qt::DirectConnection,
                                  Q_RETURN_ARG(QVariantMap, configuration));
    });
    return thrown.isEmpty() ? configuration : QVariantMap();
}

// As a configuration file.
QByteArray textOf(const QVariantMap &configuration, QString *error)
{
    const QTemporaryDir scratch;
    const QString path = scratch.filePath(QStringLiteral("configuration.ipc"));
    QByteArray text;
    const Utils::Result<void> written = Utils::writeIniFile(
        path, configuration.value(QStringLiteral("header")).toMap(), QStringLiteral("Config"),
        configuration.value(QStringLiteral("options")).toMap());
    if (written)
        Utils::FileUtils::readFile(path, &text, error);
    else if (error)
        *error = written.reason();
    return text;
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

bool IpSession::begin(int ip, QString *error)
{
    if (m_active) {
        *error = tr("The dialog of an IP is open. Close it first.");
        return false;
    }
    m_active = true;
    m_texts.emplace();
    m_ip = ip;
    m_accepted = false;
    m_droppedId.clear();
    QCoreApplication::instance()->installEventFilter(this);
    return true;
}

void IpSession::end()
{
    QCoreApplication::instance()->removeEventFilter(this);
    m_active = false;
    m_texts.reset();
    m_dialog = nullptr;
    m_opened.clear();
}

bool IpSession::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Show && !m_dialog) {
        auto *dialog = qobject_cast<QDialog *>(object);
        if (dialog && dialog->metaObject()->indexOfMethod(configurationMethod) >= 0)
            follow(dialog);
    }
    return QObject::eventFilter(object, event);
}

void IpSession::follow(QDialog *dialog)
{
    m_dialog = dialog;
    m_opened = configurationOf(dialog);
    connect(dialog, &QDialog::finished, this, &IpSession::onDialogFinished);
    Q_EMIT shown(dialog, m_ip);
}

void IpSession::onDialogFinished(int result)
{
    m_accepted = result == QDialog::Accepted;
    if (m_accepted || !m_kept || !m_dialog)
        return;
    const QVariantMap left = configurationOf(m_dialog);
    const QString file = left.value(QStringLiteral("file")).toString();
    if (left == m_opened || file.isEmpty())
        return;
    // A value may have changed its type and nothing else.
    QString error;
    const QByteArray text = textOf(left, &error);
    if (text == textOf(m_opened, &error) && error.isEmpty())
        return;
    // OK has stored it before, and a run failed.
    QByteArray stored;
    if (QFileInfo(file).isFile() && Utils::FileUtils::readFile(file, &stored, nullptr) &&
        stored == text)
        return;
    if (error.isEmpty() && m_kept->keep(KeptConfigurations::Dropped, file, text, &error)) {
        m_droppedId = m_kept->newest().id;
        m_droppedFile = file;
    } else {
        Q_EMIT keepFailed(error);
    }
}

IpSession::Contents IpSession::contentsIn(const QString &folder) const
{
    Contents contents;
    if (!m_kept)
        return contents;
    QStringList paths = ipcStamps(folder).keys();
    if (m_knownFiles)
        paths += m_knownFiles();
    for (const QString &path : qAsConst(paths)) {
        if (contents.contains(path) || !QFileInfo(path).isFile())
            continue;
        if (const Utils::Result<QByteArray> bytes = Utils::readConfigurationFile(path))
            contents.insert(path, *bytes);
    }
    return contents;
}

// What a plug-in has replaced by other means than the host's.
void IpSession::keepReplaced(const Contents &before)
{
    for (auto it = before.begin(); it != before.end(); ++it) {
        QByteArray present;
        QString error;
        if (QFileInfo(it.key()).isFile() &&
            Utils::FileUtils::readFile(it.key(), &present, nullptr) && present == it.value())
            continue;
        if (!m_kept->keep(KeptConfigurations::Replaced, it.key(), it.value(), &error))
            Q_EMIT keepFailed(error);
    }
}

bool IpSession::create(int ip, const QString &folder, const DEV::DeviceArg &device, QString *error)
{
    if (!m_catalogue.isSupported(ip, device, error) || !begin(ip, error))
        return false;
    const Stamps before = ipcStamps(folder);
    const Contents contents = contentsIn(folder);
    const bool done = m_catalogue.createIp(ip, folder, device, error);
    end();
    keepReplaced(contents);
    QStringList files;
    const Stamps after = ipcStamps(folder);
    for (auto it = after.begin(); it != after.end(); ++it) {
        if (before.value(it.key()) != it.value())
            files = filesOf(QFileInfo(it.key()).absolutePath());
    }
    Q_EMIT finished(files);
    if (!m_droppedId.isEmpty())
        Q_EMIT dropped(m_droppedId, m_droppedFile);
    return done;
}

bool IpSession::open(const QString &ipcFile, QString *error)
{
    return openAs(ipcFile, QFileInfo(ipcFile).absolutePath(), error);
}

bool IpSession::openAs(const QString &ipcFile, const QString &folder, QString *error)
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
    if (!begin(ip, error))
        return false;
    const Contents contents = contentsIn(folder);
    const bool done = m_catalogue.openIp(ip, folder, QFileInfo(ipcFile).absoluteFilePath(), error);
    end();
    keepReplaced(contents);
    Q_EMIT finished(filesOf(folder));
    if (!m_droppedId.isEmpty())
        Q_EMIT dropped(m_droppedId, m_droppedFile);
    return done;
}

QString IpSession::typeOf(const QString &ipcFile, QString *error)
{
    const Utils::Result<QByteArray> bytes = Utils::readConfigurationFile(ipcFile);
    if (!bytes) {
        *error = bytes.reason();
        return {};
    }
    if (const Utils::Result<void> checked = Utils::checkConfigurationText(*bytes); !checked) {
        *error = tr("\"%1\" is no IP configuration: %2.")
                     .arg(QDir::toNativeSeparators(ipcFile), checked.reason());
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
