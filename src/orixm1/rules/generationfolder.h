#pragma once

#include <QString>

namespace TARVOORIXM1
{

// The folder below an output folder that holds the generated files.
QString generationFolder(const QString &createInPath);

} // namespace TARVOORIXM1
