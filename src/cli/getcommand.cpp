#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "ipcdocument.h"
#include "output.h"

#include <preview/meanings.h>
#include <rules/settings.h>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

struct GetArguments {
    QString file;
    QStringList keys; // none: all
    bool onlyValues = false;
    bool json = false;
};

int runGet(Environment &environment, const GetArguments &arguments)
{
    IpcDocument document;
    if (!openForDevice(environment, arguments.file, &document))
        return BadInput;
    QVector<OptionMeaning> meanings;
    if (arguments.keys.isEmpty())
        meanings = meaningsOf(document.options, document.device);
    bool allKnown = true;
    for (const QString &key : arguments.keys) {
        meanings.append(meaningOf(document.options, key, document.device));
        if (meanings.constLast().origin == OptionMeaning::Unknown) {
            printProblem({unknownKeyText(key), key});
            allKnown = false;
        }
    }
    if (!allKnown)
        return WrongUsage;

    if (arguments.json) {
        QJsonArray list;
        for (const OptionMeaning &meaning : qAsConst(meanings)) {
            QJsonObject object = jsonOf(meaning);
            object.insert(QStringLiteral("key"), meaning.key);
            list.append(object);
        }
        printJson({{QStringLiteral("file"), arguments.file},
                   {QStringLiteral("device"), document.device.id()},
                   {QStringLiteral("options"), list}});
        return Done;
    }
    int width = 0;
    for (const OptionMeaning &meaning : qAsConst(meanings))
        width = qMax(width, meaning.key.size() + 1 + valueText(meaning.value).size());
    for (const OptionMeaning &meaning : qAsConst(meanings)) {
        const QString value = valueText(meaning.value);
        if (arguments.onlyValues) {
            printLine(value);
            continue;
        }
        QString origin = originName(meaning.origin);
        if (meaning.dialog != meaning.value)
            origin += QLatin1String("; its dialog takes ") + shownValue(meaning.dialog);
        printLine(QString(meaning.key + u'=' + value).leftJustified(width) + QLatin1String("  ") +
                  origin);
    }
    return Done;
}

} // namespace

void declareGet(CommandLine &line)
{
    auto arguments = std::make_shared<GetArguments>();
    CLI::App *command = line.command(
        "get", "Print what options come to, and where each value comes from",
        "orixm1 get tarvo_orix_m1.ipc ITCM_Size \"Enable UART0\"",
        [arguments](Environment &environment) { return runGet(environment, *arguments); });
    line.file(command, arguments->file);
    line.offer(CommandLine::texts(command, "KEY", arguments->keys, "Options (default: all)", ""),
               knownKeys);
    CommandLine::flag(command, "--value", arguments->onlyValues,
                      "Print the values alone, one a line");
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
