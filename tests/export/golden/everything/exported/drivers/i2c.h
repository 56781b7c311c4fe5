/*
 * I2C master with addresses of seven bits, clock stretching and loss of arbitration.
 *
 * A limit in polls says how often the status is looked at before a function gives up on one byte
 * (nine SCL periods, and start and stop); 0 counts as 1. What a device may stretch the clock has to
 * be in it.
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

/* After each error but the last three the bus is free again. */
typedef enum {
    I2C_OK = 0,
    I2C_ERROR_RANGE,       /* an argument; nothing was done */
    I2C_ERROR_NO_DEVICE,   /* the address was not acknowledged */
    I2C_ERROR_NACK,        /* a byte that was written was not acknowledged */
    I2C_ERROR_ARBITRATION, /* another master won, or a device holds SDA: see i2c_recover() */
    I2C_ERROR_BUSY,        /* an earlier byte is still on its way; nothing was done */
    I2C_ERROR_TIMEOUT      /* the limit was reached; the byte is still on its way */
} i2c_result;

/*
 * Sets the highest SCL in Hz that is not above scl_hz, from the clock of the bus in Hz: a quarter
 * of a period is 1 to 65536 clock cycles, and three more pass at each rise of SCL. Switches the
 * master on and the interrupt off. I2C_ERROR_RANGE and I2C_ERROR_BUSY change nothing.
 */
i2c_result i2c_init(I2C_Type *i2c, uint32_t clock_hz, uint32_t scl_hz);

/* Whether a device acknowledges this address (0 to 127): I2C_OK or I2C_ERROR_NO_DEVICE. */
i2c_result i2c_probe(I2C_Type *i2c, uint8_t address, uint32_t polls);

/* Writes size bytes (0: as i2c_probe()) to the device with this address (0 to 127). */
i2c_result i2c_write(I2C_Type *i2c, uint8_t address, const void *data, size_t size, uint32_t polls);

/* Reads size bytes, at least one, from the device with this address (0 to 127). */
i2c_result i2c_read(I2C_Type *i2c, uint8_t address, void *data, size_t size, uint32_t polls);

/*
 * Writes, then reads after a repeated start, so that nobody comes between: as for a register of a
 * device, whose number is written. Both sizes are at least 1.
 */
i2c_result i2c_write_read(I2C_Type *i2c, uint8_t address, const void *sent, size_t sent_size,
                          void *received, size_t received_size, uint32_t polls);

/*
 * Frees a bus on which a device holds SDA since it waits for the rest of a byte: gives it nine
 * clock pulses, the last of which is a stop, up to three times, until SDA stays high.
 * I2C_ERROR_ARBITRATION: it does not.
 */
i2c_result i2c_recover(I2C_Type *i2c, uint32_t polls);

#ifdef __cplusplus
}
#endif

#endif
