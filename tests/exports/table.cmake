# SPDX-License-Identifier: Apache-2.0
# Writes the exports with their parameters, one a line: EXPORT(name, "const Tpx8u* pSrc, int srcStep, ...").
#   cmake -DHEADERS="a.h;b.h" -DOUTPUT=exports.inc -P table.cmake
include(${CMAKE_CURRENT_LIST_DIR}/../../cmake/Prototypes.cmake)
tpx_prototypes(prototypes ${HEADERS})
set(lines)
foreach(prototype IN LISTS prototypes)
    string(REGEX REPLACE "([^(]*)\\((.*)\\)" "EXPORT(\\1, \"\\2\")\n" line "${prototype}")
    string(APPEND lines "${line}")
endforeach()
file(WRITE ${OUTPUT}.new "${lines}")
file(COPY_FILE ${OUTPUT}.new ${OUTPUT} ONLY_IF_DIFFERENT)
file(TOUCH_NOCREATE ${OUTPUT})
