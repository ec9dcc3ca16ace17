# SPDX-License-Identifier: Apache-2.0
# What the built library shows to the outside: its exports, what it leaves undefined, the form of its stubs,
# its load hooks, and the instructions that it uses.
#   cmake -DLIBRARY=libtpxie9.so -DENTRIES=entries.S -P boundary.cmake
function(run out)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    set(${out} "${text}" PARENT_SCOPE)
endfunction()

# Exports: the names of the headers, no other; and these are the complete list, name by name, from which none may
# go and to which none comes by accident.
file(STRINGS ${ENTRIES} lines REGEX "^    STUB tpx")
list(TRANSFORM lines REPLACE "^    STUB " "" OUTPUT_VARIABLE expected)
run(defined nm -D --defined-only --format=posix ${LIBRARY})
string(REGEX MATCHALL "[^\n]+" defined "${defined}")
list(TRANSFORM defined REPLACE " .*" "")
list(SORT defined COMPARE STRING)
if(NOT defined STREQUAL expected)
    set(extra ${defined})
    list(REMOVE_ITEM extra ${expected})
    list(REMOVE_ITEM expected ${defined})
    message(FATAL_ERROR "exported but not declared: ${extra}; declared but not exported: ${expected}")
endif()
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/exports.txt complete)
if(NOT defined STREQUAL complete)
    set(missing ${complete})
    list(REMOVE_ITEM missing ${defined})
    list(REMOVE_ITEM defined ${complete})
    message(FATAL_ERROR "not in the list of exports: ${defined}; in the list but not exported: ${missing}")
endif()

# Undefined: the companion's functions alone.
run(undefined nm -D --undefined-only --format=posix ${LIBRARY})
string(REGEX MATCHALL "[A-Za-z_][A-Za-z0-9_]* U" undefined "${undefined}")
list(TRANSFORM undefined REPLACE " U" "")
list(SORT undefined COMPARE STRING)
set(companion tpxFree tpxGetMaxCacheSizeB tpxMalloc tpxMalloc_L)
foreach(name IN LISTS undefined)
    if(NOT name MATCHES "^(tpxFree|tpxGetMaxCacheSizeB|tpxMalloc|tpxMalloc_L|tpx_get_cache_line_size)$")
        message(FATAL_ERROR "${name} is undefined; only libtpxcore may be called")
    endif()
endforeach()

# Stubs of ten bytes, one behind the other in byte order; a slot of eight bytes for each, likewise, in
# memory that can be written.
run(symbols readelf -sW ${LIBRARY})
function(check_sequence pattern size what)
    string(REGEX MATCHALL "[0-9]+: [0-9a-f]+ +${size} [A-Z]+ +[A-Z]+ +[A-Z]+ +[0-9]+ tpx[ir][A-Za-z0-9_]+${pattern}\n" rows
           "${symbols}")
    set(sorted)
    foreach(row IN LISTS rows)
        string(REGEX REPLACE "^[0-9]+: ([0-9a-f]+) .* (tpx[^ \n]+)\n$" "\\1 \\2" pair "${row}")
        list(APPEND sorted "${pair}")
    endforeach()
    list(REMOVE_DUPLICATES sorted)
    list(SORT sorted COMPARE STRING)
    list(TRANSFORM sorted REPLACE ".* " "" OUTPUT_VARIABLE names)
    if(pattern)
        list(TRANSFORM names REPLACE "_arraddr$" "")
    endif()
    file(STRINGS ${ENTRIES} lines REGEX "^    STUB tpx")
    list(TRANSFORM lines REPLACE "^    STUB " "" OUTPUT_VARIABLE all)
    if(NOT names STREQUAL all)
        message(FATAL_ERROR "${what}: not one of ${size} bytes for each export in byte order")
    endif()
    list(LENGTH sorted count)
    list(GET sorted 0 first)
    list(GET sorted -1 last)
    string(REGEX REPLACE " .*" "" first "${first}")
    string(REGEX REPLACE " .*" "" last "${last}")
    math(EXPR distance "0x${last} - 0x${first}")
    math(EXPR wanted "${size} * (${count} - 1)")
    if(NOT distance EQUAL wanted)
        message(FATAL_ERROR "${what}: not one behind the other")
    endif()
endfunction()
check_sequence("" 10 "stubs")
check_sequence("_arraddr" 8 "slots")
run(sections readelf -SW ${LIBRARY})
if(NOT sections MATCHES " \\.data +PROGBITS[^\n]* WA ")
    message(FATAL_ERROR "the slots are not in writable data")
endif()

# Names of the file and of what it needs.
run(dynamic readelf -dW ${LIBRARY})
if(NOT dynamic MATCHES "SONAME[^\n]*libtpxie9\\.so\\.2017\\.0\\.0")
    message(FATAL_ERROR "soname")
endif()
string(REGEX MATCHALL "NEEDED[^\n]*" needed "${dynamic}")
if(NOT needed MATCHES "^NEEDED[^;]*libtpxcore\\.so\\.2017\\.0\\.0\\]$")
    message(FATAL_ERROR "needed: ${needed}")
endif()

# The loader calls both hooks, which are internal.
foreach(hook IN ITEMS INIT/initializer FINI/destructor)
    get_filename_component(tag ${hook} DIRECTORY)
    get_filename_component(name ${hook} NAME)
    if(NOT symbols MATCHES " ([0-9a-f]+) +[0-9]+ FUNC +LOCAL +[A-Z]+ +[0-9]+ ${name}\n")
        message(FATAL_ERROR "${name} is not an internal function")
    endif()
    math(EXPR address "0x${CMAKE_MATCH_1}")
    if(NOT dynamic MATCHES "\\(${tag}\\) +0x([0-9a-f]+)\n")
        message(FATAL_ERROR "the dynamic section has no ${tag}")
    endif()
    math(EXPR called "0x${CMAKE_MATCH_1}")
    if(NOT called EQUAL address)
        message(FATAL_ERROR "${tag} is not ${name}")
    endif()
endforeach()

# Nothing wider than AVX: no zmm, no opmask, no upper 16 registers, no 256-bit integer arithmetic, no fused
# multiply-add, no bit-manipulation extensions.
run(code objdump -d --no-show-raw-insn ${LIBRARY})
foreach(beyond IN ITEMS
        "%zmm" "%[xy]mm(1[6-9]|2[0-9]|3[01])" "%k[1-7]" "\tvfn?m(add|sub)"
        "\tvp(add|sub|mul|mull|mulh|madd|min|max|cmp|sll|srl|sra|unpck|ack|shuf|and|andn|or|xor|abs|avg|blendv?|sign|movzx|movsx)[a-z]*[^\n]*%ymm"
        "\tvpbroadcast" "\tvperm(d|q|ps|pd) " "\tvpgather" "\tvgather" "\tvp?insertf?i128" "\tvextracti128" "\tvinserti128"
        "\tvps[lr][la]v" "\t(andn|bextr|blsi|blsmsk|blsr|bzhi|mulx|pdep|pext|rorx|sarx|shlx|shrx|lzcnt|adcx|adox) ")
    if(code MATCHES "(\n[^\n]*${beyond}[^\n]*)")
        message(FATAL_ERROR "an instruction beyond AVX: ${CMAKE_MATCH_1}")
    endif()
endforeach()
list(LENGTH expected count)
message(STATUS "${count} exports")
