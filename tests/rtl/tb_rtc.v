// Real-time clock: seconds from a slow clock, alarm, interrupts, setting the time; sub-second, calibration, mask, step and
// late alarms, ticks, resets; random settings against a model.  With SMALL the clock has no calibration and no mask, with
// BASIC no ticks, sub-second and late alarms either.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    reg  slow = 1'b0, running = 1'b1;
    reg  power = 1'b0;
    wire irq;
    always #83 if (running) slow = ~slow;    // not related to the bus clock
`ifdef BASIC
`define SMALL
    localparam IS_WHOLE = 0, IS_BASIC = 1;
    apb_rtc #(.CALIBRATION(0), .REPEAT(0), .FULL(0))
`else
`ifdef SMALL
    localparam IS_WHOLE = 0, IS_BASIC = 0;
    apb_rtc #(.CALIBRATION(0), .REPEAT(0))
`else
    localparam IS_WHOLE = 1, IS_BASIC = 0;
    apb_rtc
`endif
`endif
            dut (.PCLK(clk), .PRESETn(rstn & power), .PORESETn(power), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                 .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .rtc_clk(slow), .irq(irq));
    localparam [11:0] SECONDS = 0, ALARM = 4, CTRL = 8, PEND = 12, PRESCALE = 16, SUBSECOND = 20, CALIB = 24,
                      ALARMMASK = 28, ALARMSTEP = 32, TICK = 36, STATUS = 40, ID = 12'hFFC;
    localparam [31:0] ID_VALUE = IS_WHOLE ? 32'h00940205 : IS_BASIC ? 32'hE0000205 : 32'h00000205;
    integer n;
    time first;

    task power_on;
        begin
            power = 1'b0;
            cycles(3);
            power = 1'b1;
            reset;
        end
    endtask

    // The model: what each cycle of the source clock, and each write, does to what software sees.  It knows nothing of
    // clock cycles of the bus: it is compared after all has come to rest.
    reg  [31:0] m_seconds, m_alarm, m_mask, m_step;
    reg  [23:0] m_prescale, m_part, m_shown;
    reg  [4:0]  m_ctrl;
    reg  [2:0]  m_pend;
    reg  [11:0] m_rate;
    reg  [15:0] m_tick, m_rest;
    reg         m_set, m_armed, m_staged;
    integer     m_corrections, k, m;   // corrections: sum of CALIB over the source cycles
    task model_power;
        begin
            {m_seconds, m_alarm, m_step, m_part, m_shown, m_ctrl, m_pend, m_rate, m_tick, m_rest} = 0;
            {m_set, m_armed, m_staged} = 0;
            m_mask = -1; m_prescale = 32767; m_corrections = 0;
        end
    endtask
    task model_reset;
        begin
            m_ctrl = m_ctrl & 5'h11;
            {m_tick, m_rest, m_shown, m_staged} = 0;
        end
    endtask
    task model_alarm;
        begin
            m_pend[0] = 1'b1;
            m_alarm = m_alarm + m_step;
            m_armed = m_step != 0;
        end
    endtask
    task model_late;
        while (m_ctrl[4] && m_armed && m_seconds - m_alarm < 32'h80000000)
            model_alarm;
    endtask
    function integer floor20(input integer n);      // n / 2^20, downwards
        floor20 = n >= 0 ? n / 1048576 : -((1048575 - n) / 1048576);
    endfunction
    task model_source;      // a cycle of the source clock
        if (m_ctrl[0]) begin
            k = 1 - floor20(m_corrections);
            m_corrections = m_corrections + {{20{m_rate[11]}}, m_rate};
            k = k + floor20(m_corrections);
            while (k > 0) begin
                k = k - 1;
                if (m_tick != 0) begin
                    m_rest = m_rest + 1;
                    if (m_rest == m_tick) begin m_rest = 0; m_pend[2] = 1'b1; end
                end
                m_part = m_part + 1;
                if (m_part > m_prescale) begin
                    m_part = 0;
                    m_seconds = m_seconds + 1;
                    m_pend[1] = 1'b1;
                    if ((m_seconds & m_mask) == (m_alarm & m_mask)) model_alarm;
                end
                model_late;
            end
        end
    endtask
    task write(input [11:0] address, input [31:0] value);
        begin
            apb_write(address, value);
            case (address)
                SECONDS: begin
                    m_seconds = value; m_part = m_staged ? m_shown : 0;
                    m_staged = 0; m_set = 1;
                end
                ALARM: begin m_alarm = value; m_armed = 1; end
                CTRL: m_ctrl = IS_BASIC ? value & 7 : value;
                PEND: m_pend = m_pend & ~value[2:0];
                PRESCALE: m_prescale = value;
                SUBSECOND: if (!IS_BASIC) begin m_shown = value; m_staged = 1; end
                CALIB: if (IS_WHOLE) m_rate = value;
                ALARMMASK: if (IS_WHOLE) m_mask = value;
                ALARMSTEP: if (IS_WHOLE) m_step = value[19:0];
                TICK: if (!IS_BASIC) begin m_tick = value; m_rest = 0; end
            endcase
            model_late;
            if (m_ctrl[4]) cycles(m_step != 0 ? 200 : 5);    // late alarms come one after the other
        end
    endtask
    task sources(input integer cycles_of_it);
        for (m = 0; m < cycles_of_it; m = m + 1) begin
            slow = 1'b1; cycles(2 + ($random & 1));
            slow = 1'b0; cycles(2 + ($random & 1));
            model_source;
        end
    endtask
    task compare_with_model;
        begin
            cycles(10);
            check(irq === |(m_pend & m_ctrl[3:1]), "the interrupt is that of the model");
            apb_expect(SECONDS, m_seconds, "SECONDS is that of the model");
            m_shown = IS_BASIC ? 0 : m_part; m_staged = 1'b0;
            apb_expect(SUBSECOND, m_shown, "SUBSECOND is that of the model");
            apb_expect(ALARM, m_alarm, "ALARM is that of the model");
            apb_expect(CTRL, m_ctrl, "CTRL is that of the model");
            apb_expect(PEND, m_pend, "PEND is that of the model");
            apb_expect(PRESCALE, m_prescale, "PRESCALE is that of the model");
            apb_expect(CALIB, m_rate, "CALIB is that of the model");
            apb_expect(ALARMMASK, m_mask, "ALARMMASK is that of the model");
            apb_expect(ALARMSTEP, m_step, "ALARMSTEP is that of the model");
            apb_expect(TICK, m_tick, "TICK is that of the model");
            apb_expect(STATUS, {m_armed, m_set}, "STATUS is that of the model");
        end
    endtask
    reg [31:0] word;
    task random_settings;
        begin
            word = $random;
            case ($random & 15)
                0: write(SECONDS, word[31] ? word & 31 : -1 - (word & 3));
                1: begin write(SUBSECOND, word & 7); write(SECONDS, word[31:16] & 31); end
                2, 3: write(ALARM, m_seconds + (word & 15) - 3);
                4, 5: write(CTRL, (word & 31) | 1);
                6: write(CTRL, word & 31);
                7, 8: write(PEND, word & 7);
                9: write(PRESCALE, word[31:28] == 0 ? word : word & 7);
                10: write(CALIB, word);
                11: write(ALARMMASK, word[31] ? -1 : word & 7);
                12: write(ALARMSTEP, word[31] ? 0 : 1 + (word & 7));
                13: write(TICK, word[31] ? 0 : word & 15);
                14: if (word[31:30] == 0) begin
                        rstn = 1'b0; model_reset; sources(3); cycles(4); rstn = 1'b1; cycles(2);
                    end
                default: sources(word & 63);
            endcase
        end
    endtask

    initial begin
        power_on;
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
        power_on;
        running = 1'b0; slow = 1'b0; model_power;
`ifndef BASIC
        // Sub-second: read with SECONDS, and set with it.
        apb_expect(STATUS, 0, "nobody has set the time");
        write(PRESCALE, 999); write(CTRL, 5); write(SECONDS, 77);
        apb_expect(STATUS, 1, "the time was set");
        sources(123);
        apb_expect(SUBSECOND, 0, "not read yet");
        apb_expect(SECONDS, 77, "the time");
        sources(5);
        apb_expect(SUBSECOND, 123, "the sub-second of the read time");
        write(SUBSECOND, 998); write(SECONDS, 80);
        sources(1);
        apb_expect(SECONDS, 80, "set with a sub-second");
        apb_expect(SUBSECOND, 999, "at the end of the second");
        sources(1);
        apb_expect(SECONDS, 81, "the next one");
        check(irq === 1'b1, "told");
        write(SUBSECOND, 500); apb_read(SECONDS); write(SECONDS, 80);
        apb_expect(SECONDS, 80, "set");
        apb_expect(SUBSECOND, 0, "reading the time forgets what was prepared");
        // What a system reset leaves alone.
        write(ALARM, 82); write(CALIB, 5); write(ALARMMASK, 32'hFF); write(ALARMSTEP, 3600); write(TICK, 100);
        write(CTRL, 31);
        sources(10);
        rstn = 1'b0; cycles(5); sources(7); rstn = 1'b1; cycles(2);
        m_staged = 0;
        apb_expect(SECONDS, 80, "the time goes on through a reset");
        apb_expect(SUBSECOND, 17, "and loses no cycle");
        apb_expect(CTRL, 17, "no interrupt is enabled after a reset");
        apb_expect(TICK, 0, "no ticks after a reset");
        apb_expect(PRESCALE, 999, "PRESCALE kept");
        apb_expect(ALARM, 82, "ALARM kept");
        apb_expect(STATUS, 3, "STATUS kept");
        apb_expect(PEND, 2, "PEND kept");
        apb_expect(CALIB, IS_WHOLE ? 5 : 0, "CALIB kept");
        apb_expect(ALARMMASK, IS_WHOLE ? 32'hFF : 32'hFFFFFFFF, "ALARMMASK kept");
        apb_expect(ALARMSTEP, IS_WHOLE ? 3600 : 0, "ALARMSTEP kept");
        power_on;
        apb_expect(SECONDS, 0, "nothing is kept without power");
        apb_expect(STATUS, 0, "and nobody has set the time");
`endif
        apb_expect(ID, ID_VALUE, "ID");
        // An alarm in the past.
        model_power;
        write(PRESCALE, 3); write(SECONDS, 100); write(CTRL, 3); write(ALARM, 100);
        sources(50);
        check(irq === 1'b0, "an alarm in the past does not come");
        apb_expect(STATUS, 3, "and stays ahead");
`ifndef BASIC
        write(CTRL, 19); cycles(5);
        check(irq === 1'b1, "with LATE it comes at once");
        apb_expect(STATUS, 1, "and is over");
        write(PEND, 3); write(ALARM, 200); cycles(50);
        check(irq === 1'b0, "one ahead does not");
        write(SECONDS, 200); cycles(5);
        check(irq === 1'b1, "setting the time past it does");
        write(PEND, 3);
`endif
`ifndef SMALL
        // Every minute; the mask; a step that was left behind.
        write(ALARM, 240); write(ALARMSTEP, 60);
        for (n = 0; n < 3; n = n + 1) begin
            while (!irq) sources(1);
            apb_expect(SECONDS, 240 + 60 * n, "every minute");
            write(PEND, 3);
        end
        write(SECONDS, 1000); cycles(200);
        apb_expect(ALARM, 1020, "the next minute after a jump");
        check(irq === 1'b1, "the one that was jumped over");
        write(ALARMSTEP, 0); write(CTRL, 3); write(ALARMMASK, 15); write(ALARM, 5); write(PEND, 7);
        for (n = 0; n < 3; n = n + 1) begin
            while (!irq) sources(1);
            apb_expect(SECONDS, 1013 + 16 * n, "the bits of the mask match");
            write(PEND, 3);
        end
        // Calibration: 1024 cycles of 2^20 more, or fewer, in 2048.
        for (n = 0; n < 2; n = n + 1) begin
            write(PRESCALE, 24'hFFFFFF); write(CALIB, n ? -1024 : 1024);
            apb_write(SECONDS, 0);
            sources(2048);
            apb_read(SECONDS);
            apb_expect(SUBSECOND, n ? 2046 : 2050, "corrected by 2 of 2048 cycles");
        end
        // Ticks.
        power_on; model_power;
        write(CTRL, 9);
        sources(20);
        check(irq === 1'b0, "no ticks");
        write(TICK, 7);
        for (n = 1; n < 30; n = n + 1) begin
            sources(1); cycles(5);
            check(irq === (n % 7 == 0), "a tick each seven cycles");
            write(PEND, 7);
        end
`endif
        // Every byte of every register, the time standing still.
        power_on;
        apb_parts(SECONDS, 32'hFFFFFFFF, 0); apb_parts(SUBSECOND, IS_BASIC ? 0 : 32'h00FFFFFF, 0); apb_parts(ALARM, 32'hFFFFFFFF, 0);
        apb_parts(PRESCALE, 32'h00FFFFFF, 0); apb_parts(CALIB, IS_WHOLE ? 32'h0FFF : 0, 0); apb_parts(TICK, IS_BASIC ? 0 : 32'hFFFF, 0);
        apb_parts(ALARMMASK, IS_WHOLE ? 32'hFFFFFFFF : 0, IS_WHOLE ? 0 : 32'hFFFFFFFF);
        apb_parts(ALARMSTEP, IS_WHOLE ? 32'h000FFFFF : 0, 0); apb_parts(STATUS, 0, 32'h3); apb_parts(STATUS + 4, 0, 0);
        apb_parts(ID, 0, ID_VALUE); apb_parts(CTRL, IS_BASIC ? 32'h7 : 32'h1F, 0);
        // Random settings.
        power_on; model_power;
        write(PRESCALE, 3);
        for (n = 0; n < `ROUNDS(700, 20); n = n + 1) begin
            random_settings;
            if (n % 4 == 0) compare_with_model;
        end
        finish;
    end
endmodule
