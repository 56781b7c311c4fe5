/* System set-up of the subsystem Tarvo_ORIX_M1. */
#ifndef SYSTEM_TARVO_ORIX_M1_H
#define SYSTEM_TARVO_ORIX_M1_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Frequency of the processor's clock, HCLK, in hertz. The configuration does not know it: it is 0 unless
 * SYSTEM_CORE_CLOCK tells it where system_tarvo_orix_m1.c is compiled, as in -DSYSTEM_CORE_CLOCK=50000000. */
extern uint32_t SystemCoreClock;

/* Runs before constructors and main(), when variables in the memory for data have their values already and those in
 * further memories, such as PSRAM, do not have them yet: the place to wait until such a memory is ready. It does nothing
 * unless a program has a function of this name. */
void SystemInit(void);

/* Sets SystemCoreClock to what SYSTEM_CORE_CLOCK tells. A program that changes its clock has a function of this name. */
void SystemCoreClockUpdate(void);

#ifdef __cplusplus
}
#endif

#endif
