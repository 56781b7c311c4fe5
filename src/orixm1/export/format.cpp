#include "format.h"

#include "config/latin1literal.h"
#include "drivers.h"
#include "header.h"
#include "svd.h"

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
