#include "ipcdocument.h"

#include "environment.h"
#include "output.h"

#include <config/ipcfile.h>
#include <config/ipctext.h>
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

namespace
{

Utils::Failure failureOf(const QString &path, const QString &reason)
{
    return Utils::Failure{QLatin1String("\"") + path + QLatin1String("\" ") + reason};
}

// Opens a file that has been looked at; `*text` is what it holds.
Utils::Result<void> openSettings(const QString &path, QByteArray *text,
                                 std::unique_ptr<QSettings> *reader)
{
    const Utils::Result<QByteArray> bytes = Utils::readConfigurationFile(path);
    if (!bytes)
        return Utils::Failure{bytes.reason()};
    if (const Utils::Result<void> checked = Utils::checkConfigurationText(*bytes); !checked)
        return failureOf(path,
                         QLatin1String("is no IP configuration file: ") + checked.reason() + u'.');
    // It opens the file once more, and does not tell why it could not. What fails once may succeed
    // the next time; if it does not, reading has a reason.
    *reader = std::make_unique<QSettings>(path, QSettings::IniFormat);
    if ((*reader)->status() == QSettings::AccessError) {
        reader->reset();
        *reader = std::make_unique<QSettings>(path, QSettings::IniFormat);
    }
    if ((*reader)->status() != QSettings::NoError) {
        QByteArray again;
        QString error;
        if (!Utils::FileUtils::readFile(path, &again, &error))
            return Utils::Failure{error};
        return failureOf(path, QStringLiteral("is no IP configuration file."));
    }
    *text = *bytes;
    return {};
}

} // namespace

Utils::Result<IpcDocument> IpcDocument::read(const QString &path, const DEV::DeviceDb &devices)
{
    IpcDocument document;
    std::unique_ptr<QSettings> reader;
    if (const auto opened = openSettings(path, &document.text, &reader); !opened)
        return Utils::Failure{opened.reason()};
    QSettings &settings = *reader;
    if (!IpcFile::isVersionAccepted(settings)) {
        const QString version = settings.value(QStringLiteral("version")).toString();
        return failureOf(path, QLatin1String("cannot be used: its version is \"") + version +
                                   QLatin1String("\", not \"") + IpcFile::acceptedVersion +
                                   QLatin1String("\"."));
    }
    document.path = QFileInfo(path).absoluteFilePath();
    document.type = IpcFile::type(settings);
    document.device = IpcFile::readDevice(settings, devices);
    document.deviceText = IpcFile::deviceText(settings);
    document.others = IpcFile::otherEntries(settings);
    document.frame = IpcFile::frame(settings);
    IpcFile::readOptions(settings, document.options);

    const QVector<Reading::IniEntry> entries = Reading::iniEntries(document.text);
    for (const Reading::IniEntry &entry : entries) {
        if (entry.bytes != Reading::IniEntry::Ascii)
            document.oddEntries.append(entry);
    }

    const QStringList known = {QStringLiteral("target_device"), QStringLiteral("type"),
                               QStringLiteral("version")};
    const QStringList keys = settings.childKeys();
    for (const QString &key : keys) {
        if (!known.contains(key))
            document.unknownEntries.append(key);
    }
    const QStringList groups = {IpcFile::configGroup, QStringLiteral("device")};
    const QStringList present = settings.childGroups();
    for (const QString &group : present) {
        if (!groups.contains(group))
            document.unknownEntries.append(u'[' + group + u']');
    }
    settings.beginGroup(IpcFile::configGroup);
    const QStringList nested = settings.childGroups();
    for (const QString &group : nested)
        document.unknownEntries.append(group + u'/');
    return document;
}

Utils::Result<void> writeConfiguration(const QString &path, const QVariantMap &header,
                                       const OptionMap &options)
{
    QString error;
    if (!Utils::FileUtils::makePath(QFileInfo(path).absolutePath(), &error))
        return Utils::Failure{error};
    return Utils::writeIniFile(path, header, IpcFile::configGroup, options);
}

Utils::Result<void> writeEdited(const IpcDocument &document, const QString &path,
                                const QVariantMap &frame, const OptionMap &options)
{
    const Utils::Result<QByteArray> text = editedIpcText(document.text, frame, options);
    if (!text)
        return Utils::Failure{QLatin1String("Cannot write \"") + path + QLatin1String("\": ") +
                              text.reason() + u'.'};
    QString error;
    return Utils::FileUtils::makePath(QFileInfo(path).absolutePath(), &error) &&
                   Utils::FileUtils::writeFile(path, *text, &error)
               ? Utils::Result<void>()
               : Utils::Failure{error};
}

Utils::Result<QVariantMap> readEntries(const QString &path, QByteArray *text)
{
    std::unique_ptr<QSettings> reader;
    if (const auto opened = openSettings(path, text, &reader); !opened)
        return Utils::Failure{opened.reason()};
    QVariantMap entries;
    const QStringList keys = reader->allKeys();
    for (const QString &key : keys)
        entries.insert(key, reader->value(key));
    return entries;
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
    const Utils::Result<IpcDocument> read = IpcDocument::read(path, *devices);
    if (!read) {
        printProblem({read.reason(), {}, path});
        return false;
    }
    *document = *read;
    return true;
}

bool openForDevice(Environment &environment, const QString &path, IpcDocument *document)
{
    if (!openDocument(environment, path, document))
        return false;
    const QString problem = document->deviceProblem();
    if (!problem.isEmpty())
        printProblem({QLatin1String("\"") + document->path + QLatin1String("\" ") + problem + u'.',
                      QStringLiteral("target_device"), path});
    return problem.isEmpty();
}

} // namespace Cli
