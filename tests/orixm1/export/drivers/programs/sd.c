#include "drivers/sd.h"

#include "far.h"

static const uint32_t polls = 6u;
static const uint32_t tries = 20u;
static const uint32_t short_times = 0x00080008u; /* nine units of 1024 cycles */

enum { KIND, INSERTED, FAULTS, VERDICT, STOPPED, BUSY, FAULT_AT, R1_ERRORS, FORGET_PERIODS };
enum {
    CRC_ERRORS,
    WHERE,
    COMMANDS,
    PINS,
    BLOCK_LENGTH,
    CRC_CHECKED,
    LAST_COMMAND = 7,
    STOPS,
    PERIOD,
    FASTEST_PERIOD,
    MEMORY = 4096
};
enum {
    MUTE = 1,
    BAD_ECHO = 2,
    BAD_CRC = 4,
    BAD_TOKEN = 8,
    NEVER_READY = 16,
    STAYS_BUSY = 32,
    NO_TOKEN = 64
};
enum { NOT_SELECTED = 1, INITIALISED = 2, INTERRUPT = 4 };

static uint8_t block[4 * SD_BLOCK_SIZE];

static void checksums(void)
{
    static const uint8_t reset[5] = {0x40u, 0u, 0u, 0u, 0u};
    static const uint8_t condition[5] = {0x48u, 0u, 0u, 0x01u, 0xAAu};
    static const uint8_t digits[9] = {0x31u, 0x32u, 0x33u, 0x34u, 0x35u,
                                      0x36u, 0x37u, 0x38u, 0x39u};
    uint32_t i;
    EQUAL(sd_crc7(reset, 5u), 0x4Au);
    EQUAL(sd_crc7(condition, 5u), 0x43u);
    EQUAL(sd_crc7(digits, 9u), 0x75u);
    EQUAL(sd_crc16(digits, 9u), 0x31C3u);
    EQUAL(sd_crc16(digits, 0u), 0u);
    for (i = 0u; i < SD_BLOCK_SIZE; ++i)
        block[i] = 0xFFu;
    EQUAL(sd_crc16(block, SD_BLOCK_SIZE), 0x7FA1u);
}

/* Bytes that differ from those that the card has from the beginning, or from multiples. */
static uint32_t differences(const uint8_t *data, uint32_t number, uint32_t factor)
{
    uint32_t i;
    uint32_t count = 0u;
    for (i = 0u; i < SD_BLOCK_SIZE; ++i) {
        const uint32_t n = number * SD_BLOCK_SIZE + i;
        const uint32_t expected = factor == 0u ? (n ^ (n >> 8)) & 0xFFu : (i * factor) & 0xFFu;
        if (data[i] != expected)
            ++count;
    }
    return count;
}

static void fill(uint8_t *data, uint32_t factor)
{
    uint32_t i;
    for (i = 0u; i < SD_BLOCK_SIZE; ++i)
        data[i] = (uint8_t)((i * factor) & 0xFFu);
}

static void no_card(void)
{
    sd_card card;
    uint32_t status;
    EQUAL(sd_is_present(SD), false);
    EQUAL(sd_init(SD, &card, polls, tries), SD_ERROR_NO_CARD);
    EQUAL(sd_open(SD, &card, 50000000u, 25000000u), SD_ERROR_NO_CARD);
    EQUAL(sd_read_block(SD, &card, 0u, block), SD_ERROR_NO_CARD);
    EQUAL(sd_write_block(SD, &card, 0u, block), SD_ERROR_NO_CARD);
    EQUAL(sd_read_csd(SD, &card, block), SD_ERROR_NO_CARD);
    EQUAL(sd_status(SD, &card, &status), SD_ERROR_NO_CARD);
    EQUAL(sd_check_crc(SD, &card, true), SD_ERROR_NO_CARD);
    EQUAL(FAR(COMMANDS), 0u);
    EQUAL(FAR(PINS), NOT_SELECTED);
    sd_enable_card_interrupt(SD, true);
    FAR(INSERTED) = 1u;
    EQUAL(FAR(PINS), NOT_SELECTED | INTERRUPT);
    EQUAL(sd_is_present(SD), true);
    EQUAL(sd_take_errors(SD), SD_STATUS_CHANGED_Msk);
    EQUAL(FAR(PINS), NOT_SELECTED);
    EQUAL(sd_take_events(SD), SD_EVENTS_INSERTED_Msk);
    EQUAL(sd_take_events(SD), 0u);
    EQUAL(sd_read_block(SD, &card, 0u, block), SD_ERROR_NO_CARD); /* not initialised */
    EQUAL(FAR(COMMANDS), 0u);
}

/* The clock is made from that of the bus. */
static void opened(void)
{
    sd_card card;
    uint32_t status = 0u;
    uint32_t i;
    EQUAL(sd_open(SD, &card, 50000000u, 0u), SD_ERROR_RANGE);
    EQUAL(sd_open(SD, &card, 0u, 1u), SD_ERROR_RANGE);
    EQUAL(sd_open(SD, &card, 50000000u, 97000u), SD_ERROR_RANGE);
    EQUAL(sd_open(SD, &card, 300000000u, 25000000u), SD_ERROR_RANGE);
    EQUAL(FAR(COMMANDS), 0u);
    FAR(KIND) = 0u;
    FAR(FORGET_PERIODS) = 0u;
    EQUAL(sd_open(SD, &card, 4000000u, 1000000u), SD_OK); /* slow: ten cycles, then four */
    EQUAL(sd_rate(SD, 4000000u), 1000000u);
    EQUAL(FAR(FASTEST_PERIOD), 100u);
    EQUAL(SD->TIMEOUT, 0x09240000u | 780u); /* 0.6 s and 0.2 s */
    EQUAL(card.is_addressed_by_block, true);
    EQUAL(FAR(PINS), NOT_SELECTED | INITIALISED);
    EQUAL(sd_read_block(SD, &card, 2u, block), SD_OK);
    EQUAL(FAR(PERIOD), 40u);
    EQUAL(differences(block, 2u, 0u), 0u);
    EQUAL(sd_open(SD, &card, 1000000u, 3000000u), SD_OK);
    EQUAL(sd_rate(SD, 1000000u), 500000u);
    EQUAL(FAR(PERIOD), 40u); /* the last command of the initialisation, at 250 kHz */
    EQUAL(sd_check_crc(SD, &card, true), SD_OK);
    EQUAL(FAR(PERIOD), 20u);
    EQUAL(FAR(CRC_CHECKED), 1u);
    EQUAL(sd_status(SD, &card, &status), SD_OK);
    EQUAL(status, 0x5Au);
    EQUAL(sd_read_csd(SD, &card, block), SD_OK);
    EQUAL(block[0] | block[15] << 8, 0x1001u);
    EQUAL(card.moved, 1u);
    EQUAL(sd_read_cid(SD, &card, block), SD_OK);
    EQUAL(FAR(LAST_COMMAND), 10u);
    /* Several blocks. */
    EQUAL(sd_read_blocks(SD, &card, 0x00900001u, 4u, block), SD_OK);
    EQUAL(FAR(WHERE), 0x00900001u);
    EQUAL(FAR(STOPS), 1u);
    EQUAL(card.moved, 4u);
    for (i = 0u; i < 4u; ++i)
        EQUAL(differences(&block[i * SD_BLOCK_SIZE], 1u + i, 0u), 0u);
    for (i = 0u; i < 3u; ++i)
        fill(&block[i * SD_BLOCK_SIZE], 3u + 2u * i);
    EQUAL(sd_write_blocks(SD, &card, 6u, 3u, block), SD_OK);
    EQUAL(FAR(STOPS), 2u);
    EQUAL(card.moved, 3u);
    EQUAL(sd_read_blocks(SD, &card, 6u, 3u, &block[1]), SD_OK);
    for (i = 0u; i < 3u; ++i)
        EQUAL(differences(&block[1u + i * SD_BLOCK_SIZE], 0u, 3u + 2u * i), 0u);
    EQUAL(sd_read_blocks(SD, &card, 0u, 0u, block), SD_OK);
    EQUAL(card.moved, 0u);
    EQUAL(FAR(CRC_ERRORS), 0u);
    /* Of several blocks one is bad. */
    FAR(FAULT_AT) = 2u;
    FAR(FAULTS) = BAD_CRC;
    EQUAL(sd_read_blocks(SD, &card, 3u, 4u, block), SD_ERROR_CHECKSUM);
    EQUAL(card.moved, 2u);
    EQUAL(card.errors, SD_ERRORS_DATACRC_Msk);
    EQUAL(differences(&block[SD_BLOCK_SIZE], 4u, 0u), 0u);
    FAR(FAULTS) = 0u;
    FAR(FAULT_AT) = 1u;
    FAR(VERDICT) = 0xEDu;
    EQUAL(sd_write_blocks(SD, &card, 3u, 4u, block), SD_ERROR_DATA);
    EQUAL(card.moved, 1u);
    EQUAL(card.errors, SD_ERRORS_NOTWRITTEN_Msk);
    EQUAL(card.response >> SD_RESPONSE_TOKEN_Pos, 0xEDu);
    FAR(VERDICT) = 0xE5u;
    FAR(FAULT_AT) = 0u;
    EQUAL(sd_read_block(SD, &card, 5u, block), SD_OK);
    EQUAL(differences(block, 5u, 0u), 0u);
    /* Interrupts by kind. */
    sd_enable_interrupts(SD, SD_ENABLE_DONE_Msk | SD_ENABLE_READABLE_Msk);
    EQUAL(FAR(PINS), NOT_SELECTED | INITIALISED | INTERRUPT);
    sd_disable_interrupts(SD, SD_ENABLE_DONE_Msk);
    EQUAL(FAR(PINS), NOT_SELECTED | INITIALISED);
    sd_disable_interrupts(SD, SD_ENABLE_READABLE_Msk);
}

static void by_block(void)
{
    sd_card card;
    SD->TIMEOUT = short_times;
    FAR(KIND) = 0u;
    EQUAL(sd_init(SD, &card, polls, tries), SD_OK);
    EQUAL(sd_rate(SD, 50000000u), 0u);
    EQUAL(card.is_addressed_by_block, true);
    EQUAL(FAR(PINS), NOT_SELECTED | INITIALISED);
    EQUAL(FAR(CRC_ERRORS), 0u);
    EQUAL(sd_read_block(SD, &card, 0x00900003u, block), SD_OK);
    EQUAL(FAR(WHERE), 0x00900003u);
    fill(block, 13u);
    EQUAL(sd_check_crc(SD, &card, true), SD_OK);
    EQUAL(sd_write_block(SD, &card, 5u, block), SD_OK);
    EQUAL(FAR(WHERE), 5u);
    EQUAL(FAR(MEMORY + 5u * 512u + 511u), (511u * 13u) & 0xFFu);
    EQUAL(FAR(MEMORY + 5u * 512u), 0u);
    block[7] = 1u;
    EQUAL(sd_read_block(SD, &card, 5u, block), SD_OK);
    EQUAL(differences(block, 5u, 13u), 0u);
    EQUAL(FAR(CRC_ERRORS), 0u);
    EQUAL(sd_take_errors(SD), 0u);
    /* Faults. */
    FAR(FAULTS) = BAD_CRC;
    EQUAL(sd_read_block(SD, &card, 1u, block), SD_ERROR_CHECKSUM);
    EQUAL(card.moved, 0u);
    FAR(FAULTS) = BAD_TOKEN;
    EQUAL(sd_read_block(SD, &card, 1u, block), SD_ERROR_DATA);
    FAR(FAULTS) = NO_TOKEN;
    EQUAL(sd_read_block(SD, &card, 1u, block), SD_ERROR_NO_BLOCK);
    EQUAL(card.errors, SD_ERRORS_NOTOKEN_Msk);
    SD->TIMEOUT = 0xFFFFFFFFu; /* the driver's own limit */
    card.polls = 2u;
    EQUAL(sd_read_block(SD, &card, 1u, block), SD_ERROR_TIMEOUT);
    EQUAL(sd_read_blocks(SD, &card, 1u, 2u, block), SD_ERROR_TIMEOUT);
    EQUAL(FAR(LAST_COMMAND), 12u);
    SD->TIMEOUT = short_times;
    card.polls = polls;
    FAR(FAULTS) = MUTE;
    EQUAL(sd_read_block(SD, &card, 1u, block), SD_ERROR_NO_RESPONSE);
    EQUAL(sd_write_block(SD, &card, 1u, block), SD_ERROR_NO_RESPONSE);
    EQUAL(sd_check_crc(SD, &card, true), SD_ERROR_NO_RESPONSE);
    FAR(FAULTS) = 0u;
    FAR(R1_ERRORS) = 0x20u;
    EQUAL(sd_read_block(SD, &card, 1u, block), SD_ERROR_REFUSED);
    FAR(R1_ERRORS) = 0x08u;
    EQUAL(sd_write_block(SD, &card, 1u, block), SD_ERROR_CHECKSUM);
    EQUAL(card.errors, SD_ERRORS_CMDCRC_Msk);
    FAR(R1_ERRORS) = 0u;
    FAR(VERDICT) = 0xEBu;
    EQUAL(sd_write_block(SD, &card, 1u, block), SD_ERROR_CHECKSUM);
    EQUAL(card.errors, SD_ERRORS_REJECTED_Msk);
    FAR(VERDICT) = 0xEDu;
    EQUAL(sd_write_block(SD, &card, 1u, block), SD_ERROR_DATA);
    FAR(VERDICT) = 0xE5u;
    FAR(FAULTS) = STAYS_BUSY;
    EQUAL(sd_write_block(SD, &card, 1u, block), SD_ERROR_BUSY);
    EQUAL(sd_read_block(SD, &card, 3u, block), SD_ERROR_BUSY); /* it is busy still */
    FAR(FAULTS) = 0u;
    FAR(BUSY) = 10u; /* no longer than one may wait */
    EQUAL(FAR(PINS), NOT_SELECTED | INITIALISED);
    /* The source clock stands still. */
    FAR(STOPPED) = 1u;
    EQUAL(sd_read_block(SD, &card, 3u, block), SD_ERROR_NO_CLOCK);
    SD->DATA = 0xFFu; /* a byte that nobody takes away */
    EQUAL(sd_read_block(SD, &card, 3u, block), SD_ERROR_TIMEOUT);
    FAR(STOPPED) = 0u;
    IDLE(2000);
    EQUAL(sd_read_block(SD, &card, 3u, block), SD_OK);
    EQUAL(sd_take_errors(SD), 0u); /* no byte was lost */
}

static void by_byte(uint32_t kind)
{
    sd_card card;
    FAR(INSERTED) = 0u;
    FAR(INSERTED) = 1u;
    FAR(KIND) = kind;
    EQUAL(sd_open(SD, &card, 4000000u, 2000000u), SD_OK);
    EQUAL(card.is_addressed_by_block, false);
    EQUAL(FAR(BLOCK_LENGTH), SD_BLOCK_SIZE);
    EQUAL(sd_read_block(SD, &card, 0x007FFFFEu, block), SD_OK);
    EQUAL(FAR(WHERE), 0xFFFFFC00u);
    EQUAL(sd_read_block(SD, &card, 0x00800000u, block), SD_ERROR_RANGE);
    EQUAL(sd_read_blocks(SD, &card, 0x007FFFFFu, 2u, block), SD_ERROR_RANGE);
    EQUAL(sd_write_block(SD, &card, 0xFFFFFFFFu, block), SD_ERROR_RANGE);
    EQUAL(sd_write_block(SD, &card, 4u, block), SD_OK);
    EQUAL(FAR(WHERE), 4u * 512u);
}

static void changed(void)
{
    sd_card card;
    FAR(KIND) = 0u;
    EQUAL(sd_open(SD, &card, 4000000u, 2000000u), SD_OK);
    (void)sd_take_errors(SD);
    /* Another card: nothing is read or written before it is initialised. */
    FAR(INSERTED) = 0u;
    EQUAL(FAR(PINS) & ~INTERRUPT, NOT_SELECTED);
    EQUAL(sd_read_block(SD, &card, 0u, block), SD_ERROR_NO_CARD);
    FAR(INSERTED) = 1u;
    EQUAL(sd_read_block(SD, &card, 0u, block), SD_ERROR_NO_CARD);
    EQUAL(sd_take_errors(SD), SD_STATUS_CHANGED_Msk);
    EQUAL(sd_take_events(SD), SD_EVENTS_INSERTED_Msk | SD_EVENTS_REMOVED_Msk);
    EQUAL(sd_write_block(SD, &card, 0u, block), SD_ERROR_NO_CARD);
    EQUAL(sd_open(SD, &card, 4000000u, 2000000u), SD_OK);
    EQUAL(sd_check_crc(SD, &card, false), SD_OK);
    EQUAL(FAR(CRC_CHECKED), 0u);
    sd_enable_card_interrupt(SD, false);
    EQUAL(FAR(PINS), NOT_SELECTED | INITIALISED);
    FAR(INSERTED) = 0u;
    EQUAL(FAR(PINS), NOT_SELECTED);
    FAR(INSERTED) = 1u;
}

static void refusals(void)
{
    sd_card card;
    SD->TIMEOUT = short_times;
    FAR(FAULTS) = MUTE;
    EQUAL(sd_init(SD, &card, polls, tries), SD_ERROR_NO_RESPONSE);
    FAR(FAULTS) = BAD_ECHO;
    EQUAL(sd_init(SD, &card, polls, tries), SD_ERROR_REFUSED);
    FAR(FAULTS) = NEVER_READY;
    EQUAL(sd_init(SD, &card, polls, 5u), SD_ERROR_TIMEOUT);
    FAR(FAULTS) = 0u;
    EQUAL(sd_init(SD, &card, polls, 2u), SD_ERROR_TIMEOUT); /* it needs three */
    FAR(STOPPED) = 1u;
    EQUAL(sd_init(SD, &card, polls * 10u, tries), SD_ERROR_NO_CLOCK);
    FAR(STOPPED) = 0u;
    EQUAL(FAR(PINS), NOT_SELECTED);
    EQUAL(sd_init(SD, &card, polls, 3u), SD_OK);
    SD->DATA = 0xFFu;
    SD->DATA = 0xFFu;
    EQUAL(sd_take_errors(SD), SD_STATUS_LOST_Msk);
    EQUAL(sd_take_errors(SD), 0u);
}

/* Descriptions of cards: sizes in blocks. */
static void sizes(void)
{
    static uint8_t csd[SD_REGISTER_SIZE] = {0x00u, 0x26u, 0x00u, 0x32u, 0x5Fu, 0x59u,
                                            0x83u, 0xC8u, 0xADu, 0xDBu, 0xCFu, 0xFFu};
    EQUAL(sd_blocks(csd), (0xF22u + 1u) << 9); /* 1 GB: 3875 * 512 */
    csd[5] = 0x5Au;
    EQUAL(sd_blocks(csd), (0xF22u + 1u) << 10);
    csd[0] = 0x40u;
    csd[7] = 0xC0u;
    csd[8] = 0x1Du;
    csd[9] = 0x69u;
    EQUAL(sd_blocks(csd), 0x1D6Au << 10); /* 4 GB */
    csd[0] = 0x80u;
    EQUAL(sd_blocks(csd), 0u);
}

void test(void)
{
    checksums();
    no_card();
    opened();
    by_block();
    by_byte(1u);
    by_byte(2u);
    changed();
    refusals();
    sizes();
}
