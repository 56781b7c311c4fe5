/* Registers of Tarvo_ORIX_M1. Offsets are in bytes from an instance's base address. */
#ifndef TARVO_ORIX_M1_REGISTERS_H
#define TARVO_ORIX_M1_REGISTERS_H

/* Named like a part of the processor. */
#define NVIC_BASE                        0x40000000u
#define NVIC_IRQ                         4
#define SysTick_DATA_OFFSET              0x00u
#define SysTick_DATA_PIN_Pos             0u
#define SysTick_DATA_PIN_Msk             0x0000FFFFu

/* Named like the type of the interrupts. */
#define Reset_BASE                       0x50000000u
#define Reset_IRQ                        2
#define IRQn_Type_uint32_t_OFFSET        0x00u
#define IRQn_Type_uint32_t_NULL_Pos      0u
#define IRQn_Type_uint32_t_NULL_Msk      0x00000001u
#define IRQn_Type_uint32_t_true_Pos      1u
#define IRQn_Type_uint32_t_true_Msk      0x00000002u
#define IRQn_Type_uint32_t_inline_Pos    2u
#define IRQn_Type_uint32_t_inline_Msk    0x00000004u
#define IRQn_Type_main_OFFSET            0x04u
#define IRQn_Type_main_errno_Pos         0u
#define IRQn_Type_main_errno_Msk         0x00000001u

/* Named like a type, with <tags> & "quotes". */
#define NULL_BASE                        0x50004000u
#define NULL_IRQ                         0
#define class_BASE                       0x50005000u
#define class_IRQ                        1
#define int_default_OFFSET               0x00u
#define int_default_register_Pos         0u
#define int_default_register_Msk         0x00000001u
#define int_default_volatile_Pos         1u
#define int_default_volatile_Msk         0x00000002u
#define int_default_R_Pos                2u
#define int_default_R_Msk                0x00000004u
#define int_default_W_Pos                3u
#define int_default_W_Msk                0x00000008u
#define int_template_OFFSET              0x04u
#define int_template_operator_Pos        0u
#define int_template_operator_Msk        0x000000FFu
#define int_DEFAULT_OFFSET               0x08u
#define int_DEFAULT_BASE_Pos             0u
#define int_DEFAULT_BASE_Msk             0xFFFFFFFFu
#define int_RESERVED0_OFFSET             0x10u
#define int_RESERVED0_INT_MAX_Pos        0u
#define int_RESERVED0_INT_MAX_Msk        0x0000FFFFu

/* Named like a part of the processor. */
#define HardFault_BASE                   0x50008000u
#define SCB_LOAD_OFFSET                  0x00u
#define SCB_LOAD_VALUE_Pos               0u
#define SCB_LOAD_VALUE_Msk               0xFFFFFFFFu

#endif
