# What every target of the project is compiled with: warnings, and the sanitizers when asked for.
add_library(tpx_flags INTERFACE)
target_compile_options(tpx_flags INTERFACE -Wall -Wextra -Wno-psabi)
if(TPX_SANITIZE)
    target_compile_options(tpx_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                               -fno-omit-frame-pointer)
    target_link_options(tpx_flags INTERFACE -fsanitize=address,undefined)
endif()
