# SPDX-License-Identifier: Apache-2.0
# The programs in the README compile as strict C99 and C++17, link, and print what their comments say.
#   cmake -DREADME=README.md -DINCLUDE=dir -DLIBRARY=libtpxie9.so -DCORE=libtpxcore.so -DCC=cc -DCXX=c++ -DDIR=dir
#         -P readme.cmake
file(READ ${README} text)
file(MAKE_DIRECTORY ${DIR})
get_filename_component(dir ${LIBRARY} DIRECTORY)
get_filename_component(core ${CORE} DIRECTORY)
function(expectProgram language compiler standard)
    string(REGEX MATCH "```${language}\n(#include[^`]*)```" block "${text}")
    if(NOT block)
        message(FATAL_ERROR "no ${language} program in the README")
    endif()
    file(WRITE ${DIR}/readme.${language} "${CMAKE_MATCH_1}")
    execute_process(COMMAND ${compiler} -std=${standard} -pedantic -Wall -Wextra -Werror -I${INCLUDE}
                            ${DIR}/readme.${language} -o ${DIR}/readme_${language} ${LIBRARY} ${CORE} -Wl,-rpath,${dir}
                            -Wl,-rpath,${core}
                    COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${DIR}/readme_${language} OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
    if(NOT printed STREQUAL "192\n")
        message(FATAL_ERROR "the README's ${language} program printed: ${printed}")
    endif()
endfunction()
expectProgram(c ${CC} c99)
expectProgram(cpp ${CXX} c++17)
