#pragma once

#include "config/optionmap.h"

#include <utils/result.h>

#include <QString>
#include <QStringList>
#include <QVector>

namespace TARVOORIXM1
{

enum class RegisterAccess {
    ReadWrite,       // "R/W": what is written is read back
    Read,            // "R": writing does nothing
    Write,           // "W": reads as 0
    WriteOneToClear, // "R/W1C": reads; writing 1 clears, writing 0 does nothing
    Separate,        // "R, W": reading and writing are two things
};

// The name of an access in the files and in documents.
QString accessName(RegisterAccess access);

// What reading changes, beside what `Register::changes` says of writing.
enum class ReadEffect {
    None,
    Clear,    // the field becomes 0
    Set,      // the field becomes all ones
    Modify,   // the field changes otherwise
    External, // something outside of the field changes
};

// What writing does to a field that can be written.
enum class WriteEffect {
    Store,
    OneToClear, // ones clear bits, here or in another register; zeros do nothing
    OneToSet,   // ones set bits, here or in another register, or start something; zeros do nothing
};

// The names of the effects in the files and in documents; empty for None and for Store.
QString readEffectName(ReadEffect effect);
QString writeEffectName(WriteEffect effect);

// A value of a field, or a word for a register, that has a name of its own.
struct FieldValue {
    QString name; // an identifier, unique where it stands
    quint32 value = 0;
    QString text;
};

struct RegisterField {
    QString name;
    int high = 0;
    int low = 0;
    RegisterAccess access = RegisterAccess::ReadWrite;
    bool hasReset = true; // false: it depends on pins or on the configuration
    quint32 reset = 0;    // of the field alone, not shifted
    quint32 minimum = 0;  // smaller values are stored as this one
    ReadEffect readEffect = ReadEffect::None;
    WriteEffect writeEffect = WriteEffect::Store;
    QVector<FieldValue> values; // by value, those that are read if access is Separate; empty:
                                // every value is a number
    QString text;

    int width() const { return high - low + 1; }
    quint32 mask() const; // within the register
};

struct Register {
    QString name;
    quint32 offset = 0; // bytes
    QString text;
    QStringList changes;       // registers that read differently after a write to this one
    QVector<FieldValue> words; // by value: what means something only when written as a whole word
    QVector<RegisterField> fields; // from bit 0 upwards; bits between them read as 0
};

// A place where a peripheral stands in the subsystem.
struct PeripheralInstance {
    QString name;
    QString text;            // what it is for, a phrase
    quint32 base = 0;        // address
    QString interrupt;       // number of the processor's interrupt, "NMI", or empty
    QString maskedInterrupt; // why a configuration has no such interrupt although the block drives
                             // one: a part of a sentence, and `interrupt` is empty
    bool isPolled = false;   // what it interrupts for can wait: no warning without the interrupt
    QString option;          // what switches it on: see isSwitch()
};

// What software sees of a peripheral of the sample subsystem.
struct Peripheral {
    QString name;
    QString module;   // of the RTL
    QString bus;      // "AHB" or "APB"
    quint32 span = 0; // bytes that the module decodes
    QString text;
    QString parts; // what else a write of a byte or halfword does; may be empty
    QVector<PeripheralInstance> instances;
    QVector<Register> registers; // by offset
};

// Reads the peripherals of a data folder, one file "registers/*.json" each;
// docs/add-a-peripheral.md describes it. They come by the address of their first instance.
// Registers are 32 bits wide. A file that cannot be read or contradicts itself is a failure, a
// sentence that names file and place.
Utils::Result<QVector<Peripheral>> readRegisterMap(const QString &dataPath);

// Those that a configuration has, with the instances and the interrupts that it has.
QVector<Peripheral> enabledPeripherals(const QVector<Peripheral> &peripherals,
                                       const OptionMap &options);

} // namespace TARVOORIXM1
