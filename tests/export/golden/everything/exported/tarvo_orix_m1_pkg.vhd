-- Tarvo_ORIX_M1_Top as a component, VHDL-93: "use work.tarvo_orix_m1_pkg.all;" in a design, and an instance binds to the
-- entity of that name, which the netlist or the simulation model brings, or stays open until there is one.
library ieee;
use ieee.std_logic_1164.all;

package tarvo_orix_m1_pkg is
    component Tarvo_ORIX_M1_Top
        port (
            HCLK                : in    std_logic; -- clocks processor, buses and blocks
            hwRstn              : in    std_logic; -- resets everything, debug included, active low
            LOCKUP              : out   std_logic; -- the processor has stopped after a second fault
            HALTED              : out   std_logic; -- the debugger has stopped the processor
            JTAG_7              : inout std_logic; -- TMS or SWDIO
            JTAG_9              : inout std_logic; -- TCK or SWCLK, clocks the debug port
            JTAG_3              : inout std_logic; -- nTRST, resets the debug port, active low, to be pulled up
            JTAG_4              : inout std_logic; -- driven low
            JTAG_5              : inout std_logic; -- TDI
            JTAG_6              : inout std_logic; -- driven low
            JTAG_8              : inout std_logic; -- driven low
            JTAG_10             : inout std_logic; -- driven low
            JTAG_11             : inout std_logic; -- driven low
            JTAG_12             : inout std_logic; -- driven low
            JTAG_13             : inout std_logic; -- TDO
            JTAG_14             : inout std_logic; -- driven low
            JTAG_15             : inout std_logic; -- nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
            JTAG_16             : inout std_logic; -- driven low
            JTAG_17             : inout std_logic; -- not connected
            JTAG_18             : inout std_logic; -- driven low
            EXTINT              : in    std_logic_vector(3 downto 0); -- interrupts 12 (bit 0) to 15 (bit 3), requested while high
            GPIO                : inout std_logic_vector(15 downto 0); -- pins
            CAN_RX              : in    std_logic; -- from the transceiver
            CAN_TX              : out   std_logic; -- to the transceiver
            MDC                 : out   std_logic; -- management clock of the PHY
            MDIO                : inout std_logic; -- management data of the PHY, to be pulled up
            RGMII_TXC           : out   std_logic; -- transmit clock
            RGMII_TX_CTL        : out   std_logic; -- transmit control
            RGMII_TXD           : out   std_logic_vector(3 downto 0); -- transmit data
            RGMII_RXC           : in    std_logic; -- receive clock of the PHY
            RGMII_RX_CTL        : in    std_logic; -- receive control
            RGMII_RXD           : in    std_logic_vector(3 downto 0); -- receive data
            GTX_CLK             : in    std_logic; -- transmit clock of the MAC, 125 MHz
            FLASH_SPI_HOLDN     : inout std_logic; -- hold of the flash, always released, active low
            FLASH_SPI_CSN       : inout std_logic; -- chip select of the flash, active low
            FLASH_SPI_MISO      : inout std_logic; -- data from the flash
            FLASH_SPI_MOSI      : inout std_logic; -- data to the flash
            FLASH_SPI_WPN       : inout std_logic; -- write protection of the flash, active low
            FLASH_SPI_CLK       : inout std_logic; -- clock of the flash
            DDR_STOP_O          : out   std_logic; -- asks to stop DDR_MEM_CLK_I while its phase changes
            DDR_CLK_I           : in    std_logic; -- reference clock of the DDR3 controller
            DDR_MEM_CLK_I       : in    std_logic; -- clock of the DDR3 interface
            DDR_LOCK_I          : in    std_logic; -- DDR_MEM_CLK_I is stable
            DDR_RSTN_I          : in    std_logic; -- resets the DDR3 controller, active low
            DDR_INIT_COMPLETE_O : out   std_logic; -- the DDR3 memory is ready
            DDR_ADDR_O          : out   std_logic_vector(15 downto 0); -- address of the memory
            DDR_BA_O            : out   std_logic_vector(2 downto 0); -- bank of the memory
            DDR_CS_N_O          : out   std_logic; -- chip select of the memory, active low
            DDR_RAS_N_O         : out   std_logic; -- row address strobe, active low
            DDR_CAS_N_O         : out   std_logic; -- column address strobe, active low
            DDR_WE_N_O          : out   std_logic; -- write enable, active low
            DDR_CLK_O           : out   std_logic; -- clock of the memory
            DDR_CLK_N_O         : out   std_logic; -- the same, inverted
            DDR_CKE_O           : out   std_logic; -- clock enable
            DDR_ODT_O           : out   std_logic; -- termination
            DDR_RESET_N_O       : out   std_logic; -- resets the memory, active low
            DDR_DQM_O           : out   std_logic_vector(1 downto 0); -- masks of the data
            DDR_DQ_IO           : inout std_logic_vector(15 downto 0); -- data of the memory
            DDR_DQS_IO          : inout std_logic_vector(1 downto 0); -- strobes of the data
            DDR_DQS_N_IO        : inout std_logic_vector(1 downto 0); -- the same, inverted
            AHB1HRDATA          : in    std_logic_vector(31 downto 0); -- data read, of AHB1
            AHB1HREADYOUT       : in    std_logic; -- the slave has finished, of AHB1
            AHB1HRESP           : in    std_logic_vector(1 downto 0); -- response; any value but 0 is an error, of AHB1
            AHB1HTRANS          : out   std_logic_vector(1 downto 0); -- kind of the transfer, of AHB1
            AHB1HBURST          : out   std_logic_vector(2 downto 0); -- kind of the burst, of AHB1
            AHB1HPROT           : out   std_logic_vector(3 downto 0); -- protection of the transfer, of AHB1
            AHB1HSIZE           : out   std_logic_vector(2 downto 0); -- size of the transfer, of AHB1
            AHB1HWRITE          : out   std_logic; -- 1 writes, of AHB1
            AHB1HREADYMUX       : out   std_logic; -- the transfer before has finished, of AHB1
            AHB1HMASTER         : out   std_logic_vector(3 downto 0); -- number of the master, of AHB1
            AHB1HMASTLOCK       : out   std_logic; -- the transfer is locked, of AHB1
            AHB1HADDR           : out   std_logic_vector(31 downto 0); -- address, of AHB1
            AHB1HWDATA          : out   std_logic_vector(31 downto 0); -- data written, of AHB1
            AHB1HSEL            : out   std_logic; -- the address is one of the port, of AHB1
            AHB1HCLK            : out   std_logic; -- clock of the port, of AHB1
            AHB1HRESET          : out   std_logic; -- reset of the port, of AHB1, active low
            AHB2HRDATA          : in    std_logic_vector(31 downto 0); -- data read, of AHB2
            AHB2HREADYOUT       : in    std_logic; -- the slave has finished, of AHB2
            AHB2HRESP           : in    std_logic_vector(1 downto 0); -- response; any value but 0 is an error, of AHB2
            AHB2HTRANS          : out   std_logic_vector(1 downto 0); -- kind of the transfer, of AHB2
            AHB2HBURST          : out   std_logic_vector(2 downto 0); -- kind of the burst, of AHB2
            AHB2HPROT           : out   std_logic_vector(3 downto 0); -- protection of the transfer, of AHB2
            AHB2HSIZE           : out   std_logic_vector(2 downto 0); -- size of the transfer, of AHB2
            AHB2HWRITE          : out   std_logic; -- 1 writes, of AHB2
            AHB2HREADYMUX       : out   std_logic; -- the transfer before has finished, of AHB2
            AHB2HMASTER         : out   std_logic_vector(3 downto 0); -- number of the master, of AHB2
            AHB2HMASTLOCK       : out   std_logic; -- the transfer is locked, of AHB2
            AHB2HADDR           : out   std_logic_vector(31 downto 0); -- address, of AHB2
            AHB2HWDATA          : out   std_logic_vector(31 downto 0); -- data written, of AHB2
            AHB2HSEL            : out   std_logic; -- the address is one of the port, of AHB2
            AHB2HCLK            : out   std_logic; -- clock of the port, of AHB2
            AHB2HRESET          : out   std_logic; -- reset of the port, of AHB2, active low
            AHB3HRDATA          : in    std_logic_vector(31 downto 0); -- data read, of AHB3
            AHB3HREADYOUT       : in    std_logic; -- the slave has finished, of AHB3
            AHB3HRESP           : in    std_logic_vector(1 downto 0); -- response; any value but 0 is an error, of AHB3
            AHB3HTRANS          : out   std_logic_vector(1 downto 0); -- kind of the transfer, of AHB3
            AHB3HBURST          : out   std_logic_vector(2 downto 0); -- kind of the burst, of AHB3
            AHB3HPROT           : out   std_logic_vector(3 downto 0); -- protection of the transfer, of AHB3
            AHB3HSIZE           : out   std_logic_vector(2 downto 0); -- size of the transfer, of AHB3
            AHB3HWRITE          : out   std_logic; -- 1 writes, of AHB3
            AHB3HREADYMUX       : out   std_logic; -- the transfer before has finished, of AHB3
            AHB3HMASTER         : out   std_logic_vector(3 downto 0); -- number of the master, of AHB3
            AHB3HMASTLOCK       : out   std_logic; -- the transfer is locked, of AHB3
            AHB3HADDR           : out   std_logic_vector(31 downto 0); -- address, of AHB3
            AHB3HWDATA          : out   std_logic_vector(31 downto 0); -- data written, of AHB3
            AHB3HSEL            : out   std_logic; -- the address is one of the port, of AHB3
            AHB3HCLK            : out   std_logic; -- clock of the port, of AHB3
            AHB3HRESET          : out   std_logic; -- reset of the port, of AHB3, active low
            AHB4HRDATA          : in    std_logic_vector(31 downto 0); -- data read, of AHB4
            AHB4HREADYOUT       : in    std_logic; -- the slave has finished, of AHB4
            AHB4HRESP           : in    std_logic_vector(1 downto 0); -- response; any value but 0 is an error, of AHB4
            AHB4HTRANS          : out   std_logic_vector(1 downto 0); -- kind of the transfer, of AHB4
            AHB4HBURST          : out   std_logic_vector(2 downto 0); -- kind of the burst, of AHB4
            AHB4HPROT           : out   std_logic_vector(3 downto 0); -- protection of the transfer, of AHB4
            AHB4HSIZE           : out   std_logic_vector(2 downto 0); -- size of the transfer, of AHB4
            AHB4HWRITE          : out   std_logic; -- 1 writes, of AHB4
            AHB4HREADYMUX       : out   std_logic; -- the transfer before has finished, of AHB4
            AHB4HMASTER         : out   std_logic_vector(3 downto 0); -- number of the master, of AHB4
            AHB4HMASTLOCK       : out   std_logic; -- the transfer is locked, of AHB4
            AHB4HADDR           : out   std_logic_vector(31 downto 0); -- address, of AHB4
            AHB4HWDATA          : out   std_logic_vector(31 downto 0); -- data written, of AHB4
            AHB4HSEL            : out   std_logic; -- the address is one of the port, of AHB4
            AHB4HCLK            : out   std_logic; -- clock of the port, of AHB4
            AHB4HRESET          : out   std_logic; -- reset of the port, of AHB4, active low
            AHB5HRDATA          : in    std_logic_vector(31 downto 0); -- data read, of AHB5
            AHB5HREADYOUT       : in    std_logic; -- the slave has finished, of AHB5
            AHB5HRESP           : in    std_logic_vector(1 downto 0); -- response; any value but 0 is an error, of AHB5
            AHB5HTRANS          : out   std_logic_vector(1 downto 0); -- kind of the transfer, of AHB5
            AHB5HBURST          : out   std_logic_vector(2 downto 0); -- kind of the burst, of AHB5
            AHB5HPROT           : out   std_logic_vector(3 downto 0); -- protection of the transfer, of AHB5
            AHB5HSIZE           : out   std_logic_vector(2 downto 0); -- size of the transfer, of AHB5
            AHB5HWRITE          : out   std_logic; -- 1 writes, of AHB5
            AHB5HREADYMUX       : out   std_logic; -- the transfer before has finished, of AHB5
            AHB5HMASTER         : out   std_logic_vector(3 downto 0); -- number of the master, of AHB5
            AHB5HMASTLOCK       : out   std_logic; -- the transfer is locked, of AHB5
            AHB5HADDR           : out   std_logic_vector(31 downto 0); -- address, of AHB5
            AHB5HWDATA          : out   std_logic_vector(31 downto 0); -- data written, of AHB5
            AHB5HSEL            : out   std_logic; -- the address is one of the port, of AHB5
            AHB5HCLK            : out   std_logic; -- clock of the port, of AHB5
            AHB5HRESET          : out   std_logic; -- reset of the port, of AHB5, active low
            AHB6HRDATA          : in    std_logic_vector(31 downto 0); -- data read, of AHB6
            AHB6HREADYOUT       : in    std_logic; -- the slave has finished, of AHB6
            AHB6HRESP           : in    std_logic_vector(1 downto 0); -- response; any value but 0 is an error, of AHB6
            AHB6HTRANS          : out   std_logic_vector(1 downto 0); -- kind of the transfer, of AHB6
            AHB6HBURST          : out   std_logic_vector(2 downto 0); -- kind of the burst, of AHB6
            AHB6HPROT           : out   std_logic_vector(3 downto 0); -- protection of the transfer, of AHB6
            AHB6HSIZE           : out   std_logic_vector(2 downto 0); -- size of the transfer, of AHB6
            AHB6HWRITE          : out   std_logic; -- 1 writes, of AHB6
            AHB6HREADYMUX       : out   std_logic; -- the transfer before has finished, of AHB6
            AHB6HMASTER         : out   std_logic_vector(3 downto 0); -- number of the master, of AHB6
            AHB6HMASTLOCK       : out   std_logic; -- the transfer is locked, of AHB6
            AHB6HADDR           : out   std_logic_vector(31 downto 0); -- address, of AHB6
            AHB6HWDATA          : out   std_logic_vector(31 downto 0); -- data written, of AHB6
            AHB6HSEL            : out   std_logic; -- the address is one of the port, of AHB6
            AHB6HCLK            : out   std_logic; -- clock of the port, of AHB6
            AHB6HRESET          : out   std_logic; -- reset of the port, of AHB6, active low
            UART0RXD            : in    std_logic; -- serial data to receive
            UART0TXD            : out   std_logic; -- serial data sent
            UART1RXD            : in    std_logic; -- serial data to receive
            UART1TXD            : out   std_logic; -- serial data sent
            TIMER0EXTIN         : in    std_logic; -- gate or events of the timer
            TIMER1EXTIN         : in    std_logic; -- gate or events of the timer
            RTCSRCCLK           : in    std_logic; -- source clock of the seconds, sampled with HCLK and slower than HCLK / 4
            SCL                 : inout std_logic; -- clock of the bus, to be pulled up
            SDA                 : inout std_logic; -- data of the bus, to be pulled up
            MOSI                : out   std_logic; -- data to the slave
            MISO                : in    std_logic; -- data from the slave
            SCLK                : out   std_logic; -- clock of the slave
            NSS                 : out   std_logic; -- slave select, active low
            SD_CLK              : out   std_logic; -- clock of the card
            SD_SPICLK           : in    std_logic; -- source clock of SD_CLK, sampled with HCLK and slower than HCLK / 4
            SD_CS               : out   std_logic; -- chip select of the card, active low
            SD_DATAIN           : in    std_logic; -- data from the card
            SD_DATAOUT          : out   std_logic; -- data to the card
            SD_CARD_INIT        : out   std_logic; -- software has initialised the card
            SD_CHECKIN          : in    std_logic; -- switch of the card's socket, low with a card, active low
            SD_CHECKOUT         : out   std_logic; -- a card is present
            APB1PADDR           : out   std_logic_vector(31 downto 0); -- address, of APB1
            APB1PENABLE         : out   std_logic; -- second and further cycles of the transfer, of APB1
            APB1PWRITE          : out   std_logic; -- 1 writes, of APB1
            APB1PSTRB           : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB1
            APB1PPROT           : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB1
            APB1PWDATA          : out   std_logic_vector(31 downto 0); -- data written, of APB1
            APB1PSEL            : out   std_logic; -- the address is one of the port, of APB1
            APB1PRDATA          : in    std_logic_vector(31 downto 0); -- data read, of APB1
            APB1PREDADY         : in    std_logic; -- the slave has finished, of APB1
            APB1PSLVERR         : in    std_logic; -- the transfer has failed, of APB1
            APB1PCLK            : out   std_logic; -- clock of the port, of APB1
            APB1PRESET          : out   std_logic; -- reset of the port, of APB1, active low
            APB2PADDR           : out   std_logic_vector(31 downto 0); -- address, of APB2
            APB2PENABLE         : out   std_logic; -- second and further cycles of the transfer, of APB2
            APB2PWRITE          : out   std_logic; -- 1 writes, of APB2
            APB2PSTRB           : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB2
            APB2PPROT           : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB2
            APB2PWDATA          : out   std_logic_vector(31 downto 0); -- data written, of APB2
            APB2PSEL            : out   std_logic; -- the address is one of the port, of APB2
            APB2PRDATA          : in    std_logic_vector(31 downto 0); -- data read, of APB2
            APB2PREDADY         : in    std_logic; -- the slave has finished, of APB2
            APB2PSLVERR         : in    std_logic; -- the transfer has failed, of APB2
            APB2PCLK            : out   std_logic; -- clock of the port, of APB2
            APB2PRESET          : out   std_logic; -- reset of the port, of APB2, active low
            APB3PADDR           : out   std_logic_vector(31 downto 0); -- address, of APB3
            APB3PENABLE         : out   std_logic; -- second and further cycles of the transfer, of APB3
            APB3PWRITE          : out   std_logic; -- 1 writes, of APB3
            APB3PSTRB           : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB3
            APB3PPROT           : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB3
            APB3PWDATA          : out   std_logic_vector(31 downto 0); -- data written, of APB3
            APB3PSEL            : out   std_logic; -- the address is one of the port, of APB3
            APB3PRDATA          : in    std_logic_vector(31 downto 0); -- data read, of APB3
            APB3PREDADY         : in    std_logic; -- the slave has finished, of APB3
            APB3PSLVERR         : in    std_logic; -- the transfer has failed, of APB3
            APB3PCLK            : out   std_logic; -- clock of the port, of APB3
            APB3PRESET          : out   std_logic; -- reset of the port, of APB3, active low
            APB4PADDR           : out   std_logic_vector(31 downto 0); -- address, of APB4
            APB4PENABLE         : out   std_logic; -- second and further cycles of the transfer, of APB4
            APB4PWRITE          : out   std_logic; -- 1 writes, of APB4
            APB4PSTRB           : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB4
            APB4PPROT           : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB4
            APB4PWDATA          : out   std_logic_vector(31 downto 0); -- data written, of APB4
            APB4PSEL            : out   std_logic; -- the address is one of the port, of APB4
            APB4PRDATA          : in    std_logic_vector(31 downto 0); -- data read, of APB4
            APB4PREDADY         : in    std_logic; -- the slave has finished, of APB4
            APB4PSLVERR         : in    std_logic; -- the transfer has failed, of APB4
            APB4PCLK            : out   std_logic; -- clock of the port, of APB4
            APB4PRESET          : out   std_logic; -- reset of the port, of APB4, active low
            APB5PADDR           : out   std_logic_vector(31 downto 0); -- address, of APB5
            APB5PENABLE         : out   std_logic; -- second and further cycles of the transfer, of APB5
            APB5PWRITE          : out   std_logic; -- 1 writes, of APB5
            APB5PSTRB           : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB5
            APB5PPROT           : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB5
            APB5PWDATA          : out   std_logic_vector(31 downto 0); -- data written, of APB5
            APB5PSEL            : out   std_logic; -- the address is one of the port, of APB5
            APB5PRDATA          : in    std_logic_vector(31 downto 0); -- data read, of APB5
            APB5PREDADY         : in    std_logic; -- the slave has finished, of APB5
            APB5PSLVERR         : in    std_logic; -- the transfer has failed, of APB5
            APB5PCLK            : out   std_logic; -- clock of the port, of APB5
            APB5PRESET          : out   std_logic; -- reset of the port, of APB5, active low
            APB6PADDR           : out   std_logic_vector(31 downto 0); -- address, of APB6
            APB6PENABLE         : out   std_logic; -- second and further cycles of the transfer, of APB6
            APB6PWRITE          : out   std_logic; -- 1 writes, of APB6
            APB6PSTRB           : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB6
            APB6PPROT           : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB6
            APB6PWDATA          : out   std_logic_vector(31 downto 0); -- data written, of APB6
            APB6PSEL            : out   std_logic; -- the address is one of the port, of APB6
            APB6PRDATA          : in    std_logic_vector(31 downto 0); -- data read, of APB6
            APB6PREDADY         : in    std_logic; -- the slave has finished, of APB6
            APB6PSLVERR         : in    std_logic; -- the transfer has failed, of APB6
            APB6PCLK            : out   std_logic; -- clock of the port, of APB6
            APB6PRESET          : out   std_logic; -- reset of the port, of APB6, active low
            APB7PADDR           : out   std_logic_vector(31 downto 0); -- address, of APB7
            APB7PENABLE         : out   std_logic; -- second and further cycles of the transfer, of APB7
            APB7PWRITE          : out   std_logic; -- 1 writes, of APB7
            APB7PSTRB           : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB7
            APB7PPROT           : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB7
            APB7PWDATA          : out   std_logic_vector(31 downto 0); -- data written, of APB7
            APB7PSEL            : out   std_logic; -- the address is one of the port, of APB7
            APB7PRDATA          : in    std_logic_vector(31 downto 0); -- data read, of APB7
            APB7PREDADY         : in    std_logic; -- the slave has finished, of APB7
            APB7PSLVERR         : in    std_logic; -- the transfer has failed, of APB7
            APB7PCLK            : out   std_logic; -- clock of the port, of APB7
            APB7PRESET          : out   std_logic; -- reset of the port, of APB7, active low
            APB8PADDR           : out   std_logic_vector(31 downto 0); -- address, of APB8
            APB8PENABLE         : out   std_logic; -- second and further cycles of the transfer, of APB8
            APB8PWRITE          : out   std_logic; -- 1 writes, of APB8
            APB8PSTRB           : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB8
            APB8PPROT           : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB8
            APB8PWDATA          : out   std_logic_vector(31 downto 0); -- data written, of APB8
            APB8PSEL            : out   std_logic; -- the address is one of the port, of APB8
            APB8PRDATA          : in    std_logic_vector(31 downto 0); -- data read, of APB8
            APB8PREDADY         : in    std_logic; -- the slave has finished, of APB8
            APB8PSLVERR         : in    std_logic; -- the transfer has failed, of APB8
            APB8PCLK            : out   std_logic; -- clock of the port, of APB8
            APB8PRESET          : out   std_logic; -- reset of the port, of APB8, active low
            APB9PADDR           : out   std_logic_vector(31 downto 0); -- address, of APB9
            APB9PENABLE         : out   std_logic; -- second and further cycles of the transfer, of APB9
            APB9PWRITE          : out   std_logic; -- 1 writes, of APB9
            APB9PSTRB           : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB9
            APB9PPROT           : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB9
            APB9PWDATA          : out   std_logic_vector(31 downto 0); -- data written, of APB9
            APB9PSEL            : out   std_logic; -- the address is one of the port, of APB9
            APB9PRDATA          : in    std_logic_vector(31 downto 0); -- data read, of APB9
            APB9PREDADY         : in    std_logic; -- the slave has finished, of APB9
            APB9PSLVERR         : in    std_logic; -- the transfer has failed, of APB9
            APB9PCLK            : out   std_logic; -- clock of the port, of APB9
            APB9PRESET          : out   std_logic; -- reset of the port, of APB9, active low
            APB10PADDR          : out   std_logic_vector(31 downto 0); -- address, of APB10
            APB10PENABLE        : out   std_logic; -- second and further cycles of the transfer, of APB10
            APB10PWRITE         : out   std_logic; -- 1 writes, of APB10
            APB10PSTRB          : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB10
            APB10PPROT          : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB10
            APB10PWDATA         : out   std_logic_vector(31 downto 0); -- data written, of APB10
            APB10PSEL           : out   std_logic; -- the address is one of the port, of APB10
            APB10PRDATA         : in    std_logic_vector(31 downto 0); -- data read, of APB10
            APB10PREDADY        : in    std_logic; -- the slave has finished, of APB10
            APB10PSLVERR        : in    std_logic; -- the transfer has failed, of APB10
            APB10PCLK           : out   std_logic; -- clock of the port, of APB10
            APB10PRESET         : out   std_logic; -- reset of the port, of APB10, active low
            APB11PADDR          : out   std_logic_vector(31 downto 0); -- address, of APB11
            APB11PENABLE        : out   std_logic; -- second and further cycles of the transfer, of APB11
            APB11PWRITE         : out   std_logic; -- 1 writes, of APB11
            APB11PSTRB          : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB11
            APB11PPROT          : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB11
            APB11PWDATA         : out   std_logic_vector(31 downto 0); -- data written, of APB11
            APB11PSEL           : out   std_logic; -- the address is one of the port, of APB11
            APB11PRDATA         : in    std_logic_vector(31 downto 0); -- data read, of APB11
            APB11PREDADY        : in    std_logic; -- the slave has finished, of APB11
            APB11PSLVERR        : in    std_logic; -- the transfer has failed, of APB11
            APB11PCLK           : out   std_logic; -- clock of the port, of APB11
            APB11PRESET         : out   std_logic; -- reset of the port, of APB11, active low
            APB12PADDR          : out   std_logic_vector(31 downto 0); -- address, of APB12
            APB12PENABLE        : out   std_logic; -- second and further cycles of the transfer, of APB12
            APB12PWRITE         : out   std_logic; -- 1 writes, of APB12
            APB12PSTRB          : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB12
            APB12PPROT          : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB12
            APB12PWDATA         : out   std_logic_vector(31 downto 0); -- data written, of APB12
            APB12PSEL           : out   std_logic; -- the address is one of the port, of APB12
            APB12PRDATA         : in    std_logic_vector(31 downto 0); -- data read, of APB12
            APB12PREDADY        : in    std_logic; -- the slave has finished, of APB12
            APB12PSLVERR        : in    std_logic; -- the transfer has failed, of APB12
            APB12PCLK           : out   std_logic; -- clock of the port, of APB12
            APB12PRESET         : out   std_logic; -- reset of the port, of APB12, active low
            APB13PADDR          : out   std_logic_vector(31 downto 0); -- address, of APB13
            APB13PENABLE        : out   std_logic; -- second and further cycles of the transfer, of APB13
            APB13PWRITE         : out   std_logic; -- 1 writes, of APB13
            APB13PSTRB          : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB13
            APB13PPROT          : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB13
            APB13PWDATA         : out   std_logic_vector(31 downto 0); -- data written, of APB13
            APB13PSEL           : out   std_logic; -- the address is one of the port, of APB13
            APB13PRDATA         : in    std_logic_vector(31 downto 0); -- data read, of APB13
            APB13PREDADY        : in    std_logic; -- the slave has finished, of APB13
            APB13PSLVERR        : in    std_logic; -- the transfer has failed, of APB13
            APB13PCLK           : out   std_logic; -- clock of the port, of APB13
            APB13PRESET         : out   std_logic; -- reset of the port, of APB13, active low
            APB14PADDR          : out   std_logic_vector(31 downto 0); -- address, of APB14
            APB14PENABLE        : out   std_logic; -- second and further cycles of the transfer, of APB14
            APB14PWRITE         : out   std_logic; -- 1 writes, of APB14
            APB14PSTRB          : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB14
            APB14PPROT          : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB14
            APB14PWDATA         : out   std_logic_vector(31 downto 0); -- data written, of APB14
            APB14PSEL           : out   std_logic; -- the address is one of the port, of APB14
            APB14PRDATA         : in    std_logic_vector(31 downto 0); -- data read, of APB14
            APB14PREDADY        : in    std_logic; -- the slave has finished, of APB14
            APB14PSLVERR        : in    std_logic; -- the transfer has failed, of APB14
            APB14PCLK           : out   std_logic; -- clock of the port, of APB14
            APB14PRESET         : out   std_logic; -- reset of the port, of APB14, active low
            APB15PADDR          : out   std_logic_vector(31 downto 0); -- address, of APB15
            APB15PENABLE        : out   std_logic; -- second and further cycles of the transfer, of APB15
            APB15PWRITE         : out   std_logic; -- 1 writes, of APB15
            APB15PSTRB          : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB15
            APB15PPROT          : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB15
            APB15PWDATA         : out   std_logic_vector(31 downto 0); -- data written, of APB15
            APB15PSEL           : out   std_logic; -- the address is one of the port, of APB15
            APB15PRDATA         : in    std_logic_vector(31 downto 0); -- data read, of APB15
            APB15PREDADY        : in    std_logic; -- the slave has finished, of APB15
            APB15PSLVERR        : in    std_logic; -- the transfer has failed, of APB15
            APB15PCLK           : out   std_logic; -- clock of the port, of APB15
            APB15PRESET         : out   std_logic; -- reset of the port, of APB15, active low
            APB16PADDR          : out   std_logic_vector(31 downto 0); -- address, of APB16
            APB16PENABLE        : out   std_logic; -- second and further cycles of the transfer, of APB16
            APB16PWRITE         : out   std_logic; -- 1 writes, of APB16
            APB16PSTRB          : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB16
            APB16PPROT          : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB16
            APB16PWDATA         : out   std_logic_vector(31 downto 0); -- data written, of APB16
            APB16PSEL           : out   std_logic; -- the address is one of the port, of APB16
            APB16PRDATA         : in    std_logic_vector(31 downto 0); -- data read, of APB16
            APB16PREDADY        : in    std_logic; -- the slave has finished, of APB16
            APB16PSLVERR        : in    std_logic; -- the transfer has failed, of APB16
            APB16PCLK           : out   std_logic; -- clock of the port, of APB16
            APB16PRESET         : out   std_logic  -- reset of the port, of APB16, active low
        );
    end component;
end package;
