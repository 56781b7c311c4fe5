#include "measurecommand.h"

#include "commandprogram.h"
#include "config/choices.h"
#include "config/ipctext.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "rules/generationfolder.h"

#include <dev/devicedb.h>

#include <QDir>
#include <QFileInfo>

namespace TARVOORIXM1
{

namespace
{

constexpr QLatin1String fileName = "configuration.ipc"_l1;

QVariantMap refusal(const QString &error)
{
    return {{QStringLiteral("error"), error}};
}

// Whether it may run without being asked for.
bool runsUnasked(Tool tool)
{
    switch (tool) {
    case Tool::TarvoSynthesis:
        return true;
    case Tool::SynplifyPro: // would take a licence from somebody who needs it
        break;
    }
    return false;
}

} // namespace

QVariantMap measureCommand(const QVariantMap &configuration, const QString &dataPath,
                           const DEV::DeviceDb &devices)
{
    const QVariantMap header = configuration.value(QStringLiteral("header")).toMap();
    OptionMap options = configuration.value(QStringLiteral("options")).toMap();
    const QString file = configuration.value(QStringLiteral("file")).toString();
    if (devices.findDevice(header.value(QStringLiteral("target_device")).toString()).isNull())
        return refusal(QStringLiteral("Without a known device there is nothing to measure."));
    const Tool tool = effectiveTool(valueOf(options, Key::synthesisTool));
    if (!runsUnasked(tool))
        return refusal("\""_l1 + rowOf(tool).name + "\" runs only when it is asked for."_l1);
    const QString program = commandProgram(dataPath);
    if (program.isEmpty())
        return refusal("The program \""_l1 + commandProgramName +
                       "\", which measures, is not installed with the plug-in."_l1);
    // It starts from the output folder, and this is another one.
    const QString contents = textOf(options, Key::itcmInitializationAbsolutePath);
    if (!contents.isEmpty() && QDir::isRelativePath(contents))
        options.insert(
            Key::itcmInitializationAbsolutePath,
            QDir::cleanPath(
                QDir(generationFolder(QFileInfo(file).absolutePath())).absoluteFilePath(contents)));
    const Utils::Result<QByteArray> text = editedIpcText({}, header, options);
    if (!text)
        return refusal("The configuration cannot be measured: "_l1 + text.reason() + u'.');
    return {{QStringLiteral("error"), QString()},
            {QStringLiteral("program"), program},
            {QStringLiteral("arguments"),
             QStringList{QStringLiteral("generate"), QString(fileName), QStringLiteral("--out"),
                         QStringLiteral("."), QStringLiteral("--json")}},
            {QStringLiteral("file"), QString(fileName)},
            {QStringLiteral("configuration"), *text}};
}

} // namespace TARVOORIXM1
