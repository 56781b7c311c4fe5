// A bus whose accesses the program makes fail, requests of resets, and the processor's lock-up.
module tb;
`include "bench.vh"
`include "apb_bus.vh"
    reg  [31:0] haddr = 32'd0;
    reg  [1:0]  htrans = 2'd0, error_cause = 2'd0;
    reg  [3:0]  control = 4'd0, reset_cause = 4'd0;
    reg         hresp = 1'b0;
    wire [17:0] bus_timeout;
    wire        lockup_reset_req, irq;
    reg         porn = 1'b0;
    initial #12 porn = 1'b1;
    apb_system dut (.PCLK(clk), .PRESETn(rstn), .PORESETn(porn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite),
                    .PADDR(paddr), .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                    .HADDR(haddr), .HTRANS(htrans), .HSIZE(control[2:1]), .HPROT(control[3]), .HWRITE(control[0]),
                    .HREADY(1'b1), .HRESP(hresp), .error_cause(error_cause), .bus_timeout(bus_timeout),
                    .reset_cause(reset_cause), .lockup(1'b1), .lockup_reset_req(lockup_reset_req), .irq(irq));

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: haddr = value;
            1: begin   // an access that fails
                {control, error_cause} = value[5:0];
                htrans = 2'd2;
                cycles(1);
                htrans = 2'd0; hresp = 1'b1;
                cycles(1);
                hresp = 1'b0;
            end
            2: begin reset_cause = value[3:0]; cycles(1); reset_cause = 4'd0; reset; end
            default: check(1'b0, "nothing to write");
        endcase
    endtask
    task far_read(input [31:0] index);
        case (index)
            3: rd = irq;
            4: rd = bus_timeout;
            5: rd = lockup_reset_req;
        endcase
    endtask
`include "serve.vh"
endmodule
