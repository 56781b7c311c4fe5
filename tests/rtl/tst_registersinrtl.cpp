// Holds the register descriptions and the RTL against each other: testbenches made from the
// descriptions access every word of every module, and the whole subsystem at the addresses of the
// instances.

#include "testsupport.h"

#include <registers/registerdocs.h>

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

// Clock cycles in which a module works before it is looked at. All have the most with
// TARVO_TEST_EVERY_BIT=1.
constexpr int fewCycles = 500;
constexpr int mostCycles = 1500;

// How a module's pins outside of the bus rest, and how they move while `act` counts clock cycles.
struct OuterPins {
    QString resting;
    QString moving;
    int cycles = fewCycles;         // until they all have done what they do
    QVector<quint32> patterns = {}; // that bring it to life, beside those for all
};

OuterPins outerPins(const QString &module)
{
    static const QMap<QString, OuterPins> pins = {
        {QStringLiteral("ahb_gpio"),
         {QStringLiteral(".gpio_in(16'd0)"), QStringLiteral(".gpio_in(act[15:0])")}},
        {QStringLiteral("ahb_spi_flash"),
         {QStringLiteral(".flash_in(4'd0)"),
          QStringLiteral(".flash_in({act[5], act[4], act[2], act[3]})")}},
        {QStringLiteral("apb_uart"),
         // Breaks and bytes, 16 clock cycles a bit.
         {QStringLiteral(".rxd(1'b1)"), QStringLiteral(".rxd(act[9] ? act[7] : act[8])"),
          mostCycles}},
        {QStringLiteral("apb_timer"),
         {QStringLiteral(".extin(1'b0)"), QStringLiteral(".extin(act[2])")}},
        {QStringLiteral("apb_rtc"),
         {QStringLiteral(".PORESETn(rstn), .rtc_clk(1'b0)"),
          QStringLiteral(".PORESETn(rstn), .rtc_clk(act[2])")}},
        {QStringLiteral("apb_i2c"),
         // A general call with bytes that are 0, of sixteen clock cycles a bit. The pattern has the
         // master read two bytes before.
         {QStringLiteral(".scl_in(1'b1), .sda_in(1'b1)"),
          QStringLiteral(".scl_in(act < 16'd528 || !act[3]), .sda_in(act < 16'd512)"),
          mostCycles,
          {0x00020001u}}},
        {QStringLiteral("apb_spi"),
         {QStringLiteral(".miso(1'b0)"), QStringLiteral(".miso(act[2])")}},
        {QStringLiteral("apb_sdcard"),
         {QStringLiteral(".sd_spiclk(1'b0), .sd_datain(1'b0), .sd_checkin(1'b1)"),
          QStringLiteral(".sd_spiclk(act[2]), .sd_datain(act[4]), .sd_checkin(1'b0)"), mostCycles}},
        {QStringLiteral("apb_dual_timer"), {{}, {}, mostCycles}},
        {QStringLiteral("apb_system"),
         // Two accesses that fail and one request of each reset, after everything was written.
         {QStringLiteral(".PORESETn(rstn), .HADDR(32'd0), .HTRANS(2'd0), .HSIZE(2'd0), "
                         ".HPROT(1'b1), .HWRITE(1'b0), .HREADY(1'b1), .HRESP(1'b0), "
                         ".error_cause(2'd0), .reset_cause(4'd0), .lockup(1'b0)"),
          QStringLiteral(".PORESETn(rstn), .HADDR({act, act}), .HTRANS(2'd2), .HSIZE(2'd2), "
                         ".HPROT(1'b1), .HWRITE(1'b1), .HREADY(1'b1), "
                         ".HRESP((act == 16'd900) | (act == 16'd950)), .error_cause(2'd2), "
                         ".reset_cause({4{act == 16'd1000}}), .lockup(act[3])"),
          mostCycles}},
        {QStringLiteral("apb_watchdog"),
         {QStringLiteral(".halted(1'b0)"), QStringLiteral(".halted(1'b0)")}}};
    const QString unknown = QStringLiteral("unknown module");
    return pins.value(module, {unknown, unknown});
}

QString word(quint32 value)
{
    return QStringLiteral("32'h%1").arg(value, 8, 16, QLatin1Char('0'));
}

// The bits whose value after reset is said.
quint32 knownMask(const Register &entry)
{
    quint32 mask = ~quint32(0);
    for (const RegisterField &field : entry.fields) {
        if (!field.hasReset)
            mask &= ~field.mask();
    }
    return mask;
}

struct Expected {
    quint32 value = 0;
    quint32 mask = ~quint32(0);
};

// What a register reads after `pattern` was written to it right after reset.
Expected afterWrite(const Register &entry, quint32 pattern)
{
    Expected expected;
    for (const RegisterField &field : entry.fields) {
        const quint32 written = (pattern & field.mask()) >> field.low;
        switch (field.access) {
        case RegisterAccess::ReadWrite:
            expected.value |= qMax(written, field.minimum) << field.low;
            continue;
        case RegisterAccess::Write:
            continue;
        case RegisterAccess::WriteOneToClear:
            expected.value |= (field.reset & ~written) << field.low;
            break;
        case RegisterAccess::Read:
            expected.value |= field.reset << field.low;
            break;
        case RegisterAccess::Separate:
            expected.mask &= ~field.mask();
            break;
        }
        if (!field.hasReset)
            expected.mask &= ~field.mask();
    }
    return expected;
}

// A write of one or two bytes, or of all.
struct Part {
    int byte;
    int size; // as HSIZE: 1 << size bytes
    quint32 mask() const { return quint32((quint64(1) << (8 << size)) - 1) << (8 * byte); }
};

constexpr Part parts[] = {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {0, 1}, {2, 1}};

// What a register reads after `first` was written to it right after reset, and `second` to a part
// of it.
Expected afterPart(const Register &entry, quint32 first, quint32 second, const Part &part)
{
    Expected expected = afterWrite(entry, (first & ~part.mask()) | (second & part.mask()));
    for (const RegisterField &field : entry.fields) {
        if (field.access != RegisterAccess::WriteOneToClear)
            continue;
        expected.value &= ~field.mask();
        expected.value |= (field.reset << field.low) & ~first & ~(second & part.mask());
    }
    return expected;
}

// Words of many ones, then each bit alone.
constexpr int mixedPatterns = 5;
QVector<quint32> patterns()
{
    QVector<quint32> list = {0xFFFFFFFFu, 0x55555555u, 0xAAAAAAAAu, 0u, 0x12345678u};
    for (int bit = 0; bit < 32; ++bit)
        list.append(1u << bit);
    return list;
}

// Whether behind a write of a single bit every other register is looked at too, and every module
// works for the most cycles, which takes most of the time: TARVO_TEST_EVERY_BIT=1.
bool looksEverywhere()
{
    return qEnvironmentVariableIsSet("TARVO_TEST_EVERY_BIT");
}

class Bench
{
public:
    explicit Bench(const Peripheral &peripheral)
        : m_peripheral(peripheral)
        , m_isAhb(peripheral.bus == QLatin1String("AHB"))
    {
    }

    // What the module's registers hold at rest.
    QString text()
    {
        begin(outerPins(m_peripheral.module).resting);
        afterReset();
        unlistedOffsets();
        for (const Register &entry : m_peripheral.registers) {
            writes(entry);
            partialWrites(entry);
        }
        return m_text + QLatin1String("        finish;\n    end\nendmodule\n");
    }

    // What reading changes, and what zeros and ones do, in a module whose pins move and whose
    // registers all were written: each with what the same clock cycles leave behind without it. Of
    // one register, if it is named.
    QString effects(const QString &only = QString())
    {
        begin(outerPins(m_peripheral.module).moving);
        for (const Register &entry : m_peripheral.registers) {
            if (!only.isEmpty() && entry.name != only)
                continue;
            readEffects(entry);
            writeEffects(entry);
        }
        return m_text + QLatin1String("        finish;\n    end\nendmodule\n");
    }

private:
    void begin(const QString &pins)
    {
        m_text = QStringLiteral("module tb;\n`include \"bench.vh\"\n"
                                "    reg [15:0] act;\n"
                                "    always @(posedge clk) act <= rstn ? act + 16'd1 : 16'd0;\n"
                                "    reg [31:0] seen [0:255], before [0:255];\n"
                                "    reg [31:0] gained, lost;\n"
                                "    integer k;\n");
        instantiate(pins);
        m_text += QLatin1String(
            "    task expect_bits(input [31:0] address, input [31:0] mask, input [31:0] value, "
            "input [8*48-1:0] what);\n        begin\n");
        // As wide as a transfer that begins there may be.
        m_text += m_isAhb
                      ? QLatin1String("            ahb_transfer(address, 1'b0, address[0] ? 3'd0 "
                                      ": address[1] ? 3'd1 : 3'd2, 32'd0);\n")
                      : QLatin1String("            apb_read(address[11:0]);\n");
        m_text += QLatin1String(
            "            check32(rd & mask, value & mask, what);\n        end\n    endtask\n"
            "    task write_word(input [31:0] address, input [31:0] value);\n");
        m_text += m_isAhb ? QLatin1String("        ahb_write(address, value);\n")
                          : QLatin1String("        apb_write(address[11:0], value);\n");
        m_text += QLatin1String("    endtask\n"
                                "    task write_part(input [31:0] address, input [2:0] size, input "
                                "[31:0] value);\n");
        m_text += m_isAhb ? QLatin1String("        ahb_transfer(address, 1'b1, size, value);\n")
                          : QLatin1String("        apb_write_lanes(address[11:0], value, size[0] ? "
                                          "4'b0011 << address[1:0] : 4'b0001 << address[1:0]);\n");
        m_text +=
            QLatin1String("    endtask\n    task see(input integer n, input [31:0] address);\n");
        m_text += m_isAhb ? QLatin1String("        begin ahb_transfer(address, 1'b0, 3'd2, 32'd0);")
                          : QLatin1String("        begin apb_read(address[11:0]);");
        m_text += QLatin1String(
            " seen[n] = rd; end\n    endtask\n"
            // What is different now from what was remembered.
            "    task compare(input integer n);\n        for (k = 0; k < n; k = k + 1) begin\n"
            "            gained = gained | (seen[k] & ~before[k]);\n"
            "            lost = lost | (before[k] & ~seen[k]);\n        end\n    endtask\n"
            "    task remember(input integer n);\n"
            "        for (k = 0; k < n; k = k + 1) before[k] = seen[k];\n    endtask\n"
            "    initial begin\n        gained = 0;\n        lost = 0;\n");
    }

    void line(const QString &text) { m_text += QLatin1String("        ") + text + u'\n'; }

    int addressBits() const
    {
        return m_peripheral.module == QLatin1String("ahb_spi_flash") ? 25 : 24;
    }

    // Where a module that decodes more than the registers has them.
    quint32 address(quint32 offset) const
    {
        return m_peripheral.module == QLatin1String("ahb_spi_flash") ? 0x1000000u + offset : offset;
    }

    void expect(quint32 offset, const Expected &expected, const QString &what)
    {
        line(QStringLiteral("expect_bits(%1, %2, %3, \"%4\");")
                 .arg(word(address(offset)), word(expected.mask), word(expected.value), what));
    }

    void instantiate(const QString &pins)
    {
        const QString more = pins.isEmpty() ? QString() : QString(QLatin1String(", ") + pins);
        if (m_isAhb) {
            m_text +=
                QStringLiteral(
                    "`include \"ahb_master.vh\"\n    %1 dut (.HCLK(clk), .HRESETn(rstn), "
                    ".HSEL(1'b1), "
                    ".HADDR(%2), .HTRANS(htrans), %3.HWRITE(hwrite), .HWDATA(hwdata), "
                    ".HREADY(hready), .HRDATA(hrdata), .HREADYOUT(hready), .HRESP(hresp)%4);\n")
                    .arg(m_peripheral.module, QStringLiteral("haddr[%1:0]").arg(addressBits() - 1),
                         QStringLiteral(".HSIZE(hsize), "), more);
            return;
        }
        m_text +=
            QStringLiteral(
                "`include \"apb_master.vh\"\n    %1 dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), "
                ".PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr), .PWDATA(pwdata), "
                ".PSTRB(pstrb), "
                ".PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr)%2);\n")
                .arg(m_peripheral.module, more);
    }

    // The words that are tried: all of the first 4 KB, and beyond them each register's offset with
    // every one and two of the higher address bits changed.
    QVector<quint32> words() const
    {
        QVector<quint32> result;
        for (quint32 offset = 0; offset < qMin(m_peripheral.span, 0x1000u); offset += 4)
            result.append(offset);
        for (const Register &entry : m_peripheral.registers) {
            for (quint32 a = 0x1000; a < m_peripheral.span; a <<= 1) {
                for (quint32 b = a; b < m_peripheral.span; b <<= 1)
                    result.append(entry.offset | a | b);
            }
        }
        if (m_peripheral.span > 0x1000)
            result.append(m_peripheral.span - 4);
        return result;
    }

    const Register *at(quint32 offset) const
    {
        for (const Register &entry : m_peripheral.registers) {
            if (entry.offset == offset)
                return &entry;
        }
        return nullptr;
    }

    void expectReset(const Register &entry, const QString &what)
    {
        expect(entry.offset, {resetValue(entry), knownMask(entry)}, what);
    }

    void afterReset()
    {
        line(QStringLiteral("reset;"));
        const QVector<quint32> all = words();
        for (const quint32 offset : all) {
            if (const Register *entry = at(offset))
                expectReset(*entry, entry->name + QLatin1String(" after reset"));
            else
                expect(offset, {}, QStringLiteral("unlisted offset %1").arg(offset));
        }
    }

    void unlistedOffsets()
    {
        line(QStringLiteral("reset;"));
        const QVector<quint32> all = words();
        for (const quint32 offset : all) {
            if (!at(offset))
                line(QStringLiteral("write_word(%1, 32'hFFFFFFFF);").arg(word(address(offset))));
        }
        for (const quint32 offset : all) {
            if (!at(offset))
                expect(offset, {}, QStringLiteral("written unlisted offset %1").arg(offset));
        }
        for (const Register &entry : m_peripheral.registers)
            expectReset(entry, entry.name + QLatin1String(" after writes elsewhere"));
    }

    void writes(const Register &entry)
    {
        const QVector<quint32> all = patterns();
        for (int i = 0; i < all.size(); ++i) {
            const quint32 pattern = all.at(i);
            line(QStringLiteral("reset;"));
            line(QStringLiteral("write_word(%1, %2);")
                     .arg(word(address(entry.offset)), word(pattern)));
            expect(entry.offset, afterWrite(entry, pattern),
                   entry.name + QStringLiteral(" after %1").arg(pattern, 8, 16, QLatin1Char('0')));
            for (const Register &other : m_peripheral.registers) {
                if ((i < mixedPatterns || looksEverywhere()) && other.offset != entry.offset &&
                    !entry.changes.contains(other.name))
                    expectReset(other,
                                other.name + QLatin1String(" after a write to ") + entry.name);
            }
        }
    }

    // Bytes and halfwords: nothing changes beside them, and they are read wherever they begin.
    void partialWrites(const Register &entry)
    {
        constexpr quint32 first = 0x3C5A691E;
        for (const quint32 pattern : {first, ~first}) {
            for (const Part &part : parts) {
                const QString what =
                    QStringLiteral(" after %1 bytes at %2").arg(1 << part.size).arg(part.byte);
                line(QStringLiteral("reset;"));
                line(QStringLiteral("write_word(%1, %2);")
                         .arg(word(address(entry.offset)), word(pattern)));
                line(QStringLiteral("write_part(%1, 3'd%2, %3);")
                         .arg(word(address(entry.offset + quint32(part.byte))))
                         .arg(part.size)
                         .arg(word(~pattern)));
                const Expected expected = afterPart(entry, pattern, ~pattern, part);
                for (quint32 byte = 0; byte < 4; ++byte)
                    expect(entry.offset + byte, expected, entry.name + what);
                for (const Register &other : m_peripheral.registers) {
                    if (other.offset != entry.offset && !entry.changes.contains(other.name))
                        expectReset(other, other.name + what + QLatin1String(" of ") + entry.name);
                }
            }
        }
    }

    // The highest offset at which no register is: nothing happens there.
    quint32 nowhere() const
    {
        quint32 offset = m_peripheral.span - 4;
        while (at(offset))
            offset -= 4;
        return offset;
    }

    static bool hasReadEffect(const Register &entry)
    {
        return std::any_of(
            entry.fields.begin(), entry.fields.end(),
            [](const RegisterField &field) { return field.readEffect != ReadEffect::None; });
    }

    static bool isStored(const Register &entry)
    {
        return std::any_of(
            entry.fields.begin(), entry.fields.end(),
            [](const RegisterField &field) { return field.writeEffect == WriteEffect::Store; });
    }

    // Everything is written with `pattern`, what is stored last; works for a while, and is read
    // after `action`, `tried` last, since reading it may undo what `action` did.
    void live(quint32 pattern, const QString &action, const Register &tried)
    {
        line(QStringLiteral("reset;"));
        for (const bool stored : {false, true}) {
            for (const Register &entry : m_peripheral.registers) {
                if (isStored(entry) == stored)
                    line(QStringLiteral("write_word(%1, %2);")
                             .arg(word(address(entry.offset)), word(pattern)));
            }
        }
        line(QStringLiteral("cycles(%1);")
                 .arg(looksEverywhere() ? mostCycles : outerPins(m_peripheral.module).cycles));
        line(action);
        int n = 0;
        for (const bool isTried : {false, true}) {
            for (const Register &entry : m_peripheral.registers) {
                if ((entry.offset == tried.offset) == isTried)
                    line(QStringLiteral("see(%1, %2);").arg(n++).arg(word(address(entry.offset))));
            }
        }
    }

    // Compares `action` with `other`, which takes as long; what differs is in "gained" and "lost".
    void compare(quint32 pattern, const QString &other, const QString &action,
                 const Register &tried)
    {
        const int count = m_peripheral.registers.size();
        live(pattern, other, tried);
        line(QStringLiteral("remember(%1);").arg(count));
        live(pattern, action, tried);
        line(QStringLiteral("compare(%1);").arg(count));
    }

    void forget() { line(QStringLiteral("gained = 0; lost = 0;")); }
    void check(const char *condition, const QString &what)
    {
        line(QStringLiteral("check(%1, \"%2\");").arg(QLatin1String(condition), what));
    }

    // Timers that count and wrap, serial lines that are on, and what the others make of it.
    QVector<quint32> livelyPatterns() const
    {
        return QVector<quint32>{0xFFFFFFFFu, 0x00000101u, 0x00000013u} +
               outerPins(m_peripheral.module).patterns;
    }

    void readEffects(const Register &entry)
    {
        const auto read = [this](quint32 offset) {
            return QStringLiteral("see(255, %1);").arg(word(address(offset)));
        };
        const QVector<quint32> lively = livelyPatterns();
        forget();
        for (const quint32 pattern : lively)
            compare(pattern, read(nowhere()) + read(nowhere()),
                    read(entry.offset) + read(entry.offset), entry);
        if (!hasReadEffect(entry)) {
            check("gained == 0 && lost == 0",
                  QLatin1String("reading changes nothing: ") + entry.name);
            return;
        }
        check("gained != 0 || lost != 0",
              QLatin1String("reading changes something: ") + entry.name);
        for (const RegisterField &field : entry.fields) {
            if (field.readEffect != ReadEffect::Clear && field.readEffect != ReadEffect::Set)
                continue;
            const quint32 left = field.readEffect == ReadEffect::Set ? field.mask() : 0;
            for (const quint32 pattern : lively) {
                live(pattern, read(entry.offset), entry);
                expect(entry.offset, {left, field.mask()},
                       QLatin1String("after it was read: ") + field.name);
            }
        }
    }

    void writeEffects(const Register &entry)
    {
        quint32 clearing = 0;
        quint32 setting = 0;
        bool hasStored = false;
        for (const RegisterField &field : entry.fields) {
            if (field.writeEffect == WriteEffect::OneToClear)
                clearing |= field.mask();
            else if (field.writeEffect == WriteEffect::OneToSet)
                setting |= field.mask();
            else
                hasStored = hasStored || field.access == RegisterAccess::ReadWrite;
        }
        if ((clearing | setting) == 0)
            return;
        const auto write = [this](quint32 offset, quint32 value) {
            return QStringLiteral("write_word(%1, %2);").arg(word(address(offset)), word(value));
        };
        const QVector<quint32> lively = livelyPatterns();
        const auto tryOut = [&](quint32 value) {
            forget();
            for (const quint32 pattern : lively)
                compare(pattern, write(nowhere(), value), write(entry.offset, value), entry);
        };
        if (!hasStored) {
            tryOut(0);
            check("gained == 0 && lost == 0", QLatin1String("zeros do nothing: ") + entry.name);
        }
        if (clearing != 0) {
            tryOut(clearing);
            check("gained == 0 && lost != 0", QLatin1String("ones clear: ") + entry.name);
        }
        if (setting != 0) {
            tryOut(setting);
            check("gained != 0", QLatin1String("ones set: ") + entry.name);
        }
    }

    const Peripheral &m_peripheral;
    const bool m_isAhb;
    QString m_text;
};

// Slaves on the AHB extension ports that are always ready.
QString idlePorts()
{
    QString text;
    for (int n = 1; n <= 6; ++n)
        text += QStringLiteral(", .AHB%1HRDATA(32'd0), .AHB%1HREADYOUT(1'b1), .AHB%1HRESP(2'b00)")
                    .arg(n);
    return text;
}

// The subsystem with everything on: each register at its address.
QString subsystemBench(const QVector<Peripheral> &peripherals)
{
    QString text = QStringLiteral(
        "`include \"core_model.v\"\nmodule tb;\n`include \"bench.vh\"\n`include \"ahb_master.vh\"\n"
        "    reg hwRstn = 1'b0;\n"
        "    tri0 flash;\n"
        "    tri0 [15:0] pins;\n"
        "    tri1 srst, scl, sda;\n"
        "    Tarvo_ORIX_M1_Top dut (.HCLK(clk), .hwRstn(hwRstn), .JTAG_15(srst), .UART0RXD(1'b1), "
        ".UART1RXD(1'b1), .SCL(scl), .SDA(sda), "
        ".TIMER0EXTIN(1'b0), .TIMER1EXTIN(1'b0), .RTCSRCCLK(1'b0), .MISO(1'b0), .SD_SPICLK(1'b0), "
        ".SD_DATAIN(1'b0), "
        ".SD_CHECKIN(1'b1), .FLASH_SPI_MISO(flash), .GPIO(pins)");
    text += idlePorts();
    text += QLatin1String(
        ");\n"
        "    assign hready = dut.u_core.HREADY;\n"
        "    assign hresp  = dut.u_core.HRESP;\n"
        "    assign hrdata = dut.u_core.HRDATA;\n"
        "    always @* begin\n"
        "        dut.u_core.HADDR = haddr;\n"
        "        dut.u_core.HTRANS = htrans;\n"
        "        dut.u_core.HSIZE = hsize;\n"
        "        dut.u_core.HWRITE = hwrite;\n"
        "        dut.u_core.HWDATA = hwdata;\n"
        "    end\n"
        "    task expect_bits(input [31:0] address, input [31:0] mask, input [31:0] value, input "
        "[8*48-1:0] what);\n"
        "        begin\n"
        "            ahb_transfer(address, 1'b0, 3'd2, 32'd0);\n"
        "            check(!failed, what);\n"
        "            check32(rd & mask, value & mask, what);\n"
        "        end\n"
        "    endtask\n"
        "    initial begin\n"
        "        cycles(5);\n"
        "        hwRstn = 1'b1;\n"
        "        cycles(40);\n");
    for (const Peripheral &peripheral : peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            for (const Register &entry : peripheral.registers)
                text += QStringLiteral("        expect_bits(%1, %2, %3, \"%4\");\n")
                            .arg(word(instance.base + entry.offset), word(knownMask(entry)),
                                 word(resetValue(entry)), instance.name + u'.' + entry.name);
            // No two peripherals may stand in for each other: the scratch value of one is not seen
            // in the others.
            for (const Register &entry : peripheral.registers) {
                if (entry.fields.first().access != RegisterAccess::ReadWrite ||
                    !entry.changes.isEmpty() || entry.fields.size() != 1 ||
                    entry.fields.first().width() < 8)
                    continue;
                text +=
                    QStringLiteral(
                        "        ahb_write(%1, 32'h000000A5);\n"
                        "        expect_bits(%1, 32'hFF, 32'hA5, \"%2 keeps its value\");\n")
                        .arg(word(instance.base + entry.offset), instance.name + u'.' + entry.name);
                break;
            }
        }
    }
    return text + QLatin1String("        finish;\n    end\nendmodule\n");
}

// The rows of the table in the user guide that begins behind `heading`, without its head.
QVector<QStringList> guideTable(const QString &heading)
{
    const QString guide =
        QString::fromUtf8(TestSupport::contentsOf(QStringLiteral(DOCS_DIR "/user-guide.md")));
    QVector<QStringList> rows;
    const QStringList lines = guide.mid(guide.indexOf(heading)).split(u'\n');
    for (const QString &line : lines) {
        if (!line.startsWith(u'|')) {
            if (rows.size() > 2)
                break;
            continue;
        }
        QStringList cells = line.split(u'|').mid(1);
        cells.removeLast();
        for (QString &cell : cells)
            cell = cell.trimmed();
        rows.append(cells);
    }
    return rows.mid(2);
}

struct Region {
    quint32 first = 0;
    quint32 last = 0;
    QString select; // number of the slave on the AHB
    int port = 0;   // of the APB extension ports, from 1
};

QVector<Region> regionsOfGuide()
{
    static const QMap<QString, QString> slaves = {
        {QStringLiteral("external flash"), QStringLiteral("EXTFLASH")},
        {QStringLiteral("external SRAM"), QStringLiteral("EXTSRAM")},
        {QStringLiteral("GPIO"), QStringLiteral("GPIO")},
        {QStringLiteral("CAN"), QStringLiteral("CAN")},
        {QStringLiteral("Ethernet"), QStringLiteral("ETH")},
        {QStringLiteral("internal APB"), QStringLiteral("APBINT")},
        {QStringLiteral("SPI-Flash"), QStringLiteral("SPIFLASH")},
        {QStringLiteral("PSRAM"), QStringLiteral("PSRAM")},
        {QStringLiteral("DDR3"), QStringLiteral("DDR3")}};
    static const QRegularExpression numbered(QStringLiteral("^(AHB|APB) extension port (\\d+)$"));
    QVector<Region> regions;
    const QVector<QStringList> rows = guideTable(QStringLiteral("### Memory map"));
    for (const QStringList &row : rows) {
        Region region;
        region.first = row.at(0).toUInt(nullptr, 0);
        region.last = row.at(1).toUInt(nullptr, 0);
        const auto match = numbered.match(row.at(2));
        const QString what = row.at(2).section(u',', 0, 0);
        if (match.captured(1) == QLatin1String("APB")) {
            region.port = match.captured(2).toInt();
            region.select = QStringLiteral("APBEXT");
        } else {
            region.select = match.hasMatch() ? QString(QLatin1String("AHB") + match.captured(2))
                                             : slaves.value(what, QLatin1String("unknown_") + what);
        }
        regions.append(region);
    }
    return regions;
}

// Attributes of the ports of the top module: name and note.
QVector<QPair<QString, QString>> notesOfTop()
{
    static const QRegularExpression attribute(QStringLiteral(
        "\\(\\* note = \"([^\"]*)\" \\*\\)\\s+(?:input|output|inout) +wire +(?:\\[[^\\]]*\\] "
        "+)?(\\w+)"));
    const QString top =
        QString::fromUtf8(TestSupport::contentsOf(QStringLiteral(RTL_DIR "/tarvo_orix_m1_top.v")));
    QVector<QPair<QString, QString>> notes;
    for (auto it = attribute.globalMatch(top); it.hasNext();) {
        const auto match = it.next();
        notes.append({match.captured(2), match.captured(1)});
    }
    return notes;
}

// For what must fail: the first failure ends the simulation.
const QString endsAtAFailure = QStringLiteral("-DENDS_AT_A_FAILURE");

// Compiles and runs under the rules of the buses; the text that is wrong about it, or nothing.
QString simulate(const QString &bench, const QStringList &sources)
{
    const QTemporaryDir dir;
    TestSupport::write(dir.filePath(QStringLiteral("bench.v")), bench.toUtf8());
    QProcess process;
    process.setWorkingDirectory(dir.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    // What the modules are made of is found by its name.
    process.start(QStringLiteral("iverilog"),
                  QStringList{QStringLiteral("-g2005"), QStringLiteral("-s"), QStringLiteral("tb"),
                              QStringLiteral("-y" RTL_DIR), QStringLiteral("-I" RTL_TESTS_DIR),
                              QStringLiteral("-I" CHECKERS_DIR), QStringLiteral("-y" CHECKERS_DIR),
                              QStringLiteral("-I" RTL_DIR), QStringLiteral("-o"),
                              QStringLiteral("bench")} +
                      sources + QStringList{QStringLiteral("bench.v")});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        return process.errorString() + u'\n' + QString::fromUtf8(process.readAll());
    process.start(QStringLiteral("vvp"), {QStringLiteral("-n"), QStringLiteral("bench")});
    if (!process.waitForFinished(-1))
        return process.errorString();
    const QString output = QString::fromUtf8(process.readAll());
    return output.trimmed() == QLatin1String("PASS") ? QString() : output.left(4000);
}

QString rtl(const char *name)
{
    return QStringLiteral(RTL_DIR "/") + QLatin1String(name);
}

} // namespace

class tst_RegistersInRtl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void modulesAreAsDescribed_data();
    void modulesAreAsDescribed();
    void instancesStandAtTheirAddresses();
    void interruptsAreTheSubsystems();
    void mistakesAreFound_data();
    void mistakesAreFound();
    void theGuidesPortsAreTheNotesOfTheTop();
    void theGuidesMapIsTheSubsystems();
    void theGuidesInterruptsAreTheSubsystems();
    void effectsAreFound_data();
    void effectsAreFound();
    void aFlagThatReadingClearsIsAsDescribed();
    void readsOfEveryRegisterAreTried();
    void faultsOfModulesAreFound_data();
    void faultsOfModulesAreFound();

private:
    QVector<Peripheral> m_peripherals;
};

void tst_RegistersInRtl::initTestCase()
{
    const auto read = readRegisterMap(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(read, qPrintable(read.reason()));
    m_peripherals = *read;
}

void tst_RegistersInRtl::modulesAreAsDescribed_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < m_peripherals.size(); ++i)
        QTest::newRow(qPrintable(m_peripherals.at(i).name)) << i;
}

void tst_RegistersInRtl::modulesAreAsDescribed()
{
    QFETCH(int, index);
    const Peripheral &peripheral = m_peripherals.at(index);
    const QStringList sources{QStringLiteral(RTL_DIR "/%1.v").arg(peripheral.module)};
    for (const QString &bench : {Bench(peripheral).text(), Bench(peripheral).effects()}) {
        const QString wrong = simulate(bench, sources);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }
}

static QStringList linesOf(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(TARVO_COMMAND), arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        return {};
    return QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

// Everything that the subsystem has but the processor; include files are generated into `folder`.
static QStringList subsystemSources(const QTemporaryDir &folder)
{
    const QString config = QStringLiteral(RTL_TESTS_DIR "/cases/everything-5k/config.ipc");
    const QString out = QStringLiteral("--out");
    linesOf({QStringLiteral("generate"), QStringLiteral("--no-synth"), config, out, folder.path()});
    QStringList sources = {QLatin1String("-I") +
                           folder.filePath(QStringLiteral("temp/tv_orix_m1"))};
    const QStringList all = linesOf({QStringLiteral("sources"), config, out, folder.path()});
    for (const QString &file : all) {
        if (!file.startsWith(folder.path()) && !file.endsWith(QLatin1String("/cortex_m1_core.v")))
            sources.append(file);
    }
    return sources + QStringList{QStringLiteral("-s"), QStringLiteral("bus_watch"),
                                 QStringLiteral(CHECKERS_DIR "/bus_watch.v")};
}

void tst_RegistersInRtl::instancesStandAtTheirAddresses()
{
    const QTemporaryDir folder;
    const QString wrong = simulate(subsystemBench(m_peripherals), subsystemSources(folder));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

void tst_RegistersInRtl::theGuidesPortsAreTheNotesOfTheTop()
{
    static const QRegularExpression number(QStringLiteral("^(AHB|APB)\\d+"));
    QStringList expected;
    const auto notes = notesOfTop();
    for (const auto &note : notes) {
        const QString port = QString(note.first).replace(number, QStringLiteral("\\1n"));
        if (!note.second.contains(QLatin1String(" at 0x")))
            expected.append(u'`' + port + QLatin1String("` ") + note.second);
    }
    expected.removeDuplicates();
    QStringList told;
    const QVector<QStringList> rows = guideTable(QStringLiteral("### Ports to take care of"));
    for (const QStringList &row : rows)
        told.append(row.join(u' '));
    QVERIFY(told.size() > 20);
    QCOMPARE(told, expected);
    // What a board must know.
    QVERIFY(
        told.filter(QStringLiteral("`JTAG_15`")).join(QString()).contains(QLatin1String("pull")));
    QCOMPARE(told.filter(QStringLiteral("RESET` reset of the port, active low")).size(), 4);
}

void tst_RegistersInRtl::theGuidesMapIsTheSubsystems()
{
    const QVector<Region> regions = regionsOfGuide();
    QVERIFY(regions.size() > 30);
    const auto at = [&](quint32 address) {
        for (const Region &region : regions) {
            if (address >= region.first && address <= region.last)
                return region;
        }
        return Region();
    };
    QString text = QStringLiteral(
        "`include \"core_model.v\"\n`include \"define.vh\"\nmodule tb;\n`include \"bench.vh\"\n"
        "`include \"ahb_master.vh\"\n    reg hwRstn = 1'b0;\n    reg [15:0] psel = 16'd0;\n"
        "    tri1 srst;\n    Tarvo_ORIX_M1_Top dut (.HCLK(clk), .hwRstn(hwRstn), .JTAG_15(srst), "
        ".EXTFLASH0HRDATA(32'd0), .EXTFLASH0HREADYOUT(1'b1), .EXTFLASH0HRESP(2'b00), "
        ".EXTSRAM0HRDATA(32'd0), .EXTSRAM0HREADYOUT(1'b1), .EXTSRAM0HRESP(2'b00)");
    text += idlePorts();
    for (int n = 1; n <= 16; ++n)
        text += QStringLiteral(", .APB%1PRDATA(32'd0), .APB%1PREDADY(1'b1), .APB%1PSLVERR(1'b0)")
                    .arg(n);
    text += QLatin1String(
        ");\n"
        "    assign hready = dut.u_core.HREADY;\n"
        "    assign hresp  = dut.u_core.HRESP;\n"
        "    assign hrdata = dut.u_core.HRDATA;\n"
        "    always @* begin\n"
        "        dut.u_core.HADDR = haddr;\n"
        "        dut.u_core.HTRANS = htrans;\n"
        "        dut.u_core.HSIZE = hsize;\n"
        "        dut.u_core.HWRITE = hwrite;\n"
        "    end\n"
        "    always @(posedge clk) if (|dut.apbext_psel_s) psel <= dut.apbext_psel_s;\n"
        "    task select(input [31:0] address, input [15:0] expected);\n"
        "        begin\n            haddr = address;\n            #1;\n"
        "            check32(dut.hsel_s, expected, \"selected\");\n"
        // No clock edge at an address whose block is not there.
        "            haddr = 32'hF0000000;\n            cycles(1);\n        "
        "end\n"
        "    endtask\n"
        "    initial begin\n        cycles(5);\n        hwRstn = 1'b1;\n"
        "        cycles(40);\n");
    for (const Region &region : regions) {
        for (const quint32 address :
             {region.first, region.last - 3, region.first - 4, region.last + 1}) {
            const Region there = at(address);
            const QString expected = there.select.isEmpty()
                                         ? QStringLiteral("16'd0")
                                         : QStringLiteral("16'd1 << `ORIX_S_%1").arg(there.select);
            text += QStringLiteral("        select(%1, %2);\n").arg(word(address), expected);
            if (there.port != 0)
                text += QStringLiteral("        ahb_transfer(%1, 1'b0, 3'd2, 32'd0);\n"
                                       "        check32(psel, 16'd1 << %2, \"port %3\");\n")
                            .arg(word(address))
                            .arg(there.port - 1)
                            .arg(there.port);
        }
    }
    // The external memories too, which that configuration has inside.
    const QStringList memories{QStringLiteral("-DCM1_EXTERNAL_FLASH_EN"),
                               QStringLiteral("-DCM1_EXTERNAL_SRAM_EN")};
    const QTemporaryDir folder;
    const QString wrong = simulate(text + QLatin1String("        finish;\n    end\nendmodule\n"),
                                   memories + subsystemSources(folder));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));

    // The notes say the same.
    static const QRegularExpression range(QStringLiteral(" at (0x\\w+) to (0x\\w+)"));
    int checked = 0;
    const auto notes = notesOfTop();
    for (const auto &note : notes) {
        const auto match = range.match(note.second);
        if (!match.hasMatch())
            continue;
        ++checked;
        const Region region = at(match.captured(1).toUInt(nullptr, 0));
        QCOMPARE(region.first, match.captured(1).toUInt(nullptr, 0));
        QCOMPARE(region.last, match.captured(2).toUInt(nullptr, 0));
        // The external memories' ports have a number behind their name.
        const QString owner = region.port != 0 ? QStringLiteral("APB%1P").arg(region.port)
                              : region.select.startsWith(QLatin1String("EXT"))
                                  ? QString(region.select + QLatin1String("0H"))
                                  : QString(region.select + u'H');
        if (note.first.startsWith(QLatin1String("A")) ||
            note.first.startsWith(QLatin1String("EXT")))
            QVERIFY2(note.first.startsWith(owner), qPrintable(note.first + u' ' + owner));
    }
    QVERIFY(checked >= 27);
}

void tst_RegistersInRtl::theGuidesInterruptsAreTheSubsystems()
{
    const QString defines = QString::fromUtf8(TestSupport::contentsOf(rtl("define.vh")));
    static const QRegularExpression line(QStringLiteral("^`define ORIX_IRQ_(\\w+) +(\\d+)$"),
                                         QRegularExpression::MultilineOption);
    QStringList expected;
    for (auto it = line.globalMatch(defines); it.hasNext();) {
        const auto match = it.next();
        expected.append(match.captured(1) == QLatin1String("EXTINT")
                            ? QStringLiteral("12 to 15 EXTINT, bits 0 to 3")
                            : QString(match.captured(2) + u' ' + match.captured(1)));
        if (match.captured(1) == QLatin1String("EXTINT"))
            QCOMPARE(match.captured(2), QStringLiteral("12"));
    }
    expected.append(QStringLiteral("NMI WDOG"));
    QStringList told;
    const QVector<QStringList> rows = guideTable(QStringLiteral("| interrupt | source |"));
    for (const QStringList &row : rows)
        told.append(row.join(u' '));
    QCOMPARE(told, expected);
}

void tst_RegistersInRtl::interruptsAreTheSubsystems()
{
    const QString defines = QString::fromUtf8(TestSupport::contentsOf(rtl("define.vh")));
    int checked = 0;
    for (const Peripheral &peripheral : qAsConst(m_peripherals)) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            const QRegularExpression line(
                QStringLiteral("^`define ORIX_IRQ_%1 +(\\d+)$").arg(instance.name),
                QRegularExpression::MultilineOption);
            const auto match = line.match(defines);
            if (!match.hasMatch()) {
                QVERIFY2(instance.interrupt.isEmpty() || instance.interrupt == QLatin1String("NMI"),
                         qPrintable(instance.name));
                continue;
            }
            QCOMPARE(instance.interrupt, match.captured(1));
            ++checked;
        }
    }
    QCOMPARE(checked, 11);
}

void tst_RegistersInRtl::mistakesAreFound_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"reset", "access", "width", "register left out", "changes left out"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

// The benches notice descriptions that are wrong in one point.
void tst_RegistersInRtl::mistakesAreFound()
{
    QFETCH(QString, kind);
    const auto timer =
        std::find_if(m_peripherals.cbegin(), m_peripherals.cend(),
                     [](const Peripheral &p) { return p.name == QLatin1String("TIMER"); });
    QVERIFY(timer != m_peripherals.cend());
    Peripheral peripheral = *timer;
    if (kind == QLatin1String("reset"))
        peripheral.registers[2].fields[0].reset = 1;
    else if (kind == QLatin1String("access"))
        peripheral.registers[2].fields[0].access = RegisterAccess::Read;
    else if (kind == QLatin1String("width"))
        peripheral.registers[2].fields[0].high = 24;
    else if (kind == QLatin1String("register left out"))
        peripheral.registers.remove(2);
    else
        peripheral.registers[0].changes.clear();
    const QString wrong = simulate(Bench(peripheral).text(), {endsAtAFailure, rtl("apb_timer.v")});
    QVERIFY2(wrong.contains(QLatin1String("failed: ")), qPrintable(wrong));
}

void tst_RegistersInRtl::effectsAreFound_data()
{
    QTest::addColumn<QString>("peripheral");
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("read");
    QTest::addColumn<int>("write");
    QTest::addColumn<QString>("wrong");
    const auto row = [](const char *name, const char *peripheral, const char *field,
                        ReadEffect read, WriteEffect write, const char *wrong) {
        QTest::newRow(name) << QString::fromLatin1(peripheral) << QString::fromLatin1(field)
                            << int(read) << int(write) << QString::fromLatin1(wrong);
    };
    row("a read effect that is not said", "UART", "DATA.BYTE", ReadEffect::None, WriteEffect::Store,
        "reading changes nothing: DATA");
    row("a read effect that is none", "TIMER", "PEND.WRAP", ReadEffect::Modify,
        WriteEffect::OneToClear, "reading changes something: PEND");
    row("a field that reading clears", "TIMER", "PEND.WRAP", ReadEffect::Clear,
        WriteEffect::OneToClear, "after it was read: WRAP");
    row("a field that reading sets", "I2C", "STATUS.OPEN", ReadEffect::Set, WriteEffect::Store,
        "after it was read: OPEN");
    row("a set register that clears", "GPIO", "OUTSET.SET", ReadEffect::None,
        WriteEffect::OneToClear, "ones clear: OUTSET");
    row("a clear register that sets", "GPIO", "OUTCLR.CLEAR", ReadEffect::None,
        WriteEffect::OneToSet, "ones set: OUTCLR");
    row("a register whose zeros do something", "SPI", "DATA.BYTE", ReadEffect::None,
        WriteEffect::OneToSet, "zeros do nothing: DATA");
}

// The benches notice effects that are not those of the module.
void tst_RegistersInRtl::effectsAreFound()
{
    QFETCH(QString, peripheral);
    QFETCH(QString, field);
    QFETCH(int, read);
    QFETCH(int, write);
    QFETCH(QString, wrong);
    const auto found = std::find_if(m_peripherals.cbegin(), m_peripherals.cend(),
                                    [&](const Peripheral &p) { return p.name == peripheral; });
    QVERIFY(found != m_peripherals.cend());
    Peripheral changed = *found;
    int count = 0;
    for (Register &entry : changed.registers) {
        for (RegisterField &candidate : entry.fields) {
            if (entry.name + u'.' + candidate.name != field)
                continue;
            candidate.readEffect = ReadEffect(read);
            candidate.writeEffect = WriteEffect(write);
            ++count;
        }
    }
    QCOMPARE(count, 1);
    const QString told = simulate(Bench(changed).effects(field.section(u'.', 0, 0)),
                                  {QStringLiteral(RTL_DIR "/%1.v").arg(changed.module)});
    QVERIFY2(told.contains(QLatin1String("failed: ") + wrong), qPrintable(told));
}

// What no module of the subsystem has: a flag that is cleared when it is read.
void tst_RegistersInRtl::aFlagThatReadingClearsIsAsDescribed()
{
    const auto timer =
        std::find_if(m_peripherals.cbegin(), m_peripherals.cend(),
                     [](const Peripheral &p) { return p.name == QLatin1String("TIMER"); });
    QVERIFY(timer != m_peripherals.cend());
    QString text = QString::fromUtf8(TestSupport::contentsOf(rtl("apb_timer.v")));
    const QString before = QStringLiteral("            if (store)\n");
    QVERIFY(text.contains(before));
    text.replace(before, QLatin1String("            if (PSEL & PENABLE & ~PWRITE & (offset == "
                                       "12'h00C)) pend <= 1'b0;\n") +
                             before);
    const QTemporaryDir dir;
    const QString changed = dir.filePath(QStringLiteral("changed.v"));
    TestSupport::write(changed, text.toUtf8());
    const QString unsaid =
        simulate(Bench(*timer).effects(QStringLiteral("PEND")), {endsAtAFailure, changed});
    QVERIFY2(unsaid.contains(QLatin1String("failed: reading changes nothing: PEND")),
             qPrintable(unsaid));
    Peripheral described = *timer;
    described.registers[3].fields[0].readEffect = ReadEffect::Clear;
    const QString wrong = simulate(Bench(described).effects(QStringLiteral("PEND")), {changed});
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

// A read that loads the counter anew is noticed at whichever register it is.
void tst_RegistersInRtl::readsOfEveryRegisterAreTried()
{
    const auto timer =
        std::find_if(m_peripherals.cbegin(), m_peripherals.cend(),
                     [](const Peripheral &p) { return p.name == QLatin1String("TIMER"); });
    QVERIFY(timer != m_peripherals.cend());
    const QString text = QString::fromUtf8(TestSupport::contentsOf(rtl("apb_timer.v")));
    const QString before = QStringLiteral("            if (store)\n");
    QVERIFY(text.contains(before));
    const QTemporaryDir dir;
    const QString changed = dir.filePath(QStringLiteral("changed.v"));
    for (const Register &entry : timer->registers) {
        QString faulty = text;
        faulty.replace(
            before, QStringLiteral("            if (PSEL & PENABLE & ~PWRITE & (offset == 12'h%1)) "
                                   "reload <= 24'd5;\n")
                            .arg(entry.offset, 3, 16, QLatin1Char('0')) +
                        before);
        TestSupport::write(changed, faulty.toUtf8());
        const QString wrong =
            simulate(Bench(*timer).effects(entry.name), {endsAtAFailure, changed});
        QVERIFY2(wrong.contains(QLatin1String("failed: reading changes nothing: ") + entry.name),
                 qPrintable(entry.name + u'\n' + wrong));
    }
}

void tst_RegistersInRtl::faultsOfModulesAreFound_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    const auto row = [](const char *name, const char *module, const char *from, const char *to) {
        QTest::newRow(name) << QString::fromLatin1(module) << QString::fromLatin1(from)
                            << QString::fromLatin1(to);
    };
    row("parts write the whole register", "apb_timer", "PSTRB[n]", "1'b1");
    row("parts of control registers write them", "apb_timer", "if (PSTRB[0]) ctrl", "ctrl");
    row("parts are written at their own address only", "apb_timer", "{PADDR[11:2], 2'b00}",
        "PADDR");
    row("registers repeat in the whole region", "ahb_gpio", "HADDR[23:6] == 18'd0", "1'b1");
    row("registers repeat once", "ahb_gpio", "HADDR[23:6] == 18'd0", "HADDR[22:6] == 17'd0");
    row("registers repeat further up", "ahb_spi_flash", "HADDR[23:6] == 18'd0",
        "HADDR[12:6] == 7'd0");
}

// The benches notice modules that do not do what all of them must.
void tst_RegistersInRtl::faultsOfModulesAreFound()
{
    QFETCH(QString, module);
    QFETCH(QString, from);
    QFETCH(QString, to);
    const auto found = std::find_if(m_peripherals.cbegin(), m_peripherals.cend(),
                                    [&](const Peripheral &p) { return p.module == module; });
    QVERIFY(found != m_peripherals.cend());
    QString text =
        QString::fromUtf8(TestSupport::contentsOf(QStringLiteral(RTL_DIR "/%1.v").arg(module)));
    QVERIFY(text.contains(from));
    const QTemporaryDir dir;
    const QString changed = dir.filePath(QStringLiteral("changed.v"));
    TestSupport::write(changed, text.replace(from, to).toUtf8());
    const QString wrong = simulate(Bench(*found).text(), {endsAtAFailure, changed});
    QVERIFY2(wrong.contains(QLatin1String("failed: ")), qPrintable(wrong));
}

TARVO_TEST_MAIN(QCoreApplication, tst_RegistersInRtl)

#include "tst_registersinrtl.moc"
