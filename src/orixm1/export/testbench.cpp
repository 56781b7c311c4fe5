#include "testbench.h"

#include "config/latin1literal.h"
#include "filledtext.h"
#include "names.h"
#include "porttext.h"
#include "registers/registerdocs.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

constexpr QLatin1String folder = "sim/"_l1;
constexpr int resetCycles = 10;
constexpr int mostCycles = 100000; // that a script of first accesses may take

const char verilogText[] =
    R"(// A first test bench of @top@: clock, reset, pull-ups, every input at rest. The model of the processor plays the script of
// transfers +@argument@=@script@ and prints what fails; without an end after @cycles@ cycles the bench stops.
// With COCOTB_SIM defined, clock and reset are left to Python (@python@).
`timescale 1ns / 1ps

// verilator lint_off UNUSEDSIGNAL
// verilator lint_off UNDRIVEN
module @bench@;
    // Connect what your design has; these are the levels at rest.
@signals@
    @top@ u_dut (
@connections@
    );
    wire done = u_dut.u_core.done;

`ifndef COCOTB_SIM
    initial HCLK = 1'b0;
    always #10 HCLK = ~HCLK;

    initial begin
        hwRstn = 1'b0;
        repeat (@reset@) @(negedge HCLK);
        hwRstn = 1'b1;
    end

    integer cycle = 0;
    always @(negedge HCLK) begin
        cycle = cycle + 1;
        if (done === 1'b1) begin
            if (u_dut.u_core.checks == 0 || u_dut.u_core.failures != 0 || LOCKUP !== 1'b0)
                $fatal(1, "%m: the first accesses failed");
            $finish;
        end else if (cycle == @cycles@)
            $fatal(1, "%m: no end of the script after %0d cycles", cycle);
    end
`endif
endmodule
)";

const char vhdlText[] =
    R"(-- A first test bench of @top@: clock, reset, pull-ups, every input at rest. The model of the processor plays the
-- script of transfers and prints PASS, or what fails.
--   ghdl -a @target@.vho sim/@model@.vhd @package@.vhd @file@
--   ghdl -r @bench@
-- The first file is the simulation model of a generation with VHDL as its language.
library ieee;
use ieee.std_logic_1164.all;
use work.@model@;
use work.@package@.all;

entity @bench@ is
    generic (script : string := "@script@");
end entity;

architecture board of @bench@ is
    -- Connect what your design has; these are the levels at rest.
@signals@begin
    @model@.script <= @model@.script_of(script);

    process
        variable cycles : natural := 0;
    begin
        while to_x01(@model@.done) /= '1' and cycles < @cycles@ loop
            wait for 10 ns;
            HCLK <= not HCLK;
            wait for 10 ns;
            HCLK <= not HCLK;
            cycles := cycles + 1;
        end loop;
        assert cycles < @cycles@ report "no end of the script after @cycles@ cycles" severity failure;
        assert LOCKUP = '0' report "the processor is locked up" severity failure;
        wait;
    end process;
    hwRstn <= '1' after @reset time@ ns;
@pulls@
    u_dut : @top@
        port map (
@connections@
        );
end architecture;
)";

const char pythonText[] =
    R"("""A first cocotb test of @top@: clock, reset, and the first accesses of @script@.

Run it in the folder of the export with a Makefile of yours:
    SIM = icarus
    TOPLEVEL = @bench@
    MODULE = @module@
    COMPILE_ARGS = -g2005-sv -c @list@
    PLUSARGS = +@argument@=@script@
and with PYTHONPATH=sim; include cocotb's Makefile.sim behind these lines.
"""
import cocotb
from cocotb.clock import Clock
from cocotb.triggers import ClockCycles, RisingEdge

RESET_CYCLES = @reset@
MOST_CYCLES = @cycles@


@cocotb.test()
async def first_accesses(dut):
    """The processor's model plays the script, and every access gives what it is to give."""
    dut.hwRstn.value = 0
    cocotb.start_soon(Clock(dut.HCLK, 20, "ns").start())
    await ClockCycles(dut.HCLK, RESET_CYCLES)
    dut.hwRstn.value = 1
    core = dut.u_dut.u_core
    for _ in range(MOST_CYCLES):
        await RisingEdge(dut.HCLK)
        if str(dut.done.value) == "1":
            break
    else:
        raise AssertionError(f"no end of the script after {MOST_CYCLES} cycles")
    assert int(core.checks.value) > 0, "the script checks nothing"
    assert int(core.failures.value) == 0, "accesses failed, the simulator's output says which"
    assert int(dut.LOCKUP.value) == 0, "the processor is locked up"
)";

// Those that bring the reset of the whole bench.
bool isReset(const SystemMap &map, const Port &port)
{
    return port.direction == PortDirection::Input &&
           std::any_of(map.resets.begin(), map.resets.end(),
                       [&port](const ExternalSource &source) { return source.port == port.name; });
}

bool isHighAtRest(const Port &port)
{
    return port.isActiveLow || port.idlesHigh || port.signal == "HREADYOUT"_l1 ||
           port.signal == "PREADY"_l1;
}

QString levelText(const Port &port, const char *one, const char *zero)
{
    return QString::fromLatin1(isHighAtRest(port) ? one : zero);
}

// What the bench itself drives. The clock and the reset of everything are those of this name.
constexpr QLatin1String mainClock = "HCLK"_l1;
constexpr QLatin1String mainReset = "hwRstn"_l1;

QString verilogSignals(const SystemMap &map)
{
    QString text;
    for (const Port &port : map.ports) {
        QString kind = QStringLiteral("wire");
        QString value;
        if (port.name == mainClock || port.name == mainReset)
            kind = QStringLiteral("reg");
        else if (port.direction == PortDirection::Inout)
            kind = port.needsPullUp ? QStringLiteral("tri1") : QStringLiteral("tri0");
        else if (isReset(map, port))
            value = " = "_l1 + mainReset;
        else if (port.direction == PortDirection::Input)
            value = port.isVector()
                        ? QStringLiteral(" = {%1{%2}}")
                              .arg(QString::number(port.width()), levelText(port, "1'b1", "1'b0"))
                        : QString(" = "_l1 + levelText(port, "1'b1", "1'b0"));
        text += "    "_l1 + kind.leftJustified(5) + PortText::verilogRange(port).leftJustified(7) +
                port.name + value + "; // "_l1 + PortText::comment(port) + u'\n';
    }
    return text;
}

QString vhdlSignals(const SystemMap &map)
{
    QString text;
    for (const Port &port : map.ports) {
        QString value;
        if (port.name == mainClock || port.name == mainReset)
            value = QStringLiteral(" := '0'");
        else if (port.direction == PortDirection::Input && !isReset(map, port))
            value = (port.isVector() ? " := (others => "_l1 : " := "_l1) +
                    levelText(port, "'1'", "'0'") + (port.isVector() ? ")"_l1 : ""_l1);
        text += "    signal "_l1 + port.name + " : "_l1 + PortText::vhdlType(port) + value +
                "; -- "_l1 + PortText::comment(port) + u'\n';
    }
    return text;
}

// What holds lines that nobody drives, and the resets beside the main one.
QString vhdlPulls(const SystemMap &map)
{
    QString text;
    for (const Port &port : map.ports) {
        if (port.direction == PortDirection::Inout) {
            const QLatin1String level = port.needsPullUp ? "'H'"_l1 : "'L'"_l1;
            text += "    "_l1 + port.name + " <= "_l1 +
                    (port.isVector() ? QString("(others => "_l1 + level + u')') : QString(level)) +
                    ";\n"_l1;
        } else if (isReset(map, port) && port.name != mainReset) {
            text += "    "_l1 + port.name + " <= "_l1 + mainReset + ";\n"_l1;
        }
    }
    return text;
}

QString connections(const SystemMap &map, const QString &pattern)
{
    QStringList lines;
    for (const Port &port : map.ports)
        lines.append(pattern.arg(port.name));
    return lines.join(",\n"_l1);
}

// What is known of a register that nothing has happened to: the bits of `*mask`. 0: reading it is
// no check, or does something.
quint32 checkedReset(const Register &entry, quint32 *mask)
{
    *mask = 0xFFFFFFFF;
    quint32 value = 0;
    for (const RegisterField &field : entry.fields) {
        const quint32 ones = field.width() == 32 ? 0xFFFFFFFF : (1U << field.width()) - 1;
        const bool isRead = field.access == RegisterAccess::ReadWrite ||
                            field.access == RegisterAccess::Read ||
                            field.access == RegisterAccess::WriteOneToClear;
        if (field.readEffect != ReadEffect::None || !isRead) {
            *mask = 0;
            return 0;
        }
        if (!field.hasReset)
            *mask &= ~(ones << field.low);
        value |= (field.reset & ones) << field.low;
    }
    return value & *mask;
}

QString readLine(quint32 address, quint32 value, quint32 mask = 0xFFFFFFFF)
{
    QString line = "read "_l1 + hexAddress(address) + u' ' + hexAddress(value);
    if (mask != 0xFFFFFFFF)
        line += u' ' + hexAddress(mask);
    return line + u'\n';
}

QString memoryAccesses(const SystemMap &map, const Region &region)
{
    // A program that the memory begins with stays whole.
    if (region.kind != RegionKind::TightlyCoupledMemory || region.size() < 8 ||
        (region.name != "DTCM"_l1 && !map.initialContents.isEmpty()))
        return {};
    const quint32 last = region.last - 3;
    return "\n# "_l1 + region.name + ": "_l1 + plainLine(region.text) + "\nwrite "_l1 +
           hexAddress(region.base) + " 0x12345678\nwrite "_l1 + hexAddress(last) +
           " 0x9ABCDEF0\n"_l1 + readLine(region.base, 0x12345678) + readLine(last, 0x9ABCDEF0);
}

QString registerAccesses(const Peripheral &peripheral)
{
    QString text;
    for (const PeripheralInstance &instance : peripheral.instances) {
        for (const Register &entry : peripheral.registers) {
            quint32 mask = 0;
            const quint32 value = checkedReset(entry, &mask);
            if (mask == 0)
                continue;
            text += "\n# "_l1 + instance.name + ", "_l1 + plainLine(entry.name) +
                    " after a reset\n"_l1 + readLine(instance.base + entry.offset, value, mask);
            break;
        }
    }
    return text;
}

QString scriptText(const SystemMap &map)
{
    QString text = "# First accesses to "_l1 + topModuleName(map) +
                   ": memories, a register of each block, the ports that are led out.\n"_l1;
    for (const Region &region : map.regions)
        text += memoryAccesses(map, region);
    for (const Peripheral &peripheral : map.peripherals)
        text += registerAccesses(peripheral);
    for (const Region &region : map.regions) {
        if (region.kind == RegionKind::ExtensionPort || region.kind == RegionKind::ExternalMemory)
            text += "\n# "_l1 + region.name + ": the bench answers with zeros\n"_l1 +
                    readLine(region.base, 0);
    }
    // From the top of the address space downwards: regions are few.
    for (quint32 address = 0xF0000000; address > 0; address -= 0x01000000) {
        if (!isRefused(map, address, BusAccess::Read))
            continue;
        text += "\n# nothing stands there\nerror "_l1 + hexAddress(address) + u'\n';
        break;
    }
    return text;
}

const DataFile *modelWith(const SystemMap &map, QLatin1String suffix)
{
    const auto found =
        std::find_if(map.processorModels.begin(), map.processorModels.end(),
                     [suffix](const DataFile &file) { return file.name.endsWith(suffix); });
    return found == map.processorModels.end() ? nullptr : &*found;
}

QString verilogFile(const SystemMap &map)
{
    return folder + fileName(map, "_tb.v"_l1);
}

} // namespace

namespace BenchName
{

QString verilogModule(const SystemMap &map)
{
    return symbolName(map, "_tb"_l1);
}

QString scriptArgument(const SystemMap &map)
{
    return ownName(map, QStringLiteral("script"));
}

QString script(const SystemMap &map)
{
    return folder + fileName(map, "_tb.play"_l1);
}

QStringList verilogSources(const SystemMap &map)
{
    const DataFile *model = modelWith(map, ".v"_l1);
    return model ? QStringList{verilogFile(map), folder + model->name} : QStringList();
}

} // namespace BenchName

QVector<ExportedFile> testbenchFiles(const SystemMap &map)
{
    if (!modelWith(map, ".v"_l1) || !modelWith(map, ".vhd"_l1))
        return {};
    const QString vhdlFile = folder + fileName(map, "_tb.vhd"_l1);
    const QString module = ownName(map, QStringLiteral("test_tarvo_orix_m1"));
    const QVector<std::pair<QString, QString>> common = {
        {QStringLiteral("top"), topModuleName(map)},
        {QStringLiteral("bench"), BenchName::verilogModule(map)},
        {QStringLiteral("script"), BenchName::script(map)},
        {QStringLiteral("argument"), BenchName::scriptArgument(map)},
        {QStringLiteral("model"), ownName(map, QStringLiteral("cortex_m1_core_bfm"))},
        {QStringLiteral("python"), folder + module + ".py"_l1},
        {QStringLiteral("module"), module},
        {QStringLiteral("list"), fileName(map, "_simulation.f"_l1)},
        {QStringLiteral("target"), fileName(map, ""_l1)},
        {QStringLiteral("package"), symbolName(map, "_pkg"_l1)},
        {QStringLiteral("file"), vhdlFile},
        {QStringLiteral("cycles"), QString::number(mostCycles)},
        {QStringLiteral("reset"), QString::number(resetCycles)},
        {QStringLiteral("reset time"), QString::number(20 * resetCycles)}};
    const auto filled = [&common](const char *text, const QString &names, const QString &values,
                                  const QString &pulls) {
        return filledText(text, common +
                                    QVector<std::pair<QString, QString>>{
                                        {QStringLiteral("signals"), names},
                                        {QStringLiteral("connections"), values},
                                        {QStringLiteral("pulls"), pulls}})
            .toUtf8();
    };
    QVector<ExportedFile> files = {
        {verilogFile(map), filled(verilogText, verilogSignals(map),
                                  connections(map, QStringLiteral("        .%1(%1)")), QString())},
        {vhdlFile,
         filled(vhdlText, vhdlSignals(map),
                connections(map, QStringLiteral("            %1 => %1")), vhdlPulls(map))},
        {folder + module + ".py"_l1, filled(pythonText, QString(), QString(), QString())},
        {BenchName::script(map), scriptText(map).toUtf8()}};
    for (const DataFile &file : map.processorModels)
        files.append({folder + file.name, file.bytes});
    return files;
}

} // namespace TARVOORIXM1
