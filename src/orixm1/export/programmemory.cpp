#include "programmemory.h"

#include "config/latin1literal.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

constexpr quint32 vectorAddress = 0; // fixed: the processor has no vector table offset register
constexpr quint32 firstDataAddress = 0x20000000;
constexpr quint32 upperAlias = 0x10000000; // of the instruction memory

// Of the eight parts of the address space, the architecture executes from code, SRAM and the two of
// external RAM.
bool isExecutable(quint32 address)
{
    switch (address >> 29) {
    case 0:
    case 1:
    case 3:
    case 4:
        return true;
    default:
        return false;
    }
}

// An external memory for instructions may be one that cannot be written.
bool isWritable(const Region &region)
{
    return isMemory(region.kind) &&
           !(region.kind == RegionKind::ExternalMemory && region.contains(vectorAddress));
}

// The memory for data has no path for instructions if it is tightly coupled.
bool isDataOnly(const Region &region)
{
    return region.kind == RegionKind::TightlyCoupledMemory && region.base >= firstDataAddress;
}

bool isInstructionMemory(const Region &region)
{
    return region.kind == RegionKind::TightlyCoupledMemory && region.base < firstDataAddress;
}

// The regions that a linker may use, each where it stands after reset.
QVector<Region> linkedRegions(const SystemMap &map)
{
    QVector<Region> regions;
    for (Region region : map.regions) {
        if (!isMemory(region.kind) && region.kind != RegionKind::ReadWindow)
            continue;
        if (isInstructionMemory(region)) {
            const quint32 length = region.last - region.base;
            if (map.processor.itcmAtLowerAlias) {
                if (map.processor.itcmAtUpperAlias)
                    region.text += ", also at 0x10000000"_l1;
            } else if (map.processor.itcmAtUpperAlias) {
                region.base = upperAlias;
                region.last = upperAlias + length;
            } else {
                continue;
            }
        }
        regions.append(region);
    }
    return regions;
}

LinkedMemory linkedMemory(const Region &region)
{
    LinkedMemory memory;
    memory.name = region.name;
    memory.attributes = QStringLiteral("r");
    if (isWritable(region))
        memory.attributes += u'w';
    if (isExecutable(region.base) && !isDataOnly(region))
        memory.attributes += u'x';
    memory.base = region.base;
    memory.size = region.size();
    if (isMemory(region.kind) && region.kind != RegionKind::TightlyCoupledMemory)
        memory.sizeSymbol = region.name + "_SIZE"_l1;
    memory.text = region.text;
    return memory;
}

} // namespace

QString ProgramMemory::obstacle() const
{
    if (text < 0)
        return QStringLiteral("This configuration has no instruction memory: nothing answers at "
                              "address 0, where the processor starts.");
    if (data < 0)
        return QStringLiteral("This configuration has no memory for data: a program has no place "
                              "for its stack.");
    return {};
}

ProgramMemory programMemory(const SystemMap &map)
{
    ProgramMemory memory;
    QVector<int> writable;
    const QVector<Region> regions = linkedRegions(map);
    for (const Region &region : regions) {
        const int index = memory.all.size();
        memory.all.append(linkedMemory(region));
        if (isMemory(region.kind) && region.contains(vectorAddress))
            memory.text = index;
        if (isWritable(region))
            writable.append(index);
        else if (index != memory.text)
            memory.windows.append(index);
    }
    // The first from the data's addresses upwards, then another than the text's, then any.
    const auto isBetter = [&memory](int a, int b) {
        const auto rank = [&memory](int index) {
            return memory.all.at(index).base >= firstDataAddress ? 0 : index != memory.text ? 1 : 2;
        };
        return rank(a) < rank(b);
    };
    const auto best = std::min_element(writable.cbegin(), writable.cend(), isBetter);
    if (best != writable.cend())
        memory.data = *best;
    for (const int index : qAsConst(writable)) {
        if (index != memory.text && index != memory.data)
            memory.further.append(index);
    }
    return memory;
}

int vectoredInterrupts(const Processor &processor)
{
    constexpr int most = 32; // of the architecture
    return qBound(0, processor.interruptInputs, most);
}

} // namespace TARVOORIXM1
