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
    signal EXTFLASH0HRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of EXTFLASH
    signal EXTFLASH0HREADYOUT : std_logic := '1'; -- the slave has finished, of EXTFLASH
    signal EXTFLASH0HRESP : std_logic_vector(1 downto 0) := (others => '0'); -- response; any value but 0 is an error, of EXTFLASH
    signal EXTFLASH0HTRANS : std_logic_vector(1 downto 0); -- kind of the transfer, of EXTFLASH
    signal EXTFLASH0HBURST : std_logic_vector(2 downto 0); -- kind of the burst, of EXTFLASH
    signal EXTFLASH0HPROT : std_logic_vector(3 downto 0); -- protection of the transfer, of EXTFLASH
    signal EXTFLASH0HSIZE : std_logic_vector(2 downto 0); -- size of the transfer, of EXTFLASH
    signal EXTFLASH0HWRITE : std_logic; -- 1 writes, of EXTFLASH
    signal EXTFLASH0HREADYMUX : std_logic; -- the transfer before has finished, of EXTFLASH
    signal EXTFLASH0HMASTER : std_logic_vector(3 downto 0); -- number of the master, of EXTFLASH
    signal EXTFLASH0HMASTLOCK : std_logic; -- the transfer is locked, of EXTFLASH
    signal EXTFLASH0HADDR : std_logic_vector(31 downto 0); -- address, of EXTFLASH
    signal EXTFLASH0HWDATA : std_logic_vector(31 downto 0); -- data written, of EXTFLASH
    signal EXTFLASH0HSEL : std_logic; -- the address is one of the port, of EXTFLASH
    signal EXTFLASH0HCLK : std_logic; -- clock of the port, of EXTFLASH
    signal EXTFLASH0HRESET : std_logic; -- reset of the port, of EXTFLASH, active low
    signal EXTSRAM0HRDATA : std_logic_vector(31 downto 0) := (others => '0'); -- data read, of EXTSRAM
    signal EXTSRAM0HREADYOUT : std_logic := '1'; -- the slave has finished, of EXTSRAM
    signal EXTSRAM0HRESP : std_logic_vector(1 downto 0) := (others => '0'); -- response; any value but 0 is an error, of EXTSRAM
    signal EXTSRAM0HTRANS : std_logic_vector(1 downto 0); -- kind of the transfer, of EXTSRAM
    signal EXTSRAM0HBURST : std_logic_vector(2 downto 0); -- kind of the burst, of EXTSRAM
    signal EXTSRAM0HPROT : std_logic_vector(3 downto 0); -- protection of the transfer, of EXTSRAM
    signal EXTSRAM0HSIZE : std_logic_vector(2 downto 0); -- size of the transfer, of EXTSRAM
    signal EXTSRAM0HWRITE : std_logic; -- 1 writes, of EXTSRAM
    signal EXTSRAM0HREADYMUX : std_logic; -- the transfer before has finished, of EXTSRAM
    signal EXTSRAM0HMASTER : std_logic_vector(3 downto 0); -- number of the master, of EXTSRAM
    signal EXTSRAM0HMASTLOCK : std_logic; -- the transfer is locked, of EXTSRAM
    signal EXTSRAM0HADDR : std_logic_vector(31 downto 0); -- address, of EXTSRAM
    signal EXTSRAM0HWDATA : std_logic_vector(31 downto 0); -- data written, of EXTSRAM
    signal EXTSRAM0HSEL : std_logic; -- the address is one of the port, of EXTSRAM
    signal EXTSRAM0HCLK : std_logic; -- clock of the port, of EXTSRAM
    signal EXTSRAM0HRESET : std_logic; -- reset of the port, of EXTSRAM, active low
    signal UART0RXD : std_logic := '1'; -- serial data to receive
    signal UART0TXD : std_logic; -- serial data sent
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
            EXTFLASH0HRDATA => EXTFLASH0HRDATA,
            EXTFLASH0HREADYOUT => EXTFLASH0HREADYOUT,
            EXTFLASH0HRESP => EXTFLASH0HRESP,
            EXTFLASH0HTRANS => EXTFLASH0HTRANS,
            EXTFLASH0HBURST => EXTFLASH0HBURST,
            EXTFLASH0HPROT => EXTFLASH0HPROT,
            EXTFLASH0HSIZE => EXTFLASH0HSIZE,
            EXTFLASH0HWRITE => EXTFLASH0HWRITE,
            EXTFLASH0HREADYMUX => EXTFLASH0HREADYMUX,
            EXTFLASH0HMASTER => EXTFLASH0HMASTER,
            EXTFLASH0HMASTLOCK => EXTFLASH0HMASTLOCK,
            EXTFLASH0HADDR => EXTFLASH0HADDR,
            EXTFLASH0HWDATA => EXTFLASH0HWDATA,
            EXTFLASH0HSEL => EXTFLASH0HSEL,
            EXTFLASH0HCLK => EXTFLASH0HCLK,
            EXTFLASH0HRESET => EXTFLASH0HRESET,
            EXTSRAM0HRDATA => EXTSRAM0HRDATA,
            EXTSRAM0HREADYOUT => EXTSRAM0HREADYOUT,
            EXTSRAM0HRESP => EXTSRAM0HRESP,
            EXTSRAM0HTRANS => EXTSRAM0HTRANS,
            EXTSRAM0HBURST => EXTSRAM0HBURST,
            EXTSRAM0HPROT => EXTSRAM0HPROT,
            EXTSRAM0HSIZE => EXTSRAM0HSIZE,
            EXTSRAM0HWRITE => EXTSRAM0HWRITE,
            EXTSRAM0HREADYMUX => EXTSRAM0HREADYMUX,
            EXTSRAM0HMASTER => EXTSRAM0HMASTER,
            EXTSRAM0HMASTLOCK => EXTSRAM0HMASTLOCK,
            EXTSRAM0HADDR => EXTSRAM0HADDR,
            EXTSRAM0HWDATA => EXTSRAM0HWDATA,
            EXTSRAM0HSEL => EXTSRAM0HSEL,
            EXTSRAM0HCLK => EXTSRAM0HCLK,
            EXTSRAM0HRESET => EXTSRAM0HRESET,
            UART0RXD => UART0RXD,
            UART0TXD => UART0TXD
        );
end architecture;
