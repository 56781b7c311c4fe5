/* Device header of a subsystem with a Cortex-M1 processor on TV5KT-138B, for C99 and C++11.
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
    SysTick_IRQn = -1, /* system timer */
    UART0_IRQn = 0, /* first serial line */
    SYS_IRQn = 17 /* says why a reset was, and which access failed */
} IRQn_Type;

#define UART0_IRQ                                0
#define SYS_IRQ                                  17

/* What answers where: the first address, and the size in bytes. An access to any other address
 * gives an error. */
#define UART0_SIZE                               0x00001000u
#define SYS_SIZE                                 0x00001000u

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

/* UART: Characters of 5 to 9 bits, with or without parity, and one or two stop bits; a FIFO of
 * 16 characters in each direction beside the shift registers. What was wrong with a received
 * character stays with it. Bytes and halfwords: a character is sent only by a write that
 * reaches the lowest byte of DATA, and taken only by a read that begins there. BAUDDIV counts
 * as its minimum while the whole of it is smaller. */
#define UART0_BASE                               0x50004000u /* first serial line */

/* Characters to and from the line, and what was wrong with a received one. While nothing waits
 * it reads as 0. */
#define UART_DATA_OFFSET                         0x00u
#define UART_DATA_RESET                          0x00000000u
#define UART_DATA_BYTE_Pos                       0u /* write: bits 7 to 0 of a character to send; read: those of the oldest received character, which is thereby taken. Unused bits of shorter characters count for nothing, and read as 0 */
#define UART_DATA_BYTE_Msk                       0x000000FFu
#define UART_DATA_BIT8_Pos                       8u /* bit 8 of characters of nine bits; a write of the lowest byte alone sends 0 */
#define UART_DATA_BIT8_Msk                       0x00000100u
#define UART_DATA_BIT8_ZERO                      0u /* the bit is 0 */
#define UART_DATA_BIT8_ONE                       1u /* the bit is 1 */
#define UART_DATA_PARITY_Pos                     9u /* wrong parity; a character without a stop bit is not checked */
#define UART_DATA_PARITY_Msk                     0x00000200u
#define UART_DATA_PARITY_NO                      0u /* right, or not checked */
#define UART_DATA_PARITY_YES                     1u /* wrong */
#define UART_DATA_FRAME_Pos                      10u /* the stop bit was 0 */
#define UART_DATA_FRAME_Msk                      0x00000400u
#define UART_DATA_FRAME_NO                       0u /* it was 1 */
#define UART_DATA_FRAME_YES                      1u /* it was 0 */
#define UART_DATA_BREAK_Pos                      11u /* a break: all bits were 0, the stop bit too */
#define UART_DATA_BREAK_Msk                      0x00000800u
#define UART_DATA_BREAK_NO                       0u /* no break */
#define UART_DATA_BREAK_YES                      1u /* a break; FRAME is 1, too */
#define UART_DATA_OVER_Pos                       12u /* characters in front of this one are lost */
#define UART_DATA_OVER_Msk                       0x00001000u
#define UART_DATA_OVER_NO                        0u /* none is lost */
#define UART_DATA_OVER_YES                       1u /* at least one is lost */

/* State of the FIFOs and errors. */
#define UART_STATUS_OFFSET                       0x04u
#define UART_STATUS_RESET                        0x00000000u
#define UART_STATUS_TXFULL_Pos                   0u /* the transmit FIFO is full */
#define UART_STATUS_TXFULL_Msk                   0x00000001u
#define UART_STATUS_TXFULL_EMPTY                 0u /* a character can be written */
#define UART_STATUS_TXFULL_FULL                  1u /* none can be written */
#define UART_STATUS_RXFULL_Pos                   1u /* a received character waits to be read */
#define UART_STATUS_RXFULL_Msk                   0x00000002u
#define UART_STATUS_RXFULL_EMPTY                 0u /* nothing to read */
#define UART_STATUS_RXFULL_FULL                  1u /* at least one waits */
#define UART_STATUS_TXBUSY_Pos                   2u /* FIFO or line busy, or a break is due */
#define UART_STATUS_TXBUSY_Msk                   0x00000004u
#define UART_STATUS_TXBUSY_IDLE                  0u /* everything is sent, the stop bits too */
#define UART_STATUS_TXBUSY_BUSY                  1u /* something is to be sent */
#define UART_STATUS_RXOVER_Pos                   3u /* a character arrived while the receive FIFO was full and is lost; DATA.OVER tells where */
#define UART_STATUS_RXOVER_Msk                   0x00000008u
#define UART_STATUS_RXOVER_NO                    0u /* nothing is lost */
#define UART_STATUS_RXOVER_YES                   1u /* a character is lost */
#define UART_STATUS_FRAME_Pos                    4u /* a stop bit was 0 */
#define UART_STATUS_FRAME_Msk                    0x00000010u
#define UART_STATUS_FRAME_NO                     0u /* no such error */
#define UART_STATUS_FRAME_YES                    1u /* a stop bit was 0 */
#define UART_STATUS_TXOVER_Pos                   5u /* DATA was written while TXFULL */
#define UART_STATUS_TXOVER_Msk                   0x00000020u
#define UART_STATUS_TXOVER_NO                    0u /* nothing is lost */
#define UART_STATUS_TXOVER_YES                   1u /* a character is lost */
#define UART_STATUS_PARITY_Pos                   6u /* a parity was wrong */
#define UART_STATUS_PARITY_Msk                   0x00000040u
#define UART_STATUS_PARITY_NO                    0u /* no such error */
#define UART_STATUS_PARITY_YES                   1u /* a parity was wrong */
#define UART_STATUS_BREAK_Pos                    7u /* a break has come; it sets FRAME, too */
#define UART_STATUS_BREAK_Msk                    0x00000080u
#define UART_STATUS_BREAK_NO                     0u /* none */
#define UART_STATUS_BREAK_YES                    1u /* a break has come */
#define UART_STATUS_TIMEOUT_Pos                  8u /* characters wait, and for the bit times of TIMEOUT none has come and none was read; ends with the next one */
#define UART_STATUS_TIMEOUT_Msk                  0x00000100u
#define UART_STATUS_TIMEOUT_NO                   0u /* no */
#define UART_STATUS_TIMEOUT_YES                  1u /* yes */
#define UART_STATUS_RXBUSY_Pos                   9u /* a character is being received */
#define UART_STATUS_RXBUSY_Msk                   0x00000200u
#define UART_STATUS_RXBUSY_IDLE                  0u /* the line is idle */
#define UART_STATUS_RXBUSY_BUSY                  1u /* from the falling edge of a start bit to the middle of the stop bit */

/* Enables. All interrupts stay until their reason has gone. */
#define UART_CTRL_OFFSET                         0x08u
#define UART_CTRL_RESET                          0x00000000u
#define UART_CTRL_TXEN_Pos                       0u /* transmitter on */
#define UART_CTRL_TXEN_Msk                       0x00000001u
#define UART_CTRL_TXEN_OFF                       0u /* off; a character on its way is sent to its end */
#define UART_CTRL_TXEN_ON                        1u /* on */
#define UART_CTRL_RXEN_Pos                       1u /* receiver on */
#define UART_CTRL_RXEN_Msk                       0x00000002u
#define UART_CTRL_RXEN_OFF                       0u /* off; a character on its way is dropped, those in the FIFO stay */
#define UART_CTRL_RXEN_ON                        1u /* on */
#define UART_CTRL_TXIE_Pos                       2u /* interrupt while there is room for more characters than THRESHOLD.TX says; after reset, for one */
#define UART_CTRL_TXIE_Msk                       0x00000004u
#define UART_CTRL_TXIE_OFF                       0u /* no interrupt */
#define UART_CTRL_TXIE_ON                        1u /* interrupt */
#define UART_CTRL_RXIE_Pos                       3u /* interrupt while more characters wait than THRESHOLD.RX says; after reset, one */
#define UART_CTRL_RXIE_Msk                       0x00000008u
#define UART_CTRL_RXIE_OFF                       0u /* no interrupt */
#define UART_CTRL_RXIE_ON                        1u /* interrupt */
#define UART_CTRL_ERRIE_Pos                      4u /* interrupt while RXOVER, FRAME, TXOVER or PARITY */
#define UART_CTRL_ERRIE_Msk                      0x00000010u
#define UART_CTRL_ERRIE_OFF                      0u /* no interrupt */
#define UART_CTRL_ERRIE_ON                       1u /* interrupt */
#define UART_CTRL_TIMEOUTIE_Pos                  5u /* interrupt while STATUS.TIMEOUT */
#define UART_CTRL_TIMEOUTIE_Msk                  0x00000020u
#define UART_CTRL_TIMEOUTIE_OFF                  0u /* no interrupt */
#define UART_CTRL_TIMEOUTIE_ON                   1u /* interrupt */
#define UART_CTRL_BREAKIE_Pos                    6u /* interrupt while STATUS.BREAK */
#define UART_CTRL_BREAKIE_Msk                    0x00000040u
#define UART_CTRL_BREAKIE_OFF                    0u /* no interrupt */
#define UART_CTRL_BREAKIE_ON                     1u /* interrupt */
#define UART_CTRL_IDLEIE_Pos                     7u /* interrupt while TXBUSY is 0 */
#define UART_CTRL_IDLEIE_Msk                     0x00000080u
#define UART_CTRL_IDLEIE_OFF                     0u /* no interrupt */
#define UART_CTRL_IDLEIE_ON                      1u /* interrupt */
#define UART_CTRL_BREAK_Pos                      8u /* sends a break behind the running character while TXEN: the line is low for 13 bit times and on while this is 1, then high for one bit time. Characters in the FIFO follow. A 1 for however short a time sends one */
#define UART_CTRL_BREAK_Msk                      0x00000100u
#define UART_CTRL_BREAK_OFF                      0u /* no break, or its end */
#define UART_CTRL_BREAK_ON                       1u /* break */
#define UART_CTRL_LOOP_Pos                       9u /* loop-back; to be changed while RXEN is 0 */
#define UART_CTRL_LOOP_Msk                       0x00000200u
#define UART_CTRL_LOOP_OFF                       0u /* the pins are connected */
#define UART_CTRL_LOOP_ON                        1u /* the receiver hears the transmitter, the pin TXD is high and RXD counts for nothing */

/* Bit time. */
#define UART_BAUDDIV_OFFSET                      0x0Cu
#define UART_BAUDDIV_RESET                       0x00000010u
#define UART_BAUDDIV_CYCLES_Pos                  0u /* clock cycles per bit; smaller values count as the minimum. The bit time is CYCLES + FRACTION / 64 clock cycles. The transmitter's edges are off by less than a cycle. The receiver samples each bit three times around its middle, a sixteenth of a bit time apart, and takes the majority; it takes characters whose rate is up to (50 - 100 / D) / (N - 0.5) percent lower or higher, where D is this bit time and N the bits from the start bit to the first stop bit. That is 4 percent and more for all formats from a bit time of 26 cycles on, and up to eight data bits with a parity bit, or nine without, with any; measured at the smallest bit time, 16 cycles: 4.6 percent for eight bits without parity (5.1 at 48 cycles), 3.8 percent for nine with parity (4.2 at 48 cycles) */
#define UART_BAUDDIV_CYCLES_Msk                  0x000FFFFFu
#define UART_BAUDDIV_FRACTION_Pos                20u /* further 64ths of a cycle, on the average */
#define UART_BAUDDIV_FRACTION_Msk                0x03F00000u

/* Form of the characters, in both directions, the lowest bit first. To be changed while
 * nothing is sent or received. */
#define UART_FORMAT_OFFSET                       0x10u
#define UART_FORMAT_RESET                        0x00000003u
#define UART_FORMAT_BITS_Pos                     0u /* data bits, unless NINE */
#define UART_FORMAT_BITS_Msk                     0x00000003u
#define UART_FORMAT_BITS_FIVE                    0u /* five */
#define UART_FORMAT_BITS_SIX                     1u /* six */
#define UART_FORMAT_BITS_SEVEN                   2u /* seven */
#define UART_FORMAT_BITS_EIGHT                   3u /* eight */
#define UART_FORMAT_NINE_Pos                     2u /* nine data bits */
#define UART_FORMAT_NINE_Msk                     0x00000004u
#define UART_FORMAT_NINE_OFF                     0u /* as BITS says */
#define UART_FORMAT_NINE_ON                      1u /* nine */
#define UART_FORMAT_PARITY_Pos                   3u /* parity bit behind the data bits */
#define UART_FORMAT_PARITY_Msk                   0x00000008u
#define UART_FORMAT_PARITY_OFF                   0u /* none */
#define UART_FORMAT_PARITY_ON                    1u /* sent, and checked */
#define UART_FORMAT_ODD_Pos                      4u /* which parity */
#define UART_FORMAT_ODD_Msk                      0x00000010u
#define UART_FORMAT_ODD_EVEN                     0u /* an even number of ones, with it; 0 with STICK */
#define UART_FORMAT_ODD_ODD                      1u /* an odd number of ones, with it; 1 with STICK */
#define UART_FORMAT_STICK_Pos                    5u /* parity bit without parity */
#define UART_FORMAT_STICK_Msk                    0x00000020u
#define UART_FORMAT_STICK_OFF                    0u /* it depends on the data bits */
#define UART_FORMAT_STICK_ON                     1u /* it is always the value of ODD */
#define UART_FORMAT_STOP_Pos                     6u /* stop bits that are sent; received characters need one */
#define UART_FORMAT_STOP_Msk                     0x00000040u
#define UART_FORMAT_STOP_ONE                     0u /* one */
#define UART_FORMAT_STOP_TWO                     1u /* two */
#define UART_FORMAT_KEEP_Pos                     7u /* what becomes of received characters that have PARITY or FRAME; STATUS tells in any case */
#define UART_FORMAT_KEEP_Msk                     0x00000080u
#define UART_FORMAT_KEEP_OFF                     0u /* they are dropped */
#define UART_FORMAT_KEEP_ON                      1u /* they go into the FIFO, and DATA tells what was wrong */

/* What is in the FIFOs, and the line. */
#define UART_LEVEL_OFFSET                        0x14u
#define UART_LEVEL_RESET                         0x00000000u
#define UART_LEVEL_RESET_MASK                    0xFFFEFFFFu /* the bits of which the value after reset is known */
#define UART_LEVEL_RX_Pos                        0u /* received characters that wait */
#define UART_LEVEL_RX_Msk                        0x000000FFu
#define UART_LEVEL_TX_Pos                        8u /* characters that wait to be sent, without the one on its way */
#define UART_LEVEL_TX_Msk                        0x0000FF00u
#define UART_LEVEL_LINE_Pos                      16u /* level that the receiver sees */
#define UART_LEVEL_LINE_Msk                      0x00010000u
#define UART_LEVEL_LINE_LOW                      0u /* low: a start bit, a zero or a break */
#define UART_LEVEL_LINE_HIGH                     1u /* high: idle, a one or a stop bit */

/* When TXIE and RXIE ask for an interrupt. */
#define UART_THRESHOLD_OFFSET                    0x18u
#define UART_THRESHOLD_RESET                     0x00000000u
#define UART_THRESHOLD_RX_Pos                    0u /* more characters than this wait */
#define UART_THRESHOLD_RX_Msk                    0x0000000Fu
#define UART_THRESHOLD_RX_ONE                    0u /* any */
#define UART_THRESHOLD_RX_TWO                    1u /* two, or more */
#define UART_THRESHOLD_RX_THREE                  2u /* three, or more */
#define UART_THRESHOLD_RX_FOUR                   3u /* four, or more */
#define UART_THRESHOLD_RX_FIVE                   4u /* five, or more */
#define UART_THRESHOLD_RX_SIX                    5u /* six, or more */
#define UART_THRESHOLD_RX_SEVEN                  6u /* seven, or more */
#define UART_THRESHOLD_RX_EIGHT                  7u /* eight, or more */
#define UART_THRESHOLD_RX_NINE                   8u /* nine, or more */
#define UART_THRESHOLD_RX_TEN                    9u /* ten, or more */
#define UART_THRESHOLD_RX_ELEVEN                 0xAu /* eleven, or more */
#define UART_THRESHOLD_RX_TWELVE                 0xBu /* twelve, or more */
#define UART_THRESHOLD_RX_THIRTEEN               0xCu /* thirteen, or more */
#define UART_THRESHOLD_RX_FOURTEEN               0xDu /* fourteen, or more */
#define UART_THRESHOLD_RX_FIFTEEN                0xEu /* fifteen, or more */
#define UART_THRESHOLD_RX_SIXTEEN                0xFu /* sixteen, or more */
#define UART_THRESHOLD_TX_Pos                    8u /* there is room for more characters than this */
#define UART_THRESHOLD_TX_Msk                    0x00000F00u
#define UART_THRESHOLD_TX_ONE                    0u /* for one, or more */
#define UART_THRESHOLD_TX_TWO                    1u /* for two, or more */
#define UART_THRESHOLD_TX_THREE                  2u /* for three, or more */
#define UART_THRESHOLD_TX_FOUR                   3u /* for four, or more */
#define UART_THRESHOLD_TX_FIVE                   4u /* for five, or more */
#define UART_THRESHOLD_TX_SIX                    5u /* for six, or more */
#define UART_THRESHOLD_TX_SEVEN                  6u /* for seven, or more */
#define UART_THRESHOLD_TX_EIGHT                  7u /* for eight, or more */
#define UART_THRESHOLD_TX_NINE                   8u /* for nine, or more */
#define UART_THRESHOLD_TX_TEN                    9u /* for ten, or more */
#define UART_THRESHOLD_TX_ELEVEN                 0xAu /* for eleven, or more */
#define UART_THRESHOLD_TX_TWELVE                 0xBu /* for twelve, or more */
#define UART_THRESHOLD_TX_THIRTEEN               0xCu /* for thirteen, or more */
#define UART_THRESHOLD_TX_FOURTEEN               0xDu /* for fourteen, or more */
#define UART_THRESHOLD_TX_FIFTEEN                0xEu /* for fifteen, or more */
#define UART_THRESHOLD_TX_SIXTEEN                0xFu /* the FIFO is empty */

/* Receive time-out. */
#define UART_TIMEOUT_OFFSET                      0x1Cu
#define UART_TIMEOUT_RESET                       0x00000000u
#define UART_TIMEOUT_BITS_Pos                    0u /* bit times, one more or less, that the line is idle before STATUS.TIMEOUT; 0: never */
#define UART_TIMEOUT_BITS_Msk                    0x000000FFu

/* Empties FIFOs. */
#define UART_COMMAND_OFFSET                      0x20u
#define UART_COMMAND_RESET                       0x00000000u
#define UART_COMMAND_RXCLEAR_Pos                 0u /* drops the received characters that wait; flags in STATUS stay */
#define UART_COMMAND_RXCLEAR_Msk                 0x00000001u
#define UART_COMMAND_RXCLEAR_NONE                0u /* nothing happens */
#define UART_COMMAND_RXCLEAR_CLEAR               1u /* drop them */
#define UART_COMMAND_TXCLEAR_Pos                 1u /* drops the characters that wait to be sent; the one on its way leaves */
#define UART_COMMAND_TXCLEAR_Msk                 0x00000002u
#define UART_COMMAND_TXCLEAR_NONE                0u /* nothing happens */
#define UART_COMMAND_TXCLEAR_CLEAR               1u /* drop them */

/* What this block is. */
#define UART_ID_OFFSET                           0xFFCu
#define UART_ID_RESET                            0x11840202u
#define UART_ID_BLOCK_Pos                        0u /* kind of block */
#define UART_ID_BLOCK_Msk                        0x000000FFu
#define UART_ID_REVISION_Pos                     8u /* revision of its registers */
#define UART_ID_REVISION_Msk                     0x0000FF00u
#define UART_ID_DEPTH_Pos                        16u /* characters in each FIFO, as a power of two */
#define UART_ID_DEPTH_Msk                        0x003F0000u
#define UART_ID_FRACTION_Pos                     22u /* bits of BAUDDIV.FRACTION */
#define UART_ID_FRACTION_Msk                     0x0FC00000u
#define UART_ID_TIMEOUT_Pos                      28u /* receive time-out */
#define UART_ID_TIMEOUT_Msk                      0x10000000u
#define UART_ID_TIMEOUT_ABSENT                   0u /* it is not there */
#define UART_ID_TIMEOUT_PRESENT                  1u /* it is there */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t DATA; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t STATUS; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t BAUDDIV; /* 0x0C */
    TARVO_ORIX_M1_RW uint32_t FORMAT; /* 0x10 */
    TARVO_ORIX_M1_R uint32_t LEVEL; /* 0x14 */
    TARVO_ORIX_M1_RW uint32_t THRESHOLD; /* 0x18 */
    TARVO_ORIX_M1_RW uint32_t TIMEOUT; /* 0x1C */
    TARVO_ORIX_M1_W uint32_t COMMAND; /* 0x20 */
    uint32_t RESERVED0[1014];
    TARVO_ORIX_M1_R uint32_t ID; /* 0xFFC */
} UART_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_DATA,
                     offsetof(UART_Type, DATA) == UART_DATA_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_STATUS,
                     offsetof(UART_Type, STATUS) == UART_STATUS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_CTRL,
                     offsetof(UART_Type, CTRL) == UART_CTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_BAUDDIV,
                     offsetof(UART_Type, BAUDDIV) == UART_BAUDDIV_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_FORMAT,
                     offsetof(UART_Type, FORMAT) == UART_FORMAT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_LEVEL,
                     offsetof(UART_Type, LEVEL) == UART_LEVEL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_THRESHOLD,
                     offsetof(UART_Type, THRESHOLD) == UART_THRESHOLD_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_TIMEOUT,
                     offsetof(UART_Type, TIMEOUT) == UART_TIMEOUT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_COMMAND,
                     offsetof(UART_Type, COMMAND) == UART_COMMAND_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_ID,
                     offsetof(UART_Type, ID) == UART_ID_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_UART_Type, sizeof(UART_Type) == 0x1000u);

#define UART0                                    ((UART_Type *)(uintptr_t)UART0_BASE)

/* SYS: System control: why the last reset was, which access to the bus failed last, how long a
 * slave may take, and what the configuration has. RESETCAUSE, ERRADDR, ERRINFO and SCRATCH
 * keep their values when the system is reset; only the reset pin clears them. */
#define SYS_BASE                                 0x5000F000u /* says why a reset was, and which access failed */

/* Causes of the resets since the bits were cleared; several may be set. */
#define SYS_RESETCAUSE_OFFSET                    0x00u
#define SYS_RESETCAUSE_RESET                     0x00000000u
#define SYS_RESETCAUSE_RESET_MASK                0xFFFFFFFCu /* the bits of which the value after reset is known */
#define SYS_RESETCAUSE_POWERON_Pos               0u /* the reset pin, the first time since the device was configured */
#define SYS_RESETCAUSE_POWERON_Msk               0x00000001u
#define SYS_RESETCAUSE_POWERON_NO                0u /* not since cleared */
#define SYS_RESETCAUSE_POWERON_YES               1u /* device configured, then the reset pin; all other bits were 0 */
#define SYS_RESETCAUSE_PIN_Pos                   1u /* the reset pin, on a device that had been running */
#define SYS_RESETCAUSE_PIN_Msk                   0x00000002u
#define SYS_RESETCAUSE_PIN_NO                    0u /* not since cleared */
#define SYS_RESETCAUSE_PIN_YES                   1u /* reset pin; all other bits were 0 */
#define SYS_RESETCAUSE_WATCHDOG_Pos              2u /* the watchdog */
#define SYS_RESETCAUSE_WATCHDOG_Msk              0x00000004u
#define SYS_RESETCAUSE_WATCHDOG_NO               0u /* not since cleared */
#define SYS_RESETCAUSE_WATCHDOG_YES              1u /* the watchdog has reset the system */
#define SYS_RESETCAUSE_SOFTWARE_Pos              3u /* SYSRESETREQ of the processor, by a program or a debugger */
#define SYS_RESETCAUSE_SOFTWARE_Msk              0x00000008u
#define SYS_RESETCAUSE_SOFTWARE_NO               0u /* not since cleared */
#define SYS_RESETCAUSE_SOFTWARE_YES              1u /* SYSRESETREQ has reset the system */
#define SYS_RESETCAUSE_LOCKUP_Pos                4u /* a lock-up of the processor, with CTRL.LOCKUPRST */
#define SYS_RESETCAUSE_LOCKUP_Msk                0x00000010u
#define SYS_RESETCAUSE_LOCKUP_NO                 0u /* not since cleared */
#define SYS_RESETCAUSE_LOCKUP_YES                1u /* a lock-up has reset the system */
#define SYS_RESETCAUSE_DEBUG_Pos                 5u /* nSRST of the debug connector */
#define SYS_RESETCAUSE_DEBUG_Msk                 0x00000020u
#define SYS_RESETCAUSE_DEBUG_NO                  0u /* not since cleared */
#define SYS_RESETCAUSE_DEBUG_YES                 1u /* the debug connector has reset the system */

/* Control; every reset of the system clears it. */
#define SYS_CTRL_OFFSET                          0x04u
#define SYS_CTRL_RESET                           0x00000000u
#define SYS_CTRL_LOCKUPRST_Pos                   0u /* a lock-up of the processor resets the system */
#define SYS_CTRL_LOCKUPRST_Msk                   0x00000001u
#define SYS_CTRL_LOCKUPRST_OFF                   0u /* a lock-up lasts until another reset */
#define SYS_CTRL_LOCKUPRST_ON                    1u /* a lock-up resets the system */
#define SYS_CTRL_ERRIE_Pos                       1u /* interrupt while ERRINFO.VALID is 1 */
#define SYS_CTRL_ERRIE_Msk                       0x00000002u
#define SYS_CTRL_ERRIE_OFF                       0u /* no interrupt */
#define SYS_CTRL_ERRIE_ON                        1u /* a failed access interrupts */

/* Limit of wait states. A transfer that is not ready after so many ends with an error
 * response. An AHB slave that let it come to that is abandoned: accesses to it get an error
 * response at once, until it is ready. Every reset of the system sets it to 0x3FFFF, more than
 * any block of the subsystem takes. An APB transfer has one wait state of its own; an APB
 * peripheral that needs none is never too late. */
#define SYS_BUSTIMEOUT_OFFSET                    0x08u
#define SYS_BUSTIMEOUT_RESET                     0x0003FFFFu
#define SYS_BUSTIMEOUT_CYCLES_Pos                0u /* clock cycles; 0 for no limit */
#define SYS_BUSTIMEOUT_CYCLES_Msk                0x0003FFFFu

/* Address of the last access that got an error response. */
#define SYS_ERRADDR_OFFSET                       0x0Cu
#define SYS_ERRADDR_RESET                        0x00000000u
#define SYS_ERRADDR_ADDR_Pos                     0u /* address */
#define SYS_ERRADDR_ADDR_Msk                     0xFFFFFFFFu

/* The last access that got an error response, by the processor or its debugger. */
#define SYS_ERRINFO_OFFSET                       0x10u
#define SYS_ERRINFO_RESET                        0x00000000u
#define SYS_ERRINFO_VALID_Pos                    0u /* an access has failed; the other fields and ERRADDR keep their values when it is cleared */
#define SYS_ERRINFO_VALID_Msk                    0x00000001u
#define SYS_ERRINFO_VALID_NO                     0u /* none since cleared */
#define SYS_ERRINFO_VALID_YES                    1u /* an access has failed */
#define SYS_ERRINFO_MORE_Pos                     1u /* an access has failed while VALID was 1: there were others before the last */
#define SYS_ERRINFO_MORE_Msk                     0x00000002u
#define SYS_ERRINFO_MORE_NO                      0u /* none since cleared */
#define SYS_ERRINFO_MORE_YES                     1u /* more than one access has failed */
#define SYS_ERRINFO_CAUSE_Pos                    4u /* why the access failed */
#define SYS_ERRINFO_CAUSE_Msk                    0x00000030u
#define SYS_ERRINFO_CAUSE_UNMAPPED               0u /* nothing stands at the address in this configuration */
#define SYS_ERRINFO_CAUSE_SLAVE                  1u /* the block at the address answered with an error */
#define SYS_ERRINFO_CAUSE_TIMEOUT                2u /* the block at the address did not answer in time */
#define SYS_ERRINFO_CAUSE_ABANDONED              3u /* the block at the address has not been ready since it did not answer in time */
#define SYS_ERRINFO_WRITE_Pos                    6u /* direction */
#define SYS_ERRINFO_WRITE_Msk                    0x00000040u
#define SYS_ERRINFO_WRITE_READ                   0u /* a read */
#define SYS_ERRINFO_WRITE_WRITE                  1u /* a write */
#define SYS_ERRINFO_SIZE_Pos                     7u /* size */
#define SYS_ERRINFO_SIZE_Msk                     0x00000180u
#define SYS_ERRINFO_SIZE_BYTE                    0u /* a byte */
#define SYS_ERRINFO_SIZE_HALFWORD                1u /* a halfword */
#define SYS_ERRINFO_SIZE_WORD                    2u /* a word */
#define SYS_ERRINFO_SIZE_NONE                    3u /* never */
#define SYS_ERRINFO_FETCH_Pos                    9u /* what for */
#define SYS_ERRINFO_FETCH_Msk                    0x00000200u
#define SYS_ERRINFO_FETCH_DATA                   0u /* data */
#define SYS_ERRINFO_FETCH_INSTRUCTION            1u /* an instruction */

/* For the program: a word that resets of the system leave alone. */
#define SYS_SCRATCH_OFFSET                       0x14u
#define SYS_SCRATCH_RESET                        0x00000000u
#define SYS_SCRATCH_WORD_Pos                     0u /* any value */
#define SYS_SCRATCH_WORD_Msk                     0xFFFFFFFFu

/* Blocks of the configuration: 1 where a block is there. */
#define SYS_BLOCKS_OFFSET                        0x18u
#define SYS_BLOCKS_RESET                         0x00000000u
#define SYS_BLOCKS_RESET_MASK                    0x0A880000u /* the bits of which the value after reset is known */
#define SYS_BLOCKS_GPIO_Pos                      0u /* GPIO */
#define SYS_BLOCKS_GPIO_Msk                      0x00000001u
#define SYS_BLOCKS_GPIO_NO                       0u /* not configured */
#define SYS_BLOCKS_GPIO_YES                      1u /* there */
#define SYS_BLOCKS_CAN_Pos                       1u /* CAN */
#define SYS_BLOCKS_CAN_Msk                       0x00000002u
#define SYS_BLOCKS_CAN_NO                        0u /* not configured */
#define SYS_BLOCKS_CAN_YES                       1u /* there */
#define SYS_BLOCKS_ETH_Pos                       2u /* Ethernet MAC */
#define SYS_BLOCKS_ETH_Msk                       0x00000004u
#define SYS_BLOCKS_ETH_NO                        0u /* not configured */
#define SYS_BLOCKS_ETH_YES                       1u /* there */
#define SYS_BLOCKS_SPIFLASH_Pos                  3u /* SPI-Flash */
#define SYS_BLOCKS_SPIFLASH_Msk                  0x00000008u
#define SYS_BLOCKS_SPIFLASH_NO                   0u /* not configured */
#define SYS_BLOCKS_SPIFLASH_YES                  1u /* there */
#define SYS_BLOCKS_PSRAM_Pos                     4u /* PSRAM */
#define SYS_BLOCKS_PSRAM_Msk                     0x00000010u
#define SYS_BLOCKS_PSRAM_NO                      0u /* not configured */
#define SYS_BLOCKS_PSRAM_YES                     1u /* there */
#define SYS_BLOCKS_DDR3_Pos                      5u /* DDR3 */
#define SYS_BLOCKS_DDR3_Msk                      0x00000020u
#define SYS_BLOCKS_DDR3_NO                       0u /* not configured */
#define SYS_BLOCKS_DDR3_YES                      1u /* there */
#define SYS_BLOCKS_APBINT_Pos                    6u /* internal APB bus */
#define SYS_BLOCKS_APBINT_Msk                    0x00000040u
#define SYS_BLOCKS_APBINT_NO                     0u /* not configured */
#define SYS_BLOCKS_APBINT_YES                    1u /* there */
#define SYS_BLOCKS_APBEXT_Pos                    7u /* APB extension ports */
#define SYS_BLOCKS_APBEXT_Msk                    0x00000080u
#define SYS_BLOCKS_APBEXT_NO                     0u /* not configured */
#define SYS_BLOCKS_APBEXT_YES                    1u /* there */
#define SYS_BLOCKS_AHB1_Pos                      8u /* AHB extension port 1 */
#define SYS_BLOCKS_AHB1_Msk                      0x00000100u
#define SYS_BLOCKS_AHB1_NO                       0u /* not configured */
#define SYS_BLOCKS_AHB1_YES                      1u /* there */
#define SYS_BLOCKS_AHB2_Pos                      9u /* AHB extension port 2 */
#define SYS_BLOCKS_AHB2_Msk                      0x00000200u
#define SYS_BLOCKS_AHB2_NO                       0u /* not configured */
#define SYS_BLOCKS_AHB2_YES                      1u /* there */
#define SYS_BLOCKS_AHB3_Pos                      10u /* AHB extension port 3 */
#define SYS_BLOCKS_AHB3_Msk                      0x00000400u
#define SYS_BLOCKS_AHB3_NO                       0u /* not configured */
#define SYS_BLOCKS_AHB3_YES                      1u /* there */
#define SYS_BLOCKS_AHB4_Pos                      11u /* AHB extension port 4 */
#define SYS_BLOCKS_AHB4_Msk                      0x00000800u
#define SYS_BLOCKS_AHB4_NO                       0u /* not configured */
#define SYS_BLOCKS_AHB4_YES                      1u /* there */
#define SYS_BLOCKS_AHB5_Pos                      12u /* AHB extension port 5 */
#define SYS_BLOCKS_AHB5_Msk                      0x00001000u
#define SYS_BLOCKS_AHB5_NO                       0u /* not configured */
#define SYS_BLOCKS_AHB5_YES                      1u /* there */
#define SYS_BLOCKS_AHB6_Pos                      13u /* AHB extension port 6 */
#define SYS_BLOCKS_AHB6_Msk                      0x00002000u
#define SYS_BLOCKS_AHB6_NO                       0u /* not configured */
#define SYS_BLOCKS_AHB6_YES                      1u /* there */
#define SYS_BLOCKS_EXTFLASH_Pos                  14u /* external instruction memory */
#define SYS_BLOCKS_EXTFLASH_Msk                  0x00004000u
#define SYS_BLOCKS_EXTFLASH_NO                   0u /* not configured */
#define SYS_BLOCKS_EXTFLASH_YES                  1u /* there */
#define SYS_BLOCKS_EXTSRAM_Pos                   15u /* external data memory */
#define SYS_BLOCKS_EXTSRAM_Msk                   0x00008000u
#define SYS_BLOCKS_EXTSRAM_NO                    0u /* not configured */
#define SYS_BLOCKS_EXTSRAM_YES                   1u /* there */
#define SYS_BLOCKS_TIMER0_Pos                    16u /* TIMER0 */
#define SYS_BLOCKS_TIMER0_Msk                    0x00010000u
#define SYS_BLOCKS_TIMER0_NO                     0u /* not configured */
#define SYS_BLOCKS_TIMER0_YES                    1u /* there */
#define SYS_BLOCKS_TIMER1_Pos                    17u /* TIMER1 */
#define SYS_BLOCKS_TIMER1_Msk                    0x00020000u
#define SYS_BLOCKS_TIMER1_NO                     0u /* not configured */
#define SYS_BLOCKS_TIMER1_YES                    1u /* there */
#define SYS_BLOCKS_DTIMER_Pos                    18u /* DTIMER */
#define SYS_BLOCKS_DTIMER_Msk                    0x00040000u
#define SYS_BLOCKS_DTIMER_NO                     0u /* not configured */
#define SYS_BLOCKS_DTIMER_YES                    1u /* there */
#define SYS_BLOCKS_UART0_Pos                     20u /* UART0 */
#define SYS_BLOCKS_UART0_Msk                     0x00100000u
#define SYS_BLOCKS_UART0_NO                      0u /* not configured */
#define SYS_BLOCKS_UART0_YES                     1u /* there */
#define SYS_BLOCKS_UART1_Pos                     21u /* UART1 */
#define SYS_BLOCKS_UART1_Msk                     0x00200000u
#define SYS_BLOCKS_UART1_NO                      0u /* not configured */
#define SYS_BLOCKS_UART1_YES                     1u /* there */
#define SYS_BLOCKS_RTC_Pos                       22u /* RTC */
#define SYS_BLOCKS_RTC_Msk                       0x00400000u
#define SYS_BLOCKS_RTC_NO                        0u /* not configured */
#define SYS_BLOCKS_RTC_YES                       1u /* there */
#define SYS_BLOCKS_WDOG_Pos                      24u /* WDOG */
#define SYS_BLOCKS_WDOG_Msk                      0x01000000u
#define SYS_BLOCKS_WDOG_NO                       0u /* not configured */
#define SYS_BLOCKS_WDOG_YES                      1u /* there */
#define SYS_BLOCKS_TRNG_Pos                      26u /* TRNG */
#define SYS_BLOCKS_TRNG_Msk                      0x04000000u
#define SYS_BLOCKS_TRNG_NO                       0u /* not configured */
#define SYS_BLOCKS_TRNG_YES                      1u /* there */
#define SYS_BLOCKS_I2C_Pos                       28u /* I2C */
#define SYS_BLOCKS_I2C_Msk                       0x10000000u
#define SYS_BLOCKS_I2C_NO                        0u /* not configured */
#define SYS_BLOCKS_I2C_YES                       1u /* there */
#define SYS_BLOCKS_SPI_Pos                       29u /* SPI */
#define SYS_BLOCKS_SPI_Msk                       0x20000000u
#define SYS_BLOCKS_SPI_NO                        0u /* not configured */
#define SYS_BLOCKS_SPI_YES                       1u /* there */
#define SYS_BLOCKS_SD_Pos                        30u /* SD */
#define SYS_BLOCKS_SD_Msk                        0x40000000u
#define SYS_BLOCKS_SD_NO                         0u /* not configured */
#define SYS_BLOCKS_SD_YES                        1u /* there */
#define SYS_BLOCKS_SYS_Pos                       31u /* SYS */
#define SYS_BLOCKS_SYS_Msk                       0x80000000u
#define SYS_BLOCKS_SYS_NO                        0u /* not configured */
#define SYS_BLOCKS_SYS_YES                       1u /* there */

/* Further facts of the configuration. */
#define SYS_CONFIG_OFFSET                        0x1Cu
#define SYS_CONFIG_RESET                         0x00000000u
#define SYS_CONFIG_RESET_MASK                    0xFF000000u /* the bits of which the value after reset is known */
#define SYS_CONFIG_IRQS_Pos                      0u /* interrupt inputs of the processor */
#define SYS_CONFIG_IRQS_Msk                      0x000000FFu
#define SYS_CONFIG_ITCM_Pos                      8u /* size of the instruction memory: 0 for none, 1 for 1 KB, each step doubles it */
#define SYS_CONFIG_ITCM_Msk                      0x0000FF00u
#define SYS_CONFIG_DTCM_Pos                      16u /* size of the data memory, in the same way */
#define SYS_CONFIG_DTCM_Msk                      0x00FF0000u

/* APB extension ports of the configuration. */
#define SYS_PORTS_OFFSET                         0x20u
#define SYS_PORTS_RESET                          0x00000000u
#define SYS_PORTS_RESET_MASK                     0xFFFF0000u /* the bits of which the value after reset is known */
#define SYS_PORTS_APB_Pos                        0u /* 1 where a port is there: bit 0 for port 1 */
#define SYS_PORTS_APB_Msk                        0x0000FFFFu

/* What this block is. */
#define SYS_ID_OFFSET                            0xFFCu
#define SYS_ID_RESET                             0x0000020Bu
#define SYS_ID_BLOCK_Pos                         0u /* kind of block */
#define SYS_ID_BLOCK_Msk                         0x000000FFu
#define SYS_ID_REVISION_Pos                      8u /* revision of its registers */
#define SYS_ID_REVISION_Msk                      0x0000FF00u

typedef struct {
    TARVO_ORIX_M1_RW uint32_t RESETCAUSE; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t BUSTIMEOUT; /* 0x08 */
    TARVO_ORIX_M1_R uint32_t ERRADDR; /* 0x0C */
    TARVO_ORIX_M1_RW uint32_t ERRINFO; /* 0x10 */
    TARVO_ORIX_M1_RW uint32_t SCRATCH; /* 0x14 */
    TARVO_ORIX_M1_R uint32_t BLOCKS; /* 0x18 */
    TARVO_ORIX_M1_R uint32_t CONFIG; /* 0x1C */
    TARVO_ORIX_M1_R uint32_t PORTS; /* 0x20 */
    uint32_t RESERVED0[1014];
    TARVO_ORIX_M1_R uint32_t ID; /* 0xFFC */
} SYS_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SYS_Type_RESETCAUSE,
                     offsetof(SYS_Type, RESETCAUSE) == SYS_RESETCAUSE_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SYS_Type_CTRL,
                     offsetof(SYS_Type, CTRL) == SYS_CTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SYS_Type_BUSTIMEOUT,
                     offsetof(SYS_Type, BUSTIMEOUT) == SYS_BUSTIMEOUT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SYS_Type_ERRADDR,
                     offsetof(SYS_Type, ERRADDR) == SYS_ERRADDR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SYS_Type_ERRINFO,
                     offsetof(SYS_Type, ERRINFO) == SYS_ERRINFO_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SYS_Type_SCRATCH,
                     offsetof(SYS_Type, SCRATCH) == SYS_SCRATCH_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SYS_Type_BLOCKS,
                     offsetof(SYS_Type, BLOCKS) == SYS_BLOCKS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SYS_Type_CONFIG,
                     offsetof(SYS_Type, CONFIG) == SYS_CONFIG_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SYS_Type_PORTS,
                     offsetof(SYS_Type, PORTS) == SYS_PORTS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SYS_Type_ID,
                     offsetof(SYS_Type, ID) == SYS_ID_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_SYS_Type, sizeof(SYS_Type) == 0x1000u);

#define SYS                                      ((SYS_Type *)(uintptr_t)SYS_BASE)

/* SCS: The processor's own registers: interrupts, exceptions and reset. They are accessed as
 * words. */
#define SCS_BASE                                 0xE000E000u /* system control space */

/* Auxiliary control: where the instruction memory stands. */
#define SCS_ACTLR_OFFSET                         0x08u
#define SCS_ACTLR_RESET                          0x00000000u
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
