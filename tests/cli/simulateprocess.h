#pragma once

#include <markedprocesses.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

// "orixm1 simulate" as a process, in a folder of its own, with a folder for its temporary files.
class SimulateProcess
{
public:
    SimulateProcess() { QDir(m_dir.path()).mkdir(QStringLiteral("scratch")); }

    QString path(const char *name) const { return m_dir.filePath(QString::fromUtf8(name)); }
    QStringList scratch() const { return TestSupport::entriesOf(path("scratch")); }
    const TestSupport::Mark &mark() const { return m_mark; }

    // `tools`: the only folder on PATH; empty: as it is.
    std::unique_ptr<QProcess> start(const QStringList &arguments, const QString &tools = {}) const
    {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), path("scratch"));
        environment.insert(QString::fromLatin1(m_mark.name()), QString::fromLatin1(m_mark.value()));
        if (!tools.isEmpty())
            environment.insert(QStringLiteral("PATH"), tools);
        process->setProcessEnvironment(environment);
        process->setWorkingDirectory(m_dir.path());
        process->start(QStringLiteral(TARVO_COMMAND), arguments);
        return process;
    }

    struct Run {
        int status = -1;
        QByteArray out;
        QString err;
    };

    // The end of a process, whose outputs nobody else has read.
    static Run finish(QProcess &process)
    {
        if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit)
            return {-1, {}, QString::fromUtf8(process.readAllStandardError())};
        return {process.exitCode(), process.readAllStandardOutput(),
                QString::fromUtf8(process.readAllStandardError())};
    }

    Run run(const QStringList &arguments, const QString &tools = {}) const
    {
        const auto process = start(arguments, tools);
        process->closeWriteChannel();
        return finish(*process);
    }

    Run simulate(const QStringList &arguments, const QString &tools = {}) const
    {
        return run(QStringList{QStringLiteral("simulate")} + arguments, tools);
    }

private:
    QTemporaryDir m_dir;
    TestSupport::Mark m_mark;
};

// The arguments of a simulation. Verilator builds the rules of the buses as long as the rest; they
// have tests of their own.
inline QStringList simulation(const QStringList &arguments)
{
    QStringList all{QStringLiteral("simulate")};
    if (arguments.contains(QStringLiteral("verilator")))
        all.append(QStringLiteral("--no-checks"));
    return all + arguments;
}

// A configuration to which options can be added.
inline const QByteArray plain("[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\n"
                              "type=tarvo.tarvo_orix_m1\nversion=1.0\n\n[Config]\n");

// A program that answers three bytes, each with the next one, on a UART; then it ends.
inline QByteArray answering(const QByteArray &uart)
{
    return "#include \"system_tarvo_orix_m1.h\"\n#include \"uart.h\"\n"
           "int main(void)\n{\n    uart_init(" +
           uart +
           ", SystemCoreClock, 1000000u);\n"
           "    for (int i = 0; i < 3; ++i) {\n        char byte;\n"
           "        while (uart_read(" +
           uart +
           ", &byte, 1, 1000u) != 1)\n            ;\n"
           "        ++byte;\n        uart_write(" +
           uart + ", &byte, 1, 100000u);\n    }\n    return 0;\n}\n";
}

inline QStringList words(std::initializer_list<const char *> list)
{
    QStringList result;
    for (const char *word : list)
        result.append(QString::fromUtf8(word));
    return result;
}
