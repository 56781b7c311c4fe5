/* What the board of the simulation hands back: MISO follows MOSI, UART1 hears itself, and extension
 * ports have a memory behind them. UART1 hears itself without the board, too. Says on UART0 what
 * was found in order. */
#include "spi.h"
#include "system_tarvo_orix_m1.h"
#include "uart.h"

static const uint8_t patterns[] = {0x00u, 0xFFu, 0x55u, 0xAAu, 0x96u};

enum { count = sizeof patterns };

static void print(const char *text)
{
    for (; *text != '\0'; ++text)
        (void)uart_put(UART0, (uint8_t)*text, 10000u);
}

static bool spi_works(spi_mode mode, bool lowest_bit_first)
{
    uint8_t byte;
    int i;

    if (spi_init(SPI, SystemCoreClock, 12500000u, mode, lowest_bit_first) != SPI_OK)
        return false;
    spi_select(SPI, true);
    for (i = 0; i < count; ++i) {
        if (spi_exchange(SPI, patterns[i], &byte, 1000u) != SPI_OK || byte != patterns[i])
            return false;
    }
    spi_select(SPI, false);
    return true;
}

/* Words of 12 bits through the FIFOs at half the clock, in one selection; on the board, and within
 * the block, where nobody is selected. */
static bool spi_bursts_work(bool inside)
{
    static const uint32_t sent[] = {0x801u, 0x7FEu, 0x555u, 0xAAAu, 0x0F0u, 0xC3Cu};
    uint32_t received[sizeof sent / sizeof *sent];
    uint32_t i;

    if (spi_init(SPI, SystemCoreClock, SystemCoreClock / 2u, SPI_MODE_1, false) != SPI_OK ||
        spi_set_format(SPI, 12u, 0u) != SPI_OK || spi_set_loopback(SPI, inside) != SPI_OK ||
        spi_set_select(SPI, SPI_SELECT_BURST, 2u, 2u, 0u) != SPI_OK)
        return false;
    if (spi_transfer_words(SPI, sent, received, sizeof sent / sizeof *sent, 1000u) != SPI_OK)
        return false;
    for (i = 0; i < sizeof sent / sizeof *sent; ++i) {
        if (received[i] != sent[i])
            return false;
    }
    return spi_take_errors(SPI) == 0u;
}

static bool uart_works(void)
{
    uint8_t byte;
    int i;

    if (uart_init(UART1, SystemCoreClock, 3125000u) != UART_OK)
        return false;
    for (i = 0; i < count; ++i) {
        if (uart_put(UART1, patterns[i], 1000u) != UART_OK ||
            uart_get(UART1, &byte, 1000u) != UART_OK || byte != patterns[i])
            return false;
    }
    return uart_take_errors(UART1) == 0u;
}

/* A FIFO full of characters of nine bits, with odd parity and two stop bits. */
static bool uart_hears_itself(void)
{
    uint32_t character, i;
    const uint32_t size = uart_fifo_size(UART1);

    if (uart_set_format(UART1, 9u, UART_PARITY_ODD, 2u, true) != UART_OK)
        return false;
    uart_set_loopback(UART1, true);
    for (i = 0; i < size; ++i) {
        if (uart_put_character(UART1, 0x1F0u ^ (i * 31u), 1u) != UART_OK)
            return false;
    }
    if (uart_flush(UART1, 10000u) != UART_OK)
        return false;
    for (i = 0; i < size; ++i) {
        if (uart_get_character(UART1, &character, 1u) != UART_OK ||
            character != (0x1F0u ^ (i * 31u)))
            return false;
    }
    uart_set_loopback(UART1, false);
    return uart_take_errors(UART1) == 0u;
}

static bool memory_works(uint32_t base)
{
    volatile uint32_t *memory = (volatile uint32_t *)base;
    uint32_t i;

    for (i = 0; i < count; ++i)
        memory[i] = patterns[i] * 0x01010101u ^ i;
    ((volatile uint8_t *)base)[2] = 0xC3u;
    for (i = 0; i < count; ++i) {
        const uint32_t word = patterns[i] * 0x01010101u ^ i;

        if (memory[i] != (i == 0u ? (word & 0xFF00FFFFu) | 0x00C30000u : word))
            return false;
    }
    return true;
}

int main(void)
{
    if (uart_init(UART0, SystemCoreClock, 3125000u) != UART_OK)
        return 1;
    if (!spi_works(SPI_MODE_0, false) || !spi_works(SPI_MODE_3, true) || !spi_bursts_work(false) ||
        !spi_bursts_work(true))
        return 2;
    print("SPI\n");
    if (!uart_works() || !uart_hears_itself())
        return 3;
    print("UART1\n");
    if (!memory_works(AHB1_BASE) || !memory_works(APB1_BASE))
        return 4;
    print("extension ports\n");
    return 0;
}
