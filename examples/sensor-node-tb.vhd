-- A board for the VHDL simulation model of sensor-node.ipc: UART0 and UART1 are connected to each other, the upper eight GPIO
-- pins show the lower ones, MISO hears MOSI. The processor's model plays a script of bus transfers; when it has, the clock stops.
library ieee;
use ieee.std_logic_1164.all;
use work.cortex_m1_core_bfm;

entity sensor_node_tb is
    generic (script : string := "play.txt");
end entity;

architecture board of sensor_node_tb is
    signal clk, rtc_clk, power_good : std_logic := '0';
    signal gpio : std_logic_vector(15 downto 0);
    signal from_uart0, from_uart1, mosi : std_logic;
    signal scl, sda, ntrst, tms, tck, tdi, srst : std_logic;
    signal apb1_pwdata : std_logic_vector(31 downto 0);
    signal apb1_psel, apb1_penable, apb1_pwrite : std_logic;
    -- A register on the first APB extension port.
    signal remembered : std_logic_vector(31 downto 0) := (others => '0');
begin
    cortex_m1_core_bfm.script <= cortex_m1_core_bfm.script_of(script);
    process
    begin
        while to_x01(cortex_m1_core_bfm.done) /= '1' loop
            wait for 10 ns;
            clk <= not clk;
        end loop;
        wait;
    end process;
    process
    begin
        while to_x01(cortex_m1_core_bfm.done) /= '1' loop
            wait for 160 ns;
            rtc_clk <= not rtc_clk;
        end loop;
        wait;
    end process;
    power_good <= '1' after 200 ns;

    gpio(15 downto 8) <= gpio(7 downto 0);
    scl <= 'H';
    sda <= 'H';
    ntrst <= 'H';
    tms <= 'H';
    tck <= 'H';
    tdi <= 'H';
    srst <= 'H';

    process (clk)
    begin
        if rising_edge(clk) and apb1_psel = '1' and apb1_penable = '1' and apb1_pwrite = '1' then
            remembered <= apb1_pwdata;
        end if;
    end process;

    dut : entity work.Tarvo_ORIX_M1_Top
        port map (
            HCLK => clk, hwRstn => power_good, EXTINT => "0000",
            JTAG_3 => ntrst, JTAG_5 => tdi, JTAG_7 => tms, JTAG_9 => tck, JTAG_15 => srst,
            GPIO => gpio, UART0RXD => from_uart1, UART0TXD => from_uart0, UART1RXD => from_uart0, UART1TXD => from_uart1,
            TIMER0EXTIN => '0', RTCSRCCLK => rtc_clk, SCL => scl, SDA => sda, MOSI => mosi, MISO => mosi,
            AHB1HRDATA => X"A0000001", AHB1HREADYOUT => '1', AHB1HRESP => "00",
            APB1PSEL => apb1_psel, APB1PENABLE => apb1_penable, APB1PWRITE => apb1_pwrite,
            APB1PWDATA => apb1_pwdata, APB1PRDATA => remembered, APB1PREDADY => '1', APB1PSLVERR => '0',
            APB2PRDATA => X"00000000", APB2PREDADY => '1', APB2PSLVERR => '1'
        );
end architecture;
