# SPDX-License-Identifier: Apache-2.0
# What Doxygen reads for a public header. One comment stands in front of all functions of a family: here each
# function gets it, less what tells of parameters that it does not have. The list of statuses becomes an enumeration.
#   awk -f prototypes.awk include/tpxi/copy.h
function printComment(parameters,    i, skip) {
    skip = 0
    for (i = 1; i <= lines; i++) {
        if (comment[i] ~ /^ \* @param /) {
            split(comment[i], word, " +") # the line begins with a space
            skip = !(word[4] in parameters)
        } else if (comment[i] ~ /^ \*( @|\/|$)/) {
            skip = 0
        }
        if (!skip) print comment[i]
    }
}
# Prints one function, "[*]name(parameters)", of the type.
function printFunction(type, text,    list, count, i, parameters) {
    split("", parameters)
    match(text, /\(.*\)/)
    count = split(substr(text, RSTART + 1, RLENGTH - 2), list, ",")
    for (i = 1; i <= count; i++) {
        sub(/ *\[.*/, "", list[i])
        match(list[i], /[A-Za-z0-9_]+ *$/)
        parameters[substr(list[i], RSTART)] = 1
    }
    printComment(parameters)
    print "TPX_API " type " " text ";\n"
}
function printDeclaration(text,    type, at, depth, c, begin) {
    gsub(/[ \n]+/, " ", text)
    sub(/^TPX_API /, "", text)
    match(text, /\**tpx[A-Za-z0-9_]+\(/)
    type = substr(text, 1, RSTART - 1)
    sub(/ $/, "", type)
    begin = RSTART
    for (at = begin; at <= length(text); at++) {
        c = substr(text, at, 1)
        if (c == "(") depth++
        if (c == ")") depth--
        if (depth == 0 && (c == "," || c == ";")) {
            printFunction(type, substr(text, begin, at - begin))
            begin = at + 2
        }
    }
}

# A comment is held back until it is known what it belongs to.
/^\/\*\*/ { lines = 0; inComment = 1 }
inComment {
    comment[++lines] = $0
    if (/\*\/ *$/) inComment = 0
    next
}
/^TPX_API / { inDeclaration = 1; declaration = "" }
inDeclaration {
    declaration = declaration "\n" $0
    if (/;$/) {
        inDeclaration = 0
        printDeclaration(substr(declaration, 2))
        lines = 0
    }
    next
}
lines > 0 {
    for (i = 1; i <= lines; i++) print comment[i]
    lines = 0
}

# status(name, value, "text") of the list of statuses
/^#define TPX_STATUSES/ { inStatuses = 1; print "/** The values of a TpxStatus. */\nenum {"; next }
inStatuses && /^ *(status|last)\(/ {
    match($0, /\(.*"/)
    split(substr($0, RSTART + 1), part, ", ")
    text = $0
    sub(/^[^"]*"/, "", text)
    sub(/".*/, "", text)
    print "    " part[1] " = " part[2] ", /**< " text " */"
    if (/last\(/) { print "};"; inStatuses = 0 }
    next
}
/^enum \{ TPX_STATUSES/ { next }
# Macros that make declarations are no part of the reference.
/^#define TPX_/ { while (/\\$/ && (getline > 0)); next }
{ print }
END { for (i = 1; i <= lines; i++) print comment[i] }
