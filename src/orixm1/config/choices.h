#pragma once

#include "latin1literal.h"

#include <QStringList>
#include <QVariant>

#include <optional>

namespace TARVOORIXM1
{

// The result folder of a project-based tool, below the generation folder.
inline constexpr QLatin1String implementationName = "rev_1"_l1;

// In the order of the choice; the default one first.
enum class Tool { TarvoSynthesis, SynplifyPro };

struct ToolRow {
    QLatin1String name;         // as shown and as stored
    bool isOffered;             // in the choice
    QLatin1String resultFolder; // below the generation folder; empty: that folder itself
    // Endings of what a run leaves.
    QLatin1String verilogNetlist;
    QLatin1String vhdlNetlist;
    QLatin1String vhdlModel; // additional simulation model for VHDL; empty: the tool makes none
};
const ToolRow &rowOf(Tool tool);

// In the order of the choice; the number is what a configuration stores.
enum class Language { Verilog, Vhdl };

struct LanguageRow {
    QLatin1String name;   // as shown
    QLatin1String suffix; // of outputs
    bool isVhdl;          // what a run is told
};
const LanguageRow &rowOf(Language language);

QStringList toolNames();
// Those of the synthesis tools that are offered.
QStringList offeredToolNames();
QStringList languageNames();

// Texts and numbers that are no tool and no language select nothing.
std::optional<Tool> toolNamed(const QString &name);
std::optional<Language> languageAt(int index);

// What the stored "Synthesis_tool" selects: itself if it is offered, otherwise the default.
Tool effectiveTool(const QVariant &stored);

// What the stored "LANG" selects.
std::optional<Language> effectiveLanguage(const QVariant &stored);

// Whose names the outputs have: where nothing is selected, those of VHDL.
Language namingLanguage(std::optional<Language> selected);

// Endings of the netlist that a run leaves, and of its additional simulation model; empty: none.
QLatin1String netlistSuffix(Tool tool, Language language);
QLatin1String modelSuffix(Tool tool, Language language);

} // namespace TARVOORIXM1
