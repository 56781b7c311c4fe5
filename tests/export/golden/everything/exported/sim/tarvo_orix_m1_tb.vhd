-- A first test bench of Tarvo_ORIX_M1_Top: clock, reset, pull-ups, every input at rest. The model of the processor plays the
-- script of transfers and prints PASS, or what fails.
--   ghdl -a tarvo_orix_m1.vho sim/cortex_m1_core_bfm.vhd tarvo_orix_m1_pkg.vhd sim/tarvo_orix_m1_tb.vhd
--   ghdl -r tarvo_orix_m1_tb
-- The first file is the simulation model of a generation with VHDL as its language.
library ieee;
use ieee.std_logic_1164.all;
use work.cortex_m1_core_bfm;
use work.tarvo_orix_m1_pkg.all;

entity tarvo_orix_m1_tb is
    generic (script : string := "sim/tarvo_orix_m1_tb.play");
end entity;

architecture board of tarvo_orix_m1_tb is
    -- Connect what your design has; these are the levels at rest.
    signal HCLK : std_logic := '0'; -- clocks processor, buses and blocks
    signal hwRstn : std_logic := '0'; -- resets everything, debug included, active low
    signal LOCKUP : std_logic; -- the processor has stopped after a second fault
    signal HALTED : std_logic; -- the debugger has stopped the processor
    signal JTAG_7 : std_logic; -- TMS or SWDIO
    signal JTAG_9 : std_logic; -- TCK or SWCLK, clocks the debug port
    signal JTAG_3 : std_logic; -- nTRST, resets the debug port, active low, to be pulled up
    signal JTAG_4 : std_logic; -- driven low
    signal JTAG_5 : std_logic; -- TDI
    signal JTAG_6 : std_logic; -- driven low
    signal JTAG_8 : std_logic; -- driven low
    signal JTAG_10 : std_logic; -- driven low
    signal JTAG_11 : std_logic; -- driven low
    signal JTAG_12 : std_logic; -- driven low
    signal JTAG_13 : std_logic; -- TDO
    signal JTAG_14 : std_logic; -- driven low
    signal JTAG_15 : std_logic; -- nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
    signal JTAG_16 : std_logic; -- driven low
    signal JTAG_17 : std_logic; -- not connected
    signal JTAG_18 : std_logic; -- driven low
    signal EXTINT : std_logic_vector(3 downto 0) := (others => '0'); -- interrupts 12 (bit 0) to 15 (bit 3), requested while high
    signal GPIO : std_logic_vector(15 downto 0); -- pins
    signal CAN_RX : std_logic := '1'; -- from the transceiver
    signal CAN_TX : std_logic; -- to the transceiver
    signal MDC : std_logic; -- management clock of the PHY
    signal MDIO : std_logic; -- management data of the PHY, to be pulled up
    signal RGMII_TXC : std_logic; -- transmit clock
    signal RGMII_TX_CTL : std_logic; -- transmit control
    signal RGMII_TXD : std_logic_vector(3 downto 0); -- transmit data
    signal RGMII_RXC : std_logic := '0'; -- receive clock of the PHY
    signal RGMII_RX_CTL : std_logic := '0'; -- receive control
    signal RGMII_RXD : std_logic_vector(3 downto 0) := (others => '0'); -- receive data
    signal GTX_CLK : std_logic := '0'; -- transmit clock of the MAC, 125 MHz
    signal FLASH_SPI_HOLDN : std_logic; -- hold of the flash, always released, active low
    signal FLASH_SPI_CSN : std_logic; -- chip select of the flash, active low
    signal FLASH_SPI_MISO : std_logic; -- data from the flash
    signal FLASH_SPI_MOSI : std_logic; -- data to the flash
    signal FLASH_SPI_WPN : std_logic; -- write protection of the flash, active low
    signal FLASH_SPI_CLK : std_logic; -- clock of the flash
    signal DDR_STOP_O : std_logic; -- asks to stop DDR_MEM_CLK_I while its phase changes
    signal DDR_CLK_I : std_logic := '0'; -- reference clock of the DDR3 controller
    signal DDR_MEM_CLK_I : std_logic := '0'; -- clock of the DDR3 interface
    signal DDR_LOCK_I : std_logic := '0'; -- DDR_MEM_CLK_I is stable
    signal DDR_RSTN_I : std_logic; -- resets the DDR3 controller, active low
    signal DDR_INIT_COMPLETE_O : std_logic; -- the DDR3 memory is ready
    signal DDR_ADDR_O : std_logic_vector(15 downto 0); -- address of the memory
    signal DDR_BA_O : std_logic_vector(2 downto 0); -- bank of the memory
    signal DDR_CS_N_O : std_logic; -- chip select of the memory, active low
    signal DDR_RAS_N_O : std_logic; -- row address strobe, active low
    signal DDR_CAS_N_O : std_logic; -- column address strobe, active low
    signal DDR_WE_N_O : std_logic; -- write enable, active low
    signal DDR_CLK_O : std_logic; -- clock of the memory
    signal DDR_CLK_N_O : std_logic; -- the same, inverted
    signal DDR_CKE_O : std_logic; -- clock enable
    signal DDR_ODT_O : std_logic; -- termination
    signal DDR_RESET_N_O : std_logic; -- resets the memory, active low
    signal DDR_DQM_O : std_logic_vector(1 downto 0); -- masks of the data
    signal DDR_DQ_IO : std_logic_vector(15 downto 0); -- data of the memory
    signal DDR_DQS_IO : std_logic_vector(1 downto 0); -- strobes of the data
    signal DDR_DQS_N_IO : std_logic_vector(1 downto 0); -- the same, inverted
    signal AHB1HRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of AHB1
    signal AHB1HREADYOUT : std_logic := '1'; -- the slave has finished, of AHB1
    signal AHB1HRESP : std_logic_vector(1 downto 0) := (others => '0'); -- response; any value but 0 is an error, of AHB1
    signal AHB1HTRANS : std_logic_vector(1 downto 0); -- kind of the transfer, of AHB1
    signal AHB1HBURST : std_logic_vector(2 downto 0); -- kind of the burst, of AHB1
    signal AHB1HPROT : std_logic_vector(3 downto 0); -- protection of the transfer, of AHB1
    signal AHB1HSIZE : std_logic_vector(2 downto 0); -- size of the transfer, of AHB1
    signal AHB1HWRITE : std_logic; -- 1 writes, of AHB1
    signal AHB1HREADYMUX : std_logic; -- the transfer before has finished, of AHB1
    signal AHB1HMASTER : std_logic_vector(3 downto 0); -- number of the master, of AHB1
    signal AHB1HMASTLOCK : std_logic; -- the transfer is locked, of AHB1
    signal AHB1HADDR : std_logic_vector(31 downto 0); -- address, of AHB1
    signal AHB1HWDATA : std_logic_vector(31 downto 0); -- data written, of AHB1
    signal AHB1HSEL : std_logic; -- the address is one of the port, of AHB1
    signal AHB1HCLK : std_logic; -- clock of the port, of AHB1
    signal AHB1HRESET : std_logic; -- reset of the port, of AHB1, active low
    signal AHB2HRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of AHB2
    signal AHB2HREADYOUT : std_logic := '1'; -- the slave has finished, of AHB2
    signal AHB2HRESP : std_logic_vector(1 downto 0) := (others => '0'); -- response; any value but 0 is an error, of AHB2
    signal AHB2HTRANS : std_logic_vector(1 downto 0); -- kind of the transfer, of AHB2
    signal AHB2HBURST : std_logic_vector(2 downto 0); -- kind of the burst, of AHB2
    signal AHB2HPROT : std_logic_vector(3 downto 0); -- protection of the transfer, of AHB2
    signal AHB2HSIZE : std_logic_vector(2 downto 0); -- size of the transfer, of AHB2
    signal AHB2HWRITE : std_logic; -- 1 writes, of AHB2
    signal AHB2HREADYMUX : std_logic; -- the transfer before has finished, of AHB2
    signal AHB2HMASTER : std_logic_vector(3 downto 0); -- number of the master, of AHB2
    signal AHB2HMASTLOCK : std_logic; -- the transfer is locked, of AHB2
    signal AHB2HADDR : std_logic_vector(31 downto 0); -- address, of AHB2
    signal AHB2HWDATA : std_logic_vector(31 downto 0); -- data written, of AHB2
    signal AHB2HSEL : std_logic; -- the address is one of the port, of AHB2
    signal AHB2HCLK : std_logic; -- clock of the port, of AHB2
    signal AHB2HRESET : std_logic; -- reset of the port, of AHB2, active low
    signal AHB3HRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of AHB3
    signal AHB3HREADYOUT : std_logic := '1'; -- the slave has finished, of AHB3
    signal AHB3HRESP : std_logic_vector(1 downto 0) := (others => '0'); -- response; any value but 0 is an error, of AHB3
    signal AHB3HTRANS : std_logic_vector(1 downto 0); -- kind of the transfer, of AHB3
    signal AHB3HBURST : std_logic_vector(2 downto 0); -- kind of the burst, of AHB3
    signal AHB3HPROT : std_logic_vector(3 downto 0); -- protection of the transfer, of AHB3
    signal AHB3HSIZE : std_logic_vector(2 downto 0); -- size of the transfer, of AHB3
    signal AHB3HWRITE : std_logic; -- 1 writes, of AHB3
    signal AHB3HREADYMUX : std_logic; -- the transfer before has finished, of AHB3
    signal AHB3HMASTER : std_logic_vector(3 downto 0); -- number of the master, of AHB3
    signal AHB3HMASTLOCK : std_logic; -- the transfer is locked, of AHB3
    signal AHB3HADDR : std_logic_vector(31 downto 0); -- address, of AHB3
    signal AHB3HWDATA : std_logic_vector(31 downto 0); -- data written, of AHB3
    signal AHB3HSEL : std_logic; -- the address is one of the port, of AHB3
    signal AHB3HCLK : std_logic; -- clock of the port, of AHB3
    signal AHB3HRESET : std_logic; -- reset of the port, of AHB3, active low
    signal AHB4HRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of AHB4
    signal AHB4HREADYOUT : std_logic := '1'; -- the slave has finished, of AHB4
    signal AHB4HRESP : std_logic_vector(1 downto 0) := (others => '0'); -- response; any value but 0 is an error, of AHB4
    signal AHB4HTRANS : std_logic_vector(1 downto 0); -- kind of the transfer, of AHB4
    signal AHB4HBURST : std_logic_vector(2 downto 0); -- kind of the burst, of AHB4
    signal AHB4HPROT : std_logic_vector(3 downto 0); -- protection of the transfer, of AHB4
    signal AHB4HSIZE : std_logic_vector(2 downto 0); -- size of the transfer, of AHB4
    signal AHB4HWRITE : std_logic; -- 1 writes, of AHB4
    signal AHB4HREADYMUX : std_logic; -- the transfer before has finished, of AHB4
    signal AHB4HMASTER : std_logic_vector(3 downto 0); -- number of the master, of AHB4
    signal AHB4HMASTLOCK : std_logic; -- the transfer is locked, of AHB4
    signal AHB4HADDR : std_logic_vector(31 downto 0); -- address, of AHB4
    signal AHB4HWDATA : std_logic_vector(31 downto 0); -- data written, of AHB4
    signal AHB4HSEL : std_logic; -- the address is one of the port, of AHB4
    signal AHB4HCLK : std_logic; -- clock of the port, of AHB4
    signal AHB4HRESET : std_logic; -- reset of the port, of AHB4, active low
    signal AHB5HRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of AHB5
    signal AHB5HREADYOUT : std_logic := '1'; -- the slave has finished, of AHB5
    signal AHB5HRESP : std_logic_vector(1 downto 0) := (others => '0'); -- response; any value but 0 is an error, of AHB5
    signal AHB5HTRANS : std_logic_vector(1 downto 0); -- kind of the transfer, of AHB5
    signal AHB5HBURST : std_logic_vector(2 downto 0); -- kind of the burst, of AHB5
    signal AHB5HPROT : std_logic_vector(3 downto 0); -- protection of the transfer, of AHB5
    signal AHB5HSIZE : std_logic_vector(2 downto 0); -- size of the transfer, of AHB5
    signal AHB5HWRITE : std_logic; -- 1 writes, of AHB5
    signal AHB5HREADYMUX : std_logic; -- the transfer before has finished, of AHB5
    signal AHB5HMASTER : std_logic_vector(3 downto 0); -- number of the master, of AHB5
    signal AHB5HMASTLOCK : std_logic; -- the transfer is locked, of AHB5
    signal AHB5HADDR : std_logic_vector(31 downto 0); -- address, of AHB5
    signal AHB5HWDATA : std_logic_vector(31 downto 0); -- data written, of AHB5
    signal AHB5HSEL : std_logic; -- the address is one of the port, of AHB5
    signal AHB5HCLK : std_logic; -- clock of the port, of AHB5
    signal AHB5HRESET : std_logic; -- reset of the port, of AHB5, active low
    signal AHB6HRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of AHB6
    signal AHB6HREADYOUT : std_logic := '1'; -- the slave has finished, of AHB6
    signal AHB6HRESP : std_logic_vector(1 downto 0) := (others => '0'); -- response; any value but 0 is an error, of AHB6
    signal AHB6HTRANS : std_logic_vector(1 downto 0); -- kind of the transfer, of AHB6
    signal AHB6HBURST : std_logic_vector(2 downto 0); -- kind of the burst, of AHB6
    signal AHB6HPROT : std_logic_vector(3 downto 0); -- protection of the transfer, of AHB6
    signal AHB6HSIZE : std_logic_vector(2 downto 0); -- size of the transfer, of AHB6
    signal AHB6HWRITE : std_logic; -- 1 writes, of AHB6
    signal AHB6HREADYMUX : std_logic; -- the transfer before has finished, of AHB6
    signal AHB6HMASTER : std_logic_vector(3 downto 0); -- number of the master, of AHB6
    signal AHB6HMASTLOCK : std_logic; -- the transfer is locked, of AHB6
    signal AHB6HADDR : std_logic_vector(31 downto 0); -- address, of AHB6
    signal AHB6HWDATA : std_logic_vector(31 downto 0); -- data written, of AHB6
    signal AHB6HSEL : std_logic; -- the address is one of the port, of AHB6
    signal AHB6HCLK : std_logic; -- clock of the port, of AHB6
    signal AHB6HRESET : std_logic; -- reset of the port, of AHB6, active low
    signal UART0RXD : std_logic := '1'; -- serial data to receive
    signal UART0TXD : std_logic; -- serial data sent
    signal UART1RXD : std_logic := '1'; -- serial data to receive
    signal UART1TXD : std_logic; -- serial data sent
    signal TIMER0EXTIN : std_logic := '0'; -- gate or events of the timer
    signal TIMER1EXTIN : std_logic := '0'; -- gate or events of the timer
    signal RTCSRCCLK : std_logic := '0'; -- source clock of the seconds, sampled with HCLK and slower than HCLK / 4
    signal SCL : std_logic; -- clock of the bus, to be pulled up
    signal SDA : std_logic; -- data of the bus, to be pulled up
    signal MOSI : std_logic; -- data to the slave
    signal MISO : std_logic := '0'; -- data from the slave
    signal SCLK : std_logic; -- clock of the slave
    signal NSS : std_logic; -- slave select, active low
    signal SD_CLK : std_logic; -- clock of the card
    signal SD_SPICLK : std_logic := '0'; -- source clock of SD_CLK, sampled with HCLK and slower than HCLK / 4
    signal SD_CS : std_logic; -- chip select of the card, active low
    signal SD_DATAIN : std_logic := '1'; -- data from the card
    signal SD_DATAOUT : std_logic; -- data to the card
    signal SD_CARD_INIT : std_logic; -- software has initialised the card
    signal SD_CHECKIN : std_logic := '1'; -- switch of the card's socket, low with a card, active low
    signal SD_CHECKOUT : std_logic; -- a card is present
    signal APB1PADDR : std_logic_vector(31 downto 0); -- address, of APB1
    signal APB1PENABLE : std_logic; -- second and further cycles of the transfer, of APB1
    signal APB1PWRITE : std_logic; -- 1 writes, of APB1
    signal APB1PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB1
    signal APB1PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB1
    signal APB1PWDATA : std_logic_vector(31 downto 0); -- data written, of APB1
    signal APB1PSEL : std_logic; -- the address is one of the port, of APB1
    signal APB1PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB1
    signal APB1PREDADY : std_logic := '1'; -- the slave has finished, of APB1
    signal APB1PSLVERR : std_logic := '0'; -- the transfer has failed, of APB1
    signal APB1PCLK : std_logic; -- clock of the port, of APB1
    signal APB1PRESET : std_logic; -- reset of the port, of APB1, active low
    signal APB2PADDR : std_logic_vector(31 downto 0); -- address, of APB2
    signal APB2PENABLE : std_logic; -- second and further cycles of the transfer, of APB2
    signal APB2PWRITE : std_logic; -- 1 writes, of APB2
    signal APB2PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB2
    signal APB2PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB2
    signal APB2PWDATA : std_logic_vector(31 downto 0); -- data written, of APB2
    signal APB2PSEL : std_logic; -- the address is one of the port, of APB2
    signal APB2PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB2
    signal APB2PREDADY : std_logic := '1'; -- the slave has finished, of APB2
    signal APB2PSLVERR : std_logic := '0'; -- the transfer has failed, of APB2
    signal APB2PCLK : std_logic; -- clock of the port, of APB2
    signal APB2PRESET : std_logic; -- reset of the port, of APB2, active low
    signal APB3PADDR : std_logic_vector(31 downto 0); -- address, of APB3
    signal APB3PENABLE : std_logic; -- second and further cycles of the transfer, of APB3
    signal APB3PWRITE : std_logic; -- 1 writes, of APB3
    signal APB3PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB3
    signal APB3PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB3
    signal APB3PWDATA : std_logic_vector(31 downto 0); -- data written, of APB3
    signal APB3PSEL : std_logic; -- the address is one of the port, of APB3
    signal APB3PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB3
    signal APB3PREDADY : std_logic := '1'; -- the slave has finished, of APB3
    signal APB3PSLVERR : std_logic := '0'; -- the transfer has failed, of APB3
    signal APB3PCLK : std_logic; -- clock of the port, of APB3
    signal APB3PRESET : std_logic; -- reset of the port, of APB3, active low
    signal APB4PADDR : std_logic_vector(31 downto 0); -- address, of APB4
    signal APB4PENABLE : std_logic; -- second and further cycles of the transfer, of APB4
    signal APB4PWRITE : std_logic; -- 1 writes, of APB4
    signal APB4PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB4
    signal APB4PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB4
    signal APB4PWDATA : std_logic_vector(31 downto 0); -- data written, of APB4
    signal APB4PSEL : std_logic; -- the address is one of the port, of APB4
    signal APB4PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB4
    signal APB4PREDADY : std_logic := '1'; -- the slave has finished, of APB4
    signal APB4PSLVERR : std_logic := '0'; -- the transfer has failed, of APB4
    signal APB4PCLK : std_logic; -- clock of the port, of APB4
    signal APB4PRESET : std_logic; -- reset of the port, of APB4, active low
    signal APB5PADDR : std_logic_vector(31 downto 0); -- address, of APB5
    signal APB5PENABLE : std_logic; -- second and further cycles of the transfer, of APB5
    signal APB5PWRITE : std_logic; -- 1 writes, of APB5
    signal APB5PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB5
    signal APB5PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB5
    signal APB5PWDATA : std_logic_vector(31 downto 0); -- data written, of APB5
    signal APB5PSEL : std_logic; -- the address is one of the port, of APB5
    signal APB5PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB5
    signal APB5PREDADY : std_logic := '1'; -- the slave has finished, of APB5
    signal APB5PSLVERR : std_logic := '0'; -- the transfer has failed, of APB5
    signal APB5PCLK : std_logic; -- clock of the port, of APB5
    signal APB5PRESET : std_logic; -- reset of the port, of APB5, active low
    signal APB6PADDR : std_logic_vector(31 downto 0); -- address, of APB6
    signal APB6PENABLE : std_logic; -- second and further cycles of the transfer, of APB6
    signal APB6PWRITE : std_logic; -- 1 writes, of APB6
    signal APB6PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB6
    signal APB6PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB6
    signal APB6PWDATA : std_logic_vector(31 downto 0); -- data written, of APB6
    signal APB6PSEL : std_logic; -- the address is one of the port, of APB6
    signal APB6PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB6
    signal APB6PREDADY : std_logic := '1'; -- the slave has finished, of APB6
    signal APB6PSLVERR : std_logic := '0'; -- the transfer has failed, of APB6
    signal APB6PCLK : std_logic; -- clock of the port, of APB6
    signal APB6PRESET : std_logic; -- reset of the port, of APB6, active low
    signal APB7PADDR : std_logic_vector(31 downto 0); -- address, of APB7
    signal APB7PENABLE : std_logic; -- second and further cycles of the transfer, of APB7
    signal APB7PWRITE : std_logic; -- 1 writes, of APB7
    signal APB7PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB7
    signal APB7PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB7
    signal APB7PWDATA : std_logic_vector(31 downto 0); -- data written, of APB7
    signal APB7PSEL : std_logic; -- the address is one of the port, of APB7
    signal APB7PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB7
    signal APB7PREDADY : std_logic := '1'; -- the slave has finished, of APB7
    signal APB7PSLVERR : std_logic := '0'; -- the transfer has failed, of APB7
    signal APB7PCLK : std_logic; -- clock of the port, of APB7
    signal APB7PRESET : std_logic; -- reset of the port, of APB7, active low
    signal APB8PADDR : std_logic_vector(31 downto 0); -- address, of APB8
    signal APB8PENABLE : std_logic; -- second and further cycles of the transfer, of APB8
    signal APB8PWRITE : std_logic; -- 1 writes, of APB8
    signal APB8PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB8
    signal APB8PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB8
    signal APB8PWDATA : std_logic_vector(31 downto 0); -- data written, of APB8
    signal APB8PSEL : std_logic; -- the address is one of the port, of APB8
    signal APB8PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB8
    signal APB8PREDADY : std_logic := '1'; -- the slave has finished, of APB8
    signal APB8PSLVERR : std_logic := '0'; -- the transfer has failed, of APB8
    signal APB8PCLK : std_logic; -- clock of the port, of APB8
    signal APB8PRESET : std_logic; -- reset of the port, of APB8, active low
    signal APB9PADDR : std_logic_vector(31 downto 0); -- address, of APB9
    signal APB9PENABLE : std_logic; -- second and further cycles of the transfer, of APB9
    signal APB9PWRITE : std_logic; -- 1 writes, of APB9
    signal APB9PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB9
    signal APB9PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB9
    signal APB9PWDATA : std_logic_vector(31 downto 0); -- data written, of APB9
    signal APB9PSEL : std_logic; -- the address is one of the port, of APB9
    signal APB9PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB9
    signal APB9PREDADY : std_logic := '1'; -- the slave has finished, of APB9
    signal APB9PSLVERR : std_logic := '0'; -- the transfer has failed, of APB9
    signal APB9PCLK : std_logic; -- clock of the port, of APB9
    signal APB9PRESET : std_logic; -- reset of the port, of APB9, active low
    signal APB10PADDR : std_logic_vector(31 downto 0); -- address, of APB10
    signal APB10PENABLE : std_logic; -- second and further cycles of the transfer, of APB10
    signal APB10PWRITE : std_logic; -- 1 writes, of APB10
    signal APB10PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB10
    signal APB10PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB10
    signal APB10PWDATA : std_logic_vector(31 downto 0); -- data written, of APB10
    signal APB10PSEL : std_logic; -- the address is one of the port, of APB10
    signal APB10PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB10
    signal APB10PREDADY : std_logic := '1'; -- the slave has finished, of APB10
    signal APB10PSLVERR : std_logic := '0'; -- the transfer has failed, of APB10
    signal APB10PCLK : std_logic; -- clock of the port, of APB10
    signal APB10PRESET : std_logic; -- reset of the port, of APB10, active low
    signal APB11PADDR : std_logic_vector(31 downto 0); -- address, of APB11
    signal APB11PENABLE : std_logic; -- second and further cycles of the transfer, of APB11
    signal APB11PWRITE : std_logic; -- 1 writes, of APB11
    signal APB11PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB11
    signal APB11PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB11
    signal APB11PWDATA : std_logic_vector(31 downto 0); -- data written, of APB11
    signal APB11PSEL : std_logic; -- the address is one of the port, of APB11
    signal APB11PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB11
    signal APB11PREDADY : std_logic := '1'; -- the slave has finished, of APB11
    signal APB11PSLVERR : std_logic := '0'; -- the transfer has failed, of APB11
    signal APB11PCLK : std_logic; -- clock of the port, of APB11
    signal APB11PRESET : std_logic; -- reset of the port, of APB11, active low
    signal APB12PADDR : std_logic_vector(31 downto 0); -- address, of APB12
    signal APB12PENABLE : std_logic; -- second and further cycles of the transfer, of APB12
    signal APB12PWRITE : std_logic; -- 1 writes, of APB12
    signal APB12PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB12
    signal APB12PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB12
    signal APB12PWDATA : std_logic_vector(31 downto 0); -- data written, of APB12
    signal APB12PSEL : std_logic; -- the address is one of the port, of APB12
    signal APB12PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB12
    signal APB12PREDADY : std_logic := '1'; -- the slave has finished, of APB12
    signal APB12PSLVERR : std_logic := '0'; -- the transfer has failed, of APB12
    signal APB12PCLK : std_logic; -- clock of the port, of APB12
    signal APB12PRESET : std_logic; -- reset of the port, of APB12, active low
    signal APB13PADDR : std_logic_vector(31 downto 0); -- address, of APB13
    signal APB13PENABLE : std_logic; -- second and further cycles of the transfer, of APB13
    signal APB13PWRITE : std_logic; -- 1 writes, of APB13
    signal APB13PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB13
    signal APB13PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB13
    signal APB13PWDATA : std_logic_vector(31 downto 0); -- data written, of APB13
    signal APB13PSEL : std_logic; -- the address is one of the port, of APB13
    signal APB13PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB13
    signal APB13PREDADY : std_logic := '1'; -- the slave has finished, of APB13
    signal APB13PSLVERR : std_logic := '0'; -- the transfer has failed, of APB13
    signal APB13PCLK : std_logic; -- clock of the port, of APB13
    signal APB13PRESET : std_logic; -- reset of the port, of APB13, active low
    signal APB14PADDR : std_logic_vector(31 downto 0); -- address, of APB14
    signal APB14PENABLE : std_logic; -- second and further cycles of the transfer, of APB14
    signal APB14PWRITE : std_logic; -- 1 writes, of APB14
    signal APB14PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB14
    signal APB14PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB14
    signal APB14PWDATA : std_logic_vector(31 downto 0); -- data written, of APB14
    signal APB14PSEL : std_logic; -- the address is one of the port, of APB14
    signal APB14PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB14
    signal APB14PREDADY : std_logic := '1'; -- the slave has finished, of APB14
    signal APB14PSLVERR : std_logic := '0'; -- the transfer has failed, of APB14
    signal APB14PCLK : std_logic; -- clock of the port, of APB14
    signal APB14PRESET : std_logic; -- reset of the port, of APB14, active low
    signal APB15PADDR : std_logic_vector(31 downto 0); -- address, of APB15
    signal APB15PENABLE : std_logic; -- second and further cycles of the transfer, of APB15
    signal APB15PWRITE : std_logic; -- 1 writes, of APB15
    signal APB15PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB15
    signal APB15PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB15
    signal APB15PWDATA : std_logic_vector(31 downto 0); -- data written, of APB15
    signal APB15PSEL : std_logic; -- the address is one of the port, of APB15
    signal APB15PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB15
    signal APB15PREDADY : std_logic := '1'; -- the slave has finished, of APB15
    signal APB15PSLVERR : std_logic := '0'; -- the transfer has failed, of APB15
    signal APB15PCLK : std_logic; -- clock of the port, of APB15
    signal APB15PRESET : std_logic; -- reset of the port, of APB15, active low
    signal APB16PADDR : std_logic_vector(31 downto 0); -- address, of APB16
    signal APB16PENABLE : std_logic; -- second and further cycles of the transfer, of APB16
    signal APB16PWRITE : std_logic; -- 1 writes, of APB16
    signal APB16PSTRB : std_logic_vector(3 downto 0); -- bytes that are written, of APB16
    signal APB16PPROT : std_logic_vector(2 downto 0); -- protection of the transfer, of APB16
    signal APB16PWDATA : std_logic_vector(31 downto 0); -- data written, of APB16
    signal APB16PSEL : std_logic; -- the address is one of the port, of APB16
    signal APB16PRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of APB16
    signal APB16PREDADY : std_logic := '1'; -- the slave has finished, of APB16
    signal APB16PSLVERR : std_logic := '0'; -- the transfer has failed, of APB16
    signal APB16PCLK : std_logic; -- clock of the port, of APB16
    signal APB16PRESET : std_logic; -- reset of the port, of APB16, active low
begin
    cortex_m1_core_bfm.script <= cortex_m1_core_bfm.script_of(script);

    process
        variable cycles : natural := 0;
    begin
        while to_x01(cortex_m1_core_bfm.done) /= '1' and cycles < 100000 loop
            wait for 10 ns;
            HCLK <= not HCLK;
            wait for 10 ns;
            HCLK <= not HCLK;
            cycles := cycles + 1;
        end loop;
        assert cycles < 100000 report "no end of the script after 100000 cycles" severity failure;
        assert LOCKUP = '0' report "the processor is locked up" severity failure;
        wait;
    end process;
    hwRstn <= '1' after 200 ns;
    JTAG_7 <= 'L';
    JTAG_9 <= 'L';
    JTAG_3 <= 'H';
    JTAG_4 <= 'L';
    JTAG_5 <= 'L';
    JTAG_6 <= 'L';
    JTAG_8 <= 'L';
    JTAG_10 <= 'L';
    JTAG_11 <= 'L';
    JTAG_12 <= 'L';
    JTAG_13 <= 'L';
    JTAG_14 <= 'L';
    JTAG_15 <= 'H';
    JTAG_16 <= 'L';
    JTAG_17 <= 'L';
    JTAG_18 <= 'L';
    GPIO <= (others => 'L');
    MDIO <= 'H';
    FLASH_SPI_HOLDN <= 'L';
    FLASH_SPI_CSN <= 'L';
    FLASH_SPI_MISO <= 'L';
    FLASH_SPI_MOSI <= 'L';
    FLASH_SPI_WPN <= 'L';
    FLASH_SPI_CLK <= 'L';
    DDR_RSTN_I <= hwRstn;
    DDR_DQ_IO <= (others => 'L');
    DDR_DQS_IO <= (others => 'L');
    DDR_DQS_N_IO <= (others => 'L');
    SCL <= 'H';
    SDA <= 'H';

    u_dut : Tarvo_ORIX_M1_Top
        port map (
            HCLK => HCLK,
            hwRstn => hwRstn,
            LOCKUP => LOCKUP,
            HALTED => HALTED,
            JTAG_7 => JTAG_7,
            JTAG_9 => JTAG_9,
            JTAG_3 => JTAG_3,
            JTAG_4 => JTAG_4,
            JTAG_5 => JTAG_5,
            JTAG_6 => JTAG_6,
            JTAG_8 => JTAG_8,
            JTAG_10 => JTAG_10,
            JTAG_11 => JTAG_11,
            JTAG_12 => JTAG_12,
            JTAG_13 => JTAG_13,
            JTAG_14 => JTAG_14,
            JTAG_15 => JTAG_15,
            JTAG_16 => JTAG_16,
            JTAG_17 => JTAG_17,
            JTAG_18 => JTAG_18,
            EXTINT => EXTINT,
            GPIO => GPIO,
            CAN_RX => CAN_RX,
            CAN_TX => CAN_TX,
            MDC => MDC,
            MDIO => MDIO,
            RGMII_TXC => RGMII_TXC,
            RGMII_TX_CTL => RGMII_TX_CTL,
            RGMII_TXD => RGMII_TXD,
            RGMII_RXC => RGMII_RXC,
            RGMII_RX_CTL => RGMII_RX_CTL,
            RGMII_RXD => RGMII_RXD,
            GTX_CLK => GTX_CLK,
            FLASH_SPI_HOLDN => FLASH_SPI_HOLDN,
            FLASH_SPI_CSN => FLASH_SPI_CSN,
            FLASH_SPI_MISO => FLASH_SPI_MISO,
            FLASH_SPI_MOSI => FLASH_SPI_MOSI,
            FLASH_SPI_WPN => FLASH_SPI_WPN,
            FLASH_SPI_CLK => FLASH_SPI_CLK,
            DDR_STOP_O => DDR_STOP_O,
            DDR_CLK_I => DDR_CLK_I,
            DDR_MEM_CLK_I => DDR_MEM_CLK_I,
            DDR_LOCK_I => DDR_LOCK_I,
            DDR_RSTN_I => DDR_RSTN_I,
            DDR_INIT_COMPLETE_O => DDR_INIT_COMPLETE_O,
            DDR_ADDR_O => DDR_ADDR_O,
            DDR_BA_O => DDR_BA_O,
            DDR_CS_N_O => DDR_CS_N_O,
            DDR_RAS_N_O => DDR_RAS_N_O,
            DDR_CAS_N_O => DDR_CAS_N_O,
            DDR_WE_N_O => DDR_WE_N_O,
            DDR_CLK_O => DDR_CLK_O,
            DDR_CLK_N_O => DDR_CLK_N_O,
            DDR_CKE_O => DDR_CKE_O,
            DDR_ODT_O => DDR_ODT_O,
            DDR_RESET_N_O => DDR_RESET_N_O,
            DDR_DQM_O => DDR_DQM_O,
            DDR_DQ_IO => DDR_DQ_IO,
            DDR_DQS_IO => DDR_DQS_IO,
            DDR_DQS_N_IO => DDR_DQS_N_IO,
            AHB1HRDATA => AHB1HRDATA,
            AHB1HREADYOUT => AHB1HREADYOUT,
            AHB1HRESP => AHB1HRESP,
            AHB1HTRANS => AHB1HTRANS,
            AHB1HBURST => AHB1HBURST,
            AHB1HPROT => AHB1HPROT,
            AHB1HSIZE => AHB1HSIZE,
            AHB1HWRITE => AHB1HWRITE,
            AHB1HREADYMUX => AHB1HREADYMUX,
            AHB1HMASTER => AHB1HMASTER,
            AHB1HMASTLOCK => AHB1HMASTLOCK,
            AHB1HADDR => AHB1HADDR,
            AHB1HWDATA => AHB1HWDATA,
            AHB1HSEL => AHB1HSEL,
            AHB1HCLK => AHB1HCLK,
            AHB1HRESET => AHB1HRESET,
            AHB2HRDATA => AHB2HRDATA,
            AHB2HREADYOUT => AHB2HREADYOUT,
            AHB2HRESP => AHB2HRESP,
            AHB2HTRANS => AHB2HTRANS,
            AHB2HBURST => AHB2HBURST,
            AHB2HPROT => AHB2HPROT,
            AHB2HSIZE => AHB2HSIZE,
            AHB2HWRITE => AHB2HWRITE,
            AHB2HREADYMUX => AHB2HREADYMUX,
            AHB2HMASTER => AHB2HMASTER,
            AHB2HMASTLOCK => AHB2HMASTLOCK,
            AHB2HADDR => AHB2HADDR,
            AHB2HWDATA => AHB2HWDATA,
            AHB2HSEL => AHB2HSEL,
            AHB2HCLK => AHB2HCLK,
            AHB2HRESET => AHB2HRESET,
            AHB3HRDATA => AHB3HRDATA,
            AHB3HREADYOUT => AHB3HREADYOUT,
            AHB3HRESP => AHB3HRESP,
            AHB3HTRANS => AHB3HTRANS,
            AHB3HBURST => AHB3HBURST,
            AHB3HPROT => AHB3HPROT,
            AHB3HSIZE => AHB3HSIZE,
            AHB3HWRITE => AHB3HWRITE,
            AHB3HREADYMUX => AHB3HREADYMUX,
            AHB3HMASTER => AHB3HMASTER,
            AHB3HMASTLOCK => AHB3HMASTLOCK,
            AHB3HADDR => AHB3HADDR,
            AHB3HWDATA => AHB3HWDATA,
            AHB3HSEL => AHB3HSEL,
            AHB3HCLK => AHB3HCLK,
            AHB3HRESET => AHB3HRESET,
            AHB4HRDATA => AHB4HRDATA,
            AHB4HREADYOUT => AHB4HREADYOUT,
            AHB4HRESP => AHB4HRESP,
            AHB4HTRANS => AHB4HTRANS,
            AHB4HBURST => AHB4HBURST,
            AHB4HPROT => AHB4HPROT,
            AHB4HSIZE => AHB4HSIZE,
            AHB4HWRITE => AHB4HWRITE,
            AHB4HREADYMUX => AHB4HREADYMUX,
            AHB4HMASTER => AHB4HMASTER,
            AHB4HMASTLOCK => AHB4HMASTLOCK,
            AHB4HADDR => AHB4HADDR,
            AHB4HWDATA => AHB4HWDATA,
            AHB4HSEL => AHB4HSEL,
            AHB4HCLK => AHB4HCLK,
            AHB4HRESET => AHB4HRESET,
            AHB5HRDATA => AHB5HRDATA,
            AHB5HREADYOUT => AHB5HREADYOUT,
            AHB5HRESP => AHB5HRESP,
            AHB5HTRANS => AHB5HTRANS,
            AHB5HBURST => AHB5HBURST,
            AHB5HPROT => AHB5HPROT,
            AHB5HSIZE => AHB5HSIZE,
            AHB5HWRITE => AHB5HWRITE,
            AHB5HREADYMUX => AHB5HREADYMUX,
            AHB5HMASTER => AHB5HMASTER,
            AHB5HMASTLOCK => AHB5HMASTLOCK,
            AHB5HADDR => AHB5HADDR,
            AHB5HWDATA => AHB5HWDATA,
            AHB5HSEL => AHB5HSEL,
            AHB5HCLK => AHB5HCLK,
            AHB5HRESET => AHB5HRESET,
            AHB6HRDATA => AHB6HRDATA,
            AHB6HREADYOUT => AHB6HREADYOUT,
            AHB6HRESP => AHB6HRESP,
            AHB6HTRANS => AHB6HTRANS,
            AHB6HBURST => AHB6HBURST,
            AHB6HPROT => AHB6HPROT,
            AHB6HSIZE => AHB6HSIZE,
            AHB6HWRITE => AHB6HWRITE,
            AHB6HREADYMUX => AHB6HREADYMUX,
            AHB6HMASTER => AHB6HMASTER,
            AHB6HMASTLOCK => AHB6HMASTLOCK,
            AHB6HADDR => AHB6HADDR,
            AHB6HWDATA => AHB6HWDATA,
            AHB6HSEL => AHB6HSEL,
            AHB6HCLK => AHB6HCLK,
            AHB6HRESET => AHB6HRESET,
            UART0RXD => UART0RXD,
            UART0TXD => UART0TXD,
            UART1RXD => UART1RXD,
            UART1TXD => UART1TXD,
            TIMER0EXTIN => TIMER0EXTIN,
            TIMER1EXTIN => TIMER1EXTIN,
            RTCSRCCLK => RTCSRCCLK,
            SCL => SCL,
            SDA => SDA,
            MOSI => MOSI,
            MISO => MISO,
            SCLK => SCLK,
            NSS => NSS,
            SD_CLK => SD_CLK,
            SD_SPICLK => SD_SPICLK,
            SD_CS => SD_CS,
            SD_DATAIN => SD_DATAIN,
            SD_DATAOUT => SD_DATAOUT,
            SD_CARD_INIT => SD_CARD_INIT,
            SD_CHECKIN => SD_CHECKIN,
            SD_CHECKOUT => SD_CHECKOUT,
            APB1PADDR => APB1PADDR,
            APB1PENABLE => APB1PENABLE,
            APB1PWRITE => APB1PWRITE,
            APB1PSTRB => APB1PSTRB,
            APB1PPROT => APB1PPROT,
            APB1PWDATA => APB1PWDATA,
            APB1PSEL => APB1PSEL,
            APB1PRDATA => APB1PRDATA,
            APB1PREDADY => APB1PREDADY,
            APB1PSLVERR => APB1PSLVERR,
            APB1PCLK => APB1PCLK,
            APB1PRESET => APB1PRESET,
            APB2PADDR => APB2PADDR,
            APB2PENABLE => APB2PENABLE,
            APB2PWRITE => APB2PWRITE,
            APB2PSTRB => APB2PSTRB,
            APB2PPROT => APB2PPROT,
            APB2PWDATA => APB2PWDATA,
            APB2PSEL => APB2PSEL,
            APB2PRDATA => APB2PRDATA,
            APB2PREDADY => APB2PREDADY,
            APB2PSLVERR => APB2PSLVERR,
            APB2PCLK => APB2PCLK,
            APB2PRESET => APB2PRESET,
            APB3PADDR => APB3PADDR,
            APB3PENABLE => APB3PENABLE,
            APB3PWRITE => APB3PWRITE,
            APB3PSTRB => APB3PSTRB,
            APB3PPROT => APB3PPROT,
            APB3PWDATA => APB3PWDATA,
            APB3PSEL => APB3PSEL,
            APB3PRDATA => APB3PRDATA,
            APB3PREDADY => APB3PREDADY,
            APB3PSLVERR => APB3PSLVERR,
            APB3PCLK => APB3PCLK,
            APB3PRESET => APB3PRESET,
            APB4PADDR => APB4PADDR,
            APB4PENABLE => APB4PENABLE,
            APB4PWRITE => APB4PWRITE,
            APB4PSTRB => APB4PSTRB,
            APB4PPROT => APB4PPROT,
            APB4PWDATA => APB4PWDATA,
            APB4PSEL => APB4PSEL,
            APB4PRDATA => APB4PRDATA,
            APB4PREDADY => APB4PREDADY,
            APB4PSLVERR => APB4PSLVERR,
            APB4PCLK => APB4PCLK,
            APB4PRESET => APB4PRESET,
            APB5PADDR => APB5PADDR,
            APB5PENABLE => APB5PENABLE,
            APB5PWRITE => APB5PWRITE,
            APB5PSTRB => APB5PSTRB,
            APB5PPROT => APB5PPROT,
            APB5PWDATA => APB5PWDATA,
            APB5PSEL => APB5PSEL,
            APB5PRDATA => APB5PRDATA,
            APB5PREDADY => APB5PREDADY,
            APB5PSLVERR => APB5PSLVERR,
            APB5PCLK => APB5PCLK,
            APB5PRESET => APB5PRESET,
            APB6PADDR => APB6PADDR,
            APB6PENABLE => APB6PENABLE,
            APB6PWRITE => APB6PWRITE,
            APB6PSTRB => APB6PSTRB,
            APB6PPROT => APB6PPROT,
            APB6PWDATA => APB6PWDATA,
            APB6PSEL => APB6PSEL,
            APB6PRDATA => APB6PRDATA,
            APB6PREDADY => APB6PREDADY,
            APB6PSLVERR => APB6PSLVERR,
            APB6PCLK => APB6PCLK,
            APB6PRESET => APB6PRESET,
            APB7PADDR => APB7PADDR,
            APB7PENABLE => APB7PENABLE,
            APB7PWRITE => APB7PWRITE,
            APB7PSTRB => APB7PSTRB,
            APB7PPROT => APB7PPROT,
            APB7PWDATA => APB7PWDATA,
            APB7PSEL => APB7PSEL,
            APB7PRDATA => APB7PRDATA,
            APB7PREDADY => APB7PREDADY,
            APB7PSLVERR => APB7PSLVERR,
            APB7PCLK => APB7PCLK,
            APB7PRESET => APB7PRESET,
            APB8PADDR => APB8PADDR,
            APB8PENABLE => APB8PENABLE,
            APB8PWRITE => APB8PWRITE,
            APB8PSTRB => APB8PSTRB,
            APB8PPROT => APB8PPROT,
            APB8PWDATA => APB8PWDATA,
            APB8PSEL => APB8PSEL,
            APB8PRDATA => APB8PRDATA,
            APB8PREDADY => APB8PREDADY,
            APB8PSLVERR => APB8PSLVERR,
            APB8PCLK => APB8PCLK,
            APB8PRESET => APB8PRESET,
            APB9PADDR => APB9PADDR,
            APB9PENABLE => APB9PENABLE,
            APB9PWRITE => APB9PWRITE,
            APB9PSTRB => APB9PSTRB,
            APB9PPROT => APB9PPROT,
            APB9PWDATA => APB9PWDATA,
            APB9PSEL => APB9PSEL,
            APB9PRDATA => APB9PRDATA,
            APB9PREDADY => APB9PREDADY,
            APB9PSLVERR => APB9PSLVERR,
            APB9PCLK => APB9PCLK,
            APB9PRESET => APB9PRESET,
            APB10PADDR => APB10PADDR,
            APB10PENABLE => APB10PENABLE,
            APB10PWRITE => APB10PWRITE,
            APB10PSTRB => APB10PSTRB,
            APB10PPROT => APB10PPROT,
            APB10PWDATA => APB10PWDATA,
            APB10PSEL => APB10PSEL,
            APB10PRDATA => APB10PRDATA,
            APB10PREDADY => APB10PREDADY,
            APB10PSLVERR => APB10PSLVERR,
            APB10PCLK => APB10PCLK,
            APB10PRESET => APB10PRESET,
            APB11PADDR => APB11PADDR,
            APB11PENABLE => APB11PENABLE,
            APB11PWRITE => APB11PWRITE,
            APB11PSTRB => APB11PSTRB,
            APB11PPROT => APB11PPROT,
            APB11PWDATA => APB11PWDATA,
            APB11PSEL => APB11PSEL,
            APB11PRDATA => APB11PRDATA,
            APB11PREDADY => APB11PREDADY,
            APB11PSLVERR => APB11PSLVERR,
            APB11PCLK => APB11PCLK,
            APB11PRESET => APB11PRESET,
            APB12PADDR => APB12PADDR,
            APB12PENABLE => APB12PENABLE,
            APB12PWRITE => APB12PWRITE,
            APB12PSTRB => APB12PSTRB,
            APB12PPROT => APB12PPROT,
            APB12PWDATA => APB12PWDATA,
            APB12PSEL => APB12PSEL,
            APB12PRDATA => APB12PRDATA,
            APB12PREDADY => APB12PREDADY,
            APB12PSLVERR => APB12PSLVERR,
            APB12PCLK => APB12PCLK,
            APB12PRESET => APB12PRESET,
            APB13PADDR => APB13PADDR,
            APB13PENABLE => APB13PENABLE,
            APB13PWRITE => APB13PWRITE,
            APB13PSTRB => APB13PSTRB,
            APB13PPROT => APB13PPROT,
            APB13PWDATA => APB13PWDATA,
            APB13PSEL => APB13PSEL,
            APB13PRDATA => APB13PRDATA,
            APB13PREDADY => APB13PREDADY,
            APB13PSLVERR => APB13PSLVERR,
            APB13PCLK => APB13PCLK,
            APB13PRESET => APB13PRESET,
            APB14PADDR => APB14PADDR,
            APB14PENABLE => APB14PENABLE,
            APB14PWRITE => APB14PWRITE,
            APB14PSTRB => APB14PSTRB,
            APB14PPROT => APB14PPROT,
            APB14PWDATA => APB14PWDATA,
            APB14PSEL => APB14PSEL,
            APB14PRDATA => APB14PRDATA,
            APB14PREDADY => APB14PREDADY,
            APB14PSLVERR => APB14PSLVERR,
            APB14PCLK => APB14PCLK,
            APB14PRESET => APB14PRESET,
            APB15PADDR => APB15PADDR,
            APB15PENABLE => APB15PENABLE,
            APB15PWRITE => APB15PWRITE,
            APB15PSTRB => APB15PSTRB,
            APB15PPROT => APB15PPROT,
            APB15PWDATA => APB15PWDATA,
            APB15PSEL => APB15PSEL,
            APB15PRDATA => APB15PRDATA,
            APB15PREDADY => APB15PREDADY,
            APB15PSLVERR => APB15PSLVERR,
            APB15PCLK => APB15PCLK,
            APB15PRESET => APB15PRESET,
            APB16PADDR => APB16PADDR,
            APB16PENABLE => APB16PENABLE,
            APB16PWRITE => APB16PWRITE,
            APB16PSTRB => APB16PSTRB,
            APB16PPROT => APB16PPROT,
            APB16PWDATA => APB16PWDATA,
            APB16PSEL => APB16PSEL,
            APB16PRDATA => APB16PRDATA,
            APB16PREDADY => APB16PREDADY,
            APB16PSLVERR => APB16PSLVERR,
            APB16PCLK => APB16PCLK,
            APB16PRESET => APB16PRESET
        );
end architecture;
