#pragma once

#include "designports.h"

#include <synthesis/job.h>

namespace Synthesis
{

// An output language: one row of each.
struct LanguageRow {
    const char *templateSuffix; // of the instantiation template, behind the target's name
    const char *primitives;     // the models of the primitives, a file of the library
    QByteArray (*instanceTemplate)(const QByteArray &module, const QVector<Port> &ports,
                                   const QByteArray &note);
};

const LanguageRow &languageRow(Language language);

} // namespace Synthesis
