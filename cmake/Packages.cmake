# SPDX-License-Identifier: Apache-2.0
# Three Debian packages from an installed build: libraries, development, Python.
#   cpack --config build/release/CPackConfig.cmake -B packages
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "the libtpxie9 authors")
# Whoever publishes packages names an address of theirs.
set(TPX_PACKAGE_CONTACT "the libtpxie9 authors <libtpxie9@example.org>" CACHE STRING "Contact told by the packages")
set(CPACK_PACKAGE_CONTACT ${TPX_PACKAGE_CONTACT})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL libraries development python)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(about "Functions on rectangles of pixels that the caller owns: copies, conversion,
arithmetic, thresholds, statistics, filters, resizing, warps and Fourier
transforms. They need a processor with AVX.")

set(CPACK_DEBIAN_LIBRARIES_PACKAGE_NAME libtpxie9-2017.0.0)
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_DEPENDS "libc6 (>= 2.34)")
set(CPACK_COMPONENT_LIBRARIES_DESCRIPTION "${about}")
# The loader's list of libraries is renewed by a trigger, which is what Debian asks for, and not by scripts.
file(WRITE ${PROJECT_BINARY_DIR}/generated/debian/triggers "activate-noawait ldconfig\n")
file(WRITE ${PROJECT_BINARY_DIR}/generated/debian/shlibs
"libtpxcore 2017.0.0 libtpxie9-2017.0.0 (>= ${PROJECT_VERSION})
libtpxie9 2017.0.0 libtpxie9-2017.0.0 (>= ${PROJECT_VERSION})
")
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/generated/debian/triggers
    ${PROJECT_BINARY_DIR}/generated/debian/shlibs)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtpxie9-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libtpxie9-2017.0.0 (= ${PROJECT_VERSION}), libc6-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "${about}
.
This package holds what programs are built with: headers, static libraries,
CMake and pkg-config files; the documentation, and programs to read.")

set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-tpxi)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_ARCHITECTURE all)
# The package reads its functions from the headers.
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
    "libtpxie9-dev (= ${PROJECT_VERSION}), python3 (>= 3.9), python3-numpy, python3-cffi")
set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS "python3-pil, python3-tifffile, python3-distributed")
set(CPACK_COMPONENT_PYTHON_DESCRIPTION "${about}
.
This package has every function for Python by its name, and a plain layer on
numpy arrays that finds it by sample type and channels.")

set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/PackageFiles.cmake)
include(CPack)
