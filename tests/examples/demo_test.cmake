# SPDX-License-Identifier: Apache-2.0
# What tools/demo says of its arguments. It installs and builds nothing for any of these.
#   cmake -DDEMO=tools/demo -DPHOTO=coffee.png -DWORK=directory -P demo_test.cmake
cmake_minimum_required(VERSION 3.21)
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

function(expect code pattern)
    execute_process(COMMAND ${DEMO} ${ARGN} WORKING_DIRECTORY ${WORK} TIMEOUT 5 RESULT_VARIABLE result
                    OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result STREQUAL code OR NOT "${out}${err}" MATCHES "${pattern}")
        message(SEND_ERROR "tools/demo ${ARGN}: exit ${result}, not ${code}\n${out}${err}")
    endif()
endfunction()

expect(0 "^usage: tools/demo" -h)
expect(0 "^usage: tools/demo" --help)
expect(2 "^usage: tools/demo" --fast)
expect(2 "^usage: tools/demo" ${PHOTO} ${PHOTO})
expect(1 "missing.png: no file" missing.png)
expect(1 "no file" .)
