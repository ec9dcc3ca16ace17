# SPDX-License-Identifier: Apache-2.0
# Runs the contact sheet program as a user does.
#   cmake -DPROGRAM=contact_sheet -DPHOTO=coffee.png -DWORK=directory -DCASE=name -P contact_sheet_test.cmake
cmake_minimum_required(VERSION 3.21)
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

# Runs the program in WORK and tests its exit code and what it says: on stdout for 0, else on stderr, stdout
# then being empty. Leaves stdout in `out`.
function(expect code pattern)
    execute_process(COMMAND ${PROGRAM} ${ARGN} WORKING_DIRECTORY ${WORK} RESULT_VARIABLE result
                    OUTPUT_VARIABLE out ERROR_VARIABLE err)
    string(REGEX REPLACE "[^\n]* \\.\\.\\.\n" "" err "${err}") # how far it was, where it took long
    if(NOT result STREQUAL code)
        message(SEND_ERROR "contact_sheet ${ARGN}: exit ${result}, not ${code}\n${out}${err}")
    elseif(code EQUAL 0)
        if(NOT out MATCHES "${pattern}" OR NOT err STREQUAL "")
            message(SEND_ERROR "contact_sheet ${ARGN}: printed\n${out}${err}")
        endif()
    elseif(NOT err MATCHES "^[^\n]*contact_sheet: .*${pattern}" OR NOT out STREQUAL "")
        message(SEND_ERROR "contact_sheet ${ARGN}: reported\n${err}${out}")
    endif()
    set(out "${out}" PARENT_SCOPE)
endfunction()

function(expectPng path)
    file(READ ${path} start LIMIT 16 HEX)
    if(NOT start STREQUAL "89504e470d0a1a0a0000000d49484452")
        message(SEND_ERROR "${path} does not begin as a PNG does: ${start}")
    endif()
endfunction()

function(expectFiles)
    file(GLOB files RELATIVE ${WORK} ${WORK}/*)
    list(SORT files)
    if(NOT files STREQUAL "${ARGN}")
        message(SEND_ERROR "files left: ${files}, not ${ARGN}")
    endif()
endfunction()

# A PNG that ends where its pixels should begin, of a size given as the two big-endian words of its header
# with their checksum.
function(writeHeader path size checksum)
    execute_process(COMMAND printf "\\211PNG\\r\\n\\032\\n\\0\\0\\0\\015IHDR${size}\\010\\002\\0\\0\\0${checksum}\\0\\0\\0\\0IDAT"
                    OUTPUT_FILE ${WORK}/${path} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

if(CASE STREQUAL "shipped_photograph")
    # The defaults; every operation has its line, with sizes, threads and a time.
    expect(0 "coffee.png, 600 x 400\n")
    expectPng(${WORK}/contact_sheet.png)
    expectFiles(contact_sheet.png)
    foreach(line IN ITEMS
            "tpxiResizeLinear_8u_C3R +600 x 400 +900 x 600 +2" "tpxiResizeLinear_8u_C3R +600 x 400 +300 x 400 +2"
            "tpxiResizeNearest_8u_C3R +50 x 33 +300 x 198 +2" "tpxiResizeLinear_8u_C3R +50 x 33 +300 x 198 +2"
            "tpxiResizeCubic_8u_C3R +50 x 33 +300 x 198 +2" "tpxiResizeLanczos_8u_C3R +50 x 33 +300 x 198 +2"
            "tpxiResizeSuper_8u_C3R +1200 x 800 +300 x 200 +2"
            "tpxiResizeAntialiasing_8u_C3R +1200 x 800 +300 x 200 +2"
            "tpxiWarpAffineCubic_8u_C3R +600 x 400 +600 x 400 +1" "tpxiWarpAffineCubic_8u_C3R +60 x 40 +300 x 200 +1"
            "tpxiWarpPerspectiveLinear_8u_C3R +600 x 400 +600 x 480 +1"
            "tpxiRemap_8u_C3R +600 x 400 +600 x 400 +1"
            "tpxiDFTFwd_RToPack_32f_C3R +600 x 400 +600 x 400 +1"
            "tpxiDFTInv_PackToR_32f_C3R +600 x 400 +600 x 400 +1"
            "tpxiSqr_8u_C3RSfs +600 x 400 +600 x 400 +1" "tpxiSqrt_8u_C3RSfs +600 x 400 +600 x 400 +1"
            "tpxiLn_8u_C3RSfs +600 x 400 +600 x 400 +1" "tpxiExp_32f_C3R +600 x 400 +600 x 400 +1")
        if(NOT out MATCHES "${line} +[0-9]+\\.[0-9]+\n")
            message(SEND_ERROR "no line like ${line} in\n${out}")
        endif()
    endforeach()
    # The sheet says its size in the table's last line; a sheet can be put through the program again.
    string(REGEX MATCH "wrote contact_sheet.png, ([0-9]+ x [0-9]+)" wrote "${out}")
    expect(0 "contact_sheet.png, ${CMAKE_MATCH_1}\n" contact_sheet.png again.png)
    expectPng(${WORK}/again.png)

elseif(CASE STREQUAL "existing_output")
    file(WRITE ${WORK}/mine "keep")
    expect(1 "mine: the file exists" ${PHOTO} mine)
    file(READ ${WORK}/mine content)
    if(NOT content STREQUAL "keep")
        message(SEND_ERROR "the existing file was changed")
    endif()
    expect(0 "wrote mine" --force ${PHOTO} mine)
    expectPng(${WORK}/mine)
    # The input is never replaced, under whatever name.
    file(COPY_FILE ${PHOTO} ${WORK}/photo.png)
    file(CREATE_LINK photo.png ${WORK}/link.png SYMBOLIC)
    expect(1 "link.png: the output is the input file" -f photo.png link.png)
    file(SHA256 ${PHOTO} expected)
    file(SHA256 ${WORK}/photo.png actual)
    if(NOT actual STREQUAL expected)
        message(SEND_ERROR "the input was changed")
    endif()

elseif(CASE STREQUAL "bad_input")
    file(WRITE ${WORK}/text.png "This is no picture.\n")
    file(WRITE ${WORK}/empty.png "")
    foreach(bytes IN ITEMS 20 50000)
        execute_process(COMMAND head -c ${bytes} ${PHOTO} OUTPUT_FILE ${WORK}/cut${bytes}.png
                        COMMAND_ERROR_IS_FATAL ANY)
    endforeach()
    expect(1 "missing.png: No such file" missing.png out.png)
    expect(1 "text.png: Not a PNG file" text.png out.png)
    foreach(name IN ITEMS empty cut20 cut50000)
        expect(1 "${name}.png: [^\n]*[Rr]ead" ${name}.png out.png)
    endforeach()
    expectFiles(cut20.png cut50000.png empty.png text.png)

elseif(CASE STREQUAL "bad_size")
    writeHeader(zero.png "\\0\\0\\0\\0\\0\\0\\0\\004" "\\057\\170\\251\\123")
    writeHeader(huge.png "\\0\\0\\234\\100\\0\\0\\234\\100" "\\336\\156\\231\\122")
    writeHeader(many.png "\\0\\0\\200\\0\\0\\0\\004\\001" "\\374\\033\\051\\154")
    expect(1 "zero.png: Invalid IHDR data" zero.png out.png)
    expect(1 "huge.png: the image is 40000 x 40000, the most is 32768 on a side" huge.png out.png)
    expect(1 "many.png: the image is 32768 x 1025, the most is" many.png out.png)
    expectFiles(huge.png many.png zero.png)

elseif(CASE STREQUAL "bad_usage")
    expect(2 "unrecognized option '--fast'.*usage:" --fast)
    expect(2 "more than two files.*usage:" ${PHOTO} a.png b.png)
    expect(1 "--fast: No such file" -- --fast)
    expect(0 "^usage:" --help)
    expect(0 "^usage:" -h)
    expectFiles()

elseif(CASE STREQUAL "bad_output")
    expect(1 "absent/out.png: No such file" ${PHOTO} absent/out.png)
    expect(1 "[Dd]irectory" --force ${PHOTO} .)
    # A link to nowhere is not followed to make a file elsewhere.
    file(CREATE_LINK elsewhere.png ${WORK}/link.png SYMBOLIC)
    expect(1 "link.png: the file exists" ${PHOTO} link.png)
    # A device that is always full: the failure to write is seen.
    if(EXISTS /dev/full)
        expect(1 "/dev/full: " --force ${PHOTO} /dev/full)
        if(NOT EXISTS /dev/full)
            message(SEND_ERROR "the output was removed")
        endif()
    endif()

else()
    message(FATAL_ERROR "no case ${CASE}")
endif()
