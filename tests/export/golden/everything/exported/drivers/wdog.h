/*
 * Watchdog: the first end of its period raises the non-maskable interrupt, the second in a row
 * resets the system, if that is allowed.
 *
 * Period and control can be locked, so that a program gone astray does not switch them off; signs
 * of life are taken all the same. The functions that change them unlock first and lock again.
 */
#ifndef TARVO_ORIX_M1_DRIVER_WDOG_H
#define TARVO_ORIX_M1_DRIVER_WDOG_H

#include "tarvo_orix_m1.h"

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Begins to watch: without wdog_kick() the interrupt comes after cycles (1 to 0xFFFFFFFF) clock
 * cycles of the bus and, if allowed, the reset after twice as many. An interrupt that is pending is
 * taken back. Leaves the watchdog locked. False, with nothing done: cycles is 0.
 */
bool wdog_start(WDOG_Type *wdog, uint32_t cycles, bool reset_allowed);

/* Stops it, takes a pending interrupt back and leaves it locked. */
void wdog_stop(WDOG_Type *wdog);

/* A sign of life: begins the period again and takes a pending interrupt back. */
void wdog_kick(WDOG_Type *wdog);

/* Whether the period has ended without a sign of life: the reason of the interrupt. */
bool wdog_is_pending(const WDOG_Type *wdog);

/* Clock cycles left before the last one of the period. */
uint32_t wdog_left(const WDOG_Type *wdog);

/* Lets LOAD and CTRL be written. */
void wdog_unlock(WDOG_Type *wdog);

/* Keeps LOAD and CTRL as they are. */
void wdog_lock(WDOG_Type *wdog);

/* Whether writes of LOAD and CTRL are ignored. */
bool wdog_is_locked(const WDOG_Type *wdog);

#ifdef __cplusplus
}
#endif

#endif
