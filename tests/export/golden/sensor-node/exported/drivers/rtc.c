#include "rtc.h"

static bool take(RTC_Type *rtc, uint32_t flag)
{
    if ((rtc->PEND & flag) == 0u)
        return false;
    rtc->PEND = flag; /* the others stay */
    return true;
}

bool rtc_start(RTC_Type *rtc, uint32_t source_hz)
{
    const uint32_t cycles = source_hz - 1u;
    if (source_hz == 0u || cycles > (RTC_PRESCALE_CYCLES_Msk >> RTC_PRESCALE_CYCLES_Pos))
        return false;
    rtc->CTRL = 0u;
    rtc->TICK = 0u;
    rtc->PRESCALE = cycles << RTC_PRESCALE_CYCLES_Pos;
    rtc->SECONDS = rtc->SECONDS; /* begins the second anew */
    rtc->PEND = RTC_PEND_ALARM_Msk | RTC_PEND_SECOND_Msk | RTC_PEND_TICK_Msk;
    rtc->CTRL = RTC_CTRL_EN_Msk;
    return true;
}

void rtc_stop(RTC_Type *rtc)
{
    rtc->CTRL = 0u;
}

bool rtc_is_set(const RTC_Type *rtc)
{
    return (rtc->STATUS & RTC_STATUS_SET_Msk) != 0u;
}

void rtc_set(RTC_Type *rtc, uint32_t seconds)
{
    rtc->SECONDS = seconds;
}

void rtc_set_fine(RTC_Type *rtc, uint32_t seconds, uint32_t cycles)
{
    rtc->SUBSECOND = (cycles << RTC_SUBSECOND_CYCLES_Pos) & RTC_SUBSECOND_CYCLES_Msk;
    rtc->SECONDS = seconds;
}

uint32_t rtc_get_fine(const RTC_Type *rtc, uint32_t *cycles)
{
    const uint32_t seconds = rtc->SECONDS; /* has the sub-second kept */
    *cycles = (rtc->SUBSECOND & RTC_SUBSECOND_CYCLES_Msk) >> RTC_SUBSECOND_CYCLES_Pos;
    return seconds;
}

bool rtc_calibrate(RTC_Type *rtc, int32_t ppb)
{
    const uint32_t size = ppb < 0 ? 0u - (uint32_t)ppb : (uint32_t)ppb;
    uint32_t steps;
    if (size > 1953125u)
        return false;
    steps = (size * 2048u + 976562u) / 1953125u; /* of 10^9 / 2^20, rounded */
    if (steps > (ppb < 0 ? 2048u : 2047u))
        return false;
    rtc->CALIB = (ppb < 0 ? 0u - steps : steps) & RTC_CALIB_STEPS_Msk;
    return true;
}

uint32_t rtc_get(const RTC_Type *rtc)
{
    return rtc->SECONDS;
}

bool rtc_set_alarm(RTC_Type *rtc, uint32_t seconds, bool interrupt)
{
    uint32_t ahead;
    rtc->CTRL = rtc->CTRL & ~(RTC_CTRL_ALARMIE_Msk | RTC_CTRL_LATE_Msk);
    rtc->ALARMSTEP = 0u;
    rtc->ALARMMASK = RTC_ALARMMASK_BITS_Msk;
    rtc->ALARM = seconds;
    rtc->PEND = RTC_PEND_ALARM_Msk; /* may be that of the old alarm */
    ahead = seconds - rtc->SECONDS;
    /* One that came right after the clearing is a proper one. */
    if ((ahead == 0u || ahead >= 0x80000000u) && (rtc->PEND & RTC_PEND_ALARM_Msk) == 0u)
        return false;
    if (interrupt)
        rtc->CTRL = rtc->CTRL | RTC_CTRL_ALARMIE_Msk;
    return true;
}

bool rtc_set_alarm_every(RTC_Type *rtc, uint32_t first, uint32_t step, bool interrupt)
{
    if (step == 0u || step > (RTC_ALARMSTEP_SECONDS_Msk >> RTC_ALARMSTEP_SECONDS_Pos))
        return false;
    rtc_cancel_alarm(rtc);
    rtc->ALARMSTEP = step << RTC_ALARMSTEP_SECONDS_Pos;
    rtc->ALARM = first;
    rtc->CTRL = rtc->CTRL | RTC_CTRL_LATE_Msk | (interrupt ? RTC_CTRL_ALARMIE_Msk : 0u);
    return true;
}

void rtc_set_alarm_matching(RTC_Type *rtc, uint32_t seconds, uint32_t mask, bool interrupt)
{
    rtc_cancel_alarm(rtc);
    rtc->ALARM = seconds; /* comes only with the mask: the time of both may be past */
    rtc->ALARMMASK = mask;
    if (interrupt)
        rtc->CTRL = rtc->CTRL | RTC_CTRL_ALARMIE_Msk;
}

void rtc_cancel_alarm(RTC_Type *rtc)
{
    rtc->CTRL = rtc->CTRL & ~(RTC_CTRL_ALARMIE_Msk | RTC_CTRL_LATE_Msk);
    rtc->ALARMSTEP = 0u;
    rtc->ALARMMASK = RTC_ALARMMASK_BITS_Msk;
    rtc->ALARM = rtc->SECONDS; /* a time that is past */
    rtc->PEND = RTC_PEND_ALARM_Msk;
}

bool rtc_take_alarm(RTC_Type *rtc)
{
    return take(rtc, RTC_PEND_ALARM_Msk);
}

void rtc_enable_alarm_interrupt(RTC_Type *rtc, bool on)
{
    if (on)
        rtc->CTRL = rtc->CTRL | RTC_CTRL_ALARMIE_Msk;
    else
        rtc->CTRL = rtc->CTRL & ~RTC_CTRL_ALARMIE_Msk;
}

bool rtc_set_tick(RTC_Type *rtc, uint32_t cycles, bool interrupt)
{
    const uint32_t ctrl = rtc->CTRL & ~RTC_CTRL_TICKIE_Msk;
    if (cycles > (RTC_TICK_CYCLES_Msk >> RTC_TICK_CYCLES_Pos))
        return false;
    rtc->CTRL = ctrl;
    rtc->TICK = cycles << RTC_TICK_CYCLES_Pos;
    rtc->PEND = RTC_PEND_TICK_Msk;
    if (interrupt && cycles != 0u)
        rtc->CTRL = ctrl | RTC_CTRL_TICKIE_Msk;
    return true;
}

bool rtc_take_tick(RTC_Type *rtc)
{
    return take(rtc, RTC_PEND_TICK_Msk);
}

void rtc_enable_second_interrupt(RTC_Type *rtc, bool on)
{
    if (on)
        rtc->CTRL = rtc->CTRL | RTC_CTRL_SECONDIE_Msk;
    else
        rtc->CTRL = rtc->CTRL & ~RTC_CTRL_SECONDIE_Msk;
}

bool rtc_take_second(RTC_Type *rtc)
{
    return take(rtc, RTC_PEND_SECOND_Msk);
}

bool rtc_wait_second(RTC_Type *rtc, uint32_t polls)
{
    do {
        if (rtc_take_second(rtc))
            return true;
    } while (polls-- > 1u);
    return false;
}
