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
    NonMaskableInt_IRQn = -14, /* WDOG: restarts a program that hangs */
    HardFault_IRQn = -13, /* every fault */
    SVCall_IRQn = -5, /* supervisor call */
    PendSV_IRQn = -2, /* request of software */
    SysTick_IRQn = -1, /* system timer */
    UART0_IRQn = 0, /* first serial line */
    UART1_IRQn = 1, /* second serial line */
    TIMER0_IRQn = 2, /* periods and events at TIMER0EXTIN */
    TIMER1_IRQn = 3, /* periods and events at TIMER1EXTIN */
    GPIO_IRQn = 4, /* sixteen pins, each input or output */
    DTIMER_IRQn = 5, /* two more periods, or single delays */
    I2C_IRQn = 6, /* devices on a two-wire bus */
    RTC_IRQn = 7, /* time of day and alarm */
    SPI_IRQn = 8, /* one device on a serial bus */
    CAN_IRQn = 9, /* CAN controller */
    ETH_IRQn = 10, /* Ethernet MAC */
    SD_IRQn = 11, /* memory card */
    EXTINT0_IRQn = 12, /* a bit of the port EXTINT */
    EXTINT1_IRQn = 13, /* a bit of the port EXTINT */
    EXTINT2_IRQn = 14, /* a bit of the port EXTINT */
    EXTINT3_IRQn = 15, /* a bit of the port EXTINT */
    TRNG_IRQn = 16 /* true random number generator */
} IRQn_Type;

#define UART0_IRQ                                0
#define UART1_IRQ                                1
#define TIMER0_IRQ                               2
#define TIMER1_IRQ                               3
#define GPIO_IRQ                                 4
#define DTIMER_IRQ                               5
#define I2C_IRQ                                  6
#define RTC_IRQ                                  7
#define SPI_IRQ                                  8
#define CAN_IRQ                                  9
#define ETH_IRQ                                  10
#define SD_IRQ                                   11
#define EXTINT0_IRQ                              12
#define EXTINT1_IRQ                              13
#define EXTINT2_IRQ                              14
#define EXTINT3_IRQ                              15
#define TRNG_IRQ                                 16

/* What answers where: the first address, and the size in bytes. An access to any other address
 * gives an error. */
#define ITCM_BASE                                0x00000000u /* tightly coupled memory: instruction memory */
#define ITCM_SIZE                                0x00080000u
#define DTCM_BASE                                0x20000000u /* tightly coupled memory: data memory */
#define DTCM_SIZE                                0x00020000u
#define GPIO_SIZE                                0x01000000u
#define CAN_BASE                                 0x41000000u /* black box: CAN controller */
#define CAN_SIZE                                 0x01000000u
#define ETH_BASE                                 0x42000000u /* black box: Ethernet MAC */
#define ETH_SIZE                                 0x01000000u
#define TIMER0_SIZE                              0x00001000u
#define TIMER1_SIZE                              0x00001000u
#define DTIMER_SIZE                              0x00001000u
#define UART0_SIZE                               0x00001000u
#define UART1_SIZE                               0x00001000u
#define RTC_SIZE                                 0x00001000u
#define WDOG_SIZE                                0x00001000u
#define TRNG_BASE                                0x5000A000u /* black box: true random number generator */
#define TRNG_SIZE                                0x00001000u
#define I2C_SIZE                                 0x00001000u
#define SPI_SIZE                                 0x00001000u
#define SD_SIZE                                  0x00001000u
#define APB1_BASE                                0x60000000u /* extension port: APB extension port 1 */
#define APB1_SIZE                                0x00100000u
#define APB2_BASE                                0x60100000u /* extension port: APB extension port 2 */
#define APB2_SIZE                                0x00100000u
#define APB3_BASE                                0x60200000u /* extension port: APB extension port 3 */
#define APB3_SIZE                                0x00100000u
#define APB4_BASE                                0x60300000u /* extension port: APB extension port 4 */
#define APB4_SIZE                                0x00100000u
#define APB5_BASE                                0x60400000u /* extension port: APB extension port 5 */
#define APB5_SIZE                                0x00100000u
#define APB6_BASE                                0x60500000u /* extension port: APB extension port 6 */
#define APB6_SIZE                                0x00100000u
#define APB7_BASE                                0x60600000u /* extension port: APB extension port 7 */
#define APB7_SIZE                                0x00100000u
#define APB8_BASE                                0x60700000u /* extension port: APB extension port 8 */
#define APB8_SIZE                                0x00100000u
#define APB9_BASE                                0x60800000u /* extension port: APB extension port 9 */
#define APB9_SIZE                                0x00100000u
#define APB10_BASE                               0x60900000u /* extension port: APB extension port 10 */
#define APB10_SIZE                               0x00100000u
#define APB11_BASE                               0x60A00000u /* extension port: APB extension port 11 */
#define APB11_SIZE                               0x00100000u
#define APB12_BASE                               0x60B00000u /* extension port: APB extension port 12 */
#define APB12_SIZE                               0x00100000u
#define APB13_BASE                               0x60C00000u /* extension port: APB extension port 13 */
#define APB13_SIZE                               0x00100000u
#define APB14_BASE                               0x60D00000u /* extension port: APB extension port 14 */
#define APB14_SIZE                               0x00100000u
#define APB15_BASE                               0x60E00000u /* extension port: APB extension port 15 */
#define APB15_SIZE                               0x00100000u
#define APB16_BASE                               0x60F00000u /* extension port: APB extension port 16 */
#define APB16_SIZE                               0x00100000u
#define SPIFLASH_WINDOW_BASE                     0x68000000u /* read window: contents of the SPI-Flash */
#define SPIFLASH_WINDOW_SIZE                     0x01000000u
#define SPIFLASH_SIZE                            0x01000000u
#define AHB1_BASE                                0x80000000u /* extension port: AHB extension port 1 */
#define AHB1_SIZE                                0x01000000u
#define AHB2_BASE                                0x81000000u /* extension port: AHB extension port 2 */
#define AHB2_SIZE                                0x01000000u
#define AHB3_BASE                                0x86000000u /* extension port: AHB extension port 3 */
#define AHB3_SIZE                                0x01000000u
#define AHB4_BASE                                0x89000000u /* extension port: AHB extension port 4 */
#define AHB4_SIZE                                0x01000000u
#define AHB5_BASE                                0x8A000000u /* extension port: AHB extension port 5 */
#define AHB5_SIZE                                0x01000000u
#define AHB6_BASE                                0x8B000000u /* extension port: AHB extension port 6 */
#define AHB6_SIZE                                0x01000000u
#define DDR3_BASE                                0xA0000000u /* memory device: DDR3 memory */
#define DDR3_SIZE                                0x20000000u
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
#define TIMER0_BASE                              0x50000000u /* periods and events at TIMER0EXTIN */
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

#define TIMER0                                   ((TIMER_Type *)(uintptr_t)TIMER0_BASE)
#define TIMER1                                   ((TIMER_Type *)(uintptr_t)TIMER1_BASE)

/* DTIMER: Two independent 32-bit down counters, each with a prescaler, and one interrupt.
 * Bytes and halfwords: a counter goes on counting in the bytes that are not written. Any write
 * to CTRL1 or CTRL2 restarts the prescaler with its PRESCALE. */
#define DTIMER_BASE                              0x50002000u /* two more periods, or single delays */

/* Control of counter 1. */
#define DTIMER_CTRL1_OFFSET                      0x00u
#define DTIMER_CTRL1_RESET                       0x00000000u
#define DTIMER_CTRL1_EN_Pos                      0u /* counts */
#define DTIMER_CTRL1_EN_Msk                      0x00000001u
#define DTIMER_CTRL1_EN_OFF                      0u /* stands still */
#define DTIMER_CTRL1_EN_ON                       1u /* counts */
#define DTIMER_CTRL1_IE_Pos                      1u /* interrupt while PEND1 */
#define DTIMER_CTRL1_IE_Msk                      0x00000002u
#define DTIMER_CTRL1_IE_OFF                      0u /* no interrupt */
#define DTIMER_CTRL1_IE_ON                       1u /* interrupt */
#define DTIMER_CTRL1_ONESHOT_Pos                 2u /* stops at 0 and clears EN */
#define DTIMER_CTRL1_ONESHOT_Msk                 0x00000004u
#define DTIMER_CTRL1_ONESHOT_REPEAT              0u /* starts again with RELOAD1 after 0 */
#define DTIMER_CTRL1_ONESHOT_ONCE                1u /* stops at 0 */
#define DTIMER_CTRL1_PRESCALE_Pos                8u /* one count per PRESCALE + 1 clock cycles */
#define DTIMER_CTRL1_PRESCALE_Msk                0x0000FF00u

/* Counter 1. */
#define DTIMER_VALUE1_OFFSET                     0x04u
#define DTIMER_VALUE1_RESET                      0x00000000u
#define DTIMER_VALUE1_COUNT_Pos                  0u /* current count */
#define DTIMER_VALUE1_COUNT_Msk                  0xFFFFFFFFu

/* Period of counter 1. */
#define DTIMER_RELOAD1_OFFSET                    0x08u
#define DTIMER_RELOAD1_RESET                     0x00000000u
#define DTIMER_RELOAD1_COUNT_Pos                 0u /* value that follows 0 */
#define DTIMER_RELOAD1_COUNT_Msk                 0xFFFFFFFFu

/* Interrupt flag of counter 1. */
#define DTIMER_PEND1_OFFSET                      0x0Cu
#define DTIMER_PEND1_RESET                       0x00000000u
#define DTIMER_PEND1_WRAP_Pos                    0u /* the counter went past 0 */
#define DTIMER_PEND1_WRAP_Msk                    0x00000001u
#define DTIMER_PEND1_WRAP_NO                     0u /* not past 0 */
#define DTIMER_PEND1_WRAP_YES                    1u /* past 0 */

/* Control of counter 2. */
#define DTIMER_CTRL2_OFFSET                      0x20u
#define DTIMER_CTRL2_RESET                       0x00000000u
#define DTIMER_CTRL2_EN_Pos                      0u /* counts */
#define DTIMER_CTRL2_EN_Msk                      0x00000001u
#define DTIMER_CTRL2_EN_OFF                      0u /* stands still */
#define DTIMER_CTRL2_EN_ON                       1u /* counts */
#define DTIMER_CTRL2_IE_Pos                      1u /* interrupt while PEND2 */
#define DTIMER_CTRL2_IE_Msk                      0x00000002u
#define DTIMER_CTRL2_IE_OFF                      0u /* no interrupt */
#define DTIMER_CTRL2_IE_ON                       1u /* interrupt */
#define DTIMER_CTRL2_ONESHOT_Pos                 2u /* stops at 0 and clears EN */
#define DTIMER_CTRL2_ONESHOT_Msk                 0x00000004u
#define DTIMER_CTRL2_ONESHOT_REPEAT              0u /* starts again with RELOAD2 after 0 */
#define DTIMER_CTRL2_ONESHOT_ONCE                1u /* stops at 0 */
#define DTIMER_CTRL2_PRESCALE_Pos                8u /* one count per PRESCALE + 1 clock cycles */
#define DTIMER_CTRL2_PRESCALE_Msk                0x0000FF00u

/* Counter 2. */
#define DTIMER_VALUE2_OFFSET                     0x24u
#define DTIMER_VALUE2_RESET                      0x00000000u
#define DTIMER_VALUE2_COUNT_Pos                  0u /* current count */
#define DTIMER_VALUE2_COUNT_Msk                  0xFFFFFFFFu

/* Period of counter 2. */
#define DTIMER_RELOAD2_OFFSET                    0x28u
#define DTIMER_RELOAD2_RESET                     0x00000000u
#define DTIMER_RELOAD2_COUNT_Pos                 0u /* value that follows 0 */
#define DTIMER_RELOAD2_COUNT_Msk                 0xFFFFFFFFu

/* Interrupt flag of counter 2. */
#define DTIMER_PEND2_OFFSET                      0x2Cu
#define DTIMER_PEND2_RESET                       0x00000000u
#define DTIMER_PEND2_WRAP_Pos                    0u /* the counter went past 0 */
#define DTIMER_PEND2_WRAP_Msk                    0x00000001u
#define DTIMER_PEND2_WRAP_NO                     0u /* not past 0 */
#define DTIMER_PEND2_WRAP_YES                    1u /* past 0 */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t CTRL1; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t VALUE1; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t RELOAD1; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t PEND1; /* 0x0C */
    uint32_t RESERVED0[4];
    TARVO_ORIX_M1_RW uint32_t CTRL2; /* 0x20 */
    TARVO_ORIX_M1_RW uint32_t VALUE2; /* 0x24 */
    TARVO_ORIX_M1_RW uint32_t RELOAD2; /* 0x28 */
    TARVO_ORIX_M1_RW uint32_t PEND2; /* 0x2C */
} DTIMER_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_CTRL1,
                     offsetof(DTIMER_Type, CTRL1) == DTIMER_CTRL1_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_VALUE1,
                     offsetof(DTIMER_Type, VALUE1) == DTIMER_VALUE1_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_RELOAD1,
                     offsetof(DTIMER_Type, RELOAD1) == DTIMER_RELOAD1_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_PEND1,
                     offsetof(DTIMER_Type, PEND1) == DTIMER_PEND1_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_CTRL2,
                     offsetof(DTIMER_Type, CTRL2) == DTIMER_CTRL2_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_VALUE2,
                     offsetof(DTIMER_Type, VALUE2) == DTIMER_VALUE2_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_RELOAD2,
                     offsetof(DTIMER_Type, RELOAD2) == DTIMER_RELOAD2_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_PEND2,
                     offsetof(DTIMER_Type, PEND2) == DTIMER_PEND2_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_DTIMER_Type, sizeof(DTIMER_Type) == 0x30u);

#define DTIMER                                   ((DTIMER_Type *)(uintptr_t)DTIMER_BASE)

/* UART: Eight data bits, no parity, one stop bit; one byte of buffer in each direction beside
 * the shift registers. Bytes and halfwords: a byte is sent only by a write that reaches the
 * lowest byte of DATA, and taken only by a read that begins there. BAUDDIV counts as its
 * minimum while the whole of it is smaller. */
#define UART0_BASE                               0x50004000u /* first serial line */
#define UART1_BASE                               0x50005000u /* second serial line */

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
#define UART1                                    ((UART_Type *)(uintptr_t)UART1_BASE)

/* RTC: Real-time clock: counts seconds of an external clock, which is sampled with PCLK and
 * must be slower than PCLK / 4. Bytes and halfwords: any write to SECONDS restarts the running
 * second. */
#define RTC_BASE                                 0x50006000u /* time of day and alarm */

/* Time. Writing it also restarts the running second. */
#define RTC_SECONDS_OFFSET                       0x00u
#define RTC_SECONDS_RESET                        0x00000000u
#define RTC_SECONDS_COUNT_Pos                    0u /* seconds */
#define RTC_SECONDS_COUNT_Msk                    0xFFFFFFFFu

/* Alarm time. */
#define RTC_ALARM_OFFSET                         0x04u
#define RTC_ALARM_RESET                          0x00000000u
#define RTC_ALARM_COUNT_Pos                      0u /* seconds */
#define RTC_ALARM_COUNT_Msk                      0xFFFFFFFFu

/* Control. */
#define RTC_CTRL_OFFSET                          0x08u
#define RTC_CTRL_RESET                           0x00000000u
#define RTC_CTRL_EN_Pos                          0u /* counts */
#define RTC_CTRL_EN_Msk                          0x00000001u
#define RTC_CTRL_EN_OFF                          0u /* stands still */
#define RTC_CTRL_EN_ON                           1u /* counts */
#define RTC_CTRL_ALARMIE_Pos                     1u /* interrupt while ALARM of PEND */
#define RTC_CTRL_ALARMIE_Msk                     0x00000002u
#define RTC_CTRL_ALARMIE_OFF                     0u /* no interrupt */
#define RTC_CTRL_ALARMIE_ON                      1u /* interrupt */
#define RTC_CTRL_SECONDIE_Pos                    2u /* interrupt while SECOND of PEND */
#define RTC_CTRL_SECONDIE_Msk                    0x00000004u
#define RTC_CTRL_SECONDIE_OFF                    0u /* no interrupt */
#define RTC_CTRL_SECONDIE_ON                     1u /* interrupt */

/* Interrupt flags. */
#define RTC_PEND_OFFSET                          0x0Cu
#define RTC_PEND_RESET                           0x00000000u
#define RTC_PEND_ALARM_Pos                       0u /* SECONDS became equal to ALARM */
#define RTC_PEND_ALARM_Msk                       0x00000001u
#define RTC_PEND_ALARM_NO                        0u /* no alarm */
#define RTC_PEND_ALARM_YES                       1u /* alarm */
#define RTC_PEND_SECOND_Pos                      1u /* a second has passed */
#define RTC_PEND_SECOND_Msk                      0x00000002u
#define RTC_PEND_SECOND_NO                       0u /* no second has passed */
#define RTC_PEND_SECOND_YES                      1u /* a second has passed */

/* Length of a second. */
#define RTC_PRESCALE_OFFSET                      0x10u
#define RTC_PRESCALE_RESET                       0x00007FFFu
#define RTC_PRESCALE_CYCLES_Pos                  0u /* source clock cycles of a second, less 1 */
#define RTC_PRESCALE_CYCLES_Msk                  0x00FFFFFFu

typedef struct {
    TARVO_ORIX_M1_RW uint32_t SECONDS; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t ALARM; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t PEND; /* 0x0C */
    TARVO_ORIX_M1_RW uint32_t PRESCALE; /* 0x10 */
} RTC_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_RTC_Type_SECONDS,
                     offsetof(RTC_Type, SECONDS) == RTC_SECONDS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_RTC_Type_ALARM,
                     offsetof(RTC_Type, ALARM) == RTC_ALARM_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_RTC_Type_CTRL,
                     offsetof(RTC_Type, CTRL) == RTC_CTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_RTC_Type_PEND,
                     offsetof(RTC_Type, PEND) == RTC_PEND_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_RTC_Type_PRESCALE,
                     offsetof(RTC_Type, PRESCALE) == RTC_PRESCALE_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_RTC_Type, sizeof(RTC_Type) == 0x14u);

#define RTC                                      ((RTC_Type *)(uintptr_t)RTC_BASE)

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

/* I2C: I2C master, one byte per command, with clock stretching and loss of arbitration. Bytes
 * and halfwords: a command starts only if the lowest byte of COMMAND is written. */
#define I2C_BASE                                 0x5000C000u /* devices on a two-wire bus */

/* Bit time. */
#define I2C_PRESCALE_OFFSET                      0x00u
#define I2C_PRESCALE_RESET                       0x00000063u
#define I2C_PRESCALE_CYCLES_Pos                  0u /* a quarter of an SCL period is CYCLES + 1 clock cycles */
#define I2C_PRESCALE_CYCLES_Msk                  0x0000FFFFu

/* Control. */
#define I2C_CTRL_OFFSET                          0x04u
#define I2C_CTRL_RESET                           0x00000000u
#define I2C_CTRL_EN_Pos                          0u /* commands are accepted */
#define I2C_CTRL_EN_Msk                          0x00000001u
#define I2C_CTRL_EN_OFF                          0u /* commands are ignored */
#define I2C_CTRL_EN_ON                           1u /* commands are accepted */
#define I2C_CTRL_IE_Pos                          1u /* interrupt while DONE */
#define I2C_CTRL_IE_Msk                          0x00000002u
#define I2C_CTRL_IE_OFF                          0u /* no interrupt */
#define I2C_CTRL_IE_ON                           1u /* interrupt */

/* Byte to send. */
#define I2C_TXDATA_OFFSET                        0x08u
#define I2C_TXDATA_RESET                         0x00000000u
#define I2C_TXDATA_BYTE_Pos                      0u /* sent by the WRITE command */
#define I2C_TXDATA_BYTE_Msk                      0x000000FFu

/* Byte received. */
#define I2C_RXDATA_OFFSET                        0x0Cu
#define I2C_RXDATA_RESET                         0x00000000u
#define I2C_RXDATA_BYTE_Pos                      0u /* left by the READ command */
#define I2C_RXDATA_BYTE_Msk                      0x000000FFu

/* Starts a transfer; ignored while BUSY or disabled. */
#define I2C_COMMAND_OFFSET                       0x10u
#define I2C_COMMAND_RESET                        0x00000000u
#define I2C_COMMAND_START_Pos                    0u /* start or repeated start first */
#define I2C_COMMAND_START_Msk                    0x00000001u
#define I2C_COMMAND_START_NO                     0u /* without */
#define I2C_COMMAND_START_YES                    1u /* a start condition */
#define I2C_COMMAND_WRITE_Pos                    1u /* send TXDATA */
#define I2C_COMMAND_WRITE_Msk                    0x00000002u
#define I2C_COMMAND_WRITE_NO                     0u /* without */
#define I2C_COMMAND_WRITE_YES                    1u /* a byte to send */
#define I2C_COMMAND_READ_Pos                     2u /* receive a byte */
#define I2C_COMMAND_READ_Msk                     0x00000004u
#define I2C_COMMAND_READ_NO                      0u /* without */
#define I2C_COMMAND_READ_YES                     1u /* a byte to receive */
#define I2C_COMMAND_STOP_Pos                     3u /* stop last */
#define I2C_COMMAND_STOP_Msk                     0x00000008u
#define I2C_COMMAND_STOP_NO                      0u /* without */
#define I2C_COMMAND_STOP_YES                     1u /* a stop condition */
#define I2C_COMMAND_NACK_Pos                     4u /* answer to READ: 1 does not acknowledge */
#define I2C_COMMAND_NACK_Msk                     0x00000010u
#define I2C_COMMAND_NACK_ACK                     0u /* acknowledges the byte that is received */
#define I2C_COMMAND_NACK_NACK                    1u /* does not acknowledge it */

/* State. */
#define I2C_STATUS_OFFSET                        0x14u
#define I2C_STATUS_RESET                         0x00000000u
#define I2C_STATUS_BUSY_Pos                      0u /* a command is running */
#define I2C_STATUS_BUSY_Msk                      0x00000001u
#define I2C_STATUS_BUSY_IDLE                     0u /* no command is running */
#define I2C_STATUS_BUSY_BUSY                     1u /* a command is running */
#define I2C_STATUS_NACKED_Pos                    1u /* the last byte was not acknowledged */
#define I2C_STATUS_NACKED_Msk                    0x00000002u
#define I2C_STATUS_NACKED_ACK                    0u /* acknowledged */
#define I2C_STATUS_NACKED_NACK                   1u /* not acknowledged */
#define I2C_STATUS_OPEN_Pos                      2u /* between start and stop */
#define I2C_STATUS_OPEN_Msk                      0x00000004u
#define I2C_STATUS_OPEN_CLOSED                   0u /* the bus is not held */
#define I2C_STATUS_OPEN_OPEN                     1u /* between start and stop */
#define I2C_STATUS_DONE_Pos                      3u /* a command has ended */
#define I2C_STATUS_DONE_Msk                      0x00000008u
#define I2C_STATUS_DONE_NO                       0u /* no command has ended */
#define I2C_STATUS_DONE_YES                      1u /* a command has ended */
#define I2C_STATUS_ARBLOST_Pos                   4u /* another master won the bus */
#define I2C_STATUS_ARBLOST_Msk                   0x00000010u
#define I2C_STATUS_ARBLOST_NO                    0u /* not lost */
#define I2C_STATUS_ARBLOST_YES                   1u /* another master won */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t PRESCALE; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t TXDATA; /* 0x08 */
    TARVO_ORIX_M1_R uint32_t RXDATA; /* 0x0C */
    TARVO_ORIX_M1_W uint32_t COMMAND; /* 0x10 */
    TARVO_ORIX_M1_RW uint32_t STATUS; /* 0x14 */
} I2C_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_PRESCALE,
                     offsetof(I2C_Type, PRESCALE) == I2C_PRESCALE_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_CTRL,
                     offsetof(I2C_Type, CTRL) == I2C_CTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_TXDATA,
                     offsetof(I2C_Type, TXDATA) == I2C_TXDATA_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_RXDATA,
                     offsetof(I2C_Type, RXDATA) == I2C_RXDATA_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_COMMAND,
                     offsetof(I2C_Type, COMMAND) == I2C_COMMAND_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_STATUS,
                     offsetof(I2C_Type, STATUS) == I2C_STATUS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_I2C_Type, sizeof(I2C_Type) == 0x18u);

#define I2C                                      ((I2C_Type *)(uintptr_t)I2C_BASE)

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

/* SD: SD card in SPI mode. The serial clock is made from the source clock SD_SPICLK, which is
 * sampled with PCLK and must be slower than PCLK / 4: each of its rising edges is half a
 * period of SD_CLK. A card is present when SD_CHECKIN has been low for 1024 clock cycles.
 * Bytes and halfwords: a byte is sent only by a write that reaches the lowest byte of DATA. */
#define SD_BASE                                  0x5000E000u /* memory card */

/* Bytes to and from the card. */
#define SD_DATA_OFFSET                           0x00u
#define SD_DATA_RESET                            0x00000000u
#define SD_DATA_BYTE_Pos                         0u /* write: sends the byte, ignored while BUSY; read: the byte received with it */
#define SD_DATA_BYTE_Msk                         0x000000FFu

/* State. */
#define SD_STATUS_OFFSET                         0x04u
#define SD_STATUS_RESET                          0x00000000u
#define SD_STATUS_BUSY_Pos                       0u /* a byte is on its way */
#define SD_STATUS_BUSY_Msk                       0x00000001u
#define SD_STATUS_BUSY_IDLE                      0u /* no byte is on its way */
#define SD_STATUS_BUSY_BUSY                      1u /* a byte is on its way */
#define SD_STATUS_DONE_Pos                       1u /* a byte is complete */
#define SD_STATUS_DONE_Msk                       0x00000002u
#define SD_STATUS_DONE_NO                        0u /* no byte is complete */
#define SD_STATUS_DONE_YES                       1u /* a byte is complete */
#define SD_STATUS_LOST_Pos                       2u /* DATA was written while BUSY */
#define SD_STATUS_LOST_Msk                       0x00000004u
#define SD_STATUS_LOST_NO                        0u /* nothing is lost */
#define SD_STATUS_LOST_YES                       1u /* a byte is lost */
#define SD_STATUS_CARD_Pos                       3u /* a card is present */
#define SD_STATUS_CARD_Msk                       0x00000008u
#define SD_STATUS_CARD_ABSENT                    0u /* no card */
#define SD_STATUS_CARD_PRESENT                   1u /* a card is present */
#define SD_STATUS_CHANGED_Pos                    4u /* CARD changed */
#define SD_STATUS_CHANGED_Msk                    0x00000010u
#define SD_STATUS_CHANGED_NO                     0u /* as before */
#define SD_STATUS_CHANGED_YES                    1u /* a card came or left */

/* Control. */
#define SD_CTRL_OFFSET                           0x08u
#define SD_CTRL_RESET                            0x00000000u
#define SD_CTRL_SELECT_Pos                       0u /* 1 drives SD_CS low */
#define SD_CTRL_SELECT_Msk                       0x00000001u
#define SD_CTRL_SELECT_HIGH                      0u /* SD_CS is high: not selected */
#define SD_CTRL_SELECT_LOW                       1u /* SD_CS is low: selected */
#define SD_CTRL_INIT_Pos                         1u /* drives SD_CARD_INIT: software has initialised the card; cleared when the card leaves */
#define SD_CTRL_INIT_Msk                         0x00000002u
#define SD_CTRL_INIT_NO                          0u /* not initialised */
#define SD_CTRL_INIT_YES                         1u /* initialised */
#define SD_CTRL_DONEIE_Pos                       2u /* interrupt while DONE */
#define SD_CTRL_DONEIE_Msk                       0x00000004u
#define SD_CTRL_DONEIE_OFF                       0u /* no interrupt */
#define SD_CTRL_DONEIE_ON                        1u /* interrupt */
#define SD_CTRL_CARDIE_Pos                       3u /* interrupt while CHANGED */
#define SD_CTRL_CARDIE_Msk                       0x00000008u
#define SD_CTRL_CARDIE_OFF                       0u /* no interrupt */
#define SD_CTRL_CARDIE_ON                        1u /* interrupt */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t DATA; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t STATUS; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x08 */
} SD_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_DATA,
                     offsetof(SD_Type, DATA) == SD_DATA_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_STATUS,
                     offsetof(SD_Type, STATUS) == SD_STATUS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_CTRL,
                     offsetof(SD_Type, CTRL) == SD_CTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_SD_Type, sizeof(SD_Type) == 0x0Cu);

#define SD                                       ((SD_Type *)(uintptr_t)SD_BASE)

/* SPIFLASH: Registers beside the read window of 16 MB at 0x68000000, in which a read fetches
 * four bytes from the serial flash with command 0x03, the byte at the lowest address in bits 7
 * to 0. A write in the window, and a read while SELECT is 1, get the error response. The
 * serial clock idles low (mode 0). Bytes and halfwords: a byte is sent only by a write that
 * reaches the lowest byte of DATA. */
#define SPIFLASH_BASE                            0x69000000u /* commands to the serial flash, such as erasing and programming */

/* Bytes to and from the flash. */
#define SPIFLASH_DATA_OFFSET                     0x00u
#define SPIFLASH_DATA_RESET                      0x00000000u
#define SPIFLASH_DATA_BYTE_Pos                   0u /* write: sends the byte, the bus waits until it is sent; read: the byte received with it */
#define SPIFLASH_DATA_BYTE_Msk                   0x000000FFu

/* Chip select. */
#define SPIFLASH_SELECT_OFFSET                   0x04u
#define SPIFLASH_SELECT_RESET                    0x00000000u
#define SPIFLASH_SELECT_CS_Pos                   0u /* 1 holds the chip select low for bytes sent through DATA */
#define SPIFLASH_SELECT_CS_Msk                   0x00000001u
#define SPIFLASH_SELECT_CS_HIGH                  0u /* the chip select follows the read window */
#define SPIFLASH_SELECT_CS_LOW                   1u /* the chip select is held low */

/* Bit time. */
#define SPIFLASH_DIV_OFFSET                      0x08u
#define SPIFLASH_DIV_RESET                       0x00000001u
#define SPIFLASH_DIV_CYCLES_Pos                  0u /* half a period of the serial clock is CYCLES + 1 clock cycles */
#define SPIFLASH_DIV_CYCLES_Msk                  0x000000FFu

/* Write protection. */
#define SPIFLASH_PROTECT_OFFSET                  0x0Cu
#define SPIFLASH_PROTECT_RESET                   0x00000001u
#define SPIFLASH_PROTECT_WP_Pos                  0u /* 1 drives the write-protect pin low */
#define SPIFLASH_PROTECT_WP_Msk                  0x00000001u
#define SPIFLASH_PROTECT_WP_OFF                  0u /* the write-protect pin is high */
#define SPIFLASH_PROTECT_WP_ON                   1u /* the write-protect pin is low */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t DATA; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t SELECT; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t DIV; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t PROTECT; /* 0x0C */
} SPIFLASH_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_DATA,
                     offsetof(SPIFLASH_Type, DATA) == SPIFLASH_DATA_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_SELECT,
                     offsetof(SPIFLASH_Type, SELECT) == SPIFLASH_SELECT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_DIV,
                     offsetof(SPIFLASH_Type, DIV) == SPIFLASH_DIV_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPIFLASH_Type_PROTECT,
                     offsetof(SPIFLASH_Type, PROTECT) == SPIFLASH_PROTECT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_SPIFLASH_Type, sizeof(SPIFLASH_Type) == 0x10u);

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
