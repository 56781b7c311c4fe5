#include "board.h"

#include "config/latin1literal.h"
#include "registers/registerdocs.h"

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

// A copy of a register of a peripheral, by what the program writes.
module board_register #(
    parameter [31:0] ADDRESS = 32'd0,
    parameter [31:0] RESET = 32'd0
) (
    input  wire        clk, resetn, store,
    input  wire [31:0] address,
    input  wire [3:0]  lanes,
    input  wire [31:0] data,
    output reg  [31:0] value
);
    integer i;
    initial value = RESET;
    always @(posedge clk)
        if (resetn === 1'b0)
            value <= RESET;
        else if (store && address[31:2] == ADDRESS[31:2])
            for (i = 0; i < 4; i = i + 1)
                if (lanes[i]) value[8*i +: 8] <= data[8*i +: 8];
endmodule

// How long the bits of a UART are: whole clock cycles, so that their sum keeps up with the exact one.
module board_uart_clock (
    input  wire        clk, step,
    input  wire [19:0] divider,
    input  wire [5:0]  fraction, // 64ths of a clock cycle
    output wire [20:0] cycles    // of the next bit
);
    reg  [5:0] sum = 6'd0;
    wire [6:0] next = {1'b0, sum} + {1'b0, fraction};
    assign cycles = {1'b0, divider} + {20'd0, next[6]};
    always @(posedge clk)
        if (step) sum <= next[5:0];
endmodule

// Sends what comes from outside while the receiver is on. A byte that is cut off is sent again.
module board_uart_sender #(
    parameter NUMBER = 0
) (
    input  wire        clk, enabled,
    input  wire        quiet,   // the UART does not hear itself just now
    input  wire [19:0] divider, // clock cycles a bit
    input  wire [5:0]  fraction,
    input  wire [1:0]  bits,    // data bits: 5 to 8
    input  wire        nine, parity, odd, stick, two_stops,
    output reg         line,
    output reg         is_used  // something has come, or is going to
);
    reg        has_byte = 1'b0;
    reg [8:0]  data;
    reg [12:0] frame;           // bits that follow
    reg [3:0]  place = 4'd0;    // bits of the frame that are left, the one on the line included; 0: idle
    reg [20:0] left = 21'd0;    // clock cycles until the next one
    reg [3:0]  pause = 4'd0;
    integer    next;
    wire [3:0]  size = nine ? 4'd9 : 4'd5 + {2'd0, bits};
    wire [8:0]  used = (9'd1 << size) - 9'd1;
    wire [20:0] cycles;
    wire        step = enabled && left <= 21'd1;
    board_uart_clock clock (.clk(clk), .step(step), .divider(divider), .fraction(fraction), .cycles(cycles));
    initial begin
        line = 1'b1;
        is_used = NUMBER == 0 ? $test$plusargs("uart0-input=") != 0 : $test$plusargs("uart1-input=") != 0;
    end
    always @(posedge clk) begin
        pause <= pause + 4'd1;
        if (!enabled) begin
            line <= 1'b1;
            place <= 4'd0;
            left <= cycles;
        end else if (left > 21'd1) begin
            left <= left - 21'd1;
            // Some cycles behind the middle of the first stop bit the receiver has it.
            if (place == 4'd1 + {3'd0, two_stops} && left == {2'd0, divider[19:1]} - 21'd6)
                has_byte = 1'b0;
        end else if (place <= 4'd1) begin
            // An idle line looks for a byte each 16 clock cycles.
            if (!has_byte && (is_used || quiet) && (pause == 4'd0 || place != 4'd0)) begin
                next = `BOARD_INPUT(NUMBER);
                if (next >= 0) begin
                    data = {1'b0, next[7:0]};
                    has_byte = 1'b1;
                    is_used <= 1'b1;
                end
            end
            frame <= {4'hF, data | ~used} &
                     ~(parity && !(odd ^ (^(data & used) & ~stick)) ? 13'd1 << size : 13'd0);
            place <= has_byte ? 4'd2 + size + {3'd0, parity} + {3'd0, two_stops} : 4'd0;
            line <= !has_byte;
            left <= has_byte ? cycles : 21'd0;
        end else begin
            place <= place - 4'd1;
            line <= frame[0];
            frame <= {1'b1, frame[12:1]};
            left <= cycles;
        end
    end
endmodule

// Reads a line. What has no stop bit, such as a break, counts for nothing; of nine data bits the lower eight are told.
module board_uart #(
    parameter NUMBER = 0
) (
    input wire        clk, line,
    input wire [19:0] divider, // clock cycles a bit
    input wire [5:0]  fraction,
    input wire [1:0]  bits,    // data bits: 5 to 8
    input wire        nine, parity,
    output reg        busy
);
    reg [7:0]  data;
    reg [20:0] left;           // clock cycles until the middle of the next bit
    reg [3:0]  place;
    reg        is_lost = 1'b0; // until the line is high again
    wire [3:0]  size = nine ? 4'd9 : 4'd5 + {2'd0, bits};
    wire [20:0] cycles;
    wire        step = busy && !is_lost && left <= 21'd1;
    board_uart_clock clock (.clk(clk), .step(step), .divider(divider), .fraction(fraction), .cycles(cycles));
    initial busy = 1'b0;
    always @(posedge clk)
        if (!busy) begin
            busy <= line === 1'b0;
            left <= {2'd0, divider[19:1]};
            place <= 4'd0;
            data <= 8'd0;
        end else if (is_lost) begin
            is_lost <= line !== 1'b1;
            busy <= line !== 1'b1;
        end else if (left > 21'd1)
            left <= left - 21'd1;
        else begin
            left <= cycles;
            place <= place + 4'd1;
            if (place == 4'd0)
                busy <= line === 1'b0;
            else if (place <= size) begin
                if (place <= 4'd8)
                    data[place[2:0] - 3'd1] <= line;
            end else if (place == size + 4'd1 + {3'd0, parity}) begin
                if (line === 1'b1) begin
                    busy <= 1'b0;
                    `BOARD_SENT(NUMBER, data);
                end else
                    is_lost <= 1'b1;
            end
        end
endmodule
)";

// Functions of the program that runs the simulation (simulation/core/boardhost.h).
constexpr char host[] = R"(
`ifdef VERILATOR
import "DPI-C" function void board_sent(input int uart, input int data);
import "DPI-C" function int board_input(input int uart);
import "DPI-C" function void board_pins(input int levels, input int driven);
import "DPI-C" function int board_drive_mask();
import "DPI-C" function int board_drive_levels();
import "DPI-C" function void board_time(input int low, input int high);
import "DPI-C" function int board_size(input int storage);
import "DPI-C" function int board_load(input int storage, input int address);
import "DPI-C" function void board_store(input int storage, input int address, input int data);
import "DPI-C" function void board_waves(input int low, input int high, output int wanted);
`define BOARD_WAVES(low, high, wanted) board_waves(low, high, wanted)
`define BOARD_SENT(uart, data) board_sent(uart, {24'd0, data})
`define BOARD_INPUT(uart) board_input(uart)
`define BOARD_PINS(levels, driven) board_pins({16'd0, levels}, {16'd0, driven})
`define BOARD_DRIVE_MASK board_drive_mask()
`define BOARD_DRIVE_LEVELS board_drive_levels()
`define BOARD_TIME(low, high) board_time(low, high)
`define BOARD_SIZE(storage) board_size(storage)
`define BOARD_LOAD(storage, address) board_load(storage, address)
`define BOARD_STORE(storage, address, data) board_store(storage, address, {24'd0, data})
`else
`define BOARD_SENT(uart, data) $board_sent(uart, data)
`define BOARD_WAVES(low, high, wanted) $board_waves(low, high, wanted)
`define BOARD_INPUT(uart) $board_input(uart)
`define BOARD_PINS(levels, driven) $board_pins(levels, driven)
`define BOARD_DRIVE_MASK $board_drive_mask
`define BOARD_DRIVE_LEVELS $board_drive_levels
`define BOARD_TIME(low, high) $board_time(low, high)
`define BOARD_SIZE(storage) $board_size(storage)
`define BOARD_LOAD(storage, address) $board_load(storage, address)
`define BOARD_STORE(storage, address, data) $board_store(storage, address, data)
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
            if ($test$plusargs("waves-") == 0) $dumpvars(0, board);
        end
`endif
    reg has_window = 1'b0;       // the waves are of a part of the run
    initial
        has_window = $test$plusargs("waves-") != 0;
    reg [3:0] slow = 4'd0;
    wire      slow_clk = slow[3]; // for what is sampled
    wire      card_clk = slow[2];
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

    // It does not open again.
    integer wants_waves = 0;
    reg     has_waves = 1'b0;
    always @(posedge clk)
        if (has_window) begin
            `BOARD_WAVES(cycles[31:0], cycles[63:32], wants_waves);
            if (wants_waves != 0 && !has_waves) begin
                has_waves <= 1'b1;
`ifndef VERILATOR
                $dumpvars(0, board);
`endif
            end
            if (wants_waves == 0 && has_waves) begin
                has_window <= 1'b0;
`ifndef VERILATOR
                $dumpoff;
`endif
            end
        end

    reg [8*16-1:0] mark;
    reg [63:0] limit;
    initial begin
        if (!$value$plusargs("mark=%s", mark)) mark = "board";
        if (!$value$plusargs("timeout=%d", limit)) limit = 64'd10000000;
    end

    // Bytes of what keeps some; 0: it is not there.
    integer eeprom_size, flash_size, sd_size;
    initial begin
        eeprom_size = `BOARD_SIZE(0);
        flash_size = `BOARD_SIZE(1);
        sd_size = `BOARD_SIZE(2);
    end

    // What the program writes, as the processor's pins show it.
    reg        storing = 1'b0;
    reg [31:0] store_address = 32'd0;
    reg [3:0]  store_lanes = 4'd0;
    wire       store = storing & dut.u_core.HREADY;
    always @(posedge clk)
        if (dut.u_core.HREADY) begin
            storing <= dut.u_core.HTRANS[1] & dut.u_core.HWRITE;
            store_address <= dut.u_core.HADDR;
            store_lanes <= dut.u_core.HSIZE == 3'd0   ? 4'b0001 << dut.u_core.HADDR[1:0]
                           : dut.u_core.HSIZE == 3'd1 ? 4'b0011 << dut.u_core.HADDR[1:0] : 4'b1111;
        end
)";

constexpr char pins[] = R"(    integer gpio_pin;
    always @*
        for (gpio_pin = 0; gpio_pin < 16; gpio_pin = gpio_pin + 1)
            gpio_seen[gpio_pin] = gpio_levels[gpio_pin] === 1'b1;
    always @(posedge clk) begin
        gpio_outside <= (gpio_mask & gpio_drive) | (~gpio_mask & {gpio_seen[7:0], 8'd0});
        if (slow == 4'd0) begin
            gpio_mask <= `BOARD_DRIVE_MASK;
            gpio_drive <= `BOARD_DRIVE_LEVELS;
        end
        if (power_good && {gpio_seen, gpio_driven} != gpio_told) begin
            gpio_told <= {gpio_seen, gpio_driven};
            `BOARD_PINS(gpio_seen, gpio_driven);
        end
    end
)";

constexpr char tail[] = R"(
    reg        ended = 1'b0;
    reg        was_locked_up = 1'b0;
    reg        is_done = 1'b0;
    reg [63:0] done_at;
    reg [31:0] silence;          // clock cycles in which no UART sends
    reg [31:0] draining;
    integer    host_state = 0;
    always @(posedge clk)
        if (power_good && !ended) begin
            if (cycles[7:0] == 8'd0) begin
                `BOARD_TIME(cycles[31:0], cycles[63:32]);
                host_state = `BOARD_SIZE(0); // below 0: the outside ends the run
                if (host_state < 0) begin
                    ended <= 1'b1;
                    $display("\036%0s done", mark);
                    $display("\036%0s end failed %0d", mark, cycles);
                    $finish(0);
                end
            end
            was_locked_up <= dut.u_core.LOCKUP;
            if (host_state >= 0 && dut.u_core.LOCKUP && !was_locked_up) begin
                $display("\036%0s lockup %0d", mark, cycles);
                if (!CAN_RECOVER) begin
                    ended <= 1'b1;
                    $display("\036%0s end failed %0d", mark, cycles);
                    $finish(0);
                end
            end
            if (host_state < 0) begin
            end else if (!is_done && dut.u_core.done) begin
                is_done <= 1'b1;
                done_at <= cycles;
                silence <= 32'd0;
                draining <= 32'd0;
                $display("\036%0s done", mark);
            end else if (is_done) begin
                // What the UARTs still hold is on its way when the program ends: their FIFOs, and a break. Between two
                // characters there are less than two bit times from the middle of the first stop bit on.
                silence <= uart_busy ? 32'd0 : silence + 32'd1;
                draining <= draining + 32'd1;
                if (silence > {11'd0, uart_bit, 1'b0} + 32'd64 || draining > {4'd0, uart_bit, 8'd0} + 32'd256) begin
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

// What tells the first access, with an AHB-Lite and with an APB port.
constexpr char ahbTold[] = R"(
    reg told = 1'b0;
    always @(posedge HCLK)
        if (HRESETn & HREADY & HSEL & HTRANS[1] & ~told) begin
            told <= 1'b1;
            $display("\036%0s empty %m", board.mark);
        end
)";

constexpr char apbTold[] = R"(
    reg told = 1'b0;
    always @(posedge PCLK)
        if (PSEL & PENABLE & ~told) begin
            told <= 1'b1;
            $display("\036%0s empty %m", board.mark);
        end
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
    {"UART0RXD"_l1, "UART1TXD"_l1, "uarts_crossed ? p_UART1TXD & line0 : line0"_l1},
    {"UART0RXD"_l1, {}, "line0"_l1},
    {"UART1RXD"_l1, "UART0TXD"_l1,
     "uarts_crossed ? p_UART0TXD & line1 : is_used1 ? line1 : p_UART1TXD"_l1},
    {"UART1RXD"_l1, {}, "is_used1 ? line1 : p_UART1TXD"_l1},
    {"CAN_RX"_l1, "CAN_TX"_l1, "p_CAN_TX"_l1},
    {"MISO"_l1, "MOSI"_l1, "p_MOSI"_l1},
    {"SD_DATAIN"_l1, {}, "p_SD_CS !== 1'b0 || sd_size == 0 || sd_miso"_l1},
    {"SD_CHECKIN"_l1, {}, "sd_size == 0"_l1},
    {"RTCSRCCLK"_l1, {}, "slow_clk"_l1},
    {"SD_SPICLK"_l1, {}, "card_clk"_l1},
    {"DDR_LOCK_I"_l1, {}, "power_good"_l1},
    {"SCLIN"_l1, {}, "i2c_scl"_l1},
    {"SDAIN"_l1, {}, "i2c_sda"_l1},
    {"GPIOIN"_l1, {}, "gpio_levels"_l1},
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
        text += u'\n' + uarts() + gpio() + devices() + u'\n';
        for (const Port &port : m_map.ports)
            text += driver(port);
        for (const Region &region : m_map.regions)
            text += memory(region);
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

    QString declaration(const Port &port) const
    {
        const bool isInout = port.direction == PortDirection::Inout;
        const bool isHigh = port.needsPullUp || (isInout && port.isActiveLow);
        const QString type = isHigh    ? QStringLiteral("tri1")
                             : isInout ? QStringLiteral("tri0")
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

    // A register as the processor's pins tell of it; null if the peripheral has none with this
    // name.
    struct Place {
        const Register *entry = nullptr;
        quint32 address = 0;
    };

    static Place placeOf(const Peripheral &peripheral, const PeripheralInstance &instance,
                         QLatin1String name)
    {
        for (const Register &entry : peripheral.registers) {
            if (entry.name == name)
                return {&entry, instance.base + entry.offset};
        }
        return {};
    }

    // A copy of it as the net `name`.
    static QString copyOf(const Place &place, const QString &name)
    {
        return QStringLiteral("    wire [31:0] %1;\n"
                              "    board_register #(.ADDRESS(32'h%2), .RESET(32'h%3)) copy_%1 "
                              "(.clk(clk), .resetn(dut.u_core.SYSRESETn), .store(store), "
                              ".address(store_address), .lanes(store_lanes), "
                              ".data(dut.u_core.HWDATA), .value(%1));\n")
            .arg(name)
            .arg(place.address, 8, 16, QLatin1Char('0'))
            .arg(resetValue(*place.entry), 8, 16, QLatin1Char('0'));
    }

    // A field of a register of which there is a copy.
    static QString fieldOf(const Place &place, const QString &copy, QLatin1String name)
    {
        const QVector<RegisterField> &fields = place.entry->fields;
        const auto field =
            std::find_if(fields.begin(), fields.end(),
                         [name](const RegisterField &candidate) { return candidate.name == name; });
        return QStringLiteral("%1[%2:%3]").arg(copy).arg(field->high).arg(field->low);
    }

    // Readers and senders of the lines of the UARTs, which follow the registers.
    QString uarts() const
    {
        QString text = QStringLiteral("    reg uarts_crossed;\n    initial uarts_crossed = "
                                      "$test$plusargs(\"uarts=crossed\");\n");
        QStringList busy = {QStringLiteral("1'b0")};
        QString bit = QStringLiteral("20'd0");
        for (const Peripheral &peripheral : m_map.peripherals) {
            if (peripheral.name != "UART"_l1)
                continue;
            for (const PeripheralInstance &instance : peripheral.instances) {
                const Place rate = placeOf(peripheral, instance, "BAUDDIV"_l1);
                const Place control = placeOf(peripheral, instance, "CTRL"_l1);
                const Place format = placeOf(peripheral, instance, "FORMAT"_l1);
                const QString number = instance.name.right(1);
                const auto formatField = [&](QLatin1String name) {
                    return fieldOf(format, "format"_l1 + number, name);
                };
                const QString reading =
                    QStringLiteral(".clk(clk), .divider(divider%1), .fraction(%2), .bits(%3), "
                                   ".nine(%4), .parity(%5)")
                        .arg(number, fieldOf(rate, "rate"_l1 + number, "FRACTION"_l1),
                             formatField("BITS"_l1), formatField("NINE"_l1),
                             formatField("PARITY"_l1));
                text += copyOf(rate, "rate"_l1 + number) + copyOf(control, "control"_l1 + number) +
                        copyOf(format, "format"_l1 + number);
                text += QStringLiteral("    wire [19:0] divider%1 = %2 < 20'd%3 ? 20'd%3 : %2;\n"
                                       "    wire busy%1, line%1, is_used%1;\n")
                            .arg(number, fieldOf(rate, "rate"_l1 + number, "CYCLES"_l1))
                            .arg(rate.entry->fields.first().minimum);
                text += QStringLiteral("    board_uart #(.NUMBER(%1)) uart%1 (%2, "
                                       ".line(p_UART%1TXD), .busy(busy%1));\n")
                            .arg(number, reading);
                text += QStringLiteral("    board_uart_sender #(.NUMBER(%1)) sender%1 (%2, "
                                       ".odd(%3), .stick(%4), .two_stops(%5), .enabled(%6), "
                                       ".quiet(%1 == 0 || !busy%1), .line(line%1), "
                                       ".is_used(is_used%1));\n")
                            .arg(number, reading, formatField("ODD"_l1), formatField("STICK"_l1),
                                 formatField("STOP"_l1),
                                 fieldOf(control, "control"_l1 + number, "RXEN"_l1));
                busy.append("busy"_l1 + number);
                bit = QStringLiteral("(divider%1 > %2 ? divider%1 : %2)").arg(number, bit);
            }
        }
        return text + "    wire uart_busy = "_l1 + busy.join(" | "_l1) +
               ";\n    wire [19:0] uart_bit = "_l1 + bit + ";\n"_l1;
    }

    // Pins that neither the subsystem nor the outside drives: 8 to 15 follow 0 to 7, which are low.
    QString gpio() const
    {
        const bool isInout = portNamed(QStringLiteral("GPIO"));
        if (!isInout && !portNamed(QStringLiteral("GPIOIN")))
            return {};
        QString text;
        if (isInout) {
            for (const Peripheral &peripheral : m_map.peripherals) {
                for (const PeripheralInstance &instance : peripheral.instances) {
                    if (peripheral.name == "GPIO"_l1)
                        text += copyOf(placeOf(peripheral, instance, "OUTEN"_l1),
                                       QStringLiteral("gpio_enables"));
                }
            }
        }
        text +=
            "    reg  [15:0] gpio_outside = 16'd0; // what pins have that the subsystem does not "
            "drive\n"
            "    reg  [15:0] gpio_mask = 16'd0, gpio_drive = 16'd0, gpio_seen;\n"
            "    reg  [31:0] gpio_told = 32'd0;\n"_l1;
        text += isInout ? "    wire [15:0] gpio_driven = gpio_enables[15:0];\n"
                          "    wire [15:0] gpio_levels = p_GPIO;\n"_l1
                        : "    wire [15:0] gpio_driven = p_GPIOOUTEN;\n"
                          "    wire [15:0] gpio_levels = (p_GPIOOUTEN & p_GPIOOUT) | (~p_GPIOOUTEN "
                          "& gpio_outside);\n"_l1;
        for (int i = 0; isInout && i < 16; ++i)
            text += QStringLiteral("    assign p_GPIO[%1] = gpio_driven[%1] ? 1'bz : "
                                   "gpio_outside[%1];\n")
                        .arg(i);
        return text + QLatin1String(pins);
    }

    // What keeps bytes behind the pins.
    QString devices() const
    {
        QString text;
        if (portNamed(QStringLiteral("SDA")))
            text += "    wire i2c_scl = p_SCL;\n    wire i2c_sda = p_SDA;\n"
                    "    wire eeprom_low;\n    assign p_SDA = eeprom_low ? 1'b0 : 1'bz;\n"_l1;
        else if (portNamed(QStringLiteral("SDAIN")))
            text += "    wire eeprom_low;\n"
                    "    wire i2c_scl = ~p_SCLOUTEN | p_SCLOUT;\n"
                    "    wire i2c_sda = (~p_SDAOUTEN | p_SDAOUT) & ~eeprom_low;\n"_l1;
        if (!text.isEmpty())
            text += "    board_i2c_memory #(.STORAGE(0)) eeprom (.clk(clk), .size(eeprom_size), "
                    ".scl(i2c_scl), .sda(i2c_sda), .sda_low(eeprom_low));\n"_l1;
        if (portNamed(QStringLiteral("FLASH_SPI_CSN")))
            text += "    wire [3:0] flash_out, flash_outen;\n"
                    "    assign p_FLASH_SPI_MOSI = flash_outen[0] ? flash_out[0] : 1'bz;\n"
                    "    assign p_FLASH_SPI_MISO = flash_outen[1] ? flash_out[1] : 1'bz;\n"
                    "    assign p_FLASH_SPI_WPN = flash_outen[2] ? flash_out[2] : 1'bz;\n"
                    "    assign p_FLASH_SPI_HOLDN = flash_outen[3] ? flash_out[3] : 1'bz;\n"
                    "    board_spi_flash #(.STORAGE(1)) flash (.clk(clk), .size(flash_size), "
                    ".csn(p_FLASH_SPI_CSN), .sclk(p_FLASH_SPI_CLK), "
                    ".lanes({p_FLASH_SPI_HOLDN, p_FLASH_SPI_WPN, p_FLASH_SPI_MISO, "
                    "p_FLASH_SPI_MOSI}), .out(flash_out), .outen(flash_outen));\n"_l1;
        if (portNamed(QStringLiteral("SD_DATAIN")))
            text += "    wire sd_miso;\n"
                    "    board_sd_card #(.STORAGE(2)) card (.clk(clk), .size(sd_size), "
                    ".cs(p_SD_CS), .sclk(p_SD_CLK), .mosi(p_SD_DATAOUT), .miso(sd_miso));\n"_l1;
        return text;
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
    text.insert(text.lastIndexOf("endmodule"), text.contains("HREADYOUT") ? ahbTold : apbTold);
    return text;
}

QByteArray withBusWatch(const QByteArray &source)
{
    const int top = source.indexOf("\nmodule Tarvo_ORIX_M1_Top");
    const int end = top < 0 ? -1 : source.indexOf("\nendmodule", top);
    if (end < 0)
        return source;
    QByteArray text = source;
    return text.insert(end, "\n    bus_watch #(\n`ifndef BUS_WATCH_NETLIST\n"
                            "        .SLAVES(AHB_ENABLE)\n`endif\n    ) bus_watch ();");
}

} // namespace TARVOORIXM1
