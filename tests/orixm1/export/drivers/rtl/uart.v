// The line of a UART: what is sent is kept, characters are sent on demand.
module tb;
`include "bench.vh"
`include "apb_bus.vh"
    reg  line = 1'b1, loop = 1'b0;
    wire txd, irq;
    apb_uart dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                  .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                  .rxd(loop ? txd : line), .txd(txd), .irq(irq));

    integer    bit_time = 16 * 64, length = 9, heard = 0, taken = 0, n;  // 64ths of a cycle; bits behind the start bit
    reg [11:0] bytes [0:63];    // what comes behind the start bit
    reg [11:0] shift;
    time       fall = 0, start_bit = 0;
    function integer after(input integer halves);   // bits, in tenths of a cycle
        after = (halves * bit_time * 5 + 32) / 64;
    endfunction
    always @(negedge txd) if (rstn) begin
        fall = $time;
        shift = 12'd0;
        for (n = 0; n < length; n = n + 1) begin
            #(fall + after(2 * n + 3) - $time);
            shift[n] = txd;
        end
        bytes[heard % 64] = shift;
        heard = heard + 1;
    end
    always @(posedge txd) if (rstn && start_bit == 0) start_bit = $time - fall;

    integer   looks = 0;
    always @(posedge clk) if (psel && penable && !pwrite && paddr == 12'h004) looks = looks + 1;

    event      send;
    reg        sending = 1'b0;
    reg [12:0] sent;
    integer    k;
    time       begun;
    always @(send) begin
        begun = $time;
        for (k = 0; k <= length; k = k + 1) begin
            line = sent[k];
            #(begun + after(2 * k + 2) - $time);
        end
        line = 1'b1;
        #(after(2));
        sending = 1'b0;
    end

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: bit_time = value * 64;
            1: begin sent = {3'b111, ~value[8], value[7:0], 1'b0}; sending = 1'b1; -> send; #0; end
            2: loop = value[0];
            3: start_bit = 0;
            10: length = value;
            11: begin sent = {value[11:0], 1'b0}; sending = 1'b1; -> send; #0; end
            12: bit_time = value;
        endcase
    endtask
    task far_read(input [31:0] index);
        case (index)
            1: rd = sending;
            3: rd = start_bit / 10;             // clock cycles until the line rose again
            4: rd = heard - taken;
            5: begin rd = bytes[taken % 64]; taken = taken + 1; end
            6: rd = irq;
            7: rd = page;
            8: rd = txd;
            9: rd = looks;
        endcase
    endtask
`include "serve.vh"
endmodule
