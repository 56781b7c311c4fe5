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
#define TARVO_ORIX_M1_INTERRUPTS                 1u /* inputs */
#define TARVO_ORIX_M1_OS_EXTENSION               1 /* system timer, SVCall and PendSV */
#define TARVO_ORIX_M1_SMALL_MULTIPLIER           0
#define TARVO_ORIX_M1_DEBUG                      1
#define TARVO_ORIX_M1_DEBUG_JTAG                 1
#define TARVO_ORIX_M1_DEBUG_SERIAL_WIRE          1
#define TARVO_ORIX_M1_DEBUG_SMALL                0
#define TARVO_ORIX_M1_BIG_ENDIAN                 0

/* Exceptions and interrupts. */
typedef enum {
    NonMaskableInt_IRQn = -14, /* WDOG: restarts a program that hangs */
    HardFault_IRQn = -13, /* every fault */
    SVCall_IRQn = -5, /* supervisor call */
    PendSV_IRQn = -2, /* request of software */
    SysTick_IRQn = -1, /* system timer */
    UART0_IRQn = 0 /* first serial line */
} IRQn_Type;

#define UART0_IRQ                                0
/* TIMER1_IRQ is left out: its interrupt 3 is masked: "Number of Interrupts" is 1, and 8 would
 * be enough. */
/* GPIO_IRQ is left out: its interrupt 4 is masked: "Number of Interrupts" is 1, and 8 would be
 * enough. */
/* SPI_IRQ is left out: its interrupt 8 is masked: "Number of Interrupts" is 1, and 16 would be
 * enough. */
/* EXTINT0_IRQ is left out: its interrupt 12 is masked: "Number of Interrupts" is 1, and 16
 * would be enough. */
/* EXTINT1_IRQ is left out: its interrupt 13 is masked: "Number of Interrupts" is 1, and 16
 * would be enough. */
/* EXTINT2_IRQ is left out: its interrupt 14 is masked: "Number of Interrupts" is 1, and 16
 * would be enough. */
/* EXTINT3_IRQ is left out: its interrupt 15 is masked: "Number of Interrupts" is 1, and 16
 * would be enough. */
/* TRNG_IRQ is left out: its interrupt 16 is masked: "Number of Interrupts" is 1, and 32 would
 * be enough. */

/* What answers where: the first address, and the size in bytes. An access to any other address
 * gives an error. */
#define ITCM_BASE                                0x00000000u /* tightly coupled memory: instruction memory */
#define ITCM_SIZE                                0x00020000u
#define DTCM_BASE                                0x20000000u /* tightly coupled memory: data memory */
#define DTCM_SIZE                                0x00020000u
#define GPIO_SIZE                                0x01000000u
#define TIMER1_SIZE                              0x00001000u
#define UART0_SIZE                               0x00001000u
#define WDOG_SIZE                                0x00001000u
#define TRNG_BASE                                0x5000A000u /* black box: true random number generator */
#define TRNG_SIZE                                0x00001000u
#define SPI_SIZE                                 0x00001000u
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

/* GPIO: Sixteen pins, no wait states. The interrupt is the OR of INTPEND & INTEN. Bytes and
 * halfwords: a write to OUTSET, OUTCLR or INTPEND acts on the pins of the bytes that it
 * reaches. */
#define GPIO_BASE                                0x40000000u /* sixteen pins, each input or output */

/* Pin levels, synchronised to HCLK. */
#define GPIO_DATA_OFFSET                         0x00u
#define GPIO_DATA_RESET                          0x00000000u
#define GPIO_DATA_RESET_MASK                     0xFFFF0000u /* the bits of which the value after reset is known */
#define GPIO_DATA_PINS_Pos                       0u /* level of each pin */
#define GPIO_DATA_PINS_Msk                       0x0000FFFFu

/* Output values. */
#define GPIO_OUT_OFFSET                          0x04u
#define GPIO_OUT_RESET                           0x00000000u
#define GPIO_OUT_VALUE_Pos                       0u /* value of each driven pin */
#define GPIO_OUT_VALUE_Msk                       0x0000FFFFu

/* Output enables. */
#define GPIO_OUTEN_OFFSET                        0x08u
#define GPIO_OUTEN_RESET                         0x00000000u
#define GPIO_OUTEN_ENABLE_Pos                    0u /* 1: the pin is driven */
#define GPIO_OUTEN_ENABLE_Msk                    0x0000FFFFu

/* Sets bits of OUT. */
#define GPIO_OUTSET_OFFSET                       0x0Cu
#define GPIO_OUTSET_RESET                        0x00000000u
#define GPIO_OUTSET_SET_Pos                      0u /* OUT bits that are written as 1 become 1 */
#define GPIO_OUTSET_SET_Msk                      0x0000FFFFu

/* Clears bits of OUT. */
#define GPIO_OUTCLR_OFFSET                       0x10u
#define GPIO_OUTCLR_RESET                        0x00000000u
#define GPIO_OUTCLR_CLEAR_Pos                    0u /* OUT bits that are written as 1 become 0 */
#define GPIO_OUTCLR_CLEAR_Msk                    0x0000FFFFu

/* Interrupt enables. */
#define GPIO_INTEN_OFFSET                        0x14u
#define GPIO_INTEN_RESET                         0x00000000u
#define GPIO_INTEN_ENABLE_Pos                    0u /* 1: the pin's pending bit raises the interrupt */
#define GPIO_INTEN_ENABLE_Msk                    0x0000FFFFu

/* Kind of the interrupt condition. */
#define GPIO_INTEDGE_OFFSET                      0x18u
#define GPIO_INTEDGE_RESET                       0x00000000u
#define GPIO_INTEDGE_EDGE_Pos                    0u /* 1: pending after an edge, 0: pending by level */
#define GPIO_INTEDGE_EDGE_Msk                    0x0000FFFFu

/* Polarity of the interrupt condition. */
#define GPIO_INTPOL_OFFSET                       0x1Cu
#define GPIO_INTPOL_RESET                        0x00000000u
#define GPIO_INTPOL_POLARITY_Pos                 0u /* 1: rising edge or high level, 0: falling edge or low level */
#define GPIO_INTPOL_POLARITY_Msk                 0x0000FFFFu

/* Pending pins. */
#define GPIO_INTPEND_OFFSET                      0x20u
#define GPIO_INTPEND_RESET                       0x00000000u
#define GPIO_INTPEND_RESET_MASK                  0xFFFF0000u /* the bits of which the value after reset is known */
#define GPIO_INTPEND_PENDING_Pos                 0u /* 1: the pin's condition is met; writing 1 clears an edge, a level stays until the pin changes */
#define GPIO_INTPEND_PENDING_Msk                 0x0000FFFFu

typedef struct {
    TARVO_ORIX_M1_R uint32_t DATA; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t OUT; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t OUTEN; /* 0x08 */
    TARVO_ORIX_M1_W uint32_t OUTSET; /* 0x0C */
    TARVO_ORIX_M1_W uint32_t OUTCLR; /* 0x10 */
    TARVO_ORIX_M1_RW uint32_t INTEN; /* 0x14 */
    TARVO_ORIX_M1_RW uint32_t INTEDGE; /* 0x18 */
    TARVO_ORIX_M1_RW uint32_t INTPOL; /* 0x1C */
    TARVO_ORIX_M1_RW uint32_t INTPEND; /* 0x20 */
} GPIO_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_DATA,
                     offsetof(GPIO_Type, DATA) == GPIO_DATA_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_OUT,
                     offsetof(GPIO_Type, OUT) == GPIO_OUT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_OUTEN,
                     offsetof(GPIO_Type, OUTEN) == GPIO_OUTEN_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_OUTSET,
                     offsetof(GPIO_Type, OUTSET) == GPIO_OUTSET_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_OUTCLR,
                     offsetof(GPIO_Type, OUTCLR) == GPIO_OUTCLR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_INTEN,
                     offsetof(GPIO_Type, INTEN) == GPIO_INTEN_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_INTEDGE,
                     offsetof(GPIO_Type, INTEDGE) == GPIO_INTEDGE_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_INTPOL,
                     offsetof(GPIO_Type, INTPOL) == GPIO_INTPOL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_INTPEND,
                     offsetof(GPIO_Type, INTPEND) == GPIO_INTPEND_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_GPIO_Type, sizeof(GPIO_Type) == 0x24u);

#define GPIO                                     ((GPIO_Type *)(uintptr_t)GPIO_BASE)

/* TIMER: 24-bit down counter that reloads after 0. The external input is synchronised to PCLK.
 * Bytes and halfwords: VALUE goes on counting in the bytes that are not written. */
#define TIMER1_BASE                              0x50001000u /* periods and events at TIMER1EXTIN */

/* Control. */
#define TIMER_CTRL_OFFSET                        0x00u
#define TIMER_CTRL_RESET                         0x00000000u
#define TIMER_CTRL_EN_Pos                        0u /* counts */
#define TIMER_CTRL_EN_Msk                        0x00000001u
#define TIMER_CTRL_EN_OFF                        0u /* stands still */
#define TIMER_CTRL_EN_ON                         1u /* counts */
#define TIMER_CTRL_IE_Pos                        1u /* interrupt while PEND */
#define TIMER_CTRL_IE_Msk                        0x00000002u
#define TIMER_CTRL_IE_OFF                        0u /* no interrupt */
#define TIMER_CTRL_IE_ON                         1u /* interrupt */
#define TIMER_CTRL_EXTGATE_Pos                   2u /* counts only while the external input is high */
#define TIMER_CTRL_EXTGATE_Msk                   0x00000004u
#define TIMER_CTRL_EXTGATE_ALWAYS                0u /* counts at any level of the external input */
#define TIMER_CTRL_EXTGATE_HIGH                  1u /* counts while the external input is high */
#define TIMER_CTRL_EXTCLK_Pos                    3u /* counts rising edges of the external input instead of clock cycles */
#define TIMER_CTRL_EXTCLK_Msk                    0x00000008u
#define TIMER_CTRL_EXTCLK_CYCLES                 0u /* counts clock cycles */
#define TIMER_CTRL_EXTCLK_EDGES                  1u /* counts rising edges of the external input; EXTGATE does nothing */

/* Counter. */
#define TIMER_VALUE_OFFSET                       0x04u
#define TIMER_VALUE_RESET                        0x00000000u
#define TIMER_VALUE_COUNT_Pos                    0u /* current count */
#define TIMER_VALUE_COUNT_Msk                    0x00FFFFFFu

/* Period. */
#define TIMER_RELOAD_OFFSET                      0x08u
#define TIMER_RELOAD_RESET                       0x00000000u
#define TIMER_RELOAD_COUNT_Pos                   0u /* value that follows 0; the period is RELOAD + 1 counts */
#define TIMER_RELOAD_COUNT_Msk                   0x00FFFFFFu

/* Interrupt flag. */
#define TIMER_PEND_OFFSET                        0x0Cu
#define TIMER_PEND_RESET                         0x00000000u
#define TIMER_PEND_WRAP_Pos                      0u /* the counter went past 0 */
#define TIMER_PEND_WRAP_Msk                      0x00000001u
#define TIMER_PEND_WRAP_NO                       0u /* not past 0 */
#define TIMER_PEND_WRAP_YES                      1u /* past 0 */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t VALUE; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t RELOAD; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t PEND; /* 0x0C */
} TIMER_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_TIMER_Type_CTRL,
                     offsetof(TIMER_Type, CTRL) == TIMER_CTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_TIMER_Type_VALUE,
                     offsetof(TIMER_Type, VALUE) == TIMER_VALUE_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_TIMER_Type_RELOAD,
                     offsetof(TIMER_Type, RELOAD) == TIMER_RELOAD_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_TIMER_Type_PEND,
                     offsetof(TIMER_Type, PEND) == TIMER_PEND_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_TIMER_Type, sizeof(TIMER_Type) == 0x10u);

#define TIMER1                                   ((TIMER_Type *)(uintptr_t)TIMER1_BASE)

/* UART: Eight data bits, no parity, one stop bit; one byte of buffer in each direction beside
 * the shift registers. Bytes and halfwords: a byte is sent only by a write that reaches the
 * lowest byte of DATA, and taken only by a read that begins there. BAUDDIV counts as its
 * minimum while the whole of it is smaller. */
#define UART0_BASE                               0x50004000u /* first serial line */

/* Bytes to and from the line. */
#define UART_DATA_OFFSET                         0x00u
#define UART_DATA_RESET                          0x00000000u
#define UART_DATA_BYTE_Pos                       0u /* write: byte to send; read: received byte, which clears RXFULL */
#define UART_DATA_BYTE_Msk                       0x000000FFu

/* State of the buffers and errors. */
#define UART_STATUS_OFFSET                       0x04u
#define UART_STATUS_RESET                        0x00000000u
#define UART_STATUS_TXFULL_Pos                   0u /* a byte waits to be sent */
#define UART_STATUS_TXFULL_Msk                   0x00000001u
#define UART_STATUS_TXFULL_EMPTY                 0u /* a byte can be written */
#define UART_STATUS_TXFULL_FULL                  1u /* a byte waits */
#define UART_STATUS_RXFULL_Pos                   1u /* a received byte waits to be read */
#define UART_STATUS_RXFULL_Msk                   0x00000002u
#define UART_STATUS_RXFULL_EMPTY                 0u /* nothing to read */
#define UART_STATUS_RXFULL_FULL                  1u /* a byte waits */
#define UART_STATUS_TXBUSY_Pos                   2u /* buffer or line busy */
#define UART_STATUS_TXBUSY_Msk                   0x00000004u
#define UART_STATUS_TXBUSY_IDLE                  0u /* everything is sent */
#define UART_STATUS_TXBUSY_BUSY                  1u /* something is to be sent */
#define UART_STATUS_RXOVER_Pos                   3u /* a byte arrived while RXFULL and is lost */
#define UART_STATUS_RXOVER_Msk                   0x00000008u
#define UART_STATUS_RXOVER_NO                    0u /* nothing is lost */
#define UART_STATUS_RXOVER_YES                   1u /* a byte is lost */
#define UART_STATUS_FRAME_Pos                    4u /* a stop bit was 0 */
#define UART_STATUS_FRAME_Msk                    0x00000010u
#define UART_STATUS_FRAME_NO                     0u /* no such error */
#define UART_STATUS_FRAME_YES                    1u /* a stop bit was 0 */
#define UART_STATUS_TXOVER_Pos                   5u /* DATA was written while TXFULL */
#define UART_STATUS_TXOVER_Msk                   0x00000020u
#define UART_STATUS_TXOVER_NO                    0u /* nothing is lost */
#define UART_STATUS_TXOVER_YES                   1u /* a byte is lost */

/* Enables. */
#define UART_CTRL_OFFSET                         0x08u
#define UART_CTRL_RESET                          0x00000000u
#define UART_CTRL_TXEN_Pos                       0u /* transmitter on */
#define UART_CTRL_TXEN_Msk                       0x00000001u
#define UART_CTRL_TXEN_OFF                       0u /* off; a byte on its way is sent to its end */
#define UART_CTRL_TXEN_ON                        1u /* on */
#define UART_CTRL_RXEN_Pos                       1u /* receiver on */
#define UART_CTRL_RXEN_Msk                       0x00000002u
#define UART_CTRL_RXEN_OFF                       0u /* off; a byte on its way is dropped */
#define UART_CTRL_RXEN_ON                        1u /* on */
#define UART_CTRL_TXIE_Pos                       2u /* interrupt while the transmit buffer is empty */
#define UART_CTRL_TXIE_Msk                       0x00000004u
#define UART_CTRL_TXIE_OFF                       0u /* no interrupt */
#define UART_CTRL_TXIE_ON                        1u /* interrupt */
#define UART_CTRL_RXIE_Pos                       3u /* interrupt while RXFULL */
#define UART_CTRL_RXIE_Msk                       0x00000008u
#define UART_CTRL_RXIE_OFF                       0u /* no interrupt */
#define UART_CTRL_RXIE_ON                        1u /* interrupt */
#define UART_CTRL_ERRIE_Pos                      4u /* interrupt while RXOVER, FRAME or TXOVER */
#define UART_CTRL_ERRIE_Msk                      0x00000010u
#define UART_CTRL_ERRIE_OFF                      0u /* no interrupt */
#define UART_CTRL_ERRIE_ON                       1u /* interrupt */

/* Bit time. */
#define UART_BAUDDIV_OFFSET                      0x0Cu
#define UART_BAUDDIV_RESET                       0x00000010u
#define UART_BAUDDIV_CYCLES_Pos                  0u /* clock cycles per bit; smaller values count as the minimum */
#define UART_BAUDDIV_CYCLES_Msk                  0x000FFFFFu

typedef struct {
    TARVO_ORIX_M1_RW uint32_t DATA; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t STATUS; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t BAUDDIV; /* 0x0C */
} UART_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_DATA,
                     offsetof(UART_Type, DATA) == UART_DATA_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_STATUS,
                     offsetof(UART_Type, STATUS) == UART_STATUS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_CTRL,
                     offsetof(UART_Type, CTRL) == UART_CTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_UART_Type_BAUDDIV,
                     offsetof(UART_Type, BAUDDIV) == UART_BAUDDIV_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_UART_Type, sizeof(UART_Type) == 0x10u);

#define UART0                                    ((UART_Type *)(uintptr_t)UART0_BASE)

/* WDOG: 32-bit down counter. Reaching 0 the first time raises the non-maskable interrupt and
 * starts the count again; reaching 0 with the interrupt still pending requests a system reset,
 * if that is allowed. Bytes and halfwords: any write to LOAD restarts the count with the whole
 * of LOAD. The keys are whole words: a part that is written to KICK does nothing, one that is
 * written to LOCK locks. */
#define WDOG_BASE                                0x50008000u /* restarts a program that hangs */

/* Period. Writing it also restarts the count; ignored while locked. */
#define WDOG_LOAD_OFFSET                         0x00u
#define WDOG_LOAD_RESET                          0xFFFFFFFFu
#define WDOG_LOAD_CYCLES_Pos                     0u /* start value */
#define WDOG_LOAD_CYCLES_Msk                     0xFFFFFFFFu

/* Counter. */
#define WDOG_COUNT_OFFSET                        0x04u
#define WDOG_COUNT_RESET                         0xFFFFFFFFu
#define WDOG_COUNT_CYCLES_Pos                    0u /* current count */
#define WDOG_COUNT_CYCLES_Msk                    0xFFFFFFFFu

/* Control; ignored while locked. */
#define WDOG_CTRL_OFFSET                         0x08u
#define WDOG_CTRL_RESET                          0x00000000u
#define WDOG_CTRL_EN_Pos                         0u /* counts */
#define WDOG_CTRL_EN_Msk                         0x00000001u
#define WDOG_CTRL_EN_OFF                         0u /* stands still */
#define WDOG_CTRL_EN_ON                          1u /* counts */
#define WDOG_CTRL_RSTEN_Pos                      1u /* system reset allowed */
#define WDOG_CTRL_RSTEN_Msk                      0x00000002u
#define WDOG_CTRL_RSTEN_OFF                      0u /* never resets */
#define WDOG_CTRL_RSTEN_ON                       1u /* resets the system */

/* Sign of life. */
#define WDOG_KICK_OFFSET                         0x0Cu
#define WDOG_KICK_RESET                          0x00000000u
#define WDOG_KICK_KEY_Pos                        0u /* 0x4B49434B restarts the count and clears the interrupt; other values do nothing */
#define WDOG_KICK_KEY_Msk                        0xFFFFFFFFu
#define WDOG_KICK_KEY_KICK                       0x4B49434Bu /* restarts the count and clears the interrupt */

/* State. */
#define WDOG_STATUS_OFFSET                       0x10u
#define WDOG_STATUS_RESET                        0x00000000u
#define WDOG_STATUS_PENDING_Pos                  0u /* interrupt pending */
#define WDOG_STATUS_PENDING_Msk                  0x00000001u
#define WDOG_STATUS_PENDING_NO                   0u /* no interrupt */
#define WDOG_STATUS_PENDING_YES                  1u /* the count has ended once */

/* Protection of LOAD and CTRL. */
#define WDOG_LOCK_OFFSET                         0x14u
#define WDOG_LOCK_RESET                          0x00000000u
#define WDOG_LOCK_UNLOCK                         0x554E4C4Bu /* whole word: unlocks; any other word locks */
#define WDOG_LOCK_LOCKED_Pos                     0u /* write the word 0x554E4C4B to unlock, any other to lock; reads 1 while locked */
#define WDOG_LOCK_LOCKED_Msk                     0x00000001u
#define WDOG_LOCK_LOCKED_UNLOCKED                0u /* LOAD and CTRL can be written */
#define WDOG_LOCK_LOCKED_LOCKED                  1u /* LOAD and CTRL keep their values */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t LOAD; /* 0x00 */
    TARVO_ORIX_M1_R uint32_t COUNT; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x08 */
    TARVO_ORIX_M1_W uint32_t KICK; /* 0x0C */
    TARVO_ORIX_M1_R uint32_t STATUS; /* 0x10 */
    TARVO_ORIX_M1_RW uint32_t LOCK; /* 0x14 */
} WDOG_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_WDOG_Type_LOAD,
                     offsetof(WDOG_Type, LOAD) == WDOG_LOAD_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_WDOG_Type_COUNT,
                     offsetof(WDOG_Type, COUNT) == WDOG_COUNT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_WDOG_Type_CTRL,
                     offsetof(WDOG_Type, CTRL) == WDOG_CTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_WDOG_Type_KICK,
                     offsetof(WDOG_Type, KICK) == WDOG_KICK_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_WDOG_Type_STATUS,
                     offsetof(WDOG_Type, STATUS) == WDOG_STATUS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_WDOG_Type_LOCK,
                     offsetof(WDOG_Type, LOCK) == WDOG_LOCK_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_WDOG_Type, sizeof(WDOG_Type) == 0x18u);

#define WDOG                                     ((WDOG_Type *)(uintptr_t)WDOG_BASE)

/* SPI: SPI master, one byte at a time, one slave select. Bytes and halfwords: a byte is sent
 * only by a write that reaches the lowest byte of DATA. */
#define SPI_BASE                                 0x5000D000u /* one device on a serial bus */

/* Bytes to and from the line. */
#define SPI_DATA_OFFSET                          0x00u
#define SPI_DATA_RESET                           0x00000000u
#define SPI_DATA_BYTE_Pos                        0u /* write: sends the byte, ignored while BUSY; read: the byte received with it */
#define SPI_DATA_BYTE_Msk                        0x000000FFu

/* State. */
#define SPI_STATUS_OFFSET                        0x04u
#define SPI_STATUS_RESET                         0x00000000u
#define SPI_STATUS_BUSY_Pos                      0u /* a byte is on its way */
#define SPI_STATUS_BUSY_Msk                      0x00000001u
#define SPI_STATUS_BUSY_IDLE                     0u /* no byte is on its way */
#define SPI_STATUS_BUSY_BUSY                     1u /* a byte is on its way */
#define SPI_STATUS_DONE_Pos                      1u /* a byte is complete */
#define SPI_STATUS_DONE_Msk                      0x00000002u
#define SPI_STATUS_DONE_NO                       0u /* no byte is complete */
#define SPI_STATUS_DONE_YES                      1u /* a byte is complete */
#define SPI_STATUS_LOST_Pos                      2u /* DATA was written while BUSY */
#define SPI_STATUS_LOST_Msk                      0x00000004u
#define SPI_STATUS_LOST_NO                       0u /* nothing is lost */
#define SPI_STATUS_LOST_YES                      1u /* a byte is lost */

/* Control. */
#define SPI_CTRL_OFFSET                          0x08u
#define SPI_CTRL_RESET                           0x00000000u
#define SPI_CTRL_CPOL_Pos                        0u /* idle level of the clock */
#define SPI_CTRL_CPOL_Msk                        0x00000001u
#define SPI_CTRL_CPOL_LOW                        0u /* the clock idles low */
#define SPI_CTRL_CPOL_HIGH                       1u /* the clock idles high */
#define SPI_CTRL_CPHA_Pos                        1u /* data is taken at the second edge */
#define SPI_CTRL_CPHA_Msk                        0x00000002u
#define SPI_CTRL_CPHA_FIRST                      0u /* data is taken at the first edge */
#define SPI_CTRL_CPHA_SECOND                     1u /* data is taken at the second edge */
#define SPI_CTRL_LSBFIRST_Pos                    2u /* lowest bit first */
#define SPI_CTRL_LSBFIRST_Msk                    0x00000004u
#define SPI_CTRL_LSBFIRST_MSB                    0u /* highest bit first */
#define SPI_CTRL_LSBFIRST_LSB                    1u /* lowest bit first */
#define SPI_CTRL_IE_Pos                          3u /* interrupt while DONE */
#define SPI_CTRL_IE_Msk                          0x00000008u
#define SPI_CTRL_IE_OFF                          0u /* no interrupt */
#define SPI_CTRL_IE_ON                           1u /* interrupt */

/* Bit time. */
#define SPI_DIV_OFFSET                           0x0Cu
#define SPI_DIV_RESET                            0x00000003u
#define SPI_DIV_CYCLES_Pos                       0u /* half a period of SCLK is CYCLES + 1 clock cycles */
#define SPI_DIV_CYCLES_Msk                       0x0000FFFFu

/* Slave select. */
#define SPI_SELECT_OFFSET                        0x10u
#define SPI_SELECT_RESET                         0x00000000u
#define SPI_SELECT_SS_Pos                        0u /* 1 drives NSS low */
#define SPI_SELECT_SS_Msk                        0x00000001u
#define SPI_SELECT_SS_HIGH                       0u /* NSS is high: not selected */
#define SPI_SELECT_SS_LOW                        1u /* NSS is low: selected */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t DATA; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t STATUS; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t DIV; /* 0x0C */
    TARVO_ORIX_M1_RW uint32_t SELECT; /* 0x10 */
} SPI_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPI_Type_DATA,
                     offsetof(SPI_Type, DATA) == SPI_DATA_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPI_Type_STATUS,
                     offsetof(SPI_Type, STATUS) == SPI_STATUS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPI_Type_CTRL,
                     offsetof(SPI_Type, CTRL) == SPI_CTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPI_Type_DIV,
                     offsetof(SPI_Type, DIV) == SPI_DIV_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPI_Type_SELECT,
                     offsetof(SPI_Type, SELECT) == SPI_SELECT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_SPI_Type, sizeof(SPI_Type) == 0x14u);

#define SPI                                      ((SPI_Type *)(uintptr_t)SPI_BASE)

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
#define SCS_NVIC_ISER_SETENA_Msk                 0x00000001u

/* Disables interrupts. */
#define SCS_NVIC_ICER_OFFSET                     0x180u
#define SCS_NVIC_ICER_RESET                      0x00000000u
#define SCS_NVIC_ICER_CLRENA_Pos                 0u /* read: enabled interrupts; ones disable */
#define SCS_NVIC_ICER_CLRENA_Msk                 0x00000001u

/* Makes interrupts pending. */
#define SCS_NVIC_ISPR_OFFSET                     0x200u
#define SCS_NVIC_ISPR_RESET                      0x00000000u
#define SCS_NVIC_ISPR_RESET_MASK                 0xFFFFFFFEu /* the bits of which the value after reset is known */
#define SCS_NVIC_ISPR_SETPEND_Pos                0u /* read: pending interrupts; ones make pending */
#define SCS_NVIC_ISPR_SETPEND_Msk                0x00000001u

/* Takes back pending interrupts. */
#define SCS_NVIC_ICPR_OFFSET                     0x280u
#define SCS_NVIC_ICPR_RESET                      0x00000000u
#define SCS_NVIC_ICPR_RESET_MASK                 0xFFFFFFFEu /* the bits of which the value after reset is known */
#define SCS_NVIC_ICPR_CLRPEND_Pos                0u /* read: pending interrupts; ones take back */
#define SCS_NVIC_ICPR_CLRPEND_Msk                0x00000001u

/* Priorities of interrupts. */
#define SCS_NVIC_IPR0_OFFSET                     0x400u
#define SCS_NVIC_IPR0_RESET                      0x00000000u
#define SCS_NVIC_IPR0_PRI_N0_Pos                 6u /* of interrupt 0; 0 is the most urgent */
#define SCS_NVIC_IPR0_PRI_N0_Msk                 0x000000C0u

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
    uint32_t RESERVED7[575];
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
