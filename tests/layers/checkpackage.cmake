# Installs the host platform by itself, builds the plug-in against the installed package and looks at what the
# plug-in exports.
#
# -DSOURCE=…  -DBUILD=…  -DBINARY=…  -DGENERATOR=…  -DCOMPILER=…  -DLAUNCHER=…  -DSANITIZE=…  -DNM=…
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\n${output}")
    endif()
endfunction()

set(prefix ${BINARY}/host)
set(build ${BINARY}/build)
file(REMOVE_RECURSE ${BINARY})
run(${CMAKE_COMMAND} --install ${BUILD} --component host --prefix ${prefix})

file(GLOB_RECURSE installed RELATIVE ${prefix} ${prefix}/*)
set(strange ${installed})
list(FILTER strange EXCLUDE REGEX "^include/tarvo/|^lib[^/]*(/[^/]+)?/tarvo/libTarvoHost|/cmake/TarvoHost/")
if(NOT installed OR strange)
    message(FATAL_ERROR "the host component holds other files or none: ${strange}")
endif()

# Nothing of this is run: what optimising takes is saved, and what reading Qt's headers for each source takes.
run(${CMAKE_COMMAND} -S ${SOURCE} -B ${build} -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${COMPILER}
    -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER} -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DTARVO_SANITIZE=${SANITIZE}
    -DTARVO_HOST_DIR=${prefix} -DBUILD_TESTING=OFF -DTARVO_BENCH=OFF -DTARVO_PRECOMPILE=ON
    -DCMAKE_EXPORT_COMPILE_COMMANDS=ON)
run(${CMAKE_COMMAND} --build ${build} --target TarvoOrixM1 --parallel 2)

# Nothing of the bundled host may have taken part.
file(GLOB_RECURSE bundled ${build}/*libTarvoHost*)
file(READ ${build}/compile_commands.json commands)
string(FIND "${commands}" "${SOURCE}/src/orixm1" own)
string(FIND "${commands}" "${SOURCE}/src/host" foreign)
if(bundled OR own EQUAL -1 OR NOT foreign EQUAL -1)
    message(FATAL_ERROR "the build uses the bundled host: ${bundled} ${foreign}")
endif()

set(plugin ${build}/lib/tarvo/plugins/libTarvoOrixM1.so)
execute_process(COMMAND ${NM} --dynamic --defined-only --format=posix ${plugin} OUTPUT_VARIABLE symbols
    RESULT_VARIABLE status)
string(REGEX MATCHALL "(^|\n)[^ \n]+" names "${symbols}")
list(TRANSFORM names STRIP)
list(SORT names)
if(NOT status EQUAL 0 OR NOT names STREQUAL "qt_plugin_instance;qt_plugin_query_metadata")
    message(FATAL_ERROR "${plugin} exports: ${names}")
endif()
file(REMOVE_RECURSE ${BINARY})
