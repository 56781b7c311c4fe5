# Most of what the compiler reads is Qt, and the same in every source: with TARVO_PRECOMPILE it is read once for each kind
# of target. Sources include what they need as ever; a build without this holds them to it.

include_guard(GLOBAL)

option(TARVO_PRECOMPILE "Read Qt's headers once for many sources" OFF)

# The most included ones: what is not among them is read by the sources that include it.
set(TARVO_HEADERS_CORE <QByteArray> <QCoreApplication> <QDir> <QFile> <QFileInfo> <QHash> <QJsonArray> <QJsonDocument> <QJsonObject>
    <QMap> <QSet> <QString> <QStringList> <QVariantMap> <QVector> <algorithm> <functional> <memory> <optional> <string> <vector>)
set(TARVO_HEADERS_WIDGETS ${TARVO_HEADERS_CORE} <QApplication> <QDialog> <QHBoxLayout> <QKeyEvent> <QLabel> <QLineEdit> <QPainter>
    <QPointer> <QPushButton> <QScrollBar> <QSettings> <QTimer> <QVBoxLayout> <QWidget>)

# tarvo_collect_usage(TARGET OUT): what a target is compiled against, itself left out.
function(tarvo_collect_usage target out)
    set(found "")
    get_target_property(open ${target} LINK_LIBRARIES)
    while(open)
        list(POP_FRONT open link)
        string(REGEX REPLACE "^\\$<BUILD_INTERFACE:(.*)>$" "\\1" link "${link}")
        if(NOT TARGET "${link}" OR link IN_LIST found)
            continue()
        endif()
        list(APPEND found ${link})
        get_target_property(links ${link} INTERFACE_LINK_LIBRARIES)
        if(links)
            list(APPEND open ${links})
        endif()
    endwhile()
    set(${out} ${found} PARENT_SCOPE)
endfunction()

# tarvo_add_headers(NAME HEADERS … LINK …): the target that precompiles headers for others, which are compiled against the
# same; they are built when one of these is.
function(tarvo_add_headers name)
    cmake_parse_arguments(ARG "" "" "HEADERS;LINK" ${ARGN})
    set(source ${CMAKE_BINARY_DIR}/precompiled/${name}.cpp)
    if(NOT EXISTS ${source})
        file(WRITE ${source} "")
    endif()
    add_library(${name} OBJECT EXCLUDE_FROM_ALL ${source})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    target_link_libraries(${name} PRIVATE ${ARG_LINK})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
    tarvo_launch_precompiled(${name})
endfunction()

# ccache keeps what is compiled with precompiled headers only when it is told that no source counts on the time of its
# compilation.
function(tarvo_launch_precompiled target)
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        target_compile_options(${target} PRIVATE -fpch-preprocess)
    endif()
    if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache$")
        set_target_properties(${target} PROPERTIES
            CXX_COMPILER_LAUNCHER "env;CCACHE_SLOPPINESS=pch_defines,time_macros;${CMAKE_CXX_COMPILER_LAUNCHER}")
    endif()
endfunction()

# Once all targets are known: those that link Qt take the precompiled headers of their kind. A target that is compiled
# in another way than its headers were is an error of the compiler's (-Winvalid-pch).
function(tarvo_precompile)
    if(NOT TARVO_PRECOMPILE)
        return()
    endif()
    tarvo_add_headers(tarvo_headers_core HEADERS ${TARVO_HEADERS_CORE} LINK Qt5::Core tarvo_flags)
    tarvo_add_headers(tarvo_headers_widgets HEADERS ${TARVO_HEADERS_WIDGETS} LINK Qt5::Widgets tarvo_flags)
    get_property(targets GLOBAL PROPERTY TARVO_LEVELLED)
    get_property(readers GLOBAL PROPERTY TARVO_FUZZ_TARGETS)
    get_property(tests GLOBAL PROPERTY TARVO_TESTS)
    if(tests)
        find_package(Qt5 5.15 REQUIRED COMPONENTS Test)
        tarvo_add_headers(tarvo_test_headers_core HEADERS <QtTest> ${TARVO_HEADERS_CORE}
            LINK Qt5::Core Qt5::Test tarvo_test_flags)
        tarvo_add_headers(tarvo_test_headers_widgets HEADERS <QtTest> ${TARVO_HEADERS_WIDGETS}
            LINK Qt5::Widgets Qt5::Test tarvo_test_flags)
    endif()
    foreach(target IN LISTS targets readers tests)
        tarvo_collect_usage(${target} usage)
        if(Qt5::Widgets IN_LIST usage)
            set(kind widgets)
        elseif(Qt5::Core IN_LIST usage AND NOT Qt5::Gui IN_LIST usage)
            set(kind core)
        else()
            continue()
        endif()
        set(headers tarvo_headers_${kind})
        if(target IN_LIST tests)
            set(headers tarvo_test_headers_${kind})
            # Nothing but an empty text for nearly all of them.
            get_target_property(folder ${target} BINARY_DIR)
            set_source_files_properties(${folder}/${target}_autogen/mocs_compilation.cpp TARGET_DIRECTORY ${target}
                PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
        endif()
        target_precompile_headers(${target} REUSE_FROM ${headers})
        tarvo_launch_precompiled(${target})
    endforeach()
endfunction()
