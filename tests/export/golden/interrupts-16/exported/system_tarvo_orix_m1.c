/* System set-up of the Tarvo Orix-M1 subsystem: see the header. */
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
