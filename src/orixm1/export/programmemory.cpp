#include "programmemory.h"

#include "config/latin1literal.h"

namespace TARVOORIXM1
{

namespace
{

constexpr quint32 vectorAddress = 0; // fixed: the processor has no vector table offset register
constexpr quint32 firstDataAddress = 0x20000000;

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
    for (const Region &region : map.regions) {
        if (!isMemory(region.kind) && region.kind != RegionKind::ReadWindow)
            continue;
        const int index = memory.all.size();
        memory.all.append(linkedMemory(region));
        if (isMemory(region.kind) && region.contains(vectorAddress))
            memory.text = index;
        if (isWritable(region))
            writable.append(index);
        else if (index != memory.text)
            memory.windows.append(index);
    }
    for (const int index : qAsConst(writable)) {
        if (memory.data < 0 && memory.all.at(index).base >= firstDataAddress)
            memory.data = index;
    }
    if (memory.data < 0 && writable.contains(memory.text))
        memory.data = memory.text;
    for (const int index : qAsConst(writable)) {
        if (index != memory.text && index != memory.data)
            memory.further.append(index);
    }
    return memory;
}

} // namespace TARVOORIXM1
