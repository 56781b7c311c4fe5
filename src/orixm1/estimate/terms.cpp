#include "terms.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "generate/defines.h"
#include "rules/corepins.h"
#include "rules/devicerules.h"
#include "rules/dialogdefaults.h"

#include <algorithm>
#include <iterator>

namespace TARVOORIXM1
{

namespace
{

constexpr QLatin1String coreLabel = "Cortex-M1"_l1;
constexpr QLatin1String ahbLabel = "AHB Bus"_l1;
constexpr QLatin1String apbLabel = "AHB2APB"_l1;

// Peripherals for which an access to the middle of a word is another one than to its beginning. All
// others leave the lowest bits of the address out.
constexpr QLatin1String byteAddressed[] = {Key::enableUart0, Key::enableUart1,  Key::enableI2c,
                                           Key::enableSpi,   Key::enableSdCard, Key::enableTrng};

// What the terms follow from, read once.
struct Facts {
    CoreSwitches core;
    int itcm = 0; // size codes; 0: none
    int dtcm = 0;
    bool isInitialized = false;
    int interrupts = 0;
    int ahbSlaves = 0; // everything that the interconnect selects, bridges and memories included
    int apbPorts = 0;
    int apbPeripherals = 0; // on the internal bus, without SYS

    bool hasGpio = false;
    bool isByteAddressRead = false; // by a peripheral on the internal APB bus
    bool hasUart1 = false;

    bool hasSys() const { return apbPeripherals > 0; }
    // GPIO answers at once, so that a bus with nothing else has no limit of wait states.
    bool canWait() const { return ahbSlaves > int(hasGpio); }
};

// Table cells of four inputs for one bit of a multiplexer that ANDs and ORs `ways` inputs.
int muxCells(int ways)
{
    return ways == 0 ? 0 : (2 * ways - 1 + 2) / 3;
}

int ones(int value)
{
    int count = 0;
    for (unsigned rest = unsigned(value); rest != 0; rest &= rest - 1)
        ++count;
    return count;
}

enum class Costs { All, Tables, Others };

// A term that belongs to the subsystem as a whole, in the order of the table.
struct FixedTerm {
    QLatin1String name;
    QLatin1String block;
    double (*count)(const Facts &);
    Costs costs = Costs::All;
};

constexpr FixedTerm fixedTerms[] = {
    {"core"_l1, coreLabel, [](const Facts &) { return 1.0; }},
    {"debug port"_l1, coreLabel, [](const Facts &f) { return f.core.debug ? 1.0 : 0.0; }},
    {"debug connector"_l1, coreLabel,
     [](const Facts &f) { return f.core.debug && f.core.jtag ? 1.0 : 0.0; }},
    {"debug connector as a cause of resets"_l1, coreLabel,
     [](const Facts &f) { return f.core.debug && f.core.jtag && f.hasSys() ? 1.0 : 0.0; }},
    {"external interrupts"_l1, coreLabel,
     [](const Facts &f) {
         return f.core.externalInterrupts && allowsExternalInterrupts(f.interrupts) ? 1.0 : 0.0;
     }},
    {"external instruction memory"_l1, coreLabel,
     [](const Facts &f) { return f.core.externalInstructionMemory ? 1.0 : 0.0; }},
    {"external data memory"_l1, coreLabel,
     [](const Facts &f) { return f.core.externalDataMemory ? 1.0 : 0.0; }},
    {"AHB"_l1, ahbLabel, [](const Facts &f) { return f.ahbSlaves > 0 ? 1.0 : 0.0; }},
    {"AHB that can wait"_l1, ahbLabel, [](const Facts &f) { return f.canWait() ? 1.0 : 0.0; }},
    {"AHB multiplexer"_l1, ahbLabel, [](const Facts &f) { return double(muxCells(f.ahbSlaves)); },
     Costs::Tables},
    {"APB"_l1, apbLabel, [](const Facts &f) { return f.hasSys() ? 1.0 : 0.0; }},
    {"APB, address of bytes"_l1, apbLabel,
     [](const Facts &f) { return f.isByteAddressRead ? 1.0 : 0.0; }},
    {"APB, errors of the ports"_l1, apbLabel,
     [](const Facts &f) { return f.hasSys() && f.apbPorts > 0 ? 1.0 : 0.0; }, Costs::Others},
    // Interrupt 1 does not arrive, and what counts the time up to it is left out.
    {"UART1 without its interrupt"_l1, "UART1"_l1,
     [](const Facts &f) { return f.hasUart1 && f.interrupts <= 1 ? 1.0 : 0.0; }},
    {"APB multiplexer"_l1, apbLabel,
     [](const Facts &f) { return f.hasSys() ? double(muxCells(f.apbPeripherals + 1)) : 0.0; },
     Costs::Tables},
    {"pairs of APB peripherals"_l1, apbLabel,
     [](const Facts &f) { return f.apbPeripherals * (f.apbPeripherals - 1) / 2.0; }, Costs::Tables},
    {"readable configuration"_l1, apbLabel,
     [](const Facts &f) {
         return f.hasSys() ? double(ones(f.itcm) + ones(f.dtcm) + ones(f.interrupts & 63)) : 0.0;
     },
     Costs::Tables},
    {"readable ports"_l1, apbLabel,
     [](const Facts &f) { return f.hasSys() ? double(f.apbPorts) : 0.0; }, Costs::Tables},
};

constexpr int largestSizeCode = 10;

// A memory by what its cells follow from: the debugger's port, initial contents, size.
int memoryTerm(bool debug, bool initialized, int sizeCode)
{
    return (2 * int(debug) + int(initialized)) * largestSizeCode + sizeCode - 1;
}

QString labelOf(const Block &block, int index)
{
    const bool hasBox = index < int(std::size(block.boxes)) && block.boxes[index].label.size() > 0;
    return hasBox ? block.boxes[index].label : block.boxes[0].label;
}

struct Names {
    QStringList all;
    int firstMemory = 0;
    int firstBlock = 0;
};

constexpr char multiplexerSuffix[] = ", multiplexer";
// Of a bus that is led out: its ports, and where it is a bus of its own, its bridge and the
// multiplexer of the ports' answers.
constexpr const char *portTerms[] = {", ports", "", multiplexerSuffix};

int portTermCount(const Block &block)
{
    return block.bus == Bus::Apb ? int(std::size(portTerms)) : 1;
}

const Names &names()
{
    static const Names list = [] {
        Names result;
        for (const FixedTerm &term : fixedTerms)
            result.all << term.name;
        result.firstMemory = result.all.size();
        for (int kind = 0; kind < 4; ++kind) {
            for (int code = 1; code <= largestSizeCode; ++code) {
                QString name = "memory of "_l1 + QString::number(1 << (code - 1)) + " KB"_l1;
                if (kind & 2)
                    name += " with debug"_l1;
                if (kind & 1)
                    name += " with contents"_l1;
                result.all << name;
            }
        }
        result.firstBlock = result.all.size();
        for (const Block &block : generatedBlocks()) {
            if (block.hasPorts()) {
                for (int i = 0; i < portTermCount(block); ++i)
                    result.all << labelOf(block, 0) + QLatin1String(portTerms[i]);
                continue;
            }
            for (int i = 0; i < block.switches.size(); ++i)
                result.all << (block.switches[i].isInterface ? labelOf(block, 0) + " pins"_l1
                                                             : labelOf(block, i));
        }
        return result;
    }();
    return list;
}

int sizeCode(const OptionMap &options, QLatin1String key, const QString &device)
{
    return QString(tcmSizeCode(generatedValue(options, key, device).toInt())).toInt(nullptr, 2);
}

Facts factsFor(const OptionMap &options, const QString &device)
{
    Facts facts;
    facts.core = coreSwitches(options);
    if (isOn(options, Key::internalInstructionMemory)) {
        facts.itcm = sizeCode(options, Key::itcmSize, device);
        facts.isInitialized = isOn(options, Key::initializeItcm);
    }
    if (isOn(options, Key::internalDataMemory))
        facts.dtcm = sizeCode(options, Key::dtcmSize, device);
    facts.interrupts = numberOf(options, Key::numberOfInterrupts);
    facts.hasGpio = isOn(options, Key::enableGpio);
    facts.hasUart1 = isOn(options, Key::enableUart1);
    facts.isByteAddressRead =
        std::any_of(std::begin(byteAddressed), std::end(byteAddressed),
                    [&options](QLatin1String key) { return isOn(options, key); });
    facts.ahbSlaves =
        int(facts.core.externalInstructionMemory) + int(facts.core.externalDataMemory);
    return facts;
}

} // namespace

const QStringList &termNames()
{
    return names().all;
}

bool costsTables(int term)
{
    return term >= int(std::size(fixedTerms)) || fixedTerms[term].costs != Costs::Others;
}

bool costsOthers(int term)
{
    return term < int(std::size(fixedTerms))
               ? fixedTerms[term].costs != Costs::Tables
               : !termNames().at(term).endsWith(QLatin1String(multiplexerSuffix));
}

QVector<TermUse> termsOf(const OptionMap &options, const DEV::DeviceArg &device)
{
    Facts facts = factsFor(options, device.device());
    QVector<TermUse> ofBlocks;
    int term = names().firstBlock;
    for (const Block &block : generatedBlocks()) {
        int on = 0;
        const int first = term;
        for (int i = 0; i < block.switches.size(); ++i) {
            const SwitchRow &row = block.switches[i];
            const bool counts = isOn(options, row.key()) && (!row.isInterface || on > 0);
            if (counts && !row.isInterface)
                ++on;
            if (counts && !block.hasPorts())
                ofBlocks.append({first + i, labelOf(block, row.isInterface ? 0 : i), 1.0});
        }
        term += block.hasPorts() ? portTermCount(block) : block.switches.size();
        if (block.isApbPeripheral())
            facts.apbPeripherals += on;
        else if (block.bus == Bus::Apb)
            facts.ahbSlaves += on > 0 ? 1 : 0;
        else
            facts.ahbSlaves += on;
        if (!block.hasPorts() || on == 0)
            continue;
        if (block.bus == Bus::Apb)
            facts.apbPorts = on;
        const double shares[] = {double(on), 1.0, double(muxCells(on))};
        for (int i = 0; i < portTermCount(block); ++i)
            ofBlocks.append({first + i, labelOf(block, 0), shares[i]});
    }
    if (facts.hasSys())
        ++facts.ahbSlaves;

    QVector<TermUse> uses;
    for (int i = 0; i < int(std::size(fixedTerms)); ++i) {
        const double count = fixedTerms[i].count(facts);
        if (count > 0)
            uses.append({i, fixedTerms[i].block, count});
    }
    const auto appendMemory = [&](int code, bool initialized, QLatin1String label) {
        if (code > 0)
            uses.append({names().firstMemory + memoryTerm(facts.core.debug, initialized, code),
                         label, 1.0});
    };
    appendMemory(facts.itcm, facts.isInitialized, "ITCM"_l1);
    appendMemory(facts.dtcm, false, "DTCM"_l1);
    return uses + ofBlocks;
}

} // namespace TARVOORIXM1
