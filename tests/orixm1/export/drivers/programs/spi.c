#include "drivers/spi.h"

#include "far.h"

static const uint32_t enough = 2000u;

enum { MODE, REPLY, AWAY };
enum { LAST = 1, COUNT, HALF, NSS, IRQ, SCLK };

static void rates(void)
{
    EQUAL(spi_init(SPI, 50000000u, 10000000u, SPI_MODE_0, false), SPI_OK);
    EQUAL(SPI->DIV, 2u); /* 8.3 MHz: never faster than asked for */
    EQUAL(spi_rate(SPI, 50000000u), 8333333u);
    EQUAL(spi_init(SPI, 50000000u, 25000000u, SPI_MODE_0, false), SPI_OK);
    EQUAL(SPI->DIV, 0u);
    EQUAL(spi_init(SPI, 50000000u, 0xFFFFFFFFu, SPI_MODE_0, false), SPI_OK);
    EQUAL(SPI->DIV, 0u);
    EQUAL(spi_init(SPI, 131072u, 1u, SPI_MODE_0, false), SPI_OK);
    EQUAL(SPI->DIV, 0xFFFFu);
    EQUAL(spi_init(SPI, 131073u, 1u, SPI_MODE_3, false), SPI_ERROR_RANGE);
    EQUAL(spi_init(SPI, 0xFFFFFFFFu, 1u, SPI_MODE_3, false), SPI_ERROR_RANGE);
    EQUAL(spi_init(SPI, 1000000u, 0u, SPI_MODE_3, false), SPI_ERROR_RANGE);
    EQUAL(spi_init(SPI, 0u, 1000u, SPI_MODE_3, false), SPI_ERROR_RANGE);
    EQUAL(SPI->DIV, 0xFFFFu);
    EQUAL(SPI->CTRL, 0u);
}

static void modes(void)
{
    static const uint8_t sent[3] = {0x12u, 0xE7u, 0x80u};
    static const spi_mode all[4] = {SPI_MODE_0, SPI_MODE_1, SPI_MODE_2, SPI_MODE_3};
    uint32_t mode;
    for (mode = 0u; mode < 4u; ++mode) {
        uint8_t got[3] = {0u, 0u, 0u};
        uint8_t both[2] = {0x21u, 0x43u};
        uint32_t count;
        EQUAL(spi_init(SPI, 1000000u, 83000u + mode, all[mode], false), SPI_OK);
        EQUAL(spi_rate(SPI, 1000000u), 71428u);
        FAR(MODE) = (mode >> 1) | ((mode & 1u) << 1);
        FAR(REPLY) = 0xA7u;
        IDLE(4u);
        EQUAL(FAR(SCLK), mode >> 1);
        EQUAL(FAR(NSS), 1u);
        spi_select(SPI, true);
        EQUAL(FAR(NSS), 0u);
        count = FAR(COUNT);
        EQUAL(spi_transfer(SPI, sent, got, 3u, enough), SPI_OK);
        EQUAL(FAR(COUNT), count + 3u);
        EQUAL(FAR(LAST), 0x80u);
        EQUAL(FAR(HALF), 7u);
        EQUAL(got[0], 0xA7u);
        EQUAL(got[1], 0xA8u);
        EQUAL(got[2], 0xA9u);
        EQUAL(spi_transfer(SPI, both, both, 2u, enough), SPI_OK);
        EQUAL(FAR(LAST), 0x43u);
        EQUAL(both[0], 0xAAu);
        EQUAL(both[1], 0xABu);
        EQUAL(spi_transfer(SPI, NULL, got, 1u, enough), SPI_OK);
        EQUAL(FAR(LAST), 0xFFu);
        EQUAL(got[0], 0xACu);
        EQUAL(spi_transfer(SPI, sent, NULL, 1u, enough), SPI_OK);
        EQUAL(FAR(LAST), 0x12u);
        EQUAL(spi_transfer(SPI, NULL, NULL, 0u, enough), SPI_OK);
        EQUAL(FAR(COUNT), count + 7u);
        EQUAL(spi_exchange(SPI, 0x99u, NULL, enough), SPI_OK);
        spi_select(SPI, false);
        EQUAL(FAR(NSS), 1u);
    }
    EQUAL(spi_init(SPI, 4u, 2u, SPI_MODE_0, true), SPI_OK);
    FAR(MODE) = 0u;
    FAR(REPLY) = 0x01u;
    spi_select(SPI, true);
    {
        uint8_t got = 0u;
        EQUAL(spi_exchange(SPI, 0x13u, &got, enough), SPI_OK);
        EQUAL(FAR(LAST), 0xC8u); /* the other way round */
        EQUAL(got, 0x80u);
        EQUAL(FAR(HALF), 1u);
        FAR(AWAY) = 1u;
        EQUAL(spi_exchange(SPI, 0x00u, &got, enough), SPI_OK);
        EQUAL(got, 0xFFu); /* nobody there */
        FAR(AWAY) = 0u;
    }
}

static void limits(void)
{
    uint8_t got = 0x5Au;
    EQUAL(spi_init(SPI, 1000000u, 5000u, SPI_MODE_0, false), SPI_OK);
    EQUAL(spi_exchange(SPI, 0x0Fu, &got, 3u), SPI_ERROR_TIMEOUT);
    EQUAL(got, 0x5Au);
    EQUAL(spi_exchange(SPI, 0x0Fu, &got, 3u), SPI_ERROR_BUSY);
    EQUAL(spi_start(SPI, 0x0Fu), SPI_ERROR_BUSY);
    EQUAL(spi_init(SPI, 1000000u, 5000u, SPI_MODE_1, false), SPI_ERROR_BUSY);
    EQUAL(spi_transfer(SPI, NULL, &got, 1u, 0u), SPI_ERROR_BUSY);
    EQUAL(SPI->CTRL, 0u);
    IDLE(2000u);
    EQUAL(SPI->STATUS, SPI_STATUS_DONE_Msk); /* nothing was lost */
    EQUAL(spi_transfer(SPI, NULL, &got, 2u, 0u), SPI_ERROR_TIMEOUT);
    IDLE(2000u);
}

static void interrupt(void)
{
    uint8_t got;
    EQUAL(spi_init(SPI, 1000000u, 100000u, SPI_MODE_3, false), SPI_OK);
    FAR(MODE) = 3u;
    spi_enable_interrupt(SPI, true);
    spi_select(SPI, true);
    FAR(REPLY) = 0x3Cu;
    EQUAL(FAR(IRQ), 0u);
    EQUAL(spi_take(SPI, &got), false);
    EQUAL(spi_start(SPI, 0x77u), SPI_OK);
    EQUAL(spi_take(SPI, &got), false);
    IDLE(200u);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(spi_take(SPI, &got), true);
    EQUAL(got, 0x3Cu);
    EQUAL(FAR(LAST), 0x77u);
    EQUAL(FAR(IRQ), 0u);
    EQUAL(spi_take(SPI, &got), false);
    spi_enable_interrupt(SPI, false);
    EQUAL(SPI->CTRL, SPI_CTRL_CPOL_Msk | SPI_CTRL_CPHA_Msk);
}

void test(void)
{
    rates();
    modes();
    limits();
    interrupt();
}
