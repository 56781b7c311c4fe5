/*
 * I2C master and target with addresses of seven and ten bits, clock stretching, several masters and
 * recovery of a bus that is held.
 *
 * A limit in polls says how often the status is looked at before a function gives up on one byte
 * (nine SCL periods, and start and stop); 0 counts as 1. What a device may stretch the clock, and
 * what another master may keep the bus, has to be in it.
 */
#ifndef TARVO_ORIX_M1_DRIVER_I2C_H
#define TARVO_ORIX_M1_DRIVER_I2C_H

#include "tarvo_orix_m1.h"

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* An address of ten bits (0 to 0x3FF), where one of seven (0 to 0x7F) may stand. */
#define I2C_TEN_BITS(address) ((uint16_t)(0x8000u | (address)))

/*
 * Behind each error this master has released both lines. After the first three that tell of a
 * device, the bus is free as well; else i2c_recover() may help.
 */
typedef enum {
    I2C_OK = 0,
    I2C_ERROR_RANGE,       /* an argument; nothing was done */
    I2C_ERROR_NO_DEVICE,   /* the address was not acknowledged */
    I2C_ERROR_NACK,        /* a byte that was written was not acknowledged */
    I2C_ERROR_ARBITRATION, /* another master won, and has the bus */
    I2C_ERROR_BUSY,        /* a command is running that is not this driver's; nothing was done */
    I2C_ERROR_TIMEOUT,     /* the limit was reached within a transfer, for instance SCL is held */
    I2C_ERROR_TAKEN,       /* the limit was reached before one, or the start was refused */
    I2C_ERROR_STUCK        /* SDA is held low */
} i2c_result;

/*
 * Sets the highest SCL in Hz that is not above scl_hz and keeps the low time of its mode (up to
 * 100 kHz, 400 kHz, 1 MHz), from the clock of the bus in Hz: a quarter of a period is 1 to 65536
 * clock cycles. Switches the master on, its interrupt off, and the spike filter to 50 ns, at most
 * 15 clock cycles. I2C_ERROR_RANGE and I2C_ERROR_BUSY change nothing.
 */
i2c_result i2c_init(I2C_Type *i2c, uint32_t clock_hz, uint32_t scl_hz);

/*
 * Has the hardware give up when a line does not move, or the bus is not free, for that many clock
 * cycles of the bus, rounded up to 256, at most 65535 * 256; 0: never. It counts for the target
 * too.
 */
i2c_result i2c_set_timeout(I2C_Type *i2c, uint32_t cycles);

/* Whether a device acknowledges this address: I2C_OK or I2C_ERROR_NO_DEVICE. */
i2c_result i2c_probe(I2C_Type *i2c, uint16_t address, uint32_t polls);

/* Writes size bytes (0: as i2c_probe()) to the device with this address. */
i2c_result i2c_write(I2C_Type *i2c, uint16_t address, const void *data, size_t size,
                     uint32_t polls);

/* Reads size bytes, at least one, from the device with this address. */
i2c_result i2c_read(I2C_Type *i2c, uint16_t address, void *data, size_t size, uint32_t polls);

/*
 * Writes, then reads after a repeated start, so that nobody comes between: as for a register of a
 * device, whose number is written. Both sizes are at least 1.
 */
i2c_result i2c_write_read(I2C_Type *i2c, uint16_t address, const void *sent, size_t sent_size,
                          void *received, size_t received_size, uint32_t polls);

/*
 * Frees a bus on which a device holds SDA since it waits for the rest of a byte: nine clocks, then
 * a stop. Whatever runs is given up before. I2C_ERROR_STUCK: SDA is still held.
 */
i2c_result i2c_recover(I2C_Type *i2c, uint32_t polls);

/* ---- target: another master writes and reads. Bytes wait in FIFOs, and SCL is held meanwhile. */

enum {
    I2C_TARGET_GENERAL_CALL = 1, /* answer to address 0, too */
    I2C_TARGET_NO_STRETCH = 2    /* do not acknowledge without room, send 0xFF without a byte */
};

/* What i2c_target_events() tells, and i2c_target_enable_interrupts() and
 * i2c_target_disable_interrupts() take. */
enum {
    I2C_TARGET_RECEIVED = 0x04,  /* bytes to take */
    I2C_TARGET_WANTED = 0x08,    /* the master waits for a byte */
    I2C_TARGET_ADDRESSED = 0x10, /* a transfer has begun */
    I2C_TARGET_ENDED = 0x20,     /* a transfer has ended */
    I2C_TARGET_TIMEOUT = 0x40    /* i2c_set_timeout() had this target give up */
};

/* What i2c_target_get() tells of a byte. */
enum {
    I2C_BYTE_FIRST = 1,  /* the first one behind the address */
    I2C_BYTE_GENERAL = 2 /* by the general call */
};

/* Answers to address, of which the bits in mask do not count. Bytes of before are forgotten. */
i2c_result i2c_target_start(I2C_Type *i2c, uint16_t address, uint16_t mask, uint32_t options);

/* Answers no more, and releases the lines. */
void i2c_target_stop(I2C_Type *i2c);

/* Takes a byte that was written to this target, and, unless NULL, what it is. false: there is none.
 */
bool i2c_target_get(I2C_Type *i2c, uint8_t *byte, uint32_t *what);

/* A byte that a master may read. false: no room. */
bool i2c_target_put(I2C_Type *i2c, uint8_t byte);

/* Forgets the bytes that no master has read. */
void i2c_target_drop(I2C_Type *i2c);

/* The address that was called last; 0: the general call. */
uint16_t i2c_target_address(I2C_Type *i2c);

/* What has happened since it was asked last, and what is to be done now. */
uint32_t i2c_target_events(I2C_Type *i2c);

/* Has these events ask for the interrupt of the block as well. */
void i2c_target_enable_interrupts(I2C_Type *i2c, uint32_t events);

/* Has these events no longer ask for it. */
void i2c_target_disable_interrupts(I2C_Type *i2c, uint32_t events);

#ifdef __cplusplus
}
#endif

#endif
