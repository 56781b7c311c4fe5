// The bus of a block on the AHB for serve.vh.
`include "ahb_master.vh"
    task bus_write(input [31:0] address, input [31:0] data);
        begin
            ahb_write(address, data);
            check(!failed, "no error of an AHB write");
        end
    endtask
    task bus_read(input [31:0] address);
        begin
            ahb_transfer(address, 1'b0, 3'd2, 32'd0);
            check(!failed, "no error of an AHB read");
        end
    endtask
