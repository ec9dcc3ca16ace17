# SPDX-License-Identifier: Apache-2.0
# Installs the build, moves the installed tree, and builds and runs the consumer's programs against it: with
# find_package, then with the compiler and pkg-config alone; then as a Python package.
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --config ${CONFIG} --prefix ${WORK_DIR}/installed)
set(prefix ${WORK_DIR}/moved)
file(RENAME ${WORK_DIR}/installed ${prefix})

run(${CMAKE_COMMAND} -S ${CONSUMER_DIR} -B ${WORK_DIR}/build -G ${GENERATOR} -DCMAKE_C_COMPILER=${C_COMPILER}
    -DCMAKE_BUILD_TYPE=${CONFIG} -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF)
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build --config ${CONFIG})
run(${CMAKE_CTEST_COMMAND} --output-on-failure --test-dir ${WORK_DIR}/build -C ${CONFIG})

find_program(PKG_CONFIG NAMES pkgconf pkg-config REQUIRED)
set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
foreach(pair IN ITEMS main/tpxie9 core/tpxcore)
    get_filename_component(library ${pair} NAME)
    get_filename_component(program ${pair} DIRECTORY)
    run(${PKG_CONFIG} --exact-version=${VERSION} ${library})
    execute_process(COMMAND ${PKG_CONFIG} --cflags --libs ${library} OUTPUT_VARIABLE flags
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    run(${C_COMPILER} -std=c99 -pedantic -Wall -Wextra -Werror ${CONSUMER_DIR}/${program}.c ${flags}
        -Wl,-rpath,${prefix}/${LIBDIR} -o ${WORK_DIR}/${program})
    run(${WORK_DIR}/${program})
    if(EXISTS ${CONSUMER_DIR}/${program}.cpp)
        run(${CXX_COMPILER} -std=c++17 -pedantic -Wall -Wextra -Werror ${CONSUMER_DIR}/${program}.cpp ${flags}
            -Wl,-rpath,${prefix}/${LIBDIR} -o ${WORK_DIR}/${program}_cpp)
        run(${WORK_DIR}/${program}_cpp)
    endif()
endforeach()

# A program that holds the library holds what it calls of it, and needs no other library.
if(STATIC)
    file(SIZE ${WORK_DIR}/build/main_static whole)
    file(SIZE ${prefix}/${LIBDIR}/libtpxie9.a all)
    if(whole GREATER 2000000 OR all LESS 5000000)
        message(FATAL_ERROR "a program of ${whole} bytes of a library of ${all}")
    endif()
    execute_process(COMMAND nm -g --defined-only --format=posix ${prefix}/${LIBDIR}/libtpxie9.a
                    OUTPUT_VARIABLE names COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+ [A-Z] " names "${names}")
    list(TRANSFORM names REPLACE " .*" "")
    list(SORT names COMPARE STRING)
    file(STRINGS ${EXPORTS} exports)
    if(NOT names STREQUAL exports)
        list(REMOVE_ITEM names ${exports})
        message(FATAL_ERROR "the static library's names are not those of the exports, but also: ${names}")
    endif()
    execute_process(COMMAND ${PKG_CONFIG} --static --cflags --libs tpxie9 OUTPUT_VARIABLE flags
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    run(${C_COMPILER} -std=c99 ${CONSUMER_DIR}/main.c -static ${flags} -o ${WORK_DIR}/main)
    run(${WORK_DIR}/main)
endif()

# The prefix is a variable that a caller may set.
execute_process(COMMAND ${PKG_CONFIG} --define-variable=prefix=/elsewhere --cflags --libs tpxie9
                OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY)
if(NOT flags MATCHES "-I/elsewhere/include -L/elsewhere/${LIBDIR} -ltpxie9")
    message(FATAL_ERROR "with another prefix: ${flags}")
endif()

# The Python package finds the headers and the library that were installed with it.
if(PYTHON)
    run(${CMAKE_COMMAND} -E env --unset=TPXI_INCLUDE --unset=TPXI_LIBRARY PYTHONDONTWRITEBYTECODE=1
        PYTHONPATH=${prefix}/lib/python3/dist-packages ${PYTHON} ${CONSUMER_DIR}/installed.py ${prefix})
endif()
