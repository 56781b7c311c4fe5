/* Says the time on UART0 at each second of the RTC, until an alarm, and measures a second with
 * TIMER0. So that it does not take long, the rate of the RTC's clock is told too low: a second has
 * 2048 clock cycles on the board of the simulation, whose RTCSRCCLK is a sixteenth of the clock. */
#include "rtc.h"
#include "system_tarvo_orix_m1.h"
#include "timer.h"
#include "uart.h"

enum { source_hz = 128, second = 16 * source_hz /* clock cycles */, tolerance = 64 };

static const uint32_t noon = 12u * 3600u - 2u;
static volatile uint32_t seconds, measured, left;
static volatile bool is_over;

void RTC_IRQHandler(void)
{
    if (rtc_take_second(RTC)) {
        const uint32_t now = timer_left(TIMER0);
        measured = (left - now) % TIMER_COUNTS_MAX;
        left = now;
        ++seconds;
    }
    if (rtc_take_alarm(RTC))
        is_over = true;
}

static void print_time(uint32_t time)
{
    const uint32_t parts[] = {time / 3600u, time / 60u % 60u, time % 60u};
    int i;

    for (i = 0; i < 3; ++i) {
        (void)uart_put(UART0, (uint8_t)('0' + parts[i] / 10u), 10000u);
        (void)uart_put(UART0, (uint8_t)('0' + parts[i] % 10u), 10000u);
        (void)uart_put(UART0, i < 2 ? ':' : '\n', 10000u);
    }
}

int main(void)
{
    uint32_t seen = 0;

    if (uart_init(UART0, SystemCoreClock, 3125000u) != UART_OK || !rtc_start(RTC, source_hz) ||
        !timer_start(TIMER0, TIMER_COUNTS_MAX, TIMER_CLOCK, false))
        return 1;
    rtc_set(RTC, noon);
    if (!rtc_set_alarm(RTC, noon + 3u, true))
        return 2;
    rtc_enable_second_interrupt(RTC, true);
    SCS->NVIC_ISER = 1u << RTC_IRQn;
    while (!is_over) {
        __asm__ volatile("wfi");
        if (seconds == seen)
            continue;
        seen = seconds;
        if (rtc_get(RTC) != noon + seen)
            return 3;
        if (seen > 1u && (measured < second - tolerance || measured > second + tolerance))
            return 4;
        print_time(rtc_get(RTC));
    }
    rtc_stop(RTC);
    return seen == 3u ? 0 : 5;
}
