// I2C master against a slave model with pull-ups on the lines: write, read, repeated start, missing acknowledge,
// clock stretching, lost arbitration.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    wire scl_out, scl_outen, sda_out, sda_outen, irq;
    tri1 scl, sda;
    reg  slave_sda = 1'b1, slave_scl = 1'b1, other_sda = 1'b1;
    assign scl = scl_outen ? scl_out : 1'bz;
    assign sda = sda_outen ? sda_out : 1'bz;
    assign scl = slave_scl ? 1'bz : 1'b0;
    assign sda = (slave_sda & other_sda) ? 1'bz : 1'b0;
    apb_i2c dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                 .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                 .scl_in(scl), .scl_out(scl_out), .scl_outen(scl_outen),
                 .sda_in(sda), .sda_out(sda_out), .sda_outen(sda_outen), .irq(irq));
    localparam [11:0] PRESCALE = 0, CTRL = 4, TX = 8, RX = 12, COMMAND = 16, STATUS = 20;
    localparam START = 1, WRITE = 2, READ = 4, STOP = 8, NACK = 16;

    // Slave at address 0x2D: keeps written bytes, answers reads with 0xC0, 0xC1, ...
    integer   starts = 0, stops = 0, nbit = 0, nbytes = 0, stretch = 0;
    reg       running = 1'b0, mine = 1'b0, reading = 1'b0, first = 1'b0, master_ack;
    reg [7:0] shift, reply = 8'hC0;
    reg [7:0] stored [0:15];
    always @(negedge sda) if (scl === 1'b1) begin starts = starts + 1; running = 1'b1; first = 1'b1; nbit = 0; end
    always @(posedge sda) if (scl === 1'b1) begin stops = stops + 1; running = 1'b0; mine = 1'b0; slave_sda = 1'b1; end
    always @(posedge scl) if (running) begin
        if (nbit < 8) shift = {shift[6:0], sda};
        else master_ack = ~sda;
        nbit = nbit + 1;
    end
    always @(negedge scl) if (running) begin
        if (nbit == 8) begin
            if (first) begin mine = shift[7:1] == 7'h2D; reading = shift[0]; end
            else if (mine && !reading) begin stored[nbytes] = shift; nbytes = nbytes + 1; end
            slave_sda = #12 ~(mine && (first || !reading));     // acknowledge
            if (stretch > 0) begin slave_scl = 1'b0; #(stretch) slave_scl = 1'b1; end
        end else if (nbit == 9) begin
            nbit = 0;
            if (!first && reading) begin reply = reply + 8'd1; if (!master_ack) mine = 1'b0; end
            first = 1'b0;
            slave_sda = #12 (mine && reading) ? reply[7] : 1'b1;
        end else if (mine && reading && !first)
            slave_sda = #12 reply[7 - nbit];
    end
    // Data may change only while the clock is low, but for start and stop.
    time scl_rise = 0, period = 0;
    always @(posedge scl) begin period = $time - scl_rise; scl_rise = $time; end

    task command(input [31:0] c, input [31:0] status, input [8*48-1:0] what);
        begin
            apb_write(COMMAND, c);
            apb_read(STATUS);
            check(rd[0] === 1'b1, "busy after a command");
            @(posedge irq); #1;
            apb_expect(STATUS, status, what);
            apb_write(STATUS, 8);
        end
    endtask

    initial begin
        reset;
        starts = 0; stops = 0;    // the lines settled at the start
        apb_expect(PRESCALE, 99, "reset PRESCALE");
        apb_expect(CTRL, 0, "reset CTRL");
        apb_expect(STATUS, 0, "reset STATUS");
        check(scl === 1'b1 && sda === 1'b1 && irq === 1'b0, "released lines");
        apb_write(COMMAND, START);
        cycles(5);
        apb_expect(STATUS, 0, "disabled: no command");
        apb_write(PRESCALE, 9);
        apb_write(CTRL, 3);
        // Write two bytes.
        apb_write(TX, 8'h5A);
        command(START | WRITE, 32'hC, "address acknowledged");
        check(starts == 1, "one start");
        apb_write(TX, 8'h31);
        command(WRITE, 32'hC, "first byte acknowledged");
        check(period >= 400 && period <= 450, "period of SCL");
        apb_write(TX, 8'hE7);
        command(WRITE | STOP, 32'h8, "second byte acknowledged, stop");
        check(stops == 1 && nbytes == 2, "one stop, two bytes");
        check(stored[0] === 8'h31 && stored[1] === 8'hE7, "bytes of the slave");
        check(scl === 1'b1 && sda === 1'b1, "lines released");
        // Read two bytes after a repeated start.
        apb_write(TX, 8'h5A);
        command(START | WRITE, 32'hC, "address, write");
        apb_write(TX, 8'h5B);
        command(START | WRITE, 32'hC, "repeated start, address, read");
        check(starts == 3 && stops == 1, "no stop between");
        command(READ, 32'hC, "first byte");
        apb_expect(RX, 8'hC0, "first byte of the slave");
        check(master_ack === 1'b1, "acknowledged");
        command(READ | NACK | STOP, 32'h8, "last byte");
        apb_expect(RX, 8'hC1, "second byte of the slave");
        check(master_ack === 1'b0 && stops == 2, "not acknowledged, stop");
        // Nobody there.
        apb_write(TX, 8'h70);
        command(START | WRITE, 32'hE, "no acknowledge");
        command(STOP, 32'hA, "stop alone");
        check(stops == 3, "third stop");
        // Clock stretching.
        stretch = 3000;
        apb_write(TX, 8'h5A);
        command(START | WRITE, 32'hC, "address, stretched");
        check(period >= 3000, "the clock was held");
        apb_write(TX, 8'h99);
        command(WRITE | STOP, 32'h8, "byte, stretched");
        check(stored[2] === 8'h99, "byte arrived");
        stretch = 0;
        // Another master pulls the data line during a 1.
        apb_write(TX, 8'hFF);
        apb_write(COMMAND, START | WRITE);
        cycles(100);
        other_sda = 1'b0;
        @(posedge irq); #1;
        apb_expect(STATUS, 32'h18, "arbitration lost");
        check(sda_outen === 1'b0 && scl_outen === 1'b0, "lines released at once");
        other_sda = 1'b1;
        apb_write(STATUS, 32'h18);
        apb_expect(STATUS, 0, "flags cleared");
        // Only the lowest byte of COMMAND starts something.
        apb_write8(COMMAND + 1, START | WRITE); apb_write16(COMMAND + 2, START | WRITE);
        apb_expect(STATUS, 0, "no command");
        apb_write(TX, 8'h70);
        apb_write8(COMMAND, START | WRITE | STOP);
        @(posedge irq); #1;
        apb_expect(STATUS, 32'hA, "a command of one byte");
        apb_write8(STATUS + 1, 8'hFF); apb_write16(STATUS + 2, 16'hFFFF);
        apb_expect(STATUS, 32'hA, "nothing cleared beside the byte");
        apb_write8(STATUS, 8'h08);
        apb_expect(STATUS, 32'h2, "cleared by its byte");
        finish;
    end
endmodule
