# The texts of the workbench in other languages, as workbench_CODE.ts beside this file. The one for English has only those
# that a number is in, since "%n files" needs a form for one file.
#
# The target `translations` brings the files to what the sources say: what is new has no translation yet, what is gone goes,
# and nothing else in them changes.

set(languages de zh_CN en)

find_program(TARVO_LUPDATE lupdate HINTS /usr/lib/qt5/bin REQUIRED)
find_program(TARVO_LCONVERT lconvert HINTS /usr/lib/qt5/bin REQUIRED)
find_program(TARVO_LRELEASE lrelease HINTS /usr/lib/qt5/bin REQUIRED)

set(entries "")
set(compiled "")
set(update "")
foreach(language IN LISTS languages)
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/translations/workbench_${language}.ts)
    set(result ${CMAKE_CURRENT_BINARY_DIR}/workbench_${language}.qm)
    add_custom_command(OUTPUT ${result}
        COMMAND ${TARVO_LRELEASE} -silent -nounfinished ${source} -qm ${result}
        DEPENDS ${source} VERBATIM)
    list(APPEND compiled ${result})
    string(APPEND entries "        <file>workbench_${language}.qm</file>\n")
    set(only "")
    if(language STREQUAL "en")
        set(only -pluralonly)
    endif()
    list(APPEND update
        COMMAND ${TARVO_LUPDATE} -silent -locations none -no-obsolete -source-language en ${only}
            ${CMAKE_CURRENT_SOURCE_DIR} -extensions cpp,h -ts ${source}
        COMMAND ${TARVO_LCONVERT} -sort-contexts -locations none -i ${source} -o ${source})
endforeach()
add_custom_target(translations ${update} VERBATIM)

set(resources ${CMAKE_CURRENT_BINARY_DIR}/translations.qrc)
file(CONFIGURE OUTPUT ${resources} CONTENT
    "<RCC>\n    <qresource prefix=\"/workbench/translations\">\n@entries@    </qresource>\n</RCC>\n" @ONLY)
target_sources(tarvo_workbench_lib PRIVATE ${resources})
# The resources are read by a target of CMake's own, which has to wait for them.
add_custom_target(translations_compiled DEPENDS ${compiled})
set_property(TARGET tarvo_workbench_lib APPEND PROPERTY AUTOGEN_TARGET_DEPENDS translations_compiled ${compiled})
set_property(SOURCE ${resources} PROPERTY OBJECT_DEPENDS "${compiled}")
