#include "spiflash.h"

static const uint32_t command_write_status = 0x01u;
static const uint32_t command_program = 0x02u;
static const uint32_t command_write_disable = 0x04u;
static const uint32_t command_status = 0x05u;
static const uint32_t command_write_enable = 0x06u;
static const uint32_t command_erase_sector = 0x20u;
static const uint32_t command_write_status_2 = 0x31u;
static const uint32_t command_status_2 = 0x35u;
static const uint32_t command_parameters = 0x5Au;
static const uint32_t command_id = 0x9Fu;
static const uint32_t command_long_addresses = 0xB7u;
static const uint32_t command_erase_chip = 0xC7u;
static const uint32_t command_erase_block = 0xD8u;
static const uint32_t command_short_addresses = 0xE9u;

static const uint32_t no_address = SPIFLASH_COMMAND_ADLANES_NONE << SPIFLASH_COMMAND_ADLANES_Pos;
static const uint32_t no_data = SPIFLASH_COMMAND_DALANES_NONE << SPIFLASH_COMMAND_DALANES_Pos;

/* What stands in READ.MODE: one byte that ends a continuous read, and one that all kinds of flashes
 * take for going on with it. */
static const uint32_t mode_end = 0xFFu;
static const uint32_t mode_continuous = 0xA5u;

static bool is_running(const SPIFLASH_Type *flash)
{
    return (flash->STATUS & SPIFLASH_STATUS_BUSY_Msk) != 0u;
}

/* Sends a command that needs no data from here. */
static void run(SPIFLASH_Type *flash, uint32_t command)
{
    flash->COMMAND = command;
    while (is_running(flash)) {
    }
}

/* Sends a command and takes up to four bytes, the first one in bits 7 to 0. */
static uint32_t ask(SPIFLASH_Type *flash, uint32_t command, uint32_t size)
{
    flash->LENGTH = size;
    run(flash, command);
    return flash->FIFO;
}

/* Says where a command acts, and what it has to have for that. */
static uint32_t place(SPIFLASH_Type *flash, uint32_t address)
{
    flash->ADDRESS = (flash->UPPER << 24) | address;
    return flash->READ & SPIFLASH_READ_ADDR4_Msk;
}

static bool is_within(uint32_t address, size_t size)
{
    return address <= SPIFLASH_SIZE_MAX && size <= SPIFLASH_SIZE_MAX - address;
}

/* What a command that changes the flash needs. */
static spiflash_result prepare(SPIFLASH_Type *flash)
{
    if ((spiflash_status(flash) & SPIFLASH_FLAG_WORKING) != 0u)
        return SPIFLASH_ERROR_BUSY;
    return spiflash_write_enable(flash);
}

spiflash_result spiflash_init(SPIFLASH_Type *flash, uint32_t clock_hz, uint32_t sclk_hz)
{
    uint32_t period;
    uint32_t half;
    if (clock_hz == 0u || sclk_hz == 0u)
        return SPIFLASH_ERROR_RANGE;
    period = clock_hz / sclk_hz + (clock_hz % sclk_hz != 0u ? 1u : 0u);
    half = period / 2u + period % 2u;
    if (half - 1u > (SPIFLASH_DIV_CYCLES_Msk >> SPIFLASH_DIV_CYCLES_Pos))
        return SPIFLASH_ERROR_RANGE;
    flash->STATUS = SPIFLASH_STATUS_ABORT_Msk;
    while (is_running(flash)) {
    }
    flash->SELECT = 0u;
    flash->DIV = (half - 1u) << SPIFLASH_DIV_CYCLES_Pos;
    return SPIFLASH_OK;
}

void spiflash_protect(SPIFLASH_Type *flash, bool is_protected)
{
    flash->PROTECT = is_protected ? SPIFLASH_PROTECT_WP_Msk : 0u;
}

spiflash_result spiflash_read(const SPIFLASH_Type *flash, uint32_t address, void *data, size_t size)
{
    /* The window lies right below the registers. Each access to it fetches a whole word. */
    const volatile uint32_t *window =
        (const volatile uint32_t *)((uintptr_t)flash - SPIFLASH_SIZE_MAX);
    uint8_t *bytes = (uint8_t *)data;
    size_t taken = 0u;
    if (!is_within(address, size))
        return SPIFLASH_ERROR_RANGE;
    while (taken < size) {
        const uint32_t word =
            window[address / 4u]; /* the byte at the lowest address in bits 7 to 0 */
        do {
            bytes[taken++] = (uint8_t)((word >> (8u * (address % 4u))) & 0xFFu);
            ++address;
        } while (taken < size && address % 4u != 0u);
    }
    return SPIFLASH_OK;
}

void spiflash_read_id(SPIFLASH_Type *flash, uint8_t id[3])
{
    const uint32_t bytes = ask(flash, command_id | no_address, 3u);
    id[0] = (uint8_t)(bytes & 0xFFu);
    id[1] = (uint8_t)((bytes >> 8) & 0xFFu);
    id[2] = (uint8_t)((bytes >> 16) & 0xFFu);
}

uint8_t spiflash_status(SPIFLASH_Type *flash)
{
    return (uint8_t)(ask(flash, command_status | no_address, 1u) & 0xFFu);
}

spiflash_result spiflash_write_enable(SPIFLASH_Type *flash)
{
    uint8_t status;
    run(flash, command_write_enable | no_address | no_data);
    status = spiflash_status(flash);
    /* Without a flash the line reads as all ones or all zeros. */
    return (status & (SPIFLASH_FLAG_WORKING | SPIFLASH_FLAG_WRITABLE)) == SPIFLASH_FLAG_WRITABLE
               ? SPIFLASH_OK
               : SPIFLASH_ERROR_PROTECTED;
}

void spiflash_write_disable(SPIFLASH_Type *flash)
{
    run(flash, command_write_disable | no_address | no_data);
}

spiflash_result spiflash_wait(SPIFLASH_Type *flash, uint32_t polls)
{
    do {
        if ((spiflash_status(flash) & SPIFLASH_FLAG_WORKING) == 0u)
            return SPIFLASH_OK;
    } while (polls-- > 1u);
    return SPIFLASH_ERROR_TIMEOUT;
}

static spiflash_result erase(SPIFLASH_Type *flash, uint32_t command, uint32_t address,
                             uint32_t size, uint32_t polls)
{
    spiflash_result result;
    if (!is_within(address, size) || address % size != 0u)
        return SPIFLASH_ERROR_RANGE;
    result = prepare(flash);
    if (result != SPIFLASH_OK)
        return result;
    run(flash, command | no_data | place(flash, address));
    return spiflash_wait(flash, polls);
}

spiflash_result spiflash_erase_sector(SPIFLASH_Type *flash, uint32_t address, uint32_t polls)
{
    return erase(flash, command_erase_sector, address, SPIFLASH_SECTOR_SIZE, polls);
}

spiflash_result spiflash_erase_block(SPIFLASH_Type *flash, uint32_t address, uint32_t polls)
{
    return erase(flash, command_erase_block, address, SPIFLASH_BLOCK_SIZE, polls);
}

spiflash_result spiflash_erase_chip(SPIFLASH_Type *flash, uint32_t polls)
{
    const spiflash_result result = prepare(flash);
    if (result != SPIFLASH_OK)
        return result;
    run(flash, command_erase_chip | no_address | no_data);
    return spiflash_wait(flash, polls);
}

/* Sends a command with data, as there is room for them. */
static void send(SPIFLASH_Type *flash, uint32_t command, const uint8_t *bytes, size_t size)
{
    size_t i;
    flash->LENGTH = (uint32_t)size;
    flash->COMMAND = command | SPIFLASH_COMMAND_WRITE_Msk;
    for (i = 0u; i < size;) {
        uint32_t word = 0u;
        uint32_t shift;
        uint32_t status;
        for (shift = 0u; shift < 32u && i < size; shift += 8u)
            word |= (uint32_t)bytes[i++] << shift;
        do {
            status = flash->STATUS;
        } while ((status & SPIFLASH_STATUS_LEVEL_Msk) >> SPIFLASH_STATUS_LEVEL_Pos >=
                     SPIFLASH_STATUS_LEVEL_FULL &&
                 (status & SPIFLASH_STATUS_BUSY_Msk) != 0u);
        flash->FIFO = word;
    }
    while (is_running(flash)) {
    }
}

spiflash_result spiflash_program_page(SPIFLASH_Type *flash, uint32_t address, const void *data,
                                      size_t size, uint32_t polls)
{
    const uint8_t *bytes = (const uint8_t *)data;
    spiflash_result result;
    if (!is_within(address, size) || size == 0u ||
        size > SPIFLASH_PAGE_SIZE - address % SPIFLASH_PAGE_SIZE)
        return SPIFLASH_ERROR_RANGE;
    result = prepare(flash);
    if (result != SPIFLASH_OK)
        return result;
    send(flash, command_program | place(flash, address), bytes, size);
    return spiflash_wait(flash, polls);
}

spiflash_result spiflash_program(SPIFLASH_Type *flash, uint32_t address, const void *data,
                                 size_t size, uint32_t polls)
{
    const uint8_t *bytes = (const uint8_t *)data;
    if (!is_within(address, size))
        return SPIFLASH_ERROR_RANGE;
    while (size > 0u) {
        const size_t room = SPIFLASH_PAGE_SIZE - address % SPIFLASH_PAGE_SIZE;
        const size_t part = size < room ? size : room;
        const spiflash_result result = spiflash_program_page(flash, address, bytes, part, polls);
        if (result != SPIFLASH_OK)
            return result;
        address += (uint32_t)part;
        bytes += part;
        size -= part;
    }
    return SPIFLASH_OK;
}

/* ---- what the flash says of itself */

/* A word of the flash's parameters. */
static uint32_t parameter(SPIFLASH_Type *flash, uint32_t address)
{
    flash->ADDRESS = address;
    return ask(flash, command_parameters | (8u << SPIFLASH_COMMAND_DUMMY_Pos), 4u);
}

/* The register READ for a mode, from the half of a parameter that describes it. */
static uint32_t format_of(uint32_t half, uint32_t address_lanes, uint32_t data_lanes)
{
    uint32_t dummies = half & 0x1Fu;
    const uint32_t mode_clocks = (half >> 5) & 7u;
    uint32_t format = ((half >> 8) & 0xFFu) | (address_lanes << SPIFLASH_READ_ADLANES_Pos) |
                      (data_lanes << SPIFLASH_READ_DALANES_Pos);
    if (mode_clocks != 0u && (mode_clocks << address_lanes) == 8u)
        format |= SPIFLASH_READ_MODEON_Msk | (mode_end << SPIFLASH_READ_MODE_Pos);
    else
        dummies += mode_clocks;
    if (dummies > SPIFLASH_READ_DUMMY_Msk >> SPIFLASH_READ_DUMMY_Pos)
        return 0u;
    return format | (dummies << SPIFLASH_READ_DUMMY_Pos);
}

spiflash_result spiflash_detect(SPIFLASH_Type *flash, spiflash_chip *chip)
{
    uint32_t table;
    uint32_t words;
    uint32_t has;
    uint32_t quad;
    uint32_t dual;
    uint32_t density;
    int i;
    spiflash_read_id(flash, chip->id);
    for (i = 0; i < (int)SPIFLASH_MODES; ++i)
        chip->format[i] = 0u;
    chip->quad_enable = 7u;
    chip->size = 0u;
    if (chip->id[0] == chip->id[1] && chip->id[1] == chip->id[2])
        return SPIFLASH_ERROR_ABSENT; /* the line rests */
    chip->size = chip->id[2] < 32u ? (uint32_t)1u << chip->id[2] : 0u;
    chip->format[SPIFLASH_MODE_SINGLE] = 0x03u;
    chip->format[SPIFLASH_MODE_FAST] = 0x0Bu | (8u << SPIFLASH_READ_DUMMY_Pos);
    if (parameter(flash, 0u) != 0x50444653u) /* "SFDP" */
        return SPIFLASH_OK;
    words = parameter(flash, 8u) >> 24;
    table = parameter(flash, 12u) & 0xFFFFFFu;
    if (words < 9u)
        return SPIFLASH_OK;
    has = parameter(flash, table);
    density = parameter(flash, table + 4u);
    if ((density & 0x80000000u) == 0u)
        chip->size = (density >> 3) + 1u;
    else if (density - 0x80000003u < 32u)
        chip->size = (uint32_t)1u << (density - 0x80000003u);
    else
        chip->size = 0u;
    quad = parameter(flash, table + 8u);
    dual = parameter(flash, table + 12u);
    if (words >= 15u)
        chip->quad_enable = (uint8_t)((parameter(flash, table + 56u) >> 20) & 7u);
    if ((has & 0x00010000u) != 0u)
        chip->format[SPIFLASH_MODE_DUAL_OUT] = format_of(dual & 0xFFFFu, 0u, 1u);
    if ((has & 0x00100000u) != 0u)
        chip->format[SPIFLASH_MODE_DUAL_IO] = format_of(dual >> 16, 1u, 1u);
    /* Of the ways to switch four lanes on, two are left out. */
    if (chip->quad_enable == 3u || chip->quad_enable == 7u)
        return SPIFLASH_OK;
    if ((has & 0x00400000u) != 0u)
        chip->format[SPIFLASH_MODE_QUAD_OUT] = format_of(quad >> 16, 0u, 2u);
    if ((has & 0x00200000u) != 0u)
        chip->format[SPIFLASH_MODE_QUAD_IO] = format_of(quad & 0xFFFFu, 2u, 2u);
    return SPIFLASH_OK;
}

spiflash_mode spiflash_fastest(const spiflash_chip *chip)
{
    int mode = (int)SPIFLASH_MODES - 1;
    while (mode > 0 && chip->format[mode] == 0u)
        --mode;
    return (spiflash_mode)mode;
}

/* The bit that switches four lanes on: of the first status register, or of the second one above. */
static uint32_t quad_bit(const spiflash_chip *chip)
{
    return chip->quad_enable == 0u ? 0u : chip->quad_enable == 2u ? 0x40u : 0x200u;
}

static uint32_t both_status(SPIFLASH_Type *flash, const spiflash_chip *chip)
{
    uint32_t status = spiflash_status(flash);
    if (chip->quad_enable != 2u)
        status |= (ask(flash, command_status_2 | no_address, 1u) & 0xFFu) << 8;
    return status;
}

static spiflash_result enable_quad(SPIFLASH_Type *flash, const spiflash_chip *chip, uint32_t polls)
{
    const uint32_t bit = quad_bit(chip);
    uint32_t status = both_status(flash, chip);
    spiflash_result result;
    uint8_t bytes[2];
    if ((status & bit) == bit)
        return SPIFLASH_OK;
    result = prepare(flash);
    if (result != SPIFLASH_OK)
        return result;
    status |= bit;
    bytes[0] = (uint8_t)(status & 0xFCu);
    bytes[1] = (uint8_t)((status >> 8) & 0xFFu);
    if (chip->quad_enable == 6u)
        send(flash, command_write_status_2 | no_address, &bytes[1], 1u);
    else
        send(flash, command_write_status | no_address, bytes, chip->quad_enable == 2u ? 1u : 2u);
    result = spiflash_wait(flash, polls);
    if (result != SPIFLASH_OK)
        return result;
    return (both_status(flash, chip) & bit) == bit ? SPIFLASH_OK : SPIFLASH_ERROR_PROTECTED;
}

spiflash_result spiflash_set_mode(SPIFLASH_Type *flash, const spiflash_chip *chip,
                                  spiflash_mode mode, uint32_t polls)
{
    const bool is_quad = mode == SPIFLASH_MODE_QUAD_OUT || mode == SPIFLASH_MODE_QUAD_IO;
    uint32_t control = flash->CTRL & ~(SPIFLASH_CTRL_CONTINUOUS_Msk | SPIFLASH_CTRL_QUAD_Msk);
    if ((uint32_t)mode >= (uint32_t)SPIFLASH_MODES || chip->format[mode] == 0u)
        return SPIFLASH_ERROR_RANGE;
    if (is_quad) {
        const spiflash_result result = enable_quad(flash, chip, polls);
        if (result != SPIFLASH_OK)
            return result;
        control |= SPIFLASH_CTRL_QUAD_Msk;
    }
    flash->CTRL = control | SPIFLASH_CTRL_PREFETCH_Msk;
    flash->READ = chip->format[mode] | (flash->READ & SPIFLASH_READ_ADDR4_Msk);
    return SPIFLASH_OK;
}

spiflash_result spiflash_set_continuous(SPIFLASH_Type *flash, bool is_continuous)
{
    const uint32_t format = flash->READ;
    const uint32_t control = flash->CTRL & ~SPIFLASH_CTRL_CONTINUOUS_Msk;
    const uint32_t mode = is_continuous ? mode_continuous : mode_end;
    if ((format & SPIFLASH_READ_MODEON_Msk) == 0u)
        return is_continuous ? SPIFLASH_ERROR_RANGE : SPIFLASH_OK;
    flash->READ = (format & ~SPIFLASH_READ_MODE_Msk) | (mode << SPIFLASH_READ_MODE_Pos);
    flash->CTRL = control | (is_continuous ? SPIFLASH_CTRL_CONTINUOUS_Msk : 0u);
    return SPIFLASH_OK;
}

void spiflash_set_bank(SPIFLASH_Type *flash, uint8_t bank)
{
    const uint32_t format = flash->READ & ~SPIFLASH_READ_ADDR4_Msk;
    const bool is_long = (flash->READ & SPIFLASH_READ_ADDR4_Msk) != 0u;
    if (is_long != (bank != 0u)) {
        /* Some flashes take this only when they may be written. */
        run(flash, command_write_enable | no_address | no_data);
        run(flash,
            (bank != 0u ? command_long_addresses : command_short_addresses) | no_address | no_data);
        run(flash, command_write_disable | no_address | no_data);
        flash->READ = format | (bank != 0u ? SPIFLASH_READ_ADDR4_Msk : 0u);
    }
    flash->UPPER = bank;
}
