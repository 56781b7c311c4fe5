// The formats that hand the subsystem on to tools for hardware: what holds of them for any
// configuration, and that a copy of the folder is all that those tools need.

#include "commandline.h"

#include <drawnoptions.h>
#include <testsupport.h>

#include <config/descriptor.h>
#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <export/format.h>
#include <export/names.h>
#include <export/rtl.h>
#include <generate/plan.h>
#include <system/systemmap.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;
using Exported::run;
using Exported::Run;

namespace
{

struct Case {
    DEV::DeviceArg device;
    OptionMap options;
    SystemMap map;
};

QString fileOf(const Case &one, const char *format, QLatin1String suffix)
{
    for (const ExportedFile &file : findFormat(QString::fromLatin1(format))->files(one.map)) {
        if (file.path.endsWith(suffix))
            return QString::fromUtf8(file.bytes);
    }
    return {};
}

// What each match captures, with a blank between the groups.
QStringList matchesOf(const QString &text, const char *pattern)
{
    const QRegularExpression rule(QString::fromLatin1(pattern),
                                  QRegularExpression::MultilineOption);
    QStringList matches;
    for (auto it = rule.globalMatch(text); it.hasNext();)
        matches.append(it.next().capturedTexts().mid(1).join(u' '));
    return matches;
}

QString directionOf(const Port &port)
{
    return port.direction == PortDirection::Input    ? QStringLiteral("input")
           : port.direction == PortDirection::Output ? QStringLiteral("output")
                                                     : QStringLiteral("inout");
}

QString rangeOf(const Port &port, const char *form)
{
    return port.isVector() ? QString::fromLatin1(form).arg(port.left).arg(port.right) : QString();
}

// A folder with the first contents of a memory that no text may name.
const char *const nowhere = "/nowhere/on/this/machine";

} // namespace

class tst_Integration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPortStandsInEachFormat();
    void everyInputHasItsConstraint();
    void theRtlIsWhatAGenerationCompiles();
    void noFileNamesAPlaceOfThisMachine();
    void everyWaiverIsForAFileOfTheSet();
    void everyScriptChecksSomething();
    void aMemoryBeginsWithWhatTheExportHolds();
    void theBenchFailsWhereAnAccessDoes();
    void theVhdlBenchPlaysOnTheSimulationModel();
    void makeExportsAnewWhenTheConfigurationChanges();
    void cmakeExportsAnewWhenTheConfigurationChanges();

private:
    // A configuration in a folder with blanks in its name, and a copy of its export beside it.
    static QString copiedExport(const QTemporaryDir &dir, const QString &settings);

    QVector<Case> m_cases;
};

void tst_Integration::initTestCase()
{
    const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(description, qPrintable(description.reason()));
    TestSupport::Random random(17);
    QStringList names;
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices()) {
        if (names.contains(device.device()))
            continue;
        names.append(device.device());
        for (int draw = 0; draw < 3; ++draw) {
            OptionMap options = TestSupport::drawnOptions(device, random);
            options.insert(Key::initializeItcm, draw == 0);
            options.insert(Key::itcmInitializationAbsolutePath, QString::fromLatin1(nowhere));
            m_cases.append({device, options, systemMap(options, device, *description)});
        }
    }
    QVERIFY(m_cases.size() > 20);
}

void tst_Integration::everyPortStandsInEachFormat()
{
    for (const Case &one : qAsConst(m_cases)) {
        QStringList verilog;
        QStringList vhdl;
        QStringList names;
        QStringList pins;
        for (const Port &port : one.map.ports) {
            verilog.append(
                QStringList{directionOf(port), rangeOf(port, "[%1:%2]"), port.name}.join(u' '));
            vhdl.append(QStringList{port.name, directionOf(port).remove(QStringLiteral("put")),
                                    rangeOf(port, "_vector(%1 downto %2)")}
                            .join(u' '));
            names.append(port.name);
            const QString pull = port.needsPullUp ? QStringLiteral("up") : QStringLiteral("none");
            for (int bit = port.left; bit >= port.right; --bit) {
                const QString line =
                    port.isVector() ? QStringLiteral("%1[%2]").arg(port.name).arg(bit) : port.name;
                pins.append(QStringList{line, directionOf(port), pull}.join(u' '));
            }
        }
        QVERIFY(names.size() >= 3);
        const char *const declaration =
            R"(^    (input|output|inout) +(?:wire|logic) +(\[\d+:\d+\])? *(\w+))";
        QCOMPARE(matchesOf(fileOf(one, "blackbox", QLatin1String("_bb.v")), declaration), verilog);
        QCOMPARE(matchesOf(fileOf(one, "blackbox", QLatin1String("_bb.sv")), declaration), verilog);
        QCOMPARE(matchesOf(
                     fileOf(one, "blackbox", QLatin1String(".vhd")),
                     R"(^ {12}(\w+) +: (in|out|inout) +std_logic((?:_vector\(\d+ downto \d+\))?))"),
                 vhdl);
        QCOMPARE(matchesOf(fileOf(one, "pins", QLatin1String("_pins.tcl")),
                           R"(^# tarvo_orix_m1_pin \{(\S+)\} +PIN (\w+) (\w+)$)"),
                 pins);
        QCOMPARE(
            matchesOf(fileOf(one, "testbench", QLatin1String("_tb.v")), R"(^ {8}\.(\w+)\(\1\))"),
            names);
        QCOMPARE(
            matchesOf(fileOf(one, "testbench", QLatin1String("_tb.vhd")), R"(^ {12}(\w+) => \1)"),
            names);
    }
}

// A clock has a period, a sampled signal its synchronizer, and what belongs to no clock an
// exception: one of them, and only one.
void tst_Integration::everyInputHasItsConstraint()
{
    for (const Case &one : qAsConst(m_cases)) {
        const QString text = fileOf(one, "sdc", QLatin1String(".sdc"));
        const QStringList commands =
            matchesOf(text, R"(^# (\w+): .*\ntarvo_orix_m1_(clock|crossing|asynchronous) \S+$)");
        for (const Port &port : one.map.ports) {
            QStringList expected;
            const bool isClock = std::any_of(
                one.map.clocks.begin(), one.map.clocks.end(),
                [&port](const ExternalSource &clock) { return clock.port == port.name; });
            if (!port.synchronizer.isEmpty())
                expected.append(port.name + QLatin1String(" crossing"));
            else if (isClock)
                expected.append(port.name + QLatin1String(" clock"));
            else if (port.direction == PortDirection::Input && port.clock.isEmpty())
                expected.append(port.name + QLatin1String(" asynchronous"));
            else if (port.direction == PortDirection::Inout && port.name == QLatin1String("JTAG_3"))
                expected.append(port.name + QLatin1String(" asynchronous"));
            const QStringList found = commands.filter(
                QRegularExpression(QLatin1Char('^') + port.name + QLatin1Char(' ')));
            QCOMPARE(found, expected);
            if (expected.value(0).endsWith(QLatin1String(" clock")))
                QVERIFY(text.contains(QLatin1String("#   set tarvo_orix_m1_") + port.name +
                                      QLatin1String("_ns ")));
        }
    }
}

void tst_Integration::theRtlIsWhatAGenerationCompiles()
{
    QVariantMap info;
    addDataFolders(info, QStringLiteral(TARVO_IP_DATA_DIR));
    for (const Case &one : qAsConst(m_cases)) {
        GenerationInput input;
        input.options = one.options;
        input.ipInfo = info;
        input.device = one.device;
        input.createInPath = QStringLiteral("/out");
        const GenerationPlan plan = generationPlan(input);
        QMap<QString, QByteArray> expected;
        QStringList order;
        QString folder;
        for (const QString &source : plan.sources) {
            if (source.startsWith(plan.folder))
                continue;
            folder = QFileInfo(source).absolutePath();
            order.append(QLatin1String("rtl/") + QFileInfo(source).fileName());
            expected.insert(order.last(), TestSupport::contentsOf(source));
        }
        QVERIFY(order.size() > 30);
        for (const IncludeFile &file : plan.includeFiles) {
            QByteArray text;
            for (const QString &line : file.lines)
                text += line.toUtf8() + '\n';
            // The only place that a generation names.
            text.replace(nowhere, "rtl/itcm");
            expected.insert(QLatin1String("rtl/") + file.name, text);
        }
        QCOMPARE(RtlPath::compiled(one.map), order);
        // What is included stands beside.
        QMap<QString, QByteArray> found;
        for (const ExportedFile &file : findFormat(QStringLiteral("rtl"))->files(one.map))
            found.insert(file.path, file.bytes);
        static const QRegularExpression include(QStringLiteral("^`include \"([^\"]+)\""),
                                                QRegularExpression::MultilineOption);
        for (const QByteArray &bytes : qAsConst(found)) {
            for (auto it = include.globalMatch(QString::fromUtf8(bytes)); it.hasNext();) {
                const QString name = it.next().captured(1);
                const QString path = QLatin1String("rtl/") + name;
                QVERIFY2(found.contains(path), qPrintable(path));
                if (!expected.contains(path))
                    expected.insert(path, TestSupport::contentsOf(folder + u'/' + name));
            }
        }
        for (auto it = expected.begin(); it != expected.end(); ++it)
            QVERIFY2(found.value(it.key()) == it.value(), qPrintable(it.key()));
        QStringList rest = found.keys();
        for (const QString &path : expected.keys())
            rest.removeAll(path);
        QCOMPARE(rest, QStringList());
        // Both lists are this order; a simulation has a stand-in for the processor.
        const QStringList synthesised =
            matchesOf(fileOf(one, "filelist", QLatin1String("_synthesis.f")), R"(^(\w.*\.v)$)");
        QCOMPARE(synthesised, order);
        order.removeOne(QStringLiteral("rtl/cortex_m1_core.v"));
        QCOMPARE(
            matchesOf(fileOf(one, "filelist", QLatin1String("_simulation.f")), R"(^(rtl/.*\.v)$)"),
            order);
    }
}

void tst_Integration::noFileNamesAPlaceOfThisMachine()
{
    for (const Case &one : qAsConst(m_cases)) {
        for (const Format &format : formats()) {
            for (const ExportedFile &file : format.files(one.map)) {
                for (const QByteArray &place : {QByteArray(nowhere), QByteArray(TARVO_IP_DATA_DIR),
                                                QByteArray(QDir::homePath().toUtf8() + '/'),
                                                QByteArray(QDir::tempPath().toUtf8() + '/')})
                    QVERIFY2(!file.bytes.contains(place), qPrintable(file.path));
            }
        }
    }
}

void tst_Integration::everyWaiverIsForAFileOfTheSet()
{
    for (const Case &one : qAsConst(m_cases)) {
        const QStringList sources = RtlPath::compiled(one.map);
        const QString text = fileOf(one, "lint", QLatin1String(".vlt"));
        const QStringList files =
            matchesOf(text, R"re(^lint_off -rule [A-Z]+ -file "\*([^"]+)"$)re");
        QVERIFY(files.size() > 10);
        QCOMPARE(files.size(), text.count(QLatin1String("lint_off")));
        for (const QString &file : files)
            QVERIFY2(sources.contains(file), qPrintable(file));
        // Each group begins with its reason.
        for (const QString &group : text.split(QStringLiteral("\n\n")).mid(1))
            QVERIFY2(group.startsWith(QLatin1String("// ")), qPrintable(group));
    }
}

void tst_Integration::everyScriptChecksSomething()
{
    for (const Case &one : qAsConst(m_cases)) {
        const QString text = fileOf(one, "testbench", QLatin1String("_tb.play"));
        const QStringList reads = matchesOf(text, R"(^read (0x\S+))");
        for (const Region &region : one.map.regions) {
            const auto isIn = [&region](const QString &address) {
                return region.contains(address.toUInt(nullptr, 16));
            };
            if (region.kind == RegionKind::ExtensionPort)
                QVERIFY2(std::any_of(reads.begin(), reads.end(), isIn), qPrintable(region.name));
        }
        const QStringList refused = matchesOf(text, R"(^error (0x\S+))");
        QCOMPARE(refused.size(), 1);
        QVERIFY(isRefused(one.map, refused.first().toUInt(nullptr, 16), BusAccess::Read));
    }
}

QString tst_Integration::copiedExport(const QTemporaryDir &dir, const QString &settings)
{
    const Run made = run(
        dir.path(), QLatin1String("orixm1 new --device TV2KR-18C-QFN88P-C8/I7 ") + settings +
                        QLatin1String(" --out ip && orixm1 export ip/tarvo_orix_m1.ipc --out ip/hw"
                                      " && mkdir 'my project' && cp ip/*.ipc 'my project' && "
                                      "cp -r ip/hw 'my project/the subsystem' && rm -r ip"));
    return made.status == 0 ? dir.filePath(QStringLiteral("my project/the subsystem")) : QString();
}

void tst_Integration::aMemoryBeginsWithWhatTheExportHolds()
{
    const QTemporaryDir dir;
    const QString itcm = dir.filePath(QStringLiteral("contents"));
    for (int lane = 0; lane < 4; ++lane)
        QVERIFY(TestSupport::write(itcm + QStringLiteral("/itcm%1").arg(lane),
                                   QByteArray::number(0xA0 + lane, 16).append('\n').repeated(256)));
    const QString folder =
        copiedExport(dir, QStringLiteral("--set ITCM_Size=0 --set 'Initialize ITCM=true' --set "
                                         "ITCM_Initialization_Path=%1")
                              .arg(itcm));
    QVERIFY(!folder.isEmpty());
    QVERIFY(QDir(itcm).removeRecursively());
    QVERIFY(
        TestSupport::write(folder + QLatin1String("/own.play"), "read 0x00000040 0xA3A2A1A0\n"));
    const Run played = run(folder, QStringLiteral("iverilog -g2005-sv -s tarvo_orix_m1_tb -o s -c "
                                                  "tarvo_orix_m1_simulation.f; vvp -n s "
                                                  "+script=own.play"));
    QVERIFY2(played.status == 0 && played.said.startsWith(QLatin1String("PASS\n")),
             qPrintable(played.said));
    // Without the files the export says where they are awaited.
    const Run again = run(folder, QStringLiteral("orixm1 export ../tarvo_orix_m1.ipc rtl --out x"));
    QCOMPARE(again.status, 0);
    QVERIFY2(again.said.contains(QLatin1String("rtl/itcm")), qPrintable(again.said));
}

void tst_Integration::theBenchFailsWhereAnAccessDoes()
{
    const QTemporaryDir dir;
    const QString folder = copiedExport(dir, QStringLiteral("--set 'Enable UART0=true'"));
    QVERIFY(!folder.isEmpty());
    const QString compile = QStringLiteral(
        "iverilog -g2005-sv -s tarvo_orix_m1_tb -o s -c tarvo_orix_m1_simulation.f; ");
    const Run good =
        run(folder, compile + QLatin1String("vvp -n s +script=sim/tarvo_orix_m1_tb.play"));
    QVERIFY2(good.status == 0 && good.said.startsWith(QLatin1String("PASS\n")),
             qPrintable(good.said));
    for (const char *script :
         {"read 0x50004004 0x00000001\n", "error 0x50004004\n", "wait 5\n", "wait 200000\n"}) {
        QVERIFY(TestSupport::write(folder + QLatin1String("/bad.play"), script));
        const Run bad = run(folder, QStringLiteral("vvp -n s +script=bad.play"));
        QVERIFY2(bad.status > 0, qPrintable(bad.said));
    }
}

void tst_Integration::theVhdlBenchPlaysOnTheSimulationModel()
{
    const QTemporaryDir dir;
    const QString folder = copiedExport(
        dir,
        QStringLiteral("--language vhdl --set 'Enable UART0=true' --set Enable_APB_Master1=true"));
    QVERIFY(!folder.isEmpty());
    const Run made =
        run(folder, QStringLiteral("make -s -f tarvo_orix_m1.mk tarvo_orix_m1_netlist"));
    QVERIFY2(made.status == 0, qPrintable(made.said));
    const Run played =
        run(folder, QStringLiteral("ghdl -a netlist/tarvo_orix_m1.vho sim/cortex_m1_core_bfm.vhd "
                                   "tarvo_orix_m1_pkg.vhd sim/tarvo_orix_m1_tb.vhd; "
                                   "ghdl -r tarvo_orix_m1_tb"));
    QVERIFY2(played.status == 0, qPrintable(played.said));
    QCOMPARE(played.said, QStringLiteral("PASS\n"));
    // A second time there is nothing to do.
    const Run again = run(folder, QStringLiteral("make -f tarvo_orix_m1.mk tarvo_orix_m1_netlist"));
    QVERIFY2(again.said.contains(QLatin1String("Nothing to be done")), qPrintable(again.said));
}

void tst_Integration::makeExportsAnewWhenTheConfigurationChanges()
{
    const QTemporaryDir dir;
    const QString folder = copiedExport(dir, QStringLiteral("--set 'Enable Debug=true'"));
    QVERIFY(!folder.isEmpty());
    QVERIFY(
        TestSupport::write(folder + QLatin1String("/own.mk"),
                           "include tarvo_orix_m1.mk\nall:\n\t@echo $(TARVO_ORIX_M1_SOURCES)\n"));
    const QString make = QStringLiteral("make -s -f own.mk");
    const Run before = run(folder, make);
    QVERIFY2(before.status == 0 && before.said.contains(QLatin1String("./rtl/dtcmdbg.v")),
             qPrintable(before.said));
    for (const QString &name : before.said.simplified().split(u' '))
        QVERIFY2(QFileInfo::exists(folder + u'/' + name), qPrintable(name));
    const Run change = run(folder, QStringLiteral("sed -i 's/Debug=true/Debug=false/' ../*.ipc; "
                                                  "touch -d '1 minute' ../*.ipc"));
    QVERIFY2(change.status == 0, qPrintable(change.said));
    // Without the program what stands here stays.
    const Run without = run(folder, make + QLatin1String(" ORIXM1=no-such-program"));
    QCOMPARE(without.said, before.said);
    const Run after = run(folder, QLatin1String("touch ../*.ipc; ") + make);
    QVERIFY2(after.status == 0 && after.said.contains(QLatin1String("./rtl/dtcm.v")) &&
                 !after.said.contains(QLatin1String("./rtl/dtcmdbg.v")),
             qPrintable(after.said));
    QVERIFY(after.said.endsWith(run(folder, make).said));
}

void tst_Integration::cmakeExportsAnewWhenTheConfigurationChanges()
{
    const QTemporaryDir dir;
    const QString folder = copiedExport(dir, QStringLiteral("--set 'Enable Debug=true'"));
    QVERIFY(!folder.isEmpty());
    const QString project = QFileInfo(folder).absolutePath();
    QVERIFY(TestSupport::write(project + QLatin1String("/CMakeLists.txt"),
                               "cmake_minimum_required(VERSION 3.18)\nproject(mine NONE)\n"
                               "include(\"the subsystem/tarvo_orix_m1.cmake\")\n"
                               "add_custom_command(OUTPUT list COMMAND ${CMAKE_COMMAND} -E echo "
                               "${TARVO_ORIX_M1_SOURCES} > list DEPENDS ${TARVO_ORIX_M1_SOURCES} "
                               "${TARVO_ORIX_M1_SIMULATION_SOURCES} VERBATIM)\n"
                               "add_custom_target(mine ALL DEPENDS list)\n"));
    const auto list = [&project] {
        return QString::fromUtf8(TestSupport::contentsOf(project + QLatin1String("/build/list")));
    };
    const Run before =
        run(project, QStringLiteral("cmake -G Ninja -S . -B build; cmake --build build"));
    QVERIFY2(before.status == 0 && list().contains(QLatin1String("/rtl/dtcmdbg.v")),
             qPrintable(before.said));
    const QString again = QStringLiteral("cmake --build build");
    const Run idle = run(project, again);
    QVERIFY2(idle.said.contains(QLatin1String("no work to do")), qPrintable(idle.said));
    const Run after =
        run(project, QLatin1String("sed -i 's/Debug=true/Debug=false/' *.ipc; ") + again);
    QVERIFY2(after.status == 0 && list().contains(QLatin1String("/rtl/dtcm.v")) &&
                 !list().contains(QLatin1String("dbg.v")),
             qPrintable(after.said));
    QVERIFY(run(project, again).said.contains(QLatin1String("no work to do")));
}

TARVO_TEST_MAIN(QCoreApplication, tst_Integration)
#include "tst_integration.moc"
