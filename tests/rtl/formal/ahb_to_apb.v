// The bridge: a slave of the AHB and the master of an APB, whatever the APB's slaves do. A transfer is a setup cycle and an access on
// the APB, which ends when its slave is ready or, given up, when it is late; an error response has one cycle more. The next transfer
// begins with a setup cycle of its own.
module proof (
    input wire        clk, rstn, hsel, hwrite, hready, hresp, late, pready, pslverr,
    input wire [31:0] haddr, hwdata, prdata,
    input wire [1:0]  htrans,
    input wire [2:0]  hburst, hsize,
    input wire [3:0]  hprot
);
`include "environment.vh"
    wire [31:0] hrdata, pwdata;
    wire        hreadyout, hrespout, expired, psel, penable, pwrite;
    wire [23:0] paddr;
    wire [3:0]  pstrb;
    wire [2:0]  pprot;
    ahb_to_apb dut (
        .HCLK(clk), .HRESETn(rstn), .HSEL(hsel), .HADDR(haddr[23:0]), .HTRANS(htrans), .HSIZE(hsize), .HPROT(hprot),
        .HWRITE(hwrite), .HWDATA(hwdata), .HREADY(hready), .HRDATA(hrdata), .HREADYOUT(hreadyout), .HRESP(hrespout),
        .late(late), .expired(expired),
        .PADDR(paddr), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PSTRB(pstrb), .PPROT(pprot), .PWDATA(pwdata),
        .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr)
    );
    ahb_lite_checker #(.ASSUME_MASTER(1), .ASSUME_BUS(1)) ahb (
        .HCLK(clk), .HRESETn(rstn), .HADDR(haddr), .HTRANS(htrans), .HBURST(hburst), .HSIZE(hsize), .HPROT(hprot),
        .HWRITE(hwrite), .HWDATA(hwdata), .HSEL(hsel), .HREADY(hready), .HRESP(hresp),
        .HRDATA(hrdata), .HREADYOUT(hreadyout), .HRESPOUT(hrespout)
    );
    apb_checker #(.ASSUME_SLAVE(1)) apb (
        .PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR({8'd0, paddr}), .PWDATA(pwdata),
        .PSTRB(pstrb), .PPROT(pprot), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .LATE(late)
    );
    reg        asked;      // first cycle of a data phase
    reg        owns;
    reg [23:0] address;
    reg        writes;
    reg        second;     // cycle of an error response
    reg        given_up;   // its reason
    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            asked    <= 1'b0;
            owns     <= 1'b0;
            address  <= 24'd0;
            writes   <= 1'b0;
            second   <= 1'b0;
            given_up <= 1'b0;
        end else begin
            asked    <= hready & hsel & htrans[1];
            second   <= penable & (pready ? pslverr : late);
            given_up <= penable & ~pready & late;
            if (hready) begin
                owns <= hsel & htrans[1];
                if (hsel & htrans[1]) begin
                    address <= haddr[23:0];
                    writes  <= hwrite;
                end
            end
        end
    always @*
        if (rstn) begin
            assert (asked == (psel & ~penable));
            assert (owns == (psel | second));
            assert (!psel || (paddr == address && pwrite == writes && pwdata == hwdata));
            if (psel && !(penable && (pready || late)))
                assert (!hreadyout && !hrespout);
            if (penable && pready && !pslverr)
                assert (hreadyout && !hrespout && hrdata == prdata);
            if (penable && (pready ? pslverr : late))
                assert (!hreadyout && hrespout);
            if (second)
                assert (hreadyout && hrespout && expired == given_up);
        end
endmodule
