-- The primitives that a netlist is made of, as simulation models: the same as primitives.v. Analyse this file in
-- front of a netlist, into the same library. Each entity is complete in itself but for the package tv_simulation;
-- a simulation model takes over the text of exactly those that its netlist instantiates, so that it needs no
-- library.
--
-- Clocked primitives: NEG = '1' turns the clock's active edge into the falling one; INIT is the value at
-- power-up, 'X' where the design gives none. The tables give 'X' only where the 'X' of an input matters.
--
-- Made from primitives.vhd.in by makeprimitives.awk; a change belongs there.

-- What the models have in common.
library ieee;
use ieee.std_logic_1164.all;

package tv_simulation is
    -- Whether `clock` has just had its active edge; call it in a process that `clock` wakes.
    function is_edge(signal clock : std_logic; neg : std_logic) return boolean;
    -- The element of `init` that `address` selects; all that an unknown bit leaves open must agree.
    function look_up(init, address : std_logic_vector) return std_logic;
    -- The number that the bits mean; -1 if one of them is unknown.
    function index_of(address : std_logic_vector) return integer;
    -- Whether a control input is on; an unknown one is not.
    function is_on(control : std_logic) return boolean;
end package;

package body tv_simulation is
    function is_edge(signal clock : std_logic; neg : std_logic) return boolean is
    begin
        if neg = '1' then
            return falling_edge(clock);
        end if;
        return rising_edge(clock);
    end function;

    function look_up(init, address : std_logic_vector) return std_logic is
        alias table : std_logic_vector(init'length - 1 downto 0) is init;
        alias inputs : std_logic_vector(address'length - 1 downto 0) is address;
        constant half : natural := init'length / 2;
        variable low, high : std_logic;
    begin
        if address'length = 0 then
            return table(0);
        end if;
        case to_x01(inputs(inputs'high)) is
            when '0' =>
                return look_up(table(half - 1 downto 0), inputs(inputs'high - 1 downto 0));
            when '1' =>
                return look_up(table(table'high downto half), inputs(inputs'high - 1 downto 0));
            when others =>
                low := look_up(table(half - 1 downto 0), inputs(inputs'high - 1 downto 0));
                high := look_up(table(table'high downto half), inputs(inputs'high - 1 downto 0));
                if low = high then
                    return low;
                end if;
                return 'X';
        end case;
    end function;

    function index_of(address : std_logic_vector) return integer is
        variable result : natural := 0;
    begin
        for i in address'range loop
            case to_x01(address(i)) is
                when '0' => result := 2 * result;
                when '1' => result := 2 * result + 1;
                when others => return -1;
            end case;
        end loop;
        return result;
    end function;

    function is_on(control : std_logic) return boolean is
    begin
        return to_x01(control) = '1';
    end function;
end package body;

-- Look-up table: O is bit I0 of INIT.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_LUT1 is
    generic (
        INIT : std_logic_vector(1 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in std_logic
    );
end entity;

architecture model of TV_LUT1 is
begin
    process (I0)
        variable address : std_logic_vector(0 downto 0);
    begin
        address(0) := I0;
        O <= look_up(INIT, address);
    end process;
end architecture;

-- Look-up table: O is bit I1 & I0 of INIT.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_LUT2 is
    generic (
        INIT : std_logic_vector(3 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in std_logic;
        I1 : in std_logic
    );
end entity;

architecture model of TV_LUT2 is
begin
    O <= look_up(INIT, std_logic_vector'(I1 & I0));
end architecture;

-- Look-up table: O is bit I2 & I1 & I0 of INIT.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_LUT3 is
    generic (
        INIT : std_logic_vector(7 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in std_logic;
        I1 : in std_logic;
        I2 : in std_logic
    );
end entity;

architecture model of TV_LUT3 is
begin
    O <= look_up(INIT, std_logic_vector'(I2 & I1 & I0));
end architecture;

-- Look-up table: O is bit I3 & I2 & I1 & I0 of INIT.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_LUT4 is
    generic (
        INIT : std_logic_vector(15 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in std_logic;
        I1 : in std_logic;
        I2 : in std_logic;
        I3 : in std_logic
    );
end entity;

architecture model of TV_LUT4 is
begin
    O <= look_up(INIT, std_logic_vector'(I3 & I2 & I1 & I0));
end architecture;

-- One bit of a sum: S and CO are A + B + CI, or with SUB = '1' A + not B + CI. Cells of a chain hand the carry
-- on from CO to CI.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_CARRY is
    generic (
        SUB : std_logic := '0'
    );
    port (
        S, CO : out std_logic;
        A, B, CI : in std_logic
    );
end entity;

architecture model of TV_CARRY is
begin
    S <= A xor B xor SUB xor CI;
    CO <= (A and (B xor SUB)) or (A and CI) or ((B xor SUB) and CI);
end architecture;

-- Flip-flop.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DFF is
    generic (
        INIT : std_logic := 'X';
        NEG : std_logic := '0'
    );
    port (
        Q : out std_logic;
        C, D : in std_logic
    );
end entity;

architecture model of TV_DFF is
begin
    process (C)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_edge(C, NEG) then
            state := to_x01(D);
        end if;
        Q <= state;
    end process;
end architecture;

-- Flip-flop with clock enable.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DFFE is
    generic (
        INIT : std_logic := 'X';
        NEG : std_logic := '0'
    );
    port (
        Q : out std_logic;
        C, CE, D : in std_logic
    );
end entity;

architecture model of TV_DFFE is
begin
    process (C)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_edge(C, NEG) then
            if is_on(CE) then
                state := to_x01(D);
            end if;
        end if;
        Q <= state;
    end process;
end architecture;

-- Flip-flop with synchronous reset.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DFFR is
    generic (
        INIT : std_logic := 'X';
        NEG : std_logic := '0'
    );
    port (
        Q : out std_logic;
        C, R, D : in std_logic
    );
end entity;

architecture model of TV_DFFR is
begin
    process (C)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_edge(C, NEG) then
            if is_on(R) then
                state := '0';
            else
                state := to_x01(D);
            end if;
        end if;
        Q <= state;
    end process;
end architecture;

-- Flip-flop with synchronous reset, which needs no enable, and clock enable.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DFFRE is
    generic (
        INIT : std_logic := 'X';
        NEG : std_logic := '0'
    );
    port (
        Q : out std_logic;
        C, R, CE, D : in std_logic
    );
end entity;

architecture model of TV_DFFRE is
begin
    process (C)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_edge(C, NEG) then
            if is_on(R) then
                state := '0';
            elsif is_on(CE) then
                state := to_x01(D);
            end if;
        end if;
        Q <= state;
    end process;
end architecture;

-- Flip-flop with synchronous set.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DFFS is
    generic (
        INIT : std_logic := 'X';
        NEG : std_logic := '0'
    );
    port (
        Q : out std_logic;
        C, S, D : in std_logic
    );
end entity;

architecture model of TV_DFFS is
begin
    process (C)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_edge(C, NEG) then
            if is_on(S) then
                state := '1';
            else
                state := to_x01(D);
            end if;
        end if;
        Q <= state;
    end process;
end architecture;

-- Flip-flop with synchronous set, which needs no enable, and clock enable.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DFFSE is
    generic (
        INIT : std_logic := 'X';
        NEG : std_logic := '0'
    );
    port (
        Q : out std_logic;
        C, S, CE, D : in std_logic
    );
end entity;

architecture model of TV_DFFSE is
begin
    process (C)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_edge(C, NEG) then
            if is_on(S) then
                state := '1';
            elsif is_on(CE) then
                state := to_x01(D);
            end if;
        end if;
        Q <= state;
    end process;
end architecture;

-- Flip-flop with asynchronous clear.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DFFC is
    generic (
        INIT : std_logic := 'X';
        NEG : std_logic := '0'
    );
    port (
        Q : out std_logic;
        C, CLR, D : in std_logic
    );
end entity;

architecture model of TV_DFFC is
begin
    process (C, CLR)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_on(CLR) then
            state := '0';
        elsif is_edge(C, NEG) then
            state := to_x01(D);
        end if;
        Q <= state;
    end process;
end architecture;

-- Flip-flop with asynchronous clear and clock enable.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DFFCE is
    generic (
        INIT : std_logic := 'X';
        NEG : std_logic := '0'
    );
    port (
        Q : out std_logic;
        C, CLR, CE, D : in std_logic
    );
end entity;

architecture model of TV_DFFCE is
begin
    process (C, CLR)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_on(CLR) then
            state := '0';
        elsif is_edge(C, NEG) then
            if is_on(CE) then
                state := to_x01(D);
            end if;
        end if;
        Q <= state;
    end process;
end architecture;

-- Flip-flop with asynchronous preset.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DFFP is
    generic (
        INIT : std_logic := 'X';
        NEG : std_logic := '0'
    );
    port (
        Q : out std_logic;
        C, PRE, D : in std_logic
    );
end entity;

architecture model of TV_DFFP is
begin
    process (C, PRE)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_on(PRE) then
            state := '1';
        elsif is_edge(C, NEG) then
            state := to_x01(D);
        end if;
        Q <= state;
    end process;
end architecture;

-- Flip-flop with asynchronous preset and clock enable.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DFFPE is
    generic (
        INIT : std_logic := 'X';
        NEG : std_logic := '0'
    );
    port (
        Q : out std_logic;
        C, PRE, CE, D : in std_logic
    );
end entity;

architecture model of TV_DFFPE is
begin
    process (C, PRE)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_on(PRE) then
            state := '1';
        elsif is_edge(C, NEG) then
            if is_on(CE) then
                state := to_x01(D);
            end if;
        end if;
        Q <= state;
    end process;
end architecture;

-- Flip-flop with asynchronous clear and preset; clear wins.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DFFCP is
    generic (
        INIT : std_logic := 'X';
        NEG : std_logic := '0'
    );
    port (
        Q : out std_logic;
        C, CLR, PRE, D : in std_logic
    );
end entity;

architecture model of TV_DFFCP is
begin
    process (C, CLR, PRE)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_on(CLR) then
            state := '0';
        elsif is_on(PRE) then
            state := '1';
        elsif is_edge(C, NEG) then
            state := to_x01(D);
        end if;
        Q <= state;
    end process;
end architecture;

-- Flip-flop with asynchronous clear and preset, of which clear wins, and clock enable.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DFFCPE is
    generic (
        INIT : std_logic := 'X';
        NEG : std_logic := '0'
    );
    port (
        Q : out std_logic;
        C, CLR, PRE, CE, D : in std_logic
    );
end entity;

architecture model of TV_DFFCPE is
begin
    process (C, CLR, PRE)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_on(CLR) then
            state := '0';
        elsif is_on(PRE) then
            state := '1';
        elsif is_edge(C, NEG) then
            if is_on(CE) then
                state := to_x01(D);
            end if;
        end if;
        Q <= state;
    end process;
end architecture;

-- Latch, transparent while G is '1'.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_DL is
    generic (
        INIT : std_logic := 'X'
    );
    port (
        Q : out std_logic;
        G, D : in std_logic
    );
end entity;

architecture model of TV_DL is
begin
    process (G, D)
        variable state : std_logic := to_x01(INIT);
    begin
        if is_on(G) then
            state := to_x01(D);
        end if;
        Q <= state;
    end process;
end architecture;

-- Tri-state driver.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_TBUF is
    port (
        O : out std_logic;
        I, OE : in std_logic
    );
end entity;

architecture model of TV_TBUF is
begin
    with to_x01(OE) select O <=
        I when '1',
        'Z' when '0',
        'X' when others;
end architecture;

-- 16 words of 4 bits with clocked write and unclocked read.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_RAMD is
    generic (
        INIT : std_logic_vector(63 downto 0) := (others => 'X');
        NEG : std_logic := '0'
    );
    port (
        RDATA : out std_logic_vector(3 downto 0);
        RADDR : in std_logic_vector(3 downto 0);
        C, WE : in std_logic;
        WADDR, WDATA : in std_logic_vector(3 downto 0)
    );
end entity;

architecture model of TV_RAMD is
begin
    process (C, RADDR)
        variable mem : std_logic_vector(63 downto 0) := INIT;
        variable word : integer;
    begin
        if is_edge(C, NEG) and is_on(WE) then
            word := index_of(WADDR);
            if word >= 0 then
                mem(4 * word + 3 downto 4 * word) := to_x01(WDATA);
            end if;
        end if;
        word := index_of(RADDR);
        if word >= 0 then
            RDATA <= mem(4 * word + 3 downto 4 * word);
        else
            RDATA <= "XXXX";
        end if;
    end process;
end architecture;

-- Block RAM of 16384 bits with a read and a write port. Either port sees words of 1, 2, 4, 8, 16 or 32 bits.
-- Addresses count bits, and bits below the word size are ignored. WEN enables the bytes of a word, or with
-- bit 0 a whole word below 8 bits. Reading a word while it is written gives the old one.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_RAMB_SDP is
    generic (
        INIT : std_logic_vector(16383 downto 0) := (others => 'X');
        RD_INIT : std_logic_vector(31 downto 0) := (others => 'X');
        RD_WIDTH : integer := 32;
        WR_WIDTH : integer := 32;
        RD_NEG : std_logic := '0';
        WR_NEG : std_logic := '0'
    );
    port (
        RDATA : out std_logic_vector(31 downto 0);
        RC, REN : in std_logic;
        RADDR : in std_logic_vector(13 downto 0);
        WC : in std_logic;
        WEN : in std_logic_vector(3 downto 0);
        WADDR : in std_logic_vector(13 downto 0);
        WDATA : in std_logic_vector(31 downto 0)
    );
end entity;

architecture model of TV_RAMB_SDP is
begin
    process (RC, WC)
        variable mem : std_logic_vector(16383 downto 0) := INIT;
        variable data : std_logic_vector(31 downto 0) := RD_INIT;
        variable first : integer;
    begin
        if is_edge(RC, RD_NEG) and is_on(REN) then
            first := index_of(RADDR);
            for i in 0 to RD_WIDTH - 1 loop
                if first >= 0 then
                    data(i) := mem(first / RD_WIDTH * RD_WIDTH + i);
                else
                    data(i) := 'X';
                end if;
            end loop;
        end if;
        if is_edge(WC, WR_NEG) then
            first := index_of(WADDR);
            for i in 0 to WR_WIDTH - 1 loop
                if first >= 0 and is_on(WEN(i / 8)) then
                    mem(first / WR_WIDTH * WR_WIDTH + i) := to_x01(WDATA(i));
                end if;
            end loop;
        end if;
        RDATA <= data;
    end process;
end architecture;

-- Block RAM of 16384 bits with two ports that read and write. Either port sees words of 1, 2, 4, 8 or 16 bits.
-- Addresses count bits, and bits below the word size are ignored. The write enables are for the bytes of a word,
-- or bit 0 for a whole word below 8 bits. A port that writes keeps its read data; reading a word while the
-- other port writes it gives the old one.
library ieee;
use ieee.std_logic_1164.all;
use work.tv_simulation.all;

entity TV_RAMB_TDP is
    generic (
        INIT : std_logic_vector(16383 downto 0) := (others => 'X');
        A_INIT, B_INIT : std_logic_vector(15 downto 0) := (others => 'X');
        A_WIDTH, B_WIDTH : integer := 16;
        A_NEG, B_NEG : std_logic := '0'
    );
    port (
        A_RDATA : out std_logic_vector(15 downto 0);
        A_C, A_EN : in std_logic;
        A_WEN : in std_logic_vector(1 downto 0);
        A_ADDR : in std_logic_vector(13 downto 0);
        A_WDATA : in std_logic_vector(15 downto 0);
        B_RDATA : out std_logic_vector(15 downto 0);
        B_C, B_EN : in std_logic;
        B_WEN : in std_logic_vector(1 downto 0);
        B_ADDR : in std_logic_vector(13 downto 0);
        B_WDATA : in std_logic_vector(15 downto 0)
    );
end entity;

architecture model of TV_RAMB_TDP is
begin
    process (A_C, B_C)
        constant none : std_logic_vector(1 downto 0) := "00";
        variable mem : std_logic_vector(16383 downto 0) := INIT;
        variable a_data : std_logic_vector(15 downto 0) := A_INIT;
        variable b_data : std_logic_vector(15 downto 0) := B_INIT;
        variable first : integer;
    begin
        if is_edge(A_C, A_NEG) and is_on(A_EN) and to_x01(A_WEN(A_WIDTH / 16 downto 0)) = none(A_WIDTH / 16 downto 0) then
            first := index_of(A_ADDR);
            for i in 0 to A_WIDTH - 1 loop
                if first >= 0 then
                    a_data(i) := mem(first / A_WIDTH * A_WIDTH + i);
                else
                    a_data(i) := 'X';
                end if;
            end loop;
        end if;
        if is_edge(B_C, B_NEG) and is_on(B_EN) and to_x01(B_WEN(B_WIDTH / 16 downto 0)) = none(B_WIDTH / 16 downto 0) then
            first := index_of(B_ADDR);
            for i in 0 to B_WIDTH - 1 loop
                if first >= 0 then
                    b_data(i) := mem(first / B_WIDTH * B_WIDTH + i);
                else
                    b_data(i) := 'X';
                end if;
            end loop;
        end if;
        if is_edge(A_C, A_NEG) and is_on(A_EN) then
            first := index_of(A_ADDR);
            for i in 0 to A_WIDTH - 1 loop
                if first >= 0 and is_on(A_WEN(i / 8)) then
                    mem(first / A_WIDTH * A_WIDTH + i) := to_x01(A_WDATA(i));
                end if;
            end loop;
        end if;
        if is_edge(B_C, B_NEG) and is_on(B_EN) then
            first := index_of(B_ADDR);
            for i in 0 to B_WIDTH - 1 loop
                if first >= 0 and is_on(B_WEN(i / 8)) then
                    mem(first / B_WIDTH * B_WIDTH + i) := to_x01(B_WDATA(i));
                end if;
            end loop;
        end if;
        A_RDATA <= a_data;
        B_RDATA <= b_data;
    end process;
end architecture;
