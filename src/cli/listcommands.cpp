#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "ipcdocument.h"
#include "output.h"

#include <config/nearest.h>
#include <config/optiontable.h>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

QString padded(const QString &text, int width)
{
    return text.leftJustified(width, u' ');
}

QStringList seriesOf(const DEV::DeviceDb &devices)
{
    QStringList series;
    const QList<DEV::DeviceArg> all = devices.devices();
    for (const DEV::DeviceArg &device : all) {
        if (!series.contains(device.series()))
            series.append(device.series());
    }
    return series;
}

QString defaultText(const Option &option)
{
    if (!option.defaultValue.isValid())
        return QStringLiteral("-");
    const QString text = option.defaultValue.toString();
    return text.isEmpty() ? QStringLiteral("\"\"") : text;
}

int runOptions(bool json)
{
    if (json) {
        QJsonArray list;
        for (const Option &option : optionTable()) {
            QJsonObject object{
                {QStringLiteral("key"), option.key},
                {QStringLiteral("type"), typeName(option.type)},
                {QStringLiteral("default"), QJsonValue::fromVariant(option.defaultValue)},
                {QStringLiteral("option"), option.isOption},
                {QStringLiteral("description"), option.description}};
            if (option.dialogDefault.isValid())
                object.insert(QStringLiteral("dialogDefault"),
                              QJsonValue::fromVariant(option.dialogDefault));
            if (!option.choices.isEmpty())
                object.insert(QStringLiteral("choices"),
                              QJsonArray::fromStringList(option.choices));
            if (option.type == OptionType::Int && option.minimum <= option.maximum) {
                object.insert(QStringLiteral("minimum"), option.minimum);
                object.insert(QStringLiteral("maximum"), option.maximum);
            }
            list.append(object);
        }
        printJson({{QStringLiteral("options"), list}});
        return Done;
    }
    int keyWidth = 0;
    int defaultWidth = 0;
    for (const Option &option : optionTable()) {
        keyWidth = qMax(keyWidth, option.key.size());
        defaultWidth = qMax(defaultWidth, defaultText(option).size());
    }
    printLine(padded(QStringLiteral("KEY"), keyWidth) + QLatin1String("  TYPE    ") +
              padded(QStringLiteral("DEFAULT"), defaultWidth) + QLatin1String("  DESCRIPTION"));
    for (const Option &option : optionTable()) {
        const QString domain = option.type == OptionType::Bool ? QString() : domainText(option);
        printLine(
            padded(option.key, keyWidth) + QLatin1String("  ") + padded(typeName(option.type), 6) +
            QLatin1String("  ") + padded(defaultText(option), defaultWidth) + QLatin1String("  ") +
            option.description +
            (domain.isEmpty() ? QString() : QString(QLatin1String(" (") + domain + u')')) +
            (option.dialogDefault.isValid() ? QString(QLatin1String("; its dialog starts with ") +
                                                      option.dialogDefault.toString())
                                            : QString()));
    }
    return Done;
}

int runDevices(Environment &environment, const QString &series, bool json)
{
    if (!environment.devices())
        return BadInput;
    DEV::ChipFilter filter;
    filter.series = series;
    const QList<DEV::DeviceArg> devices = environment.devices()->filterDevice(filter);
    if (devices.isEmpty()) {
        const QStringList known = seriesOf(*environment.devices());
        printProblem({QLatin1String("Unknown series \"") + series +
                          QLatin1String("\"; there are: ") + known.join(QLatin1String(", ")) + u'.',
                      series,
                      {},
                      0,
                      didYouMean(nearestText(series, known))});
        return WrongUsage;
    }
    if (json) {
        QJsonArray list;
        for (const DEV::DeviceArg &device : devices) {
            list.append(QJsonObject{{QStringLiteral("id"), device.id()},
                                    {QStringLiteral("device"), device.device()},
                                    {QStringLiteral("deviceN"), device.deviceN()},
                                    {QStringLiteral("deviceNVersion"), device.deviceNVersion()},
                                    {QStringLiteral("package"), device.package()},
                                    {QStringLiteral("speed"), device.speed()},
                                    {QStringLiteral("partNumber"), device.partNumber()},
                                    {QStringLiteral("series"), device.series()}});
        }
        printJson({{QStringLiteral("devices"), list}});
        return Done;
    }
    int idWidth = 2;
    for (const DEV::DeviceArg &device : devices)
        idWidth = qMax(idWidth, device.id().size());
    printLine(padded(QStringLiteral("ID"), idWidth) + QLatin1String("  PART NUMBER"));
    for (const DEV::DeviceArg &device : devices)
        printLine(padded(device.id(), idWidth) + QLatin1String("  ") + device.partNumber());
    return Done;
}

int runSources(Environment &environment, const QString &file, const QString &outDir, bool json)
{
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty())
        return BadInput;
    IpcDocument document;
    if (!openDocument(environment, file, &document))
        return BadInput;
    const QStringList sources = generationPlan(generationInput(document, ipInfo, outDir)).sources;
    if (json) {
        printJson({{QStringLiteral("sources"), QJsonArray::fromStringList(sources)}});
        return Done;
    }
    for (const QString &source : sources)
        printLine(source);
    return Done;
}

} // namespace

void declareOptions(CommandLine &line)
{
    auto json = std::make_shared<bool>(false);
    CLI::App *command =
        line.command("options", "List all option keys with type, default and domain",
                     "orixm1 options --json", [json](Environment &) { return runOptions(*json); });
    CommandLine::json(command, *json);
}

void declareDevices(CommandLine &line)
{
    struct Arguments {
        QString series;
        bool json = false;
    };
    auto arguments = std::make_shared<Arguments>();
    CLI::App *command =
        line.command("devices", "List the known devices", "orixm1 devices --series TV2KR",
                     [arguments](Environment &environment) {
                         return runDevices(environment, arguments->series, arguments->json);
                     });
    line.offer(CommandLine::text(command, "--series", arguments->series,
                                 "Only this series, such as TV2KR", "S"),
               [] { return seriesOf(DEV::DeviceDb::bundled()); });
    CommandLine::json(command, arguments->json);
}

void declareSources(CommandLine &line)
{
    struct Arguments {
        QString file;
        QString outDir;
        bool json = false;
    };
    auto arguments = std::make_shared<Arguments>();
    CLI::App *command = line.command(
        "sources", "List the files that synthesis compiles, in order",
        "orixm1 sources tarvo_orix_m1.ipc", [arguments](Environment &environment) {
            return runSources(environment, arguments->file, arguments->outDir, arguments->json);
        });
    line.file(command, arguments->file);
    line.outDir(command, arguments->outDir);
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
