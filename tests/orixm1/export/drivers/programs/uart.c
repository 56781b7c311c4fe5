#include "drivers/uart.h"

#include "far.h"

static const uint32_t enough = 2000u;

enum {
    BIT_TIME,
    SEND,
    LOOP,
    START_BIT,
    HEARD,
    BYTE,
    IRQ,
    PAGE,
    LEVEL,
    LOOKS,
    LENGTH, /* bits behind the start bit, in both directions */
    RAW,    /* what to send there */
    FINE_BIT_TIME
};

enum { SIZE = 16 };

static void from_far(uint32_t byte)
{
    FAR(SEND) = byte;
    while (FAR(SEND) != 0u)
        IDLE(16u);
}

static void from_far_raw(uint32_t bits)
{
    FAR(RAW) = bits;
    while (FAR(SEND) != 0u)
        IDLE(16u);
}

static void rates(UART_Type *uart)
{
    EQUAL(uart_init(uart, 50000000u, 115200u), UART_OK);
    EQUAL(uart->BAUDDIV, 434u | 2u << 20); /* 434.03 */
    EQUAL(uart_baud(uart, 50000000u), 115199u);
    EQUAL(uart_init(uart, 1000000u, 60000u), UART_OK);
    EQUAL(uart->BAUDDIV, 16u | 43u << 20); /* 16.67 */
    EQUAL(uart_baud(uart, 1000000u), 59981u);
    EQUAL(uart_init(uart, 3199u, 100u), UART_OK);
    EQUAL(uart->BAUDDIV, 31u | 63u << 20); /* 31.99, 63.36 of it */
    EQUAL(uart_init(uart, 319930u, 10000u), UART_OK);
    EQUAL(uart->BAUDDIV, 32u);                                  /* 31.993, 63.55 of it */
    EQUAL(uart_init(uart, 1000000u, 64517u), UART_ERROR_RANGE); /* 15.4999 */
    EQUAL(uart->BAUDDIV, 32u);
    EQUAL(uart_init(uart, 1000000u, 64516u), UART_OK); /* 15.5001 */
    EQUAL(uart->BAUDDIV, 16u);
    EQUAL(uart_init(uart, 0xFFFFFFFFu, 4096u), UART_ERROR_RANGE); /* 2^20 */
    EQUAL(uart_init(uart, 0xFFFFFFFFu, 4097u), UART_OK);
    EQUAL(uart->BAUDDIV, 1048320u | 4u << 20); /* 1048320.06 */
    EQUAL(uart_baud(uart, 0xFFFFFFFFu), 4097u);
    EQUAL(uart_init(uart, 0xFFFFFFFFu, 0x0FFFFFFFu), UART_OK);
    EQUAL(uart->BAUDDIV, 16u);
    EQUAL(uart_init(uart, 1000000u, 0u), UART_ERROR_RANGE);
    EQUAL(uart_init(uart, 1000000u, 1000001u), UART_ERROR_RANGE);
    EQUAL(uart_init(uart, 0u, 9600u), UART_ERROR_RANGE);
    EQUAL(uart->BAUDDIV, 16u);
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
    unsigned i;
    EQUAL(uart_get(uart, &byte, 20u), UART_ERROR_TIMEOUT);
    EQUAL(FAR(LOOKS) - looks, 20u);
    EQUAL(uart_get(uart, &byte, 1u), UART_ERROR_TIMEOUT);
    EQUAL(uart_get(uart, &byte, 0u), UART_ERROR_TIMEOUT);
    EQUAL(FAR(LOOKS) - looks, 22u);
    EQUAL(byte, 0x77u);
    EQUAL(uart_read(uart, &byte, 1u, 3u), 0u);
    uart_stop(uart);
    EQUAL(uart_fifo_size(uart), SIZE);
    EQUAL(uart_put(uart, 0x31u, 1u), UART_OK); /* into the FIFO */
    for (i = 1u; i < SIZE; ++i)
        EQUAL(uart_put(uart, 0x32u, 1u), UART_OK);
    EQUAL(uart_can_put(uart), false);
    EQUAL(uart_put(uart, 0x33u, 20u), UART_ERROR_TIMEOUT);
    EQUAL(uart_write(uart, &byte, 1u, 0u), 0u);
    EQUAL(uart_flush(uart, 20u), UART_ERROR_TIMEOUT);
    EQUAL(FAR(HEARD), 0u);
    EQUAL(uart_init(uart, 1000000u, 50000u), UART_OK);
    EQUAL(uart_flush(uart, enough), UART_OK);
    EQUAL(FAR(HEARD), SIZE);
    EQUAL(FAR(BYTE), 0x131u);
    for (i = 1u; i < SIZE; ++i)
        EQUAL(FAR(BYTE), 0x132u);
}

static void errors(UART_Type *uart)
{
    uint8_t byte = 0u;
    unsigned i;
    for (i = 0u; i <= SIZE; ++i)
        from_far(0x11u + i);
    EQUAL(uart_take_errors(uart), UART_STATUS_RXOVER_Msk);
    EQUAL(uart_take_errors(uart), 0u);
    for (i = 0u; i < SIZE; ++i) {
        EQUAL(uart_get(uart, &byte, 1u), UART_OK);
        EQUAL(byte, 0x11u + i);
    }
    EQUAL(uart_can_get(uart), false);
    from_far(0x133u); /* without a stop bit */
    EQUAL(uart_can_get(uart), false);
    EQUAL(uart_take_errors(uart), UART_STATUS_FRAME_Msk);
    uart_stop(uart);
    for (i = 0u; i <= SIZE; ++i)
        uart->DATA = i;
    EQUAL(uart_take_errors(uart), UART_STATUS_TXOVER_Msk);
    uart_drop(uart, true, false);
    EQUAL(uart_can_put(uart), false);
    uart_drop(uart, false, true);
    EQUAL(uart_flush(uart, 1u), UART_OK);
    EQUAL(FAR(HEARD), 0u);
    EQUAL(uart_init(uart, 1000000u, 50000u), UART_OK);
    from_far(0x44u);
    from_far(0x55u);
    EQUAL(uart_init(uart, 1000000u, 50000u), UART_OK); /* forgets both */
    EQUAL(uart_can_get(uart), false);
    EQUAL(uart_take_errors(uart), 0u);
}

static uint32_t ones(uint32_t value)
{
    uint32_t count = 0u;
    for (; value != 0u; value >>= 1)
        count += value & 1u;
    return count;
}

/* The other end is four percent too fast, and too slow. */
static void other_rates(UART_Type *uart)
{
    static const uint8_t values[5] = {0x00u, 0xFFu, 0x55u, 0x80u, 0x7Fu};
    uint32_t i;
    EQUAL(uart_init(uart, 1000000u, 50000u), UART_OK);
    for (i = 0u; i < 10u; ++i) {
        const uint8_t value = values[i / 2u];
        uint8_t got = 0x5Au;
        FAR(FINE_BIT_TIME) = i % 2u == 0u ? 1229u : 1331u; /* of 1280 */
        from_far(value);
        EQUAL(uart_get(uart, &got, 1u), UART_OK);
        EQUAL(got, value);
        EQUAL(uart_put(uart, value, 1u), UART_OK);
        EQUAL(uart_flush(uart, enough), UART_OK);
        IDLE(20u);
        EQUAL(FAR(HEARD), 1u);
        EQUAL(FAR(BYTE), 0x100u | value);
    }
    EQUAL(uart_take_errors(uart), 0u);
}

/* All formats: what leaves, and what comes in, with right and with wrong parity. */
static void formats(UART_Type *uart)
{
    static const uart_parity parities[5] = {UART_PARITY_NONE, UART_PARITY_EVEN, UART_PARITY_ODD,
                                            UART_PARITY_SPACE, UART_PARITY_MARK};
    uint32_t bits, kind, stops, expected;
    EQUAL(uart_init(uart, 1000000u, 60000u), UART_OK);
    FAR(FINE_BIT_TIME) = 16u * 64u + 43u;
    EQUAL(uart_set_format(uart, 4u, UART_PARITY_NONE, 1u, true), UART_ERROR_RANGE);
    EQUAL(uart_set_format(uart, 10u, UART_PARITY_NONE, 1u, true), UART_ERROR_RANGE);
    EQUAL(uart_set_format(uart, 8u, UART_PARITY_NONE, 0u, true), UART_ERROR_RANGE);
    EQUAL(uart_set_format(uart, 8u, UART_PARITY_NONE, 3u, true), UART_ERROR_RANGE);
    EQUAL(uart->FORMAT, UART_FORMAT_RESET);
    for (bits = 5u; bits <= 9u; ++bits) {
        for (kind = 0u; kind < 5u; ++kind) {
            const uint32_t data = 0x1B6u & ((1u << bits) - 1u);
            const uint32_t length = bits + (kind != 0u);
            const uint32_t parity = kind == 1u   ? ones(data) & 1u
                                    : kind == 2u ? ~ones(data) & 1u
                                                 : kind == 4u;
            const uint32_t raw = data | (kind != 0u ? parity << bits : 0u);
            stops = 1u + (bits + kind) % 2u;
            EQUAL(uart_set_format(uart, bits, parities[kind], stops, true), UART_OK);
            FAR(LENGTH) = length + stops;
            EQUAL(uart_put_character(uart, 0x1B6u, enough), UART_OK);
            EQUAL(uart_flush(uart, enough), UART_OK);
            EQUAL(FAR(HEARD), 1u);
            EQUAL(FAR(BYTE), raw | ((1u << stops) - 1u) << length);
            FAR(LENGTH) = length + 1u;
            from_far_raw(raw | 1u << length);
            EQUAL(uart_get_character(uart, &expected, 1u), UART_OK);
            EQUAL(expected, data);
            EQUAL(uart_take_errors(uart), 0u);
            if (kind != 0u) {
                from_far_raw((raw ^ 1u << bits) | 1u << length);
                EQUAL(uart_get_character(uart, &expected, 1u), UART_OK);
                EQUAL(expected, data | UART_DATA_PARITY_Msk);
                EQUAL(uart_take_errors(uart), UART_STATUS_PARITY_Msk);
            }
        }
    }
    FAR(LENGTH) = 9u;
}

static void breaks(UART_Type *uart)
{
    uint32_t character = 0u;
    EQUAL(uart_init(uart, 1000000u, 50000u), UART_OK);
    FAR(BIT_TIME) = 20u;
    EQUAL(uart_set_format(uart, 8u, UART_PARITY_NONE, 1u, true), UART_OK);
    FAR(START_BIT) = 0u;
    EQUAL(uart_send_break(uart, enough), UART_OK);
    EQUAL(uart_flush(uart, 1u), UART_ERROR_TIMEOUT);
    EQUAL(uart_put(uart, 0x66u, 1u), UART_OK);
    EQUAL(uart_flush(uart, enough), UART_OK);
    EQUAL(FAR(START_BIT), 13u * 20u);
    EQUAL(FAR(HEARD), 2u);
    EQUAL(FAR(BYTE), 0u);
    EQUAL(FAR(BYTE), 0x166u);
    uart_stop(uart);
    EQUAL(uart_put(uart, 0x67u, 1u), UART_OK);
    EQUAL(uart_send_break(uart, 20u), UART_ERROR_TIMEOUT);
    uart_drop(uart, false, true);
    EQUAL(uart_flush(uart, 1u), UART_OK);
    EQUAL(uart_init(uart, 1000000u, 50000u), UART_OK);
    EQUAL(uart_set_format(uart, 8u, UART_PARITY_NONE, 1u, true), UART_OK);
    from_far(0x100u);
    from_far(0x150u);
    EQUAL(uart_get_character(uart, &character, 1u), UART_OK);
    EQUAL(character, UART_DATA_BREAK_Msk | UART_DATA_FRAME_Msk);
    EQUAL(uart_get_character(uart, &character, 1u), UART_OK);
    EQUAL(character, 0x50u | UART_DATA_FRAME_Msk);
    EQUAL(uart_take_errors(uart), UART_STATUS_BREAK_Msk | UART_STATUS_FRAME_Msk);
    uart_set_loopback(uart, true);
    EQUAL(uart->CTRL, UART_CTRL_TXEN_Msk | UART_CTRL_RXEN_Msk | UART_CTRL_LOOP_Msk);
    from_far(0x77u);
    EQUAL(uart_put(uart, 0x88u, enough), UART_OK);
    EQUAL(uart_get_character(uart, &character, enough), UART_OK);
    EQUAL(character, 0x88u);
    EQUAL(uart_can_get(uart), false);
    EQUAL(FAR(HEARD), 0u);
    EQUAL(uart_flush(uart, enough), UART_OK);
    uart_set_loopback(uart, false);
    EQUAL(uart->CTRL, UART_CTRL_TXEN_Msk | UART_CTRL_RXEN_Msk);
    from_far(0x78u);
    EQUAL(uart_get_character(uart, &character, 1u), UART_OK);
    EQUAL(character, 0x78u);
    EQUAL(uart_take_errors(uart), 0u);
}

/* As a handler uses the FIFOs. */
static void pieces(UART_Type *uart)
{
    uint8_t data[SIZE + 4], got[SIZE + 4];
    unsigned i;
    for (i = 0u; i < sizeof data; ++i)
        data[i] = (uint8_t)(0x40u + i);
    EQUAL(uart_init(uart, 1000000u, 50000u), UART_OK);
    EQUAL(uart_set_thresholds(uart, 0u, 1u), UART_ERROR_RANGE);
    EQUAL(uart_set_thresholds(uart, 1u, 0u), UART_ERROR_RANGE);
    EQUAL(uart_set_thresholds(uart, SIZE + 1u, 1u), UART_ERROR_RANGE);
    EQUAL(uart_set_thresholds(uart, 1u, SIZE + 1u), UART_ERROR_RANGE);
    EQUAL(uart_set_timeout(uart, 256u), UART_ERROR_RANGE);
    EQUAL(uart_set_thresholds(uart, 3u, SIZE), UART_OK);
    EQUAL(uart_set_timeout(uart, 20u), UART_OK);
    EQUAL(uart->THRESHOLD, 0xF02u);
    EQUAL(uart->TIMEOUT, 20u);
    uart->CTRL = UART_CTRL_RXEN_Msk;
    EQUAL(uart_write_some(uart, data, 3u), 3u);
    uart_enable_interrupts(uart, UART_CTRL_TXIE_Msk);
    EQUAL(FAR(IRQ), 0u); /* not empty */
    EQUAL(uart_write_some(uart, data + 3, sizeof data - 3u), SIZE - 3u);
    EQUAL(uart_write_some(uart, data, 1u), 0u);
    EQUAL(uart_take_errors(uart), 0u);
    FAR(LOOP) = 1u;
    uart->CTRL = UART_CTRL_RXEN_Msk | UART_CTRL_TXEN_Msk;
    EQUAL(uart_flush(uart, enough), UART_OK);
    uart_enable_interrupts(uart, UART_CTRL_TXIE_Msk);
    EQUAL(FAR(IRQ), 1u);
    uart_disable_interrupts(uart, UART_CTRL_TXIE_Msk);
    uart_enable_interrupts(uart, UART_CTRL_IDLEIE_Msk);
    EQUAL(FAR(IRQ), 1u);
    uart_disable_interrupts(uart, UART_CTRL_IDLEIE_Msk);
    FAR(LOOP) = 0u;
    uart_enable_interrupts(uart, UART_CTRL_RXIE_Msk);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(uart_read_some(uart, got, SIZE - 2u), SIZE - 2u);
    EQUAL(FAR(IRQ), 0u); /* two are below the threshold */
    uart_enable_interrupts(uart, UART_CTRL_TIMEOUTIE_Msk);
    EQUAL(FAR(IRQ), 0u);
    IDLE(22u * 20u);
    EQUAL(FAR(IRQ), 1u); /* but have waited long enough */
    EQUAL(uart_read_some(uart, got + SIZE - 2, sizeof got), 2u);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(uart_read_some(uart, got, sizeof got), 0u);
    for (i = 0u; i < SIZE; ++i)
        EQUAL(got[i], data[i]);
    EQUAL(FAR(HEARD), SIZE);
    for (i = 0u; i < SIZE; ++i)
        EQUAL(FAR(BYTE), 0x100u | data[i]);
    EQUAL(uart_init(uart, 1000000u, 50000u), UART_OK);
    EQUAL(uart->THRESHOLD | uart->TIMEOUT, 0u);
    EQUAL(uart->CTRL, UART_CTRL_TXEN_Msk | UART_CTRL_RXEN_Msk);
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
    EQUAL(uart_take_errors(uart), UART_STATUS_FRAME_Msk | UART_STATUS_BREAK_Msk);
    EQUAL(FAR(IRQ), 0u);
    uart_disable_interrupts(uart, UART_CTRL_ERRIE_Msk);
    uart_enable_interrupts(uart, UART_CTRL_BREAKIE_Msk);
    from_far(0x120u);
    EQUAL(FAR(IRQ), 0u);
    from_far(0x100u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(uart_take_errors(uart), UART_STATUS_FRAME_Msk | UART_STATUS_BREAK_Msk);
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
    other_rates(uart);
    formats(uart);
    breaks(uart);
    pieces(uart);
    interrupts(uart);
}

void test(void)
{
    all(UART0);
    EQUAL(FAR(PAGE), 0x50004000u);
    all(UART1);
    EQUAL(FAR(PAGE), 0x50005000u);
}
