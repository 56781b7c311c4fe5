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
    signal GPIOIN : std_logic_vector(15 downto 0) := (others => '0'); -- levels of the pins
    signal GPIOOUT : std_logic_vector(15 downto 0); -- values for the pins
    signal GPIOOUTEN : std_logic_vector(15 downto 0); -- 1 drives the pin
    signal UART0RXD : std_logic := '1'; -- serial data to receive
    signal UART0TXD : std_logic; -- serial data sent
    signal TIMER1EXTIN : std_logic := '0'; -- gate or events of the timer
    signal MOSI : std_logic; -- data to the slave
    signal MISO : std_logic := '0'; -- data from the slave
    signal SCLK : std_logic; -- clock of the slave
    signal NSS : std_logic; -- slave select, active low
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
            GPIOIN => GPIOIN,
            GPIOOUT => GPIOOUT,
            GPIOOUTEN => GPIOOUTEN,
            UART0RXD => UART0RXD,
            UART0TXD => UART0TXD,
            TIMER1EXTIN => TIMER1EXTIN,
            MOSI => MOSI,
            MISO => MISO,
            SCLK => SCLK,
            NSS => NSS
        );
end architecture;
