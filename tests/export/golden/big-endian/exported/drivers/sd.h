/*
 * SD card in SPI mode: cards of version 1 and 2, addressed by byte (SDSC) or by block (SDHC, SDXC).
 *
 * The serial clock comes from outside: SD_SPICLK, two periods of which make one. It must be at most
 * 400 kHz until sd_init() has succeeded; the pin SD_CARD_INIT, which is high from then on, can
 * switch the source over.
 *
 * Two limits bound every wait: polls, how often the status is looked at for one byte (17 halves of
 * a period), and tries, how many bytes, or repeated commands, the card is given to answer. 0 counts
 * as 1 for both. They are given to sd_init() and kept in the card's record. Nothing here is locked:
 * an interrupt handler that uses the same instance has to be kept out.
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

#define SD_BLOCK_SIZE 512u /* bytes */

typedef enum {
    SD_OK = 0,
    SD_ERROR_RANGE,   /* the card cannot have such a block; nothing was done */
    SD_ERROR_NO_CARD, /* there is none, or it was changed since sd_init() */
    SD_ERROR_TIMEOUT, /* a limit was reached: no answer, or SD_SPICLK stands still */
    SD_ERROR_REFUSED, /* the card answers a command with an error, or is no card for this voltage */
    SD_ERROR_CHECKSUM, /* a block arrived with a wrong CRC, here or at the card */
    SD_ERROR_DATA      /* the card could not read or write the block */
} sd_result;

/* A card; sd_init() fills it in. */
typedef struct {
    uint32_t polls;
    uint32_t tries;
    bool is_addressed_by_block; /* SDHC and SDXC */
} sd_card;

/* Whether a card is in the socket. */
bool sd_is_present(const SD_Type *sd);

/*
 * Initialises the card: CMD0, CMD8, ACMD41, CMD58, and CMD16 for a card addressed by byte. A card
 * may take a second for it, which tries has to cover: with bytes of 20 microseconds at 400 kHz and
 * some twenty for each repetition, 5000 does.
 */
sd_result sd_init(SD_Type *sd, sd_card *card, uint32_t polls, uint32_t tries);

/* Has the card check the CRC of commands and blocks, which it does not after sd_init(). */
sd_result sd_check_crc(SD_Type *sd, const sd_card *card, bool checked);

/* Reads a block of SD_BLOCK_SIZE bytes; block is its number, from 0. After an error data may hold
 * anything. */
sd_result sd_read_block(SD_Type *sd, const sd_card *card, uint32_t block, uint8_t *data);

/* Writes a block of SD_BLOCK_SIZE bytes and waits until the card has stored it. */
sd_result sd_write_block(SD_Type *sd, const sd_card *card, uint32_t block, const uint8_t *data);

/*
 * What was noted since the last call, and is thereby forgotten: SD_STATUS_LOST_Msk (DATA was
 * written while a byte was on its way) and SD_STATUS_CHANGED_Msk (a card came or left; what is in
 * the socket now needs sd_init()); 0 if nothing was.
 */
uint32_t sd_take_errors(SD_Type *sd);

/* Switches the interrupt on or off that stays while SD_STATUS_CHANGED_Msk is noted. */
void sd_enable_card_interrupt(SD_Type *sd, bool enabled);

/* The CRC of commands: polynomial x^7 + x^3 + 1 from 0, in bits 6 to 0. */
uint8_t sd_crc7(const uint8_t *data, size_t size);

/* The CRC of blocks: polynomial x^16 + x^12 + x^5 + 1 from 0. */
uint16_t sd_crc16(const uint8_t *data, size_t size);

#ifdef __cplusplus
}
#endif

#endif
