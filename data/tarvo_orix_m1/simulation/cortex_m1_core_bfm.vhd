-- Bus-functional model of the processor core for simulation, in VHDL: an architecture of CortexM1Core that plays a script of
-- transfers in place of a program. The head of cortex_m1_core_bfm.v, the same model in Verilog, describes the scripts; both
-- play the same ones and print the same lines.
--
-- Analyse this file behind the simulation model (tarvo_orix_m1.vho), into the same library: the entity stands there. The
-- script is play.txt in the working folder, unless the test bench names another one before the reset ends:
--
--   work.cortex_m1_core_bfm.script <= work.cortex_m1_core_bfm.script_of("my.play");
--
-- VHDL before 2008 cannot end a simulation without an error: let the clock stop when
-- to_x01(work.cortex_m1_core_bfm.done) = '1', and it ends by itself.
library ieee;
use ieee.std_logic_1164.all;

package cortex_m1_core_bfm is
    subtype script_name is string(1 to 1024);
    -- The name of a file, of at most 1024 characters, as the signal takes it.
    function script_of(name : string) return script_name;
    -- Read once, at time 0.
    signal script : script_name := script_of("play.txt");
    -- '0' as long as a model of the design plays, then 'H'.
    signal done : std_logic := '0';
end package;

package body cortex_m1_core_bfm is
    function script_of(name : string) return script_name is
        variable result : script_name := (others => NUL);
    begin
        result(1 to name'length) := name;
        return result;
    end function;
end package body;

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
use std.textio.all;
use work.cortex_m1_core_bfm.all;

architecture bfm of CortexM1Core is
    subtype word is std_logic_vector(31 downto 0);

    -- Bytes of a memory by its size code.
    function bytes(code : std_logic_vector) return unsigned is
        variable result : unsigned(31 downto 0) := (others => '0');
    begin
        if unsigned(code) /= 0 then
            result(9 + to_integer(unsigned(code))) := '1';
        end if;
        return result;
    end function;

    function hexadecimal(value : word) return string is
        constant digits : string(1 to 16) := "0123456789abcdef";
        variable result : string(1 to 8);
        variable four : std_logic_vector(3 downto 0);
        variable x, z : natural;
    begin
        for i in result'range loop
            four := to_x01z(value(35 - 4 * i downto 32 - 4 * i));
            x := 0;
            z := 0;
            for bit in four'range loop
                if four(bit) = 'X' then
                    x := x + 1;
                elsif four(bit) = 'Z' then
                    z := z + 1;
                end if;
            end loop;
            if x = 4 then
                result(i) := 'x';
            elsif x > 0 then
                result(i) := 'X';
            elsif z = 4 then
                result(i) := 'z';
            elsif z > 0 then
                result(i) := 'Z';
            else
                result(i) := digits(to_integer(unsigned(four)) + 1);
            end if;
        end loop;
        return "0x" & result;
    end function;

    -- The bits that the mask selects, the others zero.
    function masked(value, mask : word) return word is
        variable result : word := (others => '0');
    begin
        for i in result'range loop
            if mask(i) = '1' then
                result(i) := to_x01z(value(i));
            end if;
        end loop;
        return result;
    end function;

    -- The name of this instance with dots.
    function dotted(path : string) return string is
        variable result : string(1 to path'length) := path;
        variable first : positive := 1;
        variable last : natural := path'length;
    begin
        for i in result'range loop
            if result(i) = ':' then
                result(i) := '.';
            end if;
        end loop;
        while first < last and result(first) = '.' loop
            first := first + 1;
        end loop;
        while last > first and result(last) = '.' loop
            last := last - 1;
        end loop;
        return result(first to last);
    end function;

    -- What the outputs show from the next rising edge on; set at falling edges, where the inputs are settled.
    signal next_sysresetreq, next_hwrite, next_itcmen, next_dtcmen : std_logic := '0';
    signal next_haddr, next_hwdata, next_itcmwdata, next_dtcmwdata : word := (others => '0');
    signal next_htrans : std_logic_vector(1 downto 0) := "00";
    signal next_hsize : std_logic_vector(2 downto 0) := "000";
    signal next_itcmwe, next_dtcmwe : std_logic_vector(3 downto 0) := "0000";
    signal next_itcmaddr, next_dtcmaddr : std_logic_vector(17 downto 0) := (others => '0');
    -- The outputs themselves, so that they start at rest.
    signal sysresetreq_q, hwrite_q, itcmen_q, dtcmen_q : std_logic := '0';
    signal haddr_q, hwdata_q, itcmwdata_q, dtcmwdata_q : word := (others => '0');
    signal htrans_q : std_logic_vector(1 downto 0) := "00";
    signal hsize_q : std_logic_vector(2 downto 0) := "000";
    signal itcmwe_q, dtcmwe_q : std_logic_vector(3 downto 0) := "0000";
    signal itcmaddr_q, dtcmaddr_q : std_logic_vector(17 downto 0) := (others => '0');
begin
    LOCKUP <= '0';
    HALTED <= '0';
    HBURST <= "000";      -- single transfers
    HPROT <= "0011";      -- data, privileged
    HMASTLOCK <= '0';
    DBGITCMEN <= '0';
    DBGITCMWE <= "0000";
    DBGITCMADDR <= (others => '0');
    DBGITCMWDATA <= (others => '0');
    DBGDTCMEN <= '0';
    DBGDTCMWE <= "0000";
    DBGDTCMADDR <= (others => '0');
    DBGDTCMWDATA <= (others => '0');
    SWDO <= '0';
    SWDOEN <= '0';
    TDO <= '0';
    TDOEN <= '0';

    SYSRESETREQ <= sysresetreq_q;
    HADDR <= haddr_q;
    HTRANS <= htrans_q;
    HSIZE <= hsize_q;
    HWRITE <= hwrite_q;
    HWDATA <= hwdata_q;
    ITCMEN <= itcmen_q;
    ITCMWE <= itcmwe_q;
    ITCMADDR <= itcmaddr_q;
    ITCMWDATA <= itcmwdata_q;
    DTCMEN <= dtcmen_q;
    DTCMWE <= dtcmwe_q;
    DTCMADDR <= dtcmaddr_q;
    DTCMWDATA <= dtcmwdata_q;

    process (HCLK)
    begin
        if rising_edge(HCLK) then
            sysresetreq_q <= next_sysresetreq;
            haddr_q <= next_haddr;
            htrans_q <= next_htrans;
            hsize_q <= next_hsize;
            hwrite_q <= next_hwrite;
            hwdata_q <= next_hwdata;
            itcmen_q <= next_itcmen;
            itcmwe_q <= next_itcmwe;
            itcmaddr_q <= next_itcmaddr;
            itcmwdata_q <= next_itcmwdata;
            dtcmen_q <= next_dtcmen;
            dtcmwe_q <= next_dtcmwe;
            dtcmaddr_q <= next_dtcmaddr;
            dtcmwdata_q <= next_dtcmwdata;
        end if;
    end process;

    play : process
        constant path : string := dotted(bfm'path_name);
        constant longest : natural := 255;
        constant most_words : natural := 5;

        -- A file, line by line.
        type script_line;
        type script_link is access script_line;
        type script_line is record
            text : line;
            following : script_link;
        end record;

        variable checks, failures, number_of_line : natural := 0;
        variable data : word;        -- of the last read, the addressed bytes in the low bits
        variable failed : boolean;   -- the last transfer got an error response

        -- Words of the current line: where they begin and end in it.
        type positions is array (0 to most_words - 1) of natural;
        type numbers is array (1 to most_words - 1) of unsigned(31 downto 0);
        variable text : line;
        variable first, last : positions;
        variable words : natural;
        variable number : numbers;

        procedure cycle is
        begin
            wait until falling_edge(HCLK);
        end procedure;

        procedure print(what : string) is
            variable l : line;
        begin
            write(l, what);
            writeline(output, l);
        end procedure;

        -- Where the script is.
        impure function place return string is
        begin
            return "line " & integer'image(number_of_line) & ": ";
        end function;

        procedure fail(what : string) is
        begin
            failures := failures + 1;
            print(path & ".fail: " & place & what);
        end procedure;

        -- Waits for HREADY, but not for ever.
        procedure ready is
            variable left : natural := 1000000;
        begin
            while to_x01(HREADY) /= '1' and left /= 0 loop
                left := left - 1;
                cycle;
            end loop;
            if left = 0 then
                fail("HREADY stays low");
            end if;
        end procedure;

        procedure transfer(address : unsigned(31 downto 0); write : boolean; bytes_wide : positive; value : word) is
            variable lanes : std_logic_vector(3 downto 0) := "1111";
            variable wide : word := value;
            variable itcm, dtcm : boolean;
            constant lane : natural := to_integer(address(1 downto 0));
            constant half : natural := lane - lane mod 2;
        begin
            if bytes_wide = 1 then
                lanes := "0000";
                lanes(lane) := '1';
                wide := value(7 downto 0) & value(7 downto 0) & value(7 downto 0) & value(7 downto 0);
            elsif bytes_wide = 2 then
                lanes := "0000";
                lanes(half + 1 downto half) := "11";
                wide := value(15 downto 0) & value(15 downto 0);
            end if;
            itcm := (ITCM_LA_EN /= 0 and address < bytes(ITCMSIZE)) or
                    (ITCM_UA_EN /= 0 and address - X"10000000" < bytes(ITCMSIZE));
            dtcm := address - X"20000000" < bytes(DTCMSIZE);
            failed := false;
            if itcm or dtcm then
                next_itcmaddr <= std_logic_vector(address(19 downto 2));
                next_dtcmaddr <= std_logic_vector(address(19 downto 2));
                next_itcmwdata <= wide;
                next_dtcmwdata <= wide;
                if itcm then
                    next_itcmen <= '1';
                end if;
                if dtcm then
                    next_dtcmen <= '1';
                end if;
                if itcm and write then
                    next_itcmwe <= lanes;
                end if;
                if dtcm and write then
                    next_dtcmwe <= lanes;
                end if;
                cycle;
                next_itcmen <= '0';
                next_itcmwe <= "0000";
                next_dtcmen <= '0';
                next_dtcmwe <= "0000";
                cycle;
                if itcm then
                    data := ITCMRDATA;
                else
                    data := DTCMRDATA;
                end if;
            else
                next_haddr <= std_logic_vector(address);
                next_htrans <= "10";
                next_hsize <= std_logic_vector(to_unsigned(bytes_wide / 2, 3));
                next_hwrite <= '0';
                if write then
                    next_hwrite <= '1';
                end if;
                cycle;
                ready;
                next_htrans <= "00";
                next_hwrite <= '0';
                next_hwdata <= wide;
                cycle;
                ready;
                failed := to_x01(HRESP) /= '0';
                data := HRDATA;
            end if;
            if bytes_wide = 2 then
                data := X"0000" & data(8 * half + 15 downto 8 * half);
            elsif bytes_wide = 1 then
                data := X"000000" & data(8 * lane + 7 downto 8 * lane);
            end if;
        end procedure;

        -- Where the words of a line are; one word too many at most, and no comment.
        procedure split is
            variable inside : boolean := false;
        begin
            words := 0;
            for i in text'range loop
                case text(i) is
                    when '#' =>
                        return;
                    when ' ' | HT | LF | VT | FF | CR | NUL =>
                        inside := false;
                    when others =>
                        if not inside then
                            exit when words = most_words;
                            first(words) := i;
                            words := words + 1;
                        end if;
                        inside := true;
                        last(words - 1) := i;
                end case;
            end loop;
        end procedure;

        impure function word_at(n : natural) return string is
        begin
            return text(first(n) to last(n));
        end function;

        -- The value of a word; says what is wrong with it.
        procedure read_number(given : string; value : out unsigned(31 downto 0); well : out boolean) is
            alias digits : string(1 to given'length) is given;
            variable sum : unsigned(35 downto 0) := (others => '0');
            variable start, base, count, digit : natural := 0;
        begin
            well := false;
            value := (others => '0');
            base := 10;
            start := 1;
            if digits'length > 2 and digits(1) = '0' then
                if digits(2) = 'x' then
                    base := 16;
                    start := 3;
                end if;
            end if;
            if base = 10 and (digits(1) = '-' or digits(1) = '+') then
                start := 2;
            end if;
            for i in start to digits'length loop
                digit := 16;
                case digits(i) is
                    when '0' to '9' => digit := character'pos(digits(i)) - character'pos('0');
                    when 'a' to 'f' => digit := character'pos(digits(i)) - character'pos('a') + 10;
                    when 'A' to 'F' => digit := character'pos(digits(i)) - character'pos('A') + 10;
                    when others => null;
                end case;
                if digit < base then
                    sum := resize(sum * base, 36) + digit;
                    count := count + 1;
                elsif digits(i) /= '_' or count = 0 then
                    fail("not a number");
                    return;
                end if;
                if sum(35 downto 32) /= 0 then
                    fail("a number of more than 32 bits");
                    return;
                end if;
            end loop;
            if count = 0 then
                fail("not a number");
                return;
            end if;
            if digits(1) = '-' then
                value := 0 - sum(31 downto 0);
            else
                value := sum(31 downto 0);
            end if;
            well := true;
        end procedure;

        procedure check_read(expected, mask : word) is
        begin
            checks := checks + 1;
            if failed then
                fail("error response");
            elsif masked(data, mask) /= expected then
                failures := failures + 1;
                print(path & ".check_read: " & place & "read " & hexadecimal(data) & ", expected " & hexadecimal(expected) &
                      " in the bits " & hexadecimal(mask));
            end if;
        end procedure;

        procedure play_read(bytes_wide : positive) is
        begin
            transfer(number(1), false, bytes_wide, X"00000000");
            if words > 3 then
                check_read(word(number(2)), word(number(3)));
            else
                check_read(word(number(2)), X"FFFFFFFF");
            end if;
        end procedure;

        procedure play_write(bytes_wide : positive) is
        begin
            transfer(number(1), true, bytes_wide, word(number(2)));
            checks := checks + 1;
            if failed then
                fail("error response");
            end if;
        end procedure;

        -- How many numbers a command needs; -1 for a word that is none.
        function needed(command : string) return integer is
        begin
            if command = "reset" then
                return 0;
            elsif command = "error" or command = "wait" then
                return 1;
            elsif command = "write" or command = "write16" or command = "write8" or command = "read" or
                command = "read16" or command = "read8" or command = "nmi" then
                return 2;
            elsif command = "irq" then
                return 3;
            elsif command = "poll" then
                return 4;
            end if;
            return -1;
        end function;

        -- A line with a mistake does nothing.
        procedure play_line is
            constant command : string := word_at(0);
            variable well : boolean;
            variable input : natural;
        begin
            if needed(command) < 0 then
                fail("unknown command");
                return;
            end if;
            for i in 1 to words - 1 loop
                read_number(word_at(i), number(i), well);
                if not well then
                    return;
                end if;
            end loop;
            if words < needed(command) + 1 then
                fail("a number is missing");
                return;
            end if;
            if command = "write" then
                play_write(4);
            elsif command = "write16" then
                play_write(2);
            elsif command = "write8" then
                play_write(1);
            elsif command = "read" then
                play_read(4);
            elsif command = "read16" then
                play_read(2);
            elsif command = "read8" then
                play_read(1);
            elsif command = "poll" then
                transfer(number(1), false, 4, X"00000000");
                while not failed and masked(data, word(number(3))) /= word(number(2)) and number(4) > 1 loop
                    number(4) := number(4) - 1;
                    transfer(number(1), false, 4, X"00000000");
                end loop;
                check_read(word(number(2)), word(number(3)));
            elsif command = "error" then
                transfer(number(1), false, 4, X"00000000");
                checks := checks + 1;
                if not failed then
                    fail("no error response");
                end if;
            elsif command = "wait" then
                while number(1) /= 0 loop
                    number(1) := number(1) - 1;
                    cycle;
                end loop;
            elsif command = "irq" then
                input := to_integer(number(1)(4 downto 0));
                while to_x01(IRQ(input)) /= number(2)(0) and number(3) /= 0 loop
                    number(3) := number(3) - 1;
                    cycle;
                end loop;
                checks := checks + 1;
                if to_x01(IRQ(input)) /= number(2)(0) then
                    fail("the interrupt input does not get the level");
                end if;
            elsif command = "nmi" then
                while to_x01(NMI) /= number(1)(0) and number(2) /= 0 loop
                    number(2) := number(2) - 1;
                    cycle;
                end loop;
                checks := checks + 1;
                if to_x01(NMI) /= number(1)(0) then
                    fail("the non-maskable interrupt does not get the level");
                end if;
            elsif command = "reset" then
                next_sysresetreq <= '1';
                while to_x01(SYSRESETn) /= '0' loop
                    cycle;
                end loop;
                next_sysresetreq <= '0';
                while to_x01(SYSRESETn) /= '1' loop
                    cycle;
                end loop;
                cycle;
            end if;
        end procedure;

        -- The lines of a file, which `readable` says to be there.
        procedure load(name : string; lines : out script_link; readable : out boolean) is
            file source : std.textio.text;
            variable status : file_open_status;
            variable l : line;
            variable head, tail, added : script_link;
        begin
            file_open(status, source, name, read_mode);
            readable := status = open_ok;
            if status = open_ok then
                while not endfile(source) loop
                    readline(source, l);
                    added := new script_line'(l, null);
                    l := null;
                    if tail = null then
                        head := added;
                    else
                        tail.following := added;
                    end if;
                    tail := added;
                end loop;
                file_close(source);
            end if;
            lines := head;
        end procedure;

        variable current : script_link;
        variable name : script_name;
        variable length : natural := 0;
        variable readable : boolean;
    begin
        -- The test bench may name the script in its first step.
        wait for 0 ns;
        wait for 0 ns;
        name := script;
        while length < name'length loop
            exit when name(length + 1) = NUL;
            length := length + 1;
        end loop;
        load(name(1 to length), current, readable);
        if not readable then
            failures := 1;
            print(path & ": the script """ & name(1 to length) & """ cannot be read");
        else
            -- An X is no reset yet.
            while to_x01(SYSRESETn) /= '0' loop
                cycle;
            end loop;
            while to_x01(SYSRESETn) /= '1' loop
                cycle;
            end loop;
            cycle;
            while current /= null loop
                number_of_line := number_of_line + 1;
                text := current.text;
                split;
                if words > 0 then
                    if text'length > longest then
                        fail("a line of more than 255 characters");
                    else
                        play_line;
                    end if;
                end if;
                current := current.following;
            end loop;
        end if;
        if failures = 0 and checks > 0 then
            print("PASS");
        else
            print("FAIL: " & integer'image(failures) & " of " & integer'image(checks) & " checks");
        end if;
        done <= 'H';
        wait;
    end process;
end architecture;
