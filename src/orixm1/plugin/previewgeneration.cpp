#include "previewgeneration.h"

#include "config/choices.h"
#include "config/ipcfile.h"
#include "config/latin1literal.h"
#include "config/nameprefix.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "configuration.h"
#include "estimate/estimate.h"
#include "preview/previewforms.h"
#include "rules/itcmpath.h"

#include <dev/devicedb.h>
#include <ipcore/ipcore.h>
#include <reading/inientries.h>
#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace TARVOORIXM1
{

namespace
{

QVariantMap failed(const QString &reason)
{
    return {{QStringLiteral("error"), reason}};
}

GenerationInput inputOf(const OptionMap &options, const DEV::DeviceArg &device,
                        const QVariantMap &ipInfo, const QString &createInPath)
{
    return {options,
            ipInfo,
            device,
            effectiveTool(valueOf(options, Key::synthesisTool)),
            effectiveLanguage(valueOf(options, Key::lang)),
            createInPath};
}

// What the host makes of a configuration, by its own means, of a file that was not there before.
Utils::Result<QByteArray> storedText(const QVariantMap &header, const OptionMap &options)
{
    const QTemporaryDir scratch;
    if (!scratch.isValid())
        return Utils::Failure{"No temporary folder: "_l1 + scratch.errorString() + u'.'};
    const QString path = scratch.filePath(QStringLiteral("preview.ipc"));
    IPCore::writeIPConfig(path, header, options);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Utils::Failure{shownPath(path) + " cannot be read: "_l1 + file.errorString() + u'.'};
    return file.readAll();
}

QByteArray withCommentsOfFile(const QString &file, const QByteArray &text)
{
    QByteArray standing;
    QString reason;
    return Reading::readPlainFile(file, Reading::Limits::configuration, &standing, &reason)
               ? Reading::withCommentsOf(standing, text)
               : text;
}

} // namespace

QVariantMap previewGeneration(const QVariantMap &configuration, const QVariantMap &ipInfo,
                              const QString &dataPath, const DEV::DeviceDb &devices)
{
    const QString file = configuration.value(QStringLiteral("file")).toString();
    const QVariantMap header = configuration.value(QStringLiteral("header")).toMap();
    const OptionMap options = configuration.value(QStringLiteral("options")).toMap();
    const int slash = file.lastIndexOf(u'/');
    if (slash < 0 || ipInfo.isEmpty())
        return failed("The configuration names no file in a folder."_l1);
    const QString createInPath = file.left(slash);
    // As the dialog decides when OK is pressed.
    if (isOn(options, Key::initializeItcm) && isOn(options, Key::internalInstructionMemory)) {
        const QString error =
            itcmPathError(textOf(options, Key::itcmInitializationPath), createInPath);
        if (!error.isEmpty())
            return failed(error);
    }
    Utils::Result<QByteArray> text = storedText(header, options);
    if (!text)
        return failed(text.reason());
    if (configuration.value(QStringLiteral("keepsComments")).toBool())
        text = withCommentsOfFile(file, *text);
    static DigestMemory memory;
    static QString descriptionPath;
    static Utils::Result<SystemDescription> description = Utils::Failure{QString()};
    if (descriptionPath != dataPath) {
        description = readSystemDescription(dataPath);
        descriptionPath = dataPath;
    }

    const auto findDevice = [&devices](const QString &id) { return devices.findDevice(id); };
    PreviewInput input;
    input.generation =
        inputOf(options, findDevice(header.value(QStringLiteral("target_device")).toString()),
                ipInfo, createInPath);
    input.configuration = StoredConfiguration{file, *text};
    input.prefix = prefixOf(options);
    if (const QString refused = refusedPrefix(options); !refused.isEmpty())
        input.notes.append(refused);
    if (const auto standing = readConfiguration(file, QString(), devices))
        input.standing = inputOf(standing->options, standing->device, ipInfo, createInPath);
    input.memory = &memory;
    if (description)
        input.description = &*description;
    else
        input.notes.append(description.reason());
    input.estimate = [&dataPath](const OptionMap &of, const DEV::DeviceArg &device) {
        return estimatedFigures(of, device, dataPath);
    };
    input.findDevice = findDevice;
    return previewAnswer(previewOf(input));
}

} // namespace TARVOORIXM1
