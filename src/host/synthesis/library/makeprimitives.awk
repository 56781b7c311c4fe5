# Makes the models of the primitives in VHDL, in which many are alike:
#
#     awk -f makeprimitives.awk primitives.vhd.in > primitives.vhd
#
# A line of the input that begins with "@" stands for a text:
#
#     @table N                  a look-up table of N inputs, two or more
#     @flip_flop NAME [asynchronous PIN=VALUE…] [synchronous PIN=VALUE…] [enabled PIN]
#                               a flip-flop; of the pins that set its state the first one wins
#     @entity NAME              the beginning of an entity and what it uses
#     @read ADDRESS WIDTH DATA  a word of a block RAM into a variable
#     @write ADDRESS WIDTH ENABLES DATA
#                               the enabled bytes of a word into a block RAM
#
# All other lines stay as they are. The comment on top says what the text is made from.

function entity(name) {
    print "library ieee;"
    print "use ieee.std_logic_1164.all;"
    print "use work.tv_simulation.all;"
    print ""
    print "entity " name " is"
}

function table_of(inputs,    name, i, address) {
    name = "TV_LUT" inputs
    entity(name)
    print "    generic ("
    print "        INIT : std_logic_vector(" 2 ^ inputs - 1 " downto 0) := (others => '0')"
    print "    );"
    print "    port ("
    print "        O : out std_logic;"
    for (i = 0; i < inputs; ++i) {
        print "        I" i " : in std_logic" (i + 1 < inputs ? ";" : "")
        address = "I" i (i > 0 ? " & " : "") address
    }
    print "    );"
    print "end entity;"
    print ""
    print "architecture model of " name " is"
    print "begin"
    print "    O <= look_up(INIT, std_logic_vector'(" address "));"
    print "end architecture;"
}

function flip_flop(    i, role, pin, wakes, others, outer, inner) {
    for (i = 3; i <= NF; ++i) {
        split($i, pin, "=")
        if ($i == "asynchronous" || $i == "synchronous" || $i == "enabled") {
            role = $i
            continue
        }
        others = others ", " pin[1]
        if (role == "asynchronous") {
            wakes = wakes ", " pin[1]
            outer = outer branch("        ", outer, "is_on(" pin[1] ")", "'" pin[2] "'")
        } else {
            inner = inner branch("            ", inner, "is_on(" pin[1] ")",
                                 role == "enabled" ? "to_x01(D)" : "'" pin[2] "'")
        }
    }
    if (inner == "")
        inner = "            state := to_x01(D);\n"
    else
        inner = inner (role == "enabled" ? "" : "            else\n                state := to_x01(D);\n") \
            "            end if;\n"

    entity($2)
    print "    generic ("
    print "        INIT : std_logic := 'X';"
    print "        NEG : std_logic := '0'"
    print "    );"
    print "    port ("
    print "        Q : out std_logic;"
    print "        C" others ", D : in std_logic"
    print "    );"
    print "end entity;"
    print ""
    print "architecture model of " $2 " is"
    print "begin"
    print "    process (C" wakes ")"
    print "        variable state : std_logic := to_x01(INIT);"
    print "    begin"
    printf "%s", outer
    print "        " (outer == "" ? "if" : "elsif") " is_edge(C, NEG) then"
    printf "%s", inner
    print "        end if;"
    print "        Q <= state;"
    print "    end process;"
    print "end architecture;"
}

# One more branch behind those `before`.
function branch(margin, before, condition, value) {
    return margin (before == "" ? "if " : "elsif ") condition " then\n" margin "    state := " value ";\n"
}

# The bit `i` of the word in which the element `first` is.
function element(width) {
    return "mem(first / " width " * " width " + i)"
}

{
    margin = $0
    sub(/[^ ].*/, "", margin)
}
$1 == "@entity" { entity($2); next }
$1 == "@table" { table_of($2); next }
$1 == "@flip_flop" { flip_flop(); next }
$1 == "@read" {
    print margin "first := index_of(" $2 ");"
    print margin "for i in 0 to " $3 " - 1 loop"
    print margin "    if first >= 0 then"
    print margin "        " $4 "(i) := " element($3) ";"
    print margin "    else"
    print margin "        " $4 "(i) := 'X';"
    print margin "    end if;"
    print margin "end loop;"
    next
}
$1 == "@write" {
    print margin "first := index_of(" $2 ");"
    print margin "for i in 0 to " $3 " - 1 loop"
    print margin "    if first >= 0 and is_on(" $4 "(i / 8)) then"
    print margin "        " element($3) " := to_x01(" $5 "(i));"
    print margin "    end if;"
    print margin "end loop;"
    next
}
/^$/ && !saidWhatFrom {
    print "--"
    print "-- Made from primitives.vhd.in by makeprimitives.awk; a change belongs there."
    saidWhatFrom = 1
}
$1 ~ /^@/ {
    print "makeprimitives: line " NR ": \"" $1 "\" stands for nothing" > "/dev/stderr"
    exit 1
}
{ print }
