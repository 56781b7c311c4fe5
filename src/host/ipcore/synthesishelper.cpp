#include "synthesishelper.h"

#include "progressdialog.h"

#include <synthesis/runner.h>

#include <QPointer>
#include <QWidget>

namespace IPCore
{

class SynthesisHelper::Private
{
public:
    Synthesis::Runner runner;
    // Child of the helper's parent widget, which may delete it first.
    QPointer<ProgressDialog> progress;
};

SynthesisHelper::SynthesisHelper(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->progress = new ProgressDialog(qobject_cast<QWidget *>(parent));
    connect(&d->runner, &Synthesis::Runner::stageChanged, d->progress, &ProgressDialog::setStage);
    connect(&d->runner, &Synthesis::Runner::logReceived, d->progress, &ProgressDialog::appendLog);
    connect(d->progress, &ProgressDialog::cancelRequested, &d->runner, &Synthesis::Runner::cancel);
    connect(&d->runner, &Synthesis::Runner::finished, this, [this](int exitCode) {
        if (d->progress)
            d->progress->stopClock();
        Q_EMIT finished(exitCode);
    });
}

SynthesisHelper::~SynthesisHelper()
{
    delete d->progress;
}

void SynthesisHelper::setSynthesizeTool(SynthesizeTool tool)
{
    d->runner.setTool(tool == SynplifyPro ? Synthesis::Tool::SynplifyPro
                                          : Synthesis::Tool::TarvoSynthesis);
}

SynthesisHelper::SynthesizeTool SynthesisHelper::synthesizeTool() const
{
    return d->runner.tool() == Synthesis::Tool::SynplifyPro ? SynplifyPro : TarvoSynthesis;
}

void SynthesisHelper::setArgs(const SynthesizeArgs &args)
{
    d->runner.setJob(args);
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
}

void SynthesisHelper::start()
{
    if (d->runner.isRunning())
        return;
    if (d->progress)
        d->progress->startClock();
    d->runner.start();
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

} // namespace IPCore
