# What every target of the project is compiled with: warnings, and the sanitizers when asked for.
add_library(tpx_flags INTERFACE)
target_compile_options(tpx_flags INTERFACE -Wall -Wextra -Wno-psabi)
if(TPX_SANITIZE)
    # Null pointers and objects that are too small end at the address sanitizer anyway, and there are no virtual
    # calls in the library: without those checks a build takes a sixth less. Tests and models, which are only
    # there to watch the library, ask for the address sanitizer alone, which halves the time that they compile.
    target_compile_options(
        tpx_flags
        INTERFACE -fsanitize=address -fno-sanitize-recover=all -fno-omit-frame-pointer
                  $<$<NOT:$<BOOL:$<TARGET_PROPERTY:TPX_WATCHES>>>:-fsanitize=undefined
                  -fno-sanitize=null,object-size,vptr>)
    target_link_options(tpx_flags INTERFACE -fsanitize=address,undefined)
endif()
