-- Drives the design "dut" with the values of the file "stimulus", one step a line, and prints what it answers: the
-- same as testbench.v does, which writes that file.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.all;

entity testbench is
end entity;

architecture bench of testbench is
    component dut
        port (
            clk, rst : in std_logic;
            a, b : in std_logic_vector(31 downto 0);
            y : out std_logic_vector(31 downto 0);
            io : inout std_logic_vector(7 downto 0)
        );
    end component;

    function logic(c : character) return std_logic is
    begin
        if c = '1' then
            return '1';
        end if;
        return '0';
    end function;

    function letter(bit : std_logic) return character is
    begin
        case bit is
            when '0' | 'L' => return '0';
            when '1' | 'H' => return '1';
            when 'Z' => return 'z';
            when others => return 'x';
        end case;
    end function;

    function letters(bits : std_logic_vector) return string is
        variable result : string(1 to bits'length);
        variable at : positive := 1;
    begin
        for i in bits'range loop
            result(at) := letter(bits(i));
            at := at + 1;
        end loop;
        return result;
    end function;

    -- Falls at the beginning, which testbench.v's clock does too: from unknown to 0.
    signal clk : std_logic := '1';
    signal rst : std_logic := '0';
    signal a, b : std_logic_vector(31 downto 0) := (others => '0');
    signal y : std_logic_vector(31 downto 0);
    signal io : std_logic_vector(7 downto 0);
    signal outside : std_logic_vector(7 downto 0) := (others => '0');
begin
    u_dut : dut port map (clk => clk, rst => rst, a => a, b => b, y => y, io => io);

    pins : for i in io'range generate
        io(i) <= outside(i) when a(24 + i) = '1' else 'Z';
    end generate;

    process
        file stimulus : text open read_mode is "stimulus";
        variable step, answer : line;
        variable bits : string(1 to 74);
    begin
        while not endfile(stimulus) loop
            readline(stimulus, step);
            read(step, bits);
            clk <= logic(bits(1));
            rst <= logic(bits(2));
            for i in 0 to 31 loop
                a(31 - i) <= logic(bits(3 + i));
                b(31 - i) <= logic(bits(35 + i));
            end loop;
            for i in 0 to 7 loop
                outside(7 - i) <= logic(bits(67 + i));
            end loop;
            wait for 1 ns;
            write(answer, letters(y) & ' ' & letters(io));
            writeline(output, answer);
        end loop;
        wait;
    end process;
end architecture;
