#include "simulateprocess.h"

#include <testsupport.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

using Run = SimulateProcess::Run;

// A program that ends with the number of the first line that is not as it has to be.
QByteArray program(const QByteArray &drivers, const QByteArray &declarations,
                   const QByteArray &statements)
{
    QByteArray text = "#include \"system_tarvo_orix_m1.h\"\n";
    for (const QByteArray &driver : drivers.split(' '))
        text += "#include \"" + driver + ".h\"\n";
    return text +
           "#define LIMIT 2000u\n"
           "#define EXPECT(what) do { if (!(what)) return __LINE__; } while (0)\n"
           "#line 1\n" +
           declarations + "\nint main(void)\n{\n" + statements + "    return 0;\n}\n";
}

} // namespace

// Programs for the processor and what stands on the board of their simulation.
class tst_CliBoard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }

    // Nothing is lost before the program listens, nor when it listens anew.
    void aUartReceivesAFile()
    {
        TestSupport::write(path("in"), QByteArray("be\0\xFFgin\nsecond\n", 15));
        const Run run =
            simulate("Enable%20UART0=true\n", program("uart", "static uint8_t text[15];", R"(
    int i;
    volatile int wait;
    for (wait = 0; wait < 500; ++wait) { }
    EXPECT(uart_init(UART0, SystemCoreClock, 1000000u) == UART_OK);
    EXPECT(uart_read(UART0, text, 8, LIMIT) == 8 && text[7] == '\n');
    uart_stop(UART0);
    for (wait = 0; wait < 200; ++wait) { }
    EXPECT(uart_init(UART0, SystemCoreClock, 2000000u) == UART_OK);
    EXPECT(uart_read(UART0, text + 8, 7, LIMIT) == 7);
    EXPECT(uart_take_errors(UART0) == 0);
    for (i = 0; i < 15; ++i)
        EXPECT(uart_put(UART0, text[i], LIMIT) == UART_OK);
    EXPECT(uart_get(UART0, text, 100) == UART_ERROR_TIMEOUT);
)"),
                     words({"--uart0-input", "in"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(run.out, TestSupport::contentsOf(path("in")));
    }

    void everyFormatComesAndGoes_data()
    {
        QTest::addColumn<QString>("engine");
        QTest::newRow("Icarus") << QStringLiteral("icarus");
        QTest::newRow("Verilator") << QStringLiteral("verilator");
    }

    // A byte in each format, at rates with a fraction and beside breaks; of shorter characters the
    // bits that they have. What the FIFO holds when the program ends comes too.
    void everyFormatComesAndGoes()
    {
        QFETCH(QString, engine);
        QByteArray in, out;
        for (int bits = 5; bits <= 9; ++bits) {
            for (int i = 0; i < 10; ++i) {
                in.append(char(0xC5 + 37 * in.size()));
                out.append(char(in.back() & ((1 << bits) - 1)));
            }
        }
        TestSupport::write(path("in"), in);
        const Run run = simulate("Enable%20UART0=true\n",
                                 program("uart",
                                         "static const uart_parity parities[] = {UART_PARITY_NONE, "
                                         "UART_PARITY_EVEN, UART_PARITY_ODD, UART_PARITY_SPACE, "
                                         "UART_PARITY_MARK};",
                                         R"(
    uint32_t bits, i, character, rate = 3100000u;
    for (bits = 5; bits <= 9; ++bits) {
        for (i = 0; i < 10; ++i) {
            EXPECT(uart_init(UART0, SystemCoreClock, rate) == UART_OK);
            EXPECT(uart_set_format(UART0, bits, parities[i / 2], 1 + i % 2, true) == UART_OK);
            EXPECT(uart_get_character(UART0, &character, LIMIT) == UART_OK);
            UART0->CTRL = UART_CTRL_TXEN_Msk; /* the next one has another format */
            EXPECT(character <= 0xFF && uart_take_errors(UART0) == 0);
            if (i == 3)
                EXPECT(uart_send_break(UART0, LIMIT) == UART_OK);
            EXPECT(uart_put_character(UART0, character | 0x100, LIMIT) == UART_OK);
            EXPECT(uart_flush(UART0, LIMIT) == UART_OK);
            rate -= 40009u;
        }
    }
    EXPECT(uart_init(UART0, SystemCoreClock, 1000000u) == UART_OK);
    EXPECT(uart_set_format(UART0, 9, UART_PARITY_ODD, 2, false) == UART_OK);
    uart_stop(UART0);
    EXPECT(uart_write(UART0, "the last sixteen", 16, 1) == 16);
    UART0->CTRL = UART_CTRL_TXEN_Msk | UART_CTRL_BREAK_Msk;
    UART0->CTRL = UART_CTRL_TXEN_Msk;
)"),
                                 QStringList{QStringLiteral("--uart0-input"), QStringLiteral("in"),
                                             QStringLiteral("--engine"), engine});
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(run.out, out + "the last sixteen");
    }

    // Bytes at the rate of the line, without pauses: as fast as the program that takes them.
    void bytesComeBackToBack()
    {
        TestSupport::write(path("in"), QByteArray(20, 'x'));
        const Run run =
            simulate("Enable%20UART1=true\n",
                     program("uart", "", R"(
    uint8_t byte;
    int i;
    uint32_t begun;
    EXPECT(uart_init(UART1, SystemCoreClock, 500000u) == UART_OK);
    EXPECT(uart_get(UART1, &byte, LIMIT) == UART_OK);
    SysTick_LOAD = 0xFFFFFFu;
    SysTick_CTRL = 5u;
    begun = SysTick_VAL;
    for (i = 1; i < 20; ++i)
        EXPECT(uart_get(UART1, &byte, LIMIT) == UART_OK && byte == 'x');
    begun = (begun - SysTick_VAL) & 0xFFFFFFu;
    EXPECT(begun > 18000u && begun < 19200u);
)")
                         .replace("int main", "#define SysTick_CTRL (*(volatile uint32_t "
                                              "*)0xE000E010u)\n#define SysTick_LOAD "
                                              "(*(volatile uint32_t *)0xE000E014u)\n"
                                              "#define SysTick_VAL (*(volatile uint32_t "
                                              "*)0xE000E018u)\nint main"),
                     words({"--uart1-input", "in"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
    }

    void uartsHearThemselvesOrEachOther_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("first"); // what UART1 and UART0 hear of "1" and "0"
        QTest::newRow("as they are") << words({}) << QByteArray("1-");
        QTest::newRow("crossed") << words({"--uarts", "crossed"}) << QByteArray("01");
        QTest::newRow("with a file") << words({"--uart1-input", "in"}) << QByteArray("f-");
    }

    void uartsHearThemselvesOrEachOther()
    {
        QFETCH(QStringList, options);
        QFETCH(QByteArray, first);
        TestSupport::write(path("in"), "f");
        const Run run = simulate("Enable%20UART0=true\nEnable%20UART1=true\n",
                                 program("uart", "", R"(
    uint8_t at1 = '-', at0 = '-';
    uart_init(UART0, SystemCoreClock, 1000000u);
    uart_init(UART1, SystemCoreClock, 1000000u);
    uart_put(UART1, '1', LIMIT);
    uart_put(UART0, '0', LIMIT);
    uart_get(UART1, &at1, 200u);
    uart_get(UART0, &at0, 200u);
    EXPECT(at1 == FIRST[0]);
    EXPECT(at0 == FIRST[1]);
)")
                                     .replace("FIRST", "\"" + first + "\""),
                                 options);
        QVERIFY2(run.status == 0, qPrintable(run.err));
    }

    void anI2cMemoryKeepsPages_data()
    {
        QTest::addColumn<QByteArray>("pins");
        QTest::newRow("with pins") << QByteArray("Enable%20I2C%20IO=true\n");
        QTest::newRow("with split lines") << QByteArray("Enable%20I2C%20IO=false\n");
    }

    void anI2cMemoryKeepsPages()
    {
        QFETCH(QByteArray, pins);
        const Run run = simulate("Enable%20I2C=true\n" + pins,
                                 program("i2c", R"(
static int waited(void)
{
    int polls = 0;
    while (polls < 100 && i2c_probe(I2C, 0x50, LIMIT) != I2C_OK)
        ++polls;
    return polls;
}
)",
                                         R"(
    static const uint8_t text[] = {0x01, 0x20, 'b', 'o', 'a', 'r', 'd'};
    static const uint8_t over[] = {0x00, 0x3F, 0x11, 0x22};
    static const uint8_t first[] = {0x00, 0x00}, last[] = {0x7F, 0xFF};
    uint8_t read[6];
    int i;
    EXPECT(i2c_init(I2C, SystemCoreClock, 5000000u) == I2C_OK);
    EXPECT(i2c_probe(I2C, 0x51, LIMIT) == I2C_ERROR_NO_DEVICE);
    EXPECT(i2c_write(I2C, 0x50, text, sizeof text, LIMIT) == I2C_OK);
    i = waited();
    EXPECT(i > 0 && i < 100);
    EXPECT(i2c_write_read(I2C, 0x50, text, 2, read, 6, LIMIT) == I2C_OK);
    for (i = 0; i < 5; ++i)
        EXPECT(read[i] == text[2 + i]);
    EXPECT(read[5] == 0xFF);
    EXPECT(i2c_write(I2C, 0x50, over, sizeof over, LIMIT) == I2C_OK);
    EXPECT(waited() < 100);
    EXPECT(i2c_write_read(I2C, 0x50, last, 2, read, 2, LIMIT) == I2C_OK);
    EXPECT(read[0] == 0xFF && read[1] == 0x22);
    EXPECT(i2c_write_read(I2C, 0x50, first, 2, read, 1, LIMIT) == I2C_OK && read[0] == 0x22);
    EXPECT(i2c_write(I2C, 0x50, first, 2, LIMIT) == I2C_OK && waited() == 0);
)"),
                                 words({"--eeprom-result", "result"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QByteArray expected(32768, '\xFF');
        expected.replace(0x120, 5, "board");
        expected[0x3F] = 0x11;
        expected[0] = 0x22;
        QVERIFY(TestSupport::contentsOf(path("result")) == expected);
    }

    // One address byte, and the next ones of the address in that of the device.
    void aSmallI2cMemoryTakesOneAddressByte()
    {
        QByteArray contents(600, 'a');
        contents[0x12] = 'b';
        contents[0x212] = 'c';
        TestSupport::write(path("eeprom"), contents);
        const Run run = simulate("Enable%20I2C=true\n", program("i2c", "", R"(
    uint8_t place = 0x12, read[2];
    EXPECT(i2c_init(I2C, SystemCoreClock, 5000000u) == I2C_OK);
    EXPECT(i2c_write_read(I2C, 0x50, &place, 1, read, 2, LIMIT) == I2C_OK);
    EXPECT(read[0] == 'b' && read[1] == 'a');
    EXPECT(i2c_write_read(I2C, 0x52, &place, 1, read, 1, LIMIT) == I2C_OK && read[0] == 'c');
    place = 0xFF;
    EXPECT(i2c_write_read(I2C, 0x53, &place, 1, read, 2, LIMIT) == I2C_OK);
    EXPECT(read[0] == 0xFF && read[1] == 'a');
    EXPECT(i2c_probe(I2C, 0x54, LIMIT) == I2C_ERROR_NO_DEVICE);
)"),
                                 words({"--eeprom", "eeprom"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QVERIFY(TestSupport::contentsOf(path("eeprom")) == contents);
    }

    void aFlashIsReadErasedAndProgrammed()
    {
        QByteArray contents = "flash" + QByteArray(5000, 'f');
        TestSupport::write(path("flash"), contents);
        const Run run = simulate("Enable%20SPI-Flash=true\n", program("spiflash", "", R"(
    uint8_t id[3], read[6];
    int i;
    EXPECT(spiflash_init(SPIFLASH, SystemCoreClock, 25000000u) == SPIFLASH_OK);
    spiflash_read_id(SPIFLASH, id);
    EXPECT(id[0] == 0xA0 && id[1] == 0x01 && id[2] == 20);
    EXPECT(spiflash_read(SPIFLASH, 0, read, 6) == SPIFLASH_OK);
    for (i = 0; i < 6; ++i)
        EXPECT(read[i] == "flashf"[i]);
    EXPECT(spiflash_erase_sector(SPIFLASH, 0, LIMIT) == SPIFLASH_OK);
    EXPECT(spiflash_program(SPIFLASH, 0xFE, "abcd", 4, LIMIT) == SPIFLASH_OK);
    EXPECT(spiflash_program(SPIFLASH, 0xFE, "\xF0", 1, LIMIT) == SPIFLASH_OK);
    EXPECT(spiflash_read(SPIFLASH, 0xFE, read, 5) == SPIFLASH_OK);
    EXPECT(read[0] == ('a' & 0xF0) && read[1] == 'b' && read[2] == 'c' && read[3] == 'd');
    EXPECT(read[4] == 0xFF && (spiflash_status(SPIFLASH) & 3u) == 0);
    EXPECT(spiflash_read(SPIFLASH, 0xFFFFC, read, 5) == SPIFLASH_OK && read[4] == 0xFF);
)"),
                                 words({"--flash", "flash", "--flash-result", "result"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QVERIFY(TestSupport::contentsOf(path("flash")) == contents);
        contents.replace(0, 4096, QByteArray(4096, '\xFF'));
        contents.replace(0xFE, 4, "`bcd");
        contents += QByteArray((1 << 20) - contents.size(), '\xFF');
        QVERIFY(TestSupport::contentsOf(path("result")) == contents);
    }

    void aCardIsReadAndWritten()
    {
        QByteArray image(2048, 'i');
        image[512] = 's';
        image[1023] = 'Z';
        TestSupport::write(path("sd"), image);
        const Run run =
            simulate("Enable%20SDCARD=true\n", program("sd", "static uint8_t block[512];", R"(
    sd_card card;
    int i;
    for (i = 0; i < 3000 && !sd_is_present(SD); ++i) { }
    EXPECT(sd_init(SD, &card, 1000u, 100u) == SD_OK && card.is_addressed_by_block);
    EXPECT(sd_check_crc(SD, &card, true) == SD_OK);
    EXPECT(sd_read_block(SD, &card, 4, block) == SD_ERROR_REFUSED);
    EXPECT(sd_read_block(SD, &card, 1, block) == SD_OK);
    EXPECT(block[0] == 's' && block[1] == 'i' && block[511] == 'Z');
    block[0] = 'w';
    EXPECT(sd_write_block(SD, &card, 3, block) == SD_OK);
)"),
                     words({"--sd", "sd", "--sd-result", "result"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QVERIFY(TestSupport::contentsOf(path("sd")) == image);
        image.replace(1536, 512, "w" + QByteArray(510, 'i') + "Z");
        QVERIFY(TestSupport::contentsOf(path("result")) == image);
    }

    // With the serial clock at half of the bus's, several blocks at a time.
    void aCardTakesAndGivesSeveralBlocks()
    {
        QByteArray image(8 * 512, 'i');
        for (int i = 0; i < 8; ++i)
            image[i * 512] = char('a' + i);
        TestSupport::write(path("sd"), image);
        const Run run =
            simulate("Enable%20SDCARD=true\n", program("sd", "static uint8_t blocks[4 * 512];", R"(
    sd_card card;
    uint8_t csd[SD_REGISTER_SIZE], cid[SD_REGISTER_SIZE];
    int i;
    for (i = 0; i < 3000 && !sd_is_present(SD); ++i) { }
    EXPECT(sd_open(SD, &card, SystemCoreClock, 25000000u) == SD_OK);
    EXPECT(sd_rate(SD, SystemCoreClock) == 25000000u);
    EXPECT(sd_check_crc(SD, &card, true) == SD_OK);
    EXPECT(sd_read_csd(SD, &card, csd) == SD_OK && csd[0] == 0x40u);
    EXPECT(sd_read_cid(SD, &card, cid) == SD_OK && cid[3] == 'B');
    EXPECT(sd_read_blocks(SD, &card, 1, 4, blocks) == SD_OK && card.moved == 4);
    for (i = 0; i < 4; ++i)
        EXPECT(blocks[512 * i] == 'b' + i && blocks[512 * i + 511] == 'i');
    for (i = 0; i < 3; ++i)
        blocks[512 * i + 1] = 'w';
    EXPECT(sd_write_blocks(SD, &card, 5, 3, blocks) == SD_OK && card.moved == 3);
    EXPECT(sd_read_blocks(SD, &card, 6, 4, blocks) == SD_ERROR_DATA && card.moved == 2);
    EXPECT(card.errors == SD_ERRORS_ERRORTOKEN_Msk);
    EXPECT(blocks[0] == 'c' && blocks[512] == 'd');
    EXPECT(sd_write_blocks(SD, &card, 7, 2, blocks) == SD_ERROR_DATA && card.moved == 1);
    EXPECT(sd_read_block(SD, &card, 7, blocks) == SD_OK && blocks[0] == 'c');
)"),
                     words({"--sd", "sd", "--sd-result", "result"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        for (int i = 0; i < 3; ++i)
            image.replace((5 + i) * 512, 2, QByteArray(1, char('b' + i)) + 'w');
        image.replace(7 * 512, 2, "cw");
        QVERIFY(TestSupport::contentsOf(path("result")) == image);
    }

    void thereIsNoCardWithoutAnImage()
    {
        const Run run = simulate("Enable%20SDCARD=true\n", program("sd", "", R"(
    sd_card card;
    int i;
    for (i = 0; i < 500; ++i)
        EXPECT(!sd_is_present(SD));
    EXPECT(sd_init(SD, &card, 100u, 10u) == SD_ERROR_NO_CARD);
)"),
                                 {});
        QVERIFY2(run.status == 0, qPrintable(run.err));
    }

    void pinsThatNobodyDrivesFollowOthers_data()
    {
        QTest::addColumn<QByteArray>("pins");
        QTest::newRow("with pins") << QByteArray("Enabel%20GPIO%20IO=true\n");
        QTest::newRow("with split lines") << QByteArray("Enabel%20GPIO%20IO=false\n");
    }

    void pinsThatNobodyDrivesFollowOthers()
    {
        QFETCH(QByteArray, pins);
        const Run run = simulate("Enable%20GPIO=true\n" + pins, program("gpio", "", R"(
    volatile int wait;
    EXPECT(gpio_read(GPIO) == 0);
    gpio_set(GPIO, 0x00A5);
    gpio_set_direction(GPIO, 0x00FF, true);
    for (wait = 0; wait < 4; ++wait) { }
    EXPECT(gpio_read(GPIO) == 0xA5A5);
    gpio_set(GPIO, 0x5000);
    gpio_set_direction(GPIO, 0xF000, true);
    gpio_toggle(GPIO, 0x000F);
    for (wait = 0; wait < 4; ++wait) { }
    EXPECT(gpio_read(GPIO) == 0x5AAA);
    *(volatile uint8_t *)&GPIO->OUTEN = 0x0F;
    for (wait = 0; wait < 4; ++wait) { }
    EXPECT(gpio_read(GPIO) == 0x5A0A);
)"),
                                 {});
        QVERIFY2(run.status == 0, qPrintable(run.err));
    }

    void refusesBadInput_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *name, std::initializer_list<const char *> options,
                            int status, const char *message) {
            QTest::newRow(name) << words(options) << status << QString::fromUtf8(message);
        };
        for (const char *option : {"--uart0-input", "--uart1-input", "--eeprom", "--flash", "--sd",
                                   "--eeprom-result", "--flash-result", "--sd-result"})
            QTest::addRow("%s without the block", option)
                << words({"none.ipc", option, "file"}) << 3
                << QString(QLatin1String(option) + QLatin1String(": \""));
        row("no such input", {"all.ipc", "--uart0-input", "nothing"}, 3,
            "nothing\" cannot be read");
        row("a folder", {"all.ipc", "--sd", "."}, 3, "cannot be read, or is no plain file");
        row("an empty memory", {"all.ipc", "--eeprom", "empty"}, 3,
            "empty\" has 0 bytes, but the I2C memory takes 1 to 65536.");
        row("a card of half a block", {"all.ipc", "--sd", "file"}, 3, "a multiple of 512");
        row("no card to write of", {"all.ipc", "--sd-result", "x"}, 2, "--sd-result needs --sd");
        row("a result over an input", {"all.ipc", "--eeprom", "file", "--flash-result", "./file"},
            2, "--flash-result");
        row("two results in one file", {"all.ipc", "--eeprom-result", "x", "--flash-result", "x"},
            2, "--flash-result");
        row("a result nowhere", {"all.ipc", "--eeprom-result", "nowhere/x"}, 1, "nowhere");
        row("crossed lines of one UART", {"one.ipc", "--uarts", "crossed"}, 3, "has no UART1.");
        row("lines of another kind", {"all.ipc", "--uarts", "twisted"}, 2, "--uarts");
    }

    void refusesBadInput()
    {
        QFETCH(QStringList, options);
        QFETCH(int, status);
        QFETCH(QString, message);
        TestSupport::write(path("none.ipc"), plain);
        TestSupport::write(path("one.ipc"), plain + "Enable%20UART0=true\n");
        TestSupport::write(path("all.ipc"),
                           plain + "Enable%20UART0=true\nEnable%20UART1=true\nEnable%20I2C=true\n"
                                   "Enable%20SPI-Flash=true\nEnable%20SDCARD=true\n");
        TestSupport::write(path("file"), QByteArray(256, 'x'));
        TestSupport::write(path("empty"), QByteArray());
        TestSupport::write(path("main.c"), "int main(void) { return 0; }\n");
        const Run run = start(options + words({"--c", "main.c"}));
        QVERIFY2(run.status == status, qPrintable(run.err));
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        QCOMPARE(TestSupport::contentsOf(path("file")), QByteArray(256, 'x'));
        QVERIFY(!QFileInfo::exists(path("x")));
    }

private:
    QString path(const char *name) const { return m_dir->filePath(QString::fromUtf8(name)); }

    Run start(const QStringList &arguments) const
    {
        QProcess process;
        process.setWorkingDirectory(m_dir->path());
        process.start(QStringLiteral(TARVO_COMMAND), simulation(arguments));
        return SimulateProcess::finish(process);
    }

    Run simulate(const QByteArray &config, const QByteArray &text, const QStringList &options) const
    {
        TestSupport::write(path("x.ipc"), plain + config);
        TestSupport::write(path("main.c"), text);
        return start(words({"x.ipc", "--timeout", "1000000"}) + options + words({"--c", "main.c"}));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

TARVO_TEST_MAIN(QCoreApplication, tst_CliBoard)
#include "tst_cliboard.moc"
