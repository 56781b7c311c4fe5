// The slots of an APB: any address selects one slave at most, which sees a transfer as the master makes it; the master sees a
// slave. What is said of slot n is proven for each.
module proof (
    input wire         clk, rstn, psel, penable, pwrite, late,
    input wire [31:0]  pwdata,
    input wire [23:0]  paddr,
    input wire [3:0]   pstrb,
    input wire [511:0] prdata_s,
    input wire [15:0]  pready_s, pslverr_s
);
`include "environment.vh"
    wire [3:0]  n = $anyconst;
    wire [31:0] prdata;
    wire        pready, pslverr, vacant;
    wire [15:0] psel_s;
    apb_mux #(.ENABLE(16'hFDFF)) dut (
        .PADDR(paddr), .PSEL(psel), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .vacant(vacant),
        .psel_s(psel_s), .prdata_s(prdata_s), .pready_s(pready_s), .pslverr_s(pslverr_s)
    );
    apb_checker #(.MOST_WAITS(3), .ASSUME_MASTER(1)) master (
        .PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR({8'd0, paddr}), .PWDATA(pwdata),
        .PSTRB(pstrb), .PPROT(3'd0), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .LATE(late)
    );
    // All slots at once: what the master does reaches them as it is, and at most one.
    apb_checker #(.SLOTS(16), .ASSUME_SLAVE(2)) slots (
        .PCLK(clk), .PRESETn(rstn), .PSEL(psel_s), .PENABLE(penable & |psel_s), .PWRITE(pwrite), .PADDR({8'd0, paddr}),
        .PWDATA(pwdata), .PSTRB(pstrb), .PPROT(3'd0), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .LATE(late)
    );
    // A slave waits three cycles at most, and so does the whole.
    genvar g;
    generate for (g = 0; g < 16; g = g + 1) begin : slot
        apb_checker #(.MOST_WAITS(3), .ASSUME_MASTER(2), .ASSUME_SLAVE(1)) rules (
            .PCLK(clk), .PRESETn(rstn), .PSEL(psel_s[g]), .PENABLE(penable & psel_s[g]), .PWRITE(pwrite), .PADDR({8'd0, paddr}),
            .PWDATA(pwdata), .PSTRB(pstrb), .PPROT(3'd0), .PRDATA(prdata_s[32*g +: 32]), .PREADY(pready_s[g]),
            .PSLVERR(pslverr_s[g]), .LATE(late)
        );
    end endgenerate
    always @* begin
        assert (!psel_s[9]);
        assert (!psel || vacant == (psel_s == 16'd0));
        if (psel && vacant)
            assert (pready && pslverr);
        // The master sees what the slave of the slot says.
        if (psel_s[n])
            assert (pready == pready_s[n] && pslverr == pslverr_s[n] && prdata == prdata_s[32*n +: 32]);
    end
endmodule
