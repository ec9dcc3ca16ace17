# SPDX-License-Identifier: Apache-2.0
# The program in the README compiles as strict C99, links, and prints what its comment says.
#   cmake -DREADME=README.md -DINCLUDE=dir -DLIBRARY=libtpxie9.so -DCORE=libtpxcore.so -DCC=cc -DDIR=dir -P readme.cmake
file(READ ${README} text)
string(REGEX MATCH "```c\n(#include[^`]*)```" block "${text}")
if(NOT block)
    message(FATAL_ERROR "no C program in the README")
endif()
file(MAKE_DIRECTORY ${DIR})
file(WRITE ${DIR}/readme.c "${CMAKE_MATCH_1}")
get_filename_component(dir ${LIBRARY} DIRECTORY)
get_filename_component(core ${CORE} DIRECTORY)
execute_process(COMMAND ${CC} -std=c99 -pedantic -Wall -Wextra -Werror -I${INCLUDE} ${DIR}/readme.c -o ${DIR}/readme
                        ${LIBRARY} ${CORE} -Wl,-rpath,${dir} -Wl,-rpath,${core}
                COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${DIR}/readme OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
if(NOT printed STREQUAL "192\n")
    message(FATAL_ERROR "the README's program printed: ${printed}")
endif()
