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
#define TARVO_ORIX_M1_BIG_ENDIAN                 1
/* Data is big-endian (BE8), instructions are little-endian: compile with -mbig-endian, link
 * with --be8. A register that is accessed as a word has the same value and the same bits as in
 * a little-endian system, and all that this header says holds as it stands. A byte or a
 * halfword of a register stands at the other end of its word: bits 7 to 0 at the offset + 3. */

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
    SD_IRQn = 11, /* memory card */
    SYS_IRQn = 17 /* says why a reset was, and which access failed */
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
#define SD_IRQ                                   11
#define SYS_IRQ                                  17

/* What answers where: the first address, and the size in bytes. An access to any other address
 * gives an error. */
#define ITCM_BASE                                0x00000000u /* tightly coupled memory: instruction memory */
#define ITCM_SIZE                                0x00004000u
#define DTCM_BASE                                0x20000000u /* tightly coupled memory: data memory */
#define DTCM_SIZE                                0x00002000u
#define GPIO_SIZE                                0x01000000u
#define TIMER0_SIZE                              0x00001000u
#define TIMER1_SIZE                              0x00001000u
#define DTIMER_SIZE                              0x00001000u
#define UART0_SIZE                               0x00001000u
#define UART1_SIZE                               0x00001000u
#define RTC_SIZE                                 0x00001000u
#define WDOG_SIZE                                0x00001000u
#define I2C_SIZE                                 0x00001000u
#define SPI_SIZE                                 0x00001000u
#define SD_SIZE                                  0x00001000u
#define SYS_SIZE                                 0x00001000u
#define SPIFLASH_WINDOW_BASE                     0x68000000u /* read window: contents of the SPI-Flash */
#define SPIFLASH_WINDOW_SIZE                     0x01000000u
#define SPIFLASH_SIZE                            0x01000000u
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
 * halfwords: a write to OUTSET, OUTCLR, OUTTGL or INTPEND acts on the pins of the bytes that
 * it reaches, one to OUTMASK only as a whole word. */
#define GPIO_BASE                                0x40000000u /* sixteen pins, each input or output */

/* Pin levels, of outputs too, synchronised to HCLK and filtered where FILTER says so. */
#define GPIO_DATA_OFFSET                         0x00u
#define GPIO_DATA_RESET                          0x00000000u
#define GPIO_DATA_RESET_MASK                     0xFFFF0000u /* the bits of which the value after reset is known */
#define GPIO_DATA_PINS_Pos                       0u /* level of each pin, two clock cycles old, and what its filter takes */
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

/* Inverts bits of OUT. */
#define GPIO_OUTTGL_OFFSET                       0x24u
#define GPIO_OUTTGL_RESET                        0x00000000u
#define GPIO_OUTTGL_TOGGLE_Pos                   0u /* OUT bits that are written as 1 are inverted */
#define GPIO_OUTTGL_TOGGLE_Msk                   0x0000FFFFu

/* Both edges as the interrupt condition. */
#define GPIO_INTBOTH_OFFSET                      0x28u
#define GPIO_INTBOTH_RESET                       0x00000000u
#define GPIO_INTBOTH_BOTH_Pos                    0u /* 1: pending after either edge, whatever INTPOL says; only with INTEDGE */
#define GPIO_INTBOTH_BOTH_Msk                    0x0000FFFFu

/* Filters of inputs. */
#define GPIO_FILTER_OFFSET                       0x2Cu
#define GPIO_FILTER_RESET                        0x00000000u
#define GPIO_FILTER_ENABLE_Pos                   0u /* 1: DATA and interrupts see the pin through its filter, 0: at once */
#define GPIO_FILTER_ENABLE_Msk                   0x0000FFFFu

/* Length of the filters. */
#define GPIO_FILTERLEN_OFFSET                    0x30u
#define GPIO_FILTERLEN_RESET                     0x00000000u
#define GPIO_FILTERLEN_CYCLES_Pos                0u /* a sample every CYCLES + 1 clock cycles; three that agree are taken over: pulses of up to 2 (CYCLES + 1) cycles are dropped, those of 3 (CYCLES + 1) are seen */
#define GPIO_FILTERLEN_CYCLES_Msk                0x000FFFFFu

/* Gives some bits of OUT a value, all at the same time. */
#define GPIO_OUTMASK_OFFSET                      0x34u
#define GPIO_OUTMASK_RESET                       0x00000000u
#define GPIO_OUTMASK_VALUE_Pos                   0u /* what OUT bits become where MASK is 1 */
#define GPIO_OUTMASK_VALUE_Msk                   0x0000FFFFu
#define GPIO_OUTMASK_MASK_Pos                    16u /* 1: the OUT bit becomes that of VALUE, 0: it stays */
#define GPIO_OUTMASK_MASK_Msk                    0xFFFF0000u

/* Pin levels, of outputs too, synchronised to HCLK and never filtered. */
#define GPIO_PIN_OFFSET                          0x38u
#define GPIO_PIN_RESET                           0x00000000u
#define GPIO_PIN_RESET_MASK                      0xFFFF0000u /* the bits of which the value after reset is known */
#define GPIO_PIN_PINS_Pos                        0u /* what each pin really is, driven or not, two clock cycles old */
#define GPIO_PIN_PINS_Msk                        0x0000FFFFu

/* What this block is. */
#define GPIO_ID_OFFSET                           0xFFCu
#define GPIO_ID_RESET                            0x01100201u
#define GPIO_ID_BLOCK_Pos                        0u /* kind of block */
#define GPIO_ID_BLOCK_Msk                        0x000000FFu
#define GPIO_ID_REVISION_Pos                     8u /* revision of its registers */
#define GPIO_ID_REVISION_Msk                     0x0000FF00u
#define GPIO_ID_PINS_Pos                         16u /* number of pins */
#define GPIO_ID_PINS_Msk                         0x00FF0000u
#define GPIO_ID_FILTERS_Pos                      24u /* has filters */
#define GPIO_ID_FILTERS_Msk                      0x01000000u
#define GPIO_ID_FILTERS_NO                       0u /* has none: FILTER and FILTERLEN read as 0 */
#define GPIO_ID_FILTERS_YES                      1u /* has one for each pin */

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
    TARVO_ORIX_M1_W uint32_t OUTTGL; /* 0x24 */
    TARVO_ORIX_M1_RW uint32_t INTBOTH; /* 0x28 */
    TARVO_ORIX_M1_RW uint32_t FILTER; /* 0x2C */
    TARVO_ORIX_M1_RW uint32_t FILTERLEN; /* 0x30 */
    TARVO_ORIX_M1_W uint32_t OUTMASK; /* 0x34 */
    TARVO_ORIX_M1_R uint32_t PIN; /* 0x38 */
    uint32_t RESERVED0[1008];
    TARVO_ORIX_M1_R uint32_t ID; /* 0xFFC */
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
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_OUTTGL,
                     offsetof(GPIO_Type, OUTTGL) == GPIO_OUTTGL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_INTBOTH,
                     offsetof(GPIO_Type, INTBOTH) == GPIO_INTBOTH_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_FILTER,
                     offsetof(GPIO_Type, FILTER) == GPIO_FILTER_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_FILTERLEN,
                     offsetof(GPIO_Type, FILTERLEN) == GPIO_FILTERLEN_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_OUTMASK,
                     offsetof(GPIO_Type, OUTMASK) == GPIO_OUTMASK_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_PIN,
                     offsetof(GPIO_Type, PIN) == GPIO_PIN_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_GPIO_Type_ID,
                     offsetof(GPIO_Type, ID) == GPIO_ID_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_GPIO_Type, sizeof(GPIO_Type) == 0x1000u);

#define GPIO                                     ((GPIO_Type *)(uintptr_t)GPIO_BASE)

/* TIMER: 24-bit down counter with a prescaler, that reloads or stops after 0, a compare value,
 * and capture on edges of the external input. The external input is synchronised to PCLK.
 * Switching on raises no flag: a counter that stands at 0 then begins with RELOAD. Bytes and
 * halfwords: VALUE goes on counting in the bytes that are not written. */
#define TIMER0_BASE                              0x50000000u /* periods and events at TIMER0EXTIN */
#define TIMER1_BASE                              0x50001000u /* periods and events at TIMER1EXTIN */

/* Control. */
#define TIMER_CTRL_OFFSET                        0x00u
#define TIMER_CTRL_RESET                         0x00000000u
#define TIMER_CTRL_EN_Pos                        0u /* counts */
#define TIMER_CTRL_EN_Msk                        0x00000001u
#define TIMER_CTRL_EN_OFF                        0u /* stands still */
#define TIMER_CTRL_EN_ON                         1u /* counts */
#define TIMER_CTRL_IE_Pos                        1u /* interrupt while WRAP of PEND */
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
#define TIMER_CTRL_ONESHOT_Pos                   4u /* stops at 0 and clears EN */
#define TIMER_CTRL_ONESHOT_Msk                   0x00000010u
#define TIMER_CTRL_ONESHOT_REPEAT                0u /* starts again with RELOAD after 0 */
#define TIMER_CTRL_ONESHOT_ONCE                  1u /* stops at 0; switched on again, it begins with RELOAD */
#define TIMER_CTRL_CMPEN_Pos                     5u /* compares */
#define TIMER_CTRL_CMPEN_Msk                     0x00000020u
#define TIMER_CTRL_CMPEN_OFF                     0u /* MATCH of PEND is not set */
#define TIMER_CTRL_CMPEN_ON                      1u /* MATCH of PEND is set when the counter reaches COMPARE */
#define TIMER_CTRL_CMPIE_Pos                     6u /* interrupt while MATCH of PEND */
#define TIMER_CTRL_CMPIE_Msk                     0x00000040u
#define TIMER_CTRL_CMPIE_OFF                     0u /* no interrupt */
#define TIMER_CTRL_CMPIE_ON                      1u /* interrupt */
#define TIMER_CTRL_CAPIE_Pos                     7u /* interrupt while CAPTURE of PEND */
#define TIMER_CTRL_CAPIE_Msk                     0x00000080u
#define TIMER_CTRL_CAPIE_OFF                     0u /* no interrupt */
#define TIMER_CTRL_CAPIE_ON                      1u /* interrupt */
#define TIMER_CTRL_CAPEDGE_Pos                   8u /* edges of the external input at which CAPTURE takes the count, while EN */
#define TIMER_CTRL_CAPEDGE_Msk                   0x00000300u
#define TIMER_CTRL_CAPEDGE_NONE                  0u /* takes nothing */
#define TIMER_CTRL_CAPEDGE_RISING                1u /* takes the count at rising edges */
#define TIMER_CTRL_CAPEDGE_FALLING               2u /* takes the count at falling edges */
#define TIMER_CTRL_CAPEDGE_BOTH                  3u /* takes the count at both edges */

/* Counter. */
#define TIMER_VALUE_OFFSET                       0x04u
#define TIMER_VALUE_RESET                        0x00000000u
#define TIMER_VALUE_COUNT_Pos                    0u /* current count */
#define TIMER_VALUE_COUNT_Msk                    0x00FFFFFFu

/* Period. */
#define TIMER_RELOAD_OFFSET                      0x08u
#define TIMER_RELOAD_RESET                       0x00000000u
#define TIMER_RELOAD_COUNT_Pos                   0u /* value that follows 0; the period is RELOAD + 1 counts of PRESCALE + 1 cycles or edges */
#define TIMER_RELOAD_COUNT_Msk                   0x00FFFFFFu

/* Interrupt flags. */
#define TIMER_PEND_OFFSET                        0x0Cu
#define TIMER_PEND_RESET                         0x00000000u
#define TIMER_PEND_WRAP_Pos                      0u /* the counter went past 0 */
#define TIMER_PEND_WRAP_Msk                      0x00000001u
#define TIMER_PEND_WRAP_NO                       0u /* not past 0 */
#define TIMER_PEND_WRAP_YES                      1u /* past 0 */
#define TIMER_PEND_MATCH_Pos                     1u /* the counter has counted, or reloaded, to COMPARE while CMPEN */
#define TIMER_PEND_MATCH_Msk                     0x00000002u
#define TIMER_PEND_MATCH_NO                      0u /* no match */
#define TIMER_PEND_MATCH_YES                     1u /* match */
#define TIMER_PEND_CAPTURE_Pos                   2u /* an edge of CAPEDGE was seen */
#define TIMER_PEND_CAPTURE_Msk                   0x00000004u
#define TIMER_PEND_CAPTURE_NO                    0u /* no edge */
#define TIMER_PEND_CAPTURE_YES                   1u /* edge */
#define TIMER_PEND_OVERRUN_Pos                   3u /* an edge was seen while CAPTURE of PEND was set: an earlier count is lost */
#define TIMER_PEND_OVERRUN_Msk                   0x00000008u
#define TIMER_PEND_OVERRUN_NO                    0u /* nothing lost */
#define TIMER_PEND_OVERRUN_YES                   1u /* a count is lost */

/* Prescaler. It begins anew when the counter is switched on; a write counts from the next
 * count on. */
#define TIMER_PRESCALE_OFFSET                    0x10u
#define TIMER_PRESCALE_RESET                     0x00000000u
#define TIMER_PRESCALE_CYCLES_Pos                0u /* one count per PRESCALE + 1 clock cycles, of those that EXTGATE lets through, or edges */
#define TIMER_PRESCALE_CYCLES_Msk                0x0000FFFFu

/* Compare value. */
#define TIMER_COMPARE_OFFSET                     0x14u
#define TIMER_COMPARE_RESET                      0x00000000u
#define TIMER_COMPARE_COUNT_Pos                  0u /* count at which MATCH of PEND is set */
#define TIMER_COMPARE_COUNT_Msk                  0x00FFFFFFu

/* Count at the last edge of CAPEDGE, three clock cycles after it at the pin. */
#define TIMER_CAPTURE_OFFSET                     0x18u
#define TIMER_CAPTURE_RESET                      0x00000000u
#define TIMER_CAPTURE_COUNT_Pos                  0u /* VALUE of then */
#define TIMER_CAPTURE_COUNT_Msk                  0x00FFFFFFu

/* What this block is. */
#define TIMER_ID_OFFSET                          0xFFCu
#define TIMER_ID_RESET                           0x03180203u
#define TIMER_ID_BLOCK_Pos                       0u /* kind of block */
#define TIMER_ID_BLOCK_Msk                       0x000000FFu
#define TIMER_ID_REVISION_Pos                    8u /* revision of its registers */
#define TIMER_ID_REVISION_Msk                    0x0000FF00u
#define TIMER_ID_BITS_Pos                        16u /* bits of the counter */
#define TIMER_ID_BITS_Msk                        0x00FF0000u
#define TIMER_ID_COMPARE_Pos                     24u /* has a compare value */
#define TIMER_ID_COMPARE_Msk                     0x01000000u
#define TIMER_ID_COMPARE_NO                      0u /* has none */
#define TIMER_ID_COMPARE_YES                     1u /* has one */
#define TIMER_ID_CAPTURE_Pos                     25u /* has capture */
#define TIMER_ID_CAPTURE_Msk                     0x02000000u
#define TIMER_ID_CAPTURE_NO                      0u /* has none */
#define TIMER_ID_CAPTURE_YES                     1u /* has it */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t VALUE; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t RELOAD; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t PEND; /* 0x0C */
    TARVO_ORIX_M1_RW uint32_t PRESCALE; /* 0x10 */
    TARVO_ORIX_M1_RW uint32_t COMPARE; /* 0x14 */
    TARVO_ORIX_M1_R uint32_t CAPTURE; /* 0x18 */
    uint32_t RESERVED0[1016];
    TARVO_ORIX_M1_R uint32_t ID; /* 0xFFC */
} TIMER_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_TIMER_Type_CTRL,
                     offsetof(TIMER_Type, CTRL) == TIMER_CTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_TIMER_Type_VALUE,
                     offsetof(TIMER_Type, VALUE) == TIMER_VALUE_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_TIMER_Type_RELOAD,
                     offsetof(TIMER_Type, RELOAD) == TIMER_RELOAD_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_TIMER_Type_PEND,
                     offsetof(TIMER_Type, PEND) == TIMER_PEND_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_TIMER_Type_PRESCALE,
                     offsetof(TIMER_Type, PRESCALE) == TIMER_PRESCALE_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_TIMER_Type_COMPARE,
                     offsetof(TIMER_Type, COMPARE) == TIMER_COMPARE_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_TIMER_Type_CAPTURE,
                     offsetof(TIMER_Type, CAPTURE) == TIMER_CAPTURE_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_TIMER_Type_ID,
                     offsetof(TIMER_Type, ID) == TIMER_ID_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_TIMER_Type, sizeof(TIMER_Type) == 0x1000u);

#define TIMER0                                   ((TIMER_Type *)(uintptr_t)TIMER0_BASE)
#define TIMER1                                   ((TIMER_Type *)(uintptr_t)TIMER1_BASE)

/* DTIMER: Two independent 32-bit down counters, each with a prescaler and a compare value, and
 * one interrupt. Switching on raises no flag: a counter that stands at 0 then begins with its
 * RELOAD. Bytes and halfwords: a counter goes on counting in the bytes that are not written.
 * Any write to CTRL1 or CTRL2 restarts the prescaler with its PRESCALE. */
#define DTIMER_BASE                              0x50002000u /* two more periods, or single delays */

/* Control of counter 1. */
#define DTIMER_CTRL1_OFFSET                      0x00u
#define DTIMER_CTRL1_RESET                       0x00000000u
#define DTIMER_CTRL1_EN_Pos                      0u /* counts */
#define DTIMER_CTRL1_EN_Msk                      0x00000001u
#define DTIMER_CTRL1_EN_OFF                      0u /* stands still */
#define DTIMER_CTRL1_EN_ON                       1u /* counts */
#define DTIMER_CTRL1_IE_Pos                      1u /* interrupt while WRAP of PEND1 */
#define DTIMER_CTRL1_IE_Msk                      0x00000002u
#define DTIMER_CTRL1_IE_OFF                      0u /* no interrupt */
#define DTIMER_CTRL1_IE_ON                       1u /* interrupt */
#define DTIMER_CTRL1_ONESHOT_Pos                 2u /* stops at 0 and clears EN */
#define DTIMER_CTRL1_ONESHOT_Msk                 0x00000004u
#define DTIMER_CTRL1_ONESHOT_REPEAT              0u /* starts again with RELOAD1 after 0 */
#define DTIMER_CTRL1_ONESHOT_ONCE                1u /* stops at 0 */
#define DTIMER_CTRL1_CMPEN_Pos                   3u /* compares */
#define DTIMER_CTRL1_CMPEN_Msk                   0x00000008u
#define DTIMER_CTRL1_CMPEN_OFF                   0u /* MATCH of PEND1 is not set */
#define DTIMER_CTRL1_CMPEN_ON                    1u /* MATCH of PEND1 is set when the counter reaches COMPARE1 */
#define DTIMER_CTRL1_CMPIE_Pos                   4u /* interrupt while MATCH of PEND1 */
#define DTIMER_CTRL1_CMPIE_Msk                   0x00000010u
#define DTIMER_CTRL1_CMPIE_OFF                   0u /* no interrupt */
#define DTIMER_CTRL1_CMPIE_ON                    1u /* interrupt */
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

/* Interrupt flags of counter 1. */
#define DTIMER_PEND1_OFFSET                      0x0Cu
#define DTIMER_PEND1_RESET                       0x00000000u
#define DTIMER_PEND1_WRAP_Pos                    0u /* the counter went past 0 */
#define DTIMER_PEND1_WRAP_Msk                    0x00000001u
#define DTIMER_PEND1_WRAP_NO                     0u /* not past 0 */
#define DTIMER_PEND1_WRAP_YES                    1u /* past 0 */
#define DTIMER_PEND1_MATCH_Pos                   1u /* the counter has counted, or reloaded, to COMPARE1 while CMPEN */
#define DTIMER_PEND1_MATCH_Msk                   0x00000002u
#define DTIMER_PEND1_MATCH_NO                    0u /* no match */
#define DTIMER_PEND1_MATCH_YES                   1u /* match */

/* Compare value of counter 1. */
#define DTIMER_COMPARE1_OFFSET                   0x10u
#define DTIMER_COMPARE1_RESET                    0x00000000u
#define DTIMER_COMPARE1_COUNT_Pos                0u /* count at which MATCH of PEND1 is set */
#define DTIMER_COMPARE1_COUNT_Msk                0xFFFFFFFFu

/* Control of counter 2. */
#define DTIMER_CTRL2_OFFSET                      0x20u
#define DTIMER_CTRL2_RESET                       0x00000000u
#define DTIMER_CTRL2_EN_Pos                      0u /* counts */
#define DTIMER_CTRL2_EN_Msk                      0x00000001u
#define DTIMER_CTRL2_EN_OFF                      0u /* stands still */
#define DTIMER_CTRL2_EN_ON                       1u /* counts */
#define DTIMER_CTRL2_IE_Pos                      1u /* interrupt while WRAP of PEND2 */
#define DTIMER_CTRL2_IE_Msk                      0x00000002u
#define DTIMER_CTRL2_IE_OFF                      0u /* no interrupt */
#define DTIMER_CTRL2_IE_ON                       1u /* interrupt */
#define DTIMER_CTRL2_ONESHOT_Pos                 2u /* stops at 0 and clears EN */
#define DTIMER_CTRL2_ONESHOT_Msk                 0x00000004u
#define DTIMER_CTRL2_ONESHOT_REPEAT              0u /* starts again with RELOAD2 after 0 */
#define DTIMER_CTRL2_ONESHOT_ONCE                1u /* stops at 0 */
#define DTIMER_CTRL2_CMPEN_Pos                   3u /* compares */
#define DTIMER_CTRL2_CMPEN_Msk                   0x00000008u
#define DTIMER_CTRL2_CMPEN_OFF                   0u /* MATCH of PEND2 is not set */
#define DTIMER_CTRL2_CMPEN_ON                    1u /* MATCH of PEND2 is set when the counter reaches COMPARE2 */
#define DTIMER_CTRL2_CMPIE_Pos                   4u /* interrupt while MATCH of PEND2 */
#define DTIMER_CTRL2_CMPIE_Msk                   0x00000010u
#define DTIMER_CTRL2_CMPIE_OFF                   0u /* no interrupt */
#define DTIMER_CTRL2_CMPIE_ON                    1u /* interrupt */
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

/* Interrupt flags of counter 2. */
#define DTIMER_PEND2_OFFSET                      0x2Cu
#define DTIMER_PEND2_RESET                       0x00000000u
#define DTIMER_PEND2_WRAP_Pos                    0u /* the counter went past 0 */
#define DTIMER_PEND2_WRAP_Msk                    0x00000001u
#define DTIMER_PEND2_WRAP_NO                     0u /* not past 0 */
#define DTIMER_PEND2_WRAP_YES                    1u /* past 0 */
#define DTIMER_PEND2_MATCH_Pos                   1u /* the counter has counted, or reloaded, to COMPARE2 while CMPEN */
#define DTIMER_PEND2_MATCH_Msk                   0x00000002u
#define DTIMER_PEND2_MATCH_NO                    0u /* no match */
#define DTIMER_PEND2_MATCH_YES                   1u /* match */

/* Compare value of counter 2. */
#define DTIMER_COMPARE2_OFFSET                   0x30u
#define DTIMER_COMPARE2_RESET                    0x00000000u
#define DTIMER_COMPARE2_COUNT_Pos                0u /* count at which MATCH of PEND2 is set */
#define DTIMER_COMPARE2_COUNT_Msk                0xFFFFFFFFu

/* What this block is. */
#define DTIMER_ID_OFFSET                         0xFFCu
#define DTIMER_ID_RESET                          0x01200204u
#define DTIMER_ID_BLOCK_Pos                      0u /* kind of block */
#define DTIMER_ID_BLOCK_Msk                      0x000000FFu
#define DTIMER_ID_REVISION_Pos                   8u /* revision of its registers */
#define DTIMER_ID_REVISION_Msk                   0x0000FF00u
#define DTIMER_ID_BITS_Pos                       16u /* bits of a counter */
#define DTIMER_ID_BITS_Msk                       0x00FF0000u
#define DTIMER_ID_COMPARE_Pos                    24u /* has compare values */
#define DTIMER_ID_COMPARE_Msk                    0x01000000u
#define DTIMER_ID_COMPARE_NO                     0u /* has none */
#define DTIMER_ID_COMPARE_YES                    1u /* has one for each counter */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t CTRL1; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t VALUE1; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t RELOAD1; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t PEND1; /* 0x0C */
    TARVO_ORIX_M1_RW uint32_t COMPARE1; /* 0x10 */
    uint32_t RESERVED0[3];
    TARVO_ORIX_M1_RW uint32_t CTRL2; /* 0x20 */
    TARVO_ORIX_M1_RW uint32_t VALUE2; /* 0x24 */
    TARVO_ORIX_M1_RW uint32_t RELOAD2; /* 0x28 */
    TARVO_ORIX_M1_RW uint32_t PEND2; /* 0x2C */
    TARVO_ORIX_M1_RW uint32_t COMPARE2; /* 0x30 */
    uint32_t RESERVED1[1010];
    TARVO_ORIX_M1_R uint32_t ID; /* 0xFFC */
} DTIMER_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_CTRL1,
                     offsetof(DTIMER_Type, CTRL1) == DTIMER_CTRL1_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_VALUE1,
                     offsetof(DTIMER_Type, VALUE1) == DTIMER_VALUE1_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_RELOAD1,
                     offsetof(DTIMER_Type, RELOAD1) == DTIMER_RELOAD1_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_PEND1,
                     offsetof(DTIMER_Type, PEND1) == DTIMER_PEND1_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_COMPARE1,
                     offsetof(DTIMER_Type, COMPARE1) == DTIMER_COMPARE1_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_CTRL2,
                     offsetof(DTIMER_Type, CTRL2) == DTIMER_CTRL2_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_VALUE2,
                     offsetof(DTIMER_Type, VALUE2) == DTIMER_VALUE2_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_RELOAD2,
                     offsetof(DTIMER_Type, RELOAD2) == DTIMER_RELOAD2_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_PEND2,
                     offsetof(DTIMER_Type, PEND2) == DTIMER_PEND2_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_COMPARE2,
                     offsetof(DTIMER_Type, COMPARE2) == DTIMER_COMPARE2_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_DTIMER_Type_ID,
                     offsetof(DTIMER_Type, ID) == DTIMER_ID_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_DTIMER_Type, sizeof(DTIMER_Type) == 0x1000u);

#define DTIMER                                   ((DTIMER_Type *)(uintptr_t)DTIMER_BASE)

/* UART: Characters of 5 to 9 bits, with or without parity, and one or two stop bits; a FIFO of
 * 16 characters in each direction beside the shift registers. What was wrong with a received
 * character stays with it. Bytes and halfwords: a character is sent only by a write that
 * reaches the lowest byte of DATA, and taken only by a read that begins there. BAUDDIV counts
 * as its minimum while the whole of it is smaller. */
#define UART0_BASE                               0x50004000u /* first serial line */
#define UART1_BASE                               0x50005000u /* second serial line */

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
#define UART1                                    ((UART_Type *)(uintptr_t)UART1_BASE)

/* RTC: Real-time clock: counts seconds of an external clock, which is sampled with PCLK and
 * must be slower than PCLK / 4. Time, calibration, alarm and flags go on through every reset
 * but that of the pin hwRstn, which power-on is; a system reset clears the bits that enable
 * interrupts, TICK, and what SUBSECOND holds. Bytes and halfwords: any write to SECONDS begins
 * a second, and any write to ALARM sets the alarm, with the whole of the register. Set the
 * time with whole words. */
#define RTC_BASE                                 0x50006000u /* time of day and alarm */

/* Time. Reading it also takes the sub-second that belongs to it to SUBSECOND. Writing it also
 * begins a second, at the sub-second that was written to SUBSECOND since the last access to
 * SECONDS, otherwise at 0. */
#define RTC_SECONDS_OFFSET                       0x00u
#define RTC_SECONDS_RESET                        0x00000000u
#define RTC_SECONDS_COUNT_Pos                    0u /* seconds */
#define RTC_SECONDS_COUNT_Msk                    0xFFFFFFFFu

/* Alarm time. It comes when the time reaches it by counting. One whose time is not ahead (0 to
 * 2^31 seconds ago) when it is set, or when SECONDS is written, comes at once with LATE of
 * CTRL, and without it not before the time has gone round. */
#define RTC_ALARM_OFFSET                         0x04u
#define RTC_ALARM_RESET                          0x00000000u
#define RTC_ALARM_COUNT_Pos                      0u /* seconds */
#define RTC_ALARM_COUNT_Msk                      0xFFFFFFFFu

/* Control. A system reset clears ALARMIE, SECONDIE and TICKIE; EN and LATE stay. */
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
#define RTC_CTRL_TICKIE_Pos                      3u /* interrupt while TICK of PEND */
#define RTC_CTRL_TICKIE_Msk                      0x00000008u
#define RTC_CTRL_TICKIE_OFF                      0u /* no interrupt */
#define RTC_CTRL_TICKIE_ON                       1u /* interrupt */
#define RTC_CTRL_LATE_Pos                        4u /* an alarm whose time is not ahead comes at once */
#define RTC_CTRL_LATE_Msk                        0x00000010u
#define RTC_CTRL_LATE_NEVER                      0u /* does not come */
#define RTC_CTRL_LATE_AT_ONCE                    1u /* comes at once */

/* Interrupt flags. */
#define RTC_PEND_OFFSET                          0x0Cu
#define RTC_PEND_RESET                           0x00000000u
#define RTC_PEND_ALARM_Pos                       0u /* SECONDS reached ALARM, in the bits of ALARMMASK */
#define RTC_PEND_ALARM_Msk                       0x00000001u
#define RTC_PEND_ALARM_NO                        0u /* no alarm */
#define RTC_PEND_ALARM_YES                       1u /* alarm */
#define RTC_PEND_SECOND_Pos                      1u /* a second has passed */
#define RTC_PEND_SECOND_Msk                      0x00000002u
#define RTC_PEND_SECOND_NO                       0u /* no second has passed */
#define RTC_PEND_SECOND_YES                      1u /* a second has passed */
#define RTC_PEND_TICK_Pos                        2u /* a tick has passed */
#define RTC_PEND_TICK_Msk                        0x00000004u
#define RTC_PEND_TICK_NO                         0u /* no tick has passed */
#define RTC_PEND_TICK_YES                        1u /* a tick has passed */

/* Length of a second. */
#define RTC_PRESCALE_OFFSET                      0x10u
#define RTC_PRESCALE_RESET                       0x00007FFFu
#define RTC_PRESCALE_CYCLES_Pos                  0u /* source clock cycles of a second, less 1 */
#define RTC_PRESCALE_CYCLES_Msk                  0x00FFFFFFu

/* Sub-second: as it was when SECONDS was read last, or for the next write of SECONDS. */
#define RTC_SUBSECOND_OFFSET                     0x14u
#define RTC_SUBSECOND_RESET                      0x00000000u
#define RTC_SUBSECOND_CYCLES_Pos                 0u /* source clock cycles of the second that had passed, 0 to PRESCALE */
#define RTC_SUBSECOND_CYCLES_Msk                 0x00FFFFFFu

/* Correction of the source clock, in steps of 0.954 ppm (2^-20), from -1953 to 1952 ppm. */
#define RTC_CALIB_OFFSET                         0x18u
#define RTC_CALIB_RESET                          0x00000000u
#define RTC_CALIB_STEPS_Pos                      0u /* signed: cycles that are added to 2^20 source clock cycles, one by one and evenly; negative ones are left out */
#define RTC_CALIB_STEPS_Msk                      0x00000FFFu

/* Which bits of the time must match: a cleared one counts for nothing, so that an alarm
 * recurs. LATE goes by the whole time. */
#define RTC_ALARMMASK_OFFSET                     0x1Cu
#define RTC_ALARMMASK_RESET                      0xFFFFFFFFu
#define RTC_ALARMMASK_BITS_Pos                   0u /* 1: SECONDS and ALARM must be equal there */
#define RTC_ALARMMASK_BITS_Msk                   0xFFFFFFFFu

/* Distance of the alarms: 60 for every minute, 3600 for every hour, 86400 for every day.
 * Together with LATE it goes on even after the time was set to one behind the alarm. */
#define RTC_ALARMSTEP_OFFSET                     0x20u
#define RTC_ALARMSTEP_RESET                      0x00000000u
#define RTC_ALARMSTEP_SECONDS_Pos                0u /* added to ALARM each time that the alarm comes; 0: a single one */
#define RTC_ALARMSTEP_SECONDS_Msk                0x000FFFFFu

/* Period of the ticks, which are corrected as the time is. A write begins a tick. */
#define RTC_TICK_OFFSET                          0x24u
#define RTC_TICK_RESET                           0x00000000u
#define RTC_TICK_CYCLES_Pos                      0u /* source clock cycles from one tick to the next; 0: none */
#define RTC_TICK_CYCLES_Msk                      0x0000FFFFu

/* State. */
#define RTC_STATUS_OFFSET                        0x28u
#define RTC_STATUS_RESET                         0x00000000u
#define RTC_STATUS_SET_Pos                       0u /* SECONDS was written since hwRstn was low */
#define RTC_STATUS_SET_Msk                       0x00000001u
#define RTC_STATUS_SET_NO                        0u /* the time means nothing */
#define RTC_STATUS_SET_YES                       1u /* the time was set */
#define RTC_STATUS_ARMED_Pos                     1u /* an alarm was set and has not come */
#define RTC_STATUS_ARMED_Msk                     0x00000002u
#define RTC_STATUS_ARMED_NO                      0u /* no alarm, or it has come */
#define RTC_STATUS_ARMED_YES                     1u /* alarm ahead */

/* What this block is. */
#define RTC_ID_OFFSET                            0xFFCu
#define RTC_ID_RESET                             0x00940205u
#define RTC_ID_BLOCK_Pos                         0u /* kind of block */
#define RTC_ID_BLOCK_Msk                         0x000000FFu
#define RTC_ID_REVISION_Pos                      8u /* revision of its registers */
#define RTC_ID_REVISION_Msk                      0x0000FF00u
#define RTC_ID_CALIBRATION_Pos                   16u /* source clock cycles over which a step of CALIB adds one, as a power of two; 0: no calibration */
#define RTC_ID_CALIBRATION_Msk                   0x007F0000u
#define RTC_ID_REPEAT_Pos                        23u /* has ALARMMASK and ALARMSTEP */
#define RTC_ID_REPEAT_Msk                        0x00800000u
#define RTC_ID_REPEAT_NO                         0u /* has none */
#define RTC_ID_REPEAT_YES                        1u /* has both */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t SECONDS; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t ALARM; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t PEND; /* 0x0C */
    TARVO_ORIX_M1_RW uint32_t PRESCALE; /* 0x10 */
    TARVO_ORIX_M1_RW uint32_t SUBSECOND; /* 0x14 */
    TARVO_ORIX_M1_RW uint32_t CALIB; /* 0x18 */
    TARVO_ORIX_M1_RW uint32_t ALARMMASK; /* 0x1C */
    TARVO_ORIX_M1_RW uint32_t ALARMSTEP; /* 0x20 */
    TARVO_ORIX_M1_RW uint32_t TICK; /* 0x24 */
    TARVO_ORIX_M1_R uint32_t STATUS; /* 0x28 */
    uint32_t RESERVED0[1012];
    TARVO_ORIX_M1_R uint32_t ID; /* 0xFFC */
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
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_RTC_Type_SUBSECOND,
                     offsetof(RTC_Type, SUBSECOND) == RTC_SUBSECOND_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_RTC_Type_CALIB,
                     offsetof(RTC_Type, CALIB) == RTC_CALIB_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_RTC_Type_ALARMMASK,
                     offsetof(RTC_Type, ALARMMASK) == RTC_ALARMMASK_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_RTC_Type_ALARMSTEP,
                     offsetof(RTC_Type, ALARMSTEP) == RTC_ALARMSTEP_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_RTC_Type_TICK,
                     offsetof(RTC_Type, TICK) == RTC_TICK_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_RTC_Type_STATUS,
                     offsetof(RTC_Type, STATUS) == RTC_STATUS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_RTC_Type_ID,
                     offsetof(RTC_Type, ID) == RTC_ID_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_RTC_Type, sizeof(RTC_Type) == 0x1000u);

#define RTC                                      ((RTC_Type *)(uintptr_t)RTC_BASE)

/* WDOG: 32-bit down counter. Reaching 0 the first time raises the non-maskable interrupt and
 * starts the count again; reaching 0 with the interrupt still pending requests a system reset,
 * if that is allowed. A kick while COUNT is above WINDOW is too early: it requests the reset
 * at once, or raises the interrupt where no reset is allowed. While a debugger holds the
 * processor the count stands, unless DBGRUN lets it go on. Bytes and halfwords: any write to
 * LOAD restarts the count with the whole of LOAD. The keys are whole words: a part that is
 * written to KICK does nothing, one that is written to LOCK locks. */
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
#define WDOG_CTRL_DBGRUN_Pos                     2u /* counts while a debugger holds the processor */
#define WDOG_CTRL_DBGRUN_Msk                     0x00000004u
#define WDOG_CTRL_DBGRUN_STANDS                  0u /* stands still meanwhile */
#define WDOG_CTRL_DBGRUN_COUNTS                  1u /* goes on */

/* Sign of life. */
#define WDOG_KICK_OFFSET                         0x0Cu
#define WDOG_KICK_RESET                          0x00000000u
#define WDOG_KICK_KEY_Pos                        0u /* 0x4B49434B restarts the count and clears the interrupt, unless it is too early; other values do nothing */
#define WDOG_KICK_KEY_Msk                        0xFFFFFFFFu
#define WDOG_KICK_KEY_KICK                       0x4B49434Bu /* restarts the count and clears the interrupt */

/* State. */
#define WDOG_STATUS_OFFSET                       0x10u
#define WDOG_STATUS_RESET                        0x00000000u
#define WDOG_STATUS_PENDING_Pos                  0u /* interrupt pending */
#define WDOG_STATUS_PENDING_Msk                  0x00000001u
#define WDOG_STATUS_PENDING_NO                   0u /* no interrupt */
#define WDOG_STATUS_PENDING_YES                  1u /* the count has ended once, or a kick was too early */
#define WDOG_STATUS_EARLY_Pos                    1u /* the interrupt is that of a kick that was too early */
#define WDOG_STATUS_EARLY_Msk                    0x00000002u
#define WDOG_STATUS_EARLY_NO                     0u /* no kick was too early since the last one in time */
#define WDOG_STATUS_EARLY_YES                    1u /* a kick was too early */

/* Protection of LOAD, CTRL and WINDOW. */
#define WDOG_LOCK_OFFSET                         0x14u
#define WDOG_LOCK_RESET                          0x00000000u
#define WDOG_LOCK_SEAL                           0x5345414Cu /* whole word: locks until the next system reset; no word unlocks any more */
#define WDOG_LOCK_UNLOCK                         0x554E4C4Bu /* whole word: unlocks unless SEALED; any other word locks */
#define WDOG_LOCK_LOCKED_Pos                     0u /* write the word 0x554E4C4B to unlock, any other to lock; reads 1 while locked */
#define WDOG_LOCK_LOCKED_Msk                     0x00000001u
#define WDOG_LOCK_LOCKED_UNLOCKED                0u /* LOAD, CTRL and WINDOW can be written */
#define WDOG_LOCK_LOCKED_LOCKED                  1u /* LOAD, CTRL and WINDOW keep their values */
#define WDOG_LOCK_SEALED_Pos                     1u /* locked until the next system reset */
#define WDOG_LOCK_SEALED_Msk                     0x00000002u
#define WDOG_LOCK_SEALED_NO                      0u /* UNLOCK unlocks */
#define WDOG_LOCK_SEALED_YES                     1u /* nothing unlocks */

/* Window; ignored while locked. */
#define WDOG_WINDOW_OFFSET                       0x18u
#define WDOG_WINDOW_RESET                        0xFFFFFFFFu
#define WDOG_WINDOW_CYCLES_Pos                   0u /* a kick is too early while COUNT is above this (as it stood a clock cycle before the write), unless an interrupt is pending; 0xFFFFFFFF: never */
#define WDOG_WINDOW_CYCLES_Msk                   0xFFFFFFFFu

/* What this block is. */
#define WDOG_ID_OFFSET                           0xFFCu
#define WDOG_ID_RESET                            0x01200206u
#define WDOG_ID_BLOCK_Pos                        0u /* kind of block */
#define WDOG_ID_BLOCK_Msk                        0x000000FFu
#define WDOG_ID_REVISION_Pos                     8u /* revision of its registers */
#define WDOG_ID_REVISION_Msk                     0x0000FF00u
#define WDOG_ID_BITS_Pos                         16u /* bits of the counter */
#define WDOG_ID_BITS_Msk                         0x00FF0000u
#define WDOG_ID_WINDOW_Pos                       24u /* has a window */
#define WDOG_ID_WINDOW_Msk                       0x01000000u
#define WDOG_ID_WINDOW_NO                        0u /* has none */
#define WDOG_ID_WINDOW_YES                       1u /* has one */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t LOAD; /* 0x00 */
    TARVO_ORIX_M1_R uint32_t COUNT; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x08 */
    TARVO_ORIX_M1_W uint32_t KICK; /* 0x0C */
    TARVO_ORIX_M1_R uint32_t STATUS; /* 0x10 */
    TARVO_ORIX_M1_RW uint32_t LOCK; /* 0x14 */
    TARVO_ORIX_M1_RW uint32_t WINDOW; /* 0x18 */
    uint32_t RESERVED0[1016];
    TARVO_ORIX_M1_R uint32_t ID; /* 0xFFC */
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
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_WDOG_Type_WINDOW,
                     offsetof(WDOG_Type, WINDOW) == WDOG_WINDOW_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_WDOG_Type_ID,
                     offsetof(WDOG_Type, ID) == WDOG_ID_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_WDOG_Type, sizeof(WDOG_Type) == 0x1000u);

#define WDOG                                     ((WDOG_Type *)(uintptr_t)WDOG_BASE)

/* I2C: I2C master and target. The master takes commands one by one in COMMAND, or in a FIFO;
 * it waits until the bus is free, stretches and synchronizes the clock with others and notices
 * in every bit when another master wins. The target answers to an address of its own. Bytes
 * and halfwords: a command starts only if the lowest byte of COMMAND is written. FIFO and
 * TDATA take a word only with the lowest byte, flags that are not written count as 0; only a
 * read that begins at the lowest byte takes one. */
#define I2C_BASE                                 0x5000C000u /* devices on a two-wire bus */

/* Bit time. With Q = (CYCLES + 1) / PCLK and S = (3 + FILTER.CYCLES) / PCLK, SCL is low for 2
 * Q (at least S) and, from when its rise is seen, high for 2 Q; a period is 4 Q + S and what
 * the line takes to rise. Hold time of a start, set-up time of a repeated start and of a stop,
 * and the free time behind a stop are 2 Q; data changes Q behind the fall of SCL and stands
 * for Q before its rise. So Q is at least 2.5 us in standard mode (100 kHz), 0.65 us in fast
 * mode (400 kHz) and 0.25 us in fast-mode plus (1 MHz): CYCLES = PCLK * Q - 1, rounded up. For
 * PCLK of 8, 16, 25, 50 and 100 MHz that is 19, 39, 62, 124 and 249, in fast mode 5, 10, 16,
 * 32 and 64, in fast-mode plus 1, 3, 6, 12 and 24. */
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
#define I2C_CTRL_REFUSE_Pos                      2u /* what a start does while another master has the bus */
#define I2C_CTRL_REFUSE_Msk                      0x00000004u
#define I2C_CTRL_REFUSE_WAIT                     0u /* it waits until the bus is free */
#define I2C_CTRL_REFUSE_REFUSE                   1u /* it is refused: ARBLOST and ERROR.REFUSED */

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

/* Starts a transfer; ignored while BUSY or disabled, but for ABORT and TDROP. Outside of a
 * transfer WRITE without START is refused while the bus is taken. While SCL does not move and
 * SDA is low for 64 Q, a start fails (ERROR.STUCK). */
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
#define I2C_COMMAND_RECOVER_Pos                  5u /* nine clocks with SDA released, then a stop, whoever has the bus; the other bits do not count */
#define I2C_COMMAND_RECOVER_Msk                  0x00000020u
#define I2C_COMMAND_RECOVER_NO                   0u /* without */
#define I2C_COMMAND_RECOVER_YES                  1u /* frees a bus on which a device waits for clocks */
#define I2C_COMMAND_ABORT_Pos                    6u /* releases both lines at once and ends what runs, without a stop; the commands in the FIFO are thrown away. The other bits but TDROP do not count */
#define I2C_COMMAND_ABORT_Msk                    0x00000040u
#define I2C_COMMAND_ABORT_NO                     0u /* without */
#define I2C_COMMAND_ABORT_YES                    1u /* ends what runs */
#define I2C_COMMAND_TDROP_Pos                    7u /* throws away what the target has to send */
#define I2C_COMMAND_TDROP_Msk                    0x00000080u
#define I2C_COMMAND_TDROP_NO                     0u /* without */
#define I2C_COMMAND_TDROP_YES                    1u /* throws away */

/* State. */
#define I2C_STATUS_OFFSET                        0x14u
#define I2C_STATUS_RESET                         0x00000000u
#define I2C_STATUS_BUSY_Pos                      0u /* a command is running, or stands in the FIFO and will */
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
#define I2C_STATUS_DONE_Pos                      3u /* a command has ended, and the FIFO has no further one */
#define I2C_STATUS_DONE_Msk                      0x00000008u
#define I2C_STATUS_DONE_NO                       0u /* no command has ended */
#define I2C_STATUS_DONE_YES                      1u /* a command has ended */
#define I2C_STATUS_ARBLOST_Pos                   4u /* another master won the bus, in any bit, start or stop, or the start was refused, or SDA is held; both lines were released */
#define I2C_STATUS_ARBLOST_Msk                   0x00000010u
#define I2C_STATUS_ARBLOST_NO                    0u /* not lost */
#define I2C_STATUS_ARBLOST_YES                   1u /* another master won */

/* Limit of waiting. It counts from the last write to this register, too. */
#define I2C_TIMEOUT_OFFSET                       0x18u
#define I2C_TIMEOUT_RESET                        0x00000000u
#define I2C_TIMEOUT_UNITS_Pos                    0u /* units of 256 clock cycles for which a start waits for the bus, or SCL is held low by others in a command or while this target is addressed: then the lines are released, and ERROR.TIMEOUT or PEND.TTIMEOUT says so; 0: no limit. The target's own stretching counts */
#define I2C_TIMEOUT_UNITS_Msk                    0x0000FFFFu

/* Spike filter of both lines. */
#define I2C_FILTER_OFFSET                        0x1Cu
#define I2C_FILTER_RESET                         0x00000000u
#define I2C_FILTER_CYCLES_Pos                    0u /* pulses of up to that many clock cycles are not seen; 50 ns are PCLK * 50 ns, rounded up */
#define I2C_FILTER_CYCLES_Msk                    0x0000000Fu
#define I2C_FILTER_CYCLES_OFF                    0u /* no filter */
#define I2C_FILTER_CYCLES_C1                     1u /* 1 cycle */
#define I2C_FILTER_CYCLES_C2                     2u /* 2 cycles */
#define I2C_FILTER_CYCLES_C3                     3u /* 3 cycles */
#define I2C_FILTER_CYCLES_C4                     4u /* 4 cycles */
#define I2C_FILTER_CYCLES_C5                     5u /* 5 cycles */
#define I2C_FILTER_CYCLES_C6                     6u /* 6 cycles */
#define I2C_FILTER_CYCLES_C7                     7u /* 7 cycles */
#define I2C_FILTER_CYCLES_C8                     8u /* 8 cycles */
#define I2C_FILTER_CYCLES_C9                     9u /* 9 cycles */
#define I2C_FILTER_CYCLES_C10                    0xAu /* 10 cycles */
#define I2C_FILTER_CYCLES_C11                    0xBu /* 11 cycles */
#define I2C_FILTER_CYCLES_C12                    0xCu /* 12 cycles */
#define I2C_FILTER_CYCLES_C13                    0xDu /* 13 cycles */
#define I2C_FILTER_CYCLES_C14                    0xEu /* 14 cycles */
#define I2C_FILTER_CYCLES_C15                    0xFu /* 15 cycles */

/* Why a command failed, beside STATUS. While a flag other than OVERFLOW, or STATUS.ARBLOST,
 * stands, the FIFO of commands is kept empty and takes none, so that nothing goes on in the
 * middle of a transfer. Commands in COMMAND start all the same. */
#define I2C_ERROR_OFFSET                         0x20u
#define I2C_ERROR_RESET                          0x00000000u
#define I2C_ERROR_NACK_Pos                       0u /* a byte of the FIFO was not acknowledged; a stop followed */
#define I2C_ERROR_NACK_Msk                       0x00000001u
#define I2C_ERROR_NACK_NO                        0u /* no */
#define I2C_ERROR_NACK_YES                       1u /* not acknowledged */
#define I2C_ERROR_REFUSED_Pos                    1u /* the bus was taken, or a command of the FIFO had no start before it */
#define I2C_ERROR_REFUSED_Msk                    0x00000002u
#define I2C_ERROR_REFUSED_NO                     0u /* no */
#define I2C_ERROR_REFUSED_YES                    1u /* nothing was done */
#define I2C_ERROR_STUCK_Pos                      2u /* SDA is held low: no start or no stop was possible */
#define I2C_ERROR_STUCK_Msk                      0x00000004u
#define I2C_ERROR_STUCK_NO                       0u /* no */
#define I2C_ERROR_STUCK_YES                      1u /* RECOVER may help */
#define I2C_ERROR_TIMEOUT_Pos                    3u /* the limit of TIMEOUT was reached */
#define I2C_ERROR_TIMEOUT_Msk                    0x00000008u
#define I2C_ERROR_TIMEOUT_NO                     0u /* no */
#define I2C_ERROR_TIMEOUT_YES                    1u /* reached */
#define I2C_ERROR_ABORTED_Pos                    4u /* ABORT was written */
#define I2C_ERROR_ABORTED_Msk                    0x00000010u
#define I2C_ERROR_ABORTED_NO                     0u /* no */
#define I2C_ERROR_ABORTED_YES                    1u /* the lines were released */
#define I2C_ERROR_OVERFLOW_Pos                   5u /* a command was written to the full FIFO, and lost */
#define I2C_ERROR_OVERFLOW_Msk                   0x00000020u
#define I2C_ERROR_OVERFLOW_NO                    0u /* no */
#define I2C_ERROR_OVERFLOW_YES                   1u /* a command is lost */

/* The bus as it is seen behind the filter. */
#define I2C_BUS_OFFSET                           0x24u
#define I2C_BUS_RESET                            0x00000000u
#define I2C_BUS_RESET_MASK                       0xFFFFFFF8u /* the bits of which the value after reset is known */
#define I2C_BUS_SCL_Pos                          0u /* clock line */
#define I2C_BUS_SCL_Msk                          0x00000001u
#define I2C_BUS_SCL_LOW                          0u /* low */
#define I2C_BUS_SCL_HIGH                         1u /* high */
#define I2C_BUS_SDA_Pos                          1u /* data line */
#define I2C_BUS_SDA_Msk                          0x00000002u
#define I2C_BUS_SDA_LOW                          0u /* low */
#define I2C_BUS_SDA_HIGH                         1u /* high */
#define I2C_BUS_TAKEN_Pos                        2u /* from when a line is low until 2 Q behind a stop, or until both have been high for 64 Q */
#define I2C_BUS_TAKEN_Msk                        0x00000004u
#define I2C_BUS_TAKEN_FREE                       0u /* nobody has the bus */
#define I2C_BUS_TAKEN_TAKEN                      1u /* a master has the bus */

/* Commands, which run one after the other while CTRL.EN is ON, and received bytes. A missing
 * acknowledge ends the transfer with a stop. Between commands without STOP, and while there is
 * no room for a received byte, SCL is held low. */
#define I2C_FIFO_OFFSET                          0x28u
#define I2C_FIFO_RESET                           0x00000000u
#define I2C_FIFO_BYTE_Pos                        0u /* write: the byte to send, or with READ how many bytes to receive, less one; read: the oldest byte received, 0 without one */
#define I2C_FIFO_BYTE_Msk                        0x000000FFu
#define I2C_FIFO_VALID_Pos                       15u /* a byte was there */
#define I2C_FIFO_VALID_Msk                       0x00008000u
#define I2C_FIFO_VALID_NO                        0u /* no byte */
#define I2C_FIFO_VALID_YES                       1u /* BYTE was received */
#define I2C_FIFO_START_Pos                       16u /* start or repeated start first */
#define I2C_FIFO_START_Msk                       0x00010000u
#define I2C_FIFO_START_NO                        0u /* without */
#define I2C_FIFO_START_YES                       1u /* a start condition */
#define I2C_FIFO_READ_Pos                        17u /* receive */
#define I2C_FIFO_READ_Msk                        0x00020000u
#define I2C_FIFO_READ_WRITE                      0u /* BYTE is sent */
#define I2C_FIFO_READ_READ                       1u /* BYTE + 1 bytes are received */
#define I2C_FIFO_NACK_Pos                        18u /* the last byte that is received is not acknowledged */
#define I2C_FIFO_NACK_Msk                        0x00040000u
#define I2C_FIFO_NACK_ACK                        0u /* acknowledged */
#define I2C_FIFO_NACK_NACK                       1u /* not acknowledged */
#define I2C_FIFO_STOP_Pos                        19u /* stop last */
#define I2C_FIFO_STOP_Msk                        0x00080000u
#define I2C_FIFO_STOP_NO                         0u /* without */
#define I2C_FIFO_STOP_YES                        1u /* a stop condition */

/* What stands in the FIFOs. */
#define I2C_LEVEL_OFFSET                         0x2Cu
#define I2C_LEVEL_RESET                          0x00000000u
#define I2C_LEVEL_COMMANDS_Pos                   0u /* commands that have not begun */
#define I2C_LEVEL_COMMANDS_Msk                   0x000000FFu
#define I2C_LEVEL_RECEIVED_Pos                   8u /* bytes that the master has received */
#define I2C_LEVEL_RECEIVED_Msk                   0x0000FF00u
#define I2C_LEVEL_TSEND_Pos                      16u /* bytes that the target has to send */
#define I2C_LEVEL_TSEND_Msk                      0x00FF0000u
#define I2C_LEVEL_TRECEIVED_Pos                  24u /* bytes that the target has received */
#define I2C_LEVEL_TRECEIVED_Msk                  0xFF000000u

/* When levels ask for an interrupt. */
#define I2C_THRESHOLD_OFFSET                     0x30u
#define I2C_THRESHOLD_RESET                      0x00000000u
#define I2C_THRESHOLD_COMMANDS_Pos               0u /* PEND.COMMANDS while at most that many commands stand in the FIFO */
#define I2C_THRESHOLD_COMMANDS_Msk               0x0000000Fu
#define I2C_THRESHOLD_COMMANDS_EMPTY             0u /* none */
#define I2C_THRESHOLD_COMMANDS_N1                1u /* at most 1 command */
#define I2C_THRESHOLD_COMMANDS_N2                2u /* at most 2 commands */
#define I2C_THRESHOLD_COMMANDS_N3                3u /* at most 3 commands */
#define I2C_THRESHOLD_COMMANDS_N4                4u /* at most 4 commands */
#define I2C_THRESHOLD_COMMANDS_N5                5u /* at most 5 commands */
#define I2C_THRESHOLD_COMMANDS_N6                6u /* at most 6 commands */
#define I2C_THRESHOLD_COMMANDS_N7                7u /* at most 7 commands */
#define I2C_THRESHOLD_COMMANDS_N8                8u /* at most 8 commands */
#define I2C_THRESHOLD_COMMANDS_N9                9u /* at most 9 commands */
#define I2C_THRESHOLD_COMMANDS_N10               0xAu /* at most 10 commands */
#define I2C_THRESHOLD_COMMANDS_N11               0xBu /* at most 11 commands */
#define I2C_THRESHOLD_COMMANDS_N12               0xCu /* at most 12 commands */
#define I2C_THRESHOLD_COMMANDS_N13               0xDu /* at most 13 commands */
#define I2C_THRESHOLD_COMMANDS_N14               0xEu /* at most 14 commands */
#define I2C_THRESHOLD_COMMANDS_N15               0xFu /* at most 15 commands */
#define I2C_THRESHOLD_RECEIVED_Pos               8u /* PEND.RECEIVED and PEND.TRECEIVED while more than that many bytes do */
#define I2C_THRESHOLD_RECEIVED_Msk               0x00000F00u
#define I2C_THRESHOLD_RECEIVED_ANY               0u /* at least one byte */
#define I2C_THRESHOLD_RECEIVED_N1                1u /* more than 1 byte */
#define I2C_THRESHOLD_RECEIVED_N2                2u /* more than 2 bytes */
#define I2C_THRESHOLD_RECEIVED_N3                3u /* more than 3 bytes */
#define I2C_THRESHOLD_RECEIVED_N4                4u /* more than 4 bytes */
#define I2C_THRESHOLD_RECEIVED_N5                5u /* more than 5 bytes */
#define I2C_THRESHOLD_RECEIVED_N6                6u /* more than 6 bytes */
#define I2C_THRESHOLD_RECEIVED_N7                7u /* more than 7 bytes */
#define I2C_THRESHOLD_RECEIVED_N8                8u /* more than 8 bytes */
#define I2C_THRESHOLD_RECEIVED_N9                9u /* more than 9 bytes */
#define I2C_THRESHOLD_RECEIVED_N10               0xAu /* more than 10 bytes */
#define I2C_THRESHOLD_RECEIVED_N11               0xBu /* more than 11 bytes */
#define I2C_THRESHOLD_RECEIVED_N12               0xCu /* more than 12 bytes */
#define I2C_THRESHOLD_RECEIVED_N13               0xDu /* more than 13 bytes */
#define I2C_THRESHOLD_RECEIVED_N14               0xEu /* more than 14 bytes */
#define I2C_THRESHOLD_RECEIVED_N15               0xFu /* more than 15 bytes */

/* Which bits of PEND ask for an interrupt, beside CTRL.IE. */
#define I2C_INTEN_OFFSET                         0x34u
#define I2C_INTEN_RESET                          0x00000000u
#define I2C_INTEN_PEND_Pos                       0u /* a bit for each of PEND */
#define I2C_INTEN_PEND_Msk                       0x0000007Fu

/* Interrupts. */
#define I2C_PEND_OFFSET                          0x38u
#define I2C_PEND_RESET                           0x00000001u
#define I2C_PEND_COMMANDS_Pos                    0u /* room in the FIFO of commands */
#define I2C_PEND_COMMANDS_Msk                    0x00000001u
#define I2C_PEND_COMMANDS_NO                     0u /* more than the threshold */
#define I2C_PEND_COMMANDS_YES                    1u /* few commands are left */
#define I2C_PEND_RECEIVED_Pos                    1u /* bytes received */
#define I2C_PEND_RECEIVED_Msk                    0x00000002u
#define I2C_PEND_RECEIVED_NO                     0u /* not more than the threshold */
#define I2C_PEND_RECEIVED_YES                    1u /* bytes to take */
#define I2C_PEND_TRECEIVED_Pos                   2u /* bytes received as a target */
#define I2C_PEND_TRECEIVED_Msk                   0x00000004u
#define I2C_PEND_TRECEIVED_NO                    0u /* not more than the threshold */
#define I2C_PEND_TRECEIVED_YES                   1u /* bytes to take */
#define I2C_PEND_TWANTED_Pos                     3u /* the target holds SCL until it has a byte to send */
#define I2C_PEND_TWANTED_Msk                     0x00000008u
#define I2C_PEND_TWANTED_NO                      0u /* no */
#define I2C_PEND_TWANTED_YES                     1u /* a byte is waited for */
#define I2C_PEND_TADDRESSED_Pos                  4u /* the target was addressed */
#define I2C_PEND_TADDRESSED_Msk                  0x00000010u
#define I2C_PEND_TADDRESSED_NO                   0u /* no */
#define I2C_PEND_TADDRESSED_YES                  1u /* addressed */
#define I2C_PEND_TENDED_Pos                      5u /* a transfer of the target has ended, with a stop or a repeated start */
#define I2C_PEND_TENDED_Msk                      0x00000020u
#define I2C_PEND_TENDED_NO                       0u /* no */
#define I2C_PEND_TENDED_YES                      1u /* ended */
#define I2C_PEND_TTIMEOUT_Pos                    6u /* the target has given up at the limit of TIMEOUT */
#define I2C_PEND_TTIMEOUT_Msk                    0x00000040u
#define I2C_PEND_TTIMEOUT_NO                     0u /* no */
#define I2C_PEND_TTIMEOUT_YES                    1u /* given up */

/* Target. Switched off it releases the lines at once and forgets its bytes. */
#define I2C_TCTRL_OFFSET                         0x3Cu
#define I2C_TCTRL_RESET                          0x00000000u
#define I2C_TCTRL_EN_Pos                         0u /* the target answers */
#define I2C_TCTRL_EN_Msk                         0x00000001u
#define I2C_TCTRL_EN_OFF                         0u /* no answer */
#define I2C_TCTRL_EN_ON                          1u /* its address is acknowledged */
#define I2C_TCTRL_GENERAL_Pos                    1u /* to the general call, address 0, too */
#define I2C_TCTRL_GENERAL_Msk                    0x00000002u
#define I2C_TCTRL_GENERAL_OFF                    0u /* no answer */
#define I2C_TCTRL_GENERAL_ON                     1u /* the general call is acknowledged */
#define I2C_TCTRL_TEN_Pos                        2u /* address bits */
#define I2C_TCTRL_TEN_Msk                        0x00000004u
#define I2C_TCTRL_TEN_SEVEN                      0u /* seven, ADDR 6:0 */
#define I2C_TCTRL_TEN_TEN                        1u /* ten, ADDR 9:0 */
#define I2C_TCTRL_NOSTRETCH_Pos                  3u /* without room or byte */
#define I2C_TCTRL_NOSTRETCH_Msk                  0x00000008u
#define I2C_TCTRL_NOSTRETCH_STRETCH              0u /* SCL is held low */
#define I2C_TCTRL_NOSTRETCH_GOON                 1u /* a byte without room is not acknowledged, and lost; for one that is missing 0xFF is sent */
#define I2C_TCTRL_NACK_Pos                       5u /* answer to bytes that are written */
#define I2C_TCTRL_NACK_Msk                       0x00000020u
#define I2C_TCTRL_NACK_ACK                       0u /* acknowledged */
#define I2C_TCTRL_NACK_NACK                      1u /* not acknowledged, and lost */

/* Address of the target. */
#define I2C_TADDR_OFFSET                         0x40u
#define I2C_TADDR_RESET                          0x00000000u
#define I2C_TADDR_ADDR_Pos                       0u /* own address; 0 and, of seven bits, 0x78 to 0x7B are never one */
#define I2C_TADDR_ADDR_Msk                       0x000003FFu
#define I2C_TADDR_MASK_Pos                       16u /* 1: that bit of ADDR is not compared */
#define I2C_TADDR_MASK_Msk                       0x03FF0000u

/* Bytes of the target. One that is written without room (TSTATUS.FULL) is lost. */
#define I2C_TDATA_OFFSET                         0x44u
#define I2C_TDATA_RESET                          0x00000000u
#define I2C_TDATA_BYTE_Pos                       0u /* write: to send; read: the oldest byte received, 0 without one */
#define I2C_TDATA_BYTE_Msk                       0x000000FFu
#define I2C_TDATA_FIRST_Pos                      8u /* the byte was the first behind the address */
#define I2C_TDATA_FIRST_Msk                      0x00000100u
#define I2C_TDATA_FIRST_NO                       0u /* no */
#define I2C_TDATA_FIRST_YES                      1u /* first */
#define I2C_TDATA_GENERAL_Pos                    9u /* the byte came with the general call */
#define I2C_TDATA_GENERAL_Msk                    0x00000200u
#define I2C_TDATA_GENERAL_NO                     0u /* no */
#define I2C_TDATA_GENERAL_YES                    1u /* with the general call */
#define I2C_TDATA_VALID_Pos                      15u /* a byte was there */
#define I2C_TDATA_VALID_Msk                      0x00008000u
#define I2C_TDATA_VALID_NO                       0u /* no byte */
#define I2C_TDATA_VALID_YES                      1u /* BYTE was received */

/* State of the target. */
#define I2C_TSTATUS_OFFSET                       0x48u
#define I2C_TSTATUS_RESET                        0x00000000u
#define I2C_TSTATUS_SELECTED_Pos                 0u /* it is addressed */
#define I2C_TSTATUS_SELECTED_Msk                 0x00000001u
#define I2C_TSTATUS_SELECTED_NO                  0u /* no */
#define I2C_TSTATUS_SELECTED_YES                 1u /* until the next start or stop */
#define I2C_TSTATUS_SENDS_Pos                    1u /* the master reads */
#define I2C_TSTATUS_SENDS_Msk                    0x00000002u
#define I2C_TSTATUS_SENDS_NO                     0u /* no */
#define I2C_TSTATUS_SENDS_YES                    1u /* bytes are sent */
#define I2C_TSTATUS_HOLDS_Pos                    2u /* it holds SCL low */
#define I2C_TSTATUS_HOLDS_Msk                    0x00000004u
#define I2C_TSTATUS_HOLDS_NO                     0u /* no */
#define I2C_TSTATUS_HOLDS_YES                    1u /* until TDATA is read or written */
#define I2C_TSTATUS_FULL_Pos                     3u /* no room for a byte to send */
#define I2C_TSTATUS_FULL_Msk                     0x00000008u
#define I2C_TSTATUS_FULL_NO                      0u /* room */
#define I2C_TSTATUS_FULL_YES                     1u /* no room */
#define I2C_TSTATUS_ADDRESS_Pos                  16u /* the address that was called last; 0: the general call */
#define I2C_TSTATUS_ADDRESS_Msk                  0x03FF0000u

/* What this block is. */
#define I2C_ID_OFFSET                            0xFFCu
#define I2C_ID_RESET                             0x00140207u
#define I2C_ID_BLOCK_Pos                         0u /* kind of block */
#define I2C_ID_BLOCK_Msk                         0x000000FFu
#define I2C_ID_REVISION_Pos                      8u /* revision of its registers */
#define I2C_ID_REVISION_Msk                      0x0000FF00u
#define I2C_ID_DEPTH_Pos                         16u /* each FIFO has 2 to the power of DEPTH words; 0: FIFO, LEVEL and THRESHOLD are not there, and those of the target have two words */
#define I2C_ID_DEPTH_Msk                         0x000F0000u
#define I2C_ID_DEPTH_NONE                        0u /* without FIFO */
#define I2C_ID_DEPTH_D1                          1u /* 2 words */
#define I2C_ID_DEPTH_D2                          2u /* 4 words */
#define I2C_ID_DEPTH_D3                          3u /* 8 words */
#define I2C_ID_DEPTH_D4                          4u /* 16 words */
#define I2C_ID_DEPTH_D5                          5u /* 32 words */
#define I2C_ID_DEPTH_D6                          6u /* 64 words */
#define I2C_ID_DEPTH_D7                          7u /* not used */
#define I2C_ID_DEPTH_D8                          8u /* not used */
#define I2C_ID_DEPTH_D9                          9u /* not used */
#define I2C_ID_DEPTH_D10                         0xAu /* not used */
#define I2C_ID_DEPTH_D11                         0xBu /* not used */
#define I2C_ID_DEPTH_D12                         0xCu /* not used */
#define I2C_ID_DEPTH_D13                         0xDu /* not used */
#define I2C_ID_DEPTH_D14                         0xEu /* not used */
#define I2C_ID_DEPTH_D15                         0xFu /* not used */
#define I2C_ID_TARGET_Pos                        20u /* the target is there */
#define I2C_ID_TARGET_Msk                        0x00100000u
#define I2C_ID_TARGET_NO                         0u /* not there: TCTRL to TSTATUS read as 0 */
#define I2C_ID_TARGET_YES                        1u /* there */

typedef struct {
    TARVO_ORIX_M1_RW uint32_t PRESCALE; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t TXDATA; /* 0x08 */
    TARVO_ORIX_M1_R uint32_t RXDATA; /* 0x0C */
    TARVO_ORIX_M1_W uint32_t COMMAND; /* 0x10 */
    TARVO_ORIX_M1_RW uint32_t STATUS; /* 0x14 */
    TARVO_ORIX_M1_RW uint32_t TIMEOUT; /* 0x18 */
    TARVO_ORIX_M1_RW uint32_t FILTER; /* 0x1C */
    TARVO_ORIX_M1_RW uint32_t ERROR; /* 0x20 */
    TARVO_ORIX_M1_R uint32_t BUS; /* 0x24 */
    TARVO_ORIX_M1_RW uint32_t FIFO; /* 0x28 */
    TARVO_ORIX_M1_R uint32_t LEVEL; /* 0x2C */
    TARVO_ORIX_M1_RW uint32_t THRESHOLD; /* 0x30 */
    TARVO_ORIX_M1_RW uint32_t INTEN; /* 0x34 */
    TARVO_ORIX_M1_RW uint32_t PEND; /* 0x38 */
    TARVO_ORIX_M1_RW uint32_t TCTRL; /* 0x3C */
    TARVO_ORIX_M1_RW uint32_t TADDR; /* 0x40 */
    TARVO_ORIX_M1_RW uint32_t TDATA; /* 0x44 */
    TARVO_ORIX_M1_R uint32_t TSTATUS; /* 0x48 */
    uint32_t RESERVED0[1004];
    TARVO_ORIX_M1_R uint32_t ID; /* 0xFFC */
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
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_TIMEOUT,
                     offsetof(I2C_Type, TIMEOUT) == I2C_TIMEOUT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_FILTER,
                     offsetof(I2C_Type, FILTER) == I2C_FILTER_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_ERROR,
                     offsetof(I2C_Type, ERROR) == I2C_ERROR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_BUS,
                     offsetof(I2C_Type, BUS) == I2C_BUS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_FIFO,
                     offsetof(I2C_Type, FIFO) == I2C_FIFO_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_LEVEL,
                     offsetof(I2C_Type, LEVEL) == I2C_LEVEL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_THRESHOLD,
                     offsetof(I2C_Type, THRESHOLD) == I2C_THRESHOLD_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_INTEN,
                     offsetof(I2C_Type, INTEN) == I2C_INTEN_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_PEND,
                     offsetof(I2C_Type, PEND) == I2C_PEND_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_TCTRL,
                     offsetof(I2C_Type, TCTRL) == I2C_TCTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_TADDR,
                     offsetof(I2C_Type, TADDR) == I2C_TADDR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_TDATA,
                     offsetof(I2C_Type, TDATA) == I2C_TDATA_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_TSTATUS,
                     offsetof(I2C_Type, TSTATUS) == I2C_TSTATUS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_I2C_Type_ID,
                     offsetof(I2C_Type, ID) == I2C_ID_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_I2C_Type, sizeof(I2C_Type) == 0x1000u);

#define I2C                                      ((I2C_Type *)(uintptr_t)I2C_BASE)

/* SPI: SPI master with one slave select: words of 4 to 32 bits, with FIFOs of 16 words both
 * ways or one at a time. Bytes and halfwords: a word is sent only by a write that reaches the
 * lowest byte of DATA, with zeros in the bytes that it does not reach, and taken out of the
 * FIFO only by a read that begins there. */
#define SPI_BASE                                 0x5000D000u /* one device on a serial bus */

/* Words to and from the line, in the lowest bits. */
#define SPI_DATA_OFFSET                          0x00u
#define SPI_DATA_RESET                           0x00000000u
#define SPI_DATA_BYTE_Pos                        0u /* write: sends the word, ignored without room, which is while BUSY without CTRL.FIFO; read: the word received with the last one, with CTRL.FIFO the oldest one, which is taken out */
#define SPI_DATA_BYTE_Msk                        0x000000FFu
#define SPI_DATA_UPPER_Pos                       8u /* bits of words with more than eight; beyond FORMAT.BITS not sent, and 0 in what is received */
#define SPI_DATA_UPPER_Msk                       0xFFFFFF00u

/* State. */
#define SPI_STATUS_OFFSET                        0x04u
#define SPI_STATUS_RESET                         0x00000000u
#define SPI_STATUS_BUSY_Pos                      0u /* words are on their way, or the select is, or its idle time */
#define SPI_STATUS_BUSY_Msk                      0x00000001u
#define SPI_STATUS_BUSY_IDLE                     0u /* the line is at rest */
#define SPI_STATUS_BUSY_BUSY                     1u /* a word is on its way */
#define SPI_STATUS_DONE_Pos                      1u /* the line came to rest after the last word; a write to DATA clears it */
#define SPI_STATUS_DONE_Msk                      0x00000002u
#define SPI_STATUS_DONE_NO                       0u /* nothing has ended */
#define SPI_STATUS_DONE_YES                      1u /* the last word has ended */
#define SPI_STATUS_LOST_Pos                      2u /* DATA was written without room */
#define SPI_STATUS_LOST_Msk                      0x00000004u
#define SPI_STATUS_LOST_NO                       0u /* nothing is lost */
#define SPI_STATUS_LOST_YES                      1u /* a word is lost */
#define SPI_STATUS_OVERRUN_Pos                   3u /* a word came while the FIFO was full, and was dropped */
#define SPI_STATUS_OVERRUN_Msk                   0x00000008u
#define SPI_STATUS_OVERRUN_NO                    0u /* nothing was dropped */
#define SPI_STATUS_OVERRUN_YES                   1u /* a received word is lost */
#define SPI_STATUS_UNDERRUN_Pos                  4u /* DATA was read while the FIFO was empty, and read as 0; only with CTRL.FIFO */
#define SPI_STATUS_UNDERRUN_Msk                  0x00000010u
#define SPI_STATUS_UNDERRUN_NO                   0u /* no such read */
#define SPI_STATUS_UNDERRUN_YES                  1u /* a word was missing */
#define SPI_STATUS_REFUSED_Pos                   5u /* while BUSY, something was to change FORMAT, or LOOP, LSBFIRST, CPHA or CPOL of CTRL: they stayed as they were */
#define SPI_STATUS_REFUSED_Msk                   0x00000020u
#define SPI_STATUS_REFUSED_NO                    0u /* nothing was refused */
#define SPI_STATUS_REFUSED_YES                   1u /* a change was refused */

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
#define SPI_CTRL_FIFO_Pos                        4u /* words pass through FIFOs, and follow each other without a gap while there are some; switched on, that of received words is empty */
#define SPI_CTRL_FIFO_Msk                        0x00000010u
#define SPI_CTRL_FIFO_OFF                        0u /* one word at a time */
#define SPI_CTRL_FIFO_ON                         1u /* through FIFOs */
#define SPI_CTRL_LOOP_Pos                        5u /* each word is received as it is sent: MISO is not looked at, and NSS stays high */
#define SPI_CTRL_LOOP_Msk                        0x00000020u
#define SPI_CTRL_LOOP_OFF                        0u /* MISO is received */
#define SPI_CTRL_LOOP_ON                         1u /* loop-back */
#define SPI_CTRL_DROP_Pos                        6u /* what is received is dropped */
#define SPI_CTRL_DROP_Msk                        0x00000040u
#define SPI_CTRL_DROP_OFF                        0u /* words are kept */
#define SPI_CTRL_DROP_ON                         1u /* words are dropped */

/* Bit time. */
#define SPI_DIV_OFFSET                           0x0Cu
#define SPI_DIV_RESET                            0x00000003u
#define SPI_DIV_CYCLES_Pos                       0u /* half a period of SCLK is CYCLES + 1 clock cycles: 0 gives half the clock; changed while BUSY, it counts from the next half on */
#define SPI_DIV_CYCLES_Msk                       0x0000FFFFu

/* Slave select. */
#define SPI_SELECT_OFFSET                        0x10u
#define SPI_SELECT_RESET                         0x00000000u
#define SPI_SELECT_SS_Pos                        0u /* 1 drives NSS low */
#define SPI_SELECT_SS_Msk                        0x00000001u
#define SPI_SELECT_SS_HIGH                       0u /* NSS is high: not selected */
#define SPI_SELECT_SS_LOW                        1u /* NSS is low: selected */
#define SPI_SELECT_AUTO_Pos                      1u /* NSS goes low for words on its own, and high after them */
#define SPI_SELECT_AUTO_Msk                      0x00000002u
#define SPI_SELECT_AUTO_OFF                      0u /* only SS drives NSS low */
#define SPI_SELECT_AUTO_ON                       1u /* NSS is low for each word */
#define SPI_SELECT_BURST_Pos                     2u /* with AUTO, NSS stays low while words follow each other */
#define SPI_SELECT_BURST_Msk                     0x00000004u
#define SPI_SELECT_BURST_OFF                     0u /* NSS goes high after each word */
#define SPI_SELECT_BURST_ON                      1u /* NSS goes high after the last word */

/* Form of words. */
#define SPI_FORMAT_OFFSET                        0x14u
#define SPI_FORMAT_RESET                         0x00000007u
#define SPI_FORMAT_BITS_Pos                      0u /* a word has BITS + 1 bits: 4 to 32; larger values count as the longest, smaller ones as the shortest */
#define SPI_FORMAT_BITS_Msk                      0x0000003Fu
#define SPI_FORMAT_SAMPLE_Pos                    8u /* MISO is taken SAMPLE clock cycles after the edge of SCLK, for devices that answer late */
#define SPI_FORMAT_SAMPLE_Msk                    0x00000300u
#define SPI_FORMAT_SAMPLE_EDGE                   0u /* at the edge */
#define SPI_FORMAT_SAMPLE_LATE1                  1u /* one clock cycle later */
#define SPI_FORMAT_SAMPLE_LATE2                  2u /* two clock cycles later */
#define SPI_FORMAT_SAMPLE_LATE3                  3u /* three clock cycles later */

/* Times of the automatic select, in clock cycles. */
#define SPI_TIMING_OFFSET                        0x18u
#define SPI_TIMING_RESET                         0x00000000u
#define SPI_TIMING_SETUP_Pos                     0u /* from NSS low to the first edge of SCLK: SETUP + 1 cycles and half a period */
#define SPI_TIMING_SETUP_Msk                     0x000000FFu
#define SPI_TIMING_HOLD_Pos                      8u /* from the last edge of SCLK to NSS high: half a period and HOLD + 1 cycles */
#define SPI_TIMING_HOLD_Msk                      0x0000FF00u
#define SPI_TIMING_IDLE_Pos                      16u /* NSS stays high for at least IDLE + 2 cycles */
#define SPI_TIMING_IDLE_Msk                      0x00FF0000u

/* Levels of the FIFOs. */
#define SPI_LEVEL_OFFSET                         0x1Cu
#define SPI_LEVEL_RESET                          0x00010000u
#define SPI_LEVEL_TX_Pos                         0u /* words to be sent, 0 to 16; one counts until its last bit is on the line */
#define SPI_LEVEL_TX_Msk                         0x000000FFu
#define SPI_LEVEL_RX_Pos                         8u /* received words, 0 to 16 */
#define SPI_LEVEL_RX_Msk                         0x0000FF00u
#define SPI_LEVEL_TXLOW_Pos                      16u /* TX is at most THRESHOLD.TX */
#define SPI_LEVEL_TXLOW_Msk                      0x00010000u
#define SPI_LEVEL_TXLOW_NO                       0u /* more words wait */
#define SPI_LEVEL_TXLOW_YES                      1u /* words are wanted */
#define SPI_LEVEL_RXREADY_Pos                    17u /* RX is at least THRESHOLD.RX */
#define SPI_LEVEL_RXREADY_Msk                    0x00020000u
#define SPI_LEVEL_RXREADY_NO                     0u /* fewer words are there */
#define SPI_LEVEL_RXREADY_YES                    1u /* words are there */

/* Levels that matter. */
#define SPI_THRESHOLD_OFFSET                     0x20u
#define SPI_THRESHOLD_RESET                      0x00000100u
#define SPI_THRESHOLD_TX_Pos                     0u /* LEVEL.TXLOW while at most so many words wait */
#define SPI_THRESHOLD_TX_Msk                     0x0000003Fu
#define SPI_THRESHOLD_RX_Pos                     8u /* LEVEL.RXREADY while at least so many words were received */
#define SPI_THRESHOLD_RX_Msk                     0x00003F00u

/* Further interrupts; that of DONE is CTRL.IE. */
#define SPI_INTEN_OFFSET                         0x24u
#define SPI_INTEN_RESET                          0x00000000u
#define SPI_INTEN_TXLOW_Pos                      0u /* interrupt while LEVEL.TXLOW */
#define SPI_INTEN_TXLOW_Msk                      0x00000001u
#define SPI_INTEN_TXLOW_OFF                      0u /* no interrupt */
#define SPI_INTEN_TXLOW_ON                       1u /* interrupt */
#define SPI_INTEN_RXREADY_Pos                    1u /* interrupt while LEVEL.RXREADY */
#define SPI_INTEN_RXREADY_Msk                    0x00000002u
#define SPI_INTEN_RXREADY_OFF                    0u /* no interrupt */
#define SPI_INTEN_RXREADY_ON                     1u /* interrupt */
#define SPI_INTEN_ERROR_Pos                      2u /* interrupt while STATUS has LOST, OVERRUN, UNDERRUN or REFUSED */
#define SPI_INTEN_ERROR_Msk                      0x00000004u
#define SPI_INTEN_ERROR_OFF                      0u /* no interrupt */
#define SPI_INTEN_ERROR_ON                       1u /* interrupt */

/* Throws words away. */
#define SPI_CLEAR_OFFSET                         0x28u
#define SPI_CLEAR_RESET                          0x00000000u
#define SPI_CLEAR_TX_Pos                         0u /* ends what is on its way at once, without DONE, and throws the words to be sent away */
#define SPI_CLEAR_TX_Msk                         0x00000001u
#define SPI_CLEAR_TX_KEEP                        0u /* nothing */
#define SPI_CLEAR_TX_THROW                       1u /* no words to be sent */
#define SPI_CLEAR_RX_Pos                         1u /* throws received words away */
#define SPI_CLEAR_RX_Msk                         0x00000002u
#define SPI_CLEAR_RX_KEEP                        0u /* nothing */
#define SPI_CLEAR_RX_THROW                       1u /* no received words */

/* What this block is. */
#define SPI_ID_OFFSET                            0xFFCu
#define SPI_ID_RESET                             0x05040208u
#define SPI_ID_BLOCK_Pos                         0u /* kind of block */
#define SPI_ID_BLOCK_Msk                         0x000000FFu
#define SPI_ID_REVISION_Pos                      8u /* revision of its registers */
#define SPI_ID_REVISION_Msk                      0x0000FF00u
#define SPI_ID_LOGDEPTH_Pos                      16u /* each FIFO has 2 to the power of LOGDEPTH words */
#define SPI_ID_LOGDEPTH_Msk                      0x00FF0000u
#define SPI_ID_LOGBITS_Pos                       24u /* a word has at most 2 to the power of LOGBITS bits */
#define SPI_ID_LOGBITS_Msk                       0xFF000000u

typedef struct {
    TARVO_ORIX_M1_RW uint32_t DATA; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t STATUS; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t DIV; /* 0x0C */
    TARVO_ORIX_M1_RW uint32_t SELECT; /* 0x10 */
    TARVO_ORIX_M1_RW uint32_t FORMAT; /* 0x14 */
    TARVO_ORIX_M1_RW uint32_t TIMING; /* 0x18 */
    TARVO_ORIX_M1_R uint32_t LEVEL; /* 0x1C */
    TARVO_ORIX_M1_RW uint32_t THRESHOLD; /* 0x20 */
    TARVO_ORIX_M1_RW uint32_t INTEN; /* 0x24 */
    TARVO_ORIX_M1_W uint32_t CLEAR; /* 0x28 */
    uint32_t RESERVED0[1012];
    TARVO_ORIX_M1_R uint32_t ID; /* 0xFFC */
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
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPI_Type_FORMAT,
                     offsetof(SPI_Type, FORMAT) == SPI_FORMAT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPI_Type_TIMING,
                     offsetof(SPI_Type, TIMING) == SPI_TIMING_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPI_Type_LEVEL,
                     offsetof(SPI_Type, LEVEL) == SPI_LEVEL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPI_Type_THRESHOLD,
                     offsetof(SPI_Type, THRESHOLD) == SPI_THRESHOLD_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPI_Type_INTEN,
                     offsetof(SPI_Type, INTEN) == SPI_INTEN_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPI_Type_CLEAR,
                     offsetof(SPI_Type, CLEAR) == SPI_CLEAR_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SPI_Type_ID,
                     offsetof(SPI_Type, ID) == SPI_ID_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_SPI_Type, sizeof(SPI_Type) == 0x1000u);

#define SPI                                      ((SPI_Type *)(uintptr_t)SPI_BASE)

/* SD: SD card in SPI mode: commands with CRC7 and response, blocks with CRC16 through a buffer
 * of 1 KB, and bytes one by one. SD_CLK is made from PCLK, or from the source clock SD_SPICLK,
 * which is sampled with PCLK and must be slower than PCLK / 4: each of its rising edges is
 * half a period of SD_CLK then. A card is present when SD_CHECKIN has been low for 1024 clock
 * cycles, or more with FILTER. Nothing of a command needs software but the words of its
 * blocks; every wait has an end. Bytes and halfwords: a byte is sent only by a write that
 * reaches the lowest byte of DATA, a command started only by one that reaches the lowest byte
 * of COMMAND. A word is put into BUFFER only by a write of the whole word, and taken only by a
 * read that begins at its lowest byte. */
#define SD_BASE                                  0x5000E000u /* memory card */

/* Bytes to and from the card, one by one. */
#define SD_DATA_OFFSET                           0x00u
#define SD_DATA_RESET                            0x00000000u
#define SD_DATA_BYTE_Pos                         0u /* write: sends the byte, ignored while BUSY; read: the byte received with it, or with the last byte of a command */
#define SD_DATA_BYTE_Msk                         0x000000FFu

/* State. */
#define SD_STATUS_OFFSET                         0x04u
#define SD_STATUS_RESET                          0x00000000u
#define SD_STATUS_BUSY_Pos                       0u /* a byte or a command is on its way */
#define SD_STATUS_BUSY_Msk                       0x00000001u
#define SD_STATUS_BUSY_IDLE                      0u /* nothing is on its way */
#define SD_STATUS_BUSY_BUSY                      1u /* a byte or a command is on its way */
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
#define SD_STATUS_ACTIVE_Pos                     5u /* a command is on its way */
#define SD_STATUS_ACTIVE_Msk                     0x00000020u
#define SD_STATUS_ACTIVE_NO                      0u /* no command */
#define SD_STATUS_ACTIVE_YES                     1u /* a command is on its way */
#define SD_STATUS_WAITING_Pos                    6u /* the command waits for the buffer, with its clock at rest: for words of a block to write, or for room for a block to read */
#define SD_STATUS_WAITING_Msk                    0x00000040u
#define SD_STATUS_WAITING_NO                     0u /* it does not wait */
#define SD_STATUS_WAITING_YES                    1u /* it waits */

/* Control. */
#define SD_CTRL_OFFSET                           0x08u
#define SD_CTRL_RESET                            0x00000000u
#define SD_CTRL_SELECT_Pos                       0u /* 1 drives SD_CS low; a command does it by itself while it runs */
#define SD_CTRL_SELECT_Msk                       0x00000001u
#define SD_CTRL_SELECT_HIGH                      0u /* SD_CS is high: not selected */
#define SD_CTRL_SELECT_LOW                       1u /* SD_CS is low: selected */
#define SD_CTRL_INIT_Pos                         1u /* drives SD_CARD_INIT: software has initialised the card; cleared when the card leaves */
#define SD_CTRL_INIT_Msk                         0x00000002u
#define SD_CTRL_INIT_NO                          0u /* not initialised */
#define SD_CTRL_INIT_YES                         1u /* initialised */
#define SD_CTRL_DONEIE_Pos                       2u /* interrupt while DONE of STATUS */
#define SD_CTRL_DONEIE_Msk                       0x00000004u
#define SD_CTRL_DONEIE_OFF                       0u /* no interrupt */
#define SD_CTRL_DONEIE_ON                        1u /* interrupt */
#define SD_CTRL_CARDIE_Pos                       3u /* interrupt while CHANGED */
#define SD_CTRL_CARDIE_Msk                       0x00000008u
#define SD_CTRL_CARDIE_OFF                       0u /* no interrupt */
#define SD_CTRL_CARDIE_ON                        1u /* interrupt */

/* Clock of the card and filter of its switch; refused while BUSY. */
#define SD_CLOCK_OFFSET                          0x0Cu
#define SD_CLOCK_RESET                           0x00000000u
#define SD_CLOCK_DIV_Pos                         0u /* with SOURCE = PCLK half a period of SD_CLK is DIV + 1 cycles: SD_CLK = PCLK / (2 * (DIV + 1)) */
#define SD_CLOCK_DIV_Msk                         0x000000FFu
#define SD_CLOCK_SOURCE_Pos                      8u /* what SD_CLK is made from */
#define SD_CLOCK_SOURCE_Msk                      0x00000100u
#define SD_CLOCK_SOURCE_SPICLK                   0u /* SD_SPICLK, two periods of which make one */
#define SD_CLOCK_SOURCE_PCLK                     1u /* PCLK */
#define SD_CLOCK_LATE_Pos                        9u /* where SD_DATAIN is sampled */
#define SD_CLOCK_LATE_Msk                        0x00000200u
#define SD_CLOCK_LATE_RISING                     0u /* at the rising edge of SD_CLK: the card has half a period for a bit */
#define SD_CLOCK_LATE_FALLING                    1u /* at the falling edge: it has a whole period */
#define SD_CLOCK_FILTER_Pos                      16u /* CARD follows the switch when that has stood for (FILTER + 1) * 1024 cycles */
#define SD_CLOCK_FILTER_Msk                      0x03FF0000u

/* How long a command waits for the card, in units of 1024 cycles, less one; refused while
 * BUSY. A time must be longer than a byte takes. */
#define SD_TIMEOUT_OFFSET                        0x10u
#define SD_TIMEOUT_RESET                         0xFFFFFFFFu
#define SD_TIMEOUT_TOKEN_Pos                     0u /* for the token of a block */
#define SD_TIMEOUT_TOKEN_Msk                     0x0000FFFFu
#define SD_TIMEOUT_BUSY_Pos                      16u /* for a busy card, and for a clock from SD_SPICLK that stands still */
#define SD_TIMEOUT_BUSY_Msk                      0xFFFF0000u

/* What a command with DATA moves; refused while BUSY. */
#define SD_BLOCKS_OFFSET                         0x14u
#define SD_BLOCKS_RESET                          0x00800001u
#define SD_BLOCKS_COUNT_Pos                      0u /* blocks with MULTI; 0 counts as 65536 */
#define SD_BLOCKS_COUNT_Msk                      0x0000FFFFu
#define SD_BLOCKS_WORDS_Pos                      16u /* words of four bytes in a block; 0 is stored as 1 */
#define SD_BLOCKS_WORDS_Msk                      0x00FF0000u

/* Argument of the next command; refused while BUSY. */
#define SD_ARGUMENT_OFFSET                       0x18u
#define SD_ARGUMENT_RESET                        0x00000000u
#define SD_ARGUMENT_ARGUMENT_Pos                 0u /* argument */
#define SD_ARGUMENT_ARGUMENT_Msk                 0xFFFFFFFFu

/* Starts a command when its lowest byte is written; refused while BUSY. Without a card it ends
 * at once. SD_CS is low from a byte before the command to a byte behind its end, and one more
 * byte follows that. */
#define SD_COMMAND_OFFSET                        0x1Cu
#define SD_COMMAND_RESET                         0x00000000u
#define SD_COMMAND_INDEX_Pos                     0u /* number of the command; its CRC7 is made, and the byte that follows CMD12 is skipped */
#define SD_COMMAND_INDEX_Msk                     0x0000003Fu
#define SD_COMMAND_RESPONSE_Pos                  8u /* what the card answers with */
#define SD_COMMAND_RESPONSE_Msk                  0x00000300u
#define SD_COMMAND_RESPONSE_R1                   0u /* R1 */
#define SD_COMMAND_RESPONSE_R1B                  1u /* R1, and busy behind it */
#define SD_COMMAND_RESPONSE_R2                   2u /* R1 and a byte, which is in VALUE */
#define SD_COMMAND_RESPONSE_R3_R7                3u /* R1 and four bytes, which are in VALUE */
#define SD_COMMAND_DATA_Pos                      10u /* what follows an R1 without error bits */
#define SD_COMMAND_DATA_Msk                      0x00000C00u
#define SD_COMMAND_DATA_NONE                     0u /* nothing */
#define SD_COMMAND_DATA_READ                     1u /* blocks from the card; begins when the buffer has room for one */
#define SD_COMMAND_DATA_WRITE                    2u /* blocks to the card, each begun when all of its words are in the buffer */
#define SD_COMMAND_DATA_RESERVED                 3u /* nothing */
#define SD_COMMAND_MULTI_Pos                     12u /* how many blocks */
#define SD_COMMAND_MULTI_Msk                     0x00001000u
#define SD_COMMAND_MULTI_SINGLE                  0u /* one */
#define SD_COMMAND_MULTI_MULTIPLE                1u /* COUNT; then, or behind one that failed, CMD12 (reading) or the token 0xFD (writing) is sent and busy waited for */
#define SD_COMMAND_WAIT_Pos                      13u /* before the command */
#define SD_COMMAND_WAIT_Msk                      0x00002000u
#define SD_COMMAND_WAIT_NO                       0u /* a byte */
#define SD_COMMAND_WAIT_YES                      1u /* bytes until the card is not busy */
#define SD_COMMAND_WAKE_Pos                      15u /* ten bytes of ones in place of a command, with SD_CS high; takes SELECT back */
#define SD_COMMAND_WAKE_Msk                      0x00008000u
#define SD_COMMAND_WAKE_NO                       0u /* a command */
#define SD_COMMAND_WAKE_YES                      1u /* 80 periods of SD_CLK */

/* What the card has said. */
#define SD_RESPONSE_OFFSET                       0x20u
#define SD_RESPONSE_RESET                        0x00000000u
#define SD_RESPONSE_R1_Pos                       0u /* R1 of the last command; not of the CMD12 that ends blocks */
#define SD_RESPONSE_R1_Msk                       0x000000FFu
#define SD_RESPONSE_TOKEN_Pos                    16u /* the last token of a block, error token or data response */
#define SD_RESPONSE_TOKEN_Msk                    0x00FF0000u

/* Bytes behind R1, the last one in bits 7 to 0; reading blocks changes it. */
#define SD_VALUE_OFFSET                          0x24u
#define SD_VALUE_RESET                           0x00000000u
#define SD_VALUE_VALUE_Pos                       0u /* R2: bits 7 to 0; R3, R7: all */
#define SD_VALUE_VALUE_Msk                       0xFFFFFFFFu

/* Blocks and words. */
#define SD_PROGRESS_OFFSET                       0x28u
#define SD_PROGRESS_RESET                        0x00000000u
#define SD_PROGRESS_MOVED_Pos                    0u /* blocks that the last command has read with a right CRC16, or written */
#define SD_PROGRESS_MOVED_Msk                    0x0000FFFFu
#define SD_PROGRESS_LEVEL_Pos                    16u /* words in the buffer that can be read, or wait to be written */
#define SD_PROGRESS_LEVEL_Msk                    0xFFFF0000u

/* What can ask for an interrupt. */
#define SD_EVENTS_OFFSET                         0x2Cu
#define SD_EVENTS_RESET                          0x00000020u
#define SD_EVENTS_DONE_Pos                       0u /* a command has ended, with errors or without */
#define SD_EVENTS_DONE_Msk                       0x00000001u
#define SD_EVENTS_DONE_NO                        0u /* not since it was cleared */
#define SD_EVENTS_DONE_YES                       1u /* it happened */
#define SD_EVENTS_BLOCK_Pos                      1u /* a block was read, or written */
#define SD_EVENTS_BLOCK_Msk                      0x00000002u
#define SD_EVENTS_BLOCK_NO                       0u /* not since it was cleared */
#define SD_EVENTS_BLOCK_YES                      1u /* it happened */
#define SD_EVENTS_INSERTED_Pos                   2u /* a card came */
#define SD_EVENTS_INSERTED_Msk                   0x00000004u
#define SD_EVENTS_INSERTED_NO                    0u /* not since it was cleared */
#define SD_EVENTS_INSERTED_YES                   1u /* it happened */
#define SD_EVENTS_REMOVED_Pos                    3u /* the card left */
#define SD_EVENTS_REMOVED_Msk                    0x00000008u
#define SD_EVENTS_REMOVED_NO                     0u /* not since it was cleared */
#define SD_EVENTS_REMOVED_YES                    1u /* it happened */
#define SD_EVENTS_READABLE_Pos                   4u /* a block of WORDS is in the buffer */
#define SD_EVENTS_READABLE_Msk                   0x00000010u
#define SD_EVENTS_READABLE_NO                    0u /* less than a block */
#define SD_EVENTS_READABLE_YES                   1u /* a block */
#define SD_EVENTS_WRITABLE_Pos                   5u /* there is room for a block of WORDS in the buffer */
#define SD_EVENTS_WRITABLE_Msk                   0x00000020u
#define SD_EVENTS_WRITABLE_NO                    0u /* no room */
#define SD_EVENTS_WRITABLE_YES                   1u /* room */
#define SD_EVENTS_FAILED_Pos                     6u /* a bit of ERRORS is set */
#define SD_EVENTS_FAILED_Msk                     0x00000040u
#define SD_EVENTS_FAILED_NO                      0u /* none */
#define SD_EVENTS_FAILED_YES                     1u /* one at least */

/* Interrupts while an event is there. */
#define SD_ENABLE_OFFSET                         0x30u
#define SD_ENABLE_RESET                          0x00000000u
#define SD_ENABLE_DONE_Pos                       0u /* interrupt while DONE */
#define SD_ENABLE_DONE_Msk                       0x00000001u
#define SD_ENABLE_DONE_OFF                       0u /* no interrupt */
#define SD_ENABLE_DONE_ON                        1u /* interrupt */
#define SD_ENABLE_BLOCK_Pos                      1u /* interrupt while BLOCK */
#define SD_ENABLE_BLOCK_Msk                      0x00000002u
#define SD_ENABLE_BLOCK_OFF                      0u /* no interrupt */
#define SD_ENABLE_BLOCK_ON                       1u /* interrupt */
#define SD_ENABLE_INSERTED_Pos                   2u /* interrupt while INSERTED */
#define SD_ENABLE_INSERTED_Msk                   0x00000004u
#define SD_ENABLE_INSERTED_OFF                   0u /* no interrupt */
#define SD_ENABLE_INSERTED_ON                    1u /* interrupt */
#define SD_ENABLE_REMOVED_Pos                    3u /* interrupt while REMOVED */
#define SD_ENABLE_REMOVED_Msk                    0x00000008u
#define SD_ENABLE_REMOVED_OFF                    0u /* no interrupt */
#define SD_ENABLE_REMOVED_ON                     1u /* interrupt */
#define SD_ENABLE_READABLE_Pos                   4u /* interrupt while READABLE */
#define SD_ENABLE_READABLE_Msk                   0x00000010u
#define SD_ENABLE_READABLE_OFF                   0u /* no interrupt */
#define SD_ENABLE_READABLE_ON                    1u /* interrupt */
#define SD_ENABLE_WRITABLE_Pos                   5u /* interrupt while WRITABLE */
#define SD_ENABLE_WRITABLE_Msk                   0x00000020u
#define SD_ENABLE_WRITABLE_OFF                   0u /* no interrupt */
#define SD_ENABLE_WRITABLE_ON                    1u /* interrupt */
#define SD_ENABLE_FAILED_Pos                     6u /* interrupt while FAILED */
#define SD_ENABLE_FAILED_Msk                     0x00000040u
#define SD_ENABLE_FAILED_OFF                     0u /* no interrupt */
#define SD_ENABLE_FAILED_ON                      1u /* interrupt */

/* What went wrong; stays until it is cleared. */
#define SD_ERRORS_OFFSET                         0x34u
#define SD_ERRORS_RESET                          0x00000000u
#define SD_ERRORS_NOCARD_Pos                     0u /* a command was started without a card, or the card left during one */
#define SD_ERRORS_NOCARD_Msk                     0x00000001u
#define SD_ERRORS_NOCARD_NO                      0u /* no such error */
#define SD_ERRORS_NOCARD_YES                     1u /* it happened */
#define SD_ERRORS_REFUSED_Pos                    1u /* COMMAND, ARGUMENT, BLOCKS, TIMEOUT or CLOCK was written while BUSY, which changed nothing */
#define SD_ERRORS_REFUSED_Msk                    0x00000002u
#define SD_ERRORS_REFUSED_NO                     0u /* no such error */
#define SD_ERRORS_REFUSED_YES                    1u /* it happened */
#define SD_ERRORS_ABORTED_Pos                    2u /* a command was ended by ABORT */
#define SD_ERRORS_ABORTED_Msk                    0x00000004u
#define SD_ERRORS_ABORTED_NO                     0u /* no such error */
#define SD_ERRORS_ABORTED_YES                    1u /* it happened */
#define SD_ERRORS_NORESPONSE_Pos                 3u /* no response within nine bytes */
#define SD_ERRORS_NORESPONSE_Msk                 0x00000008u
#define SD_ERRORS_NORESPONSE_NO                  0u /* no such error */
#define SD_ERRORS_NORESPONSE_YES                 1u /* it happened */
#define SD_ERRORS_ILLEGAL_Pos                    4u /* R1 has the bit of an illegal command */
#define SD_ERRORS_ILLEGAL_Msk                    0x00000010u
#define SD_ERRORS_ILLEGAL_NO                     0u /* no such error */
#define SD_ERRORS_ILLEGAL_YES                    1u /* it happened */
#define SD_ERRORS_CMDCRC_Pos                     5u /* R1 has the bit of a wrong CRC7 */
#define SD_ERRORS_CMDCRC_Msk                     0x00000020u
#define SD_ERRORS_CMDCRC_NO                      0u /* no such error */
#define SD_ERRORS_CMDCRC_YES                     1u /* it happened */
#define SD_ERRORS_R1ERROR_Pos                    6u /* R1 has another error bit: erase, address or parameter */
#define SD_ERRORS_R1ERROR_Msk                    0x00000040u
#define SD_ERRORS_R1ERROR_NO                     0u /* no such error */
#define SD_ERRORS_R1ERROR_YES                    1u /* it happened */
#define SD_ERRORS_NOTOKEN_Pos                    7u /* no token within TOKEN of TIMEOUT */
#define SD_ERRORS_NOTOKEN_Msk                    0x00000080u
#define SD_ERRORS_NOTOKEN_NO                     0u /* no such error */
#define SD_ERRORS_NOTOKEN_YES                    1u /* it happened */
#define SD_ERRORS_ERRORTOKEN_Pos                 8u /* an error token, or a byte that is no token, came instead of a block */
#define SD_ERRORS_ERRORTOKEN_Msk                 0x00000100u
#define SD_ERRORS_ERRORTOKEN_NO                  0u /* no such error */
#define SD_ERRORS_ERRORTOKEN_YES                 1u /* it happened */
#define SD_ERRORS_DATACRC_Pos                    9u /* a block came with a wrong CRC16; it is not in the buffer */
#define SD_ERRORS_DATACRC_Msk                    0x00000200u
#define SD_ERRORS_DATACRC_NO                     0u /* no such error */
#define SD_ERRORS_DATACRC_YES                    1u /* it happened */
#define SD_ERRORS_REJECTED_Pos                   10u /* the card took a block for one with a wrong CRC16 */
#define SD_ERRORS_REJECTED_Msk                   0x00000400u
#define SD_ERRORS_REJECTED_NO                    0u /* no such error */
#define SD_ERRORS_REJECTED_YES                   1u /* it happened */
#define SD_ERRORS_NOTWRITTEN_Pos                 11u /* the card could not write a block */
#define SD_ERRORS_NOTWRITTEN_Msk                 0x00000800u
#define SD_ERRORS_NOTWRITTEN_NO                  0u /* no such error */
#define SD_ERRORS_NOTWRITTEN_YES                 1u /* it happened */
#define SD_ERRORS_BADVERDICT_Pos                 12u /* the card said neither to a block within nine bytes, nor that it took it */
#define SD_ERRORS_BADVERDICT_Msk                 0x00001000u
#define SD_ERRORS_BADVERDICT_NO                  0u /* no such error */
#define SD_ERRORS_BADVERDICT_YES                 1u /* it happened */
#define SD_ERRORS_STAYSBUSY_Pos                  13u /* the card was busy for longer than BUSY of TIMEOUT */
#define SD_ERRORS_STAYSBUSY_Msk                  0x00002000u
#define SD_ERRORS_STAYSBUSY_NO                   0u /* no such error */
#define SD_ERRORS_STAYSBUSY_YES                  1u /* it happened */
#define SD_ERRORS_NOCLOCK_Pos                    14u /* not a byte passed within BUSY of TIMEOUT: SD_SPICLK stands still */
#define SD_ERRORS_NOCLOCK_Msk                    0x00004000u
#define SD_ERRORS_NOCLOCK_NO                     0u /* no such error */
#define SD_ERRORS_NOCLOCK_YES                    1u /* it happened */
#define SD_ERRORS_UNDER_Pos                      15u /* BUFFER was read while empty, or during a command that writes */
#define SD_ERRORS_UNDER_Msk                      0x00008000u
#define SD_ERRORS_UNDER_NO                       0u /* no such error */
#define SD_ERRORS_UNDER_YES                      1u /* it happened */
#define SD_ERRORS_OVER_Pos                       16u /* BUFFER was written while full, in part, or during a command that reads */
#define SD_ERRORS_OVER_Msk                       0x00010000u
#define SD_ERRORS_OVER_NO                        0u /* no such error */
#define SD_ERRORS_OVER_YES                       1u /* it happened */

/* Interventions; each ends something, or does nothing when there is nothing to end. */
#define SD_ACTION_OFFSET                         0x38u
#define SD_ACTION_RESET                          0x00000000u
#define SD_ACTION_ABORT_Pos                      0u /* ends a byte or command at once, and leaves the card */
#define SD_ACTION_ABORT_Msk                      0x00000001u
#define SD_ACTION_ABORT_NO                       0u /* nothing */
#define SD_ACTION_ABORT_YES                      1u /* does so */
#define SD_ACTION_STOP_Pos                       1u /* ends a command with MULTI behind the running block, or at once while none is running */
#define SD_ACTION_STOP_Msk                       0x00000002u
#define SD_ACTION_STOP_NO                        0u /* nothing */
#define SD_ACTION_STOP_YES                       1u /* does so */
#define SD_ACTION_CLEAR_Pos                      2u /* empties the buffer; does nothing during a command that is not aborted with it */
#define SD_ACTION_CLEAR_Msk                      0x00000004u
#define SD_ACTION_CLEAR_NO                       0u /* nothing */
#define SD_ACTION_CLEAR_YES                      1u /* does so */

/* The buffer: bytes of blocks, the first one in bits 7 to 0. A block that is read is in it
 * when its CRC16 was right. */
#define SD_BUFFER_OFFSET                         0x3Cu
#define SD_BUFFER_RESET                          0x00000000u
#define SD_BUFFER_WORD_Pos                       0u /* write: puts a word in; read: takes the oldest one, 0 if there is none */
#define SD_BUFFER_WORD_Msk                       0xFFFFFFFFu

/* What this block is. */
#define SD_ID_OFFSET                             0xFFCu
#define SD_ID_RESET                              0x00080209u
#define SD_ID_BLOCK_Pos                          0u /* kind of block */
#define SD_ID_BLOCK_Msk                          0x000000FFu
#define SD_ID_REVISION_Pos                       8u /* revision of its registers */
#define SD_ID_REVISION_Msk                       0x0000FF00u
#define SD_ID_LOGWORDS_Pos                       16u /* words of the buffer, as power of two */
#define SD_ID_LOGWORDS_Msk                       0x00FF0000u

typedef struct {
    TARVO_ORIX_M1_RW uint32_t DATA; /* 0x00 */
    TARVO_ORIX_M1_RW uint32_t STATUS; /* 0x04 */
    TARVO_ORIX_M1_RW uint32_t CTRL; /* 0x08 */
    TARVO_ORIX_M1_RW uint32_t CLOCK; /* 0x0C */
    TARVO_ORIX_M1_RW uint32_t TIMEOUT; /* 0x10 */
    TARVO_ORIX_M1_RW uint32_t BLOCKS; /* 0x14 */
    TARVO_ORIX_M1_RW uint32_t ARGUMENT; /* 0x18 */
    TARVO_ORIX_M1_RW uint32_t COMMAND; /* 0x1C */
    TARVO_ORIX_M1_R uint32_t RESPONSE; /* 0x20 */
    TARVO_ORIX_M1_R uint32_t VALUE; /* 0x24 */
    TARVO_ORIX_M1_R uint32_t PROGRESS; /* 0x28 */
    TARVO_ORIX_M1_RW uint32_t EVENTS; /* 0x2C */
    TARVO_ORIX_M1_RW uint32_t ENABLE; /* 0x30 */
    TARVO_ORIX_M1_RW uint32_t ERRORS; /* 0x34 */
    TARVO_ORIX_M1_W uint32_t ACTION; /* 0x38 */
    TARVO_ORIX_M1_RW uint32_t BUFFER; /* 0x3C */
    uint32_t RESERVED0[1007];
    TARVO_ORIX_M1_R uint32_t ID; /* 0xFFC */
} SD_Type;

TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_DATA,
                     offsetof(SD_Type, DATA) == SD_DATA_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_STATUS,
                     offsetof(SD_Type, STATUS) == SD_STATUS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_CTRL,
                     offsetof(SD_Type, CTRL) == SD_CTRL_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_CLOCK,
                     offsetof(SD_Type, CLOCK) == SD_CLOCK_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_TIMEOUT,
                     offsetof(SD_Type, TIMEOUT) == SD_TIMEOUT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_BLOCKS,
                     offsetof(SD_Type, BLOCKS) == SD_BLOCKS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_ARGUMENT,
                     offsetof(SD_Type, ARGUMENT) == SD_ARGUMENT_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_COMMAND,
                     offsetof(SD_Type, COMMAND) == SD_COMMAND_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_RESPONSE,
                     offsetof(SD_Type, RESPONSE) == SD_RESPONSE_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_VALUE,
                     offsetof(SD_Type, VALUE) == SD_VALUE_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_PROGRESS,
                     offsetof(SD_Type, PROGRESS) == SD_PROGRESS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_EVENTS,
                     offsetof(SD_Type, EVENTS) == SD_EVENTS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_ENABLE,
                     offsetof(SD_Type, ENABLE) == SD_ENABLE_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_ERRORS,
                     offsetof(SD_Type, ERRORS) == SD_ERRORS_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_ACTION,
                     offsetof(SD_Type, ACTION) == SD_ACTION_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_BUFFER,
                     offsetof(SD_Type, BUFFER) == SD_BUFFER_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_SD_Type_ID,
                     offsetof(SD_Type, ID) == SD_ID_OFFSET);
TARVO_ORIX_M1_ASSERT(tarvo_orix_m1_size_of_SD_Type, sizeof(SD_Type) == 0x1000u);

#define SD                                       ((SD_Type *)(uintptr_t)SD_BASE)

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
#define SCS_AIRCR_RESET                          0x00008000u
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
