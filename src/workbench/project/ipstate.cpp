#include "ipstate.h"

#include "tr.h"

namespace Workbench
{

bool IpState::isBehind() const
{
    return !name.isEmpty() && name != QLatin1String("fresh");
}

QString IpState::sentence() const
{
    if (!isBehind())
        return {};
    if (name == QLatin1String("missing"))
        return Tr::tr("Not all of its files have been generated.");
    if (name == QLatin1String("stale"))
        return Tr::tr("Its generated files are out of date.");
    if (name == QLatin1String("edited"))
        return Tr::tr("Generated files were changed by hand.");
    if (name == QLatin1String("foreign"))
        return Tr::tr(
            "Files that no generation is known to have made stand where its results belong.");
    if (name == QLatin1String("older"))
        return Tr::tr("It is newer than the files that were generated from it.");
    return Tr::tr("The state of its generated files: %1.").arg(name);
}

} // namespace Workbench
