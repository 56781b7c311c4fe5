// Decoder, default slave and response multiplexer: the whole map, the error response, wait states, data steering.
module tb;
`include "bench.vh"
`include "ahb_master.vh"
    wire [15:0]  hsel_s, masked_sel;
    wire         masked_default;
    reg  [511:0] hrdata_s;
    reg  [15:0]  hreadyout_s = 16'hFFFF;
    reg  [15:0]  hresp_s = 16'h0000;

    ahb_interconnect dut (
        .HCLK(clk), .HRESETn(rstn), .HADDR_REGION(haddr[31:24]), .HTRANS(htrans),
        .HRDATA(hrdata), .HREADY(hready), .HRESP(hresp),
        .hsel_s(hsel_s), .hrdata_s(hrdata_s), .hreadyout_s(hreadyout_s), .hresp_s(hresp_s)
    );
    ahb_decoder #(.ENABLE(16'h0101)) masked (.region(haddr[31:24]), .hsel(masked_sel), .hsel_default(masked_default));

    // The slave of each region, 16 for none.
    function integer owner(input integer region);
        if (region <= 31) owner = 14;
        else if (region <= 63) owner = 15;
        else if (region == 64) owner = 0;
        else if (region == 65) owner = 1;
        else if (region == 66) owner = 2;
        else if (region == 80) owner = 6;
        else if (region == 96) owner = 7;
        else if (region == 104 || region == 105) owner = 3;
        else if (region >= 112 && region <= 127) owner = 4;
        else if (region == 128) owner = 8;
        else if (region == 129) owner = 9;
        else if (region == 134) owner = 10;
        else if (region == 137) owner = 11;
        else if (region == 138) owner = 12;
        else if (region == 139) owner = 13;
        else if (region >= 160 && region <= 191) owner = 5;
        else owner = 16;
    endfunction

    integer n, s;
    reg [15:0] want;
    initial begin
        for (n = 0; n < 16; n = n + 1) hrdata_s[32*n +: 32] = 32'hA5000000 + n;
        reset;
        check(hready === 1'b1 && hresp === 1'b0, "ready after reset");
        for (n = 0; n < 256; n = n + 1) begin
            s = owner(n);
            want = (s == 16) ? 16'd0 : 16'd1 << s;
            haddr = n << 24; #1;
            check32(hsel_s, want, "select of a region");
            check32(masked_sel, want & 16'h0101, "disabled slaves are not selected");
            check(masked_default === ~|(want & 16'h0101), "default select");
            ahb_transfer(n << 24, n[0], 3'd2, 32'd0);
            if (s == 16) begin
                check(failed && waits == 1, "unmapped: two-cycle error");
                check32(rd, 32'd0, "unmapped: no data");
            end else begin
                check(!failed && waits == 0, "mapped: no error, no wait");
                check32(rd, 32'hA5000000 + s, "data of the slave");
            end
        end
        // An idle transfer to nowhere is fine.
        haddr = 32'hF0000000; htrans = 2'b00;
        cycles(1);
        check(hready === 1'b1 && hresp === 1'b0, "idle transfer: OKAY");
        cycles(1);
        check(hready === 1'b1 && hresp === 1'b0, "idle transfer: still OKAY");
        // Wait states, and the error of a slave, while the address already points elsewhere.
        haddr = 32'h81000000; htrans = 2'b10;
        cycles(1);
        hreadyout_s[9] = 1'b0;
        haddr = 32'h40000000; #1;
        check(hready === 1'b0, "slave 9 waits");
        check(hsel_s === 16'h0001, "next address selects slave 0");
        cycles(1);
        hresp_s[9] = 1'b1; #1;
        check(hready === 1'b0 && hresp === 1'b1, "error, first cycle");
        cycles(1);
        hreadyout_s[9] = 1'b1; #1;
        check(hready === 1'b1 && hresp === 1'b1, "error, second cycle");
        cycles(1);
        htrans = 2'b00;
        check(hresp === 1'b0 && hrdata === 32'hA5000000, "slave 0 answers next");
        // Back to back: an error followed by a good transfer.
        hresp_s = 16'd0;
        haddr = 32'hC0000000; htrans = 2'b10;
        cycles(1);
        haddr = 32'h8B000000;
        #1 check(hready === 1'b0 && hresp === 1'b1, "unmapped, first cycle");
        cycles(1);
        check(hready === 1'b1 && hresp === 1'b1, "unmapped, second cycle");
        cycles(1);
        htrans = 2'b00;
        check(hready === 1'b1 && hresp === 1'b0 && hrdata === 32'hA500000D, "slave 13 after the error");
        finish;
    end
endmodule
