/*
 * UART: eight data bits, no parity, one stop bit, a buffer of one byte in each direction.
 *
 * The first argument names the instance: UART0 or UART1. A limit in polls says how often the status
 * is looked at before a function gives up; 0 counts as 1. A byte takes ten bit times.
 * Nothing here is locked: an interrupt handler that uses the same instance has to be kept out.
 */
#ifndef TARVO_ORIX_M1_DRIVER_UART_H
#define TARVO_ORIX_M1_DRIVER_UART_H

#include "tarvo_orix_m1.h"

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef enum {
    UART_OK = 0,
    UART_ERROR_RANGE,  /* the clock cannot give this rate; nothing has changed */
    UART_ERROR_TIMEOUT /* the limit was reached */
} uart_result;

/*
 * Sets the rate in bits per second from the clock of the bus in Hz, rounded to the nearest divider
 * (16 to 1048575 clock cycles a bit), forgets errors and a received byte, switches interrupts off,
 * transmitter and receiver on. A byte on its way is spoilt: see uart_flush().
 */
uart_result uart_init(UART_Type *uart, uint32_t clock_hz, uint32_t baud);

/* The rate that the divider gives, in bits per second, rounded; the clock of the bus in Hz. */
uint32_t uart_baud(const UART_Type *uart, uint32_t clock_hz);

/* Switches transmitter, receiver and interrupts off. A byte that is being sent still leaves. */
void uart_stop(UART_Type *uart);

/* Whether a byte can be put without waiting. */
bool uart_can_put(const UART_Type *uart);

/* Whether a received byte waits. */
bool uart_can_get(const UART_Type *uart);

/* Sends a byte as soon as the buffer has room; UART_ERROR_TIMEOUT: not sent. */
uart_result uart_put(UART_Type *uart, uint8_t byte, uint32_t polls);

/* Takes a received byte, waiting for it; UART_ERROR_TIMEOUT: none came, *byte is unchanged. */
uart_result uart_get(UART_Type *uart, uint8_t *byte, uint32_t polls);

/* Sends bytes, waiting at most polls for each; returns how many were sent. */
size_t uart_write(UART_Type *uart, const void *data, size_t size, uint32_t polls);

/* Receives bytes, waiting at most polls for each; returns how many came. */
size_t uart_read(UART_Type *uart, void *data, size_t size, uint32_t polls);

/* Waits until the last byte, its stop bit included, has left. */
uart_result uart_flush(const UART_Type *uart, uint32_t polls);

/*
 * The errors since the last call, which are thereby forgotten: any of UART_STATUS_RXOVER_Msk (a
 * byte was lost), UART_STATUS_FRAME_Msk (a stop bit was missing, that byte is dropped) and
 * UART_STATUS_TXOVER_Msk (DATA was written without room); 0 if there were none.
 */
uint32_t uart_take_errors(UART_Type *uart);

/*
 * Switches interrupts on: any of UART_CTRL_TXIE_Msk (room for a byte), UART_CTRL_RXIE_Msk (a byte
 * waits) and UART_CTRL_ERRIE_Msk (an error is kept); others are ignored. Each stays until its
 * reason has gone.
 */
void uart_enable_interrupts(UART_Type *uart, uint32_t interrupts);

/* Switches interrupts off; the same values. */
void uart_disable_interrupts(UART_Type *uart, uint32_t interrupts);

#ifdef __cplusplus
}
#endif

#endif
