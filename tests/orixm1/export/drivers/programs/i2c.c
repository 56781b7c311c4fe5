#include "drivers/i2c.h"

#include "far.h"

static const uint32_t enough = 2000u;
static const uint8_t device = 0x2Du;

enum { STRETCH, REFUSE, ATTACK, HOLD, HOLD_SCL, CALL, SEND, GET, LATER, SPIKES };
enum { STARTS, STOPS, LINES, PERIOD, IRQ, CLOCKS, MASTER_ACK, ACKS, MEMORY = 16, GOT = 32 };

static const uint32_t released = 3u;

static void rates(void)
{
    EQUAL(i2c_init(I2C, 50000000u, 400000u), I2C_OK);
    EQUAL(I2C->PRESCALE, 32u); /* low for 66 cycles, at least 1.3 us */
    EQUAL(I2C->FILTER, 3u);
    EQUAL(i2c_init(I2C, 50000000u, 1000000u), I2C_OK);
    EQUAL(I2C->PRESCALE, 12u);
    EQUAL(i2c_init(I2C, 4000000000u, 1000000u), I2C_OK);
    EQUAL(I2C->FILTER, 15u);
    EQUAL(i2c_init(I2C, 50000000u, 100000u), I2C_OK);
    EQUAL(I2C->PRESCALE, 124u);
    EQUAL(i2c_init(I2C, 262144u, 1u), I2C_OK);
    EQUAL(I2C->PRESCALE, 0xFFFFu);
    EQUAL(i2c_init(I2C, 262145u, 1u), I2C_ERROR_RANGE);
    EQUAL(i2c_init(I2C, 0xFFFFFFFFu, 1u), I2C_ERROR_RANGE);
    EQUAL(i2c_init(I2C, 1000u, 0u), I2C_ERROR_RANGE);
    EQUAL(i2c_init(I2C, 0u, 1000u), I2C_ERROR_RANGE);
    EQUAL(I2C->PRESCALE, 0xFFFFu);
    EQUAL(i2c_init(I2C, 1000u, 0xFFFFFFFFu), I2C_OK);
    EQUAL(I2C->PRESCALE, 0u);
    EQUAL(i2c_init(I2C, 1000000u, 25000u), I2C_OK);
    EQUAL(I2C->CTRL, I2C_CTRL_EN_Msk);
}

static void transfers(void)
{
    static const uint8_t sent[4] = {5u, 0x00u, 0xFFu, 0x96u};
    static const uint8_t pointer[1] = {4u};
    uint8_t got[4] = {0u, 0u, 0u, 0u};
    uint32_t starts = FAR(STARTS);
    uint32_t stops = FAR(STOPS);
    EQUAL(i2c_probe(I2C, device, enough), I2C_OK);
    EQUAL(FAR(STARTS) - starts, 1u);
    EQUAL(FAR(STOPS) - stops, 1u);
    EQUAL(i2c_write(I2C, device, sent, 4u, enough), I2C_OK);
    EQUAL(FAR(MEMORY + 5u), 0x00u);
    EQUAL(FAR(MEMORY + 6u), 0xFFu);
    EQUAL(FAR(MEMORY + 7u), 0x96u);
    EQUAL(FAR(MEMORY + 8u), 0xA8u);
    EQUAL(FAR(STOPS) - stops, 2u);
    EQUAL(FAR(PERIOD) >= 40u && FAR(PERIOD) <= 45u, true);
    EQUAL(i2c_write_read(I2C, device, pointer, 1u, got, 4u, enough), I2C_OK);
    EQUAL(got[0], 0xA4u);
    EQUAL(got[1], 0x00u);
    EQUAL(got[2], 0xFFu);
    EQUAL(got[3], 0x96u);
    EQUAL(FAR(MASTER_ACK), 0u); /* the last byte is not acknowledged */
    EQUAL(FAR(STARTS) - starts, 4u);
    EQUAL(FAR(STOPS) - stops, 3u);
    EQUAL(i2c_read(I2C, device, got, 1u, enough), I2C_OK); /* goes on behind the last one */
    EQUAL(got[0], 0xA8u);
    EQUAL(FAR(LINES), released);
    EQUAL(I2C->STATUS & I2C_STATUS_OPEN_Msk, 0u);
}

static void refusals(void)
{
    static const uint8_t sent[3] = {1u, 0x11u, 0x22u};
    uint8_t got[2] = {0x77u, 0x77u};
    uint32_t stops = FAR(STOPS);
    EQUAL(i2c_write(I2C, 0x80u, sent, 1u, enough), I2C_ERROR_RANGE);
    EQUAL(i2c_read(I2C, 0x80u, got, 1u, enough), I2C_ERROR_RANGE);
    EQUAL(i2c_read(I2C, device, got, 0u, enough), I2C_ERROR_RANGE);
    EQUAL(i2c_write_read(I2C, device, sent, 0u, got, 1u, enough), I2C_ERROR_RANGE);
    EQUAL(i2c_write_read(I2C, device, sent, 1u, got, 0u, enough), I2C_ERROR_RANGE);
    EQUAL(i2c_probe(I2C, 0xADu, enough), I2C_ERROR_RANGE);
    EQUAL(FAR(STOPS) - stops, 0u);
    EQUAL(i2c_probe(I2C, 0x2Cu, enough), I2C_ERROR_NO_DEVICE);
    EQUAL(FAR(STOPS) - stops, 1u);
    EQUAL(i2c_write(I2C, 0x2Cu, sent, 3u, enough), I2C_ERROR_NO_DEVICE);
    EQUAL(FAR(STOPS) - stops, 2u);
    EQUAL(i2c_read(I2C, 0x2Cu, got, 2u, enough), I2C_ERROR_NO_DEVICE);
    EQUAL(FAR(STOPS) - stops, 3u);
    EQUAL(i2c_write_read(I2C, 0x2Cu, sent, 1u, got, 2u, enough), I2C_ERROR_NO_DEVICE);
    EQUAL(FAR(STOPS) - stops, 4u);
    EQUAL(got[0], 0x77u);
    FAR(REFUSE) = 1u; /* the pointer, and no data */
    EQUAL(i2c_write(I2C, device, sent, 3u, enough), I2C_ERROR_NACK);
    EQUAL(FAR(STOPS) - stops, 5u);
    EQUAL(i2c_write(I2C, device, sent, 2u, enough), I2C_ERROR_NACK); /* the last byte */
    EQUAL(FAR(STOPS) - stops, 6u);
    EQUAL(FAR(MEMORY + 1u), 0xA1u);
    EQUAL(FAR(LINES), released);
    FAR(REFUSE) = 99u;
    EQUAL(i2c_write(I2C, device, sent, 3u, enough), I2C_OK);
    EQUAL(FAR(MEMORY + 2u), 0x22u);
}

static void contention(void)
{
    static const uint8_t sent[2] = {3u, 0xFFu};
    uint8_t got[1] = {0u};
    FAR(ATTACK) = 22u; /* within 0xFF */
    EQUAL(i2c_write(I2C, device, sent, 2u, enough), I2C_ERROR_ARBITRATION);
    EQUAL(I2C->STATUS & (I2C_STATUS_ARBLOST_Msk | I2C_STATUS_DONE_Msk | I2C_STATUS_BUSY_Msk), 0u);
    FAR(HOLD) = 0u;
    EQUAL(i2c_read(I2C, device, got, 1u, enough), I2C_OK);
    FAR(ATTACK) = 2u; /* within the address */
    EQUAL(i2c_write(I2C, device, sent, 2u, enough), I2C_ERROR_ARBITRATION);
    FAR(HOLD) = 0u;
    EQUAL(i2c_read(I2C, device, got, 1u, enough), I2C_OK);
}

/* Another master has the bus: its end is waited for, or not. */
static void taken_bus(void)
{
    static const uint8_t sent[2] = {9u, 0x6Cu};
    uint32_t starts = FAR(STARTS);
    uint32_t stops = FAR(STOPS);
    FAR(CALL) = 0x91u; /* nobody */
    FAR(LATER) = 1u;
    IDLE(60u);
    EQUAL(FAR(STARTS) - starts, 1u);
    EQUAL(i2c_write(I2C, device, sent, 2u, 5u), I2C_ERROR_TAKEN);
    EQUAL(FAR(STOPS) - stops, 0u);
    EQUAL(i2c_write(I2C, device, sent, 2u, enough), I2C_OK);
    EQUAL(FAR(STARTS) - starts, 2u);
    EQUAL(FAR(STOPS) - stops, 2u);
    EQUAL(FAR(MEMORY + 9u), 0x6Cu);
    EQUAL(I2C->STATUS & I2C_STATUS_ARBLOST_Msk, 0u);
}

/* Spikes of less than 50 ns, all the time. */
static void spiky_lines(void)
{
    static const uint8_t sent[3] = {11u, 0x3Cu, 0xC3u};
    uint8_t got[2] = {0u, 0u};
    EQUAL(i2c_init(I2C, 60000000u, 400000u), I2C_OK);
    EQUAL(I2C->FILTER, 3u);
    FAR(SPIKES) = 1u;
    EQUAL(i2c_write(I2C, device, sent, 3u, enough), I2C_OK);
    EQUAL(i2c_write_read(I2C, device, sent, 1u, got, 2u, enough), I2C_OK);
    EQUAL(got[0], 0x3Cu);
    EQUAL(got[1], 0xC3u);
    EQUAL(i2c_probe(I2C, 0x2Cu, enough), I2C_ERROR_NO_DEVICE);
    FAR(SPIKES) = 0u;
    IDLE(20u);
    EQUAL(i2c_init(I2C, 1000000u, 25000u), I2C_OK);
    EQUAL(FAR(LINES), released);
}

static void held_lines(void)
{
    static const uint8_t sent[2] = {3u, 0x5Au};
    uint32_t clocks;
    /* A device in the middle of a byte holds SDA for some clock periods. */
    FAR(HOLD) = 7u;
    EQUAL(i2c_probe(I2C, 0x7Fu, 200u), I2C_ERROR_STUCK);
    clocks = FAR(CLOCKS);
    EQUAL(i2c_recover(I2C, enough), I2C_OK);
    EQUAL(FAR(CLOCKS) - clocks, 10u); /* nine, and one for the stop */
    EQUAL(FAR(LINES), released);
    EQUAL(i2c_write(I2C, device, sent, 2u, enough), I2C_OK);
    EQUAL(FAR(MEMORY + 3u), 0x5Au);
    clocks = FAR(CLOCKS);
    EQUAL(i2c_recover(I2C, enough), I2C_OK); /* of a free bus */
    EQUAL(FAR(CLOCKS) - clocks, 10u);
    FAR(HOLD) = 1000u;
    EQUAL(i2c_recover(I2C, enough), I2C_ERROR_STUCK);
    FAR(HOLD) = 0u;
    EQUAL(i2c_recover(I2C, enough), I2C_OK);
    /* A device stretches the clock. */
    FAR(STRETCH) = 300u;
    EQUAL(i2c_write(I2C, device, sent, 2u, enough), I2C_OK);
    EQUAL(FAR(PERIOD) < 300u, true);
    EQUAL(i2c_write(I2C, device, sent, 2u, 20u), I2C_ERROR_TIMEOUT);
    FAR(STRETCH) = 0u;
    IDLE(2000u);
    EQUAL(i2c_recover(I2C, enough), I2C_OK);
    /* Somebody holds it for good: first a limit in polls, then one in clock cycles. */
    FAR(HOLD_SCL) = 1u;
    EQUAL(i2c_write(I2C, device, sent, 2u, 500u), I2C_ERROR_TAKEN);
    EQUAL(i2c_recover(I2C, 100u), I2C_ERROR_TIMEOUT);
    EQUAL(i2c_set_timeout(I2C, 0xFFFF01u), I2C_ERROR_RANGE);
    EQUAL(i2c_set_timeout(I2C, 513u), I2C_OK);
    EQUAL(I2C->TIMEOUT, 3u);
    EQUAL(i2c_write(I2C, device, sent, 2u, enough), I2C_ERROR_TIMEOUT);
    EQUAL(i2c_set_timeout(I2C, 0u), I2C_OK);
    FAR(HOLD_SCL) = 0u;
    EQUAL(i2c_recover(I2C, enough), I2C_OK);
    EQUAL(i2c_write(I2C, device, sent, 2u, enough), I2C_OK);
    EQUAL(FAR(LINES), released);
    EQUAL(FAR(IRQ), 0u);
    /* A command that is not the driver's. */
    FAR(HOLD_SCL) = 1u;
    I2C->COMMAND = I2C_COMMAND_START_Msk | I2C_COMMAND_STOP_Msk;
    EQUAL(i2c_write(I2C, device, sent, 2u, 500u), I2C_ERROR_BUSY);
    EQUAL(i2c_init(I2C, 1000000u, 25000u), I2C_ERROR_BUSY);
    FAR(HOLD_SCL) = 0u;
    EQUAL(i2c_recover(I2C, enough), I2C_OK);
}

/* More bytes than the FIFO has room for, and than one command reads. */
static void long_transfers(void)
{
    static uint8_t bytes[300];
    size_t i;
    uint32_t wrong = 0u;
    bytes[0] = 0u;
    for (i = 1u; i < 49u; ++i)
        bytes[i] = (uint8_t)(i * 5u);
    EQUAL(i2c_write(I2C, device, bytes, 49u, enough), I2C_OK);
    for (i = 0u; i < 16u; ++i)
        EQUAL(FAR(MEMORY + i), ((i + 33u) * 5u) & 0xFFu);
    EQUAL(i2c_write_read(I2C, device, bytes, 1u, bytes, 300u, enough), I2C_OK);
    for (i = 0u; i < 300u; ++i)
        wrong += bytes[i] != (uint8_t)((i % 16u + 33u) * 5u);
    EQUAL(wrong, 0u);
    EQUAL(FAR(MASTER_ACK), 0u);
}

static void as_target(void)
{
    uint8_t byte = 0u;
    uint32_t what = 9u;
    uint32_t i;
    EQUAL(i2c_target_start(I2C, 0x80u, 0u, 0u), I2C_ERROR_RANGE);
    EQUAL(i2c_target_start(I2C, I2C_TEN_BITS(0x400u), 0u, 0u), I2C_ERROR_RANGE);
    EQUAL(i2c_target_start(I2C, 0x44u, 0x80u, 0u), I2C_ERROR_RANGE);
    EQUAL(i2c_target_start(I2C, 0x44u, 0x01u, I2C_TARGET_GENERAL_CALL), I2C_OK);
    i2c_target_enable_interrupts(I2C, I2C_TARGET_ENDED);
    FAR(CALL) = 0x8Au; /* 0x45, to write */
    FAR(SEND) = 3u;
    EQUAL(FAR(ACKS), 4u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(i2c_target_address(I2C), 0x45u);
    EQUAL(i2c_target_events(I2C), I2C_TARGET_ADDRESSED | I2C_TARGET_RECEIVED | I2C_TARGET_ENDED);
    EQUAL(FAR(IRQ), 0u);
    for (i = 0u; i < 3u; ++i) {
        EQUAL(i2c_target_get(I2C, &byte, &what), true);
        EQUAL(byte, 0x60u + i);
        EQUAL(what, i == 0u ? I2C_BYTE_FIRST : 0u);
    }
    EQUAL(i2c_target_get(I2C, &byte, &what), false);
    EQUAL(i2c_target_events(I2C), 0u);
    FAR(CALL) = 0x00u;
    FAR(SEND) = 1u;
    EQUAL(i2c_target_get(I2C, &byte, &what), true);
    EQUAL(what, I2C_BYTE_FIRST | I2C_BYTE_GENERAL);
    EQUAL(i2c_target_address(I2C), 0u);
    /* It is read. */
    for (i = 0u; i < 16u; ++i)
        EQUAL(i2c_target_put(I2C, (uint8_t)(0xB0u + i)), true);
    EQUAL(i2c_target_put(I2C, 0u), false);
    FAR(CALL) = 0x89u;
    FAR(GET) = 4u;
    EQUAL(FAR(ACKS), 1u);
    for (i = 0u; i < 4u; ++i)
        EQUAL(FAR(GOT + i), 0xB0u + i);
    i2c_target_drop(I2C);
    EQUAL(I2C->LEVEL, 0u);
    (void)i2c_target_events(I2C);
    /* The master waits for a byte. */
    i2c_target_disable_interrupts(I2C, I2C_TARGET_ENDED);
    i2c_target_enable_interrupts(I2C, I2C_TARGET_WANTED);
    FAR(LATER) = 1u;
    for (i = 0u; i < enough && FAR(IRQ) == 0u; ++i)
        IDLE(1u);
    EQUAL(i2c_target_events(I2C), I2C_TARGET_WANTED | I2C_TARGET_ADDRESSED);
    EQUAL(i2c_target_put(I2C, 0x7Eu), true);
    i2c_target_disable_interrupts(I2C, I2C_TARGET_WANTED);
    i2c_target_enable_interrupts(I2C, I2C_TARGET_ENDED);
    for (i = 0u; i < enough && FAR(IRQ) == 0u; ++i)
        IDLE(1u);
    EQUAL(FAR(GOT), 0x7Eu);
    i2c_target_disable_interrupts(I2C, 0xFFFFFFFFu);
    EQUAL(i2c_target_events(I2C), I2C_TARGET_ENDED);
    /* Without waiting: ones. */
    EQUAL(i2c_target_start(I2C, 0x44u, 0u, I2C_TARGET_NO_STRETCH), I2C_OK);
    FAR(GET) = 1u;
    EQUAL(FAR(GOT), 0xFFu);
    /* Both ends at once, with addresses of seven and of ten bits. */
    {
        static const uint8_t sent[2] = {0x19u, 0x91u};
        uint8_t got[2] = {0u, 0u};
        EQUAL(i2c_target_start(I2C, I2C_TEN_BITS(0x2A5u), 0u, 0u), I2C_OK);
        EQUAL(i2c_probe(I2C, I2C_TEN_BITS(0x2A4u), enough), I2C_ERROR_NO_DEVICE);
        EQUAL(i2c_probe(I2C, I2C_TEN_BITS(0x1A5u), enough), I2C_ERROR_NO_DEVICE);
        EQUAL(i2c_probe(I2C, I2C_TEN_BITS(0x400u), enough), I2C_ERROR_RANGE);
        EQUAL(i2c_target_put(I2C, 0x37u), true);
        EQUAL(i2c_target_put(I2C, 0x73u), true);
        EQUAL(i2c_write_read(I2C, I2C_TEN_BITS(0x2A5u), sent, 2u, got, 2u, enough), I2C_OK);
        EQUAL(got[0], 0x37u);
        EQUAL(got[1], 0x73u);
        EQUAL(i2c_target_address(I2C), 0x2A5u);
        EQUAL(i2c_target_get(I2C, &byte, NULL), true);
        EQUAL(byte, 0x19u);
        EQUAL(i2c_target_get(I2C, &byte, NULL), true);
        EQUAL(byte, 0x91u);
    }
    i2c_target_stop(I2C);
    FAR(CALL) = 0x88u;
    FAR(SEND) = 1u;
    EQUAL(FAR(ACKS), 0u);
    EQUAL(FAR(LINES), released);
}

void test(void)
{
    rates();
    transfers();
    refusals();
    contention();
    taken_bus();
    spiky_lines();
    held_lines();
    long_transfers();
    as_target();
}
