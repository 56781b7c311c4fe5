/* Registers of Tarvo_ORIX_M1. Offsets are in bytes from an instance's base address. */
#ifndef TARVO_ORIX_M1_REGISTERS_H
#define TARVO_ORIX_M1_REGISTERS_H

/* Sixteen pins, no wait states. The interrupt is the OR of INTPEND & INTEN. */
#define GPIO_BASE                        0x40000000u
#define GPIO_IRQ                         4
#define GPIO_DATA_OFFSET                 0x00u
#define GPIO_DATA_PINS_Pos               0u
#define GPIO_DATA_PINS_Msk               0x0000FFFFu
#define GPIO_OUT_OFFSET                  0x04u
#define GPIO_OUT_VALUE_Pos               0u
#define GPIO_OUT_VALUE_Msk               0x0000FFFFu
#define GPIO_OUTEN_OFFSET                0x08u
#define GPIO_OUTEN_ENABLE_Pos            0u
#define GPIO_OUTEN_ENABLE_Msk            0x0000FFFFu
#define GPIO_OUTSET_OFFSET               0x0Cu
#define GPIO_OUTSET_SET_Pos              0u
#define GPIO_OUTSET_SET_Msk              0x0000FFFFu
#define GPIO_OUTCLR_OFFSET               0x10u
#define GPIO_OUTCLR_CLEAR_Pos            0u
#define GPIO_OUTCLR_CLEAR_Msk            0x0000FFFFu
#define GPIO_INTEN_OFFSET                0x14u
#define GPIO_INTEN_ENABLE_Pos            0u
#define GPIO_INTEN_ENABLE_Msk            0x0000FFFFu
#define GPIO_INTEDGE_OFFSET              0x18u
#define GPIO_INTEDGE_EDGE_Pos            0u
#define GPIO_INTEDGE_EDGE_Msk            0x0000FFFFu
#define GPIO_INTPOL_OFFSET               0x1Cu
#define GPIO_INTPOL_POLARITY_Pos         0u
#define GPIO_INTPOL_POLARITY_Msk         0x0000FFFFu
#define GPIO_INTPEND_OFFSET              0x20u
#define GPIO_INTPEND_PENDING_Pos         0u
#define GPIO_INTPEND_PENDING_Msk         0x0000FFFFu

/* 24-bit down counter that reloads after 0. The external input is synchronised to PCLK. */
#define TIMER1_BASE                      0x50001000u
#define TIMER1_IRQ                       3
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

/* Eight data bits, no parity, one stop bit; one byte of buffer in each direction beside the shift registers. */
#define UART0_BASE                       0x50004000u
#define UART0_IRQ                        0
#define UART_DATA_OFFSET                 0x00u
#define UART_DATA_BYTE_Pos               0u
#define UART_DATA_BYTE_Msk               0x000000FFu
#define UART_STATUS_OFFSET               0x04u
#define UART_STATUS_TXFULL_Pos           0u
#define UART_STATUS_TXFULL_Msk           0x00000001u
#define UART_STATUS_RXFULL_Pos           1u
#define UART_STATUS_RXFULL_Msk           0x00000002u
#define UART_STATUS_TXBUSY_Pos           2u
#define UART_STATUS_TXBUSY_Msk           0x00000004u
#define UART_STATUS_RXOVER_Pos           3u
#define UART_STATUS_RXOVER_Msk           0x00000008u
#define UART_STATUS_FRAME_Pos            4u
#define UART_STATUS_FRAME_Msk            0x00000010u
#define UART_STATUS_TXOVER_Pos           5u
#define UART_STATUS_TXOVER_Msk           0x00000020u
#define UART_CTRL_OFFSET                 0x08u
#define UART_CTRL_TXEN_Pos               0u
#define UART_CTRL_TXEN_Msk               0x00000001u
#define UART_CTRL_RXEN_Pos               1u
#define UART_CTRL_RXEN_Msk               0x00000002u
#define UART_CTRL_TXIE_Pos               2u
#define UART_CTRL_TXIE_Msk               0x00000004u
#define UART_CTRL_RXIE_Pos               3u
#define UART_CTRL_RXIE_Msk               0x00000008u
#define UART_CTRL_ERRIE_Pos              4u
#define UART_CTRL_ERRIE_Msk              0x00000010u
#define UART_BAUDDIV_OFFSET              0x0Cu
#define UART_BAUDDIV_CYCLES_Pos          0u
#define UART_BAUDDIV_CYCLES_Msk          0x000FFFFFu

/* 32-bit down counter. Reaching 0 the first time raises the non-maskable interrupt and starts the count again; reaching 0 with the interrupt still pending requests a system reset, if that is allowed. */
#define WDOG_BASE                        0x50008000u
#define WDOG_LOAD_OFFSET                 0x00u
#define WDOG_LOAD_CYCLES_Pos             0u
#define WDOG_LOAD_CYCLES_Msk             0xFFFFFFFFu
#define WDOG_COUNT_OFFSET                0x04u
#define WDOG_COUNT_CYCLES_Pos            0u
#define WDOG_COUNT_CYCLES_Msk            0xFFFFFFFFu
#define WDOG_CTRL_OFFSET                 0x08u
#define WDOG_CTRL_EN_Pos                 0u
#define WDOG_CTRL_EN_Msk                 0x00000001u
#define WDOG_CTRL_RSTEN_Pos              1u
#define WDOG_CTRL_RSTEN_Msk              0x00000002u
#define WDOG_KICK_OFFSET                 0x0Cu
#define WDOG_KICK_KEY_Pos                0u
#define WDOG_KICK_KEY_Msk                0xFFFFFFFFu
#define WDOG_STATUS_OFFSET               0x10u
#define WDOG_STATUS_PENDING_Pos          0u
#define WDOG_STATUS_PENDING_Msk          0x00000001u
#define WDOG_LOCK_OFFSET                 0x14u
#define WDOG_LOCK_LOCKED_Pos             0u
#define WDOG_LOCK_LOCKED_Msk             0x00000001u

/* SPI master, one byte at a time, one slave select. */
#define SPI_BASE                         0x5000D000u
#define SPI_IRQ                          8
#define SPI_DATA_OFFSET                  0x00u
#define SPI_DATA_BYTE_Pos                0u
#define SPI_DATA_BYTE_Msk                0x000000FFu
#define SPI_STATUS_OFFSET                0x04u
#define SPI_STATUS_BUSY_Pos              0u
#define SPI_STATUS_BUSY_Msk              0x00000001u
#define SPI_STATUS_DONE_Pos              1u
#define SPI_STATUS_DONE_Msk              0x00000002u
#define SPI_STATUS_LOST_Pos              2u
#define SPI_STATUS_LOST_Msk              0x00000004u
#define SPI_CTRL_OFFSET                  0x08u
#define SPI_CTRL_CPOL_Pos                0u
#define SPI_CTRL_CPOL_Msk                0x00000001u
#define SPI_CTRL_CPHA_Pos                1u
#define SPI_CTRL_CPHA_Msk                0x00000002u
#define SPI_CTRL_LSBFIRST_Pos            2u
#define SPI_CTRL_LSBFIRST_Msk            0x00000004u
#define SPI_CTRL_IE_Pos                  3u
#define SPI_CTRL_IE_Msk                  0x00000008u
#define SPI_DIV_OFFSET                   0x0Cu
#define SPI_DIV_CYCLES_Pos               0u
#define SPI_DIV_CYCLES_Msk               0x0000FFFFu
#define SPI_SELECT_OFFSET                0x10u
#define SPI_SELECT_SS_Pos                0u
#define SPI_SELECT_SS_Msk                0x00000001u

#endif
