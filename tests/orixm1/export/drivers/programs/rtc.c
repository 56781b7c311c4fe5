#include "drivers/rtc.h"

#include "far.h"

static const uint32_t enough = 500u;

enum { STOPPED, RESET };
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
    rtc_set(RTC, 100u);
    EQUAL(rtc_set_alarm(RTC, 99u, true), false);
    rtc_set(RTC, 100u);
    EQUAL(rtc_set_alarm(RTC, 100u + 0x80000000u, true), false);
    EQUAL(RTC->CTRL, RTC_CTRL_EN_Msk);
    rtc_set(RTC, 100u);
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
    EQUAL(rtc_set_alarm(RTC, 13u, true), true);
    rtc_cancel_alarm(RTC);
    IDLE(600u);
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

static void fine(void)
{
    uint32_t cycles = 99u;
    rtc_set_fine(RTC, 70u, 18u);
    EQUAL(rtc_get_fine(RTC, &cycles) == 70u && cycles >= 18u, true);
    EQUAL(rtc_wait_second(RTC, 10u), true);
    EQUAL(rtc_get_fine(RTC, &cycles), 71u);
    EQUAL(cycles < 15u, true);
    rtc_set(RTC, 80u);
    EQUAL(rtc_get_fine(RTC, &cycles), 80u);
    EQUAL(cycles < 3u, true);
    IDLE(80u);
    EQUAL(rtc_get_fine(RTC, &cycles), 80u);
    EQUAL(cycles >= 10u && cycles < 20u, true);
    /* Calibration, in steps of 0.95 ppm. */
    EQUAL(rtc_calibrate(RTC, 1953126), false);
    EQUAL(rtc_calibrate(RTC, 1953125), false);
    EQUAL(rtc_calibrate(RTC, -1953126), false);
    EQUAL(rtc_calibrate(RTC, INT32_MIN), false);
    EQUAL(RTC->CALIB, 0u);
    EQUAL(rtc_calibrate(RTC, 1952648), true);
    EQUAL(RTC->CALIB, 0x7FFu);
    EQUAL(rtc_calibrate(RTC, -1953125), true);
    EQUAL(RTC->CALIB, 0x800u);
    EQUAL(rtc_calibrate(RTC, -954), true);
    EQUAL(RTC->CALIB, 0xFFFu);
    EQUAL(rtc_calibrate(RTC, 476), true);
    EQUAL(RTC->CALIB, 0u);
    EQUAL(rtc_calibrate(RTC, 488281), true);
    EQUAL(RTC->CALIB, 512u);
    /* 20 480 cycles of the source are 10 more. */
    EQUAL(rtc_start(RTC, 0x1000000u), true);
    IDLE(20480u * 8u);
    (void)rtc_get_fine(RTC, &cycles);
    EQUAL(cycles >= 20490u && cycles < 20494u, true);
    EQUAL(rtc_calibrate(RTC, 0), true);
    EQUAL(RTC->CALIB, 0u);
    EQUAL(rtc_start(RTC, 20u), true);
}

static void repeated_alarms(void)
{
    uint32_t i;
    rtc_set(RTC, 50u);
    EQUAL(rtc_set_alarm_every(RTC, 52u, 0u, true), false);
    EQUAL(rtc_set_alarm_every(RTC, 52u, 0x100000u, true), false);
    EQUAL(RTC->ALARMSTEP, 0u);
    EQUAL(rtc_set_alarm_every(RTC, 52u, 2u, true), true);
    EQUAL(FAR(IRQ), 0u);
    for (i = 0u; i < 3u; ++i) {
        IDLE(320u);
        EQUAL(FAR(IRQ), 1u);
        EQUAL(rtc_take_alarm(RTC), true);
        EQUAL(FAR(IRQ), 0u);
        EQUAL(rtc_get(RTC), 52u + 2u * i);
    }
    /* The time is set past some of them: one comes at once. */
    rtc_set(RTC, 101u);
    IDLE(120u);
    EQUAL(rtc_take_alarm(RTC), true);
    EQUAL(RTC->ALARM, 102u);
    EQUAL(rtc_take_alarm(RTC), false);
    rtc_set(RTC, 200u);
    EQUAL(rtc_set_alarm_every(RTC, 200u, 0xFFFFFu, false), true);
    EQUAL(rtc_take_alarm(RTC), true);
    EQUAL(rtc_take_alarm(RTC), false);
    /* By a mask. */
    rtc_set(RTC, 0x101u);
    rtc_set_alarm_matching(RTC, 3u, 3u, true);
    IDLE(330u);
    EQUAL(rtc_get(RTC), 0x103u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(rtc_take_alarm(RTC), true);
    IDLE(480u);
    EQUAL(rtc_take_alarm(RTC), false);
    IDLE(160u);
    EQUAL(rtc_get(RTC), 0x107u);
    EQUAL(rtc_take_alarm(RTC), true);
    /* A single one knows neither. */
    EQUAL(rtc_set_alarm(RTC, 0x109u, true), true);
    IDLE(320u);
    EQUAL(rtc_take_alarm(RTC), true);
    IDLE(640u);
    EQUAL(rtc_take_alarm(RTC), false);
    rtc_cancel_alarm(RTC);
    EQUAL(RTC->CTRL, RTC_CTRL_EN_Msk);
}

static void ticks(void)
{
    EQUAL(rtc_set_tick(RTC, 0x10000u, true), false);
    EQUAL(rtc_set_tick(RTC, 20u, true), true);
    EQUAL(FAR(IRQ), 0u);
    IDLE(170u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(rtc_take_tick(RTC), true);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(rtc_take_tick(RTC), false);
    IDLE(160u);
    EQUAL(rtc_take_tick(RTC), true);
    EQUAL(rtc_set_tick(RTC, 20u, false), true);
    IDLE(170u);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(rtc_take_tick(RTC), true);
    EQUAL(rtc_set_tick(RTC, 0u, true), true);
    IDLE(400u);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(rtc_take_tick(RTC), false);
}

static void resets(void)
{
    EQUAL(rtc_is_set(RTC), true);
    rtc_set(RTC, 300u);
    EQUAL(rtc_set_alarm_every(RTC, 301u, 2u, true), true);
    rtc_enable_second_interrupt(RTC, true);
    EQUAL(rtc_set_tick(RTC, 5u, true), true);
    FAR(RESET) = 1u;
    IDLE(170u);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(RTC->CTRL, RTC_CTRL_EN_Msk | RTC_CTRL_LATE_Msk);
    EQUAL(rtc_is_set(RTC), true);
    EQUAL(rtc_get(RTC), 301u);
    rtc_enable_alarm_interrupt(RTC, true);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(rtc_take_alarm(RTC), true);
    EQUAL(FAR(IRQ), 0u);
    IDLE(330u);
    EQUAL(FAR(IRQ), 1u);
    rtc_enable_alarm_interrupt(RTC, false);
    EQUAL(FAR(IRQ), 0u);
    rtc_cancel_alarm(RTC);
}

void test(void)
{
    EQUAL(rtc_is_set(RTC), false);
    EQUAL((RTC->ID & RTC_ID_BLOCK_Msk) >> RTC_ID_BLOCK_Pos, 5u);
    seconds();
    alarms();
    standstill();
    fine();
    repeated_alarms();
    ticks();
    resets();
}
