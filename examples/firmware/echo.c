/* Sends back on UART0 what comes in there, both ways in interrupts: one for half a FIFO or for what
 * has waited long enough, one for room to send. An empty line is the last one. */
#include "system_tarvo_orix_m1.h"
#include "uart.h"

enum { room = 64 }; /* bytes that wait to be sent; a power of two */

static uint8_t ring[room];
static uint32_t received, sent; /* bytes */
static uint8_t last = '\n';
static bool is_last_line;
static volatile bool is_done;
static volatile uint32_t errors;

static void receive(void)
{
    uint8_t bytes[16];
    const uint32_t count = uart_read_some(UART0, bytes, sizeof bytes);
    uint32_t i;

    for (i = 0; i < count && !is_last_line; ++i) {
        if (received - sent == room)
            errors |= UART_STATUS_RXOVER_Msk;
        ring[received++ % room] = bytes[i];
        is_last_line = bytes[i] == '\n' && last == '\n';
        last = bytes[i];
    }
}

void UART0_IRQHandler(void)
{
    errors |= uart_take_errors(UART0);
    receive();
    while (sent != received && uart_write_some(UART0, &ring[sent % room], 1u) == 1u)
        ++sent;
    if (sent != received) {
        uart_enable_interrupts(UART0, UART_CTRL_TXIE_Msk);
    } else {
        uart_disable_interrupts(UART0, UART_CTRL_TXIE_Msk);
        is_done = is_last_line;
    }
}

int main(void)
{
    if (uart_init(UART0, SystemCoreClock, 3125000u) != UART_OK)
        return 1;
    if (uart_set_thresholds(UART0, 8u, 8u) != UART_OK || uart_set_timeout(UART0, 30u) != UART_OK)
        return 1;
    uart_enable_interrupts(UART0,
                           UART_CTRL_RXIE_Msk | UART_CTRL_TIMEOUTIE_Msk | UART_CTRL_ERRIE_Msk);
    SCS->NVIC_ISER = 1u << UART0_IRQn;
    for (;;) {
        /* An interrupt that comes before the instruction ends the sleep too: it is only held back.
         */
        __asm__ volatile("cpsid i" ::: "memory");
        if (!is_done)
            __asm__ volatile("wfi");
        __asm__ volatile("cpsie i" ::: "memory");
        if (is_done)
            return errors == 0u ? 0 : 2;
    }
}
