#include "fontconfiguration.h"

#include <QLibrary>

namespace Workbench
{

std::future<void> readFontConfiguration()
{
    // The library is there already, by way of the platform's part of Qt, and stays.
    QLibrary library(QStringLiteral("fontconfig"), 1);
    using Initialise = int (*)();
    const auto initialise = reinterpret_cast<Initialise>(library.resolve("FcInit"));
    return std::async(initialise ? std::launch::async : std::launch::deferred, [initialise] {
        if (initialise)
            initialise();
    });
}

} // namespace Workbench
