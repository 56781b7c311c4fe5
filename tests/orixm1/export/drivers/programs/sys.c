#include "drivers/sys.h"

#include "far.h"

enum { ADDRESS, FAIL, RESET, IRQ, LIMIT, LOCKUP_RESET };

/* Of FAIL: data or instruction, size, direction, cause. */
#define ACCESS(data, size, write, cause) (data << 5 | size << 3 | write << 2 | cause)

void test(void)
{
    sys_error error;
    uint32_t cause;
    /* Causes of resets. */
    EQUAL(sys_reset_causes(SYS), SYS_RESETCAUSE_POWERON_Msk);
    EQUAL(sys_take_reset_causes(SYS), SYS_RESETCAUSE_POWERON_Msk);
    EQUAL(sys_reset_causes(SYS), 0u);
    sys_keep(SYS, 0xCAFE1234u);
    FAR(RESET) = 1u;
    EQUAL(sys_reset_causes(SYS), SYS_RESETCAUSE_WATCHDOG_Msk);
    FAR(RESET) = 2u;
    EQUAL(sys_take_reset_causes(SYS), SYS_RESETCAUSE_WATCHDOG_Msk | SYS_RESETCAUSE_SOFTWARE_Msk);
    FAR(RESET) = 4u;
    EQUAL(sys_take_reset_causes(SYS), SYS_RESETCAUSE_LOCKUP_Msk);
    FAR(RESET) = 8u;
    EQUAL(sys_take_reset_causes(SYS), SYS_RESETCAUSE_DEBUG_Msk);
    EQUAL(sys_take_reset_causes(SYS), 0u);
    EQUAL(sys_kept(SYS), 0xCAFE1234u);
    /* Switches, which leave each other alone. */
    EQUAL(FAR(LOCKUP_RESET), 0u);
    sys_reset_on_lockup(SYS, true);
    sys_enable_error_interrupt(SYS, true);
    EQUAL(FAR(LOCKUP_RESET), 1u);
    EQUAL(SYS->CTRL, SYS_CTRL_LOCKUPRST_Msk | SYS_CTRL_ERRIE_Msk);
    sys_reset_on_lockup(SYS, false);
    EQUAL(FAR(LOCKUP_RESET), 0u);
    EQUAL(SYS->CTRL, SYS_CTRL_ERRIE_Msk);
    EQUAL(FAR(LIMIT), 0x3FFFFu);
    EQUAL(sys_set_bus_timeout(SYS, 0u), true);
    EQUAL(FAR(LIMIT), 0u);
    EQUAL(sys_set_bus_timeout(SYS, 262143u), true);
    EQUAL(FAR(LIMIT), 262143u);
    EQUAL(sys_set_bus_timeout(SYS, 1234u), true);
    EQUAL(sys_set_bus_timeout(SYS, 262144u), false);
    EQUAL(sys_set_bus_timeout(SYS, 0xFFFFFFFFu), false);
    EQUAL(FAR(LIMIT), 1234u);
    /* Errors. */
    EQUAL(sys_has_error(SYS), false);
    EQUAL(sys_take_error(SYS, &error), false);
    EQUAL(FAR(IRQ), 0u);
    for (cause = 0u; cause < 4u; ++cause) {
        FAR(ADDRESS) = 0x82000000u + cause;
        FAR(FAIL) = ACCESS(1u, 2u, 1u, cause);
        EQUAL(sys_has_error(SYS), true);
        EQUAL(FAR(IRQ), 1u);
        EQUAL(sys_take_error(SYS, &error), true);
        EQUAL(error.address, 0x82000000u + cause);
        EQUAL(error.cause, cause);
        EQUAL(error.bytes, 4u);
        EQUAL(error.is_write, true);
        EQUAL(error.is_fetch, false);
        EQUAL(error.more, false);
        EQUAL(sys_cause_name(error.cause) != sys_cause_name((sys_cause)(cause ^ 1u)), true);
        EQUAL(sys_cause_name(error.cause)[0] != '\0', true);
        EQUAL(FAR(IRQ), 0u);
        EQUAL(sys_has_error(SYS), false);
    }
    EQUAL(sys_take_error(SYS, &error), false);
    FAR(FAIL) = ACCESS(1u, 0u, 0u, SYS_CAUSE_SLAVE);
    FAR(ADDRESS) = 0xFFFFFFFCu;
    FAR(FAIL) = ACCESS(0u, 1u, 0u, SYS_CAUSE_TIMEOUT);
    sys_enable_error_interrupt(SYS, false);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(sys_take_error(SYS, &error), true);
    EQUAL(error.address, 0xFFFFFFFCu);
    EQUAL(error.bytes, 2u);
    EQUAL(error.cause, SYS_CAUSE_TIMEOUT);
    EQUAL(error.is_write, false);
    EQUAL(error.is_fetch, true);
    EQUAL(error.more, true);
    EQUAL(sys_take_error(SYS, &error), false);
    EQUAL(sys_reset_causes(SYS), 0u);
}
