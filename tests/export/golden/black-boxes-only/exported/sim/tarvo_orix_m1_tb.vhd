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
    signal CAN_RX : std_logic := '1'; -- from the transceiver
    signal CAN_TX : std_logic; -- to the transceiver
    signal MDC : std_logic; -- management clock of the PHY
    signal MDIO : std_logic; -- management data of the PHY, to be pulled up
    signal MII_RX_CLK : std_logic := '0'; -- receive clock of the PHY
    signal MII_RXD : std_logic_vector(3 downto 0) := (others => '0'); -- receive data
    signal MII_RX_DV : std_logic := '0'; -- receive data are valid
    signal MII_RX_ER : std_logic := '0'; -- receive error
    signal MII_TX_CLK : std_logic := '0'; -- transmit clock of the PHY
    signal MII_TXD : std_logic_vector(3 downto 0); -- transmit data
    signal MII_TX_EN : std_logic; -- transmit data are valid
    signal MII_TX_ER : std_logic; -- transmit error
    signal MII_COL : std_logic := '0'; -- collision
    signal MII_CRS : std_logic := '0'; -- carrier
    signal DDR_STOP_O : std_logic; -- asks to stop DDR_MEM_CLK_I while its phase changes
    signal DDR_CLK_I : std_logic := '0'; -- reference clock of the DDR3 controller
    signal DDR_MEM_CLK_I : std_logic := '0'; -- clock of the DDR3 interface
    signal DDR_LOCK_I : std_logic := '0'; -- DDR_MEM_CLK_I is stable
    signal DDR_RSTN_I : std_logic; -- resets the DDR3 controller, active low
    signal DDR_INIT_COMPLETE_O : std_logic; -- the DDR3 memory is ready
    signal DDR_ADDR_O : std_logic_vector(15 downto 0); -- address of the memory
    signal DDR_BA_O : std_logic_vector(2 downto 0); -- bank of the memory
    signal DDR_CS_N_O : std_logic; -- chip select of the memory, active low
    signal DDR_RAS_N_O : std_logic; -- row address strobe, active low
    signal DDR_CAS_N_O : std_logic; -- column address strobe, active low
    signal DDR_WE_N_O : std_logic; -- write enable, active low
    signal DDR_CLK_O : std_logic; -- clock of the memory
    signal DDR_CLK_N_O : std_logic; -- the same, inverted
    signal DDR_CKE_O : std_logic; -- clock enable
    signal DDR_ODT_O : std_logic; -- termination
    signal DDR_RESET_N_O : std_logic; -- resets the memory, active low
    signal DDR_DQM_O : std_logic_vector(1 downto 0); -- masks of the data
    signal DDR_DQ_IO : std_logic_vector(15 downto 0); -- data of the memory
    signal DDR_DQS_IO : std_logic_vector(1 downto 0); -- strobes of the data
    signal DDR_DQS_N_IO : std_logic_vector(1 downto 0); -- the same, inverted
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
    MDIO <= 'H';
    DDR_RSTN_I <= hwRstn;
    DDR_DQ_IO <= (others => 'L');
    DDR_DQS_IO <= (others => 'L');
    DDR_DQS_N_IO <= (others => 'L');

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
            CAN_RX => CAN_RX,
            CAN_TX => CAN_TX,
            MDC => MDC,
            MDIO => MDIO,
            MII_RX_CLK => MII_RX_CLK,
            MII_RXD => MII_RXD,
            MII_RX_DV => MII_RX_DV,
            MII_RX_ER => MII_RX_ER,
            MII_TX_CLK => MII_TX_CLK,
            MII_TXD => MII_TXD,
            MII_TX_EN => MII_TX_EN,
            MII_TX_ER => MII_TX_ER,
            MII_COL => MII_COL,
            MII_CRS => MII_CRS,
            DDR_STOP_O => DDR_STOP_O,
            DDR_CLK_I => DDR_CLK_I,
            DDR_MEM_CLK_I => DDR_MEM_CLK_I,
            DDR_LOCK_I => DDR_LOCK_I,
            DDR_RSTN_I => DDR_RSTN_I,
            DDR_INIT_COMPLETE_O => DDR_INIT_COMPLETE_O,
            DDR_ADDR_O => DDR_ADDR_O,
            DDR_BA_O => DDR_BA_O,
            DDR_CS_N_O => DDR_CS_N_O,
            DDR_RAS_N_O => DDR_RAS_N_O,
            DDR_CAS_N_O => DDR_CAS_N_O,
            DDR_WE_N_O => DDR_WE_N_O,
            DDR_CLK_O => DDR_CLK_O,
            DDR_CLK_N_O => DDR_CLK_N_O,
            DDR_CKE_O => DDR_CKE_O,
            DDR_ODT_O => DDR_ODT_O,
            DDR_RESET_N_O => DDR_RESET_N_O,
            DDR_DQM_O => DDR_DQM_O,
            DDR_DQ_IO => DDR_DQ_IO,
            DDR_DQS_IO => DDR_DQS_IO,
            DDR_DQS_N_IO => DDR_DQS_N_IO
        );
end architecture;
