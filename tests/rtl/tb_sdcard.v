// SD card interface: bytes in both directions, clock from the source clock, card detection, INIT, interrupts.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    reg  src = 1'b0, checkin = 1'b1, datain = 1'b1;
    wire sd_clk, cs, dataout, card_init, checkout, irq;
    always #67 src = ~src;
    apb_sdcard dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                    .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                    .sd_spiclk(src), .sd_clk(sd_clk), .sd_cs(cs), .sd_datain(datain), .sd_dataout(dataout),
                    .sd_card_init(card_init), .sd_checkin(checkin), .sd_checkout(checkout), .irq(irq));
    localparam [11:0] DATA = 0, STATUS = 4, CTRL = 8;

    reg [7:0] heard, reply;
    integer   taken = 0;
    time      last = 0;
    always @(posedge sd_clk) begin
        heard = {heard[6:0], dataout};
        taken = taken + 1;
        if (taken > 1) check(($time - last + 10) / 20 * 20 >= 240 && $time - last <= 300, "period of SD_CLK");
        last = $time;
    end
    always @(negedge sd_clk) begin
        reply = {reply[6:0], 1'b1};
        datain = #2 reply[7];
    end

    integer k;
    initial begin
        reset;
        apb_expect(STATUS, 0, "reset STATUS");
        apb_expect(CTRL, 0, "reset CTRL");
        check(cs === 1'b1 && sd_clk === 1'b0 && card_init === 1'b0 && checkout === 1'b0 && irq === 1'b0, "idle pins");
        // Card detection.
        apb_write(CTRL, 8);
        checkin = 1'b0; cycles(500); checkin = 1'b1; cycles(20); checkin = 1'b0; cycles(900);
        check(checkout === 1'b0, "a bouncing contact is no card");
        cycles(200);
        check(checkout === 1'b1 && irq === 1'b1, "card present");
        apb_expect(STATUS, 32'h18, "CARD and CHANGED");
        apb_write(STATUS, 32'h10);
        check(irq === 1'b0, "CHANGED cleared");
        apb_write(CTRL, 32'h7);
        check(cs === 1'b0 && card_init === 1'b1, "SELECT and INIT");
        // Bytes.
        for (k = 0; k < 5; k = k + 1) begin
            taken = 0;
            reply = 8'h6D ^ (8'h3B * k);
            datain = reply[7];
            apb_write(DATA, 8'hA6 ^ (8'h59 * k));
            apb_expect(STATUS, 32'h9, "BUSY");
            @(posedge irq); #1;
            check(taken == 8, "eight clock periods");
            check32(heard, (8'hA6 ^ (8'h59 * k)) & 8'hFF, "byte to the card");
            apb_expect(DATA, (8'h6D ^ (8'h3B * k)) & 8'hFF, "byte from the card");
            apb_expect(STATUS, 32'hA, "DONE");
            apb_write(STATUS, 32'h2);
            check(irq === 1'b0, "DONE cleared");
        end
        taken = 0;
        apb_write(DATA, 8'h00);
        apb_write(DATA, 8'hFF);
        @(posedge irq); #1;
        apb_expect(STATUS, 32'hE, "LOST");
        check32(heard, 8'h00, "the running byte goes on");
        apb_write(STATUS, 32'h6);
        // The card leaves.
        checkin = 1'b1;
        cycles(1100);
        check(checkout === 1'b0 && card_init === 1'b0, "no card, INIT cleared");
        apb_expect(CTRL, 32'h5, "the other bits stay");
        apb_expect(STATUS, 32'h10, "CHANGED");
        // Only the lowest byte is sent, and only its flags are cleared.
        apb_write8(DATA + 1, 8'h55); apb_write16(DATA + 2, 16'h5555);
        apb_write8(STATUS + 3, 8'hFF); apb_write16(STATUS + 2, 16'hFFFF);
        apb_expect(STATUS, 32'h10, "nothing sent, nothing cleared");
        taken = 0;
        apb_write8(DATA, 8'h3C);
        @(posedge irq); #1;
        check32(heard, 8'h3C, "a byte written as a byte");
        apb_write8(STATUS, 8'h12);
        apb_expect(STATUS, 0, "cleared by its byte");
        finish;
    end
endmodule
