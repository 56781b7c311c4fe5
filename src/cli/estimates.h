#pragma once

#include <estimate/estimate.h>

#include <QJsonObject>

#include <optional>

namespace Cli
{

class Environment;
struct IpcDocument;

// What a configuration will take, for commands that tell it beside other things: nothing where the
// IP's data has no table, the device is not known or a value is none of its option's, which others
// tell. A table that cannot be read is told; `*isTableSound` is false then.
std::optional<TARVOORIXM1::Estimate> estimateOf(const Environment &environment,
                                                const IpcDocument &document, bool *isTableSound);

// {"resource", "value", "low", "high"}, and "available" and "percent" where they are known.
QJsonObject jsonOf(const TARVOORIXM1::EstimatedResource &resource);

// "1240", or "1240 (1200 to 1280)" where it is not exact.
QString shownEstimate(const TARVOORIXM1::EstimatedResource &resource);

} // namespace Cli
