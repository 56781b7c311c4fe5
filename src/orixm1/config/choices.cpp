#include "choices.h"

#include "optionkeys.h"

namespace TARVOORIXM1
{

QStringList synthesisTools()
{
    return {Value::tarvoSynthesis};
}

QStringList languages()
{
    return {QStringLiteral("Verilog"), QStringLiteral("VHDL")};
}

QString effectiveSynthesisTool(const QVariant &stored)
{
    const QStringList offered = synthesisTools();
    return offered.contains(stored.toString()) ? stored.toString() : offered.first();
}

int effectiveLanguageIndex(const QVariant &stored)
{
    const int index = stored.toInt();
    return index >= 0 && index < languages().size() ? index : -1;
}

} // namespace TARVOORIXM1
