#include "languages.h"

#include "verilogoutputs.h"
#include "vhdloutputs.h"

namespace Synthesis
{

const LanguageRow &languageRow(Language language)
{
    static constexpr LanguageRow verilog{"_tmp.v", "primitives.v", verilogTemplate};
    static constexpr LanguageRow vhdl{"_tmp.vhd", "primitives.vhd", vhdlTemplate};
    switch (language) {
    case Language::Verilog:
        return verilog;
    case Language::Vhdl:
        return vhdl;
    }
    Q_UNREACHABLE();
}

} // namespace Synthesis
