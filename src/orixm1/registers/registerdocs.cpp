#include "registerdocs.h"

#include "config/latin1literal.h"

namespace TARVOORIXM1
{

namespace
{

QString hex(quint32 value, int digits)
{
    return "0x"_l1 + QString::number(value, 16).toUpper().rightJustified(digits, u'0');
}

QString bitsText(const RegisterField &field)
{
    return field.high == field.low
               ? QString::number(field.high)
               : QString::number(field.high) + u':' + QString::number(field.low);
}

QString resetText(const RegisterField &field)
{
    if (!field.hasReset)
        return QStringLiteral("varies");
    return field.reset < 10 ? QString::number(field.reset) : hex(field.reset, 0);
}

QString interruptText(const PeripheralInstance &instance)
{
    if (!instance.maskedInterrupt.isEmpty())
        return "none: "_l1 + instance.maskedInterrupt;
    return instance.interrupt.isEmpty() ? QStringLiteral("none") : instance.interrupt;
}

QString fieldText(const RegisterField &field)
{
    if (field.minimum == 0)
        return field.text;
    return field.text + " (at least "_l1 + QString::number(field.minimum) + u')';
}

// What else is to be said of a field, a row each.
QStringList remarks(const RegisterField &field)
{
    QStringList lines;
    switch (field.readEffect) {
    case ReadEffect::None:
        break;
    case ReadEffect::Clear:
        lines.append(QStringLiteral("reading clears it"));
        break;
    case ReadEffect::Set:
        lines.append(QStringLiteral("reading sets it"));
        break;
    case ReadEffect::Modify:
        lines.append(QStringLiteral("reading changes it"));
        break;
    case ReadEffect::External:
        lines.append(QStringLiteral("reading changes something else"));
        break;
    }
    // The access says it of the others.
    if (field.writeEffect != WriteEffect::Store && field.access != RegisterAccess::WriteOneToClear)
        lines.append(QStringLiteral("writing 0 does nothing"));
    return lines;
}

QString valuesText(const QVector<FieldValue> &values)
{
    QString text;
    for (const FieldValue &value : values) {
        const QString number =
            value.value < 10 ? QString::number(value.value) : hex(value.value, 0);
        text +=
            "| | | | | | | "_l1 + number + " = "_l1 + value.name + ": "_l1 + value.text + " |\n"_l1;
    }
    return text;
}

} // namespace

QString hexAddress(quint32 address)
{
    return hex(address, 8);
}

quint32 resetValue(const Register &entry)
{
    quint32 value = 0;
    for (const RegisterField &field : entry.fields)
        value |= field.reset << field.low;
    return value;
}

QVector<OtherInterrupt> otherInterrupts(const QVector<InterruptSource> &sources,
                                        const OptionMap *options)
{
    QVector<OtherInterrupt> others;
    const QVector<InterruptSource> present =
        options ? enabledInterrupts(sources, *options) : sources;
    for (const InterruptSource &source : present)
        others.append({source, options ? maskedInterrupt(source, *options) : QString()});
    return others;
}

QString registersMarkdown(const QVector<Peripheral> &peripherals,
                          const QVector<OtherInterrupt> &others)
{
    QString text = QStringLiteral(
        "# Registers\n\n"
        "Registers are 32 bits wide. Bits and offsets that are not listed read as 0, and writing "
        "them does nothing. A byte or a halfword can be read and written too: a write changes "
        "the bytes that it reaches and no other, and what it does not reach counts as written "
        "with 0 where writing 1 sets, clears or starts something. Access: R/W reads what was "
        "written; R ignores writes; W reads as 0; "
        "R/W1C reads, and writing 1 "
        "clears the bit; \"R, W\" means one thing when read and another when written.\n\n"
        "| instance | address | bus | interrupt | described under | for |\n"
        "|---|---|---|---|---|---|\n");
    for (const Peripheral &peripheral : peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances)
            text += "| "_l1 + instance.name + " | "_l1 + hexAddress(instance.base) + " | "_l1 +
                    peripheral.bus + " | "_l1 + interruptText(instance) + " | "_l1 +
                    peripheral.name + " | "_l1 + instance.text + " |\n"_l1;
    }
    if (!others.isEmpty())
        text += "\nInterrupts of blocks that are not described here:\n\n"
                "| block | interrupt | switched on by |\n|---|---|---|\n"_l1;
    for (const OtherInterrupt &other : others) {
        const int first = other.source.number;
        const int last = first + other.source.count - 1;
        QString numbers = QString::number(first);
        if (last != first)
            numbers += " to "_l1 + QString::number(last);
        if (!other.masked.isEmpty())
            numbers = "none: "_l1 + other.masked;
        text += "| "_l1 + other.source.name + " | "_l1 + numbers + " | "_l1 + other.source.option +
                " |\n"_l1;
    }
    for (const Peripheral &peripheral : peripherals) {
        text += "\n## "_l1 + peripheral.name + "\n\n"_l1 + peripheral.text + "\n\n"_l1;
        if (!peripheral.parts.isEmpty())
            text += "Writes of a part: "_l1 + peripheral.parts + "\n\n"_l1;
        text += "| offset | register | bits | field | access | reset | meaning |\n"
                "|---|---|---|---|---|---|---|\n"_l1;
        for (const Register &entry : peripheral.registers) {
            text += "| "_l1 + hex(entry.offset, 2) + " | **"_l1 + entry.name + "** | | | | "_l1 +
                    hexAddress(resetValue(entry)) + " | "_l1 + entry.text + " |\n"_l1;
            text += valuesText(entry.words);
            for (const RegisterField &field : entry.fields) {
                text += "| | | "_l1 + bitsText(field) + " | "_l1 + field.name + " | "_l1 +
                        accessName(field.access) + " | "_l1 + resetText(field) + " | "_l1 +
                        fieldText(field) + " |\n"_l1;
                for (const QString &remark : remarks(field))
                    text += "| | | | | | | "_l1 + remark + " |\n"_l1;
                text += valuesText(field.values);
            }
        }
    }
    return text;
}

QString registersHeader(const QVector<Peripheral> &peripherals,
                        const QVector<OtherInterrupt> &others)
{
    QString text = QStringLiteral(
        "/* Registers of Tarvo_ORIX_M1. Offsets are in bytes from an instance's base address. */\n"
        "#ifndef TARVO_ORIX_M1_REGISTERS_H\n"
        "#define TARVO_ORIX_M1_REGISTERS_H\n");
    const auto define = [&text](const QString &name, const QString &value) {
        text += "#define "_l1 + name.leftJustified(32) + u' ' + value + u'\n';
    };
    const auto leaveOut = [&text](const QString &name, const QString &reason) {
        text += "/* "_l1 + name + " is left out: "_l1 + reason + ". */\n"_l1;
    };
    for (const Peripheral &peripheral : peripherals) {
        text += "\n/* "_l1 + peripheral.text + " */\n"_l1;
        for (const PeripheralInstance &instance : peripheral.instances) {
            define(instance.name + "_BASE"_l1, hexAddress(instance.base) + u'u');
            bool isNumber = false;
            instance.interrupt.toInt(&isNumber);
            if (isNumber)
                define(instance.name + "_IRQ"_l1, instance.interrupt);
            if (!instance.maskedInterrupt.isEmpty())
                leaveOut(instance.name + "_IRQ"_l1, instance.maskedInterrupt);
        }
        for (const Register &entry : peripheral.registers) {
            const QString prefix = peripheral.name + u'_' + entry.name;
            define(prefix + "_OFFSET"_l1, hex(entry.offset, 2) + u'u');
            for (const RegisterField &field : entry.fields) {
                define(prefix + u'_' + field.name + "_Pos"_l1, QString::number(field.low) + u'u');
                define(prefix + u'_' + field.name + "_Msk"_l1, hexAddress(field.mask()) + u'u');
            }
        }
    }
    if (!others.isEmpty())
        text += "\n/* Interrupts of blocks that are not described here. */\n"_l1;
    for (const OtherInterrupt &other : others) {
        for (int i = 0; i < other.source.count; ++i) {
            const QString index = other.source.count == 1 ? QString() : QString::number(i);
            const QString name = other.source.name + index + "_IRQ"_l1;
            if (other.masked.isEmpty())
                define(name, QString::number(other.source.number + i));
            else
                leaveOut(name, other.masked);
        }
    }
    return text + "\n#endif\n"_l1;
}

} // namespace TARVOORIXM1
