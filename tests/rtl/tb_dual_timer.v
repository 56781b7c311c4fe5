// Dual timer: independence of the counters, prescaler, one-shot, periodic, compare, interrupts; random settings against a
// model of two counters.  With SMALL the counters have no compare values.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    wire irq;
`ifdef SMALL
    localparam [4:0] CTRL_BITS = 5'h07;
    apb_dual_timer #(.COMPARE(0))
`else
    localparam [4:0] CTRL_BITS = 5'h1F;
    apb_dual_timer
`endif
                   dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                        .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .irq(irq));
    localparam [11:0] CTRL = 0, VALUE = 4, RELOAD = 8, PEND = 12, COMPARE = 16, ID = 12'hFFC;

    // The model: what each clock edge makes of the settings.
    reg  [4:0]  m_ctrl [0:1];
    reg  [7:0]  m_prescale [0:1];
    reg  [31:0] m_value [0:1], m_reload [0:1], m_compare [0:1];
    reg  [1:0]  m_pend [0:1], raised;
    reg         m_due [0:1];        // the counter has got to where it is by counting
    integer     passed [0:1], length [0:1], m, lane;
    reg         comparing = 1'b0;
    wire        m_irq = |(m_pend[0] & {m_ctrl[0][4], m_ctrl[0][1]}) | |(m_pend[1] & {m_ctrl[1][4], m_ctrl[1][1]});
    always @(posedge clk)
        for (m = 0; m < 2; m = m + 1)
            if (!rstn) begin
                m_ctrl[m] = 0; m_prescale[m] = 0; m_value[m] = 0; m_reload[m] = 0; m_compare[m] = 0; m_pend[m] = 0;
                m_due[m] = 0; passed[m] = 0; length[m] = 1;
            end else begin
                raised = 2'd0;
                raised[1] = m_due[m] && m_ctrl[m][3] && m_value[m] == m_compare[m];
                m_due[m] = 1'b0;
                passed[m] = passed[m] + m_ctrl[m][0];
                if (m_ctrl[m][0] && passed[m] == length[m]) begin
                    passed[m] = 0;
                    length[m] = m_prescale[m] + 1;
                    raised[0] = m_value[m] == 0;
                    m_due[m] = 1'b1;
                    if (m_value[m] != 0)
                        m_value[m] = m_value[m] - 1;
                    else if (!m_ctrl[m][2])
                        m_value[m] = m_reload[m];
                    else begin
                        m_ctrl[m] = m_ctrl[m] & 5'h1E;
                        m_due[m] = 1'b0;
                    end
                end
                if (psel && penable && pwrite && paddr[11:5] == m) begin
                    if (paddr[4:2] == 0) begin
                        if (pstrb[0]) begin
                            if (pwdata[0] && !m_ctrl[m][0] && m_value[m] == 0) m_value[m] = m_reload[m];
                            m_ctrl[m] = pwdata[4:0] & CTRL_BITS;
                        end
                        if (pstrb[1]) m_prescale[m] = pwdata[15:8];
                        passed[m] = 0;
                        length[m] = m_prescale[m] + 1;
                    end
                    if (paddr[4:2] == 1) m_due[m] = 1'b0;
                    if (paddr[4:2] == 3 && pstrb[0]) m_pend[m] = m_pend[m] & ~pwdata[1:0];
                    for (lane = 0; lane < 4; lane = lane + 1) if (pstrb[lane]) begin
                        if (paddr[4:2] == 1) m_value[m] = m_value[m] & ~(255 << 8*lane) | pwdata & (255 << 8*lane);
                        if (paddr[4:2] == 2) m_reload[m] = m_reload[m] & ~(255 << 8*lane) | pwdata & (255 << 8*lane);
                        if (paddr[4:2] == 4) m_compare[m] = m_compare[m] & ~(255 << 8*lane) | pwdata & (255 << 8*lane);
                    end
                end
                m_pend[m] = m_pend[m] | raised;
            end
    always @(negedge clk) if (comparing) check(irq === m_irq, "the interrupt is that of the model");

    function [31:0] model(input [11:0] address);
        case (address[4:2])
            0: model = {m_prescale[address[5]], 3'd0, m_ctrl[address[5]]};
            1: model = m_value[address[5]];
            2: model = m_reload[address[5]];
            3: model = m_pend[address[5]];
            4: model = CTRL_BITS[3] ? m_compare[address[5]] : 0;
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
            base = word[31] * 32;
            if (word[3:0] == 4'd0) apb_write_lanes(base + 4 + (word[30] * 4), $random, $random);   // anything at all
            else case ($random & 15)
                0, 1, 2: apb_write(base + CTRL, ($random & 32'h31F) | word[4]);
                3: apb_write_lanes(base + CTRL, $random & 32'h31F, $random);
                4: apb_write(base + VALUE, word & 15);
                5: apb_write(base + RELOAD, word & 7);
                6: apb_write(base + COMPARE, word & 7);
                7: apb_write_lanes(base + COMPARE, word & 7, $random);
                8, 9: apb_write_lanes(base + PEND, $random, $random);
                default: cycles(1 + ($random & 31));
            endcase
        end
    endtask
    integer n;
    reg [11:0] base, other;
    time first;
    initial begin
        for (n = 0; n < 2; n = n + 1) begin
            reset;
            base = n * 32; other = 32 - n * 32;
            apb_expect(base + CTRL, 0, "reset CTRL");
            apb_expect(base + VALUE, 0, "reset VALUE");
            apb_expect(base + RELOAD, 0, "reset RELOAD");
            apb_expect(base + PEND, 0, "reset PEND");
            apb_write(base + VALUE, 32'hFFFFFFFF);
            apb_expect(base + VALUE, 32'hFFFFFFFF, "32 bits");
            apb_expect(base + 12'h10, 0, "reset COMPARE");
            apb_expect(base + 12'h14, 0, "nothing between the counters");
            apb_write(other + VALUE, 32'h1234);
            // Periodic, prescaler 4: period (RELOAD + 1) * 4.
            apb_write(base + RELOAD, 9);
            apb_write(base + VALUE, 3);
            apb_write(base + CTRL, 32'h303);
            apb_expect(base + CTRL, 32'h303, "CTRL reads back");
            @(posedge irq); first = $time; #1;
            apb_write(base + PEND, 1);
            check(irq === 1'b0, "cleared");
            @(posedge irq);
            check32(($time - first) / 10, 40, "period with prescaler");
            #1;
            apb_expect(other + PEND, 0, "the other counter stands");
            apb_expect(other + VALUE, 32'h1234, "and keeps its value");
            // One-shot.
            apb_write(base + CTRL, 0);
            apb_write(base + PEND, 1);
            apb_write(base + VALUE, 20);
            apb_write(base + CTRL, 7);
            cycles(15);
            check(irq === 1'b0, "not yet");
            cycles(10);
            check(irq === 1'b1, "one-shot is over");
            apb_expect(base + CTRL, 6, "EN is cleared");
            apb_expect(base + VALUE, 0, "stays at 0");
            apb_write(base + PEND, 1);
            cycles(50);
            check(irq === 1'b0, "only once");
        end
        for (n = 0; n < 2; n = n + 1) begin
            reset;
            base = n * 32; other = 32 - n * 32;
            // Switching on raises nothing: a counter at 0 begins with RELOAD.
            apb_write(base + RELOAD, 9);
            apb_write(base + CTRL, 32'h107); first = $time;
            @(posedge irq);
            check32(($time - first + 5) / 10, 20, "a whole period after switching on");
            #1;
            apb_expect(base + VALUE, 0, "ended by itself");
            apb_write(base + PEND, 1);
            apb_write(base + CTRL, 32'h107); first = $time;
            @(posedge irq);
            check32(($time - first + 5) / 10, 20, "and again");
            #1;
`ifndef SMALL
            // Compare.
            apb_write(base + PEND, 3);
            apb_write(base + COMPARE, 3);
            apb_expect(base + COMPARE, 3, "COMPARE reads back");
            apb_write(base + CTRL, 32'h119);
            @(posedge irq); first = $time; #1;
            apb_expect(base + PEND, 2, "a match");
            apb_write(base + PEND, 2);
            check(irq === 1'b0, "match cleared");
            @(posedge irq);
            check32(($time - first) / 10, 20, "a match each period");
            #1 apb_expect(base + PEND, 3, "match and end of a period");
            apb_write(base + CTRL, 32'h109);
            check(irq === 1'b0, "no interrupt without CMPIE");
            apb_expect(other + PEND, 0, "the other counter has none");
`endif
        end
`ifdef SMALL
        apb_expect(ID, 32'h00200204, "ID without features");
        apb_write(CTRL, 32'h18); apb_write(COMPARE, 32'hFFFFFFFF);
        apb_expect(CTRL, 0, "no bits of what is not there");
        apb_expect(COMPARE, 0, "no compare value");
`else
        apb_expect(ID, 32'h01200204, "ID");
`endif
        reset;
        comparing = 1'b1;
        // A write in each clock cycle around the end of a single period.
        for (n = 0; n < 64; n = n + 1) begin
            apb_write(CTRL, 0); apb_write(VALUE, 9); apb_write(RELOAD, 6); apb_write(PEND, 3);
            apb_write(COMPARE, n[4] ? 0 : 4); apb_write(CTRL, 32'h0F);
            cycles(n & 15);
            if (n[5]) apb_write(CTRL, 32'h0F); else if (n[4]) apb_write(PEND, 3); else apb_write(VALUE, 4);
            compare_with_model(VALUE); cycles(2);
            compare_with_model(PEND); compare_with_model(CTRL);
        end
        for (n = 0; n < `ROUNDS(6000, 150); n = n + 1) begin
            random_settings;
            compare_with_model((($random & 1) * 32) + (($random & 7) * 4));
        end
        comparing = 1'b0;
        reset;
        apb_expect(12'h040, 0, "nothing after the counters");
        // Parts.
        apb_write(RELOAD, 1);
        apb_write(VALUE, 1);
        apb_write(CTRL, 32'h303);
        @(posedge irq); #1;
        apb_write8(PEND + 1, 8'h01); apb_write16(PEND + 2, 16'h0001);
        check(irq === 1'b1, "nothing cleared beside the byte");
        apb_write8(CTRL + 1, 8'h40);
        apb_expect(CTRL, 32'h4003, "a byte of CTRL");
        apb_write8(PEND, 8'h01);
        check(irq === 1'b0, "cleared by its byte");
        apb_write8(CTRL, 8'h00);
        apb_expect(CTRL, 32'h4000, "stopped, PRESCALE kept");
        finish;
    end
endmodule
