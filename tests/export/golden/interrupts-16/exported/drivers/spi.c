#include "spi.h"

#define FLAGS                                                                                      \
    (SPI_STATUS_LOST_Msk | SPI_STATUS_OVERRUN_Msk | SPI_STATUS_UNDERRUN_Msk |                      \
     SPI_STATUS_REFUSED_Msk)
#define INTERRUPTS (SPI_INTEN_TXLOW_Msk | SPI_INTEN_RXREADY_Msk | SPI_INTEN_ERROR_Msk)

static bool is_busy(const SPI_Type *spi)
{
    return (spi->STATUS & SPI_STATUS_BUSY_Msk) != 0u;
}

/* The words of a FIFO, and the bits of the longest word. */
static uint32_t depth(const SPI_Type *spi)
{
    return 1u << ((spi->ID & SPI_ID_LOGDEPTH_Msk) >> SPI_ID_LOGDEPTH_Pos);
}

static uint32_t longest(const SPI_Type *spi)
{
    return 1u << ((spi->ID & SPI_ID_LOGBITS_Msk) >> SPI_ID_LOGBITS_Pos);
}

static uint32_t to_send(const SPI_Type *spi)
{
    return (spi->LEVEL & SPI_LEVEL_TX_Msk) >> SPI_LEVEL_TX_Pos;
}

static uint32_t received_words(const SPI_Type *spi)
{
    return (spi->LEVEL & SPI_LEVEL_RX_Msk) >> SPI_LEVEL_RX_Pos;
}

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
    if (is_busy(spi))
        return SPI_ERROR_BUSY;
    if (mode == SPI_MODE_2 || mode == SPI_MODE_3)
        ctrl |= SPI_CTRL_CPOL_Msk;
    if (mode == SPI_MODE_1 || mode == SPI_MODE_3)
        ctrl |= SPI_CTRL_CPHA_Msk;
    if (lowest_bit_first)
        ctrl |= SPI_CTRL_LSBFIRST_Msk;
    spi->SELECT = 0u;
    spi->CTRL = ctrl;
    spi->FORMAT = SPI_FORMAT_RESET;
    spi->TIMING = SPI_TIMING_RESET;
    spi->INTEN = 0u;
    spi->DIV = (half - 1u) << SPI_DIV_CYCLES_Pos;
    spi->CLEAR = SPI_CLEAR_RX_Msk;
    spi->STATUS = SPI_STATUS_DONE_Msk | FLAGS;
    return SPI_OK;
}

uint32_t spi_rate(const SPI_Type *spi, uint32_t clock_hz)
{
    const uint32_t half = ((spi->DIV & SPI_DIV_CYCLES_Msk) >> SPI_DIV_CYCLES_Pos) + 1u;
    return clock_hz / (2u * half);
}

spi_result spi_set_format(SPI_Type *spi, uint32_t bits, uint32_t late_cycles)
{
    if (bits < 4u || bits > longest(spi) ||
        late_cycles > (SPI_FORMAT_SAMPLE_Msk >> SPI_FORMAT_SAMPLE_Pos))
        return SPI_ERROR_RANGE;
    if (is_busy(spi))
        return SPI_ERROR_BUSY;
    spi->FORMAT = ((bits - 1u) << SPI_FORMAT_BITS_Pos) | (late_cycles << SPI_FORMAT_SAMPLE_Pos);
    return SPI_OK;
}

spi_result spi_set_select(SPI_Type *spi, spi_select_kind kind, uint32_t setup, uint32_t hold,
                          uint32_t idle)
{
    uint32_t select = 0u;
    if (setup > 255u || hold > 255u || idle > 255u)
        return SPI_ERROR_RANGE;
    if (is_busy(spi))
        return SPI_ERROR_BUSY;
    if (kind == SPI_SELECT_WORD)
        select = SPI_SELECT_AUTO_Msk;
    else if (kind == SPI_SELECT_BURST)
        select = SPI_SELECT_AUTO_Msk | SPI_SELECT_BURST_Msk;
    spi->TIMING = (setup << SPI_TIMING_SETUP_Pos) | (hold << SPI_TIMING_HOLD_Pos) |
                  (idle << SPI_TIMING_IDLE_Pos);
    spi->SELECT = select;
    return SPI_OK;
}

spi_result spi_set_loopback(SPI_Type *spi, bool on)
{
    if (is_busy(spi))
        return SPI_ERROR_BUSY;
    if (on)
        spi->CTRL = spi->CTRL | SPI_CTRL_LOOP_Msk;
    else
        spi->CTRL = spi->CTRL & ~SPI_CTRL_LOOP_Msk;
    return SPI_OK;
}

void spi_select(SPI_Type *spi, bool selected)
{
    if (selected)
        spi->SELECT = spi->SELECT | SPI_SELECT_SS_Msk;
    else
        spi->SELECT = spi->SELECT & ~SPI_SELECT_SS_Msk;
}

spi_result spi_start(SPI_Type *spi, uint8_t byte)
{
    if (is_busy(spi))
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

spi_result spi_transfer_words(SPI_Type *spi, const uint32_t *sent, uint32_t *received, size_t count,
                              uint32_t polls)
{
    const uint32_t room = depth(spi);
    size_t put = 0u;
    size_t got = 0u;
    uint32_t left = polls;
    spi_result result = spi_use_fifos(spi, true);
    if (result != SPI_OK)
        return result;
    while (got < count) {
        /* No more words on their way than there is room for. */
        if (put < count && put - got < room) {
            spi->DATA = sent == NULL ? 0xFFFFFFFFu : sent[put];
            ++put;
        }
        if (received_words(spi) != 0u) {
            const uint32_t word = spi->DATA;
            if (received != NULL)
                received[got] = word;
            ++got;
            left = polls;
        } else if (put == count || put - got == room) {
            if (left-- <= 1u) {
                result = SPI_ERROR_TIMEOUT;
                break;
            }
        }
    }
    if (result == SPI_OK)
        result = spi_wait(spi, polls);
    if (result != SPI_OK)
        spi_abort(spi);
    spi->CTRL = spi->CTRL & ~SPI_CTRL_FIFO_Msk;
    spi->STATUS = SPI_STATUS_DONE_Msk;
    return result;
}

spi_result spi_use_fifos(SPI_Type *spi, bool on)
{
    if (is_busy(spi))
        return SPI_ERROR_BUSY;
    if (on)
        spi->CTRL = spi->CTRL | SPI_CTRL_FIFO_Msk;
    else
        spi->CTRL = spi->CTRL & ~SPI_CTRL_FIFO_Msk;
    spi->CLEAR = SPI_CLEAR_RX_Msk;
    return SPI_OK;
}

bool spi_put(SPI_Type *spi, uint32_t word)
{
    if (to_send(spi) == depth(spi))
        return false;
    spi->DATA = word;
    return true;
}

bool spi_get(SPI_Type *spi, uint32_t *word)
{
    if (received_words(spi) == 0u)
        return false;
    *word = spi->DATA;
    return true;
}

spi_result spi_set_thresholds(SPI_Type *spi, uint32_t received, uint32_t to_send_words)
{
    if (received > (SPI_THRESHOLD_RX_Msk >> SPI_THRESHOLD_RX_Pos) ||
        to_send_words > (SPI_THRESHOLD_TX_Msk >> SPI_THRESHOLD_TX_Pos))
        return SPI_ERROR_RANGE;
    spi->THRESHOLD = (to_send_words << SPI_THRESHOLD_TX_Pos) | (received << SPI_THRESHOLD_RX_Pos);
    return SPI_OK;
}

void spi_enable_interrupts(SPI_Type *spi, uint32_t interrupts)
{
    spi->INTEN = spi->INTEN | (interrupts & INTERRUPTS);
}

void spi_disable_interrupts(SPI_Type *spi, uint32_t interrupts)
{
    spi->INTEN = spi->INTEN & ~(interrupts & INTERRUPTS);
}

spi_result spi_wait(SPI_Type *spi, uint32_t polls)
{
    do {
        if (!is_busy(spi))
            return SPI_OK;
    } while (polls-- > 1u);
    return SPI_ERROR_TIMEOUT;
}

void spi_abort(SPI_Type *spi)
{
    spi->CLEAR = SPI_CLEAR_TX_Msk | SPI_CLEAR_RX_Msk;
}

uint32_t spi_take_errors(SPI_Type *spi)
{
    const uint32_t errors = spi->STATUS & FLAGS;
    spi->STATUS = errors;
    return errors;
}

void spi_enable_interrupt(SPI_Type *spi, bool on)
{
    if (on)
        spi->CTRL = spi->CTRL | SPI_CTRL_IE_Msk;
    else
        spi->CTRL = spi->CTRL & ~SPI_CTRL_IE_Msk;
}
