# SPDX-License-Identifier: Apache-2.0
# What the headers declare, for programs that go through all exports: exports.inc in the folder TPX_EXPORT_TABLE.
set(TPX_EXPORT_TABLE ${CMAKE_CURRENT_BINARY_DIR}/generated)
add_custom_command(
    OUTPUT ${TPX_EXPORT_TABLE}/exports.inc
    COMMAND ${CMAKE_COMMAND} "-DHEADERS=${TPX_PUBLIC_HEADERS}" -DOUTPUT=${TPX_EXPORT_TABLE}/exports.inc
            -P ${CMAKE_CURRENT_LIST_DIR}/table.cmake
    DEPENDS ${TPX_PUBLIC_HEADERS} ${CMAKE_CURRENT_LIST_DIR}/table.cmake ${PROJECT_SOURCE_DIR}/cmake/Prototypes.cmake
    COMMENT "Generating the table of exports"
    VERBATIM)
