/* Counts on the lower eight pins of the GPIO in the interrupt of TIMER0; the upper eight, which
 * follow them on the board of the simulation, are read back. A pin that follows is filtered and
 * interrupts at both edges: pulses of a few cycles do not count. Ends after sixteen steps. */
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

/* The edges of pin 10, which follows pin 2, and how many of them there should be. */
static volatile uint32_t edges;

void GPIO_IRQHandler(void)
{
    gpio_acknowledge(GPIO, 1u << 10);
    ++edges;
}

static bool filter_works(void)
{
    uint32_t i;

    if (!gpio_set_filter_interval(GPIO, 100u))
        return false;
    gpio_set_filters(GPIO, 1u << 10, true);
    gpio_enable_interrupts(GPIO, 1u << 10, GPIO_CHANGING);
    NVIC_EnableIRQ(GPIO_IRQn);
    for (i = 0; i < 2; ++i) {
        gpio_toggle(GPIO, 1u << 2); /* a short pulse */
        gpio_toggle(GPIO, 1u << 2);
        gpio_toggle(GPIO, 1u << 2); /* a level that stays */
        while ((gpio_read(GPIO) ^ gpio_read_unfiltered(GPIO)) != 0u) {
        }
    }
    gpio_disable_interrupts(GPIO, 1u << 10);
    gpio_set_filters(GPIO, 1u << 10, false);
    return edges == 2u;
}

int main(void)
{
    uint32_t seen;

    gpio_set_direction(GPIO, 0xFFu, true);
    if (!pins_work())
        return 3;
    if (!filter_works())
        return 4;
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
