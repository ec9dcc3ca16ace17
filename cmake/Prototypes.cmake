# SPDX-License-Identifier: Apache-2.0
# tpx_prototypes(OUT header ...): the functions that the headers declare, as "name(parameters)", in their order.
# A declaration begins with TPX_API at the start of a line, and has one function or all those of a family.
function(tpx_prototypes out)
    set(prototypes)
    foreach(header IN LISTS ARGN)
        file(READ ${header} text)
        string(REGEX MATCHALL "\nTPX_API [^;]*" declarations "${text}")
        foreach(declaration IN LISTS declarations)
            string(REGEX REPLACE "[ \n]+" " " declaration "${declaration}")
            string(REGEX MATCHALL "tpx[A-Za-z0-9_]+\\([^)]*\\)" functions "${declaration}")
            list(APPEND prototypes ${functions})
        endforeach()
    endforeach()
    set(${out} "${prototypes}" PARENT_SCOPE)
endfunction()
