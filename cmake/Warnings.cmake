# What every target of the project is compiled with: warnings, and the sanitizers when asked for.
add_library(tpx_flags INTERFACE)
target_compile_options(tpx_flags INTERFACE -Wall -Wextra -Wno-psabi)
if(TPX_SANITIZE)
    # Null pointers and objects that are too small end at the address sanitizer anyway, and there are no virtual
    # calls in the library: without those checks a build takes a sixth less.
    target_compile_options(tpx_flags INTERFACE -fsanitize=address,undefined -fno-sanitize=null,object-size,vptr
                                               -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(tpx_flags INTERFACE -fsanitize=address,undefined)
endif()
