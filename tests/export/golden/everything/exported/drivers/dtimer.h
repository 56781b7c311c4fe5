/*
 * Dual timer: two independent counters of 32 bits with a prescaler each, which count clock cycles
 * of the bus down, and one interrupt for both.
 */
#ifndef TARVO_ORIX_M1_DRIVER_DTIMER_H
#define TARVO_ORIX_M1_DRIVER_DTIMER_H

#include "tarvo_orix_m1.h"

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define DTIMER_PRESCALE_MAX 256u /* clock cycles of the longest count */

typedef enum { DTIMER_COUNTER_1 = 0, DTIMER_COUNTER_2 } dtimer_counter;

typedef enum {
    DTIMER_PERIODIC = 0, /* begins again after each period */
    DTIMER_ONCE          /* stops after one */
} dtimer_kind;

/*
 * Begins a period of counts (1 to 0xFFFFFFFF) of prescale (1 to DTIMER_PRESCALE_MAX) clock cycles
 * each, with or without an interrupt at its end, and forgets what was kept. A compare value that is
 * set stays. False, with nothing done: no such period.
 */
bool dtimer_start(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t counts, uint32_t prescale,
                  dtimer_kind kind, bool interrupt);

/* Sets a periodic counter's period from the next end on; counts as for dtimer_start(). */
bool dtimer_set_period(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t counts);

/* Stops counting and switches the counter's interrupts and compare value off; the count stays. */
void dtimer_stop(DTIMER_Type *dtimer, dtimer_counter counter);

/* Whether the counter counts: false after dtimer_stop(), and after the period of DTIMER_ONCE. */
bool dtimer_is_running(const DTIMER_Type *dtimer, dtimer_counter counter);

/* Counts left before the last one of the period. */
uint32_t dtimer_left(const DTIMER_Type *dtimer, dtimer_counter counter);

/* Whether a period has ended since the last call; also takes the counter's interrupt back. */
bool dtimer_take(DTIMER_Type *dtimer, dtimer_counter counter);

/* Waits for dtimer_take(), looking at most polls times (0 counts as 1); false: the limit was
 * reached. */
bool dtimer_wait(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t polls);

/*
 * Has dtimer_take_match() told, with or without an interrupt, each time that left counts are left
 * before the last one of the period, from the next dtimer_start() on. False, with nothing done: the
 * counter is running.
 */
bool dtimer_set_compare(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t left, bool interrupt);

/* Moves the compare value, also while the counter counts. False, with nothing done: none is set. */
bool dtimer_move_compare(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t left);

/* Whether the counter has got to the compare value since the last call; also takes its interrupt
 * back. */
bool dtimer_take_match(DTIMER_Type *dtimer, dtimer_counter counter);

#ifdef __cplusplus
}
#endif

#endif
