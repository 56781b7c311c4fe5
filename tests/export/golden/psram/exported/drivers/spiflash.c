#include "spiflash.h"

static const uint8_t command_program = 0x02u;
static const uint8_t command_write_disable = 0x04u;
static const uint8_t command_status = 0x05u;
static const uint8_t command_write_enable = 0x06u;
static const uint8_t command_erase_sector = 0x20u;
static const uint8_t command_id = 0x9Fu;

static void select_chip(SPIFLASH_Type *flash, bool selected)
{
    flash->SELECT = selected ? SPIFLASH_SELECT_CS_Msk : 0u;
}

/* Sends a byte; the bus waits until the one that comes with it is there. */
static uint8_t exchange(SPIFLASH_Type *flash, uint8_t byte)
{
    flash->DATA = byte;
    return (uint8_t)(flash->DATA & SPIFLASH_DATA_BYTE_Msk);
}

static void send(SPIFLASH_Type *flash, uint8_t byte)
{
    flash->DATA = byte;
}

static void send_command(SPIFLASH_Type *flash, uint8_t command)
{
    select_chip(flash, true);
    send(flash, command);
    select_chip(flash, false);
}

static void send_address(SPIFLASH_Type *flash, uint32_t address)
{
    send(flash, (uint8_t)((address >> 16) & 0xFFu));
    send(flash, (uint8_t)((address >> 8) & 0xFFu));
    send(flash, (uint8_t)(address & 0xFFu));
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
    select_chip(flash, false);
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
    int i;
    select_chip(flash, true);
    send(flash, command_id);
    for (i = 0; i < 3; ++i)
        id[i] = exchange(flash, 0u);
    select_chip(flash, false);
}

uint8_t spiflash_status(SPIFLASH_Type *flash)
{
    uint8_t status;
    select_chip(flash, true);
    send(flash, command_status);
    status = exchange(flash, 0u);
    select_chip(flash, false);
    return status;
}

spiflash_result spiflash_write_enable(SPIFLASH_Type *flash)
{
    uint8_t status;
    send_command(flash, command_write_enable);
    status = spiflash_status(flash);
    /* Without a flash the line reads as all ones or all zeros. */
    return (status & (SPIFLASH_FLAG_WORKING | SPIFLASH_FLAG_WRITABLE)) == SPIFLASH_FLAG_WRITABLE
               ? SPIFLASH_OK
               : SPIFLASH_ERROR_PROTECTED;
}

void spiflash_write_disable(SPIFLASH_Type *flash)
{
    send_command(flash, command_write_disable);
}

spiflash_result spiflash_wait(SPIFLASH_Type *flash, uint32_t polls)
{
    do {
        if ((spiflash_status(flash) & SPIFLASH_FLAG_WORKING) == 0u)
            return SPIFLASH_OK;
    } while (polls-- > 1u);
    return SPIFLASH_ERROR_TIMEOUT;
}

spiflash_result spiflash_erase_sector(SPIFLASH_Type *flash, uint32_t address, uint32_t polls)
{
    spiflash_result result;
    if (!is_within(address, SPIFLASH_SECTOR_SIZE) || address % SPIFLASH_SECTOR_SIZE != 0u)
        return SPIFLASH_ERROR_RANGE;
    result = prepare(flash);
    if (result != SPIFLASH_OK)
        return result;
    select_chip(flash, true);
    send(flash, command_erase_sector);
    send_address(flash, address);
    select_chip(flash, false);
    return spiflash_wait(flash, polls);
}

spiflash_result spiflash_program_page(SPIFLASH_Type *flash, uint32_t address, const void *data,
                                      size_t size, uint32_t polls)
{
    const uint8_t *bytes = (const uint8_t *)data;
    spiflash_result result;
    size_t i;
    if (!is_within(address, size) || size == 0u ||
        size > SPIFLASH_PAGE_SIZE - address % SPIFLASH_PAGE_SIZE)
        return SPIFLASH_ERROR_RANGE;
    result = prepare(flash);
    if (result != SPIFLASH_OK)
        return result;
    select_chip(flash, true);
    send(flash, command_program);
    send_address(flash, address);
    for (i = 0u; i < size; ++i)
        send(flash, bytes[i]);
    select_chip(flash, false);
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
