-- Bus-functional model of the processor core for simulation, in VHDL: an architecture of CortexM1Core that plays a script of
-- transfers in place of a program, as the user guide describes them under "Simulate". cortex_m1_core_bfm.v is the same model in
-- Verilog: both play the same scripts and print the same lines.
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
    signal next_hsize, next_hburst : std_logic_vector(2 downto 0) := "000";
    signal next_itcmwe, next_dtcmwe : std_logic_vector(3 downto 0) := "0000";
    signal next_itcmaddr, next_dtcmaddr : std_logic_vector(17 downto 0) := (others => '0');
    -- The outputs themselves, so that they start at rest.
    signal sysresetreq_q, hwrite_q, itcmen_q, dtcmen_q : std_logic := '0';
    signal haddr_q, hwdata_q, itcmwdata_q, dtcmwdata_q : word := (others => '0');
    signal htrans_q : std_logic_vector(1 downto 0) := "00";
    signal hsize_q, hburst_q : std_logic_vector(2 downto 0) := "000";
    signal itcmwe_q, dtcmwe_q : std_logic_vector(3 downto 0) := "0000";
    signal itcmaddr_q, dtcmaddr_q : std_logic_vector(17 downto 0) := (others => '0');
begin
    LOCKUP <= '0';
    HALTED <= '0';
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
    HBURST <= hburst_q;
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
            hburst_q <= next_hburst;
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

        -- A file, line by line.
        type script_line;
        type script_link is access script_line;
        type script_line is record
            text : line;
            following : script_link;
        end record;

        variable checks, failures : natural := 0;
        variable data : word;        -- of the last read
        variable failed : boolean;   -- the last transfer got an error response

        -- The script and those that include each other from there on.
        constant deepest : natural := 8;
        type file_links is array (0 to deepest) of script_link;
        type file_numbers is array (0 to deepest) of natural;
        type file_names is array (0 to deepest) of line;
        variable depth : integer := 0;
        variable heads : file_links;     -- of the files' lines
        variable current : file_links;   -- the next line of each
        variable line_numbers : file_numbers := (others => 0);
        variable names : file_names;
        variable line_number : natural := 0;   -- that failures are told with

        -- The repeats around the current line.
        constant most_loops : natural := 8;
        type loop_state is record
            in_file : natural;   -- its depth
            at : natural;
            first : script_link;
            left : unsigned(31 downto 0);
        end record;
        type loop_states is array (1 to most_loops) of loop_state;
        variable repeats : loop_states;
        variable loops : natural := 0;
        variable skipping : natural := 0;   -- repeats around the current line that are not played
        variable skip_line : natural;       -- of the outermost one
        variable stopped : boolean := false;   -- by a mistake behind which nothing makes sense

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
            if depth = 0 then
                return "line " & integer'image(line_number) & ": ";
            end if;
            return names(depth).all & ": line " & integer'image(line_number) & ": ";
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

        constant idle : std_logic_vector(1 downto 0) := "00";
        constant nonseq : std_logic_vector(1 downto 0) := "10";
        constant seq : std_logic_vector(1 downto 0) := "11";
        type transfer_kind is (writing, reading, refused);
        subtype width is natural range 0 to 2;   -- HSIZE

        function level(on_it : boolean) return std_logic is
        begin
            if on_it then
                return '1';
            end if;
            return '0';
        end function;

        function replicated(value : word; size : width) return word is
        begin
            case size is
                when 0 => return value(7 downto 0) & value(7 downto 0) & value(7 downto 0) & value(7 downto 0);
                when 1 => return value(15 downto 0) & value(15 downto 0);
                when 2 => return value;
            end case;
        end function;

        -- The addressed bytes of a word in the low bits.
        function addressed(value : word; address : unsigned(1 downto 0); size : width) return word is
            constant lane : natural := to_integer(address);
            constant half : natural := lane - lane mod 2;
        begin
            case size is
                when 0 => return X"000000" & value(8 * lane + 7 downto 8 * lane);
                when 1 => return X"0000" & value(8 * half + 15 downto 8 * half);
                when 2 => return value;
            end case;
        end function;

        impure function in_itcm(address : unsigned(31 downto 0)) return boolean is
        begin
            return (ITCM_LA_EN /= 0 and address < bytes(ITCMSIZE)) or
                   (ITCM_UA_EN /= 0 and address - X"10000000" < bytes(ITCMSIZE));
        end function;

        impure function in_dtcm(address : unsigned(31 downto 0)) return boolean is
        begin
            return address - X"20000000" < bytes(DTCMSIZE);
        end function;

        procedure tcm_access(address : unsigned(31 downto 0); write : boolean; size : width; value : word) is
            variable lanes : std_logic_vector(3 downto 0) := "0000";
            constant lane : natural := to_integer(address(1 downto 0));
            constant half : natural := lane - lane mod 2;
        begin
            if write then
                case size is
                    when 0 => lanes(lane) := '1';
                    when 1 => lanes(half + 1 downto half) := "11";
                    when 2 => lanes := "1111";
                end case;
            end if;
            next_itcmaddr <= std_logic_vector(address(19 downto 2));
            next_dtcmaddr <= std_logic_vector(address(19 downto 2));
            next_itcmwdata <= replicated(value, size);
            next_dtcmwdata <= replicated(value, size);
            next_itcmen <= level(in_itcm(address));
            next_dtcmen <= level(in_dtcm(address));
            if in_itcm(address) then
                next_itcmwe <= lanes;
            end if;
            if in_dtcm(address) then
                next_dtcmwe <= lanes;
            end if;
            cycle;
            next_itcmen <= '0';
            next_itcmwe <= "0000";
            next_dtcmen <= '0';
            next_dtcmwe <= "0000";
            cycle;
            if in_itcm(address) then
                data := ITCMRDATA;
            else
                data := DTCMRDATA;
            end if;
            failed := false;
        end procedure;

        -- The end of a data phase.
        procedure data_phase is
        begin
            cycle;
            ready;
            failed := to_x01(HRESP) /= '0';
            data := HRDATA;
        end procedure;

        -- An address phase, and the data phase of the transfer before it, if one is open.
        procedure address_phase(trans : std_logic_vector(1 downto 0); burst : std_logic_vector(2 downto 0);
                                address : unsigned(31 downto 0); write : boolean; size : width; value : word) is
        begin
            next_haddr <= std_logic_vector(address);
            next_htrans <= trans;
            next_hburst <= burst;
            next_hsize <= std_logic_vector(to_unsigned(size, 3));
            next_hwrite <= level(write);
            data_phase;
            next_htrans <= idle;
            next_hburst <= "000";
            next_hwrite <= '0';
            next_hwdata <= replicated(value, size);
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

        -- What the last transfer was to do.
        procedure check(kind : transfer_kind; expected, mask : word) is
        begin
            if kind = reading then
                check_read(expected, mask);
                return;
            end if;
            checks := checks + 1;
            if kind = writing and failed then
                fail("error response");
            end if;
            if kind = refused and not failed then
                fail("no error response");
            end if;
        end procedure;

        variable pipelined : boolean := false;
        -- The transfer whose data phase is open.
        variable open_one : boolean := false;
        variable open_kind : transfer_kind;
        variable open_address : unsigned(1 downto 0);
        variable open_size : width;
        variable open_expected, open_mask : word;
        variable open_line : natural;

        procedure check_open is
        begin
            open_one := false;
            line_number := open_line;
            data := addressed(data, open_address, open_size);
            check(open_kind, open_expected, open_mask);
            line_number := line_numbers(depth);
        end procedure;

        procedure close is
        begin
            if open_one then
                data_phase;
                check_open;
            end if;
        end procedure;

        -- A transfer that is checked: the value is what is written or expected.
        procedure transfer(kind : transfer_kind; address : unsigned(31 downto 0); size : width; value, mask : word) is
            variable stored : word := X"00000000";
        begin
            if kind = writing then
                stored := value;
            end if;
            if in_itcm(address) or in_dtcm(address) then
                close;
                tcm_access(address, kind = writing, size, stored);
                data := addressed(data, address(1 downto 0), size);
                check(kind, value, mask);
            else
                address_phase(nonseq, "000", address, kind = writing, size, stored);
                if open_one then
                    check_open;
                end if;
                open_one := true;
                open_kind := kind;
                open_address := address(1 downto 0);
                open_size := size;
                open_expected := value;
                open_mask := mask;
                open_line := line_number;
                if not pipelined then
                    close;
                end if;
            end if;
        end procedure;

        -- A word is read and not checked.
        procedure look(address : unsigned(31 downto 0)) is
        begin
            if in_itcm(address) or in_dtcm(address) then
                tcm_access(address, false, 2, X"00000000");
            else
                address_phase(nonseq, "000", address, false, 2, X"00000000");
                data_phase;
            end if;
        end procedure;

        -- Words of the current line, one more than any command has at most.
        constant most_words : natural := 20;
        type positions is array (0 to most_words - 1) of natural;
        type numbers is array (0 to most_words - 1) of unsigned(31 downto 0);
        variable text : line;
        variable first, last : positions;   -- where the words begin and end
        variable words : natural;
        variable number : numbers;
        variable wrong : boolean;           -- the line has a mistake

        procedure mistake(what : string) is
        begin
            wrong := true;
            fail(what);
        end procedure;

        -- Splits what is no comment.
        procedure split is
            variable in_word : boolean := false;
        begin
            words := 0;
            for i in text'range loop
                case text(i) is
                    when '#' =>
                        return;
                    when ' ' | HT | LF | VT | FF | CR | NUL =>
                        in_word := false;
                    when others =>
                        if not in_word then
                            exit when words = most_words;
                            first(words) := i;
                            words := words + 1;
                        end if;
                        in_word := true;
                        last(words - 1) := i;
                end case;
            end loop;
        end procedure;

        impure function word_at(n : natural) return string is
        begin
            return text(first(n) to last(n));
        end function;

        -- The value of a word: decimal with or without a sign, or hexadecimal; underscores may stand between digits.
        procedure read_number(which : natural) is
            constant given : string := word_at(which);
            alias characters : string(1 to given'length) is given;
            variable sum : unsigned(35 downto 0) := (others => '0');
            variable base : positive := 10;
            variable start : positive := 1;
            variable digits, digit : natural := 0;
            constant negative : boolean := characters(1) = '-';
        begin
            if characters'length > 2 and characters(1) = '0' then
                if characters(2) = 'x' then
                    base := 16;
                    start := 3;
                end if;
            elsif negative or characters(1) = '+' then
                start := 2;
            end if;
            for i in start to characters'length loop
                case characters(i) is
                    when '0' to '9' => digit := character'pos(characters(i)) - character'pos('0');
                    when 'a' to 'f' => digit := character'pos(characters(i)) - character'pos('a') + 10;
                    when 'A' to 'F' => digit := character'pos(characters(i)) - character'pos('A') + 10;
                    when others => digit := 16;
                end case;
                if digit < base then
                    sum := resize(sum * base, 36) + digit;
                    digits := digits + 1;
                elsif characters(i) /= '_' or digits = 0 then
                    mistake("not a number");
                    return;
                end if;
                if sum(35 downto 32) /= 0 then
                    mistake("a number of more than 32 bits");
                    return;
                end if;
            end loop;
            if digits = 0 then
                mistake("not a number");
            end if;
            number(which) := sum(31 downto 0);
            if negative then
                number(which) := 0 - sum(31 downto 0);
            end if;
        end procedure;

        function is_burst(command : string) return boolean is
        begin
            return command = "burst-write" or command = "burst-read";
        end function;

        -- Words that a command needs, itself among them; 0 for a word that is no command.
        function needed(command : string) return natural is
        begin
            if command = "end" or command = "reset" then
                return 1;
            elsif command = "error" or command = "wait" or command = "repeat" or command = "include" or
                command = "pipeline" then
                return 2;
            elsif command = "write" or command = "write16" or command = "write8" or command = "read" or
                command = "read16" or command = "read8" or command = "nmi" then
                return 3;
            elsif command = "irq" or is_burst(command) then
                return 4;
            elsif command = "poll" then
                return 5;
            end if;
            return 0;
        end function;

        -- Commands that need the board of "orixm1 simulate".
        function needs_board(command : string) return boolean is
        begin
            return command = "expect-uart" or command = "uart" or command = "gpio" or command = "gpio-drive";
        end function;

        -- Words that a command has at most; for the first ones more do not matter.
        function most(command : string) return natural is
        begin
            if command = "end" then
                return 1;
            elsif command = "repeat" or command = "include" or command = "pipeline" then
                return 2;
            elsif is_burst(command) then
                return 19;
            end if;
            return most_words;
        end function;

        -- The first word that is a number, and the last that is looked at.
        function first_number(command : string) return natural is
        begin
            if command = "end" or command = "include" or command = "pipeline" then
                return most_words;
            elsif is_burst(command) then
                return 2;
            end if;
            return 1;
        end function;
        function last_number(command : string) return natural is
        begin
            if is_burst(command) then
                return 18;
            end if;
            return 4;
        end function;

        procedure play_burst(kind : transfer_kind) is
            type burst is record
                name : string(1 to 6);
                code : std_logic_vector(2 downto 0);
                beats : natural;   -- 0: any number
                wraps : boolean;
            end record;
            type bursts is array (natural range <>) of burst;
            constant table : bursts := (
                ("single", "000", 0, false), ("incr  ", "001", 0, false),
                ("wrap4 ", "010", 4, true), ("incr4 ", "011", 4, false),
                ("wrap8 ", "100", 8, true), ("incr8 ", "101", 8, false),
                ("wrap16", "110", 16, true), ("incr16", "111", 16, false));
            constant name : string := word_at(1);
            variable padded : string(1 to 6) := (others => ' ');
            variable found : integer := -1;
            constant beats : natural := words - 3;
            constant address : unsigned(31 downto 0) := number(2);
            variable beat, span : unsigned(31 downto 0);
            variable stored : word := X"00000000";
            variable trans : std_logic_vector(1 downto 0) := nonseq;
        begin
            if name'length <= 6 then
                padded(1 to name'length) := name;
                for i in table'range loop
                    if table(i).name = padded then
                        found := i;
                    end if;
                end loop;
            end if;
            if found < 0 then
                mistake("no burst of this name");
            elsif table(found).beats /= 0 and table(found).beats /= beats then
                mistake("not as many data as the burst has");
            elsif address(1 downto 0) /= 0 then
                mistake("the address of a burst is not a multiple of 4");
            elsif table(found).code /= "000" and not table(found).wraps and
                to_integer(address(9 downto 0)) + 4 * beats > 1024 then
                mistake("the burst crosses a boundary of 1 KB");
            elsif in_itcm(address) or in_dtcm(address) or in_itcm(address + 4 * (beats - 1)) or
                in_dtcm(address + 4 * (beats - 1)) then
                mistake("no bursts in the ITCM and the DTCM");
            else
                span := to_unsigned(4 * beats - 1, 32);
                for n in 0 to beats - 1 loop
                    beat := address + 4 * n;
                    if table(found).wraps then
                        beat := (address and not span) or (beat and span);
                    end if;
                    if kind = writing then
                        stored := word(number(3 + n));
                    end if;
                    address_phase(trans, table(found).code, beat, kind = writing, 2, stored);
                    if n /= 0 then
                        check(kind, word(number(2 + n)), X"FFFFFFFF");
                    end if;
                    if table(found).code /= "000" then
                        trans := seq;
                    end if;
                end loop;
                data_phase;
                check(kind, word(number(2 + beats)), X"FFFFFFFF");
            end if;
        end procedure;

        procedure play_repeat is
        begin
            if not wrong and loops = most_loops then
                mistake("the repeats nest more than 8 deep");
            end if;
            if not wrong then
                wrong := number(1) = 0;
            end if;
            if wrong then
                skipping := 1;
                skip_line := line_number;
            else
                loops := loops + 1;
                repeats(loops) := (depth, line_number, current(depth), number(1));
            end if;
        end procedure;

        procedure play_end is
        begin
            if loops > 0 then
                if repeats(loops).in_file = depth then
                    if repeats(loops).left > 1 then
                        repeats(loops).left := repeats(loops).left - 1;
                        line_numbers(depth) := repeats(loops).at;
                        current(depth) := repeats(loops).first;
                    else
                        loops := loops - 1;
                    end if;
                    return;
                end if;
            end if;
            mistake("end without repeat");
        end procedure;

        -- Reads the file into the next place, if it can.
        procedure load(name : string; into : natural; readable : out boolean) is
            file source : std.textio.text;
            variable status : file_open_status;
            variable l : line;
            variable tail, added : script_link;
        begin
            file_open(status, source, name, read_mode);
            readable := status = open_ok;
            if status = open_ok then
                heads(into) := null;
                while not endfile(source) loop
                    readline(source, l);
                    added := new script_line'(l, null);
                    l := null;
                    if tail = null then
                        heads(into) := added;
                    else
                        tail.following := added;
                    end if;
                    tail := added;
                end loop;
                file_close(source);
                current(into) := heads(into);
                line_numbers(into) := 0;
                names(into) := new string'(name);
            end if;
        end procedure;

        -- A name seen from the folder of the current file.
        impure function beside(other : string) return string is
            alias characters : string(1 to other'length) is other;
            variable absolute : boolean := characters(1) = '/' or characters(1) = '\';
        begin
            if characters'length >= 2 then
                absolute := absolute or characters(2) = ':';
            end if;
            if not absolute then
                for i in names(depth)'high downto names(depth)'low loop
                    if names(depth)(i) = '/' or names(depth)(i) = '\' then
                        return names(depth)(names(depth)'low to i) & other;
                    end if;
                end loop;
            end if;
            return other;
        end function;

        procedure play_include is
            variable readable : boolean;
        begin
            if depth = deepest then
                mistake("the includes nest more than 8 deep");
                stopped := true;
                return;
            end if;
            load(beside(word_at(1)), depth + 1, readable);
            if readable then
                depth := depth + 1;
            else
                failures := failures + 1;
                print(path & ".play_include: " & place & "the script """ & beside(word_at(1)) & """ cannot be read");
            end if;
        end procedure;

        procedure play_line is
            constant command : string := word_at(0);
            variable input : natural;
            variable mask : word := X"FFFFFFFF";
        begin
            wrong := false;
            if needs_board(command) then
                mistake("only in orixm1 simulate");
            elsif needed(command) = 0 then
                mistake("unknown command");
            end if;
            for n in first_number(command) to last_number(command) loop
                if not wrong and n < words then
                    read_number(n);
                end if;
            end loop;
            if not wrong and words < needed(command) then
                if command = "include" then
                    mistake("the name of a file is missing");
                elsif command = "pipeline" then
                    mistake("neither on nor off");
                else
                    mistake("a number is missing");
                end if;
            end if;
            if not wrong and words > most(command) then
                mistake("too many words");
            end if;
            if (needed(command) /= 3 or command = "nmi") and command /= "error" and command /= "repeat" and
                command /= "end" then
                close;
            end if;
            if command = "repeat" then
                play_repeat;
            end if;
            if wrong then
                return;
            end if;
            if words > 3 then
                mask := word(number(3));
            end if;
            if command = "write" then
                transfer(writing, number(1), 2, word(number(2)), mask);
            elsif command = "write16" then
                transfer(writing, number(1), 1, word(number(2)), mask);
            elsif command = "write8" then
                transfer(writing, number(1), 0, word(number(2)), mask);
            elsif command = "read" then
                transfer(reading, number(1), 2, word(number(2)), mask);
            elsif command = "read16" then
                transfer(reading, number(1), 1, word(number(2)), mask);
            elsif command = "read8" then
                transfer(reading, number(1), 0, word(number(2)), mask);
            elsif command = "error" then
                transfer(refused, number(1), 2, X"00000000", mask);
            elsif command = "burst-write" then
                play_burst(writing);
            elsif command = "burst-read" then
                play_burst(reading);
            elsif command = "poll" then
                look(number(1));
                while not failed and masked(data, mask) /= word(number(2)) and number(4) > 1 loop
                    number(4) := number(4) - 1;
                    look(number(1));
                end loop;
                check_read(word(number(2)), mask);
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
            elsif command = "end" then
                play_end;
            elsif command = "include" then
                play_include;
            elsif command = "pipeline" then
                if word_at(1) = "on" then
                    pipelined := true;
                elsif word_at(1) = "off" then
                    pipelined := false;
                else
                    mistake("neither on nor off");
                end if;
            end if;
        end procedure;

        -- The end of a file.
        procedure leave is
            variable following : script_link;
        begin
            close;
            if skipping /= 0 then
                line_number := skip_line;
                fail("repeat without end");
                skipping := 0;
            end if;
            while loops /= 0 loop
                exit when repeats(loops).in_file /= depth;
                line_number := repeats(loops).at;
                fail("repeat without end");
                loops := loops - 1;
            end loop;
            while heads(depth) /= null loop
                following := heads(depth).following;
                deallocate(heads(depth).text);
                deallocate(heads(depth));
                heads(depth) := following;
            end loop;
            deallocate(names(depth));
            depth := depth - 1;
            if depth >= 0 then
                if line_numbers(depth + 1) = 0 then
                    line_number := line_numbers(depth);
                    fail("the included script is empty");   -- or a folder
                end if;
            end if;
        end procedure;

        -- Plays the next line, or leaves the file.
        procedure play_next is
        begin
            if current(depth) = null then
                leave;
                return;
            end if;
            text := current(depth).text;
            current(depth) := current(depth).following;
            line_numbers(depth) := line_numbers(depth) + 1;
            line_number := line_numbers(depth);
            split;
            if text'length > 255 then
                fail("a line of more than 255 characters");
            elsif words > 0 then
                if skipping = 0 then
                    play_line;
                elsif word_at(0) = "repeat" then
                    skipping := skipping + 1;
                elsif word_at(0) = "end" then
                    skipping := skipping - 1;
                end if;
            end if;
        end procedure;

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
        load(name(1 to length), 0, readable);
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
            while depth >= 0 and not stopped loop
                play_next;
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
