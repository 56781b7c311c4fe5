#include "choices.h"

#include "optionkeys.h"

namespace TARVOORIXM1
{

namespace
{

// The rows of an enumeration end at the first number without a name.
template <typename Choice, typename Test>
QStringList namesOf(Test test)
{
    QStringList names;
    for (int number = 0; !rowOf(Choice(number)).name.isEmpty(); ++number) {
        if (test(rowOf(Choice(number))))
            names.append(rowOf(Choice(number)).name);
    }
    return names;
}

template <typename Choice>
std::optional<Choice> choiceAt(int number, int count)
{
    return number >= 0 && number < count ? std::optional(Choice(number)) : std::nullopt;
}

} // namespace

const ToolRow &rowOf(Tool tool)
{
    static constexpr ToolRow own = {
        Value::tarvoSynthesis, true, {}, ".vg"_l1, ".vhg"_l1, ".vho"_l1};
    static constexpr ToolRow project = {Value::synplifyPro, false,     implementationName,
                                        ".vm"_l1,           ".vhm"_l1, {}};
    static constexpr ToolRow none = {};
    switch (tool) {
    case Tool::TarvoSynthesis:
        return own;
    case Tool::SynplifyPro:
        return project;
    }
    return none;
}

const LanguageRow &rowOf(Language language)
{
    static constexpr LanguageRow verilog = {"Verilog"_l1, ".v"_l1, false};
    static constexpr LanguageRow vhdl = {"VHDL"_l1, ".vhd"_l1, true};
    static constexpr LanguageRow none = {};
    switch (language) {
    case Language::Verilog:
        return verilog;
    case Language::Vhdl:
        return vhdl;
    }
    return none;
}

QStringList toolNames()
{
    return namesOf<Tool>([](const ToolRow &) { return true; });
}

QStringList offeredToolNames()
{
    return namesOf<Tool>([](const ToolRow &row) { return row.isOffered; });
}

QStringList languageNames()
{
    return namesOf<Language>([](const LanguageRow &) { return true; });
}

std::optional<Tool> toolNamed(const QString &name)
{
    const QStringList names = toolNames();
    return choiceAt<Tool>(names.indexOf(name), names.size());
}

std::optional<Language> languageAt(int index)
{
    return choiceAt<Language>(index, languageNames().size());
}

Tool effectiveTool(const QVariant &stored)
{
    const std::optional<Tool> tool = toolNamed(stored.toString());
    return tool && rowOf(*tool).isOffered ? *tool : Tool::TarvoSynthesis;
}

std::optional<Language> effectiveLanguage(const QVariant &stored)
{
    return languageAt(stored.toInt());
}

Language namingLanguage(std::optional<Language> selected)
{
    return selected.value_or(Language::Vhdl);
}

QLatin1String netlistSuffix(Tool tool, Language language)
{
    switch (language) {
    case Language::Verilog:
        return rowOf(tool).verilogNetlist;
    case Language::Vhdl:
        return rowOf(tool).vhdlNetlist;
    }
    return {};
}

QLatin1String modelSuffix(Tool tool, Language language)
{
    switch (language) {
    case Language::Verilog:
        break;
    case Language::Vhdl:
        return rowOf(tool).vhdlModel;
    }
    return {};
}

} // namespace TARVOORIXM1
