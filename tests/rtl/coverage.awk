# A testbench as Verilator 5.006 can take it, in sense the same:
# - Tasks that take time stay functions; each call would be a copy of it otherwise, and a long testbench megabytes of code.
# - It follows what a process that waits does to a variable only where one assigns the whole of it, outside such a task. So each
#   variable of module tb gets a process that would, and never runs. Those that clocked logic assigns (<=) need none.
# Read twice, awk -f coverage.awk FILE FILE; in a file without modules all is of module tb.
function code(line) { sub(/\/\/.*/, "", line); return line }
FNR == 1 { pass++; within = 1; declaring = 0; task = "" }
{ text = code($0) }
text ~ /^ *module / { within = text ~ /^ *module tb;/ }
pass == 1 {
    rest = text
    while (match(rest, /(^ *|begin |; |else |\) )[a-z_A-Z0-9]+(\[[^\]]*\])* <= /)) {
        name = substr(rest, RSTART, RLENGTH)
        sub(/(\[[^\]]*\])* <= $/, "", name); sub(/.*[^a-z_A-Z0-9]/, "", name)
        clocked[name] = 1
        rest = substr(rest, RSTART + RLENGTH)
    }
    if (text ~ /^ *task /) { match(text, /task +[a-z_A-Z0-9]+/); task = substr(text, RSTART + 5, RLENGTH - 5) }
    plain = text
    gsub(/<= *#/, "", plain)   # takes no time by itself
    if (task != "" && within && plain ~ /#[0-9a-z(]|@|cycles|a[ph]b_[a-z]+/) waits[task] = 1
    if (task != "" && within) body[task] = body[task] text
    if (text ~ /endtask/) task = ""
    next
}
FNR == 1 {   # tasks that call one that waits wait too
    do {
        more = 0
        for (caller in body) if (!(caller in waits))
            for (called in waits) if (!(caller in waits) && body[caller] ~ ("(^|[^a-z_A-Z0-9])" called "([^a-z_A-Z0-9]|$)")) { waits[caller] = 1; more = 1 }
    } while (more)
}
# It knows no z in a variable.
text !~ /assign/ { gsub(/1'bz/, "1'b0"); gsub(/'hz+/, "'h0") }
{ print }
within && text ~ /^ *task / { match(text, /task +[a-z_A-Z0-9]+/); task = substr(text, RSTART + 5, RLENGTH - 5); head = 1 }
head && text ~ /;/ { if (task in waits || task ~ /^check(32)?$/) print "/*verilator no_inline_task*/"; head = 0 }
within && text ~ /^    (reg|integer|time)[ [].*/ { declaring = 1; names = "" }
declaring { names = names text }
declaring && text ~ /;/ {
    declaring = 0
    sub(/;.*/, "", names)
    sub(/^ *(reg|integer|time) *(signed *)?(\[[^\]]*\])?/, "", names)
    while (gsub(/\{[^{}]*\}|\([^()]*\)/, "", names)) ;
    n = split(names, each, ",")
    printf "    initial if ($test$plusargs(\"never\")) begin #1;"
    for (i = 1; i <= n; i++) {
        name = each[i]
        array = name ~ /^ *[a-z_A-Z0-9]+ *\[/
        sub(/^ */, "", name); sub(/[^a-z_A-Z0-9].*/, "", name)
        if (name != "" && !(name in clocked)) printf " %s = ~%s;", name (array ? "[0]" : ""), name (array ? "[0]" : "")
    }
    print " end"
}
