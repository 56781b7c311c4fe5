// A processor's model alone with a memory of 4 KB that answers everywhere: without wait states, with as many as bits 13 and 12
// of the address say, and with an error from 0x50000000 to 0x5FFFFFFF. What the bus shows in each cycle goes to the file "trace";
// what AHB-Lite forbids a master is printed.
`timescale 1ns / 1ps

module bench;
    reg clk = 1'b0;
    always #5 clk = ~clk;
    reg reset = 1'b0;
    initial #42 reset = 1'b1;

    wire [31:0] haddr, hwdata;
    wire [1:0]  htrans;
    wire [2:0]  hburst, hsize;
    wire        hwrite;
    reg  [31:0] hrdata = 32'd0;
    reg         hready = 1'b1, hresp = 1'b0;
    wire        request;

    CortexM1Core core (
        .HCLK(clk), .PORRESETn(reset), .SYSRESETn(reset), .SYSRESETREQ(request), .NMI(1'b0), .IRQ(32'd0),
        .HADDR(haddr), .HTRANS(htrans), .HBURST(hburst), .HSIZE(hsize), .HWRITE(hwrite), .HWDATA(hwdata), .HRDATA(hrdata),
        .HREADY(hready), .HRESP(hresp), .ITCMRDATA(32'd0), .DTCMRDATA(32'd0), .DBGITCMREADY(1'b1), .DBGDTCMREADY(1'b1),
        .nTRST(1'b1), .SWCLKTCK(1'b1), .SWDITMS(1'b1), .TDI(1'b1)
    );

    reg [31:0] memory[0:1023];
    integer    n;
    initial for (n = 0; n < 1024; n = n + 1) memory[n] = 32'd0;
    reg         busy = 1'b0;     // a data phase
    reg  [31:0] address;
    reg         write;
    reg  [2:0]  size;
    integer     waits = 0;
    reg  [31:0] lanes;
    always @(posedge clk) begin
        if (busy && hready && write && !hresp) begin
            lanes = (size == 3'd0) ? 32'hFF << (8 * address[1:0]) : (size == 3'd1) ? 32'hFFFF << (8 * address[1:0]) : ~32'd0;
            memory[address[11:2]] = (memory[address[11:2]] & ~lanes) | (hwdata & lanes);
        end
        if (hready) begin
            busy = htrans[1];
            address = haddr;
            write = hwrite;
            size = hsize;
            waits = haddr[13:12];
        end else
            waits = waits - 1;
        if (busy && address[31:28] == 4'h5) begin
            hready <= waits < 0;
            hresp <= waits <= 0;
        end else begin
            hready <= !busy || waits <= 0;
            hresp <= 1'b0;
        end
        hrdata <= (busy && waits <= 0) ? memory[address[11:2]] : 32'hDEADDEAD;
    end

    integer file;
    initial file = $fopen("trace", "w");
    always @(posedge clk)
        $fdisplay(file, "%b %b %b %b %b %b %b %b", htrans, hburst, hsize, hwrite, haddr, hwdata, hready, hresp);

    // What held in the last cycle, and the burst that is under way.
    reg         held = 1'b0, in_data = 1'b0;
    reg  [40:0] control = 41'd0;
    reg  [31:0] data, expected;
    reg  [2:0]  burst;
    reg  [3:0]  kind;
    integer     left = 0, beats, span;
    always @(posedge clk) if (reset) begin
        if (held && {haddr, htrans, hburst, hsize, hwrite} !== control)
            $display("PROTOCOL: the address phase changes while HREADY is low");
        if (held && in_data && hwdata !== data)
            $display("PROTOCOL: the data change while HREADY is low");
        if (hready) begin
            beats = (hburst[2:1] == 2'd0) ? 1 : 2 << hburst[2:1];
            if (htrans == 2'b11) begin
                if (haddr !== expected || {hburst, hwrite} !== kind || hsize !== 3'd2)
                    $display("PROTOCOL: address %h does not go on with the burst", haddr);
                if (left == 0 && hburst !== 3'b001)
                    $display("PROTOCOL: the burst is too long");
            end else if (left > 0)
                $display("PROTOCOL: the burst is too short");
            if (htrans == 2'b10)
                left = beats;
            if (left > 0 && htrans[1])
                left = left - 1;
            span = (hburst[0] || hburst == 3'd0) ? 0 : 4 * beats;
            expected = (span == 0) ? haddr + 4 : (haddr & ~(span - 1)) | ((haddr + 4) & (span - 1));
            if (htrans[1] && span == 0 && expected[9:0] == 10'd0 && (left > 0))
                $display("PROTOCOL: the burst crosses a boundary of 1 KB");
            kind = {hburst, hwrite};
            in_data = htrans[1];
        end
        held = !hready;
        control = {haddr, htrans, hburst, hsize, hwrite};
        data = hwdata;
    end
endmodule
