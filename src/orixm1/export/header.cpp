#include "header.h"

#include "config/latin1literal.h"
#include "names.h"
#include "prefixed.h"
#include "registers/registerdocs.h"
#include "systemcontrol.h"

namespace TARVOORIXM1
{

namespace
{

constexpr int lineWidth = 100;
constexpr int nameWidth = 40;

// What every header defines, whatever the configuration; a blank between them.
constexpr QLatin1String fixedNames[] = {
    "TARVO_ORIX_M1_H TARVO_ORIX_M1_NO_CORE TARVO_ORIX_M1_INTERRUPTS TARVO_ORIX_M1_BIG_ENDIAN "
    "TARVO_ORIX_M1_OS_EXTENSION TARVO_ORIX_M1_SMALL_MULTIPLIER TARVO_ORIX_M1_DEBUG "
    "TARVO_ORIX_M1_DEBUG_JTAG TARVO_ORIX_M1_DEBUG_SERIAL_WIRE TARVO_ORIX_M1_DEBUG_SMALL "
    "TARVO_ORIX_M1_R TARVO_ORIX_M1_W TARVO_ORIX_M1_RW TARVO_ORIX_M1_ASSERT TARVO_ORIX_M1_WORD "
    "tarvo_orix_m1_priority IRQn_Type NonMaskableInt_IRQn HardFault_IRQn SVCall_IRQn PendSV_IRQn "
    "SysTick_IRQn NVIC_EnableIRQ NVIC_DisableIRQ NVIC_GetEnableIRQ NVIC_SetPendingIRQ "
    "NVIC_ClearPendingIRQ NVIC_GetPendingIRQ NVIC_SetPriority NVIC_GetPriority NVIC_SystemReset "
    "SysTick_Config"_l1,
    // what a program that takes its core functions from elsewhere has too
    "NVIC_Type NVIC SCB_Type SCB SysTick_Type SysTick "
    "CoreDebug CoreDebug_Type APSR_Type IPSR_Type CONTROL_Type xPSR_Type ITM DWT TPI"_l1,
};

struct FieldNames {
    QString position;
    QString mask;
    QStringList values;
};

struct RegisterNames {
    QString offset;
    QString reset;
    QString resetMask;
    QString member;
    QString check;
    QStringList words;
    QVector<FieldNames> fields;
};

struct InstanceNames {
    QString base;
    QString pointer;
};

struct PeripheralNames {
    QString type;
    QString sizeCheck;
    QVector<InstanceNames> instances;
    QVector<RegisterNames> registers;
};

struct RegionNames {
    QString base;
    QString size;
};

QString hexNumber(quint32 value)
{
    return hexAddress(value) + u'u';
}

QString flag(bool value)
{
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

// As registersHeader() writes it.
QString offsetNumber(quint32 offset)
{
    return "0x"_l1 + QString::number(offset, 16).toUpper().rightJustified(2, u'0') + u'u';
}

// The text in lines of a comment.
QString comment(const QString &text, const QString &indent = {})
{
    const QStringList words = plainLine(text).split(u' ', Qt::SkipEmptyParts);
    QStringList lines;
    for (const QString &word : words) {
        if (!lines.isEmpty() && lines.last().size() + word.size() < lineWidth - 8 - indent.size())
            lines.last() += u' ' + word;
        else
            lines.append(word);
    }
    return indent + "/* "_l1 + lines.join(QString(u'\n' + indent + " * "_l1)) + " */\n"_l1;
}

QString heading(const QString &text)
{
    return u'\n' + comment(text);
}

QString definition(const QString &name, const QString &value, const QString &note = {})
{
    QString line = "#define "_l1 + name.leftJustified(nameWidth) + u' ' + value;
    const QString text = plainLine(note);
    if (!text.isEmpty())
        line += " /* "_l1 + text + " */"_l1;
    return line + u'\n';
}

// The functions for the processor's own registers. What stands between @ is a register's address.
QString coreFunctions(bool hasOsExtension)
{
    QString text = QStringLiteral(R"(
/* What a program needs of the processor beside the registers. Define TARVO_ORIX_M1_NO_CORE before
 * this header if another one brings functions of these names. Numbers from
 * TARVO_ORIX_M1_INTERRUPTS upwards do nothing and read as 0. */
#ifndef TARVO_ORIX_M1_NO_CORE

#define TARVO_ORIX_M1_WORD(address) (*(volatile uint32_t *)(uintptr_t)(address))

/* Instructions of the processor; nothing where the program is compiled for another one. */
#if defined(__GNUC__) && defined(__ARM_ARCH_PROFILE) && (__ARM_ARCH_PROFILE == 'M')
static inline void __enable_irq(void) { __asm__ volatile("cpsie i" : : : "memory"); }
static inline void __disable_irq(void) { __asm__ volatile("cpsid i" : : : "memory"); }
static inline uint32_t __get_PRIMASK(void)
{
    uint32_t value;
    __asm__ volatile("mrs %0, primask" : "=r"(value) : : "memory");
    return value;
}
static inline void __set_PRIMASK(uint32_t value)
{
    __asm__ volatile("msr primask, %0" : : "r"(value) : "memory");
}
static inline void __NOP(void) { __asm__ volatile("nop"); }
static inline void __WFI(void) { __asm__ volatile("wfi" : : : "memory"); }
static inline void __WFE(void) { __asm__ volatile("wfe" : : : "memory"); }
static inline void __SEV(void) { __asm__ volatile("sev" : : : "memory"); }
static inline void __ISB(void) { __asm__ volatile("isb" : : : "memory"); }
static inline void __DSB(void) { __asm__ volatile("dsb" : : : "memory"); }
static inline void __DMB(void) { __asm__ volatile("dmb" : : : "memory"); }
#else
static inline void __enable_irq(void) {}
static inline void __disable_irq(void) {}
static inline uint32_t __get_PRIMASK(void) { return 0u; }
static inline void __set_PRIMASK(uint32_t value) { (void)value; }
static inline void __NOP(void) {}
static inline void __WFI(void) {}
static inline void __WFE(void) {}
static inline void __SEV(void) {}
static inline void __ISB(void) {}
static inline void __DSB(void) {}
static inline void __DMB(void) {}
#endif

static inline void NVIC_EnableIRQ(IRQn_Type irq)
{
    uint32_t number = (uint32_t)irq;
    if (number < TARVO_ORIX_M1_INTERRUPTS)
        @NVIC_ISER@ = 1u << (number & 31u);
}

/* No such interrupt begins once this has returned. */
static inline void NVIC_DisableIRQ(IRQn_Type irq)
{
    uint32_t number = (uint32_t)irq;
    if (number < TARVO_ORIX_M1_INTERRUPTS)
        @NVIC_ICER@ = 1u << (number & 31u);
    __DSB();
    __ISB();
}

static inline uint32_t NVIC_GetEnableIRQ(IRQn_Type irq)
{
    uint32_t number = (uint32_t)irq;
    if (number >= TARVO_ORIX_M1_INTERRUPTS)
        return 0u;
    return (@NVIC_ISER@ >> (number & 31u)) & 1u;
}

static inline void NVIC_SetPendingIRQ(IRQn_Type irq)
{
    uint32_t number = (uint32_t)irq;
    if (number < TARVO_ORIX_M1_INTERRUPTS)
        @NVIC_ISPR@ = 1u << (number & 31u);
}

static inline void NVIC_ClearPendingIRQ(IRQn_Type irq)
{
    uint32_t number = (uint32_t)irq;
    if (number < TARVO_ORIX_M1_INTERRUPTS)
        @NVIC_ICPR@ = 1u << (number & 31u);
}

static inline uint32_t NVIC_GetPendingIRQ(IRQn_Type irq)
{
    uint32_t number = (uint32_t)irq;
    if (number >= TARVO_ORIX_M1_INTERRUPTS)
        return 0u;
    return (@NVIC_ISPR@ >> (number & 31u)) & 1u;
}

/* The word with an interrupt's priority and the place of its two bits; null if it has none. */
static inline volatile uint32_t *tarvo_orix_m1_priority(IRQn_Type irq, uint32_t *shift)
{
    uint32_t number = (uint32_t)irq;
    *shift = ((number & 3u) * 8u) + (8u - __NVIC_PRIO_BITS);
    if (number < TARVO_ORIX_M1_INTERRUPTS)
        return &@NVIC_IPR0@ + (number >> 2);
)");
    if (hasOsExtension)
        text += QStringLiteral(R"(    if (irq == SVCall_IRQn)
        return &@SHPR2@;
    if (irq == PendSV_IRQn || irq == SysTick_IRQn)
        return &@SHPR3@;
)");
    text += QStringLiteral(R"(    return NULL;
}

/* From 0, the most urgent, to 3. Not to be interrupted by another call of itself: it reads the
 * word with four priorities and writes it back. */
static inline void NVIC_SetPriority(IRQn_Type irq, uint32_t priority)
{
    const uint32_t largest = (1u << __NVIC_PRIO_BITS) - 1u;
    uint32_t shift;
    volatile uint32_t *word = tarvo_orix_m1_priority(irq, &shift);
    if (word != NULL)
        *word = (*word & ~(largest << shift)) | ((priority & largest) << shift);
}

static inline uint32_t NVIC_GetPriority(IRQn_Type irq)
{
    uint32_t shift;
    const volatile uint32_t *word = tarvo_orix_m1_priority(irq, &shift);
    return word == NULL ? 0u : (*word >> shift) & ((1u << __NVIC_PRIO_BITS) - 1u);
}

/* Requests a reset of the system and does not return. */
static inline void NVIC_SystemReset(void)
{
    __DSB();
    @AIRCR@ = (0x05FAu << 16) | (1u << 2);
    __DSB();
    for (;;)
        __NOP();
}
)");
    if (hasOsExtension)
        text += QStringLiteral(R"(
/* An exception every so many clock cycles, with the least urgent priority: 1 to 0x1000000. Returns
 * 0, or 1 if the timer cannot count so far. */
static inline uint32_t SysTick_Config(uint32_t ticks)
{
    if (ticks == 0u || ticks > 0x1000000u)
        return 1u;
    @SYST_RVR@ = ticks - 1u;
    NVIC_SetPriority(SysTick_IRQn, (1u << __NVIC_PRIO_BITS) - 1u);
    @SYST_CVR@ = 0u;
    @SYST_CSR@ = 7u;
    return 0u;
}
)");
    return text + "\n#endif\n"_l1;
}

// A macro in lower case would be put in place of whatever other headers call so.
QString pointerName(const QString &instance)
{
    return instance == instance.toLower() ? QString(instance + u'_') : instance;
}

class DeviceHeader
{
public:
    explicit DeviceHeader(const SystemMap &map)
        : m_map(map)
        , m_peripherals(map.peripherals)
        , m_names(Qt::CaseSensitive)
    {
        m_peripherals.append(systemControlSpace(map));
        for (const QLatin1String &list : fixedNames) {
            const QStringList names = QString(list).split(u' ');
            for (const QString &name : names)
                m_names.reserve(name);
        }
        giveNames();
    }

    QString text() const
    {
        QString text = introduction();
        text += processor();
        text += interrupts();
        text += regions();
        text += qualifiers();
        for (int i = 0; i < m_peripherals.size(); ++i)
            text += peripheral(m_peripherals.at(i), m_peripheralNames.at(i));
        text += functions();
        text += QStringLiteral("\n#ifdef __cplusplus\n}\n#endif\n\n#endif\n");
        return text;
    }

private:
    // The names of today's macros first, so that they are the last to change.
    void giveNames()
    {
        for (const Peripheral &peripheral : qAsConst(m_peripherals))
            m_peripheralNames.append(macroNames(peripheral));
        for (const InterruptLine &line : m_map.interrupts)
            m_irqNames.append(arrives(line) ? m_names.give(line.name + "_IRQ"_l1) : QString());
        for (int i = 0; i < m_peripherals.size(); ++i)
            giveTypes(m_peripherals.at(i), &m_peripheralNames[i]);
        for (const InterruptLine &line : m_map.interrupts)
            m_enumerators.append(arrives(line) ? m_names.give(line.name + "_IRQn"_l1) : QString());
        for (const Region &region : m_map.regions)
            m_regionNames.append(
                {isInstance(region) ? QString() : m_names.give(region.name + "_BASE"_l1),
                 m_names.give(region.name + "_SIZE"_l1)});
        for (int i = 0; i < m_peripherals.size(); ++i)
            giveValues(m_peripherals.at(i), &m_peripheralNames[i]);
        // Members last: a macro of the same name would be put in their place.
        for (int i = 0; i < m_peripherals.size(); ++i)
            giveMembers(m_peripherals.at(i), &m_peripheralNames[i]);
    }

    PeripheralNames macroNames(const Peripheral &peripheral)
    {
        PeripheralNames names;
        for (const PeripheralInstance &instance : peripheral.instances)
            names.instances.append({m_names.give(instance.name + "_BASE"_l1), QString()});
        for (const Register &entry : peripheral.registers) {
            const QString prefix = peripheral.name + u'_' + entry.name;
            RegisterNames registerNames;
            registerNames.offset = m_names.give(prefix + "_OFFSET"_l1);
            for (const RegisterField &field : entry.fields)
                registerNames.fields.append({m_names.give(prefix + u'_' + field.name + "_Pos"_l1),
                                             m_names.give(prefix + u'_' + field.name + "_Msk"_l1),
                                             {}});
            names.registers.append(registerNames);
        }
        return names;
    }

    void giveTypes(const Peripheral &peripheral, PeripheralNames *names)
    {
        names->type = m_names.give(peripheral.name + "_Type"_l1);
        for (int i = 0; i < peripheral.instances.size(); ++i)
            names->instances[i].pointer =
                m_names.give(pointerName(peripheral.instances.at(i).name));
    }

    void giveValues(const Peripheral &peripheral, PeripheralNames *names)
    {
        for (int i = 0; i < peripheral.registers.size(); ++i) {
            const Register &entry = peripheral.registers.at(i);
            RegisterNames &registerNames = names->registers[i];
            const QString prefix = peripheral.name + u'_' + entry.name;
            registerNames.reset = m_names.give(prefix + "_RESET"_l1);
            registerNames.resetMask = m_names.give(prefix + "_RESET_MASK"_l1);
            for (const FieldValue &word : entry.words)
                registerNames.words.append(m_names.give(prefix + u'_' + word.name));
            for (int j = 0; j < entry.fields.size(); ++j) {
                const RegisterField &field = entry.fields.at(j);
                for (const FieldValue &value : field.values)
                    registerNames.fields[j].values.append(
                        m_names.give(prefix + u'_' + field.name + u'_' + value.name));
            }
        }
    }

    void giveMembers(const Peripheral &peripheral, PeripheralNames *names)
    {
        QStringList wanted;
        for (const Register &entry : peripheral.registers)
            wanted.append(entry.name);
        const QStringList members = UniqueNames(Qt::CaseSensitive, &m_names).giveAll(wanted);
        names->sizeCheck = m_names.give("tarvo_orix_m1_size_of_"_l1 + names->type);
        for (int i = 0; i < members.size(); ++i) {
            names->registers[i].member = members.at(i);
            names->registers[i].check =
                m_names.give("tarvo_orix_m1_"_l1 + names->type + u'_' + members.at(i));
        }
    }

    static bool arrives(const InterruptLine &line)
    {
        return line.number >= 0 && line.lost.isEmpty();
    }

    bool isInstance(const Region &region) const
    {
        for (const Peripheral &peripheral : m_map.peripherals) {
            for (const PeripheralInstance &instance : peripheral.instances) {
                if (instance.name == region.name)
                    return true;
            }
        }
        return false;
    }

    QString introduction() const
    {
        QString text = "Device header of a subsystem with a Cortex-M1 processor"_l1;
        const QString device = plainLine(m_map.device.device());
        if (!device.isEmpty())
            text += " on "_l1 + device;
        text += ", for C99 and C++11. Registers are 32 bits wide. A name that C, C++ or their "
                "libraries know already, or that would come twice, has an underscore behind it, or "
                "an underscore and a number; so has an instance without a capital letter."_l1;
        return comment(text) + QStringLiteral("#ifndef TARVO_ORIX_M1_H\n"
                                              "#define TARVO_ORIX_M1_H\n"
                                              "\n"
                                              "#include <stddef.h>\n"
                                              "#include <stdint.h>\n"
                                              "\n"
                                              "#ifdef __cplusplus\n"
                                              "extern \"C\" {\n"
                                              "#endif\n");
    }

    QString processor() const
    {
        const Processor &processor = m_map.processor;
        QString text = heading(QStringLiteral("The processor."));
        text += definition(QStringLiteral("__CM1_REV"), QStringLiteral("0x0100u"));
        text += definition(QStringLiteral("__MPU_PRESENT"), flag(false));
        text += definition(QStringLiteral("__FPU_PRESENT"), flag(false));
        text += definition(QStringLiteral("__VTOR_PRESENT"), flag(false));
        text +=
            definition(QStringLiteral("__NVIC_PRIO_BITS"), QString::number(processor.priorityBits));
        text += definition(QStringLiteral("__Vendor_SysTickConfig"), flag(false));
        text +=
            definition(QStringLiteral("TARVO_ORIX_M1_INTERRUPTS"),
                       QString::number(processor.interruptInputs) + u'u', QStringLiteral("inputs"));
        text +=
            definition(QStringLiteral("TARVO_ORIX_M1_OS_EXTENSION"), flag(processor.hasOsExtension),
                       QStringLiteral("system timer, SVCall and PendSV"));
        text += definition(QStringLiteral("TARVO_ORIX_M1_SMALL_MULTIPLIER"),
                           flag(processor.hasSmallMultiplier));
        text += definition(QStringLiteral("TARVO_ORIX_M1_DEBUG"), flag(processor.hasDebug));
        text += definition(QStringLiteral("TARVO_ORIX_M1_DEBUG_JTAG"), flag(processor.hasJtag));
        text += definition(QStringLiteral("TARVO_ORIX_M1_DEBUG_SERIAL_WIRE"),
                           flag(processor.hasSerialWire));
        text +=
            definition(QStringLiteral("TARVO_ORIX_M1_DEBUG_SMALL"), flag(processor.hasSmallDebug));
        text += definition(QStringLiteral("TARVO_ORIX_M1_BIG_ENDIAN"), flag(processor.isBigEndian));
        if (processor.isBigEndian)
            text += comment(QStringLiteral(
                "Data is big-endian (BE8), instructions are little-endian: compile with "
                "-mbig-endian, link with --be8. A register that is accessed as a word has the same "
                "value and the same bits as in a little-endian system, and all that this header "
                "says holds as it stands. A byte or a halfword of a register stands at the other "
                "end of its word: bits 7 to 0 at the offset + 3."));
        return text;
    }

    QString interrupts() const
    {
        const bool hasOs = m_map.processor.hasOsExtension;
        QString text = heading(QStringLiteral("Exceptions and interrupts."));
        text += QStringLiteral("typedef enum {\n");
        const auto row = [](const QString &name, int number, const QString &note) -> QString {
            return "    "_l1 + name + " = "_l1 + QString::number(number) + u',' + " /* "_l1 +
                   plainLine(note) + " */\n"_l1;
        };
        QString nmi = QStringLiteral("nothing requests it but software");
        for (int i = 0; i < m_map.interrupts.size(); ++i) {
            const InterruptLine &line = m_map.interrupts.at(i);
            if (line.number == InterruptLine::nonMaskable)
                nmi = line.name + ": "_l1 + interruptPurpose(m_map, line);
        }
        QStringList rows;
        rows << row(QStringLiteral("NonMaskableInt_IRQn"), -14, nmi)
             << row(QStringLiteral("HardFault_IRQn"), -13, QStringLiteral("every fault"));
        if (hasOs)
            rows << row(QStringLiteral("SVCall_IRQn"), -5, QStringLiteral("supervisor call"))
                 << row(QStringLiteral("PendSV_IRQn"), -2, QStringLiteral("request of software"))
                 << row(QStringLiteral("SysTick_IRQn"), -1, QStringLiteral("system timer"));
        for (int i = 0; i < m_map.interrupts.size(); ++i) {
            const InterruptLine &line = m_map.interrupts.at(i);
            if (arrives(line))
                rows << row(m_enumerators.at(i), line.number, interruptPurpose(m_map, line));
        }
        // The last one has no comma behind it.
        rows.last().replace(rows.last().indexOf(u','), 1, QString());
        text += rows.join(QString()) + "} IRQn_Type;\n\n"_l1;
        for (int i = 0; i < m_map.interrupts.size(); ++i) {
            const InterruptLine &line = m_map.interrupts.at(i);
            if (arrives(line))
                text += definition(m_irqNames.at(i), QString::number(line.number));
            else if (line.number >= 0)
                text += comment(line.name + "_IRQ is left out: "_l1 + line.lost + u'.');
        }
        return text;
    }

    QString regions() const
    {
        QString text = heading(
            QStringLiteral("What answers where: the first address, and the size in bytes. An "
                           "access to any other address gives an error."));
        for (int i = 0; i < m_map.regions.size(); ++i) {
            const Region &region = m_map.regions.at(i);
            const RegionNames &names = m_regionNames.at(i);
            if (!names.base.isEmpty())
                text += definition(names.base, hexNumber(region.base),
                                   regionKindName(region.kind) + ": "_l1 + region.text);
            text += definition(
                names.size,
                "0x"_l1 + QString::number(region.size(), 16).toUpper().rightJustified(8, u'0') +
                    u'u');
        }
        if (findRegion(m_map, QStringLiteral("ITCM")))
            text += comment(QStringLiteral("The ITCM answers at 0x10000000 too while ITCMUAEN of "
                                           "the register ACTLR is 1."));
        return text;
    }

    static QString qualifiers()
    {
        return QStringLiteral(
            "\n"
            "/* Registers that are read, written, or both. In C++ a constant member would have to "
            "be\n"
            " * initialised. */\n"
            "#ifdef __cplusplus\n"
            "#define TARVO_ORIX_M1_R volatile\n"
            "#define TARVO_ORIX_M1_ASSERT(name, condition) static_assert(condition, #name)\n"
            "#else\n"
            "#define TARVO_ORIX_M1_R volatile const\n"
            "#define TARVO_ORIX_M1_ASSERT(name, condition) typedef char name[(condition) ? 1 : "
            "-1]\n"
            "#endif\n"
            "#define TARVO_ORIX_M1_W volatile\n"
            "#define TARVO_ORIX_M1_RW volatile\n");
    }

    static QLatin1String qualifier(const Register &entry)
    {
        bool read = false;
        bool written = false;
        for (const RegisterField &field : entry.fields) {
            read = read || field.access != RegisterAccess::Write;
            written = written || field.access != RegisterAccess::Read;
        }
        if (!written)
            return "TARVO_ORIX_M1_R"_l1;
        return read ? "TARVO_ORIX_M1_RW"_l1 : "TARVO_ORIX_M1_W"_l1;
    }

    QString peripheral(const Peripheral &peripheral, const PeripheralNames &names) const
    {
        QString about = peripheral.name + ": "_l1 + peripheral.text;
        if (!peripheral.parts.isEmpty())
            about += " Bytes and halfwords: "_l1 + peripheral.parts;
        QString text = heading(about);
        for (int i = 0; i < names.instances.size(); ++i)
            text +=
                definition(names.instances.at(i).base, hexNumber(peripheral.instances.at(i).base),
                           peripheral.instances.at(i).text);
        for (int i = 0; i < names.registers.size(); ++i)
            text += u'\n' + macros(peripheral.registers.at(i), names.registers.at(i));
        if (!names.registers.isEmpty())
            text += structure(peripheral, names);
        return text;
    }

    static QString macros(const Register &entry, const RegisterNames &names)
    {
        quint32 known = 0xFFFFFFFF;
        for (const RegisterField &field : entry.fields) {
            if (!field.hasReset)
                known &= ~field.mask();
        }
        QString text = comment(entry.text);
        text += definition(names.offset, offsetNumber(entry.offset));
        text += definition(names.reset, hexNumber(resetValue(entry)));
        if (known != 0xFFFFFFFF)
            text += definition(names.resetMask, hexNumber(known),
                               QStringLiteral("the bits of which the value after reset is known"));
        for (int i = 0; i < names.words.size(); ++i)
            text += definition(names.words.at(i), hexNumber(entry.words.at(i).value),
                               "whole word: "_l1 + entry.words.at(i).text);
        for (int i = 0; i < names.fields.size(); ++i) {
            const RegisterField &field = entry.fields.at(i);
            const FieldNames &fieldNames = names.fields.at(i);
            text += definition(fieldNames.position, QString::number(field.low) + u'u', field.text);
            text += definition(fieldNames.mask, hexNumber(field.mask()));
            for (int j = 0; j < fieldNames.values.size(); ++j)
                text += definition(
                    fieldNames.values.at(j),
                    field.values.at(j).value < 10
                        ? QString(QString::number(field.values.at(j).value) + u'u')
                        : QString("0x"_l1 +
                                  QString::number(field.values.at(j).value, 16).toUpper() + u'u'),
                    field.values.at(j).text);
        }
        return text;
    }

    QString structure(const Peripheral &peripheral, const PeripheralNames &names) const
    {
        UniqueNames members(Qt::CaseSensitive, &m_names);
        for (const RegisterNames &entry : names.registers)
            members.reserve(entry.member);
        QString text = QStringLiteral("\ntypedef struct {\n");
        QString checks;
        quint32 end = 0;
        int gaps = 0;
        for (int i = 0; i < names.registers.size(); ++i) {
            const Register &entry = peripheral.registers.at(i);
            const QString &member = names.registers.at(i).member;
            if (entry.offset > end)
                text += "    uint32_t "_l1 + members.give("RESERVED"_l1 + QString::number(gaps++)) +
                        u'[' + QString::number((entry.offset - end) / 4) + "];\n"_l1;
            text += "    "_l1 + qualifier(entry) + " uint32_t "_l1 + member + "; /* "_l1 +
                    offsetNumber(entry.offset).chopped(1) + " */\n"_l1;
            checks += "TARVO_ORIX_M1_ASSERT("_l1 + names.registers.at(i).check + ",\n"_l1 +
                      "                     offsetof("_l1 + names.type + ", "_l1 + member +
                      ") == "_l1 + names.registers.at(i).offset + ");\n"_l1;
            end = entry.offset + 4;
        }
        text += "} "_l1 + names.type + ";\n\n"_l1 + checks + "TARVO_ORIX_M1_ASSERT("_l1 +
                names.sizeCheck + ", sizeof("_l1 + names.type + ") == "_l1 + offsetNumber(end) +
                ");\n\n"_l1;
        for (const InstanceNames &instance : names.instances)
            text += definition(instance.pointer,
                               "(("_l1 + names.type + " *)(uintptr_t)"_l1 + instance.base + u')');
        return text;
    }

    QString functions() const
    {
        const Peripheral &space = m_peripherals.last();
        const PeripheralNames &names = m_peripheralNames.last();
        QString text = coreFunctions(m_map.processor.hasOsExtension);
        for (int i = 0; i < space.registers.size(); ++i)
            text.replace(u'@' + space.registers.at(i).name + u'@',
                         "TARVO_ORIX_M1_WORD("_l1 + names.instances.first().base + " + "_l1 +
                             names.registers.at(i).offset + u')');
        return text;
    }

    const SystemMap &m_map;
    QVector<Peripheral> m_peripherals;
    UniqueNames m_names;
    QVector<PeripheralNames> m_peripheralNames; // of m_peripherals
    QStringList m_irqNames;                     // of the map's interrupts; empty where none arrives
    QStringList m_enumerators;                  // likewise
    QVector<RegionNames> m_regionNames;         // of the map's regions; base empty at instances
};

} // namespace

QByteArray usualHeader(const SystemMap &map)
{
    return DeviceHeader(map).text().toUtf8();
}

QVector<ExportedFile> headerFiles(const SystemMap &map)
{
    return prefixedC(map, {{QStringLiteral("tarvo_orix_m1.h"), usualHeader(map)}}, {});
}

} // namespace TARVOORIXM1
