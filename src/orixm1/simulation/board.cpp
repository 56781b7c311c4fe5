#include "board.h"

#include "config/latin1literal.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

constexpr char modules[] = R"(
// Memories on extension ports, without wait states.
module board_ahb_memory (
    input  wire        clk, sel, write, ready,
    input  wire [1:0]  trans,
    input  wire [2:0]  size,
    input  wire [31:0] addr, wdata,
    output reg  [31:0] rdata
);
    reg [31:0] memory [0:1023];
    reg        writing = 1'b0;
    reg [9:0]  place;
    reg [3:0]  lanes;
    integer i;
    initial begin
        rdata = 32'd0;
        for (i = 0; i < 1024; i = i + 1) memory[i] = 32'd0;
    end
    always @(posedge clk) begin
        if (writing)
            for (i = 0; i < 4; i = i + 1)
                if (lanes[i]) memory[place][8*i +: 8] = wdata[8*i +: 8];
        writing = 1'b0;
        if (ready && sel && trans[1]) begin
            place = addr[11:2];
            lanes = size == 3'd0 ? 4'b0001 << addr[1:0] : size == 3'd1 ? 4'b0011 << addr[1:0] : 4'b1111;
            writing = write;
            rdata <= memory[place];
        end
    end
endmodule

module board_apb_memory (
    input  wire        clk, sel, enable, write,
    input  wire [3:0]  strb,
    input  wire [31:0] addr, wdata,
    output wire [31:0] rdata
);
    reg [31:0] memory [0:1023];
    integer i;
    initial
        for (i = 0; i < 1024; i = i + 1) memory[i] = 32'd0;
    always @(posedge clk)
        if (sel && enable && write)
            for (i = 0; i < 4; i = i + 1)
                if (strb[i]) memory[addr[11:2]][8*i +: 8] = wdata[8*i +: 8];
    assign rdata = memory[addr[11:2]];
endmodule

// Reads a line of eight data bits, no parity, one stop bit.
module board_uart #(
    parameter NUMBER = 0
) (
    input wire        clk, line,
    input wire [19:0] divider, // clock cycles a bit
    output reg        busy
);
    reg [7:0]  data;
    reg [19:0] left;           // clock cycles until the middle of the next bit
    reg [3:0]  place;
    initial busy = 1'b0;
    always @(posedge clk)
        if (!busy) begin
            busy <= line === 1'b0;
            left <= {1'b0, divider[19:1]};
            place <= 4'd0;
        end else if (left > 20'd1)
            left <= left - 20'd1;
        else begin
            left <= divider;
            place <= place + 4'd1;
            if (place == 4'd0)
                busy <= line === 1'b0;
            else if (place < 4'd9)
                data[place[2:0] - 3'd1] <= line;
            else begin
                busy <= 1'b0;
                if (line === 1'b1)
                    `BOARD_SENT(NUMBER, data);
            end
        end
endmodule
)";

// Functions of the program that runs the simulation (simulation/core/boardhost.h).
constexpr char host[] = R"(
`ifdef VERILATOR
import "DPI-C" function void board_sent(input int uart, input int data);
`define BOARD_SENT(uart, data) board_sent(uart, {24'd0, data})
`else
`define BOARD_SENT(uart, data) $board_sent(uart, data)
`endif
)";

constexpr char head[] = R"(
// Under Verilator the clock is the program's.
`ifdef VERILATOR
module board (input wire clk);
`else
module board;
    localparam PERIOD = 20;      // nanoseconds
    reg clk = 1'b0;
    always #(PERIOD / 2) clk = ~clk;
    reg [8*1024-1:0] waves;
    initial
        if ($value$plusargs("waves=%s", waves)) begin
            $dumpfile(waves);
            $dumpvars(0, board);
        end
`endif
    reg [3:0] slow = 4'd0;
    wire      slow_clk = slow[3]; // for what is sampled
    reg [3:0] power = 4'd0;
    reg       power_good = 1'b0;
    reg [63:0] cycles = 64'd0;    // from the end of the power-on reset
    always @(posedge clk) begin
        slow <= slow + 4'd1;
        if (power != 4'd10) power <= power + 4'd1;
        else begin
            power_good <= 1'b1;
            if (power_good) cycles <= cycles + 64'd1;
        end
    end

    reg [8*16-1:0] mark;
    reg [63:0] limit;
    initial begin
        if (!$value$plusargs("mark=%s", mark)) mark = "board";
        if (!$value$plusargs("timeout=%d", limit)) limit = 64'd10000000;
    end

    // What the program writes, as the processor's pins show it.
    reg        storing = 1'b0;
    reg [31:0] store_address;
    wire       store = storing & dut.u_core.HREADY;
    always @(posedge clk)
        if (dut.u_core.HREADY) begin
            storing <= dut.u_core.HTRANS[1] & dut.u_core.HWRITE;
            store_address <= dut.u_core.HADDR;
        end
)";

constexpr char tail[] = R"(
    reg        ended = 1'b0;
    reg        was_locked_up = 1'b0;
    reg        is_done = 1'b0;
    reg [63:0] done_at;
    reg [23:0] silence;          // clock cycles in which no UART sends
    reg [23:0] draining;
    always @(posedge clk)
        if (power_good && !ended) begin
            was_locked_up <= dut.u_core.LOCKUP;
            if (dut.u_core.LOCKUP && !was_locked_up) begin
                $display("\036%0s lockup %0d", mark, cycles);
                if (!CAN_RECOVER) begin
                    ended <= 1'b1;
                    $display("\036%0s end failed %0d", mark, cycles);
                    $finish(0);
                end
            end
            if (!is_done && dut.u_core.done) begin
                is_done <= 1'b1;
                done_at <= cycles;
                silence <= 24'd0;
                draining <= 24'd0;
                $display("\036%0s done", mark);
            end else if (is_done) begin
                // What the UARTs still hold is on its way when the program ends: at most two bytes each.
                silence <= uart_busy ? 24'd0 : silence + 24'd1;
                draining <= draining + 24'd1;
                if (silence > {4'd0, uart_bit} + 24'd64 || draining > {4'd0, uart_bit} * 24'd32 + 24'd256) begin
                    ended <= 1'b1;
                    if (dut.u_core.passed) $display("\036%0s end passed %0d", mark, done_at);
                    else $display("\036%0s end failed %0d", mark, done_at);
                    $finish(0);
                end
            end else if (cycles >= limit) begin
                ended <= 1'b1;
                $display("\036%0s end timeout %0d", mark, limit);
                $finish(0);
            end
        end
endmodule
)";

constexpr char ahbAnswer[] = R"(
    reg told = 1'b0;
    reg first = 1'b0;
    reg second = 1'b0;
    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            first <= 1'b0;
            second <= 1'b0;
        end else begin
            first <= HREADY & HSEL & HTRANS[1];
            second <= first;
            if (first & ~told) begin
                told <= 1'b1;
                $display("\036%0s empty %m", board.mark);
            end
        end
    assign HRDATA = 32'd0;
    assign HREADYOUT = ~first;
    assign HRESP = first | second;
)";

constexpr char apbAnswer[] = R"(
    reg told = 1'b0;
    always @(posedge PCLK)
        if (PSEL & PENABLE & ~told) begin
            told <= 1'b1;
            $display("\036%0s empty %m", board.mark);
        end
    assign PRDATA = 32'd0;
    assign PREADY = 1'b1;
    assign PSLVERR = 1'b1;
)";

// What an input is connected to beside its idle level. `needs` is a port of the same configuration.
struct Wiring {
    QLatin1String port;
    QLatin1String needs;
    QLatin1String value;
};

constexpr Wiring wirings[] = {
    {"HCLK"_l1, {}, "clk"_l1},
    {"hwRstn"_l1, {}, "power_good"_l1},
    {"UART0RXD"_l1, {}, "1'b1"_l1},
    {"UART1RXD"_l1, "UART1TXD"_l1, "p_UART1TXD"_l1},
    {"CAN_RX"_l1, "CAN_TX"_l1, "p_CAN_TX"_l1},
    {"MISO"_l1, "MOSI"_l1, "p_MOSI"_l1},
    {"SD_DATAIN"_l1, {}, "1'b1"_l1},
    {"RTCSRCCLK"_l1, {}, "slow_clk"_l1},
    {"SD_SPICLK"_l1, {}, "slow_clk"_l1},
    {"DDR_LOCK_I"_l1, {}, "power_good"_l1},
    {"SCLIN"_l1, "SCLOUTEN"_l1, "~p_SCLOUTEN | p_SCLOUT"_l1},
    {"SDAIN"_l1, "SDAOUTEN"_l1, "~p_SDAOUTEN | p_SDAOUT"_l1},
    {"GPIOIN"_l1, "GPIOOUTEN"_l1,
     "{(p_GPIOOUTEN[15:8] & p_GPIOOUT[15:8]) | (~p_GPIOOUTEN[15:8] & p_GPIOOUT[7:0] & "
     "p_GPIOOUTEN[7:0]), p_GPIOOUTEN[7:0] & p_GPIOOUT[7:0]}"_l1},
};

QString netOf(const Port &port)
{
    return "p_"_l1 + port.name;
}

class Board
{
public:
    explicit Board(const SystemMap &map)
        : m_map(map)
    {
    }

    QString verilog() const
    {
        QString text = "// The board of a simulated subsystem: made, not to be edited.\n"
                       "`timescale 1ns / 1ps\n"_l1 +
                       QLatin1String(host) + QLatin1String(modules) + QLatin1String(head) + u'\n';
        for (const Port &port : m_map.ports)
            text += declaration(port);
        text += u'\n';
        for (const Port &port : m_map.ports)
            text += driver(port);
        for (const Region &region : m_map.regions)
            text += memory(region);
        text += uarts();
        QStringList connections;
        for (const Port &port : m_map.ports)
            connections.append("        ."_l1 + port.name + "("_l1 + netOf(port) + ")"_l1);
        text += "\n    Tarvo_ORIX_M1_Top dut (\n"_l1 + connections.join(",\n"_l1) + ");\n"_l1;
        // Only the watchdog gets a processor out of its lock-up.
        text += QStringLiteral("    localparam CAN_RECOVER = %1;\n")
                    .arg(findRegion(m_map, QStringLiteral("WDOG")) ? 1 : 0);
        return text + QLatin1String(tail);
    }

private:
    const Port *portNamed(const QString &name) const
    {
        const auto found = std::find_if(m_map.ports.begin(), m_map.ports.end(),
                                        [&name](const Port &port) { return port.name == name; });
        return found == m_map.ports.end() ? nullptr : &*found;
    }

    // The net of a bus signal of a region; empty if the port has none.
    QString signalOf(const Region &region, QLatin1String signal) const
    {
        for (const Port &port : m_map.ports) {
            if (port.bus == region.name && port.signal == signal)
                return netOf(port);
        }
        return {};
    }

    bool isWrapped(const Port &port) const
    {
        return port.name == "GPIO"_l1 && port.direction == PortDirection::Inout;
    }

    QString declaration(const Port &port) const
    {
        const bool isPulled = port.direction == PortDirection::Inout && !isWrapped(port);
        const QString type = port.needsPullUp ? QStringLiteral("tri1")
                             : isPulled       ? QStringLiteral("tri0")
                                              : QStringLiteral("wire");
        const QString range =
            port.isVector() ? QStringLiteral(" [%1:%2]").arg(port.left).arg(port.right) : QString();
        return "    "_l1 + type + range + u' ' + netOf(port) + ";\n"_l1;
    }

    bool isMemorySignal(const Port &port) const
    {
        return port.signal == "HRDATA"_l1 || port.signal == "PRDATA"_l1;
    }

    bool isFreeRunning(const Port &port) const
    {
        return port.role == PortRole::Clock && port.bus.isEmpty();
    }

    bool isReset(const Port &port) const
    {
        return std::any_of(
            m_map.resets.begin(), m_map.resets.end(),
            [&port](const ExternalSource &reset) { return reset.port == port.name; });
    }

    QString valueOfInput(const Port &port) const
    {
        for (const Wiring &wiring : wirings) {
            if (port.name == wiring.port && (wiring.needs.isEmpty() || portNamed(wiring.needs)))
                return wiring.value;
        }
        if (port.signal == "HREADYOUT"_l1 || port.signal == "PREADY"_l1)
            return QStringLiteral("1'b1");
        if (isFreeRunning(port))
            return QStringLiteral("clk");
        if (isReset(port))
            return port.isActiveLow ? QStringLiteral("power_good") : QStringLiteral("~power_good");
        return QStringLiteral("{%1{1'b%2}}").arg(port.width()).arg(port.isActiveLow ? 1 : 0);
    }

    QString driver(const Port &port) const
    {
        if (isWrapped(port))
            // Settled levels, so that nothing runs in a circle. A driver of the subsystem is
            // stronger.
            return QStringLiteral("    reg [%2:0] follow_%1 = %3'd0;\n"
                                  "    always @(negedge clk) follow_%1 <= %1[%2:0];\n"
                                  "    assign (pull1, pull0) %1 = {follow_%1, %3'd0};\n")
                .arg(netOf(port))
                .arg(port.width() / 2 - 1)
                .arg(port.width() / 2);
        if (port.direction != PortDirection::Input || port.needsPullUp || isMemorySignal(port))
            return {};
        return "    assign "_l1 + netOf(port) + " = "_l1 + valueOfInput(port) + ";\n"_l1;
    }

    QString memory(const Region &region) const
    {
        const bool isAhb = !signalOf(region, "HRDATA"_l1).isEmpty();
        if (!isAhb && signalOf(region, "PRDATA"_l1).isEmpty())
            return {};
        struct Connection {
            const char *pin;
            const char *signal;
        };
        const QVector<Connection> connections =
            isAhb
                ? QVector<Connection>{{"sel", "HSEL"},     {"write", "HWRITE"}, {"ready", "HREADY"},
                                      {"trans", "HTRANS"}, {"size", "HSIZE"},   {"addr", "HADDR"},
                                      {"wdata", "HWDATA"}, {"rdata", "HRDATA"}}
                : QVector<Connection>{{"sel", "PSEL"},     {"enable", "PENABLE"},
                                      {"write", "PWRITE"}, {"strb", "PSTRB"},
                                      {"addr", "PADDR"},   {"wdata", "PWDATA"},
                                      {"rdata", "PRDATA"}};
        QString text =
            (isAhb ? "    board_ahb_memory memory_"_l1 : "    board_apb_memory memory_"_l1) +
            region.name + " (.clk(clk)"_l1;
        for (const Connection &connection : connections)
            text += QStringLiteral(", .%1(%2)")
                        .arg(QLatin1String(connection.pin),
                             signalOf(region, QLatin1String(connection.signal)));
        return text + ");\n"_l1;
    }

    // Readers of the lines of the UARTs, which follow the registers of the rate.
    QString uarts() const
    {
        QString text;
        QStringList busy = {QStringLiteral("1'b0")};
        QString bit = QStringLiteral("20'd0");
        for (const Peripheral &peripheral : m_map.peripherals) {
            const auto rate =
                std::find_if(peripheral.registers.begin(), peripheral.registers.end(),
                             [](const Register &entry) { return entry.name == "BAUDDIV"_l1; });
            if (peripheral.name != "UART"_l1 || rate == peripheral.registers.end())
                continue;
            const RegisterField &field = rate->fields.first();
            for (const PeripheralInstance &instance : peripheral.instances) {
                const int number = instance.name.rightRef(1).toInt();
                text += QStringLiteral(
                            "    reg [19:0] divider%1 = 20'd%2;\n"
                            "    always @(posedge clk)\n"
                            "        if (dut.u_core.SYSRESETn === 1'b0) divider%1 <= 20'd%2;\n"
                            "        else if (store && store_address == 32'h%3)\n"
                            "            divider%1 <= dut.u_core.HWDATA[19:0] < 20'd%4 ? 20'd%4 : "
                            "dut.u_core.HWDATA[19:0];\n"
                            "    wire busy%1;\n"
                            "    board_uart #(.NUMBER(%1)) uart%1 (.clk(clk), .line(p_UART%1TXD), "
                            ".divider(divider%1), .busy(busy%1));\n")
                            .arg(number)
                            .arg(field.reset)
                            .arg(instance.base + rate->offset, 8, 16, QLatin1Char('0'))
                            .arg(field.minimum);
                busy.append(QStringLiteral("busy%1").arg(number));
                bit = QStringLiteral("(divider%1 > %2 ? divider%1 : %2)").arg(number).arg(bit);
            }
        }
        return text + "    wire uart_busy = "_l1 + busy.join(" | "_l1) +
               ";\n    wire [19:0] uart_bit = "_l1 + bit + ";\n"_l1;
    }

    const SystemMap &m_map;
};

} // namespace

QByteArray boardOf(const SystemMap &map)
{
    return Board(map).verilog().toUtf8();
}

QByteArray withAnswers(const QByteArray &source)
{
    static const QByteArray mark = "(* blackbox *)";
    if (!source.contains(mark))
        return source;
    QByteArray text = source;
    text.replace(mark, QByteArray());
    QByteArray body = text.contains("HREADYOUT") ? ahbAnswer : apbAnswer;
    static const QRegularExpression request(QStringLiteral("output\\s+wire\\s+irq\\b"));
    if (QString::fromUtf8(text).contains(request))
        body += "    assign irq = 1'b0;\n";
    text.insert(text.lastIndexOf("endmodule"), body);
    return text;
}

} // namespace TARVOORIXM1
