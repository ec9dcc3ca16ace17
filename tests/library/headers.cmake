# SPDX-License-Identifier: Apache-2.0
# Every public header stands by itself and is clean, in every standard it is written for.
#   cmake -DINCLUDE=dir -DCC=cc -DCXX=c++ -P headers.cmake
function(expectClean language compiler standards)
    foreach(standard IN LISTS standards)
        foreach(header IN LISTS ARGN)
            execute_process(COMMAND ${compiler} -std=${standard} -pedantic -Wall -Wextra -Werror -fsyntax-only
                                    -I${INCLUDE} -include ${header} -x ${language} /dev/null
                            RESULT_VARIABLE result ERROR_VARIABLE said)
            if(NOT result EQUAL 0)
                message(SEND_ERROR "${header} as ${standard}:\n${said}")
            endif()
        endforeach()
    endforeach()
endfunction()

file(GLOB headers RELATIVE ${INCLUDE} ${INCLUDE}/*.h ${INCLUDE}/tpxi/*.h)
expectClean(c ${CC} "c89;c99;c2x" ${headers})
expectClean(c++ ${CXX} "c++98;c++17;c++2b" ${headers})

file(GLOB_RECURSE headers RELATIVE ${INCLUDE} ${INCLUDE}/*.hpp)
expectClean(c++ ${CXX} "c++17" ${headers})
expectClean(c++ ${CXX} "c++20;c++2b" tpxi.hpp)
