#include "rtc.h"

static bool take(RTC_Type *rtc, uint32_t flag)
{
    if ((rtc->PEND & flag) == 0u)
        return false;
    rtc->PEND = flag; /* the other one stays */
    return true;
}

bool rtc_start(RTC_Type *rtc, uint32_t source_hz)
{
    const uint32_t cycles = source_hz - 1u;
    if (source_hz == 0u || cycles > (RTC_PRESCALE_CYCLES_Msk >> RTC_PRESCALE_CYCLES_Pos))
        return false;
    rtc->CTRL = 0u;
    rtc->PRESCALE = cycles << RTC_PRESCALE_CYCLES_Pos;
    rtc->SECONDS = rtc->SECONDS; /* begins the second anew */
    rtc->PEND = RTC_PEND_ALARM_Msk | RTC_PEND_SECOND_Msk;
    rtc->CTRL = RTC_CTRL_EN_Msk;
    return true;
}

void rtc_stop(RTC_Type *rtc)
{
    rtc->CTRL = 0u;
}

void rtc_set(RTC_Type *rtc, uint32_t seconds)
{
    rtc->SECONDS = seconds;
}

uint32_t rtc_get(const RTC_Type *rtc)
{
    return rtc->SECONDS;
}

bool rtc_set_alarm(RTC_Type *rtc, uint32_t seconds, bool interrupt)
{
    uint32_t ahead;
    rtc->CTRL = rtc->CTRL & ~RTC_CTRL_ALARMIE_Msk;
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

void rtc_cancel_alarm(RTC_Type *rtc)
{
    rtc->CTRL = rtc->CTRL & ~RTC_CTRL_ALARMIE_Msk;
    rtc->ALARM = rtc->SECONDS; /* a time that is past */
    rtc->PEND = RTC_PEND_ALARM_Msk;
}

bool rtc_take_alarm(RTC_Type *rtc)
{
    return take(rtc, RTC_PEND_ALARM_Msk);
}

void rtc_enable_second_interrupt(RTC_Type *rtc, bool enabled)
{
    if (enabled)
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
