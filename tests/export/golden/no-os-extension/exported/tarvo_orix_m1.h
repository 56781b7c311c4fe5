/* Registers of Tarvo_ORIX_M1. Offsets are in bytes from an instance's base address. */
#ifndef TARVO_ORIX_M1_REGISTERS_H
#define TARVO_ORIX_M1_REGISTERS_H

/* 24-bit down counter that reloads after 0. The external input is synchronised to PCLK. */
#define TIMER0_BASE                      0x50000000u
#define TIMER0_IRQ                       2
#define TIMER_CTRL_OFFSET                0x00u
#define TIMER_CTRL_EN_Pos                0u
#define TIMER_CTRL_EN_Msk                0x00000001u
#define TIMER_CTRL_IE_Pos                1u
#define TIMER_CTRL_IE_Msk                0x00000002u
#define TIMER_CTRL_EXTGATE_Pos           2u
#define TIMER_CTRL_EXTGATE_Msk           0x00000004u
#define TIMER_CTRL_EXTCLK_Pos            3u
#define TIMER_CTRL_EXTCLK_Msk            0x00000008u
#define TIMER_VALUE_OFFSET               0x04u
#define TIMER_VALUE_COUNT_Pos            0u
#define TIMER_VALUE_COUNT_Msk            0x00FFFFFFu
#define TIMER_RELOAD_OFFSET              0x08u
#define TIMER_RELOAD_COUNT_Pos           0u
#define TIMER_RELOAD_COUNT_Msk           0x00FFFFFFu
#define TIMER_PEND_OFFSET                0x0Cu
#define TIMER_PEND_WRAP_Pos              0u
#define TIMER_PEND_WRAP_Msk              0x00000001u

#endif
