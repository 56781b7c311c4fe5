/*
 * UART: characters of five to nine bits, with or without parity, one or two stop bits, a FIFO of
 * sixteen characters in each direction.
 *
 * The first argument names the instance: UART0 or UART1. A limit in polls says how often the status
 * is looked at before a function gives up; 0 counts as 1. A character of eight bits without parity
 * takes ten bit times.
 *
 * The receiver takes rates that are off by (50 - 100 / D) / (N - 0.5) percent either way, where D
 * is the bit time in clock cycles, and N the bits from the start bit to the first stop bit: 4
 * percent and more for all formats from 26 cycles on, and for eight data bits without parity with
 * any rate.
 *
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
    UART_ERROR_RANGE,  /* what was asked for cannot be had; nothing has changed */
    UART_ERROR_TIMEOUT /* the limit was reached */
} uart_result;

typedef enum {
    UART_PARITY_NONE = 0,
    UART_PARITY_EVEN = UART_FORMAT_PARITY_Msk,
    UART_PARITY_ODD = UART_FORMAT_PARITY_Msk | UART_FORMAT_ODD_Msk,
    UART_PARITY_SPACE = UART_FORMAT_PARITY_Msk | UART_FORMAT_STICK_Msk, /* always 0 */
    UART_PARITY_MARK =
        UART_FORMAT_PARITY_Msk | UART_FORMAT_STICK_Msk | UART_FORMAT_ODD_Msk /* always 1 */
} uart_parity;

/*
 * Sets the rate in bits per second from the clock of the bus in Hz, rounded to the nearest bit time
 * in 64ths of a clock cycle (16 to 1048575 63/64 cycles; from 15.5 on 16 are taken). The format is
 * eight data bits, no parity, one stop bit; characters with errors are dropped. Errors and received
 * characters are forgotten, interrupts, thresholds, the time-out and loop-back switched off,
 * transmitter and receiver on. A character on its way is spoilt: see uart_flush().
 */
uart_result uart_init(UART_Type *uart, uint32_t clock_hz, uint32_t baud);

/*
 * Sets the form of characters, after uart_init(): 5 to 9 data bits, 1 or 2 stop bits. Received
 * characters with errors are dropped, or kept for uart_get_character() if keep_errors. A character
 * that comes in meanwhile is dropped, one that is being sent is spoilt. UART_ERROR_RANGE: there is
 * no such form; nothing has changed.
 */
uart_result uart_set_format(UART_Type *uart, uint32_t data_bits, uart_parity parity,
                            uint32_t stop_bits, bool keep_errors);

/* The rate that the divider gives, in bits per second, rounded; the clock of the bus in Hz. */
uint32_t uart_baud(const UART_Type *uart, uint32_t clock_hz);

/* Switches transmitter, receiver and interrupts off. A character that is being sent still leaves.
 */
void uart_stop(UART_Type *uart);

/* Characters that each FIFO holds. */
uint32_t uart_fifo_size(const UART_Type *uart);

/* Whether a character can be put without waiting. */
bool uart_can_put(const UART_Type *uart);

/* Whether a received character waits. */
bool uart_can_get(const UART_Type *uart);

/* Sends a byte as soon as the FIFO has room; UART_ERROR_TIMEOUT: not sent. */
uart_result uart_put(UART_Type *uart, uint8_t byte, uint32_t polls);

/* Takes a received byte, waiting for it; UART_ERROR_TIMEOUT: none came, *byte is unchanged. */
uart_result uart_get(UART_Type *uart, uint8_t *byte, uint32_t polls);

/* The same with characters of up to nine bits; others are ignored. */
uart_result uart_put_character(UART_Type *uart, uint32_t character, uint32_t polls);

/*
 * Takes a received character with what is wrong with it, if errors are kept: bits 8 to 0, and any
 * of UART_DATA_PARITY_Msk, UART_DATA_FRAME_Msk, UART_DATA_BREAK_Msk (with UART_DATA_FRAME_Msk), and
 * UART_DATA_OVER_Msk (characters before it are lost, also if errors are not kept).
 */
uart_result uart_get_character(UART_Type *uart, uint32_t *character, uint32_t polls);

/* Sends bytes, waiting at most polls for each; returns how many were sent. */
size_t uart_write(UART_Type *uart, const void *data, size_t size, uint32_t polls);

/* Receives bytes, waiting at most polls for each; returns how many came. */
size_t uart_read(UART_Type *uart, void *data, size_t size, uint32_t polls);

/* Sends as many bytes as there is room for, without waiting; returns how many. For handlers. */
size_t uart_write_some(UART_Type *uart, const void *data, size_t size);

/* Takes at most size bytes of those that wait; returns how many. For handlers. */
size_t uart_read_some(UART_Type *uart, void *data, size_t size);

/* Waits until the last character, its stop bits included, has left. */
uart_result uart_flush(const UART_Type *uart, uint32_t polls);

/* Drops what waits in the FIFOs to be read or to be sent. The character on its way still leaves. */
void uart_drop(UART_Type *uart, bool received, bool to_send);

/*
 * Waits until everything before has left and sends a break: thirteen bit times low, one high. It is
 * on its way when the function returns. UART_ERROR_TIMEOUT: none was sent.
 */
uart_result uart_send_break(UART_Type *uart, uint32_t polls);

/*
 * Connects the receiver to the transmitter instead of the pin, and the pin to nothing, or back.
 * Received characters on their way are dropped.
 */
void uart_set_loopback(UART_Type *uart, bool on);

/*
 * The errors since the last call, which are thereby forgotten: any of UART_STATUS_RXOVER_Msk (a
 * character was lost), UART_STATUS_FRAME_Msk (a stop bit was missing), UART_STATUS_PARITY_Msk (a
 * parity was wrong), UART_STATUS_BREAK_Msk (a break has come, with UART_STATUS_FRAME_Msk) and
 * UART_STATUS_TXOVER_Msk (DATA was written without room); 0 if there were none.
 */
uint32_t uart_take_errors(UART_Type *uart);

/*
 * When the interrupts of reception and transmission come: while at least `received` characters
 * wait, and while there is room for at least `room`; both 1 to uart_fifo_size(), otherwise
 * UART_ERROR_RANGE.
 */
uart_result uart_set_thresholds(UART_Type *uart, uint32_t received, uint32_t room);

/*
 * After how many bit times without a character, 1 to 255, those that wait are told of; 0: never.
 * UART_ERROR_RANGE: larger, or the UART was built without it.
 */
uart_result uart_set_timeout(UART_Type *uart, uint32_t bits);

/*
 * Switches interrupts on: any of UART_CTRL_TXIE_Msk (room), UART_CTRL_RXIE_Msk (characters wait),
 * UART_CTRL_TIMEOUTIE_Msk (some wait, and the time-out has passed), UART_CTRL_ERRIE_Msk (an error
 * other than a break is kept), UART_CTRL_BREAKIE_Msk (a break is) and UART_CTRL_IDLEIE_Msk
 * (everything is sent); others are ignored. Each stays until its reason has gone.
 */
void uart_enable_interrupts(UART_Type *uart, uint32_t interrupts);

/* Switches interrupts off; the same values. */
void uart_disable_interrupts(UART_Type *uart, uint32_t interrupts);

#ifdef __cplusplus
}
#endif

#endif
