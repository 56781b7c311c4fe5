# Adds a second IP's folder to a copy of data/, assembles and installs it, and looks at every file that comes out.
#
# -DSOURCE=…  -DHERE=…  -DBINARY=…  -DSHARE=folder that this build has assembled  -DGENERATOR=…
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\n${output}")
    endif()
endfunction()

# expect(FILE… in the folder): no other file may be there.
function(expect folder)
    file(GLOB_RECURSE found RELATIVE ${folder} ${folder}/*)
    list(SORT found)
    set(expected ${ARGN})
    list(SORT expected)
    if(NOT "${found}" STREQUAL "${expected}")
        message(FATAL_ERROR "${folder} holds\n${found}\nnot\n${expected}")
    endif()
endfunction()

function(expect_same first second)
    file(SHA256 ${first} one)
    file(SHA256 ${second} other)
    if(NOT one STREQUAL other)
        message(FATAL_ERROR "${first} and ${second} differ")
    endif()
endfunction()

set(source ${BINARY}/source)
set(build ${BINARY}/build)
set(prefix ${BINARY}/installed)
file(REMOVE_RECURSE ${BINARY})
file(COPY ${SOURCE}/data DESTINATION ${source})
foreach(name docs src cmake)
    file(CREATE_LINK ${SOURCE}/${name} ${source}/${name} SYMBOLIC)
endforeach()
configure_file(${HERE}/project.cmake ${source}/CMakeLists.txt COPYONLY)
file(COPY ${HERE}/lamp DESTINATION ${source}/data)

run(${CMAKE_COMMAND} -S ${source} -B ${build} -G ${GENERATOR})
run(${CMAKE_COMMAND} --build ${build})
run(${CMAKE_COMMAND} --install ${build} --prefix ${prefix})

set(share ${prefix}/share/tarvo)
expect(${share}/lamp lamp.ipspec help/lamp.html registers/lamp.json data/bare/lamp.v data/bright/lamp.v
    data/bright/bulb_bright.v data/bright/fan.v data/dim/lamp.v data/dim/bulb_dim.v)
foreach(name lamp.ipspec help/lamp.html registers/lamp.json)
    expect_same(${share}/lamp/${name} ${HERE}/lamp/${name})
endforeach()
foreach(name bright/lamp.v dim/lamp.v bare/lamp.v bright/bulb_bright.v bright/fan.v dim/bulb_dim.v)
    cmake_path(GET name FILENAME module)
    expect_same(${share}/lamp/data/${name} ${HERE}/lamp/rtl/${module})
endforeach()

# Everything else is as without it.
file(REMOVE_RECURSE ${share}/lamp)
file(GLOB_RECURSE others RELATIVE ${SHARE} ${SHARE}/*)
expect(${share} ${others})
foreach(name IN LISTS others)
    expect_same(${share}/${name} ${SHARE}/${name})
endforeach()

# What leaves the folder leaves the result, since whatever stands there is compiled or read.
file(WRITE ${source}/data/lamp/rtl/sources.json "{ \"common\": [\"lamp.v\"], \"dim\": [\"bulb_dim.v\"] }\n")
file(REMOVE ${source}/data/lamp/registers/lamp.json)
run(${CMAKE_COMMAND} --build ${build})
expect(${build}/share/tarvo/lamp lamp.ipspec help/lamp.html data/dim/lamp.v data/dim/bulb_dim.v)
file(REMOVE_RECURSE ${source}/data/lamp)
run(${CMAKE_COMMAND} --build ${build})
expect(${build}/share/tarvo/lamp)
file(REMOVE_RECURSE ${BINARY})
