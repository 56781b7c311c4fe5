#include "timer.h"

bool timer_counts(uint32_t counted_hz, uint32_t rate_hz, uint32_t *counts)
{
    uint32_t result;
    uint32_t rest;
    if (rate_hz == 0u)
        return false;
    rest = counted_hz % rate_hz;
    result = counted_hz / rate_hz + (rest >= rate_hz - rest ? 1u : 0u);
    if (result == 0u || result > TIMER_COUNTS_MAX)
        return false;
    *counts = result;
    return true;
}

/* What is set beside the period. */
#define BESIDE                                                                                     \
    (TIMER_CTRL_CMPEN_Msk | TIMER_CTRL_CMPIE_Msk | TIMER_CTRL_CAPIE_Msk | TIMER_CTRL_CAPEDGE_Msk)

static bool take(TIMER_Type *timer, uint32_t flag)
{
    if ((timer->PEND & flag) == 0u)
        return false;
    timer->PEND = flag; /* the others stay */
    return true;
}

bool timer_start(TIMER_Type *timer, uint32_t counts, timer_source source, bool interrupt)
{
    return timer_start_scaled(timer, counts, 1u, source, TIMER_PERIODIC, interrupt);
}

bool timer_start_scaled(TIMER_Type *timer, uint32_t counts, uint32_t prescale, timer_source source,
                        timer_kind kind, bool interrupt)
{
    uint32_t ctrl = TIMER_CTRL_EN_Msk | (timer->CTRL & BESIDE);
    if (counts == 0u || counts > TIMER_COUNTS_MAX || prescale == 0u ||
        prescale > TIMER_PRESCALE_MAX)
        return false;
    if (source == TIMER_GATED)
        ctrl |= TIMER_CTRL_EXTGATE_Msk;
    if (source == TIMER_EXTERNAL)
        ctrl |= TIMER_CTRL_EXTCLK_Msk;
    if (kind == TIMER_ONCE)
        ctrl |= TIMER_CTRL_ONESHOT_Msk;
    if (interrupt)
        ctrl |= TIMER_CTRL_IE_Msk;
    timer->CTRL = 0u;
    timer->VALUE = counts - 1u;
    timer->RELOAD = counts - 1u;
    timer->PRESCALE = prescale - 1u;
    timer->PEND = TIMER_PEND_WRAP_Msk | TIMER_PEND_MATCH_Msk | TIMER_PEND_CAPTURE_Msk |
                  TIMER_PEND_OVERRUN_Msk;
    timer->CTRL = ctrl;
    return true;
}

bool timer_set_period(TIMER_Type *timer, uint32_t counts)
{
    if (counts == 0u || counts > TIMER_COUNTS_MAX)
        return false;
    timer->RELOAD = counts - 1u;
    return true;
}

void timer_stop(TIMER_Type *timer)
{
    timer->CTRL = 0u;
}

bool timer_is_running(const TIMER_Type *timer)
{
    return (timer->CTRL & TIMER_CTRL_EN_Msk) != 0u;
}

uint32_t timer_left(const TIMER_Type *timer)
{
    return (timer->VALUE & TIMER_VALUE_COUNT_Msk) >> TIMER_VALUE_COUNT_Pos;
}

bool timer_take(TIMER_Type *timer)
{
    return take(timer, TIMER_PEND_WRAP_Msk);
}

bool timer_wait(TIMER_Type *timer, uint32_t polls)
{
    do {
        if (timer_take(timer))
            return true;
    } while (polls-- > 1u);
    return false;
}

bool timer_set_compare(TIMER_Type *timer, uint32_t left, bool interrupt)
{
    uint32_t ctrl = timer->CTRL & ~TIMER_CTRL_CMPIE_Msk;
    if (left >= TIMER_COUNTS_MAX)
        return false;
    timer->COMPARE = left;
    timer->PEND = TIMER_PEND_MATCH_Msk;
    timer->CTRL = ctrl | TIMER_CTRL_CMPEN_Msk | (interrupt ? TIMER_CTRL_CMPIE_Msk : 0u);
    return true;
}

bool timer_take_match(TIMER_Type *timer)
{
    return take(timer, TIMER_PEND_MATCH_Msk);
}

void timer_set_capture(TIMER_Type *timer, timer_edge edge, bool interrupt)
{
    const uint32_t ctrl = timer->CTRL & ~(TIMER_CTRL_CAPIE_Msk | TIMER_CTRL_CAPEDGE_Msk);
    timer->CTRL = ctrl;
    timer->PEND = TIMER_PEND_CAPTURE_Msk | TIMER_PEND_OVERRUN_Msk;
    timer->CTRL =
        ctrl | ((uint32_t)edge << TIMER_CTRL_CAPEDGE_Pos) | (interrupt ? TIMER_CTRL_CAPIE_Msk : 0u);
}

bool timer_take_capture(TIMER_Type *timer, uint32_t *left, bool *is_lost)
{
    const uint32_t flags = timer->PEND & (TIMER_PEND_CAPTURE_Msk | TIMER_PEND_OVERRUN_Msk);
    if (flags == 0u)
        return false;
    timer->PEND = flags; /* an edge from here on is told again */
    *left = (timer->CAPTURE & TIMER_CAPTURE_COUNT_Msk) >> TIMER_CAPTURE_COUNT_Pos;
    *is_lost = (flags & TIMER_PEND_OVERRUN_Msk) != 0u;
    return true;
}
