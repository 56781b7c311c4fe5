#pragma once

#include "testsupport.h"

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <system/systemmap.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

// Configurations and a data folder at which the files that software is written with are tried.
namespace SoftwareView
{

struct Case {
    const char *name;
    TARVOORIXM1::OptionMap options;
    bool hasOwnData = false; // the folder of ownDataFolder()
};

inline TARVOORIXM1::OptionMap everything()
{
    TARVOORIXM1::OptionMap options;
    for (const TARVOORIXM1::Option &option : TARVOORIXM1::optionTable()) {
        if (option.isOption && option.type == TARVOORIXM1::OptionType::Bool)
            options.insert(option.key, true);
    }
    return options;
}

// Everything on, but for one value.
inline TARVOORIXM1::OptionMap everythingBut(QLatin1String key, const QVariant &value)
{
    TARVOORIXM1::OptionMap options = everything();
    options.insert(key, value);
    return options;
}

inline QVector<Case> cases()
{
    using namespace TARVOORIXM1;
    const auto on = [](std::initializer_list<QLatin1String> keys, bool value = true) {
        OptionMap options;
        for (const QLatin1String key : keys)
            options.insert(key, value);
        return options;
    };
    OptionMap external = on({Key::internalInstructionMemory, Key::internalDataMemory}, false);
    const OptionMap absent = external;
    external.insert(Key::externalInstructionMemory, true);
    external.insert(Key::externalDataMemory, true);
    return {
        {"nothing said, no peripheral at all", {}},
        {"everything on", everything()},
        {"one interrupt", everythingBut(Key::numberOfInterrupts, 1)},
        {"eight interrupts", everythingBut(Key::numberOfInterrupts, 8)},
        {"sixteen interrupts", everythingBut(Key::numberOfInterrupts, 16)},
        {"little-endian", everythingBut(Key::bigEndian, false)},
        {"without the OS extension", everythingBut(Key::osExtension, false)},
        {"without debug", everythingBut(Key::enableDebug, false)},
        {"memories outside", external},
        {"no memory", absent},
        {"two equal peripherals",
         on({QLatin1String("Enable UART0"), QLatin1String("Enable UART1")})},
        {"only the second of two", on({QLatin1String("Enable UART1")})},
        {"black boxes only",
         on({QLatin1String("Enable CAN"), QLatin1String("Enable Ethernet"),
             QLatin1String("Enable TRNG"), QLatin1String("External Interrupts")})},
        {"names that programs know", everything(), true},
    };
}

inline void addCases()
{
    QTest::addColumn<int>("index");
    const QVector<Case> all = cases();
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(all.at(i).name) << i;
}

// The standard headers that C99 and C++11 both have.
inline QByteArray standardHeaders()
{
    QByteArray text;
    for (const char *name :
         {"assert", "ctype",  "errno",  "fenv",   "float",  "inttypes", "iso646", "limits",
          "locale", "math",   "setjmp", "signal", "stdarg", "stdbool",  "stddef", "stdint",
          "stdio",  "stdlib", "string", "time",   "wchar",  "wctype"})
        text += QByteArray("#include <") + name + ".h>\n";
    return text;
}

// The output of a program; what it said on the other channel and its status in `error`.
inline QByteArray outputOf(const QStringList &command, const QByteArray &input, QString *error)
{
    QProcess process;
    process.start(command.first(), command.mid(1));
    if (!process.waitForStarted(-1)) {
        *error = command.first() + QLatin1String(" cannot be started");
        return {};
    }
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished(-1);
    *error = QString::fromLocal8Bit(process.readAllStandardError());
    if (process.exitCode() != 0 && error->isEmpty())
        *error = QLatin1String("exit status ") + QString::number(process.exitCode());
    return process.readAllStandardOutput();
}

// The macros with names of letters that the compiler has after the standard headers.
inline QStringList macrosOf(const QStringList &compiler, QString *error)
{
    const QByteArray text = outputOf(
        compiler + QStringList{QStringLiteral("-dM"), QStringLiteral("-E"), QStringLiteral("-")},
        standardHeaders() + "#include <complex.h>\n", error);
    static const QRegularExpression rule(QStringLiteral("^#define ([A-Za-z]\\w*)"),
                                         QRegularExpression::MultilineOption);
    QStringList names;
    auto matches = rule.globalMatch(QString::fromLatin1(text));
    while (matches.hasNext())
        names.append(matches.next().captured(1));
    names.removeDuplicates();
    names.sort();
    return names;
}

// Keywords, macros of the compilers at hand, and what the header itself defines: each as it is, in
// lower and in upper case.
inline QStringList knownNames(QString *error)
{
    QStringList names =
        QStringLiteral(
            "auto break case char const continue default do double else enum extern float for goto "
            "if inline int long register restrict return short signed sizeof static struct switch "
            "typedef union unsigned void volatile while alignas alignof and and_eq asm bitand "
            "bitor bool catch char16_t char32_t class compl const_cast constexpr decltype delete "
            "dynamic_cast explicit export false friend mutable namespace new noexcept not not_eq "
            "nullptr operator or or_eq private protected public reinterpret_cast static_assert "
            "static_cast template this thread_local throw true try typeid typename using virtual "
            "wchar_t xor xor_eq exit printf memcpy time signal div remove main uint32_t size_t "
            "IRQn_Type SysTick_IRQn UART0 UART0_BASE UART0_SIZE UART0_IRQ UART0_IRQn UART_Type "
            "UART_DATA_OFFSET SCS SCS_Type SCS_BASE NVIC_ISER ICSR NVIC_EnableIRQ NVIC SysTick "
            "ITCM ITCM_BASE ITCM_SIZE TARVO_ORIX_M1_H TARVO_ORIX_M1_RW TARVO_ORIX_M1_ASSERT "
            "RESERVED0 RESERVED1 int_ int_2 INT_2 Self self crate match type loop a A a_ A_ a_2")
            .split(u' ');
    names += macrosOf({QStringLiteral("gcc"), QStringLiteral("-std=c99")}, error);
    names += macrosOf({QStringLiteral("arm-none-eabi-gcc"), QStringLiteral("-std=c99")}, error);
    QStringList all;
    for (const QString &name : qAsConst(names))
        all << name << name.toLower() << name.toUpper();
    all.removeDuplicates();
    return all;
}

// A data folder whose instances, registers, fields and values have those names, with texts that try
// to end a comment or an element. Empty if it could not be made.
inline QString ownDataFolder(const QTemporaryDir &folder, QString *error)
{
    const QString evil =
        QStringLiteral("a /* b \\ ?\?/ c <d> & \"e\" ]]> é \u202E \u2028 end of the text\\");
    const QStringList names = knownNames(error);
    const auto hex = [](int value) {
        return QString(QLatin1String("0x") + QString::number(value, 16));
    };
    const QJsonArray flag{QJsonObject{{QStringLiteral("name"), QStringLiteral("ON")},
                                      {QStringLiteral("value"), QStringLiteral("1")},
                                      {QStringLiteral("text"), evil}}};
    QJsonArray registers;
    QJsonArray instances;
    QJsonArray fields;
    QJsonArray fieldRegisters;
    for (int i = 0; i < names.size(); ++i) {
        registers.append(
            QJsonObject{{QStringLiteral("name"), names.at(i)},
                        {QStringLiteral("offset"), hex(8 * i)}, // with gaps
                        {QStringLiteral("text"), evil},
                        {QStringLiteral("fields"),
                         QJsonArray{QJsonObject{{QStringLiteral("name"), names.at(i)},
                                                {QStringLiteral("bits"), QStringLiteral("0")},
                                                {QStringLiteral("access"), QStringLiteral("R/W")},
                                                {QStringLiteral("reset"), QStringLiteral("0")},
                                                {QStringLiteral("values"), flag},
                                                {QStringLiteral("text"), evil}}}}});
        instances.append(QJsonObject{{QStringLiteral("name"), names.at(i)},
                                     {QStringLiteral("text"), evil},
                                     {QStringLiteral("base"), hex(0x40000000 + 0x1000 * i)},
                                     {QStringLiteral("interrupt"), QString::number(i % 32)},
                                     {QStringLiteral("option"), QStringLiteral("Enable GPIO")}});
    }
    const auto file = [&](const char *name, const QString &peripheral, const QJsonArray &places,
                          const QJsonArray &entries) {
        const QJsonObject object{{QStringLiteral("peripheral"), peripheral},
                                 {QStringLiteral("module"), QStringLiteral("ahb_own")},
                                 {QStringLiteral("bus"), QStringLiteral("AHB")},
                                 {QStringLiteral("span"), hex(0x10000)},
                                 {QStringLiteral("text"), evil},
                                 {QStringLiteral("instances"), places},
                                 {QStringLiteral("registers"), entries}};
        return TestSupport::write(
            folder.filePath(QLatin1String("registers/") + QLatin1String(name)),
            QJsonDocument(object).toJson());
    };
    const QJsonArray single{registers.first()};
    const QJsonArray place{QJsonObject{{QStringLiteral("name"), QStringLiteral("ONLY")},
                                       {QStringLiteral("text"), QStringLiteral("one more")},
                                       {QStringLiteral("base"), QStringLiteral("0x10000000")},
                                       {QStringLiteral("interrupt"), QStringLiteral("NMI")},
                                       {QStringLiteral("option"), QStringLiteral("Enable GPIO")}}};
    const bool written = file("many.json", QStringLiteral("int"), instances, single) &&
                         file("uart.json", QStringLiteral("UART"), place, registers);
    return written ? folder.path() : QString();
}

// The map of a configuration; the reason in `error` if it cannot be had.
inline TARVOORIXM1::SystemMap mapOf(const Case &one, const QString &dataPath, QString *error)
{
    using namespace TARVOORIXM1;
    const auto description = readSystemDescription(dataPath);
    if (!description) {
        *error = description.reason();
        return {};
    }
    return systemMap(one.options, DEV::DeviceDb::bundled().devices().value(0), *description);
}

} // namespace SoftwareView
