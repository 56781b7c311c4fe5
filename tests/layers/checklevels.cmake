# Configures the project in levels/ with one link and looks at the verdict.
#
# -DLINK="target link"  -DMESSAGE="what must stop it", empty if it must pass
# -DSOURCE=…  -DBINARY=…  -DCMAKE_DIR=…  -DGENERATOR=…  -DCOMPILER=…
file(REMOVE_RECURSE ${BINARY})
execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${BINARY} -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${COMPILER}
        -DTARVO_CMAKE_DIR=${CMAKE_DIR} -DLINK=${LINK}
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
# CMake wraps long messages.
string(REGEX REPLACE "[ \n]+" " " output "${output}")
if(MESSAGE STREQUAL "")
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "\"${LINK}\" must be allowed:\n${output}")
    endif()
elseif(status EQUAL 0)
    message(FATAL_ERROR "\"${LINK}\" must be refused")
else()
    string(FIND "${output}" "${MESSAGE}" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "\"${LINK}\" must be refused with \"${MESSAGE}\":\n${output}")
    endif()
endif()
file(REMOVE_RECURSE ${BINARY})
