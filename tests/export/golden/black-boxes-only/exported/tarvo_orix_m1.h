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
    CAN_IRQn = 9, /* CAN controller */
    ETH_IRQn = 10 /* Ethernet MAC */
} IRQn_Type;

#define CAN_IRQ                                  9
#define ETH_IRQ                                  10

/* What answers where: the first address, and the size in bytes. An access to any other address
 * gives an error. */
#define ITCM_BASE                                0x00000000u /* tightly coupled memory: instruction memory */
#define ITCM_SIZE                                0x00020000u
#define DTCM_BASE                                0x20000000u /* tightly coupled memory: data memory */
#define DTCM_SIZE                                0x00020000u
#define CAN_BASE                                 0x41000000u /* black box: CAN controller */
#define CAN_SIZE                                 0x01000000u
#define ETH_BASE                                 0x42000000u /* black box: Ethernet MAC */
#define ETH_SIZE                                 0x01000000u
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
