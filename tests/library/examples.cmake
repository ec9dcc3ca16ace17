# SPDX-License-Identifier: Apache-2.0
# The examples in the headers compile as strict C99 without a warning, and every one ends with success.
#   cmake -DHEADERS="a.h;b.h" -DINCLUDE=dir -DLIBRARY=libtpxie9.so -DCORE=libtpxcore.so -DCC=cc -DDIR=dir -P examples.cmake
set(functions)
set(calls)
set(count 0)
foreach(header IN LISTS HEADERS)
    file(READ ${header} text)
    # Lists are no place for code: its semicolons and brackets would part them.
    while(text MATCHES "\n \\* @code\n")
        string(FIND "${text}" "\n * @code\n" begin)
        math(EXPR begin "${begin} + 10")
        string(SUBSTRING "${text}" ${begin} -1 text)
        string(FIND "${text}" " * @endcode\n" length)
        string(SUBSTRING "${text}" 0 ${length} block)
        string(REGEX REPLACE "(^|\n) \\* ?" "\\1    " block "${block}")
        math(EXPR count "${count} + 1")
        get_filename_component(name ${header} NAME)
        string(APPEND functions "// ${name}\nstatic TpxStatus example${count}(void) {\n${block}\n    return status;\n}\n\n")
        string(APPEND calls "    failed |= report(\"${name}, example ${count}\", example${count}());\n")
    endwhile()
endforeach()
if(count LESS 10)
    message(FATAL_ERROR "${count} examples in the headers")
endif()

file(MAKE_DIRECTORY ${DIR})
file(WRITE ${DIR}/examples.c
"#include <stdio.h>
#include <stdlib.h>
#include <tpxi.h>

${functions}static int report(const char* name, TpxStatus status) {
    if (status != tpxOk) printf(\"%s: status %d\\n\", name, status);
    return status != tpxOk;
}

int main(void) {
    int failed = 0;
${calls}    return failed;
}
")
get_filename_component(dir ${LIBRARY} DIRECTORY)
get_filename_component(core ${CORE} DIRECTORY)
execute_process(COMMAND ${CC} -std=c99 -pedantic -Wall -Wextra -Werror -I${INCLUDE} ${DIR}/examples.c
                        -o ${DIR}/examples ${LIBRARY} ${CORE} -Wl,-rpath,${dir} -Wl,-rpath,${core}
                COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${DIR}/examples RESULT_VARIABLE failed OUTPUT_VARIABLE printed)
if(NOT failed EQUAL 0)
    message(FATAL_ERROR "${printed}${failed}")
endif()
message("${count} examples")
