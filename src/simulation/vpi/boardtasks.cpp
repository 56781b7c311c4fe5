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

} // namespace

void addBoardTasks()
{
    addTask("$board_sent", callSent);
}

} // namespace Vpi
