# From the Verilog that GHDL makes of a VHDL netlist to one whose cells are named as in the Verilog netlist. First file:
# the names of that netlist's unnamed cells, in order; the VHDL netlist has its own for them, in the same order.
#  - Only the module `top` is kept: what it instantiates is declared elsewhere.
#  - Names are written \so\ by GHDL, where Verilog wants "\so ".
#  - Pins that nothing drives are left open, not driven with Z.
FILENAME == ARGV[1] { name[++names] = $0; next }
BEGIN { if (top == "") top = "Tarvo_ORIX_M1_Top" }
/^module / { inside = $2 == top }
!inside || /assign [^ ]+ = [0-9]+'b[Z]+;/ { next }
match($0, / u[0-9]+ \($/) { $0 = substr($0, 1, RSTART) name[++cells] " (" }
{
    while (match($0, /\\[^\\ ]+\\[A-Za-z0-9_]*/)) {
        word = substr($0, RSTART + 1, RLENGTH - 1)
        sub(/\\/, "", word)
        done = done substr($0, 1, RSTART - 1) "\\" word " "
        $0 = substr($0, RSTART + RLENGTH)
    }
    print done $0
    done = ""
}
END {
    if (cells != names) {
        print cells " unnamed cells in VHDL, " names " in Verilog" > "/dev/stderr"
        exit 1
    }
}
