// Times "orixm1 generate FILE" as a whole, with the synthesis tool and all it starts, in turn with
// a bare "yosys" that reads and elaborates the same sources, and prints medians and their ratios:
// for the default configuration and for everything on with the largest memories, in either
// language. bench_synthesis [RUNS]

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace
{

struct Sample {
    double seconds = 0;
    double mebibytes = 0; // peak of the resident memory of all processes together
};

[[noreturn]] void fail(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::exit(1);
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Resident memory of a process and all below it, in pages.
qint64 pagesOf(qint64 pid)
{
    const QString folder = QStringLiteral("/proc/%1").arg(pid);
    qint64 pages = read(folder + QStringLiteral("/statm")).split(' ').value(1).toLongLong();
    const QStringList threads =
        QDir(folder + QStringLiteral("/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &thread : threads) {
        const QByteArray children =
            read(folder + QStringLiteral("/task/") + thread + QStringLiteral("/children"));
        for (const QByteArray &child : children.simplified().split(' ')) {
            if (!child.isEmpty())
                pages += pagesOf(child.toLongLong());
        }
    }
    return pages;
}

Sample runOnce(const QString &program, const QStringList &arguments, const QString &folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    const auto before = std::chrono::steady_clock::now();
    process.start(program, arguments);
    qint64 peak = 0;
    while (!process.waitForFinished(10)) {
        if (process.state() == QProcess::NotRunning)
            break;
        peak = std::max(peak, pagesOf(process.processId()));
    }
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - before;
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        fail(program + u' ' + arguments.join(u' ') + QStringLiteral(" failed"));
    return {elapsed.count(), double(peak) * double(::sysconf(_SC_PAGESIZE)) / (1 << 20)};
}

double median(QVector<Sample> samples, double Sample::*member)
{
    std::sort(samples.begin(), samples.end(),
              [member](const Sample &a, const Sample &b) { return a.*member < b.*member; });
    return samples.at(samples.size() / 2).*member;
}

QStringList sourcesOf(const QString &config)
{
    QProcess process;
    process.start(QStringLiteral(TARVO_COMMAND), {QStringLiteral("sources"), config});
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        fail(QStringLiteral("no source list for ") + config);
    return QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

void measure(const char *title, const QByteArray &name, const char *language, int runs)
{
    const QTemporaryDir dir;
    const QString config = dir.filePath(QStringLiteral("config.ipc"));
    QByteArray text = read(QStringLiteral(TARVO_GOLDEN_DIR "/") + QString::fromUtf8(name) +
                           QStringLiteral("/config.ipc"));
    if (!text.contains("[Config]"))
        text += "[Config]\n";
    text.replace("[Config]\n", QByteArray("[Config]\nLANG=") + language + '\n');
    QFile file(config);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        fail(QStringLiteral("cannot write ") + config);
    file.close();

    // The include files, which the bare tool reads too.
    runOnce(QStringLiteral(TARVO_COMMAND), {QStringLiteral("generate"), config}, dir.path());
    const QString includes = dir.filePath(QStringLiteral("temp/tv_orix_m1"));
    QString script;
    for (const QString &source : sourcesOf(config))
        script += QStringLiteral("read_verilog -I%1 -I%2 %3; ")
                      .arg(includes, source.section(u'/', 0, -2), source);
    script += QStringLiteral("hierarchy -top Tarvo_ORIX_M1_Top");

    QVector<Sample> whole;
    QVector<Sample> bare;
    for (int i = 0; i < runs; ++i) {
        whole << runOnce(QStringLiteral(TARVO_COMMAND),
                         {QStringLiteral("generate"), config, QStringLiteral("--no-cache"),
                          QStringLiteral("--out"), dir.filePath(QString::number(i))},
                         dir.path());
        bare << runOnce(QStringLiteral("yosys"),
                        {QStringLiteral("-q"), QStringLiteral("-p"), script}, dir.path());
    }
    const double wholeTime = median(whole, &Sample::seconds);
    const double bareTime = median(bare, &Sample::seconds);
    const double wholeMemory = median(whole, &Sample::mebibytes);
    const double bareMemory = median(bare, &Sample::mebibytes);
    std::printf("%-24s %10.2f %10.2f %8.2f   %10.1f %10.1f %8.2f\n", title, wholeTime, bareTime,
                wholeTime / bareTime, wholeMemory, bareMemory, wholeMemory / bareMemory);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char *argv[])
{
    const int runs = argc > 1 ? std::atoi(argv[1]) : 3;
    if (runs < 1)
        return 1;
    std::printf("median of %d runs          generate, s  bare, s    ratio     peak, MiB  bare, MiB "
                "   ratio\n",
                runs);
    measure("default", "default-tv2kr-18c", "0", runs);
    measure("default, VHDL", "default-tv2kr-18c", "1", runs);
    measure("everything on", "everything-tv5kt-138b", "0", runs);
    measure("everything on, VHDL", "everything-tv5kt-138b", "1", runs);
    return 0;
}
