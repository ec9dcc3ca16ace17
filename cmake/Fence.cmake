# SPDX-License-Identifier: Apache-2.0
# What the environment or a parent project says in CXXFLAGS, CMAKE_CXX_FLAGS or add_compile_options stands earlier
# on a command line than a target's own options. The library's results and instructions are its own affair, so its
# targets take back what could change either: other arithmetic, other instructions, instrumentation, link-time
# optimisation.
if(NOT CMAKE_CXX_COMPILER_ID MATCHES "^(GNU|Clang|AppleClang)$")
    message(FATAL_ERROR "libtpxie9 is built with g++ or clang; ${CMAKE_CXX_COMPILER_ID} is neither.")
endif()
include(CheckCXXSourceCompiles)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
check_cxx_source_compiles("
    #if !defined(__x86_64__) || defined(__ILP32__) || !defined(__ELF__)
    #error
    #endif" TPX_TARGET_IS_X86_64_ELF)
unset(CMAKE_TRY_COMPILE_TARGET_TYPE)
if(NOT TPX_TARGET_IS_X86_64_ELF)
    # Asked again next time, since flags may have been the reason.
    unset(TPX_TARGET_IS_X86_64_ELF CACHE)
    message(FATAL_ERROR "libtpxie9 is for 64-bit x86 processors and ELF systems such as Linux, and the compiler's target is another.")
endif()

set(TPX_FENCE
    # x86-64; the library adds AVX. A -march that came before is replaced, single extensions are not.
    -march=x86-64 -mtune=generic -mfpmath=sse
    -mno-avx2 -mno-avx512f -mno-fma -mno-fma4 -mno-xop -mno-f16c -mno-bmi -mno-bmi2 -mno-tbm -mno-lzcnt
    -mno-movbe -mno-adx -mno-sse4a -mno-prfchw
    # The language's arithmetic.
    -fno-fast-math -fno-unsafe-math-optimizations -fno-associative-math -fno-reciprocal-math
    -fno-finite-math-only -fsigned-zeros -fno-rounding-math
    $<$<CXX_COMPILER_ID:GNU>:-fno-signaling-nans> $<$<CXX_COMPILER_ID:GNU>:-fno-single-precision-constant>
    # The code alone.
    -fno-lto -fno-profile-arcs -fno-test-coverage
    $<$<NOT:$<BOOL:${TPX_SANITIZE}>>:-fno-sanitize=all>
    $<$<CONFIG:Release>:-O3>)
# One group: a single option that a directory has named already would be dropped here.
list(JOIN TPX_FENCE " " TPX_FENCE)
set(TPX_FENCE "SHELL:${TPX_FENCE}")

# Fences a target, both when it is compiled and when it is linked (fast arithmetic would link a start file that
# changes the arithmetic of the whole process). Call it before the target's own options.
function(tpx_fence target)
    target_compile_options(${target} PRIVATE "${TPX_FENCE}")
    set_target_properties(${target} PROPERTIES INTERPROCEDURAL_OPTIMIZATION OFF UNITY_BUILD OFF)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "SHARED_LIBRARY")
        target_link_options(${target} PRIVATE "${TPX_FENCE}")
    endif()
endfunction()
