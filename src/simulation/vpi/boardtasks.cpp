#include "boardtasks.h"

#include "calls.h"
#include "core/boardhost.h"

namespace Vpi
{

namespace
{

CortexM1::BoardHost &host()
{
    return CortexM1::BoardHost::shared(simulator());
}

// The arguments of a call as numbers; none, and the simulation ends, if they are not as many.
template <std::size_t count>
std::vector<int> numbers(const char *message)
{
    const std::vector<vpiHandle> handles = arguments();
    std::vector<int> result;
    if (handles.size() != count) {
        refuseCall(message);
        return result;
    }
    for (const vpiHandle handle : handles)
        result.push_back(integer(handle));
    return result;
}

std::uint32_t bits(int number)
{
    return static_cast<std::uint32_t>(number);
}

PLI_INT32 callSent(PLI_BYTE8 *)
{
    if (const auto args = numbers<2>("$board_sent takes 2 arguments"); !args.empty())
        host().sent(args[0], static_cast<std::uint8_t>(args[1]));
    return 0;
}

PLI_INT32 callInput(PLI_BYTE8 *)
{
    const auto args = numbers<1>("$board_input takes 1 argument");
    return returnInteger(args.empty() ? -1 : host().input(args[0]));
}

PLI_INT32 callPins(PLI_BYTE8 *)
{
    if (const auto args = numbers<2>("$board_pins takes 2 arguments"); !args.empty())
        host().pins(bits(args[0]), bits(args[1]));
    return 0;
}

PLI_INT32 callDriveMask(PLI_BYTE8 *)
{
    return returnInteger(host().driveMask());
}

PLI_INT32 callDriveLevels(PLI_BYTE8 *)
{
    return returnInteger(host().driveLevels());
}

PLI_INT32 callTime(PLI_BYTE8 *)
{
    if (const auto args = numbers<2>("$board_time takes 2 arguments"); !args.empty())
        host().time(std::uint64_t(bits(args[1])) << 32 | bits(args[0]));
    return 0;
}

PLI_INT32 callSize(PLI_BYTE8 *)
{
    const auto args = numbers<1>("$board_size takes 1 argument");
    return returnInteger(args.empty() ? -1 : host().size(args[0]));
}

PLI_INT32 callLoad(PLI_BYTE8 *)
{
    const auto args = numbers<2>("$board_load takes 2 arguments");
    return returnInteger(args.empty() ? -1 : host().load(args[0], bits(args[1])));
}

PLI_INT32 callStore(PLI_BYTE8 *)
{
    if (const auto args = numbers<3>("$board_store takes 3 arguments"); !args.empty())
        host().store(args[0], bits(args[1]), static_cast<std::uint8_t>(args[2]));
    return 0;
}

} // namespace

void addBoardTasks()
{
    addTask("$board_sent", callSent);
    addFunction("$board_input", callInput);
    addTask("$board_pins", callPins);
    addFunction("$board_drive_mask", callDriveMask);
    addFunction("$board_drive_levels", callDriveLevels);
    addTask("$board_time", callTime);
    addFunction("$board_size", callSize);
    addFunction("$board_load", callLoad);
    addTask("$board_store", callStore);
}

void finishBoard()
{
    CortexM1::BoardHost::finishShared();
}

} // namespace Vpi
