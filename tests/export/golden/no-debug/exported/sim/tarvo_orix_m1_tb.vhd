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
    signal UART1RXD : std_logic := '1'; -- serial data to receive
    signal UART1TXD : std_logic; -- serial data sent
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

    u_dut : Tarvo_ORIX_M1_Top
        port map (
            HCLK => HCLK,
            hwRstn => hwRstn,
            LOCKUP => LOCKUP,
            UART1RXD => UART1RXD,
            UART1TXD => UART1TXD
        );
end architecture;
