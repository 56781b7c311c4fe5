/*
 * Serial flash: reading through the window, everything else by commands. Opcodes are those that
 * serial flashes share: 02h, 03h, 04h, 05h, 06h, 0Bh, 20h, 9Fh, B7h, C7h, D8h, E9h. What else a
 * flash can read it says itself, in its table of parameters (5Ah).
 *
 * Without spiflash_set_mode() each word is read by a command of its own on one lane. Addresses are
 * those of the window; spiflash_set_bank() moves it in a flash of more than 16 MB.
 *
 * While a function other than spiflash_read() runs, the window answers with a bus error: code that
 * calls it, and interrupt handlers meanwhile, must not lie in the window. The flash itself cannot
 * be read while it erases or programs. A limit in polls says how often the flash is asked for its
 * status before a function gives up; 0 counts as 1.
 */
#ifndef TARVO_ORIX_M1_DRIVER_SPIFLASH_H
#define TARVO_ORIX_M1_DRIVER_SPIFLASH_H

#include "tarvo_orix_m1.h"

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define SPIFLASH_SIZE_MAX 0x01000000u /* bytes that 24-bit addresses reach: those of the window */
#define SPIFLASH_SECTOR_SIZE 4096u    /* bytes that spiflash_erase_sector() erases */
#define SPIFLASH_BLOCK_SIZE 65536u    /* bytes that spiflash_erase_block() erases */
#define SPIFLASH_PAGE_SIZE 256u       /* bytes of a page */

#define SPIFLASH_FLAG_WORKING 0x01u /* of spiflash_status(): the flash erases or programs */
#define SPIFLASH_FLAG_WRITABLE                                                                     \
    0x02u /* of spiflash_status(): spiflash_write_enable() had effect                              \
           */

typedef enum {
    SPIFLASH_OK = 0,
    SPIFLASH_ERROR_RANGE,     /* an argument; nothing was done */
    SPIFLASH_ERROR_BUSY,      /* the flash still erases or programs; nothing was done */
    SPIFLASH_ERROR_PROTECTED, /* the flash does not take the write enable, or there is none */
    SPIFLASH_ERROR_TIMEOUT,   /* the limit was reached; the flash may still be working */
    SPIFLASH_ERROR_ABSENT     /* no flash answers */
} spiflash_result;

/* How words are read: lanes of opcode, address and data. Later ones are faster. */
typedef enum {
    SPIFLASH_MODE_SINGLE = 0, /* 1-1-1, at the rate of the opcode 03h */
    SPIFLASH_MODE_FAST,       /* 1-1-1 */
    SPIFLASH_MODE_DUAL_OUT,   /* 1-1-2 */
    SPIFLASH_MODE_DUAL_IO,    /* 1-2-2 */
    SPIFLASH_MODE_QUAD_OUT,   /* 1-1-4 */
    SPIFLASH_MODE_QUAD_IO,    /* 1-4-4 */
    SPIFLASH_MODES
} spiflash_mode;

/* What spiflash_detect() finds out. */
typedef struct {
    uint8_t id[3];       /* the JEDEC identification: maker, kind, capacity */
    uint8_t quad_enable; /* how four lanes are switched on, as the parameters number it */
    uint32_t size;       /* bytes; 0: the flash does not say */
    uint32_t format[SPIFLASH_MODES]; /* of the register READ; 0: the flash has no such mode */
} spiflash_chip;

/*
 * Sets the highest serial clock in Hz that is not above sclk_hz, from the clock of the bus in Hz:
 * half a period is 1 to 256 clock cycles. Ends a command that still runs, and releases the chip
 * select; after a reset of the system the flash is reset, too. The write-protect pin stays as it
 * is: active after a reset.
 */
spiflash_result spiflash_init(SPIFLASH_Type *flash, uint32_t clock_hz, uint32_t sclk_hz);

/* Drives the write-protect pin: true protects the flash's status register. */
void spiflash_protect(SPIFLASH_Type *flash, bool is_protected);

/*
 * Identifies the flash and reads its parameters. A flash without them has the modes SINGLE and
 * FAST, and its size is what the capacity of its identification says. Bus reads go on as they were
 * set.
 */
spiflash_result spiflash_detect(SPIFLASH_Type *flash, spiflash_chip *chip);

/* The fastest mode that the flash has. */
spiflash_mode spiflash_fastest(const spiflash_chip *chip);

/*
 * From now on reads go on with the next word where it is asked for, in a mode. Four lanes are
 * switched on in the flash where they are not, which it keeps; polls limits that. The mode must be
 * one that the flash has. Without success everything is read as before.
 */
spiflash_result spiflash_set_mode(SPIFLASH_Type *flash, const spiflash_chip *chip,
                                  spiflash_mode mode, uint32_t polls);

/*
 * Reads without opcodes: for many short reads, such as of code. The mode must be DUAL_IO or QUAD_IO
 * of a flash with mode bits. spiflash_set_mode() ends them.
 */
spiflash_result spiflash_set_continuous(SPIFLASH_Type *flash, bool is_continuous);

/* The 16 MB that all functions reach: 0 to 255. Others than 0 make the flash take four bytes of
 * address, which lasts until a reset. */
void spiflash_set_bank(SPIFLASH_Type *flash, uint8_t bank);

/* Copies size bytes from an address of the flash; together at most SPIFLASH_SIZE_MAX. */
spiflash_result spiflash_read(const SPIFLASH_Type *flash, uint32_t address, void *data,
                              size_t size);

/* The JEDEC identification: maker, kind, capacity. All 0x00 or all 0xFF: there is no flash. */
void spiflash_read_id(SPIFLASH_Type *flash, uint8_t id[3]);

/* The flash's status register: SPIFLASH_FLAG_WORKING, SPIFLASH_FLAG_WRITABLE and what it adds. */
uint8_t spiflash_status(SPIFLASH_Type *flash);

/* Lets the flash take the next command that changes it. Erasing and programming do this themselves.
 */
spiflash_result spiflash_write_enable(SPIFLASH_Type *flash);

/* Takes spiflash_write_enable() back. */
void spiflash_write_disable(SPIFLASH_Type *flash);

/* Waits until the flash has done its work. */
spiflash_result spiflash_wait(SPIFLASH_Type *flash, uint32_t polls);

/* Erases the sector at an address, a multiple of SPIFLASH_SECTOR_SIZE, to 0xFF, and waits. */
spiflash_result spiflash_erase_sector(SPIFLASH_Type *flash, uint32_t address, uint32_t polls);

/* The same for SPIFLASH_BLOCK_SIZE. */
spiflash_result spiflash_erase_block(SPIFLASH_Type *flash, uint32_t address, uint32_t polls);

/* Erases all of the flash, and waits. */
spiflash_result spiflash_erase_chip(SPIFLASH_Type *flash, uint32_t polls);

/*
 * Programs 1 to SPIFLASH_PAGE_SIZE bytes within a page, and waits. Bits become 0 only: what is not
 * erased is the AND of old and new.
 */
spiflash_result spiflash_program_page(SPIFLASH_Type *flash, uint32_t address, const void *data,
                                      size_t size, uint32_t polls);

/* The same for any number of bytes, page by page, each within the limit. */
spiflash_result spiflash_program(SPIFLASH_Type *flash, uint32_t address, const void *data,
                                 size_t size, uint32_t polls);

#ifdef __cplusplus
}
#endif

#endif
