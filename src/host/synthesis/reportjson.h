#pragma once

#include "runreport.h"
#include "synthesis_global.h"

#include <QJsonObject>

namespace Synthesis
{

// A report with all that a person can be shown of it. Of the job's options only what the texts need
// is kept: whether it writes VHDL.
TARVO_SYNTHESIS_EXPORT QJsonObject toJson(const RunReport &report);

// False if the object is no report. Entries that are missing or of another kind are empty
// afterwards.
TARVO_SYNTHESIS_EXPORT bool fromJson(const QJsonObject &object, RunReport *report);

} // namespace Synthesis
