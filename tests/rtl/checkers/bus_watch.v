// Holds every bus of a simulated subsystem to its rules. A root beside the testbench's: the subsystem is `WATCHED (tb.dut), and
// this file stands behind the top, with the macros of its configuration.
`include "define.vh"
`ifndef WATCHED
`define WATCHED tb.dut
`endif

module bus_watch;
    // A testbench whose slaves leave the rules on purpose says so: those at the ports are not watched meanwhile.
    reg  misbehaving = 1'b0;
    wire watched_n   = `WATCHED.sys_n & ~misbehaving;

    // The processor's side, and that of each slave.
    ahb_lite_checker master (
        .HCLK(`WATCHED.HCLK), .HRESETn(`WATCHED.sys_n), .HADDR(`WATCHED.haddr), .HTRANS(`WATCHED.htrans), .HBURST(`WATCHED.hburst),
        .HSIZE(`WATCHED.hsize), .HPROT(`WATCHED.hprot), .HWRITE(`WATCHED.hwrite), .HWDATA(`WATCHED.hwdata), .HSEL(1'b1),
        .HREADY(`WATCHED.hready), .HRESP(`WATCHED.hresp), .HRDATA(`WATCHED.hrdata), .HREADYOUT(`WATCHED.hready),
        .HRESPOUT(`WATCHED.hresp)
    );
    // The master's rules are those of the checker above.
    // Slaves that the configuration does not have are never selected, and their checkers have no clock.
    wire [15:0] present = `WATCHED.AHB_ENABLE;
    genvar n;
    generate for (n = 0; n < 16; n = n + 1) begin : slave
        ahb_lite_checker #(.ASSUME_MASTER(2)) rules (
            .HCLK(`WATCHED.HCLK & present[n]), .HRESETn(watched_n), .HADDR({30'd0, `WATCHED.haddr[1:0]}),
            .HTRANS(`WATCHED.htrans), .HBURST(3'd0), .HSIZE(`WATCHED.hsize), .HPROT(4'd0), .HWRITE(`WATCHED.hwrite), .HWDATA(32'd0), .HSEL(`WATCHED.hsel_s[n]), .HREADY(`WATCHED.hready), .HRESP(`WATCHED.hresp),
            .HRDATA(`WATCHED.hrdata_s[32*n +: 32]), .HREADYOUT(`WATCHED.hreadyout_s[n]), .HRESPOUT(`WATCHED.hresp_s[n])
        );
    end endgenerate

    // The APB of the blocks, which never wait, and that of the extension ports.
`ifdef TARVO_APBINT_SUPPORT
    apb_checker apbint (
        .PCLK(`WATCHED.HCLK), .PRESETn(`WATCHED.sys_n), .PSEL(`WATCHED.apbint_psel), .PENABLE(`WATCHED.apbint_penable),
        .PWRITE(`WATCHED.apbint_pwrite), .PADDR({8'd0, `WATCHED.apbint_paddr}), .PWDATA(`WATCHED.apbint_pwdata),
        .PSTRB(`WATCHED.apbint_pstrb), .PPROT(`WATCHED.apbint_pprot), .PRDATA(`WATCHED.apbint_prdata),
        .PREADY(`WATCHED.apbint_pready), .PSLVERR(`WATCHED.apbint_pslverr), .LATE(`WATCHED.bus_late)
    );
    apb_checker #(.SLOTS(16), .MOST_WAITS(0)) apbint_slots (
        .PCLK(`WATCHED.HCLK), .PRESETn(`WATCHED.sys_n), .PSEL(`WATCHED.apbint_psel_s),
        .PENABLE(`WATCHED.apbint_penable & |`WATCHED.apbint_psel_s), .PWRITE(`WATCHED.apbint_pwrite), .PADDR({8'd0, `WATCHED.apbint_paddr}), .PWDATA(`WATCHED.apbint_pwdata),
        .PSTRB(`WATCHED.apbint_pstrb), .PPROT(`WATCHED.apbint_pprot), .PRDATA(`WATCHED.apbint_prdata),
        .PREADY(`WATCHED.apbint_pready), .PSLVERR(`WATCHED.apbint_pslverr), .LATE(`WATCHED.bus_late)
    );
`endif
`ifdef TARVO_APBEXT_SUPPORT
    apb_checker apbext (
        .PCLK(`WATCHED.HCLK), .PRESETn(watched_n), .PSEL(`WATCHED.apbext_psel), .PENABLE(`WATCHED.apbext_penable),
        .PWRITE(`WATCHED.apbext_pwrite), .PADDR({8'd0, `WATCHED.apbext_paddr}), .PWDATA(`WATCHED.apbext_pwdata),
        .PSTRB(`WATCHED.apbext_pstrb), .PPROT(`WATCHED.apbext_pprot), .PRDATA(`WATCHED.apbext_prdata),
        .PREADY(`WATCHED.apbext_pready), .PSLVERR(`WATCHED.apbext_pslverr), .LATE(`WATCHED.bus_late)
    );
    apb_checker #(.SLOTS(16)) apbext_slots (
        .PCLK(`WATCHED.HCLK), .PRESETn(watched_n), .PSEL(`WATCHED.apbext_psel_s),
        .PENABLE(`WATCHED.apbext_penable & |`WATCHED.apbext_psel_s), .PWRITE(`WATCHED.apbext_pwrite), .PADDR({8'd0, `WATCHED.apbext_paddr}), .PWDATA(`WATCHED.apbext_pwdata),
        .PSTRB(`WATCHED.apbext_pstrb), .PPROT(`WATCHED.apbext_pprot), .PRDATA(`WATCHED.apbext_prdata),
        .PREADY(`WATCHED.apbext_pready), .PSLVERR(`WATCHED.apbext_pslverr), .LATE(`WATCHED.bus_late)
    );
`endif
endmodule
