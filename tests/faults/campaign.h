#pragma once

#include "faultplan.h"

#include <markedprocesses.h>

#include <QDirIterator>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QMap>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <iterator>
#include <memory>
#include <sys/mman.h>

// Runs of the command line in which something goes wrong.
namespace Faults
{

using Files = QMap<QString, QByteArray>; // by the path relative to a folder

// What stands in the folder that a run writes into: the results of another configuration, nothing,
// or the same results.
enum Before { Other, Nothing, Same };

// A call of the system that is to fail, and how.
struct Fault {
    QByteArray kind; // empty: none
    int at = 0;
    int effect = 0;
    bool lasting = false;
    QByteArray programs = "orixm1";
    Before before = Other;

    QString toString() const
    {
        return QStringLiteral("%1 number %2%3 in %4, effect %5, before %6")
            .arg(QString::fromLatin1(kind))
            .arg(at)
            .arg(lasting ? QStringLiteral(" and later") : QString(), QString::fromLatin1(programs))
            .arg(effect)
            .arg(before);
    }
};

enum Command { New, IncludeFiles, Generate, Export };
inline constexpr int commandCount = 4;

class Campaign
{
public:
    explicit Campaign(const QString &program)
        : m_program(program)
    {
        // Takes the place of the subsystem's sources, so that a run is short.
        TestSupport::write(path("ip/data/debug/top.v"),
                           "module Tarvo_ORIX_M1_Top (input HCLK, input hwRstn, input [7:0] a,\n"
                           "                          output reg [7:0] y, output reg [3:0] z);\n"
                           "    reg [7:0] memory [0:2047];\n"
                           "    reg [10:0] at;\n"
                           "    always @(posedge HCLK or negedge hwRstn)\n"
                           "        if (!hwRstn) at <= 11'd0; else at <= at + 11'd1;\n"
                           "    always @(posedge HCLK) memory[at] <= a;\n"
                           "    always @(posedge HCLK) y <= memory[~at];\n"
                           "`include \"ahb_option_defs.v\"\n"
                           "`ifdef TARVO_GPIO_SUPPORT\n"
                           "    always @(posedge HCLK) z <= a[3:0] + a[7:4];\n"
                           "`else\n"
                           "    always @(posedge HCLK) z <= a[3:0] ^ a[7:4];\n"
                           "`endif\n"
                           "endmodule\n");
        QFile::copy(QStringLiteral(TARVO_IP_DATA_DIR "/tarvo_orix_m1.ipspec"),
                    path("ip/tarvo_orix_m1.ipspec"));
        // One peripheral is enough to be exported.
        QDir().mkpath(path("ip/registers"));
        QFile::copy(QStringLiteral(TARVO_IP_DATA_DIR "/registers/gpio.json"),
                    path("ip/registers/gpio.json"));
        const QByteArray config = "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\n"
                                  "type=tarvo.tarvo_orix_m1\nversion=1.0\n\n[Config]\nLANG=1\n";
        TestSupport::write(path("0.ipc"), config);
        TestSupport::write(path("1.ipc"),
                           config + "Enable%20GPIO=true\nEnable%20UART0=true\nITCM_Size=4\n"
                                    "Enable%20APB%20Master%201=true\n");
        for (const char *folder : {"tmp", "home"})
            QDir().mkpath(path(folder));
        TestSupport::write(path("state"), QByteArray(sizeof(FaultState), '\0'));
        QFile state(path("state"));
        if (state.open(QIODevice::ReadWrite))
            m_state = reinterpret_cast<FaultState *>(::mmap(nullptr, sizeof(FaultState),
                                                            PROT_READ | PROT_WRITE, MAP_SHARED,
                                                            state.handle(), 0));
    }
    ~Campaign() { ::munmap(m_state, sizeof(FaultState)); }
    Q_DISABLE_COPY(Campaign)

    // Makes what later runs are compared with; a complaint, or empty.
    QString prepare()
    {
        for (const Command command : {New, IncludeFiles, Generate, Export}) {
            for (const int choice : {0, 1}) {
                QDir(path("out")).removeRecursively();
                auto process = start(command, choice, {});
                if (!finished(*process) || process->exitCode() != 0)
                    return QString::fromUtf8(process->readAll());
                m_expected[command][choice] = filesOf(path("out"));
            }
            if (m_expected[command][0].keys() != m_expected[command][1].keys() ||
                m_expected[command][0] == m_expected[command][1])
                return QStringLiteral("The two configurations do not tell what they should.");
        }
        return {};
    }

    // How many calls of a kind a run makes; -1 if it fails.
    int calls(Command command, const QByteArray &kind, const QByteArray &programs = "orixm1",
              Before before = Other)
    {
        const QByteArray known =
            QByteArray::number(command) + ' ' + QByteArray::number(before) + ' ' + programs + ' ';
        if (!m_calls.contains(known + kind)) {
            reset(before, command);
            Fault fault;
            fault.kind = "none";
            fault.programs = programs;
            auto process = start(command, 1, fault);
            const bool good = finished(*process) && process->exitCode() == 0;
            for (std::size_t i = 0; i < std::size(kinds); ++i)
                m_calls.insert(known + kinds[i], good ? m_state->counts[i].load() : -1);
        }
        return m_calls.value(known + kind, -1);
    }

    // One run over the results of another configuration, with one fault. A complaint, or empty.
    QString run(Command command, const Fault &fault)
    {
        reset(fault.before, command);
        auto process = start(command, 1, fault);
        const bool ended = finished(*process);
        const QString said = QString::fromUtf8(process->readAll());
        const bool kills = fault.effect < ShortCount;
        const bool inTool = fault.programs != "orixm1";
        m_fired = m_state->fired > 0;
        m_status = process->exitStatus() == QProcess::NormalExit ? process->exitCode() : -1;
        const auto complain = [&](const QString &what) {
            return QStringLiteral("%1 (command %2, %3; status %4; it said: %5)")
                .arg(what)
                .arg(command)
                .arg(fault.toString())
                .arg(m_status)
                .arg(said);
        };
        if (!ended)
            return complain(QStringLiteral("It hangs"));
        if (m_status < 0 && !(kills && m_fired && !inTool))
            return complain(QStringLiteral("It crashed"));
        if (!nothingRuns())
            return complain(QStringLiteral("A process stays"));
        if (kills && m_status < 0)
            return afterKill(command, complain);
        // A folder that cannot be read, or files that cannot be removed, stay until the next run.
        const bool mayStay = fault.lasting && (fault.kind == "unlink" || fault.kind == "open");
        if (const QString left = leftOver(command); !left.isEmpty() && !mayStay)
            return complain(left);
        const Files now = filesOf(path("out"), m_expected[command][1]);
        if (m_status == 0) {
            const QString manifest = QStringLiteral("temp/tv_orix_m1/manifest.json");
            const Files &wanted = m_expected[command][1];
            Files there = now;
            if (there.contains(manifest))
                there[manifest] = wanted.value(manifest);
            if (!sameBut(there, wanted))
                return complain(
                    QStringLiteral("It reports success, but what is there is not right"));
            // A file that could not be read makes no difference to the results, but nobody knows it
            // then.
            if (now.value(manifest) != wanted.value(manifest) && isToldAsFresh(command))
                return complain(
                    QStringLiteral("The manifest is another one, and yet all is told as fresh"));
            // Only the log may be lost without a word.
            if (m_state->onFile > 0 && fault.effect > 0 && !inTool &&
                (command != Generate || (isNewLog(now) && fault.before != Same)))
                return complain(QStringLiteral("It takes an error for a success"));
            return {};
        }
        // Where nothing can be put in place any more, nothing can be put back.
        if (const QString half = notWhole(command, now, fault.lasting); !half.isEmpty())
            return complain(half);
        if (!said.contains(m_dir.path()) &&
            !said.contains(QLatin1String("yosys"), Qt::CaseInsensitive))
            return complain(QStringLiteral("It names nothing"));
        if (fault.effect > 0 && !inTool &&
            !said.contains(QString::fromLocal8Bit(std::strerror(fault.effect))) &&
            !(fault.effect == EACCES && said.contains(QLatin1String("is not writable"))))
            return complain(QStringLiteral("It gives no cause"));
        if (said.contains(QLatin1String("Unknown error")) ||
            said.contains(QLatin1String("memory fits no memory primitive")))
            return complain(QStringLiteral("It misleads"));
        return {};
    }

    // SIGKILL after some time.
    QString killAfter(Command command, int milliseconds)
    {
        reset(Other, command);
        auto process = start(command, 1, {});
        process->waitForFinished(milliseconds);
        m_fired = process->state() != QProcess::NotRunning;
        process->kill();
        const auto complain = [&](const QString &what) {
            return QStringLiteral("%1 (command %2, killed after %3 ms)")
                .arg(what)
                .arg(command)
                .arg(milliseconds);
        };
        if (!finished(*process))
            return complain(QStringLiteral("It hangs"));
        if (!nothingRuns())
            return complain(QStringLiteral("A process stays"));
        return afterKill(command, complain);
    }

    // Two runs of different configurations into one folder, started at once.
    QString pair(Command command, int delayMicroseconds)
    {
        QDir(path("out")).removeRecursively();
        auto first = start(command, 0, {});
        QThread::usleep(ulong(delayMicroseconds));
        auto second = start(command, 1, {});
        QProcess *const both[] = {first.get(), second.get()};
        QString complaint;
        int good = 0;
        m_refused = 0;
        bool matches = false;
        for (QProcess *process : both) {
            if (!finished(*process))
                complaint = QStringLiteral("One hangs");
        }
        const Files now = filesOf(path("out"), m_expected[command][0]);
        for (const int choice : {0, 1}) {
            const QString said = QString::fromUtf8(both[choice]->readAll());
            if (both[choice]->exitStatus() != QProcess::NormalExit)
                complaint = QStringLiteral("One crashed");
            else if (both[choice]->exitCode() == 0) {
                ++good;
                matches = matches || sameBut(now, m_expected[command][choice]);
            } else {
                ++m_refused;
                if (!said.contains(QLatin1String("/.tarvo-run.lock")) ||
                    !said.contains(QLatin1String("another run is working there")))
                    complaint = QStringLiteral("One was not refused but failed: ") + said;
            }
        }
        if (complaint.isEmpty() && good == 0)
            complaint = QStringLiteral("Both were refused");
        if (complaint.isEmpty() && !matches)
            complaint = QStringLiteral("What is there is of neither successful run");
        if (complaint.isEmpty())
            complaint = leftOver(command);
        if (complaint.isEmpty() && !nothingRuns())
            complaint = QStringLiteral("A process stays");
        return complaint;
    }

    // Of the last run: whether the fault came to pass, the exit status (-1: killed), how many of a
    // pair were refused.
    bool fired() const { return m_fired; }
    int status() const { return m_status; }
    int refused() const { return m_refused; }
    QString folder() const { return m_dir.path(); }

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    static Files filesOf(const QString &folder, const Files &known = {})
    {
        Files files;
        QDirIterator iterator(folder, QDir::Files | QDir::Hidden | QDir::System,
                              QDirIterator::Subdirectories);
        while (iterator.hasNext()) {
            const QString file = iterator.next();
            const QString name = file.mid(folder.size() + 1);
            if (known.isEmpty() || known.contains(name))
                files.insert(name, TestSupport::contentsOf(file));
        }
        return files;
    }

    static bool isLog(const QString &name) { return name.endsWith(QLatin1String(".log")); }

    // Whether the log is of the run that is looked at.
    bool isNewLog(const Files &now) const
    {
        const QString log = QStringLiteral("temp/tv_orix_m1/tarvo_orix_m1.log");
        return now.value(log) != m_before.value(log);
    }

    static bool sameBut(Files one, Files other)
    {
        for (Files *files : {&one, &other}) {
            for (auto it = files->begin(); it != files->end();)
                it = isLog(it.key()) ? files->erase(it) : ++it;
        }
        return one == other;
    }

    Files filesBefore(Before before, Command command) const
    {
        return before == Nothing ? Files() : m_expected[command][before == Other ? 0 : 1];
    }

    void reset(Before before, Command command)
    {
        for (std::atomic<int> &count : m_state->counts)
            count = 0;
        m_state->fired = 0;
        m_state->onFile = 0;
        m_state->main = 0;
        for (const char *folder : {"out", "tmp", "home"}) {
            QDir(path(folder)).removeRecursively();
            QDir().mkpath(path(folder));
        }
        m_before = filesBefore(before, command);
        const Files &files = m_before;
        for (auto it = files.begin(); it != files.end(); ++it)
            TestSupport::write(path("out/") + it.key(), it.value());
    }

    QStringList arguments(Command command, int choice) const
    {
        const QStringList data{QStringLiteral("--data"), path("ip")};
        const QStringList out{QStringLiteral("--out"), path("out")};
        if (command == New)
            return data +
                   QStringList{QStringLiteral("new"),
                               QStringLiteral("--force"),
                               QStringLiteral("--device"),
                               QStringLiteral("TV2KR-18C-QFN88P-C8/I7"),
                               QStringLiteral("--set"),
                               choice == 0 ? QStringLiteral("Enable UART0=true")
                                           : QStringLiteral("Enable GPIO=true")} +
                   out;
        // Two formats are enough for several files.
        if (command == Export)
            return data +
                   QStringList{QStringLiteral("export"), path(choice == 0 ? "0.ipc" : "1.ipc"),
                               QStringLiteral("header"), QStringLiteral("startup")} +
                   out;
        QStringList list =
            data + QStringList{QStringLiteral("generate"), path(choice == 0 ? "0.ipc" : "1.ipc")} +
            out;
        // A run that nothing calls for, or whose results are at hand, would meet no fault.
        list << QStringLiteral("--force") << QStringLiteral("--no-cache");
        if (command == IncludeFiles)
            list << QStringLiteral("--no-synth");
        return list;
    }

    bool isToldAsFresh(Command command) const
    {
        QStringList list = arguments(command, 1);
        list.removeAll(QStringLiteral("--force"));
        list << QStringLiteral("--check");
        const std::unique_ptr<QProcess> process = start(list, {});
        return finished(*process) && process->exitCode() == 0;
    }

    std::unique_ptr<QProcess> start(Command command, int choice, const Fault &fault) const
    {
        return start(arguments(command, choice), fault);
    }

    std::unique_ptr<QProcess> start(const QStringList &list, const Fault &fault) const
    {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const auto set = [&environment](const char *name, const QByteArray &value) {
            environment.insert(QString::fromLatin1(name), QString::fromUtf8(value));
        };
        set(m_mark.name().constData(), m_mark.value());
        set("TMPDIR", path("tmp").toUtf8());
        set("HOME", path("home").toUtf8());
        if (!fault.kind.isEmpty()) {
            set("LD_PRELOAD", TARVO_FAULT_LIBRARY);
            set("TARVO_FAULT_PROGRAMS", fault.programs);
            set("TARVO_FAULT_KIND", fault.kind);
            set("TARVO_FAULT_AT", QByteArray::number(fault.at));
            set("TARVO_FAULT_EFFECT", QByteArray::number(fault.effect));
            set("TARVO_FAULT_LASTING", fault.lasting ? "1" : "0");
            set("TARVO_FAULT_STATE", path("state").toUtf8());
        }
        process->setProcessEnvironment(environment);
        process->setProcessChannelMode(QProcess::MergedChannels);
        process->start(m_program, list);
        return process;
    }

    static bool finished(QProcess &process)
    {
        if (process.state() == QProcess::NotRunning || process.waitForFinished(60000))
            return true;
        process.kill();
        process.waitForFinished();
        return false;
    }

    // What is killed goes when the kernel gets round to it.
    bool nothingRuns() const
    {
        QElapsedTimer clock;
        clock.start();
        while (!m_mark.processes().isEmpty()) {
            if (clock.hasExpired(20000))
                return false;
            QThread::msleep(1);
        }
        return true;
    }

    QString leftOver(Command command) const
    {
        for (const char *folder : {"tmp", "home"}) {
            const QStringList entries = TestSupport::entriesOf(path(folder));
            if (!entries.isEmpty())
                return QStringLiteral("Left over in %1: %2")
                    .arg(QLatin1String(folder), entries.join(u' '));
        }
        QDirIterator iterator(path("out"),
                              QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                              QDirIterator::Subdirectories);
        while (iterator.hasNext()) {
            const QString name = iterator.next().mid(path("out/").size());
            const bool isFolder = iterator.fileInfo().isDir();
            if (!m_expected[command][1].contains(name) &&
                !(isFolder && holdsExpected(command, name)))
                return QStringLiteral("Left over: ") + name;
        }
        return {};
    }

    bool holdsExpected(Command command, const QString &folder) const
    {
        const QStringList names = m_expected[command][1].keys();
        return folder == QLatin1String("temp") || folder == QLatin1String("temp/tv_orix_m1") ||
               std::any_of(names.begin(), names.end(), [&folder](const QString &name) {
                   return name.startsWith(folder + u'/');
               });
    }

    // Whether a file is as it was before or as it is to be.
    bool isWhole(Command command, const Files &now, const QString &name) const
    {
        if (isLog(name))
            return true;
        if (!now.contains(name))
            return !m_before.contains(name);
        // It tells of a run that failed, too; that this is the truth has a test of its own.
        if (name.endsWith(QLatin1String("/manifest.json")))
            return QJsonDocument::fromJson(now.value(name)).isObject();
        return now.value(name) == m_expected[command][1].value(name) ||
               (m_before.contains(name) && now.value(name) == m_before.value(name));
    }

    // Every file is there, old or new; those that a run places together are of one kind.
    QString notWhole(Command command, const Files &now, bool mayMix) const
    {
        const Files &after = m_expected[command][1];
        int together = 0;
        for (auto it = after.begin(); it != after.end(); ++it) {
            const QString name = it.key();
            if (!isWhole(command, now, name))
                return QStringLiteral("Neither old nor new: ") + name;
            if (isLog(name) || m_before.value(name) == it.value() ||
                (command != Export &&
                 !name.startsWith(QLatin1String("temp/tv_orix_m1/tarvo_orix_m1"))))
                continue;
            together |= now.value(name) == it.value() ? 2 : 1;
        }
        return together == 3 && !mayMix ? QStringLiteral("The results of one run are partly old")
                                        : QString();
    }

    // What a killed run has left is whole, and the next one is as if nothing had been.
    template <typename Complain>
    QString afterKill(Command command, const Complain &complain)
    {
        const Files now = filesOf(path("out"), m_expected[command][1]);
        const QStringList names = m_expected[command][1].keys();
        for (const QString &name : names) {
            if (!isWhole(command, now, name))
                return complain(QStringLiteral("Neither old nor new: ") + name);
        }
        for (const char *folder : {"tmp", "home"}) {
            if (!TestSupport::entriesOf(path(folder)).isEmpty())
                return complain(QStringLiteral("Left over in ") + QLatin1String(folder));
        }
        auto next = start(command, 1, {});
        if (!finished(*next) || next->exitCode() != 0)
            return complain(QStringLiteral("The next run fails: ") +
                            QString::fromUtf8(next->readAll()));
        if (const QString left = leftOver(command); !left.isEmpty())
            return complain(left);
        return sameBut(filesOf(path("out")), m_expected[command][1])
                   ? QString()
                   : complain(QStringLiteral("The next run gives something else"));
    }

    QTemporaryDir m_dir;
    const QString m_program;
    TestSupport::Mark m_mark;
    FaultState *m_state = nullptr;
    Files m_expected[commandCount][2];
    Files m_before;
    QMap<QByteArray, int> m_calls;
    bool m_fired = false;
    int m_status = 0;
    int m_refused = 0;
};

// The errors that a full disk, a broken one, missing rights and too many open files give.
inline constexpr int errorNumbers[] = {ENOSPC, EIO, EACCES, EMFILE};

} // namespace Faults
