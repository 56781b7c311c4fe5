#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "ipcdocument.h"
#include "output.h"

#include <registers/registerdocs.h>

#include <CLI/CLI.hpp>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

enum class RegistersForm { Table, Json, Markdown, CHeader };

QJsonArray valuesArray(const QVector<FieldValue> &values)
{
    QJsonArray list;
    for (const FieldValue &value : values)
        list.append(QJsonObject{{QStringLiteral("name"), value.name},
                                {QStringLiteral("value"), double(value.value)},
                                {QStringLiteral("description"), value.text}});
    return list;
}

// What a field has by exception is there by exception.
QJsonObject fieldObject(const RegisterField &field)
{
    QJsonObject object{
        {QStringLiteral("name"), field.name},
        {QStringLiteral("high"), field.high},
        {QStringLiteral("low"), field.low},
        {QStringLiteral("access"), accessName(field.access)},
        {QStringLiteral("reset"), field.hasReset ? QJsonValue(double(field.reset)) : QJsonValue()},
        {QStringLiteral("description"), field.text}};
    if (field.minimum != 0)
        object.insert(QStringLiteral("minimum"), double(field.minimum));
    if (field.readEffect != ReadEffect::None)
        object.insert(QStringLiteral("readEffect"), readEffectName(field.readEffect));
    if (field.writeEffect != WriteEffect::Store)
        object.insert(QStringLiteral("writeEffect"), writeEffectName(field.writeEffect));
    if (!field.values.isEmpty())
        object.insert(QStringLiteral("values"), valuesArray(field.values));
    return object;
}

QJsonObject peripheralObject(const Peripheral &peripheral)
{
    QJsonArray instances;
    for (const PeripheralInstance &instance : peripheral.instances) {
        QJsonObject object{{QStringLiteral("name"), instance.name},
                           {QStringLiteral("description"), instance.text},
                           {QStringLiteral("base"), double(instance.base)},
                           {QStringLiteral("interrupt"), instance.interrupt}};
        if (!instance.maskedInterrupt.isEmpty())
            object.insert(QStringLiteral("maskedInterrupt"), instance.maskedInterrupt);
        instances.append(object);
    }
    QJsonArray registers;
    for (const Register &entry : peripheral.registers) {
        QJsonArray fields;
        for (const RegisterField &field : entry.fields)
            fields.append(fieldObject(field));
        QJsonObject object{{QStringLiteral("name"), entry.name},
                           {QStringLiteral("offset"), double(entry.offset)},
                           {QStringLiteral("description"), entry.text},
                           {QStringLiteral("changes"), QJsonArray::fromStringList(entry.changes)},
                           {QStringLiteral("fields"), fields}};
        if (!entry.words.isEmpty())
            object.insert(QStringLiteral("words"), valuesArray(entry.words));
        registers.append(object);
    }
    return {{QStringLiteral("name"), peripheral.name},
            {QStringLiteral("bus"), peripheral.bus},
            {QStringLiteral("span"), double(peripheral.span)},
            {QStringLiteral("description"), peripheral.text},
            {QStringLiteral("partialWrites"), peripheral.parts},
            {QStringLiteral("instances"), instances},
            {QStringLiteral("registers"), registers}};
}

QJsonArray jsonOf(const QVector<OtherInterrupt> &others)
{
    QJsonArray list;
    for (const OtherInterrupt &other : others) {
        QJsonObject object{{QStringLiteral("name"), other.source.name},
                           {QStringLiteral("option"), other.source.option}};
        if (other.masked.isEmpty()) {
            object.insert(QStringLiteral("interrupt"), other.source.number);
            object.insert(QStringLiteral("count"), other.source.count);
        } else {
            object.insert(QStringLiteral("maskedInterrupt"), other.masked);
        }
        list.append(object);
    }
    return list;
}

// The table itself has no interrupts; which of them are missing is told beside it.
void tellMasked(const QVector<Peripheral> &peripherals, const QVector<OtherInterrupt> &others)
{
    const auto tell = [](const QString &name, const QString &masked) {
        if (!masked.isEmpty())
            printError(name + QLatin1String(" never interrupts: ") + masked + u'.');
    };
    for (const Peripheral &peripheral : peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances)
            tell(instance.name, instance.maskedInterrupt);
    }
    for (const OtherInterrupt &other : others)
        tell(other.source.name, other.masked);
}

void printTable(const QVector<Peripheral> &peripherals)
{
    int nameWidth = 8;
    for (const Peripheral &peripheral : peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            for (const Register &entry : peripheral.registers)
                nameWidth = qMax(nameWidth, instance.name.size() + 1 + entry.name.size());
        }
    }
    const auto print = [nameWidth](const QString &address, const QString &name,
                                   const QString &reset, const QString &description) {
        printLine(address.leftJustified(10) + QLatin1String("  ") + name.leftJustified(nameWidth) +
                  QLatin1String("  ") + reset.leftJustified(10) + QLatin1String("  ") +
                  description);
    };
    print(QStringLiteral("ADDRESS"), QStringLiteral("REGISTER"), QStringLiteral("RESET"),
          QStringLiteral("DESCRIPTION"));
    for (const Peripheral &peripheral : peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            for (const Register &entry : peripheral.registers)
                print(hexAddress(instance.base + entry.offset),
                      QString(instance.name + u'.' + entry.name), hexAddress(resetValue(entry)),
                      entry.text);
        }
    }
}

// An empty `file` means all peripherals.
int runRegisters(Environment &environment, const QString &file, RegistersForm form)
{
    if (environment.ipInfo().isEmpty())
        return BadInput;
    const auto read = readRegisterMap(environment.dataFolder());
    if (!read) {
        printProblem({read.reason()});
        return BadInput;
    }
    const auto sources = readOtherInterrupts(environment.dataFolder());
    if (!sources) {
        printProblem({sources.reason()});
        return BadInput;
    }
    QVector<Peripheral> peripherals = *read;
    QVector<OtherInterrupt> others = otherInterrupts(*sources, nullptr);
    if (!file.isEmpty()) {
        IpcDocument document;
        if (!openDocument(environment, file, &document))
            return BadInput;
        peripherals = enabledPeripherals(peripherals, document.options);
        others = otherInterrupts(*sources, &document.options);
    }
    switch (form) {
    case RegistersForm::Json: {
        QJsonArray list;
        for (const Peripheral &peripheral : qAsConst(peripherals))
            list.append(peripheralObject(peripheral));
        printJson({{QStringLiteral("peripherals"), list},
                   {QStringLiteral("otherInterrupts"), jsonOf(others)}});
        break;
    }
    case RegistersForm::Markdown:
        printLine(registersMarkdown(peripherals, others).chopped(1));
        break;
    case RegistersForm::CHeader:
        printLine(registersHeader(peripherals, others).chopped(1));
        break;
    case RegistersForm::Table:
        printTable(peripherals);
        tellMasked(peripherals, others);
        break;
    }
    return Done;
}

} // namespace

void declareRegisters(CommandLine &line)
{
    struct Arguments {
        QString file;
        bool json = false;
        bool markdown = false;
        bool cHeader = false;
    };
    auto arguments = std::make_shared<Arguments>();
    CLI::App *command = line.command(
        "registers", "List the registers of the sample subsystem's peripherals",
        "orixm1 registers tarvo_orix_m1.ipc --markdown", [arguments](Environment &environment) {
            return runRegisters(environment, arguments->file,
                                arguments->json       ? RegistersForm::Json
                                : arguments->markdown ? RegistersForm::Markdown
                                : arguments->cHeader  ? RegistersForm::CHeader
                                                      : RegistersForm::Table);
        });
    line.path(command, "FILE", arguments->file, "Only what this configuration (.ipc) switches on",
              "");
    CLI::Option_group *form = command->add_option_group("Form");
    CommandLine::json(form, arguments->json);
    form->add_flag("--markdown", arguments->markdown, "Print a document with all fields");
    form->add_flag("--c-header", arguments->cHeader, "Print a C header for firmware");
    form->require_option(0, 1);
}

} // namespace Cli
