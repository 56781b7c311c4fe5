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
    signal GPIO : std_logic_vector(15 downto 0); -- pins
    signal FLASH_SPI_HOLDN : std_logic; -- hold of the flash, always released, active low
    signal FLASH_SPI_CSN : std_logic; -- chip select of the flash, active low
    signal FLASH_SPI_MISO : std_logic; -- data from the flash
    signal FLASH_SPI_MOSI : std_logic; -- data to the flash
    signal FLASH_SPI_WPN : std_logic; -- write protection of the flash, active low
    signal FLASH_SPI_CLK : std_logic; -- clock of the flash
    signal UART0RXD : std_logic := '1'; -- serial data to receive
    signal UART0TXD : std_logic; -- serial data sent
    signal UART1RXD : std_logic := '1'; -- serial data to receive
    signal UART1TXD : std_logic; -- serial data sent
    signal TIMER0EXTIN : std_logic := '0'; -- gate or events of the timer
    signal TIMER1EXTIN : std_logic := '0'; -- gate or events of the timer
    signal RTCSRCCLK : std_logic := '0'; -- source clock of the seconds, sampled with HCLK and slower than HCLK / 4
    signal SCL : std_logic; -- clock of the bus, to be pulled up
    signal SDA : std_logic; -- data of the bus, to be pulled up
    signal MOSI : std_logic; -- data to the slave
    signal MISO : std_logic := '0'; -- data from the slave
    signal SCLK : std_logic; -- clock of the slave
    signal NSS : std_logic; -- slave select, active low
    signal SD_CLK : std_logic; -- clock of the card
    signal SD_SPICLK : std_logic := '0'; -- source clock of SD_CLK, sampled with HCLK and slower than HCLK / 4
    signal SD_CS : std_logic; -- chip select of the card, active low
    signal SD_DATAIN : std_logic := '1'; -- data from the card
    signal SD_DATAOUT : std_logic; -- data to the card
    signal SD_CARD_INIT : std_logic; -- software has initialised the card
    signal SD_CHECKIN : std_logic := '1'; -- switch of the card's socket, low with a card, active low
    signal SD_CHECKOUT : std_logic; -- a card is present
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
    FLASH_SPI_HOLDN <= 'L';
    FLASH_SPI_CSN <= 'L';
    FLASH_SPI_MISO <= 'L';
    FLASH_SPI_MOSI <= 'L';
    FLASH_SPI_WPN <= 'L';
    FLASH_SPI_CLK <= 'L';
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
            GPIO => GPIO,
            FLASH_SPI_HOLDN => FLASH_SPI_HOLDN,
            FLASH_SPI_CSN => FLASH_SPI_CSN,
            FLASH_SPI_MISO => FLASH_SPI_MISO,
            FLASH_SPI_MOSI => FLASH_SPI_MOSI,
            FLASH_SPI_WPN => FLASH_SPI_WPN,
            FLASH_SPI_CLK => FLASH_SPI_CLK,
            UART0RXD => UART0RXD,
            UART0TXD => UART0TXD,
            UART1RXD => UART1RXD,
            UART1TXD => UART1TXD,
            TIMER0EXTIN => TIMER0EXTIN,
            TIMER1EXTIN => TIMER1EXTIN,
            RTCSRCCLK => RTCSRCCLK,
            SCL => SCL,
            SDA => SDA,
            MOSI => MOSI,
            MISO => MISO,
            SCLK => SCLK,
            NSS => NSS,
            SD_CLK => SD_CLK,
            SD_SPICLK => SD_SPICLK,
            SD_CS => SD_CS,
            SD_DATAIN => SD_DATAIN,
            SD_DATAOUT => SD_DATAOUT,
            SD_CARD_INIT => SD_CARD_INIT,
            SD_CHECKIN => SD_CHECKIN,
            SD_CHECKOUT => SD_CHECKOUT
        );
end architecture;
