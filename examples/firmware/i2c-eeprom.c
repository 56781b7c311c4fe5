/* Counts its own starts in the memory at address 0x50 of the I2C bus, and says on UART0 the
 * how-manieth this one is. Its record is eight bytes, the second four of which are the complement
 * of the first: a memory without one begins anew. */
#include "i2c.h"
#include "system_tarvo_orix_m1.h"
#include "uart.h"

enum { device = 0x50, nobody = 0x51, place = 0x10, size = 8 }; /* places have two bytes */

static const uint32_t polls = 10000u; /* for one byte */

static void print(const char *text)
{
    for (; *text != '\0'; ++text)
        (void)uart_put(UART0, (uint8_t)*text, 10000u);
}

static bool read_record(uint8_t *record)
{
    static const uint8_t from[] = {0u, place};

    return i2c_write_read(I2C, device, from, sizeof from, record, size, polls) == I2C_OK;
}

/* The device does not answer while it stores. */
static bool write_record(const uint8_t *record)
{
    uint8_t bytes[2 + size] = {0u, place};
    int i;

    for (i = 0; i < size; ++i)
        bytes[2 + i] = record[i];
    if (i2c_write(I2C, device, bytes, sizeof bytes, polls) != I2C_OK)
        return false;
    for (i = 0; i < 10000; ++i) {
        if (i2c_probe(I2C, device, polls) == I2C_OK)
            return true;
    }
    return false;
}

static bool is_record(const uint8_t *record)
{
    int i;

    for (i = 0; i < 4; ++i) {
        if ((record[i] ^ record[i + 4]) != 0xFFu)
            return false;
    }
    return record[0] == 's';
}

int main(void)
{
    uint8_t record[size];
    uint8_t found[size];
    int i;

    if (uart_init(UART0, SystemCoreClock, 3125000u) != UART_OK ||
        i2c_init(I2C, SystemCoreClock, 1000000u) != I2C_OK)
        return 1;
    if (i2c_probe(I2C, nobody, polls) != I2C_ERROR_NO_DEVICE)
        return 2;
    if (!read_record(record))
        return 3;
    if (!is_record(record)) {
        record[0] = 's';
        record[1] = record[2] = record[3] = '0';
    }
    for (i = 3; i > 0 && ++record[i] > '9'; --i)
        record[i] = '0';
    for (i = 0; i < 4; ++i)
        record[i + 4] = (uint8_t)~record[i];
    if (!write_record(record))
        return 4;
    if (!read_record(found))
        return 5;
    for (i = 0; i < size; ++i) {
        if (found[i] != record[i])
            return 6;
    }
    found[4] = '\0';
    print("start ");
    print((const char *)&found[1]);
    print("\n");
    return 0;
}
