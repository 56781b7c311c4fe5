#include "drivers/spi.h"

#include "far.h"

static const uint32_t enough = 2000u;

enum { MODE, REPLY, AWAY, BITS, LAG };
enum { LAST = 1, COUNT, HALF, NSS, IRQ, SCLK, SELECTIONS, BEFORE, BEHIND, BETWEEN, GAP };

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

static void words(void)
{
    uint32_t sent[40];
    uint32_t got[40];
    uint32_t bits;
    uint32_t i;
    for (i = 0u; i < 40u; ++i)
        sent[i] = i * 0x9E3779B1u;
    EQUAL(spi_init(SPI, 4u, 2u, SPI_MODE_0, false), SPI_OK);
    EQUAL(spi_set_format(SPI, 3u, 0u), SPI_ERROR_RANGE);
    EQUAL(spi_set_format(SPI, 33u, 0u), SPI_ERROR_RANGE);
    EQUAL(spi_set_format(SPI, 8u, 4u), SPI_ERROR_RANGE);
    EQUAL(SPI->FORMAT, SPI_FORMAT_RESET);
    FAR(MODE) = 0u;
    for (bits = 4u; bits <= 32u; bits += 7u) {
        const uint32_t mask = bits == 32u ? 0xFFFFFFFFu : (1u << bits) - 1u;
        uint32_t count;
        EQUAL(spi_set_format(SPI, bits, 0u), SPI_OK);
        EQUAL(spi_set_select(SPI, SPI_SELECT_WORD, 3u, 5u, 7u), SPI_OK);
        FAR(BITS) = bits;
        FAR(REPLY) = 0x1234567Cu;
        count = FAR(SELECTIONS);
        EQUAL(spi_transfer_words(SPI, sent, got, 3u, enough), SPI_OK);
        EQUAL(FAR(SELECTIONS), count + 3u);
        EQUAL(FAR(NSS), 1u);
        EQUAL(FAR(LAST), sent[2] & mask);
        EQUAL(FAR(BEFORE), 5u);
        EQUAL(FAR(BEHIND), 7u);
        EQUAL(FAR(BETWEEN) >= 9u, 1u);
        for (i = 0u; i < 3u; ++i)
            EQUAL(got[i], (0x1234567Cu + i) & mask);
        EQUAL(spi_take_errors(SPI), 0u);
    }
    /* More words than the FIFOs have room for, in one selection. */
    EQUAL(spi_set_format(SPI, 16u, 0u), SPI_OK);
    EQUAL(spi_set_select(SPI, SPI_SELECT_BURST, 0u, 0u, 0u), SPI_OK);
    EQUAL(spi_init(SPI, 400u, 1u, SPI_MODE_3, true), SPI_OK);
    EQUAL(SPI->SELECT, 0u);
    EQUAL(SPI->FORMAT, SPI_FORMAT_RESET);
    EQUAL(spi_set_format(SPI, 16u, 3u), SPI_OK);
    EQUAL(spi_set_select(SPI, SPI_SELECT_BURST, 256u, 0u, 0u), SPI_ERROR_RANGE);
    EQUAL(spi_set_select(SPI, SPI_SELECT_BURST, 0u, 256u, 0u), SPI_ERROR_RANGE);
    EQUAL(spi_set_select(SPI, SPI_SELECT_BURST, 0u, 0u, 256u), SPI_ERROR_RANGE);
    EQUAL(spi_set_select(SPI, SPI_SELECT_BURST, 255u, 0u, 0u), SPI_OK);
    SPI->DIV = 9u; /* slow enough for this emulation to keep up */
    IDLE(2u);
    FAR(MODE) = 3u;
    FAR(BITS) = 16u;
    FAR(REPLY) = 0u;
    i = FAR(SELECTIONS);
    EQUAL(spi_transfer_words(SPI, sent, sent, 40u, enough), SPI_OK);
    EQUAL(FAR(SELECTIONS), i + 1u);
    EQUAL(FAR(GAP), 10u);
    for (i = 0u; i < 40u; ++i) {
        uint32_t back = 0u;
        uint32_t k;
        for (k = 0u; k < 16u; ++k)
            back |= ((i >> k) & 1u) << (15u - k);
        EQUAL(sent[i], back);
    }
    EQUAL(spi_transfer_words(SPI, NULL, got, 1u, enough), SPI_OK);
    EQUAL(FAR(LAST), 0xFFFFu);
    EQUAL(spi_transfer_words(SPI, sent, NULL, 20u, enough), SPI_OK);
    EQUAL(spi_transfer_words(SPI, NULL, NULL, 0u, enough), SPI_OK);
    EQUAL(spi_take_errors(SPI), 0u);
    EQUAL(SPI->CTRL & SPI_CTRL_FIFO_Msk, 0u);
    EQUAL(SPI->STATUS, 0u);
}

/* At half the clock of the bus a device answers later than half a period. */
static void late_answers(void)
{
    uint32_t got[3] = {0u, 0u, 0u};
    uint32_t late;
    FAR(MODE) = 0u;
    FAR(BITS) = 16u;
    FAR(LAG) = 14u;
    for (late = 0u; late < 3u; ++late) {
        EQUAL(spi_init(SPI, 4u, 2u, SPI_MODE_0, false), SPI_OK);
        EQUAL(spi_set_format(SPI, 16u, late), SPI_OK);
        EQUAL(spi_set_select(SPI, SPI_SELECT_BURST, 4u, 4u, 4u), SPI_OK);
        FAR(REPLY) = 0x5A35u;
        EQUAL(spi_transfer_words(SPI, NULL, got, 3u, enough), SPI_OK);
        EQUAL(FAR(HALF), 1u);
        EQUAL(got[0] == 0x5A35u && got[1] == 0x5A36u && got[2] == 0x5A37u, late != 0u);
    }
    FAR(LAG) = 0u;
    EQUAL(spi_set_format(SPI, 8u, 0u), SPI_OK);
    EQUAL(spi_set_select(SPI, SPI_SELECT_BURST, 0u, 0u, 0u), SPI_OK);
    FAR(BITS) = 8u;
}

static void by_hand(void)
{
    uint32_t word = 0x5Au;
    uint32_t i;
    EQUAL(spi_init(SPI, 20u, 1u, SPI_MODE_0, false), SPI_OK);
    EQUAL(spi_set_loopback(SPI, true), SPI_OK);
    EQUAL(spi_set_thresholds(SPI, 64u, 0u), SPI_ERROR_RANGE);
    EQUAL(spi_set_thresholds(SPI, 0u, 64u), SPI_ERROR_RANGE);
    EQUAL(spi_set_thresholds(SPI, 3u, 2u), SPI_OK);
    EQUAL(spi_use_fifos(SPI, true), SPI_OK);
    EQUAL(spi_get(SPI, &word), false);
    EQUAL(word, 0x5Au);
    EQUAL(FAR(IRQ), 0u);
    spi_enable_interrupts(SPI, SPI_INTEN_TXLOW_Msk);
    EQUAL(FAR(IRQ), 1u);
    SPI->DIV = 200u;
    for (i = 0u; i < 16u; ++i)
        EQUAL(spi_put(SPI, 0x30u + i), true);
    EQUAL(spi_put(SPI, 0xFFu), false);
    EQUAL(FAR(IRQ), 0u);
    spi_enable_interrupts(SPI, SPI_INTEN_RXREADY_Msk | SPI_INTEN_ERROR_Msk | 0xFFFFFF00u);
    EQUAL(SPI->INTEN, SPI_INTEN_TXLOW_Msk | SPI_INTEN_RXREADY_Msk | SPI_INTEN_ERROR_Msk);
    spi_disable_interrupts(SPI, SPI_INTEN_TXLOW_Msk | 0xFFFFFF00u);
    EQUAL(SPI->INTEN, SPI_INTEN_RXREADY_Msk | SPI_INTEN_ERROR_Msk);
    EQUAL(spi_use_fifos(SPI, false), SPI_ERROR_BUSY);
    EQUAL(spi_set_format(SPI, 9u, 0u), SPI_ERROR_BUSY);
    EQUAL(spi_set_select(SPI, SPI_SELECT_WORD, 0u, 0u, 0u), SPI_ERROR_BUSY);
    EQUAL(spi_set_loopback(SPI, false), SPI_ERROR_BUSY);
    EQUAL(spi_transfer_words(SPI, NULL, NULL, 1u, enough), SPI_ERROR_BUSY);
    EQUAL(spi_wait(SPI, 2u), SPI_ERROR_TIMEOUT);
    SPI->DIV = 1u;
    IDLE(300u);
    EQUAL(spi_wait(SPI, enough), SPI_OK);
    EQUAL(FAR(IRQ), 1u);
    EQUAL(FAR(NSS), 1u); /* looped back */
    for (i = 0u; i < 14u; ++i) {
        EQUAL(FAR(IRQ), 1u);
        EQUAL(spi_get(SPI, &word), true);
        EQUAL(word, 0x30u + i);
    }
    EQUAL(FAR(IRQ), 0u);
    EQUAL(spi_get(SPI, &word), true);
    EQUAL(spi_get(SPI, &word), true);
    EQUAL(spi_get(SPI, &word), false);
    EQUAL(spi_take_errors(SPI), 0u);
    (void)SPI->DATA;
    EQUAL(FAR(IRQ), 1u);
    EQUAL(spi_take_errors(SPI), SPI_STATUS_UNDERRUN_Msk);
    EQUAL(spi_take_errors(SPI), 0u);
    EQUAL(FAR(IRQ), 0u);
    SPI->DIV = 60000u;
    EQUAL(spi_put(SPI, 1u), true);
    EQUAL(spi_put(SPI, 2u), true);
    EQUAL(spi_wait(SPI, 3u), SPI_ERROR_TIMEOUT);
    spi_abort(SPI);
    EQUAL(spi_wait(SPI, 1u), SPI_OK);
    EQUAL(SPI->LEVEL & (SPI_LEVEL_TX_Msk | SPI_LEVEL_RX_Msk), 0u);
    /* A transfer that takes too long leaves nothing behind. */
    EQUAL(spi_use_fifos(SPI, false), SPI_OK);
    EQUAL(spi_transfer_words(SPI, NULL, NULL, 20u, 5u), SPI_ERROR_TIMEOUT);
    EQUAL(SPI->STATUS, 0u);
    EQUAL(SPI->LEVEL & (SPI_LEVEL_TX_Msk | SPI_LEVEL_RX_Msk), 0u);
    SPI->DIV = 0u;
    EQUAL(spi_exchange(SPI, 0x3Eu, NULL, enough), SPI_OK);
    EQUAL(SPI->DATA, 0x3Eu);
}

void test(void)
{
    rates();
    modes();
    limits();
    interrupt();
    words();
    late_answers();
    by_hand();
}
