#include "calls.h"

#include <cstring>

namespace Vpi
{

namespace
{

class Loading : public CortexM1::Simulator
{
public:
    const char *argument(const std::string &name) const override
    {
        s_vpi_vlog_info info;
        if (!vpi_get_vlog_info(&info))
            return nullptr;
        const std::string start = "+" + name;
        for (int i = 0; i < info.argc; ++i) {
            if (std::strncmp(info.argv[i], start.c_str(), start.size()) != 0)
                continue;
            const char *rest = info.argv[i] + start.size();
            if (*rest == '=' || *rest == '\0')
                return *rest == '=' ? rest + 1 : rest;
        }
        return nullptr;
    }

    void print(const std::string &text) override
    {
        vpi_printf("%s", text.c_str());
        vpi_flush();
    }
};

} // namespace

std::vector<vpiHandle> arguments()
{
    std::vector<vpiHandle> result;
    const vpiHandle call = vpi_handle(vpiSysTfCall, nullptr);
    if (const vpiHandle all = vpi_iterate(vpiArgument, call)) {
        while (const vpiHandle argument = vpi_scan(all))
            result.push_back(argument);
    }
    return result;
}

int integer(vpiHandle argument)
{
    s_vpi_value value;
    value.format = vpiIntVal;
    vpi_get_value(argument, &value);
    return value.value.integer;
}

std::string text(vpiHandle argument)
{
    s_vpi_value value;
    value.format = vpiStringVal;
    vpi_get_value(argument, &value);
    return value.value.str;
}

void setInteger(vpiHandle argument, int number)
{
    s_vpi_value value;
    value.format = vpiIntVal;
    value.value.integer = number;
    vpi_put_value(argument, &value, nullptr, vpiNoDelay);
}

void addTask(const char *name, PLI_INT32 (*call)(PLI_BYTE8 *))
{
    s_vpi_systf_data task{};
    task.type = vpiSysTask;
    task.tfname = name;
    task.calltf = call;
    vpi_register_systf(&task);
}

void addFunction(const char *name, PLI_INT32 (*call)(PLI_BYTE8 *))
{
    s_vpi_systf_data function{};
    function.type = vpiSysFunc;
    function.sysfunctype = vpiIntFunc;
    function.tfname = name;
    function.calltf = call;
    vpi_register_systf(&function);
}

PLI_INT32 returnInteger(int number)
{
    setInteger(vpi_handle(vpiSysTfCall, nullptr), number);
    return 0;
}

PLI_INT32 refuseCall(const char *message)
{
    vpi_printf("%s\n", message);
    vpi_control(vpiFinish, 1);
    return 0;
}

CortexM1::Simulator &simulator()
{
    static Loading loading;
    return loading;
}

} // namespace Vpi
