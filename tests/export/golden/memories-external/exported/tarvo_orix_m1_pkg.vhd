-- Tarvo_ORIX_M1_Top as a component, VHDL-93: "use work.tarvo_orix_m1_pkg.all;" in a design, and an instance binds to the
-- entity of that name, which the netlist or the simulation model brings, or stays open until there is one.
library ieee;
use ieee.std_logic_1164.all;

package tarvo_orix_m1_pkg is
    component Tarvo_ORIX_M1_Top
        port (
            HCLK               : in    std_logic; -- clocks processor, buses and blocks
            hwRstn             : in    std_logic; -- resets everything, debug included, active low
            LOCKUP             : out   std_logic; -- the processor has stopped after a second fault
            HALTED             : out   std_logic; -- the debugger has stopped the processor
            JTAG_7             : inout std_logic; -- TMS or SWDIO
            JTAG_9             : inout std_logic; -- TCK or SWCLK, clocks the debug port
            JTAG_3             : inout std_logic; -- nTRST, resets the debug port, active low, to be pulled up
            JTAG_4             : inout std_logic; -- driven low
            JTAG_5             : inout std_logic; -- TDI
            JTAG_6             : inout std_logic; -- driven low
            JTAG_8             : inout std_logic; -- driven low
            JTAG_10            : inout std_logic; -- driven low
            JTAG_11            : inout std_logic; -- driven low
            JTAG_12            : inout std_logic; -- driven low
            JTAG_13            : inout std_logic; -- TDO
            JTAG_14            : inout std_logic; -- driven low
            JTAG_15            : inout std_logic; -- nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
            JTAG_16            : inout std_logic; -- driven low
            JTAG_17            : inout std_logic; -- not connected
            JTAG_18            : inout std_logic; -- driven low
            EXTFLASH0HRDATA    : in    std_logic_vector(31 downto 0); -- data read, of EXTFLASH
            EXTFLASH0HREADYOUT : in    std_logic; -- the slave has finished, of EXTFLASH
            EXTFLASH0HRESP     : in    std_logic_vector(1 downto 0); -- response; any value but 0 is an error, of EXTFLASH
            EXTFLASH0HTRANS    : out   std_logic_vector(1 downto 0); -- kind of the transfer, of EXTFLASH
            EXTFLASH0HBURST    : out   std_logic_vector(2 downto 0); -- kind of the burst, of EXTFLASH
            EXTFLASH0HPROT     : out   std_logic_vector(3 downto 0); -- protection of the transfer, of EXTFLASH
            EXTFLASH0HSIZE     : out   std_logic_vector(2 downto 0); -- size of the transfer, of EXTFLASH
            EXTFLASH0HWRITE    : out   std_logic; -- 1 writes, of EXTFLASH
            EXTFLASH0HREADYMUX : out   std_logic; -- the transfer before has finished, of EXTFLASH
            EXTFLASH0HMASTER   : out   std_logic_vector(3 downto 0); -- number of the master, of EXTFLASH
            EXTFLASH0HMASTLOCK : out   std_logic; -- the transfer is locked, of EXTFLASH
            EXTFLASH0HADDR     : out   std_logic_vector(31 downto 0); -- address, of EXTFLASH
            EXTFLASH0HWDATA    : out   std_logic_vector(31 downto 0); -- data written, of EXTFLASH
            EXTFLASH0HSEL      : out   std_logic; -- the address is one of the port, of EXTFLASH
            EXTFLASH0HCLK      : out   std_logic; -- clock of the port, of EXTFLASH
            EXTFLASH0HRESET    : out   std_logic; -- reset of the port, of EXTFLASH, active low
            EXTSRAM0HRDATA     : in    std_logic_vector(31 downto 0); -- data read, of EXTSRAM
            EXTSRAM0HREADYOUT  : in    std_logic; -- the slave has finished, of EXTSRAM
            EXTSRAM0HRESP      : in    std_logic_vector(1 downto 0); -- response; any value but 0 is an error, of EXTSRAM
            EXTSRAM0HTRANS     : out   std_logic_vector(1 downto 0); -- kind of the transfer, of EXTSRAM
            EXTSRAM0HBURST     : out   std_logic_vector(2 downto 0); -- kind of the burst, of EXTSRAM
            EXTSRAM0HPROT      : out   std_logic_vector(3 downto 0); -- protection of the transfer, of EXTSRAM
            EXTSRAM0HSIZE      : out   std_logic_vector(2 downto 0); -- size of the transfer, of EXTSRAM
            EXTSRAM0HWRITE     : out   std_logic; -- 1 writes, of EXTSRAM
            EXTSRAM0HREADYMUX  : out   std_logic; -- the transfer before has finished, of EXTSRAM
            EXTSRAM0HMASTER    : out   std_logic_vector(3 downto 0); -- number of the master, of EXTSRAM
            EXTSRAM0HMASTLOCK  : out   std_logic; -- the transfer is locked, of EXTSRAM
            EXTSRAM0HADDR      : out   std_logic_vector(31 downto 0); -- address, of EXTSRAM
            EXTSRAM0HWDATA     : out   std_logic_vector(31 downto 0); -- data written, of EXTSRAM
            EXTSRAM0HSEL       : out   std_logic; -- the address is one of the port, of EXTSRAM
            EXTSRAM0HCLK       : out   std_logic; -- clock of the port, of EXTSRAM
            EXTSRAM0HRESET     : out   std_logic; -- reset of the port, of EXTSRAM, active low
            UART0RXD           : in    std_logic; -- serial data to receive
            UART0TXD           : out   std_logic  -- serial data sent
        );
    end component;
end package;
