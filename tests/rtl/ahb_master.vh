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
