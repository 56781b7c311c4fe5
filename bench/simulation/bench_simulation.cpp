// Simulations of the example, in turn: clock cycles a second of processor time of the processor's
// model alone, of the RTL under Verilator with it, and of the same program of Verilator with the
// processor's pins from a recording of the same run; and the time until the first byte of a program
// under Icarus Verilog, against "vvp" alone on the same compiled design. bench_simulation [RUNS]
#include "core/core.h"

#include <QByteArray>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <sys/resource.h>

namespace
{

constexpr int cycles = 4000000;

// Never ends: counts on the pins of the GPIO, with loads and stores in the memory and on the bus.
const QByteArray counting = "#include \"gpio.h\"\n"
                            "int main(void)\n{\n    volatile unsigned count = 0;\n"
                            "    gpio_set_direction(GPIO, 0xFFu, true);\n"
                            "    for (;;)\n        gpio_write(GPIO, 0xFFu, ++count);\n}\n";

[[noreturn]] void fail(const QString &what)
{
    std::fprintf(stderr, "%s\n", qPrintable(what));
    std::exit(1);
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() ||
        !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner))
        fail(path);
}

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

double seconds(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

class Bench
{
public:
    explicit Bench(const QString &folder)
        : m_folder(folder)
        , m_environment(QProcessEnvironment::systemEnvironment())
    {
        m_environment.insert(QStringLiteral("XDG_CACHE_HOME"), path("cache"));
        m_environment.insert(QStringLiteral("TMPDIR"), folder);
        // What the command hands to the simulator is kept.
        const QString player = QStandardPaths::findExecutable(QStringLiteral("vvp"));
        if (player.isEmpty() || !QDir(folder).mkdir(QStringLiteral("bin")) ||
            !QFile::link(QStringLiteral(TARVO_MODEL), path("model")))
            fail(QStringLiteral("vvp or its folder is missing"));
        write(path("bin/vvp"), "#!/bin/sh\ncp program.elf board.vvp \"$BENCH_KEPT\"\nexec " +
                                   player.toUtf8() + " \"$@\"\n");
        write(path("counting.c"), counting);
        m_simulate = QStringList{QStringLiteral("simulate"),
                                 QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc")};
        keep("hello", QStringLiteral(TARVO_EXAMPLES_DIR "/firmware/hello.c"));
        keep("counting", path("counting.c"));
        if (start(QStringLiteral(TARVO_COMMAND),
                  m_simulate + QStringList{QStringLiteral("--c"), path("counting.c"),
                                           QStringLiteral("--timeout"), QStringLiteral("100"),
                                           QStringLiteral("--engine"),
                                           QStringLiteral("verilator")}) < 0)
            fail(QStringLiteral("Verilator"));
        const QDir entries(path("cache/tarvo/simulate"));
        for (const QString &entry : entries.entryList(QDir::Files)) {
            QFile file(entries.filePath(entry));
            if (!file.open(QIODevice::ReadOnly))
                fail(entry);
            const QByteArray bytes = file.readAll();
            const int begin = bytes.indexOf('\n') + 1;
            if (bytes.mid(begin, 4) == "\x7F"
                                       "ELF")
                write(path("simulation"), bytes.mid(begin));
        }
    }

    // Clock cycles a second of processor time, without what a start takes.
    double rate(const char *variable) const
    {
        return cycles / (timeOf(variable, cycles) - timeOf(variable, 100));
    }

    void record() const { timeOf("BENCH_RECORD", cycles); }

    double firstByteOfCommand() const
    {
        return firstByte(QStringLiteral(TARVO_COMMAND),
                         m_simulate +
                             QStringList{QStringLiteral("--firmware"), path("hello/program.elf")});
    }

    double firstByteOfPlayer() const
    {
        return firstByte(QStandardPaths::findExecutable(QStringLiteral("vvp")),
                         {QStringLiteral("-n"), QStringLiteral("-i"), QStringLiteral("-M"),
                          path("model"), QStringLiteral("-m"), QStringLiteral("cortexm1core"),
                          path("hello/board.vvp"),
                          QLatin1String("+firmware=") + path("hello/program.elf")});
    }

private:
    QString path(const char *name) const { return m_folder + u'/' + QString::fromUtf8(name); }

    void keep(const char *name, const QString &source)
    {
        if (!QDir(m_folder).mkdir(QString::fromUtf8(name)))
            fail(path(name));
        QProcessEnvironment environment = m_environment;
        environment.insert(QStringLiteral("PATH"),
                           path("bin:") + environment.value(QStringLiteral("PATH")));
        environment.insert(QStringLiteral("BENCH_KEPT"), path(name));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(TARVO_COMMAND),
                      m_simulate + QStringList{QStringLiteral("--c"), source,
                                               QStringLiteral("--timeout"),
                                               QStringLiteral("20000")});
        if (!process.waitForFinished(100000) ||
            !QFile::exists(path(name) + QLatin1String("/board.vvp")))
            fail(QString::fromUtf8(process.readAllStandardError()));
    }

    // The processor time; negative for a program that has failed.
    double start(const QString &program, const QStringList &arguments,
                 const QProcessEnvironment &environment) const
    {
        rusage before{};
        rusage after{};
        ::getrusage(RUSAGE_CHILDREN, &before);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(program, arguments);
        if (!process.waitForFinished(600000) || process.exitStatus() != QProcess::NormalExit)
            return -1;
        ::getrusage(RUSAGE_CHILDREN, &after);
        return seconds(after.ru_utime) + seconds(after.ru_stime) - seconds(before.ru_utime) -
               seconds(before.ru_stime);
    }

    double start(const QString &program, const QStringList &arguments) const
    {
        return start(program, arguments, m_environment);
    }

    double timeOf(const char *variable, int count) const
    {
        QProcessEnvironment environment = m_environment;
        if (variable) {
            environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(TARVO_RECORDED_CORE));
            environment.insert(QString::fromUtf8(variable), path("recording"));
        }
        const double time = start(path("simulation"),
                                  {QLatin1String("+firmware=") + path("counting/program.elf"),
                                   QStringLiteral("+timeout=%1").arg(count)},
                                  environment);
        if (time < 0)
            fail(QStringLiteral("the simulation has failed"));
        return time;
    }

    double firstByte(const QString &program, const QStringList &arguments) const
    {
        QElapsedTimer timer;
        QProcess process;
        process.setProcessEnvironment(m_environment);
        timer.start();
        process.start(program, arguments);
        if (!process.waitForReadyRead(100000))
            fail(program);
        const double time = double(timer.nsecsElapsed()) / 1e6;
        process.waitForFinished(100000);
        return time;
    }

    const QString m_folder;
    QProcessEnvironment m_environment;
    QStringList m_simulate;
};

// A loop of loads, stores and computing in the model's memories.
double rateOfModel()
{
    CortexM1::Configuration configuration;
    configuration.itcmBytes = 8192;
    configuration.dtcmBytes = 4096;
    CortexM1::Core core(configuration, [](const std::string &) {});
    core.processor().setInstructionMemory({
        0x00, 0x10, 0x00, 0x20, 0x09, 0, 0, 0, // stack and entry
        0x82, 0xB0,                            // sub sp, #8
        0x01, 0x30,                            // adds r0, #1
        0x82, 0x00,                            // lsls r2, r0, #2
        0x00, 0x90,                            // str r0, [sp]
        0x00, 0x9B,                            // ldr r3, [sp]
        0x53, 0x40,                            // eors r3, r2
        0xF9, 0xE7,                            // b behind sub
    });
    CortexM1::Inputs inputs;
    core.clock(inputs);
    inputs.isReset = false;
    const std::clock_t begin = std::clock();
    for (int i = 0; i < cycles; ++i)
        core.clock(inputs);
    return cycles / (double(std::clock() - begin) / CLOCKS_PER_SEC);
}

} // namespace

int main(int argc, char *argv[])
{
    const int runs = argc > 1 ? std::atoi(argv[1]) : 5;
    const QTemporaryDir dir;
    if (runs < 1 || !dir.isValid())
        return 1;
    const Bench bench(dir.path());
    QVector<double> model;
    QVector<double> withModel;
    QVector<double> replayed;
    QVector<double> command;
    QVector<double> player;
    bench.record();
    for (int i = 0; i < runs; ++i) {
        model.append(rateOfModel());
        withModel.append(bench.rate(nullptr));
        replayed.append(bench.rate("BENCH_REPLAY"));
        command.append(bench.firstByteOfCommand());
        player.append(bench.firstByteOfPlayer());
    }
    std::printf("medians of %d runs\n", runs);
    std::printf("clock cycles a second of processor time\n");
    std::printf("  model alone              %12.0f\n", median(model));
    std::printf("  Verilator with the model %12.0f\n", median(withModel));
    std::printf("  Verilator with its pins  %12.0f   ratio %.2f\n", median(replayed),
                median(withModel) / median(replayed));
    std::printf("first byte under Icarus Verilog, ms\n");
    std::printf("  vvp alone                %12.1f\n", median(player));
    std::printf("  orixm1 simulate          %12.1f   ratio %.2f\n", median(command),
                median(command) / median(player));
    return 0;
}
