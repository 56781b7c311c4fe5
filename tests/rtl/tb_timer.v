// Timer: period, reload, interrupt, external gate, external clock, 24 bits; compare, capture, one-shot, prescaler; random
// settings against a model.  With SMALL the timer has neither compare value nor capture,
// with BASIC no prescaler and no one-shot either.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    reg  extin = 1'b0;
    wire irq;
`ifdef BASIC
`define SMALL
    localparam [9:0] CTRL_BITS = 10'h00F;
    localparam [3:0] PEND_BITS = 4'h1;
    localparam IS_BASIC = 1;
    apb_timer #(.COMPARE(0), .CAPTURE(0), .FULL(0))
`else
    localparam IS_BASIC = 0;
`ifdef SMALL
    localparam [9:0] CTRL_BITS = 10'h01F;
    localparam [3:0] PEND_BITS = 4'h1;
    apb_timer #(.COMPARE(0), .CAPTURE(0))
`else
    localparam [9:0] CTRL_BITS = 10'h3FF;
    localparam [3:0] PEND_BITS = 4'hF;
    apb_timer
`endif
`endif
              dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                   .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .extin(extin), .irq(irq));
    localparam [11:0] CTRL = 0, VALUE = 4, RELOAD = 8, PEND = 12, PRESCALE = 16, COMPARE = 20, CAPTURE = 24, ID = 12'hFFC;

    // The model: what each clock edge makes of the settings.
    reg  [9:0]  m_ctrl;
    reg  [23:0] m_value, m_reload, m_compare, m_capture, kept;
    reg  [15:0] m_prescale;
    reg  [3:0]  m_pend, raised;
    reg         m_due;              // the counter has got to where it is by counting
    reg  [2:0]  seen;               // the input, one, two and three edges ago
    integer     passed, length;     // steps of the count that runs, and how many it has
    integer     lane, stepped;
    wire        m_irq = |(m_pend & {1'b0, m_ctrl[7], m_ctrl[6], m_ctrl[1]});
    reg         comparing = 1'b0;
    always @(posedge clk)
        if (!rstn) begin
            {m_ctrl, m_value, m_reload, m_compare, m_capture, m_prescale, m_pend, m_due, seen} = 0;
            passed = 0; length = 1;
        end else begin
            raised = 4'd0;
            raised[1] = m_due && m_ctrl[5] && m_value == m_compare;
            m_due = 1'b0;
            kept = m_value;
            if (m_ctrl[0] && ((m_ctrl[8] && seen[2:1] == 2'b01) || (m_ctrl[9] && seen[2:1] == 2'b10))) begin
                raised[2] = 1'b1;
                raised[3] = m_pend[2];
                m_capture = m_value;
            end
            stepped = m_ctrl[0] && (m_ctrl[3] ? seen[2:1] == 2'b01 : !m_ctrl[2] || seen[1]);
            passed = passed + stepped;
            if (stepped && passed == length) begin
                passed = 0;
                length = m_prescale + 1;
                raised[0] = m_value == 0;
                m_due = 1'b1;
                if (m_value != 0)
                    m_value = m_value - 1;
                else if (!m_ctrl[4])
                    m_value = m_reload;
                else begin
                    m_ctrl[0] = 1'b0;
                    m_due = 1'b0;
                end
            end
            if (psel && penable && pwrite) begin
                if (paddr[11:2] == 0 && pstrb[0] && pwdata[0] && !m_ctrl[0]) begin
                    passed = 0;
                    length = m_prescale + 1;
                    if (m_value == 0) m_value = m_reload;
                end
                if (paddr[11:2] == 1) m_due = 1'b0;
                for (lane = 0; lane < 4; lane = lane + 1) if (pstrb[lane])
                    case (paddr[11:2])
                        0: if (lane == 0) m_ctrl[7:0] = pwdata[7:0] & CTRL_BITS;
                           else if (lane == 1) m_ctrl[9:8] = pwdata[9:8] & CTRL_BITS[9:8];
                        1: if (lane < 3) m_value[8*lane +: 8] = pwdata[8*lane +: 8];
                        2: if (lane < 3) m_reload[8*lane +: 8] = pwdata[8*lane +: 8];
                        3: if (lane == 0) m_pend = m_pend & ~pwdata[3:0];
                        4: if (lane < 2 && !IS_BASIC) m_prescale[8*lane +: 8] = pwdata[8*lane +: 8];
                        5: if (lane < 3) m_compare[8*lane +: 8] = pwdata[8*lane +: 8];
                    endcase
            end
            m_pend = m_pend | raised;
            seen = {seen[1:0], extin};
        end
    always @(negedge clk) if (comparing) check(irq === m_irq, "the interrupt is that of the model");

    function [31:0] model(input [11:0] address);
        case (address)
            CTRL: model = m_ctrl;
            VALUE: model = m_value;
            RELOAD: model = m_reload;
            PEND: model = m_pend;
            PRESCALE: model = m_prescale;
            COMPARE: model = CTRL_BITS[5] ? m_compare : 24'd0;
            CAPTURE: model = m_capture;
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
            word = word[31] ? word & 32'h3FF : word & 32'h007;
            if (word[3:0] == 4'd0) apb_write_lanes(VALUE, $random, $random);   // anything at all
            else case ($random & 15)
                0, 1, 2: apb_write(CTRL, $random | ($random & 1));
                3: apb_write_lanes(CTRL, $random, $random);
                4: apb_write(VALUE, word & 15);
                5: apb_write(RELOAD, word & 7);
                6: apb_write(PRESCALE, word & 3);
                7: apb_write(COMPARE, word & 7);
                8, 9: apb_write_lanes(PEND, $random, $random);
                default: cycles(1 + ($random & 31));
            endcase
        end
    endtask
    reg toggling = 1'b0;
    always @(posedge clk) if (toggling && ($random & 7) == 0) extin = #2 ~extin;
    time first;
    integer n;
    initial begin
        reset;
        apb_expect(CTRL, 0, "reset CTRL");
        apb_expect(VALUE, 0, "reset VALUE");
        apb_expect(RELOAD, 0, "reset RELOAD");
        apb_expect(PEND, 0, "reset PEND");
        apb_write(VALUE, 32'hFFFFFFFF);
        apb_expect(VALUE, 32'h00FFFFFF, "24 bits");
        apb_write(RELOAD, 32'hFFABCDEF);
        apb_expect(RELOAD, 32'h00ABCDEF, "24 bits of RELOAD");
        cycles(20);
        apb_expect(VALUE, 32'h00FFFFFF, "does not count while disabled");
        // Period.
        apb_write(RELOAD, 49);
        apb_write(VALUE, 10);
        apb_write(CTRL, 3);
        cycles(5);
        check(irq === 1'b0, "not yet");
        @(posedge irq); first = $time;
        apb_write(PEND, 1);
        check(irq === 1'b0, "interrupt cleared");
        @(posedge irq);
        check32(($time - first) / 10, 50, "period is RELOAD + 1");
        first = $time;
        #1;
        apb_write(PEND, 0);
        check(irq === 1'b1, "writing 0 clears nothing");
        apb_write(CTRL, 1);
        check(irq === 1'b0, "interrupt disabled");
        apb_expect(PEND, 1, "still pending");
        apb_write(PEND, 1);
        // External gate.
        apb_write(CTRL, 5);
        cycles(4);
        apb_read(VALUE); n = rd;
        cycles(30);
        apb_expect(VALUE, n, "stands while the gate is low");
        apb_write(VALUE, 40);
        extin = 1'b1; cycles(10); extin = 1'b0; cycles(5);
        apb_expect(VALUE, 30, "counts the cycles of the gate");
        // External clock.
        apb_write(CTRL, 9);
        apb_write(VALUE, 3);
        for (n = 0; n < 3; n = n + 1) begin extin = 1'b1; cycles(7); extin = 1'b0; cycles(4); end
        apb_expect(VALUE, 0, "counts rising edges");
        apb_expect(PEND, 0, "0 is not yet past 0");
        extin = 1'b1; cycles(5);
        apb_expect(VALUE, 49, "reloads");
        apb_expect(PEND, 1, "pending");
        // Parts.
        apb_write8(PEND + 1, 8'h01); apb_write16(PEND + 2, 16'h0001);
        apb_expect(PEND, 1, "nothing cleared beside the byte");
        apb_write8(PEND, 8'h01);
        apb_expect(PEND, 0, "cleared by its byte");
        extin = 1'b0;
        apb_write(VALUE, 32'h000110);
        apb_write(CTRL, 1);
        apb_write8(VALUE + 2, 8'h7E);
        apb_read(VALUE);
        check(rd > 32'h7E0100 && rd < 32'h7E0110, "the other bytes go on counting");
        reset;
        // Switching on raises nothing: a counter at 0 begins with RELOAD.
        apb_write(RELOAD, 9);
        apb_write(CTRL, 3);
        cycles(5);
        check(irq === 1'b0, "nothing raised by switching on");
        apb_expect(PEND, 0, "nothing pending either");
        @(posedge irq); #1;
        apb_expect(PEND, 1, "a whole period later");
`ifndef BASIC
        // One-shot, which can be switched on again.
        apb_write(CTRL, 0); apb_write(PEND, 15); apb_write(VALUE, 0); apb_write(RELOAD, 29); apb_write(PRESCALE, 3);
        for (n = 0; n < 2; n = n + 1) begin
            apb_write(CTRL, 32'h13); first = $time;
            @(posedge irq);
            check32(($time - first + 5) / 10, 120, "one-shot: 30 counts of 4 cycles");
            #1;
            apb_expect(CTRL, 32'h12, "EN is cleared");
            apb_expect(VALUE, 0, "stays at 0");
            apb_write(PEND, 1);
            cycles(200);
            check(irq === 1'b0, "only once");
        end
`endif
`ifndef SMALL
        apb_expect(ID, 32'h03180203, "ID");
        // Compare.
        apb_write(PRESCALE, 0); apb_write(COMPARE, 20); apb_write(RELOAD, 49); apb_write(CTRL, 32'h61);
        @(posedge irq); first = $time; #1;
        apb_expect(PEND, 2, "a match");
        apb_write(PEND, 2);
        check(irq === 1'b0, "match cleared");
        @(posedge irq);
        check32(($time - first) / 10, 50, "a match each period");
        #1 apb_expect(PEND, 3, "match and end of a period");
        apb_write(CTRL, 32'h41); apb_write(PEND, 15);
        cycles(120);
        apb_expect(PEND, 1, "no match without CMPEN");
        // Capture: the length of a pulse.
        apb_write(CTRL, 0); apb_write(PEND, 15); apb_write(VALUE, 1000); apb_write(CTRL, 32'h381);
        extin = 1'b1; cycles(5);
        check(irq === 1'b1, "an edge interrupts");
        apb_read(CAPTURE); n = rd;
        apb_write(PEND, 4);
        check(irq === 1'b0, "capture cleared");
        cycles(91); extin = 1'b0; cycles(5);
        apb_read(CAPTURE);
        check32(n - rd, 100, "the pulse was 100 cycles long");
        apb_expect(PEND, 4, "nothing lost");
        extin = 1'b1; cycles(5);
        apb_expect(PEND, 12, "an edge without room");
        apb_write(CTRL, 32'h201); apb_write(PEND, 15); apb_read(CAPTURE); n = rd;
        extin = 1'b0; cycles(4); extin = 1'b1; cycles(4);
        apb_expect(PEND, 4, "the falling edge only");
        apb_write(CTRL, 32'h200); apb_write(PEND, 15); apb_read(CAPTURE); n = rd;
        extin = 1'b0; cycles(4); extin = 1'b1; cycles(4);
        apb_expect(PEND, 0, "no capture while switched off");
        apb_expect(CAPTURE, n, "CAPTURE kept");
`else
        apb_expect(ID, IS_BASIC ? 32'hC0180203 : 32'h00180203, "ID without features");
        apb_write(CTRL, IS_BASIC ? 32'hFF0 : 32'hFE0); apb_write(COMPARE, 32'hFFFFFF);
        apb_expect(CTRL, 0, "no bits of what is not there");
        apb_expect(COMPARE, 0, "no compare value");
`endif
        // Every byte of every register that stands still.
        reset;
        apb_parts(VALUE, 32'hFFFFFF, 0); apb_parts(RELOAD, 32'hFFFFFF, 0); apb_parts(PRESCALE, IS_BASIC ? 0 : 32'hFFFF, 0);
        apb_parts(COMPARE, CTRL_BITS[5] ? 32'hFFFFFF : 0, 0); apb_parts(CTRL, {CTRL_BITS, 22'd0} >> 22, 0);
        apb_parts(ID, 0, CTRL_BITS[5] ? 32'h03180203 : IS_BASIC ? 32'hC0180203 : 32'h00180203);
        // Random settings.
        reset;
        comparing = 1'b1; toggling = 1'b1;
        // A write in each clock cycle around the end of a single period.
        toggling = 1'b0; extin = 1'b0;
        for (n = 0; n < 64; n = n + 1) begin
            apb_write(CTRL, 0); apb_write(VALUE, 9); apb_write(RELOAD, 6); apb_write(PEND, 15);
            apb_write(COMPARE, n[4] ? 0 : 4); apb_write(CTRL, 32'h33);
            cycles(n & 15);
            if (n[5]) apb_write(CTRL, 32'h33); else if (n[4]) apb_write(PEND, 15); else apb_write(VALUE, 4);
            compare_with_model(VALUE); cycles(2);
            compare_with_model(PEND); compare_with_model(CTRL);
        end
        toggling = 1'b1;
        for (n = 0; n < `ROUNDS(6000, 500); n = n + 1) begin
            random_settings;
            compare_with_model(($random & 7) * 4);
        end
        comparing = 1'b0;
        finish;
    end
endmodule
