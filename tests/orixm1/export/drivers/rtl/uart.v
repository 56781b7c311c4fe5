// The line of a UART: what is sent is kept, bytes are sent on demand.
module tb;
`include "bench.vh"
`include "apb_bus.vh"
    reg  line = 1'b1, loop = 1'b0;
    wire txd, irq;
    apb_uart dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                  .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                  .rxd(loop ? txd : line), .txd(txd), .irq(irq));

    integer   bit_time = 16, heard = 0, taken = 0, n;
    reg [8:0] bytes [0:63];     // stop bit and byte
    reg [8:0] shift;
    time      fall = 0, start_bit = 0;
    always @(negedge txd) if (rstn) begin
        fall = $time;
        #(5 * bit_time);
        for (n = 0; n < 9; n = n + 1) begin
            #(10 * bit_time);
            shift[n] = txd;
        end
        bytes[heard] = shift;
        heard = heard + 1;
    end
    always @(posedge txd) if (rstn && start_bit == 0) start_bit = $time - fall;

    integer   looks = 0;
    always @(posedge clk) if (dut.fetch && dut.at_status) looks = looks + 1;

    event     send;
    reg       sending = 1'b0;
    reg [9:0] sent;
    integer   k;
    always @(send) begin
        for (k = 0; k < 10; k = k + 1) begin
            line = sent[k];
            #(10 * bit_time);
        end
        line = 1'b1;
        #(10 * bit_time);
        sending = 1'b0;
    end

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: bit_time = value;
            1: begin sent = {~value[8], value[7:0], 1'b0}; sending = 1'b1; -> send; #0; end
            2: loop = value[0];
            3: start_bit = 0;
        endcase
    endtask
    task far_read(input [31:0] index);
        case (index)
            1: rd = sending;
            3: rd = start_bit / 10;             // clock cycles until the line rose again
            4: rd = heard - taken;
            5: begin rd = bytes[taken]; taken = taken + 1; end
            6: rd = irq;
            7: rd = page;
            8: rd = txd;
            9: rd = looks;
        endcase
    endtask
`include "serve.vh"
endmodule
