/*
 * Watchdog: the first end of its period raises the non-maskable interrupt, the second in a row
 * resets the system, if that is allowed. With a window a sign of life can be too early as well:
 * that resets at once, or raises the interrupt if no reset is allowed. While a debugger holds the
 * processor the period stands still.
 *
 * Period and control can be locked, so that a program gone astray does not switch them off; signs
 * of life are taken all the same. The functions that change them unlock first and lock again; once
 * the watchdog is sealed they return false and change nothing until the next system reset.
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
 * taken back. Leaves the watchdog locked. False, with nothing done: cycles is 0, or it is sealed.
 */
bool wdog_start(WDOG_Type *wdog, uint32_t cycles, bool reset_allowed);

/*
 * The same with a window: signs of life are in time during the last window (1 to cycles) clock
 * cycles of the period, and while an interrupt is pending. False also: no such window.
 */
bool wdog_start_window(WDOG_Type *wdog, uint32_t cycles, uint32_t window, bool reset_allowed);

/* Stops it, takes a pending interrupt back and leaves it locked. False, with nothing done: it is
 * sealed. */
bool wdog_stop(WDOG_Type *wdog);

/* Whether the period goes on while a debugger holds the processor; wdog_start() switches that off.
 * Leaves it locked. False, with nothing done: it is sealed. */
bool wdog_count_while_halted(WDOG_Type *wdog, bool counts);

/* A sign of life: begins the period again and takes a pending interrupt back. */
void wdog_kick(WDOG_Type *wdog);

/* Whether the period has ended without a sign of life, or one was too early: the reason of the
 * interrupt. */
bool wdog_is_pending(const WDOG_Type *wdog);

/* Whether it was one that was too early. */
bool wdog_was_early(const WDOG_Type *wdog);

/* Clock cycles left before the last one of the period. */
uint32_t wdog_left(const WDOG_Type *wdog);

/* Lets LOAD, CTRL and WINDOW be written, unless it is sealed. */
void wdog_unlock(WDOG_Type *wdog);

/* Keeps LOAD, CTRL and WINDOW as they are. */
void wdog_lock(WDOG_Type *wdog);

/* Whether writes of LOAD, CTRL and WINDOW are ignored. */
bool wdog_is_locked(const WDOG_Type *wdog);

/* Locks until the next system reset; nothing unlocks before. Signs of life are taken. */
void wdog_seal(WDOG_Type *wdog);

/* Whether it is locked until the next system reset. */
bool wdog_is_sealed(const WDOG_Type *wdog);

#ifdef __cplusplus
}
#endif

#endif
