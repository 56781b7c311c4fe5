// System control: causes of resets over all kinds of reset, errors of a bus against a model, limits, interrupt.  With BASIC
// there is no limit of wait states.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    reg         porn = 1'b0;
    reg  [31:0] haddr = 32'd0;
    reg  [1:0]  htrans = 2'd0, hsize = 2'd0;
    reg         hprot = 1'b1, hwrite = 1'b0, hready = 1'b1, hresp = 1'b0;
    reg  [1:0]  error_cause = 2'd0;
    wire [17:0] bus_timeout;
    reg  [3:0]  reset_cause = 4'd0;
    reg         lockup = 1'b0;
    wire        lockup_reset_req, irq;

`ifdef BASIC
    localparam IS_BASIC = 1;
    apb_system #(.FULL(0)) dut (
`else
    localparam IS_BASIC = 0;
    apb_system dut (
`endif
       
        .PCLK(clk), .PRESETn(rstn), .PORESETn(porn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
        .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
        .HADDR(haddr), .HTRANS(htrans), .HSIZE(hsize), .HPROT(hprot), .HWRITE(hwrite), .HREADY(hready), .HRESP(hresp),
        .error_cause(error_cause), .bus_timeout(bus_timeout), .reset_cause(reset_cause), .lockup(lockup),
        .lockup_reset_req(lockup_reset_req), .irq(irq)
    );

    localparam [11:0] RESETCAUSE = 12'h000, CTRL = 12'h004, BUSTIMEOUT = 12'h008, ERRADDR = 12'h00C, ERRINFO = 12'h010,
                      SCRATCH = 12'h014, BLOCKS = 12'h018, CONFIG = 12'h01C, PORTS = 12'h020, ID = 12'hFFC;

    task power_on_reset;
        begin
            porn = 1'b0; rstn = 1'b0;
            cycles(3);
            porn = 1'b1;
            cycles(2);
            rstn = 1'b1;
            cycles(1);
        end
    endtask

    // A reset of the system, by one of the four requests.
    task system_reset(input integer which);
        begin
            reset_cause[which] = 1'b1;
            cycles(1);
            rstn = 1'b0;
            cycles(1);
            reset_cause = 4'd0;
            cycles(4);
            rstn = 1'b1;
            cycles(1);
        end
    endtask

    // An access on the bus that is watched: wait states, then the answer.
    task access(input [31:0] address, input [3:0] control, input integer waits, input error, input [1:0] why);
        begin
            {hprot, hsize, hwrite} = control;
            haddr = address; htrans = 2'b10;
            cycles(1);
            haddr = ~address; {hprot, hsize, hwrite} = ~control;   // the next address, not accepted yet
            hready = 1'b0;
            cycles(waits);
            if (error) begin
                hresp = 1'b1;
                cycles(1);
            end
            htrans = 2'b00;
            hready = 1'b1; error_cause = why;
            cycles(1);
            hresp = 1'b0; error_cause = ~why;
        end
    endtask

    integer    n, seed = 3;
    reg        valid, more, error;
    reg [31:0] address, last_address, info;
    reg [3:0]  control;
    reg [1:0]  why;
    initial begin
        cycles(2);
        power_on_reset;
        apb_expect(RESETCAUSE, 32'h01, "the first reset is power-on");
        apb_expect(ID, IS_BASIC ? 32'h8000020B : 32'h0000020B, "ID");
        apb_expect(BLOCKS, 32'd0, "BLOCKS");
        apb_expect(CONFIG, 32'd0, "CONFIG");
        check(bus_timeout === (IS_BASIC ? 18'd0 : 18'h3FFFF), "limit after reset");
        apb_write(SCRATCH, 32'h12345678);
        for (n = 0; n < 4; n = n + 1) begin
            apb_write(CTRL, 32'd3);
            apb_write(BUSTIMEOUT, 32'd100 + n);
            check32(bus_timeout, IS_BASIC ? 0 : 32'd100 + n, "limit");
            system_reset(n);
            apb_expect(RESETCAUSE, 32'h01 | ((32'd8 << n) - 32'd4), "causes gather");
            apb_expect(CTRL, 32'd0, "a system reset clears CTRL");
            apb_expect(BUSTIMEOUT, IS_BASIC ? 0 : 32'h3FFFF, "and BUSTIMEOUT");
            apb_expect(SCRATCH, 32'h12345678, "and leaves SCRATCH alone");
        end
        apb_write(RESETCAUSE, 32'd0);
        apb_expect(RESETCAUSE, 32'h3D, "writing 0 does nothing");
        apb_write_lanes(RESETCAUSE, 32'h3D, 4'b1110);
        apb_expect(RESETCAUSE, 32'h3D, "nor does a write of other bytes");
        apb_write(RESETCAUSE, 32'h14);
        apb_expect(RESETCAUSE, 32'h29, "writing 1 clears a bit and no other");
        apb_write8(RESETCAUSE, 8'hFF);
        apb_expect(RESETCAUSE, 32'h00, "all are clear");
        system_reset(1);
        apb_expect(RESETCAUSE, 32'h08, "only the software");
        power_on_reset;
        apb_expect(RESETCAUSE, 32'h02, "the second reset is the pin");
        apb_expect(SCRATCH, 32'd0, "SCRATCH is clear");
        apb_write8(SCRATCH + 2, 8'hAB);
        apb_write16(SCRATCH, 16'h1357);
        apb_expect(SCRATCH, 32'h00AB1357, "parts of SCRATCH");
        apb_parts(SCRATCH, 32'hFFFFFFFF, 0);
        apb_parts(BUSTIMEOUT, IS_BASIC ? 0 : 32'h0003FFFF, 0);
        apb_parts(CTRL, 32'h00000003, 0);
        apb_parts(BLOCKS, 0, 0);
        apb_parts(CONFIG, 0, 0);
        apb_parts(PORTS, 0, 0);
        apb_parts(PORTS + 4, 0, 0);   // the first that is none
        apb_parts(ID, 0, IS_BASIC ? 32'h8000020B : 32'h0000020B);
        apb_write(CTRL, 32'd0);
        // Lock-up.
        lockup = 1'b1;
        #1 check(lockup_reset_req === 1'b0, "a lock-up is let be");
        apb_write(CTRL, 32'd1);
        check(lockup_reset_req === 1'b1, "or resets the system");
        lockup = 1'b0;
        #1 check(lockup_reset_req === 1'b0, "without lock-up no request");
        // Errors, with the interrupt on.
        apb_write(CTRL, 32'd2);
        valid = 1'b0; more = 1'b0; info = 32'd0; last_address = 32'd0;
        for (n = 0; n < 400; n = n + 1) begin
            address = $random(seed);
            control = $random(seed);
            why = $random(seed);
            error = $random(seed);
            access(address, control, $unsigned($random(seed)) % 4, error, why);
            if (error) begin
                more = more | valid;
                valid = 1'b1;
                last_address = address;
                info = {22'd0, ~control[3], control[2:0], why, 4'd0};
            end
            check(irq === valid, "interrupt while an error is there");
            if (n % 3 == 0) begin
                apb_expect(ERRADDR, last_address, "address of the last error");
                apb_expect(ERRINFO, info | {30'd0, more, valid}, "what it was");
            end
            case ($unsigned($random(seed)) % 8)
                0: begin apb_write(ERRINFO, 32'd1); valid = 1'b0; end
                1: begin apb_write(ERRINFO, 32'd3); valid = 1'b0; more = 1'b0; end
                2: begin apb_write8(ERRINFO, 8'd2); more = 1'b0; end
                3: apb_write(ERRINFO, 32'hFFFFFFFC);
                4: begin system_reset(0); apb_write(CTRL, 32'd2); end
                default: ;
            endcase
        end
        apb_write(ERRINFO, 32'd3);
        access(32'hCAFE0000, 4'b1101, 0, 1'b1, 2'd2);
        apb_write(CTRL, 32'd0);
        check(irq === 1'b0, "interrupt off");
        apb_expect(ERRINFO, 32'h00000161, "a word was written, too late");
        // Idle transfers are no accesses, and a transfer that waits is one all the time.
        haddr = 32'hDEAD0000; htrans = 2'b00;
        cycles(3);
        haddr = 32'h0; htrans = 2'b01;
        cycles(1);
        hresp = 1'b1; hready = 1'b0;
        cycles(4);
        apb_expect(ERRADDR, 32'hCAFE0000, "no error before the transfer ends");
        hresp = 1'b0; hready = 1'b1;
        power_on_reset;
        apb_expect(ERRINFO, 32'd0, "the pin clears the error");
        finish;
    end
endmodule
