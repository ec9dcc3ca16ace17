# SPDX-License-Identifier: Apache-2.0
# Libraries, headers, the CMake package, the pkg-config files and the Python package. All paths written are relative
# to the files that hold them, so an installed tree may be moved.
include(CMakePackageConfigHelpers)

set(TPX_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/tpxi)
set(TPX_PKGCONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# libtpxie9 finds its companion beside it, wherever the two are put.
set_target_properties(tpxie9 PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS tpxie9 tpxcore EXPORT tpxiTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT libraries NAMELINK_COMPONENT development)
if(TARGET tpxie9_static)
    install(TARGETS tpxie9_static tpxcore_static EXPORT tpxiTargets
            ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endif()
install(FILES include/tpxi.h include/tpxi.hpp include/tpxcore.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        COMPONENT development)
install(DIRECTORY include/tpxi DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
        FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")
install(FILES README.md CHANGELOG.md SECURITY.md LICENSE NOTICE DESTINATION ${CMAKE_INSTALL_DOCDIR}
        COMPONENT development)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development FILES_MATCHING PATTERN "*.md")
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development PATTERN "__pycache__" EXCLUDE)

# Python looks for it there under /usr; elsewhere PYTHONPATH names the folder.
install(DIRECTORY python/tpxi DESTINATION lib/python3/dist-packages COMPONENT python FILES_MATCHING PATTERN "*.py"
        PATTERN "__pycache__" EXCLUDE)

install(EXPORT tpxiTargets NAMESPACE tpxi:: DESTINATION ${TPX_PACKAGE_DIR} COMPONENT development)
configure_package_config_file(cmake/tpxiConfig.cmake.in ${PROJECT_BINARY_DIR}/generated/tpxiConfig.cmake
                              INSTALL_DESTINATION ${TPX_PACKAGE_DIR} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/generated/tpxiConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/generated/tpxiConfig.cmake
              ${PROJECT_BINARY_DIR}/generated/tpxiConfigVersion.cmake
        DESTINATION ${TPX_PACKAGE_DIR} COMPONENT development)

file(RELATIVE_PATH TPX_PKGCONFIG_TO_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" TPX_PKGCONFIG_TO_PREFIX ${TPX_PKGCONFIG_TO_PREFIX})
file(RELATIVE_PATH TPX_PREFIX_TO_LIBRARY ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH TPX_PREFIX_TO_INCLUDE ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
foreach(library IN ITEMS tpxie9 tpxcore)
    configure_file(cmake/${library}.pc.in ${PROJECT_BINARY_DIR}/generated/${library}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/generated/${library}.pc DESTINATION ${TPX_PKGCONFIG_DIR}
            COMPONENT development)
endforeach()
