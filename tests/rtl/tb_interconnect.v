// Decoder, default slave and response multiplexer: the whole map, the error response, wait states, data steering, and
// slaves that do not answer.  With BASIC there is no limit of wait states.
module tb;
`include "bench.vh"
`include "ahb_master.vh"
    wire [15:0]  hsel_s, masked_sel;
    wire         masked_default;
    reg  [511:0] hrdata_s;
    reg  [15:0]  hreadyout_s = 16'hFFFF;
    reg  [15:0]  hresp_s = 16'h0000;

    reg  [17:0]  timeout = 18'h3FFFF;
    reg  [15:0]  vacant_s = 16'h0000, expired_s = 16'h0000;
    wire [1:0]   cause;
    wire         late;
`ifdef BASIC
    localparam IS_BASIC = 1;
    ahb_interconnect #(.FULL(0)) dut (
`else
    localparam IS_BASIC = 0;
    ahb_interconnect dut (
`endif
       
        .HCLK(clk), .HRESETn(rstn), .timeout(timeout), .cause(cause), .late(late), .vacant_s(vacant_s),
        .expired_s(expired_s), .HADDR_REGION(haddr[31:24]), .HTRANS(htrans),
        .HRDATA(hrdata), .HREADY(hready), .HRESP(hresp),
        .hsel_s(hsel_s), .hrdata_s(hrdata_s), .hreadyout_s(hreadyout_s), .hresp_s(hresp_s)
    );
    ahb_decoder #(.ENABLE(16'h0101)) masked (.region(haddr[31:24]), .hsel(masked_sel), .hsel_default(masked_default));

    // The slave of each region, 16 for none.
    function integer owner(input integer region);
        if (region <= 31) owner = 14;
        else if (region <= 63) owner = 15;
        else if (region == 64) owner = 0;
        else if (region == 65) owner = 1;
        else if (region == 66) owner = 2;
        else if (region == 80) owner = 6;
        else if (region == 96) owner = 7;
        else if (region == 104 || region == 105) owner = 3;
        else if (region >= 112 && region <= 127) owner = 4;
        else if (region == 128) owner = 8;
        else if (region == 129) owner = 9;
        else if (region == 134) owner = 10;
        else if (region == 137) owner = 11;
        else if (region == 138) owner = 12;
        else if (region == 139) owner = 13;
        else if (region >= 160 && region <= 191) owner = 5;
        else owner = 16;
    endfunction

    // One transfer after the other, each slave with wait states, errors and failures of its own, against what is
    // expected of it.  A slave waits with 0, with an unknown value, or with none at all.
    localparam [1:0] GOOD = 2'd0, ERROR = 2'd1, HALF_ERROR = 2'd2;   // how a slave ends a transfer
    integer    limit;
    reg [15:0] gone, leaving, back;   // abandoned slaves, and those that become so and are again with the next edge
    integer    who, next_who, wait_states, cycle, expected_waits;
    reg [1:0]  how, expected_cause;
    reg        slow, ended, expected_error;
    reg [7:0]  next_region;
    integer    i, t, n_late = 0, n_refused = 0, n_back = 0;

    function waiting_value(input integer kind);
        case (kind)
`ifndef GATES   // which hand on what is unknown
            0: waiting_value = 1'bx;
            1: waiting_value = 1'bz;
`endif
            default: waiting_value = 1'b0;
        endcase
    endfunction

    task edge_of_clock;
        begin
            for (i = 0; i < 16; i = i + 1) back[i] = hreadyout_s[i] === 1'b1;
            cycles(1);
            gone = (gone | leaving) & ~back;
            leaving = 16'd0;
        end
    endtask

    // The data phase of `who`, with the address phase of the next transfer beside it.
    task data_phase;
        reg refused;
        begin
            refused = who < 16 && gone_at_address[who];
            slow = limit != 0 && wait_states > limit;
            expected_error = who == 16 || refused || (who < 16 && (slow || how != GOOD));
            expected_cause = who == 16 ? 2'd0 : refused ? 2'd3 : slow ? 2'd2 : 2'd1;
            expected_waits = who > 16 ? 0 : who == 16 || refused ? 1 : slow ? limit + 1
                                      : how == GOOD ? wait_states : wait_states + 1;
            ended = 1'b0;
            for (cycle = 0; !ended; cycle = cycle + 1) begin
                if (who < 16 && !refused) begin
                    hreadyout_s[who] = waiting_value(wait_kind);
                    hresp_s[who] = how == GOOD ? (wait_kind == 1 ? waiting_value(1) : 1'b0) : cycle >= wait_states;
                    if (how == GOOD ? cycle >= wait_states : how == ERROR && cycle > wait_states) hreadyout_s[who] = 1'b1;
                end
                #1;
                check((hready ^ hresp) !== 1'bx, "the master sees known values");
                check(hresp === (expected_error && cycle >= expected_waits - 1), "HRESP of a cycle");
                check(hready === (cycle == expected_waits), "HREADY of a cycle");
                check(late === (limit != 0 && cycle == limit && expected_waits >= limit), "late cycle");
                if (late && slow && !refused && who < 16 && hreadyout_s[who] !== 1'b1) leaving[who] = 1'b1;
                if (hready !== 1'b0 || cycle > 60) begin
                    ended = 1'b1;
                    if (expected_error) check(cause === expected_cause, "cause of an error");
                    if (who < 16 && !refused && how == HALF_ERROR) gone[who] = 1'b1;   // in this cycle already
                    if (who < 16 && !refused) check32(hrdata, 32'hA5000000 + who, "data of the slave");
                    check(hsel_s === (next_who < 16 ? (16'd1 << next_who) & ~gone : 16'd0), "abandoned slaves are not selected");
                    gone_at_address = gone;
                    if (slow && !refused && who < 16) n_late = n_late + 1;
                    if (refused) n_refused = n_refused + 1;
                end
                edge_of_clock;
                if (ended && who < 16 && !refused) hresp_s[who] = 1'b0;
            end
        end
    endtask
    reg [15:0] gone_at_address;
    integer    wait_kind;
    localparam TRANSFERS = `ROUNDS(400, 30);
    localparam NO_LIMIT  = `ROUNDS(70000, 300);
    localparam LONGEST   = `ROUNDS(65535, 1023);

    task random_transfers(input integer count);
        begin
            gone = 16'd0; leaving = 16'd0; gone_at_address = 16'd0;
            who = 17;   // idle
            htrans = 2'b00;
            for (t = 0; t < count; t = t + 1) begin
                next_region = $random;
                next_who = owner(next_region);
                haddr = {next_region, 24'd0};
                htrans = {$random % 8 != 0, 1'b0};
                wait_states = $unsigned($random) % 14;
                wait_kind = $unsigned($random) % 4;
                how = $unsigned($random) % 8;
                if (how == 2'd3) how = GOOD;
                if (limit == 0 && how == HALF_ERROR) how = ERROR;
                data_phase;
                who = htrans[1] ? next_who : 17;
                i = $unsigned($random) % 40;
                if (i < 16 && gone[i]) begin hreadyout_s[i] = 1'b1; hresp_s[i] = 1'b0; n_back = n_back + 1; end
            end
            htrans = 2'b00;
            hreadyout_s = 16'hFFFF; hresp_s = 16'd0;
            cycles(4);
        end
    endtask

    integer n, s;
    reg [15:0] want;
    initial begin
        for (n = 0; n < 16; n = n + 1) hrdata_s[32*n +: 32] = 32'hA5000000 + n;
        reset;
        check(hready === 1'b1 && hresp === 1'b0, "ready after reset");
        for (n = 0; n < 256; n = n + 1) begin
            s = owner(n);
            want = (s == 16) ? 16'd0 : 16'd1 << s;
            haddr = n << 24; #1;
            check32(hsel_s, want, "select of a region");
            check32(masked_sel, want & 16'h0101, "disabled slaves are not selected");
            check(masked_default === ~|(want & 16'h0101), "default select");
            ahb_transfer(n << 24, n[0], 3'd2, 32'd0);
            if (s == 16) begin
                check(failed && waits == 1, "unmapped: two-cycle error");
                check32(rd, 32'd0, "unmapped: no data");
            end else begin
                check(!failed && waits == 0, "mapped: no error, no wait");
                check32(rd, 32'hA5000000 + s, "data of the slave");
            end
        end
        // An idle transfer to nowhere is fine.
        haddr = 32'hF0000000; htrans = 2'b00;
        cycles(1);
        check(hready === 1'b1 && hresp === 1'b0, "idle transfer: OKAY");
        cycles(1);
        check(hready === 1'b1 && hresp === 1'b0, "idle transfer: still OKAY");
        // Wait states, and the error of a slave, while the address already points elsewhere.
        haddr = 32'h81000000; htrans = 2'b10;
        cycles(1);
        hreadyout_s[9] = 1'b0;
        haddr = 32'h40000000; #1;
        check(hready === 1'b0, "slave 9 waits");
        check(hsel_s === 16'h0001, "next address selects slave 0");
        cycles(1);
        hresp_s[9] = 1'b1; #1;
        check(hready === 1'b0 && hresp === 1'b1, "error, first cycle");
        cycles(1);
        hreadyout_s[9] = 1'b1; #1;
        check(hready === 1'b1 && hresp === 1'b1, "error, second cycle");
        cycles(1);
        htrans = 2'b00;
        check(hresp === 1'b0 && hrdata === 32'hA5000000, "slave 0 answers next");
        // Back to back: an error followed by a good transfer.
        hresp_s = 16'd0;
        haddr = 32'hC0000000; htrans = 2'b10;
        cycles(1);
        haddr = 32'h8B000000;
        #1 check(hready === 1'b0 && hresp === 1'b1, "unmapped, first cycle");
        cycles(1);
        check(hready === 1'b1 && hresp === 1'b1, "unmapped, second cycle");
        cycles(1);
        htrans = 2'b00;
        check(hready === 1'b1 && hresp === 1'b0 && hrdata === 32'hA500000D, "slave 13 after the error");
        cycles(1);
`ifndef BASIC
        // A slave whose signals float from the beginning.
        hreadyout_s[8] = waiting_value(1); hresp_s[8] = waiting_value(1); hrdata_s[32*8 +: 32] = 32'hzzzzzzzz;
        timeout = 18'd20;
        ahb_transfer(32'h00000000, 1'b0, 3'd2, 32'd0);
        check(!failed && waits == 0, "slave 14 before");
        ahb_transfer(32'h80000000, 1'b0, 3'd2, 32'd0);
        check(failed && waits == 21, "slave 8 does not answer in time");
        ahb_transfer(32'h80000000, 1'b1, 3'd2, 32'd0);
        check(failed && waits == 1, "and is abandoned");
        ahb_transfer(32'h81000000, 1'b0, 3'd2, 32'd0);
        check(!failed && waits == 0, "the others are not");
        hreadyout_s[8] = 1'b1; hresp_s[8] = 1'b0; hrdata_s[32*8 +: 32] = 32'hA5000008;
        cycles(1);
        ahb_expect(32'h80000000, 32'hA5000008, "until it is ready again");
`endif
        // Nobody at the address, says the slave.
        hresp_s[6] = 1'b1; vacant_s[6] = 1'b1;
        haddr = 32'h50000000; htrans = 2'b10;
        cycles(1);
        htrans = 2'b00;
        check(hresp === 1'b1 && cause === 2'd0, "vacant place of a slave");
        vacant_s = 16'hFFBF; #1;
        check(cause === 2'd1, "error of a slave");
        expired_s[6] = 1'b1; #1;
        check(cause === 2'd2, "late access of a bridge");
        hresp_s = 16'd0; vacant_s = 16'd0; expired_s = 16'd0;
        // No limit: many wait states are no error.  A long limit.
        timeout = IS_BASIC ? 18'd5 : 18'd0;
        cycles(2);
        haddr = 32'h40000000; htrans = 2'b10;
        cycles(1);
        htrans = 2'b00; hreadyout_s[0] = 1'b0;
        cycles(NO_LIMIT);
        check(hready === 1'b0 && hresp === 1'b0, "no limit");
        hreadyout_s[0] = 1'b1; timeout = IS_BASIC ? 18'd5 : LONGEST; #1;
        check(hready === 1'b1 && hresp === 1'b0, "the slave ends it");
        cycles(1);
`ifndef BASIC
        haddr = 32'h40000000; htrans = 2'b10;
        cycles(1);
        htrans = 2'b00; hreadyout_s[0] = 1'b0;
        cycles(LONGEST - 1);
        check(hready === 1'b0 && hresp === 1'b0, "as many wait states as the limit");
        cycles(1);
        check(hready === 1'b0 && hresp === 1'b1, "one more is an error");
        cycles(1);
        check(hready === 1'b1 && hresp === 1'b1, "of two cycles");
        hreadyout_s[0] = 1'b1;
        cycles(2);
`endif
        // Nothing waits while nothing is transferred.
        haddr = 32'h40000000; htrans = 2'b00; hreadyout_s[0] = 1'b0;
        cycles(2);
        check(hready === 1'b1 && hresp === 1'b0, "idle transfer to a slave that is not ready");
        hreadyout_s[0] = 1'b1;
        for (n = 0; n < (IS_BASIC ? 5 : 40); n = n + 1) begin
            limit = IS_BASIC ? 0 : n % 10;
            timeout = IS_BASIC ? n % 10 : limit;
            cycles(2);
            random_transfers(TRANSFERS);
        end
`ifndef BASIC
        check(n_late > TRANSFERS, "late slaves came");
        check(n_refused > TRANSFERS, "were refused");
        check(n_back > TRANSFERS, "and went");
`endif
        finish;
    end
endmodule
