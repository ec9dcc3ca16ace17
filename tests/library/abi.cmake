# SPDX-License-Identifier: Apache-2.0
# What the exported functions take and give, compared with the last release: parameters, records, enumerators. What
# the compiler sees in the public headers is put into a library that holds the type of every export.
#   cmake -DSOURCE=dir -DWORK=dir -DCC=cc -P abi.cmake               compares with release.abi
#   cmake -DSOURCE=dir -DWORK=dir -DCC=cc -DRELEASE=ON -P abi.cmake  writes release.abi, for a release
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
file(REAL_PATH ${SOURCE} SOURCE)
set(released ${CMAKE_CURRENT_LIST_DIR}/release.abi)

file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/exports.txt names)
list(APPEND names tpxMalloc tpxMalloc_L tpxFree tpxGetMaxCacheSizeB tpx_get_cache_line_size)
set(code "#include <tpxcore.h>\n#include <tpxi.h>\n")
foreach(name IN LISTS names)
    string(APPEND code "__typeof__(&${name}) type_of_${name};\n")
endforeach()
# In C enumerators are plain integers. The length of an array holds the value of each.
file(READ ${SOURCE}/include/tpxi/types.h types)
string(REGEX MATCHALL "tpx[A-Z][A-Za-z0-9]*( = |, -?[0-9]+, \")" enumerators "${types}")
list(TRANSFORM enumerators REPLACE "[ ,].*" "")
foreach(name IN LISTS enumerators)
    string(APPEND code "char value_of_${name}[0x10000 + ${name}];\n")
endforeach()
list(LENGTH enumerators count)
if(count LESS 80)
    message(FATAL_ERROR "the enumerators of types.h are written in another form")
endif()
file(WRITE ${WORK}/boundary.c "${code}")

function(run)
    execute_process(COMMAND ${ARGV} WORKING_DIRECTORY ${WORK} RESULT_VARIABLE result OUTPUT_VARIABLE said ERROR_VARIABLE said)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${said}")
    endif()
endfunction()
run(${CC} -std=gnu11 -gdwarf-4 -O0 -fPIC -shared -I${SOURCE}/include boundary.c -o libboundary.so)
if(RELEASE)
    run(abidw --no-show-locs --no-corpus-path --no-comp-dir-path --type-id-style hash
        --out-file ${released} libboundary.so)
else()
    # What is new is no harm.
    run(abidiff --no-added-syms --no-show-locs ${released} libboundary.so)
endif()
