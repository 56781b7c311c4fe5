// A board for sensor-node.ipc with a program in the processor: the UARTs are crossed, the upper eight pins show the lower ones, the
// external interrupts and the timer's input hang on pins, MISO is the inverse of MOSI, an I2C memory at 0x2D, memories on
// the extension ports. It watches the lines by itself, without the subsystem's registers, and says at the end what it has
// seen otherwise than expected.
`timescale 1ns / 1ps

module board;
    reg clk = 1'b0;
    always #10 clk = ~clk;
    reg rtc_clk = 1'b0;
    always #480 rtc_clk = ~rtc_clk;
    reg power_good = 1'b0;
    initial #200 power_good = 1'b1;

    tri0 [15:0] gpio;
    assign gpio[15:8] = gpio[7:0];
    wire        from_uart0, from_uart1, mosi, sclk, nss;
    tri1        scl, sda;
    tri1        ntrst, tms, tck, tdi, srst;

    wire        ahb_sel, ahb_write, ahb_ready, ahb_reset_n;
    wire [1:0]  ahb_trans;
    wire [2:0]  ahb_size;
    wire [31:0] ahb_addr, ahb_wdata;
    reg  [31:0] ahb_rdata;
    wire [31:0] apb1_addr, apb1_wdata, apb2_addr, apb2_wdata;
    wire [3:0]  apb1_strb, apb2_strb;
    wire        apb1_sel, apb1_enable, apb1_write, apb2_sel, apb2_enable, apb2_write;

    integer mistakes = 0;
    task expect_that(input condition, input [8*48-1:0] what);
        if (condition !== 1'b1) begin
            mistakes = mistakes + 1;
            $display("board: not seen: %0s", what);
        end
    endtask

    // ---- extension ports: 16 words each
    integer i;
    reg [31:0] ahb_memory [0:15];
    reg [31:0] apb1_memory [0:15];
    reg [31:0] apb2_memory [0:15];
    initial
        for (i = 0; i < 16; i = i + 1) begin
            ahb_memory[i] = 32'd0; apb1_memory[i] = 32'd0; apb2_memory[i] = 32'd0;
        end

    function [31:0] merged(input [31:0] old, input [31:0] data, input [3:0] lanes);
        merged = {lanes[3] ? data[31:24] : old[31:24], lanes[2] ? data[23:16] : old[23:16],
                  lanes[1] ? data[15:8] : old[15:8], lanes[0] ? data[7:0] : old[7:0]};
    endfunction

    reg        ahb_writing = 1'b0;
    reg [3:0]  ahb_place, ahb_lanes;
    integer    strays = 0;           // accesses at other addresses than the memories'
    always @(posedge clk) begin
        if (ahb_writing)
            ahb_memory[ahb_place] = merged(ahb_memory[ahb_place], ahb_wdata, ahb_lanes);
        ahb_writing = 1'b0;
        if (ahb_ready && ahb_sel && ahb_trans[1]) begin
            if (ahb_addr[31:6] != 26'h2000000) strays = strays + 1;
            ahb_place = ahb_addr[5:2];
            ahb_lanes = ahb_size == 3'd0 ? 4'b0001 << ahb_addr[1:0] : ahb_size == 3'd1 ? 4'b0011 << ahb_addr[1:0] : 4'b1111;
            ahb_writing = ahb_write;
            ahb_rdata <= ahb_write ? 32'hx : ahb_memory[ahb_place];
        end else
            ahb_rdata <= 32'hx;
    end

    // The first APB port makes the bus wait, the second one answers with an error at 0x100, and at 0x200 not at all.
    reg [1:0] apb1_wait = 2'd0;
    wire      apb1_ready = apb1_wait == 2'd3;
    always @(posedge clk) begin
        apb1_wait <= (apb1_sel && apb1_enable) ? apb1_wait + 2'd1 : 2'd0;
        if (apb1_sel && apb1_enable && apb1_ready) begin
            if (apb1_addr[19:6] != 14'd0) strays = strays + 1;
            if (apb1_write)
                apb1_memory[apb1_addr[5:2]] <= merged(apb1_memory[apb1_addr[5:2]], apb1_wdata, apb1_strb);
        end
        if (apb2_sel && apb2_enable && apb2_addr[19:6] != 14'd0 && apb2_addr[19:0] != 20'h100 && apb2_addr[19:0] != 20'h200) strays = strays + 1;
        if (apb2_sel && apb2_enable && apb2_write)
            apb2_memory[apb2_addr[5:2]] <= merged(apb2_memory[apb2_addr[5:2]], apb2_wdata, apb2_strb);
    end
    wire [31:0] apb1_rdata = (apb1_sel && apb1_ready) ? apb1_memory[apb1_addr[5:2]] : 32'hx;
    wire [31:0] apb2_rdata = apb2_sel ? apb2_memory[apb2_addr[5:2]] : 32'hx;

    // ---- UART lines, sixteen clock cycles a bit; from the seventh character of UART0 on sixteen and a half, nine bits, odd
    // parity, two stop bits
    reg [8*6-1:0] line0 = 48'd0;     // the last six bytes
    reg [8*6-1:0] line1 = 48'd0;
    integer bytes0 = 0, bytes1 = 0, n0, n1;
    reg [7:0] byte0, byte1;
    integer      wide0 = 0, breaks0 = 0;
    reg [9*3-1:0] words0 = 27'd0;
    reg [11:0]   word0;
    time         fall0;
    always @(negedge from_uart0) if (bytes0 == 6) begin
        #165;
        for (n0 = 0; n0 < 12; n0 = n0 + 1) begin #330 word0[n0] = from_uart0; end
        if (word0 == 12'd0) begin
            fall0 = $time;
            if (!from_uart0) @(posedge from_uart0);
            expect_that($time - fall0 < 330, "thirteen bit times of a break");
            breaks0 = breaks0 + 1;
        end else begin
            expect_that(word0[11:10] == 2'b11 && ^word0[9:0], "parity and stop bits of UART0");
            words0 = {words0[17:0], word0[8:0]}; wide0 = wide0 + 1;
        end
    end else begin
        #160;
        for (n0 = 0; n0 < 8; n0 = n0 + 1) begin #320 byte0[n0] = from_uart0; end
        #320 expect_that(from_uart0, "a stop bit of UART0");
        line0 = {line0[39:0], byte0}; bytes0 = bytes0 + 1;
    end
    always @(negedge from_uart1) begin
        #160;
        for (n1 = 0; n1 < 8; n1 = n1 + 1) begin #320 byte1[n1] = from_uart1; end
        #320 expect_that(from_uart1, "a stop bit of UART1");
        line1 = {line1[39:0], byte1}; bytes1 = bytes1 + 1;
    end

    // ---- SPI: bits at rising edges while it is selected
    reg [215:0] spi_bits = 216'd0;
    integer    spi_count = 0, spi_slow = 0, spi_selections = 0;
    time       spi_edge = 0;
    always @(negedge nss) if (power_good) spi_selections = spi_selections + 1;
    always @(posedge sclk)
        if (nss === 1'b0) begin
            if (spi_count < 32 ? spi_count % 8 != 0 && $time - spi_edge != 160 :
                spi_count < 192 ? spi_count % 32 != 0 && $time - spi_edge != 160 :
                spi_count % 8 != 0 && $time - spi_edge != 40) spi_slow = spi_slow + 1;
            spi_edge = $time;
            spi_bits = {spi_bits[214:0], mosi}; spi_count = spi_count + 1;
        end

    // ---- I2C: sixteen bytes at 0x2D; the first byte that is written is the place
    reg       target_sda = 1'b1;
    assign sda = target_sda ? 1'bz : 1'b0;
    integer   i2c_bit = 0, i2c_bytes = 0, i2c_stops = 0;
    reg       i2c_on = 1'b0, i2c_mine = 1'b0, i2c_reads = 1'b0, i2c_first = 1'b0, i2c_acknowledged;
    reg [7:0] i2c_shift, i2c_answer;
    reg [3:0] i2c_place = 4'd0;
    reg [7:0] i2c_memory [0:15];
    always @(negedge sda) if (scl === 1'b1) begin i2c_on = 1'b1; i2c_first = 1'b1; i2c_bit = 0; i2c_bytes = 0; end
    always @(posedge sda) if (scl === 1'b1 && power_good) begin
        i2c_stops = i2c_stops + 1; i2c_on = 1'b0; i2c_mine = 1'b0; target_sda = 1'b1;
    end
    always @(posedge scl) if (i2c_on) begin
        if (i2c_bit < 8) i2c_shift = {i2c_shift[6:0], sda};
        else i2c_acknowledged = ~sda;
        i2c_bit = i2c_bit + 1;
    end
    always @(negedge scl) if (i2c_on) begin
        if (i2c_bit == 8) begin
            if (i2c_first) begin
                i2c_mine = i2c_shift[7:1] == 7'h2D; i2c_reads = i2c_shift[0];
            end else if (i2c_mine && !i2c_reads) begin
                if (i2c_bytes == 0) i2c_place = i2c_shift[3:0];
                else begin i2c_memory[i2c_place] = i2c_shift; i2c_place = i2c_place + 4'd1; end
                i2c_bytes = i2c_bytes + 1;
            end
            target_sda = #25 ~(i2c_mine && (i2c_first || !i2c_reads));
        end else if (i2c_bit == 9) begin
            i2c_bit = 0;
            if (!i2c_first && i2c_reads && !i2c_acknowledged) i2c_mine = 1'b0;
            i2c_first = 1'b0;
            if (i2c_mine && i2c_reads) begin
                i2c_answer = i2c_memory[i2c_place]; i2c_place = i2c_place + 4'd1;
            end
            target_sda = #25 (i2c_mine && i2c_reads) ? i2c_answer[7] : 1'b1;
        end else if (i2c_mine && i2c_reads && !i2c_first)
            target_sda = #25 i2c_answer[7 - i2c_bit];
    end

    // ---- pins and resets
    reg seen_a0 = 1'b0, seen_50 = 1'b0, seen_c3 = 1'b0;
    always @(gpio) begin
        if (gpio[7:0] === 8'hA0) seen_a0 = 1'b1;
        if (gpio[7:0] === 8'h50) seen_50 = seen_a0;
        if (gpio[7:0] === 8'hC3) seen_c3 = 1'b1;
    end
    integer resets = 0;              // beside that of power-on
    always @(negedge ahb_reset_n) if (power_good) resets = resets + 1;

    Tarvo_ORIX_M1_Top dut (
        .HCLK(clk), .hwRstn(power_good), .EXTINT(gpio[3:0]), .LOCKUP(lockup),
        .JTAG_3(ntrst), .JTAG_5(tdi), .JTAG_7(tms), .JTAG_9(tck), .JTAG_15(srst),
        .GPIO(gpio), .UART0RXD(from_uart1), .UART0TXD(from_uart0), .UART1RXD(from_uart0), .UART1TXD(from_uart1),
        .TIMER0EXTIN(gpio[4]), .RTCSRCCLK(rtc_clk), .SCL(scl), .SDA(sda), .MOSI(mosi), .MISO(~mosi), .SCLK(sclk), .NSS(nss),
        .AHB1HRDATA(ahb_rdata), .AHB1HREADYOUT(1'b1), .AHB1HRESP(2'b00), .AHB1HADDR(ahb_addr), .AHB1HSEL(ahb_sel),
        .AHB1HTRANS(ahb_trans), .AHB1HSIZE(ahb_size), .AHB1HWRITE(ahb_write), .AHB1HWDATA(ahb_wdata),
        .AHB1HREADYMUX(ahb_ready), .AHB1HRESET(ahb_reset_n),
        .APB1PADDR(apb1_addr), .APB1PSEL(apb1_sel), .APB1PENABLE(apb1_enable), .APB1PWRITE(apb1_write), .APB1PSTRB(apb1_strb),
        .APB1PWDATA(apb1_wdata), .APB1PRDATA(apb1_rdata), .APB1PREDADY(apb1_ready), .APB1PSLVERR(1'b0),
        .APB2PADDR(apb2_addr), .APB2PSEL(apb2_sel), .APB2PENABLE(apb2_enable), .APB2PWRITE(apb2_write), .APB2PSTRB(apb2_strb),
        .APB2PWDATA(apb2_wdata), .APB2PRDATA(apb2_rdata), .APB2PREDADY(~apb2_addr[9]), .APB2PSLVERR(apb2_addr[8])
    );
    wire lockup;

    initial #1000000 begin   // the program takes 0.7 ms
        $display("board: the program does not end");
        $finish;
    end
    always @(posedge dut.u_core.done) begin
`ifndef FEW_BLOCKS   // as blocks.c
        expect_that(line0 == "sensor" && bytes0 == 6, "the six bytes of UART0");
        expect_that(words0 == {9'h155, 9'h0AA, 9'h101} && wide0 == 3 && breaks0 == 1, "nine bits and the break of UART0");
        expect_that(line1[7:0] == 8'h5A && bytes1 == 1, "the byte of UART1");
        expect_that(spi_bits == {32'h960F313C, 160'h80000001_12345678_00000000_FFFFFFFF_CAFEF00D, 24'h112233} && spi_count == 216,
                    "the four bytes, five words and three bytes of SPI");
        expect_that(spi_slow == 0, "eight clock cycles a bit of SPI, and then two");
        expect_that(spi_selections >= 7 && spi_selections <= 9, "a selection of the bytes, one of each word, and further ones");
        expect_that(nss === 1'b1, "a device on SPI that is left");
        expect_that(i2c_memory[4] === 8'hE7 && i2c_memory[5] === 8'h18, "the bytes of the I2C memory");
        expect_that(i2c_stops == 6, "six stops on I2C");
`endif
        expect_that(seen_a0 && seen_50 && seen_c3, "the values of the pins");
        expect_that(gpio[7:0] === 8'd0, "pins that are released by the reset");
        expect_that(ahb_memory[2] == 32'h1234AB78 && ahb_memory[3] == 32'hBEEFF00D, "the words of AHB1");
        expect_that(apb1_memory[2] == 32'h1234AB78 && apb1_memory[3] == 32'hBEEFF00D, "the words of APB1");
        expect_that(apb2_memory[2] == 32'h1234AB78 && apb2_memory[3] == 32'hBEEFF00D, "the words of APB2");
        expect_that(strays == 0, "addresses within the memories");
        expect_that(resets == 2, "two resets");
        expect_that(lockup === 1'b0, "no lock-up");
        if (dut.u_core.passed && mistakes == 0)
            $display("BOARD PASS");
        else
            $display("BOARD FAIL: %0d", mistakes);
        $finish;
    end
endmodule
