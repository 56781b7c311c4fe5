// AHB-to-APB bridge with the APB multiplexer: protocol order, strobes, wait states, errors, slots, peripherals that do
// not answer.
module tb;
`include "bench.vh"
`include "ahb_master.vh"
    wire [23:0]  paddr;
    wire         psel, penable, pwrite, pready, pslverr;
    wire [3:0]   pstrb;
    wire [2:0]   pprot;
    wire [31:0]  pwdata, prdata;
    wire [15:0]  psel_s;
    wire [511:0] prdata_s;
    reg  [3:0]   hprot = 4'b0011;

    // What the interconnect does: wait states of a transfer are counted.
    integer      limit = 0, waited = 0;
    reg          late = 1'b0;
    always @(posedge clk) begin
        waited <= hready === 1'b1 ? 0 : waited + 1;
        late <= hready !== 1'b1 && waited == limit - 1;
    end
    wire         vacant, expired;

    ahb_to_apb dut (
        .HCLK(clk), .HRESETn(rstn), .HSEL(haddr[31:24] == 8'h60), .HADDR(haddr[23:0]), .HTRANS(htrans), .HSIZE(hsize),
        .HPROT(hprot), .HWRITE(hwrite), .HWDATA(hwdata), .HREADY(hready), .HRDATA(hrdata), .HREADYOUT(hready),
        .HRESP(hresp), .late(late), .expired(expired), .PADDR(paddr), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PSTRB(pstrb), .PPROT(pprot),
        .PWDATA(pwdata), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr)
    );

    // Sixteen slots, slot 9 disabled; each is a register that waits "delay" cycles and fails at offset 0xFC.
    reg [31:0] store [0:15];
    integer delay = 0, count = 0;
    reg  silent = 1'b0;   // answers nothing: `floating` for ever
    reg  floating = 1'b0;
    wire slave_ready = silent ? floating : count >= delay;
    wire slave_error = paddr[7:0] == 8'hFC;
    apb_mux #(.ADDR_WIDTH(24), .SLOT_LSB(20), .ENABLE(16'hFDFF)) mux (
        .PADDR(paddr), .PSEL(psel), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .vacant(vacant),
        .psel_s(psel_s), .prdata_s(prdata_s), .pready_s({16{slave_ready}}), .pslverr_s({16{slave_error}})
    );
    wire [15:0]  low_psel_s;
    wire         low_pslverr, low_pready;
    wire [31:0]  low_prdata;
    apb_mux #(.ADDR_WIDTH(24), .SLOT_LSB(12)) low (
        .PADDR(paddr), .PSEL(psel), .PRDATA(low_prdata), .PREADY(low_pready), .PSLVERR(low_pslverr), .vacant(),
        .psel_s(low_psel_s), .prdata_s(512'd0), .pready_s(16'hFFFF), .pslverr_s(16'h0000)
    );
    genvar g;
    generate for (g = 0; g < 16; g = g + 1) begin : slots assign prdata_s[32*g +: 32] = store[g]; end endgenerate

    integer k, lane, n_setup = 0, n_access = 0;
    reg [3:0]  seen_strb;
    reg [2:0]  seen_prot;
    reg [15:0] seen_sel, seen_low;
    reg [23:0] seen_addr;
    reg        was_psel = 1'b0, was_end = 1'b0, was_penable = 1'b0, seen_low_err;
    reg [56:0] was_control = 57'd0;
    always @(posedge clk) begin
        // Each transfer has one setup cycle; control signals stay until its end.
        if (psel && !penable) n_setup = n_setup + 1;
        if (psel && penable && pready) n_access = n_access + 1;
        if (rstn) begin
            if (penable) check(psel && was_psel, "PENABLE follows a setup cycle");
            if (psel && (!was_psel || was_end)) check(!penable, "a transfer starts with PENABLE low");
            if (psel && was_psel && !was_end) check(penable, "one setup cycle only");
            if (psel && was_psel && !was_end && was_penable)
                check({paddr, pwrite, pwdata} === was_control, "control signals are stable");
        end
        was_control <= {paddr, pwrite, pwdata};
        was_penable <= penable;
        was_psel <= psel;
        was_end <= psel && penable && pready;
        count <= (psel && penable && !pready) ? count + 1 : 0;
        if (psel && penable && pready) begin
            seen_strb = pstrb; seen_sel = psel_s; seen_low = low_psel_s; seen_addr = paddr; seen_prot = pprot;
            seen_low_err = low_pslverr;
            if (pwrite)
                for (lane = 0; lane < 4; lane = lane + 1)
                    for (k = 0; k < 16; k = k + 1)
                        if (psel_s[k] && pstrb[lane]) store[k][8*lane +: 8] <= pwdata[8*lane +: 8];
        end
    end

    integer    n, slot, k_access, seed = 7;
    reg [31:0] value, old;
    initial begin
        for (n = 0; n < 16; n = n + 1) store[n] = 32'd0;
        reset;
        for (n = 0; n < 16; n = n + 1) begin
            delay = n % 4;
            ahb_write(32'h60000000 + (n << 20) + 32'h10, 32'hC0DE0000 + n);
            if (n == 9) check(failed && waits == 2, "disabled slot: error");
            else begin
                check(!failed, "write completes");
                check(waits == 1 + delay, "wait states of a write");
                check32(seen_sel, 16'd1 << n, "slot of the address");
                check32(seen_strb, 4'hF, "strobes of a word");
                check32(seen_addr, (n << 20) + 24'h10, "PADDR");
                ahb_expect(32'h60000000 + (n << 20), 32'hC0DE0000 + n, "read back");
                check(waits == 1 + delay, "wait states of a read");
                check32(seen_strb, 4'h0, "no strobes of a read");
            end
        end
        check32(store[9], 32'd0, "disabled slot untouched");
        // Bytes and half-words.
        delay = 0;
        for (n = 0; n < 4; n = n + 1) begin
            ahb_transfer(32'h60300000 + n, 1'b1, 3'd0, {4{8'h11 * (n[7:0] + 8'd1)}});
            check32(seen_strb, 4'd1 << n, "strobe of a byte");
        end
        ahb_expect(32'h60300000, 32'h44332211, "four bytes make a word");
        ahb_transfer(32'h60300002, 1'b1, 3'd1, 32'hABCDABCD);
        check32(seen_strb, 4'hC, "strobes of the upper half-word");
        ahb_transfer(32'h60300000, 1'b1, 3'd1, 32'h12341234);
        check32(seen_strb, 4'h3, "strobes of the lower half-word");
        ahb_expect(32'h60300000, 32'hABCD1234, "two half-words make a word");
        // Errors of a peripheral, protection, and the slots of 4 KB.
        delay = 2;
        ahb_write(32'h603000FC, 32'd1);
        check(failed, "PSLVERR becomes an error response");
        ahb_transfer(32'h603000FC, 1'b0, 3'd2, 32'd0);
        check(failed, "also for a read");
        delay = 0;
        hprot = 4'b0000;
        ahb_expect(32'h60000000, 32'hC0DE0000, "after the errors");
        check32(seen_prot, 3'b100, "user opcode fetch");
        hprot = 4'b0011;
        ahb_expect(32'h60005000, 32'hC0DE0000, "any offset of the slot");
        check32(seen_prot, 3'b001, "privileged data");
        check32(seen_low, 16'h0020, "4 KB slot");
        check(!seen_low_err, "4 KB slot: no error");
        ahb_expect(32'h60015000, 32'hC0DE0000, "beyond the 4 KB slots");
        check32(seen_low, 16'h0000, "address bits above the slots select nothing");
        check(seen_low_err, "and give an error");
        // Pipelined: the address of the second transfer stands during the data phase of the first.
        n = n_access;
        haddr = 32'h60100000; htrans = 2'b10; hwrite = 1'b1; hsize = 3'd2;
        cycles(1);
        haddr = 32'h60200000; hwdata = 32'h11111111;
        #1;
        while (!hready) cycles(1);
        cycles(1);
        htrans = 2'b00; hwdata = 32'h22222222;
        #1;
        while (!hready) cycles(1);
        cycles(1);
        hwrite = 1'b0;
        check32(store[1], 32'h11111111, "first pipelined write");
        check32(store[2], 32'h22222222, "second pipelined write");
        check(n_access == n + 2, "two transfers for two writes");
        check(n_setup == n_access, "every setup leads to an access");
        // Nothing happens when another slave is addressed or the transfer is idle.
        haddr = 32'h70000000; htrans = 2'b10;
        cycles(1);
        haddr = 32'h60000000; htrans = 2'b00;
        cycles(3);
        check(n_access == n + 2 && psel === 1'b0, "not selected, not active");
        // Peripherals that do not answer in time, among others that do.
        haddr = 32'd0;
        for (n = 0; n < 600; n = n + 1) begin
            limit = 1 + $unsigned($random(seed)) % 20;
            delay = $unsigned($random(seed)) % 24;
            silent = $unsigned($random(seed)) % 4 == 0;
            case ($unsigned($random(seed)) % 3)
`ifndef GATES   // which hand on what is unknown
                0: floating = 1'bx;
                1: floating = 1'bz;
`endif
                default: floating = 1'b0;
            endcase
            value = $random(seed);
            slot = n % 16;
            old = store[slot];
            k_access = n_access;
            ahb_transfer(32'h60000000 + (slot << 20), n[4], 3'd2, value);
            check(psel === 1'b0 && penable === 1'b0, "the peripheral is released");
            if (slot == 9) check(failed && waits == 2 && expired === 1'b0, "disabled slot");
            else if (silent || delay >= limit) begin
                check(failed && waits == limit + 1, "error after the limit");
                check(n_access == k_access && store[slot] === old, "the access has not happened");
                check(expired === 1'b1, "late is the reason");
            end else begin
                check(!failed && waits == delay + 1, "in time");
                check32(store[slot], n[4] ? value : old, "the access has happened");
                check(n_access == k_access + 1, "once");
            end
            check(vacant === (slot == 9), "vacant slot");
            silent = 1'b0;
        end
        finish;
    end
endmodule
