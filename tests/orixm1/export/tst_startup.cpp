// The exported start-up code: compiled, its vector table looked at, and run.

#include "crosscompiled.h"

using namespace TARVOORIXM1;
using namespace CrossCompiled;

namespace
{

const char emptyMain[] = "int main(void);\nint main(void)\n{\n    return 0;\n}\n";

// The lines of a map that reach the processor, by number.
QMap<int, QString> arriving(const SystemMap &map)
{
    QMap<int, QString> lines;
    for (const InterruptLine &line : map.interrupts) {
        if (line.number >= 0 && line.lost.isEmpty())
            lines.insert(line.number, line.name);
    }
    return lines;
}

} // namespace

class tst_Startup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void compilesWithoutAWarning_data();
    void compilesWithoutAWarning();
    void callsNothingOfACLibrary_data();
    void callsNothingOfACLibrary();
    void tableHoldsTheInterruptsThatArrive_data();
    void tableHoldsTheInterruptsThatArrive();
    void tableIsNeverLongerThanTheProcessorReads_data();
    void tableIsNeverLongerThanTheProcessorReads();
    void handlersAreReplacedByFunctionsOfTheirName();
    void clockIsWhatTheUserTells_data();
    void clockIsWhatTheUserTells();
    void everythingStandsBeforeMain();
    void furtherMemoriesAreFilledAfterSystemInit();
    void pendedInterruptsReachTheirHandlers();

private:
    Maps m_maps;
};

void tst_Startup::initTestCase()
{
    QVERIFY(m_maps.isValid());
}

void tst_Startup::compilesWithoutAWarning_data()
{
    addCases();
}

void tst_Startup::compilesWithoutAWarning()
{
    QFETCH(OptionMap, options);
    const Project project(m_maps.map(options));
    const QStringList sources = {QStringLiteral("startup_tarvo_orix_m1.c"),
                                 QStringLiteral("system_tarvo_orix_m1.c")};
    const QStringList flags =
        Project::strict() + QStringList{QStringLiteral("-Os"), QStringLiteral("-c")} + sources;
    const Run gcc = project.gcc(flags);
    QVERIFY2(gcc.ok(), qPrintable(gcc.output));
    QCOMPARE(gcc.output, QString());
    const Run clang = run(
        project.folder(), QStringLiteral("clang"),
        QStringList{QStringLiteral("--target=arm-none-eabi"), QStringLiteral("-ffreestanding")} +
            project.machine() + flags);
    QVERIFY2(clang.ok(), qPrintable(clang.output));
    QCOMPARE(clang.output, QString());
    QVERIFY(project.write(QStringLiteral("header.cpp"), "#include \"system_tarvo_orix_m1.h\"\n"
                                                        "#include \"system_tarvo_orix_m1.h\"\n"));
    const Run cpp =
        run(project.folder(), QStringLiteral("arm-none-eabi-g++"),
            project.machine() + QStringLiteral("-std=c++11 -Wall -Wextra -pedantic -Wconversion "
                                               "-Werror -c header.cpp")
                                    .split(u' '));
    QVERIFY2(cpp.ok(), qPrintable(cpp.output));
}

void tst_Startup::callsNothingOfACLibrary_data()
{
    QTest::addColumn<QString>("compiler");
    QTest::addColumn<QString>("level");
    for (const char *level : {"-O0", "-Os", "-O2", "-O3"}) {
        QTest::addRow("gcc %s", level) << "arm-none-eabi-gcc" << level;
        QTest::addRow("clang %s", level) << "clang" << level;
    }
}

void tst_Startup::callsNothingOfACLibrary()
{
    QFETCH(QString, compiler);
    QFETCH(QString, level);
    const Project project(m_maps.map(everything()));
    QStringList flags =
        project.machine() +
        QStringList{QStringLiteral("-std=c99"), level,
                    QStringLiteral("-c"),       QStringLiteral("startup_tarvo_orix_m1.c"),
                    QStringLiteral("-o"),       QStringLiteral("startup.o")};
    if (compiler == QStringLiteral("clang"))
        flags += {QStringLiteral("--target=arm-none-eabi"), QStringLiteral("-ffreestanding")};
    const Run compiled = run(project.folder(), compiler, flags);
    QVERIFY2(compiled.ok(), qPrintable(compiled.output));
    const auto symbols = project.symbols(QStringLiteral("startup.o"));
    QVERIFY(symbols.contains(QStringLiteral("Reset_Handler")));
    QStringList wanted;
    for (auto it = symbols.begin(); it != symbols.end(); ++it) {
        const bool fromScript = it.key().startsWith(QStringLiteral("__")) &&
                                !it.key().startsWith(QStringLiteral("__aeabi"));
        if (it->kind == QStringLiteral("U") && !fromScript)
            wanted.append(it.key());
    }
    wanted.sort();
    QCOMPARE(wanted, QStringList({QStringLiteral("SystemInit"), QStringLiteral("main")}));
}

void tst_Startup::tableHoldsTheInterruptsThatArrive_data()
{
    addCases();
}

void tst_Startup::tableHoldsTheInterruptsThatArrive()
{
    QFETCH(OptionMap, options);
    const SystemMap map = m_maps.map(options);
    const Project project(map);
    QVERIFY(project.write(QStringLiteral("main.c"), emptyMain));
    const Run linked = project.link();
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    const QVector<quint32> vectors = project.vectors();
    const auto symbols = project.symbols();
    QCOMPARE(vectors.size(), 16 + map.processor.interruptInputs);
    QCOMPARE(project.sections().value(QStringLiteral(".vectors")).address, 0u);
    QCOMPARE(vectors.at(0), symbols.value(QStringLiteral("__stack_top")).value);

    const auto address = [&symbols](const QString &name) {
        return symbols.contains(name) ? symbols.value(name).value | 1 : 0;
    };
    QVector<quint32> expected(vectors.size());
    expected[0] = vectors.at(0);
    expected[1] = address(QStringLiteral("Reset_Handler"));
    for (const auto &[entry, name] :
         {std::make_pair(2, "NMI_Handler"), std::make_pair(3, "HardFault_Handler"),
          std::make_pair(11, "SVC_Handler"), std::make_pair(14, "PendSV_Handler"),
          std::make_pair(15, "SysTick_Handler")}) {
        const bool isThere = entry < 11 || map.processor.hasOsExtension;
        QCOMPARE(symbols.value(QString::fromLatin1(name)).kind,
                 isThere ? QStringLiteral("W") : QString());
        expected[entry] = address(QString::fromLatin1(name));
    }
    const QMap<int, QString> lines = arriving(map);
    QStringList handlers;
    for (int i = 0; i < map.processor.interruptInputs; ++i) {
        const QString name = lines.contains(i) ? lines.value(i) + QStringLiteral("_IRQHandler")
                                               : QStringLiteral("Default_Handler");
        expected[16 + i] = address(name);
        QVERIFY2(expected.at(16 + i) != 0, qPrintable(name));
        if (lines.contains(i)) {
            handlers.append(name);
            QCOMPARE(symbols.value(name).kind, QStringLiteral("W"));
        }
    }
    QCOMPARE(vectors, expected);
    QStringList told;
    for (auto it = symbols.begin(); it != symbols.end(); ++it) {
        if (it.key().endsWith(QStringLiteral("_IRQHandler")))
            told.append(it.key());
    }
    told.sort();
    handlers.sort();
    QCOMPARE(told, handlers);
}

void tst_Startup::tableIsNeverLongerThanTheProcessorReads_data()
{
    QTest::addColumn<int>("inputs");
    QTest::addColumn<int>("entries");
    QTest::newRow("fewer than none") << -2000000000 << 16;
    QTest::newRow("none") << 0 << 16;
    QTest::newRow("a number that none can choose") << 5 << 21;
    QTest::newRow("all") << 32 << 48;
    QTest::newRow("more than all") << 2000000000 << 48;
}

void tst_Startup::tableIsNeverLongerThanTheProcessorReads()
{
    QFETCH(int, inputs);
    QFETCH(int, entries);
    SystemMap map = m_maps.map(everything());
    map.processor.interruptInputs = inputs;
    const Project project(map);
    QVERIFY(project.write(QStringLiteral("main.c"), emptyMain));
    const Run linked = project.link();
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    QCOMPARE(project.vectors().size(), entries);
}

void tst_Startup::handlersAreReplacedByFunctionsOfTheirName()
{
    const SystemMap map = m_maps.map(everything());
    const Project project(map);
    QByteArray source = emptyMain;
    QStringList names = QStringLiteral("NMI HardFault SVC PendSV SysTick").split(u' ');
    for (QString &name : names)
        name += QStringLiteral("_Handler");
    const QMap<int, QString> lines = arriving(map);
    QVERIFY(lines.size() > 15);
    for (const QString &name : lines)
        names.append(name + QStringLiteral("_IRQHandler"));
    for (const QString &name : qAsConst(names))
        source += "void " + name.toLatin1() + "(void);\nvoid " + name.toLatin1() +
                  "(void)\n{\n    for (;;) {\n    }\n}\n";
    QVERIFY(project.write(QStringLiteral("main.c"), source));
    // Equal functions would otherwise be one to some compilers.
    const Run linked = project.link({QStringLiteral("-fno-ipa-icf")});
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    const QVector<quint32> vectors = project.vectors();
    const auto symbols = project.symbols();
    const quint32 byDefault = symbols.value(QStringLiteral("Default_Handler")).value | 1;
    for (const QString &name : qAsConst(names))
        QCOMPARE(symbols.value(name).kind, QStringLiteral("T"));
    for (auto it = lines.begin(); it != lines.end(); ++it) {
        const quint32 own = symbols.value(it.value() + QStringLiteral("_IRQHandler")).value | 1;
        QCOMPARE(vectors.at(16 + it.key()), own);
        QVERIFY(own != byDefault);
    }
}

void tst_Startup::clockIsWhatTheUserTells_data()
{
    QTest::addColumn<QString>("flag");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("nothing told") << QStringLiteral("-DNOTHING") << QByteArray("0");
    QTest::newRow("50 MHz") << QStringLiteral("-DSYSTEM_CORE_CLOCK=50000000")
                            << QByteArray("50000000");
}

void tst_Startup::clockIsWhatTheUserTells()
{
    QFETCH(QString, flag);
    QFETCH(QByteArray, value);
    const Project project(m_maps.map(emulated()));
    QVERIFY(project.write(QStringLiteral("main.c"), QByteArray(semihosting) + R"(
#include "system_tarvo_orix_m1.h"
int main(void);
int main(void)
{
    const uint32_t first = SystemCoreClock;
    SystemCoreClock = 1;
    SystemCoreClockUpdate();
    say(first == )" + value +
                                                        " && SystemCoreClock == " + value +
                                                        R"( ? "as told\n" : "another\n");
    leave();
    return 0;
}
)"));
    const Run linked = project.link({flag});
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    QCOMPARE(project.emulate().output, QStringLiteral("as told\n"));
}

void tst_Startup::everythingStandsBeforeMain()
{
    const Project project(m_maps.map(emulated(everything())));
    QVERIFY(project.write(QStringLiteral("main.c"), QByteArray(semihosting) + R"(
#include "system_tarvo_orix_m1.h"
extern uint32_t __stack_top[], __heap_start[], __heap_end[], __bss_end[];
static volatile uint32_t words[5] = {1, 2, 3, 4, 0xDEADBEEF};
static volatile uint8_t odd[3] = {7, 8, 9};
static volatile uint32_t zeros[40];
static const char *volatile pointer = "constant";
static volatile int order, early, inSystemInit, constructed;
void SystemInit(void)
{
    inSystemInit = words[4] == 0xDEADBEEF && zeros[39] == 0 ? ++order : -1;
}
__attribute__((constructor(101))) static void first(void)
{
    early = ++order;
}
__attribute__((constructor)) static void second(void)
{
    constructed = ++order;
}
static int failures;
static void check(int holds, const char *name)
{
    if (!holds) {
        ++failures;
        say(name);
    }
}
int main(void);
int main(void)
{
    uint32_t local = 0;
    int i;
    const uintptr_t stack = (uintptr_t)&local;
    for (i = 0; i < 4; ++i)
        check(words[i] == (uint32_t)i + 1, "data ");
    check(words[4] == 0xDEADBEEF && odd[0] == 7 && odd[2] == 9, "data ");
    for (i = 0; i < 40; ++i)
        check(zeros[i] == 0, "bss ");
    check(pointer[0] == 'c', "pointer ");
    check(inSystemInit == 1 && early == 2 && constructed == 3, "order ");
    check(stack < (uintptr_t)__stack_top && stack > (uintptr_t)__stack_top - 256, "stack ");
    check((uintptr_t)__stack_top == 0x20004000, "top ");
    check((uintptr_t)__heap_start >= (uintptr_t)__bss_end, "heap ");
    check((uintptr_t)__heap_end <= stack, "heap's end ");
    __heap_start[0] = 5;
    check(*(volatile uint32_t *)__heap_start == 5, "heap's memory ");
    say(failures ? "failed\n" : "all stands\n");
    leave();
    return 0;
}
)"));
    const Run linked = project.link();
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    QCOMPARE(project.emulate().output, QStringLiteral("all stands\n"));
}

// The PSRAM of a map that is made by hand lies where the emulated machine has memory.
void tst_Startup::furtherMemoriesAreFilledAfterSystemInit()
{
    OptionMap options = emulated(with({Key::enablePsram}));
    options.insert(Key::dtcmSize, 3);
    SystemMap map = m_maps.map(options);
    for (Region &region : map.regions) {
        if (region.name == QStringLiteral("PSRAM")) {
            region.base = 0x20002000;
            region.last = 0x20003FFF;
        }
    }
    const Project project(map);
    QVERIFY(project.write(QStringLiteral("main.c"), QByteArray(semihosting) + R"(
#include "system_tarvo_orix_m1.h"
__attribute__((section(".psram"))) static volatile uint32_t value = 0x12345678;
__attribute__((section(".psram_bss"))) static volatile uint32_t zero[8];
__attribute__((section(".psram_noinit"))) static volatile uint32_t left;
static volatile int before;
void SystemInit(void)
{
    before = value != 0x12345678;
    zero[7] = 9;
    left = 11;
}
int main(void);
int main(void)
{
    say(before && value == 0x12345678 && zero[0] == 0 && zero[7] == 0 && left == 11 &&
        (uintptr_t)&value >= 0x20002000 && (uintptr_t)&left >= 0x20002000 ? "filled\n" : "not filled\n");
    leave();
    return 0;
}
)"));
    const Run linked = project.link();
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    QCOMPARE(project.emulate().output, QStringLiteral("filled\n"));
}

// Each interrupt is pended by software; its handler says its name.
void tst_Startup::pendedInterruptsReachTheirHandlers()
{
    const SystemMap map = m_maps.map(emulated(everything()));
    const Project project(map);
    QByteArray source = semihosting;
    QByteArray pends;
    QString expected;
    const QMap<int, QString> lines = arriving(map);
    for (auto it = lines.begin(); it != lines.end(); ++it) {
        const QByteArray name = it.value().toLatin1();
        source += "void " + name + "_IRQHandler(void);\nvoid " + name +
                  "_IRQHandler(void)\n{\n    say(\"" + name + "\\n\");\n}\n";
        pends += "    pend(" + QByteArray::number(it.key()) + ");\n";
        expected += it.value() + u'\n';
    }
    source += R"(
static void pend(unsigned number)
{
    *(volatile uint32_t *)0xE000E100 = (uint32_t)1 << number;
    *(volatile uint32_t *)0xE000E200 = (uint32_t)1 << number;
    __asm__ volatile("dsb\nisb" ::: "memory");
}
int main(void);
int main(void)
{
)" + pends + R"(
    say("end\n");
    leave();
    return 0;
}
)";
    QVERIFY(project.write(QStringLiteral("main.c"), source));
    const Run linked = project.link();
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    QCOMPARE(project.emulate().output, expected + QStringLiteral("end\n"));
}

TARVO_TEST_MAIN(QCoreApplication, tst_Startup)

#include "tst_startup.moc"
