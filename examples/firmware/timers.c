/* The dual timer: the second counter, which runs freely, times the first one, whose interrupt
 * counts periods; then a counter that ends by itself, with a prescaler. Says on UART0 what it
 * finds. */
#include "dtimer.h"
#include "system_tarvo_orix_m1.h"
#include "uart.h"

enum { period = 1000 /* clock cycles */, periods = 5, tolerance = 200 };

static volatile uint32_t ended;

void DTIMER_IRQHandler(void)
{
    if (dtimer_take(DTIMER, DTIMER_COUNTER_1))
        ++ended;
}

static void print(const char *text)
{
    for (; *text != '\0'; ++text)
        (void)uart_put(UART0, (uint8_t)*text, 10000u);
}

static bool is_about(uint32_t cycles, uint32_t expected)
{
    return cycles >= expected && cycles <= expected + tolerance;
}

/* Clock cycles that the free counter has counted. */
static uint32_t passed(void)
{
    return 0xFFFFFFFEu - dtimer_left(DTIMER, DTIMER_COUNTER_2);
}

int main(void)
{
    if (uart_init(UART0, SystemCoreClock, 3125000u) != UART_OK)
        return 1;
    SCS->NVIC_ISER = 1u << DTIMER_IRQn;
    if (!dtimer_start(DTIMER, DTIMER_COUNTER_2, 0xFFFFFFFFu, 1u, DTIMER_PERIODIC, false) ||
        !dtimer_start(DTIMER, DTIMER_COUNTER_1, period, 1u, DTIMER_PERIODIC, true))
        return 2;
    while (ended < periods)
        __asm__ volatile("wfi");
    if (!is_about(passed(), periods * period))
        return 3;
    dtimer_stop(DTIMER, DTIMER_COUNTER_1);
    print("five periods\n");

    if (!dtimer_start(DTIMER, DTIMER_COUNTER_2, 0xFFFFFFFFu, 1u, DTIMER_PERIODIC, false) ||
        !dtimer_start(DTIMER, DTIMER_COUNTER_1, 20u, 100u, DTIMER_ONCE, false))
        return 4;
    if (!dtimer_wait(DTIMER, DTIMER_COUNTER_1, 10000u))
        return 5;
    if (!is_about(passed(), 20u * 100u))
        return 6;
    if (dtimer_is_running(DTIMER, DTIMER_COUNTER_1) || ended != periods)
        return 7;
    print("once\n");
    return 0;
}
