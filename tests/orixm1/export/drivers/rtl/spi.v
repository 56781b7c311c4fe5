// A slave in each of the modes; it answers with words that count upwards, the highest bit first.
module tb;
`include "bench.vh"
`include "apb_bus.vh"
    wire sclk, mosi, nss, irq;
    reg  miso = 1'b0, late_miso = 1'b0, cpol = 1'b0, cpha = 1'b0, away = 1'b0;
    apb_spi dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                 .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                 .sclk(sclk), .mosi(mosi), .miso(away ? 1'b1 : late_miso), .nss(nss), .irq(irq));

    integer lag = 0;
    always @(miso) late_miso <= #(lag) miso;

    reg [31:0] reply = 32'd0, heard = 32'd0, last = 32'd0;
    integer    bits = 8, nbit = 0, count = 0, selections = 0, edges = 0;
    time       edge_time = 0, half = 0, fell = 0, rose = 0, before = 0, behind = 0, between = 0, gap = 0;
    always @(negedge nss) if (rstn) begin
        nbit = 0; edges = 0; gap = 0; selections = selections + 1;
        fell = $time; between = $time - rose;
        if (!cpha) miso = reply[bits - 1];
    end
    always @(posedge nss) if (rstn) begin rose = $time; behind = $time - edge_time; end
    task take;
        begin
            heard = {heard[30:0], mosi};
            nbit = nbit + 1;
            if (nbit == bits) begin
                nbit = 0; last = heard & ((33'd1 << bits) - 33'd1); count = count + 1; reply = reply + 32'd1;
            end
        end
    endtask
    always @(sclk) if (rstn && !nss) begin
        half = $time - edge_time;
        if (edges == 0) before = $time - fell;
        else if (half > gap) gap = half;
        edges = edges + 1;
        edge_time = $time;
        if (sclk != cpol) begin
            if (!cpha) take; else #1 miso = reply[bits - 1 - nbit];
        end else begin
            if (cpha) take; else #1 miso = reply[bits - 1 - nbit];
        end
    end

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: {cpha, cpol} = value[1:0];
            1: reply = value;
            2: away = value[0];
            3: bits = value;
            4: lag = value;                     // tenths of a cycle by which it answers late
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
            7: rd = selections;                 // so far
            8: rd = before / 10;                // from the last selection to its first edge
            9: rd = behind / 10;                // from its last edge to its end
            10: rd = between / 10;              // from the selection before to the last one
            11: rd = gap / 10;                  // longest time between edges of the last selection
        endcase
    endtask
`include "serve.vh"
endmodule
