# SPDX-License-Identifier: Apache-2.0
# What every target of the project is compiled with: warnings, and the sanitizers when asked for.
add_library(tpx_flags INTERFACE)
target_compile_options(tpx_flags INTERFACE -Wall -Wextra -Wno-psabi)
if(TPX_SANITIZE)
    # Null pointers and objects that are too small end at the address sanitizer anyway, as do pointers that run
    # off, and there are no virtual calls in the library. Without those checks, and with the address sanitizer's
    # as calls, a build takes half as long. Arrays of registers that leave their scope are not marked, a quarter
    # of the library's time to compile and to run. Tests and models, which are only there to watch the library,
    # ask for the address sanitizer alone, which halves their time.
    target_compile_options(
        tpx_flags
        INTERFACE -fsanitize=address -fno-sanitize-recover=all -fno-omit-frame-pointer
                  $<$<CXX_COMPILER_ID:GNU>:SHELL:--param asan-instrumentation-with-call-threshold=0>
                  $<$<NOT:$<BOOL:$<TARGET_PROPERTY:TPX_WATCHES>>>:-fsanitize=undefined
                  -fno-sanitize=null,object-size,vptr,pointer-overflow -fno-sanitize-address-use-after-scope>)
    target_link_options(tpx_flags INTERFACE -fsanitize=address,undefined)
endif()
if(TPX_FUZZ)
    # Edges and comparisons of the library are counted, so that the fuzzer sees which inputs reach something new.
    target_compile_options(
        tpx_flags
        INTERFACE $<$<NOT:$<BOOL:$<TARGET_PROPERTY:TPX_WATCHES>>>:-fsanitize=fuzzer-no-link>
                  -fno-sanitize=function "SHELL:-mllvm -asan-instrumentation-with-call-threshold=0")
endif()
