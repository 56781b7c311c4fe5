/*
 * SPI master with one slave select: words of 4 to 32 bits, one at a time or through FIFOs.
 *
 * A limit in polls says how often the status is looked at before a function gives up on a word; 0
 * counts as 1. A word of n bits takes 2 n + 1 halves of an SCLK period, n clocks where words follow
 * each other through the FIFOs.
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
    SPI_ERROR_RANGE,  /* there is no such rate or form; nothing has changed */
    SPI_ERROR_BUSY,   /* a word is on its way; nothing was done */
    SPI_ERROR_TIMEOUT /* the limit was reached; what was begun may still be on its way */
} spi_result;

/* Level of SCLK between bytes, and the edge at which data is taken. */
typedef enum {
    SPI_MODE_0 = 0, /* low, first edge */
    SPI_MODE_1,     /* low, second edge */
    SPI_MODE_2,     /* high, first edge */
    SPI_MODE_3      /* high, second edge */
} spi_mode;

/* Who drives the select. */
typedef enum {
    SPI_SELECT_MANUAL = 0, /* spi_select() */
    SPI_SELECT_WORD,       /* low for each word */
    SPI_SELECT_BURST       /* low while words follow each other */
} spi_select_kind;

/*
 * Sets mode, bit order and the highest SCLK in Hz that is not above sclk_hz, from the clock of the
 * bus in Hz: half a period is 1 to 65536 clock cycles. Words have eight bits, one at a time; the
 * select is manual and released, interrupts are off and what is kept is forgotten.
 */
spi_result spi_init(SPI_Type *spi, uint32_t clock_hz, uint32_t sclk_hz, spi_mode mode,
                    bool lowest_bit_first);

/* The SCLK that the divider gives, in Hz, rounded down; the clock of the bus in Hz. */
uint32_t spi_rate(const SPI_Type *spi, uint32_t clock_hz);

/* Words of 4 to 32 bits, the longest that the block has; MISO is taken late_cycles, 0 to 3, after
 * the edge of SCLK, for devices that answer late at high rates. */
spi_result spi_set_format(SPI_Type *spi, uint32_t bits, uint32_t late_cycles);

/*
 * Who drives the select, and the times of the automatic one in clock cycles, each 0 to 255: half a
 * period and setup + 1 cycles before the first edge of SCLK, half a period and hold + 1 cycles
 * behind the last one, and at least idle + 2 cycles between two words or bursts.
 */
spi_result spi_set_select(SPI_Type *spi, spi_select_kind kind, uint32_t setup, uint32_t hold,
                          uint32_t idle);

/* Words come back as they are sent, for tests: MISO is not looked at, and nobody is selected. */
spi_result spi_set_loopback(SPI_Type *spi, bool on);

/* Selects the slave (NSS low) or releases it. Not while a word is on its way. */
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

/*
 * Exchanges count words of the form that is set, 0xFFFFFFFF without sent, through the FIFOs: they
 * follow each other without a gap as long as the processor keeps up. Memory as in spi_transfer().
 * The limit counts for each word. What was received before is thrown away, what the FIFOs hold
 * after SPI_ERROR_TIMEOUT too; they are off afterwards.
 */
spi_result spi_transfer_words(SPI_Type *spi, const uint32_t *sent, uint32_t *received, size_t count,
                              uint32_t polls);

/*
 * Words through the FIFOs by an interrupt handler of one's own: spi_use_fifos() switches them on or
 * off, and forgets what was received. spi_put() and spi_get() are false without room or without a
 * word, and nothing is done. spi_set_thresholds() says when SPI_INTEN_RXREADY_Msk is raised, with
 * at least so many words received, and SPI_INTEN_TXLOW_Msk, with at most so many to be sent, each 0
 * to 63.
 */
spi_result spi_use_fifos(SPI_Type *spi, bool on);
bool spi_put(SPI_Type *spi, uint32_t word);
bool spi_get(SPI_Type *spi, uint32_t *word);
spi_result spi_set_thresholds(SPI_Type *spi, uint32_t received, uint32_t to_send);

/* Switches interrupts on: any of SPI_INTEN_TXLOW_Msk, SPI_INTEN_RXREADY_Msk and
 * SPI_INTEN_ERROR_Msk; others are ignored. Beside that of spi_enable_interrupt(). */
void spi_enable_interrupts(SPI_Type *spi, uint32_t interrupts);

/* Switches interrupts off; the same values. */
void spi_disable_interrupts(SPI_Type *spi, uint32_t interrupts);

/* Waits until the line is at rest. */
spi_result spi_wait(SPI_Type *spi, uint32_t polls);

/* Ends what is on its way at once and empties the FIFOs; an automatic select is released. */
void spi_abort(SPI_Type *spi);

/* What went wrong since the last call, which is forgotten: SPI_STATUS_LOST_Msk,
 * SPI_STATUS_OVERRUN_Msk, SPI_STATUS_UNDERRUN_Msk, SPI_STATUS_REFUSED_Msk. */
uint32_t spi_take_errors(SPI_Type *spi);

/* Switches the interrupt on or off that stays from the end of a byte until spi_take(). */
void spi_enable_interrupt(SPI_Type *spi, bool on);

#ifdef __cplusplus
}
#endif

#endif
