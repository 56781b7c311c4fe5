#include "ipsession.h"

#include "answers.h"
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

// After a change until it is kept, in milliseconds. Changes come fast while somebody types.
constexpr int draftDelay = 150;

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

// The names of the steps that count, as the dialog tells them; none where it does not.
QStringList stepsOf(QObject *dialog)
{
    QVariantList steps;
    int current = 0;
    PluginLoader::thrownBy([&] {
        QMetaObject::invokeMethod(dialog, "steps", Qt::DirectConnection,
                                  Q_RETURN_ARG(QVariantList, steps));
        QMetaObject::invokeMethod(dialog, "currentStep", Qt::DirectConnection,
                                  Q_RETURN_ARG(int, current));
    });
    QStringList names;
    for (const QVariant &step : steps.mid(0, current)) {
        QString name;
        if (Answers::takeText(step.toMap(), QStringLiteral("name"), &name) && !name.isEmpty())
            names.append(name);
    }
    return names;
}

// As a configuration file.
QByteArray textOf(const QVariantMap &configuration, QString *error)
{
    const Utils::Result<QByteArray> text = Utils::iniText(
        configuration.value(QStringLiteral("header")).toMap(), QStringLiteral("Config"),
        configuration.value(QStringLiteral("options")).toMap());
    if (!text)
        *error = text.reason();
    return text ? *text : QByteArray();
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
    m_draftDelay.setSingleShot(true);
    m_draftDelay.setInterval(draftDelay);
    connect(&m_draftDelay, &QTimer::timeout, this, &IpSession::keepDraft);
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
    m_draftId.clear();
    m_hasFailedToKeep = false;
    QCoreApplication::instance()->installEventFilter(this);
    return true;
}

void IpSession::end()
{
    QCoreApplication::instance()->removeEventFilter(this);
    m_draftDelay.stop();
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
    if (Answers::tells(dialog, "configurationChanged()"))
        connect(dialog, SIGNAL(configurationChanged()), this, SLOT(onConfigurationChanged()));
    Q_EMIT shown(dialog, m_ip);
}

void IpSession::onDialogFinished(int result)
{
    m_accepted = result == QDialog::Accepted;
    m_draftDelay.stop();
    if (m_accepted) {
        forgetDraft();
        return;
    }
    m_hasFailedToKeep = false; // the last time, it is told again
    keepDraft();
    m_droppedId = m_draftId;
    m_droppedFile = m_draftFile;
}

void IpSession::keepDraft()
{
    if (!m_kept || !m_dialog)
        return;
    const QVariantMap left = configurationOf(m_dialog);
    const QString file = left.value(QStringLiteral("file")).toString();
    if (left == m_opened || file.isEmpty()) {
        forgetDraft();
        return;
    }
    // A value may have changed its type and nothing else.
    QString error;
    const QByteArray text = textOf(left, &error);
    if (text == textOf(m_opened, &error) && error.isEmpty()) {
        forgetDraft();
        return;
    }
    // OK has stored it before, and a run failed.
    QByteArray stored;
    if (QFileInfo(file).isFile() && Utils::FileUtils::readFile(file, &stored, nullptr) &&
        stored == text) {
        forgetDraft();
        return;
    }
    if (error.isEmpty() && m_kept->keepDraft(file, text, stepsOf(m_dialog), &m_draftId, &error)) {
        m_draftFile = file;
    } else if (!m_hasFailedToKeep) {
        m_hasFailedToKeep = true;
        Q_EMIT keepFailed(error);
    }
}

void IpSession::forgetDraft()
{
    if (m_kept)
        m_kept->forget(m_draftId);
    m_draftId.clear();
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
