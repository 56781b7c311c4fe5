/* Lists the root directory of an SD card on UART0 and prints its first file. The card has a FAT16
 * file system, from its first block on or in its first partition; reading only, and names of eight
 * and three characters. */
#include "sd.h"
#include "system_tarvo_orix_m1.h"
#include "uart.h"

enum { entry_size = 32, entries_per_block = SD_BLOCK_SIZE / entry_size };

static sd_card card;
static uint8_t data[SD_BLOCK_SIZE]; /* a block */

static struct {
    uint32_t fat, root, files; /* first blocks */
    uint32_t root_blocks, blocks_per_cluster;
} volume;

static struct {
    uint32_t cluster, size;
} first_file;

static void print(const char *text)
{
    for (; *text != '\0'; ++text)
        (void)uart_put(UART0, (uint8_t)*text, 10000u);
}

static void print_number(uint32_t number)
{
    if (number >= 10u)
        print_number(number / 10u);
    (void)uart_put(UART0, (uint8_t)('0' + number % 10u), 10000u);
}

static uint32_t get16(uint32_t place)
{
    return data[place] | (uint32_t)data[place + 1u] << 8;
}

static uint32_t get32(uint32_t place)
{
    return get16(place) | get16(place + 2u) << 16;
}

static bool read_block(uint32_t block)
{
    return sd_read_block(SD, &card, block, data) == SD_OK;
}

/* Whether a file system begins with the block in data: a jump, blocks of 512 bytes, a power of two
 * of them a cluster. */
static bool is_first_block(void)
{
    const uint32_t cluster = data[13];

    return (data[0] == 0xEBu || data[0] == 0xE9u) && get16(11) == SD_BLOCK_SIZE && cluster != 0u &&
           (cluster & (cluster - 1u)) == 0u;
}

static bool find_volume(void)
{
    uint32_t start = 0;
    uint32_t blocks, clusters;

    if (!read_block(start) || get16(510) != 0xAA55u)
        return false;
    if (!is_first_block()) {
        start = get32(446 + 8);
        if (!read_block(start) || get16(510) != 0xAA55u || !is_first_block())
            return false;
    }
    blocks = get16(19) != 0u ? get16(19) : get32(32);
    volume.blocks_per_cluster = data[13];
    volume.fat = start + get16(14);
    volume.root = volume.fat + data[16] * get16(22);
    volume.root_blocks = (get16(17) + entries_per_block - 1u) / entries_per_block;
    volume.files = volume.root + volume.root_blocks;
    if (blocks < volume.files - start)
        return false;
    clusters = (blocks - (volume.files - start)) / volume.blocks_per_cluster;
    return clusters >= 4085u && clusters < 65525u; /* what makes it FAT16 */
}

static void print_name(uint32_t entry)
{
    int i;

    for (i = 0; i < 11; ++i) {
        if (i == 8 && data[entry + 8u] != ' ')
            print(".");
        if (data[entry + i] != ' ')
            (void)uart_put(UART0, data[entry + i], 10000u);
    }
}

static bool list_root(void)
{
    uint32_t block, entry;

    for (block = 0; block < volume.root_blocks; ++block) {
        if (!read_block(volume.root + block))
            return false;
        for (entry = 0; entry < SD_BLOCK_SIZE; entry += entry_size) {
            if (data[entry] == 0x00u) /* the last one */
                return true;
            if (data[entry] == 0xE5u ||
                (data[entry + 11u] & 0x08u) != 0u) /* erased; a label or a long name */
                continue;
            print_name(entry);
            if ((data[entry + 11u] & 0x10u) != 0u) {
                print("/\n");
                continue;
            }
            print(" ");
            print_number(get32(entry + 28u));
            print("\n");
            if (first_file.cluster == 0u) {
                first_file.cluster = get16(entry + 26u);
                first_file.size = get32(entry + 28u);
            }
        }
    }
    return true;
}

static bool print_file(uint32_t cluster, uint32_t size)
{
    uint32_t block = 0;

    while (size > 0u) {
        const uint32_t part = size < SD_BLOCK_SIZE ? size : SD_BLOCK_SIZE;

        if (block == volume.blocks_per_cluster) {
            if (!read_block(volume.fat + cluster / 256u))
                return false;
            cluster = get16(cluster % 256u * 2u);
            block = 0;
        }
        if (cluster < 2u || cluster >= 0xFFF0u) /* the chain is shorter than the file */
            return false;
        if (!read_block(volume.files + (cluster - 2u) * volume.blocks_per_cluster + block))
            return false;
        if (uart_write(UART0, data, part, 10000u) != part)
            return false;
        size -= part;
        ++block;
    }
    return true;
}

int main(void)
{
    uint32_t looks = 1000; /* a card shows only when it has been in for a while */

    if (uart_init(UART0, SystemCoreClock, 3125000u) != UART_OK)
        return 1;
    while (!sd_is_present(SD)) {
        if (looks-- == 0u)
            return 2;
    }
    if (sd_open(SD, &card, SystemCoreClock, 25000000u) != SD_OK ||
        sd_check_crc(SD, &card, true) != SD_OK)
        return 3;
    if (!find_volume())
        return 4;
    if (!list_root())
        return 5;
    return print_file(first_file.cluster, first_file.size) ? 0 : 6;
}
