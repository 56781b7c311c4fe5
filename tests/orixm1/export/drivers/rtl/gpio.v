// Sixteen pins: those that are driven read back, the others are given from outside, where some pins
// can be held high too.
module tb;
`include "bench.vh"
`include "ahb_bus.vh"
    wire [15:0] out, outen;
    wire        irq;
    reg  [15:0] outside = 16'd0, held = 16'd0;
    ahb_gpio dut (.HCLK(clk), .HRESETn(rstn), .HSEL(haddr[31:24] == 8'h40), .HADDR(haddr[23:0]), .HTRANS(htrans),
                  .HSIZE(hsize), .HWRITE(hwrite), .HWDATA(hwdata), .HREADY(hready), .HRDATA(hrdata),
                  .HREADYOUT(hready), .HRESP(hresp), .gpio_in((out & outen) | (outside & ~outen) | held), .gpio_out(out),
                  .gpio_outen(outen), .irq(irq));

    integer raised = 0, changes = 0;
    always @(out) if (rstn) changes = changes + 1;
    always @(posedge irq) if (rstn) raised = raised + 1;

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: begin outside = value[15:0]; cycles(4); end
            1: begin outside = 16'hFFFF; cycles(value); outside = 16'd0; cycles(4); end
            2: begin held = value[15:0]; cycles(4); end
        endcase
    endtask
    task far_read(input [31:0] index);
        case (index)
            0: rd = irq;
            1: rd = out;
            2: rd = outen;
            3: rd = raised;
            4: rd = changes;                    // of the outputs, at one time each
        endcase
    endtask
`include "serve.vh"
endmodule
