#include "format.h"

#include "blackbox.h"
#include "buildfragments.h"
#include "config/latin1literal.h"
#include "constraints.h"
#include "datasheet.h"
#include "devicetree.h"
#include "drivers.h"
#include "filelist.h"
#include "fusesoc.h"
#include "header.h"
#include "ipxact.h"
#include "linker.h"
#include "lint.h"
#include "pins.h"
#include "rtl.h"
#include "startup.h"
#include "svd.h"
#include "testbench.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

constexpr Format rows[] = {
    {"svd"_l1, "tarvo_orix_m1.svd"_l1, "Register description"_l1,
     "Registers and interrupts for debuggers, and for generators of access libraries."_l1,
     "CMSIS-SVD 1.3"_l1, "xmllint"_l1, svdFiles},
    {"header"_l1, "tarvo_orix_m1.h"_l1, "Device header"_l1,
     "Addresses, registers and interrupt numbers for programs in C and C++."_l1, "C99, C++11"_l1,
     "gcc, g++, clang, arm-none-eabi-gcc"_l1, headerFiles},
    {"linker"_l1, "tarvo_orix_m1.ld, memory.x"_l1, "Linker script"_l1,
     "Places a program in the memories of the subsystem, which a script of your own can "
     "include, and memory.x for Rust."_l1,
     "GNU ld"_l1, "arm-none-eabi-gcc, qemu-system-arm"_l1, linkerFiles},
    {"startup"_l1, "startup_tarvo_orix_m1.c"_l1, "Start-up code"_l1,
     "Vector table and weak handlers of the interrupts that arrive, and what runs before "
     "main()."_l1,
     "C99"_l1, "arm-none-eabi-gcc, clang, qemu-system-arm"_l1, startupFiles},
    {"drivers"_l1, "drivers"_l1, "Drivers"_l1,
     "Functions for each block that is on; they need the device header and no library."_l1,
     "C99, C++11"_l1, "gcc, g++, clang, arm-none-eabi-gcc"_l1, driverFiles},
    {"devicetree"_l1, "tarvo_orix_m1.dtsi, tarvo_orix_m1-overlay.dts"_l1, "Device tree"_l1,
     "Processor, memories, blocks and interrupts for operating systems that read a tree, and the "
     "skeleton of a board's overlay."_l1,
     "Devicetree 0.4"_l1, "dtc, fdtoverlay"_l1, devicetreeFiles},
    {"datasheet"_l1, "datasheet/tarvo_orix_m1.md, datasheet/tarvo_orix_m1.html"_l1, "Datasheet"_l1,
     "Diagram, memory and interrupt maps, ports, clocks and registers for people."_l1,
     "CommonMark with GFM tables, HTML, SVG"_l1, "cmark-gfm, xmllint"_l1, datasheetFiles},
    {"sdc"_l1, "tarvo_orix_m1.sdc"_l1, "Timing constraints"_l1,
     "What tools that place and route must know of clocks, and of signals from pins and from other "
     "clocks."_l1,
     "SDC (Tcl)"_l1, "tclsh"_l1, constraintFiles},
    {"rtl"_l1, "rtl"_l1, "RTL sources"_l1,
     "The sources of the subsystem with what they include, for tools that compile them "
     "themselves."_l1,
     "Verilog 2005"_l1, "iverilog, verilator, yosys"_l1, rtlFiles},
    {"blackbox"_l1, "tarvo_orix_m1_bb.v, tarvo_orix_m1_bb.sv, tarvo_orix_m1_pkg.vhd"_l1,
     "Black box"_l1, "The top module without contents, for designs that take the netlist later."_l1,
     "Verilog 2005, SystemVerilog 2012, VHDL-93"_l1, "iverilog, verilator, yosys, ghdl"_l1,
     blackboxFiles},
    {"filelist"_l1, "tarvo_orix_m1_synthesis.f, tarvo_orix_m1_simulation.f"_l1, "File lists"_l1,
     "The sources for synthesis and for simulation in order, for tools that take a list; they name "
     "files of rtl and testbench."_l1,
     QLatin1String(), "iverilog, verilator"_l1, fileListFiles},
    {"pins"_l1, "tarvo_orix_m1_pins.tcl"_l1, "Pins"_l1,
     "A stub with a line for each port, for the pins of a board."_l1, "Tcl"_l1, "tclsh"_l1,
     pinFiles},
    {"testbench"_l1, "sim"_l1, "Test benches"_l1,
     "Clock, reset and a script of first accesses that is checked, in Verilog, VHDL and for "
     "cocotb."_l1,
     "SystemVerilog 2012, VHDL-93, Python 3"_l1, "iverilog, vvp, verilator, ghdl, python3"_l1,
     testbenchFiles},
    {"lint"_l1, "tarvo_orix_m1.vlt"_l1, "Lint waivers"_l1,
     "Waivers for Verilator by rule and file, with the reason of each: with them -Wall says "
     "nothing "
     "of rtl."_l1,
     "Verilator configuration"_l1, "verilator"_l1, lintFiles},
    {"cmake"_l1, "tarvo_orix_m1.cmake"_l1, "CMake fragment"_l1,
     "Lists of sources, and rules that export and generate anew when the configuration has "
     "changed."_l1,
     "CMake 3.18"_l1, "cmake"_l1, cmakeFiles},
    {"make"_l1, "tarvo_orix_m1.mk"_l1, "make fragment"_l1,
     "The same lists and rules for builds with make."_l1, "GNU make 4.3"_l1, "make"_l1, makeFiles},
    {"ipxact"_l1, "ipxact/tarvo_orix_m1.xml, ipxact/tarvo_orix_m1_catalog.xml"_l1,
     "IP-XACT component"_l1,
     "Ports, buses, clocks, resets, memory map, registers and interrupts for tools that assemble "
     "designs; it names the files of rtl and of what is made for software."_l1,
     "IEEE 1685-2014"_l1, "xmllint"_l1, ipxact2014Files},
    {"ipxact-2022"_l1, "ipxact-2022/tarvo_orix_m1.xml, ipxact-2022/tarvo_orix_m1_catalog.xml"_l1,
     "IP-XACT component, edition of 2022"_l1,
     "The same for tools that read the later edition of the standard."_l1, "IEEE 1685-2022"_l1,
     "xmllint"_l1, ipxact2022Files},
    {"fusesoc"_l1, "tarvo_orix_m1.core, fusesoc"_l1, "FuseSoC core"_l1,
     "Files of rtl, testbench, lint and sdc with targets for synthesis, simulation and lint, and a "
     "generator that makes such a core of a configuration."_l1,
     "CAPI2"_l1, "python3-jsonschema"_l1, fusesocFiles},
};

} // namespace

Rows<Format> formats()
{
    return rows;
}

const Format *findFormat(const QString &name)
{
    const Rows<Format> all = formats();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&name](const Format &format) { return format.name == name; });
    return found == all.end() ? nullptr : found;
}

} // namespace TARVOORIXM1
