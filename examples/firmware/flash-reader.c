/* Says on UART0 what the serial flash says of itself, switches to the fastest way of reading that
 * it has and says the line of text that it begins with. Then erases a sector behind that line,
 * writes into it and reads it back. */
#include "spiflash.h"
#include "system_tarvo_orix_m1.h"
#include "uart.h"

enum { longest = 64, sector = 4096, size = 16 };

static void print(const char *text)
{
    for (; *text != '\0'; ++text)
        (void)uart_put(UART0, (uint8_t)*text, 10000u);
}

static void print_byte(uint8_t byte)
{
    static const char digits[] = "0123456789ABCDEF";
    const char text[] = {' ', digits[byte >> 4], digits[byte & 15u], '\0'};

    print(text);
}

/* Whether all that is there is this byte. */
static bool holds(const uint8_t *data, uint8_t byte)
{
    int i;

    for (i = 0; i < size; ++i) {
        if (data[i] != byte)
            return false;
    }
    return true;
}

int main(void)
{
    static const char *const modes[] = {" 1-1-1", " 1-1-1", " 1-1-2", " 1-2-2", " 1-1-4", " 1-4-4"};
    spiflash_chip chip;
    spiflash_mode mode;
    uint8_t data[size];
    char line[longest + 1];
    uint8_t value;
    int i;

    if (uart_init(UART0, SystemCoreClock, 3125000u) != UART_OK ||
        spiflash_init(SPIFLASH, SystemCoreClock, 25000000u) != SPIFLASH_OK)
        return 1;
    if (spiflash_detect(SPIFLASH, &chip) != SPIFLASH_OK)
        return 2;
    mode = spiflash_fastest(&chip);
    if (spiflash_set_mode(SPIFLASH, &chip, mode, 100000u) != SPIFLASH_OK)
        return 2;
    print("flash");
    for (i = 0; i < 3; ++i)
        print_byte(chip.id[i]);
    print(modes[mode]);
    print("\n");

    if (spiflash_read(SPIFLASH, 0u, line, longest) != SPIFLASH_OK)
        return 3;
    for (i = 0; i < longest && line[i] >= ' ' && line[i] <= '~'; ++i) {
    }
    line[i] = '\0';
    print(line);
    print("\n");

    if (spiflash_erase_sector(SPIFLASH, sector, 100000u) != SPIFLASH_OK ||
        spiflash_read(SPIFLASH, sector, data, size) != SPIFLASH_OK || !holds(data, 0xFFu))
        return 4;
    /* Bits only fall until the next erasure. */
    for (value = 0xAAu;; value = 0x55u) {
        for (i = 0; i < size; ++i)
            data[i] = value;
        if (spiflash_program(SPIFLASH, sector, data, size, 100000u) != SPIFLASH_OK ||
            spiflash_read(SPIFLASH, sector, data, size) != SPIFLASH_OK)
            return 5;
        if (!holds(data, value == 0xAAu ? 0xAAu : 0x00u))
            return 6;
        if (value == 0x55u)
            break;
    }
    print("written\n");
    return 0;
}
