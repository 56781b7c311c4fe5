// A serial flash of 64 KB, whose addresses repeat, on the pins.
module tb;
`include "bench.vh"
`include "ahb_bus.vh"
    wire fclk, csn;
    wire [3:0] driven, outen;
    wire mosi = driven[0], wpn = driven[2];
    reg  miso = 1'b1, away = 1'b0, stuck = 1'b1;
    wire hsel = haddr[31:25] == 7'b0110100;
    ahb_spi_flash dut (.HCLK(clk), .HRESETn(rstn), .HSEL(hsel), .HADDR(haddr[24:0]), .HTRANS(htrans),
                       .HWRITE(hwrite), .HWDATA(hwdata), .HREADY(hready), .HRDATA(hrdata), .HREADYOUT(hready),
                       .HRESP(hresp), .HSIZE(hsize), .flash_clk(fclk), .flash_csn(csn), .flash_out(driven), .flash_outen(outen),
                       .flash_in({2'b11, away ? stuck : miso, mosi}));

    reg [7:0]  memory [0:65535];
    reg [7:0]  page [0:255];
    integer    n, nbits = 0, nbytes = 0, work = 0, busy = 0, programs = 0, erases = 0, reads = 0;
    reg        enabled = 1'b0, refuse = 1'b0;
    reg [7:0]  cmd = 8'd0, in = 8'd0, out = 8'hFF;
    reg [23:0] at = 24'd0, where = 24'd0;
    reg [31:0] peeked = 32'd0;
    time       rise = 0, period = 0;
    initial for (n = 0; n < 65536; n = n + 1) memory[n] = n[7:0] ^ n[15:8] ^ 8'h5C;

    always @(negedge csn) if (rstn) begin nbits = 0; nbytes = 0; cmd = 8'd0; end
    // A byte is complete: what is sent next, and what is kept.
    task complete;
        begin
            if (nbytes == 0) begin
                cmd = in;
                if (busy != 0 && cmd != 8'h05) cmd = 8'd0;     // a working flash answers for its status alone
                if (cmd == 8'h03) reads = reads + 1;
            end else if (nbytes <= 3) at = {at[15:0], in};
            else if (cmd == 8'h02) page[(at[7:0] + nbytes - 4) & 255] = in;
            case (cmd)
                8'h05: begin
                    out = {6'd0, enabled, busy != 0};
                    if (nbytes == 0 && busy > 0) busy = busy - 1;
                end
                8'h9F: out = nbytes == 0 ? 8'hD1 : nbytes == 1 ? 8'hD2 : 8'hD3;
                8'h03: out = nbytes >= 3 ? memory[(at + nbytes - 3) & 16'hFFFF] : 8'hFF;
                default: out = 8'hFF;
            endcase
            nbytes = nbytes + 1;
        end
    endtask
    always @(posedge fclk) if (rstn && !csn) begin
        period = $time - rise; rise = $time;
        in = {in[6:0], mosi};
        nbits = nbits + 1;
        if (nbits % 8 == 0) begin
            if (nbytes == 0 && in == 8'h02) for (n = 0; n < 256; n = n + 1) page[n] = 8'hFF;
            complete;
        end
    end
    always @(negedge fclk) if (!csn) #2 miso = out[7 - nbits % 8];
    always @(posedge csn) if (rstn) begin
        case (cmd)
            8'h06: if (nbytes == 1) enabled = ~refuse;
            8'h04: enabled = 1'b0;
            8'h20: if (nbytes == 4 && enabled) begin
                where = at;
                for (n = 0; n < 4096; n = n + 1) memory[{at[15:12], 12'd0} + n] = 8'hFF;
                erases = erases + 1; enabled = 1'b0; busy = work;
            end
            8'h02: if (nbytes > 4 && enabled) begin
                where = at;
                for (n = 0; n < 256; n = n + 1) memory[{at[15:8], n[7:0]}] = memory[{at[15:8], n[7:0]}] & page[n];
                programs = programs + 1; enabled = 1'b0; busy = work;
            end
        endcase
    end

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: work = value;                    // status reads that a change takes
            1: refuse = value[0];
            2: {stuck, away} = value[1:0];
            3: peeked = value;
            4: busy = value;
        endcase
    endtask
    task far_read(input [31:0] index);
        case (index)
            0: rd = where;
            1: rd = programs;
            2: rd = erases;
            3: rd = memory[peeked[15:0]];
            4: rd = csn;
            5: rd = wpn;
            6: rd = period / 10;
            7: rd = enabled;
            8: rd = reads;
            9: rd = busy;
        endcase
    endtask
`include "serve.vh"
endmodule
