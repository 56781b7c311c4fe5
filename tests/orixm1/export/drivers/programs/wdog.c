#include "drivers/wdog.h"

#include "far.h"

enum { NMI, AFTER_NMI, RESETS, AFTER_RESET };

void test(void)
{
    uint32_t i;
    EQUAL(wdog_is_locked(WDOG), false);
    EQUAL(wdog_start(WDOG, 0u, true), false);
    EQUAL(WDOG->CTRL, 0u);
    wdog_lock(WDOG);
    EQUAL(wdog_is_locked(WDOG), true);
    EQUAL(wdog_start(WDOG, 0xFFFFFFFFu, true), true); /* although it is locked */
    EQUAL(wdog_is_locked(WDOG), true);
    EQUAL(WDOG->LOAD, 0xFFFFFFFEu);
    EQUAL(WDOG->CTRL, WDOG_CTRL_EN_Msk | WDOG_CTRL_RSTEN_Msk);
    WDOG->LOAD = 5u;
    WDOG->CTRL = 0u;
    EQUAL(WDOG->LOAD, 0xFFFFFFFEu);
    EQUAL(WDOG->CTRL, WDOG_CTRL_EN_Msk | WDOG_CTRL_RSTEN_Msk);
    /* With signs of life nothing happens. */
    EQUAL(wdog_start(WDOG, 300u, true), true);
    for (i = 0u; i < 10u; ++i) {
        IDLE(200u);
        EQUAL(wdog_left(WDOG) < 110u, true);
        wdog_kick(WDOG);
        EQUAL(wdog_left(WDOG) > 250u, true);
    }
    EQUAL(FAR(NMI), 0u);
    /* Without them: interrupt, then reset. */
    wdog_kick(WDOG);
    IDLE(400u);
    EQUAL(FAR(NMI), 1u);
    EQUAL(FAR(AFTER_NMI), 300u);
    EQUAL(wdog_is_pending(WDOG), true);
    EQUAL(FAR(RESETS), 0u);
    IDLE(300u);
    EQUAL(FAR(RESETS), 1u);
    EQUAL(FAR(AFTER_RESET), 600u);
    /* A sign of life after the interrupt is in time. */
    wdog_kick(WDOG);
    EQUAL(wdog_is_pending(WDOG), false);
    EQUAL(FAR(NMI), 0u);
    IDLE(400u);
    EQUAL(FAR(NMI), 1u);
    wdog_kick(WDOG);
    IDLE(250u);
    EQUAL(FAR(RESETS), 1u);
    /* Begun anew, the first period counts from there and the interrupt is gone. */
    IDLE(100u);
    EQUAL(FAR(NMI), 1u);
    EQUAL(wdog_start(WDOG, 200u, false), true);
    EQUAL(FAR(NMI), 0u);
    IDLE(1000u);
    EQUAL(FAR(AFTER_NMI), 200u);
    EQUAL(FAR(NMI), 1u);
    EQUAL(FAR(RESETS), 1u); /* not allowed */
    wdog_stop(WDOG);
    EQUAL(FAR(NMI), 0u);
    EQUAL(WDOG->CTRL, 0u);
    EQUAL(wdog_is_locked(WDOG), true);
    IDLE(1000u);
    EQUAL(FAR(NMI), 0u);
    wdog_unlock(WDOG);
    EQUAL(wdog_is_locked(WDOG), false);
}
