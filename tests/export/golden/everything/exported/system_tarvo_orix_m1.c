/* System set-up of the subsystem Tarvo_ORIX_M1: see the header. */
#include "system_tarvo_orix_m1.h"

#ifndef SYSTEM_CORE_CLOCK
#define SYSTEM_CORE_CLOCK 0 /* not told */
#endif

uint32_t SystemCoreClock = (uint32_t)(SYSTEM_CORE_CLOCK);

__attribute__((weak)) void SystemInit(void)
{
}

__attribute__((weak)) void SystemCoreClockUpdate(void)
{
    SystemCoreClock = (uint32_t)(SYSTEM_CORE_CLOCK);
}
