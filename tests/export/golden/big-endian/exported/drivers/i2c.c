#include "i2c.h"

static const uint32_t ten_bits = 0x8000u;
static const uint32_t prefix = 0xF0u; /* of an address of ten bits */
static const size_t burst = 256u;     /* bytes that one command reads */

static const uint32_t all_flags = I2C_STATUS_DONE_Msk | I2C_STATUS_ARBLOST_Msk;
static const uint32_t all_errors = I2C_ERROR_NACK_Msk | I2C_ERROR_REFUSED_Msk |
                                   I2C_ERROR_STUCK_Msk | I2C_ERROR_TIMEOUT_Msk |
                                   I2C_ERROR_ABORTED_Msk | I2C_ERROR_OVERFLOW_Msk;

static bool is_address(uint16_t address)
{
    return (address & ten_bits) != 0u ? (address & ~ten_bits) <= 0x3FFu : address <= 0x7Fu;
}

static void forget(I2C_Type *i2c)
{
    i2c->STATUS = all_flags;
    i2c->ERROR = all_errors;
}

/* How what has ended went. */
static i2c_result outcome(I2C_Type *i2c, uint32_t status)
{
    const uint32_t error = i2c->ERROR;
    if ((error & I2C_ERROR_TIMEOUT_Msk) != 0u)
        return I2C_ERROR_TIMEOUT;
    if ((error & I2C_ERROR_STUCK_Msk) != 0u)
        return I2C_ERROR_STUCK;
    if ((error & I2C_ERROR_REFUSED_Msk) != 0u)
        return I2C_ERROR_TAKEN;
    if ((status & I2C_STATUS_ARBLOST_Msk) != 0u)
        return I2C_ERROR_ARBITRATION;
    return (error & I2C_ERROR_NACK_Msk) != 0u ? I2C_ERROR_NACK : I2C_OK;
}

enum what { ROOM, BYTE, END };

/* Waits for room for a command, a received byte, or the end. Polls count from each step on. */
static i2c_result await(I2C_Type *i2c, enum what what, uint32_t polls)
{
    const uint32_t depth = 1u << ((i2c->ID & I2C_ID_DEPTH_Msk) >> I2C_ID_DEPTH_Pos);
    uint32_t last = 0xFFFFFFFFu;
    uint32_t left = polls;
    for (;;) {
        const uint32_t status = i2c->STATUS;
        const uint32_t level = i2c->LEVEL;
        const bool ended =
            (status & (I2C_STATUS_BUSY_Msk | I2C_STATUS_DONE_Msk)) == I2C_STATUS_DONE_Msk;
        if (what == BYTE && (level & I2C_LEVEL_RECEIVED_Msk) != 0u)
            return I2C_OK;
        if (ended) {
            const i2c_result result = outcome(i2c, status);
            if (result != I2C_OK || what == END)
                return result;
        }
        if (what == ROOM && ((level & I2C_LEVEL_COMMANDS_Msk) >> I2C_LEVEL_COMMANDS_Pos) < depth)
            return I2C_OK;
        if (level != last) {
            last = level;
            left = polls;
        } else if (left-- <= 1u) {
            i2c->COMMAND = I2C_COMMAND_ABORT_Msk;
            return (status & I2C_STATUS_OPEN_Msk) != 0u ? I2C_ERROR_TIMEOUT : I2C_ERROR_TAKEN;
        }
    }
}

static i2c_result put(I2C_Type *i2c, uint32_t word, uint32_t polls)
{
    const i2c_result result = await(i2c, ROOM, polls);
    if (result == I2C_OK)
        i2c->FIFO = word;
    return result;
}

/* A start and the address, of which is known at the end whether it was acknowledged. */
static i2c_result begin(I2C_Type *i2c, uint16_t address, bool reading, bool stop, uint32_t polls)
{
    const bool is_long = (address & ten_bits) != 0u;
    const uint32_t direction = reading ? 1u : 0u;
    const uint32_t high = prefix | ((uint32_t)(address >> 7) & 6u);
    const uint32_t last = stop ? I2C_FIFO_STOP_Msk : 0u;
    i2c_result result;
    if (!is_long) {
        i2c->FIFO = I2C_FIFO_START_Msk | (uint32_t)address << 1 | direction | last;
    } else {
        i2c->FIFO = I2C_FIFO_START_Msk | high;
        i2c->FIFO = (address & 0xFFu) | last;
        if (reading)
            i2c->FIFO = I2C_FIFO_START_Msk | high | direction;
    }
    result = await(i2c, END, polls);
    return result == I2C_ERROR_NACK ? I2C_ERROR_NO_DEVICE : result;
}

static i2c_result send(I2C_Type *i2c, const uint8_t *data, size_t size, bool stop, uint32_t polls)
{
    size_t i;
    i2c_result result = I2C_OK;
    for (i = 0u; i < size && result == I2C_OK; ++i)
        result = put(i2c, data[i] | (stop && i + 1u == size ? I2C_FIFO_STOP_Msk : 0u), polls);
    return result == I2C_OK ? await(i2c, END, polls) : result;
}

static i2c_result receive(I2C_Type *i2c, uint8_t *data, size_t size, uint32_t polls)
{
    size_t i;
    i2c_result result = I2C_OK;
    for (i = 0u; i < size && result == I2C_OK; ++i) {
        if (i % burst == 0u) {
            const size_t left = size - i;
            uint32_t command = I2C_FIFO_READ_Msk | (uint32_t)(burst - 1u);
            if (left <= burst)
                command = I2C_FIFO_READ_Msk | (uint32_t)(left - 1u) | I2C_FIFO_NACK_Msk |
                          I2C_FIFO_STOP_Msk;
            result = put(i2c, command, polls);
        }
        if (result == I2C_OK)
            result = await(i2c, BYTE, polls);
        if (result == I2C_OK)
            data[i] = (uint8_t)(i2c->FIFO & I2C_FIFO_BYTE_Msk);
    }
    return result == I2C_OK ? await(i2c, END, polls) : result;
}

/* What is left of an earlier transfer is in nobody's way. */
static i2c_result prepare(I2C_Type *i2c)
{
    if ((i2c->STATUS & I2C_STATUS_BUSY_Msk) != 0u)
        return I2C_ERROR_BUSY;
    forget(i2c);
    while ((i2c->FIFO & I2C_FIFO_VALID_Msk) != 0u) {
    }
    return I2C_OK;
}

static i2c_result transfer(I2C_Type *i2c, uint16_t address, const uint8_t *sent, size_t sent_size,
                           uint8_t *received, size_t received_size, uint32_t polls)
{
    i2c_result result = prepare(i2c);
    if (result != I2C_OK)
        return result;
    if (sent_size != 0u || received_size == 0u) {
        result = begin(i2c, address, false, sent_size == 0u, polls);
        if (result == I2C_OK && sent_size != 0u)
            result = send(i2c, sent, sent_size, received_size == 0u, polls);
    }
    if (result == I2C_OK && received_size != 0u) {
        result = begin(i2c, address, true, false, polls);
        if (result == I2C_OK)
            result = receive(i2c, received, received_size, polls);
    }
    forget(i2c);
    return result;
}

i2c_result i2c_init(I2C_Type *i2c, uint32_t clock_hz, uint32_t scl_hz)
{
    static const uint32_t fast = 400000u;
    static const uint32_t twenty_mhz = 20000000u; /* of 50 ns */
    const uint32_t spikes = clock_hz / twenty_mhz + (clock_hz % twenty_mhz != 0u ? 1u : 0u);
    const uint32_t most = I2C_FILTER_CYCLES_Msk >> I2C_FILTER_CYCLES_Pos;
    uint32_t period;
    uint32_t quarter;
    if (clock_hz == 0u || scl_hz == 0u)
        return I2C_ERROR_RANGE;
    period = clock_hz / scl_hz + (clock_hz % scl_hz != 0u ? 1u : 0u);
    quarter = period / 4u + (period % 4u != 0u ? 1u : 0u);
    if (scl_hz <= fast) { /* SCL is low for 1.3 us: a quarter is thirteen times 50 ns */
        const uint32_t least = clock_hz / twenty_mhz * 13u +
                               (clock_hz % twenty_mhz * 13u + twenty_mhz - 1u) / twenty_mhz;
        if (quarter < least)
            quarter = least;
    }
    if (quarter - 1u > (I2C_PRESCALE_CYCLES_Msk >> I2C_PRESCALE_CYCLES_Pos))
        return I2C_ERROR_RANGE;
    if ((i2c->STATUS & I2C_STATUS_BUSY_Msk) != 0u)
        return I2C_ERROR_BUSY;
    i2c->CTRL = 0u;
    i2c->PRESCALE = (quarter - 1u) << I2C_PRESCALE_CYCLES_Pos;
    i2c->FILTER = (spikes < most ? spikes : most) << I2C_FILTER_CYCLES_Pos;
    forget(i2c);
    i2c->CTRL = I2C_CTRL_EN_Msk;
    return I2C_OK;
}

i2c_result i2c_set_timeout(I2C_Type *i2c, uint32_t cycles)
{
    const uint32_t units = cycles / 256u + (cycles % 256u != 0u ? 1u : 0u);
    if (units > (I2C_TIMEOUT_UNITS_Msk >> I2C_TIMEOUT_UNITS_Pos))
        return I2C_ERROR_RANGE;
    i2c->TIMEOUT = units << I2C_TIMEOUT_UNITS_Pos;
    return I2C_OK;
}

i2c_result i2c_probe(I2C_Type *i2c, uint16_t address, uint32_t polls)
{
    return i2c_write(i2c, address, NULL, 0u, polls);
}

i2c_result i2c_write(I2C_Type *i2c, uint16_t address, const void *data, size_t size, uint32_t polls)
{
    if (!is_address(address))
        return I2C_ERROR_RANGE;
    return transfer(i2c, address, (const uint8_t *)data, size, NULL, 0u, polls);
}

i2c_result i2c_read(I2C_Type *i2c, uint16_t address, void *data, size_t size, uint32_t polls)
{
    if (!is_address(address) || size == 0u)
        return I2C_ERROR_RANGE;
    return transfer(i2c, address, NULL, 0u, (uint8_t *)data, size, polls);
}

i2c_result i2c_write_read(I2C_Type *i2c, uint16_t address, const void *sent, size_t sent_size,
                          void *received, size_t received_size, uint32_t polls)
{
    if (!is_address(address) || sent_size == 0u || received_size == 0u)
        return I2C_ERROR_RANGE;
    return transfer(i2c, address, (const uint8_t *)sent, sent_size, (uint8_t *)received,
                    received_size, polls);
}

i2c_result i2c_recover(I2C_Type *i2c, uint32_t polls)
{
    i2c_result result;
    if ((i2c->STATUS & I2C_STATUS_BUSY_Msk) != 0u)
        i2c->COMMAND = I2C_COMMAND_ABORT_Msk;
    forget(i2c);
    i2c->COMMAND = I2C_COMMAND_RECOVER_Msk;
    result = await(i2c, END, polls);
    forget(i2c);
    return result == I2C_ERROR_TAKEN ? I2C_ERROR_TIMEOUT : result;
}

i2c_result i2c_target_start(I2C_Type *i2c, uint16_t address, uint16_t mask, uint32_t options)
{
    const bool is_long = (address & ten_bits) != 0u;
    const uint32_t bits = address & ~ten_bits;
    if (!is_address(address) || mask > (is_long ? 0x3FFu : 0x7Fu))
        return I2C_ERROR_RANGE;
    i2c->TCTRL = 0u;
    i2c->TADDR = bits << I2C_TADDR_ADDR_Pos | (uint32_t)mask << I2C_TADDR_MASK_Pos;
    i2c->PEND = I2C_PEND_TADDRESSED_Msk | I2C_PEND_TENDED_Msk | I2C_PEND_TTIMEOUT_Msk;
    i2c->TCTRL = I2C_TCTRL_EN_Msk | (is_long ? I2C_TCTRL_TEN_Msk : 0u) |
                 ((options & I2C_TARGET_GENERAL_CALL) != 0u ? I2C_TCTRL_GENERAL_Msk : 0u) |
                 ((options & I2C_TARGET_NO_STRETCH) != 0u ? I2C_TCTRL_NOSTRETCH_Msk : 0u);
    return I2C_OK;
}

void i2c_target_stop(I2C_Type *i2c)
{
    i2c->TCTRL = 0u;
}

bool i2c_target_get(I2C_Type *i2c, uint8_t *byte, uint32_t *what)
{
    const uint32_t word = i2c->TDATA;
    if ((word & I2C_TDATA_VALID_Msk) == 0u)
        return false;
    *byte = (uint8_t)(word & I2C_TDATA_BYTE_Msk);
    if (what != NULL)
        *what = ((word & I2C_TDATA_FIRST_Msk) != 0u ? (uint32_t)I2C_BYTE_FIRST : 0u) |
                ((word & I2C_TDATA_GENERAL_Msk) != 0u ? (uint32_t)I2C_BYTE_GENERAL : 0u);
    return true;
}

bool i2c_target_put(I2C_Type *i2c, uint8_t byte)
{
    if ((i2c->TSTATUS & I2C_TSTATUS_FULL_Msk) != 0u)
        return false;
    i2c->TDATA = byte;
    return true;
}

void i2c_target_drop(I2C_Type *i2c)
{
    i2c->COMMAND = I2C_COMMAND_TDROP_Msk;
}

uint16_t i2c_target_address(I2C_Type *i2c)
{
    return (uint16_t)((i2c->TSTATUS & I2C_TSTATUS_ADDRESS_Msk) >> I2C_TSTATUS_ADDRESS_Pos);
}

static const uint32_t target_events = I2C_TARGET_RECEIVED | I2C_TARGET_WANTED |
                                      I2C_TARGET_ADDRESSED | I2C_TARGET_ENDED | I2C_TARGET_TIMEOUT;

uint32_t i2c_target_events(I2C_Type *i2c)
{
    const uint32_t events = i2c->PEND & target_events;
    i2c->PEND = events;
    return events;
}

void i2c_target_enable_interrupts(I2C_Type *i2c, uint32_t events)
{
    i2c->INTEN = i2c->INTEN | (events & target_events);
}

void i2c_target_disable_interrupts(I2C_Type *i2c, uint32_t events)
{
    i2c->INTEN = i2c->INTEN & ~(events & target_events);
}
