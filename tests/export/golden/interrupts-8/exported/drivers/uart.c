#include "uart.h"

#define UART_ERRORS (UART_STATUS_RXOVER_Msk | UART_STATUS_FRAME_Msk | UART_STATUS_TXOVER_Msk)
#define UART_INTERRUPTS (UART_CTRL_TXIE_Msk | UART_CTRL_RXIE_Msk | UART_CTRL_ERRIE_Msk)

static const uint32_t smallest_divider = 16u;

static bool wait_for(const UART_Type *uart, uint32_t bit, bool set, uint32_t polls)
{
    do {
        if (((uart->STATUS & bit) != 0u) == set)
            return true;
    } while (polls-- > 1u);
    return false;
}

/* The quotient, a half rounded up; the divisor is not 0. */
static uint32_t rounded_quotient(uint32_t dividend, uint32_t divisor)
{
    const uint32_t rest = dividend % divisor;
    return dividend / divisor + (rest >= divisor - rest ? 1u : 0u);
}

uart_result uart_init(UART_Type *uart, uint32_t clock_hz, uint32_t baud)
{
    uint32_t divider;
    if (baud == 0u)
        return UART_ERROR_RANGE;
    divider = rounded_quotient(clock_hz, baud);
    if (divider < smallest_divider ||
        divider > (UART_BAUDDIV_CYCLES_Msk >> UART_BAUDDIV_CYCLES_Pos))
        return UART_ERROR_RANGE;
    uart->CTRL = 0u;
    uart->BAUDDIV = divider << UART_BAUDDIV_CYCLES_Pos;
    (void)uart->DATA; /* reading it takes the byte */
    uart->STATUS = UART_ERRORS;
    uart->CTRL = UART_CTRL_TXEN_Msk | UART_CTRL_RXEN_Msk;
    return UART_OK;
}

uint32_t uart_baud(const UART_Type *uart, uint32_t clock_hz)
{
    const uint32_t divider = (uart->BAUDDIV & UART_BAUDDIV_CYCLES_Msk) >> UART_BAUDDIV_CYCLES_Pos;
    return divider == 0u ? 0u : rounded_quotient(clock_hz, divider);
}

void uart_stop(UART_Type *uart)
{
    uart->CTRL = 0u;
}

bool uart_can_put(const UART_Type *uart)
{
    return (uart->STATUS & UART_STATUS_TXFULL_Msk) == 0u;
}

bool uart_can_get(const UART_Type *uart)
{
    return (uart->STATUS & UART_STATUS_RXFULL_Msk) != 0u;
}

uart_result uart_put(UART_Type *uart, uint8_t byte, uint32_t polls)
{
    if (!wait_for(uart, UART_STATUS_TXFULL_Msk, false, polls))
        return UART_ERROR_TIMEOUT;
    uart->DATA = byte;
    return UART_OK;
}

uart_result uart_get(UART_Type *uart, uint8_t *byte, uint32_t polls)
{
    if (!wait_for(uart, UART_STATUS_RXFULL_Msk, true, polls))
        return UART_ERROR_TIMEOUT;
    *byte = (uint8_t)(uart->DATA & UART_DATA_BYTE_Msk);
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

uart_result uart_flush(const UART_Type *uart, uint32_t polls)
{
    return wait_for(uart, UART_STATUS_TXBUSY_Msk, false, polls) ? UART_OK : UART_ERROR_TIMEOUT;
}

uint32_t uart_take_errors(UART_Type *uart)
{
    const uint32_t errors = uart->STATUS & UART_ERRORS;
    uart->STATUS = errors; /* those that come meanwhile stay for the next call */
    return errors;
}

void uart_enable_interrupts(UART_Type *uart, uint32_t interrupts)
{
    uart->CTRL = uart->CTRL | (interrupts & UART_INTERRUPTS);
}

void uart_disable_interrupts(UART_Type *uart, uint32_t interrupts)
{
    uart->CTRL = uart->CTRL & ~(interrupts & UART_INTERRUPTS);
}
