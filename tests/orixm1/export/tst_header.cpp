// The device header: compilers take it and a program that uses all of it without a word, and it
// says what the header of the register description says.

#include "cheader.h"
#include "softwareview.h"

#include <export/format.h>
#include <export/header.h>
#include <export/names.h>
#include <registers/registerdocs.h>

using namespace TARVOORIXM1;

class tst_Header : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void compilersAreQuiet_data();
    void compilersAreQuiet();
    void compilersNoticeAWrongOffset_data();
    void compilersNoticeAWrongOffset();
    void keepsTheNamesOfTheRegisterDescription_data() { SoftwareView::addCases(); }
    void keepsTheNamesOfTheRegisterDescription();
    void everyMacroOfTheCompilersIsKnown();
    void namesOfTheProjectStayAsTheyAre();
    void explainsLostInterrupts();
    void namesEveryRegion();
    void timerIsThereWithTheOsExtensionOnly();
    void bigEndianIsExplained();
    void commentsEndWhereTheyShould();
    void coreFunctionsCanBeLeftOut();
    void includesTwice();

private:
    QString headerOf(const SoftwareView::Case &one, SystemMap *map = nullptr)
    {
        QString error;
        const SystemMap made =
            SoftwareView::mapOf(one, one.hasOwnData ? m_ownData : m_data, &error);
        if (!error.isEmpty())
            QTest::qFail(qPrintable(error), __FILE__, __LINE__);
        if (map)
            *map = made;
        return QString::fromUtf8(headerFiles(made).value(0).bytes);
    }
    QString headerOf(const OptionMap &options) { return headerOf({"", options}); }
    // What a compiler says of the header and a program.
    QString complaint(const QStringList &compiler, const QString &header, const QByteArray &program)
    {
        const QTemporaryDir folder;
        TestSupport::write(folder.filePath(QStringLiteral("tarvo_orix_m1.h")), header.toUtf8());
        QString error;
        const QByteArray said = SoftwareView::outputOf(
            compiler +
                QString::fromLatin1("-Wall -Wextra -pedantic -Wconversion -Werror -O1 -c "
                                    "-o /dev/null -I")
                    .split(u' ') +
                QStringList{folder.path(), QStringLiteral("-")},
            program, &error);
        return QString::fromUtf8(said) + error;
    }

    const QString m_data = QStringLiteral(TARVO_IP_DATA_DIR);
    QTemporaryDir m_folder;
    QString m_ownData;
};

namespace
{

struct Compiler {
    const char *name;
    const char *command;
    bool isForAll = true; // false: for a few cases, which the others stand for
};

const Compiler compilers[] = {
    {"gcc", "gcc -x c -std=c99"},
    {"g++", "g++ -x c++ -std=c++11"},
    {"clang", "clang -x c -std=c99"},
    {"clang++", "clang++ -x c++ -std=c++11", false},
    {"arm", "arm-none-eabi-gcc -x c -std=c99 -mcpu=cortex-m1 -mthumb"},
    {"arm, big-endian", "arm-none-eabi-gcc -x c -std=c99 -mcpu=cortex-m1 -mthumb -mbig-endian",
     false},
    {"arm, C++", "arm-none-eabi-gcc -x c++ -std=c++11 -fno-exceptions -mcpu=cortex-m1 -mthumb",
     false},
};

QStringList commandOf(const Compiler &compiler)
{
    return QString::fromLatin1(compiler.command).split(u' ');
}

// A program that uses each name that the header defines.
QByteArray programFor(const QString &header)
{
    const CHeader all(header);
    QString text =
        QString::fromLatin1("#include \"tarvo_orix_m1.h\"\n" + SoftwareView::standardHeaders() +
                            "#include \"tarvo_orix_m1.h\"\n"
                            "uint32_t useAll(void);\n"
                            "uint32_t useAll(void)\n"
                            "{\n"
                            "    uint32_t sum = 0u;\n");
    for (auto it = all.numbers.begin(); it != all.numbers.end(); ++it)
        text += QLatin1String("    sum += (uint32_t)") + it.key() + QLatin1String(";\n");
    for (auto it = all.pointers.begin(); it != all.pointers.end(); ++it)
        text += QLatin1String("    sum += (uint32_t)(uintptr_t)") + it.key() + QLatin1String(";\n");
    for (const QString &enumerator : all.enumerators)
        text += QLatin1String("    NVIC_EnableIRQ(") + enumerator + QLatin1String(");\n");
    for (const CHeader::Type &type : all.types) {
        const QString pointer = all.pointers.key(type.name);
        for (const CHeader::Member &member : type.members) {
            const QString place = pointer + QLatin1String("->") + member.name;
            text += QLatin1String("    sum += (uint32_t)offsetof(") + type.name +
                    QLatin1String(", ") + member.name + QLatin1String(");\n");
            if (member.qualifier != QLatin1String("TARVO_ORIX_M1_R"))
                text += QLatin1String("    ") + place + QLatin1String(" = sum;\n");
            if (member.qualifier != QLatin1String("TARVO_ORIX_M1_W"))
                text += QLatin1String("    sum += ") + place + QLatin1String(";\n");
        }
    }
    text += QLatin1String("    NVIC_DisableIRQ(HardFault_IRQn);\n"
                          "    sum += NVIC_GetEnableIRQ(HardFault_IRQn);\n"
                          "    NVIC_SetPendingIRQ(HardFault_IRQn);\n"
                          "    NVIC_ClearPendingIRQ(HardFault_IRQn);\n"
                          "    sum += NVIC_GetPendingIRQ(HardFault_IRQn);\n"
                          "    NVIC_SetPriority(HardFault_IRQn, 3u);\n"
                          "    sum += NVIC_GetPriority(HardFault_IRQn);\n"
                          "    __set_PRIMASK(__get_PRIMASK());\n"
                          "    __enable_irq();\n    __disable_irq();\n    __NOP();\n"
                          "    __WFI();\n    __WFE();\n    __SEV();\n"
                          "    __ISB();\n    __DSB();\n    __DMB();\n");
    if (header.contains(QLatin1String("SysTick_Config(uint32_t")))
        text += QLatin1String("    sum += SysTick_Config(1000u);\n");
    text += QLatin1String("    if (sum == 1u)\n        NVIC_SystemReset();\n"
                          "    return sum;\n}\n");
    return text.toUtf8();
}

} // namespace

void tst_Header::initTestCase()
{
    QString error;
    m_ownData = SoftwareView::ownDataFolder(m_folder, &error);
    QVERIFY2(error.isEmpty() && !m_ownData.isEmpty(), qPrintable(error));
}

void tst_Header::compilersAreQuiet_data()
{
    SoftwareView::addCases();
}

void tst_Header::compilersAreQuiet()
{
    QFETCH(int, index);
    const SoftwareView::Case one = SoftwareView::cases().at(index);
    const QString header = headerOf(one);
    const QByteArray program = programFor(header);
    for (const Compiler &compiler : compilers) {
        if (!compiler.isForAll && index > 1)
            continue;
        const QString said = complaint(commandOf(compiler), header, program);
        QVERIFY2(said.isEmpty(), qPrintable(QLatin1String(compiler.name) + u' ' + said.left(2000)));
    }
}

void tst_Header::compilersNoticeAWrongOffset_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::newRow("a member elsewhere") << "uint32_t RESERVED0["
                                        << "uint32_t RESERVED0[1 + ";
    QTest::newRow("a member too much") << "} UART_Type;"
                                       << "uint32_t more; } UART_Type;";
}

void tst_Header::compilersNoticeAWrongOffset()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QString header = headerOf(SoftwareView::everything());
    QVERIFY(header.contains(from));
    header.replace(from, to);
    for (const int language : {0, 1})
        QVERIFY(!complaint(commandOf(compilers[language]), header, "#include \"tarvo_orix_m1.h\"\n")
                     .isEmpty());
}

void tst_Header::keepsTheNamesOfTheRegisterDescription()
{
    QFETCH(int, index);
    const SoftwareView::Case one = SoftwareView::cases().at(index);
    SystemMap map;
    const CHeader header(headerOf(one, &map));
    QVector<InterruptSource> sources;
    if (const auto read = readOtherInterrupts(one.hasOwnData ? m_ownData : m_data))
        sources = *read;
    const CHeader before(registersHeader(map.peripherals, otherInterrupts(sources, &map.options)));
    for (auto it = before.numbers.begin(); it != before.numbers.end(); ++it)
        QCOMPARE(header.numbers.value(it.key()), it.value());
    QVERIFY(index == 0 || index == 8 || index == 9 || !before.numbers.isEmpty());
}

// Whoever adds a compiler or a standard finds what its headers add.
void tst_Header::everyMacroOfTheCompilersIsKnown()
{
    for (const Compiler &compiler : compilers) {
        if (!compiler.isForAll)
            continue;
        const QStringList command = commandOf(compiler);
        QString error;
        const QStringList macros = SoftwareView::macrosOf(command, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QStringList unknown;
        for (const QString &macro : macros) {
            if (!isKnownWord(macro))
                unknown.append(macro);
        }
        // C++ brings what its system has beside the standard.
        if (command.contains(QLatin1String("-std=c99")))
            QCOMPARE(unknown.join(u' '), QString());
        QVERIFY(macros.size() > 50);
    }
}

void tst_Header::namesOfTheProjectStayAsTheyAre()
{
    SystemMap map;
    const CHeader header(headerOf({"", SoftwareView::everything()}, &map));
    for (const Peripheral &peripheral : qAsConst(map.peripherals)) {
        const CHeader::Type *type = header.findType(peripheral.name + QLatin1String("_Type"));
        QVERIFY(type);
        QCOMPARE(type->members.size(), peripheral.registers.size());
        for (int i = 0; i < type->members.size(); ++i)
            QCOMPARE(type->members.at(i).name, peripheral.registers.at(i).name);
        for (const PeripheralInstance &instance : peripheral.instances)
            QCOMPARE(header.pointers.value(instance.name), type->name);
    }
    for (const InterruptLine &line : qAsConst(map.interrupts))
        QCOMPARE(header.enumerators.contains(QString(line.name + QLatin1String("_IRQn"))),
                 line.number >= 0 && line.lost.isEmpty());
}

void tst_Header::explainsLostInterrupts()
{
    SystemMap map;
    const QString header =
        headerOf({"", SoftwareView::everythingBut(Key::numberOfInterrupts, 8)}, &map);
    const QString line = QString(header).replace(QLatin1String("\n * "), QLatin1String(" "));
    int lost = 0;
    for (const InterruptLine &interrupt : qAsConst(map.interrupts)) {
        if (interrupt.lost.isEmpty())
            continue;
        ++lost;
        QVERIFY(line.contains(
            QString(interrupt.name + QLatin1String("_IRQ is left out: ") + interrupt.lost)));
        QVERIFY(!header.contains(QString(interrupt.name + QLatin1String("_IRQn"))));
    }
    QVERIFY(lost > 3);
}

void tst_Header::namesEveryRegion()
{
    for (const SoftwareView::Case &one : SoftwareView::cases()) {
        if (one.hasOwnData)
            continue;
        SystemMap map;
        const CHeader header(headerOf(one, &map));
        for (const Region &region : qAsConst(map.regions)) {
            QCOMPARE(header.numbers.value(region.name + QLatin1String("_BASE"))
                         .chopped(1)
                         .toUInt(nullptr, 0),
                     region.base);
            QCOMPARE(header.numbers.value(region.name + QLatin1String("_SIZE"))
                         .chopped(1)
                         .toULongLong(nullptr, 0),
                     region.size());
        }
    }
}

void tst_Header::timerIsThereWithTheOsExtensionOnly()
{
    for (const bool on : {false, true}) {
        const QString header = headerOf({{Key::osExtension, on}});
        const CHeader all(header);
        QCOMPARE(all.numbers.value(QStringLiteral("TARVO_ORIX_M1_OS_EXTENSION")),
                 QString::number(int(on)));
        for (const char *name : {"SVCall_IRQn", "PendSV_IRQn", "SysTick_IRQn"})
            QCOMPARE(all.enumerators.contains(QLatin1String(name)), on);
        QCOMPARE(header.contains(QLatin1String("SYST_CSR")), on);
        QCOMPARE(header.contains(QLatin1String("SysTick_Config(uint32_t")), on);
        QVERIFY(all.enumerators.contains(QStringLiteral("NonMaskableInt_IRQn")));
    }
}

void tst_Header::bigEndianIsExplained()
{
    QVERIFY(headerOf({{Key::bigEndian, true}}).contains(QLatin1String("-mbig-endian")));
    QVERIFY(!headerOf(OptionMap()).contains(QLatin1String("-mbig-endian")));
}

void tst_Header::commentsEndWhereTheyShould()
{
    const QString header = headerOf(SoftwareView::cases().last());
    int depth = 0;
    for (int i = 0; i + 1 < header.size(); ++i) {
        if (header.midRef(i, 2) == QLatin1String("/*"))
            ++depth;
        else if (header.midRef(i, 2) == QLatin1String("*/"))
            --depth;
        QVERIFY(depth == 0 || depth == 1);
    }
    QCOMPARE(depth, 0);
}

void tst_Header::coreFunctionsCanBeLeftOut()
{
    const QString header = headerOf(SoftwareView::everything());
    const QByteArray program = "#define TARVO_ORIX_M1_NO_CORE\n"
                               "#include \"tarvo_orix_m1.h\"\n"
                               "void NVIC_EnableIRQ(int irq);\n"
                               "void NVIC_EnableIRQ(int irq) { (void)irq; }\n";
    QCOMPARE(complaint(commandOf(compilers[0]), header, program), QString());
    QVERIFY(
        !complaint(commandOf(compilers[0]), header, program.mid(program.indexOf('\n'))).isEmpty());
}

// The header of the register description may stand beside this one: same names, same values.
void tst_Header::includesTwice()
{
    SystemMap map;
    const QString header = headerOf({"", SoftwareView::everything()}, &map);
    const auto sources = readOtherInterrupts(m_data);
    QVERIFY(sources);
    const QByteArray program =
        "#include \"tarvo_orix_m1.h\"\n#include \"tarvo_orix_m1.h\"\n" +
        registersHeader(map.peripherals, otherInterrupts(*sources, &map.options)).toUtf8();
    QCOMPARE(complaint(commandOf(compilers[0]), header, program), QString());
}

QTEST_GUILESS_MAIN(tst_Header)
#include "tst_header.moc"
