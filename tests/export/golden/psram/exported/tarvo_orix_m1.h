/* Device header of a subsystem with a Cortex-M1 processor on TV2KR-18C, for C99 and C++11.
 * Registers are 32 bits wide. A name that C, C++ or their libraries know already, or that
 * would come twice, has an underscore behind it, or an underscore and a number; so has an
 * instance without a capital letter. */
#ifndef TARVO_ORIX_M1_H
#define TARVO_ORIX_M1_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The processor. */
#define __CM1_REV                                0x0100u
#define __MPU_PRESENT                            0
#define __FPU_PRESENT                            0
#define __VTOR_PRESENT                           0
#define __NVIC_PRIO_BITS                         2
#define __Vendor_SysTickConfig                   0
#define TARVO_ORIX_M1_INTERRUPTS                 32u /* inputs */
#define TARVO_ORIX_M1_OS_EXTENSION               1 /* system timer, SVCall and PendSV */
#define TARVO_ORIX_M1_SMALL_MULTIPLIER           0
#define TARVO_ORIX_M1_DEBUG                      1
#define TARVO_ORIX_M1_DEBUG_JTAG                 1
#define TARVO_ORIX_M1_DEBUG_SERIAL_WIRE          1
#define TARVO_ORIX_M1_DEBUG_SMALL                0
#define TARVO_ORIX_M1_BIG_ENDIAN                 0

/* Exceptions and interrupts. */
typedef enum {
    NonMaskableInt_IRQn = -14, /* nothing requests it but software */
    HardFault_IRQn = -13, /* every fault */
    SVCall_IRQn = -5, /* supervisor call */
    PendSV_IRQn = -2, /* request of software */
    SysTick_IRQn = -1 /* system timer */
} IRQn_Type;


/* What answers where: the first address, and the size in bytes. An access to any other address
 * gives an error. */
#define ITCM_BASE                                0x00000000u /* tightly coupled memory: instruction memory */
#define ITCM_SIZE                                0x00008000u
#define DTCM_BASE                                0x20000000u /* tightly coupled memory: data memory */
#define DTCM_SIZE                                0x00008000u
#define SPIFLASH_WINDOW_BASE                     0x68000000u /* read window: contents of the SPI-Flash */
#define SPIFLASH_WINDOW_SIZE                     0x01000000u
#define SPIFLASH_SIZE                            0x01000000u
#define PSRAM_BASE                               0x70000000u /* memory device: PSRAM */
#define PSRAM_SIZE                               0x10000000u
/* The ITCM answers at 0x10000000 too while ITCMUAEN of the register ACTLR is 1. */

/* Registers that are read, written, or both. In C++ a constant member would have to be
 * initialised. */
#ifdef __cplusplus
#define TARVO_ORIX_M1_R volatile
#define TARVO_ORIX_M1_ASSERT(name, condition) static_assert(condition, #name)
#else
#define TARVO_ORIX_M1_R volatile const
#define TARVO_ORIX_M1_ASSERT(name, condition) typedef char name[(condition) ? 1 : -1]
#endif
#define TARVO_ORIX_M1_W volatile
#define TARVO_ORIX_M1_RW volatile

/* SPIFLASH: Registers beside the read window of 16 MB at 0x68000000, in which a read fetches
 * four bytes from the serial flash as READ says, the byte at the lowest address in bits 7 to
 * 0. A write in the window gets the error response, and so does a read while SELECT is 1,
 * while a command runs, or when READ has no address, no data or four lanes without CTRL.QUAD.
 * A write of a register first ends what is read ahead and a continuous read; the bus waits
 * meanwhile. While a command runs, only FIFO and STATUS take writes. While the pins work the
 * bus waits. With H = DIV.CYCLES + 1, G = CTRL.GAP + 1 and C, the clocks of opcode, address,
 * mode byte, DUMMY and 32 bits of data, a read of the window takes at most 2 H (C + G) +
 * CTRL.DELAY + 12 clock cycles, 1 more where READ has no opcode, and a write of a register H
 * (2 G + 1) + 5. A write that ends a continuous read takes 2 H (E + G) + 4 more, with an E of
 * 8 or 16 for addresses of three bytes on four or two lanes, 10 or 20 for those of four bytes;
 * one that sends a byte 16 H + CTRL.DELAY + 3 more. What RECOVER adds comes on top. As after a
 * reset, a read takes at most 272 and the first one 2646; with the slowest settings 77327 and
 * 154085. The serial clock idles low (mode 0). Lanes: 0 MOSI, 1 MISO, 2 WPN, 3 HOLDN; of 8
 * bits that use several lanes, the highest are on the highest lane. Bytes and halfwords: a
 * byte is sent only by a write that reaches the lowest byte of DATA, a command only by one
 * that reaches the lowest byte of COMMAND. FIFO takes a word from a write that reaches its
 * lowest byte, with 0 in the bytes beside it, and gives one to a read that begins there. */
#define SPIFLASH_BASE                            0x69000000u /* commands to the serial flash, such as erasing and programming */

/* Bytes to and from the flash. */
#define SPIFLASH_DATA_OFFSET                     0x00u
#define SPIFLASH_DATA_RESET                      0x00000000u
#define SPIFLASH_DATA_BYTE_Pos                   0u /* write: sends the byte on lane 0, the bus waits until it is sent; read: the byte received last, on lane 1 together with it, or by the window or a command */
#define SPIFLASH_DATA_BYTE_Msk                   0x000000FFu

/* Chip select. A write brings the flash into its first state where RECOVER asks for it. */
#define SPIFLASH_SELECT_OFFSET                   0x04u
#define SPIFLASH_SELECT_RESET                    0x00000000u
#define SPIFLASH_SELECT_CS_Pos                   0u /* 1 holds the chip select low for bytes sent through DATA */
#define SPIFLASH_SELECT_CS_Msk                   0x00000001u
#define SPIFLASH_SELECT_CS_HIGH                  0u /* the chip select follows the read window and commands */
#define SPIFLASH_SELECT_CS_LOW                   1u /* the chip select is held low */

/* Bit time. */
#define SPIFLASH_DIV_OFFSET                      0x08u
#define SPIFLASH_DIV_RESET                       0x00000001u
#define SPIFLASH_DIV_CYCLES_Pos                  0u /* half a period of the serial clock is CYCLES + 1 clock cycles */
#define SPIFLASH_DIV_CYCLES_Msk                  0x000000FFu

/* Write protection. */
#define SPIFLASH_PROTECT_OFFSET                  0x0Cu
#define SPIFLASH_PROTECT_RESET                   0x00000001u
#define SPIFLASH_PROTECT_WP_Pos                  0u /* 1 drives the write-protect pin low, except while it is a lane */
#define SPIFLASH_PROTECT_WP_Msk                  0x00000001u
#define SPIFLASH_PROTECT_WP_OFF                  0u /* the write-protect pin is high */
#define SPIFLASH_PROTECT_WP_ON                   1u /* the write-protect pin is low */

/* How the window and the pins work. */
#define SPIFLASH_CTRL_OFFSET                     0x10u
#define SPIFLASH_CTRL_RESET                      0x00000000u
#define SPIFLASH_CTRL_PREFETCH_Pos               0u /* 1: the chip select stays low behind a read of the window and following words are read ahead, until the FIFO is full */
#define SPIFLASH_CTRL_PREFETCH_Msk               0x00000001u
#define SPIFLASH_CTRL_PREFETCH_OFF               0u /* each read asks the flash */
#define SPIFLASH_CTRL_PREFETCH_ON                1u /* sequential words come without opcode and address */
#define SPIFLASH_CTRL_CONTINUOUS_Pos             1u /* 1: reads behind the first one have no opcode; READ needs a mode byte that the flash takes as that, and an address on two or four lanes */
#define SPIFLASH_CTRL_CONTINUOUS_Msk             0x00000002u
#define SPIFLASH_CTRL_CONTINUOUS_OFF             0u /* each read begins with the opcode */
#define SPIFLASH_CTRL_CONTINUOUS_ON              1u /* reads begin with the address */
#define SPIFLASH_CTRL_QUAD_Pos                   2u /* 1: WPN and HOLDN are lanes where READ or COMMAND says four; the flash must have its quad mode enabled */
#define SPIFLASH_CTRL_QUAD_Msk                   0x00000004u
#define SPIFLASH_CTRL_QUAD_OFF                   0u /* four lanes are refused */
#define SPIFLASH_CTRL_QUAD_ON                    1u /* four lanes are used */
#define SPIFLASH_CTRL_DELAY_Pos                  4u /* clock cycles between the rising edge of the serial clock and the sample; at most DIV.CYCLES + 1 */
#define SPIFLASH_CTRL_DELAY_Msk                  0x00000030u
#define SPIFLASH_CTRL_DELAY_NONE                 0u /* at the edge */
#define SPIFLASH_CTRL_DELAY_ONE                  1u /* one cycle later */
#define SPIFLASH_CTRL_DELAY_TWO                  2u /* two cycles later */
#define SPIFLASH_CTRL_DELAY_THREE                3u /* three cycles later */
#define SPIFLASH_CTRL_GAP_Pos                    8u /* the chip select is high for at least GAP + 1 periods of the serial clock */
#define SPIFLASH_CTRL_GAP_Msk                    0x00000700u
#define SPIFLASH_CTRL_GAP_PERIODS_1              0u /* one period */
#define SPIFLASH_CTRL_GAP_PERIODS_2              1u /* two periods */
#define SPIFLASH_CTRL_GAP_PERIODS_3              2u /* three periods */
#define SPIFLASH_CTRL_GAP_PERIODS_4              3u /* four periods */
#define SPIFLASH_CTRL_GAP_PERIODS_5              4u /* five periods */
#define SPIFLASH_CTRL_GAP_PERIODS_6              5u /* six periods */
#define SPIFLASH_CTRL_GAP_PERIODS_7              6u /* seven periods */
#define SPIFLASH_CTRL_GAP_PERIODS_8              7u /* eight periods */
#define SPIFLASH_CTRL_IDLE_Pos                   16u /* with PREFETCH the chip select rises when the FIFO has been full for IDLE times 64 clock cycles; 0: it stays low */
#define SPIFLASH_CTRL_IDLE_Msk                   0x00FF0000u

/* What a read of the window sends. */
#define SPIFLASH_READ_OFFSET                     0x14u
#define SPIFLASH_READ_RESET                      0x00000003u
#define SPIFLASH_READ_OPCODE_Pos                 0u /* opcode */
#define SPIFLASH_READ_OPCODE_Msk                 0x000000FFu
#define SPIFLASH_READ_OPLANES_Pos                8u /* lanes of the opcode */
#define SPIFLASH_READ_OPLANES_Msk                0x00000300u
#define SPIFLASH_READ_OPLANES_ONE                0u /* one lane */
#define SPIFLASH_READ_OPLANES_TWO                1u /* two lanes */
#define SPIFLASH_READ_OPLANES_FOUR               2u /* four lanes */
#define SPIFLASH_READ_OPLANES_NONE               3u /* there is none */
#define SPIFLASH_READ_ADLANES_Pos                10u /* lanes of address and mode byte */
#define SPIFLASH_READ_ADLANES_Msk                0x00000C00u
#define SPIFLASH_READ_ADLANES_ONE                0u /* one lane */
#define SPIFLASH_READ_ADLANES_TWO                1u /* two lanes */
#define SPIFLASH_READ_ADLANES_FOUR               2u /* four lanes */
#define SPIFLASH_READ_ADLANES_NONE               3u /* there is none */
#define SPIFLASH_READ_DALANES_Pos                12u /* lanes of the data */
#define SPIFLASH_READ_DALANES_Msk                0x00003000u
#define SPIFLASH_READ_DALANES_ONE                0u /* one lane */
#define SPIFLASH_READ_DALANES_TWO                1u /* two lanes */
#define SPIFLASH_READ_DALANES_FOUR               2u /* four lanes */
#define SPIFLASH_READ_DALANES_NONE               3u /* there are none */
#define SPIFLASH_READ_ADDR4_Pos                  14u /* bytes of the address */
#define SPIFLASH_READ_ADDR4_Msk                  0x00004000u
#define SPIFLASH_READ_ADDR4_THREE                0u /* three bytes */
#define SPIFLASH_READ_ADDR4_FOUR                 1u /* four bytes, the highest from UPPER */
#define SPIFLASH_READ_MODEON_Pos                 15u /* whether a mode byte follows the address */
#define SPIFLASH_READ_MODEON_Msk                 0x00008000u
#define SPIFLASH_READ_MODEON_OFF                 0u /* none */
#define SPIFLASH_READ_MODEON_ON                  1u /* MODE */
#define SPIFLASH_READ_DUMMY_Pos                  16u /* clocks between them and the data */
#define SPIFLASH_READ_DUMMY_Msk                  0x003F0000u
#define SPIFLASH_READ_MODE_Pos                   24u /* mode byte */
#define SPIFLASH_READ_MODE_Msk                   0xFF000000u

/* What lies above the window. */
#define SPIFLASH_UPPER_OFFSET                    0x18u
#define SPIFLASH_UPPER_RESET                     0x00000000u
#define SPIFLASH_UPPER_ADDRESS_Pos               0u /* bits 31 to 24 of addresses of four bytes */
#define SPIFLASH_UPPER_ADDRESS_Msk               0x000000FFu

/* Address of a command. */
#define SPIFLASH_ADDRESS_OFFSET                  0x20u
#define SPIFLASH_ADDRESS_RESET                   0x00000000u
#define SPIFLASH_ADDRESS_ADDRESS_Pos             0u /* address; the lowest 24 bits without COMMAND.ADDR4 */
#define SPIFLASH_ADDRESS_ADDRESS_Msk             0xFFFFFFFFu

/* Data of a command. */
#define SPIFLASH_LENGTH_OFFSET                   0x24u
#define SPIFLASH_LENGTH_RESET                    0x00000000u
#define SPIFLASH_LENGTH_BYTES_Pos                0u /* bytes; counts down while they are transferred */
#define SPIFLASH_LENGTH_BYTES_Msk                0x000001FFu

/* What a command with POLL waits for. */
#define SPIFLASH_POLL_OFFSET                     0x28u
#define SPIFLASH_POLL_RESET                      0x00000001u
#define SPIFLASH_POLL_MASK_Pos                   0u /* bits of a received byte that count */
#define SPIFLASH_POLL_MASK_Msk                   0x000000FFu
#define SPIFLASH_POLL_VALUE_Pos                  8u /* how they must be */
#define SPIFLASH_POLL_VALUE_Msk                  0x0000FF00u

/* What a command does. */
#define SPIFLASH_STATUS_OFFSET                   0x2Cu
#define SPIFLASH_STATUS_RESET                    0x00000000u
#define SPIFLASH_STATUS_BUSY_Pos                 0u /* a command runs */
#define SPIFLASH_STATUS_BUSY_Msk                 0x00000001u
#define SPIFLASH_STATUS_BUSY_NO                  0u /* none runs */
#define SPIFLASH_STATUS_BUSY_YES                 1u /* the flash is selected for one */
#define SPIFLASH_STATUS_REFUSED_Pos              1u /* a register was written while a command ran, or a command had four lanes without CTRL.QUAD; nothing was done */
#define SPIFLASH_STATUS_REFUSED_Msk              0x00000002u
#define SPIFLASH_STATUS_REFUSED_NO               0u /* nothing was refused */
#define SPIFLASH_STATUS_REFUSED_YES              1u /* something was refused */
#define SPIFLASH_STATUS_OVERFLOW_Pos             2u /* FIFO was written while it was full; the word is lost */
#define SPIFLASH_STATUS_OVERFLOW_Msk             0x00000004u
#define SPIFLASH_STATUS_OVERFLOW_NO              0u /* no word was lost */
#define SPIFLASH_STATUS_OVERFLOW_YES             1u /* a word was lost */
#define SPIFLASH_STATUS_UNDERFLOW_Pos            3u /* FIFO was read while it had nothing to give, or while a command sends */
#define SPIFLASH_STATUS_UNDERFLOW_Msk            0x00000008u
#define SPIFLASH_STATUS_UNDERFLOW_NO             0u /* all reads got a word */
#define SPIFLASH_STATUS_UNDERFLOW_YES            1u /* a read got 0 */
#define SPIFLASH_STATUS_ABORT_Pos                4u /* 1 ends the command at once; what it has received stays in FIFO, what it has not sent is thrown away */
#define SPIFLASH_STATUS_ABORT_Msk                0x00000010u
#define SPIFLASH_STATUS_ABORT_NO                 0u /* nothing happens */
#define SPIFLASH_STATUS_ABORT_END                1u /* ends the command */
#define SPIFLASH_STATUS_CONTINUES_Pos            5u /* whether the flash is in a continuous read */
#define SPIFLASH_STATUS_CONTINUES_Msk            0x00000020u
#define SPIFLASH_STATUS_CONTINUES_NO             0u /* it waits for an opcode */
#define SPIFLASH_STATUS_CONTINUES_YES            1u /* it waits for an address */
#define SPIFLASH_STATUS_LEVEL_Pos                8u /* words in FIFO */
#define SPIFLASH_STATUS_LEVEL_Msk                0x00003F00u
#define SPIFLASH_STATUS_LEVEL_EMPTY              0u /* no word */
#define SPIFLASH_STATUS_LEVEL_FULL               8u /* eight words, as many as find room */

/* A write sends opcode, address, mode byte, dummy clocks and data; SELECT becomes 0. Its clock
 * stops while FIFO has no data or no room. */
#define SPIFLASH_COMMAND_OFFSET                  0x30u
#define SPIFLASH_COMMAND_RESET                   0x00000000u
#define SPIFLASH_COMMAND_OPCODE_Pos              0u /* opcode */
#define SPIFLASH_COMMAND_OPCODE_Msk              0x000000FFu
#define SPIFLASH_COMMAND_OPLANES_Pos             8u /* lanes of the opcode */
#define SPIFLASH_COMMAND_OPLANES_Msk             0x00000300u
#define SPIFLASH_COMMAND_OPLANES_ONE             0u /* one lane */
#define SPIFLASH_COMMAND_OPLANES_TWO             1u /* two lanes */
#define SPIFLASH_COMMAND_OPLANES_FOUR            2u /* four lanes */
#define SPIFLASH_COMMAND_OPLANES_NONE            3u /* there is none */
#define SPIFLASH_COMMAND_ADLANES_Pos             10u /* lanes of address and mode byte */
#define SPIFLASH_COMMAND_ADLANES_Msk             0x00000C00u
#define SPIFLASH_COMMAND_ADLANES_ONE             0u /* one lane */
#define SPIFLASH_COMMAND_ADLANES_TWO             1u /* two lanes */
#define SPIFLASH_COMMAND_ADLANES_FOUR            2u /* four lanes */
#define SPIFLASH_COMMAND_ADLANES_NONE            3u /* there is none */
#define SPIFLASH_COMMAND_DALANES_Pos             12u /* lanes of the data */
#define SPIFLASH_COMMAND_DALANES_Msk             0x00003000u
#define SPIFLASH_COMMAND_DALANES_ONE             0u /* one lane */
#define SPIFLASH_COMMAND_DALANES_TWO             1u /* two lanes */
#define SPIFLASH_COMMAND_DALANES_FOUR            2u /* four lanes */
#define SPIFLASH_COMMAND_DALANES_NONE            3u /* there are none */
#define SPIFLASH_COMMAND_ADDR4_Pos               14u /* bytes of the address */
#define SPIFLASH_COMMAND_ADDR4_Msk               0x00004000u
#define SPIFLASH_COMMAND_ADDR4_THREE             0u /* three bytes */
#define SPIFLASH_COMMAND_ADDR4_FOUR              1u /* four bytes */
#define SPIFLASH_COMMAND_MODEON_Pos              15u /* whether a mode byte follows the address */
#define SPIFLASH_COMMAND_MODEON_Msk              0x00008000u
#define SPIFLASH_COMMAND_MODEON_OFF              0u /* none */
#define SPIFLASH_COMMAND_MODEON_ON               1u /* MODE */
#define SPIFLASH_COMMAND_DUMMY_Pos               16u /* clocks between them and the data */
#define SPIFLASH_COMMAND_DUMMY_Msk               0x003F0000u
#define SPIFLASH_COMMAND_WRITE_Pos               22u /* direction of the data */
#define SPIFLASH_COMMAND_WRITE_Msk               0x00400000u
#define SPIFLASH_COMMAND_WRITE_RECEIVE           0u /* from the flash */
#define SPIFLASH_COMMAND_WRITE_SEND              1u /* to the flash */
#define SPIFLASH_COMMAND_POLL_Pos                23u /* 1: bytes are received until one is as POLL says; it then stands in DATA, and LENGTH does not count */
#define SPIFLASH_COMMAND_POLL_Msk                0x00800000u
#define SPIFLASH_COMMAND_POLL_OFF                0u /* LENGTH bytes */
#define SPIFLASH_COMMAND_POLL_ON                 1u /* until the status is as wanted */
#define SPIFLASH_COMMAND_MODE_Pos                24u /* mode byte */
#define SPIFLASH_COMMAND_MODE_Msk                0xFF000000u

/* Data of a command, four bytes a word, the first one in bits 7 to 0. A read of the window
 * empties it, and so does the begin of a command that receives. */
#define SPIFLASH_FIFO_OFFSET                     0x34u
#define SPIFLASH_FIFO_RESET                      0x00000000u
#define SPIFLASH_FIFO_WORD_Pos                   0u /* write: appends a word to be sent; read: takes a word that was received */
#define SPIFLASH_FIFO_WORD_Msk                   0xFFFFFFFFu

/* Brings the flash from whatever it was in before a reset into the state after power-on:
 * before it is selected for the first time, clocks with all lanes high end continuous reads on
 * four and on two lanes with addresses of three and of four bytes, and the opcodes 66h and 99h
 * reset it. With H and G as for the waits of the bus, that adds at most 2 H (70 + 6 G) + 64
 * WAIT + 22 clock cycles to them, without RESET 2 H (54 + 4 G) + 13; as after a reset 2374. */
#define SPIFLASH_RECOVER_OFFSET                  0x38u
#define SPIFLASH_RECOVER_RESET                   0x00002003u
#define SPIFLASH_RECOVER_PENDING_Pos             0u /* 1: done before the next read of the window, command or write of SELECT; becomes 0 then */
#define SPIFLASH_RECOVER_PENDING_Msk             0x00000001u
#define SPIFLASH_RECOVER_PENDING_NO              0u /* done, or not wanted */
#define SPIFLASH_RECOVER_PENDING_YES             1u /* to be done */
#define SPIFLASH_RECOVER_RESET_Pos               1u /* whether the opcodes are sent, too */
#define SPIFLASH_RECOVER_RESET_Msk               0x00000002u
#define SPIFLASH_RECOVER_RESET_OFF               0u /* nothing but clocks */
#define SPIFLASH_RECOVER_RESET_ON                1u /* 66h and 99h */
#define SPIFLASH_RECOVER_WAIT_Pos                8u /* what the flash needs for its reset, in 64 clock cycles */
#define SPIFLASH_RECOVER_WAIT_Msk                0x0000FF00u

/* What this block is. */
#define SPIFLASH_ID_OFFSET                       0xFFCu
#define SPIFLASH_ID_RESET                        0x0103020Au
#define SPIFLASH_ID_BLOCK_Pos                    0u /* kind of block */
#define SPIFLASH_ID_BLOCK_Msk                    0x000000FFu
#define SPIFLASH_ID_REVISION_Pos                 8u /* revision of its registers */
#define SPIFLASH_ID_REVISION_Msk                 0x0000FF00u
#define SPIFLASH_ID_LOG_DEPTH_Pos                16u /* binary logarithm of the words that FIFO holds */
#define SPIFLASH_ID_LOG_DEPTH_Msk                0x003F0000u
#define SPIFLASH_ID_COMMANDS_Pos                 24u /* whether there are commands */
#define SPIFLASH_ID_COMMANDS_Msk                 0x01000000u
#define SPIFLASH_ID_COMMANDS_NO                  0u /* the registers from ADDRESS to FIFO read as 0 */
#define SPIFLASH_ID_COMMANDS_YES                 1u /* as described */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t DATA; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t SELECT; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t DIV; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t PROTECT; /* 0x0C */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x10 */
    TARVO_ORIX_M1_RW uint32_t READ; /* 0x14 */
    TARVO_ORIX_M1_RW uint32_t UPPER; /* 0x18 */
    uint32_t RESERVED0[1];
    TARVO_ORIX_M1_RW uint32_t ADDRESS; /* 0x20 */
    TARVO_ORIX_M1_RW uint32_t LENGTH; /* 0x24 */
    TARVO_ORIX_M1_RW uint32_t POLL; /* 0x28 */
    TARVO_ORIX_M1_RW uint32_t STATUS; /* 0x2C */
    TARVO_ORIX_M1_RW uint32_t COMMAND; /* 0x30 */
    TARVO_ORIX_M1_RW uint32_t FIFO; /* 0x34 */
    TARVO_ORIX_M1_RW uint32_t RECOVER; /* 0x38 */
    uint32_t RESERVED1[1008];
    TARVO_ORIX_M1_R uint32_t ID; /* 0xFFC */
} SPIFLASH_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_DATA,
                     offsetof(SPIFLASH_Type, DATA) == SPIFLASH_DATA_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_SELECT,
                     offsetof(SPIFLASH_Type, SELECT) == SPIFLASH_SELECT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_DIV,
                     offsetof(SPIFLASH_Type, DIV) == SPIFLASH_DIV_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_PROTECT,
                     offsetof(SPIFLASH_Type, PROTECT) == SPIFLASH_PROTECT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_CTRL,
                     offsetof(SPIFLASH_Type, CTRL) == SPIFLASH_CTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_READ,
                     offsetof(SPIFLASH_Type, READ) == SPIFLASH_READ_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_UPPER,
                     offsetof(SPIFLASH_Type, UPPER) == SPIFLASH_UPPER_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_ADDRESS,
                     offsetof(SPIFLASH_Type, ADDRESS) == SPIFLASH_ADDRESS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_LENGTH,
                     offsetof(SPIFLASH_Type, LENGTH) == SPIFLASH_LENGTH_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_POLL,
                     offsetof(SPIFLASH_Type, POLL) == SPIFLASH_POLL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_STATUS,
                     offsetof(SPIFLASH_Type, STATUS) == SPIFLASH_STATUS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_COMMAND,
                     offsetof(SPIFLASH_Type, COMMAND) == SPIFLASH_COMMAND_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_FIFO,
                     offsetof(SPIFLASH_Type, FIFO) == SPIFLASH_FIFO_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_RECOVER,
                     offsetof(SPIFLASH_Type, RECOVER) == SPIFLASH_RECOVER_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_ID,
                     offsetof(SPIFLASH_Type, ID) == SPIFLASH_ID_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_SPIFLASH_Type, sizeof(SPIFLASH_Type) == 0x1000u);

#define SPIFLASH                                 ((SPIFLASH_Type *)(uintptr_t)SPIFLASH_BASE)

/* SCS: The processor's own registers: interrupts, exceptions and reset. They are accessed as
 * words. */
#define SCS_BASE                                 0xE000E000u /* system control space */

/* Auxiliary control: where the instruction memory stands. */
#define SCS_ACTLR_OFFSET                         0x08u
#define SCS_ACTLR_RESET                          0x00000008u
#define SCS_ACTLR_ITCMLAEN_Pos                   3u /* the ITCM answers at 0x00000000 */
#define SCS_ACTLR_ITCMLAEN_Msk                   0x00000008u
#define SCS_ACTLR_ITCMUAEN_Pos                   4u /* the ITCM answers at 0x10000000 */
#define SCS_ACTLR_ITCMUAEN_Msk                   0x00000010u

/* System timer: control and state. */
#define SCS_SYST_CSR_OFFSET                      0x10u
#define SCS_SYST_CSR_RESET                       0x00000000u
#define SCS_SYST_CSR_RESET_MASK                  0xFFFFFFFBu /* the bits of which the value after reset is known */
#define SCS_SYST_CSR_ENABLE_Pos                  0u /* counts */
#define SCS_SYST_CSR_ENABLE_Msk                  0x00000001u
#define SCS_SYST_CSR_ENABLE_OFF                  0u /* stands still */
#define SCS_SYST_CSR_ENABLE_ON                   1u /* counts */
#define SCS_SYST_CSR_TICKINT_Pos                 1u /* exception when the count reaches 0 */
#define SCS_SYST_CSR_TICKINT_Msk                 0x00000002u
#define SCS_SYST_CSR_TICKINT_OFF                 0u /* no exception */
#define SCS_SYST_CSR_TICKINT_ON                  1u /* exception */
#define SCS_SYST_CSR_CLKSOURCE_Pos               2u /* 1: counts the processor's clock; stays 1 without another clock */
#define SCS_SYST_CSR_CLKSOURCE_Msk               0x00000004u
#define SCS_SYST_CSR_COUNTFLAG_Pos               16u /* the count has reached 0 since the last read */
#define SCS_SYST_CSR_COUNTFLAG_Msk               0x00010000u

/* System timer: period. */
#define SCS_SYST_RVR_OFFSET                      0x14u
#define SCS_SYST_RVR_RESET                       0x00000000u
#define SCS_SYST_RVR_RESET_MASK                  0xFF000000u /* the bits of which the value after reset is known */
#define SCS_SYST_RVR_RELOAD_Pos                  0u /* value that follows 0; the period is RELOAD + 1 clock cycles */
#define SCS_SYST_RVR_RELOAD_Msk                  0x00FFFFFFu

/* System timer: count. */
#define SCS_SYST_CVR_OFFSET                      0x18u
#define SCS_SYST_CVR_RESET                       0x00000000u
#define SCS_SYST_CVR_RESET_MASK                  0xFF000000u /* the bits of which the value after reset is known */
#define SCS_SYST_CVR_CURRENT_Pos                 0u /* read: the count; any write makes it 0 and clears COUNTFLAG */
#define SCS_SYST_CVR_CURRENT_Msk                 0x00FFFFFFu

/* System timer: calibration. */
#define SCS_SYST_CALIB_OFFSET                    0x1Cu
#define SCS_SYST_CALIB_RESET                     0x00000000u
#define SCS_SYST_CALIB_RESET_MASK                0x3F000000u /* the bits of which the value after reset is known */
#define SCS_SYST_CALIB_TENMS_Pos                 0u /* period of 10 ms; 0: not known */
#define SCS_SYST_CALIB_TENMS_Msk                 0x00FFFFFFu
#define SCS_SYST_CALIB_SKEW_Pos                  30u /* TENMS is not exact */
#define SCS_SYST_CALIB_SKEW_Msk                  0x40000000u
#define SCS_SYST_CALIB_NOREF_Pos                 31u /* there is no clock beside the processor's */
#define SCS_SYST_CALIB_NOREF_Msk                 0x80000000u

/* Enables interrupts. */
#define SCS_NVIC_ISER_OFFSET                     0x100u
#define SCS_NVIC_ISER_RESET                      0x00000000u
#define SCS_NVIC_ISER_SETENA_Pos                 0u /* read: enabled interrupts; ones enable */
#define SCS_NVIC_ISER_SETENA_Msk                 0xFFFFFFFFu

/* Disables interrupts. */
#define SCS_NVIC_ICER_OFFSET                     0x180u
#define SCS_NVIC_ICER_RESET                      0x00000000u
#define SCS_NVIC_ICER_CLRENA_Pos                 0u /* read: enabled interrupts; ones disable */
#define SCS_NVIC_ICER_CLRENA_Msk                 0xFFFFFFFFu

/* Makes interrupts pending. */
#define SCS_NVIC_ISPR_OFFSET                     0x200u
#define SCS_NVIC_ISPR_RESET                      0x00000000u
#define SCS_NVIC_ISPR_RESET_MASK                 0x00000000u /* the bits of which the value after reset is known */
#define SCS_NVIC_ISPR_SETPEND_Pos                0u /* read: pending interrupts; ones make pending */
#define SCS_NVIC_ISPR_SETPEND_Msk                0xFFFFFFFFu

/* Takes back pending interrupts. */
#define SCS_NVIC_ICPR_OFFSET                     0x280u
#define SCS_NVIC_ICPR_RESET                      0x00000000u
#define SCS_NVIC_ICPR_RESET_MASK                 0x00000000u /* the bits of which the value after reset is known */
#define SCS_NVIC_ICPR_CLRPEND_Pos                0u /* read: pending interrupts; ones take back */
#define SCS_NVIC_ICPR_CLRPEND_Msk                0xFFFFFFFFu

/* Priorities of interrupts. */
#define SCS_NVIC_IPR0_OFFSET                     0x400u
#define SCS_NVIC_IPR0_RESET                      0x00000000u
#define SCS_NVIC_IPR0_PRI_N0_Pos                 6u /* of interrupt 0; 0 is the most urgent */
#define SCS_NVIC_IPR0_PRI_N0_Msk                 0x000000C0u
#define SCS_NVIC_IPR0_PRI_N1_Pos                 14u /* of interrupt 1; 0 is the most urgent */
#define SCS_NVIC_IPR0_PRI_N1_Msk                 0x0000C000u
#define SCS_NVIC_IPR0_PRI_N2_Pos                 22u /* of interrupt 2; 0 is the most urgent */
#define SCS_NVIC_IPR0_PRI_N2_Msk                 0x00C00000u
#define SCS_NVIC_IPR0_PRI_N3_Pos                 30u /* of interrupt 3; 0 is the most urgent */
#define SCS_NVIC_IPR0_PRI_N3_Msk                 0xC0000000u

/* Priorities of interrupts. */
#define SCS_NVIC_IPR1_OFFSET                     0x404u
#define SCS_NVIC_IPR1_RESET                      0x00000000u
#define SCS_NVIC_IPR1_PRI_N4_Pos                 6u /* of interrupt 4; 0 is the most urgent */
#define SCS_NVIC_IPR1_PRI_N4_Msk                 0x000000C0u
#define SCS_NVIC_IPR1_PRI_N5_Pos                 14u /* of interrupt 5; 0 is the most urgent */
#define SCS_NVIC_IPR1_PRI_N5_Msk                 0x0000C000u
#define SCS_NVIC_IPR1_PRI_N6_Pos                 22u /* of interrupt 6; 0 is the most urgent */
#define SCS_NVIC_IPR1_PRI_N6_Msk                 0x00C00000u
#define SCS_NVIC_IPR1_PRI_N7_Pos                 30u /* of interrupt 7; 0 is the most urgent */
#define SCS_NVIC_IPR1_PRI_N7_Msk                 0xC0000000u

/* Priorities of interrupts. */
#define SCS_NVIC_IPR2_OFFSET                     0x408u
#define SCS_NVIC_IPR2_RESET                      0x00000000u
#define SCS_NVIC_IPR2_PRI_N8_Pos                 6u /* of interrupt 8; 0 is the most urgent */
#define SCS_NVIC_IPR2_PRI_N8_Msk                 0x000000C0u
#define SCS_NVIC_IPR2_PRI_N9_Pos                 14u /* of interrupt 9; 0 is the most urgent */
#define SCS_NVIC_IPR2_PRI_N9_Msk                 0x0000C000u
#define SCS_NVIC_IPR2_PRI_N10_Pos                22u /* of interrupt 10; 0 is the most urgent */
#define SCS_NVIC_IPR2_PRI_N10_Msk                0x00C00000u
#define SCS_NVIC_IPR2_PRI_N11_Pos                30u /* of interrupt 11; 0 is the most urgent */
#define SCS_NVIC_IPR2_PRI_N11_Msk                0xC0000000u

/* Priorities of interrupts. */
#define SCS_NVIC_IPR3_OFFSET                     0x40Cu
#define SCS_NVIC_IPR3_RESET                      0x00000000u
#define SCS_NVIC_IPR3_PRI_N12_Pos                6u /* of interrupt 12; 0 is the most urgent */
#define SCS_NVIC_IPR3_PRI_N12_Msk                0x000000C0u
#define SCS_NVIC_IPR3_PRI_N13_Pos                14u /* of interrupt 13; 0 is the most urgent */
#define SCS_NVIC_IPR3_PRI_N13_Msk                0x0000C000u
#define SCS_NVIC_IPR3_PRI_N14_Pos                22u /* of interrupt 14; 0 is the most urgent */
#define SCS_NVIC_IPR3_PRI_N14_Msk                0x00C00000u
#define SCS_NVIC_IPR3_PRI_N15_Pos                30u /* of interrupt 15; 0 is the most urgent */
#define SCS_NVIC_IPR3_PRI_N15_Msk                0xC0000000u

/* Priorities of interrupts. */
#define SCS_NVIC_IPR4_OFFSET                     0x410u
#define SCS_NVIC_IPR4_RESET                      0x00000000u
#define SCS_NVIC_IPR4_PRI_N16_Pos                6u /* of interrupt 16; 0 is the most urgent */
#define SCS_NVIC_IPR4_PRI_N16_Msk                0x000000C0u
#define SCS_NVIC_IPR4_PRI_N17_Pos                14u /* of interrupt 17; 0 is the most urgent */
#define SCS_NVIC_IPR4_PRI_N17_Msk                0x0000C000u
#define SCS_NVIC_IPR4_PRI_N18_Pos                22u /* of interrupt 18; 0 is the most urgent */
#define SCS_NVIC_IPR4_PRI_N18_Msk                0x00C00000u
#define SCS_NVIC_IPR4_PRI_N19_Pos                30u /* of interrupt 19; 0 is the most urgent */
#define SCS_NVIC_IPR4_PRI_N19_Msk                0xC0000000u

/* Priorities of interrupts. */
#define SCS_NVIC_IPR5_OFFSET                     0x414u
#define SCS_NVIC_IPR5_RESET                      0x00000000u
#define SCS_NVIC_IPR5_PRI_N20_Pos                6u /* of interrupt 20; 0 is the most urgent */
#define SCS_NVIC_IPR5_PRI_N20_Msk                0x000000C0u
#define SCS_NVIC_IPR5_PRI_N21_Pos                14u /* of interrupt 21; 0 is the most urgent */
#define SCS_NVIC_IPR5_PRI_N21_Msk                0x0000C000u
#define SCS_NVIC_IPR5_PRI_N22_Pos                22u /* of interrupt 22; 0 is the most urgent */
#define SCS_NVIC_IPR5_PRI_N22_Msk                0x00C00000u
#define SCS_NVIC_IPR5_PRI_N23_Pos                30u /* of interrupt 23; 0 is the most urgent */
#define SCS_NVIC_IPR5_PRI_N23_Msk                0xC0000000u

/* Priorities of interrupts. */
#define SCS_NVIC_IPR6_OFFSET                     0x418u
#define SCS_NVIC_IPR6_RESET                      0x00000000u
#define SCS_NVIC_IPR6_PRI_N24_Pos                6u /* of interrupt 24; 0 is the most urgent */
#define SCS_NVIC_IPR6_PRI_N24_Msk                0x000000C0u
#define SCS_NVIC_IPR6_PRI_N25_Pos                14u /* of interrupt 25; 0 is the most urgent */
#define SCS_NVIC_IPR6_PRI_N25_Msk                0x0000C000u
#define SCS_NVIC_IPR6_PRI_N26_Pos                22u /* of interrupt 26; 0 is the most urgent */
#define SCS_NVIC_IPR6_PRI_N26_Msk                0x00C00000u
#define SCS_NVIC_IPR6_PRI_N27_Pos                30u /* of interrupt 27; 0 is the most urgent */
#define SCS_NVIC_IPR6_PRI_N27_Msk                0xC0000000u

/* Priorities of interrupts. */
#define SCS_NVIC_IPR7_OFFSET                     0x41Cu
#define SCS_NVIC_IPR7_RESET                      0x00000000u
#define SCS_NVIC_IPR7_PRI_N28_Pos                6u /* of interrupt 28; 0 is the most urgent */
#define SCS_NVIC_IPR7_PRI_N28_Msk                0x000000C0u
#define SCS_NVIC_IPR7_PRI_N29_Pos                14u /* of interrupt 29; 0 is the most urgent */
#define SCS_NVIC_IPR7_PRI_N29_Msk                0x0000C000u
#define SCS_NVIC_IPR7_PRI_N30_Pos                22u /* of interrupt 30; 0 is the most urgent */
#define SCS_NVIC_IPR7_PRI_N30_Msk                0x00C00000u
#define SCS_NVIC_IPR7_PRI_N31_Pos                30u /* of interrupt 31; 0 is the most urgent */
#define SCS_NVIC_IPR7_PRI_N31_Msk                0xC0000000u

/* Identity of the processor. */
#define SCS_CPUID_OFFSET                         0xD00u
#define SCS_CPUID_RESET                          0x410CC210u
#define SCS_CPUID_RESET_MASK                     0xFF0FFFF0u /* the bits of which the value after reset is known */
#define SCS_CPUID_REVISION_Pos                   0u /* minor revision of the processor */
#define SCS_CPUID_REVISION_Msk                   0x0000000Fu
#define SCS_CPUID_PARTNO_Pos                     4u /* number of the processor */
#define SCS_CPUID_PARTNO_Msk                     0x0000FFF0u
#define SCS_CPUID_ARCHITECTURE_Pos               16u /* 12: ARMv6-M */
#define SCS_CPUID_ARCHITECTURE_Msk               0x000F0000u
#define SCS_CPUID_VARIANT_Pos                    20u /* major revision of the processor */
#define SCS_CPUID_VARIANT_Msk                    0x00F00000u
#define SCS_CPUID_IMPLEMENTER_Pos                24u /* who designed the processor */
#define SCS_CPUID_IMPLEMENTER_Msk                0xFF000000u

/* State of the exceptions. */
#define SCS_ICSR_OFFSET                          0xD04u
#define SCS_ICSR_RESET                           0x00000000u
#define SCS_ICSR_RESET_MASK                      0x7F200FFFu /* the bits of which the value after reset is known */
#define SCS_ICSR_VECTACTIVE_Pos                  0u /* number of the running exception; 0: none */
#define SCS_ICSR_VECTACTIVE_Msk                  0x000001FFu
#define SCS_ICSR_VECTPENDING_Pos                 12u /* number of the pending exception that is first; 0: none */
#define SCS_ICSR_VECTPENDING_Msk                 0x001FF000u
#define SCS_ICSR_ISRPENDING_Pos                  22u /* an interrupt is pending */
#define SCS_ICSR_ISRPENDING_Msk                  0x00400000u
#define SCS_ICSR_ISRPREEMPT_Pos                  23u /* a pending exception runs when the debugger lets the processor go on */
#define SCS_ICSR_ISRPREEMPT_Msk                  0x00800000u
#define SCS_ICSR_PENDSTCLR_Pos                   25u /* 1 takes back the system timer's exception */
#define SCS_ICSR_PENDSTCLR_Msk                   0x02000000u
#define SCS_ICSR_PENDSTSET_Pos                   26u /* read: the system timer's exception is pending; 1 makes it pending */
#define SCS_ICSR_PENDSTSET_Msk                   0x04000000u
#define SCS_ICSR_PENDSVCLR_Pos                   27u /* 1 takes back PendSV */
#define SCS_ICSR_PENDSVCLR_Msk                   0x08000000u
#define SCS_ICSR_PENDSVSET_Pos                   28u /* read: PendSV is pending; 1 makes it pending */
#define SCS_ICSR_PENDSVSET_Msk                   0x10000000u
#define SCS_ICSR_NMIPENDSET_Pos                  31u /* read: the non-maskable interrupt is pending; 1 makes it pending */
#define SCS_ICSR_NMIPENDSET_Msk                  0x80000000u

/* Reset; a write counts only with the key. */
#define SCS_AIRCR_OFFSET                         0xD0Cu
#define SCS_AIRCR_RESET                          0x00000000u
#define SCS_AIRCR_RESET_MASK                     0x0000FFFFu /* the bits of which the value after reset is known */
#define SCS_AIRCR_VECTCLRACTIVE_Pos              1u /* 1 forgets all exceptions; for a debugger, while the processor is halted */
#define SCS_AIRCR_VECTCLRACTIVE_Msk              0x00000002u
#define SCS_AIRCR_SYSRESETREQ_Pos                2u /* 1 requests a reset of the system */
#define SCS_AIRCR_SYSRESETREQ_Msk                0x00000004u
#define SCS_AIRCR_ENDIANNESS_Pos                 15u /* order of bytes of data */
#define SCS_AIRCR_ENDIANNESS_Msk                 0x00008000u
#define SCS_AIRCR_ENDIANNESS_LITTLE              0u /* the lowest byte comes first */
#define SCS_AIRCR_ENDIANNESS_BIG                 1u /* the highest byte comes first */
#define SCS_AIRCR_VECTKEY_Pos                    16u /* key, without which a write does nothing; what is read says nothing */
#define SCS_AIRCR_VECTKEY_Msk                    0xFFFF0000u
#define SCS_AIRCR_VECTKEY_KEY                    0x5FAu /* the write counts */

/* Fixed properties of the processor. */
#define SCS_CCR_OFFSET                           0xD14u
#define SCS_CCR_RESET                            0x00000208u
#define SCS_CCR_UNALIGN_TRP_Pos                  3u /* an access across a word or halfword is a fault */
#define SCS_CCR_UNALIGN_TRP_Msk                  0x00000008u
#define SCS_CCR_STKALIGN_Pos                     9u /* the stack has multiples of eight bytes in exceptions */
#define SCS_CCR_STKALIGN_Msk                     0x00000200u

/* Priority of the supervisor call. */
#define SCS_SHPR2_OFFSET                         0xD1Cu
#define SCS_SHPR2_RESET                          0x00000000u
#define SCS_SHPR2_PRI_11_Pos                     30u /* of the supervisor call; 0 is the most urgent */
#define SCS_SHPR2_PRI_11_Msk                     0xC0000000u

/* Priorities of PendSV and of the system timer. */
#define SCS_SHPR3_OFFSET                         0xD20u
#define SCS_SHPR3_RESET                          0x00000000u
#define SCS_SHPR3_PRI_14_Pos                     22u /* of PendSV; 0 is the most urgent */
#define SCS_SHPR3_PRI_14_Msk                     0x00C00000u
#define SCS_SHPR3_PRI_15_Pos                     30u /* of the system timer; 0 is the most urgent */
#define SCS_SHPR3_PRI_15_Msk                     0xC0000000u

typedef struct {
    uint32_t RESERVED0[2];
    TARVO_ORIX_M1_RW uint32_t ACTLR; /* 0x08 */
    uint32_t RESERVED1[1];
    TARVO_ORIX_M1_RW uint32_t SYST_CSR; /* 0x10 */
    TARVO_ORIX_M1_RW uint32_t SYST_RVR; /* 0x14 */
    TARVO_ORIX_M1_RW uint32_t SYST_CVR; /* 0x18 */
    TARVO_ORIX_M1_R uint32_t SYST_CALIB; /* 0x1C */
    uint32_t RESERVED2[56];
    TARVO_ORIX_M1_RW uint32_t NVIC_ISER; /* 0x100 */
    uint32_t RESERVED3[31];
    TARVO_ORIX_M1_RW uint32_t NVIC_ICER; /* 0x180 */
    uint32_t RESERVED4[31];
    TARVO_ORIX_M1_RW uint32_t NVIC_ISPR; /* 0x200 */
    uint32_t RESERVED5[31];
    TARVO_ORIX_M1_RW uint32_t NVIC_ICPR; /* 0x280 */
    uint32_t RESERVED6[95];
    TARVO_ORIX_M1_RW uint32_t NVIC_IPR0; /* 0x400 */
    TARVO_ORIX_M1_RW uint32_t NVIC_IPR1; /* 0x404 */
    TARVO_ORIX_M1_RW uint32_t NVIC_IPR2; /* 0x408 */
    TARVO_ORIX_M1_RW uint32_t NVIC_IPR3; /* 0x40C */
    TARVO_ORIX_M1_RW uint32_t NVIC_IPR4; /* 0x410 */
    TARVO_ORIX_M1_RW uint32_t NVIC_IPR5; /* 0x414 */
    TARVO_ORIX_M1_RW uint32_t NVIC_IPR6; /* 0x418 */
    TARVO_ORIX_M1_RW uint32_t NVIC_IPR7; /* 0x41C */
    uint32_t RESERVED7[568];
    TARVO_ORIX_M1_R uint32_t CPUID; /* 0xD00 */
    TARVO_ORIX_M1_RW uint32_t ICSR; /* 0xD04 */
    uint32_t RESERVED8[1];
    TARVO_ORIX_M1_RW uint32_t AIRCR; /* 0xD0C */
    uint32_t RESERVED9[1];
    TARVO_ORIX_M1_R uint32_t CCR; /* 0xD14 */
    uint32_t RESERVED10[1];
    TARVO_ORIX_M1_RW uint32_t SHPR2; /* 0xD1C */
    TARVO_ORIX_M1_RW uint32_t SHPR3; /* 0xD20 */
} SCS_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_ACTLR,
                     offsetof(SCS_Type, ACTLR) == SCS_ACTLR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_SYST_CSR,
                     offsetof(SCS_Type, SYST_CSR) == SCS_SYST_CSR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_SYST_RVR,
                     offsetof(SCS_Type, SYST_RVR) == SCS_SYST_RVR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_SYST_CVR,
                     offsetof(SCS_Type, SYST_CVR) == SCS_SYST_CVR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_SYST_CALIB,
                     offsetof(SCS_Type, SYST_CALIB) == SCS_SYST_CALIB_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_NVIC_ISER,
                     offsetof(SCS_Type, NVIC_ISER) == SCS_NVIC_ISER_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_NVIC_ICER,
                     offsetof(SCS_Type, NVIC_ICER) == SCS_NVIC_ICER_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_NVIC_ISPR,
                     offsetof(SCS_Type, NVIC_ISPR) == SCS_NVIC_ISPR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_NVIC_ICPR,
                     offsetof(SCS_Type, NVIC_ICPR) == SCS_NVIC_ICPR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_NVIC_IPR0,
                     offsetof(SCS_Type, NVIC_IPR0) == SCS_NVIC_IPR0_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_NVIC_IPR1,
                     offsetof(SCS_Type, NVIC_IPR1) == SCS_NVIC_IPR1_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_NVIC_IPR2,
                     offsetof(SCS_Type, NVIC_IPR2) == SCS_NVIC_IPR2_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_NVIC_IPR3,
                     offsetof(SCS_Type, NVIC_IPR3) == SCS_NVIC_IPR3_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_NVIC_IPR4,
                     offsetof(SCS_Type, NVIC_IPR4) == SCS_NVIC_IPR4_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_NVIC_IPR5,
                     offsetof(SCS_Type, NVIC_IPR5) == SCS_NVIC_IPR5_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_NVIC_IPR6,
                     offsetof(SCS_Type, NVIC_IPR6) == SCS_NVIC_IPR6_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_NVIC_IPR7,
                     offsetof(SCS_Type, NVIC_IPR7) == SCS_NVIC_IPR7_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_CPUID,
                     offsetof(SCS_Type, CPUID) == SCS_CPUID_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_ICSR,
                     offsetof(SCS_Type, ICSR) == SCS_ICSR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_AIRCR,
                     offsetof(SCS_Type, AIRCR) == SCS_AIRCR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_CCR,
                     offsetof(SCS_Type, CCR) == SCS_CCR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_SHPR2,
                     offsetof(SCS_Type, SHPR2) == SCS_SHPR2_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SCS_Type_SHPR3,
                     offsetof(SCS_Type, SHPR3) == SCS_SHPR3_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_SCS_Type, sizeof(SCS_Type) == 0xD24u);

#define SCS                                      ((SCS_Type *)(uintptr_t)SCS_BASE)

/* What a program needs of the processor beside the registers. Define TARVO_ORIX_M1_NO_CORE before
 * this header if another one brings functions of these names. Numbers from
 * TARVO_ORIX_M1_INTERRUPTS upwards do nothing and read as 0. */
#ifndef TARVO_ORIX_M1_NO_CORE

#define TARVO_ORIX_M1_WORD(address) (*(volatile uint32_t *)(uintptr_t)(address))

/* Instructions of the processor; nothing where the program is compiled for another one. */
#if defined(__GNUC__) && defined(__ARM_ARCH_PROFILE) && (__ARM_ARCH_PROFILE == 'M')
static inline void __enable_irq(void) { __asm__ volatile("cpsie i" : : : "memory"); }
static inline void __disable_irq(void) { __asm__ volatile("cpsid i" : : : "memory"); }
static inline uint32_t __get_PRIMASK(void)
{
    uint32_t value;
    __asm__ volatile("mrs %0, primask" : "=r"(value) : : "memory");
    return value;
}
static inline void __set_PRIMASK(uint32_t value)
{
    __asm__ volatile("msr primask, %0" : : "r"(value) : "memory");
}
static inline void __NOP(void) { __asm__ volatile("nop"); }
static inline void __WFI(void) { __asm__ volatile("wfi" : : : "memory"); }
static inline void __WFE(void) { __asm__ volatile("wfe" : : : "memory"); }
static inline void __SEV(void) { __asm__ volatile("sev" : : : "memory"); }
static inline void __ISB(void) { __asm__ volatile("isb" : : : "memory"); }
static inline void __DSB(void) { __asm__ volatile("dsb" : : : "memory"); }
static inline void __DMB(void) { __asm__ volatile("dmb" : : : "memory"); }
#else
static inline void __enable_irq(void) {}
static inline void __disable_irq(void) {}
static inline uint32_t __get_PRIMASK(void) { return 0u; }
static inline void __set_PRIMASK(uint32_t value) { (void)value; }
static inline void __NOP(void) {}
static inline void __WFI(void) {}
static inline void __WFE(void) {}
static inline void __SEV(void) {}
static inline void __ISB(void) {}
static inline void __DSB(void) {}
static inline void __DMB(void) {}
#endif

static inline void NVIC_EnableIRQ(IRQn_Type irq)
{
    uint32_t number = (uint32_t)irq;
    if (number < TARVO_ORIX_M1_INTERRUPTS)
        TARVO_ORIX_M1_WORD(SCS_BASE + SCS_NVIC_ISER_OFFSET) = 1u << (number & 31u);
}

/* No such interrupt begins once this has returned. */
static inline void NVIC_DisableIRQ(IRQn_Type irq)
{
    uint32_t number = (uint32_t)irq;
    if (number < TARVO_ORIX_M1_INTERRUPTS)
        TARVO_ORIX_M1_WORD(SCS_BASE + SCS_NVIC_ICER_OFFSET) = 1u << (number & 31u);
    __DSB();
    __ISB();
}

static inline uint32_t NVIC_GetEnableIRQ(IRQn_Type irq)
{
    uint32_t number = (uint32_t)irq;
    if (number >= TARVO_ORIX_M1_INTERRUPTS)
        return 0u;
    return (TARVO_ORIX_M1_WORD(SCS_BASE + SCS_NVIC_ISER_OFFSET) >> (number & 31u)) & 1u;
}

static inline void NVIC_SetPendingIRQ(IRQn_Type irq)
{
    uint32_t number = (uint32_t)irq;
    if (number < TARVO_ORIX_M1_INTERRUPTS)
        TARVO_ORIX_M1_WORD(SCS_BASE + SCS_NVIC_ISPR_OFFSET) = 1u << (number & 31u);
}

static inline void NVIC_ClearPendingIRQ(IRQn_Type irq)
{
    uint32_t number = (uint32_t)irq;
    if (number < TARVO_ORIX_M1_INTERRUPTS)
        TARVO_ORIX_M1_WORD(SCS_BASE + SCS_NVIC_ICPR_OFFSET) = 1u << (number & 31u);
}

static inline uint32_t NVIC_GetPendingIRQ(IRQn_Type irq)
{
    uint32_t number = (uint32_t)irq;
    if (number >= TARVO_ORIX_M1_INTERRUPTS)
        return 0u;
    return (TARVO_ORIX_M1_WORD(SCS_BASE + SCS_NVIC_ISPR_OFFSET) >> (number & 31u)) & 1u;
}

/* The word with an interrupt's priority and the place of its two bits; null if it has none. */
static inline volatile uint32_t *tarvo_orix_m1_priority(IRQn_Type irq, uint32_t *shift)
{
    uint32_t number = (uint32_t)irq;
    *shift = ((number & 3u) * 8u) + (8u - __NVIC_PRIO_BITS);
    if (number < TARVO_ORIX_M1_INTERRUPTS)
        return &TARVO_ORIX_M1_WORD(SCS_BASE + SCS_NVIC_IPR0_OFFSET) + (number >> 2);
    if (irq == SVCall_IRQn)
        return &TARVO_ORIX_M1_WORD(SCS_BASE + SCS_SHPR2_OFFSET);
    if (irq == PendSV_IRQn || irq == SysTick_IRQn)
        return &TARVO_ORIX_M1_WORD(SCS_BASE + SCS_SHPR3_OFFSET);
    return NULL;
}

/* From 0, the most urgent, to 3. Not to be interrupted by another call of itself: it reads the
 * word with four priorities and writes it back. */
static inline void NVIC_SetPriority(IRQn_Type irq, uint32_t priority)
{
    const uint32_t largest = (1u << __NVIC_PRIO_BITS) - 1u;
    uint32_t shift;
    volatile uint32_t *word = tarvo_orix_m1_priority(irq, &shift);
    if (word != NULL)
        *word = (*word & ~(largest << shift)) | ((priority & largest) << shift);
}

static inline uint32_t NVIC_GetPriority(IRQn_Type irq)
{
    uint32_t shift;
    const volatile uint32_t *word = tarvo_orix_m1_priority(irq, &shift);
    return word == NULL ? 0u : (*word >> shift) & ((1u << __NVIC_PRIO_BITS) - 1u);
}

/* Requests a reset of the system and does not return. */
static inline void NVIC_SystemReset(void)
{
    __DSB();
    TARVO_ORIX_M1_WORD(SCS_BASE + SCS_AIRCR_OFFSET) = (0x05FAu << 16) | (1u << 2);
    __DSB();
    for (;;)
        __NOP();
}

/* An exception every so many clock cycles, with the least urgent priority: 1 to 0x1000000. Returns
 * 0, or 1 if the timer cannot count so far. */
static inline uint32_t SysTick_Config(uint32_t ticks)
{
    if (ticks == 0u || ticks > 0x1000000u)
        return 1u;
    TARVO_ORIX_M1_WORD(SCS_BASE + SCS_SYST_RVR_OFFSET) = ticks - 1u;
    NVIC_SetPriority(SysTick_IRQn, (1u << __NVIC_PRIO_BITS) - 1u);
    TARVO_ORIX_M1_WORD(SCS_BASE + SCS_SYST_CVR_OFFSET) = 0u;
    TARVO_ORIX_M1_WORD(SCS_BASE + SCS_SYST_CSR_OFFSET) = 7u;
    return 0u;
}

#endif

#ifdef __cplusplus
}
#endif

#endif
