#include "synthesishelper.h"

#include "progressdialog.h"
#include "synthesismonitor.h"
#include "usermessages.h"
#include "writinglocks.h"

#include <synthesis/reportjson.h>
#include <synthesis/runner.h>
#include <synthesis/toolversion.h>
#include <utils/filebundle.h>

#include <QPointer>
#include <QWidget>

namespace IPCore
{

class SynthesisHelper::Private
{
public:
    Synthesis::Runner runner;
    // Until the results are collected, which the plug-in does when it hears of the end.
    std::shared_ptr<Utils::FolderLock> lock;
    QString outputDir;
    // Child of the helper's parent widget, which may delete it first.
    QPointer<ProgressDialog> progress;
};

namespace
{

// What a configurator that can tell says about its inputs.
QStringList mistakesTold(QObject *configurator)
{
    QStringList mistakes;
    if (configurator && configurator->metaObject()->indexOfMethod("inputMistakes()") >= 0)
        QMetaObject::invokeMethod(configurator, "inputMistakes", Qt::DirectConnection,
                                  Q_RETURN_ARG(QStringList, mistakes));
    return mistakes;
}

Synthesis::Tool toolOfRunner(SynthesisHelper::SynthesizeTool tool)
{
    switch (tool) {
    case SynthesisHelper::SynplifyPro:
        return Synthesis::Tool::SynplifyPro;
    case SynthesisHelper::TarvoSynthesis:
        break;
    }
    return Synthesis::Tool::TarvoSynthesis;
}

} // namespace

SynthesisHelper::SynthesisHelper(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->progress = new ProgressDialog(qobject_cast<QWidget *>(parent));
    connect(&d->runner, &Synthesis::Runner::stageChanged, d->progress, &ProgressDialog::setStage);
    connect(&d->runner, &Synthesis::Runner::logReceived, d->progress, &ProgressDialog::appendLog);
    connect(d->progress, &ProgressDialog::cancelRequested, &d->runner, &Synthesis::Runner::cancel);
    connect(&d->runner, &Synthesis::Runner::progressed, d->progress, &ProgressDialog::setProgress);
    connect(&d->runner, &Synthesis::Runner::stageChanged, this, &SynthesisHelper::stageChanged);
    connect(&d->runner, &Synthesis::Runner::progressed, this, &SynthesisHelper::progressed);
    connect(&d->runner, &Synthesis::Runner::logReceived, this, &SynthesisHelper::logReceived);
    connect(&d->runner, &Synthesis::Runner::finished, this, [this](int exitCode) {
        if (d->progress)
            d->progress->stopClock();
        // Whoever hears of it may delete this object.
        const QPointer<SynthesisHelper> self(this);
        SynthesisMonitor::instance().remove(this, report());
        if (self)
            Q_EMIT finished(exitCode);
        if (self && !isRunning())
            d->lock.reset();
    });
}

SynthesisHelper::~SynthesisHelper()
{
    if (isRunning()) {
        Synthesis::RunReport report = this->report();
        report.exitCode = 1;
        report.cancelled = true;
        report.summary = tr("The synthesis was cancelled.");
        SynthesisMonitor::instance().remove(this, report);
    }
    delete d->progress;
}

void SynthesisHelper::setSynthesizeTool(SynthesizeTool tool)
{
    d->runner.setTool(toolOfRunner(tool));
}

SynthesisHelper::SynthesizeTool SynthesisHelper::synthesizeTool() const
{
    switch (d->runner.tool()) {
    case Synthesis::Tool::SynplifyPro:
        return SynplifyPro;
    case Synthesis::Tool::TarvoSynthesis:
        break;
    }
    return TarvoSynthesis;
}

void SynthesisHelper::setArgs(const SynthesizeArgs &args)
{
    d->outputDir = args.outputDir;
    d->runner.setJob({args.outputDir, args.ipName, args.targetName, args.device, args.options});
}

void SynthesisHelper::setProgressDlgWindowTitle(const QString &title)
{
    if (d->progress)
        d->progress->setWindowTitle(title);
}

void SynthesisHelper::showProgressDlg()
{
    if (d->progress)
        d->progress->open();
}

void SynthesisHelper::hideProgressDlg()
{
    if (d->progress)
        d->progress->hide();
    if (!isRunning())
        d->lock.reset();
}

void SynthesisHelper::start()
{
    if (d->runner.isRunning())
        return;
    if (d->progress)
        d->progress->startClock();
    // The old one first: it may be of the same folder.
    d->lock.reset();
    d->lock = WritingLocks::handOver(d->outputDir);
    d->runner.setFolderLock(d->lock);
    d->runner.setInputMistakes(mistakesTold(parent()));
    d->runner.start();
    SynthesisMonitor::instance().add(this);
}

void SynthesisHelper::cancel()
{
    d->runner.cancel();
}

bool SynthesisHelper::isRunning() const
{
    return d->runner.isRunning();
}

QString SynthesisHelper::errorMsg() const
{
    return d->runner.errorMsg();
}

QStringList SynthesisHelper::detailErrorMsgs() const
{
    return d->runner.detailErrorMsgs();
}

Synthesis::RunReport SynthesisHelper::report() const
{
    Synthesis::RunReport report = d->runner.report();
    report.messages = userFilesFirst(report.messages);
    return report;
}

QVariantMap SynthesisHelper::runRecord() const
{
    const Synthesis::Tool tool = d->runner.tool();
    return {{QStringLiteral("tool"), Synthesis::toolName(tool)},
            {QStringLiteral("version"), Synthesis::toolVersion(tool)},
            {QStringLiteral("report"), Synthesis::toJson(d->runner.report()).toVariantMap()}};
}

QVariantMap SynthesisHelper::placeFiles(const QString &folder, const QString &manifest,
                                        const QVariantList &files)
{
    Utils::Bundle bundle{folder, manifest, {}, {}, false};
    for (const QVariant &entry : files) {
        const QVariantMap file = entry.toMap();
        const QString group = file.value(QStringLiteral("group")).toString();
        bundle.files.append({file.value(QStringLiteral("path")).toString(),
                             file.value(QStringLiteral("bytes")).toByteArray(), group});
        if (!bundle.groups.contains(group))
            bundle.groups.append(group);
    }
    const auto written = Utils::writeBundle(bundle);
    return {{QStringLiteral("error"), written.reason()},
            {QStringLiteral("notices"), written ? written->messages : QStringList()}};
}

void SynthesisHelper::tellNotices(const QStringList &notices)
{
    if (!notices.isEmpty())
        Q_EMIT SynthesisMonitor::instance().noticed(notices);
}

} // namespace IPCore
