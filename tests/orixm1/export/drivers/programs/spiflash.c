#include "drivers/spiflash.h"

#include "far.h"

static const uint32_t enough = 50u;

enum { WORK, REFUSE, AWAY, PEEK, BUSY, KIND, STATUS, RESET };
enum {
    WHERE,
    PROGRAMS,
    ERASES,
    PEEKED,
    CSN,
    WPN,
    PERIOD,
    ENABLED,
    READS,
    BUSY_LEFT,
    OPCODES,
    BOTH_STATUS,
    WRONG,
    STATE
};
enum { PARAMETERS = 8, CONTINUES = 1, LONG = 2 };

static uint32_t in_flash(uint32_t address)
{
    FAR(PEEK) = address;
    return FAR(PEEKED);
}

static uint32_t at_first(uint32_t address)
{
    return ((address ^ (address >> 8) ^ (address >> 16) ^ (address >> 24)) & 0xFFu) ^ 0x5Cu;
}

static void reading(void)
{
    uint8_t got[16];
    uint8_t id[3] = {0u, 0u, 0u};
    uint32_t reads;
    uint32_t from;
    uint32_t size;
    uint32_t i;
    EQUAL(spiflash_init(SPIFLASH, 50000000u, 6000000u), SPIFLASH_OK);
    EQUAL(SPIFLASH->DIV, 4u);
    EQUAL(spiflash_init(SPIFLASH, 512u, 1u), SPIFLASH_OK);
    EQUAL(SPIFLASH->DIV, 255u);
    EQUAL(spiflash_init(SPIFLASH, 513u, 1u), SPIFLASH_ERROR_RANGE);
    EQUAL(spiflash_init(SPIFLASH, 513u, 0u), SPIFLASH_ERROR_RANGE);
    EQUAL(spiflash_init(SPIFLASH, 0u, 1u), SPIFLASH_ERROR_RANGE);
    EQUAL(SPIFLASH->DIV, 255u);
    EQUAL(spiflash_init(SPIFLASH, 50000000u, 25000000u), SPIFLASH_OK);
    spiflash_read_id(SPIFLASH, id);
    EQUAL(id[0], 0xD1u);
    EQUAL(id[1], 0xD2u);
    EQUAL(id[2], 0xD3u);
    EQUAL(FAR(PERIOD), 2u);
    EQUAL(FAR(CSN), 1u);
    for (from = 0x1234u; from < 0x1238u; ++from) {
        for (size = 0u; size < 10u; ++size) {
            for (i = 0u; i < 16u; ++i)
                got[i] = 0xEEu;
            reads = FAR(READS);
            EQUAL(spiflash_read(SPIFLASH, from, &got[2], size), SPIFLASH_OK);
            EQUAL(FAR(READS) - reads, size == 0u ? 0u : (from + size + 3u) / 4u - from / 4u);
            for (i = 0u; i < 16u; ++i)
                EQUAL(got[i], i < 2u || i >= size + 2u ? 0xEEu : at_first(from + i - 2u));
        }
    }
    EQUAL(spiflash_read(SPIFLASH, SPIFLASH_SIZE_MAX - 1u, got, 1u), SPIFLASH_OK);
    EQUAL(got[0], at_first(0xFFFFFFu));
    EQUAL(spiflash_read(SPIFLASH, SPIFLASH_SIZE_MAX - 1u, got, 2u), SPIFLASH_ERROR_RANGE);
    EQUAL(spiflash_read(SPIFLASH, SPIFLASH_SIZE_MAX + 1u, got, 0u), SPIFLASH_ERROR_RANGE);
    EQUAL(spiflash_read(SPIFLASH, 4u, got, 0xFFFFFFFFu), SPIFLASH_ERROR_RANGE);
}

static void writing(void)
{
    uint8_t data[300];
    uint32_t i;
    for (i = 0u; i < 300u; ++i)
        data[i] = (uint8_t)((i * 7u + 3u) & 0xFFu);
    FAR(WORK) = 4u;
    EQUAL(spiflash_erase_sector(SPIFLASH, 0x3000u, enough), SPIFLASH_OK);
    EQUAL(FAR(ERASES), 1u);
    EQUAL(FAR(BUSY_LEFT), 0u);
    EQUAL(FAR(WHERE), 0x3000u);
    EQUAL(in_flash(0x2FFFu), at_first(0x2FFFu));
    EQUAL(in_flash(0x3000u), 0xFFu);
    EQUAL(in_flash(0x3FFFu), 0xFFu);
    EQUAL(in_flash(0x4000u), at_first(0x4000u));
    EQUAL(spiflash_erase_sector(SPIFLASH, 0x3001u, enough), SPIFLASH_ERROR_RANGE);
    EQUAL(spiflash_erase_sector(SPIFLASH, SPIFLASH_SIZE_MAX, enough), SPIFLASH_ERROR_RANGE);
    EQUAL(spiflash_program_page(SPIFLASH, 0x3010u, data, 240u, enough), SPIFLASH_OK);
    EQUAL(FAR(PROGRAMS), 1u);
    EQUAL(in_flash(0x300Fu), 0xFFu);
    EQUAL(in_flash(0x3010u), data[0]);
    EQUAL(in_flash(0x30FFu), data[239]);
    EQUAL(in_flash(0x3100u), 0xFFu);
    EQUAL(spiflash_program_page(SPIFLASH, 0x3010u, data, 241u, enough), SPIFLASH_ERROR_RANGE);
    EQUAL(spiflash_program_page(SPIFLASH, 0x3000u, data, 0u, enough), SPIFLASH_ERROR_RANGE);
    EQUAL(spiflash_program_page(SPIFLASH, 0x3000u, data, 257u, enough), SPIFLASH_ERROR_RANGE);
    EQUAL(spiflash_program_page(SPIFLASH, SPIFLASH_SIZE_MAX, data, 1u, enough),
          SPIFLASH_ERROR_RANGE);
    EQUAL(FAR(PROGRAMS), 1u);
    EQUAL(spiflash_program(SPIFLASH, 0x31F0u, data, 300u, enough), SPIFLASH_OK);
    EQUAL(FAR(PROGRAMS), 4u); /* 16, 256 and 28 bytes */
    for (i = 0u; i < 300u; ++i)
        EQUAL(in_flash(0x31F0u + i), data[i]);
    EQUAL(in_flash(0x31F0u + 300u), 0xFFu);
    EQUAL(spiflash_program(SPIFLASH, 0x31F0u, data, 0u, enough), SPIFLASH_OK);
    EQUAL(spiflash_program(SPIFLASH, SPIFLASH_SIZE_MAX - 4u, data, 5u, enough),
          SPIFLASH_ERROR_RANGE);
    EQUAL(FAR(PROGRAMS), 4u);
    {
        uint8_t got[4];
        EQUAL(spiflash_read(SPIFLASH, 0x31F2u, got, 4u), SPIFLASH_OK);
        EQUAL(got[0], data[2]);
        EQUAL(got[3], data[5]);
    }
}

static void failures(void)
{
    static const uint8_t zero[1] = {0u};
    EQUAL(FAR(WPN), 0u); /* after reset */
    spiflash_protect(SPIFLASH, false);
    EQUAL(FAR(WPN), 1u);
    spiflash_protect(SPIFLASH, true);
    EQUAL(FAR(WPN), 0u);
    EQUAL(spiflash_write_enable(SPIFLASH), SPIFLASH_OK);
    EQUAL(FAR(ENABLED), 1u);
    EQUAL(spiflash_status(SPIFLASH), SPIFLASH_FLAG_WRITABLE);
    spiflash_write_disable(SPIFLASH);
    EQUAL(FAR(ENABLED), 0u);
    EQUAL(spiflash_status(SPIFLASH), 0u);
    FAR(REFUSE) = 1u;
    EQUAL(spiflash_erase_sector(SPIFLASH, 0x5000u, enough), SPIFLASH_ERROR_PROTECTED);
    EQUAL(spiflash_program(SPIFLASH, 0x5000u, zero, 1u, enough), SPIFLASH_ERROR_PROTECTED);
    EQUAL(in_flash(0x5000u), at_first(0x5000u));
    FAR(REFUSE) = 0u;
    FAR(WORK) = 1000u;
    EQUAL(spiflash_erase_sector(SPIFLASH, 0x5000u, enough), SPIFLASH_ERROR_TIMEOUT);
    EQUAL(spiflash_status(SPIFLASH) & SPIFLASH_FLAG_WORKING, SPIFLASH_FLAG_WORKING);
    EQUAL(spiflash_erase_sector(SPIFLASH, 0x6000u, enough), SPIFLASH_ERROR_BUSY);
    EQUAL(spiflash_program_page(SPIFLASH, 0x6000u, zero, 1u, enough), SPIFLASH_ERROR_BUSY);
    EQUAL(spiflash_wait(SPIFLASH, 0u), SPIFLASH_ERROR_TIMEOUT);
    FAR(BUSY) = 2u;
    EQUAL(spiflash_wait(SPIFLASH, 2u), SPIFLASH_ERROR_TIMEOUT);
    EQUAL(spiflash_wait(SPIFLASH, 1u), SPIFLASH_OK);
    FAR(WORK) = 0u;
    FAR(AWAY) = 3u; /* all ones */
    EQUAL(spiflash_erase_sector(SPIFLASH, 0x6000u, enough), SPIFLASH_ERROR_BUSY);
    EQUAL(spiflash_write_enable(SPIFLASH), SPIFLASH_ERROR_PROTECTED);
    FAR(AWAY) = 1u; /* all zeros */
    EQUAL(spiflash_erase_sector(SPIFLASH, 0x6000u, enough), SPIFLASH_ERROR_PROTECTED);
    FAR(AWAY) = 0u;
    EQUAL(FAR(ERASES), 2u);
    EQUAL(FAR(CSN), 1u);
}

/* What is read from an address on, over the end of some words. */
static void read_all(uint32_t from, uint32_t high)
{
    uint8_t got[23];
    uint32_t i;
    EQUAL(spiflash_read(SPIFLASH, from, got, 23u), SPIFLASH_OK);
    for (i = 0u; i < 23u; ++i)
        EQUAL(got[i], at_first(high + from + i));
}

/* The system is reset while the flash answers addresses alone, of four bytes. */
static void resets(void)
{
    spiflash_chip chip;
    uint8_t id[3] = {0u, 0u, 0u};
    EQUAL(spiflash_detect(SPIFLASH, &chip), SPIFLASH_OK);
    EQUAL(spiflash_set_mode(SPIFLASH, &chip, SPIFLASH_MODE_QUAD_IO, enough), SPIFLASH_OK);
    spiflash_set_bank(SPIFLASH, 0x12u);
    EQUAL(spiflash_set_continuous(SPIFLASH, true), SPIFLASH_OK);
    read_all(0x10047u, 0x12000000u);
    EQUAL(FAR(STATE), CONTINUES | LONG);
    FAR(RESET) = 1u;
    EQUAL(FAR(STATE), CONTINUES | LONG);
    EQUAL(spiflash_init(SPIFLASH, 50000000u, 25000000u), SPIFLASH_OK);
    spiflash_read_id(SPIFLASH, id);
    EQUAL(id[0], 0xD1u);
    EQUAL(id[2], 0xD3u);
    EQUAL(FAR(STATE), 0u);
    read_all(0x10047u, 0u);
    /* The window alone does the same. */
    EQUAL(spiflash_set_mode(SPIFLASH, &chip, SPIFLASH_MODE_DUAL_IO, enough), SPIFLASH_OK);
    EQUAL(spiflash_set_continuous(SPIFLASH, true), SPIFLASH_OK);
    read_all(0x10048u, 0u);
    EQUAL(FAR(STATE), CONTINUES);
    FAR(RESET) = 1u;
    read_all(0x10049u, 0u);
    EQUAL(FAR(STATE), 0u);
    EQUAL(FAR(WRONG), 0u);
}

static void modes(void)
{
    spiflash_chip chip;
    uint32_t opcodes;
    int mode;
    FAR(AWAY) = 3u;
    EQUAL(spiflash_detect(SPIFLASH, &chip), SPIFLASH_ERROR_ABSENT);
    FAR(AWAY) = 1u;
    EQUAL(spiflash_detect(SPIFLASH, &chip), SPIFLASH_ERROR_ABSENT);
    FAR(AWAY) = 0u;
    /* Nothing but its identification. */
    FAR(KIND) = 6u;
    EQUAL(spiflash_detect(SPIFLASH, &chip), SPIFLASH_OK);
    EQUAL(chip.id[2], 0xD3u);
    EQUAL(chip.size, 0u);
    EQUAL(spiflash_fastest(&chip), SPIFLASH_MODE_FAST);
    EQUAL(spiflash_set_mode(SPIFLASH, &chip, SPIFLASH_MODE_DUAL_OUT, enough), SPIFLASH_ERROR_RANGE);
    EQUAL(spiflash_set_mode(SPIFLASH, &chip, SPIFLASH_MODES, enough), SPIFLASH_ERROR_RANGE);
    /* Four lanes that cannot be switched on in a known way. */
    FAR(KIND) = PARAMETERS | 7u;
    EQUAL(spiflash_detect(SPIFLASH, &chip), SPIFLASH_OK);
    EQUAL(spiflash_fastest(&chip), SPIFLASH_MODE_DUAL_IO);
    /* In the first status register, and in the second one, written with the first. */
    FAR(KIND) = PARAMETERS | 2u;
    EQUAL(spiflash_detect(SPIFLASH, &chip), SPIFLASH_OK);
    EQUAL(spiflash_set_mode(SPIFLASH, &chip, SPIFLASH_MODE_QUAD_IO, enough), SPIFLASH_OK);
    EQUAL(FAR(BOTH_STATUS), 0x4000u);
    read_all(0x777u, 0u);
    EQUAL(spiflash_set_mode(SPIFLASH, &chip, SPIFLASH_MODE_FAST, enough), SPIFLASH_OK);
    FAR(KIND) = PARAMETERS | 5u;
    EQUAL(spiflash_detect(SPIFLASH, &chip), SPIFLASH_OK);
    FAR(STATUS) = 0x20u;
    EQUAL(spiflash_set_mode(SPIFLASH, &chip, SPIFLASH_MODE_QUAD_OUT, enough), SPIFLASH_OK);
    EQUAL(FAR(BOTH_STATUS), 0x2002u);
    read_all(0x777u, 0u);
    /* Alone in the second one; refused first. */
    EQUAL(spiflash_set_mode(SPIFLASH, &chip, SPIFLASH_MODE_SINGLE, enough), SPIFLASH_OK);
    FAR(KIND) = PARAMETERS | 6u;
    EQUAL(spiflash_detect(SPIFLASH, &chip), SPIFLASH_OK);
    EQUAL(chip.id[0], 0xD1u);
    EQUAL(chip.size, 0x20000000u);
    EQUAL(spiflash_fastest(&chip), SPIFLASH_MODE_QUAD_IO);
    FAR(REFUSE) = 1u;
    EQUAL(spiflash_set_mode(SPIFLASH, &chip, SPIFLASH_MODE_QUAD_IO, enough),
          SPIFLASH_ERROR_PROTECTED);
    FAR(REFUSE) = 0u;
    read_all(0x333u, 0u);
    FAR(WORK) = 3u;
    for (mode = 0; mode < (int)SPIFLASH_MODES; ++mode) {
        EQUAL(spiflash_set_mode(SPIFLASH, &chip, (spiflash_mode)mode, enough), SPIFLASH_OK);
        EQUAL(FAR(BOTH_STATUS), mode < (int)SPIFLASH_MODE_QUAD_OUT ? 0u : 2u);
        opcodes = FAR(OPCODES);
        read_all(0x1001u + 0x100u * (uint32_t)mode, 0u);
        EQUAL(FAR(OPCODES) - opcodes, 1u);
        read_all(0x20u, 0u);
        EQUAL(FAR(OPCODES) - opcodes, 2u);
    }
    EQUAL(FAR(BUSY_LEFT), 0u);
    EQUAL(spiflash_set_continuous(SPIFLASH, true), SPIFLASH_OK);
    read_all(0x40u, 0u);
    opcodes = FAR(OPCODES);
    read_all(0x9000u, 0u);
    read_all(0x41u, 0u);
    EQUAL(FAR(OPCODES), opcodes);
    EQUAL(FAR(STATE), CONTINUES);
    EQUAL(spiflash_status(SPIFLASH), 0u); /* other commands end them */
    EQUAL(FAR(STATE), 0u);
    read_all(0x42u, 0u);
    /* Further up. */
    spiflash_set_bank(SPIFLASH, 0x12u);
    EQUAL(FAR(STATE), LONG);
    read_all(0x43u, 0x12000000u);
    EQUAL(spiflash_erase_sector(SPIFLASH, 0x7000u, enough), SPIFLASH_OK);
    EQUAL(FAR(WHERE), 0x12007000u);
    EQUAL(spiflash_program(SPIFLASH, 0x7004u, &chip, 4u, enough), SPIFLASH_OK);
    EQUAL(FAR(WHERE), 0x12007004u);
    spiflash_set_bank(SPIFLASH, 0x34u);
    read_all(0x44u, 0x34000000u);
    spiflash_set_bank(SPIFLASH, 0u);
    EQUAL(FAR(STATE), 0u);
    read_all(0x45u, 0u);
    EQUAL(spiflash_set_continuous(SPIFLASH, false), SPIFLASH_OK);
    EQUAL(spiflash_set_mode(SPIFLASH, &chip, SPIFLASH_MODE_FAST, enough), SPIFLASH_OK);
    EQUAL(spiflash_set_continuous(SPIFLASH, true), SPIFLASH_ERROR_RANGE);
    EQUAL(spiflash_set_continuous(SPIFLASH, false), SPIFLASH_OK);
    read_all(0x46u, 0u);
    resets();
    /* All of it, last. */
    EQUAL(spiflash_erase_block(SPIFLASH, 0x8000u, enough), SPIFLASH_ERROR_RANGE);
    EQUAL(in_flash(0u), at_first(0u));
    EQUAL(spiflash_erase_block(SPIFLASH, 0x30000u, enough), SPIFLASH_OK);
    EQUAL(FAR(WHERE), 0x30000u);
    EQUAL(in_flash(0u), 0xFFu);
    EQUAL(spiflash_program(SPIFLASH, 0u, &chip, 4u, enough), SPIFLASH_OK);
    EQUAL(in_flash(0u), 0xD1u);
    EQUAL(spiflash_erase_chip(SPIFLASH, enough), SPIFLASH_OK);
    EQUAL(in_flash(0u), 0xFFu);
    EQUAL(FAR(WRONG), 0u);
    EQUAL(SPIFLASH->STATUS, 0u);
}

/* A command that waits for ever does not keep the driver. */
static void leftovers(void)
{
    SPIFLASH->POLL = 0xFFFFu;
    SPIFLASH->COMMAND = 5u | SPIFLASH_COMMAND_POLL_Msk |
                        SPIFLASH_COMMAND_ADLANES_NONE << SPIFLASH_COMMAND_ADLANES_Pos;
    EQUAL(SPIFLASH->STATUS, SPIFLASH_STATUS_BUSY_Msk);
    EQUAL(spiflash_init(SPIFLASH, 50000000u, 25000000u), SPIFLASH_OK);
    EQUAL(SPIFLASH->STATUS, 0u);
    EQUAL(SPIFLASH->DIV, 0u);
}

void test(void)
{
    reading();
    writing();
    failures();
    modes();
    leftovers();
}
