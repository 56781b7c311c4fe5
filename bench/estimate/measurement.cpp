#include "measurement.h"

#include <config/choices.h>
#include <config/descriptor.h>
#include <config/latin1literal.h>
#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <estimate/table.h>
#include <generate/plan.h>
#include <synthesis/runner.h>
#include <utils/descriptor.h>
#include <utils/fileutils.h>

#include <QDir>
#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>

using namespace TARVOORIXM1;

namespace
{

QStringList filesIn(const QString &folder, const QStringList &filters)
{
    QStringList paths;
    const QStringList names = QDir(folder).entryList(filters, QDir::Files);
    for (const QString &name : names)
        paths << folder + u'/' + name;
    return paths;
}

QVariant valueFrom(const QString &key, const QJsonValue &value)
{
    const Option *option = findOption(key);
    return option ? optionValueFromText(*option, value.toVariant().toString()) : value.toVariant();
}

} // namespace

OptionMap optionsFrom(const QJsonObject &object)
{
    OptionMap options;
    for (auto it = object.begin(); it != object.end(); ++it)
        options.insert(it.key(), valueFrom(it.key(), it.value()));
    return options;
}

bool Measurements::contains(const Measurement &other) const
{
    return std::any_of(list.begin(), list.end(), [&other](const Measurement &one) {
        return one.device == other.device && one.options == other.options;
    });
}

Utils::Result<Measurements> readMeasurements(const QString &path)
{
    QByteArray text;
    QString error;
    if (!Utils::FileUtils::readFile(path, &text, &error))
        return Utils::Failure{error};
    Measurements result;
    int number = 0;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        ++number;
        if (line.isEmpty())
            continue;
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        if (number == 1) {
            result.rtl = object.value("rtl"_l1).toString();
            result.synthesis = object.value("synthesis"_l1).toString();
            continue;
        }
        if (object.isEmpty()) {
            if (number == lines.size())
                continue;
            return Utils::Failure{path + u':' + QString::number(number) + ": no measurement."_l1};
        }
        Measurement one;
        one.name = object.value("name"_l1).toString();
        one.device = object.value("device"_l1).toString();
        one.isHeldOut = object.value("heldOut"_l1).toBool();
        one.options = optionsFrom(object.value("options"_l1).toObject());
        const QJsonObject used = object.value("used"_l1).toObject();
        for (auto it = used.begin(); it != used.end(); ++it)
            one.used.insert(it.key(), it.value().toInt());
        one.blackBoxes = object.value("blackBoxes"_l1).toVariant().toStringList();
        result.list.append(one);
    }
    return result;
}

QByteArray lineOf(const Measurement &measurement)
{
    QJsonObject used;
    for (auto it = measurement.used.begin(); it != measurement.used.end(); ++it)
        used.insert(it.key(), it.value());
    return QJsonDocument(
               QJsonObject{
                   {QStringLiteral("name"), measurement.name},
                   {QStringLiteral("device"), measurement.device},
                   {QStringLiteral("heldOut"), measurement.isHeldOut},
                   {QStringLiteral("options"), QJsonObject::fromVariantMap(measurement.options)},
                   {QStringLiteral("used"), used},
                   {QStringLiteral("blackBoxes"), QJsonValue::fromVariant(measurement.blackBoxes)}})
               .toJson(QJsonDocument::Compact) +
           '\n';
}

QByteArray headLine(const Measurements &measurements)
{
    return QJsonDocument(QJsonObject{{QStringLiteral("rtl"), measurements.rtl},
                                     {QStringLiteral("synthesis"), measurements.synthesis}})
               .toJson(QJsonDocument::Compact) +
           '\n';
}

Utils::Result<QString> rtlDigest()
{
    QStringList paths;
    for (const char *variant : {"debug", "no_debug"})
        paths += filesIn(QStringLiteral(TARVO_IP_DATA_DIR "/data/") + QLatin1String(variant), {});
    return measuredDigest(paths);
}

Utils::Result<QString> synthesisDigest()
{
    const QString folder = QStringLiteral(TARVO_SYNTHESIS_DIR);
    return measuredDigest(
        filesIn(folder + "/library"_l1, {QStringLiteral("map_*.v"), QStringLiteral("memories.txt"),
                                         QStringLiteral("primitives.v")}) +
        filesIn(folder + "/flow"_l1, {QStringLiteral("yosysscript.cpp")}));
}

Utils::Result<GenerationPlan> writtenPlan(const DEV::DeviceArg &device, const OptionMap &options,
                                          const QString &folder)
{
    const QString data = QStringLiteral(TARVO_IP_DATA_DIR);
    const Utils::Result<QVariantMap> read = Utils::readDescriptor(descriptorPath(data));
    if (!read)
        return Utils::Failure{read.reason()};
    QVariantMap ipInfo = *read;
    addDataFolders(ipInfo, data);
    const GenerationPlan plan =
        generationPlan({options, ipInfo, device, Tool::TarvoSynthesis, Language::Verilog, folder});
    QString error;
    if (!Utils::FileUtils::makePath(plan.folder, &error))
        return Utils::Failure{error};
    for (const IncludeFile &file : plan.includeFiles) {
        if (!Utils::FileUtils::writeLines(plan.pathOf(file), file.lines, &error))
            return Utils::Failure{error};
    }
    return plan;
}

Utils::Result<void> measure(const DEV::DeviceArg &device, Measurement *measurement)
{
    const QTemporaryDir folder;
    OptionMap options = measurement->options;
    if (options.value(Key::initializeItcm).toBool()) {
        // What the memory holds does not change what is made of it, so any bytes do.
        const int bytes = 256 << options.value(Key::itcmSize).toInt();
        for (int lane = 0; lane < 4; ++lane) {
            QByteArray text;
            for (int i = 0; i < bytes; ++i)
                text += QByteArray::number((i * 37 + lane * 101) & 0xFF, 16) + '\n';
            QString error;
            if (!Utils::FileUtils::writeFile(folder.filePath("itcm"_l1 + QString::number(lane)),
                                             text, &error))
                return Utils::Failure{error};
        }
        options.insert(Key::itcmInitializationAbsolutePath, folder.path());
    }
    const Utils::Result<GenerationPlan> plan = writtenPlan(device, options, folder.path());
    if (!plan)
        return Utils::Failure{plan.reason()};
    Synthesis::Job job;
    job.outputDir = plan->request.outputDir;
    job.ipName = plan->request.ipName;
    job.targetName = plan->request.targetName;
    job.device = plan->request.device;
    job.options = plan->request.options;
    Synthesis::Runner runner;
    runner.setTool(Synthesis::Tool::TarvoSynthesis);
    runner.setJob(job);
    QEventLoop loop;
    int status = -1;
    QObject::connect(&runner, &Synthesis::Runner::finished, &loop, [&](int code) {
        status = code;
        loop.quit();
    });
    runner.start();
    loop.exec();
    if (status != 0)
        return Utils::Failure{measurement->name + ": "_l1 + runner.errorMsg() + u' ' +
                              runner.detailErrorMsgs().join(u' ')};
    const Synthesis::RunReport report = runner.report();
    for (const Synthesis::ResourceUse &use : report.resources)
        measurement->used.insert(use.resource, use.used);
    for (const Synthesis::CellCount &cell : report.cells) {
        if (cell.isBlackBox)
            measurement->blackBoxes << cell.cell;
    }
    return {};
}
