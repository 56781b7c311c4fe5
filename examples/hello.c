/* Says hello on UART0 at 115200 bit/s and counts on the pins of the GPIO; the clock is 50 MHz. */
#include "gpio.h"
#include "uart.h"

int main(void)
{
    static const char text[] = "hello\r\n";
    uint32_t count = 0;

    gpio_set_direction(GPIO, 0xFFFFu, true);
    uart_init(UART0, 50000000u, 115200u);
    for (;;) {
        gpio_write(GPIO, 0xFFFFu, count++);
        uart_write(UART0, text, sizeof text - 1, 100000u);
    }
}
