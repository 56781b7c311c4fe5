// The interconnect with decoder and default slave, whatever the slaves do; only an error without its first cycle is none of theirs.
// The master sees the bus of one slave, each access ends within the limit that is set, and a slave that did not end its own is not
// selected until it is ready, which is nothing to the others. What is said of slave n is proven for each.
// With FULL = 0 nothing ends for a slave: it may wait for ever, whatever limit is set, and is always selected. That it then ends an
// error response in the second cycle is taken for granted, and nothing else of it.
module proof #(
    parameter FULL = 1
) (
    input wire         clk, rstn, hwrite,
    input wire [31:0]  haddr, hwdata,
    input wire [1:0]   htrans,
    input wire [2:0]   hburst, hsize,
    input wire [3:0]   hprot,
    input wire [17:0]  timeout,
    input wire [511:0] hrdata_s,
    input wire [15:0]  hreadyout_s, hresp_s, vacant_s, expired_s
);
`include "environment.vh"
    localparam [15:0] BRIDGES = 16'h00C0;
    wire [3:0]  n = $anyconst;

    wire [31:0] hrdata;
    wire        hready, hresp, late;
    wire [1:0]  cause;
    wire [15:0] hsel_s;
    ahb_interconnect #(.FULL(FULL), .BRIDGES(BRIDGES)) dut (
        .HCLK(clk), .HRESETn(rstn), .timeout(timeout), .HADDR_REGION(haddr[31:24]), .HTRANS(htrans),
        .HRDATA(hrdata), .HREADY(hready), .HRESP(hresp), .cause(cause), .late(late),
        .hsel_s(hsel_s), .hrdata_s(hrdata_s), .hreadyout_s(hreadyout_s), .hresp_s(hresp_s), .vacant_s(vacant_s),
        .expired_s(expired_s)
    );
    ahb_lite_checker #(.ASSUME_MASTER(1)) master (
        .HCLK(clk), .HRESETn(rstn), .HADDR(haddr), .HTRANS(htrans), .HBURST(hburst), .HSIZE(hsize), .HPROT(hprot),
        .HWRITE(hwrite), .HWDATA(hwdata), .HSEL(1'b1), .HREADY(hready), .HRESP(hresp),
        .HRDATA(hrdata), .HREADYOUT(hready), .HRESPOUT(hresp)
    );
    wire [15:0] map;       // of the address
    ahb_decoder decoder (.region(haddr[31:24]), .hsel(map), .hsel_default());

    reg [15:0] owner;      // of the data phase
    reg        nobody;     // it has none
    reg        refused;    // but somebody is at the address
    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            owner   <= 16'd0;
            nobody  <= 1'b0;
            refused <= 1'b0;
        end else begin
            nobody <= hready & htrans[1] & hsel_s == 16'd0;
            if (hready) begin
                owner   <= hsel_s & {16{htrans[1]}};
                refused <= |(map & ~hsel_s);
            end
        end

    reg [17:0] rest;       // wait states until the limit; 0: there is none
    reg        due;        // it is reached
    reg        second;     // cycle of an error response
    reg        timed_out;  // it is the limit's
    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            rest      <= 18'd0;
            due       <= 1'b0;
            second    <= 1'b0;
            timed_out <= 1'b0;
        end else begin
            rest      <= FULL == 0 ? 18'd0 : hready ? timeout : rest - {17'd0, |rest};
            due       <= ~hready & rest == 18'd1;
            second    <= ~hready & hresp;
            timed_out <= ~hready & due & owner[n] & ~hresp_s[n];
        end

    // Slave n is left behind: its access ends, or will in the next cycle, and it has not been ready since.
    wire passed = owner[n] & hready & ~hreadyout_s[n] & ~BRIDGES[n];
    wire missed = owner[n] & due & ~hreadyout_s[n] & ~hresp_s[n] & ~BRIDGES[n];
    reg  behind;
    always @(posedge clk or negedge rstn)
        if (!rstn)
            behind <= 1'b0;
        else
            behind <= ~hreadyout_s[n] & (behind | passed | missed);

    always @*
        if (rstn) begin
            assume ((owner & hresp_s & hreadyout_s) == 16'd0 || second);
            if (FULL == 0)
                assume ((owner & hresp_s & hreadyout_s) == owner || !second);
            // Whatever a slave does.
            assert (late == due);
            assert (!(due && !hready) || hresp);
            assert (!second || (hready && hresp));
            assert ((hsel_s & (hsel_s - 16'd1)) == 16'd0 && (owner & (owner - 16'd1)) == 16'd0);
            assert (!nobody || (!hready && hresp));
            assert (!(hready && hresp && owner == 16'd0) || cause == {2{refused}});
            // Slave n.
            assert (hsel_s[n] == (map[n] & ~behind & ~passed));
            if (owner[n]) begin
                assert (hrdata == hrdata_s[32*n +: 32]);
                if (!second && !(due && !hreadyout_s[n]))
                    assert (hready == hreadyout_s[n] && hresp == hresp_s[n]);
                if (hready && hresp)
                    assert (cause == (timed_out || expired_s[n] ? 2'd2 : vacant_s[n] ? 2'd0 : 2'd1));
            end
        end
endmodule
