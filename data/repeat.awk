# Repeats text for each row of a table. Lines that begin with "//:" say what to repeat, and are not part of the result:
#
#   //: table NAME       begins a table
#   //:   COLUMN  …      its columns, then its rows: fields are two spaces or more apart
#   //: each TABLE …     repeats the lines from here on for each row of the tables; @COLUMN@ is the row's field
#   //: end              up to here
#   //: again TABLE …    repeats the same lines for the rows of other tables
#
# awk -v output=FILE -f repeat.awk INPUT: writes the result, or a message with file and line, and nothing.

function fail(reason)
{
    print FILENAME ":" FNR ": " reason > "/dev/stderr"
    failed = 1
    exit 1
}

function repeat(tables, count, names, i, row, column, lines)
{
    if (body == "")
        fail("no lines to repeat")
    count = split(tables, names, " ")
    for (i = 1; i <= count; i++) {
        if (!(names[i] in rows))
            fail("no table \"" names[i] "\"")
        for (row = 1; row <= rows[names[i]]; row++) {
            lines = body
            for (column = 1; column <= columns[names[i]]; column++)
                gsub("@" field[names[i], 0, column] "@", field[names[i], row, column], lines)
            if (match(lines, /@[A-Za-z0-9_]+@/))
                fail("no column " substr(lines, RSTART, RLENGTH) " in the table \"" names[i] "\"")
            result = result lines
        }
    }
}

/^\/\/:  / {
    if (table == "" || /[&\\]/)
        fail("no row of a table: " $0)
    sub(/^\/\/: +/, "")
    count = split($0, fields, /  +/)
    if (!(table in rows)) {
        rows[table] = -1
        columns[table] = count
    }
    if (count != columns[table])
        fail(count " fields in a table of " columns[table])
    rows[table]++
    for (i = 1; i <= count; i++)
        field[table, rows[table], i] = fields[i]
    next
}

/^\/\/:/ {
    what = $2
    sub(/^\/\/: *[a-z]* */, "")
    table = ""
    if (inside != (what == "end"))
        fail(inside ? "\"end\" is missing before \"" what "\"" : "\"end\" without \"each\"")
    if (what == "table") {
        table = $0
        if (table in rows)
            fail("a second table \"" table "\"")
    } else if (what == "again")
        repeat($0)
    else if (what == "each") {
        inside = 1
        tables = $0
        body = ""
    } else if (what == "end") {
        inside = 0
        repeat(tables)
    } else
        fail("unknown: \"" what "\"")
    next
}

inside { body = body $0 "\n"; next }
{ result = result $0 "\n" }

END {
    if (!failed && inside)
        fail("\"end\" is missing")
    if (!failed)
        printf "%s", result > output
}
