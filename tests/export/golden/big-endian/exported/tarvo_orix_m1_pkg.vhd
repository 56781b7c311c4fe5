-- Tarvo_ORIX_M1_Top as a component, VHDL-93: "use work.tarvo_orix_m1_pkg.all;" in a design, and an instance binds to the
-- entity of that name, which the netlist or the simulation model brings, or stays open until there is one.
library ieee;
use ieee.std_logic_1164.all;

package tarvo_orix_m1_pkg is
    component Tarvo_ORIX_M1_Top
        port (
            HCLK            : in    std_logic; -- clocks processor, buses and blocks
            hwRstn          : in    std_logic; -- resets everything, debug included, active low
            LOCKUP          : out   std_logic; -- the processor has stopped after a second fault
            HALTED          : out   std_logic; -- the debugger has stopped the processor
            JTAG_7          : inout std_logic; -- TMS or SWDIO
            JTAG_9          : inout std_logic; -- TCK or SWCLK, clocks the debug port
            JTAG_3          : inout std_logic; -- nTRST, resets the debug port, active low, to be pulled up
            JTAG_4          : inout std_logic; -- driven low
            JTAG_5          : inout std_logic; -- TDI
            JTAG_6          : inout std_logic; -- driven low
            JTAG_8          : inout std_logic; -- driven low
            JTAG_10         : inout std_logic; -- driven low
            JTAG_11         : inout std_logic; -- driven low
            JTAG_12         : inout std_logic; -- driven low
            JTAG_13         : inout std_logic; -- TDO
            JTAG_14         : inout std_logic; -- driven low
            JTAG_15         : inout std_logic; -- nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
            JTAG_16         : inout std_logic; -- driven low
            JTAG_17         : inout std_logic; -- not connected
            JTAG_18         : inout std_logic; -- driven low
            GPIO            : inout std_logic_vector(15 downto 0); -- pins
            FLASH_SPI_HOLDN : inout std_logic; -- hold of the flash, always released, active low
            FLASH_SPI_CSN   : inout std_logic; -- chip select of the flash, active low
            FLASH_SPI_MISO  : inout std_logic; -- data from the flash
            FLASH_SPI_MOSI  : inout std_logic; -- data to the flash
            FLASH_SPI_WPN   : inout std_logic; -- write protection of the flash, active low
            FLASH_SPI_CLK   : inout std_logic; -- clock of the flash
            UART0RXD        : in    std_logic; -- serial data to receive
            UART0TXD        : out   std_logic; -- serial data sent
            UART1RXD        : in    std_logic; -- serial data to receive
            UART1TXD        : out   std_logic; -- serial data sent
            TIMER0EXTIN     : in    std_logic; -- gate or events of the timer
            TIMER1EXTIN     : in    std_logic; -- gate or events of the timer
            RTCSRCCLK       : in    std_logic; -- source clock of the seconds, sampled with HCLK and slower than HCLK / 4
            SCL             : inout std_logic; -- clock of the bus, to be pulled up
            SDA             : inout std_logic; -- data of the bus, to be pulled up
            MOSI            : out   std_logic; -- data to the slave
            MISO            : in    std_logic; -- data from the slave
            SCLK            : out   std_logic; -- clock of the slave
            NSS             : out   std_logic; -- slave select, active low
            SD_CLK          : out   std_logic; -- clock of the card
            SD_SPICLK       : in    std_logic; -- source clock of SD_CLK, sampled with HCLK and slower than HCLK / 4
            SD_CS           : out   std_logic; -- chip select of the card, active low
            SD_DATAIN       : in    std_logic; -- data from the card
            SD_DATAOUT      : out   std_logic; -- data to the card
            SD_CARD_INIT    : out   std_logic; -- software has initialised the card
            SD_CHECKIN      : in    std_logic; -- switch of the card's socket, low with a card, active low
            SD_CHECKOUT     : out   std_logic  -- a card is present
        );
    end component;
end package;
