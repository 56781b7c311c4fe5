#include "drivers/timer.h"

#include "far.h"

enum { EXTIN, PULSES };
enum { IRQ, PERIOD, WRAPS, PAGE };

static void counts(void)
{
    uint32_t n = 7u;
    EQUAL(timer_counts(50000000u, 1000u, &n), true);
    EQUAL(n, 50000u);
    EQUAL(timer_counts(10u, 4u, &n), true);
    EQUAL(n, 3u); /* 2.5 */
    EQUAL(timer_counts(2u, 4u, &n), true);
    EQUAL(n, 1u);
    EQUAL(timer_counts(16777216u, 1u, &n), true);
    EQUAL(n, TIMER_COUNTS_MAX);
    EQUAL(timer_counts(16777217u, 1u, &n), false);
    EQUAL(timer_counts(1u, 3u, &n), false);
    EQUAL(timer_counts(1u, 0u, &n), false);
    EQUAL(n, TIMER_COUNTS_MAX);
}

static void all(TIMER_Type *timer)
{
    uint32_t wraps;
    EQUAL(timer_start(timer, 0u, TIMER_CLOCK, false), false);
    EQUAL(timer_start(timer, TIMER_COUNTS_MAX + 1u, TIMER_CLOCK, false), false);
    EQUAL(timer_start(timer, TIMER_COUNTS_MAX, TIMER_CLOCK, false), true);
    EQUAL(timer->RELOAD, 0xFFFFFFu);
    IDLE(20u);
    EQUAL(timer_left(timer) < 0xFFFFFFu && timer_left(timer) > 0xFFFF00u, true);
    EQUAL(timer_take(timer), false);
    /* The first period is as long as the others. */
    wraps = FAR(WRAPS);
    EQUAL(timer_start(timer, 400u, TIMER_CLOCK, false), true);
    EQUAL(timer_take(timer), false);
    EQUAL(timer_wait(timer, 500u), true);
    EQUAL(FAR(WRAPS) - wraps, 1u);
    EQUAL(FAR(PERIOD), 400u);
    EQUAL(timer_take(timer), false);
    EQUAL(timer_set_period(timer, 300u), true);
    EQUAL(timer_set_period(timer, 0u), false);
    EQUAL(timer_set_period(timer, TIMER_COUNTS_MAX + 1u), false);
    EQUAL(timer_wait(timer, 500u), true);
    EQUAL(FAR(PERIOD), 400u);
    EQUAL(timer_wait(timer, 500u), true);
    EQUAL(FAR(PERIOD), 300u);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(timer_wait(timer, 3u), false);
    EQUAL(timer_wait(timer, 0u), false);
    /* Interrupt. */
    EQUAL(timer_start(timer, 100u, TIMER_CLOCK, true), true);
    EQUAL(FAR(IRQ), 0u);
    IDLE(120u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(timer_take(timer), true);
    EQUAL(FAR(IRQ), 0u);
    IDLE(120u);
    EQUAL(FAR(IRQ), 1u);
    timer_stop(timer);
    EQUAL(FAR(IRQ), 0u);
    wraps = FAR(WRAPS);
    IDLE(300u);
    EQUAL(FAR(WRAPS), wraps);
    EQUAL(timer_start(timer, 1u, TIMER_CLOCK, false), true); /* forgets the end that was kept */
    IDLE(10u);
    EQUAL(FAR(PERIOD), 1u);
    EQUAL(timer_take(timer), true);
    /* The external input. */
    EQUAL(timer_start(timer, 50u, TIMER_GATED, false), true);
    IDLE(200u);
    EQUAL(timer_left(timer), 49u);
    EQUAL(timer_take(timer), false);
    FAR(EXTIN) = 1u;
    IDLE(70u);
    FAR(EXTIN) = 0u;
    EQUAL(timer_take(timer), true);
    EQUAL(timer_start(timer, 5u, TIMER_EXTERNAL, false), true);
    FAR(PULSES) = 4u;
    EQUAL(timer_left(timer), 0u);
    EQUAL(timer_take(timer), false);
    FAR(PULSES) = 1u;
    EQUAL(timer_take(timer), true);
    EQUAL(timer_left(timer), 4u);
    timer_stop(timer);
}

void test(void)
{
    counts();
    all(TIMER0);
    EQUAL(FAR(PAGE), 0x50000000u);
    all(TIMER1);
    EQUAL(FAR(PAGE), 0x50001000u);
}
