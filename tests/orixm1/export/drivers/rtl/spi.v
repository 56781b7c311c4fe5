// A slave in each of the modes; it answers with bytes that count upwards.
module tb;
`include "bench.vh"
`include "apb_bus.vh"
    wire sclk, mosi, nss, irq;
    reg  miso = 1'b0, cpol = 1'b0, cpha = 1'b0, away = 1'b0;
    apb_spi dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                 .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                 .sclk(sclk), .mosi(mosi), .miso(away ? 1'b1 : miso), .nss(nss), .irq(irq));

    reg [7:0] reply = 8'd0, heard = 8'd0, last = 8'd0;
    integer   nbit = 0, count = 0;
    time      edge_time = 0, half = 0;
    always @(negedge nss) begin nbit = 0; if (!cpha) miso = reply[7]; end
    task take;
        begin
            heard = {heard[6:0], mosi};
            nbit = nbit + 1;
            if (nbit == 8) begin nbit = 0; last = heard; count = count + 1; reply = reply + 8'd1; end
        end
    endtask
    always @(sclk) if (rstn && !nss) begin
        half = $time - edge_time;
        edge_time = $time;
        if (sclk != cpol) begin
            if (!cpha) take; else #1 miso = reply[7 - nbit];
        end else begin
            if (cpha) take; else #1 miso = reply[7 - nbit];
        end
    end

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: {cpha, cpol} = value[1:0];
            1: reply = value[7:0];
            2: away = value[0];
        endcase
    endtask
    task far_read(input [31:0] index);
        case (index)
            1: rd = last;
            2: rd = count;
            3: rd = half / 10;
            4: rd = nss;
            5: rd = irq;
            6: rd = sclk;
        endcase
    endtask
`include "serve.vh"
endmodule
