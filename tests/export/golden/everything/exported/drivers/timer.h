/*
 * Timer: counts down 24 bits and begins again after 0, or stops there; tells when it gets to a
 * count, and the count at edges of its external input.
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
#define TIMER_PRESCALE_MAX 0x10000u  /* longest count in clock cycles or edges */

/* What is counted. The external input must be slower than half of the bus clock. */
typedef enum {
    TIMER_CLOCK = 0, /* clock cycles of the bus */
    TIMER_GATED,     /* those during which the external input is high */
    TIMER_EXTERNAL   /* rising edges of the external input */
} timer_source;

typedef enum {
    TIMER_PERIODIC = 0, /* begins again after each period */
    TIMER_ONCE          /* stops after one */
} timer_kind;

/* Edges of the external input. */
typedef enum { TIMER_EDGE_NONE = 0, TIMER_RISING, TIMER_FALLING, TIMER_BOTH } timer_edge;

/*
 * The counts after which a rate in Hz recurs, rounded, from that of the counts in Hz. False, with
 * *counts as it was: it would be less than 1 or more than TIMER_COUNTS_MAX.
 */
bool timer_counts(uint32_t counted_hz, uint32_t rate_hz, uint32_t *counts);

/*
 * Begins a period of 1 to TIMER_COUNTS_MAX counts, again and again, with or without an interrupt at
 * each end, and forgets what was kept. A compare value and a capture that are set stay. False, with
 * nothing done: no such period.
 */
bool timer_start(TIMER_Type *timer, uint32_t counts, timer_source source, bool interrupt);

/* The same with a prescaler, 1 to TIMER_PRESCALE_MAX clock cycles or edges a count, and again and
 * again or once. */
bool timer_start_scaled(TIMER_Type *timer, uint32_t counts, uint32_t prescale, timer_source source,
                        timer_kind kind, bool interrupt);

/* Sets the period from the next end on; counts as for timer_start(). */
bool timer_set_period(TIMER_Type *timer, uint32_t counts);

/* Stops counting and switches interrupts, compare value and capture off; the count stays. */
void timer_stop(TIMER_Type *timer);

/* Whether the counter counts: false after timer_stop(), and after the period of TIMER_ONCE. */
bool timer_is_running(const TIMER_Type *timer);

/* Counts left before the last one of the period: 0 to TIMER_COUNTS_MAX - 1. */
uint32_t timer_left(const TIMER_Type *timer);

/* Whether a period has ended since the last call; also takes the interrupt back. */
bool timer_take(TIMER_Type *timer);

/* Waits for timer_take(), looking at most polls times (0 counts as 1); false: the limit was
 * reached. */
bool timer_wait(TIMER_Type *timer, uint32_t polls);

/*
 * Has timer_take_match() told, with or without an interrupt, each time that left counts (0 to
 * TIMER_COUNTS_MAX - 1) are left before the last one of the period. Before a period of TIMER_ONCE
 * begins, not while it runs. False, with nothing done: no such count.
 */
bool timer_set_compare(TIMER_Type *timer, uint32_t left, bool interrupt);

/* Whether the counter has got to the compare value since the last call; also takes the interrupt
 * back. */
bool timer_take_match(TIMER_Type *timer);

/*
 * Has the count kept at edges of the external input while the counter counts, with or without an
 * interrupt, and forgets one that was kept. Before a period of TIMER_ONCE begins, not while it
 * runs. An edge is seen if the levels beside it last longer than a clock cycle of the bus.
 */
void timer_set_capture(TIMER_Type *timer, timer_edge edge, bool interrupt);

/*
 * Whether there was an edge since the last call; also takes the interrupt back. *left is then what
 * timer_left() was at the last edge, and *is_lost whether there were others before it.
 */
bool timer_take_capture(TIMER_Type *timer, uint32_t *left, bool *is_lost);

#ifdef __cplusplus
}
#endif

#endif
