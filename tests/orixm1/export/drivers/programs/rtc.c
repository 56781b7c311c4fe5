#include "drivers/rtc.h"

#include "far.h"

static const uint32_t enough = 500u;

enum { STOPPED };
enum { IRQ, SECOND };

static void seconds(void)
{
    EQUAL(rtc_start(RTC, 0u), false);
    EQUAL(rtc_start(RTC, 0x1000001u), false);
    EQUAL(RTC->PRESCALE, 32767u);
    EQUAL(rtc_start(RTC, 0x1000000u), true);
    EQUAL(RTC->PRESCALE, 0xFFFFFFu);
    EQUAL(rtc_start(RTC, 20u), true);
    rtc_set(RTC, 1000u);
    EQUAL(rtc_get(RTC), 1000u);
    EQUAL(rtc_wait_second(RTC, enough), true);
    EQUAL(rtc_get(RTC), 1001u);
    EQUAL(rtc_take_second(RTC), false);
    EQUAL(rtc_wait_second(RTC, enough), true);
    EQUAL(FAR(SECOND), 160u);
    EQUAL(rtc_get(RTC), 1002u);
    EQUAL(FAR(IRQ), 0u);
    rtc_enable_second_interrupt(RTC, true);
    EQUAL(FAR(IRQ), 0u);
    IDLE(170u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(rtc_take_second(RTC), true);
    EQUAL(FAR(IRQ), 0u);
    rtc_enable_second_interrupt(RTC, false);
    IDLE(170u);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(rtc_get(RTC), 1004u);
    /* Setting the time begins a second. */
    IDLE(100u);
    rtc_set(RTC, 0xFFFFFFFFu);
    (void)rtc_take_second(RTC);
    IDLE(120u);
    EQUAL(rtc_get(RTC), 0xFFFFFFFFu);
    EQUAL(rtc_wait_second(RTC, enough), true);
    EQUAL(rtc_get(RTC), 0u);
}

static void alarms(void)
{
    rtc_set(RTC, 50u);
    EQUAL(rtc_set_alarm(RTC, 52u, true), true);
    EQUAL(FAR(IRQ), 0u);
    IDLE(170u);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(rtc_take_alarm(RTC), false);
    IDLE(170u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(rtc_take_alarm(RTC), true);
    EQUAL(rtc_take_second(RTC), true); /* was left alone */
    EQUAL(FAR(IRQ), 0u);
    EQUAL(rtc_take_alarm(RTC), false);
    /* A time that is reached already, and one a wrap ahead. */
    rtc_set(RTC, 100u);
    EQUAL(rtc_set_alarm(RTC, 100u, true), false);
    EQUAL(rtc_set_alarm(RTC, 99u, true), false);
    EQUAL(rtc_set_alarm(RTC, 100u + 0x80000000u, true), false);
    EQUAL(RTC->CTRL, RTC_CTRL_EN_Msk);
    EQUAL(rtc_set_alarm(RTC, 100u + 0x7FFFFFFFu, true), true);
    EQUAL(RTC->CTRL, RTC_CTRL_EN_Msk | RTC_CTRL_ALARMIE_Msk);
    rtc_set(RTC, 0xFFFFFFFFu);
    EQUAL(rtc_set_alarm(RTC, 0u, false), true);
    IDLE(170u);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(rtc_take_alarm(RTC), true);
    /* An old alarm is forgotten with a new one, and with none. */
    rtc_set(RTC, 10u);
    EQUAL(rtc_set_alarm(RTC, 11u, true), true);
    IDLE(170u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(rtc_set_alarm(RTC, 20u, true), true);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(rtc_set_alarm(RTC, 12u, true), true);
    rtc_cancel_alarm(RTC);
    IDLE(400u);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(rtc_take_alarm(RTC), false);
}

static void standstill(void)
{
    uint32_t now;
    FAR(STOPPED) = 1u;
    (void)rtc_take_second(RTC);
    now = rtc_get(RTC);
    EQUAL(rtc_wait_second(RTC, 100u), false);
    EQUAL(rtc_wait_second(RTC, 0u), false);
    FAR(STOPPED) = 0u;
    EQUAL(rtc_wait_second(RTC, enough), true);
    EQUAL(rtc_get(RTC), now + 1u);
    IDLE(100u);
    rtc_stop(RTC);
    IDLE(400u);
    EQUAL(rtc_get(RTC), now + 1u);
    EQUAL(rtc_start(RTC, 20u), true); /* goes on from there, with a whole second */
    IDLE(120u);
    EQUAL(rtc_get(RTC), now + 1u);
    EQUAL(rtc_wait_second(RTC, enough), true);
    EQUAL(rtc_get(RTC), now + 2u);
}

void test(void)
{
    seconds();
    alarms();
    standstill();
}
