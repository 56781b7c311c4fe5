# The cells of an RTLIL design that are taken out, with their parameters: what a comparison of logic does not see. First
# file: the declarations of these cells in RTLIL, whose values for parameters go without saying.
BEGIN {
    for (i = 1; i < 256; ++i)
        code[sprintf("%c", i)] = i
}

# Strings are numbers of eight bits a character.
function value(text,    at, bit, bits) {
    if (text !~ /^".*"$/)
        return text
    for (at = 2; at < length(text); ++at)
        for (bit = 128; bit >= 1; bit /= 2)
            bits = bits int(code[substr(text, at, 1)] / bit) % 2
    return length(bits) "'" bits
}

/^ +parameter / {
    sub(/^ +parameter (signed )?/, "&" SUBSEP)
    rest = substr($0, index($0, SUBSEP) + 1)
    sub(SUBSEP, "")
    parameter = substr(rest, 1, index(rest, " ")) value(substr(rest, index(rest, " ") + 1))
}
FILENAME == ARGV[1] && /^module / { module = $2 }
FILENAME == ARGV[1] && /^  parameter / { usual[module " " parameter] = 1 }
FILENAME == ARGV[1] { next }
/^  cell / { kept = $2 ~ /^\\/ && $2 != "\\OWN_STATE"; type = $2; name = $3 }
/^    parameter / && kept && !((type " " parameter) in usual) { print name " " type " " parameter }
/^  end$/ { if (kept) print name " " type; kept = 0 }
