# SPDX-License-Identifier: Apache-2.0
# libtpxie9: the sources of every folder, and the entry table generated from the public headers.
file(GLOB_RECURSE TPX_SOURCES CONFIGURE_DEPENDS
     ${PROJECT_SOURCE_DIR}/frame/*.cpp
     ${PROJECT_SOURCE_DIR}/arithmetic/*.cpp
     ${PROJECT_SOURCE_DIR}/movement/*.cpp
     ${PROJECT_SOURCE_DIR}/filters/*.cpp
     ${PROJECT_SOURCE_DIR}/geometry/*.cpp
     ${PROJECT_SOURCE_DIR}/statistics/*.cpp
     ${PROJECT_SOURCE_DIR}/threshold/*.cpp
     ${PROJECT_SOURCE_DIR}/transforms/*.cpp)
list(FILTER TPX_SOURCES EXCLUDE REGEX "memory/builtins\\.cpp$")
file(GLOB TPX_PUBLIC_HEADERS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/tpxi/*.h)

set(TPX_ENTRY_TABLE ${PROJECT_BINARY_DIR}/generated/entries.S)
add_custom_command(
    OUTPUT ${TPX_ENTRY_TABLE}
    BYPRODUCTS ${PROJECT_BINARY_DIR}/generated/entries.names ${PROJECT_BINARY_DIR}/generated/entries.renames
    COMMAND ${CMAKE_COMMAND} "-DHEADERS=${TPX_PUBLIC_HEADERS}" -DOUTPUT=${TPX_ENTRY_TABLE}
            -P ${PROJECT_SOURCE_DIR}/cmake/EntryTable.cmake
    DEPENDS ${TPX_PUBLIC_HEADERS} ${PROJECT_SOURCE_DIR}/cmake/EntryTable.cmake
            ${PROJECT_SOURCE_DIR}/cmake/Prototypes.cmake
    COMMENT "Generating the entry table"
    VERBATIM)

# Everything but the exported stubs. The tests link it again to reach the run routines, which are internal.
add_library(tpxi_objects OBJECT ${TPX_SOURCES})
target_include_directories(tpxi_objects PUBLIC ${PROJECT_SOURCE_DIR}/include PRIVATE ${PROJECT_SOURCE_DIR})
target_link_libraries(tpxi_objects PRIVATE tpx_flags)
set_target_properties(tpxi_objects PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden
                                              VISIBILITY_INLINES_HIDDEN ON CXX_EXTENSIONS ON)
# No contraction: a product and a sum are rounded one by one, on every target alike. A section for each function and
# object lets the linker drop what nothing uses. Loops begin with a cache line, wherever the linker puts them: a short
# one that crosses lines takes up to 1.4 times as long. One group, as the fence's.
string(JOIN " " TPX_CODE_OPTIONS "SHELL:-mavx -ffp-contract=off -fno-math-errno -fno-trapping-math -fno-exceptions"
       "-fno-rtti -fno-threadsafe-statics -fno-stack-protector -fno-asynchronous-unwind-tables -ffunction-sections"
       "-fdata-sections -falign-functions=64 -falign-loops=64")
tpx_fence(tpxi_objects)
target_compile_options(tpxi_objects PRIVATE "${TPX_CODE_OPTIONS}")

if(TPX_SANITIZE)
    # Sorting networks: thousands of local registers, whose addresses would each be checked for alignment, which
    # takes minutes. All memory of the caller's is read by loads for any address.
    file(GLOB medians ${PROJECT_SOURCE_DIR}/filters/median*.cpp)
    set_source_files_properties(${medians} PROPERTIES COMPILE_OPTIONS -fno-sanitize=alignment)
endif()

add_library(tpxie9 SHARED ${TPX_ENTRY_TABLE} $<TARGET_OBJECTS:tpxi_objects>)
if(NOT TPX_SANITIZE)
    # The memory functions that compilers call are the library's own, and must not be compiled into calls of
    # themselves. A sanitizer build is hosted and uses the platform's.
    add_library(tpxi_builtins OBJECT ${PROJECT_SOURCE_DIR}/frame/memory/builtins.cpp)
    target_include_directories(tpxi_builtins PRIVATE ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR})
    target_link_libraries(tpxi_builtins PRIVATE tpx_flags)
    tpx_fence(tpxi_builtins)
    target_compile_options(tpxi_builtins PRIVATE "${TPX_CODE_OPTIONS}" -fno-builtin
                           $<$<CXX_COMPILER_ID:GNU>:-fno-tree-loop-distribute-patterns>)
    set_target_properties(tpxi_builtins PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden)
    target_sources(tpxie9 PRIVATE $<TARGET_OBJECTS:tpxi_builtins>)
endif()
add_library(tpxi::tpxie9 ALIAS tpxie9)
tpx_fence(tpxie9)
target_include_directories(tpxie9 INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
                                            $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_link_libraries(tpxie9 PRIVATE tpxcore $<$<BOOL:${TPX_SANITIZE}>:tpx_flags>)
set_target_properties(tpxie9 PROPERTIES VERSION 2017.0.3 SOVERSION 2017.0.0 LINKER_LANGUAGE CXX)
if(NOT TPX_SANITIZE)
    # Freestanding: no start files, no standard libraries; only libtpxcore may be left undefined.
    # The load hooks are named to the linker: an empty constructor is dropped by compilers.
    target_link_options(tpxie9 PRIVATE -nostdlib -nostartfiles -Wl,--no-undefined -Wl,--gc-sections
                                       -Wl,-init,initializer -Wl,-fini,destructor)
endif()
target_link_options(tpxie9 PRIVATE -Wl,-z,noexecstack -Wl,--as-needed)

if(TPX_STATIC AND NOT TPX_SANITIZE)
    # The static library is one object: the parts linked with each other, where the bodies have the names of the
    # exports, and all other symbols are its own. It has no stubs and no hooks, and takes the memory functions of the
    # program's C library. Every function keeps its section, so a linker that drops what nothing uses
    # (--gc-sections) leaves in a program what it calls.
    set(TPX_ONE_OBJECT ${PROJECT_BINARY_DIR}/generated/tpxie9.o)
    add_custom_command(
        OUTPUT ${TPX_ONE_OBJECT}
        COMMAND ${CMAKE_CXX_COMPILER} -r -nostdlib -Wl,--force-group-allocation -o ${TPX_ONE_OBJECT}.parts
                $<TARGET_OBJECTS:tpxi_objects>
        COMMAND ${CMAKE_OBJCOPY} --redefine-syms=${PROJECT_BINARY_DIR}/generated/entries.renames
                ${TPX_ONE_OBJECT}.parts
        COMMAND ${CMAKE_OBJCOPY} --keep-global-symbols=${PROJECT_BINARY_DIR}/generated/entries.names
                ${TPX_ONE_OBJECT}.parts ${TPX_ONE_OBJECT}
        DEPENDS tpxi_objects $<TARGET_OBJECTS:tpxi_objects> ${TPX_ENTRY_TABLE}
        COMMENT "Linking the parts of the static library"
        COMMAND_EXPAND_LISTS VERBATIM)
    set_source_files_properties(${TPX_ONE_OBJECT} PROPERTIES EXTERNAL_OBJECT ON GENERATED ON)
    add_library(tpxie9_static STATIC ${TPX_ONE_OBJECT})
    add_library(tpxi::tpxie9_static ALIAS tpxie9_static)
    set_target_properties(tpxie9_static PROPERTIES OUTPUT_NAME tpxie9 LINKER_LANGUAGE C)
    target_include_directories(tpxie9_static INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
                                                       $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    target_link_libraries(tpxie9_static INTERFACE tpxcore_static)
endif()
