#include "buildfragments.h"

#include "config/choices.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "filledtext.h"
#include "generate/outputs.h"
#include "names.h"
#include "rtl.h"
#include "testbench.h"

#include <QFileInfo>

#include <functional>

namespace TARVOORIXM1
{

namespace
{

const char cmakeText[] =
    R"cmake(# @top@ in a build with CMake: include(…/@file@), then take what is listed here.
#
#   @PREFIX@_IPC                  the configuration; set it before where it is not beside this folder
#   @PREFIX@_FORMATS              what is exported anew when it has changed; empty for all formats
#   @PREFIX@_SOURCES              what synthesis compiles, in order
#   @PREFIX@_INCLUDE_DIR          what the sources include
#   @PREFIX@_SIMULATION_SOURCES   with test bench and model of the processor; run it in @PREFIX@_DIR
#   @PREFIX@_NETLIST              what a generation makes; the target @name@_netlist makes it
#
# When the configuration has changed, CMake configures again, exports into this folder and reads the new lists. Without
# the program orixm1, or without the configuration, the lists are those that stand here.
set(@PREFIX@_DIR "${CMAKE_CURRENT_LIST_DIR}")
set(@PREFIX@_IPC "${@PREFIX@_DIR}/../@name@.ipc" CACHE FILEPATH "Configuration of @top@")
set(@PREFIX@_FORMATS "" CACHE STRING "Formats of @top@ that are exported; all if empty")
find_program(ORIXM1 orixm1 DOC "Configures, exports and generates @top@")

if(ORIXM1 AND EXISTS "${@PREFIX@_IPC}" AND NOT @PREFIX@_IS_EXPORTED)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${@PREFIX@_IPC}")
    set(@PREFIX@_STAMP "${CMAKE_CURRENT_BINARY_DIR}/@name@_export.stamp")
    if("${@PREFIX@_IPC}" IS_NEWER_THAN "${@PREFIX@_STAMP}")
        execute_process(
            COMMAND "${ORIXM1}" export "${@PREFIX@_IPC}" ${@PREFIX@_FORMATS}@option@ --out "${@PREFIX@_DIR}"
            OUTPUT_QUIET RESULT_VARIABLE @PREFIX@_STATUS)
        if(NOT @PREFIX@_STATUS EQUAL 0)
            message(FATAL_ERROR "@top@ could not be exported from ${@PREFIX@_IPC}")
        endif()
        file(TOUCH "${@PREFIX@_STAMP}")
        set(@PREFIX@_IS_EXPORTED TRUE)
        include("${CMAKE_CURRENT_LIST_FILE}")
        unset(@PREFIX@_IS_EXPORTED)
        return()
    endif()
endif()

set(@PREFIX@_INCLUDE_DIR "${@PREFIX@_DIR}/@include@")
set(@PREFIX@_SOURCES
@sources@)
set(@PREFIX@_SIMULATION_SOURCES
@simulation@)
set(@PREFIX@_SIMULATION_TOP @bench@)
set(@PREFIX@_SIMULATION_SCRIPT @script@)
set(@PREFIX@_NETLIST_DIR "${CMAKE_CURRENT_BINARY_DIR}/@name@")
set(@PREFIX@_NETLIST
@netlist@)

if(ORIXM1 AND EXISTS "${@PREFIX@_IPC}" AND NOT TARGET @name@_netlist)
    add_custom_command(
        OUTPUT ${@PREFIX@_NETLIST}
        COMMAND "${ORIXM1}" generate "${@PREFIX@_IPC}"@option@ --out "${@PREFIX@_NETLIST_DIR}"
        COMMAND "${CMAKE_COMMAND}" -E touch ${@PREFIX@_NETLIST}
        DEPENDS "${@PREFIX@_IPC}"
        COMMENT "Generating @top@" VERBATIM)
    add_custom_target(@name@_netlist DEPENDS ${@PREFIX@_NETLIST})
endif()
)cmake";

const char makeText[] =
    R"make(# @top@ in a build with make: "make -C FOLDER -f @file@ TARGET" in this folder, or
# include it from elsewhere with @PREFIX@_DIR set to this folder.
#
#   @PREFIX@_IPC                  the configuration; set it where it is not beside this folder
#   @PREFIX@_FORMATS              what is exported anew when it has changed; empty for all formats
#   @PREFIX@_SOURCES              what synthesis compiles, in order
#   @PREFIX@_INCLUDE_DIR          what the sources include
#   @PREFIX@_SIMULATION_SOURCES   with test bench and model of the processor; run it in @PREFIX@_DIR
#   @PREFIX@_NETLIST              what a generation makes; the target @name@_netlist makes it
#
# When the configuration has changed, make exports into this folder and reads the new lists first. Without the program
# orixm1, or without the configuration, the lists are those that stand here. make splits names at blanks: where the name
# of a folder has one, run make in this folder ("make -C") and leave the variables relative.
ORIXM1 ?= orixm1
@PREFIX@_DIR ?= .
@PREFIX@_IPC ?= $(@PREFIX@_DIR)/../@name@.ipc
@PREFIX@_FORMATS ?=
@PREFIX@_NETLIST_DIR ?= $(@PREFIX@_DIR)/netlist
@PREFIX@_INCLUDE_DIR := $(@PREFIX@_DIR)/@include@
@PREFIX@_SOURCES := $(addprefix $(@PREFIX@_DIR)/, \
@sources@)
@PREFIX@_SIMULATION_SOURCES := $(addprefix $(@PREFIX@_DIR)/, \
@simulation@)
@PREFIX@_SIMULATION_TOP := @bench@
@PREFIX@_SIMULATION_SCRIPT := @script@
@PREFIX@_NETLIST := $(addprefix $(@PREFIX@_NETLIST_DIR)/, \
@netlist@)

# The first goal stays that of the including makefile.
@PREFIX@_GOAL := $(.DEFAULT_GOAL)
.PHONY: @name@_sources @name@_netlist
# What was exported is that of the configuration.
@name@_sources: $(@PREFIX@_DIR)/@file@
@name@_netlist: $(@PREFIX@_NETLIST)

ifneq ($(wildcard $(@PREFIX@_IPC)),)
ifneq ($(shell command -v $(ORIXM1)),)
$(@PREFIX@_DIR)/@file@: $(@PREFIX@_IPC)
	$(ORIXM1) export "$<" $(@PREFIX@_FORMATS)@option@ --out "$(@PREFIX@_DIR)" > /dev/null
	touch "$@"

# One run makes them all.
$(@PREFIX@_NETLIST) &: $(@PREFIX@_IPC)
	$(ORIXM1) generate "$<"@option@ --out "$(@PREFIX@_NETLIST_DIR)"
	touch $(@PREFIX@_NETLIST)
endif
endif
.DEFAULT_GOAL := $(@PREFIX@_GOAL)
)make";

QString lines(const QStringList &paths, const QString &before, const QString &after,
              const QString &between)
{
    QStringList texts;
    for (const QString &path : paths)
        texts.append("    "_l1 + before + path + after);
    return texts.join(between);
}

// The names of what every generation leaves in its folder.
QStringList netlistNames(const SystemMap &map)
{
    const Outputs outputs =
        buildOutputs(effectiveTool(valueOf(map.options, Key::synthesisTool)),
                     effectiveLanguage(valueOf(map.options, Key::lang)), QStringLiteral("run"),
                     QStringLiteral("results"), fileName(map, ""_l1));
    QStringList names;
    for (const Output &output : outputs.copied) {
        if (!output.isOptional)
            names.append(QFileInfo(output.file).fileName());
    }
    names.append(QFileInfo(outputs.decoded).fileName());
    return names;
}

ExportedFile fragment(const SystemMap &map, const char *text, QLatin1String suffix,
                      const std::function<QString(const QStringList &, bool)> &listed)
{
    const QStringList simulation = BenchName::verilogSources(map);
    const QVector<std::pair<QString, QString>> values = {
        {QStringLiteral("top"), topModuleName(map)},
        {QStringLiteral("file"), fileName(map, suffix)},
        {QStringLiteral("PREFIX"), macroName(map, ""_l1)},
        {QStringLiteral("name"), symbolName(map, ""_l1)},
        {QStringLiteral("option"), map.prefix.isEmpty() ? QString() : " --prefix "_l1 + map.prefix},
        {QStringLiteral("bench"), BenchName::verilogModule(map)},
        {QStringLiteral("script"), BenchName::script(map)},
        {QStringLiteral("include"), RtlPath::includeFolder()},
        {QStringLiteral("sources"), listed(RtlPath::compiled(map), false)},
        {QStringLiteral("simulation"),
         listed(simulation.isEmpty() ? simulation : simulation + RtlPath::simulated(map), false)},
        {QStringLiteral("netlist"), listed(netlistNames(map), true)}};
    return {fileName(map, suffix), filledText(text, values).toUtf8()};
}

} // namespace

QVector<ExportedFile> cmakeFiles(const SystemMap &map)
{
    if (map.rtl.isEmpty())
        return {};
    const QString prefix = macroName(map, ""_l1);
    return {fragment(map, cmakeText, ".cmake"_l1, [&prefix](const QStringList &paths, bool isMade) {
        return lines(paths, "\"${"_l1 + prefix + (isMade ? "_NETLIST_DIR}/"_l1 : "_DIR}/"_l1),
                     QStringLiteral("\""), QStringLiteral("\n"));
    })};
}

QVector<ExportedFile> makeFiles(const SystemMap &map)
{
    if (map.rtl.isEmpty())
        return {};
    return {fragment(map, makeText, ".mk"_l1, [](const QStringList &paths, bool) {
        return lines(paths, QString(), QString(), QStringLiteral(" \\\n"));
    })};
}

} // namespace TARVOORIXM1
