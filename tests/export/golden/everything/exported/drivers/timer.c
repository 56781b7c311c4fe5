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

bool timer_start(TIMER_Type *timer, uint32_t counts, timer_source source, bool interrupt)
{
    uint32_t ctrl = TIMER_CTRL_EN_Msk;
    if (counts == 0u || counts > TIMER_COUNTS_MAX)
        return false;
    if (source == TIMER_GATED)
        ctrl |= TIMER_CTRL_EXTGATE_Msk;
    if (source == TIMER_EXTERNAL)
        ctrl |= TIMER_CTRL_EXTCLK_Msk;
    if (interrupt)
        ctrl |= TIMER_CTRL_IE_Msk;
    timer->CTRL = 0u;
    timer->VALUE = counts - 1u;
    timer->RELOAD = counts - 1u;
    timer->PEND = TIMER_PEND_WRAP_Msk;
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

uint32_t timer_left(const TIMER_Type *timer)
{
    return (timer->VALUE & TIMER_VALUE_COUNT_Msk) >> TIMER_VALUE_COUNT_Pos;
}

bool timer_take(TIMER_Type *timer)
{
    if ((timer->PEND & TIMER_PEND_WRAP_Msk) == 0u)
        return false;
    timer->PEND = TIMER_PEND_WRAP_Msk;
    return true;
}

bool timer_wait(TIMER_Type *timer, uint32_t polls)
{
    do {
        if (timer_take(timer))
            return true;
    } while (polls-- > 1u);
    return false;
}
