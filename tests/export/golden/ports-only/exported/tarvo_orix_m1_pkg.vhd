-- Tarvo_ORIX_M1_Top as a component, VHDL-93: "use work.tarvo_orix_m1_pkg.all;" in a design, and an instance binds to the
-- entity of that name, which the netlist or the simulation model brings, or stays open until there is one.
library ieee;
use ieee.std_logic_1164.all;

package tarvo_orix_m1_pkg is
    component Tarvo_ORIX_M1_Top
        port (
            HCLK          : in    std_logic; -- clocks processor, buses and blocks
            hwRstn        : in    std_logic; -- resets everything, debug included, active low
            LOCKUP        : out   std_logic; -- the processor has stopped after a second fault
            HALTED        : out   std_logic; -- the debugger has stopped the processor
            JTAG_7        : inout std_logic; -- TMS or SWDIO
            JTAG_9        : inout std_logic; -- TCK or SWCLK, clocks the debug port
            JTAG_3        : inout std_logic; -- nTRST, resets the debug port, active low, to be pulled up
            JTAG_4        : inout std_logic; -- driven low
            JTAG_5        : inout std_logic; -- TDI
            JTAG_6        : inout std_logic; -- driven low
            JTAG_8        : inout std_logic; -- driven low
            JTAG_10       : inout std_logic; -- driven low
            JTAG_11       : inout std_logic; -- driven low
            JTAG_12       : inout std_logic; -- driven low
            JTAG_13       : inout std_logic; -- TDO
            JTAG_14       : inout std_logic; -- driven low
            JTAG_15       : inout std_logic; -- nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
            JTAG_16       : inout std_logic; -- driven low
            JTAG_17       : inout std_logic; -- not connected
            JTAG_18       : inout std_logic; -- driven low
            AHB1HRDATA    : in    std_logic_vector(31 downto 0); -- data read, of AHB1
            AHB1HREADYOUT : in    std_logic; -- the slave has finished, of AHB1
            AHB1HRESP     : in    std_logic_vector(1 downto 0); -- response; any value but 0 is an error, of AHB1
            AHB1HTRANS    : out   std_logic_vector(1 downto 0); -- kind of the transfer, of AHB1
            AHB1HBURST    : out   std_logic_vector(2 downto 0); -- kind of the burst, of AHB1
            AHB1HPROT     : out   std_logic_vector(3 downto 0); -- protection of the transfer, of AHB1
            AHB1HSIZE     : out   std_logic_vector(2 downto 0); -- size of the transfer, of AHB1
            AHB1HWRITE    : out   std_logic; -- 1 writes, of AHB1
            AHB1HREADYMUX : out   std_logic; -- the transfer before has finished, of AHB1
            AHB1HMASTER   : out   std_logic_vector(3 downto 0); -- number of the master, of AHB1
            AHB1HMASTLOCK : out   std_logic; -- the transfer is locked, of AHB1
            AHB1HADDR     : out   std_logic_vector(31 downto 0); -- address, of AHB1
            AHB1HWDATA    : out   std_logic_vector(31 downto 0); -- data written, of AHB1
            AHB1HSEL      : out   std_logic; -- the address is one of the port, of AHB1
            AHB1HCLK      : out   std_logic; -- clock of the port, of AHB1
            AHB1HRESET    : out   std_logic; -- reset of the port, of AHB1, active low
            APB16PADDR    : out   std_logic_vector(31 downto 0); -- address, of APB16
            APB16PENABLE  : out   std_logic; -- second and further cycles of the transfer, of APB16
            APB16PWRITE   : out   std_logic; -- 1 writes, of APB16
            APB16PSTRB    : out   std_logic_vector(3 downto 0); -- bytes that are written, of APB16
            APB16PPROT    : out   std_logic_vector(2 downto 0); -- protection of the transfer, of APB16
            APB16PWDATA   : out   std_logic_vector(31 downto 0); -- data written, of APB16
            APB16PSEL     : out   std_logic; -- the address is one of the port, of APB16
            APB16PRDATA   : in    std_logic_vector(31 downto 0); -- data read, of APB16
            APB16PREDADY  : in    std_logic; -- the slave has finished, of APB16
            APB16PSLVERR  : in    std_logic; -- the transfer has failed, of APB16
            APB16PCLK     : out   std_logic; -- clock of the port, of APB16
            APB16PRESET   : out   std_logic  -- reset of the port, of APB16, active low
        );
    end component;
end package;
