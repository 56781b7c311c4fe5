#include "systemcontrol.h"

#include "config/latin1literal.h"
#include "names.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

constexpr quint32 base = 0xE000E000;

// When the processor has a field.
enum class Needs { Nothing, OsExtension, Debug };

enum class Reset { Known, Unknown };

// A field; those of a register stand together, and registers by address.
struct FieldRow {
    quint32 offset;
    QLatin1String entry; // name of the register
    QLatin1String name;
    int high;
    int low;
    RegisterAccess access;
    WriteEffect writes;
    ReadEffect reads;
    Reset resets;
    quint32 reset;
    Needs needs;
    QLatin1String text;
};

struct RegisterRow {
    QLatin1String name;
    QLatin1String text;
};

struct ValueRow {
    QLatin1String entry;
    QLatin1String field;
    QLatin1String name;
    quint32 value;
    QLatin1String text;
};

constexpr auto ReadWrite = RegisterAccess::ReadWrite;
constexpr auto Read = RegisterAccess::Read;
constexpr auto Write = RegisterAccess::Write;
constexpr auto Store = WriteEffect::Store;
constexpr auto OneToSet = WriteEffect::OneToSet;
constexpr auto OneToClear = WriteEffect::OneToClear;
constexpr auto None = ReadEffect::None;
constexpr auto Clear = ReadEffect::Clear;

constexpr RegisterRow registerRows[] = {
    {"ACTLR"_l1, "Auxiliary control: where the instruction memory stands."_l1},
    {"SYST_CSR"_l1, "System timer: control and state."_l1},
    {"SYST_RVR"_l1, "System timer: period."_l1},
    {"SYST_CVR"_l1, "System timer: count."_l1},
    {"SYST_CALIB"_l1, "System timer: calibration."_l1},
    {"NVIC_ISER"_l1, "Enables interrupts."_l1},
    {"NVIC_ICER"_l1, "Disables interrupts."_l1},
    {"NVIC_ISPR"_l1, "Makes interrupts pending."_l1},
    {"NVIC_ICPR"_l1, "Takes back pending interrupts."_l1},
    {"CPUID"_l1, "Identity of the processor."_l1},
    {"ICSR"_l1, "State of the exceptions."_l1},
    {"AIRCR"_l1, "Reset; a write counts only with the key."_l1},
    {"CCR"_l1, "Fixed properties of the processor."_l1},
    {"SHPR2"_l1, "Priority of the supervisor call."_l1},
    {"SHPR3"_l1, "Priorities of PendSV and of the system timer."_l1},
};

constexpr FieldRow fieldRows[] = {
    {0x008, "ACTLR"_l1, "ITCMLAEN"_l1, 3, 3, ReadWrite, Store, None, Reset::Unknown, 0,
     Needs::Nothing, "the ITCM answers at 0x00000000"_l1},
    {0x008, "ACTLR"_l1, "ITCMUAEN"_l1, 4, 4, ReadWrite, Store, None, Reset::Unknown, 0,
     Needs::Nothing, "the ITCM answers at 0x10000000"_l1},
    {0x010, "SYST_CSR"_l1, "ENABLE"_l1, 0, 0, ReadWrite, Store, None, Reset::Known, 0,
     Needs::OsExtension, "counts"_l1},
    {0x010, "SYST_CSR"_l1, "TICKINT"_l1, 1, 1, ReadWrite, Store, None, Reset::Known, 0,
     Needs::OsExtension, "exception when the count reaches 0"_l1},
    {0x010, "SYST_CSR"_l1, "CLKSOURCE"_l1, 2, 2, ReadWrite, Store, None, Reset::Unknown, 0,
     Needs::OsExtension, "1: counts the processor's clock; stays 1 without another clock"_l1},
    {0x010, "SYST_CSR"_l1, "COUNTFLAG"_l1, 16, 16, Read, Store, Clear, Reset::Known, 0,
     Needs::OsExtension, "the count has reached 0 since the last read"_l1},
    {0x014, "SYST_RVR"_l1, "RELOAD"_l1, 23, 0, ReadWrite, Store, None, Reset::Unknown, 0,
     Needs::OsExtension, "value that follows 0; the period is RELOAD + 1 clock cycles"_l1},
    {0x018, "SYST_CVR"_l1, "CURRENT"_l1, 23, 0, RegisterAccess::Separate, Store, None,
     Reset::Unknown, 0, Needs::OsExtension,
     "read: the count; any write makes it 0 and clears COUNTFLAG"_l1},
    {0x01C, "SYST_CALIB"_l1, "TENMS"_l1, 23, 0, Read, Store, None, Reset::Unknown, 0,
     Needs::OsExtension, "period of 10 ms; 0: not known"_l1},
    {0x01C, "SYST_CALIB"_l1, "SKEW"_l1, 30, 30, Read, Store, None, Reset::Unknown, 0,
     Needs::OsExtension, "TENMS is not exact"_l1},
    {0x01C, "SYST_CALIB"_l1, "NOREF"_l1, 31, 31, Read, Store, None, Reset::Unknown, 0,
     Needs::OsExtension, "there is no clock beside the processor's"_l1},
    {0x100, "NVIC_ISER"_l1, "SETENA"_l1, 31, 0, ReadWrite, OneToSet, None, Reset::Known, 0,
     Needs::Nothing, "read: enabled interrupts; ones enable"_l1},
    {0x180, "NVIC_ICER"_l1, "CLRENA"_l1, 31, 0, ReadWrite, OneToClear, None, Reset::Known, 0,
     Needs::Nothing, "read: enabled interrupts; ones disable"_l1},
    {0x200, "NVIC_ISPR"_l1, "SETPEND"_l1, 31, 0, ReadWrite, OneToSet, None, Reset::Unknown, 0,
     Needs::Nothing, "read: pending interrupts; ones make pending"_l1},
    {0x280, "NVIC_ICPR"_l1, "CLRPEND"_l1, 31, 0, ReadWrite, OneToClear, None, Reset::Unknown, 0,
     Needs::Nothing, "read: pending interrupts; ones take back"_l1},
    {0xD00, "CPUID"_l1, "REVISION"_l1, 3, 0, Read, Store, None, Reset::Unknown, 0, Needs::Nothing,
     "minor revision of the processor"_l1},
    {0xD00, "CPUID"_l1, "PARTNO"_l1, 15, 4, Read, Store, None, Reset::Known, 0xC21, Needs::Nothing,
     "number of the processor"_l1},
    {0xD00, "CPUID"_l1, "ARCHITECTURE"_l1, 19, 16, Read, Store, None, Reset::Known, 0xC,
     Needs::Nothing, "12: ARMv6-M"_l1},
    {0xD00, "CPUID"_l1, "VARIANT"_l1, 23, 20, Read, Store, None, Reset::Unknown, 0, Needs::Nothing,
     "major revision of the processor"_l1},
    {0xD00, "CPUID"_l1, "IMPLEMENTER"_l1, 31, 24, Read, Store, None, Reset::Known, 0x41,
     Needs::Nothing, "who designed the processor"_l1},
    {0xD04, "ICSR"_l1, "VECTACTIVE"_l1, 8, 0, Read, Store, None, Reset::Known, 0, Needs::Nothing,
     "number of the running exception; 0: none"_l1},
    {0xD04, "ICSR"_l1, "VECTPENDING"_l1, 20, 12, Read, Store, None, Reset::Unknown, 0,
     Needs::Nothing, "number of the pending exception that is first; 0: none"_l1},
    {0xD04, "ICSR"_l1, "ISRPENDING"_l1, 22, 22, Read, Store, None, Reset::Unknown, 0, Needs::Debug,
     "an interrupt is pending"_l1},
    {0xD04, "ICSR"_l1, "ISRPREEMPT"_l1, 23, 23, Read, Store, None, Reset::Unknown, 0, Needs::Debug,
     "a pending exception runs when the debugger lets the processor go on"_l1},
    {0xD04, "ICSR"_l1, "PENDSTCLR"_l1, 25, 25, Write, OneToClear, None, Reset::Known, 0,
     Needs::OsExtension, "1 takes back the system timer's exception"_l1},
    {0xD04, "ICSR"_l1, "PENDSTSET"_l1, 26, 26, ReadWrite, OneToSet, None, Reset::Known, 0,
     Needs::OsExtension, "read: the system timer's exception is pending; 1 makes it pending"_l1},
    {0xD04, "ICSR"_l1, "PENDSVCLR"_l1, 27, 27, Write, OneToClear, None, Reset::Known, 0,
     Needs::OsExtension, "1 takes back PendSV"_l1},
    {0xD04, "ICSR"_l1, "PENDSVSET"_l1, 28, 28, ReadWrite, OneToSet, None, Reset::Known, 0,
     Needs::OsExtension, "read: PendSV is pending; 1 makes it pending"_l1},
    {0xD04, "ICSR"_l1, "NMIPENDSET"_l1, 31, 31, ReadWrite, OneToSet, None, Reset::Unknown, 0,
     Needs::Nothing, "read: the non-maskable interrupt is pending; 1 makes it pending"_l1},
    {0xD0C, "AIRCR"_l1, "VECTCLRACTIVE"_l1, 1, 1, Write, OneToSet, None, Reset::Known, 0,
     Needs::Debug, "1 forgets all exceptions; for a debugger, while the processor is halted"_l1},
    {0xD0C, "AIRCR"_l1, "SYSRESETREQ"_l1, 2, 2, Write, OneToSet, None, Reset::Known, 0,
     Needs::Nothing, "1 requests a reset of the system"_l1},
    {0xD0C, "AIRCR"_l1, "ENDIANNESS"_l1, 15, 15, Read, Store, None, Reset::Known, 0, Needs::Nothing,
     "order of bytes of data"_l1},
    {0xD0C, "AIRCR"_l1, "VECTKEY"_l1, 31, 16, Write, Store, None, Reset::Unknown, 0, Needs::Nothing,
     "key, without which a write does nothing; what is read says nothing"_l1},
    {0xD14, "CCR"_l1, "UNALIGN_TRP"_l1, 3, 3, Read, Store, None, Reset::Known, 1, Needs::Nothing,
     "an access across a word or halfword is a fault"_l1},
    {0xD14, "CCR"_l1, "STKALIGN"_l1, 9, 9, Read, Store, None, Reset::Known, 1, Needs::Nothing,
     "the stack has multiples of eight bytes in exceptions"_l1},
    {0xD1C, "SHPR2"_l1, "PRI_11"_l1, 31, 30, ReadWrite, Store, None, Reset::Known, 0,
     Needs::OsExtension, "of the supervisor call; 0 is the most urgent"_l1},
    {0xD20, "SHPR3"_l1, "PRI_14"_l1, 23, 22, ReadWrite, Store, None, Reset::Known, 0,
     Needs::OsExtension, "of PendSV; 0 is the most urgent"_l1},
    {0xD20, "SHPR3"_l1, "PRI_15"_l1, 31, 30, ReadWrite, Store, None, Reset::Known, 0,
     Needs::OsExtension, "of the system timer; 0 is the most urgent"_l1},
};

constexpr ValueRow valueRows[] = {
    {"SYST_CSR"_l1, "ENABLE"_l1, "OFF"_l1, 0, "stands still"_l1},
    {"SYST_CSR"_l1, "ENABLE"_l1, "ON"_l1, 1, "counts"_l1},
    {"SYST_CSR"_l1, "TICKINT"_l1, "OFF"_l1, 0, "no exception"_l1},
    {"SYST_CSR"_l1, "TICKINT"_l1, "ON"_l1, 1, "exception"_l1},
    {"AIRCR"_l1, "ENDIANNESS"_l1, "LITTLE"_l1, 0, "the lowest byte comes first"_l1},
    {"AIRCR"_l1, "ENDIANNESS"_l1, "BIG"_l1, 1, "the highest byte comes first"_l1},
    {"AIRCR"_l1, "VECTKEY"_l1, "KEY"_l1, 0x05FA, "the write counts"_l1},
};

constexpr quint32 firstPriorityOffset = 0x400;
constexpr int maximumInputs = 32;

int inputsOf(const SystemMap &map)
{
    return qBound(1, map.processor.interruptInputs, maximumInputs);
}

bool isThere(Needs needs, const Processor &processor)
{
    switch (needs) {
    case Needs::Nothing:
        return true;
    case Needs::OsExtension:
        return processor.hasOsExtension;
    case Needs::Debug:
        return processor.hasDebug;
    }
    return true;
}

// What the configuration decides beside the rows.
void adapt(const SystemMap &map, const QString &entry, RegisterField *field)
{
    if (entry.startsWith("NVIC_"_l1))
        field->high = inputsOf(map) - 1;
    if (field->name == "ENDIANNESS"_l1)
        field->reset = map.processor.isBigEndian ? 1 : 0;
    const bool internal = findRegion(map, QStringLiteral("ITCM"));
    if (entry == "ACTLR"_l1 && (internal || findRegion(map, QStringLiteral("EXTFLASH")))) {
        field->hasReset = true;
        field->reset = internal && field->name == "ITCMLAEN"_l1 ? 1 : 0;
    }
}

RegisterField fieldOf(const SystemMap &map, const FieldRow &row)
{
    RegisterField field;
    field.name = row.name;
    field.high = row.high;
    field.low = row.low;
    field.access = row.access;
    field.hasReset = row.resets == Reset::Known;
    field.reset = row.reset;
    field.readEffect = row.reads;
    field.writeEffect = row.writes;
    field.text = row.text;
    for (const ValueRow &value : valueRows) {
        if (value.entry == row.entry && value.field == row.name)
            field.values.append({value.name, value.value, value.text});
    }
    adapt(map, row.entry, &field);
    return field;
}

QVector<Register> priorityRegisters(const SystemMap &map)
{
    QVector<Register> registers;
    const int inputs = inputsOf(map);
    for (int first = 0; first < inputs; first += 4) {
        Register entry;
        entry.name = "NVIC_IPR"_l1 + QString::number(first / 4);
        entry.offset = firstPriorityOffset + quint32(first);
        entry.text = QStringLiteral("Priorities of interrupts.");
        for (int number = first; number < qMin(first + 4, inputs); ++number) {
            RegisterField field;
            field.name = "PRI_N"_l1 + QString::number(number);
            field.high = 8 * (number - first) + 7;
            field.low = field.high - map.processor.priorityBits + 1;
            field.text = "of interrupt "_l1 + QString::number(number) + "; 0 is the most urgent"_l1;
            entry.fields.append(field);
        }
        registers.append(entry);
    }
    return registers;
}

QString freeName(const SystemMap &map)
{
    UniqueNames names(Qt::CaseInsensitive);
    for (const Peripheral &peripheral : map.peripherals) {
        names.reserve(peripheral.name);
        for (const PeripheralInstance &instance : peripheral.instances)
            names.reserve(instance.name);
    }
    for (const Region &region : map.regions)
        names.reserve(region.name);
    return names.give(QStringLiteral("SCS"));
}

} // namespace

Peripheral systemControlSpace(const SystemMap &map)
{
    Peripheral space;
    space.name = freeName(map);
    space.span = systemControlSpaceSize;
    space.text = QStringLiteral("The processor's own registers: interrupts, exceptions and reset. "
                                "They are accessed as words.");
    PeripheralInstance instance;
    instance.name = space.name;
    instance.text = QStringLiteral("system control space");
    instance.base = base;
    space.instances.append(instance);
    for (const RegisterRow &row : registerRows) {
        Register entry;
        entry.name = row.name;
        entry.text = row.text;
        for (const FieldRow &field : fieldRows) {
            if (field.entry != row.name || !isThere(field.needs, map.processor))
                continue;
            entry.offset = field.offset;
            entry.fields.append(fieldOf(map, field));
        }
        if (!entry.fields.isEmpty())
            space.registers.append(entry);
    }
    space.registers += priorityRegisters(map);
    std::sort(space.registers.begin(), space.registers.end(),
              [](const Register &a, const Register &b) { return a.offset < b.offset; });
    return space;
}

QString interruptPurpose(const SystemMap &map, const InterruptLine &line)
{
    for (const Peripheral &peripheral : map.peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            if (instance.name == line.source)
                return instance.text.isEmpty() ? peripheral.text : instance.text;
        }
    }
    if (const Region *region = findRegion(map, line.source))
        return region->text;
    return line.source == line.name ? QStringLiteral("a port of the subsystem")
                                    : "a bit of the port "_l1 + line.source;
}

} // namespace TARVOORIXM1
