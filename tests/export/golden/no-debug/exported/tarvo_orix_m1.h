/* Registers of Tarvo_ORIX_M1. Offsets are in bytes from an instance's base address. */
#ifndef TARVO_ORIX_M1_REGISTERS_H
#define TARVO_ORIX_M1_REGISTERS_H

/* Eight data bits, no parity, one stop bit; one byte of buffer in each direction beside the shift registers. */
#define UART1_BASE                       0x50005000u
#define UART1_IRQ                        1
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

#endif
