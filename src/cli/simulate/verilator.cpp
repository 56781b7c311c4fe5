#include "verilator.h"

#include "buildcache.h"
#include "shellword.h"
#include "simulation.h"

#include <utils/boundedfile.h>

#include <QDir>
#include <QFile>

namespace Cli
{

namespace
{

constexpr int mostSaid = 1 << 16;        // characters of a message
constexpr qint64 mostSource = 256 << 20; // bytes
constexpr qint64 mostProgram = BuildCache::mostBytes;

// What make and the wrapper take from the environment.
constexpr const char *heededVariables[] = {"VERILATOR_ROOT", "CPPFLAGS", "CXXFLAGS", "LDFLAGS",
                                           "LDLIBS"};

// How the compiler optimises the design and Verilator's own sources, unless the environment says
// it. Null: as Verilator has it.
struct Optimisation {
    const char *variable;
    const char *usual;
};
constexpr Optimisation optimisations[] = {{"OPT_FAST", "-O2"}, {"OPT_GLOBAL", nullptr}};

// The design is two-state, so what is unknown may be what is fastest.
QStringList optionsOf(const Design &design)
{
    QStringList options = {
        QStringLiteral("-O3"),         QStringLiteral("--x-assign"),
        QStringLiteral("fast"),        QStringLiteral("--x-initial"),
        QStringLiteral("fast"),        QStringLiteral("--noassert"),
        QStringLiteral("--no-timing"), QStringLiteral("-Wno-fatal"),
        QStringLiteral("-Wno-lint"),   QStringLiteral("-Wno-style"),
        QStringLiteral("--prefix"),    QStringLiteral("Vboard"),
        QStringLiteral("-CFLAGS"),     QStringLiteral("-DVL_USER_FINISH"),
    };
    for (const Optimisation &optimisation : optimisations) {
        const char *variable = optimisation.variable;
        if (qEnvironmentVariableIsSet(variable) || optimisation.usual)
            options << QStringLiteral("-MAKEFLAGS")
                    << shellWord(QLatin1String(variable) + u'=' +
                                 qEnvironmentVariable(variable, QLatin1String(optimisation.usual)));
    }
    if (design.hasWaves)
        options.append(QStringLiteral("--trace-fst"));
    return options;
}

} // namespace

Utils::Result<void> Verilator::findTools()
{
    const auto compiler = Simulation::findTool("verilator", "verilator");
    if (!compiler)
        return Utils::Failure{compiler.reason()};
    m_compiler = *compiler;
    return {};
}

// What it says, which is its result.
Utils::Result<QByteArray> Verilator::output(Simulation &simulation,
                                            const QStringList &arguments) const
{
    QByteArray said;
    const auto result = simulation.runTool({QStringLiteral("Verilator"), m_compiler, arguments},
                                           [&said](const QString &line) {
                                               if (said.size() < mostSource)
                                                   said += line.toUtf8() + '\n';
                                           });
    if (!result)
        return Utils::Failure{simulation.wasCancelled()
                                  ? QString()
                                  : QString::fromUtf8(said.left(mostSaid)) + result.reason()};
    return said;
}

Utils::Result<void> Verilator::build(Simulation &simulation, const Design &design)
{
    m_program = simulation.folder() + QLatin1String("/simulation");
    const auto staged = simulation.stage(design);
    if (!staged)
        return Utils::Failure{staged.reason()};
    QStringList inputs = {QStringLiteral("--top-module"), QStringLiteral("board")};
    for (const QString &folder : staged->includeFolders)
        inputs.append(QLatin1String("-I") + folder);
    for (const QString &define : design.defines)
        inputs.append(QLatin1String("-D") + define);
    inputs += staged->sources;
    const QStringList options = optionsOf(design);

    // All texts with what they include; their names do not depend on where they are.
    const auto version = output(simulation, {QStringLiteral("--version")});
    if (!version)
        return Utils::Failure{version.reason()};
    const auto texts = output(simulation, QStringList(QStringLiteral("-E")) + inputs);
    if (!texts)
        return Utils::Failure{texts.reason()};
    QByteArray key = *version + options.join(u'\n').toUtf8() + '\n' + *texts;
    for (const char *name : {"cortexm1core.h", "verilator_main.cpp"}) {
        const auto text =
            Utils::readBoundedFile(design.modelFolder + u'/' + QLatin1String(name), mostSource);
        if (!text)
            return Utils::Failure{text.reason()};
        key += *text;
    }
    for (const char *variable : heededVariables)
        key += '\0' + qgetenv(variable);

    const BuildCache cache(BuildCache::usersFolder());
    QByteArray program = cache.find(key);
    if (program.isEmpty()) {
        const auto built = compile(simulation, options + inputs);
        if (!built)
            return Utils::Failure{built.reason()};
        program = *built;
        cache.keep(key, program);
    }
    if (const auto written = simulation.write(QStringLiteral("simulation"), program); !written)
        return Utils::Failure{written.reason()};
    if (!QFile::setPermissions(m_program, QFileDevice::ReadOwner | QFileDevice::ExeOwner))
        return Utils::Failure{u'"' + m_program + QLatin1String("\" could not be made a program.")};
    return {};
}

Utils::Result<QByteArray> Verilator::compile(Simulation &simulation,
                                             const QStringList &arguments) const
{
    for (const char *tool : {"make", "g++"}) {
        if (const auto found = Simulation::findTool(tool, tool); !found)
            return Utils::Failure{found.reason()};
    }
    const QString folder = QStringLiteral("built");
    // The compiler's temporary files go there.
    if (!QDir(simulation.folder()).mkpath(folder + QLatin1String("/tmp")))
        return Utils::Failure{QLatin1String("A folder in \"") + simulation.folder() +
                              QLatin1String("\" could not be made.")};
    const auto built = output(
        simulation,
        QStringList{QStringLiteral("--cc"), QStringLiteral("--exe"), QStringLiteral("--build"),
                    QStringLiteral("-j"), QStringLiteral("0"), QStringLiteral("-Mdir"), folder,
                    QStringLiteral("-o"), QStringLiteral("simulation"),
                    // The library is found beside the program, wherever that is.
                    QStringLiteral("-LDFLAGS"),
                    QStringLiteral("../model/cortexm1core.so -Wl,-rpath,\\$$ORIGIN/model")} +
            arguments + QStringList(QStringLiteral("model/verilator_main.cpp")));
    if (!built) {
        if (built.reason().contains(QLatin1String("zlib.h: No such file")))
            return Utils::Failure{QStringLiteral(
                "Waves need the library zlib; the Debian package zlib1g-dev has it.")};
        return Utils::Failure{built.reason()};
    }
    return Utils::readBoundedFile(
        simulation.folder() + u'/' + folder + QLatin1String("/simulation"), mostProgram);
}

Tool Verilator::run(const QStringList &plusArguments) const
{
    QStringList arguments;
    for (const QString &argument : plusArguments)
        arguments.append(u'+' + argument);
    return {QStringLiteral("The simulation"), m_program, arguments};
}

} // namespace Cli
