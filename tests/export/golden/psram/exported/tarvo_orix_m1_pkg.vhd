-- Tarvo_ORIX_M1_Top as a component, VHDL-93: "use work.tarvo_orix_m1_pkg.all;" in a design, and an instance binds to the
-- entity of that name, which the netlist or the simulation model brings, or stays open until there is one.
library ieee;
use ieee.std_logic_1164.all;

package tarvo_orix_m1_pkg is
    component Tarvo_ORIX_M1_Top
        port (
            HCLK             : in    std_logic; -- clocks processor, buses and blocks
            hwRstn           : in    std_logic; -- resets everything, debug included, active low
            LOCKUP           : out   std_logic; -- the processor has stopped after a second fault
            HALTED           : out   std_logic; -- the debugger has stopped the processor
            JTAG_7           : inout std_logic; -- TMS or SWDIO
            JTAG_9           : inout std_logic; -- TCK or SWCLK, clocks the debug port
            JTAG_3           : inout std_logic; -- nTRST, resets the debug port, active low, to be pulled up
            JTAG_4           : inout std_logic; -- driven low
            JTAG_5           : inout std_logic; -- TDI
            JTAG_6           : inout std_logic; -- driven low
            JTAG_8           : inout std_logic; -- driven low
            JTAG_10          : inout std_logic; -- driven low
            JTAG_11          : inout std_logic; -- driven low
            JTAG_12          : inout std_logic; -- driven low
            JTAG_13          : inout std_logic; -- TDO
            JTAG_14          : inout std_logic; -- driven low
            JTAG_15          : inout std_logic; -- nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
            JTAG_16          : inout std_logic; -- driven low
            JTAG_17          : inout std_logic; -- not connected
            JTAG_18          : inout std_logic; -- driven low
            FLASH_SPI_HOLDN  : inout std_logic; -- hold of the flash, always released, active low
            FLASH_SPI_CSN    : inout std_logic; -- chip select of the flash, active low
            FLASH_SPI_MISO   : inout std_logic; -- data from the flash
            FLASH_SPI_MOSI   : inout std_logic; -- data to the flash
            FLASH_SPI_WPN    : inout std_logic; -- write protection of the flash, active low
            FLASH_SPI_CLK    : inout std_logic; -- clock of the flash
            O_psram_ck       : out   std_logic_vector(1 downto 0); -- clocks of the memory
            O_psram_ck_n     : out   std_logic_vector(1 downto 0); -- the same, inverted
            IO_psram_rwds    : inout std_logic_vector(1 downto 0); -- strobes of the memory
            IO_psram_dq      : inout std_logic_vector(15 downto 0); -- data of the memory
            O_psram_reset_n  : out   std_logic_vector(1 downto 0); -- resets the memory, active low
            O_psram_cs_n     : out   std_logic_vector(1 downto 0); -- chip selects of the memory, active low
            init_calib       : out   std_logic; -- the PSRAM is calibrated
            psram_ref_clk    : in    std_logic; -- reference clock of the PSRAM interface
            psram_memory_clk : in    std_logic  -- clock of the PSRAM
        );
    end component;
end package;
