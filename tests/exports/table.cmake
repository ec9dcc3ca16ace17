# SPDX-License-Identifier: Apache-2.0
# Writes the exports with their parameters, one a line: EXPORT(name, "const Tpx8u* pSrc, int srcStep, ...").
#   cmake -DHEADERS="a.h;b.h" -DOUTPUT=exports.inc -P table.cmake
set(lines)
foreach(header IN LISTS HEADERS)
    file(READ ${header} text)
    string(REGEX MATCHALL "TPX_API [A-Za-z0-9_ *]*tpxi[A-Za-z0-9_]+\\([^)]*\\)" prototypes "${text}")
    foreach(prototype IN LISTS prototypes)
        string(REGEX REPLACE "[ \n]+" " " prototype "${prototype}")
        string(REGEX REPLACE ".*[ *](tpxi[A-Za-z0-9_]+)\\((.*)\\)$" "EXPORT(\\1, \"\\2\")\n" line "${prototype}")
        string(APPEND lines "${line}")
    endforeach()
endforeach()
file(WRITE ${OUTPUT}.new "${lines}")
file(COPY_FILE ${OUTPUT}.new ${OUTPUT} ONLY_IF_DIFFERENT)
file(TOUCH_NOCREATE ${OUTPUT})
