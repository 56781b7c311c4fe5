// The bus of a block on the APB for serve.vh.
`include "apb_master.vh"
    reg [31:0] page = 32'd0;   // base of the last register
    task bus_write(input [31:0] address, input [31:0] data);
        begin
            page = address & 32'hFFFFF000;
            apb_write(address[11:0], data);
        end
    endtask
    task bus_read(input [31:0] address);
        begin
            page = address & 32'hFFFFF000;
            apb_read(address[11:0]);
        end
    endtask
