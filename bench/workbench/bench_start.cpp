// Times, as whole processes in turn, the start of the workbench against that of an empty window
// which loads the same plug-in, both up to a painted window: without a project, and with one of
// some sources and an IP. First without a display, which leaves next to nothing for the empty
// window to do, then on one, as whoever starts it has. bench_start [RUNS] [LIMIT]; fails if a ratio
// of the times on the display is above LIMIT.

#include "../support/wholeprocess.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace
{

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

// The path of its file.
QByteArray makeProject(const QString &folder)
{
    QByteArray files;
    for (int i = 0; i < 20; ++i) {
        const QByteArray name = "module" + QByteArray::number(i) + ".v";
        write(folder + u'/' + QString::fromLatin1(name), "module m; endmodule\n");
        files += (i == 0 ? "\n    \"" : ",\n    \"") + name + '"';
    }
    write(folder + QLatin1String("/ip.ipc"), "[General]\ntype=tarvo_orix_m1\n"
                                             "target_device=TV2KR-18C-QFN88-C8/I7\n");
    write(folder + QLatin1String("/usual.tvproj"),
          "{\n  \"format\": 1,\n  \"device\": \"TV2KR-18C-QFN88-C8/I7\",\n  \"top\": \"\",\n"
          "  \"files\": [" +
              files + "\n  ]\n}\n");
    return QFile::encodeName(folder + QLatin1String("/usual.tvproj"));
}

double quantile(QVector<Sample> samples, double Sample::*member, double share)
{
    std::sort(samples.begin(), samples.end(),
              [member](const Sample &a, const Sample &b) { return a.*member < b.*member; });
    return samples.at(int(double(samples.size() - 1) * share)).*member;
}

void print(const char *name, const QVector<Sample> &samples, const QVector<Sample> &empty)
{
    std::printf("%-24s", name);
    for (double Sample::*member : {&Sample::wall, &Sample::processor})
        std::printf("  %s %6.1f ms (%.1f to %.1f), ratio %.2f",
                    member == &Sample::wall ? "time" : "processor", median(samples, member),
                    quantile(samples, member, 0.1), quantile(samples, member, 0.9),
                    median(samples, member) / median(empty, member));
    std::printf("\n");
}

struct Ratios {
    double start;
    double startWithProject;
};

// Prints all and returns the ratios of the times.
Ratios compare(const char *platform, const QByteArray &project, int runs)
{
    ::setenv("QT_QPA_PLATFORM", platform, 1);
    QVector<Sample> empty;
    QVector<Sample> without;
    QVector<Sample> with;
    for (int i = -2; i < runs; ++i) {
        const Sample a = runOnce({TARVO_EMPTY});
        const Sample b = runOnce({TARVO_WORKBENCH});
        const Sample c = runOnce({TARVO_WORKBENCH, project});
        if (i < 0)
            continue; // warms the caches
        empty.append(a);
        without.append(b);
        with.append(c);
    }
    std::printf("%s, medians of %d (and from the tenth to the ninetieth of a hundred)\n", platform,
                runs);
    print("empty window", empty, empty);
    print("workbench", without, empty);
    print("workbench, a project", with, empty);
    const double least = median(empty, &Sample::wall);
    return {median(without, &Sample::wall) / least, median(with, &Sample::wall) / least};
}

// An X server without a screen, which ends with the object.
class Display
{
public:
    Display()
    {
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"),
                        QStringLiteral("-screen"), QStringLiteral("0"),
                        QStringLiteral("1600x1000x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp")});
        while (!m_name.endsWith('\n') && m_server.waitForReadyRead())
            m_name += m_server.readAllStandardOutput();
    }
    ~Display()
    {
        m_server.terminate();
        m_server.waitForFinished();
    }
    Display(const Display &) = delete;
    Display &operator=(const Display &) = delete;

    // Empty if it does not run.
    QByteArray name() const { return m_name.isEmpty() ? m_name : ':' + m_name.trimmed(); }

private:
    QProcess m_server;
    QByteArray m_name;
};

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const int runs = argc > 1 ? std::atoi(argv[1]) : 41;
    const double limit = argc > 2 ? std::atof(argv[2]) : 0;
    const QTemporaryDir folder;
    ::setenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()).constData(), 1);
    ::setenv("QT_LOGGING_RULES", "*.warning=false", 1);
    const QByteArray project = makeProject(folder.path());
    compare("offscreen", project, runs);
    const Display display;
    if (display.name().isEmpty()) {
        std::printf("There is no Xvfb, so a start on a display is not timed.\n");
        return limit > 0 ? 1 : 0;
    }
    ::setenv("DISPLAY", display.name().constData(), 1);
    const Ratios ratios = compare("xcb", project, runs);
    return limit > 0 && std::max(ratios.start, ratios.startWithProject) > limit ? 1 : 0;
}
