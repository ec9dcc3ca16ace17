# SPDX-License-Identifier: Apache-2.0
# Writes the assembler file of exported stubs and their slots; and beside it what the static library's symbols are
# renamed by (entries.renames) and which of them others may see (entries.names).
#   cmake -DHEADERS="a.h;b.h" -DOUTPUT=entries.S -P EntryTable.cmake
# The names are those of the functions that the headers declare with TPX_API, in byte order. A stub is ten bytes:
# the address of its slot is loaded into a scratch register, and control jumps through the slot with all
# arguments untouched. The slots stand in writable data and are filled when the library is loaded.
include(${CMAKE_CURRENT_LIST_DIR}/Prototypes.cmake)
tpx_prototypes(names ${HEADERS})
list(TRANSFORM names REPLACE "\\(.*" "")
list(SORT names COMPARE STRING CASE SENSITIVE)
set(unique ${names})
list(REMOVE_DUPLICATES unique)
if(NOT unique STREQUAL names)
    message(FATAL_ERROR "a name is declared twice in the public headers")
endif()

set(stubs)
set(slots)
foreach(name IN LISTS names)
    string(APPEND stubs "    STUB ${name}\n")
    string(APPEND slots "    SLOT ${name}\n")
endforeach()

file(WRITE ${OUTPUT}.new
"    .macro STUB name
    .globl \\name
    .type \\name, @function
\\name:
    leaq \\name\\()_arraddr(%rip), %r11
    jmp *(%r11)
    .size \\name, . - \\name
    .endm

    .macro SLOT name
    .type \\name\\()_arraddr, @object
\\name\\()_arraddr:
    .hidden e9_\\name
    .quad e9_\\name
    .size \\name\\()_arraddr, 8
    .endm

    .text
    .p2align 4
${stubs}
    .data
    .p2align 6
${slots}
    .section .note.GNU-stack, \"\", @progbits
")
list(JOIN names "\n" lines)
string(REGEX REPLACE "([^\n]+)" "e9_\\1 \\1" renames "${lines}")
get_filename_component(dir ${OUTPUT} DIRECTORY)
file(WRITE ${dir}/entries.names "${lines}\n")
file(WRITE ${dir}/entries.renames "${renames}\n")
file(COPY_FILE ${OUTPUT}.new ${OUTPUT} ONLY_IF_DIFFERENT)
file(TOUCH_NOCREATE ${OUTPUT})
