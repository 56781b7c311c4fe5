// Memory map, slot numbers and interrupt numbers of the subsystem.  Included, never compiled on its own.
//
//   Address range               Size      Block                     Bus
//   0x00000000 - 0x1FFFFFFF     512 MB    external flash port       AHB  (behind the ITCM, which the core serves itself)
//   0x20000000 - 0x3FFFFFFF     512 MB    external SRAM port        AHB  (behind the DTCM, which the core serves itself)
//   0x40000000 - 0x40FFFFFF      16 MB    GPIO                      AHB
//   0x41000000 - 0x41FFFFFF      16 MB    CAN                       AHB
//   0x42000000 - 0x42FFFFFF      16 MB    Ethernet MAC              AHB
//   0x50000000 - 0x50FFFFFF      16 MB    internal APB peripherals  AHB to APB; 4 KB each, see below
//   0x60000000 - 0x60FFFFFF      16 MB    APB extension ports       AHB to APB; 1 MB each, port n at 0x60000000 + (n - 1) MB
//   0x68000000 - 0x69FFFFFF      32 MB    SPI-Flash                 AHB; read window, then registers
//   0x70000000 - 0x7FFFFFFF     256 MB    PSRAM                     AHB
//   0x80000000 - 0x80FFFFFF      16 MB    AHB extension port 1      AHB
//   0x81000000 - 0x81FFFFFF      16 MB    AHB extension port 2      AHB
//   0x86000000 - 0x86FFFFFF      16 MB    AHB extension port 3      AHB
//   0x89000000 - 0x89FFFFFF      16 MB    AHB extension port 4      AHB
//   0x8A000000 - 0x8AFFFFFF      16 MB    AHB extension port 5      AHB
//   0x8B000000 - 0x8BFFFFFF      16 MB    AHB extension port 6      AHB
//   0xA0000000 - 0xBFFFFFFF     512 MB    DDR3                      AHB
//   everything else                       error response
//
// A block that is not configured answers like an unmapped address.  SYS is there with any other on its bus.
//
//   Internal APB peripheral     Base          Interrupt
//   TIMER0                      0x50000000    2
//   TIMER1                      0x50001000    3
//   DTIMER                      0x50002000    5
//   UART0                       0x50004000    0
//   UART1                       0x50005000    1
//   RTC                         0x50006000    7
//   WDOG                        0x50008000    NMI
//   TRNG                        0x5000A000    16
//   I2C                         0x5000C000    6
//   SPI                         0x5000D000    8
//   SD                          0x5000E000    11
//   SYS                         0x5000F000    17
//
//   Other interrupts: GPIO 4, CAN 9, Ethernet 10, EXTINT[3:0] 15 to 12.
`ifndef ORIX_DEFINE
`define ORIX_DEFINE

// Region codes: address bits 31 to 24.
`define ORIX_REGION_GPIO     8'h40
`define ORIX_REGION_CAN      8'h41
`define ORIX_REGION_ETH      8'h42
`define ORIX_REGION_APBINT   8'h50
`define ORIX_REGION_APBEXT   8'h60
`define ORIX_REGION_AHB1     8'h80
`define ORIX_REGION_AHB2     8'h81
`define ORIX_REGION_AHB3     8'h86
`define ORIX_REGION_AHB4     8'h89
`define ORIX_REGION_AHB5     8'h8A
`define ORIX_REGION_AHB6     8'h8B
// Larger regions: the upper bits that they have in common.
`define ORIX_REGION_EXTFLASH 3'b000     // bits 31 to 29
`define ORIX_REGION_EXTSRAM  3'b001     // bits 31 to 29
`define ORIX_REGION_SPIFLASH 7'b0110100 // bits 31 to 25
`define ORIX_REGION_PSRAM    4'h7       // bits 31 to 28
`define ORIX_REGION_DDR3     3'b101     // bits 31 to 29

// Slave numbers of the AHB interconnect.
`define ORIX_S_GPIO     0
`define ORIX_S_CAN      1
`define ORIX_S_ETH      2
`define ORIX_S_SPIFLASH 3
`define ORIX_S_PSRAM    4
`define ORIX_S_DDR3     5
`define ORIX_S_APBINT   6
`define ORIX_S_APBEXT   7
`define ORIX_S_AHB1     8
`define ORIX_S_AHB2     9
`define ORIX_S_AHB3     10
`define ORIX_S_AHB4     11
`define ORIX_S_AHB5     12
`define ORIX_S_AHB6     13
`define ORIX_S_EXTFLASH 14
`define ORIX_S_EXTSRAM  15

// Slots of the internal APB bus: address bits 15 to 12.
`define ORIX_P_TIMER0 0
`define ORIX_P_TIMER1 1
`define ORIX_P_DTIMER 2
`define ORIX_P_UART0  4
`define ORIX_P_UART1  5
`define ORIX_P_RTC    6
`define ORIX_P_WDOG   8
`define ORIX_P_TRNG   10
`define ORIX_P_I2C    12
`define ORIX_P_SPI    13
`define ORIX_P_SD     14
`define ORIX_P_SYS    15

// Interrupt inputs of the processor.
`define ORIX_IRQ_UART0  0
`define ORIX_IRQ_UART1  1
`define ORIX_IRQ_TIMER0 2
`define ORIX_IRQ_TIMER1 3
`define ORIX_IRQ_GPIO   4
`define ORIX_IRQ_DTIMER 5
`define ORIX_IRQ_I2C    6
`define ORIX_IRQ_RTC    7
`define ORIX_IRQ_SPI    8
`define ORIX_IRQ_CAN    9
`define ORIX_IRQ_ETH    10
`define ORIX_IRQ_SD     11
`define ORIX_IRQ_EXTINT 12
`define ORIX_IRQ_TRNG   16
`define ORIX_IRQ_SYS    17

// What the stand-ins of licensed blocks answer: the first word (of every 16 MB) reads as "NONE" in ASCII, and all other
// accesses get an error response; here the logic of those with an AHB-Lite port.
`define ORIX_ABSENT 32'h4E4F4E45
`define ORIX_AHB_ABSENT                                                                           \
    reg absent_first;                                                                             \
    reg absent_second;                                                                            \
    reg absent_word;                                                                              \
    wire absent_access = HREADY & HSEL & HTRANS[1];                                               \
    wire absent_known  = ~HWRITE & (HADDR[23:2] == 22'd0);                                        \
    always @(posedge HCLK or negedge HRESETn)                                                     \
        if (!HRESETn) begin                                                                       \
            absent_first  <= 1'b0;                                                                \
            absent_second <= 1'b0;                                                                \
            absent_word   <= 1'b0;                                                                \
        end else begin                                                                            \
            absent_first  <= absent_access & ~absent_known;                                       \
            absent_second <= absent_first;                                                        \
            absent_word   <= absent_access & absent_known;                                        \
        end                                                                                       \
    assign HRDATA    = absent_word ? `ORIX_ABSENT : 32'd0;                                        \
    assign HREADYOUT = ~absent_first;                                                             \
    assign HRESP     = absent_first | absent_second;

// Wait states of a bus transfer that end it with an error response, after a reset and without SYS; 0 for no limit.
`define ORIX_BUS_TIMEOUT 18'h3FFFF

`endif
