// UART: waveform of the transmitter against an independent receiver, receiver against an independent transmitter,
// buffers, overruns, framing error, glitch, interrupts, baud tolerance.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    reg  rxd = 1'b1;
    wire txd, irq;
    apb_uart dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                  .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .rxd(rxd), .txd(txd), .irq(irq));
    localparam [11:0] DATA = 0, STATUS = 4, CTRL = 8, BAUD = 12;

    // Clock cycles of one bit of txd, decoder in the testbench: collects bytes.
    integer bit_time = 16;
    reg [7:0] got [0:15];
    integer   n_got = 0, b;
    reg [7:0] shift;
    initial forever begin
        @(negedge txd);
        #(10 * bit_time / 2);
        check(txd === 1'b0, "start bit");
        for (b = 0; b < 8; b = b + 1) begin
            #(10 * bit_time);
            shift[b] = txd;
        end
        #(10 * bit_time);
        check(txd === 1'b1, "stop bit");
        got[n_got] = shift;
        n_got = n_got + 1;
    end

    task send(input [7:0] value, input integer bit_tenths, input stop);
        integer i;
        begin
            rxd = 1'b0; #(bit_tenths);
            for (i = 0; i < 8; i = i + 1) begin rxd = value[i]; #(bit_tenths); end
            rxd = stop; #(bit_tenths);
            rxd = 1'b1;
            cycles(4);
        end
    endtask

    integer n;
    time started;
    initial begin
        reset;
        apb_expect(STATUS, 0, "reset STATUS");
        apb_expect(CTRL, 0, "reset CTRL");
        apb_expect(BAUD, 16, "reset BAUDDIV");
        check(txd === 1'b1 && irq === 1'b0, "idle line");
        apb_write(BAUD, 3);
        apb_expect(BAUD, 16, "smallest divider");
        apb_write(BAUD, 20'hFFFFF);
        apb_expect(BAUD, 32'hFFFFF, "largest divider");
        apb_write(BAUD, 21);
        bit_time = 21;
        // Transmitter.
        apb_write(DATA, 8'h55);
        apb_expect(STATUS, 32'h5, "disabled: the byte waits in the buffer");
        cycles(100);
        check(txd === 1'b1, "disabled: nothing is sent");
        apb_write(CTRL, 1);
        cycles(2);
        apb_expect(STATUS, 32'h4, "the buffer is free, the line is busy");
        apb_write(DATA, 8'hA3);
        apb_expect(STATUS, 32'h5, "full again");
        apb_write(DATA, 8'hFF);
        apb_expect(STATUS, 32'h25, "written while full: TXOVER");
        apb_write(STATUS, 32'h20);
        apb_expect(STATUS, 32'h05, "TXOVER cleared");
        started = $time;
        while (n_got < 2) cycles(1);
        cycles(21);
        apb_expect(STATUS, 32'h0, "all sent");
        check32(got[0], 8'h55, "first byte");
        check32(got[1], 8'hA3, "second byte");
        check(($time - started) / 10 < 2 * 10 * 21 + 40, "bytes follow without a gap");
        apb_write(CTRL, 5);
        check(irq === 1'b1, "interrupt while the buffer is empty");
        apb_write(DATA, 8'h00);
        cycles(5);
        apb_write(DATA, 8'h81);
        check(irq === 1'b0, "no interrupt while it is full");
        while (n_got < 4) cycles(1);
        check(got[2] === 8'h00 && got[3] === 8'h81, "third and fourth byte");
        // Receiver.
        apb_write(CTRL, 0);
        send(8'h12, 210, 1'b1);
        apb_expect(STATUS, 0, "disabled: nothing is received");
        apb_write(CTRL, 32'hA);
        check(irq === 1'b0, "no byte, no interrupt");
        for (n = 0; n < 8; n = n + 1) begin
            send(8'h9C ^ (8'h25 * n[7:0]), 210 + ((n % 3) - 1) * 6, 1'b1);
            check(irq === 1'b1, "interrupt of a byte");
            apb_expect(STATUS, 32'h2, "RXFULL");
            apb_expect(DATA, (8'h9C ^ (8'h25 * n[7:0])) & 8'hFF, "received byte, also 3 % off the rate");
            apb_expect(STATUS, 32'h0, "reading empties");
        end
        send(8'h11, 210, 1'b1);
        send(8'h22, 210, 1'b1);
        apb_expect(STATUS, 32'hA, "RXOVER");
        apb_write(CTRL, 32'h12);
        check(irq === 1'b1, "interrupt of an error");
        apb_expect(DATA, 8'h11, "the first byte is kept");
        apb_write(STATUS, 32'h8);
        apb_expect(STATUS, 32'h0, "RXOVER cleared");
        check(irq === 1'b0, "no more error");
        send(8'h7E, 210, 1'b0);
        apb_expect(STATUS, 32'h10, "FRAME");
        apb_write(STATUS, 32'h10);
        rxd = 1'b0; cycles(5); rxd = 1'b1;
        cycles(300);
        apb_expect(STATUS, 32'h0, "a glitch is not a start bit");
        send(8'hC3, 210, 1'b1);
        apb_expect(DATA, 8'hC3, "received after it");
        // Parts: DATA is sent and taken by its lowest byte alone.
        apb_write(CTRL, 0);
        apb_write8(DATA + 1, 8'h55); apb_write8(DATA + 3, 8'h55); apb_write16(DATA + 2, 16'h5555);
        apb_expect(STATUS, 32'h0, "nothing to send");
        apb_write8(DATA, 8'h77);
        apb_expect(STATUS, 32'h5, "a byte written as a byte");
        apb_write16(DATA, 16'h0011);
        apb_expect(STATUS, 32'h25, "TXOVER");
        apb_write8(STATUS + 1, 8'hFF); apb_write16(STATUS + 2, 16'hFFFF);
        apb_expect(STATUS, 32'h25, "nothing cleared beside the byte");
        apb_write8(STATUS, 8'h20);
        apb_expect(STATUS, 32'h5, "cleared by its byte");
        apb_write(CTRL, 2);
        send(8'h42, 210, 1'b1);
        apb_read(DATA + 1); apb_read(DATA + 2); apb_read(DATA + 3);
        apb_expect(STATUS, 32'h7, "reads of the other bytes take nothing");
        apb_expect(DATA, 8'h42, "the byte");
        apb_expect(STATUS, 32'h5, "taken");
        apb_write(BAUD, 32'h00000107);
        apb_write8(BAUD + 1, 8'h00);
        apb_expect(BAUD, 16, "the minimum");
        apb_write8(BAUD + 2, 8'h01);
        apb_expect(BAUD, 32'h10007, "counts only while the whole is smaller");
        finish;
    end
endmodule
