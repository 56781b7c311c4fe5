// Holds every bus of a simulated subsystem to its rules. A root beside the testbench's, or an instance named bus_watch anywhere: the
// subsystem is `WATCHED (tb.dut), and this file stands behind the top, with the macros of its configuration. Of a netlist (the macro
// BUS_WATCH_NETLIST) only the processor's pins are known.
`ifndef BUS_WATCH_NETLIST
`include "define.vh"
`endif
`ifndef WATCHED
`define WATCHED tb.dut
`endif

module bus_watch #(
    parameter [15:0] SLAVES = 16'hFFFF   // that are watched, of those that the configuration has
);
    // Clock cycles from the end of the power-on reset.
    reg [63:0] cycles = 64'd0;
    always @(posedge `WATCHED.HCLK)
        if (`WATCHED.hwRstn === 1'b1) cycles <= cycles + 64'd1;

    // What a rule is broken by is seen in several places of a clock cycle; then a board's run ends.
    reg broken = 1'b0;
`ifdef BUS_RULES_OF_BOARD
    always @(negedge `WATCHED.HCLK)
        if (broken) $finish(0);
`endif

    // The processor's side.
    ahb_lite_checker #(.BUS("processor")) master (
        .HCLK(`WATCHED.HCLK), .HRESETn(`WATCHED.u_core.SYSRESETn), .HADDR(`WATCHED.u_core.HADDR), .HTRANS(`WATCHED.u_core.HTRANS),
        .HBURST(`WATCHED.u_core.HBURST), .HSIZE(`WATCHED.u_core.HSIZE), .HPROT(`WATCHED.u_core.HPROT), .HWRITE(`WATCHED.u_core.HWRITE),
        .HWDATA(`WATCHED.u_core.HWDATA), .HSEL(1'b1), .HREADY(`WATCHED.u_core.HREADY), .HRESP(`WATCHED.u_core.HRESP),
        .HRDATA(`WATCHED.u_core.HRDATA), .HREADYOUT(`WATCHED.u_core.HREADY), .HRESPOUT(`WATCHED.u_core.HRESP)
    );

`ifndef BUS_WATCH_NETLIST
    // A testbench whose slaves leave the rules on purpose says so: those at the ports are not watched meanwhile.
    reg  misbehaving = 1'b0;
    wire watched_n   = `WATCHED.sys_n & ~misbehaving;

    // What a slave does not answer in time the bus ends itself; the slave is out of it until it is ready.
    reg  [15:0] owner    = 16'd0;   // of the data phase
    reg  [15:0] given_up = 16'd0;
    wire [15:0] late     = owner & {16{`WATCHED.bus_late}} & ~`WATCHED.hreadyout_s & ~`WATCHED.hresp_s & ~`WATCHED.AHB_BRIDGES;
    always @(posedge `WATCHED.HCLK)
        if (`WATCHED.sys_n !== 1'b1) begin
            owner    <= 16'd0;
            given_up <= 16'd0;
        end else begin
            if (`WATCHED.hready) owner <= `WATCHED.hsel_s & {16{`WATCHED.htrans[1]}};
            given_up <= (given_up | late) & ~`WATCHED.hreadyout_s;
        end

    // An address that slave N answers: the first one, or the last where a memory of the processor stands before it.
    function [31:0] place_of(input integer n);
        case (n)
            `ORIX_S_GPIO:     place_of = {`ORIX_REGION_GPIO, 24'd0};
            `ORIX_S_CAN:      place_of = {`ORIX_REGION_CAN, 24'd0};
            `ORIX_S_ETH:      place_of = {`ORIX_REGION_ETH, 24'd0};
            `ORIX_S_SPIFLASH: place_of = {`ORIX_REGION_SPIFLASH, 25'd0};
            `ORIX_S_PSRAM:    place_of = {`ORIX_REGION_PSRAM, 28'd0};
            `ORIX_S_DDR3:     place_of = {`ORIX_REGION_DDR3, 29'd0};
            `ORIX_S_APBINT:   place_of = {`ORIX_REGION_APBINT, 24'd0};
            `ORIX_S_APBEXT:   place_of = {`ORIX_REGION_APBEXT, 24'd0};
            `ORIX_S_AHB1:     place_of = {`ORIX_REGION_AHB1, 24'd0};
            `ORIX_S_AHB2:     place_of = {`ORIX_REGION_AHB2, 24'd0};
            `ORIX_S_AHB3:     place_of = {`ORIX_REGION_AHB3, 24'd0};
            `ORIX_S_AHB4:     place_of = {`ORIX_REGION_AHB4, 24'd0};
            `ORIX_S_AHB5:     place_of = {`ORIX_REGION_AHB5, 24'd0};
            `ORIX_S_AHB6:     place_of = {`ORIX_REGION_AHB6, 24'd0};
            `ORIX_S_EXTFLASH: place_of = {`ORIX_REGION_EXTFLASH, {29{1'b1}}};
            default:          place_of = {`ORIX_REGION_EXTSRAM, {29{1'b1}}};
        endcase
    endfunction

    // The side of each slave; the master's rules are those of the checker above. Slaves that the configuration does not have are never
    // selected, and their checkers have no clock. How long a slave of our own may take stands in its registers' description.
    wire [15:0] present = `WATCHED.AHB_ENABLE;
    genvar n;
    generate for (n = 0; n < 16; n = n + 1) if (SLAVES[n]) begin : slave
        ahb_lite_checker #(
            .PLACE(place_of(n)), .MOST_WAITS(n == `ORIX_S_GPIO ? 0 : n == `ORIX_S_SPIFLASH ? 160000 : -1), .ASSUME_MASTER(2)
        ) rules (
            .HCLK(`WATCHED.HCLK & present[n]), .HRESETn(watched_n & ~given_up[n] & ~late[n]), .HADDR({30'd0, `WATCHED.haddr[1:0]}),
            .HTRANS(`WATCHED.htrans), .HBURST(3'd0), .HSIZE(`WATCHED.hsize), .HPROT(4'd0), .HWRITE(`WATCHED.hwrite), .HWDATA(32'd0),
            .HSEL(`WATCHED.hsel_s[n]), .HREADY(`WATCHED.hready), .HRESP(`WATCHED.hresp),
            .HRDATA(`WATCHED.hrdata_s[32*n +: 32]), .HREADYOUT(`WATCHED.hreadyout_s[n]), .HRESPOUT(`WATCHED.hresp_s[n])
        );
    end endgenerate

    // The APB of the blocks, which never wait, and that of the extension ports.
`ifdef TARVO_APBINT_SUPPORT
    apb_checker #(.PLACE({`ORIX_REGION_APBINT, 24'd0})) apbint (
        .PCLK(`WATCHED.HCLK), .PRESETn(`WATCHED.sys_n), .PSEL(`WATCHED.apbint_psel), .PENABLE(`WATCHED.apbint_penable),
        .PWRITE(`WATCHED.apbint_pwrite), .PADDR({8'd0, `WATCHED.apbint_paddr}), .PWDATA(`WATCHED.apbint_pwdata),
        .PSTRB(`WATCHED.apbint_pstrb), .PPROT(`WATCHED.apbint_pprot), .PRDATA(`WATCHED.apbint_prdata),
        .PREADY(`WATCHED.apbint_pready), .PSLVERR(`WATCHED.apbint_pslverr), .LATE(`WATCHED.bus_late)
    );
    apb_checker #(.PLACE({`ORIX_REGION_APBINT, 24'd0}), .SLOTS(16), .MOST_WAITS(0)) apbint_slots (
        .PCLK(`WATCHED.HCLK), .PRESETn(`WATCHED.sys_n), .PSEL(`WATCHED.apbint_psel_s),
        .PENABLE(`WATCHED.apbint_penable & |`WATCHED.apbint_psel_s), .PWRITE(`WATCHED.apbint_pwrite), .PADDR({8'd0, `WATCHED.apbint_paddr}), .PWDATA(`WATCHED.apbint_pwdata),
        .PSTRB(`WATCHED.apbint_pstrb), .PPROT(`WATCHED.apbint_pprot), .PRDATA(`WATCHED.apbint_prdata),
        .PREADY(`WATCHED.apbint_pready), .PSLVERR(`WATCHED.apbint_pslverr), .LATE(`WATCHED.bus_late)
    );
`endif
`ifdef TARVO_APBEXT_SUPPORT
    apb_checker #(.PLACE({`ORIX_REGION_APBEXT, 24'd0})) apbext (
        .PCLK(`WATCHED.HCLK), .PRESETn(watched_n), .PSEL(`WATCHED.apbext_psel), .PENABLE(`WATCHED.apbext_penable),
        .PWRITE(`WATCHED.apbext_pwrite), .PADDR({8'd0, `WATCHED.apbext_paddr}), .PWDATA(`WATCHED.apbext_pwdata),
        .PSTRB(`WATCHED.apbext_pstrb), .PPROT(`WATCHED.apbext_pprot), .PRDATA(`WATCHED.apbext_prdata),
        .PREADY(`WATCHED.apbext_pready), .PSLVERR(`WATCHED.apbext_pslverr), .LATE(`WATCHED.bus_late)
    );
    apb_checker #(.PLACE({`ORIX_REGION_APBEXT, 24'd0}), .SLOTS(16)) apbext_slots (
        .PCLK(`WATCHED.HCLK), .PRESETn(watched_n), .PSEL(`WATCHED.apbext_psel_s),
        .PENABLE(`WATCHED.apbext_penable & |`WATCHED.apbext_psel_s), .PWRITE(`WATCHED.apbext_pwrite), .PADDR({8'd0, `WATCHED.apbext_paddr}), .PWDATA(`WATCHED.apbext_pwdata),
        .PSTRB(`WATCHED.apbext_pstrb), .PPROT(`WATCHED.apbext_pprot), .PRDATA(`WATCHED.apbext_prdata),
        .PREADY(`WATCHED.apbext_pready), .PSLVERR(`WATCHED.apbext_pslverr), .LATE(`WATCHED.bus_late)
    );
`endif
`endif
endmodule
