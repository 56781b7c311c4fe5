/*
 * Real-time clock: counts seconds of an external clock, which must be slower than a quarter of the
 * bus clock.
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

/* Sets the time; a whole second passes before the next one. An alarm that is set stays. */
void rtc_set(RTC_Type *rtc, uint32_t seconds);

/* The time. */
uint32_t rtc_get(const RTC_Type *rtc);

/*
 * Sets the alarm, with or without an interrupt, instead of any other one. False: the time has been
 * reached already, there will be no alarm and its interrupt is off.
 */
bool rtc_set_alarm(RTC_Type *rtc, uint32_t seconds, bool interrupt);

/* Switches the interrupt of the alarm off and forgets an alarm that was kept. */
void rtc_cancel_alarm(RTC_Type *rtc);

/* Whether the alarm's time was reached since the last call; also takes its interrupt back. */
bool rtc_take_alarm(RTC_Type *rtc);

/* Switches the interrupt of each second on or off. */
void rtc_enable_second_interrupt(RTC_Type *rtc, bool enabled);

/* Whether a second has begun since the last call; also takes its interrupt back. */
bool rtc_take_second(RTC_Type *rtc);

/* Waits for rtc_take_second(), looking at most polls times (0 counts as 1); false: the limit was
 * reached, as without a clock. */
bool rtc_wait_second(RTC_Type *rtc, uint32_t polls);

#ifdef __cplusplus
}
#endif

#endif
