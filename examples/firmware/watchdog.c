/* Gives signs of life for a while, then none: the watchdog interrupts, and resets the system. What
 * the reset was for stands in SYS, and so do the interrupts that were counted: after the reset the
 * program says on UART0 why it runs again. */
#include "sys.h"
#include "system_tarvo_orix_m1.h"
#include "uart.h"
#include "wdog.h"

enum { period = 1000 /* clock cycles */, signs = 4 };

void NMI_Handler(void)
{
    sys_keep(SYS, sys_kept(SYS) + 1u); /* and no sign of life, which would take it back */
}

static void print(const char *text)
{
    for (; *text != '\0'; ++text)
        (void)uart_put(UART0, (uint8_t)*text, 10000u);
    (void)uart_flush(UART0, 10000u);
}

/* Returns if the watchdog does not do its duty. */
static int stop_living(void)
{
    uint32_t i;

    sys_keep(SYS, 0u);
    if (!wdog_start(WDOG, period, true))
        return 2;
    for (i = 0; i < signs; ++i) {
        while (wdog_left(WDOG) > period / 2u) {
        }
        wdog_kick(WDOG);
    }
    if (sys_kept(SYS) != 0u || wdog_is_pending(WDOG))
        return 3;
    for (i = 0; i < 10u * period; ++i)
        __asm__ volatile("");
    return sys_kept(SYS) == 0u ? 4 : 5; /* no interrupt; no reset */
}

int main(void)
{
    uint32_t causes;

    if (uart_init(UART0, SystemCoreClock, 3125000u) != UART_OK)
        return 1;
    causes = sys_take_reset_causes(SYS); /* the next reset is another matter */
    if ((causes & (SYS_RESETCAUSE_POWERON_Msk | SYS_RESETCAUSE_PIN_Msk)) != 0u) {
        print("power on\n");
        return stop_living();
    }
    if (causes != SYS_RESETCAUSE_WATCHDOG_Msk)
        return 6;
    if (sys_kept(SYS) == 0u)
        return 7;
    print("reset by the watchdog\n");
    return wdog_is_pending(WDOG) ? 8 : 0;
}
