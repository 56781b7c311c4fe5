/*
 * Real-time clock: counts seconds of an external clock, which must be slower than a quarter of the
 * bus clock. Time, calibration and alarm go on through every reset but hwRstn's; interrupts and
 * ticks are off after each.
 *
 * Times are in seconds, 32 bits, from a beginning that the program chooses. A time lies ahead of
 * another if it is less than 2^31 seconds later, so that the wrap after 2^32 does no harm.
 * The counter changes with the bus clock and is read in one access: what is read was the time.
 * Nothing here is locked: an interrupt handler that uses the same instance has to be kept out.
 */
#ifndef TARVO_ORIX_M1_DRIVER_RTC_H
#define TARVO_ORIX_M1_DRIVER_RTC_H

#include "tarvo_orix_m1.h"

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Sets the rate of the external clock in Hz, 1 to 0x1000000, and begins to count from the time that
 * is there, the running second anew, with interrupts off and nothing pending. False, with nothing
 * done: no such rate.
 */
bool rtc_start(RTC_Type *rtc, uint32_t source_hz);

/* Stops the clock and switches interrupts off; the time stays. */
void rtc_stop(RTC_Type *rtc);

/* Whether the time was set since hwRstn was low, by any of the functions here: a program that
 * begins again after a reset then need not. */
bool rtc_is_set(const RTC_Type *rtc);

/* Sets the time; a whole second passes before the next one. An alarm that is set stays. */
void rtc_set(RTC_Type *rtc, uint32_t seconds);

/* The same with the clock cycles of the source that have passed of the second, 0 to its rate less
 * one. */
void rtc_set_fine(RTC_Type *rtc, uint32_t seconds, uint32_t cycles);

/* The time. */
uint32_t rtc_get(const RTC_Type *rtc);

/* The time, and in *cycles the clock cycles of the source that had passed of that second. */
uint32_t rtc_get_fine(const RTC_Type *rtc, uint32_t *cycles);

/*
 * Corrects the external clock by parts of 10^9, -1953125 to 1952648, in steps of 954: positive ones
 * make the time go faster. 0: as it comes, and so after power-on. False, with nothing done: out of
 * range.
 */
bool rtc_calibrate(RTC_Type *rtc, int32_t ppb);

/*
 * Sets the alarm, with or without an interrupt, instead of any other one. False: the time has been
 * reached already, there will be no alarm and its interrupt is off.
 */
bool rtc_set_alarm(RTC_Type *rtc, uint32_t seconds, bool interrupt);

/*
 * Sets alarms at first and every step (1 to 0xFFFFF) seconds from there, with or without an
 * interrupt, instead of any other one: 60 for every minute, 86400 for every day. Those that are
 * past already, also because the time is set, come as one at once. False, with nothing done: no
 * such step.
 */
bool rtc_set_alarm_every(RTC_Type *rtc, uint32_t first, uint32_t step, bool interrupt);

/*
 * Sets alarms whenever a second begins in which the bits of mask are as in seconds, with or without
 * an interrupt, instead of any other one.
 */
void rtc_set_alarm_matching(RTC_Type *rtc, uint32_t seconds, uint32_t mask, bool interrupt);

/* Switches the interrupt of the alarm on or off, as after a reset through which an alarm is kept.
 */
void rtc_enable_alarm_interrupt(RTC_Type *rtc, bool on);

/* Switches the interrupt of the alarm off and forgets an alarm that was kept. */
void rtc_cancel_alarm(RTC_Type *rtc);

/* Whether the alarm's time was reached since the last call; also takes its interrupt back. */
bool rtc_take_alarm(RTC_Type *rtc);

/* Has a tick pass each cycles (1 to 0xFFFF) clock cycles of the source, with or without an
 * interrupt; 0: no ticks. False, with nothing done: no such period. */
bool rtc_set_tick(RTC_Type *rtc, uint32_t cycles, bool interrupt);

/* Whether a tick has passed since the last call; also takes its interrupt back. */
bool rtc_take_tick(RTC_Type *rtc);

/* Switches the interrupt of each second on or off. */
void rtc_enable_second_interrupt(RTC_Type *rtc, bool on);

/* Whether a second has begun since the last call; also takes its interrupt back. */
bool rtc_take_second(RTC_Type *rtc);

/* Waits for rtc_take_second(), looking at most polls times (0 counts as 1); false: the limit was
 * reached, as without a clock. */
bool rtc_wait_second(RTC_Type *rtc, uint32_t polls);

#ifdef __cplusplus
}
#endif

#endif
