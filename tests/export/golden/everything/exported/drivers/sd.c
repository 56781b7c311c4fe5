#include "sd.h"

/* Bits of R1. */
static const uint32_t answer_idle = 0x01u;

static const uint32_t voltage_and_pattern = 0x1AAu; /* 2.7 V to 3.6 V */
static const uint32_t takes_high_capacity = 0x40000000u;
static const uint32_t ocr_block_addresses = 0x40000000u;
static const uint32_t blocks_by_byte = 0x00800000u; /* 4 GB in blocks */
static const uint32_t slow_rate = 400000u;          /* Hz, until the card is initialised */

static const int reset_attempts = 10;
static const uint32_t start_attempts = 2000u; /* more than a second at the slow rate */
static const uint32_t frame_bytes = 32u;      /* a command with what is around it */
static const uint32_t most_blocks = 65535u;   /* of one command */

enum { block_words = 128, register_words = 4 };

/* What COMMAND holds beside the number. */
static const uint32_t answer_1 = SD_COMMAND_RESPONSE_R1 << SD_COMMAND_RESPONSE_Pos;
static const uint32_t answer_1b = SD_COMMAND_RESPONSE_R1B << SD_COMMAND_RESPONSE_Pos;
static const uint32_t answer_2 = SD_COMMAND_RESPONSE_R2 << SD_COMMAND_RESPONSE_Pos;
static const uint32_t answer_more = SD_COMMAND_RESPONSE_R3_R7 << SD_COMMAND_RESPONSE_Pos;
static const uint32_t reads = SD_COMMAND_DATA_READ << SD_COMMAND_DATA_Pos;
static const uint32_t writes = SD_COMMAND_DATA_WRITE << SD_COMMAND_DATA_Pos;

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

/* How often the status may be looked at until so many bytes have passed, and what the card is given
 * to answer. */
static uint32_t limit_of(const sd_card *card, uint32_t bytes)
{
    const uint32_t all = card->tries > 0xFFFF0000u ? card->tries : card->tries + bytes;
    const uint32_t polls = card->polls == 0u ? 1u : card->polls;
    return polls > 0xFFFFFFFFu / all ? 0xFFFFFFFFu : polls * all;
}

static sd_result meaning_of(uint32_t errors)
{
    static const struct {
        uint32_t errors;
        sd_result result;
    } meanings[] = {
        {SD_ERRORS_NOCARD_Msk, SD_ERROR_NO_CARD},
        {SD_ERRORS_NOCLOCK_Msk, SD_ERROR_NO_CLOCK},
        {SD_ERRORS_REFUSED_Msk | SD_ERRORS_ABORTED_Msk, SD_ERROR_TIMEOUT},
        {SD_ERRORS_CMDCRC_Msk | SD_ERRORS_DATACRC_Msk | SD_ERRORS_REJECTED_Msk, SD_ERROR_CHECKSUM},
        {SD_ERRORS_ILLEGAL_Msk | SD_ERRORS_R1ERROR_Msk, SD_ERROR_REFUSED},
        {SD_ERRORS_ERRORTOKEN_Msk | SD_ERRORS_NOTWRITTEN_Msk, SD_ERROR_DATA},
        {SD_ERRORS_NOTOKEN_Msk, SD_ERROR_NO_BLOCK},
        {SD_ERRORS_STAYSBUSY_Msk, SD_ERROR_BUSY},
        {SD_ERRORS_NORESPONSE_Msk | SD_ERRORS_BADVERDICT_Msk, SD_ERROR_NO_RESPONSE},
    };
    size_t i;
    for (i = 0u; i < sizeof meanings / sizeof meanings[0]; ++i) {
        if ((errors & meanings[i].errors) != 0u)
            return meanings[i].result;
    }
    return SD_OK;
}

/* Ends what runs, and forgets its words. */
static void give_up(SD_Type *sd)
{
    sd->ACTION = SD_ACTION_ABORT_Msk | SD_ACTION_CLEAR_Msk;
}

static sd_result begin(SD_Type *sd, const sd_card *card, uint32_t command, uint32_t argument)
{
    uint32_t limit = limit_of(card, frame_bytes);
    while ((sd->STATUS & SD_STATUS_BUSY_Msk) != 0u) { /* of somebody else */
        if (limit-- <= 1u)
            return SD_ERROR_TIMEOUT;
    }
    sd->ERRORS = 0xFFFFFFFFu;
    sd->EVENTS = SD_EVENTS_DONE_Msk | SD_EVENTS_BLOCK_Msk;
    sd->ARGUMENT = argument;
    sd->COMMAND = command;
    return SD_OK;
}

static sd_result end(SD_Type *sd, sd_card *card, uint32_t bytes)
{
    uint32_t limit = limit_of(card, bytes);
    uint32_t errors;
    bool gave_up = false;
    while ((sd->EVENTS & SD_EVENTS_DONE_Msk) == 0u) {
        if (limit-- <= 1u) {
            give_up(sd);
            gave_up = true;
            break;
        }
    }
    card->response = sd->RESPONSE;
    errors = sd->ERRORS & ~(SD_ERRORS_UNDER_Msk | SD_ERRORS_OVER_Msk);
    if (errors != 0u)
        card->errors = errors;
    return gave_up ? SD_ERROR_TIMEOUT : meaning_of(errors);
}

/* A command without blocks. */
static sd_result command(SD_Type *sd, sd_card *card, uint32_t number, uint32_t argument)
{
    const sd_result result = begin(sd, card, number, argument);
    return result != SD_OK ? result : end(sd, card, frame_bytes);
}

/* R1 of the last command. */
static uint32_t answer_of(const sd_card *card)
{
    return card->response & SD_RESPONSE_R1_Msk;
}

static bool is_illegal(const sd_card *card)
{
    return (card->errors & SD_ERRORS_ILLEGAL_Msk) != 0u;
}

/* An error of a card that is gone is no error of the card. */
static sd_result judged(const SD_Type *sd, sd_result result)
{
    return result != SD_OK && !has_same_card(sd) ? SD_ERROR_NO_CARD : result;
}

/* ---- initialisation */

/* CMD0 until the card is idle: a card that was in the middle of something needs more than one. */
static sd_result reset(SD_Type *sd, sd_card *card)
{
    sd_result result = SD_ERROR_TIMEOUT;
    int i;
    for (i = 0; i < reset_attempts; ++i) {
        result = command(sd, card, answer_1 | 0u, 0u);
        if (result == SD_OK && answer_of(card) == answer_idle)
            return SD_OK;
        if (result == SD_ERROR_NO_CARD || result == SD_ERROR_NO_CLOCK)
            return result;
    }
    return result == SD_OK ? SD_ERROR_REFUSED : result;
}

/* ACMD41 until the card is no longer idle. */
static sd_result start(SD_Type *sd, sd_card *card, uint32_t argument, uint32_t attempts)
{
    do {
        sd_result result = command(sd, card, answer_1 | 55u, 0u);
        if (result == SD_OK)
            result = command(sd, card, answer_1 | 41u, argument);
        if (result != SD_OK)
            return result;
        if ((answer_of(card) & answer_idle) == 0u)
            return SD_OK;
    } while (attempts-- > 1u);
    return SD_ERROR_TIMEOUT;
}

static sd_result init_card(SD_Type *sd, sd_card *card, uint32_t attempts)
{
    bool is_version_2;
    sd_result result = command(sd, card, SD_COMMAND_WAKE_Msk, 0u);
    if (result == SD_OK)
        result = reset(sd, card);
    if (result != SD_OK)
        return result;
    card->errors = 0u;
    result = command(sd, card, answer_more | 8u, voltage_and_pattern);
    is_version_2 = result == SD_OK;
    if (!is_version_2 && !is_illegal(card))
        return result;
    card->errors = 0u;
    if (is_version_2 && (sd->VALUE & 0xFFFu) != voltage_and_pattern)
        return SD_ERROR_REFUSED;
    result = start(sd, card, is_version_2 ? takes_high_capacity : 0u, attempts);
    if (result == SD_OK)
        result = command(sd, card, answer_more | 58u, 0u);
    if (result != SD_OK)
        return result;
    card->is_addressed_by_block = is_version_2 && (sd->VALUE & ocr_block_addresses) != 0u;
    if (!card->is_addressed_by_block)
        result = command(sd, card, answer_1 | 16u, SD_BLOCK_SIZE);
    return result;
}

/* Makes a card's record, and the block ready for its first command. */
static sd_result prepare(SD_Type *sd, sd_card *card, uint32_t polls, uint32_t tries)
{
    card->polls = polls;
    card->tries = tries;
    card->is_addressed_by_block = false;
    card->errors = 0u;
    card->response = 0u;
    card->moved = 0u;
    give_up(sd);
    sd->CTRL = sd->CTRL & SD_CTRL_CARDIE_Msk;
    sd->STATUS = SD_STATUS_DONE_Msk | SD_STATUS_LOST_Msk | SD_STATUS_CHANGED_Msk;
    return sd_is_present(sd) ? SD_OK : SD_ERROR_NO_CARD;
}

static sd_result initialised(SD_Type *sd, sd_result result)
{
    if (result == SD_OK) {
        set_ctrl(sd, sd->CTRL | SD_CTRL_INIT_Msk);
        if (!has_same_card(sd))
            result = SD_ERROR_NO_CARD;
    }
    return judged(sd, result);
}

sd_result sd_init(SD_Type *sd, sd_card *card, uint32_t polls, uint32_t tries)
{
    sd_result result = prepare(sd, card, polls, tries);
    if (result != SD_OK)
        return result;
    sd->CLOCK = sd->CLOCK & SD_CLOCK_FILTER_Msk;
    return initialised(sd, init_card(sd, card, tries));
}

/* CLOCK for the highest rate that is not above a wish; false if there is none. */
static bool clock_for(uint32_t clock_hz, uint32_t sclk_hz, uint32_t *value)
{
    uint32_t halves = 1u;
    if (clock_hz == 0u || sclk_hz == 0u)
        return false;
    if (sclk_hz <= (clock_hz - 1u) / 2u)
        halves = (clock_hz - 1u) / (2u * sclk_hz) + 1u;
    *value = ((halves - 1u) << SD_CLOCK_DIV_Pos) | (SD_CLOCK_SOURCE_PCLK << SD_CLOCK_SOURCE_Pos);
    return halves - 1u <= SD_CLOCK_DIV_Msk >> SD_CLOCK_DIV_Pos;
}

uint32_t sd_rate(const SD_Type *sd, uint32_t clock_hz)
{
    const uint32_t value = sd->CLOCK;
    if ((value & SD_CLOCK_SOURCE_Msk) == 0u)
        return 0u;
    return clock_hz / (2u * (((value & SD_CLOCK_DIV_Msk) >> SD_CLOCK_DIV_Pos) + 1u));
}

/* Goes over to a rate, with the limits that belong to it: a byte takes 16 * (DIV + 1) cycles, and a
 * look at the status more than four; the card gets two seconds to answer. */
static void set_clock(SD_Type *sd, sd_card *card, uint32_t clock_hz, uint32_t value)
{
    sd->CLOCK = (sd->CLOCK & SD_CLOCK_FILTER_Msk) | value;
    card->polls = 4u * (((value & SD_CLOCK_DIV_Msk) >> SD_CLOCK_DIV_Pos) + 2u);
    card->tries = sd_rate(sd, clock_hz) / 4u;
}

sd_result sd_open(SD_Type *sd, sd_card *card, uint32_t clock_hz, uint32_t sclk_hz)
{
    const uint32_t tenth = clock_hz / 10240u; /* of a second in units of TIMEOUT */
    const uint32_t busy = tenth < 65535u / 6u ? 6u * tenth : 65535u;
    uint32_t slow, fast;
    sd_result result;
    if (!clock_for(clock_hz, slow_rate < sclk_hz ? slow_rate : sclk_hz, &slow) ||
        !clock_for(clock_hz, sclk_hz, &fast))
        return SD_ERROR_RANGE;
    result = prepare(sd, card, 0u, 0u);
    if (result != SD_OK)
        return result;
    set_clock(sd, card, clock_hz, slow);
    sd->TIMEOUT = ((tenth < 32767u ? 2u * tenth : 65535u) << SD_TIMEOUT_TOKEN_Pos) |
                  (busy << SD_TIMEOUT_BUSY_Pos);
    result = init_card(sd, card, start_attempts);
    if (result == SD_OK)
        set_clock(sd, card, clock_hz, fast);
    return initialised(sd, result);
}

bool sd_is_present(const SD_Type *sd)
{
    return (sd->STATUS & SD_STATUS_CARD_Msk) != 0u;
}

/* ---- blocks */

static bool is_initialised(const SD_Type *sd)
{
    return has_same_card(sd) && (sd->CTRL & SD_CTRL_INIT_Msk) != 0u;
}

/* Where blocks lie, as the card counts. */
static sd_result address_of(const SD_Type *sd, const sd_card *card, uint32_t block, uint32_t count,
                            uint32_t *address)
{
    const uint32_t end_of_card = card->is_addressed_by_block ? 0xFFFFFFFFu : blocks_by_byte;
    if (!is_initialised(sd))
        return SD_ERROR_NO_CARD;
    if (block >= end_of_card || count > end_of_card - block)
        return SD_ERROR_RANGE;
    *address = card->is_addressed_by_block ? block : block * SD_BLOCK_SIZE;
    return SD_OK;
}

/* Waits until the bits of EVENTS are there, or the command has ended. */
static bool wait_for_event(const SD_Type *sd, uint32_t events, uint32_t limit)
{
    uint32_t now;
    do {
        now = sd->EVENTS;
        if ((now & (events | SD_EVENTS_DONE_Msk)) != 0u)
            return (now & events) != 0u;
    } while (limit-- > 1u);
    return false;
}

/* Waits until more blocks than so many have come, or the command has ended. */
static bool wait_for_block(const SD_Type *sd, uint32_t before, uint32_t limit)
{
    bool has_ended;
    do {
        has_ended = (sd->EVENTS & SD_EVENTS_DONE_Msk) != 0u;
        if ((sd->PROGRESS & SD_PROGRESS_MOVED_Msk) > before)
            return true;
    } while (!has_ended && limit-- > 1u);
    return false;
}

static void take_words(SD_Type *sd, uint8_t *data, int words)
{
    for (; words > 0; --words, data += 4) {
        const uint32_t word = sd->BUFFER;
        data[0] = (uint8_t)(word & 0xFFu);
        data[1] = (uint8_t)((word >> 8) & 0xFFu);
        data[2] = (uint8_t)((word >> 16) & 0xFFu);
        data[3] = (uint8_t)(word >> 24);
    }
}

static void give_words(SD_Type *sd, const uint8_t *data, int words)
{
    for (; words > 0; --words, data += 4)
        sd->BUFFER =
            data[0] | (uint32_t)data[1] << 8 | (uint32_t)data[2] << 16 | (uint32_t)data[3] << 24;
}

/* Reads blocks with one command. */
static sd_result read_some(SD_Type *sd, sd_card *card, uint32_t number, uint32_t argument,
                           uint32_t count, int words, uint8_t *data)
{
    const uint32_t bytes = frame_bytes + 4u * (uint32_t)words;
    uint32_t i;
    sd_result result;
    sd->ACTION = SD_ACTION_CLEAR_Msk;
    sd->BLOCKS = (count << SD_BLOCKS_COUNT_Pos) | ((uint32_t)words << SD_BLOCKS_WORDS_Pos);
    result = begin(sd, card, answer_1 | reads | SD_COMMAND_WAIT_Msk | number, argument);
    if (result != SD_OK)
        return result;
    for (i = 0u; i < count && wait_for_block(sd, i, limit_of(card, bytes)); ++i)
        take_words(sd, &data[i * 4u * (uint32_t)words], words);
    card->moved += i;
    if (i < count && (sd->EVENTS & SD_EVENTS_DONE_Msk) == 0u)
        give_up(sd);
    result = end(sd, card, bytes);
    if (result == SD_ERROR_TIMEOUT && count > 1u)
        (void)command(sd, card, answer_1b | 12u, 0u); /* the card goes on sending else */
    return result;
}

static sd_result write_some(SD_Type *sd, sd_card *card, uint32_t number, uint32_t argument,
                            uint32_t count, const uint8_t *data)
{
    uint32_t i;
    sd_result result;
    sd->ACTION = SD_ACTION_CLEAR_Msk;
    sd->BLOCKS = (count << SD_BLOCKS_COUNT_Pos) | ((uint32_t)block_words << SD_BLOCKS_WORDS_Pos);
    give_words(sd, data, block_words);
    result = begin(sd, card, answer_1 | writes | SD_COMMAND_WAIT_Msk | number, argument);
    if (result != SD_OK)
        return result;
    for (i = 1u; i < count; ++i) {
        if (!wait_for_event(sd, SD_EVENTS_WRITABLE_Msk,
                            limit_of(card, frame_bytes + SD_BLOCK_SIZE)))
            break;
        give_words(sd, &data[i * SD_BLOCK_SIZE], block_words);
    }
    if (i < count && (sd->EVENTS & SD_EVENTS_DONE_Msk) == 0u)
        give_up(sd);
    result = end(sd, card, frame_bytes + 2u * SD_BLOCK_SIZE);
    card->moved += (sd->PROGRESS & SD_PROGRESS_MOVED_Msk) >> SD_PROGRESS_MOVED_Pos;
    sd->ACTION = SD_ACTION_CLEAR_Msk; /* of what the card did not take */
    return result;
}

/* Blocks in as many commands as it takes, to `into` or from `from`. */
static sd_result move(SD_Type *sd, sd_card *card, uint32_t block, uint32_t count, uint8_t *into,
                      const uint8_t *from)
{
    uint32_t address;
    sd_result result = address_of(sd, card, block, count, &address);
    card->moved = 0u;
    while (result == SD_OK && count > 0u) {
        const uint32_t some = count < most_blocks ? count : most_blocks;
        const uint32_t several = some > 1u ? SD_COMMAND_MULTI_Msk | 1u : 0u; /* the next number */
        if (into != NULL) {
            result = read_some(sd, card, 17u + several, address, some, block_words, into);
            into += some * SD_BLOCK_SIZE;
        } else {
            result = write_some(sd, card, 24u + several, address, some, from);
            from += some * SD_BLOCK_SIZE;
        }
        address += card->is_addressed_by_block ? some : some * SD_BLOCK_SIZE;
        count -= some;
    }
    return judged(sd, result);
}

sd_result sd_read_block(SD_Type *sd, sd_card *card, uint32_t block, uint8_t *data)
{
    return move(sd, card, block, 1u, data, NULL);
}

sd_result sd_write_block(SD_Type *sd, sd_card *card, uint32_t block, const uint8_t *data)
{
    return move(sd, card, block, 1u, NULL, data);
}

sd_result sd_read_blocks(SD_Type *sd, sd_card *card, uint32_t block, uint32_t count, uint8_t *data)
{
    return move(sd, card, block, count, data, NULL);
}

sd_result sd_write_blocks(SD_Type *sd, sd_card *card, uint32_t block, uint32_t count,
                          const uint8_t *data)
{
    return move(sd, card, block, count, NULL, data);
}

static sd_result read_register(SD_Type *sd, sd_card *card, uint32_t number, uint8_t *data)
{
    card->moved = 0u;
    if (!is_initialised(sd))
        return SD_ERROR_NO_CARD;
    return judged(sd, read_some(sd, card, number, 0u, 1u, register_words, data));
}

sd_result sd_read_csd(SD_Type *sd, sd_card *card, uint8_t *csd)
{
    return read_register(sd, card, 9u, csd);
}

sd_result sd_read_cid(SD_Type *sd, sd_card *card, uint8_t *cid)
{
    return read_register(sd, card, 10u, cid);
}

uint32_t sd_blocks(const uint8_t *csd)
{
    switch (csd[0] >> 6) {
    case 0: { /* (C_SIZE + 1) * 2^(C_SIZE_MULT + 2) blocks of 2^READ_BL_LEN bytes */
        const uint32_t size = (csd[6] & 3u) << 10 | (uint32_t)csd[7] << 2 | csd[8] >> 6;
        const uint32_t factor = (csd[9] & 3u) << 1 | csd[10] >> 7;
        const uint32_t length = csd[5] & 15u;
        return length < 9u ? 0u : (size + 1u) << (factor + 2u + length - 9u);
    }
    case 1: /* units of 512 KB */
        return (((csd[7] & 0x3Fu) << 16 | (uint32_t)csd[8] << 8 | csd[9]) + 1u) << 10;
    default:
        return 0u;
    }
}

/* ---- the rest */

sd_result sd_check_crc(SD_Type *sd, sd_card *card, bool checked)
{
    if (!is_initialised(sd))
        return SD_ERROR_NO_CARD;
    return judged(sd, command(sd, card, answer_1 | SD_COMMAND_WAIT_Msk | 59u, checked ? 1u : 0u));
}

sd_result sd_status(SD_Type *sd, sd_card *card, uint32_t *status)
{
    sd_result result;
    if (!is_initialised(sd))
        return SD_ERROR_NO_CARD;
    result = command(sd, card, answer_2 | SD_COMMAND_WAIT_Msk | 13u, 0u);
    *status = answer_of(card) << 8 | (sd->VALUE & 0xFFu);
    return judged(sd, result);
}

uint32_t sd_take_errors(SD_Type *sd)
{
    const uint32_t errors = sd->STATUS & (SD_STATUS_LOST_Msk | SD_STATUS_CHANGED_Msk);
    if ((errors & SD_STATUS_CHANGED_Msk) != 0u)
        sd->CTRL = sd->CTRL & ~SD_CTRL_INIT_Msk; /* also of a card that left and came back */
    sd->STATUS = errors;                         /* what comes meanwhile stays for the next call */
    return errors;
}

void sd_enable_card_interrupt(SD_Type *sd, bool on)
{
    if (on)
        set_ctrl(sd, sd->CTRL | SD_CTRL_CARDIE_Msk);
    else
        set_ctrl(sd, sd->CTRL & ~SD_CTRL_CARDIE_Msk);
}

void sd_enable_interrupts(SD_Type *sd, uint32_t events)
{
    sd->ENABLE = sd->ENABLE | events;
}

void sd_disable_interrupts(SD_Type *sd, uint32_t events)
{
    sd->ENABLE = sd->ENABLE & ~events;
}

uint32_t sd_take_events(SD_Type *sd)
{
    const uint32_t events = sd->EVENTS & (SD_EVENTS_INSERTED_Msk | SD_EVENTS_REMOVED_Msk);
    sd->EVENTS = events;
    return events;
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
