#include "boardtasks.h"

#include "calls.h"
#include "core/boardhost.h"

namespace Vpi
{

namespace
{

PLI_INT32 callSent(PLI_BYTE8 *)
{
    const std::vector<vpiHandle> args = arguments();
    if (args.size() != 2)
        return refuseCall("$board_sent takes 2 arguments");
    CortexM1::BoardHost::shared(simulator())
        .sent(integer(args[0]), static_cast<std::uint8_t>(integer(args[1])));
    return 0;
}

PLI_INT32 callWaves(PLI_BYTE8 *)
{
    const std::vector<vpiHandle> args = arguments();
    if (args.size() != 3)
        return refuseCall("$board_waves takes 3 arguments");
    setInteger(args[2], CortexM1::BoardHost::shared(simulator())
                            .waves(static_cast<std::uint32_t>(integer(args[0])),
                                   static_cast<std::uint32_t>(integer(args[1]))));
    return 0;
}

} // namespace

void addBoardTasks()
{
    addTask("$board_waves", callWaves);
    addTask("$board_sent", callSent);
}

} // namespace Vpi
