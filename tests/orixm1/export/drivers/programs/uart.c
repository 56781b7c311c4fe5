#include "drivers/uart.h"

#include "far.h"

static const uint32_t enough = 2000u;

enum { BIT_TIME, SEND, LOOP, START_BIT, HEARD, BYTE, IRQ, PAGE, LEVEL, LOOKS };

static void from_far(uint32_t byte)
{
    FAR(SEND) = byte;
    while (FAR(SEND) != 0u)
        IDLE(16u);
}

static void rates(UART_Type *uart)
{
    EQUAL(uart_init(uart, 50000000u, 115200u), UART_OK);
    EQUAL(uart->BAUDDIV, 434u); /* 434.03 */
    EQUAL(uart_baud(uart, 50000000u), 115207u);
    EQUAL(uart_init(uart, 1000000u, 60000u), UART_OK);
    EQUAL(uart->BAUDDIV, 17u);                                  /* 16.67 */
    EQUAL(uart_init(uart, 1000000u, 64517u), UART_ERROR_RANGE); /* 15.4999 */
    EQUAL(uart->BAUDDIV, 17u);
    EQUAL(uart_init(uart, 1000000u, 64516u), UART_OK); /* 15.5001 */
    EQUAL(uart->BAUDDIV, 16u);
    EQUAL(uart_init(uart, 0xFFFFFFFFu, 4096u), UART_ERROR_RANGE); /* 2^20 */
    EQUAL(uart_init(uart, 0xFFFFFFFFu, 4097u), UART_OK);
    EQUAL(uart->BAUDDIV, 1048320u);
    EQUAL(uart_init(uart, 1000000u, 0u), UART_ERROR_RANGE);
    EQUAL(uart_init(uart, 1000000u, 1000001u), UART_ERROR_RANGE);
    EQUAL(uart_init(uart, 0u, 9600u), UART_ERROR_RANGE);
    EQUAL(uart->BAUDDIV, 1048320u);
}

static void bytes(UART_Type *uart)
{
    static const uint8_t text[5] = {0x55u, 0x00u, 0xFFu, 0xA5u, 0x0Au};
    uint8_t got[4] = {0u, 0u, 0u, 0u};
    unsigned i;
    EQUAL(uart_init(uart, 1000000u, 50000u), UART_OK);
    FAR(BIT_TIME) = 20u;
    FAR(START_BIT) = 0u;
    EQUAL(uart_can_put(uart), true);
    EQUAL(uart_write(uart, text, sizeof text, enough), sizeof text);
    EQUAL(uart_flush(uart, enough), UART_OK);
    EQUAL(FAR(START_BIT), 20u);
    EQUAL(FAR(HEARD), sizeof text);
    for (i = 0u; i < sizeof text; ++i)
        EQUAL(FAR(BYTE), 0x100u | text[i]);
    EQUAL(FAR(LEVEL), 1u);
    EQUAL(uart_can_get(uart), false);
    from_far(0xC3u);
    EQUAL(uart_can_get(uart), true);
    EQUAL(uart_get(uart, got, 1u), UART_OK);
    EQUAL(got[0], 0xC3u);
    FAR(LOOP) = 1u;
    for (i = 0u; i < 3u; ++i) {
        EQUAL(uart_put(uart, text[i], enough), UART_OK);
        EQUAL(uart_read(uart, &got[i], 1u, enough), 1u);
        EQUAL(got[i], text[i]);
    }
    FAR(LOOP) = 0u;
    while (FAR(HEARD) != 0u)
        (void)FAR(BYTE);
    EQUAL(uart_take_errors(uart), 0u);
}

static void limits(UART_Type *uart)
{
    uint8_t byte = 0x77u;
    uint32_t looks = FAR(LOOKS);
    EQUAL(uart_get(uart, &byte, 20u), UART_ERROR_TIMEOUT);
    EQUAL(FAR(LOOKS) - looks, 20u);
    EQUAL(uart_get(uart, &byte, 1u), UART_ERROR_TIMEOUT);
    EQUAL(uart_get(uart, &byte, 0u), UART_ERROR_TIMEOUT);
    EQUAL(FAR(LOOKS) - looks, 22u);
    EQUAL(byte, 0x77u);
    EQUAL(uart_read(uart, &byte, 1u, 3u), 0u);
    uart_stop(uart);
    EQUAL(uart_put(uart, 0x31u, 1u), UART_OK); /* into the buffer */
    EQUAL(uart_put(uart, 0x32u, 20u), UART_ERROR_TIMEOUT);
    EQUAL(uart_write(uart, &byte, 1u, 0u), 0u);
    EQUAL(uart_flush(uart, 20u), UART_ERROR_TIMEOUT);
    EQUAL(FAR(HEARD), 0u);
    EQUAL(uart_init(uart, 1000000u, 50000u), UART_OK);
    EQUAL(uart_flush(uart, enough), UART_OK);
    EQUAL(FAR(HEARD), 1u);
    EQUAL(FAR(BYTE), 0x131u);
}

static void errors(UART_Type *uart)
{
    uint8_t byte = 0u;
    from_far(0x11u);
    from_far(0x22u);
    EQUAL(uart_take_errors(uart), UART_STATUS_RXOVER_Msk);
    EQUAL(uart_take_errors(uart), 0u);
    EQUAL(uart_get(uart, &byte, 1u), UART_OK);
    EQUAL(byte, 0x11u);
    from_far(0x133u); /* without a stop bit */
    EQUAL(uart_can_get(uart), false);
    EQUAL(uart_take_errors(uart), UART_STATUS_FRAME_Msk);
    uart->DATA = 1u;
    uart->DATA = 2u;
    uart->DATA = 3u;
    EQUAL(uart_take_errors(uart), UART_STATUS_TXOVER_Msk);
    EQUAL(uart_flush(uart, enough), UART_OK);
    EQUAL(FAR(HEARD), 2u);
    (void)FAR(BYTE);
    (void)FAR(BYTE);
    from_far(0x44u);
    from_far(0x55u);
    EQUAL(uart_init(uart, 1000000u, 50000u), UART_OK); /* forgets both */
    EQUAL(uart_can_get(uart), false);
    EQUAL(uart_take_errors(uart), 0u);
}

static void interrupts(UART_Type *uart)
{
    uint8_t byte;
    EQUAL(FAR(IRQ), 0u);
    uart_enable_interrupts(uart, UART_CTRL_TXIE_Msk);
    EQUAL(FAR(IRQ), 1u);
    uart_disable_interrupts(uart, UART_CTRL_TXIE_Msk | UART_CTRL_TXEN_Msk);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(uart->CTRL, UART_CTRL_TXEN_Msk | UART_CTRL_RXEN_Msk);
    uart_enable_interrupts(uart, UART_CTRL_RXIE_Msk | UART_CTRL_ERRIE_Msk);
    EQUAL(FAR(IRQ), 0u);
    from_far(0x5Au);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(uart_get(uart, &byte, 1u), UART_OK);
    EQUAL(FAR(IRQ), 0u);
    from_far(0x100u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(uart_take_errors(uart), UART_STATUS_FRAME_Msk);
    EQUAL(FAR(IRQ), 0u);
    uart_stop(uart);
    EQUAL(uart->CTRL, 0u);
}

static void all(UART_Type *uart)
{
    rates(uart);
    bytes(uart);
    limits(uart);
    errors(uart);
    interrupts(uart);
}

void test(void)
{
    all(UART0);
    EQUAL(FAR(PAGE), 0x50004000u);
    all(UART1);
    EQUAL(FAR(PAGE), 0x50005000u);
}
