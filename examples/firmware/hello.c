/* Says hello on UART0 and ends. */
#include "system_tarvo_orix_m1.h"
#include "uart.h"

int main(void)
{
    static const char text[] = "hello, world\n";

    if (uart_init(UART0, SystemCoreClock, 1000000u) != UART_OK)
        return 1;
    if (uart_write(UART0, text, sizeof text - 1, 100000u) != sizeof text - 1)
        return 2;
    if (uart_flush(UART0, 100000u) != UART_OK)
        return 3;
    return 0;
}
