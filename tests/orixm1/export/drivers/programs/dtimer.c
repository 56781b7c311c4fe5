#include "drivers/dtimer.h"

#include "far.h"

enum { IRQ, PERIOD_1, WRAPS_1, PERIOD_2, WRAPS_2 };

static void all(dtimer_counter counter)
{
    const uint32_t period = counter == DTIMER_COUNTER_1 ? PERIOD_1 : PERIOD_2;
    const uint32_t wraps = counter == DTIMER_COUNTER_1 ? WRAPS_1 : WRAPS_2;
    uint32_t before;
    EQUAL(dtimer_start(DTIMER, counter, 0u, 1u, DTIMER_PERIODIC, false), false);
    EQUAL(dtimer_start(DTIMER, counter, 1u, 0u, DTIMER_PERIODIC, false), false);
    EQUAL(dtimer_start(DTIMER, counter, 1u, DTIMER_PRESCALE_MAX + 1u, DTIMER_PERIODIC, false),
          false);
    EQUAL(dtimer_is_running(DTIMER, counter), false);
    EQUAL(dtimer_start(DTIMER, counter, 0xFFFFFFFFu, DTIMER_PRESCALE_MAX, DTIMER_PERIODIC, false),
          true);
    EQUAL(dtimer_is_running(DTIMER, counter), true);
    EQUAL(dtimer_left(DTIMER, counter), 0xFFFFFFFEu);
    IDLE(600u);
    EQUAL(dtimer_left(DTIMER, counter), 0xFFFFFFFCu);
    EQUAL(dtimer_start(DTIMER, counter, 100u, 3u, DTIMER_PERIODIC, false), true);
    EQUAL(dtimer_take(DTIMER, counter), false);
    EQUAL(dtimer_wait(DTIMER, counter, 500u), true);
    EQUAL(FAR(period), 300u);
    EQUAL(dtimer_set_period(DTIMER, counter, 0u), false);
    EQUAL(dtimer_set_period(DTIMER, counter, 60u), true);
    EQUAL(dtimer_wait(DTIMER, counter, 500u), true);
    EQUAL(FAR(period), 300u);
    EQUAL(dtimer_wait(DTIMER, counter, 500u), true);
    EQUAL(FAR(period), 180u);
    EQUAL(dtimer_wait(DTIMER, counter, 2u), false);
    EQUAL(dtimer_wait(DTIMER, counter, 0u), false);
    EQUAL(FAR(IRQ), 0u);
    /* Once, with an interrupt. */
    EQUAL(dtimer_start(DTIMER, counter, 50u, 2u, DTIMER_ONCE, true), true);
    EQUAL(dtimer_is_running(DTIMER, counter), true);
    before = FAR(wraps);
    IDLE(500u);
    EQUAL(FAR(wraps) - before, 1u);
    EQUAL(FAR(period), 100u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(dtimer_is_running(DTIMER, counter), false);
    EQUAL(dtimer_take(DTIMER, counter), true);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(dtimer_take(DTIMER, counter), false);
    /* Again, stopped on its way. */
    EQUAL(dtimer_start(DTIMER, counter, 50u, 1u, DTIMER_PERIODIC, true), true);
    dtimer_stop(DTIMER, counter);
    before = FAR(wraps);
    IDLE(200u);
    EQUAL(FAR(wraps), before);
    EQUAL(dtimer_is_running(DTIMER, counter), false);
    EQUAL(FAR(IRQ), 0u);
}

static void compare(dtimer_counter counter)
{
    dtimer_stop(DTIMER, counter);
    EQUAL(dtimer_move_compare(DTIMER, counter, 5u), false);
    EQUAL(dtimer_set_compare(DTIMER, counter, 25u, true), true);
    EQUAL(dtimer_start(DTIMER, counter, 100u, 3u, DTIMER_PERIODIC, false), true);
    EQUAL(dtimer_set_compare(DTIMER, counter, 5u, true), false);
    IDLE(200u);
    EQUAL(dtimer_take_match(DTIMER, counter), false);
    EQUAL(FAR(IRQ), 0u);
    IDLE(40u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(dtimer_take_match(DTIMER, counter), true);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(dtimer_take(DTIMER, counter), false);
    IDLE(300u);
    EQUAL(dtimer_take_match(DTIMER, counter), true);
    EQUAL(dtimer_take(DTIMER, counter), true);
    EQUAL(dtimer_move_compare(DTIMER, counter, 99u), true);
    IDLE(30u);
    EQUAL(dtimer_take_match(DTIMER, counter), false);
    IDLE(300u);
    EQUAL(dtimer_take_match(DTIMER, counter), true); /* where a period begins */
    EQUAL(dtimer_take(DTIMER, counter), true);
    dtimer_stop(DTIMER, counter);
    EQUAL(dtimer_start(DTIMER, counter, 100u, 1u, DTIMER_PERIODIC, false), true);
    IDLE(300u);
    EQUAL(dtimer_take_match(DTIMER, counter), false); /* stopping switched it off */
    dtimer_stop(DTIMER, counter);
}

void test(void)
{
    EQUAL((DTIMER->ID & DTIMER_ID_BLOCK_Msk) >> DTIMER_ID_BLOCK_Pos, 4u);
    all(DTIMER_COUNTER_1);
    all(DTIMER_COUNTER_2);
    /* One leaves the other alone. */
    EQUAL(dtimer_start(DTIMER, DTIMER_COUNTER_1, 90u, 1u, DTIMER_PERIODIC, true), true);
    EQUAL(dtimer_start(DTIMER, DTIMER_COUNTER_2, 70u, 1u, DTIMER_ONCE, true), true);
    EQUAL(dtimer_wait(DTIMER, DTIMER_COUNTER_2, 500u), true);
    EQUAL(dtimer_wait(DTIMER, DTIMER_COUNTER_1, 500u), true);
    EQUAL(dtimer_wait(DTIMER, DTIMER_COUNTER_1, 500u), true);
    EQUAL(FAR(PERIOD_1), 90u);
    EQUAL(FAR(PERIOD_2), 70u);
    EQUAL(dtimer_take(DTIMER, DTIMER_COUNTER_2), false);
    compare(DTIMER_COUNTER_1);
    compare(DTIMER_COUNTER_2);
}
