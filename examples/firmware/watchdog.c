/* Gives signs of life for a while, then none: the watchdog interrupts, and resets the system. What
 * happened stands in memory that start-up leaves alone, and after the reset the program says on
 * UART0 why it runs again. */
#include "system_tarvo_orix_m1.h"
#include "uart.h"
#include "wdog.h"

enum { period = 1000 /* clock cycles */, signs = 4 };

static const uint32_t magic = 0x57415443u; /* memory that has just got power holds anything */

static struct {
    uint32_t magic;
    uint32_t warnings; /* interrupts of the watchdog */
} kept __attribute__((section(".noinit")));

void NMI_Handler(void)
{
    ++kept.warnings; /* and no sign of life, which would take the interrupt back */
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

    kept.magic = magic;
    kept.warnings = 0u;
    if (!wdog_start(WDOG, period, true))
        return 2;
    for (i = 0; i < signs; ++i) {
        while (wdog_left(WDOG) > period / 2u) {
        }
        wdog_kick(WDOG);
    }
    if (kept.warnings != 0u || wdog_is_pending(WDOG))
        return 3;
    for (i = 0; i < 10u * period; ++i)
        __asm__ volatile("");
    return kept.warnings == 0u ? 4 : 5; /* no interrupt; no reset */
}

int main(void)
{
    if (uart_init(UART0, SystemCoreClock, 3125000u) != UART_OK)
        return 1;
    if (kept.magic != magic) {
        print("power on\n");
        return stop_living();
    }
    kept.magic = 0u; /* the next start is another matter */
    if (kept.warnings == 0u)
        return 6;
    print("reset by the watchdog\n");
    return wdog_is_pending(WDOG) ? 7 : 0;
}
