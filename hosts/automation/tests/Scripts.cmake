# Runs a script with cscript. WHAT is
#   install     the package is made, unpacked and installed
#   uninstall   it is taken out again: then no script finds it
#   check       SCRIPT checks by itself and says how much was wrong
#   compare     SCRIPT writes the bytes that the program TWIN writes
cmake_minimum_required(VERSION 3.25)

# As Windows names a file.
function(native variable file)
    file(TO_NATIVE_PATH "${file}" file)
    if(EMULATOR)
        string(REPLACE "/" "\\" file "Z:${file}")
    endif()
    set(${variable} "${file}" PARENT_SCOPE)
endfunction()

function(run output)
    execute_process(COMMAND ${EMULATOR} ${ARGN} WORKING_DIRECTORY ${FOLDER}
        OUTPUT_VARIABLE said ERROR_VARIABLE said RESULT_VARIABLE status)
    set(${output} "${said}" PARENT_SCOPE)
    set(status "${status}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER})
native(script "${SCRIPT}")
native(folder "${FOLDER}")

if(WHAT STREQUAL install)
    execute_process(COMMAND ${CPACK} -G ZIP -B ${FOLDER} WORKING_DIRECTORY ${BUILD}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(GLOB package ${FOLDER}/draftwick-automation-*.zip)
    file(ARCHIVE_EXTRACT INPUT ${package} DESTINATION ${FOLDER}/unpacked)
    file(GLOB files RELATIVE ${FOLDER}/unpacked ${FOLDER}/unpacked/* ${FOLDER}/unpacked/examples/*)
    message("${files}")
    run(said cmd /c "${folder}\\unpacked\\install.cmd")
    if(NOT said MATCHES "Draftwick is installed in ")
        message(FATAL_ERROR "install.cmd: ${status} ${said}")
    endif()
elseif(WHAT STREQUAL uninstall)
    run(said cmd /c "${folder}\\..\\install\\unpacked\\uninstall.cmd")
    run(said reg query "HKCR\\Draftwick.Document")
    if(status EQUAL 0)
        message(FATAL_ERROR "still there: ${said}")
    endif()
elseif(WHAT STREQUAL check)
    if(SCRIPT MATCHES "viewer" AND "$ENV{DISPLAY}" STREQUAL "" AND EMULATOR)
        message("There is no screen.")
        return()
    endif()
    set(ENV{DRAFTWICK_RECORDS} "${folder}")
    native(recorder "${RECORDER}")
    run(said cscript //nologo "${script}" "${folder}" "${recorder}")
    message("${said}")
    if(NOT said MATCHES "[1-9][0-9]* tried, 0 wrong")
        message(FATAL_ERROR "the script ended without success")
    endif()
else()
    run(said cscript //nologo "${script}" "${folder}\\script.rtf")
    execute_process(COMMAND ${EMULATOR} ${TWIN} program.rtf
        WORKING_DIRECTORY ${FOLDER} COMMAND_ERROR_IS_FATAL ANY)
    file(SIZE ${FOLDER}/program.rtf size)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${FOLDER}/script.rtf ${FOLDER}/program.rtf
        RESULT_VARIABLE different)
    if(different OR size LESS 100)
        message(FATAL_ERROR "${FOLDER}/script.rtf differs from program.rtf: ${said}")
    endif()
endif()
