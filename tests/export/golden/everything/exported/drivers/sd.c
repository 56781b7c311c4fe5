#include "sd.h"

static const uint8_t idle = 0xFFu; /* what the lines hold while nothing is said */

/* Bits of the first byte of an answer. */
static const uint8_t answer_idle = 0x01u;
static const uint8_t answer_illegal = 0x04u;
static const uint8_t answer_none = 0x80u;

static const uint32_t voltage_and_pattern = 0x1AAu; /* 2.7 V to 3.6 V */
static const uint32_t takes_high_capacity = 0x40000000u;
static const uint32_t ocr_block_addresses = 0x40000000u;
static const uint32_t blocks_by_byte = 0x00800000u; /* 4 GB in blocks */
static const uint8_t block_token = 0xFEu;

static const int reset_attempts = 10;
static const int answer_bytes = 9; /* an answer comes within eight bytes */

static bool has_same_card(const SD_Type *sd)
{
    return (sd->STATUS & (SD_STATUS_CARD_Msk | SD_STATUS_CHANGED_Msk)) == SD_STATUS_CARD_Msk;
}

/* Writes CTRL. INIT is cleared by a card that leaves, so it must not come back with an old value.
 */
static void set_ctrl(SD_Type *sd, uint32_t value)
{
    sd->CTRL = value;
    if ((value & SD_CTRL_INIT_Msk) != 0u && !has_same_card(sd))
        sd->CTRL = value & ~SD_CTRL_INIT_Msk;
}

static bool wait_while_busy(const SD_Type *sd, uint32_t polls)
{
    do {
        if ((sd->STATUS & SD_STATUS_BUSY_Msk) == 0u)
            return true;
    } while (polls-- > 1u);
    return false;
}

static sd_result exchange(SD_Type *sd, const sd_card *card, uint8_t byte, uint8_t *received)
{
    if (!wait_while_busy(sd, card->polls)) /* one that an earlier call gave up on */
        return SD_ERROR_TIMEOUT;
    sd->DATA = byte;
    if (!wait_while_busy(sd, card->polls))
        return SD_ERROR_TIMEOUT;
    *received = (uint8_t)(sd->DATA & SD_DATA_BYTE_Msk);
    return SD_OK;
}

static sd_result send(SD_Type *sd, const sd_card *card, uint8_t byte)
{
    uint8_t dropped;
    return exchange(sd, card, byte, &dropped);
}

static sd_result receive(SD_Type *sd, const sd_card *card, uint8_t *data, size_t size)
{
    sd_result result = SD_OK;
    size_t i;
    for (i = 0u; i < size && result == SD_OK; ++i)
        result = exchange(sd, card, idle, &data[i]);
    return result;
}

/* The card lets the line go one byte after it is no longer selected. */
static sd_result release(SD_Type *sd, const sd_card *card, sd_result result)
{
    sd_result released;
    set_ctrl(sd, sd->CTRL & ~SD_CTRL_SELECT_Msk);
    released = send(sd, card, idle);
    return result != SD_OK ? result : released;
}

/* The card's byte other than idle (or, with busy, than 0), within the limit. */
static sd_result wait_for_card(SD_Type *sd, const sd_card *card, bool busy, uint8_t *byte)
{
    uint32_t tries = card->tries;
    do {
        const sd_result result = exchange(sd, card, idle, byte);
        if (result != SD_OK)
            return result;
        if (busy ? *byte == idle : *byte != idle)
            return SD_OK;
    } while (tries-- > 1u);
    return SD_ERROR_TIMEOUT;
}

/* Selects the card and sends a command; *answer is the first byte of the card's answer. The card
 * stays selected. */
static sd_result command(SD_Type *sd, const sd_card *card, uint8_t number, uint32_t argument,
                         uint8_t *answer)
{
    uint8_t frame[6];
    sd_result result;
    int i;
    frame[0] = (uint8_t)(0x40u | number);
    frame[1] = (uint8_t)((argument >> 24) & 0xFFu);
    frame[2] = (uint8_t)((argument >> 16) & 0xFFu);
    frame[3] = (uint8_t)((argument >> 8) & 0xFFu);
    frame[4] = (uint8_t)(argument & 0xFFu);
    frame[5] = (uint8_t)(((uint32_t)sd_crc7(frame, 5u) << 1) | 1u);
    if (!wait_while_busy(sd, card->polls)) /* within a byte the card would lose its place */
        return SD_ERROR_TIMEOUT;
    set_ctrl(sd, sd->CTRL | SD_CTRL_SELECT_Msk);
    result = wait_for_card(sd, card, true, answer);
    if (result != SD_OK && number == 0u) /* a reset is for a card in any state */
        result = SD_OK;
    for (i = 0; i < 6 && result == SD_OK; ++i)
        result = send(sd, card, frame[i]);
    if (result != SD_OK)
        return result;
    for (i = 0; i < answer_bytes; ++i) {
        result = exchange(sd, card, idle, answer);
        if (result != SD_OK)
            return result;
        if ((*answer & answer_none) == 0u)
            return SD_OK;
    }
    return SD_ERROR_TIMEOUT;
}

/* The same with the four bytes that follow some answers, and the card released. */
static sd_result whole_command(SD_Type *sd, const sd_card *card, uint8_t number, uint32_t argument,
                               uint8_t *answer, uint8_t *more, size_t more_size)
{
    sd_result result = command(sd, card, number, argument, answer);
    if (result == SD_OK && (*answer & answer_illegal) == 0u)
        result = receive(sd, card, more, more_size);
    return release(sd, card, result);
}

/* CMD0 until the card is idle: a card that was in the middle of something needs more than one. */
static sd_result reset(SD_Type *sd, const sd_card *card)
{
    sd_result result = SD_ERROR_TIMEOUT;
    uint8_t answer = 0u;
    int i;
    for (i = 0; i < reset_attempts; ++i) {
        result = whole_command(sd, card, 0u, 0u, &answer, NULL, 0u);
        if (result == SD_OK && answer == answer_idle)
            return SD_OK;
    }
    return result == SD_OK ? SD_ERROR_REFUSED : result;
}

/* ACMD41 until the card is no longer idle. */
static sd_result start(SD_Type *sd, const sd_card *card, uint32_t argument)
{
    uint32_t tries = card->tries;
    uint8_t answer;
    do {
        sd_result result = whole_command(sd, card, 55u, 0u, &answer, NULL, 0u);
        if (result == SD_OK && (answer & (uint8_t)~answer_idle) == 0u)
            result = whole_command(sd, card, 41u, argument, &answer, NULL, 0u);
        if (result != SD_OK)
            return result;
        if (answer == 0u)
            return SD_OK;
        if (answer != answer_idle)
            return SD_ERROR_REFUSED;
    } while (tries-- > 1u);
    return SD_ERROR_TIMEOUT;
}

/* Where a block lies, as the card counts. */
static sd_result address_of(const SD_Type *sd, const sd_card *card, uint32_t block,
                            uint32_t *address)
{
    if (!has_same_card(sd) || (sd->CTRL & SD_CTRL_INIT_Msk) == 0u)
        return SD_ERROR_NO_CARD;
    if (!card->is_addressed_by_block && block >= blocks_by_byte)
        return SD_ERROR_RANGE;
    *address = card->is_addressed_by_block ? block : block * SD_BLOCK_SIZE;
    return SD_OK;
}

/* An error of a card that is gone is no error of the card. */
static sd_result judged(const SD_Type *sd, sd_result result)
{
    return result != SD_OK && !has_same_card(sd) ? SD_ERROR_NO_CARD : result;
}

bool sd_is_present(const SD_Type *sd)
{
    return (sd->STATUS & SD_STATUS_CARD_Msk) != 0u;
}

static sd_result init_card(SD_Type *sd, sd_card *card)
{
    uint8_t answer = 0u;
    uint8_t more[4] = {0u, 0u, 0u, 0u};
    bool is_version_2;
    sd_result result = SD_OK;
    int i;
    for (i = 0; i < 10 && result == SD_OK; ++i) /* at least 74 periods, not selected */
        result = send(sd, card, idle);
    if (result == SD_OK)
        result = reset(sd, card);
    if (result == SD_OK)
        result = whole_command(sd, card, 8u, voltage_and_pattern, &answer, more, sizeof more);
    if (result != SD_OK)
        return result;
    is_version_2 = (answer & answer_illegal) == 0u;
    if (is_version_2 && ((more[2] & 0x0Fu) != (voltage_and_pattern >> 8) ||
                         more[3] != (voltage_and_pattern & 0xFFu)))
        return SD_ERROR_REFUSED;
    result = start(sd, card, is_version_2 ? takes_high_capacity : 0u);
    if (result == SD_OK)
        result = whole_command(sd, card, 58u, 0u, &answer, more, sizeof more);
    if (result != SD_OK)
        return result;
    if (answer != 0u)
        return SD_ERROR_REFUSED;
    card->is_addressed_by_block =
        is_version_2 && (((uint32_t)more[0] << 24) & ocr_block_addresses) != 0u;
    if (!card->is_addressed_by_block) {
        result = whole_command(sd, card, 16u, SD_BLOCK_SIZE, &answer, NULL, 0u);
        if (result == SD_OK && answer != 0u)
            return SD_ERROR_REFUSED;
    }
    return result;
}

sd_result sd_init(SD_Type *sd, sd_card *card, uint32_t polls, uint32_t tries)
{
    sd_result result;
    card->polls = polls;
    card->tries = tries;
    card->is_addressed_by_block = false;
    sd->CTRL = sd->CTRL & SD_CTRL_CARDIE_Msk;
    sd->STATUS = SD_STATUS_DONE_Msk | SD_STATUS_LOST_Msk | SD_STATUS_CHANGED_Msk;
    if (!sd_is_present(sd))
        return SD_ERROR_NO_CARD;
    result = init_card(sd, card);
    if (result == SD_OK) {
        set_ctrl(sd, sd->CTRL | SD_CTRL_INIT_Msk);
        if (!has_same_card(sd))
            result = SD_ERROR_NO_CARD;
    }
    return judged(sd, result);
}

sd_result sd_check_crc(SD_Type *sd, const sd_card *card, bool checked)
{
    uint8_t answer;
    uint32_t address;
    sd_result result = address_of(sd, card, 0u, &address);
    if (result != SD_OK)
        return result;
    result = whole_command(sd, card, 59u, checked ? 1u : 0u, &answer, NULL, 0u);
    if (result == SD_OK && answer != 0u)
        result = SD_ERROR_REFUSED;
    return judged(sd, result);
}

static sd_result read_selected(SD_Type *sd, const sd_card *card, uint32_t address, uint8_t *data)
{
    uint8_t byte;
    uint8_t crc[2];
    sd_result result = command(sd, card, 17u, address, &byte);
    if (result == SD_OK && byte != 0u)
        result = SD_ERROR_REFUSED;
    if (result == SD_OK)
        result = wait_for_card(sd, card, false, &byte);
    if (result == SD_OK && byte != block_token)
        result = SD_ERROR_DATA;
    if (result == SD_OK)
        result = receive(sd, card, data, SD_BLOCK_SIZE);
    if (result == SD_OK)
        result = receive(sd, card, crc, sizeof crc);
    if (result == SD_OK && sd_crc16(data, SD_BLOCK_SIZE) != (((uint32_t)crc[0] << 8) | crc[1]))
        result = SD_ERROR_CHECKSUM;
    return result;
}

sd_result sd_read_block(SD_Type *sd, const sd_card *card, uint32_t block, uint8_t *data)
{
    uint32_t address;
    const sd_result result = address_of(sd, card, block, &address);
    if (result != SD_OK)
        return result;
    return judged(sd, release(sd, card, read_selected(sd, card, address, data)));
}

static sd_result write_selected(SD_Type *sd, const sd_card *card, uint32_t address,
                                const uint8_t *data)
{
    const uint32_t crc = sd_crc16(data, SD_BLOCK_SIZE);
    uint8_t byte;
    size_t i;
    sd_result result = command(sd, card, 24u, address, &byte);
    if (result == SD_OK && byte != 0u)
        result = SD_ERROR_REFUSED;
    if (result == SD_OK)
        result = send(sd, card, idle);
    if (result == SD_OK)
        result = send(sd, card, block_token);
    for (i = 0u; i < SD_BLOCK_SIZE && result == SD_OK; ++i)
        result = send(sd, card, data[i]);
    if (result == SD_OK)
        result = send(sd, card, (uint8_t)(crc >> 8));
    if (result == SD_OK)
        result = send(sd, card, (uint8_t)(crc & 0xFFu));
    if (result == SD_OK)
        result = wait_for_card(sd, card, false, &byte);
    if (result != SD_OK)
        return result;
    switch (byte & 0x1Fu) { /* the card says what it makes of the block */
    case 0x05u:
        return wait_for_card(sd, card, true, &byte);
    case 0x0Bu:
        return SD_ERROR_CHECKSUM;
    default:
        return SD_ERROR_DATA;
    }
}

sd_result sd_write_block(SD_Type *sd, const sd_card *card, uint32_t block, const uint8_t *data)
{
    uint32_t address;
    const sd_result result = address_of(sd, card, block, &address);
    if (result != SD_OK)
        return result;
    return judged(sd, release(sd, card, write_selected(sd, card, address, data)));
}

uint32_t sd_take_errors(SD_Type *sd)
{
    const uint32_t errors = sd->STATUS & (SD_STATUS_LOST_Msk | SD_STATUS_CHANGED_Msk);
    if ((errors & SD_STATUS_CHANGED_Msk) != 0u)
        sd->CTRL = sd->CTRL & ~SD_CTRL_INIT_Msk; /* also of a card that left and came back */
    sd->STATUS = errors;                         /* what comes meanwhile stays for the next call */
    return errors;
}

void sd_enable_card_interrupt(SD_Type *sd, bool enabled)
{
    if (enabled)
        set_ctrl(sd, sd->CTRL | SD_CTRL_CARDIE_Msk);
    else
        set_ctrl(sd, sd->CTRL & ~SD_CTRL_CARDIE_Msk);
}

uint8_t sd_crc7(const uint8_t *data, size_t size)
{
    uint32_t crc = 0u;
    size_t i;
    int bit;
    for (i = 0u; i < size; ++i) {
        for (bit = 7; bit >= 0; --bit) {
            const uint32_t differs = (crc >> 6) ^ (((uint32_t)data[i] >> bit) & 1u);
            crc = ((crc << 1) & 0x7Fu) ^ (differs != 0u ? 0x09u : 0u);
        }
    }
    return (uint8_t)crc;
}

uint16_t sd_crc16(const uint8_t *data, size_t size)
{
    uint32_t crc = 0u;
    size_t i;
    int bit;
    for (i = 0u; i < size; ++i) {
        crc ^= (uint32_t)data[i] << 8;
        for (bit = 0; bit < 8; ++bit)
            crc = (crc & 0x8000u) != 0u ? ((crc << 1) ^ 0x1021u) & 0xFFFFu : crc << 1;
    }
    return (uint16_t)crc;
}
