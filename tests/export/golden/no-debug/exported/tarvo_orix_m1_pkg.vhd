-- Tarvo_ORIX_M1_Top as a component, VHDL-93: "use work.tarvo_orix_m1_pkg.all;" in a design, and an instance binds to the
-- entity of that name, which the netlist or the simulation model brings, or stays open until there is one.
library ieee;
use ieee.std_logic_1164.all;

package tarvo_orix_m1_pkg is
    component Tarvo_ORIX_M1_Top
        port (
            HCLK     : in    std_logic; -- clocks processor, buses and blocks
            hwRstn   : in    std_logic; -- resets everything, debug included, active low
            LOCKUP   : out   std_logic; -- the processor has stopped after a second fault
            UART1RXD : in    std_logic; -- serial data to receive
            UART1TXD : out   std_logic  -- serial data sent
        );
    end component;
end package;
