/*
 * SPI master: one byte at a time, one slave select.
 *
 * A limit in polls says how often the status is looked at before a function gives up on a byte; 0
 * counts as 1. A byte takes 17 halves of an SCLK period.
 * Nothing here is locked: an interrupt handler that uses the same instance has to be kept out.
 */
#ifndef TARVO_ORIX_M1_DRIVER_SPI_H
#define TARVO_ORIX_M1_DRIVER_SPI_H

#include "tarvo_orix_m1.h"

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef enum {
    SPI_OK = 0,
    SPI_ERROR_RANGE,  /* the clock cannot give this rate; nothing has changed */
    SPI_ERROR_BUSY,   /* a byte is on its way; nothing was done */
    SPI_ERROR_TIMEOUT /* the limit was reached; the byte may still be on its way */
} spi_result;

/* Level of SCLK between bytes, and the edge at which data is taken. */
typedef enum {
    SPI_MODE_0 = 0, /* low, first edge */
    SPI_MODE_1,     /* low, second edge */
    SPI_MODE_2,     /* high, first edge */
    SPI_MODE_3      /* high, second edge */
} spi_mode;

/*
 * Sets mode, bit order and the highest SCLK in Hz that is not above sclk_hz, from the clock of the
 * bus in Hz: half a period is 1 to 65536 clock cycles. Deselects the slave, switches the interrupt
 * off and forgets what is kept.
 */
spi_result spi_init(SPI_Type *spi, uint32_t clock_hz, uint32_t sclk_hz, spi_mode mode,
                    bool lowest_bit_first);

/* The SCLK that the divider gives, in Hz, rounded down; the clock of the bus in Hz. */
uint32_t spi_rate(const SPI_Type *spi, uint32_t clock_hz);

/* Selects the slave (NSS low) or releases it. Not while a byte is on its way. */
void spi_select(SPI_Type *spi, bool selected);

/* Begins to send a byte: SPI_OK or SPI_ERROR_BUSY. */
spi_result spi_start(SPI_Type *spi, uint8_t byte);

/* Takes the byte that came with the one begun with spi_start(); false while it is on its way, or if
 * none was begun since the last call. */
bool spi_take(SPI_Type *spi, uint8_t *byte);

/* Sends a byte and waits for the one that comes with it; received may be null. */
spi_result spi_exchange(SPI_Type *spi, uint8_t byte, uint8_t *received, uint32_t polls);

/*
 * Exchanges size bytes, each within the limit. Without sent (null), bytes 0xFF leave; without
 * received (null), what comes is dropped; both may be the same memory. The select stays as it is.
 */
spi_result spi_transfer(SPI_Type *spi, const void *sent, void *received, size_t size,
                        uint32_t polls);

/* Switches the interrupt on or off that stays from the end of a byte until spi_take(). */
void spi_enable_interrupt(SPI_Type *spi, bool enabled);

#ifdef __cplusplus
}
#endif

#endif
