/*
 * Timer: counts down 24 bits and begins again after 0.
 *
 * The first argument names the instance: TIMER0 or TIMER1.
 */
#ifndef TARVO_ORIX_M1_DRIVER_TIMER_H
#define TARVO_ORIX_M1_DRIVER_TIMER_H

#include "tarvo_orix_m1.h"

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define TIMER_COUNTS_MAX 0x01000000u /* longest period in counts */

/* What is counted. The external input must be slower than half of the bus clock. */
typedef enum {
    TIMER_CLOCK = 0, /* clock cycles of the bus */
    TIMER_GATED,     /* those during which the external input is high */
    TIMER_EXTERNAL   /* rising edges of the external input */
} timer_source;

/*
 * The counts after which a rate in Hz recurs, rounded, from that of the counts in Hz. False, with
 * *counts as it was: it would be less than 1 or more than TIMER_COUNTS_MAX.
 */
bool timer_counts(uint32_t counted_hz, uint32_t rate_hz, uint32_t *counts);

/*
 * Begins a period of 1 to TIMER_COUNTS_MAX counts, again and again, with or without an interrupt at
 * each end, and forgets an end that was kept. False, with nothing done: no such period.
 */
bool timer_start(TIMER_Type *timer, uint32_t counts, timer_source source, bool interrupt);

/* Sets the period from the next end on; counts as for timer_start(). */
bool timer_set_period(TIMER_Type *timer, uint32_t counts);

/* Stops counting and switches the interrupt off; the count stays. */
void timer_stop(TIMER_Type *timer);

/* Counts left before the last one of the period: 0 to TIMER_COUNTS_MAX - 1. */
uint32_t timer_left(const TIMER_Type *timer);

/* Whether a period has ended since the last call; also takes the interrupt back. */
bool timer_take(TIMER_Type *timer);

/* Waits for timer_take(), looking at most polls times (0 counts as 1); false: the limit was
 * reached. */
bool timer_wait(TIMER_Type *timer, uint32_t polls);

#ifdef __cplusplus
}
#endif

#endif
