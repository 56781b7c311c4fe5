#include "pointjob.h"

#include "../commandline.h"
#include "../commands.h"
#include "../diversion.h"
#include "../environment.h"
#include "../ipcdocument.h"
#include "../output.h"
#include "pointfolder.h"
#include "sweepjobs.h"

#include <utils/boundedfile.h>
#include <utils/interrupt.h>

#include <CLI/CLI.hpp>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

// Tells a workflow that the file belongs to this run.
void touch(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadWrite))
        file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime);
}

struct Outcome {
    int status = Failed;
    QJsonArray resources;
    QStringList errors;
};

Outcome generatePoint(Environment &environment, const PointFolder &folder)
{
    QJsonObject told;
    QStringList printed;
    divertJson([&told](const QJsonObject &object) { told = object; });
    divertErrors([&printed](const QString &line) { printed.append(line); });
    const auto undivert = qScopeGuard([] {
        divertJson({});
        divertErrors({});
    });
    // What "orixm1 generate FILE --json" does.
    CLI::App app;
    CommandLine line(app);
    declareGenerate(line);
    const std::string file = folder.configuration().toStdString();
    const char *const words[] = {"orixm1", "generate", file.c_str(), "--json"};
    app.parse(int(std::size(words)), words);
    Outcome outcome;
    outcome.status = line.chosen()(environment);
    outcome.resources = told.value(QLatin1String("resources")).toArray();
    const QJsonArray errors = told.value(QLatin1String("errors")).toArray();
    for (const QJsonValue &error : errors)
        outcome.errors.append(error.toObject().value(QLatin1String("text")).toString());
    if (outcome.errors.isEmpty())
        outcome.errors = printed;
    // Results are compared and kept under version control.
    for (QString &error : outcome.errors)
        error.replace(folder.path() + u'/', QString())
            .replace(environment.dataFolder() + u'/', QString());
    return outcome;
}

} // namespace

int runPointJob(Environment &environment, const QString &sweep, const QString &point)
{
    if (!SweepJobs::joinRun())
        return Cancelled;
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty())
        return BadInput;
    const PointFolder folder(sweep, point, ipInfo);
    IpcDocument document;
    if (!openForDevice(environment, folder.configuration(), &document))
        return BadInput;
    const auto text = Utils::readConfigurationFile(folder.configuration());
    if (!text) {
        printProblem({text.reason(), {}, folder.configuration()});
        return BadInput;
    }
    const QString fingerprint = Fingerprints(ipInfo).of(*text, document.options, document.device);
    SweepResult before;
    PointTool tool;
    folder.take(fingerprint, tool, &before);
    if (before.state == PointState::Done) {
        touch(folder.result());
        return Done;
    }
    folder.forget();
    const Outcome outcome = generatePoint(environment, folder);
    if (outcome.status == Cancelled)
        return Cancelled;
    const auto kept = outcome.status == Done
                          ? folder.keepResult(fingerprint, tool.version(), outcome.resources)
                          : folder.keepFailure(fingerprint, tool.version(), outcome.errors);
    if (!kept) {
        printProblem({kept.reason(), {}, folder.path()});
        return Failed;
    }
    for (const QString &error : outcome.errors) {
        if (outcome.status != Done)
            printError(point + QLatin1String(": ") + error);
    }
    return outcome.status;
}

} // namespace Cli
