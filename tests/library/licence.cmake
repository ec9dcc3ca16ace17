# SPDX-License-Identifier: Apache-2.0
# Every source says under which licence it stands, in its first lines.
#   cmake -DSOURCE=dir -P licence.cmake
set(files)
foreach(folder IN ITEMS arithmetic bench cmake core docs examples filters frame geometry include models movement python
                        statistics tests threshold tools transforms .ci)
    file(GLOB_RECURSE more RELATIVE ${SOURCE} ${SOURCE}/${folder}/*)
    list(APPEND files ${more})
endforeach()
list(FILTER files EXCLUDE REGEX "\\.(md|png|abi|pyc|tif)$|library/exports.txt$")
list(APPEND files CMakeLists.txt)
set(without)
foreach(file IN LISTS files)
    file(READ ${SOURCE}/${file} head LIMIT 200)
    if(NOT head MATCHES "SPDX-License-Identifier: Apache-2.0")
        list(APPEND without ${file})
    endif()
endforeach()
list(LENGTH files count)
if(without OR count LESS 300)
    list(JOIN without "\n" without)
    message(FATAL_ERROR "of ${count} files without the licence's line:\n${without}")
endif()
