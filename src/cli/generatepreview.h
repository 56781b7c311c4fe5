#pragma once

#include <preview/preview.h>

namespace Cli
{

struct GenerateArguments;

// Prints what a generation into `folder` would do, and returns the exit status: 0 if it would
// change nothing, 1 otherwise.
int printPreview(const TARVOORIXM1::Preview &preview, const QString &folder,
                 const GenerateArguments &arguments);

} // namespace Cli
