#include "spi.h"

spi_result spi_init(SPI_Type *spi, uint32_t clock_hz, uint32_t sclk_hz, spi_mode mode,
                    bool lowest_bit_first)
{
    uint32_t period;
    uint32_t half;
    uint32_t ctrl = 0u;
    if (clock_hz == 0u || sclk_hz == 0u)
        return SPI_ERROR_RANGE;
    period = clock_hz / sclk_hz + (clock_hz % sclk_hz != 0u ? 1u : 0u);
    half = period / 2u + period % 2u;
    if (half - 1u > (SPI_DIV_CYCLES_Msk >> SPI_DIV_CYCLES_Pos))
        return SPI_ERROR_RANGE;
    if ((spi->STATUS & SPI_STATUS_BUSY_Msk) != 0u)
        return SPI_ERROR_BUSY;
    if (mode == SPI_MODE_2 || mode == SPI_MODE_3)
        ctrl |= SPI_CTRL_CPOL_Msk;
    if (mode == SPI_MODE_1 || mode == SPI_MODE_3)
        ctrl |= SPI_CTRL_CPHA_Msk;
    if (lowest_bit_first)
        ctrl |= SPI_CTRL_LSBFIRST_Msk;
    spi->SELECT = 0u;
    spi->CTRL = ctrl;
    spi->DIV = (half - 1u) << SPI_DIV_CYCLES_Pos;
    spi->STATUS = SPI_STATUS_DONE_Msk | SPI_STATUS_LOST_Msk;
    return SPI_OK;
}

uint32_t spi_rate(const SPI_Type *spi, uint32_t clock_hz)
{
    const uint32_t half = ((spi->DIV & SPI_DIV_CYCLES_Msk) >> SPI_DIV_CYCLES_Pos) + 1u;
    return clock_hz / (2u * half);
}

void spi_select(SPI_Type *spi, bool selected)
{
    spi->SELECT = selected ? SPI_SELECT_SS_Msk : 0u;
}

spi_result spi_start(SPI_Type *spi, uint8_t byte)
{
    if ((spi->STATUS & SPI_STATUS_BUSY_Msk) != 0u)
        return SPI_ERROR_BUSY;
    spi->DATA = byte; /* clears DONE */
    return SPI_OK;
}

bool spi_take(SPI_Type *spi, uint8_t *byte)
{
    if ((spi->STATUS & SPI_STATUS_DONE_Msk) == 0u)
        return false;
    *byte = (uint8_t)(spi->DATA & SPI_DATA_BYTE_Msk);
    spi->STATUS = SPI_STATUS_DONE_Msk;
    return true;
}

spi_result spi_exchange(SPI_Type *spi, uint8_t byte, uint8_t *received, uint32_t polls)
{
    uint8_t answer;
    const spi_result result = spi_start(spi, byte);
    if (result != SPI_OK)
        return result;
    do {
        if (spi_take(spi, &answer)) {
            if (received != NULL)
                *received = answer;
            return SPI_OK;
        }
    } while (polls-- > 1u);
    return SPI_ERROR_TIMEOUT;
}

spi_result spi_transfer(SPI_Type *spi, const void *sent, void *received, size_t size,
                        uint32_t polls)
{
    const uint8_t *out = (const uint8_t *)sent;
    uint8_t *in = (uint8_t *)received;
    size_t i;
    for (i = 0u; i < size; ++i) {
        const spi_result result = spi_exchange(spi, out == NULL ? (uint8_t)0xFFu : out[i],
                                               in == NULL ? NULL : &in[i], polls);
        if (result != SPI_OK)
            return result;
    }
    return SPI_OK;
}

void spi_enable_interrupt(SPI_Type *spi, bool enabled)
{
    if (enabled)
        spi->CTRL = spi->CTRL | SPI_CTRL_IE_Msk;
    else
        spi->CTRL = spi->CTRL & ~SPI_CTRL_IE_Msk;
}
