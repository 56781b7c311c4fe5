#include "svd.h"

#include "config/latin1literal.h"
#include "names.h"
#include "registers/registerdocs.h"
#include "registerview.h"
#include "systemcontrol.h"

#include <QXmlStreamWriter>

namespace TARVOORIXM1
{

namespace
{

// How a value reads in XML.
QLatin1String yesOrNo(bool value)
{
    return value ? "true"_l1 : "false"_l1;
}

// Empty where reading changes nothing.
QLatin1String readEffectText(ReadEffect effect)
{
    switch (effect) {
    case ReadEffect::None:
        return {};
    case ReadEffect::Clear:
        return "clear"_l1;
    case ReadEffect::Set:
        return "set"_l1;
    case ReadEffect::Modify:
        return "modify"_l1;
    case ReadEffect::External:
        return "modifyExternal"_l1;
    }
    return {};
}

// The effect that reading has on each field that can be read; None if they differ.
ReadEffect commonReadEffect(const Register &entry)
{
    ReadEffect common = ReadEffect::None;
    bool isFirst = true;
    for (const RegisterField &field : entry.fields) {
        if (!isRead(field))
            continue;
        if (!isFirst && field.readEffect != common)
            return ReadEffect::None;
        common = field.readEffect;
        isFirst = false;
    }
    return common;
}

quint32 resetMask(const Register &entry)
{
    quint32 mask = 0xFFFFFFFF;
    for (const RegisterField &field : entry.fields) {
        if (!field.hasReset)
            mask &= ~field.mask();
    }
    return mask;
}

// "CAN at 0x41000000 to 0x41FFFFFF (black box: CAN controller)"
QString placeText(const Region &region)
{
    const QString kind = regionKindName(region.kind);
    QString what = region.text;
    if (!what.contains(kind))
        what = kind + ": "_l1 + region.text;
    return region.name + " at "_l1 + hexAddress(region.base) + " to "_l1 + hexAddress(region.last) +
           " ("_l1 + what + u')';
}

class Writer
{
public:
    explicit Writer(const SystemMap &map)
        : m_map(map)
        , m_peripherals(map.peripherals)
        , m_xml(&m_bytes)
    {
        m_peripherals.append(systemControlSpace(map));
        m_xml.setAutoFormatting(true);
        m_xml.setAutoFormattingIndent(2);
    }

    QByteArray write()
    {
        nameInstances();
        nameInterrupts();
        m_xml.writeStartDocument();
        m_xml.writeStartElement("device"_l1);
        m_xml.writeAttribute("schemaVersion"_l1, "1.3"_l1);
        element("vendor"_l1, QStringLiteral("Tarvo"));
        element("name"_l1, systemName(m_map));
        element("version"_l1, QStringLiteral("1.0"));
        element("description"_l1, description());
        writeProcessor();
        if (!m_map.prefix.isEmpty())
            element("headerDefinitionsPrefix"_l1, m_map.prefix);
        element("addressUnitBits"_l1, QStringLiteral("8"));
        element("width"_l1, QStringLiteral("32"));
        element("size"_l1, QStringLiteral("32"));
        element("access"_l1, "read-write"_l1);
        element("resetValue"_l1, hexAddress(0));
        element("resetMask"_l1, hexAddress(0xFFFFFFFF));
        m_xml.writeStartElement("peripherals"_l1);
        for (int i = 0; i < m_peripherals.size(); ++i)
            writePeripheral(i);
        m_xml.writeEndDocument();
        return m_bytes;
    }

private:
    void element(QLatin1String name, const QString &text) { m_xml.writeTextElement(name, text); }
    void number(QLatin1String name, quint32 value) { element(name, QString::number(value)); }
    // A description may not be empty.
    void describe(const QString &text)
    {
        const QString line = plainLine(text);
        if (!line.isEmpty())
            element("description"_l1, line);
    }
    // Says what the thing is called elsewhere if its name here is another.
    void nameAndDescription(const QString &name, const QString &original, const QString &text)
    {
        element("name"_l1, name);
        describe(name == original ? text : QString(original + ": "_l1 + text));
    }

    QString description() const
    {
        QString text = "Subsystem with a Cortex-M1 processor"_l1;
        const QString device = plainLine(m_map.device.device());
        if (!device.isEmpty())
            text += " on "_l1 + device;
        text += u'.';
        QStringList places;
        for (const Region &region : m_map.regions) {
            if (region.kind != RegionKind::Registers)
                places.append(placeText(region));
        }
        if (!places.isEmpty())
            text += " No registers are described here of "_l1 + places.join(", "_l1) + u'.';
        text += " Interrupts of what has no registers here belong to the system control space."_l1;
        return plainLine(text);
    }

    void writeProcessor()
    {
        const Processor &processor = m_map.processor;
        m_xml.writeStartElement("cpu"_l1);
        element("name"_l1, "CM1"_l1);
        element("revision"_l1, "r1p0"_l1);
        element("endian"_l1, processor.isBigEndian ? "big"_l1 : "little"_l1);
        element("mpuPresent"_l1, yesOrNo(false));
        element("fpuPresent"_l1, yesOrNo(false));
        element("vtorPresent"_l1, yesOrNo(false));
        element("nvicPrioBits"_l1, QString::number(processor.priorityBits));
        element("vendorSystickConfig"_l1, yesOrNo(false));
        element("deviceNumInterrupts"_l1, QString::number(processor.interruptInputs));
        m_xml.writeEndElement();
    }

    void nameInstances()
    {
        QStringList wanted;
        for (const Peripheral &peripheral : qAsConst(m_peripherals)) {
            for (const PeripheralInstance &instance : peripheral.instances)
                wanted.append(instance.name);
        }
        m_instanceNames = UniqueNames(Qt::CaseInsensitive).giveAll(wanted);
    }

    // Each interrupt that arrives belongs to the first instance that requests it, or to the system
    // control space.
    void nameInterrupts()
    {
        QStringList wanted;
        for (const InterruptLine &line : m_map.interrupts) {
            if (line.number >= 0 && line.lost.isEmpty()) {
                m_interrupts.append(line);
                wanted.append(line.name);
            }
        }
        m_interruptNames = UniqueNames(Qt::CaseInsensitive).giveAll(wanted);
        QStringList instances;
        for (const Peripheral &peripheral : qAsConst(m_peripherals)) {
            for (const PeripheralInstance &instance : peripheral.instances)
                instances.append(instance.name);
        }
        for (const InterruptLine &line : qAsConst(m_interrupts)) {
            const int owner = instances.indexOf(line.source);
            m_owners.append(owner < 0 ? instances.size() - 1 : owner);
        }
    }

    bool hasInterrupts(int instance) const { return m_owners.contains(instance); }

    void writePeripheral(int index)
    {
        const Peripheral &peripheral = m_peripherals.at(index);
        const int first = m_nextInstance;
        for (const PeripheralInstance &instance : peripheral.instances) {
            const int place = m_nextInstance++;
            // Who derives and has no interrupts would have those of the first.
            const bool isDerived =
                place != first && (hasInterrupts(place) || !hasInterrupts(first));
            const QString &name = m_instanceNames.at(place);
            m_xml.writeStartElement("peripheral"_l1);
            if (isDerived)
                m_xml.writeAttribute("derivedFrom"_l1, m_instanceNames.at(first));
            nameAndDescription(name, instance.name, instanceText(m_map, peripheral, instance));
            if (!isDerived && peripheral.name.compare(name, Qt::CaseInsensitive) != 0)
                element("groupName"_l1, peripheral.name);
            element("baseAddress"_l1, hexAddress(instance.base));
            if (!isDerived)
                writeAddressBlock(peripheral);
            writeInterrupts(place);
            if (!isDerived)
                writeRegisters(peripheral);
            m_xml.writeEndElement();
        }
    }

    void writeAddressBlock(const Peripheral &peripheral)
    {
        m_xml.writeStartElement("addressBlock"_l1);
        element("offset"_l1, QStringLiteral("0x0"));
        element("size"_l1, hexAddress(peripheral.span));
        element("usage"_l1, "registers"_l1);
        m_xml.writeEndElement();
    }

    void writeInterrupts(int instance)
    {
        for (int i = 0; i < m_interrupts.size(); ++i) {
            if (m_owners.at(i) != instance)
                continue;
            const InterruptLine &line = m_interrupts.at(i);
            m_xml.writeStartElement("interrupt"_l1);
            nameAndDescription(m_interruptNames.at(i), line.name, interruptPurpose(m_map, line));
            number("value"_l1, quint32(line.number));
            m_xml.writeEndElement();
        }
    }

    void writeRegisters(const Peripheral &peripheral)
    {
        if (peripheral.registers.isEmpty())
            return;
        QStringList names;
        for (const Register &entry : peripheral.registers)
            names.append(entry.name);
        names = UniqueNames(Qt::CaseInsensitive).giveAll(names);
        m_xml.writeStartElement("registers"_l1);
        for (int i = 0; i < names.size(); ++i)
            writeRegister(names.at(i), peripheral.registers.at(i));
        m_xml.writeEndElement();
    }

    void writeRegister(const QString &name, const Register &entry)
    {
        m_xml.writeStartElement("register"_l1);
        nameAndDescription(name, entry.name, registerText(entry));
        element("addressOffset"_l1, hexAddress(entry.offset));
        number("size"_l1, 32);
        element("access"_l1, accessText(entry));
        element("resetValue"_l1, hexAddress(resetValue(entry)));
        element("resetMask"_l1, hexAddress(resetMask(entry)));
        const QLatin1String effect = readEffectText(commonReadEffect(entry));
        if (effect.size() > 0)
            element("readAction"_l1, effect);
        QStringList names;
        for (const RegisterField &field : entry.fields)
            names.append(field.name);
        names = UniqueNames(Qt::CaseInsensitive).giveAll(names);
        if (!names.isEmpty())
            m_xml.writeStartElement("fields"_l1);
        for (int i = 0; i < names.size(); ++i)
            writeField(names.at(i), entry, entry.fields.at(i));
        if (!names.isEmpty())
            m_xml.writeEndElement();
        m_xml.writeEndElement();
    }

    void writeField(const QString &name, const Register &entry, const RegisterField &field)
    {
        const bool written = isWritten(entry, field);
        m_xml.writeStartElement("field"_l1);
        nameAndDescription(name, field.name, field.text);
        element("bitRange"_l1,
                u'[' + QString::number(field.high) + u':' + QString::number(field.low) + u']');
        element("access"_l1, accessText(isRead(field), written));
        const QLatin1String writes = writeEffectText(field);
        if (written && writes.size() > 0)
            element("modifiedWriteValues"_l1, writes);
        if (written)
            writeConstraint(field);
        const QLatin1String reads = readEffectText(field.readEffect);
        if (isRead(field) && reads.size() > 0)
            element("readAction"_l1, reads);
        writeValues(field, written);
        m_xml.writeEndElement();
    }

    // Without one, any value could be written or none.
    void writeConstraint(const RegisterField &field)
    {
        const WrittenValues values = writtenValues(field);
        if (values == WrittenValues::Any)
            return;
        m_xml.writeStartElement("writeConstraint"_l1);
        if (values == WrittenValues::Named) {
            element("useEnumeratedValues"_l1, yesOrNo(true));
        } else {
            m_xml.writeStartElement("range"_l1);
            number("minimum"_l1, field.minimum);
            number("maximum"_l1, largestValue(field));
            m_xml.writeEndElement();
        }
        m_xml.writeEndElement();
    }

    void writeValues(const RegisterField &field, bool written)
    {
        const bool differs = readsDifferently(field);
        if (!field.values.isEmpty())
            writeValueList(valuesUsage(field, written), field.values);
        // What the file says of such a flag is what it reads as.
        if (written && field.width() == 1 && differs && writeEffectText(field) == "oneToClear"_l1)
            writeValueList("write"_l1, {{QStringLiteral("CLEAR"), 1,
                                         QStringLiteral("clears it; 0 leaves it as it is")}});
        else if (written && field.width() == 1 && differs &&
                 writeEffectText(field) == "oneToSet"_l1)
            writeValueList("write"_l1, {{QStringLiteral("SET"), 1,
                                         QStringLiteral("sets it; 0 leaves it as it is")}});
    }

    void writeValueList(QLatin1String usage, const QVector<FieldValue> &values)
    {
        QStringList names;
        for (const FieldValue &value : values)
            names.append(value.name);
        names = UniqueNames(Qt::CaseInsensitive).giveAll(names);
        m_xml.writeStartElement("enumeratedValues"_l1);
        if (usage.size() > 0)
            element("usage"_l1, usage);
        for (int i = 0; i < names.size(); ++i) {
            m_xml.writeStartElement("enumeratedValue"_l1);
            nameAndDescription(names.at(i), values.at(i).name, values.at(i).text);
            number("value"_l1, values.at(i).value);
            m_xml.writeEndElement();
        }
        m_xml.writeEndElement();
    }

    const SystemMap &m_map;
    QVector<Peripheral> m_peripherals;
    QStringList m_instanceNames; // of all peripherals, in their order
    int m_nextInstance = 0;
    QVector<InterruptLine> m_interrupts; // those that arrive
    QStringList m_interruptNames;
    QVector<int> m_owners; // index into m_instanceNames for each
    QByteArray m_bytes;
    QXmlStreamWriter m_xml;
};

} // namespace

QVector<ExportedFile> svdFiles(const SystemMap &map)
{
    return {{fileName(map, ".svd"_l1), Writer(map).write()}};
}

} // namespace TARVOORIXM1
