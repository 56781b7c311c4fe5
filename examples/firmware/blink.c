/* Counts on the lower eight pins of the GPIO in the interrupt of TIMER0; the upper eight, which follow them on the board
 * of the simulation, are read back. Ends after sixteen steps. */
#include "gpio.h"
#include "timer.h"

enum { steps = 16 };

static volatile uint32_t count;

void TIMER0_IRQHandler(void)
{
    if (timer_take(TIMER0))
        gpio_write(GPIO, 0xFFu, ++count);
}

/* Whether pins read as they were written, each high and low. */
static bool pins_work(void)
{
    static const uint32_t patterns[] = {0xFFu, 0x55u, 0xAAu, 0x00u};
    uint32_t i;

    for (i = 0; i < sizeof patterns / sizeof *patterns; ++i) {
        gpio_write(GPIO, 0xFFu, patterns[i]);
        (void)gpio_read(GPIO); /* a level takes two clock cycles */
        (void)gpio_read(GPIO);
        if (gpio_read(GPIO) != (patterns[i] | patterns[i] << 8))
            return false;
    }
    return true;
}

int main(void)
{
    uint32_t seen;

    gpio_set_direction(GPIO, 0xFFu, true);
    if (!pins_work())
        return 3;
    SCS->NVIC_ISER = 1u << TIMER0_IRQn;
    if (!timer_start(TIMER0, 1000u, TIMER_CLOCK, true))
        return 1;
    for (seen = 0; seen < steps;) {
        __asm__ volatile("wfi");
        if (count != seen) {
            seen = count;
            if (gpio_read(GPIO) != (seen | seen << 8))
                return 2;
        }
    }
    timer_stop(TIMER0);
    return 0;
}
