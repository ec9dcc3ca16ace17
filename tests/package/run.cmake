# SPDX-License-Identifier: Apache-2.0
# An empty WORK_DIR, and run(command ...), which ends the test if the command fails and leaves what it says in `output`.
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
unset(ENV{LD_LIBRARY_PATH})
unset(ENV{DESTDIR})

function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGV " " command)
        message(FATAL_ERROR "${command}\nended with ${result}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()
