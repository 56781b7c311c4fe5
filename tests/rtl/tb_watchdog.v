// Watchdog: interrupt, then reset; kick with the right key only; lock.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    wire nmi, reset_req;
    apb_watchdog dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                      .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                      .nmi(nmi), .reset_req(reset_req));
    localparam [11:0] LOAD = 0, COUNT = 4, CTRL = 8, KICK = 12, STATUS = 16, LOCK = 20;
    integer resets = 0, n;
    always @(posedge clk) if (rstn && reset_req) resets = resets + 1;
    time first;
    initial begin
        reset;
        apb_expect(LOAD, 32'hFFFFFFFF, "reset LOAD");
        apb_expect(COUNT, 32'hFFFFFFFF, "reset COUNT");
        apb_expect(CTRL, 0, "reset CTRL");
        apb_expect(STATUS, 0, "reset STATUS");
        apb_expect(LOCK, 0, "reset LOCK");
        apb_write(LOAD, 99);
        apb_expect(COUNT, 99, "LOAD restarts the count");
        cycles(200);
        apb_expect(COUNT, 99, "stands while disabled");
        apb_write(CTRL, 3);
        for (n = 0; n < 5; n = n + 1) begin
            cycles(60);
            apb_write(KICK, 32'h4B49434B);
        end
        check(nmi === 1'b0 && resets == 0, "kicked in time");
        cycles(60);
        apb_write(KICK, 32'h12345678);
        cycles(60);
        check(nmi === 1'b1, "a wrong key is no kick");
        check(resets == 0, "first time: only the interrupt");
        apb_expect(STATUS, 1, "STATUS shows it");
        apb_write(KICK, 32'h4B49434B);
        check(nmi === 1'b0, "a kick clears the interrupt");
        cycles(110);
        check(nmi === 1'b1 && resets == 0, "interrupt again");
        first = $time;
        @(posedge reset_req);
        #1 check(($time - first) / 10 < 101, "reset one period later at most");
        check(nmi === 1'b1, "with the interrupt still pending");
        cycles(10);
        check(resets == 1, "a request of one cycle");
        // Without RSTEN.
        apb_write(CTRL, 1);
        cycles(300);
        check(resets == 1, "no reset unless allowed");
        // Lock.
        apb_write(LOCK, 32'd1);
        apb_expect(LOCK, 1, "locked");
        apb_write(CTRL, 0);
        apb_expect(CTRL, 1, "CTRL is protected");
        apb_write(LOAD, 5);
        apb_expect(LOAD, 99, "LOAD is protected");
        apb_write(KICK, 32'h4B49434B);
        check(nmi === 1'b0, "kick works while locked");
        apb_write(LOCK, 32'h554E4C4B);
        apb_expect(LOCK, 0, "unlocked");
        apb_write(CTRL, 0);
        apb_expect(CTRL, 0, "CTRL can be written again");
        // The keys are whole words.
        apb_write(LOAD, 20);
        apb_write(CTRL, 1);
        @(posedge nmi); #1;
        apb_write8(KICK, 8'h4B); apb_write8(KICK + 1, 8'h49); apb_write8(KICK + 2, 8'h43); apb_write8(KICK + 3, 8'h4B);
        apb_write16(KICK, 16'h434B); apb_write16(KICK + 2, 16'h4B49);
        check(nmi === 1'b1, "no kick in parts");
        apb_write(KICK, 32'h4B49434B);
        check(nmi === 1'b0, "a whole one");
        apb_write(CTRL, 0);
        apb_write16(LOCK, 16'h4C4B);
        apb_expect(LOCK, 1, "a part locks");
        apb_write8(LOCK + 3, 8'h55);
        apb_expect(LOCK, 1, "and does not unlock");
        apb_write8(LOAD, 1);
        apb_expect(LOAD, 20, "protected from bytes too");
        apb_write(LOCK, 32'h554E4C4B);
        apb_write(LOAD, 32'h01020304);
        apb_write8(LOAD + 2, 8'hAA);
        apb_expect(LOAD, 32'h01AA0304, "a byte of LOAD");
        apb_expect(COUNT, 32'h01AA0304, "restarts the count with the whole of it");
        finish;
    end
endmodule
