# SPDX-License-Identifier: Apache-2.0
# Flags of a parent project change neither results nor instructions: the library as a part of such a project is
# compiled to the same objects, byte for byte. All commands are looked at, and a few objects are made.
#   cmake -DSOURCE=dir -DBUILD=dir -DWORK=dir -DGENERATOR=g -DCC=cc -DCXX=c++ -P fence.cmake
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/objects)
set(configure ${CMAKE_COMMAND} -G ${GENERATOR} -DCMAKE_C_COMPILER=${CC} -DCMAKE_CXX_COMPILER=${CXX})

# The commands of the library's objects, by source: the options from the fence on.
function(read_commands prefix file)
    file(READ ${file} json)
    # What CMake takes for the end of an element, or for a list in brackets, occurs in none of the commands.
    string(REGEX MATCHALL "\"command\": \"[^\n]*tpxi_objects\\.dir[^\n]*\"" commands "${json}")
    set(sources)
    foreach(command IN LISTS commands)
        if(NOT command MATCHES "^\"command\": \"(.*) -o ([^ ]+) -c ([^ ]+)\"$")
            message(FATAL_ERROR "a command of another form: ${command}")
        endif()
        set(compile "${CMAKE_MATCH_1}")
        set(object ${CMAKE_MATCH_2})
        file(RELATIVE_PATH source ${SOURCE} ${CMAKE_MATCH_3})
        string(FIND "${compile}" " -march=x86-64 " fence REVERSE)
        string(SUBSTRING "${compile}" ${fence} -1 own)
        list(APPEND sources ${source})
        set(${prefix}_${source} "${own}" PARENT_SCOPE)
        set(${prefix}_command_${source} "${compile}" PARENT_SCOPE)
        set(${prefix}_object_${source} ${object} PARENT_SCOPE)
    endforeach()
    set(${prefix}_sources ${sources} PARENT_SCOPE)
endfunction()

set(ENV{CXXFLAGS} "-march=native -ffast-math -fsingle-precision-constant")
execute_process(COMMAND ${configure} -DLIBRARY=${SOURCE} -S ${CMAKE_CURRENT_LIST_DIR}/hostile -B ${WORK}/build
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
unset(ENV{CXXFLAGS})

read_commands(plain ${BUILD}/compile_commands.json)
read_commands(hostile ${WORK}/build/compile_commands.json)
if(NOT plain_sources OR NOT plain_sources STREQUAL hostile_sources)
    message(FATAL_ERROR "other sources within a parent project")
endif()
foreach(source IN LISTS plain_sources)
    if(NOT plain_${source} STREQUAL hostile_${source} OR NOT hostile_command_${source} MATCHES "-march=native.*-Os ")
        message(FATAL_ERROR "${source}:\n${plain_${source}}\n${hostile_command_${source}}")
    endif()
endforeach()

# Integers, floats and doubles.
foreach(source IN ITEMS arithmetic/ln.cpp geometry/warp/transforms.cpp movement/bits.cpp)
    get_filename_component(object ${source} NAME)
    separate_arguments(command UNIX_COMMAND "${hostile_command_${source}}")
    execute_process(COMMAND ${command} -o ${WORK}/objects/${object}.o -c ${SOURCE}/${source}
                    COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${BUILD}/${plain_object_${source}}
                            ${WORK}/objects/${object}.o RESULT_VARIABLE differ)
    if(differ)
        message(FATAL_ERROR "${source} is compiled to another object")
    endif()
endforeach()

# What is linked is the same, too: no run-time of a sanitizer, no start file that changes the arithmetic.
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK}/build --target tpxcore OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND readelf -dsW ${WORK}/build/library/core/libtpxcore.so OUTPUT_VARIABLE linked
                COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "NEEDED[^\n]*" needed "${linked}")
if(NOT needed MATCHES "^NEEDED[^;]*libc\\.so\\.6\\]$" OR linked MATCHES "set_fast_math|__[atu]b?san_|__gcov_")
    message(FATAL_ERROR "libtpxcore holds or needs something else: ${needed}")
endif()

# Another target is refused, with the reason.
execute_process(COMMAND ${configure} -S ${SOURCE} -B ${WORK}/other -DCMAKE_CXX_FLAGS=-m32
                        -DCMAKE_TRY_COMPILE_TARGET_TYPE=STATIC_LIBRARY
                RESULT_VARIABLE failed OUTPUT_QUIET ERROR_VARIABLE said)
if(NOT failed OR NOT said MATCHES "libtpxie9 is for 64-bit x86")
    message(FATAL_ERROR "configuring for 32 bits: ${said}")
endif()
