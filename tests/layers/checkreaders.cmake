# Fails if something beside the one place for it reads a configuration, so that no reader has a default of its own:
# cmake -DSOURCE_DIR=… -P checkreaders.cmake
#
# Reading is value() of an option map, value() by an option's key, and value() of any map with a default. The keys of the
# descriptor are others, and so are the entries of settings.
file(GLOB_RECURSE sources ${SOURCE_DIR}/orixm1/*.cpp ${SOURCE_DIR}/orixm1/*.h ${SOURCE_DIR}/cli/*.cpp ${SOURCE_DIR}/cli/*.h)
list(LENGTH sources count)
if(count LESS 60)
    message(FATAL_ERROR "Only ${count} sources in ${SOURCE_DIR}")
endif()
set(argument "[^(),;]*(\\([^()]*\\))?")
set(readers
    "[oO]ptions(\\(\\))?(\\.|->)value\\(${argument}"
    "(\\.|->)value\\((${argument}[^a-zA-Z])?Key::[a-zA-Z]*"
    "[a-z](\\.|->)value\\(${argument},${argument}")
foreach(sample "options.value(Key::a, true)" "m_options->value(row.key(), row.byDefault)" "old.value(Key::port(a, 1))" "old.value(key, 32)")
    set(found OFF)
    foreach(reader IN LISTS readers)
        if(sample MATCHES "${reader}")
            set(found ON)
        endif()
    endforeach()
    if(NOT found)
        message(SEND_ERROR "${sample} passes for no reader")
    endif()
endforeach()
foreach(source IN LISTS sources)
    file(READ ${source} text)
    string(REPLACE "settings.value(" "settings.entry(" text "${text}")
    string(REGEX REPLACE "\n *" " " text "${text}")
    foreach(reader IN LISTS readers)
        if("${text}" MATCHES "${reader}")
            message(SEND_ERROR "${source}: ${CMAKE_MATCH_0}...: valueOf(), isOn(), numberOf() and textOf() read options")
        endif()
    endforeach()
endforeach()
