#include "drivers/sd.h"

#include "far.h"

static const uint32_t polls = 200u;
static const uint32_t tries = 20u;

enum { KIND, INSERTED, FAULTS, VERDICT, STOPPED, BUSY };
enum { CRC_ERRORS, WHERE, COMMANDS, PINS, BLOCK_LENGTH, CRC_CHECKED, MEMORY = 4096 };
enum { MUTE = 1, BAD_ECHO = 2, BAD_CRC = 4, BAD_TOKEN = 8, NEVER_READY = 16, STAYS_BUSY = 32 };
enum { NOT_SELECTED = 1, INITIALISED = 2, INTERRUPT = 4 };

static uint8_t block[SD_BLOCK_SIZE];

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

static uint32_t differences(uint32_t number, uint32_t factor)
{
    uint32_t i;
    uint32_t count = 0u;
    for (i = 0u; i < SD_BLOCK_SIZE; ++i) {
        const uint32_t n = number * SD_BLOCK_SIZE + i;
        const uint32_t expected = factor == 0u ? (n ^ (n >> 8)) & 0xFFu : (i * factor) & 0xFFu;
        if (block[i] != expected)
            ++count;
    }
    return count;
}

static void no_card(void)
{
    sd_card card;
    EQUAL(sd_is_present(SD), false);
    EQUAL(sd_init(SD, &card, polls, tries), SD_ERROR_NO_CARD);
    EQUAL(sd_read_block(SD, &card, 0u, block), SD_ERROR_NO_CARD);
    EQUAL(sd_write_block(SD, &card, 0u, block), SD_ERROR_NO_CARD);
    EQUAL(sd_check_crc(SD, &card, true), SD_ERROR_NO_CARD);
    EQUAL(FAR(COMMANDS), 0u);
    EQUAL(FAR(PINS), NOT_SELECTED);
    sd_enable_card_interrupt(SD, true);
    FAR(INSERTED) = 1u;
    EQUAL(FAR(PINS), NOT_SELECTED | INTERRUPT);
    EQUAL(sd_is_present(SD), true);
    EQUAL(sd_take_errors(SD), SD_STATUS_CHANGED_Msk);
    EQUAL(FAR(PINS), NOT_SELECTED);
    EQUAL(sd_read_block(SD, &card, 0u, block), SD_ERROR_NO_CARD); /* not initialised */
    EQUAL(FAR(COMMANDS), 0u);
}

static void by_block(void)
{
    sd_card card;
    uint32_t i;
    FAR(KIND) = 0u;
    EQUAL(sd_init(SD, &card, polls, tries), SD_OK);
    EQUAL(card.is_addressed_by_block, true);
    EQUAL(FAR(PINS), NOT_SELECTED | INITIALISED);
    EQUAL(FAR(CRC_ERRORS), 0u);
    EQUAL(sd_read_block(SD, &card, 0x00900003u, block), SD_OK);
    EQUAL(FAR(WHERE), 0x00900003u);
    EQUAL(differences(3u, 0u), 0u);
    for (i = 0u; i < SD_BLOCK_SIZE; ++i)
        block[i] = (uint8_t)((i * 13u) & 0xFFu);
    EQUAL(sd_check_crc(SD, &card, true), SD_OK);
    EQUAL(FAR(CRC_CHECKED), 1u);
    EQUAL(sd_write_block(SD, &card, 5u, block), SD_OK);
    EQUAL(FAR(WHERE), 5u);
    EQUAL(FAR(MEMORY + 5u * 512u + 511u), (511u * 13u) & 0xFFu);
    EQUAL(FAR(MEMORY + 5u * 512u), 0u);
    EQUAL(FAR(MEMORY + 6u * 512u), 0x0Cu);
    block[7] = 1u;
    EQUAL(sd_read_block(SD, &card, 5u, block), SD_OK);
    EQUAL(differences(5u, 13u), 0u);
    EQUAL(FAR(CRC_ERRORS), 0u);
    EQUAL(FAR(PINS), NOT_SELECTED | INITIALISED);
    EQUAL(sd_take_errors(SD), 0u);
    /* Faults. */
    FAR(FAULTS) = BAD_CRC;
    EQUAL(sd_read_block(SD, &card, 1u, block), SD_ERROR_CHECKSUM);
    FAR(FAULTS) = BAD_TOKEN;
    EQUAL(sd_read_block(SD, &card, 1u, block), SD_ERROR_DATA);
    FAR(FAULTS) = MUTE;
    EQUAL(sd_read_block(SD, &card, 1u, block), SD_ERROR_TIMEOUT);
    EQUAL(sd_write_block(SD, &card, 1u, block), SD_ERROR_TIMEOUT);
    EQUAL(sd_check_crc(SD, &card, true), SD_ERROR_TIMEOUT);
    FAR(FAULTS) = 0u;
    FAR(VERDICT) = 0xEBu;
    EQUAL(sd_write_block(SD, &card, 1u, block), SD_ERROR_CHECKSUM);
    FAR(VERDICT) = 0xEDu;
    EQUAL(sd_write_block(SD, &card, 1u, block), SD_ERROR_DATA);
    EQUAL(FAR(MEMORY + 512u + 9u), 11u); /* not written */
    FAR(VERDICT) = 0xE5u;
    FAR(FAULTS) = STAYS_BUSY;
    EQUAL(sd_write_block(SD, &card, 1u, block), SD_ERROR_TIMEOUT);
    EQUAL(sd_read_block(SD, &card, 3u, block), SD_ERROR_TIMEOUT); /* it is busy still */
    FAR(FAULTS) = 0u;
    FAR(BUSY) = 10u; /* no longer than one may wait */
    EQUAL(FAR(PINS), NOT_SELECTED | INITIALISED);
    /* The source clock stands still. */
    FAR(STOPPED) = 1u;
    EQUAL(sd_read_block(SD, &card, 3u, block), SD_ERROR_TIMEOUT);
    FAR(STOPPED) = 0u;
    EQUAL(sd_read_block(SD, &card, 3u, block), SD_OK);
    EQUAL(differences(3u, 0u), 0u);
    EQUAL(sd_take_errors(SD), 0u); /* no byte was lost */
}

static void by_byte(uint32_t kind)
{
    sd_card card;
    FAR(INSERTED) = 0u;
    FAR(INSERTED) = 1u;
    FAR(KIND) = kind;
    EQUAL(sd_init(SD, &card, polls, tries), SD_OK);
    EQUAL(card.is_addressed_by_block, false);
    EQUAL(FAR(BLOCK_LENGTH), SD_BLOCK_SIZE);
    EQUAL(sd_read_block(SD, &card, 0x007FFFFEu, block), SD_OK);
    EQUAL(FAR(WHERE), 0xFFFFFC00u);
    EQUAL(differences(6u, 0u), 0u);
    EQUAL(sd_read_block(SD, &card, 0x00800000u, block), SD_ERROR_RANGE);
    EQUAL(sd_write_block(SD, &card, 0xFFFFFFFFu, block), SD_ERROR_RANGE);
    EQUAL(sd_write_block(SD, &card, 4u, block), SD_OK);
    EQUAL(FAR(WHERE), 4u * 512u);
    EQUAL(FAR(MEMORY + 4u * 512u + 1u), 1u ^ 0x0Cu);
}

static void changed(void)
{
    sd_card card;
    FAR(KIND) = 0u;
    EQUAL(sd_init(SD, &card, polls, tries), SD_OK);
    /* Another card: nothing is read or written before it is initialised. */
    FAR(INSERTED) = 0u;
    EQUAL(FAR(PINS), NOT_SELECTED | INTERRUPT);
    EQUAL(sd_read_block(SD, &card, 0u, block), SD_ERROR_NO_CARD);
    FAR(INSERTED) = 1u;
    EQUAL(sd_read_block(SD, &card, 0u, block), SD_ERROR_NO_CARD);
    EQUAL(sd_take_errors(SD), SD_STATUS_CHANGED_Msk);
    EQUAL(sd_write_block(SD, &card, 0u, block), SD_ERROR_NO_CARD);
    EQUAL(sd_init(SD, &card, polls, tries), SD_OK);
    EQUAL(sd_check_crc(SD, &card, false), SD_OK);
    sd_enable_card_interrupt(SD, false);
    EQUAL(FAR(PINS), NOT_SELECTED | INITIALISED);
    FAR(INSERTED) = 0u;
    EQUAL(FAR(PINS), NOT_SELECTED);
    FAR(INSERTED) = 1u;
}

static void refusals(void)
{
    sd_card card;
    FAR(FAULTS) = MUTE;
    EQUAL(sd_init(SD, &card, polls, tries), SD_ERROR_TIMEOUT);
    FAR(FAULTS) = BAD_ECHO;
    EQUAL(sd_init(SD, &card, polls, tries), SD_ERROR_REFUSED);
    FAR(FAULTS) = NEVER_READY;
    EQUAL(sd_init(SD, &card, polls, 5u), SD_ERROR_TIMEOUT);
    FAR(FAULTS) = 0u;
    EQUAL(sd_init(SD, &card, polls, 2u), SD_ERROR_TIMEOUT); /* it needs three */
    FAR(STOPPED) = 1u;
    EQUAL(sd_init(SD, &card, polls, tries), SD_ERROR_TIMEOUT);
    FAR(STOPPED) = 0u;
    EQUAL(FAR(PINS), NOT_SELECTED);
    EQUAL(sd_init(SD, &card, polls, 3u), SD_OK);
    SD->DATA = 0xFFu;
    SD->DATA = 0xFFu;
    EQUAL(sd_take_errors(SD), SD_STATUS_LOST_Msk);
    EQUAL(sd_take_errors(SD), 0u);
}

void test(void)
{
    checksums();
    no_card();
    by_block();
    by_byte(1u);
    by_byte(2u);
    changed();
    refusals();
}
