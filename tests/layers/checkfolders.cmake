# Makes a project with the folders low and high, one of whose files has a certain line, and looks at the verdict.
#
# -DFILE=low/low.cpp  -DLINE="#include …"  -DMESSAGE="what must stop it", empty if it must pass
# -DBINARY=…  -DCMAKE_DIR=…  -DGENERATOR=…
file(REMOVE_RECURSE ${BINARY})
set(source ${BINARY}/source)
foreach(file IN ITEMS source/low/low.h source/low/low.cpp source/high/high.h source/high/high.cpp source/door.h)
    file(WRITE ${BINARY}/${file} "// Nothing.\n")
endforeach()
file(WRITE ${source}/${FILE} "${LINE}\n")
file(WRITE ${source}/CMakeLists.txt "cmake_minimum_required(VERSION 3.25)
project(Folders VERSION 1.0 LANGUAGES NONE)
include(GNUInstallDirs)
include(${CMAKE_DIR}/TarvoTargets.cmake)
tarvo_order_folders(low high)
tarvo_check_levels()
")
execute_process(COMMAND ${CMAKE_COMMAND} -S ${source} -B ${BINARY}/build -G ${GENERATOR}
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
# CMake wraps long messages.
string(REGEX REPLACE "[ \n]+" " " output "${output}")
if(MESSAGE STREQUAL "")
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${FILE} may say ${LINE}:\n${output}")
    endif()
elseif(status EQUAL 0)
    message(FATAL_ERROR "${FILE} must not say ${LINE}")
else()
    string(FIND "${output}" "${MESSAGE}" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "${FILE} must not say ${LINE}, because \"${MESSAGE}\":\n${output}")
    endif()
endif()
file(REMOVE_RECURSE ${BINARY})
