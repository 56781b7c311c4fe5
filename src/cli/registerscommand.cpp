#include "commands.h"

#include "environment.h"
#include "ipcdocument.h"
#include "output.h"

#include <registers/registerdocs.h>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

QJsonObject fieldObject(const RegisterField &field)
{
    return {
        {QStringLiteral("name"), field.name},
        {QStringLiteral("high"), field.high},
        {QStringLiteral("low"), field.low},
        {QStringLiteral("access"), accessName(field.access)},
        {QStringLiteral("reset"), field.hasReset ? QJsonValue(double(field.reset)) : QJsonValue()},
        {QStringLiteral("description"), field.text}};
}

QJsonObject peripheralObject(const Peripheral &peripheral)
{
    QJsonArray instances;
    for (const PeripheralInstance &instance : peripheral.instances)
        instances.append(QJsonObject{{QStringLiteral("name"), instance.name},
                                     {QStringLiteral("base"), double(instance.base)},
                                     {QStringLiteral("interrupt"), instance.interrupt}});
    QJsonArray registers;
    for (const Register &entry : peripheral.registers) {
        QJsonArray fields;
        for (const RegisterField &field : entry.fields)
            fields.append(fieldObject(field));
        registers.append(QJsonObject{{QStringLiteral("name"), entry.name},
                                     {QStringLiteral("offset"), double(entry.offset)},
                                     {QStringLiteral("description"), entry.text},
                                     {QStringLiteral("fields"), fields}});
    }
    return {{QStringLiteral("name"), peripheral.name},
            {QStringLiteral("bus"), peripheral.bus},
            {QStringLiteral("description"), peripheral.text},
            {QStringLiteral("partialWrites"), peripheral.parts},
            {QStringLiteral("instances"), instances},
            {QStringLiteral("registers"), registers}};
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

} // namespace

int runRegisters(Environment &environment, const QString &file, RegistersForm form)
{
    QString error;
    QVector<Peripheral> peripherals;
    if (environment.ipInfo().isEmpty())
        return BadInput;
    if (!readRegisterMap(environment.dataFolder(), &peripherals, &error)) {
        printError(error);
        return BadInput;
    }
    if (!file.isEmpty()) {
        IpcDocument document;
        if (!openDocument(environment, file, &document))
            return BadInput;
        peripherals = enabledPeripherals(peripherals, document.options);
    }
    switch (form) {
    case RegistersForm::Json: {
        QJsonArray list;
        for (const Peripheral &peripheral : qAsConst(peripherals))
            list.append(peripheralObject(peripheral));
        printJson({{QStringLiteral("peripherals"), list}});
        break;
    }
    case RegistersForm::Markdown:
        printLine(registersMarkdown(peripherals).chopped(1));
        break;
    case RegistersForm::CHeader:
        printLine(registersHeader(peripherals).chopped(1));
        break;
    case RegistersForm::Table:
        printTable(peripherals);
        break;
    }
    return Done;
}

} // namespace Cli
