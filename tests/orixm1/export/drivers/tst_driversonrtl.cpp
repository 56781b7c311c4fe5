// Each driver against the RTL of its block: a program that uses the driver is compiled for the
// processor with the exported files and runs in an emulator of the processor. Its accesses to
// registers become transfers on the bus of the simulated block, around which a testbench plays the
// far side.

#include "driverfiles.h"

#include <unicorn/unicorn.h>

#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <elf.h>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>

using namespace TARVOORIXM1;

namespace
{

constexpr int answerLimit = 60000; // ms
constexpr quint64 memorySize = 0x40000;
constexpr quint32 returnAddress = memorySize - 0x100; // running there ends the program
constexpr quint32 farBase = 0x70000000;
constexpr quint32 controlBase = 0x7F000000;

// A testbench that serves accesses; see rtl/serve.vh.
class Bench
{
public:
    Bench() = default;
    Bench(const Bench &) = delete;
    Bench &operator=(const Bench &) = delete;
    ~Bench()
    {
        for (const int end : {m_in, m_out}) {
            if (end >= 0)
                ::close(end);
        }
        if (m_process > 0) {
            ::kill(m_process, SIGKILL);
            int status = 0;
            ::waitpid(m_process, &status, 0);
        }
    }

    bool start(const QByteArray &program)
    {
        int in[2], out[2];
        if (::pipe2(in, O_CLOEXEC) != 0)
            return false;
        m_in = in[1];
        if (::pipe2(out, O_CLOEXEC) != 0) {
            ::close(in[0]);
            return false;
        }
        m_out = out[0];
        posix_spawn_file_actions_t actions;
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawn_file_actions_adddup2(&actions, in[0], 0);
        ::posix_spawn_file_actions_adddup2(&actions, out[1], 1);
        QByteArray tool("vvp"), option("-n"), path(program);
        char *const words[] = {tool.data(), option.data(), path.data(), nullptr};
        const bool started =
            ::posix_spawnp(&m_process, tool.constData(), &actions, nullptr, words, environ) == 0;
        if (!started)
            m_process = -1;
        ::posix_spawn_file_actions_destroy(&actions);
        ::close(in[0]);
        ::close(out[1]);
        return started;
    }

    // Has an access made that is not answered.
    void tell(char operation, quint32 address, quint32 data)
    {
        char line[32];
        const int size = qsnprintf(line, sizeof line, "%c %x %x\n", operation, address, data);
        if (!m_isLost && ::write(m_in, line, size_t(size)) != size)
            lost("it does not listen");
        // What it says in between must find room, or both would wait.
        if (++m_unanswered == 500)
            sync();
    }

    // The answer to an access. What the testbench says beside answers is kept.
    quint32 ask(char operation, quint32 address)
    {
        m_unanswered = 0;
        tell(operation, address, 0);
        while (!m_isLost) {
            const int end = m_buffer.indexOf('\n');
            if (end >= 0) {
                const QByteArray answer = m_buffer.left(end);
                m_buffer.remove(0, end + 1);
                bool isNumber = false;
                const quint32 value = answer.mid(2).toUInt(&isNumber, 16);
                if (answer.startsWith("= ") && isNumber)
                    return value;
                said += answer + '\n';
                continue;
            }
            char bytes[256];
            pollfd readable{m_out, POLLIN, 0};
            const ssize_t got =
                ::poll(&readable, 1, answerLimit) == 1 ? ::read(m_out, bytes, sizeof bytes) : -1;
            if (got <= 0)
                lost(got == 0 ? "it has ended" : "it does not answer");
            else
                m_buffer.append(bytes, int(got));
        }
        return 0;
    }

    // Waits until all accesses have been made.
    void sync() { ask('s', 0); }

    bool isLost() const { return m_isLost; }

    QByteArray said;

private:
    void lost(const char *reason)
    {
        m_isLost = true;
        said += QByteArray("the testbench is lost: ") + reason + '\n';
    }

    pid_t m_process = -1;
    int m_in = -1;
    int m_out = -1;
    int m_unanswered = 0;
    bool m_isLost = false;
    QByteArray m_buffer;
};

// The processor with a program, its memory at 0.
class Emulator
{
public:
    Emulator()
    {
        m_isGood = uc_open(UC_ARCH_ARM, uc_mode(UC_MODE_THUMB | UC_MODE_MCLASS), &m_engine) == 0 &&
                   uc_ctl_set_cpu_model(m_engine, UC_CPU_ARM_CORTEX_M0) == 0 &&
                   uc_mem_map(m_engine, 0, memorySize, UC_PROT_ALL) == 0;
        for (const quint32 base : {0x40000000u, 0x50000000u, 0x68000000u})
            mapRegisters(base, 0x02000000);
        mapRegisters(farBase, 0x00010000);
        mapRegisters(controlBase, 0x00001000);
    }
    Emulator(const Emulator &) = delete;
    Emulator &operator=(const Emulator &) = delete;
    ~Emulator()
    {
        if (m_engine)
            uc_close(m_engine);
    }

    // Runs a program, an ELF file, to the end of its entry function.
    bool run(const QByteArray &elf, Bench *bench)
    {
        m_bench = bench;
        Elf32_Ehdr header;
        if (!m_isGood || !take(elf, 0, &header))
            return false;
        for (int i = 0; i < header.e_phnum; ++i) {
            Elf32_Phdr part;
            if (!take(elf, int(header.e_phoff) + i * int(sizeof part), &part))
                return false;
            if (part.p_type == PT_LOAD &&
                uc_mem_write(m_engine, part.p_paddr, elf.constData() + part.p_offset,
                             part.p_filesz) != 0)
                return false;
        }
        const quint32 stack = returnAddress;
        const quint32 back = returnAddress | 1;
        uc_reg_write(m_engine, UC_ARM_REG_SP, &stack);
        uc_reg_write(m_engine, UC_ARM_REG_LR, &back);
        const uc_err error =
            uc_emu_start(m_engine, header.e_entry | 1, returnAddress, 600 * UC_SECOND_SCALE, 0);
        m_bench->sync();
        quint32 at = 0;
        uc_reg_read(m_engine, UC_ARM_REG_PC, &at);
        if (error != UC_ERR_OK || (at & ~1u) != returnAddress)
            failures += QStringLiteral("the program stops at 0x%1: %2\n")
                            .arg(at, 0, 16)
                            .arg(QLatin1String(uc_strerror(error)));
        return true;
    }

    int checks = 0;
    int accesses = 0;
    QString failures;

private:
    struct Range {
        Emulator *owner;
        quint32 base;
    };

    template <class Record>
    static bool take(const QByteArray &bytes, int at, Record *record)
    {
        if (at < 0 || at + int(sizeof *record) > bytes.size())
            return false;
        std::memcpy(record, bytes.constData() + at, sizeof *record);
        return true;
    }

    void mapRegisters(quint32 base, size_t size)
    {
        m_ranges[m_used] = {this, base};
        m_isGood =
            m_isGood && uc_mmio_map(m_engine, base, size, &Emulator::onRead, &m_ranges[m_used],
                                    &Emulator::onWrite, &m_ranges[m_used]) == 0;
        ++m_used;
    }

    static uint64_t onRead(uc_engine *, uint64_t offset, unsigned size, void *range)
    {
        const Range *in = static_cast<Range *>(range);
        return in->owner->access(in->base + quint32(offset), size, false, 0);
    }
    static void onWrite(uc_engine *, uint64_t offset, unsigned size, uint64_t value, void *range)
    {
        const Range *in = static_cast<Range *>(range);
        in->owner->access(in->base + quint32(offset), size, true, quint32(value));
    }

    quint32 access(quint32 address, unsigned size, bool isWrite, quint32 value)
    {
        quint32 answer = 0;
        if (size != 4)
            failures +=
                QStringLiteral("an access of %1 bytes at 0x%2\n").arg(size).arg(address, 0, 16);
        if (address >= controlBase)
            control(address - controlBase, value);
        else if (address >= farBase)
            answer = transfer('R', 'W', (address - farBase) / 4, isWrite, value);
        else {
            ++accesses;
            answer = transfer('r', 'w', address, isWrite, value);
        }
        if (m_bench->isLost())
            uc_emu_stop(m_engine);
        return answer;
    }

    quint32 transfer(char read, char write, quint32 address, bool isWrite, quint32 value)
    {
        if (!isWrite)
            return m_bench->ask(read, address);
        m_bench->tell(write, address, value);
        return 0;
    }

    // See programs/far.h.
    void control(quint32 offset, quint32 value)
    {
        switch (offset) {
        case 0:
            m_bench->tell('i', 0, value);
            break;
        case 4:
            m_actual = value;
            break;
        case 8:
            m_expected = value;
            break;
        default:
            ++checks;
            if (m_actual != m_expected)
                failures += QStringLiteral("line %1: 0x%2, expected 0x%3\n")
                                .arg(value)
                                .arg(m_actual, 0, 16)
                                .arg(m_expected, 0, 16);
        }
    }

    uc_engine *m_engine = nullptr;
    Bench *m_bench = nullptr;
    Range m_ranges[5] = {};
    int m_used = 0;
    bool m_isGood = false;
    quint32 m_actual = 0;
    quint32 m_expected = 0;
};

} // namespace

class tst_DriversOnRtl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void worksOnItsBlock_data();
    void worksOnItsBlock();
    void everyPeripheralHasARow();

private:
    SystemMap m_map;
    QTemporaryDir m_folder;
};

void tst_DriversOnRtl::initTestCase()
{
    const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(description, qPrintable(description.reason()));
    m_map = DriverFiles::systemMap(DriverFiles::options(true), *description);
    QVERIFY(m_folder.isValid());
    QVERIFY(DriverFiles::write(m_map, m_folder.path()));
    // A testbench that ends early must not end the test.
    std::signal(SIGPIPE, SIG_IGN);
}

void tst_DriversOnRtl::worksOnItsBlock_data()
{
    QTest::addColumn<QString>("sources");
    QTest::newRow("uart") << "apb_uart sync_fifo cdc_synchronizer";
    QTest::newRow("spi") << "apb_spi spi_word_shifter sync_fifo";
    QTest::newRow("i2c") << "apb_i2c sync_fifo cdc_synchronizer";
    QTest::newRow("spiflash") << "ahb_spi_flash spi_flash_shifter sync_fifo";
    QTest::newRow("sd") << "apb_sdcard sd_sequencer sd_shifter cdc_synchronizer";
    QTest::newRow("timer") << "apb_timer cdc_synchronizer";
    QTest::newRow("dtimer") << "apb_dual_timer";
    QTest::newRow("wdog") << "apb_watchdog";
    QTest::newRow("sys") << "apb_system";
    QTest::newRow("rtc") << "apb_rtc cdc_synchronizer";
    QTest::newRow("gpio") << "ahb_gpio cdc_synchronizer";
}

void tst_DriversOnRtl::worksOnItsBlock()
{
    QFETCH(QString, sources);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const QString here = QStringLiteral(DRIVER_TESTS_DIR);
    const QString rtl = QStringLiteral(RTL_DIR);
    const QString elf = m_folder.filePath(name + QStringLiteral(".elf"));
    const QString bench = m_folder.filePath(name + QStringLiteral(".vvp"));

    QCOMPARE(DriverFiles::complaints(
                 m_folder.path(),
                 {QStringLiteral("arm-none-eabi-gcc"), QStringLiteral("-mcpu=cortex-m1"),
                  QStringLiteral("-mthumb"), QStringLiteral("-std=c99"), QStringLiteral("-Os"),
                  QStringLiteral("-Wall"), QStringLiteral("-Wextra"), QStringLiteral("-Werror"),
                  QStringLiteral("-ffreestanding"), QStringLiteral("-nostdlib"),
                  QStringLiteral("-I."), QStringLiteral("-I") + here + QStringLiteral("/programs"),
                  QStringLiteral("-Wl,-Ttext=0x100,-e,test"), QStringLiteral("-o"), elf,
                  here + QStringLiteral("/programs/") + name + QStringLiteral(".c"),
                  QStringLiteral("drivers/") + name + QStringLiteral(".c"), QStringLiteral("-lc"),
                  QStringLiteral("-lgcc")}),
             QString());

    QStringList command{
        QStringLiteral("iverilog"), QStringLiteral("-g2005"),
        QStringLiteral("-Wall"),    QStringLiteral("-s"),
        QStringLiteral("tb"),       QStringLiteral("-I") + here + QStringLiteral("/rtl")};
    command << QStringLiteral("-I" RTL_TESTS_DIR) << QStringLiteral("-I" CHECKERS_DIR)
            << QStringLiteral("-y" CHECKERS_DIR) << QStringLiteral("-I") + rtl
            << QStringLiteral("-o") << bench;
    for (const QString &source : sources.split(QLatin1Char(' ')))
        command << rtl + QLatin1Char('/') + source + QStringLiteral(".v");
    command << here + QStringLiteral("/rtl/") + name + QStringLiteral(".v");
    QCOMPARE(DriverFiles::complaints(m_folder.path(), command), QString());

    Bench block;
    QVERIFY(block.start(QFile::encodeName(bench)));
    Emulator emulator;
    QVERIFY(emulator.run(TestSupport::contentsOf(elf), &block));
    QCOMPARE(QString::fromLocal8Bit(block.said), QString());
    QCOMPARE(emulator.failures, QString());
    QVERIFY(emulator.checks > 20);
    QVERIFY(emulator.accesses > 20);
}

void tst_DriversOnRtl::everyPeripheralHasARow()
{
    QStringList rows;
    for (const QFileInfo &program :
         QDir(QStringLiteral(DRIVER_TESTS_DIR "/programs")).entryInfoList({QStringLiteral("*.c")}))
        rows << program.completeBaseName();
    QStringList peripherals;
    for (const Peripheral &peripheral : qAsConst(m_map.peripherals))
        peripherals << peripheral.name.toLower();
    rows.sort();
    peripherals.sort();
    QCOMPARE(rows, peripherals);
}

TARVO_TEST_MAIN(QCoreApplication, tst_DriversOnRtl)
#include "tst_driversonrtl.moc"
