#include "fuzz.h"

#include <synthesis/netlist/verilogscan.h>

using namespace Synthesis;

namespace
{

bool isSame(const VerilogOutline &a, const VerilogOutline &b)
{
    if (a.complete != b.complete || a.modules.size() != b.modules.size())
        return false;
    for (int i = 0; i < a.modules.size(); ++i) {
        if (a.modules.at(i).name != b.modules.at(i).name ||
            a.modules.at(i).instances != b.modules.at(i).instances)
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text = Fuzz::bytesOf(data, size);
    const VerilogOutline outline = scanVerilog(text);
    REQUIRE(outline.modules.size() <= text.size());
    // What stands around a text changes nothing about it.
    REQUIRE(isSame(outline, scanVerilog("/* c */ // d\n" + text)));
    if (outline.complete)
        REQUIRE(isSame(outline, scanVerilog(text + "\n// end\n")));

    int instances = 0;
    const QMap<QByteArray, int> all = outline.instances();
    for (auto it = all.begin(); it != all.end(); ++it) {
        REQUIRE(it.value() > 0);
        instances += it.value();
    }
    REQUIRE(instances <= text.size());
    for (const VerilogOutline::Module &module : outline.modules) {
        REQUIRE(outline.defines(module.name));
        QString mistake;
        const QMap<QByteArray, int> leaves = outline.leavesOf(module.name, &mistake);
        REQUIRE(leaves.isEmpty() || mistake.isEmpty());
        qint64 sum = 0;
        for (const int count : leaves) {
            REQUIRE(count > 0);
            sum += count;
        }
        REQUIRE(sum <= 100000000);
        if (outline.modules.size() > 50)
            break;
    }
    // A name written is the name read.
    const QByteArray name = outline.modules.isEmpty() ? QByteArray() : outline.modules.first().name;
    if (!name.isEmpty() && !name.contains(' ')) {
        const VerilogOutline again =
            scanVerilog("module " + verilogName(name) + "; X y(); endmodule\n");
        REQUIRE(again.complete && again.modules.size() == 1 && again.defines(name));
    }
    return 0;
}
