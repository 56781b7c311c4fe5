#include "dtimer.h"

/* Both counters have the same fields. */
#define CTRL_EN DTIMER_CTRL1_EN_Msk
#define CTRL_IE DTIMER_CTRL1_IE_Msk
#define CTRL_ONESHOT DTIMER_CTRL1_ONESHOT_Msk
#define CTRL_CMPEN DTIMER_CTRL1_CMPEN_Msk
#define CTRL_CMPIE DTIMER_CTRL1_CMPIE_Msk
#define CTRL_PRESCALE_Pos DTIMER_CTRL1_PRESCALE_Pos
#define PEND_WRAP DTIMER_PEND1_WRAP_Msk
#define PEND_MATCH DTIMER_PEND1_MATCH_Msk

static uint32_t get_ctrl(const DTIMER_Type *dtimer, dtimer_counter counter)
{
    return counter == DTIMER_COUNTER_1 ? dtimer->CTRL1 : dtimer->CTRL2;
}

static void set_ctrl(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t value)
{
    if (counter == DTIMER_COUNTER_1)
        dtimer->CTRL1 = value;
    else
        dtimer->CTRL2 = value;
}

static void set_value(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t value)
{
    if (counter == DTIMER_COUNTER_1)
        dtimer->VALUE1 = value;
    else
        dtimer->VALUE2 = value;
}

static void set_reload(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t value)
{
    if (counter == DTIMER_COUNTER_1)
        dtimer->RELOAD1 = value;
    else
        dtimer->RELOAD2 = value;
}

static void set_compare(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t value)
{
    if (counter == DTIMER_COUNTER_1)
        dtimer->COMPARE1 = value;
    else
        dtimer->COMPARE2 = value;
}

static void clear_pend(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t flags)
{
    if (counter == DTIMER_COUNTER_1)
        dtimer->PEND1 = flags;
    else
        dtimer->PEND2 = flags;
}

static bool take(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t flag)
{
    if (((counter == DTIMER_COUNTER_1 ? dtimer->PEND1 : dtimer->PEND2) & flag) == 0u)
        return false;
    clear_pend(dtimer, counter, flag); /* the other one stays */
    return true;
}

bool dtimer_start(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t counts, uint32_t prescale,
                  dtimer_kind kind, bool interrupt)
{
    uint32_t ctrl = CTRL_EN | (get_ctrl(dtimer, counter) & (CTRL_CMPEN | CTRL_CMPIE));
    if (counts == 0u || prescale == 0u || prescale > DTIMER_PRESCALE_MAX)
        return false;
    ctrl |= (prescale - 1u) << CTRL_PRESCALE_Pos;
    if (kind == DTIMER_ONCE)
        ctrl |= CTRL_ONESHOT;
    if (interrupt)
        ctrl |= CTRL_IE;
    set_ctrl(dtimer, counter, 0u);
    set_value(dtimer, counter, counts - 1u);
    set_reload(dtimer, counter, counts - 1u);
    clear_pend(dtimer, counter, PEND_WRAP | PEND_MATCH);
    set_ctrl(dtimer, counter, ctrl);
    return true;
}

bool dtimer_set_period(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t counts)
{
    if (counts == 0u)
        return false;
    set_reload(dtimer, counter, counts - 1u);
    return true;
}

void dtimer_stop(DTIMER_Type *dtimer, dtimer_counter counter)
{
    set_ctrl(dtimer, counter, 0u);
}

bool dtimer_is_running(const DTIMER_Type *dtimer, dtimer_counter counter)
{
    return (get_ctrl(dtimer, counter) & CTRL_EN) != 0u;
}

uint32_t dtimer_left(const DTIMER_Type *dtimer, dtimer_counter counter)
{
    return counter == DTIMER_COUNTER_1 ? dtimer->VALUE1 : dtimer->VALUE2;
}

bool dtimer_take(DTIMER_Type *dtimer, dtimer_counter counter)
{
    return take(dtimer, counter, PEND_WRAP);
}

bool dtimer_wait(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t polls)
{
    do {
        if (dtimer_take(dtimer, counter))
            return true;
    } while (polls-- > 1u);
    return false;
}

bool dtimer_set_compare(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t left, bool interrupt)
{
    if (dtimer_is_running(dtimer, counter))
        return false;
    set_compare(dtimer, counter, left);
    set_ctrl(dtimer, counter, CTRL_CMPEN | (interrupt ? CTRL_CMPIE : 0u));
    return true;
}

bool dtimer_move_compare(DTIMER_Type *dtimer, dtimer_counter counter, uint32_t left)
{
    if ((get_ctrl(dtimer, counter) & CTRL_CMPEN) == 0u)
        return false;
    set_compare(dtimer, counter, left);
    return true;
}

bool dtimer_take_match(DTIMER_Type *dtimer, dtimer_counter counter)
{
    return take(dtimer, counter, PEND_MATCH);
}
