#include "ipcdocument.h"

#include "environment.h"
#include "output.h"

#include <config/ipcfile.h>
#include <config/optionkeys.h>
#include <config/optionvalue.h>
#include <utils/boundedfile.h>
#include <utils/fileutils.h>
#include <utils/inifile.h>

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <memory>

namespace Cli
{

using namespace TARVOORIXM1;

QString IpcDocument::folder() const
{
    return QFileInfo(path).absolutePath();
}

QVariantMap IpcDocument::movedHeader(const QString &deviceId) const
{
    return IpcFile::movedHeader(others, type, deviceId);
}

QString IpcDocument::deviceProblem() const
{
    if (!device.isNull())
        return {};
    const QString problem =
        deviceText.isEmpty() ? QStringLiteral("no device")
                             : QString(QLatin1String("the unknown device \"") + deviceText + u'"');
    return QLatin1String("names ") + problem +
           QLatin1String("; \"orixm1 retarget FILE --device NAME\" moves it to a known one");
}

QString outputFolder(const IpcDocument &document, const QString &outDir)
{
    return outDir.isEmpty() ? document.folder() : QDir(QFileInfo(outDir).absoluteFilePath()).path();
}

bool IpcDocument::read(const QString &path, const DEV::DeviceDb &devices, IpcDocument *document,
                       QString *error)
{
    QByteArray bytes;
    if (!Utils::readConfigurationFile(path, &bytes, error))
        return false;
    QString reason;
    if (!Utils::checkConfigurationText(bytes, &reason)) {
        *error = QLatin1String("\"") + path + QLatin1String("\" is no IP configuration file: ") +
                 reason + u'.';
        return false;
    }
    // It opens the file once more, and does not tell why it could not. What fails once may succeed
    // the next time; if it does not, reading has a reason.
    auto reader = std::make_unique<QSettings>(path, QSettings::IniFormat);
    if (reader->status() == QSettings::AccessError) {
        reader.reset();
        reader = std::make_unique<QSettings>(path, QSettings::IniFormat);
    }
    QSettings &settings = *reader;
    if (settings.status() != QSettings::NoError) {
        if (!Utils::FileUtils::readFile(path, &bytes, error))
            return false;
        *error = QLatin1String("\"") + path + QLatin1String("\" is no IP configuration file.");
        return false;
    }
    if (!IpcFile::isVersionAccepted(settings)) {
        const QString version = settings.value(QStringLiteral("version")).toString();
        *error = QLatin1String("\"") + path +
                 QLatin1String("\" cannot be used: its version is \"") + version +
                 QLatin1String("\", not \"") + IpcFile::acceptedVersion + QLatin1String("\".");
        return false;
    }
    document->path = QFileInfo(path).absoluteFilePath();
    document->type = IpcFile::type(settings);
    document->device = IpcFile::readDevice(settings, devices);
    document->deviceText = IpcFile::deviceText(settings);
    document->others = IpcFile::otherEntries(settings);
    IpcFile::readOptions(settings, document->options);

    const QVector<Reading::IniEntry> entries = Reading::iniEntries(bytes);
    for (const Reading::IniEntry &entry : entries) {
        if (entry.bytes != Reading::IniEntry::Ascii)
            document->oddEntries.append(entry);
    }

    const QStringList known = {QStringLiteral("target_device"), QStringLiteral("type"),
                               QStringLiteral("version")};
    const QStringList keys = settings.childKeys();
    for (const QString &key : keys) {
        if (!known.contains(key))
            document->unknownEntries.append(key);
    }
    const QStringList groups = {IpcFile::configGroup, QStringLiteral("device")};
    const QStringList present = settings.childGroups();
    for (const QString &group : present) {
        if (!groups.contains(group))
            document->unknownEntries.append(u'[' + group + u']');
    }
    settings.beginGroup(IpcFile::configGroup);
    const QStringList nested = settings.childGroups();
    for (const QString &group : nested)
        document->unknownEntries.append(group + u'/');
    return true;
}

GenerationInput generationInput(const IpcDocument &document, const QVariantMap &ipInfo,
                                const QString &outDir)
{
    return {document.options,
            ipInfo,
            document.device,
            effectiveTool(valueOf(document.options, Key::synthesisTool)),
            effectiveLanguage(valueOf(document.options, Key::lang)),
            outputFolder(document, outDir)};
}

bool openDocument(Environment &environment, const QString &path, IpcDocument *document)
{
    const DEV::DeviceDb *devices = environment.devices();
    if (!devices)
        return false;
    QString error;
    if (IpcDocument::read(path, *devices, document, &error))
        return true;
    printError(error);
    return false;
}

} // namespace Cli
