/*
 * SD card in SPI mode: cards of version 1 and 2, addressed by byte (SDSC) or by block (SDHC, SDXC).
 *
 * sd_open() makes the serial clock from the bus clock: at most 400 kHz until the card is
 * initialised, then the rate that is asked for. With sd_init() the clock comes from outside as
 * SD_SPICLK, two periods of which make one; it must be at most 400 kHz until sd_init() has
 * succeeded, and the pin SD_CARD_INIT, which is high from then on, can switch the source over.
 *
 * The hardware ends what takes longer than TIMEOUT has it. Beside that two limits bound every wait:
 * polls, how often the status is looked at for one byte (17 halves of a period), and tries, how
 * many bytes, or repeated commands, the card is given to answer. 0 counts as 1 for both. They are
 * kept in the card's record. Nothing here is locked: an interrupt handler that uses the same
 * instance has to be kept out.
 */
#ifndef TARVO_ORIX_M1_DRIVER_SD_H
#define TARVO_ORIX_M1_DRIVER_SD_H

#include "tarvo_orix_m1.h"

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define SD_BLOCK_SIZE 512u   /* bytes */
#define SD_REGISTER_SIZE 16u /* bytes of CSD and CID */

typedef enum {
    SD_OK = 0,
    SD_ERROR_RANGE,   /* no such block, or no such rate; nothing was done */
    SD_ERROR_NO_CARD, /* there is none, or it was changed since it was initialised */
    SD_ERROR_TIMEOUT, /* polls or tries are used up */
    SD_ERROR_REFUSED, /* the card answers a command with an error, or is no card for this voltage */
    SD_ERROR_CHECKSUM,    /* a command or block arrived with a wrong CRC, here or at the card */
    SD_ERROR_DATA,        /* the card could not read or write the block */
    SD_ERROR_NO_RESPONSE, /* the card does not answer a command, or a block that is written */
    SD_ERROR_NO_BLOCK,    /* the card does not begin to send a block in time */
    SD_ERROR_BUSY,        /* the card is busy for too long */
    SD_ERROR_NO_CLOCK     /* SD_SPICLK stands still */
} sd_result;

/* A card; sd_open() and sd_init() fill it in. */
typedef struct {
    uint32_t polls;
    uint32_t tries;
    bool is_addressed_by_block; /* SDHC and SDXC */
    uint32_t errors;            /* ERRORS of the last command that failed, SD_ERRORS_..._Msk */
    uint32_t response;          /* RESPONSE of the last command */
    uint32_t moved;             /* blocks that the last function has read or written */
} sd_card;

/* Whether a card is in the socket. */
bool sd_is_present(const SD_Type *sd);

/*
 * Initialises the card with a clock made from the clock of the bus in Hz, and goes on at
 * the highest SD_CLK in Hz that is not above sclk_hz. TIMEOUT becomes 0.2 s for a block to begin
 * and 0.6 s for a busy card. SD_ERROR_RANGE: 400 kHz, or sclk_hz, cannot be made from it.
 */
sd_result sd_open(SD_Type *sd, sd_card *card, uint32_t clock_hz, uint32_t sclk_hz);

/*
 * Initialises the card with the clock from SD_SPICLK: CMD0, CMD8, ACMD41, CMD58, and CMD16 for a
 * card addressed by byte. A card may take a second for it, which tries has to cover: with bytes of
 * 20 microseconds at 400 kHz and some twenty for each repetition, 5000 does. TIMEOUT is left alone.
 */
sd_result sd_init(SD_Type *sd, sd_card *card, uint32_t polls, uint32_t tries);

/* The SD_CLK that the divider gives, in Hz, rounded down; 0 if it comes from SD_SPICLK. The clock
 * of the bus in Hz. */
uint32_t sd_rate(const SD_Type *sd, uint32_t clock_hz);

/* Has the card check the CRC of commands and blocks, which it does not after its initialisation. */
sd_result sd_check_crc(SD_Type *sd, sd_card *card, bool checked);

/* Reads a block of SD_BLOCK_SIZE bytes; block is its number, from 0. After an error data may hold
 * anything. */
sd_result sd_read_block(SD_Type *sd, sd_card *card, uint32_t block, uint8_t *data);

/* Writes a block of SD_BLOCK_SIZE bytes and waits until the card has stored it. */
sd_result sd_write_block(SD_Type *sd, sd_card *card, uint32_t block, const uint8_t *data);

/* Reads blocks one behind the other; card->moved says how many of them are right after an error. */
sd_result sd_read_blocks(SD_Type *sd, sd_card *card, uint32_t block, uint32_t count, uint8_t *data);

/* Writes blocks one behind the other; card->moved says how many of them were stored after an error.
 */
sd_result sd_write_blocks(SD_Type *sd, sd_card *card, uint32_t block, uint32_t count,
                          const uint8_t *data);

/* Reads the card's description (CSD) and its name (CID), SD_REGISTER_SIZE bytes each. */
sd_result sd_read_csd(SD_Type *sd, sd_card *card, uint8_t *csd);
sd_result sd_read_cid(SD_Type *sd, sd_card *card, uint8_t *cid);

/* How many blocks of SD_BLOCK_SIZE bytes a card with this CSD has; 0 if its version is unknown. */
uint32_t sd_blocks(const uint8_t *csd);

/* The card's status (CMD13): R1 in bits 15 to 8, the second byte in bits 7 to 0. */
sd_result sd_status(SD_Type *sd, sd_card *card, uint32_t *status);

/*
 * What was noted since the last call, and is thereby forgotten: SD_STATUS_LOST_Msk (DATA was
 * written while a byte was on its way) and SD_STATUS_CHANGED_Msk (a card came or left; what is in
 * the socket now needs sd_open() or sd_init()); 0 if nothing was.
 */
uint32_t sd_take_errors(SD_Type *sd);

/* Switches the interrupt on or off that stays while SD_STATUS_CHANGED_Msk is noted. */
void sd_enable_card_interrupt(SD_Type *sd, bool on);

/* Switches interrupts of events on or off, SD_ENABLE_..._Msk. */
void sd_enable_interrupts(SD_Type *sd, uint32_t events);
void sd_disable_interrupts(SD_Type *sd, uint32_t events);

/* What came and went since the last call, which is thereby forgotten: SD_EVENTS_INSERTED_Msk and
 * SD_EVENTS_REMOVED_Msk. */
uint32_t sd_take_events(SD_Type *sd);

/* The CRC of commands: polynomial x^7 + x^3 + 1 from 0, in bits 6 to 0. */
uint8_t sd_crc7(const uint8_t *data, size_t size);

/* The CRC of blocks: polynomial x^16 + x^12 + x^5 + 1 from 0. */
uint16_t sd_crc16(const uint8_t *data, size_t size);

#ifdef __cplusplus
}
#endif

#endif
