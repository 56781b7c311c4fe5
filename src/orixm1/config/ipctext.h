#pragma once

#include "optionmap.h"

#include <utils/result.h>

#include <QByteArray>

namespace TARVOORIXM1
{

// The text of a configuration file with these entries: `frame` outside of the options, by full key.
// Keys stand in the order in which the file is always written. `before` is what the file held: its
// comments stay above what they stood above or behind, or above what comes next where that is gone.
// A failure is a clause with the reason.
Utils::Result<QByteArray> editedIpcText(const QByteArray &before, const QVariantMap &frame,
                                        const OptionMap &options);

} // namespace TARVOORIXM1
