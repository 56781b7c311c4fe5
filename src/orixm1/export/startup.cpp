#include "startup.h"

#include "config/latin1literal.h"
#include "names.h"
#include "prefixed.h"
#include "programmemory.h"

namespace TARVOORIXM1
{

namespace
{

// An exception of the processor's own.
struct SystemException {
    int entry; // of the vector table
    QLatin1String handler;
    bool needsOsExtension;
    QLatin1String text;
};

constexpr SystemException exceptions[] = {
    {2, "NMI_Handler"_l1, false, "non-maskable interrupt"_l1},
    {3, "HardFault_Handler"_l1, false, "every fault"_l1},
    {11, "SVC_Handler"_l1, true, "instruction SVC"_l1},
    {14, "PendSV_Handler"_l1, true, "request of the operating system"_l1},
    {15, "SysTick_Handler"_l1, true, "system timer"_l1},
};

bool isThere(const SystemException &exception, const Processor &processor)
{
    return processor.hasOsExtension || !exception.needsOsExtension;
}

// A handler and the vectors that it serves.
struct Handler {
    int entry;
    QString name;
    QString text;
};

QVector<Handler> handlersOf(const SystemMap &map)
{
    QVector<Handler> handlers;
    QString nonMaskable;
    for (const InterruptLine &line : map.interrupts) {
        if (line.number == InterruptLine::nonMaskable)
            nonMaskable = line.name;
    }
    for (const SystemException &exception : exceptions) {
        if (!isThere(exception, map.processor))
            continue;
        QString text = exception.text;
        if (exception.handler == "NMI_Handler"_l1 && !nonMaskable.isEmpty())
            text += ": "_l1 + nonMaskable;
        handlers.append({exception.entry, exception.handler, text});
    }
    for (const InterruptLine &line : map.interrupts) {
        const bool arrives = line.lost.isEmpty() && line.number >= 0 &&
                             line.number < vectoredInterrupts(map.processor);
        if (arrives)
            handlers.append({systemVectors + line.number, line.name + "_IRQHandler"_l1,
                             "interrupt "_l1 + QString::number(line.number)});
    }
    return handlers;
}

QString declarations(const QVector<Handler> &handlers)
{
    QString text;
    for (const Handler &handler : handlers)
        text += "WEAK_HANDLER("_l1 + handler.name + "); /* "_l1 + handler.text + " */\n"_l1;
    return text;
}

QString vectorTable(const SystemMap &map, const QVector<Handler> &handlers)
{
    QVector<QString> entries(systemVectors + vectoredInterrupts(map.processor));
    entries[1] = QStringLiteral("Reset_Handler");
    for (int i = systemVectors; i < entries.size(); ++i)
        entries[i] = QStringLiteral("Default_Handler");
    for (const Handler &handler : handlers)
        entries[handler.entry] = handler.name;
    QString text = "const struct VectorTable vector_table "
                   "__attribute__((used, section(\".vectors\"))) = {\n    __stack_top,\n    {\n"_l1;
    for (int i = 1; i < entries.size(); ++i) {
        const QString number = i < systemVectors
                                   ? "exception "_l1 + QString::number(i)
                                   : "interrupt "_l1 + QString::number(i - systemVectors);
        text += "        "_l1 + (entries.at(i).isEmpty() ? QStringLiteral("0") : entries.at(i)) +
                ", /* "_l1 + number + (entries.at(i).isEmpty() ? ": none"_l1 : QLatin1String()) +
                " */\n"_l1;
    }
    return text + "    },\n};\n"_l1;
}

// Copies and zeroes what lies in memories beside the one for data.
QString furtherMemories(const ProgramMemory &memory, QString *call)
{
    if (memory.further.isEmpty())
        return {};
    *call = QStringLiteral("    initialize_further_memories();\n");
    return QStringLiteral(
        "/* Parts of further memories, as the linker script lists them. */\n"
        "struct CopiedPart {\n    const uint32_t *load;\n    uint32_t *start;\n"
        "    uint32_t *end;\n};\n\n"
        "struct ZeroedPart {\n    uint32_t *start;\n    uint32_t *end;\n};\n\n"
        "extern const struct CopiedPart __copy_table_start[];\n"
        "extern const struct CopiedPart __copy_table_end[];\n"
        "extern const struct ZeroedPart __zero_table_start[];\n"
        "extern const struct ZeroedPart __zero_table_end[];\n\n"
        "static void initialize_further_memories(void)\n{\n"
        "    const struct CopiedPart *copied;\n    const struct ZeroedPart *zeroed;\n\n"
        "    for (copied = __copy_table_start; copied != __copy_table_end; ++copied)\n"
        "        copy_words(copied->start, copied->end, copied->load);\n"
        "    for (zeroed = __zero_table_start; zeroed != __zero_table_end; ++zeroed)\n"
        "        zero_words(zeroed->start, zeroed->end);\n}\n\n");
}

QString startup(const SystemMap &map)
{
    const QVector<Handler> handlers = handlersOf(map);
    QString furtherCall;
    const QString further = furtherMemories(programMemory(map), &furtherCall);
    const QString entries = QString::number(systemVectors + vectoredInterrupts(map.processor) - 1);
    return "/* Start-up of the subsystem Tarvo_ORIX_M1: vector table, and what runs before main(). "
           "C99, without a C library.\n"
           " * Each handler can be replaced by a function of the same name. Interrupts that "
           "nothing requests end in\n"
           " * Default_Handler, which stops there. */\n"
           "#include <stdint.h>\n\n"
           "#include \"system_tarvo_orix_m1.h\"\n\n"
           "/* From the linker script; all are multiples of four. */\n"
           "extern uint32_t __stack_top[];\n"
           "extern uint32_t __data_start[];\nextern uint32_t __data_end[];\n"
           "extern const uint32_t __data_load[];\n"
           "extern uint32_t __bss_start[];\nextern uint32_t __bss_end[];\n\n"
           "typedef void (*Function)(void);\n\n"
           "extern const Function __preinit_array_start[];\n"
           "extern const Function __preinit_array_end[];\n"
           "extern const Function __init_array_start[];\n"
           "extern const Function __init_array_end[];\n\n"
           "/* A library whose variables of a thread are set up by this function needs it; others "
           "have none. */\n"
           "extern void _set_tls(void *start) __attribute__((weak));\n"
           "extern uint32_t __tls_base[] __attribute__((weak));\n\n"
           "int main(void);\n\n"
           "void Reset_Handler(void);\n"
           "void Default_Handler(void);\n"
           "void start_program(void);\n"
           "void _init(void);\nvoid _fini(void);\n\n"
           "#define WEAK_HANDLER(name) void name(void) __attribute__((weak, "
           "alias(\"Default_Handler\")))\n\n"_l1 +
           declarations(handlers) +
           "\n/* The processor reads the first word as its stack pointer. */\n"
           "struct VectorTable {\n    const uint32_t *stack_top;\n    Function handlers["_l1 +
           entries + "];\n};\n\nextern const struct VectorTable vector_table;\n\n"_l1 +
           vectorTable(map, handlers) +
           "\nvoid Default_Handler(void)\n{\n    for (;;) {\n    }\n}\n\n"
           "/* volatile, so that the compiler makes no call to a C library of a loop. */\n"
           "static void copy_words(volatile uint32_t *to, const volatile uint32_t *end,\n"
           "                       const volatile uint32_t *from)\n{\n"
           "    if (to == from)\n        return;\n"
           "    while (to != end)\n        *to++ = *from++;\n}\n\n"
           "static void zero_words(volatile uint32_t *to, const volatile uint32_t *end)\n{\n"
           "    while (to != end)\n        *to++ = 0;\n}\n\n"_l1 +
           further +
           "static void call_all(const Function *function, const Function *end)\n{\n"
           "    for (; function != end; ++function)\n        (*function)();\n}\n\n"
           "__attribute__((used)) void start_program(void)\n{\n"
           "    copy_words(__data_start, __data_end, __data_load);\n"
           "    zero_words(__bss_start, __bss_end);\n"
           "    if (_set_tls)\n        _set_tls(__tls_base);\n"
           "    SystemInit();\n"_l1 +
           furtherCall +
           "    call_all(__preinit_array_start, __preinit_array_end);\n"
           "    call_all(__init_array_start, __init_array_end);\n"
           "    (void)main();\n"
           "    for (;;) {\n    }\n}\n\n"
           "/* C libraries call these beside constructors and destructors. */\n"
           "__attribute__((weak)) void _init(void)\n{\n}\n\n"
           "__attribute__((weak)) void _fini(void)\n{\n}\n\n"
           "/* The stack pointer is set once more for a debugger that jumps here. */\n"
           "__attribute__((naked, noreturn)) void Reset_Handler(void)\n{\n"
           "    __asm__ volatile(\"ldr r0, 1f\\n\"\n"
           "                     \"mov sp, r0\\n\"\n"
           "                     \"ldr r0, 2f\\n\"\n"
           "                     \"bx r0\\n\"\n"
           "                     \".balign 4\\n\"\n"
           "                     \"1: .word __stack_top\\n\"\n"
           "                     \"2: .word start_program\\n\");\n}\n"_l1;
}

const char systemHeader[] =
    R"(/* System set-up of the subsystem Tarvo_ORIX_M1. */
#ifndef SYSTEM_TARVO_ORIX_M1_H
#define SYSTEM_TARVO_ORIX_M1_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Frequency of the processor's clock, HCLK, in hertz. The configuration does not know it: it is 0 unless
 * SYSTEM_CORE_CLOCK tells it where system_tarvo_orix_m1.c is compiled, as in -DSYSTEM_CORE_CLOCK=50000000. */
extern uint32_t SystemCoreClock;

/* Runs before constructors and main(), when variables in the memory for data have their values already and those in
 * further memories, such as PSRAM, do not have them yet: the place to wait until such a memory is ready. It does nothing
 * unless a program has a function of this name. */
void SystemInit(void);

/* Sets SystemCoreClock to what SYSTEM_CORE_CLOCK tells. A program that changes its clock has a function of this name. */
void SystemCoreClockUpdate(void);

#ifdef __cplusplus
}
#endif

#endif
)";

const char systemSource[] =
    R"(/* System set-up of the subsystem Tarvo_ORIX_M1: see the header. */
#include "system_tarvo_orix_m1.h"

#ifndef SYSTEM_CORE_CLOCK
#define SYSTEM_CORE_CLOCK 0 /* not told */
#endif

uint32_t SystemCoreClock = (uint32_t)(SYSTEM_CORE_CLOCK);

__attribute__((weak)) void SystemInit(void)
{
}

__attribute__((weak)) void SystemCoreClockUpdate(void)
{
    SystemCoreClock = (uint32_t)(SYSTEM_CORE_CLOCK);
}
)";

} // namespace

QString startupFile(const SystemMap &map)
{
    return ownName(map, QStringLiteral("startup_tarvo_orix_m1.c"));
}

QVector<ExportedFile> startupFiles(const SystemMap &map)
{
    // Functions and variables keep their names: a program has one start-up.
    const QVector<ExportedFile> files = {
        {QStringLiteral("startup_tarvo_orix_m1.c"), startup(map).toUtf8()},
        {QStringLiteral("system_tarvo_orix_m1.c"), systemSource},
        {QStringLiteral("system_tarvo_orix_m1.h"), systemHeader}};
    return prefixedC(map, files, {"SYSTEM_TARVO_ORIX_M1_H", "Tarvo_ORIX_M1"});
}

} // namespace TARVOORIXM1
