# Makes symbolshapes.h of symbols: what their files draw, as steps that need no reading. A symbol with more than strokes of one
# colour along lines, rectangles and circles has no row, and its file is read when it is drawn.
#   awk -f symbolshapes.awk SYMBOL.svg …

# The value of an attribute, or what stands for it.
function attribute(tag, name, otherwise,    from, rest) {
    from = index(tag, " " name "=\"")
    if (!from)
        return otherwise
    rest = substr(tag, from + length(name) + 3)
    return substr(rest, 1, index(rest, "\"") - 1)
}

function step(kind, x, y) {
    steps = steps sprintf("    {'%s', %.17g, %.17g},\n", kind, x, y)
}

# Takes the next number off the path's data.
function number(    value) {
    if (!match(data, /^[ ,]*[-+]?[0-9]*\.?[0-9]+/)) {
        isKnown = 0
        return 0
    }
    value = substr(data, 1, RLENGTH)
    data = substr(data, RLENGTH + 1)
    gsub(/[ ,]/, "", value)
    return value + 0
}

function drawPath(    letter, x, y, firstX, firstY, isRelative) {
    x = y = firstX = firstY = 0
    while (isKnown && data !~ /^ *$/) {
        if (match(data, /^ *[A-Za-z]/)) {
            letter = substr(data, RLENGTH, 1)
            data = substr(data, RLENGTH + 1)
        }
        isRelative = letter == tolower(letter)
        if (letter ~ /[Zz]/) {
            step("Z", 0, 0)
            x = firstX
            y = firstY
        } else if (letter ~ /[Hh]/) {
            x = number() + (isRelative ? x : 0)
            step("L", x, y)
        } else if (letter ~ /[Vv]/) {
            y = number() + (isRelative ? y : 0)
            step("L", x, y)
        } else if (letter ~ /[MmLl]/) {
            x = number() + (isRelative ? x : 0)
            y = number() + (isRelative ? y : 0)
            step(toupper(letter), x, y)
            if (letter ~ /[Mm]/) {
                firstX = x
                firstY = y
                letter = isRelative ? "l" : "L"
            }
        } else {
            isKnown = 0
        }
    }
}

function finish(    name) {
    name = file
    sub(/^.*\//, "", name)
    sub(/\.svg$/, "", name)
    gsub(/\n/, " ", text)
    steps = ""
    isKnown = 1
    root = ""
    while (match(text, /<[^>]*>/)) {
        tag = substr(text, RSTART, RLENGTH)
        text = substr(text, RSTART + RLENGTH)
        if (tag ~ /^<svg /) {
            root = tag
            continue
        }
        if (tag ~ /^<\/svg>/)
            continue
        if (root !~ /viewBox="0 0 16 16" fill="none"/ || root !~ /stroke-linejoin="round" stroke-linecap="round"/ ||
            attribute(tag, "stroke", "") != "")
            isKnown = 0
        fill = attribute(tag, "fill", "none")
        if (fill != "none" && fill != attribute(root, "stroke", ""))
            isKnown = 0
        step("S", attribute(tag, "stroke-width", attribute(root, "stroke-width", 1)), fill != "none")
        if (tag ~ /^<path /) {
            data = attribute(tag, "d", "?")
            drawPath()
        } else if (tag ~ /^<rect / && attribute(tag, "rx", "") == "") {
            step("R", attribute(tag, "x", 0), attribute(tag, "y", 0))
            step("s", attribute(tag, "width", 0), attribute(tag, "height", 0))
        } else if (tag ~ /^<circle /) {
            step("C", attribute(tag, "cx", 0), attribute(tag, "cy", 0))
            step("s", attribute(tag, "r", 0), 0)
        } else {
            isKnown = 0
        }
    }
    if (!isKnown || root == "")
        return
    ++count
    printf "constexpr SymbolStep steps%d[] = {\n%s};\n", count, steps
    rows = rows sprintf("    {\"%s\", \"%s\", steps%d, %d},\n", name,
                        attribute(root, "stroke", ""), count, split(steps, lines, "\n") - 1)
}

BEGIN {
    print "// Made by symbolshapes.awk.\n"
}
FNR == 1 {
    if (file != "")
        finish()
    file = FILENAME
    text = ""
}
{
    text = text $0 "\n"
}
END {
    finish()
    printf "\nconstexpr SymbolShapes symbolShapes[] = {\n%s};\n", rows
}
