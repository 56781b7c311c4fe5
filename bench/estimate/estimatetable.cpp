// Makes the table that estimates come from, and checks it:
//
// estimatetable measure [LAST]
//     synthesises what the file of measurements lacks: a chosen list of configurations, and random
//     ones of the seeds up to LAST (400), most of them with few blocks; can be ended at any time
//     and called again
// estimatetable fit
//     fits the table to the measurements and writes it
// estimatetable check N [SEED]
//     synthesises N random configurations of each series that nobody has seen and prints how far
//     the estimates are off; fails where less than 98 % hold
// estimatetable spot N [SEED]
//     the same for N with few blocks
// estimatetable fresh [COUNT [SKIP [MOST]]]
//     draws COUNT (200) configurations for each series and synthesises each different text once,
//     into a file that the fit never reads; can be ended at any time and called again. The first
//     SKIP (0) are left to another process, which writes into another file. With MOST, those of
//     which more netlists would have to be made are passed over for another time.
// estimatetable report
//     prints for each series how the estimates fare in that file. A netlist counts for each series
//     in which somebody could have the configuration, so the series' figures are not independent of
//     each other; the last line counts each netlist once.
//
// With FILE=PATH in front another file of measurements is taken. One process at a time.

#include "fit.h"
#include "fresh.h"
#include "measurement.h"

#include <config/blocks.h>
#include <config/latin1literal.h>
#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <estimate/estimate.h>
#include <rules/randomoptions.h>
#include <utils/fileutils.h>

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <random>

using namespace TARVOORIXM1;

namespace
{

struct Planned {
    Measurement measurement;
    DEV::DeviceArg device;
};

// The largest memories, and the only ones with PSRAM.
constexpr auto largest = "TV5KT-138C"_l1;
constexpr auto withPsram = "TV2KR-18C-QFN88P-C8/I7"_l1;

int fail(const QString &reason)
{
    std::fprintf(stderr, "%s\n", qPrintable(reason));
    return 1;
}

// One of each series.
QVector<DEV::DeviceArg> oneOfEach(const DEV::DeviceDb &devices)
{
    QVector<DEV::DeviceArg> result = {devices.findDevice(withPsram)};
    const QList<DEV::DeviceArg> all = devices.devices();
    for (const DEV::DeviceArg &device : all) {
        const bool isNew =
            std::none_of(result.begin(), result.end(), [&device](const DEV::DeviceArg &other) {
                return other.series() == device.series();
            });
        if (isNew)
            result.append(device);
    }
    return result;
}

DEV::DeviceArg deviceNamed(const DEV::DeviceDb &devices, const QString &name)
{
    const QList<DEV::DeviceArg> all = devices.devices();
    const auto found = std::find_if(all.begin(), all.end(), [&name](const DEV::DeviceArg &device) {
        return device.device() == name;
    });
    return found == all.end() ? DEV::DeviceArg() : *found;
}

// Nothing but what `options` has.
OptionMap bare(const OptionMap &options)
{
    OptionMap all = {{Key::enableDebug, false},        {Key::internalInstructionMemory, false},
                     {Key::internalDataMemory, false}, {Key::externalInstructionMemory, false},
                     {Key::externalDataMemory, false}, {Key::numberOfInterrupts, 32}};
    for (auto it = options.begin(); it != options.end(); ++it)
        all.insert(it.key(), it.value());
    return all;
}

// Each block alone, both of two, some ports of a bus, each memory: what a term costs by itself.
QVector<Planned> chosen(const DEV::DeviceDb &devices)
{
    QVector<Planned> plan;
    const DEV::DeviceArg usual = deviceNamed(devices, largest);
    const DEV::DeviceArg psram = devices.findDevice(withPsram);
    const auto add = [&](const QString &name, const OptionMap &options) {
        Planned planned;
        planned.device = options.contains(Key::enablePsram) ? psram : usual;
        planned.measurement.name = name;
        planned.measurement.device = planned.device.id();
        planned.measurement.options = bare(options);
        plan.append(planned);
    };
    add(QStringLiteral("base"), {});
    add(QStringLiteral("UART1 without its interrupt"),
        {{Key::enableUart1, true}, {Key::numberOfInterrupts, 1}});
    for (const Block &block : generatedBlocks()) {
        if (block.hasPorts()) {
            OptionMap ports;
            for (int i = 0; i < block.switches.size(); ++i) {
                ports.insert(block.switches[i].key(), true);
                const int count = i + 1;
                if (count <= 4 || count == block.switches.size() || count % 4 == 0)
                    add(block.title + u' ' + QString::number(count), ports);
            }
            continue;
        }
        OptionMap both;
        for (const SwitchRow &row : block.switches) {
            OptionMap one;
            one.insert(row.key(), true);
            both.insert(row.key(), true);
            if (row.key() == Key::enableCan)
                one.insert(Key::canBufferDepth, QStringLiteral("256"));
            if (!row.isInterface)
                add(row.key(), one);
        }
        if (both.size() > 1)
            add(block.title + " with all switches"_l1, both);
    }
    add(QStringLiteral("debug"), {{Key::enableDebug, true}});
    add(QStringLiteral("Serial Wire"),
        {{Key::enableDebug, true}, {Key::debugPortSelect, QString(Value::serialWire)}});
    add(QStringLiteral("external memories"),
        {{Key::externalInstructionMemory, true}, {Key::externalDataMemory, true}});
    add(QStringLiteral("external instruction memory"), {{Key::externalInstructionMemory, true}});
    add(QStringLiteral("external interrupts"), {{Key::externalInterrupts, true}});
    for (const bool debug : {false, true}) {
        for (int size = 0; size <= 9; ++size) {
            const QString suffix = QString::number(size) + (debug ? " with debug"_l1 : ""_l1);
            add("memories "_l1 + suffix, {{Key::enableDebug, debug},
                                          {Key::internalInstructionMemory, true},
                                          {Key::internalDataMemory, true},
                                          {Key::itcmSize, size},
                                          {Key::dtcmSize, size}});
            add("contents "_l1 + suffix, {{Key::enableDebug, debug},
                                          {Key::internalInstructionMemory, true},
                                          {Key::itcmSize, size},
                                          {Key::initializeItcm, true}});
        }
    }
    return plan;
}

Planned random(int seed, const DEV::DeviceArg &device)
{
    Planned planned;
    planned.device = device;
    planned.measurement.name = "random "_l1 + QString::number(seed) + u' ' + device.device();
    planned.measurement.device = device.id();
    planned.measurement.options = randomOptions(quint64(seed), device);
    return planned;
}

// A few blocks of such a configuration: what is quick to measure, and still mixes them.
Planned sparse(int seed, const DEV::DeviceArg &device)
{
    Planned planned = random(seed, device);
    planned.measurement.name.replace("random"_l1, "sparse"_l1);
    std::mt19937_64 lot(quint64(seed) * 1000003);
    for (const Block &block : generatedBlocks()) {
        for (const SwitchRow &row : block.switches) {
            if (!row.isInterface && lot() % 5 != 0)
                planned.measurement.options.remove(row.key());
        }
    }
    return planned;
}

int measureAll(const QString &path, const DEV::DeviceDb &devices, int last)
{
    const Utils::Result<QString> rtl = rtlDigest();
    const Utils::Result<QString> synthesis = synthesisDigest();
    if (!rtl || !synthesis)
        return fail(rtl.reason() + synthesis.reason());
    Measurements measurements{*rtl, *synthesis, {}};
    QString error;
    if (!QFile::exists(path) && !Utils::FileUtils::writeFile(path, headLine(measurements), &error))
        return fail(error);
    const Utils::Result<Measurements> read = readMeasurements(path);
    if (!read)
        return fail(read.reason());
    if (read->rtl != *rtl || read->synthesis != *synthesis)
        return fail(
            "\""_l1 + path +
            "\" was measured with other RTL or another synthesis: remove it and begin anew."_l1);
    measurements = *read;

    // In turn, so that the list can be ended anywhere.
    QVector<Planned> plan;
    const QVector<Planned> alone = chosen(devices);
    const QVector<DEV::DeviceArg> some = oneOfEach(devices);
    for (int seed = 1; seed <= std::max(last, alone.size()); ++seed) {
        if (seed <= alone.size())
            plan.append(alone.at(seed - 1));
        if (seed > last)
            continue;
        const DEV::DeviceArg &device = some.at(seed % some.size());
        plan.append(seed % 4 == 0 ? random(seed, device) : sparse(seed, device));
        plan.last().measurement.isHeldOut = (seed / 2 + seed / some.size()) % 2 == 0;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return fail(file.errorString());
    // What a killed run has left of a line.
    const int whole = file.readAll().lastIndexOf('\n') + 1;
    file.resize(whole);
    file.seek(whole);
    for (Planned &planned : plan) {
        if (measurements.contains(planned.measurement))
            continue;
        std::printf("%s\n", qPrintable(planned.measurement.name));
        std::fflush(stdout);
        if (const auto done = measure(planned.device, &planned.measurement); !done)
            return fail(done.reason());
        const QByteArray line = lineOf(planned.measurement);
        if (file.write(line) != line.size() || !file.flush())
            return fail(file.errorString());
    }
    return 0;
}

// What was drawn for one seed, in the groups that synthesis reads the same text for.
Utils::Result<QVector<FreshMeasurement>> plannedFresh(int seed, const DEV::DeviceDb &devices)
{
    QVector<FreshMeasurement> groups;
    QHash<QByteArray, QString> known;
    const QVector<Drawn> drawn = drawForEachSeries(seed, devices);
    for (const Drawn &one : drawn) {
        const Utils::Result<QString> digest =
            textDigest(devices.findDevice(one.device), one.options, &known);
        if (!digest)
            return Utils::Failure{digest.reason()};
        const auto same =
            std::find_if(groups.begin(), groups.end(), [&digest](const FreshMeasurement &group) {
                return group.digest == *digest;
            });
        if (same != groups.end()) {
            same->drawn.append(one);
            continue;
        }
        FreshMeasurement group;
        group.seed = seed;
        group.digest = *digest;
        group.drawn.append(one);
        groups.append(group);
    }
    return groups;
}

// The first seed is far from those that the table is fitted to.
constexpr int firstFreshSeed = 5000000;

// One of so many netlists is made for a second device as well, which has to give the same.
constexpr int timesUntilAgain = 40;

// `count` seeds but for the first `skip`; and, where `most` is not 0, but for those that more
// netlists stand for.
int measureFresh(const QString &path, const DEV::DeviceDb &devices, int skip, int count, int most)
{
    const Utils::Result<QString> rtl = rtlDigest();
    const Utils::Result<QString> synthesis = synthesisDigest();
    if (!rtl || !synthesis)
        return fail(rtl.reason() + synthesis.reason());
    QString error;
    if (!QFile::exists(path) &&
        !Utils::FileUtils::writeFile(path, headLine({*rtl, *synthesis, {}}), &error))
        return fail(error);
    const Utils::Result<FreshMeasurements> read = readFresh(path);
    if (!read)
        return fail(read.reason());
    if (read->rtl != *rtl || read->synthesis != *synthesis)
        return fail(
            "\""_l1 + path +
            "\" was measured with other RTL or another synthesis: remove it and begin anew."_l1);
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return fail(file.errorString());
    // What a killed run has left of a line.
    const int whole = file.readAll().lastIndexOf('\n') + 1;
    file.resize(whole);
    file.seek(whole);
    int made = read->list.size();
    for (int seed = firstFreshSeed + skip; seed < firstFreshSeed + count; ++seed) {
        if (read->countOf(seed) == drawForEachSeries(seed, devices).size())
            continue;
        Utils::Result<QVector<FreshMeasurement>> plan = plannedFresh(seed, devices);
        if (!plan)
            return fail(plan.reason());
        if (most > 0 && plan->size() > most)
            continue;
        for (FreshMeasurement &one : *plan) {
            if (read->contains(seed, one.digest))
                continue;
            std::printf("seed %d, for %d series\n", seed, int(one.drawn.size()));
            std::fflush(stdout);
            const auto measured = [&](const Drawn &drawn) -> Utils::Result<Measurement> {
                Measurement measurement;
                measurement.name = "seed "_l1 + QString::number(seed);
                measurement.options = drawn.options;
                const auto done = measure(devices.findDevice(drawn.device), &measurement);
                if (!done)
                    return Utils::Failure{done.reason()};
                return measurement;
            };
            const auto first = measured(one.drawn.first());
            if (!first)
                return fail(first.reason());
            one.used = first->used;
            one.blackBoxes = first->blackBoxes;
            if (++made % timesUntilAgain == 0 && one.drawn.size() > 1) {
                const auto second = measured(one.drawn.last());
                if (!second)
                    return fail(second.reason());
                if (second->used != first->used ||
                    second->blackBoxes.size() != first->blackBoxes.size())
                    return fail(QStringLiteral("seed %1: %2 and %3 read the same, but their "
                                               "netlists differ.")
                                    .arg(seed)
                                    .arg(one.drawn.first().device, one.drawn.last().device));
                one.again = one.drawn.last().device;
            }
            const QByteArray line = lineOf(one);
            if (file.write(line) != line.size() || !file.flush())
                return fail(file.errorString());
        }
    }
    return 0;
}

int reportFresh(const QString &path, const DEV::DeviceDb &devices)
{
    const Utils::Result<EstimateTable> table = readEstimateTable(QStringLiteral(TARVO_IP_DATA_DIR));
    const Utils::Result<FreshMeasurements> read = readFresh(path);
    if (!table || !read)
        return fail(table.reason() + read.reason());
    const QVector<SeriesShare> shares = sharesOf(*read, devices, *table);
    std::printf("%s", qPrintable(shareText(shares, *table)));
    for (const QString &miss : shares.last().misses)
        std::printf("  miss: %s\n", qPrintable(miss));
    return 0;
}

// The errors of a list of measurements against a table, as a histogram of each resource; returns
// how many do not keep the promise.
int printErrors(const char *title, const EstimateTable &table, const DEV::DeviceDb &devices,
                const QVector<Measurement> &list)
{
    int missed = 0;
    for (int i = 0; i < table.resources.size(); ++i) {
        const QString resource = table.resources.at(i);
        int count = 0;
        int exact = 0;
        int within = 0;
        QVector<double> misses;
        for (const Measurement &one : list) {
            const auto result = estimate(one.options, devices.findDevice(one.device), table);
            if (!result || !result->unmeasured.isEmpty())
                continue;
            ++count;
            const int value = result->resources.at(i).value;
            const int used = one.used.value(resource);
            const double miss = missOf(resource, value, used);
            misses << miss;
            exact += value == used ? 1 : 0;
            within += miss <= 1 ? 1 : 0;
            if (miss > 1) {
                std::printf("  miss: %-32s %-18s estimated %6d, used %6d\n", qPrintable(one.name),
                            qPrintable(resource), value, used);
                ++missed;
            }
        }
        std::sort(misses.begin(), misses.end());
        if (count > 0)
            std::printf("%-9s %-18s %4d configurations, %4d exact, %4d within the promise; "
                        "median %.2f, worst %.2f of what is allowed\n",
                        title, qPrintable(resource), count, exact, within,
                        misses.at(misses.size() / 2), misses.last());
    }
    return missed;
}

int fitTable(const QString &path, const DEV::DeviceDb &devices)
{
    const Utils::Result<Measurements> read = readMeasurements(path);
    if (!read)
        return fail(read.reason());
    const EstimateTable table = fittedTable(*read, devices);
    QString error;
    if (!Utils::FileUtils::writeFile(QStringLiteral(TARVO_ESTIMATE_TABLE), tableText(table),
                                     &error))
        return fail(error);
    QVector<Measurement> fitted;
    QVector<Measurement> heldOut;
    for (const Measurement &one : read->list)
        (one.isHeldOut ? heldOut : fitted).append(one);
    printErrors("fitted", table, devices, fitted);
    printErrors("held out", table, devices, heldOut);
    for (int i = 0; i < table.resources.size(); ++i)
        std::printf("range     %-18s %g cells or %g %%\n", qPrintable(table.resources.at(i)),
                    table.tolerances.at(i).cells, table.tolerances.at(i).percent);
    return 0;
}

// `few`: with few blocks, `count` in all; else `count` of each series.
int checkTable(const DEV::DeviceDb &devices, int count, int firstSeed, bool few)
{
    const Utils::Result<EstimateTable> table = readEstimateTable(QStringLiteral(TARVO_IP_DATA_DIR));
    if (!table)
        return fail(table.reason());
    QVector<Measurement> list;
    const QVector<DEV::DeviceArg> some = oneOfEach(devices);
    for (int i = 0; i < (few ? count : count * some.size()); ++i) {
        const int seed = firstSeed + i;
        const DEV::DeviceArg &device = some.at(few ? seed % some.size() : i / count);
        Planned planned = few ? sparse(seed, device) : random(seed, device);
        if (const auto done = measure(device, &planned.measurement); !done)
            return fail(done.reason());
        list.append(planned.measurement);
    }
    const int missed = printErrors("fresh", *table, devices, list);
    const int figures = list.size() * table->resources.size();
    std::printf("%d of %d figures do not keep the promise\n", missed, figures);
    return missed * 50 > figures ? 1 : 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QStringList arguments = application.arguments().mid(1);
    QString path = QStringLiteral(TARVO_MEASUREMENTS);
    const bool isOtherPath = !arguments.isEmpty() && arguments.first().startsWith("FILE="_l1);
    if (isOtherPath)
        path = arguments.takeFirst().mid(5);
    const DEV::DeviceDb &devices = DEV::DeviceDb::bundled();
    const QString command = arguments.value(0);
    if (command == "measure"_l1)
        return measureAll(path, devices, arguments.value(1, QStringLiteral("400")).toInt());
    if (command == "fresh"_l1)
        return measureFresh(isOtherPath ? path : QStringLiteral(TARVO_FRESH_MEASUREMENTS), devices,
                            arguments.value(2).toInt(),
                            arguments.value(1, QStringLiteral("200")).toInt(),
                            arguments.value(3).toInt());
    if (command == "report"_l1)
        return reportFresh(isOtherPath ? path : QStringLiteral(TARVO_FRESH_MEASUREMENTS), devices);
    if (command == "fit"_l1)
        return fitTable(path, devices);
    if ((command == "check"_l1 || command == "spot"_l1) && arguments.value(1).toInt() > 0)
        return checkTable(devices, arguments.at(1).toInt(),
                          arguments.value(2, QStringLiteral("1000000")).toInt(),
                          command == "spot"_l1);
    return fail(QStringLiteral(
        "estimatetable [FILE=PATH] measure [LAST] | fit | check N [SEED] | spot N [SEED] | "
        "fresh [COUNT [SKIP [MOST]]] | report"));
}
