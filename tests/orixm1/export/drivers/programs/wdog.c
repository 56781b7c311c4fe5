#include "drivers/wdog.h"

#include "far.h"

enum { HALTED, RESET };
enum { NMI, AFTER_NMI, RESETS, AFTER_RESET };

static void window(void)
{
    EQUAL(wdog_start_window(WDOG, 300u, 0u, false), false);
    EQUAL(wdog_start_window(WDOG, 300u, 301u, false), false);
    EQUAL(wdog_start_window(WDOG, 300u, 100u, false), true);
    IDLE(230u);
    wdog_kick(WDOG);
    EQUAL(wdog_is_pending(WDOG), false);
    EQUAL(wdog_left(WDOG) > 280u, true);
    IDLE(100u);
    wdog_kick(WDOG); /* too early */
    EQUAL(wdog_is_pending(WDOG), true);
    EQUAL(wdog_was_early(WDOG), true);
    EQUAL(FAR(NMI), 1u);
    wdog_kick(WDOG);
    EQUAL(wdog_is_pending(WDOG), false);
    EQUAL(wdog_was_early(WDOG), false);
    IDLE(320u);
    EQUAL(wdog_is_pending(WDOG), true);
    EQUAL(wdog_was_early(WDOG), false);
    EQUAL(FAR(RESETS), 1u);
    EQUAL(wdog_start_window(WDOG, 300u, 300u, true), true);
    wdog_kick(WDOG); /* the whole period */
    EQUAL(wdog_is_pending(WDOG), false);
    EQUAL(wdog_start_window(WDOG, 300u, 100u, true), true);
    IDLE(50u);
    wdog_kick(WDOG);
    IDLE(3u);
    EQUAL(FAR(RESETS), 2u); /* at once */
    EQUAL(wdog_start(WDOG, 300u, true), true);
    wdog_kick(WDOG); /* there is no window any more */
    EQUAL(wdog_is_pending(WDOG), false);
}

static void debugger(void)
{
    EQUAL(wdog_start(WDOG, 300u, true), true);
    FAR(HALTED) = 1u;
    IDLE(1000u);
    EQUAL(FAR(NMI), 0u);
    EQUAL(wdog_left(WDOG) > 200u, true);
    EQUAL(wdog_count_while_halted(WDOG, true), true);
    EQUAL(wdog_is_locked(WDOG), true);
    IDLE(320u);
    EQUAL(FAR(NMI), 1u);
    wdog_kick(WDOG);
    EQUAL(wdog_count_while_halted(WDOG, false), true);
    IDLE(1000u);
    EQUAL(FAR(NMI), 0u);
    FAR(HALTED) = 0u;
    IDLE(320u);
    EQUAL(FAR(NMI), 1u);
}

static void seal(void)
{
    EQUAL(wdog_start(WDOG, 300u, false), true);
    EQUAL(wdog_is_sealed(WDOG), false);
    wdog_seal(WDOG);
    EQUAL(wdog_is_sealed(WDOG), true);
    wdog_unlock(WDOG);
    EQUAL(wdog_is_locked(WDOG), true);
    IDLE(100u);
    EQUAL(wdog_start(WDOG, 5u, true), false);
    EQUAL(wdog_start_window(WDOG, 5u, 5u, true), false);
    EQUAL(wdog_stop(WDOG), false);
    EQUAL(wdog_count_while_halted(WDOG, true), false);
    EQUAL(wdog_left(WDOG) < 200u, true); /* none of them was a sign of life */
    EQUAL(WDOG->LOAD, 299u);
    EQUAL(WDOG->CTRL, WDOG_CTRL_EN_Msk);
    wdog_kick(WDOG);
    EQUAL(wdog_left(WDOG) > 280u, true);
    FAR(RESET) = 1u;
    EQUAL(wdog_is_sealed(WDOG), false);
    EQUAL(wdog_is_locked(WDOG), false);
    EQUAL(WDOG->CTRL, 0u);
}

void test(void)
{
    uint32_t i;
    EQUAL((WDOG->ID & WDOG_ID_BLOCK_Msk) >> WDOG_ID_BLOCK_Pos, 6u);
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
    EQUAL(wdog_stop(WDOG), true);
    EQUAL(FAR(NMI), 0u);
    EQUAL(WDOG->CTRL, 0u);
    EQUAL(wdog_is_locked(WDOG), true);
    IDLE(1000u);
    EQUAL(FAR(NMI), 0u);
    wdog_unlock(WDOG);
    EQUAL(wdog_is_locked(WDOG), false);
    window();
    debugger();
    seal();
}
