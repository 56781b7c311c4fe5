-- The board of bus-tb.v in VHDL, without its watch over the protocol: the traces of both are to be the same.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
use std.textio.all;
use work.cortex_m1_core_bfm;

entity bench is
    generic (script : string);
end entity;

architecture board of bench is
    signal clk, reset : std_logic := '0';
    signal haddr, hwdata : std_logic_vector(31 downto 0);
    signal htrans : std_logic_vector(1 downto 0);
    signal hburst, hsize : std_logic_vector(2 downto 0);
    signal hwrite, request : std_logic;
    signal hrdata : std_logic_vector(31 downto 0) := (others => '0');
    signal hready : std_logic := '1';
    signal hresp : std_logic := '0';
begin
    cortex_m1_core_bfm.script <= cortex_m1_core_bfm.script_of(script);
    process
    begin
        while to_x01(cortex_m1_core_bfm.done) /= '1' loop
            wait for 5 ns;
            clk <= not clk;
        end loop;
        wait;
    end process;
    reset <= '1' after 42 ns;

    core : entity work.CortexM1Core
        port map (
            HCLK => clk, PORRESETn => reset, SYSRESETn => reset, SYSRESETREQ => request, NMI => '0', IRQ => (others => '0'),
            HADDR => haddr, HTRANS => htrans, HBURST => hburst, HSIZE => hsize, HWRITE => hwrite, HWDATA => hwdata,
            HRDATA => hrdata, HREADY => hready, HRESP => hresp, ITCMRDATA => (others => '0'), DTCMRDATA => (others => '0'),
            DBGITCMREADY => '1', DBGDTCMREADY => '1', nTRST => '1', SWCLKTCK => '1', SWDITMS => '1', TDI => '1'
        );

    process (clk)
        type words is array (0 to 1023) of std_logic_vector(31 downto 0);
        variable memory : words := (others => (others => '0'));
        variable busy, write : boolean := false;
        variable address : unsigned(31 downto 0) := (others => '0');
        variable size, lane, waits, place : integer := 0;
    begin
        if rising_edge(clk) then
            place := to_integer(address(11 downto 2));
            if busy and hready = '1' and write and hresp = '0' then
                lane := 8 * to_integer(address(1 downto 0));
                if size = 0 then
                    memory(place)(lane + 7 downto lane) := hwdata(lane + 7 downto lane);
                elsif size = 1 then
                    memory(place)(lane + 15 downto lane) := hwdata(lane + 15 downto lane);
                else
                    memory(place) := hwdata;
                end if;
            end if;
            if hready = '1' then
                busy := htrans(1) = '1';
                address := unsigned(haddr);
                write := hwrite = '1';
                size := to_integer(unsigned(hsize));
                waits := to_integer(address(13 downto 12));
            else
                waits := waits - 1;
            end if;
            hready <= '1';
            hresp <= '0';
            if busy and address(31 downto 28) = 5 then
                if waits >= 0 then
                    hready <= '0';
                end if;
                if waits <= 0 then
                    hresp <= '1';
                end if;
            elsif busy and waits > 0 then
                hready <= '0';
            end if;
            hrdata <= X"DEADDEAD";
            if busy and waits <= 0 then
                hrdata <= memory(to_integer(address(11 downto 2)));
            end if;
        end if;
    end process;

    process (clk)
        file trace : text open write_mode is "trace";
        variable l : line;
        procedure put(bits : std_logic_vector; ending : string) is
        begin
            for i in bits'range loop
                write(l, std_logic'image(bits(i))(2));
            end loop;
            write(l, ending);
        end procedure;
        variable answer : std_logic_vector(1 to 2);
    begin
        if rising_edge(clk) and to_x01(cortex_m1_core_bfm.done) /= '1' then
            put(htrans, " ");
            put(hburst, " ");
            put(hsize, " ");
            answer(1) := hwrite;
            put(answer(1 to 1), " ");
            put(haddr, " ");
            put(hwdata, " ");
            answer := hready & hresp;
            put(answer(1 to 1), " ");
            put(answer(2 to 2), "");
            writeline(trace, l);
        end if;
    end process;
end architecture;
