# Rewrites a design in RTLIL. First file: the cells that both designs have, a name a line. Second file: the pins that
# cells drive, as "design/pin" a line. Third file: the design.
#  - Pins of both directions become outputs if something drives them, and inputs if not: their tri-state drivers are
#    out of the design.
#  - States that the other design does not have become OWN_STATE.
FILENAME == ARGV[1] { shared["\\" $0] = 1; next }
FILENAME == ARGV[2] { sub(/^[^\/]*\//, ""); driven["\\" $0] = 1; next }
/^  connect [^ ]+ [0-9]+'[xz]+$/ { next } # the pin is left open
/^  connect / { driven[$2] = 1 }
/^  cell \\STATE / && !($3 in shared) { sub(/STATE/, "OWN_STATE") }
{ lines[++count] = $0 }
END {
    for (i = 1; i <= count; i++) {
        line = lines[i]
        if (line ~ /^  wire .*inout/) {
            words = split(line, word, " ")
            sub(/inout/, (word[words] in driven) ? "output" : "input", line)
        }
        print line
    }
}
