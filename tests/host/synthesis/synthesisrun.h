#pragma once

#include <synthesis/runner.h>

#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <testsupport.h>

// A runner with its job and everything that it reported, for tests.
class SynthesisRun
{
public:
    SynthesisRun()
    {
        job.ipName = QStringLiteral("tv_test");
        job.targetName = QStringLiteral("core");
        job.options = {{QStringLiteral("top_module"), QStringLiteral("top")},
                       {QStringLiteral("disable_io"), true},
                       {QStringLiteral("write_vhdl"), false},
                       {QStringLiteral("impl_name"), QStringLiteral("rev_1")},
                       {QStringLiteral("ip_version"), QStringLiteral("1.0")}};
        setOutputDir(folder.filePath(QStringLiteral("out")));
    }

    void setOutputDir(const QString &path)
    {
        QDir().mkpath(path);
        job.outputDir = path;
    }

    // Writes a source into the folder and adds it to the job.
    QString addSource(const QString &name, const QByteArray &text)
    {
        const QString path = folder.filePath(name);
        TestSupport::write(path, text);
        addFile(path);
        return path;
    }

    void addFile(const QString &path)
    {
        QVariant &files = job.options[QStringLiteral("source_files")];
        files = files.toStringList() << path;
    }

    void start()
    {
        runner.setJob(job);
        runner.start();
    }

    // The exit code, or -1000 if the run did not end.
    int run(int timeoutMs = 240000)
    {
        const int before = finished.count();
        start();
        if (finished.count() == before && !finished.wait(timeoutMs))
            return -1000;
        return finished.count() == before + 1 ? finished.last().first().toInt() : -1001;
    }

    QString path(const QString &suffix) const
    {
        return job.outputDir + u'/' + job.targetName + suffix;
    }
    QByteArray netlist() const { return TestSupport::contentsOf(path(QStringLiteral(".vg"))); }
    QStringList stages() const { return texts(stageChanged); }
    QStringList log() const { return texts(logReceived); }
    // For the message of a failed comparison.
    QByteArray report() const
    {
        return QByteArray(runner.errorMsg().toUtf8() + '\n' +
                          runner.detailErrorMsgs().join(u'\n').toUtf8());
    }

    QTemporaryDir folder;
    Synthesis::Job job;
    Synthesis::Runner runner;
    QSignalSpy finished{&runner, &Synthesis::Runner::finished};
    QSignalSpy stageChanged{&runner, &Synthesis::Runner::stageChanged};
    QSignalSpy logReceived{&runner, &Synthesis::Runner::logReceived};

private:
    static QStringList texts(const QSignalSpy &spy)
    {
        QStringList result;
        for (const QVariantList &arguments : spy)
            result << arguments.first().toString();
        return result;
    }
};

// Runs a program to its end. The exit code, or -1 if it could not be run.
inline int execute(const QString &program, const QStringList &arguments, QByteArray *output,
                   const QString &folder = {})
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(240000))
        return -1;
    *output = process.readAll();
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

// Whether Icarus Verilog takes the files; without any complaint.
inline bool compiles(const QStringList &files, QByteArray *output)
{
    const QStringList options{QStringLiteral("-g2005"), QStringLiteral("-Wall"),
                              QStringLiteral("-Wno-timescale"), QStringLiteral("-tnull")};
    return execute(QStringLiteral("iverilog"), options + files, output) == 0 && output->isEmpty();
}

#define RUN_SUCCEEDS(synthesis) QVERIFY2((synthesis).run() == 0, (synthesis).report().constData())
