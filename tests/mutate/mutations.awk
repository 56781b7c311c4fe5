# Lists the small changes that can be made to a source file or form, one a line:
#
#   path RS first line RS last line RS kind RS new lines, parted by US RS "before -> after"
#
# RS is \036, US \037. Reads one file; -v path=NAME is the name to print. Locale C. What a change does to comments,
# includes and texts for people is nobody's matter, so these stay. Relies on the layout that clang-format gives.

BEGIN {
    RS_ = "\036"; US_ = "\037"
    pair(" < ", " <= "); pair(" <= ", " < "); pair(" > ", " >= "); pair(" >= ", " > ")
    pair(" == ", " != "); pair(" != ", " == "); pair(" && ", " || "); pair(" || ", " && ")
    pair(" + ", " - "); pair(" - ", " + "); pair(" * ", " / "); pair(" / ", " * ")
    pair(" << ", " >> "); pair(" & ", " | "); pair(" += ", " -= "); pair(" -= ", " += "); pair(" |= ", " &= ")
    word("true", "false"); word("false", "true"); word("Warning", "Error"); word("Error", "Warning")
    word("min", "max"); word("max", "min"); word("qMin", "qMax"); word("qMax", "qMin")
    word("any_of", "all_of"); word("all_of", "any_of"); word("first", "last"); word("last", "first")
    word("break", "continue"); word("Input", "Output"); word("Output", "Input")
}

function pair(a, b) { ++pairCount; pairFrom[pairCount] = a; pairTo[pairCount] = b }
function word(a, b) { ++wordCount; wordFrom[wordCount] = a; wordTo[wordCount] = b }

{ text[NR] = $0 }

END {
    lines = NR
    if (path ~ /\.ui$/) {
        form()
        exit
    }
    for (i = 1; i <= lines; ++i)
        mask(i)
    for (i = 1; i <= lines; ++i) {
        if (code[i] ~ /^ *$|static_assert|Q_ASSERT|Q_UNREACHABLE/)
            continue
        operators(i)
        words(i)
        negations(i)
        conditions(i)
        numbers(i)
        literals(i)
        returns(i)
        statements(i)
        rows(i)
    }
}

# What one value of a widget decides.
function form(    i, name, value) {
    for (i = 1; i < lines; ++i) {
        if (text[i] !~ /<property name="(minimum|maximum|value|checked|enabled|currentIndex)">/)
            continue
        if (match(text[i + 1], /<number>-?[0-9]+</)) {
            value = substr(text[i + 1], RSTART + 8, RLENGTH - 9)
            replace(i + 1, RSTART + 8, RLENGTH - 9, value + 1, "number")
            replace(i + 1, RSTART + 8, RLENGTH - 9, value - 1, "number")
        } else if (match(text[i + 1], /<bool>(true|false)</)) {
            value = substr(text[i + 1], RSTART + 6, RLENGTH - 7)
            replace(i + 1, RSTART + 6, RLENGTH - 7, value == "true" ? "false" : "true", "word")
        }
    }
}

function indentOf(line) {
    match(line, /^ */)
    return RLENGTH
}

function squeezed(s) {
    gsub(US_, " ", s)
    gsub(/[ \t]+/, " ", s)
    sub(/^ /, "", s)
    sub(/ $/, "", s)
    return s == "" ? "(nothing)" : s
}

function emit(first, last, kind, new,    before, i) {
    before = text[first]
    for (i = first + 1; i <= last; ++i)
        before = before US_ text[i]
    if (new != before)
        print path RS_ first RS_ last RS_ kind RS_ new RS_ squeezed(before) " -> " squeezed(new)
}

function replace(i, at, length_, new, kind) {
    emit(i, i, kind, substr(text[i], 1, at - 1) new substr(text[i], at + length_))
}

function filled(n,    s) {
    for (s = ""; n > 0; --n)
        s = s "~"
    return s
}

# code[i]: the line without comments, with "~" for what stands in quotation marks, and a blank behind it.
function mask(i,    line, out, n, at, c, two, start, quote) {
    line = text[i]
    n = length(line)
    literalCount[i] = 0
    if (line ~ /^ *#/) {
        code[i] = ""
        return
    }
    out = ""
    for (at = 1; at <= n; ++at) {
        c = substr(line, at, 1)
        two = substr(line, at, 2)
        if (inComment) {
            if (two == "*/") {
                inComment = 0
                out = out " "
                ++at
            }
            out = out " "
        } else if (two == "//") {
            break
        } else if (two == "/*") {
            inComment = 1
            out = out "  "
            ++at
        } else if (c == "\"" || (c == "'" && substr(line, at - 1, 1) !~ /[0-9]/)) {
            quote = c
            start = at
            for (++at; at <= n && (c = substr(line, at, 1)) != quote; ++at)
                if (c == "\\")
                    ++at
            out = out quote filled(at - start - 1) quote
            if (quote == "\"") {
                ++literalCount[i]
                literalAt[i, literalCount[i]] = start + 1
                literalLength[i, literalCount[i]] = at - start - 1
            }
        } else {
            out = out c
        }
    }
    sub(/ +$/, "", out)
    code[i] = out " "
}

function operators(i,    k, offset, at) {
    if (code[i] ~ /^ *template /)
        return
    for (k = 1; k <= pairCount; ++k) {
        offset = 0
        while ((at = index(substr(code[i], offset + 1), pairFrom[k])) > 0) {
            offset += at
            # Texts are joined with "+".
            if (pairFrom[k] != " + " || code[i] !~ /["']|_l1|QString/)
                replace(i, offset + 1, length(pairFrom[k]) - 2, squeezed(pairTo[k]), "operator")
        }
    }
    if ((at = index(code[i], "++")) > 0 && code[i] !~ /^ *for /)
        replace(i, at, 2, "--", "operator")
}

function isWordCharacter(c) { return c ~ /[A-Za-z0-9_]/ }

function words(i,    k, offset, at, n) {
    for (k = 1; k <= wordCount; ++k) {
        n = length(wordFrom[k])
        offset = 0
        while ((at = index(substr(code[i], offset + 1), wordFrom[k])) > 0) {
            offset += at
            if (!isWordCharacter(substr(code[i], offset - 1, 1) "") && !isWordCharacter(substr(code[i], offset + n, 1)))
                replace(i, offset, n, wordTo[k], "word")
        }
    }
}

function negations(i,    at) {
    for (at = 1; at < length(code[i]); ++at)
        if (substr(code[i], at, 1) == "!" && substr(code[i], at + 1, 1) ~ /[A-Za-z_(]/)
            replace(i, at, 1, "", "negation")
}

# "if (condition)" in one line; what a changed operator says already is left out.
function conditions(i,    at, depth, end, c, condition) {
    if (!match(code[i], /^ *(} )?(else )?if \(/))
        return
    at = RSTART + RLENGTH
    depth = 1
    for (end = at; end <= length(code[i]) && depth > 0; ++end) {
        c = substr(code[i], end, 1)
        depth += (c == "(") - (c == ")")
    }
    if (depth > 0)
        return
    condition = substr(code[i], at, end - 1 - at)
    if (condition ~ /;/ || condition ~ /^!/ || (condition ~ / [!=]= / && condition !~ / (&&|\|\|) /))
        return
    replace(i, at, end - 1 - at, "!(" substr(text[i], at, end - 1 - at) ")", "condition")
}

function numbers(i,    offset, at, n, value) {
    offset = 1
    while (match(substr(code[i], offset), /[0-9][0-9A-Za-z_.]*/)) {
        at = offset + RSTART - 1
        n = RLENGTH
        value = substr(code[i], at, n)
        offset = at + n
        if (at > 1 && substr(code[i], at - 1, 1) ~ /[A-Za-z0-9_.]/)
            continue
        if (value ~ /^(0|[1-9][0-9]*)$/) {
            replace(i, at, n, value + 1, "number")
            replace(i, at, n, value > 0 ? value - 1 : "(-1)", "number")
        } else if (value ~ /^0x[0-9A-Fa-f]+$/) {
            replace(i, at, n, "(" value " + 1)", "number")
        } else if (value ~ /^[0-9]+u$/) {
            replace(i, at, n, "(" value " + 1u)", "number")
        }
    }
}

# Names and keys; sentences only where a table or a form of the text makes them one.
function literals(i,    k, at, n, s, parts, names, j, m, rest, isName) {
    if (code[i] ~ /(^|[^A-Za-z_])tr\(|_NOOP/)
        return
    for (k = 1; k <= literalCount[i]; ++k) {
        at = literalAt[i, k]
        n = literalLength[i, k]
        s = substr(text[i], at, n)
        parts = split(s, names, "/")
        isName = parts > 1 && s ~ /^[A-Za-z0-9_.\/-]+$/
        for (j = 1; j <= parts && isName; ++j)
            isName = names[j] ~ /^[A-Za-z][A-Za-z0-9_.-]*$/ || (names[j] == "" && (j == 1 || j == parts))
        if (isName) {
            for (j = 1; j <= parts; ++j) {
                if (names[j] == "")
                    continue
                rest = ""
                for (m = 1; m <= parts; ++m)
                    if (m != j)
                        rest = rest (rest == "" && (m == 1 || (m == 2 && j == 1)) ? "" : "/") names[m]
                replace(i, at, n, rest, "name")
            }
        } else if (n > 0 && s !~ /\\$/ && (s !~ / / || substr(text[i], at + n + 1, 3) == "_l1")) {
            replace(i, at, n, s "~", "text")
        }
    }
}

function returns(i,    at, value) {
    if (!match(code[i], /^ *return .+; $/))
        return
    at = index(code[i], "return ") + 7
    value = substr(code[i], at, length(code[i]) - at - 1)
    if (value !~ /^({}|true|false|-?[0-9]+)$/)
        replace(i, at, length(value), "{}", "result")
}

# Brackets of a masked line: what it opens less what it closes. low: the lowest depth on the way.
function depthOf(s,    at, c, depth) {
    low = 0
    depth = 0
    for (at = 1; at <= length(s); ++at) {
        c = substr(s, at, 1)
        if (index("({[", c))
            ++depth
        else if (index(")}]", c) && --depth < low)
            low = depth
    }
    return depth
}

function statements(i,    previous, end, depth) {
    if (code[i] !~ /^ +[A-Za-z_*(][A-Za-z0-9_:]*((\.|->)[A-Za-z_][A-Za-z0-9_]*)*(\[[^\]]*\])?(\(| = | [-+|&]= | << |; $)/ &&
        code[i] !~ /^ +(\+\+|--)[A-Za-z_]/)
        return
    if (code[i] ~ /^ *(if|for|while|switch|return|else|do|case|default|public|private|protected|static_assert|explicit|Q_[A-Z_]+)[^A-Za-z0-9_]/)
        return
    for (previous = i - 1; previous > 0 && code[previous] ~ /^ *$/; --previous)
        ;
    if (previous > 0 && code[previous] !~ /([;{}):]|else) $/)
        return
    depth = 0
    for (end = i; end <= lines && end < i + 25; ++end) {
        depth += depthOf(code[end])
        if (depth < 0)
            return
        if (depth == 0 && code[end] ~ /; $/) {
            emit(i, end, "statement", substr(text[i], 1, indentOf(text[i])) "{}")
            return
        }
    }
}

# The last line of the row of a table that begins in line i; 0: none does.
function rowEnd(i,    end, depth) {
    if (code[i] !~ /^ +\{+[^ }]/)
        return 0
    depth = 0
    for (end = i; end <= lines && end < i + 25; ++end) {
        depth += depthOf(code[end])
        if (depth + low < -1 || depth < 0)
            return 0
        if (depth == 0)
            return code[end] ~ /}, $/ ? end : 0
    }
    return 0
}

function rows(i,    end, next_, j, first, second) {
    end = rowEnd(i)
    if (!end)
        return
    emit(i, end, "row removed", "")
    next_ = rowEnd(end + 1)
    if (!next_ || indentOf(text[i]) != indentOf(text[end + 1]))
        return
    first = text[i]
    for (j = i + 1; j <= end; ++j)
        first = first US_ text[j]
    second = text[end + 1]
    for (j = end + 2; j <= next_; ++j)
        second = second US_ text[j]
    emit(i, next_, "rows swapped", second US_ first)
}
