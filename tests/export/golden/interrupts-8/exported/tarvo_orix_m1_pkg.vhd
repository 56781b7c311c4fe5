-- Tarvo_ORIX_M1_Top as a component, VHDL-93: "use work.tarvo_orix_m1_pkg.all;" in a design, and an instance binds to the
-- entity of that name, which the netlist or the simulation model brings, or stays open until there is one.
library ieee;
use ieee.std_logic_1164.all;

package tarvo_orix_m1_pkg is
    component Tarvo_ORIX_M1_Top
        port (
            HCLK        : in    std_logic; -- clocks processor, buses and blocks
            hwRstn      : in    std_logic; -- resets everything, debug included, active low
            LOCKUP      : out   std_logic; -- the processor has stopped after a second fault
            HALTED      : out   std_logic; -- the debugger has stopped the processor
            JTAG_7      : inout std_logic; -- TMS or SWDIO
            JTAG_9      : inout std_logic; -- TCK or SWCLK, clocks the debug port
            JTAG_3      : inout std_logic; -- nTRST, resets the debug port, active low, to be pulled up
            JTAG_4      : inout std_logic; -- driven low
            JTAG_5      : inout std_logic; -- TDI
            JTAG_6      : inout std_logic; -- driven low
            JTAG_8      : inout std_logic; -- driven low
            JTAG_10     : inout std_logic; -- driven low
            JTAG_11     : inout std_logic; -- driven low
            JTAG_12     : inout std_logic; -- driven low
            JTAG_13     : inout std_logic; -- TDO
            JTAG_14     : inout std_logic; -- driven low
            JTAG_15     : inout std_logic; -- nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
            JTAG_16     : inout std_logic; -- driven low
            JTAG_17     : inout std_logic; -- not connected
            JTAG_18     : inout std_logic; -- driven low
            EXTINT      : in    std_logic_vector(3 downto 0); -- interrupts 12 (bit 0) to 15 (bit 3), requested while high
            GPIOIN      : in    std_logic_vector(15 downto 0); -- levels of the pins
            GPIOOUT     : out   std_logic_vector(15 downto 0); -- values for the pins
            GPIOOUTEN   : out   std_logic_vector(15 downto 0); -- 1 drives the pin
            UART0RXD    : in    std_logic; -- serial data to receive
            UART0TXD    : out   std_logic; -- serial data sent
            TIMER1EXTIN : in    std_logic; -- gate or events of the timer
            MOSI        : out   std_logic; -- data to the slave
            MISO        : in    std_logic; -- data from the slave
            SCLK        : out   std_logic; -- clock of the slave
            NSS         : out   std_logic  -- slave select, active low
        );
    end component;
end package;
