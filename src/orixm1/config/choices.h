#pragma once

#include <QStringList>
#include <QVariant>

namespace TARVOORIXM1
{

// The synthesis tools that are offered, the default one first.
QStringList synthesisTools();

// The languages of the outputs; the index is what a configuration stores.
QStringList languages();

// What the stored "Synthesis_tool" selects: itself if it is offered, otherwise the default.
QString effectiveSynthesisTool(const QVariant &stored);

// What the stored "LANG" selects: an index into languages(), or -1 (nothing) if it lies outside.
int effectiveLanguageIndex(const QVariant &stored);

} // namespace TARVOORIXM1
