# SPDX-License-Identifier: Apache-2.0
# Run by CPack on what it has installed for the packages: gives each what Debian asks of a package.
set(root ${CPACK_TEMPORARY_DIRECTORY})
set(changes "tpxi (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium

  * /usr/share/doc/tpxi/CHANGELOG.md tells the changes.

 -- ${CPACK_PACKAGE_CONTACT}  Thu, 01 Jan 1970 00:00:00 +0000
")
set(copyright "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: libtpxie9

Files: *
Copyright: the libtpxie9 authors
License: Apache-2.0
 On Debian systems the text of the Apache License, version 2.0, is
 /usr/share/common-licenses/Apache-2.0.
")
string(APPEND photograph "
Files: examples/data/coffee.png
Copyright: Rachel Michetti
License: CC0-1.0
 On Debian systems the text of CC0, version 1.0, is
 /usr/share/common-licenses/CC0-1.0.
")
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(doc ${root}/${component}/usr/share/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    file(WRITE ${doc}/changelog "${changes}")
    execute_process(COMMAND gzip -9n ${doc}/changelog COMMAND_ERROR_IS_FATAL ANY)
    file(WRITE ${doc}/copyright "${copyright}")
    if(component STREQUAL "development")
        file(APPEND ${doc}/copyright "${photograph}")
    endif()
    file(CHMOD ${doc}/copyright ${doc}/changelog.gz FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endforeach()
set(overrides ${root}/libraries/usr/share/lintian/overrides)
file(WRITE ${overrides}/${CPACK_DEBIAN_LIBRARIES_PACKAGE_NAME} "# Freestanding: it calls its companion alone, which calls the C library.
${CPACK_DEBIAN_LIBRARIES_PACKAGE_NAME}: library-not-linked-against-libc *
")
file(CHMOD ${overrides}/${CPACK_DEBIAN_LIBRARIES_PACKAGE_NAME}
     FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
