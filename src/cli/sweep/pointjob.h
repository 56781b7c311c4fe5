#pragma once

#include <QString>

namespace Cli
{

class Environment;

// Does one point of the sweep in a folder: generates what its configuration says and keeps what
// came of it beside. What is done already is not done again. A job of a workflow: it prints nothing
// but why it has failed. Returns the exit status.
int runPointJob(Environment &environment, const QString &sweep, const QString &point);

} // namespace Cli
