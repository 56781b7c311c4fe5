// AHB-Lite master of the testbenches, included inside a module after bench.vh.  The module gives HREADY, HRDATA and
// HRESP as hready, hrdata and hresp.
    reg  [31:0] haddr = 32'd0;
    reg  [1:0]  htrans = 2'd0;
    reg  [2:0]  hsize = 3'd2;
    reg         hwrite = 1'b0;
    reg  [31:0] hwdata = 32'd0;
    wire        hready, hresp;
    wire [31:0] hrdata;
    reg  [31:0] rd;
    reg         failed;       // the last transfer got an error response
    integer     waits;        // wait states of the last transfer

    // What the master sees of the bus. A testbench of the whole subsystem leaves rstn at 0: bus_watch.v looks at all of its buses.
    ahb_lite_checker bus_rules (
        .HCLK(clk), .HRESETn(rstn), .HADDR(haddr), .HTRANS(htrans), .HBURST(3'd0), .HSIZE(hsize), .HPROT(4'b0011),
        .HWRITE(hwrite), .HWDATA(hwdata), .HSEL(1'b1), .HREADY(hready), .HRESP(hresp),
        .HRDATA(hrdata), .HREADYOUT(hready), .HRESPOUT(hresp)
    );

    task ahb_transfer(input [31:0] address, input write, input [2:0] size, input [31:0] data);
        begin
            haddr = address; htrans = 2'b10; hsize = size; hwrite = write;
            #1;
            while (!hready) cycles(1);
            cycles(1);
            htrans = 2'b00; hwdata = data; haddr = 32'd0; hwrite = 1'b0;
            #1;
            waits = 0;
            failed = 1'b0;
            while (!hready) begin
                failed = hresp;
                waits = waits + 1;
                cycles(1);
                #1;
            end
            check(failed === hresp, "an error response has two cycles");
            rd = hrdata;
            cycles(1);
        end
    endtask

    task ahb_write(input [31:0] address, input [31:0] data);
        ahb_transfer(address, 1'b1, 3'd2, data);
    endtask

    task ahb_expect(input [31:0] address, input [31:0] expected, input [8*48-1:0] what);
        begin
            ahb_transfer(address, 1'b0, 3'd2, 32'd0);
            check(!failed, "no error of an AHB read");
            check32(rd, expected, what);
        end
    endtask

    // A register in which `bits` keep what is written and the others are `fixed`: random words, bytes and halfwords, each read back.
    // It keeps the last of them.
    task ahb_parts(input [31:0] address, input [31:0] bits, input [31:0] fixed);
        reg [31:0] value, kept, reached;
        integer    part;
        begin
            kept = 32'd0;
            for (part = 0; part < 21; part = part + 1) begin
                value = $random;
                case (part % 7)
                    0: begin ahb_write(address, value); reached = 32'hFFFFFFFF; end
                    5, 6: begin
                        value[31:16] = value[15:0];
                        ahb_transfer(address + 2 * (part % 7 - 5), 1'b1, 3'd1, value);
                        reached = 32'h0000FFFF << 16 * (part % 7 - 5);
                    end
                    default: begin
                        value = {4{value[7:0]}};
                        ahb_transfer(address + part % 7 - 1, 1'b1, 3'd0, value);
                        reached = 32'h000000FF << 8 * (part % 7 - 1);
                    end
                endcase
                kept = (kept & ~reached) | (value & reached);
                ahb_expect(address, (kept & bits) | fixed, "a register by its parts");
            end
        end
    endtask
