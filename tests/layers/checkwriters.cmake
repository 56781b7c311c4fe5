# Fails if something beside the one class for it writes files or locks: cmake -DSOURCE_DIR=… -P checkwriters.cmake
#
# The diagram's picture is written by the plug-in, which knows no more of a host than every host has.
file(GLOB_RECURSE sources ${SOURCE_DIR}/*.cpp ${SOURCE_DIR}/*.h)
list(LENGTH sources count)
if(count LESS 100)
    message(FATAL_ERROR "Only ${count} sources in ${SOURCE_DIR}")
endif()
set(found 0)
foreach(source IN LISTS sources)
    file(STRINGS ${source} lines REGEX "QSaveFile|QLockFile|QTemporaryFile|ofstream|fopen|QIODevice::WriteOnly|QFile::WriteOnly|QFile::copy")
    foreach(line IN LISTS lines)
        if(line MATCHES "^ *//" OR source MATCHES "diagrampicture.cpp$" OR line MATCHES "[bB]uffer|[dD]ata[sS]tream|stream\\(")
            continue()
        endif()
        message(SEND_ERROR "${source}: ${line}")
    endforeach()
endforeach()
