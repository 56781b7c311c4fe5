#include "prefixednetlist.h"

#include "config/choices.h"
#include "config/latin1literal.h"
#include "generate/synthesisrequest.h"
#include "sourcenames.h"

namespace TARVOORIXM1
{

QVector<ExportedFile> prefixedOutputs(const QVector<ExportedFile> &outputs,
                                      const QVector<BlackBox> &blackBoxes, const QString &prefix)
{
    SourceNames::Verilog verilog;
    QSet<QByteArray> vhdl;
    const auto add = [&](const QByteArray &name) {
        verilog.modules.insert(name);
        vhdl.insert(name.toLower());
    };
    add(QByteArray(topModule.data(), topModule.size()));
    for (const BlackBox &box : blackBoxes)
        add(box.module.toUtf8());
    const QByteArray before = prefix.toUtf8();
    QVector<ExportedFile> result;
    for (const ExportedFile &output : outputs) {
        const bool isVhdl = output.path.endsWith(".vhd"_l1) || output.path.endsWith(".vho"_l1);
        result.append(
            {prefix + output.path,
             isVhdl ? SourceNames::prefixedVhdl(
                          output.bytes, vhdl + SourceNames::unitsOfVhdl(output.bytes), before)
                    : SourceNames::prefixedVerilog(output.bytes, verilog, before)});
    }
    return result;
}

} // namespace TARVOORIXM1
