#pragma once

#include "listener.h"

#include <QString>

#include <optional>

namespace Cli
{

// What a line of a compiler says.
struct CompilerMessage {
    Severity severity = Severity::Error;
    QString text;
    QString file; // as the compiler names it; empty: no place
    int line = 0; // from 1
};

// Nothing for a line that only belongs to another one: a piece of the source, the function around
// it, the includes on the way to it.
std::optional<CompilerMessage> compilerMessage(const QString &line);

} // namespace Cli
