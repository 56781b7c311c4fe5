#pragma once

#include <dev/devicearg.h>

#include <QString>
#include <QVariantMap>

namespace Synthesis
{

// What is asked for beside the Verilog netlist, which every run makes.
enum class Language { Verilog, Vhdl };

// What a run works on. A plain value.
//
// Keys of `options`: "top_module" (string), "source_files" (string list of full paths),
// "write_vhdl" (bool), "disable_io" (bool: no I/O buffers are inserted), "impl_name" (string: the
// project tool's result folder), "ip_version" (string). The `outputDir` must exist; it is also the
// first include path, followed by the folder of each source.
//
// The sources are one compilation unit in the order given: macros and file-level parameters of a
// file are known in all later ones. Files ending in ".sv" or ".svh" are SystemVerilog, all others
// Verilog 2005; ".vhd" and ".vhdl" are refused. Relative names in $readmemh are looked up in
// `outputDir`, then beside the source.
struct Job {
    QString outputDir;
    QString ipName;
    QString targetName; // base name of the outputs
    DEV::DeviceArg device;
    QVariantMap options;

    Language language() const
    {
        return options.value(QStringLiteral("write_vhdl")).toBool() ? Language::Vhdl
                                                                    : Language::Verilog;
    }
};

} // namespace Synthesis
