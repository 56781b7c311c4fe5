#include "tools.h"

#include "projectflow.h"
#include "yosysflow.h"

namespace Synthesis
{

namespace
{

template <class Type>
std::unique_ptr<Flow> make(const ToolRow &row, const Job &job)
{
    return std::make_unique<Type>(row, job);
}

} // namespace

const ToolRow &toolRow(Tool tool)
{
    static constexpr ToolRow synplifyPro{"Synplify Pro", "synplify_pro", true,   make<ProjectFlow>,
                                         nullptr,        ".vm",          ".vhm", nullptr};
    static constexpr ToolRow tarvoSynthesis{"Yosys", "yosys", false,  make<YosysFlow>,
                                            "-V",    ".vg",   ".vhg", ".vho"};
    switch (tool) {
    case Tool::SynplifyPro:
        return synplifyPro;
    case Tool::TarvoSynthesis:
        return tarvoSynthesis;
    }
    Q_UNREACHABLE();
}

std::unique_ptr<Flow> makeFlow(Tool tool, const Job &job)
{
    const ToolRow &row = toolRow(tool);
    return row.makeFlow(row, job);
}

Tool toolOf(int number)
{
    const Tool tool = Tool(number);
    switch (tool) {
    case Tool::SynplifyPro:
    case Tool::TarvoSynthesis:
        return tool;
    }
    return Tool::TarvoSynthesis;
}

} // namespace Synthesis
