#include "uart.h"

#define UART_ERRORS                                                                                \
    (UART_STATUS_RXOVER_Msk | UART_STATUS_FRAME_Msk | UART_STATUS_TXOVER_Msk |                     \
     UART_STATUS_PARITY_Msk | UART_STATUS_BREAK_Msk)
#define UART_INTERRUPTS                                                                            \
    (UART_CTRL_TXIE_Msk | UART_CTRL_RXIE_Msk | UART_CTRL_ERRIE_Msk | UART_CTRL_TIMEOUTIE_Msk |     \
     UART_CTRL_BREAKIE_Msk | UART_CTRL_IDLEIE_Msk)
#define UART_CHARACTER (UART_DATA_BYTE_Msk | UART_DATA_BIT8_Msk)

static const uint32_t smallest_divider = 16u;
static const uint32_t fractions = 64u; /* of a clock cycle */

static bool wait_for(const UART_Type *uart, uint32_t bit, bool set, uint32_t polls)
{
    do {
        if (((uart->STATUS & bit) != 0u) == set)
            return true;
    } while (polls-- > 1u);
    return false;
}

uart_result uart_init(UART_Type *uart, uint32_t clock_hz, uint32_t baud)
{
    const uint32_t most = UART_BAUDDIV_CYCLES_Msk >> UART_BAUDDIV_CYCLES_Pos;
    uint32_t divider, rest, fraction = 0u, part;
    if (baud == 0u)
        return UART_ERROR_RANGE;
    divider = clock_hz / baud;
    rest = clock_hz % baud;
    if (divider < smallest_divider) {
        if (divider + 1u < smallest_divider || rest < baud - rest)
            return UART_ERROR_RANGE;
        divider = smallest_divider;
    } else {
        /* The rest is below 2^28, since the divider is not. */
        for (part = fractions; part > 1u; part /= 2u) {
            rest *= 2u;
            fraction *= 2u;
            if (rest >= baud) {
                rest -= baud;
                ++fraction;
            }
        }
        if (rest >= baud - rest)
            ++fraction;
        divider += fraction / fractions;
        fraction %= fractions;
    }
    if (divider > most)
        return UART_ERROR_RANGE;
    uart->CTRL = 0u;
    uart->BAUDDIV = divider << UART_BAUDDIV_CYCLES_Pos | fraction << UART_BAUDDIV_FRACTION_Pos;
    uart->FORMAT = UART_FORMAT_RESET;
    uart->THRESHOLD = UART_THRESHOLD_RESET;
    uart->TIMEOUT = UART_TIMEOUT_RESET;
    uart->COMMAND = UART_COMMAND_RXCLEAR_Msk;
    uart->STATUS = UART_ERRORS;
    uart->CTRL = UART_CTRL_TXEN_Msk | UART_CTRL_RXEN_Msk;
    return UART_OK;
}

uart_result uart_set_format(UART_Type *uart, uint32_t data_bits, uart_parity parity,
                            uint32_t stop_bits, bool keep_errors)
{
    const uint32_t control = uart->CTRL;
    uint32_t format = (uint32_t)parity;
    if (data_bits < 5u || data_bits > 9u || stop_bits < 1u || stop_bits > 2u)
        return UART_ERROR_RANGE;
    format |= data_bits == 9u ? UART_FORMAT_NINE_Msk : (data_bits - 5u) << UART_FORMAT_BITS_Pos;
    if (stop_bits == 2u)
        format |= UART_FORMAT_STOP_Msk;
    if (keep_errors)
        format |= UART_FORMAT_KEEP_Msk;
    uart->CTRL = control & ~UART_CTRL_RXEN_Msk;
    uart->FORMAT = format;
    uart->CTRL = control;
    return UART_OK;
}

uint32_t uart_baud(const UART_Type *uart, uint32_t clock_hz)
{
    const uint32_t divider = uart->BAUDDIV;
    /* The bit time in 64ths of a cycle, below 2^26; at least 16 cycles, so that no product here
     * overflows. */
    const uint32_t time =
        ((divider & UART_BAUDDIV_CYCLES_Msk) >> UART_BAUDDIV_CYCLES_Pos) * fractions +
        ((divider & UART_BAUDDIV_FRACTION_Msk) >> UART_BAUDDIV_FRACTION_Pos);
    uint32_t quotient, rest;
    if (time == 0u)
        return 0u;
    quotient = clock_hz / time * fractions;
    rest = clock_hz % time * fractions;
    quotient += rest / time;
    rest %= time;
    return quotient + (rest >= time - rest ? 1u : 0u);
}

void uart_stop(UART_Type *uart)
{
    uart->CTRL = 0u;
}

uint32_t uart_fifo_size(const UART_Type *uart)
{
    return 1u << ((uart->ID & UART_ID_DEPTH_Msk) >> UART_ID_DEPTH_Pos);
}

bool uart_can_put(const UART_Type *uart)
{
    return (uart->STATUS & UART_STATUS_TXFULL_Msk) == 0u;
}

bool uart_can_get(const UART_Type *uart)
{
    return (uart->STATUS & UART_STATUS_RXFULL_Msk) != 0u;
}

uart_result uart_put_character(UART_Type *uart, uint32_t character, uint32_t polls)
{
    if (!wait_for(uart, UART_STATUS_TXFULL_Msk, false, polls))
        return UART_ERROR_TIMEOUT;
    uart->DATA = character & UART_CHARACTER;
    return UART_OK;
}

uart_result uart_get_character(UART_Type *uart, uint32_t *character, uint32_t polls)
{
    if (!wait_for(uart, UART_STATUS_RXFULL_Msk, true, polls))
        return UART_ERROR_TIMEOUT;
    *character = uart->DATA;
    return UART_OK;
}

uart_result uart_put(UART_Type *uart, uint8_t byte, uint32_t polls)
{
    return uart_put_character(uart, byte, polls);
}

uart_result uart_get(UART_Type *uart, uint8_t *byte, uint32_t polls)
{
    uint32_t character;
    if (uart_get_character(uart, &character, polls) != UART_OK)
        return UART_ERROR_TIMEOUT;
    *byte = (uint8_t)(character & UART_DATA_BYTE_Msk);
    return UART_OK;
}

size_t uart_write(UART_Type *uart, const void *data, size_t size, uint32_t polls)
{
    const uint8_t *bytes = (const uint8_t *)data;
    size_t sent = 0u;
    while (sent < size && uart_put(uart, bytes[sent], polls) == UART_OK)
        ++sent;
    return sent;
}

size_t uart_read(UART_Type *uart, void *data, size_t size, uint32_t polls)
{
    uint8_t *bytes = (uint8_t *)data;
    size_t received = 0u;
    while (received < size && uart_get(uart, &bytes[received], polls) == UART_OK)
        ++received;
    return received;
}

size_t uart_write_some(UART_Type *uart, const void *data, size_t size)
{
    const uint8_t *bytes = (const uint8_t *)data;
    size_t room = uart_fifo_size(uart) - ((uart->LEVEL & UART_LEVEL_TX_Msk) >> UART_LEVEL_TX_Pos);
    size_t sent;
    if (room > size)
        room = size;
    for (sent = 0u; sent < room; ++sent)
        uart->DATA = bytes[sent];
    return sent;
}

size_t uart_read_some(UART_Type *uart, void *data, size_t size)
{
    uint8_t *bytes = (uint8_t *)data;
    size_t waiting = (uart->LEVEL & UART_LEVEL_RX_Msk) >> UART_LEVEL_RX_Pos;
    size_t received;
    if (waiting > size)
        waiting = size;
    for (received = 0u; received < waiting; ++received)
        bytes[received] = (uint8_t)(uart->DATA & UART_DATA_BYTE_Msk);
    return received;
}

uart_result uart_flush(const UART_Type *uart, uint32_t polls)
{
    return wait_for(uart, UART_STATUS_TXBUSY_Msk, false, polls) ? UART_OK : UART_ERROR_TIMEOUT;
}

void uart_drop(UART_Type *uart, bool received, bool to_send)
{
    uart->COMMAND =
        (received ? UART_COMMAND_RXCLEAR_Msk : 0u) | (to_send ? UART_COMMAND_TXCLEAR_Msk : 0u);
}

uart_result uart_send_break(UART_Type *uart, uint32_t polls)
{
    if (uart_flush(uart, polls) != UART_OK)
        return UART_ERROR_TIMEOUT;
    uart->CTRL = uart->CTRL | UART_CTRL_BREAK_Msk;
    uart->CTRL = uart->CTRL & ~UART_CTRL_BREAK_Msk; /* the block makes it long enough */
    return UART_OK;
}

void uart_set_loopback(UART_Type *uart, bool on)
{
    const uint32_t control = uart->CTRL;
    uart->CTRL = control & ~UART_CTRL_RXEN_Msk;
    uart->CTRL =
        (control & ~(UART_CTRL_RXEN_Msk | UART_CTRL_LOOP_Msk)) | (on ? UART_CTRL_LOOP_Msk : 0u);
    uart->CTRL = (control & ~UART_CTRL_LOOP_Msk) | (on ? UART_CTRL_LOOP_Msk : 0u);
}

uint32_t uart_take_errors(UART_Type *uart)
{
    const uint32_t errors = uart->STATUS & UART_ERRORS;
    uart->STATUS = errors; /* those that come meanwhile stay for the next call */
    return errors;
}

uart_result uart_set_thresholds(UART_Type *uart, uint32_t received, uint32_t room)
{
    const uint32_t size = uart_fifo_size(uart);
    if (received < 1u || received > size || room < 1u || room > size)
        return UART_ERROR_RANGE;
    uart->THRESHOLD = (received - 1u) << UART_THRESHOLD_RX_Pos | (room - 1u)
                                                                     << UART_THRESHOLD_TX_Pos;
    return UART_OK;
}

uart_result uart_set_timeout(UART_Type *uart, uint32_t bits)
{
    if (bits > UART_TIMEOUT_BITS_Msk >> UART_TIMEOUT_BITS_Pos ||
        (bits != 0u && (uart->ID & UART_ID_TIMEOUT_Msk) == 0u))
        return UART_ERROR_RANGE;
    uart->TIMEOUT = bits << UART_TIMEOUT_BITS_Pos;
    return UART_OK;
}

void uart_enable_interrupts(UART_Type *uart, uint32_t interrupts)
{
    uart->CTRL = uart->CTRL | (interrupts & UART_INTERRUPTS);
}

void uart_disable_interrupts(UART_Type *uart, uint32_t interrupts)
{
    uart->CTRL = uart->CTRL & ~(interrupts & UART_INTERRUPTS);
}
