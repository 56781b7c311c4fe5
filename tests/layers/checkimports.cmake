# Fails if the plug-in imports a C++ symbol that the host's interface does not have, or one whose arguments are no types of
# the interface: another host has only that.
#
# -DPLUGIN=…  -DNM=…
set(interface "TE|IPCore|Core|DEV|Utils")

execute_process(COMMAND ${NM} --dynamic --undefined-only --demangle ${PLUGIN} OUTPUT_VARIABLE symbols
    RESULT_VARIABLE status)
string(REPLACE ";" "," symbols "${symbols}")
string(REGEX MATCHALL "[^\n]+" lines "${symbols}")
# Qt and the system's libraries have versions; what the sanitizers put in the place of theirs has none.
list(FILTER lines EXCLUDE REGEX "@|operator (new|delete)")
list(FILTER lines INCLUDE REGEX "::|\\(")
list(LENGTH lines count)
if(NOT status EQUAL 0 OR count LESS 40)
    message(FATAL_ERROR "${PLUGIN} imports ${count} symbols of its host, or cannot be read")
endif()

set(foreign)
foreach(line IN LISTS lines)
    string(REGEX MATCHALL "[A-Za-z_][A-Za-z0-9_:]*::" scopes "${line}")
    list(TRANSFORM scopes REPLACE "::.*" "")
    list(FILTER scopes EXCLUDE REGEX "^(${interface}|Q[A-Za-z]*|std)$")
    if(scopes OR NOT line MATCHES "^ *[A-Za-z] ([a-z -]+ for )?(${interface})::")
        list(APPEND foreign ${line})
    endif()
endforeach()
if(foreign)
    list(JOIN foreign "\n" text)
    message(FATAL_ERROR "${PLUGIN} imports what the host's interface does not have:\n${text}")
endif()
