#include "toolrun.h"

#include "run/toolprocess.h"

namespace Synthesis
{

class ToolRun::Private
{
public:
    explicit Private(const Call &call)
        : process({call.name, call.program, call.arguments, call.usersHome, call.folder,
                   call.isIdle, call.hasErrors},
                  call.folder, QStringLiteral("tmp"), -1)
    {
    }

    ToolProcess process;
};

ToolRun::ToolRun(const Call &call, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(call))
{
    connect(&d->process, &ToolProcess::lineReceived, this, &ToolRun::lineReceived);
    connect(&d->process, &ToolProcess::ended, this, &ToolRun::ended);
}

ToolRun::~ToolRun() = default;

void ToolRun::start()
{
    d->process.start();
}

void ToolRun::stop()
{
    d->process.stop();
}

QString ToolRun::failure() const
{
    return d->process.failure();
}

} // namespace Synthesis
