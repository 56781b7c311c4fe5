/* Registers of Tarvo_ORIX_M1. Offsets are in bytes from an instance's base address. */
#ifndef TARVO_ORIX_M1_REGISTERS_H
#define TARVO_ORIX_M1_REGISTERS_H

/* Registers beside the read window of 16 MB at 0x68000000, in which a read fetches four bytes from the serial flash with command 0x03, the byte at the lowest address in bits 7 to 0. A write in the window, and a read while SELECT is 1, get the error response. The serial clock idles low (mode 0). */
#define SPIFLASH_BASE                    0x69000000u
#define SPIFLASH_DATA_OFFSET             0x00u
#define SPIFLASH_DATA_BYTE_Pos           0u
#define SPIFLASH_DATA_BYTE_Msk           0x000000FFu
#define SPIFLASH_SELECT_OFFSET           0x04u
#define SPIFLASH_SELECT_CS_Pos           0u
#define SPIFLASH_SELECT_CS_Msk           0x00000001u
#define SPIFLASH_DIV_OFFSET              0x08u
#define SPIFLASH_DIV_CYCLES_Pos          0u
#define SPIFLASH_DIV_CYCLES_Msk          0x000000FFu
#define SPIFLASH_PROTECT_OFFSET          0x0Cu
#define SPIFLASH_PROTECT_WP_Pos          0u
#define SPIFLASH_PROTECT_WP_Msk          0x00000001u

#endif
