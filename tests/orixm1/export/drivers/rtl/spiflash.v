// A serial flash on the pins, whose lines may be away.
`include "flash_model.v"
module tb;
`include "bench.vh"
`include "ahb_bus.vh"
    wire fclk, csn;
    wire [3:0] out, outen;
    tri1 [3:0] io;
    assign io = {outen[3] ? out[3] : 1'bz, outen[2] ? out[2] : 1'bz, outen[1] ? out[1] : 1'bz, outen[0] ? out[0] : 1'bz};
    reg  away = 1'b0, stuck = 1'b1;
    wire hsel = haddr[31:25] == 7'b0110100;
    ahb_spi_flash dut (.HCLK(clk), .HRESETn(rstn), .HSEL(hsel), .HADDR(haddr[24:0]), .HTRANS(htrans), .HSIZE(hsize),
                       .HWRITE(hwrite), .HWDATA(hwdata), .HREADY(hready), .HRDATA(hrdata), .HREADYOUT(hready),
                       .HRESP(hresp), .flash_clk(fclk), .flash_csn(csn), .flash_out(out), .flash_outen(outen),
                       .flash_in(away ? {4{stuck}} : io));
    flash_model chip (.csn(csn), .sclk(fclk), .io(io));

    reg [31:0] peeked = 32'd0;
    time       rise = 0, period = 0;
    always @(posedge fclk) begin period = $time - rise; rise = $time; end

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: chip.work = value;               // status reads that a change takes
            1: chip.refuse = value[0];
            2: {stuck, away} = value[1:0];
            3: peeked = value;
            4: chip.busy = value;
            5: begin
                {chip.with_parameters, chip.quad_enable} = value[3:0];
                chip.low = 8'd0;
                chip.high = 8'd0;
            end
            6: chip.low = value;
            7: reset;                           // of the system alone
        endcase
    endtask
    task far_read(input [31:0] index);
        case (index)
            0: rd = chip.where;
            1: rd = chip.programs;
            2: rd = chip.erases;
            3: rd = chip.content(peeked);
            4: rd = csn;
            5: rd = io[2];
            6: rd = period / 10;
            7: rd = chip.writable;
            8: rd = chip.reads;
            9: rd = chip.busy;
            10: rd = chip.opcodes;
            11: rd = {chip.low, chip.high};
            12: rd = chip.wrong;
            13: rd = {chip.long, chip.going};
        endcase
    endtask
`include "serve.vh"
endmodule
