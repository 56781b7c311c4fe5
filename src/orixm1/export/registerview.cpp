#include "registerview.h"

#include "config/latin1literal.h"
#include "registers/registerdocs.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

bool hasNmi(const SystemMap &map, const PeripheralInstance &instance)
{
    return std::any_of(
        map.interrupts.begin(), map.interrupts.end(), [&instance](const InterruptLine &line) {
            return line.number == InterruptLine::nonMaskable && line.source == instance.name;
        });
}

} // namespace

bool isRead(const RegisterField &field)
{
    return field.access != RegisterAccess::Write;
}

bool isWritten(const Register &entry, const RegisterField &field)
{
    return field.access != RegisterAccess::Read &&
           (field.access != RegisterAccess::Separate || entry.words.isEmpty());
}

QLatin1String accessText(bool read, bool write)
{
    if (!write)
        return "read-only"_l1;
    return read ? "read-write"_l1 : "write-only"_l1;
}

QLatin1String accessText(const Register &entry)
{
    return accessText(
        std::any_of(entry.fields.begin(), entry.fields.end(), isRead),
        std::any_of(entry.fields.begin(), entry.fields.end(), [](const RegisterField &field) {
            return field.access != RegisterAccess::Read;
        }));
}

QLatin1String writeEffectText(const RegisterField &field)
{
    if (field.access == RegisterAccess::WriteOneToClear)
        return "oneToClear"_l1;
    switch (field.writeEffect) {
    case WriteEffect::Store:
        return {};
    case WriteEffect::OneToClear:
        return "oneToClear"_l1;
    case WriteEffect::OneToSet:
        return "oneToSet"_l1;
    }
    return {};
}

bool readsDifferently(const RegisterField &field)
{
    return field.access == RegisterAccess::WriteOneToClear ||
           field.access == RegisterAccess::Separate ||
           (field.access == RegisterAccess::ReadWrite && field.writeEffect != WriteEffect::Store);
}

WrittenValues writtenValues(const RegisterField &field)
{
    const bool isFlag = writeEffectText(field).size() > 0 ||
                        (field.access == RegisterAccess::Separate && !field.values.isEmpty());
    const bool isNamed = field.minimum == 0 && !field.values.isEmpty();
    if ((isFlag && isNamed) || (field.width() == 1 && !isNamed && field.minimum == 0))
        return WrittenValues::Any;
    return isNamed ? WrittenValues::Named : WrittenValues::Range;
}

quint32 largestValue(const RegisterField &field)
{
    return field.mask() >> field.low;
}

QLatin1String valuesUsage(const RegisterField &field, bool isWritten)
{
    if (!isRead(field))
        return "write"_l1;
    return readsDifferently(field) || !isWritten ? "read"_l1 : QLatin1String();
}

QString registerText(const Register &entry)
{
    QString text = entry.text;
    for (const FieldValue &word : entry.words)
        text += " The word "_l1 + hexAddress(word.value) + " ("_l1 + word.name + "): "_l1 +
                word.text + u'.';
    return text;
}

QString instanceText(const SystemMap &map, const Peripheral &peripheral,
                     const PeripheralInstance &instance)
{
    QString text = peripheral.text;
    if (!instance.text.isEmpty())
        text = instance.name + ", "_l1 + instance.text + ". "_l1 + peripheral.text;
    if (!peripheral.parts.isEmpty())
        text += " Bytes and halfwords: "_l1 + peripheral.parts;
    if (hasNmi(map, instance))
        text += " Its interrupt is the non-maskable one, which has no number."_l1;
    return text;
}

} // namespace TARVOORIXM1
