#include "runner.h"

namespace Synthesis {

class Runner::Private
{
public:
    Tool tool = Tool::TarvoSynthesis;
    Job job;
};

Runner::Runner(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
}

Runner::~Runner() = default;

void Runner::setTool(Tool tool)
{
    d->tool = tool;
}

Tool Runner::tool() const
{
    return d->tool;
}

void Runner::setJob(const Job &job)
{
    d->job = job;
}

void Runner::start() {}

void Runner::cancel() {}

bool Runner::isRunning() const
{
    return false;
}

bool Runner::wasCancelled() const
{
    return false;
}

QString Runner::errorMsg() const
{
    return {};
}

QStringList Runner::detailErrorMsgs() const
{
    return {};
}

} // namespace Synthesis
