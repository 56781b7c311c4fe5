-- Tarvo_ORIX_M1_Top as a component, VHDL-93: "use work.tarvo_orix_m1_pkg.all;" in a design, and an instance binds to the
-- entity of that name, which the netlist or the simulation model brings, or stays open until there is one.
library ieee;
use ieee.std_logic_1164.all;

package tarvo_orix_m1_pkg is
    component Tarvo_ORIX_M1_Top
        port (
            HCLK                : in    std_logic; -- clocks processor, buses and blocks
            hwRstn              : in    std_logic; -- resets everything, debug included, active low
            LOCKUP              : out   std_logic; -- the processor has stopped after a second fault
            HALTED              : out   std_logic; -- the debugger has stopped the processor
            JTAG_7              : inout std_logic; -- TMS or SWDIO
            JTAG_9              : inout std_logic; -- TCK or SWCLK, clocks the debug port
            JTAG_3              : inout std_logic; -- nTRST, resets the debug port, active low, to be pulled up
            JTAG_4              : inout std_logic; -- driven low
            JTAG_5              : inout std_logic; -- TDI
            JTAG_6              : inout std_logic; -- driven low
            JTAG_8              : inout std_logic; -- driven low
            JTAG_10             : inout std_logic; -- driven low
            JTAG_11             : inout std_logic; -- driven low
            JTAG_12             : inout std_logic; -- driven low
            JTAG_13             : inout std_logic; -- TDO
            JTAG_14             : inout std_logic; -- driven low
            JTAG_15             : inout std_logic; -- nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
            JTAG_16             : inout std_logic; -- driven low
            JTAG_17             : inout std_logic; -- not connected
            JTAG_18             : inout std_logic; -- driven low
            CAN_RX              : in    std_logic; -- from the transceiver
            CAN_TX              : out   std_logic; -- to the transceiver
            MDC                 : out   std_logic; -- management clock of the PHY
            MDIO                : inout std_logic; -- management data of the PHY, to be pulled up
            MII_RX_CLK          : in    std_logic; -- receive clock of the PHY
            MII_RXD             : in    std_logic_vector(3 downto 0); -- receive data
            MII_RX_DV           : in    std_logic; -- receive data are valid
            MII_RX_ER           : in    std_logic; -- receive error
            MII_TX_CLK          : in    std_logic; -- transmit clock of the PHY
            MII_TXD             : out   std_logic_vector(3 downto 0); -- transmit data
            MII_TX_EN           : out   std_logic; -- transmit data are valid
            MII_TX_ER           : out   std_logic; -- transmit error
            MII_COL             : in    std_logic; -- collision
            MII_CRS             : in    std_logic; -- carrier
            DDR_STOP_O          : out   std_logic; -- asks to stop DDR_MEM_CLK_I while its phase changes
            DDR_CLK_I           : in    std_logic; -- reference clock of the DDR3 controller
            DDR_MEM_CLK_I       : in    std_logic; -- clock of the DDR3 interface
            DDR_LOCK_I          : in    std_logic; -- DDR_MEM_CLK_I is stable
            DDR_RSTN_I          : in    std_logic; -- resets the DDR3 controller, active low
            DDR_INIT_COMPLETE_O : out   std_logic; -- the DDR3 memory is ready
            DDR_ADDR_O          : out   std_logic_vector(15 downto 0); -- address of the memory
            DDR_BA_O            : out   std_logic_vector(2 downto 0); -- bank of the memory
            DDR_CS_N_O          : out   std_logic; -- chip select of the memory, active low
            DDR_RAS_N_O         : out   std_logic; -- row address strobe, active low
            DDR_CAS_N_O         : out   std_logic; -- column address strobe, active low
            DDR_WE_N_O          : out   std_logic; -- write enable, active low
            DDR_CLK_O           : out   std_logic; -- clock of the memory
            DDR_CLK_N_O         : out   std_logic; -- the same, inverted
            DDR_CKE_O           : out   std_logic; -- clock enable
            DDR_ODT_O           : out   std_logic; -- termination
            DDR_RESET_N_O       : out   std_logic; -- resets the memory, active low
            DDR_DQM_O           : out   std_logic_vector(1 downto 0); -- masks of the data
            DDR_DQ_IO           : inout std_logic_vector(15 downto 0); -- data of the memory
            DDR_DQS_IO          : inout std_logic_vector(1 downto 0); -- strobes of the data
            DDR_DQS_N_IO        : inout std_logic_vector(1 downto 0)  -- the same, inverted
        );
    end component;
end package;
