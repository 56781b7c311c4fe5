# Runs programs in a folder that holds a library of someone else's under each name that the loader looks for.
#
# -DPROGRAMS=…  -DINTRUDER=…  -DFOLDER=…  -DREADELF=…
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER})
foreach(program IN LISTS PROGRAMS)
    execute_process(COMMAND ${READELF} --wide --dynamic ${program} OUTPUT_VARIABLE dynamic RESULT_VARIABLE status)
    string(REGEX MATCHALL "\\[lib[^]]+\\]" needed "${dynamic}")
    if(NOT status EQUAL 0 OR NOT needed MATCHES "libTarvoHostUtils" OR NOT needed MATCHES "libstdc")
        message(FATAL_ERROR "the list of libraries cannot be whole: ${needed}")
    endif()
    string(REGEX REPLACE "[][]" "" needed "${needed}")
    foreach(name IN LISTS needed ITEMS libgcc_s.so.1 libm.so.6 libz.so.1)
        file(COPY_FILE ${INTRUDER} ${FOLDER}/${name})
    endforeach()
endforeach()

# Sets STATUS to "intruded" if PROGRAM took a library of the folder: that runs, or has not what the program wants of it.
function(start program)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env ${ARGN} ${program} --version WORKING_DIRECTORY ${FOLDER}
        RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0 OR EXISTS ${FOLDER}/loaded)
        set(status intruded)
    endif()
    file(REMOVE ${FOLDER}/loaded)
    set(STATUS ${status} PARENT_SCOPE)
    set(OUTPUT "${output}" PARENT_SCOPE)
endfunction()

foreach(program IN LISTS PROGRAMS)
    start(${program})
    if(NOT STATUS EQUAL 0)
        message(FATAL_ERROR "${program} loads what lies in the current folder:\n${OUTPUT}")
    endif()
    # Where the loader is told to look there, it does.
    start(${program} LD_LIBRARY_PATH=${FOLDER})
    if(NOT STATUS STREQUAL "intruded")
        message(FATAL_ERROR "the libraries in ${FOLDER} would not be noticed")
    endif()
endforeach()
file(REMOVE_RECURSE ${FOLDER})
