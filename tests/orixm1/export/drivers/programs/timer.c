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

/* Prescaler, a single period, compare value and capture. */
static void more(TIMER_Type *timer)
{
    uint32_t left = 7u, first = 0u, wraps;
    bool is_lost = true;
    EQUAL(timer_start_scaled(timer, 0u, 1u, TIMER_CLOCK, TIMER_ONCE, false), false);
    EQUAL(timer_start_scaled(timer, 5u, 0u, TIMER_CLOCK, TIMER_ONCE, false), false);
    EQUAL(timer_start_scaled(timer, 5u, TIMER_PRESCALE_MAX + 1u, TIMER_CLOCK, TIMER_ONCE, false),
          false);
    EQUAL(timer_is_running(timer), false);
    EQUAL(timer_start_scaled(timer, 5u, TIMER_PRESCALE_MAX, TIMER_CLOCK, TIMER_ONCE, false), true);
    EQUAL(timer->PRESCALE, 0xFFFFu);
    wraps = FAR(WRAPS);
    EQUAL(timer_start_scaled(timer, 40u, 10u, TIMER_CLOCK, TIMER_ONCE, true), true);
    EQUAL(timer_is_running(timer), true);
    IDLE(1000u);
    EQUAL(FAR(WRAPS) - wraps, 1u);
    EQUAL(FAR(PERIOD), 400u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(timer_is_running(timer), false);
    EQUAL(timer_take(timer), true);
    EQUAL(FAR(IRQ), 0u);
    /* Switching on alone begins a period, and raises nothing. */
    timer->CTRL = TIMER_CTRL_EN_Msk | TIMER_CTRL_IE_Msk;
    EQUAL(FAR(IRQ), 0u);
    EQUAL(timer_left(timer) > 30u, true);
    timer_stop(timer);
    /* A compare value: three quarters of a period. */
    EQUAL(timer_set_compare(timer, TIMER_COUNTS_MAX, true), false);
    EQUAL(timer_set_compare(timer, 100u, true), true);
    EQUAL(timer_start(timer, 400u, TIMER_CLOCK, false), true);
    IDLE(250u);
    EQUAL(timer_take_match(timer), false);
    EQUAL(FAR(IRQ), 0u);
    IDLE(60u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(timer_take_match(timer), true);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(timer_take(timer), false);
    IDLE(400u);
    EQUAL(timer_take_match(timer), true);
    EQUAL(timer_take(timer), true);
    EQUAL(timer_set_compare(timer, 100u, false), true); /* while it runs */
    IDLE(400u);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(timer_take_match(timer), true);
    timer_stop(timer);
    EQUAL(timer_start(timer, 50u, TIMER_CLOCK, false), true);
    IDLE(100u);
    EQUAL(timer_take_match(timer), false); /* stopping switched it off */
    /* Capture: the pulses of six cycles. */
    timer_stop(timer);
    timer_set_capture(timer, TIMER_RISING, true);
    EQUAL(timer_start(timer, TIMER_COUNTS_MAX, TIMER_CLOCK, false), true);
    EQUAL(timer_take_capture(timer, &left, &is_lost), false);
    EQUAL(left, 7u);
    FAR(PULSES) = 1u;
    EQUAL(FAR(IRQ), 1u);
    EQUAL(timer_take_capture(timer, &first, &is_lost), true);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(is_lost, false);
    EQUAL(first > timer_left(timer), true);
    FAR(PULSES) = 5u;
    EQUAL(timer_take_capture(timer, &first, &is_lost), true);
    EQUAL(is_lost, true); /* the last one counts */
    EQUAL(timer_take_capture(timer, &left, &is_lost), false);
    timer_set_capture(timer, TIMER_BOTH, false);
    FAR(EXTIN) = 1u;
    IDLE(10u);
    EQUAL(timer_take_capture(timer, &first, &is_lost), true);
    IDLE(500u);
    FAR(EXTIN) = 0u;
    IDLE(10u);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(timer_take_capture(timer, &left, &is_lost), true);
    EQUAL(is_lost, false);
    EQUAL(first - left > 500u && first - left < 600u, true);
    timer_set_capture(timer, TIMER_EDGE_NONE, false);
    FAR(PULSES) = 2u;
    EQUAL(timer_take_capture(timer, &left, &is_lost), false);
    timer_stop(timer);
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
    more(timer);
}

void test(void)
{
    EQUAL((TIMER0->ID & TIMER_ID_BLOCK_Msk) >> TIMER_ID_BLOCK_Pos, 3u);
    counts();
    all(TIMER0);
    EQUAL(FAR(PAGE), 0x50000000u);
    all(TIMER1);
    EQUAL(FAR(PAGE), 0x50001000u);
}
