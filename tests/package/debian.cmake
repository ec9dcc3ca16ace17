# SPDX-License-Identifier: Apache-2.0
# The Debian packages of a build: lintian finds no error in them; they are installed into a folder of their own, where a
# program is built and run and Python finds its package; and removed, nothing of them stays.
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

run(${CMAKE_CPACK_COMMAND} --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR}/packages)
file(GLOB packages ${WORK_DIR}/packages/*.deb)
list(LENGTH packages count)
if(NOT count EQUAL 3)
    message(FATAL_ERROR "not three packages: ${packages}")
endif()
run(lintian --allow-root --fail-on error ${packages})
message(STATUS "lintian: ${output}")

# dpkg keeps what it knows of this folder within it, and needs no other user than the one who calls it.
set(root ${WORK_DIR}/root)
file(MAKE_DIRECTORY ${root}/var/lib/dpkg/info ${root}/var/lib/dpkg/updates ${root}/var/lib/dpkg/triggers)
file(TOUCH ${root}/var/lib/dpkg/status ${root}/var/lib/dpkg/available)
set(ENV{PATH} "$ENV{PATH}:/usr/sbin:/sbin")
set(dpkg fakeroot dpkg --root=${root} --log=/dev/null --force-script-chrootless)
run(${dpkg} --force-depends --install ${packages})

set(usr ${root}/usr)
set(ENV{PKG_CONFIG_PATH} ${usr}/${LIBDIR}/pkgconfig)
execute_process(COMMAND pkg-config --cflags --libs tpxie9 OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
run(${C_COMPILER} ${CONSUMER_DIR}/main.c ${flags} -Wl,-rpath-link,${usr}/${LIBDIR} -o ${WORK_DIR}/main)
# As the loader's own folders would be searched: for the library and for its companion.
run(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${usr}/${LIBDIR} ${WORK_DIR}/main)
foreach(file IN ITEMS share/doc/tpxi/README.md share/doc/tpxi/docs/architecture.md share/doc/tpxi/examples/tiled_resize.cpp
                      share/doc/libtpxie9-2017.0.0/copyright share/doc/python3-tpxi/changelog.gz)
    if(NOT EXISTS ${usr}/${file})
        message(FATAL_ERROR "not installed: /usr/${file}")
    endif()
endforeach()
if(PYTHON)
    run(${CMAKE_COMMAND} -E env --unset=TPXI_INCLUDE --unset=TPXI_LIBRARY PYTHONDONTWRITEBYTECODE=1
        LD_LIBRARY_PATH=${usr}/${LIBDIR} PYTHONPATH=${usr}/lib/python3/dist-packages
        ${PYTHON} ${CONSUMER_DIR}/installed.py ${usr})
endif()

run(${dpkg} --purge python3-tpxi libtpxie9-dev libtpxie9-2017.0.0)
file(GLOB_RECURSE rest LIST_DIRECTORIES false ${root}/usr/*)
if(rest)
    message(FATAL_ERROR "still there after removal: ${rest}")
endif()
