// Real-time clock: seconds from a slow clock, alarm, interrupts, setting the time.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    reg  slow = 1'b0;
    wire irq;
    always #83 slow = ~slow;    // not related to the bus clock
    apb_rtc dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                 .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .rtc_clk(slow), .irq(irq));
    localparam [11:0] SECONDS = 0, ALARM = 4, CTRL = 8, PEND = 12, PRESCALE = 16;
    integer n;
    time first;
    initial begin
        reset;
        apb_expect(SECONDS, 0, "reset SECONDS");
        apb_expect(ALARM, 0, "reset ALARM");
        apb_expect(CTRL, 0, "reset CTRL");
        apb_expect(PEND, 0, "reset PEND");
        apb_expect(PRESCALE, 32767, "reset PRESCALE");
        apb_write(PRESCALE, 9);
        cycles(500);
        apb_expect(SECONDS, 0, "stands while disabled");
        apb_write(CTRL, 5);
        @(posedge irq); first = $time; #1;
        apb_expect(PEND, 2, "a second has passed");
        for (n = 0; n < 5; n = n + 1) begin
            apb_write(PEND, 2);
            check(irq === 1'b0, "cleared");
            @(posedge irq); #1;
        end
        check(($time - first + 830) / 1660 == 5, "a second is PRESCALE + 1 source cycles");
        apb_expect(SECONDS, 6, "six seconds");
        apb_write(CTRL, 3);
        apb_write(PEND, 3);
        apb_write(ALARM, 1002);
        apb_write(SECONDS, 999);
        first = $time;
        @(posedge irq); #1;
        check(($time - first + 830) / 1660 == 3, "alarm after three seconds");
        apb_expect(SECONDS, 1002, "at the alarm time");
        apb_expect(PEND, 3, "alarm and second");
        apb_write(PEND, 1);
        check(irq === 1'b0, "only the alarm interrupts");
        apb_write(SECONDS, 32'hFFFFFFFF);
        apb_write(ALARM, 0);
        @(posedge irq); #1;
        apb_expect(SECONDS, 0, "the time wraps");
        // Parts.
        apb_write(CTRL, 0);
        apb_write(SECONDS, 32'h11223344);
        apb_write16(SECONDS + 2, 16'hAABB);
        apb_expect(SECONDS, 32'hAABB3344, "a halfword of SECONDS");
        apb_write8(PEND + 1, 8'hFF); apb_write16(PEND + 2, 16'hFFFF);
        apb_expect(PEND, 3, "nothing cleared beside the byte");
        apb_write8(PEND, 8'h02);
        apb_expect(PEND, 1, "cleared by its byte");
        finish;
    end
endmodule
