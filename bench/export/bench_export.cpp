// How long all formats together take for a configuration with everything on, next to hashing a
// mebibyte, and each of them alone. All are timed in turn; printed are the medians and their
// ratios. The map and the descriptions that it is made of are timed as well: a command line reads
// them once for each export. bench_export [RUNS]

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <export/format.h>
#include <system/description.h>

#include <QCryptographicHash>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace TARVOORIXM1;

namespace
{

struct Subject {
    const char *name;
    std::function<int()> run; // returns bytes
    QVector<double> samples = {};
    int bytes = 0;

    double median()
    {
        std::sort(samples.begin(), samples.end());
        return samples.at(samples.size() / 2);
    }
};

int made(const Format &format, const SystemMap &map)
{
    int bytes = 0;
    const QVector<ExportedFile> files = format.files(map);
    for (const ExportedFile &file : files)
        bytes += file.bytes.size();
    return bytes;
}

} // namespace

int main(int argc, char *argv[])
{
    const int runs = qMax(1, argc > 1 ? std::atoi(argv[1]) : 51);
    const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    DEV::ChipFilter filter;
    filter.device = QStringLiteral("TV5KT-138B");
    const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().filterDevice(filter);
    if (!description || devices.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(description.reason()));
        return 1;
    }
    OptionMap options;
    for (const Option &option : optionTable()) {
        if (option.isOption && option.type == OptionType::Bool && option.key != Key::bigEndian)
            options.insert(option.key, true);
    }
    const SystemMap map = systemMap(options, devices.first(), *description);

    const QByteArray mebibyte(1 << 20, 'x');
    std::vector<Subject> subjects = {
        {"reference",
         [&] { return QCryptographicHash::hash(mebibyte, QCryptographicHash::Sha256).size(); }},
        {"all formats",
         [&] {
             int bytes = 0;
             for (const Format &format : formats())
                 bytes += made(format, map);
             return bytes;
         }},
        {"description",
         [] {
             return int(
                 readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR))->peripherals.size());
         }},
        {"map", [&] { return systemMap(options, devices.first(), *description).regions.size(); }}};
    for (const Format &format : formats())
        subjects.push_back({format.name.data(), [&format, &map] { return made(format, map); }});

    for (int run = 0; run <= runs; ++run) {
        for (Subject &subject : subjects) {
            QElapsedTimer timer;
            timer.start();
            subject.bytes = subject.run();
            const double milliseconds = double(timer.nsecsElapsed()) / 1e6;
            if (run > 0) // the first one warms up
                subject.samples.append(milliseconds);
        }
    }
    const double reference = subjects.front().median();
    std::printf("median of %d runs %12s %10s %10s\n", runs, "ms", "ratio", "bytes");
    for (Subject &subject : subjects)
        std::printf("%-17s %13.3f %10.3f %10d\n", subject.name, subject.median(),
                    subject.median() / reference, subject.bytes);
    return 0;
}
