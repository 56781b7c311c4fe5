/*
 * Serial flash: reading through the window, everything else byte by byte. Commands are those that
 * serial flashes with 24-bit addresses share: 03h, 02h, 04h, 05h, 06h, 20h, 9Fh.
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
    SPIFLASH_ERROR_TIMEOUT    /* the limit was reached; the flash may still be working */
} spiflash_result;

/*
 * Sets the highest serial clock in Hz that is not above sclk_hz, from the clock of the bus in Hz:
 * half a period is 1 to 256 clock cycles. Releases the chip select. The write-protect pin stays as
 * it is: active after a reset.
 */
spiflash_result spiflash_init(SPIFLASH_Type *flash, uint32_t clock_hz, uint32_t sclk_hz);

/* Drives the write-protect pin: true protects the flash's status register. */
void spiflash_protect(SPIFLASH_Type *flash, bool is_protected);

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
