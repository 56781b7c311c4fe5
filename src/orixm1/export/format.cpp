#include "format.h"

#include "config/latin1literal.h"
#include "drivers.h"
#include "header.h"
#include "svd.h"
#include "linker.h"
#include "startup.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

constexpr Format rows[] = {
    {"svd"_l1, "tarvo_orix_m1.svd"_l1, "Register description"_l1,
     "Registers and interrupts for debuggers, and for generators of access libraries."_l1,
     "CMSIS-SVD 1.3"_l1, "xmllint"_l1, svdFiles},
    {"header"_l1, "tarvo_orix_m1.h"_l1, "Device header"_l1,
     "Addresses, registers and interrupt numbers for programs in C and C++."_l1, "C99, C++11"_l1,
     "gcc, g++, clang, arm-none-eabi-gcc"_l1, headerFiles},
    {"drivers"_l1, "drivers"_l1, "Drivers"_l1,
     "Functions for each block that is on; they need the device header and no library."_l1,
     "C99, C++11"_l1, "gcc, g++, clang, arm-none-eabi-gcc"_l1, driverFiles},
    {"linker"_l1, "tarvo_orix_m1.ld"_l1, "Linker script"_l1,
     "Places a program in the memories of the subsystem, with the memories as a file to include "
     "and "
     "as memory.x for Rust."_l1,
     "GNU ld"_l1, "arm-none-eabi-gcc, ld, ld.lld, qemu-system-arm"_l1, linkerFiles},
    {"startup"_l1, "startup_tarvo_orix_m1.c"_l1, "Start-up code"_l1,
     "Vector table of the interrupts that arrive, with weak handlers, and what runs before main()."_l1,
     "C99"_l1, "arm-none-eabi-gcc, clang, qemu-system-arm"_l1, startupFiles},
};

} // namespace

Rows<Format> formats()
{
    return rows;
}

const Format *findFormat(const QString &name)
{
    const Rows<Format> all = formats();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&name](const Format &format) { return format.name == name; });
    return found == all.end() ? nullptr : found;
}

} // namespace TARVOORIXM1
