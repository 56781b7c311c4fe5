# How every target of this repository is made: language level, warnings, sanitizers, output folders and
# the level rule (a target links only targets of its own level or below, a folder includes none above it) live here once.

include_guard(GLOBAL)
include(${CMAKE_CURRENT_LIST_DIR}/TarvoPrecompile.cmake)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# The build tree is laid out like an installation, so that programs find their data the same way in both.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR}/tarvo)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/archive)
set(TARVO_PLUGIN_DIR ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR}/tarvo/plugins)
set(TARVO_DATA_DIR ${CMAKE_BINARY_DIR}/share/tarvo)
set(TARVO_INSTALL_LIBDIR ${CMAKE_INSTALL_LIBDIR}/tarvo)

add_library(tarvo_flags INTERFACE)
target_compile_features(tarvo_flags INTERFACE cxx_std_17)
target_compile_options(tarvo_flags INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wimplicit-fallthrough -Wcast-align)
target_compile_definitions(tarvo_flags INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00 QT_USE_QSTRINGBUILDER)
if(TARVO_SANITIZE)
    target_compile_options(tarvo_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(tarvo_flags INTERFACE -fsanitize=address,undefined)
endif()
if(TARVO_FUZZ)
    # The readers are watched while they run; only the targets themselves bring a main program.
    target_compile_options(tarvo_flags INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(tarvo_flags INTERFACE -fsanitize=address,undefined)
else()
    target_link_options(tarvo_flags INTERFACE -Wl,--no-undefined)
endif()
target_link_options(tarvo_flags INTERFACE -Wl,--as-needed)

# What an attacker's input would need is taken away: overrun stack frames and buffers end the program, and nothing that
# the loader has resolved can be written to. The sanitizers bring checks of their own, which these would disturb.
if(NOT TARVO_SANITIZE AND NOT TARVO_FUZZ)
    set(optimised "$<NOT:$<CONFIG:Debug>>")
    target_compile_options(tarvo_flags INTERFACE
        -fstack-protector-strong -fstack-clash-protection "$<${optimised}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
endif()
target_link_options(tarvo_flags INTERFACE -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)

# Marks a target's level and remembers it for tarvo_check_levels().
function(tarvo_set_level target level)
    set_target_properties(${target} PROPERTIES TARVO_LEVEL ${level})
    set_property(GLOBAL APPEND PROPERTY TARVO_LEVELLED ${target})
endfunction()

# Lets the loader find the libraries of this repository relative to the target itself, in the build tree as in an
# installation. Without this the build tree's binaries would get room for the longer of two paths, filled up with empty
# elements, and an empty element is the current folder: whatever lies there would be run.
function(tarvo_set_library_path target path)
    set_target_properties(${target} PROPERTIES BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "$ORIGIN${path}")
endfunction()

# tarvo_add_library(NAME STATIC|SHARED LEVEL n SOURCES … [LINK …] [PRIVATE_LINK …])
#
# A library target whose headers are included as <folder/header.h>.
function(tarvo_add_library name kind)
    cmake_parse_arguments(ARG "" "LEVEL" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
    add_library(${name} ${kind} ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE ${ARG_PRIVATE_LINK} $<BUILD_INTERFACE:tarvo_flags>)
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR PARENT_PATH parent)
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${parent}>)
    tarvo_set_level(${name} ${ARG_LEVEL})
endfunction()

# tarvo_add_host_library(NAME LEVEL n SOURCES … HEADERS … [LINK …] [PRIVATE_LINK …])
#
# A shared library of the host platform, also known as TarvoHost::NAME, with its public headers in the package.
function(tarvo_add_host_library name)
    cmake_parse_arguments(ARG "" "LEVEL" "SOURCES;HEADERS;LINK;PRIVATE_LINK" ${ARGN})
    set(target TarvoHost${name})
    tarvo_add_library(${target} SHARED LEVEL ${ARG_LEVEL} SOURCES ${ARG_SOURCES} ${ARG_HEADERS}
        LINK ${ARG_LINK} PRIVATE_LINK ${ARG_PRIVATE_LINK})
    add_library(TarvoHost::${name} ALIAS ${target})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name} VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    string(TOUPPER ${name} upper)
    target_compile_definitions(${target} PRIVATE TARVO_${upper}_LIBRARY)
    target_link_options(${target} PRIVATE -Wl,-Bsymbolic-functions)
    tarvo_set_library_path(${target} "")
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
    target_include_directories(${target} PUBLIC $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/tarvo>)
    install(TARGETS ${target} EXPORT TarvoHostTargets
        LIBRARY DESTINATION ${TARVO_INSTALL_LIBDIR} COMPONENT host NAMELINK_COMPONENT host)
    install(FILES ${ARG_HEADERS} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tarvo/${folder} COMPONENT host)
endfunction()

# tarvo_add_plugin(NAME LEVEL n SOURCES … [PRIVATE_LINK …]): a Qt plug-in library that exports Qt's entry points only.
function(tarvo_add_plugin name)
    cmake_parse_arguments(ARG "" "LEVEL" "SOURCES;PRIVATE_LINK" ${ARGN})
    add_library(${name} MODULE ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_PRIVATE_LINK} tarvo_flags)
    set_target_properties(${name} PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${TARVO_PLUGIN_DIR}
        LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/qtplugin.map)
    target_link_options(${name} PRIVATE -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/qtplugin.map)
    tarvo_set_library_path(${name} "/..")
    install(TARGETS ${name} LIBRARY DESTINATION ${TARVO_INSTALL_LIBDIR}/plugins)
    tarvo_set_level(${name} ${ARG_LEVEL})
endfunction()

# tarvo_add_program(NAME LEVEL n SOURCES … [PRIVATE_LINK …])
function(tarvo_add_program name)
    cmake_parse_arguments(ARG "NO_INSTALL" "LEVEL" "SOURCES;PRIVATE_LINK" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_PRIVATE_LINK} tarvo_flags)
    if(NOT ARG_NO_INSTALL)
        tarvo_set_library_path(${name} "/../${TARVO_INSTALL_LIBDIR}")
        install(TARGETS ${name} RUNTIME)
    endif()
    tarvo_set_level(${name} ${ARG_LEVEL})
endfunction()

# What tests share: results, which are known by what they were made from, a synthesis tool that takes those of equal designs, quicker
# compilers and players of simulations, and a C++ compiler that takes what it has made too and spares the optimising. It gets the many
# sources of a design in one: most of its time goes into the headers that all of them include.
set(TARVO_TEST_CACHE ${CMAKE_BINARY_DIR}/tests/cache)
set(TARVO_TEST_ENVIRONMENT XDG_CACHE_HOME=${TARVO_TEST_CACHE} TARVO_TEST_CACHE=${TARVO_TEST_CACHE} OPT_FAST=-O0 OPT_GLOBAL=-O0
    MAKEFLAGS=VM_PARALLEL_BUILDS=0)
# The sanitizers' library has to be the first.
if(NOT TARVO_SANITIZE AND NOT TARVO_FUZZ)
    set(TARVO_TEST_CASTS ${CMAKE_BINARY_DIR}/tests/lib/libquickcasts.so)
    list(APPEND TARVO_TEST_ENVIRONMENT TARVO_TEST_CASTS=${TARVO_TEST_CASTS})
endif()
find_program(TARVO_CCACHE ccache)
if(TARVO_CCACHE)
    list(APPEND TARVO_TEST_ENVIRONMENT OBJCACHE=${TARVO_CCACHE} CCACHE_DIR=${TARVO_TEST_CACHE}/ccache)
endif()

# tarvo_share_results(TEST …): tests that make simulations or netlists, not those that are about the tools themselves.
function(tarvo_share_results)
    foreach(test IN LISTS ARGN)
        set_property(TEST ${test} APPEND PROPERTY ENVIRONMENT "${TARVO_TEST_ENVIRONMENT}")
        set_property(TEST ${test} PROPERTY ENVIRONMENT_MODIFICATION PATH=path_list_prepend:${PROJECT_SOURCE_DIR}/tests/tools)
    endforeach()
endfunction()

# Tests wait for the compiler more than for the code that it makes of them.
add_library(tarvo_test_flags INTERFACE)
target_link_libraries(tarvo_test_flags INTERFACE tarvo_flags)
target_compile_options(tarvo_test_flags INTERFACE "$<$<CONFIG:Release>:-O1>")

# tarvo_add_meta_objects(TEST SOURCE FILE): what the meta-object compiler makes of a source or header, a file that the test includes.
function(tarvo_add_meta_objects name source file)
    get_target_property(sources ${name} SOURCES)
    qt5_generate_moc(${source} ${CMAKE_CURRENT_BINARY_DIR}/${file} TARGET ${name})
    set_property(SOURCE ${sources} APPEND PROPERTY OBJECT_DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${file})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()

# tarvo_add_test(NAME SOURCES … [LINK …] [TIMEOUT seconds] [OWN_TOOLS]): a QtTest program and the test that runs it. OWN_TOOLS: it
# counts on the tools as they are.
function(tarvo_add_test name)
    cmake_parse_arguments(ARG "OWN_TOOLS" "TIMEOUT" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests/bin)
    target_link_libraries(${name} PRIVATE ${ARG_LINK} tarvo_testsupport Qt5::Test tarvo_test_flags)
    if(ARG_SOURCES MATCHES "^[^;]*tst_[a-z0-9_]*\\.cpp$")
        # Nothing but the test itself needs the meta-object compiler, and it includes what that makes: spares two steps a program.
        set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
        tarvo_add_meta_objects(${name} ${ARG_SOURCES} ${name}.moc)
    endif()
    set_property(GLOBAL APPEND PROPERTY TARVO_TESTS ${name})
    set(launcher)
    if(TARVO_SANITIZE)
        set(launcher ${PROJECT_SOURCE_DIR}/tests/tools/sanitized)
    endif()
    add_test(NAME ${name} COMMAND ${launcher} $<TARGET_FILE:${name}>)
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    if(TARVO_SANITIZE)
        math(EXPR ARG_TIMEOUT "3 * ${ARG_TIMEOUT}")
    endif()
    # The test's own limit counts, not that of a function of it, in milliseconds.
    set(environment QT_QPA_PLATFORM=offscreen "QT_LOGGING_RULES=qt.qpa.*=false" QTEST_FUNCTION_TIMEOUT=1800000)
    if(TARVO_SANITIZE)
        list(APPEND environment
            LSAN_OPTIONS=print_suppressions=0:suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp)
    endif()
    if(ARG_OWN_TOOLS)
        list(APPEND environment XDG_CACHE_HOME=${TARVO_TEST_CACHE})
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT "${environment}")
    if(NOT ARG_OWN_TOOLS)
        tarvo_share_results(${name})
    endif()
endfunction()

# tarvo_order_folders(FOLDER …): the folders of the calling one that hold sources, lowest first. Remembered for
# tarvo_check_levels(); what lies beside the folders may include all of them.
function(tarvo_order_folders)
    file(GLOB present RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/*/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*/*.h)
    list(TRANSFORM present REPLACE "/.*" "")
    list(REMOVE_DUPLICATES present)
    list(REMOVE_ITEM present ${ARGN})
    if(present)
        message(FATAL_ERROR "${CMAKE_CURRENT_SOURCE_DIR}: no place in the order of folders for ${present}")
    endif()
    set_property(GLOBAL APPEND PROPERTY TARVO_ORDERED ${CMAKE_CURRENT_SOURCE_DIR})
    set_property(GLOBAL PROPERTY TARVO_ORDER_OF_${CMAKE_CURRENT_SOURCE_DIR} ${ARGN})
endfunction()

# Stops the configuration when a source in one of the ordered folders of `base` includes a header of a later one, however
# that is written.
function(tarvo_check_folders base folders)
    set(above ${folders})
    foreach(folder IN LISTS folders)
        list(POP_FRONT above)
        file(GLOB sources ${base}/${folder}/*.cpp ${base}/${folder}/*.h)
        foreach(source IN LISTS sources)
            file(STRINGS ${source} includes REGEX "^[ \t]*#[ \t]*include[ \t]*[\"<]")
            foreach(include IN LISTS includes)
                string(REGEX REPLACE "^[^\"<]*[\"<]([^\">]*).*" "\\1" header "${include}")
                foreach(start IN ITEMS ${base}/${folder} ${base} ${base}/..)
                    cmake_path(ABSOLUTE_PATH header BASE_DIRECTORY ${start} NORMALIZE OUTPUT_VARIABLE path)
                    if(NOT EXISTS ${path})
                        continue()
                    endif()
                    cmake_path(GET path PARENT_PATH home)
                    cmake_path(RELATIVE_PATH home BASE_DIRECTORY ${base})
                    if(home IN_LIST above)
                        message(FATAL_ERROR "${source} includes ${header}: "
                            "${folder} stands below ${home}, and a folder includes none above it")
                    endif()
                    break()
                endforeach()
            endforeach()
        endforeach()
    endforeach()
endfunction()

# Stops the configuration when a target links one of a higher level, or a folder includes one above it.
function(tarvo_check_levels)
    get_property(targets GLOBAL PROPERTY TARVO_LEVELLED)
    foreach(target IN LISTS targets)
        get_target_property(level ${target} TARVO_LEVEL)
        get_target_property(links ${target} LINK_LIBRARIES)
        get_target_property(interfaceLinks ${target} INTERFACE_LINK_LIBRARIES)
        foreach(link IN LISTS links interfaceLinks)
            string(REGEX REPLACE "^\\$<(BUILD_INTERFACE|LINK_ONLY):(.*)>$" "\\2" link "${link}")
            if(NOT TARGET ${link})
                continue()
            endif()
            get_target_property(aliased ${link} ALIASED_TARGET)
            if(aliased)
                set(link ${aliased})
            endif()
            get_target_property(linkLevel ${link} TARVO_LEVEL)
            if(linkLevel MATCHES "^[0-9]+$" AND linkLevel GREATER level)
                message(FATAL_ERROR "${target} (level ${level}) links ${link} (level ${linkLevel}): "
                    "a target links only its own level or below")
            endif()
        endforeach()
    endforeach()
    get_property(bases GLOBAL PROPERTY TARVO_ORDERED)
    foreach(base IN LISTS bases)
        get_property(folders GLOBAL PROPERTY TARVO_ORDER_OF_${base})
        tarvo_check_folders(${base} "${folders}")
    endforeach()
endfunction()
