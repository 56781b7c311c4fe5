#include "program.h"

#include "config/latin1literal.h"

namespace TARVOORIXM1
{

namespace
{

constexpr char ending[] =
    R"(/* Ends a simulation with what main() returns: semihosting, SYS_EXIT_EXTENDED. */
#include <stdint.h>

int __real_main(void);
int __wrap_main(void);

int __wrap_main(void)
{
    volatile uint32_t arguments[2] = {0x20026u, 0u};
    register uint32_t operation __asm__("r0");
    register volatile uint32_t *place __asm__("r1");

    arguments[1] = (uint32_t)__real_main();
    operation = 0x20u;
    place = arguments;
    for (;;)
        __asm__ volatile("bkpt 0xAB" : "+r"(operation) : "r"(place) : "memory");
}
)";

constexpr QLatin1String softwareObject = "software.o"_l1;

// The board's clock.
constexpr QLatin1String clock = "-DSYSTEM_CORE_CLOCK=50000000"_l1;

} // namespace

QString programFolder()
{
    return QStringLiteral("/made-by-orixm1/");
}

ProgramBuild programBuild(const SystemMap &map, const QStringList &sources)
{
    ProgramBuild build;
    const QStringList common = {QStringLiteral("-mcpu=cortex-m1"),
                                QStringLiteral("-mthumb"),
                                QStringLiteral("-Os"),
                                QStringLiteral("-g"),
                                QStringLiteral("-Wall"),
                                QStringLiteral("-nostartfiles"),
                                clock,
                                QStringLiteral("-Isoftware"),
                                QStringLiteral("-Isoftware/drivers")};
    build.softwareArguments =
        common + QStringList{QStringLiteral("-r"), QStringLiteral("-nostdlib"),
                             QStringLiteral("-o"), softwareObject};
    build.arguments =
        common + QStringList{QStringLiteral("-Lsoftware"), QStringLiteral("-Ttarvo_orix_m1.ld"),
                             QStringLiteral("-Wl,--wrap=main"), QStringLiteral("-o"),
                             QStringLiteral("program.elf")};
    build.arguments += sources;
    build.arguments.append(softwareObject);
    for (const QLatin1String name : {"header"_l1, "linker"_l1, "startup"_l1, "drivers"_l1}) {
        const QVector<ExportedFile> files = findFormat(name)->files(map);
        for (const ExportedFile &file : files) {
            build.files.append({"software/"_l1 + file.path, file.bytes});
            if (file.path.endsWith(".c"_l1))
                build.softwareArguments.append("software/"_l1 + file.path);
        }
    }
    build.files.append({QStringLiteral("software/ending.c"), ending});
    build.softwareArguments.append(QStringLiteral("software/ending.c"));
    return build;
}

QString programEnding()
{
    return QStringLiteral("software/ending.c");
}

} // namespace TARVOORIXM1
