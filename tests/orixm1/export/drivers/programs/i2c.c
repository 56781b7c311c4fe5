#include "drivers/i2c.h"

#include "far.h"

static const uint32_t enough = 2000u;
static const uint8_t device = 0x2Du;

enum { STRETCH, REFUSE, ATTACK, HOLD, HOLD_SCL };
enum { STARTS, STOPS, LINES, PERIOD, IRQ, CLOCKS, MASTER_ACK, MEMORY = 16 };

static const uint32_t released = 3u;

static void rates(void)
{
    EQUAL(i2c_init(I2C, 50000000u, 400000u), I2C_OK);
    EQUAL(I2C->PRESCALE, 31u); /* 125 cycles: 390.6 kHz */
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
    EQUAL(FAR(PERIOD) >= 40u && FAR(PERIOD) <= 44u, true);
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
}

static void held_lines(void)
{
    static const uint8_t sent[2] = {3u, 0x5Au};
    uint32_t clocks;
    /* A device in the middle of a byte holds SDA for some clock periods. */
    FAR(HOLD) = 7u;
    EQUAL(i2c_probe(I2C, 0x7Fu, 200u), I2C_ERROR_ARBITRATION);
    clocks = FAR(CLOCKS);
    EQUAL(i2c_recover(I2C, enough), I2C_OK);
    EQUAL(FAR(CLOCKS) - clocks, 18u); /* two rounds of nine */
    EQUAL(FAR(LINES), released);
    EQUAL(i2c_write(I2C, device, sent, 2u, enough), I2C_OK);
    EQUAL(FAR(MEMORY + 3u), 0x5Au);
    clocks = FAR(CLOCKS);
    EQUAL(i2c_recover(I2C, enough), I2C_OK); /* of a free bus */
    EQUAL(FAR(CLOCKS) - clocks, 9u);
    FAR(HOLD) = 1000u;
    EQUAL(i2c_recover(I2C, enough), I2C_ERROR_ARBITRATION);
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
    /* Somebody holds it for good. */
    FAR(HOLD_SCL) = 1u;
    EQUAL(i2c_write(I2C, device, sent, 2u, 500u), I2C_ERROR_TIMEOUT);
    EQUAL(i2c_write(I2C, device, sent, 2u, 500u), I2C_ERROR_BUSY);
    EQUAL(i2c_recover(I2C, 10u), I2C_ERROR_BUSY);
    EQUAL(i2c_init(I2C, 1000000u, 25000u), I2C_ERROR_BUSY);
    FAR(HOLD_SCL) = 0u;
    IDLE(2000u);
    EQUAL(i2c_recover(I2C, enough), I2C_OK);
    EQUAL(i2c_write(I2C, device, sent, 2u, enough), I2C_OK);
    EQUAL(FAR(LINES), released);
    EQUAL(FAR(IRQ), 0u);
}

void test(void)
{
    rates();
    transfers();
    refusals();
    contention();
    held_lines();
}
