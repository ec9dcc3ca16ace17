# SPDX-License-Identifier: Apache-2.0
# Runs one of the hello programs as a user does.
#   cmake -DPROGRAM=hello -DPHOTO=coffee.png -DWORK=directory -DSIZE=hex -P hello_test.cmake
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

function(expect code pattern)
    execute_process(COMMAND ${PROGRAM} ${ARGN} WORKING_DIRECTORY ${WORK} RESULT_VARIABLE result ERROR_VARIABLE said)
    if(NOT result STREQUAL code OR NOT said MATCHES "${pattern}")
        message(SEND_ERROR "${PROGRAM} ${ARGN}: exit ${result}, not ${code}; said\n${said}")
    endif()
endfunction()

expect(0 "^$" ${PHOTO} out.png)
file(READ ${WORK}/out.png start LIMIT 24 HEX)
if(NOT start STREQUAL "89504e470d0a1a0a0000000d49484452${SIZE}")
    message(SEND_ERROR "the result does not begin as a PNG of that size does: ${start}")
endif()
expect(2 "^usage: " ${PHOTO})
expect(1 "^missing.png: No such file" missing.png none.png)
execute_process(COMMAND head -c 50000 ${PHOTO} OUTPUT_FILE ${WORK}/cut.png COMMAND_ERROR_IS_FATAL ANY)
expect(1 "^cut.png: .*[Rr]ead" cut.png none.png)
expect(1 "^absent/out.png: No such file" ${PHOTO} absent/out.png)
if(EXISTS ${WORK}/none.png)
    message(SEND_ERROR "a picture was written of one that cannot be read")
endif()
