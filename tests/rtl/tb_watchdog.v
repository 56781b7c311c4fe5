// Watchdog: interrupt, then reset; kick with the right key only; window; lock, and lock until reset; standstill while the
// processor is halted; random settings against a model.  With SMALL the watchdog has no window.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    wire nmi, reset_req;
    reg  halted = 1'b0;
`ifdef SMALL
    localparam HAS_WINDOW = 0;
    apb_watchdog #(.WINDOW(0))
`else
    localparam HAS_WINDOW = 1;
    apb_watchdog
`endif
                 dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                      .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                      .halted(halted), .nmi(nmi), .reset_req(reset_req));
    localparam [11:0] LOAD = 0, COUNT = 4, CTRL = 8, KICK = 12, STATUS = 16, LOCK = 20, WINDOW = 24, ID = 12'hFFC;
    localparam [31:0] KICK_KEY = 32'h4B49434B, UNLOCK_KEY = 32'h554E4C4B, SEAL_KEY = 32'h5345414C;

    // The model: what each clock edge makes of the settings.
    reg  [31:0] m_load, m_window, m_count, now, before;   // COUNT before this edge and before the last one
    reg  [2:0]  m_ctrl;
    reg  [1:0]  m_status, m_lock;
    reg         m_reset, m_reload, m_ends;
    integer     lane;
    reg         comparing = 1'b0;
    always @(posedge clk)
        if (!rstn) begin
            m_load = -1; m_window = -1; m_count = -1; before = -1;
            {m_ctrl, m_status, m_lock, m_reset, m_reload} = 0;
        end else begin
            now = m_count;
            m_reset = 1'b0;
            m_ends = 1'b0;
            if (m_reload)
                m_count = m_load;
            else if (m_ctrl[0] && (!halted || m_ctrl[2])) begin
                m_ends = m_count == 0;
                m_count = m_ends ? m_load : m_count - 1;
            end
            m_reload = 1'b0;
            if (psel && penable && pwrite && paddr[11:2] == KICK / 4 && pstrb == 4'hF && pwdata == KICK_KEY) begin
                m_status = {2{m_ctrl[0] && !m_status[0] && before > m_window}};
                m_reset = m_status[0] && m_ctrl[1];
                m_count = m_load;
            end else if (m_ends) begin
                m_reset = m_status[0] && m_ctrl[1];
                m_status[0] = 1'b1;
            end
            if (psel && penable && pwrite) begin
                if (!m_lock[0]) begin
                    if (paddr[11:2] == LOAD / 4) m_reload = pstrb != 0;
                    if (paddr[11:2] == CTRL / 4 && pstrb[0]) m_ctrl = pwdata[2:0];
                    for (lane = 0; lane < 4; lane = lane + 1) if (pstrb[lane]) begin
                        if (paddr[11:2] == LOAD / 4) m_load[8*lane +: 8] = pwdata[8*lane +: 8];
                        if (paddr[11:2] == WINDOW / 4 && HAS_WINDOW) m_window[8*lane +: 8] = pwdata[8*lane +: 8];
                    end
                end
                if (paddr[11:2] == LOCK / 4 && !m_lock[1])
                    m_lock = pstrb != 4'hF ? 2'b01 : pwdata == UNLOCK_KEY ? 2'b00 : pwdata == SEAL_KEY ? 2'b11 : 2'b01;
            end
            before = now;
        end
    always @(negedge clk) if (comparing) begin
        check(nmi === m_status[0], "the interrupt is that of the model");
        check(reset_req === m_reset, "the reset is that of the model");
    end
    function [31:0] model(input [11:0] address);
        case (address)
            LOAD: model = m_load;
            COUNT: model = m_count;
            CTRL: model = m_ctrl;
            STATUS: model = m_status;
            LOCK: model = m_lock;
            WINDOW: model = m_window;
            default: model = 0;
        endcase
    endfunction
    task compare_with_model(input [11:0] address);
        begin
            apb_look(address);
            check32(rd, model(address), "a register is that of the model");
            apb_leave;
        end
    endtask
    reg [31:0] word;
    task random_settings;
        begin
            word = $random;
            if (word[4:0] == 5'd0) apb_write_lanes($random & 28, $random, $random);   // anything at all
            else case ($random & 15)
                0, 1: apb_write(CTRL, {$random} % 8 | (word[5] ? 1 : 0));
                2: apb_write(LOAD, word[31:16] & 63);
                3: apb_write(WINDOW, word[31:16] & 63);
                4: apb_write(LOCK, word[7] ? UNLOCK_KEY : word);
                5, 6: apb_write(LOCK, UNLOCK_KEY);
                7, 8, 9: apb_write_lanes(KICK, KICK_KEY, word[9:6] == 0 ? word[13:10] : 4'hF);
                10: halted = word[7] & word[8];
                default: cycles(1 + ($random & 31));
            endcase
        end
    endtask
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
`ifdef SMALL
        apb_expect(ID, 32'h00200206, "ID without a window");
        apb_write(WINDOW, 5);
        apb_expect(WINDOW, 32'hFFFFFFFF, "no window");
`else
        apb_expect(ID, 32'h01200206, "ID");
        // Window: a kick too early interrupts, and resets at once where that is allowed.
        reset; resets = 0;
        apb_expect(WINDOW, 32'hFFFFFFFF, "reset WINDOW");
        apb_write(LOAD, 99); apb_write(WINDOW, 40); apb_write(CTRL, 1);
        cycles(65);
        apb_write(KICK, KICK_KEY);
        check(nmi === 1'b0, "a kick within the window");
        apb_read(COUNT);
        check(rd > 90, "restarts the count");
        cycles(20);
        apb_write(KICK, KICK_KEY);
        check(nmi === 1'b1, "a kick before the window");
        apb_expect(STATUS, 3, "STATUS says so");
        apb_write(KICK, KICK_KEY);
        check(nmi === 1'b0, "a kick that answers the interrupt is in time");
        apb_expect(STATUS, 0, "nothing is left of it");
        cycles(200);
        apb_expect(STATUS, 1, "none at all is not early");
        check(resets == 0, "no reset unless allowed");
        apb_write(KICK, KICK_KEY);
        apb_write(CTRL, 3);
        cycles(20);
        apb_write(KICK, KICK_KEY);
        check(reset_req === 1'b1, "a kick before the window resets at once");
        cycles(3);
        check(resets == 1, "a request of one cycle");
        apb_write(KICK, KICK_KEY); apb_write(CTRL, 0);
        apb_write(KICK, KICK_KEY);
        check(nmi === 1'b0 && resets == 1, "none is early while switched off");
        apb_write(LOCK, 0);
        apb_write(WINDOW, 7);
        apb_expect(WINDOW, 40, "WINDOW is protected");
        apb_write(LOCK, UNLOCK_KEY);
`endif
        // Halted by a debugger.
        reset; resets = 0;
        apb_write(LOAD, 50); apb_write(CTRL, 3);
        cycles(10);
        halted = 1'b1; cycles(1);
        apb_read(COUNT); n = rd;
        cycles(300);
        check(nmi === 1'b0 && resets == 0, "nothing ends while halted");
        apb_expect(COUNT, n, "the count stands while halted");
        halted = 1'b0; cycles(10);
        apb_read(COUNT);
        check(rd < n && rd > 20, "and goes on afterwards");
        apb_write(CTRL, 7);
        halted = 1'b1; cycles(200);
        check(nmi === 1'b1 && resets != 0, "DBGRUN counts while halted");
        halted = 1'b0;
        // Locked until the next reset.
        reset;
        apb_write(LOAD, 500); apb_write(CTRL, 1);
        apb_write_lanes(LOCK, SEAL_KEY, 4'b0111);
        apb_expect(LOCK, 1, "a part does not seal");
        apb_write(LOCK, SEAL_KEY);
        apb_expect(LOCK, 3, "sealed");
        apb_write(LOCK, UNLOCK_KEY);
        apb_expect(LOCK, 3, "no key opens it");
        apb_write(CTRL, 0); apb_write(LOAD, 3);
        apb_expect(CTRL, 1, "CTRL is protected for good");
        apb_expect(LOAD, 500, "LOAD too");
        cycles(300);
        apb_write(KICK, KICK_KEY);
        apb_read(COUNT);
        check(rd > 490, "kicks are taken");
        reset;
        apb_expect(LOCK, 0, "a reset opens it");
        // Random settings.
        comparing = 1'b1;
        for (n = 0; n < `ROUNDS(8000, 400); n = n + 1) begin
            if (n % 1000 == 999) begin
                comparing = 1'b0;
                apb_write(LOCK, n % 2000 < 1000 ? SEAL_KEY : 0);
                reset;
                comparing = 1'b1;
            end
            random_settings;
            compare_with_model(($random & 7) * 4);
        end
        comparing = 1'b0;
        finish;
    end
endmodule
