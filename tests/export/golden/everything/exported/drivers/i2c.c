#include "i2c.h"

static const uint32_t highest_address = 0x7Fu;
static const int recovery_rounds = 3;

/* Carries out a command; the byte of a write command is in TXDATA. */
static i2c_result run(I2C_Type *i2c, uint32_t command, uint32_t polls)
{
    uint32_t status;
    if ((i2c->STATUS & I2C_STATUS_BUSY_Msk) != 0u)
        return I2C_ERROR_BUSY;
    i2c->STATUS = I2C_STATUS_DONE_Msk | I2C_STATUS_ARBLOST_Msk;
    i2c->COMMAND = command;
    do {
        status = i2c->STATUS;
        if ((status & (I2C_STATUS_BUSY_Msk | I2C_STATUS_DONE_Msk)) == I2C_STATUS_DONE_Msk) {
            i2c->STATUS = I2C_STATUS_DONE_Msk | I2C_STATUS_ARBLOST_Msk;
            if ((status & I2C_STATUS_ARBLOST_Msk) != 0u)
                return I2C_ERROR_ARBITRATION;
            if ((command & I2C_COMMAND_WRITE_Msk) != 0u && (status & I2C_STATUS_NACKED_Msk) != 0u)
                return I2C_ERROR_NACK;
            return I2C_OK;
        }
    } while (polls-- > 1u);
    return I2C_ERROR_TIMEOUT;
}

/* Ends a transfer with this result: the bus is left free if it is this master's. */
static i2c_result end(I2C_Type *i2c, i2c_result result, uint32_t polls)
{
    if (result == I2C_ERROR_NACK && (i2c->STATUS & I2C_STATUS_OPEN_Msk) != 0u) {
        const i2c_result stopped = run(i2c, I2C_COMMAND_STOP_Msk, polls);
        if (stopped != I2C_OK)
            return stopped;
    }
    return result;
}

/* A start and the address. */
static i2c_result begin(I2C_Type *i2c, uint8_t address, bool reading, bool stop, uint32_t polls)
{
    const uint32_t byte = ((uint32_t)address << 1) | (reading ? 1u : 0u);
    i2c_result result;
    if ((i2c->STATUS & I2C_STATUS_BUSY_Msk) != 0u)
        return I2C_ERROR_BUSY;
    i2c->TXDATA = byte;
    result = end(
        i2c,
        run(i2c, I2C_COMMAND_START_Msk | I2C_COMMAND_WRITE_Msk | (stop ? I2C_COMMAND_STOP_Msk : 0u),
            polls),
        polls);
    return result == I2C_ERROR_NACK ? I2C_ERROR_NO_DEVICE : result;
}

static i2c_result write_part(I2C_Type *i2c, uint8_t address, const uint8_t *data, size_t size,
                             bool stop, uint32_t polls)
{
    size_t i;
    i2c_result result = begin(i2c, address, false, stop && size == 0u, polls);
    for (i = 0u; i < size && result == I2C_OK; ++i) {
        const bool last = stop && i + 1u == size;
        i2c->TXDATA = data[i];
        result =
            end(i2c, run(i2c, I2C_COMMAND_WRITE_Msk | (last ? I2C_COMMAND_STOP_Msk : 0u), polls),
                polls);
    }
    return result;
}

static i2c_result read_part(I2C_Type *i2c, uint8_t address, uint8_t *data, size_t size,
                            uint32_t polls)
{
    size_t i;
    i2c_result result = begin(i2c, address, true, false, polls);
    for (i = 0u; i < size && result == I2C_OK; ++i) {
        const bool last = i + 1u == size;
        result = run(
            i2c, I2C_COMMAND_READ_Msk | (last ? I2C_COMMAND_NACK_Msk | I2C_COMMAND_STOP_Msk : 0u),
            polls);
        if (result == I2C_OK)
            data[i] = (uint8_t)(i2c->RXDATA & I2C_RXDATA_BYTE_Msk);
    }
    return result;
}

i2c_result i2c_init(I2C_Type *i2c, uint32_t clock_hz, uint32_t scl_hz)
{
    uint32_t period;
    uint32_t quarter;
    if (clock_hz == 0u || scl_hz == 0u)
        return I2C_ERROR_RANGE;
    period = clock_hz / scl_hz + (clock_hz % scl_hz != 0u ? 1u : 0u);
    quarter = period / 4u + (period % 4u != 0u ? 1u : 0u);
    if (quarter - 1u > (I2C_PRESCALE_CYCLES_Msk >> I2C_PRESCALE_CYCLES_Pos))
        return I2C_ERROR_RANGE;
    if ((i2c->STATUS & I2C_STATUS_BUSY_Msk) != 0u)
        return I2C_ERROR_BUSY;
    i2c->CTRL = 0u;
    i2c->PRESCALE = (quarter - 1u) << I2C_PRESCALE_CYCLES_Pos;
    i2c->STATUS = I2C_STATUS_DONE_Msk | I2C_STATUS_ARBLOST_Msk;
    i2c->CTRL = I2C_CTRL_EN_Msk;
    return I2C_OK;
}

i2c_result i2c_probe(I2C_Type *i2c, uint8_t address, uint32_t polls)
{
    return i2c_write(i2c, address, NULL, 0u, polls);
}

i2c_result i2c_write(I2C_Type *i2c, uint8_t address, const void *data, size_t size, uint32_t polls)
{
    if (address > highest_address)
        return I2C_ERROR_RANGE;
    return write_part(i2c, address, (const uint8_t *)data, size, true, polls);
}

i2c_result i2c_read(I2C_Type *i2c, uint8_t address, void *data, size_t size, uint32_t polls)
{
    if (address > highest_address || size == 0u)
        return I2C_ERROR_RANGE;
    return read_part(i2c, address, (uint8_t *)data, size, polls);
}

i2c_result i2c_write_read(I2C_Type *i2c, uint8_t address, const void *sent, size_t sent_size,
                          void *received, size_t received_size, uint32_t polls)
{
    i2c_result result;
    if (address > highest_address || sent_size == 0u || received_size == 0u)
        return I2C_ERROR_RANGE;
    result = write_part(i2c, address, (const uint8_t *)sent, sent_size, false, polls);
    if (result != I2C_OK)
        return result;
    return read_part(i2c, address, (uint8_t *)received, received_size, polls);
}

i2c_result i2c_recover(I2C_Type *i2c, uint32_t polls)
{
    int round;
    for (round = 0; round < recovery_rounds; ++round) {
        /* Reading releases SDA: eight periods for the byte, one for the missing acknowledge. */
        const i2c_result result =
            run(i2c, I2C_COMMAND_READ_Msk | I2C_COMMAND_NACK_Msk | I2C_COMMAND_STOP_Msk, polls);
        if (result != I2C_OK)
            return result;
        if ((i2c->RXDATA & I2C_RXDATA_BYTE_Msk) == I2C_RXDATA_BYTE_Msk)
            return I2C_OK;
    }
    return I2C_ERROR_ARBITRATION;
}
