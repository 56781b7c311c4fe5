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
    signal UART0RXD : std_logic := '1'; -- serial data to receive
    signal UART0TXD : std_logic; -- serial data sent
    signal UART1RXD : std_logic := '1'; -- serial data to receive
    signal UART1TXD : std_logic; -- serial data sent
    signal TIMER0EXTIN : std_logic := '0'; -- gate or events of the timer
    signal RTCSRCCLK : std_logic := '0'; -- source clock of the seconds, sampled with HCLK and slower than HCLK / 4
    signal SCL : std_logic; -- clock of the bus, to be pulled up
    signal SDA : std_logic; -- data of the bus, to be pulled up
    signal MOSI : std_logic; -- data to the slave
    signal MISO : std_logic := '0'; -- data from the slave
    signal SCLK : std_logic; -- clock of the slave
    signal NSS : std_logic; -- slave select, active low
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
            UART0RXD => UART0RXD,
            UART0TXD => UART0TXD,
            UART1RXD => UART1RXD,
            UART1TXD => UART1TXD,
            TIMER0EXTIN => TIMER0EXTIN,
            RTCSRCCLK => RTCSRCCLK,
            SCL => SCL,
            SDA => SDA,
            MOSI => MOSI,
            MISO => MISO,
            SCLK => SCLK,
            NSS => NSS,
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
            APB2PRESET => APB2PRESET
        );
end architecture;
